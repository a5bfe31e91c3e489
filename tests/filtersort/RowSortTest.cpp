// SPDX-License-Identifier: MIT
// The keys of the orders, what the host is asked and how often.
#include "RowSortTest.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using zbbrowser::detail::RowOrder;
using zbtest::Lines;

class RowSorts : public zbtest::RowSortTest {};

//! An order and what it asks for two rows that no key tells apart.
struct Keys {
    RowOrder order;
    Lines lines;
};

class OrderOfKeys : public zbtest::RowSortTest, public testing::WithParamInterface<Keys> {};

TEST_P(OrderOfKeys, IsKeptWhileNoneDecides) {
    part.compares = false;
    host.calls.Record(true);

    EXPECT_EQ(Sorted({"nut", "bolt"}, GetParam().order), (Lines{"nut", "bolt"}));

    EXPECT_EQ(host.calls.take(), GetParam().lines);
}

INSTANTIATE_TEST_SUITE_P(
    AllOrders, OrderOfKeys,
    testing::Values(
        Keys{RowOrder::Default,
             {"data.CompareDataSources part part", "part.CompareByName bolt nut",
              "part.CompareById bolt nut"}},
        Keys{RowOrder::Custom,
             {"data.CompareDataSources part part", "part.CompareBySortProperty bolt nut",
              "part.CompareById bolt nut"}},
        Keys{RowOrder::Column,
             {"data.CompareDataSources part part", "part.CompareByDataProperty bolt nut",
              "part.CompareByName bolt nut", "part.CompareById bolt nut"}},
        Keys{RowOrder::CustomTwoKeys,
             {"part.CompareBySortProperty bolt nut", "part.CompareById bolt nut"}},
        Keys{RowOrder::NameAndId, {"part.CompareByName bolt nut", "part.CompareById bolt nut"}},
        Keys{RowOrder::Prepared,
             {"part.CompareBySortProperty bolt nut", "part.CompareByName bolt nut",
              "part.CompareById bolt nut"}}));

TEST_F(RowSorts, AKeyThatDecidesIsTheLast) {
    host.calls.Record(true);

    EXPECT_THAT(Sorted({"nut", "bolt"}, RowOrder::Default), ElementsAre("bolt", "nut"));

    EXPECT_THAT(host.calls.take(),
                ElementsAre("data.CompareDataSources part part", "part.CompareByName bolt nut"));
}

TEST_F(RowSorts, TheSortPropertyOrdersTheCustomOrders) {
    EXPECT_THAT(Sorted({"bolt", "nut"}, RowOrder::Custom), ElementsAre("nut", "bolt"));
    EXPECT_THAT(Sorted({"bolt", "nut"}, RowOrder::CustomTwoKeys), ElementsAre("nut", "bolt"));
    EXPECT_THAT(Sorted({"bolt", "nut"}, RowOrder::Prepared), ElementsAre("nut", "bolt"));
}

TEST_F(RowSorts, APreparedOrderHasNoOrderBelowItsFirstKey) {
    part.SetSortProperty(nullptr);
    host.calls.Record(true);

    EXPECT_THAT(Sorted({"nut", "bolt"}, RowOrder::Prepared), ElementsAre("nut", "bolt"));

    EXPECT_THAT(host.calls.take(), ElementsAre("part.CompareByName bolt nut"))
        << "the name tells them apart, so identity is not asked";
}

TEST_F(RowSorts, TheDataControlOrdersSourcesBeforeAnyOtherKeyWhereThatKeyIsTried) {
    host.Control().sourceOrder = {&part, &tool};

    EXPECT_THAT(Sorted({"nut", "saw", "bolt", "file"}, RowOrder::Default),
                ElementsAre("bolt", "nut", "file", "saw"));
    EXPECT_THAT(Sorted({"saw", "nut"}, RowOrder::NameAndId), ElementsAre("nut", "saw"))
        << "an order without that key";
}

TEST_F(RowSorts, RowsOfASourceWithoutAControlAreSortedByTheOtherKeys) {
    part.control = nullptr;
    host.calls.Record(true);

    EXPECT_THAT(Sorted({"nut", "bolt"}, RowOrder::Default), ElementsAre("bolt", "nut"));

    EXPECT_THAT(host.calls.take(), ElementsAre("part.CompareByName bolt nut"));
}

TEST_F(RowSorts, RowsWithoutASourceKeepTheirPlacesAndNobodyIsAsked) {
    part["nut"].source = nullptr;
    part["bolt"].source = nullptr;
    host.calls.Record(true);

    EXPECT_THAT(Sorted({"nut", "bolt"}, RowOrder::Column), ElementsAre("nut", "bolt"));

    EXPECT_THAT(host.calls.take(), IsEmpty());
}

TEST_F(RowSorts, NullItemsAndItemsWithoutDataKeepTheirPlaces) {
    zbtest::RowDouble const blank(&host.View(), nullptr);
    auto items = ItemsOf({"nut", "bolt"});
    items.insert(items.begin(), nullptr);
    items.push_back(const_cast<zbtest::RowDouble*>(&blank));
    auto const before = items;

    EXPECT_TRUE(Sort(items, RowOrder::Default));

    EXPECT_EQ(items, (Items{before[0], before[2], before[1], before[3]}));
}

TEST_F(RowSorts, ADataPropertyThatOneSourceLacksIsPassedOver) {
    host.calls.Record(true);

    EXPECT_THAT(Sorted({"saw", "nut"}, RowOrder::Column), ElementsAre("nut", "saw"));

    EXPECT_THAT(host.calls.take(),
                ElementsAre("data.CompareDataSources part tool", "part.CompareByName nut saw"));
}

TEST_F(RowSorts, WithoutAViewPropertyTheColumnOrderIsThatOfTheNames) {
    viewProperty = nullptr;

    EXPECT_THAT(Sorted({"nut", "bolt"}, RowOrder::Column), ElementsAre("bolt", "nut"));
    EXPECT_EQ(host.calls.Count("CompareByDataProperty"), 0U);
}

TEST_F(RowSorts, WhatBelongsToASourceIsAskedOnceForEachSort) {
    host.calls.ForgetCounts();

    Sorted({"pin", "nut", "bolt", "saw", "file"}, RowOrder::Column);

    EXPECT_EQ(host.calls.Count("GetDataSource"), 5U) << "once for each row";
    EXPECT_EQ(host.calls.Count("GetDataCtrl"), 2U) << "once for each source";
    EXPECT_THAT(host.calls.Count("CompareDataSources"), testing::Le(4U))
        << "once for each pair of sources";
}

TEST_F(RowSorts, RowsOfManySourcesAreSortedInTheOrderOfTheSources) {
    Lines names;
    for (int i = 0; i < 100; ++i) {
        auto name = "s" + std::to_string(i);
        auto& source = host.Source(name);
        source.Add(name);
        sources.push_back(&source);
        host.Control().sourceOrder.insert(host.Control().sourceOrder.begin(), &source);
        names.push_back(std::move(name));
    }

    auto const sorted = Sorted(names, RowOrder::Default);

    EXPECT_EQ(sorted, Lines(names.rbegin(), names.rend()));
}

TEST_F(RowSorts, SortedRowsInFrontAreNotComparedWithEachOther) {
    auto items = ItemsOf({"axle", "nut", "pin", "bolt"});
    host.calls.Record(true);

    EXPECT_TRUE(Sort(items, RowOrder::NameAndId, 3));

    EXPECT_EQ(NamesOf(items), (Lines{"axle", "bolt", "nut", "pin"}));
    for (auto const& line : host.calls.take())
        EXPECT_THAT(line, testing::HasSubstr(" bolt"));
}

TEST_F(RowSorts, RowsInFrontThatAreAllTheRowsAreNotCompared) {
    auto items = ItemsOf({"nut", "bolt"});
    host.calls.ForgetCounts();

    EXPECT_TRUE(Sort(items, RowOrder::Default, 2));

    EXPECT_EQ(NamesOf(items), (Lines{"nut", "bolt"}));
    EXPECT_EQ(host.calls.Count("CompareByName"), 0U);
}

TEST_F(RowSorts, WhatAComparisonThrowsLeavesTheListAsItWas) {
    auto items = ItemsOf({"pin", "nut", "bolt"});
    host.calls.On("CompareByName", [] { throw "host"; });

    EXPECT_THROW(Sort(items, RowOrder::Default), char const*);

    EXPECT_EQ(NamesOf(items), (Lines{"pin", "nut", "bolt"}));
}

TEST_F(RowSorts, ASortIsGivenUpWhenSomethingOfTheViewGoes) {
    auto& folder = NewFolder();
    auto items = ItemsOf({"pin", "nut", "bolt", "axle"});
    host.calls.On("CompareDataSources", [&] { host.View().DeleteFreeFolder(&folder, true); });

    EXPECT_FALSE(Sort(items, RowOrder::Default));

    EXPECT_EQ(NamesOf(items), (Lines{"pin", "nut", "bolt", "axle"}));
    EXPECT_EQ(host.calls.Count("CompareByName"), 0U) << "the host is asked no more";
}

TEST_F(RowSorts, ASortIsGivenUpWhenTheViewIsSortedByAnotherColumn) {
    auto items = ItemsOf({"pin", "nut", "bolt", "axle"});
    host.calls.On("CompareDataSources", [&] {
        host.OldView().GetSortHandlerPtr()->SetAscendingOrder(host.View().GetDefaultColumn(), true);
    });

    EXPECT_FALSE(Sort(items, RowOrder::Default));

    EXPECT_EQ(NamesOf(items), (Lines{"pin", "nut", "bolt", "axle"}));
    EXPECT_EQ(host.calls.Count("CompareByName"), 0U) << "the host is asked no more";
}

TEST_F(RowSorts, AChangeOfTheCurrentSortPropertyGivesUpTheSortsThatUseIt) {
    auto items = ItemsOf({"bolt", "nut"});
    host.calls.On("CompareDataSources", [] { zbbrowser::detail::SetCurrentSortProperty(nullptr); });

    EXPECT_FALSE(Sort(items, RowOrder::Column));
    EXPECT_EQ(NamesOf(items), (Lines{"bolt", "nut"}));
    viewProperty = nullptr;

    EXPECT_TRUE(Sort(items, RowOrder::Default));
}

TEST_F(RowSorts, ASortIsGivenUpWhenTheViewGoesWhileRowsAreLookedAt) {
    auto items = ItemsOf({"pin", "nut"});
    host.calls.On("GetDataSource", "pin", [&] { host.DeleteView(host.View()); });

    EXPECT_FALSE(Sort(items, RowOrder::Default));

    EXPECT_EQ(host.calls.Count("CompareByName"), 0U);
}

} // namespace
