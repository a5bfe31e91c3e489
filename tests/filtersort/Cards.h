// SPDX-License-Identifier: MIT
//! \file
//! What the sorting algorithms are tested with.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <random>
#include <vector>

namespace zbtest {

struct Card {
    unsigned key;
    std::size_t number; // Tells cards of one key apart

    bool operator==(Card const&) const = default;
};

//! Compares keys and counts.
struct ByKey {
    std::size_t asked = 0;

    bool operator()(Card const& a, Card const& b) {
        ++asked;
        return a.key < b.key;
    }
    static void Prefetch(Card const&) {}
};

//! Answers at random.
struct Liar {
    std::mt19937 random{1};

    bool operator()(Card const&, Card const&) { return random() % 2 == 0; }
    static void Prefetch(Card const&) {}
};

inline std::vector<Card> Shuffled(std::size_t count, unsigned keys, unsigned seed) {
    std::mt19937 random(seed);
    std::vector<Card> cards(count);
    for (std::size_t i = 0; i < count; ++i)
        cards[i] = {static_cast<unsigned>(random() % keys), i};
    return cards;
}

inline std::vector<Card> StablySorted(std::vector<Card> cards) {
    std::stable_sort(cards.begin(), cards.end(),
                     [](Card const& a, Card const& b) { return a.key < b.key; });
    return cards;
}

inline double LogOf(std::size_t count) {
    return std::log2(static_cast<double>(count));
}

} // namespace zbtest
