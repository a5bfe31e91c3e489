// SPDX-License-Identifier: MIT
#include "containers/PointerIndex.h"

#include <algorithm>
#include <utility>

namespace zbbrowser::detail {

namespace {

// Room for this many entries takes that many places: at most seven in eight are taken.
std::size_t PlacesFor(std::size_t entries) {
    return entries + entries / 7 + 8;
}

// As in a SlotVector: a first request gets a little more, later ones grow by half.
std::size_t Rounded(std::size_t needed, std::size_t present) {
    return std::max(needed + needed / 32, present / 2 * 3);
}

} // namespace

void PointerIndex::Reserve(std::size_t count) {
    auto const needed = count_ + count;
    if (PlacesFor(needed) <= entries_.size())
        return;
    auto old = std::exchange(entries_, std::vector<Entry>(PlacesFor(Rounded(needed, count_))));
    for (auto const& entry : old) {
        if (entry.slot != none)
            Place(entry);
    }
}

void PointerIndex::Place(Entry entry) {
    auto i = Home(entry.hash);
    for (std::size_t distance = 0; !IsBehind(i, distance); ++distance)
        i = Next(i);
    InsertAt(i, entry);
}

void PointerIndex::Erase(void const* key, Slot slot) {
    if (entries_.empty())
        return;
    for (auto i = Home(Hash(key)); entries_[i].slot != none; i = Next(i)) {
        if (entries_[i].slot == slot) {
            EraseAt(i);
            return;
        }
    }
}

// Closes the gap: what stands behind it moves up, as far as it is not at home.
void PointerIndex::EraseAt(std::size_t hole) {
    for (auto i = Next(hole); !IsBehind(i, 1); i = Next(i)) {
        entries_[hole] = entries_[i];
        hole = i;
    }
    entries_[hole] = {};
    --count_;
}

void PointerIndex::Renumber(std::vector<Slot> const& newSlot) {
    for (auto& entry : entries_) {
        if (entry.slot != none)
            entry.slot = newSlot[entry.slot];
    }
}

void PointerIndex::Clear() {
    std::vector<Entry>().swap(entries_);
    count_ = 0;
}

} // namespace zbbrowser::detail
