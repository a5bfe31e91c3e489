// SPDX-License-Identifier: MIT
//! \file
//! A set of view items in the order of their addresses.
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <unordered_map>
#include <vector>

class zbIBrowserViewItem;

namespace zbbrowser::detail {

//! A set of view items that compares pointers and follows none. Insert, Erase and Contains are
//! O(1), and the items come out in the order of their addresses without being sorted one by one.
//!
//! Rows stand close together in memory, so the set keeps a bit for each address where an item can
//! begin, in pages of 64 KiB of addresses: a selected row of many costs a few bits, and the rows
//! that are selected together share what has to be looked at.
class ItemSet {
public:
    using Item = zbIBrowserViewItem;

    ItemSet() = default;
    ItemSet(ItemSet const&) = delete;
    ItemSet& operator=(ItemSet const&) = delete;

    bool IsEmpty() const { return count_ == 0; }
    std::size_t Count() const { return count_; }

    //! Any pointer may be asked about.
    bool Contains(Item const* item) const {
        auto const place = PlaceOf(item);
        auto const* const page = IsEmpty() ? nullptr : FindPage(place.page);
        return page != nullptr && place.isAligned && page->Has(place.bit);
    }

    //! False if it is there. Failure: std::bad_alloc; the set is as before.
    bool Insert(Item* item);
    //! False if it is not there.
    bool Erase(Item const* item);
    void Clear();
    void AppendTo(std::vector<Item*>& out) const;

private:
    static constexpr unsigned pageBits = 16; // Of an address, within a page
    static constexpr unsigned itemBits = std::bit_width(alignof(void*)) - 1; // Zero for every item
    static constexpr std::size_t wordBits = 64;

    struct Place {
        std::uintptr_t page;
        std::size_t bit;
        bool isAligned;
    };
    struct Page {
        bool Has(std::size_t bit) const {
            return ((words[bit / wordBits] >> (bit % wordBits)) & 1U) != 0;
        }
        void Flip(std::size_t bit) {
            words[bit / wordBits] ^= std::uint64_t{1} << (bit % wordBits);
        }

        std::array<std::uint64_t, (std::size_t{1} << (pageBits - itemBits)) / wordBits> words{};
        std::size_t count = 0;
    };

    static Place PlaceOf(Item const* item) {
        auto const address = reinterpret_cast<std::uintptr_t>(item);
        auto const inPage = address & ((std::uintptr_t{1} << pageBits) - 1);
        return {address >> pageBits, inPage >> itemBits,
                (address & ((std::uintptr_t{1} << itemBits) - 1)) == 0};
    }
    static void AppendPageTo(std::vector<Item*>& out, std::uintptr_t number, Page const& page);

    //! Null: no item of the set is in that page.
    Page* FindPage(std::uintptr_t number) const {
        if (number != lastNumber_) {
            auto const found = pages_.find(number);
            lastPage_ = found == pages_.end() ? nullptr : found->second.get();
            lastNumber_ = number;
        }
        return lastPage_;
    }
    Page& RequirePage(std::uintptr_t number);

    std::unordered_map<std::uintptr_t, std::unique_ptr<Page>> pages_; // None is empty
    std::size_t count_ = 0;
    mutable std::uintptr_t lastNumber_ = ~std::uintptr_t{0}; // No page has that number
    mutable Page* lastPage_ = nullptr;                       // Not owned; that of lastNumber_
};

} // namespace zbbrowser::detail
