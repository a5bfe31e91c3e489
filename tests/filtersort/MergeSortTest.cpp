// SPDX-License-Identifier: MIT
#include "filtersort/MergeSort.h"

#include "Cards.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

namespace zbtest {
namespace {

using testing::ElementsAre;
using testing::Le;
using zbbrowser::detail::MergeSort;

struct Thrower {
    bool operator()(Card const&, Card const&) const { throw std::runtime_error("host"); }
    static void Prefetch(Card const&) {}
};

template <class Order>
void Sort(std::vector<Card>& cards, Order& order) {
    MergeSort<Card, Order>(cards, order).Run();
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

} // namespace
} // namespace zbtest
