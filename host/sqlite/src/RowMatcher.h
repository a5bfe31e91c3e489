// SPDX-License-Identifier: MIT
//! \file
//! Finds for records that are read anew the rows that hold their older versions.
#pragma once

#include <zbBrowserView/sqlite/Row.h>

#include <cstddef>
#include <cstdint>
#include <vector>

namespace zbsqlite::detail {

//! Finds for records that are read anew the rows that hold their older versions, each row for one
//! record at most. Records that come in the order of the rows are matched without a search; for the
//! others an index is built once, when the first of them comes.
class RowMatcher {
public:
    //! `columns`: of a record. A row is found for a record that is the same in the columns of the
    //! `key`, byte for byte; in all columns if there is none.
    //! Ownership: the rows stay the caller's.
    RowMatcher(std::vector<Row*> rows, std::size_t columns, std::vector<std::size_t> key);

    //! Of several rows that could be meant it is the first. Null: there is none, or none is left.
    Row* Match(std::byte const* record);

    //! Whether each record so far was that of the next row.
    bool IsInOrder() const { return isInOrder_; }

    //! The rows for which no record came, in their order.
    std::vector<Row*> Unmatched() const;

private:
    //! Those with one hash stand side by side, in the order of the rows.
    struct Entry {
        std::uint64_t hash;
        std::size_t place;
        std::size_t used; // Of the first of its hash: how many entries from here on are matched.
    };

    bool IsAlike(Row const& row, std::byte const* record) const;
    std::uint64_t Hash(std::byte const* record) const;
    std::size_t Search(std::byte const* record);
    void BuildIndex();
    Row* Take(std::size_t place);

    std::vector<Row*> rows_; // Not owned, never null.
    std::size_t columns_;
    std::vector<std::size_t> key_;
    std::vector<bool> isMatched_;
    std::size_t matched_ = 0;
    std::size_t next_ = 0; // Where the row of the next record is expected.
    bool isInOrder_ = true;
    bool hasIndex_ = false;
    std::vector<Entry> index_;
};

//! Whether two records of so many columns are the same, byte for byte.
bool IsSameRecord(std::byte const* a, std::byte const* b, std::size_t columns);

} // namespace zbsqlite::detail
