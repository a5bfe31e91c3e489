// SPDX-License-Identifier: MIT
//! \file
//! Writes that become true together.
#pragma once

#include <zbBrowserView/sqlite/zbSqliteExport.h>

namespace zbsqlite {

class Database;

//! What is written on a connection while it lives becomes true when it is committed, all at once.
//! Without that nothing has been written:
//!
//!     zbsqlite::Transaction transaction(host.Data().GetDatabase());
//!     host.Data().SetCurrentDataItem(row);
//!     if (mass->SetVariant(5))
//!         transaction.Commit();
class ZBSQLITE_API Transaction {
public:
    //! `database` must outlive it. From now on no other program can write.
    //! Requires: no other transaction on this connection.
    //! Failure: throws `Error`, also if others do not stop writing for `BusyTimeout`.
    explicit Transaction(Database const& database);
    Transaction(Transaction const&) = delete;
    Transaction& operator=(Transaction const&) = delete;

    //! Takes back what was not committed.
    ~Transaction();

    //! Failure: throws `Error`; nothing is true yet, and it may be called again.
    void Commit();

private:
    Database const& database_;
    bool isOpen_ = true;
};

} // namespace zbsqlite
