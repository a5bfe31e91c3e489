// SPDX-License-Identifier: MIT
//! \file
//! Comparing the rows of a source with the file.
#include "Difference.h"
#include "Record.h"
#include "RowMatcher.h"
#include "Statement.h"

#include <zbBrowserView/sqlite/DataCtrl.h>

#include <algorithm>
#include <cstring>
#include <new>
#include <numeric>
#include <utility>

namespace zbsqlite {

namespace {

// Less is not worth the work.
constexpr std::size_t kMinWaste = std::size_t{1} << 20U;

std::size_t TextBytesOf(Row const& row, std::size_t columns) {
    std::size_t count = 0;
    for (std::size_t column = 0; column < columns; ++column)
        count += row.GetValue(column).bytes.size();
    return count;
}

} // namespace

void Source::KeepKeys() {
    keepsKeys_ = true;
    if (!store_ && !isLoading_ && rowidName_.empty() && table_->rowidColumn < 0)
        rowidName_ = FindRowidName(*table_);
}

//! Columns of a record by which a row is the same row; none if nothing tells rows apart.
std::vector<std::size_t> Source::KeyColumns() const {
    if (!rowidName_.empty())
        return {properties_.size()};
    return PrimaryKeyColumns();
}

//! What has failed to load is tried again.
bool Source::IsFollowed() const {
    return !isGone_ && (store_ || error_);
}

Source::Difference Source::FindDifference() {
    if (isGone_ || !table_->problem.empty())
        return DifferenceFromNothing();
    if (store_)
        return CompareWithFile();
    Difference difference;
    difference.loaded = ReadRows();
    return difference;
}

Source::Difference Source::DifferenceFromNothing() const {
    Difference difference;
    if (store_)
        difference.deleted = store_->InOrder();
    difference.hasNewOrder = !difference.deleted.empty();
    return difference;
}

Source::Difference Source::CompareWithFile() {
    Difference difference;
    std::size_t const columns = RecordColumns();
    detail::RowMatcher matcher(store_->InOrder(), columns, KeyColumns());
    difference.order.reserve(store_->Count());
    std::vector<Value> values(columns);
    std::vector<std::byte> record;
    detail::Statement query(control_.GetDatabase(), LoadQuery(), Place());
    while (query.Step()) {
        ReadValues(query, values);
        record.resize(SizeOfRecord(values, difference.order.size() + 1));
        detail::WriteRecord(values, record.data());
        Row* const row = matcher.Match(record.data());
        difference.order.push_back(row);
        if (row == nullptr)
            difference.created.push_back(Keep(record));
        else if (!detail::IsSameRecord(row->record_, record.data(), columns))
            difference.updated.push_back({row, Keep(record)});
    }
    difference.deleted = matcher.Unmatched();
    difference.hasNewOrder = !matcher.IsInOrder() || !difference.deleted.empty();
    if (KeyColumns().empty())
        PairByName(difference);
    return difference;
}

//! A table that cannot be described has no rows, and says why.
void Source::NoteCompared() {
    error_.reset();
    if (!table_->problem.empty())
        error_ = Error(Where(), table_->problem);
}

//! Until a row is given the record, nobody needs it: the comparison may fail.
std::byte const* Source::Keep(std::span<std::byte const> record) {
    std::byte* const kept = store_->arena.Allocate(record.size());
    std::memcpy(kept, record.data(), record.size());
    store_->wasted += record.size();
    return kept;
}

//! Without keys a row that has changed looks like one that went and one that came.
void Source::PairByName(Difference& difference) const {
    if (nameColumns_.empty() || difference.deleted.empty() || difference.created.empty())
        return;
    detail::RowMatcher matcher(std::move(difference.deleted), RecordColumns(), nameColumns_);
    std::vector<std::byte const*> const records = std::exchange(difference.created, {});
    auto record = records.begin();
    for (Row*& row : difference.order) {
        if (row != nullptr)
            continue;
        row = matcher.Match(*record);
        if (row == nullptr)
            difference.created.push_back(*record);
        else
            difference.updated.push_back({row, *record});
        ++record;
    }
    difference.deleted = matcher.Unmatched();
}

//! Makes room first, so that all becomes true or nothing. Gives the rows that were created.
std::vector<Row*> Source::Apply(Difference& difference) {
    if (difference.loaded) {
        store_ = std::move(difference.loaded);
        hasNews_ = true;
        return store_->InOrder();
    }
    RowStore& store = *store_;
    std::vector<Row*> created;
    created.reserve(difference.created.size());
    store.slots.Prepare(difference.created.size(), difference.deleted.size());
    if (!difference.updated.empty())
        store.dirty.resize(store.slots.Size() + difference.created.size());

    for (Row* const row : difference.deleted) {
        store.Drop(*row, RecordColumns());
        store.slots.Remove(*row);
    }
    for (auto const& [row, record] : difference.updated) {
        store.Drop(*row, RecordColumns());
        row->record_ = record;
        store.Adopt(*row, RecordColumns());
        store.dirty[store.slots.SlotOf(row)] = true;
    }
    for (std::byte const* const record : difference.created) {
        created.push_back(&store.slots.Add(Row(*this, record)));
        store.Adopt(*created.back(), RecordColumns());
    }
    if (difference.hasNewOrder)
        store.TakeOrder(std::move(difference.order), created);
    std::fill(store.orders.begin(), store.orders.end(), detail::ColumnOrder());
    hasNews_ = true;
    return created;
}

//! Its record stays readable until what is wasted is given back.
void Source::RowStore::Drop(Row const& row, std::size_t columns) {
    wasted += detail::RecordSize(row.record_, columns);
    textBytes -= TextBytesOf(row, columns);
}

void Source::RowStore::Adopt(Row const& row, std::size_t columns) {
    wasted -= detail::RecordSize(row.record_, columns);
    textBytes += TextBytesOf(row, columns);
}

void Source::RowStore::TakeOrder(std::vector<Row*> rows, std::span<Row* const> created) {
    auto next = created.begin();
    for (Row*& row : rows) {
        if (row == nullptr)
            row = *next++;
    }
    order = std::move(rows);
    isInSlotOrder = false;
}

//! The views have been told: what went is needed no longer.
void Source::ForgetRemoved() {
    hasNews_ = false;
    if (isGone_)
        store_.reset();
    if (!store_)
        return;
    RowStore& store = *store_;
    store.dirty.clear();
    for (Row* const row : store.slots.Removed())
        row->record_ = detail::NullRecord();
    store.slots.Recycle();
    if (store.wasted < std::max(kMinWaste, store.arena.BytesTaken() / 2))
        return;
    std::vector<std::size_t> columns(RecordColumns());
    std::iota(columns.begin(), columns.end(), std::size_t{0});
    try {
        store.Rewrite(columns.size(), columns);
    } catch (std::bad_alloc const&) {
        return; // It works as it is, only larger.
    }
}

void Source::RowStore::Rewrite(std::size_t oldColumns, std::span<std::size_t const> from) {
    detail::Arena newArena;
    std::vector<Row*> const rows = InOrder();
    std::vector<std::byte const*> records;
    records.reserve(rows.size());
    std::vector<Value> values(from.size());
    for (Row const* const row : rows) {
        for (std::size_t i = 0; i < from.size(); ++i)
            values[i] = from[i] < oldColumns ? detail::ReadRecord(row->record_, oldColumns, from[i])
                                             : Value();
        std::byte* const record = newArena.Allocate(detail::RecordSize(values));
        detail::WriteRecord(values, record);
        records.push_back(record);
    }
    orders = std::vector<detail::ColumnOrder>(from.size());

    for (std::size_t slot = 0; slot < slots.Size(); ++slot)
        slots[slot].record_ = detail::NullRecord();
    for (std::size_t i = 0; i < rows.size(); ++i)
        rows[i]->record_ = records[i];
    arena = std::move(newArena);
    wasted = 0;
}

void Source::AddDirtyRows(std::set<zbIBrowserDataItem*>& out) const {
    for (std::size_t slot = 0; store_ && slot < store_->dirty.size(); ++slot) {
        if (store_->dirty[slot])
            out.insert(&store_->slots[slot]);
    }
}

void Source::AddRemovedRows(std::set<zbIBrowserDataItem*>& out) const {
    if (store_)
        out.insert(store_->slots.Removed().begin(), store_->slots.Removed().end());
}

} // namespace zbsqlite
