// SPDX-License-Identifier: MIT
//! \file
//! From the address of an object to its slot in a list.
#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace zbbrowser::detail {

//! A hash index from addresses to slots, made for a million entries: eight bytes each, no
//! allocation per entry, no tombstones. It does not hold the addresses themselves but 32 bits of
//! their hash; the caller says which slot really belongs to an address.
//!
//! Open addressing with linear probing, where those that are further from home go first (Celis,
//! Robin Hood Hashing, 1986), so that a search in a table that is nearly full ends early, and with
//! deletion by backward shift. The table has any size: the home of a hash is found by
//! multiplication instead of a mask.
class PointerIndex {
public:
    using Slot = std::uint32_t;
    static constexpr Slot none = 0xffffffff;

    std::size_t Count() const { return count_; }

    //! Makes room for `count` further entries.
    void Reserve(std::size_t count);

    //! The slot for which `isKey(slot)` holds among those that share the hash; none if there is
    //! none.
    template <class IsKey>
    Slot Find(void const* key, IsKey isKey) const {
        if (entries_.empty())
            return none;
        auto const hash = Hash(key);
        auto i = Home(hash);
        for (std::size_t distance = 0; !IsBehind(i, distance); i = Next(i), ++distance) {
            if (entries_[i].hash == hash && isKey(entries_[i].slot))
                return entries_[i].slot;
        }
        return none;
    }

    //! The slot that Find will ask about first; none if there is none.
    Slot Guess(void const* key) const {
        return Find(key, [](Slot) { return true; });
    }

    //! Adds an entry unless there is a slot for which `isKey(slot)` holds among those that share
    //! the hash. Requires: room for one more, see Reserve.
    template <class IsKey>
    void InsertIfAbsent(void const* key, Slot slot, IsKey isKey) {
        auto const hash = Hash(key);
        auto i = Home(hash);
        for (std::size_t distance = 0; !IsBehind(i, distance); i = Next(i), ++distance) {
            if (entries_[i].hash == hash && isKey(entries_[i].slot))
                return;
        }
        InsertAt(i, {hash, slot});
        ++count_;
    }

    //! Removes the entry of this key that holds `slot`, if there is one.
    void Erase(void const* key, Slot slot);

    //! Gives each entry the slot `newSlot[slot]`.
    void Renumber(std::vector<Slot> const& newSlot);

    void Clear();

    //! Asks the processor to fetch what Find or Insert of this key will look at first.
    void Prefetch(void const* key) const {
#if defined(__GNUC__)
        if (!entries_.empty())
            __builtin_prefetch(&entries_[Home(Hash(key))], 1);
#else
        static_cast<void>(key);
#endif
    }

private:
    struct Entry {
        std::uint32_t hash = 0;
        Slot slot = none;
    };

    //! Fibonacci hashing (Knuth, volume 3, 6.4): the upper half of a product with 2^64 divided by
    //! the golden ratio.
    static std::uint32_t Hash(void const* key) {
        auto const address = static_cast<std::uint64_t>(reinterpret_cast<std::uintptr_t>(key));
        return static_cast<std::uint32_t>((address * 0x9e3779b97f4a7c15ULL) >> 32);
    }
    std::size_t Home(std::uint32_t hash) const {
        return static_cast<std::size_t>((static_cast<std::uint64_t>(hash) * entries_.size()) >> 32);
    }
    std::size_t Next(std::size_t i) const {
        return i + 1 == entries_.size() ? 0 : i + 1;
    }
    std::size_t Distance(std::size_t from, std::size_t to) const {
        return to >= from ? to - from : to + entries_.size() - from;
    }
    //! What stands there is of no use to a search that has come so far from its home.
    bool IsBehind(std::size_t i, std::size_t distance) const {
        auto const& entry = entries_[i];
        return entry.slot == none || Distance(Home(entry.hash), i) < distance;
    }
    void Place(Entry entry);
    //! Moves what stands there, and behind it up to the next free place, by one.
    void InsertAt(std::size_t i, Entry entry) {
        for (; entry.slot != none; i = Next(i))
            std::swap(entry, entries_[i]);
    }
    void EraseAt(std::size_t hole);

    std::vector<Entry> entries_;
    std::size_t count_ = 0;
};

} // namespace zbbrowser::detail
