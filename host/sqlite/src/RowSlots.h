// SPDX-License-Identifier: MIT
//! \file
//! Row objects that never move.
#pragma once

#include <zbBrowserView/sqlite/Row.h>

#include <cstddef>
#include <vector>

namespace zbsqlite::detail {

//! Row objects that never move while rows come and go. Each stands in a slot, a number from 0 that
//! no other row has at the time.
//!
//! A row that is removed stays readable, and its slot unused, until the removed are recycled: views
//! may still have to let go of it.
class RowSlots {
public:
    static constexpr std::size_t kNone = static_cast<std::size_t>(-1);

    //! One more than the highest slot in use, or that was.
    std::size_t Size() const { return size_; }
    Row const& operator[](std::size_t slot) const;
    Row& operator[](std::size_t slot);

    //! The slot of an item, `kNone` if it is none of these rows. The item is not followed.
    std::size_t SlotOf(zbIBrowserDataItem const* item) const;

    //! Requires: a slot.
    bool IsRemoved(std::size_t slot) const { return slot < removed_.size() && removed_[slot]; }

    //! The item as a row that has not been removed; null if it is none.
    Row const* Find(zbIBrowserDataItem const* item) const;

    //! Makes room, so that as many calls of `Add` and `Remove` do not fail.
    //! Failure: std::bad_alloc; nothing has changed.
    void Prepare(std::size_t additions, std::size_t removals);

    //! Requires: room. Puts the row into a slot that is free, or else behind the last.
    Row& Add(Row const& row);

    //! Requires: room, and a row that is here.
    void Remove(Row& row);

    //! Those that are not recycled yet.
    std::vector<Row*> const& Removed() const { return justRemoved_; }

    //! From now on the slots of removed rows are free for others.
    void Recycle();

    std::size_t MemoryUsed() const;

private:
    struct Segment {
        std::size_t first;     // The slot of its first row.
        std::vector<Row> rows; // Never grows beyond the capacity that it was made with.
    };

    static std::size_t PlaceIn(Segment const& segment, zbIBrowserDataItem const* item);
    std::size_t RoomAtEnd() const;

    std::vector<Segment> segments_; // Only the last one takes further rows.
    std::size_t size_ = 0;
    std::vector<bool> removed_; // By slot, free ones included; shorter than that if need be.
    std::vector<Row*> justRemoved_;
    std::vector<Row*> free_;
};

} // namespace zbsqlite::detail
