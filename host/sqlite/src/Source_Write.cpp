// SPDX-License-Identifier: MIT
//! \file
//! Writing single values.
#include "Quote.h"
#include "Statement.h"

#include <zbBrowserView/sqlite/DataCtrl.h>

#include <sqlite3.h>

namespace zbsqlite {

bool Source::Write(Row const& row, Property const& column, Value const& value) {
    try {
        WriteOrThrow(row, column, value);
        return true;
    } catch (Error const& error) {
        control_.NoteError(error);
        return false;
    }
}

void Source::WriteOrThrow(Row const& row, Property const& column, Value const& value) {
    auto const keys = KeyColumns();
    if (keys.empty() || column.IsGone())
        throw Error(Where(), keys.empty() ? "its rows have no key by which to write them"
                                          : "the column has gone");
    Database const& database = control_.GetDatabase();
    if (sqlite3_db_readonly(database.Handle(), table_->schema.c_str()) != 0)
        throw Error(Where(), "the file is open for reading only", SQLITE_READONLY);
    detail::Statement update(database, WriteQuery(column, keys), Place());
    int parameter = 1;
    update.Bind(parameter, value);
    for (std::size_t const key : keys)
        update.Bind(++parameter, ReadValue(row.record_, key));
    update.Step();
    if (sqlite3_changes64(database.Handle()) == 0)
        throw Error(Where(), "the row has gone, or a trigger keeps it as it is");
}

std::string Source::WriteQuery(Property const& column, std::vector<std::size_t> const& keys) const {
    std::string query = "UPDATE " + detail::QuoteName(table_->schema) + "." +
                        detail::QuoteName(table_->name) + " AS s SET " +
                        detail::QuoteName(column.Name()) + " = ?1";
    int parameter = 1;
    for (std::size_t const key : keys) {
        query += parameter == 1 ? " WHERE s." : " AND s.";
        query += key < properties_.size() ? detail::QuoteName(properties_[key].Name())
                                          : std::string(rowidName_);
        query += " = ?" + std::to_string(++parameter);
    }
    return query;
}

void Source::SetDataPropertyInteger(zbIBrowserDataItem* item, zbIBrowserDataProperty* property,
                                    int value) {
    Row const* const row = FindRow(item);
    if (auto const* const column = AsColumn(property); row != nullptr && column != nullptr)
        Write(*row, *column, Value::Integer(value));
}

void Source::SetDataPropertyBoolean(zbIBrowserDataItem* item, zbIBrowserDataProperty* property,
                                    bool value) {
    SetDataPropertyInteger(item, property, value ? 1 : 0);
}

} // namespace zbsqlite
