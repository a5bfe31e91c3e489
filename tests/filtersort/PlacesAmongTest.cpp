// SPDX-License-Identifier: MIT
#include "filtersort/PlacesAmong.h"

#include "Cards.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zbtest {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Le;
using zbbrowser::detail::PlacesAmong;

struct OldCards {
    std::vector<Card> const& cards;

    std::size_t Count() const { return cards.size(); }
    Card const& At(std::size_t i) const { return cards.at(i); }
    void PrefetchItem(std::size_t i) const { EXPECT_LT(i, cards.size()); }
    void PrefetchData(std::size_t i) const { EXPECT_LT(i, cards.size()); }
};

class PlacesAmongTest : public testing::Test {
protected:
    template <class Order>
    static std::vector<std::size_t> Places(std::vector<Card> const& old,
                                           std::vector<Card> const& fresh, Order& order) {
        return PlacesAmong(OldCards{old}, fresh, order).Find();
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
} // namespace zbtest
