// SPDX-License-Identifier: MIT
//! \file
//! The order of the rows of a source, worked out once.
#pragma once

#include "RowSlots.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace zbsqlite::detail {

//! For each slot the place of its row in the order of the values in `column`, as `Compare` has it.
//! Rows with equal values have equal places. Requires: fewer than 2^32 rows.
std::vector<std::uint32_t> RankRows(RowSlots const& rows, std::size_t column);

//! Compares rows by one column. A sort compares each row some twenty times, and each time both
//! records have to be fetched from memory; so when about as many comparisons have been asked for as
//! a fraction of the rows, all rows are ranked, and from then on only the ranks are looked at.
class ColumnOrder {
public:
    //! Requires: two of `rows`, which are the same in every call.
    int Compare(RowSlots const& rows, std::size_t column, Row const& a, Row const& b);

    std::size_t MemoryUsed() const { return places_.capacity() * sizeof(std::uint32_t); }

private:
    bool IsRanked(RowSlots const& rows, std::size_t column);

    std::vector<std::uint32_t> places_; // Empty until the rows are ranked.
    std::size_t asked_ = 0;
};

} // namespace zbsqlite::detail
