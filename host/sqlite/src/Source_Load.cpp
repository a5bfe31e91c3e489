// SPDX-License-Identifier: MIT
//! \file
//! Loading the rows of a source.
#include "FlagGuard.h"
#include "Quote.h"
#include "Record.h"
#include "RowStore.h"
#include "Statement.h"

#include <zbBrowserView/sqlite/DataCtrl.h>

#include <sqlite3.h>

#include <deque>
#include <new>

namespace zbsqlite {

namespace {

constexpr std::uint64_t kRowsBetweenReports = 4096;

std::size_t CountTextBytes(std::span<Value const> values) {
    std::size_t count = 0;
    for (Value const& value : values)
        count += value.bytes.size();
    return count;
}

} // namespace

bool Source::Load() {
    if (store_)
        return true;
    // Asked for from within the progress report of this very load, or after the table has gone.
    if (isLoading_ || isGone_)
        return false;
    detail::FlagGuard const guard(isLoading_);
    error_.reset();
    try {
        store_ = ReadRows();
        return true;
    } catch (Error const& error) {
        error_ = error;
    } catch (std::bad_alloc const&) {
        error_ = Error(Where(), "out of memory", SQLITE_NOMEM);
    }
    control_.NoteError(*error_);
    return false;
}

std::unique_ptr<Source::RowStore> Source::ReadRows() {
    Database const& database = control_.GetDatabase();
    if (!table_->problem.empty())
        throw Error(Where(), table_->problem);
    if (database.IsStopped())
        throw Error(Where(), "stopped", SQLITE_INTERRUPT);

    auto store = std::make_unique<RowStore>();
    // Grows without moving what it holds, and goes before the row objects are handed out.
    std::deque<std::byte const*> records;
    std::vector<Value> values(RecordColumns());
    store->orders.resize(values.size());
    detail::Statement query(database, LoadQuery(), Place());
    while (query.Step()) {
        ReadValues(query, values);
        std::byte* const record = store->arena.Allocate(SizeOfRecord(values, records.size() + 1));
        detail::WriteRecord(values, record);
        records.push_back(record);
        store->textBytes += CountTextBytes(values);
        if (records.size() % kRowsBetweenReports == 0)
            control_.ReportProgress(*this, records.size());
    }
    store->slots.Prepare(records.size(), 0);
    for (std::byte const* const record : records)
        store->slots.Add(Row(*this, record));
    return store;
}

//! The values are valid until the next step of the query.
void Source::ReadValues(detail::Statement const& query, std::span<Value> values) {
    for (std::size_t i = 0; i < values.size(); ++i)
        values[i] = query.Column(static_cast<int>(i));
}

std::size_t Source::SizeOfRecord(std::span<Value const> values, std::size_t rowNumber) const {
    std::size_t const size = detail::RecordSize(values);
    if (size > detail::kMaxRecordSize)
        throw Error(Where(), "row " + std::to_string(rowNumber) + " is too large");
    return size;
}

//! No order is asked for: the rows come as plain SQL gives them.
std::string Source::LoadQuery() const {
    std::string query = "SELECT ";
    for (Property const& property : properties_) {
        if (property.Index() > 0)
            query += ", ";
        query += "s." + detail::QuoteName(property.Name());
    }
    if (!rowidName_.empty())
        query.append(properties_.empty() ? "s." : ", s.").append(rowidName_);
    return query + " FROM " + detail::QuoteName(table_->schema) + "." +
           detail::QuoteName(table_->name) + " AS s";
}

std::string Source::Where() const {
    return control_.GetDatabase().File() + ", " + Place();
}

std::string Source::Place() const {
    return std::string(GetTypeName()) + " \"" + name_ + "\"";
}

} // namespace zbsqlite
