// SPDX-License-Identifier: MIT
#include "filtersort/MergeSort.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <numeric>
#include <random>
#include <stdexcept>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Le;
using zbbrowser::detail::MergeSort;
using zbbrowser::detail::PlacesAmong;

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

struct Thrower {
    bool operator()(Card const&, Card const&) const { throw std::runtime_error("host"); }
    static void Prefetch(Card const&) {}
};

std::vector<Card> Shuffled(std::size_t count, unsigned keys, unsigned seed) {
    std::mt19937 random(seed);
    std::vector<Card> cards(count);
    for (std::size_t i = 0; i < count; ++i)
        cards[i] = {static_cast<unsigned>(random() % keys), i};
    return cards;
}

template <class Order>
void Sort(std::vector<Card>& cards, Order& order) {
    MergeSort<Card, Order>(cards, order).Run();
}

std::vector<Card> StablySorted(std::vector<Card> cards) {
    std::stable_sort(cards.begin(), cards.end(),
                     [](Card const& a, Card const& b) { return a.key < b.key; });
    return cards;
}

double LogOf(std::size_t count) {
    return std::log2(static_cast<double>(count));
}

TEST(MergeSortTest, SortsListsOfEachLengthAndLeavesTiesInTheirOrder) {
    for (std::size_t count = 0; count < 300; ++count) {
        auto cards = Shuffled(count, 20, static_cast<unsigned>(count));
        auto const expected = StablySorted(cards);
        ByKey order;

        Sort(cards, order);

        ASSERT_EQ(cards, expected) << count;
    }
}

TEST(MergeSortTest, AsksAtMostNLogNTimes) {
    constexpr std::size_t count = 100'000;
    auto cards = Shuffled(count, 1'000'000'000, 1);
    auto const expected = StablySorted(cards);
    ByKey order;

    Sort(cards, order);

    EXPECT_EQ(cards, expected);
    EXPECT_THAT(static_cast<double>(order.asked), Le(count * LogOf(count)));
}

TEST(MergeSortTest, AsksAboutOnceForEachElementOfASortedList) {
    constexpr std::size_t count = 10'000;
    auto cards = StablySorted(Shuffled(count, 1'000'000'000, 1));
    ByKey order;

    Sort(cards, order);

    EXPECT_THAT(order.asked, Le(count));
}

TEST(MergeSortTest, AFallingListIsTurnedRoundAndItsTiesAreNot) {
    std::vector<Card> cards{{9, 0}, {7, 1}, {7, 2}, {3, 3}, {1, 4}};
    ByKey order;

    Sort(cards, order);

    EXPECT_THAT(cards, ElementsAre(Card{1, 4}, Card{3, 3}, Card{7, 1}, Card{7, 2}, Card{9, 0}));
}

TEST(MergeSortTest, AnOrderThatContradictsItselfLosesNothing) {
    auto cards = Shuffled(5'000, 100, 2);
    auto const before = cards;
    Liar order;

    Sort(cards, order);

    EXPECT_TRUE(std::is_permutation(cards.begin(), cards.end(), before.begin(), before.end(),
                                    [](Card const& a, Card const& b) { return a == b; }));
}

TEST(MergeSortTest, WhatTheOrderThrowsPasses) {
    auto cards = Shuffled(100, 100, 3);
    Thrower order;

    EXPECT_THROW(Sort(cards, order), std::runtime_error);
}

class PlacesAmongTest : public testing::Test {
protected:
    template <class Order>
    static std::vector<std::size_t> Places(std::vector<Card> const& old,
                                           std::vector<Card> const& fresh, Order& order) {
        return PlacesAmong(
            old.size(), [&](std::size_t i) { return old.at(i); }, fresh, order);
    }

    ByKey order;
};

TEST_F(PlacesAmongTest, EachElementComesBehindItsEquals) {
    std::vector<Card> const old{{1, 0}, {3, 1}, {3, 2}, {5, 3}};

    EXPECT_THAT(Places(old, {{0, 9}, {3, 9}, {4, 9}, {6, 9}}, order), ElementsAre(0, 3, 3, 4));
}

TEST_F(PlacesAmongTest, AnEmptyListHasOnePlace) {
    EXPECT_THAT(Places({}, {{1, 0}, {2, 1}}, order), ElementsAre(0, 0));
    EXPECT_THAT(Places({{1, 0}}, {}, order), IsEmpty());
}

TEST_F(PlacesAmongTest, MergingByPlacesIsSorting) {
    for (std::size_t fresh = 0; fresh < 60; ++fresh) {
        for (std::size_t old = 0; old < 60; old += 7) {
            auto cards = Shuffled(old + fresh, 15, static_cast<unsigned>(old * 100 + fresh));
            auto const expected = StablySorted(cards);
            auto const middle = cards.begin() + static_cast<std::ptrdiff_t>(old);
            auto const first = StablySorted({cards.begin(), middle});
            auto const second = StablySorted({middle, cards.end()});

            auto const places = Places(first, second, order);

            auto merged = first;
            for (std::size_t i = second.size(); i > 0; --i)
                merged.insert(merged.begin() + static_cast<std::ptrdiff_t>(places[i - 1]),
                              second[i - 1]);
            ASSERT_EQ(merged, expected) << old << " and " << fresh;
        }
    }
}

TEST_F(PlacesAmongTest, AFewElementsAreFoundWithFewQuestions) {
    constexpr std::size_t count = 100'000;
    constexpr std::size_t few = 1'000;
    auto const old = StablySorted(Shuffled(count, 1'000'000'000, 4));
    auto const fresh = StablySorted(Shuffled(few, 1'000'000'000, 5));

    Places(old, fresh, order);

    EXPECT_THAT(static_cast<double>(order.asked), Le(few * (LogOf(count / few) + 2)));
}

TEST_F(PlacesAmongTest, AnOrderThatContradictsItselfGivesRisingPlacesWithinTheList) {
    Liar liar;

    auto const places = Places(Shuffled(1'000, 100, 6), Shuffled(300, 100, 7), liar);

    EXPECT_TRUE(std::is_sorted(places.begin(), places.end()));
    EXPECT_THAT(places.back(), Le(1'000U));
}

} // namespace
