// SPDX-License-Identifier: MIT
#include "FileState.h"

#include "Quote.h"
#include "Statement.h"

#include <zbBrowserView/sqlite/Error.h>

#include <sqlite3.h>

#include <algorithm>

namespace zbsqlite::detail {

namespace {

constexpr std::chrono::milliseconds kPatience{100};

std::int64_t ReadPragma(Database const& database, std::string const& schema, char const* name) {
    Statement query(database, "PRAGMA " + QuoteName(schema) + "." + name);
    return query.Step() ? query.Integer(0) : 0;
}

std::vector<std::int64_t> ReadPragmas(Database const& database,
                                      std::vector<std::string> const& schemas, char const* name) {
    std::vector<std::int64_t> values;
    values.reserve(schemas.size());
    for (std::string const& schema : schemas)
        values.push_back(ReadPragma(database, schema, name));
    return values;
}

std::string FileOf(Database const& database, std::string const& schema) {
    char const* const file = sqlite3_db_filename(database.Handle(), schema.c_str());
    return schema == "main" || file == nullptr ? database.File() : file;
}

//! The connection keeps reading a file that another has taken the place of, in which nothing ever
//! changes.
void CheckPlace(Database const& database, std::string const& schema) {
    int hasMoved = 0;
    int const code =
        sqlite3_file_control(database.Handle(), schema.c_str(), SQLITE_FCNTL_HAS_MOVED, &hasMoved);
    if (code == SQLITE_OK && hasMoved != 0)
        throw Error(FileOf(database, schema),
                    "the file has been deleted or replaced since it was opened");
}

//! To SQLite a file of no bytes is a sound database without tables.
void CheckContent(Database const& database, std::string const& schema) {
    if (ReadPragma(database, schema, "page_count") == 0)
        throw Error(FileOf(database, schema), "the file has been emptied");
}

} // namespace

std::vector<std::string> ReadSchemaNames(Database const& database) {
    std::vector<std::string> names;
    Statement query(database,
                    "SELECT name FROM pragma_database_list WHERE name <> 'temp' ORDER BY seq");
    while (query.Step())
        names.push_back(query.Text(0));
    return names;
}

//! The data version tells of what others commit, and of nothing that is written on this connection.
//! The number of changes on this connection counts all rows; the update hook leaves out tables
//! without rowids, and tables that are emptied at once.
bool IsOutdated(Database const& database, FileState const& state) {
    for (std::string const& schema : state.schemas)
        CheckPlace(database, schema);
    return state.dataVersions != ReadPragmas(database, state.schemas, "data_version") ||
           state.ownChanges != sqlite3_total_changes64(database.Handle());
}

FileState ReadState(Database const& database, std::vector<std::string> const& schemas) {
    FileState state;
    state.schemas = schemas;
    state.dataVersions = ReadPragmas(database, schemas, "data_version");
    state.schemaVersions = ReadPragmas(database, schemas, "schema_version");
    state.ownChanges = sqlite3_total_changes64(database.Handle());
    for (std::string const& schema : schemas)
        CheckContent(database, schema);
    return state;
}

ReadTransaction::ReadTransaction(Database const& database)
    : database_(database) {
    Statement(database, "BEGIN").Step();
}

ReadTransaction::~ReadTransaction() {
    sqlite3_exec(database_.Handle(), "ROLLBACK", nullptr, nullptr, nullptr);
}

ShortPatience::ShortPatience(Database& database)
    : database_(database)
    , usual_(database.BusyTimeout()) {
    database_.SetBusyTimeout(std::min(usual_, kPatience));
}

ShortPatience::~ShortPatience() {
    database_.SetBusyTimeout(usual_);
}

} // namespace zbsqlite::detail
