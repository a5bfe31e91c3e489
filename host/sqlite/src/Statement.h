// SPDX-License-Identifier: MIT
//! \file
//! A prepared query that finalizes itself.
#pragma once

#include <zbBrowserView/sqlite/Database.h>
#include <zbBrowserView/sqlite/Value.h>

#include <cstdint>
#include <string>
#include <string_view>

struct sqlite3_stmt;

namespace zbsqlite::detail {

//! Every failure is an `Error` whose place is the one given to the constructor.
class Statement {
public:
    //! `database` must outlive the statement.
    Statement(Database const& database, std::string_view sql, std::string place = {});
    Statement(Statement const&) = delete;
    Statement& operator=(Statement const&) = delete;
    ~Statement();

    //! Binds the 1-based parameter. The text is not copied and must outlive the statement.
    Statement& Bind(int parameter, std::string_view text);

    //! The same for a value of any kind, whose bytes are not copied either.
    Statement& Bind(int parameter, Value const& value);

    //! Goes to the next row; false after the last.
    bool Step();

    int ColumnCount() const;

    //! The 0-based column of the current row with the type that SQLite stores. The bytes are valid
    //! until the next step.
    Value Column(int column) const;

    std::string Text(int column) const;
    std::int64_t Integer(int column) const;

private:
    Value Bytes(int column, ValueKind kind) const;

    Database const& database_;
    std::string place_;
    sqlite3_stmt* statement_ = nullptr; // Owned.
};

} // namespace zbsqlite::detail
