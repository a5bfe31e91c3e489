// SPDX-License-Identifier: MIT
//! \file
//! A stable sort that asks few questions and survives wrong answers.
#pragma once

#include "containers/Prefetch.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace zbbrowser::detail {

//! Sorts by merging. What it is made for is a comparison that costs far more than moving an
//! element, follows pointers into memory that no cache holds, belongs to somebody else and may
//! contradict itself or throw:
//!
//! - It asks at most n log2 n times, and about n times where the elements stand in long runs.
//! - It tells the order which elements are compared soon: `order.Prefetch(element)`.
//! - Whatever `order(a, b)` answers, no element is read beyond its end, lost or doubled.
//! - If it throws, some elements may be lost. Sort a copy.
template <class T, class Order>
class MergeSort {
public:
    MergeSort(std::vector<T>& items, Order& order)
        : items_(items)
        , order_(order) {}

    void Run() {
        left_.reserve((items_.size() + 1) / 2);
        Sort(0, items_.size());
    }

private:
    // Up to here elements are put in one by one, with binary search, which asks as little as
    // merging does and moves less.
    static constexpr std::size_t fewElements = 24;

    // As deep as log2 n.
    void Sort(std::size_t first, std::size_t last) {
        if (last - first <= fewElements) {
            SortFew(first, last);
            return;
        }
        auto const middle = first + (last - first) / 2;
        Sort(first, middle);
        Sort(middle, last);
        Merge(first, middle, last);
    }

    void SortFew(std::size_t first, std::size_t last) {
        auto const begin = items_.begin();
        for (auto next = RunFrom(first, last); next < last; ++next) {
            auto low = first;
            for (auto high = next; low < high;) {
                auto const probe = low + (high - low) / 2;
                if (order_(items_[next], items_[probe]))
                    high = probe;
                else
                    low = probe + 1;
            }
            std::rotate(begin + Offset(low), begin + Offset(next), begin + Offset(next + 1));
        }
    }

    //! The end of the elements that are in order. A falling run is turned round first; only a
    //! strictly falling one, lest equal elements change places.
    std::size_t RunFrom(std::size_t first, std::size_t last) {
        if (last - first < 2)
            return last;
        auto end = first + 2;
        if (!order_(items_[first + 1], items_[first])) {
            while (end < last && !order_(items_[end], items_[end - 1]))
                ++end;
            return end;
        }
        while (end < last && order_(items_[end], items_[end - 1]))
            ++end;
        std::reverse(items_.begin() + Offset(first), items_.begin() + Offset(end));
        return end;
    }

    // What stands at the right place on the left side is passed over, and the rest of that side is
    // moved out of the way.
    void Merge(std::size_t first, std::size_t middle, std::size_t last) {
        if (!order_(items_[middle], items_[middle - 1]))
            return;
        while (first < middle && !order_(items_[middle], items_[first]))
            ++first;
        left_.assign(items_.begin() + Offset(first), items_.begin() + Offset(middle));
        auto const count = left_.size();
        auto left = std::size_t{0};
        auto right = middle;
        auto to = first;
        while (left < count && right < last) {
            if (order_(items_[right], left_[left])) {
                PrefetchAhead(items_, right, last);
                items_[to++] = items_[right++];
            } else {
                PrefetchAhead(left_, left, count);
                items_[to++] = left_[left++];
            }
        }
        std::copy(left_.begin() + Offset(left), left_.end(), items_.begin() + Offset(to));
    }

    void PrefetchAhead(std::vector<T> const& from, std::size_t i, std::size_t end) {
        if (i + prefetchDistance < end)
            order_.Prefetch(from[i + prefetchDistance]);
    }

    static std::ptrdiff_t Offset(std::size_t i) { return static_cast<std::ptrdiff_t>(i); }

    std::vector<T>& items_;
    Order& order_;
    std::vector<T> left_;
};

} // namespace zbbrowser::detail
