// SPDX-License-Identifier: MIT
//! \file
//! The loaded rows of a source.
#pragma once

#include "Arena.h"
#include "Ranking.h"
#include "RowSlots.h"

#include <zbBrowserView/sqlite/Source.h>

#include <cstddef>
#include <span>
#include <vector>

namespace zbsqlite {

//! Built as a whole and then given to the source, which therefore has all rows or none.
struct Source::RowStore {
    detail::Arena arena;    // Holds the records.
    std::size_t wasted = 0; // Bytes of the arena whose records no row has any more.
    detail::RowSlots slots;
    bool isInSlotOrder = true;
    std::vector<Row*> order; // The rows in their order, unless that is the one of the slots.
    std::vector<bool> dirty; // By slot; empty: none is.
    std::size_t textBytes = 0;
    std::vector<detail::ColumnOrder> orders; // For each column of a record.

    std::size_t Count() const { return isInSlotOrder ? slots.Size() : order.size(); }

    std::vector<Row*> InOrder() {
        if (!isInSlotOrder)
            return order;
        std::vector<Row*> rows(slots.Size());
        for (std::size_t slot = 0; slot < rows.size(); ++slot)
            rows[slot] = &slots[slot];
        return rows;
    }

    std::size_t MemoryUsed() const {
        std::size_t size = sizeof *this + arena.BytesTaken() + slots.MemoryUsed() +
                           order.capacity() * sizeof(void*) + dirty.capacity() / 8;
        for (detail::ColumnOrder const& column : orders)
            size += sizeof column + column.MemoryUsed();
        return size;
    }

    //! Counts what a row holds among what is wasted, or no longer.
    void Drop(Row const& row, std::size_t columns);
    void Adopt(Row const& row, std::size_t columns);

    //! `rows` with one of those that were created for each null.
    void TakeOrder(std::vector<Row*> rows, std::span<Row* const> created);

    //! Copies the record of each row into a new arena, so that the old one can go. Its values are
    //! taken from those columns of the old one, null for a place that it does not have.
    //! Failure: std::bad_alloc; nothing has changed.
    void Rewrite(std::size_t oldColumns, std::span<std::size_t const> from);
};

} // namespace zbsqlite
