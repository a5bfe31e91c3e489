// SPDX-License-Identifier: MIT
#include "Statement.h"

#include <sqlite3.h>

#include <utility>

namespace zbsqlite::detail {

Statement::Statement(Database const& database, std::string_view sql, std::string place)
    : database_(database)
    , place_(std::move(place)) {
    int const code = sqlite3_prepare_v2(database.Handle(), sql.data(), static_cast<int>(sql.size()),
                                        &statement_, nullptr);
    if (code != SQLITE_OK)
        database_.ThrowLastError(place_);
}

Statement::~Statement() {
    sqlite3_finalize(statement_);
}

Statement& Statement::Bind(int parameter, std::string_view text) {
    if (sqlite3_bind_text64(statement_, parameter, text.data(), text.size(), SQLITE_STATIC,
                            SQLITE_UTF8) != SQLITE_OK)
        database_.ThrowLastError(place_);
    return *this;
}

Statement& Statement::Bind(int parameter, Value const& value) {
    int code = SQLITE_OK;
    switch (value.kind) {
    case ValueKind::Null:
        code = sqlite3_bind_null(statement_, parameter);
        break;
    case ValueKind::Integer:
        code = sqlite3_bind_int64(statement_, parameter, value.integer);
        break;
    case ValueKind::Real:
        code = sqlite3_bind_double(statement_, parameter, value.real);
        break;
    case ValueKind::Text:
        return Bind(parameter, value.bytes);
    case ValueKind::Blob:
        code = sqlite3_bind_blob64(statement_, parameter, value.bytes.data(), value.bytes.size(),
                                   SQLITE_STATIC);
        break;
    }
    if (code != SQLITE_OK)
        database_.ThrowLastError(place_);
    return *this;
}

bool Statement::Step() {
    int const code = sqlite3_step(statement_);
    if (code == SQLITE_ROW)
        return true;
    if (code == SQLITE_DONE)
        return false;
    database_.ThrowLastError(place_);
}

int Statement::ColumnCount() const {
    return sqlite3_column_count(statement_);
}

Value Statement::Column(int column) const {
    switch (sqlite3_column_type(statement_, column)) {
    case SQLITE_INTEGER:
        return Value::Integer(sqlite3_column_int64(statement_, column));
    case SQLITE_FLOAT:
        return Value::Real(sqlite3_column_double(statement_, column));
    case SQLITE_TEXT:
        return Bytes(column, ValueKind::Text);
    case SQLITE_BLOB:
        return Bytes(column, ValueKind::Blob);
    default:
        return Value();
    }
}

Value Statement::Bytes(int column, ValueKind kind) const {
    void const* const bytes = kind == ValueKind::Text ? sqlite3_column_text(statement_, column)
                                                      : sqlite3_column_blob(statement_, column);
    auto const size = static_cast<std::size_t>(sqlite3_column_bytes(statement_, column));
    // A text is never null but for want of memory; a blob of no bytes is.
    if (bytes == nullptr && (size > 0 || kind == ValueKind::Text))
        database_.ThrowLastError(place_);
    std::string_view const view =
        size == 0 ? std::string_view("") : std::string_view(static_cast<char const*>(bytes), size);
    return kind == ValueKind::Text ? Value::Text(view) : Value::Blob(view);
}

std::string Statement::Text(int column) const {
    Value const value = Column(column);
    return std::string(value.bytes);
}

std::int64_t Statement::Integer(int column) const {
    return sqlite3_column_int64(statement_, column);
}

} // namespace zbsqlite::detail
