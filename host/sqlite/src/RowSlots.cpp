// SPDX-License-Identifier: MIT
#include "RowSlots.h"

#include <algorithm>
#include <cstdint>

namespace zbsqlite::detail {

namespace {

constexpr std::size_t kMinSegment = 64;

} // namespace

//! The rows of a segment stand side by side, so an address tells whether it is one of them.
std::size_t RowSlots::PlaceIn(Segment const& segment, zbIBrowserDataItem const* item) {
    auto const* const base = static_cast<zbIBrowserDataItem const*>(segment.rows.data());
    auto const offset =
        reinterpret_cast<std::uintptr_t>(item) - reinterpret_cast<std::uintptr_t>(base);
    bool const isRow = offset < segment.rows.size() * sizeof(Row) && offset % sizeof(Row) == 0;
    return isRow ? offset / sizeof(Row) : kNone;
}

std::size_t RowSlots::SlotOf(zbIBrowserDataItem const* item) const {
    if (item == nullptr)
        return kNone;
    for (Segment const& segment : segments_) {
        if (std::size_t const place = PlaceIn(segment, item); place != kNone)
            return segment.first + place;
    }
    return kNone;
}

Row const& RowSlots::operator[](std::size_t slot) const {
    auto segment = segments_.begin();
    while (slot - segment->first >= segment->rows.size())
        ++segment;
    return segment->rows[slot - segment->first];
}

Row& RowSlots::operator[](std::size_t slot) {
    return const_cast<Row&>(static_cast<RowSlots const&>(*this)[slot]);
}

Row const* RowSlots::Find(zbIBrowserDataItem const* item) const {
    std::size_t const slot = SlotOf(item);
    return slot == kNone || IsRemoved(slot) ? nullptr : &(*this)[slot];
}

std::size_t RowSlots::RoomAtEnd() const {
    if (segments_.empty())
        return 0;
    std::vector<Row> const& last = segments_.back().rows;
    return last.capacity() - last.size();
}

void RowSlots::Prepare(std::size_t additions, std::size_t removals) {
    std::size_t const atEnd = additions - std::min(additions, free_.size());
    if (removals > 0)
        removed_.reserve(size_ + atEnd);
    free_.reserve(free_.size() + justRemoved_.size() + removals);
    justRemoved_.reserve(justRemoved_.size() + removals);
    if (atEnd <= RoomAtEnd())
        return;
    // Each is larger than the one before by a part of the whole, so that there are few.
    Segment segment{size_, {}};
    segment.rows.reserve(size_ == 0 ? atEnd : std::max({atEnd, size_ / 4, kMinSegment}));
    segments_.push_back(std::move(segment));
}

Row& RowSlots::Add(Row const& row) {
    if (!free_.empty()) {
        Row& reused = *free_.back();
        free_.pop_back();
        reused = row;
        removed_[SlotOf(&reused)] = false;
        return reused;
    }
    ++size_;
    return segments_.back().rows.emplace_back(row);
}

void RowSlots::Remove(Row& row) {
    std::size_t const slot = SlotOf(&row);
    if (slot >= removed_.size())
        removed_.resize(slot + 1);
    removed_[slot] = true;
    justRemoved_.push_back(&row);
}

void RowSlots::Recycle() {
    free_.insert(free_.end(), justRemoved_.begin(), justRemoved_.end());
    justRemoved_.clear();
}

std::size_t RowSlots::MemoryUsed() const {
    std::size_t size = removed_.capacity() / 8 + free_.capacity() * sizeof(void*) +
                       justRemoved_.capacity() * sizeof(void*) +
                       segments_.capacity() * sizeof(Segment);
    for (Segment const& segment : segments_)
        size += segment.rows.capacity() * sizeof(Row);
    return size;
}

} // namespace zbsqlite::detail
