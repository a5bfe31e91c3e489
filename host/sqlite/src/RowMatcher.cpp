// SPDX-License-Identifier: MIT
#include "RowMatcher.h"

#include "Record.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <functional>
#include <string_view>
#include <utility>

namespace zbsqlite::detail {

namespace {

constexpr std::size_t kNowhere = static_cast<std::size_t>(-1);

//! Stricter than `Compare`, which takes 1 and 1.0 for equal.
bool IsSameValue(Value const& a, Value const& b) {
    return a.kind == b.kind && a.integer == b.integer &&
           std::bit_cast<std::uint64_t>(a.real) == std::bit_cast<std::uint64_t>(b.real) &&
           a.bytes == b.bytes;
}

std::uint64_t HashBytes(std::string_view bytes) {
    return std::hash<std::string_view>()(bytes);
}

std::uint64_t HashValue(Value const& value) {
    constexpr std::uint64_t spread = 0x9e3779b97f4a7c15;
    auto const number =
        std::bit_cast<std::uint64_t>(value.integer) ^ std::bit_cast<std::uint64_t>(value.real);
    return value.bytes.empty() ? number * spread : HashBytes(value.bytes);
}

} // namespace

bool IsSameRecord(std::byte const* a, std::byte const* b, std::size_t columns) {
    std::size_t const size = RecordSize(a, columns);
    return size == RecordSize(b, columns) && std::memcmp(a, b, size) == 0;
}

RowMatcher::RowMatcher(std::vector<Row*> rows, std::size_t columns, std::vector<std::size_t> key)
    : rows_(std::move(rows))
    , columns_(columns)
    , key_(std::move(key))
    , isMatched_(rows_.size()) {
}

Row* RowMatcher::Match(std::byte const* record) {
    while (next_ < rows_.size() && isMatched_[next_])
        ++next_;
    if (next_ < rows_.size() && IsAlike(*rows_[next_], record))
        return Take(next_);
    isInOrder_ = false;
    if (matched_ == rows_.size())
        return nullptr;
    std::size_t const place = Search(record);
    return place == kNowhere ? nullptr : Take(place);
}

Row* RowMatcher::Take(std::size_t place) {
    isMatched_[place] = true;
    ++matched_;
    next_ = place + 1;
    return rows_[place];
}

std::vector<Row*> RowMatcher::Unmatched() const {
    std::vector<Row*> rows;
    rows.reserve(rows_.size() - matched_);
    for (std::size_t i = 0; i < rows_.size() && matched_ < rows_.size(); ++i) {
        if (!isMatched_[i])
            rows.push_back(rows_[i]);
    }
    return rows;
}

bool RowMatcher::IsAlike(Row const& row, std::byte const* record) const {
    if (key_.empty())
        return IsSameRecord(row.record_, record, columns_);
    return std::all_of(key_.begin(), key_.end(), [&](std::size_t column) {
        return IsSameValue(ReadRecord(row.record_, columns_, column),
                           ReadRecord(record, columns_, column));
    });
}

std::uint64_t RowMatcher::Hash(std::byte const* record) const {
    if (key_.empty())
        return HashBytes({reinterpret_cast<char const*>(record), RecordSize(record, columns_)});
    std::uint64_t hash = 0;
    for (std::size_t const column : key_)
        hash = std::rotl(hash, 5) ^ HashValue(ReadRecord(record, columns_, column));
    return hash;
}

void RowMatcher::BuildIndex() {
    index_.reserve(rows_.size() - matched_);
    for (std::size_t place = 0; place < rows_.size(); ++place) {
        if (!isMatched_[place])
            index_.push_back({Hash(rows_[place]->record_), place, 0});
    }
    std::sort(index_.begin(), index_.end(), [](Entry const& a, Entry const& b) {
        return a.hash != b.hash ? a.hash < b.hash : a.place < b.place;
    });
    hasIndex_ = true;
}

//! Many rows may be alike, so those that are matched are counted and not looked at again.
std::size_t RowMatcher::Search(std::byte const* record) {
    if (!hasIndex_)
        BuildIndex();
    std::uint64_t const hash = Hash(record);
    auto const first = std::lower_bound(
        index_.begin(), index_.end(), hash,
        [](Entry const& entry, std::uint64_t sought) { return entry.hash < sought; });
    auto const isOfHash = [&](auto entry) { return entry != index_.end() && entry->hash == hash; };
    if (!isOfHash(first))
        return kNowhere;
    auto entry = first + static_cast<std::ptrdiff_t>(first->used);
    for (; isOfHash(entry) && isMatched_[entry->place]; ++entry)
        ++first->used;
    for (; isOfHash(entry); ++entry) {
        if (!isMatched_[entry->place] && IsAlike(*rows_[entry->place], record))
            return entry->place;
    }
    return kNowhere;
}

} // namespace zbsqlite::detail
