// SPDX-License-Identifier: MIT
//! \file
//! The places of new elements in a list that is in order.
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <span>
#include <utility>
#include <vector>

namespace zbbrowser::detail {

//! Where elements belong that join a list which is in order: for each of `fresh`, which is in order
//! too, how many of the old ones come before it. An old one stays in front of a fresh one that is
//! equal. The answers rise whatever `order` says.
//!
//! The middle one of the fresh elements is sought among all old ones by binary search, and splits
//! both; so do the middle ones of the two halves, and so on. That asks about f log2 (n / f) + 2 f
//! times, as few as binary merging does (Hwang and Lin; Knuth, The Art of Computer Programming,
//! volume 3, 5.3.2). But the searches for the middle ones of all halves do not wait for each other.
//! They take their steps in turn, so that the memory where the old elements lie is asked for many
//! of them at once.
//!
//! `Old` gives the old elements: `Count()`, `At(i)`, and what is asked for beforehand, first
//! `PrefetchItem(i)` and, some time later, `PrefetchData(i)`.
template <class T, class Old, class Order>
class PlacesAmong {
public:
    PlacesAmong(Old const& old, std::vector<T> const& fresh, Order& order)
        : old_(old)
        , fresh_(fresh)
        , order_(order)
        , places_(fresh.size()) {}

    std::vector<std::size_t> Find() && {
        for (auto step = std::bit_floor(fresh_.size()); step > 0; step /= 2)
            FindEvery(step);
        return std::move(places_);
    }

private:
    static constexpr std::size_t searchesAtOnce = 16;

    struct Search {
        std::size_t element;
        std::size_t low;
        std::size_t high;

        bool IsDone() const { return low >= high; }
        std::size_t Probe() const { return low + (high - low) / 2; }
    };

    // The elements that are an odd number of steps from the one before the first.
    void FindEvery(std::size_t step) {
        std::array<Search, searchesAtOnce> searches{};
        std::size_t count = 0;
        for (auto i = step - 1; i < fresh_.size(); i += 2 * step) {
            auto const low = i < step ? 0 : places_[i - step];
            auto const high = i + step < fresh_.size() ? places_[i + step] : old_.Count();
            searches[count++] = {i, low, high};
            if (count == searchesAtOnce || i + 2 * step >= fresh_.size()) {
                Run({searches.data(), count});
                count = 0;
            }
        }
    }

    void Run(std::span<Search> searches) {
        for (searches = WithoutDone(searches); !searches.empty();
             searches = WithoutDone(searches)) {
            for (auto const& search : searches)
                old_.PrefetchItem(search.Probe());
            for (auto const& search : searches)
                old_.PrefetchData(search.Probe());
            for (auto& search : searches)
                Step(search);
        }
    }

    std::span<Search> WithoutDone(std::span<Search> searches) {
        std::size_t count = 0;
        for (auto const& search : searches) {
            if (search.IsDone())
                places_[search.element] = search.low;
            else
                searches[count++] = search;
        }
        return searches.first(count);
    }

    void Step(Search& search) {
        auto const probe = search.Probe();
        if (order_(fresh_[search.element], old_.At(probe)))
            search.high = probe;
        else
            search.low = probe + 1;
    }

    Old const& old_;
    std::vector<T> const& fresh_;
    Order& order_;
    std::vector<std::size_t> places_;
};

} // namespace zbbrowser::detail
