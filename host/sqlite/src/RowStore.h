// SPDX-License-Identifier: MIT
//! \file
//! The loaded rows of a source.
#pragma once

#include "Arena.h"
#include "Ranking.h"

#include <zbBrowserView/sqlite/Row.h>
#include <zbBrowserView/sqlite/Source.h>

#include <cstddef>
#include <vector>

namespace zbsqlite {

//! Built as a whole and then given to the source, which therefore has all rows or none.
struct Source::RowStore {
    detail::Arena arena;   // Holds the records.
    std::vector<Row> rows; // Never grows once it is filled, so that rows keep their addresses.
    std::size_t textBytes = 0;
    std::vector<detail::ColumnOrder> orders; // For each column of a record.

    std::size_t MemoryUsed() const {
        std::size_t size = sizeof *this + arena.BytesTaken() + rows.capacity() * sizeof(Row);
        for (detail::ColumnOrder const& order : orders)
            size += sizeof order + order.MemoryUsed();
        return size;
    }
};

} // namespace zbsqlite
