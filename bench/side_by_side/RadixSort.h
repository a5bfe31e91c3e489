// SPDX-License-Identifier: MIT
//! \file
//! Sorting without comparisons.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace zbbench {

//! Stable, by a key of 32 bits that is asked once: from the lowest eleven bits to the highest,
//! those left out that are the same in all keys.
template <class T, class GetKey>
void RadixSort(std::vector<T>& items, GetKey const& getKey) {
    using Keyed = std::pair<std::uint32_t, T>;
    std::vector<Keyed> keyed;
    keyed.reserve(items.size());
    for (auto const& item : items)
        keyed.emplace_back(getKey(item), item);
    std::vector<Keyed> target(keyed.size());
    for (auto shift = 0U; shift < 32; shift += 11) {
        std::array<std::size_t, 2048> places{};
        auto const digit = [shift](Keyed const& each) { return each.first >> shift & 2047U; };
        for (auto const& each : keyed)
            ++places[digit(each)];
        if (keyed.empty() || places[digit(keyed.front())] == keyed.size())
            continue;
        std::size_t next = 0;
        for (auto& place : places)
            next += std::exchange(place, next);
        for (auto const& each : keyed)
            target[places[digit(each)]++] = each;
        keyed.swap(target);
    }
    for (std::size_t i = 0; i < items.size(); ++i)
        items[i] = keyed[i].second;
}

} // namespace zbbench
