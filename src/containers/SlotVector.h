// SPDX-License-Identifier: MIT
//! \file
//! An ordered list from whose middle an element goes without moving the others.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

namespace zbbrowser::detail {

//! A list of pointers (plain or owning) that keeps the order of insertion. Each element has a slot
//! number, which it has to remember, and leaves a hole when it goes. Holes are closed when they
//! outnumber the elements, which moves elements to lower slots: Append and Remove are O(1)
//! amortised, and the order never changes.
template <class Pointer>
class SlotVector {
public:
    using Slot = std::uint32_t;

    //! Elements, without the holes.
    std::size_t Count() const { return slots_.size() - holes_; }
    bool IsEmpty() const { return Count() == 0; }
    bool HasHoles() const { return holes_ > 0; }

    //! All slots in order; a hole is null.
    std::vector<Pointer> const& Slots() const { return slots_; }
    Pointer const& operator[](Slot slot) const { return slots_[slot]; }

    //! Makes room for `count` further elements. A first request gets a little more than it asks
    //! for, so that the single elements that follow do not move all at once; later ones grow by
    //! half.
    void Reserve(std::size_t count) {
        auto const needed = slots_.size() + count;
        if (needed > slots_.capacity())
            slots_.reserve(std::max(needed + needed / 32, slots_.capacity() / 2 * 3));
    }

    //! Puts the element behind the last one and answers its slot.
    Slot Append(Pointer element) {
        if (slots_.size() == slots_.capacity())
            Reserve(slots_.size() / 2 + 4);
        slots_.push_back(std::move(element));
        return static_cast<Slot>(slots_.size() - 1);
    }

    //! Takes the element out and leaves a hole.
    Pointer Take(Slot slot) {
        Pointer taken = std::exchange(slots_[slot], nullptr);
        ++holes_;
        if (holes_ == slots_.size())
            Clear();
        return taken;
    }

    //! The last element; null if there is none. Drops the holes behind it.
    auto Last() {
        while (!slots_.empty() && slots_.back() == nullptr) {
            slots_.pop_back();
            --holes_;
        }
        return slots_.empty() ? nullptr : std::to_address(slots_.back());
    }

    //! So many holes that closing them pays.
    bool WantsCompaction() const { return holes_ > Count() + 32; }

    //! Closes the holes. `moved(element, from, to)` is told of each element, in order.
    template <class Moved>
    void Compact(Moved moved) {
        std::size_t to = 0;
        for (std::size_t from = 0; from < slots_.size(); ++from) {
            if (slots_[from] == nullptr)
                continue;
            moved(*slots_[from], static_cast<Slot>(from), static_cast<Slot>(to));
            if (from != to)
                slots_[to] = std::exchange(slots_[from], nullptr);
            ++to;
        }
        slots_.resize(to);
        holes_ = 0;
    }

    //! Gives the elements another order and closes the holes: `elementAt(slot)` is called for each
    //! slot in turn. Throws nothing if that does not.
    //! Requires: these are the same `count` elements, which do not own what they point to.
    template <class ElementAt>
    void Reorder(std::size_t count, ElementAt elementAt) {
        slots_.resize(count);
        for (Slot slot = 0; slot < count; ++slot)
            slots_[slot] = elementAt(slot);
        holes_ = 0;
    }

    void Clear() {
        slots_.clear();
        holes_ = 0;
    }

private:
    std::vector<Pointer> slots_;
    std::size_t holes_ = 0;
};

} // namespace zbbrowser::detail
