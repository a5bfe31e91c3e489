// SPDX-License-Identifier: MIT
#include "Statement.h"

#include <zbBrowserView/sqlite/Error.h>
#include <zbBrowserView/sqlite/Transaction.h>

#include <sqlite3.h>

namespace zbsqlite {

//! Asks for the right to write at once, so that no write can fail halfway for want of it.
Transaction::Transaction(Database const& database)
    : database_(database) {
    if (sqlite3_db_readonly(database_.Handle(), "main") != 0)
        throw Error(database_.File(), "the file is open for reading only", SQLITE_READONLY);
    detail::Statement(database_, "BEGIN IMMEDIATE").Step();
}

Transaction::~Transaction() {
    if (isOpen_)
        sqlite3_exec(database_.Handle(), "ROLLBACK", nullptr, nullptr, nullptr);
}

void Transaction::Commit() {
    detail::Statement(database_, "COMMIT").Step();
    isOpen_ = false;
}

} // namespace zbsqlite
