// SPDX-License-Identifier: MIT
//! \file
//! What tells that the content of a database has changed.
#pragma once

#include <zbBrowserView/sqlite/Database.h>

#include <chrono>
#include <cstdint>
#include <string>
#include <vector>

namespace zbsqlite::detail {

//! Two equal states of one connection mean that nothing was committed in between.
struct FileState {
    std::vector<std::string> schemas;

    // One for each schema; empty if nothing is known.
    std::vector<std::int64_t> dataVersions;
    std::vector<std::int64_t> schemaVersions;
    std::int64_t ownChanges = 0;
};

std::vector<std::string> ReadSchemaNames(Database const& database);

//! Whether somebody committed since the state was read. Reads no page but the first.
//! Failure: throws `Error`, also if the file is no longer where it was.
bool IsOutdated(Database const& database, FileState const& state);

//! Within a transaction, so that it is the state of what is read in it.
//! Failure: throws `Error`, also if the file has been emptied.
FileState ReadState(Database const& database, std::vector<std::string> const& schemas);

//! All that is read while it lives is of one state of the database.
class ReadTransaction {
public:
    //! Failure: throws `Error`.
    explicit ReadTransaction(Database const& database);
    ReadTransaction(ReadTransaction const&) = delete;
    ReadTransaction& operator=(ReadTransaction const&) = delete;
    ~ReadTransaction();

private:
    Database const& database_;
};

//! Waits for a writer no longer than this, as long as it lives.
class ShortPatience {
public:
    explicit ShortPatience(Database& database);
    ShortPatience(ShortPatience const&) = delete;
    ShortPatience& operator=(ShortPatience const&) = delete;
    ~ShortPatience();

private:
    Database& database_;
    std::chrono::milliseconds usual_;
};

} // namespace zbsqlite::detail
