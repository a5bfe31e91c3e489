// SPDX-License-Identifier: MIT
#include "selection/ItemSet.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <random>
#include <set>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using zbbrowser::detail::ItemSet;

// The set follows no item, so any address is as good as another.
zbIBrowserViewItem* At(std::uintptr_t address) {
    return reinterpret_cast<zbIBrowserViewItem*>(address);
}

std::vector<zbIBrowserViewItem*> Listed(ItemSet const& set) {
    std::vector<zbIBrowserViewItem*> items;
    set.AppendTo(items);
    return items;
}

TEST(ItemSetTest, ItemsComeOutByAddressWhateverTheOrderOfInsertion) {
    ItemSet set;
    for (std::uintptr_t const address : {0x500000U, 0x10008U, 0x10000U, 0x1fff8U, 0x20000U})
        EXPECT_TRUE(set.Insert(At(address)));

    EXPECT_THAT(Listed(set),
                ElementsAre(At(0x10000), At(0x10008), At(0x1fff8), At(0x20000), At(0x500000)));
    EXPECT_EQ(set.Count(), 5U);
}

TEST(ItemSetTest, AnItemIsInsertedAndErasedOnce) {
    ItemSet set;
    EXPECT_TRUE(set.Insert(At(0x1000)));
    EXPECT_FALSE(set.Insert(At(0x1000)));
    EXPECT_TRUE(set.Contains(At(0x1000)));

    EXPECT_TRUE(set.Erase(At(0x1000)));
    EXPECT_FALSE(set.Erase(At(0x1000)));

    EXPECT_FALSE(set.Contains(At(0x1000)));
    EXPECT_TRUE(set.IsEmpty());
}

TEST(ItemSetTest, NeighboursAndAddressesBetweenItemsAreNotContained) {
    ItemSet set;
    set.Insert(At(0x1008));

    for (std::uintptr_t const address : {0x0U, 0x1000U, 0x1009U, 0x100cU, 0x1010U, 0x11008U})
        EXPECT_FALSE(set.Contains(At(address))) << address;
    EXPECT_FALSE(set.Erase(At(0x1009)));
}

TEST(ItemSetTest, ClearEmptiesItForUseAnew) {
    ItemSet set;
    set.Insert(At(0x1000));
    set.Clear();
    EXPECT_FALSE(set.Contains(At(0x1000)));
    EXPECT_THAT(Listed(set), IsEmpty());

    set.Insert(At(0x1008));
    EXPECT_THAT(Listed(set), ElementsAre(At(0x1008)));
}

TEST(ItemSetTest, WhatIsListedIsAppended) {
    ItemSet set;
    set.Insert(At(0x1000));
    std::vector<zbIBrowserViewItem*> items{nullptr};
    set.AppendTo(items);

    EXPECT_THAT(items, ElementsAre(nullptr, At(0x1000)));
}

TEST(ItemSetTest, AgreesWithASetOfPointersOverManyChanges) {
    std::mt19937 random(1);
    ItemSet set;
    std::set<zbIBrowserViewItem*, std::less<>> model;
    for (int i = 0; i < 20'000; ++i) {
        auto* const item = At(std::uintptr_t{random() % 40'000} * 8);
        if (random() % 2 == 0)
            EXPECT_EQ(set.Insert(item), model.insert(item).second);
        else
            EXPECT_EQ(set.Erase(item), model.erase(item) == 1);
        auto* const other = At(std::uintptr_t{random() % 40'000} * 8);
        EXPECT_EQ(set.Contains(other), model.contains(other));
    }
    EXPECT_THAT(Listed(set), testing::ElementsAreArray(model));
    EXPECT_EQ(set.Count(), model.size());
}

} // namespace
