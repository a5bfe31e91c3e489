// SPDX-License-Identifier: MIT
// Slots that interfere while a view is told by which column to sort, in both generations.
#include "SortStateTest.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using zbtest::HandlerOf;
using zbtest::NewGeneration;
using zbtest::OldGeneration;

template <class Generation>
class SortSlotsTest : public zbtest::SortStateTest<Generation> {};

TYPED_TEST_SUITE(SortSlotsTest, zbtest::Generations, zbtest::GenerationName);

TYPED_TEST(SortSlotsTest, TheColumnIsStillSortedWhileItsEndIsTold) {
    this->view.SetAscendingOrder(&this->weight, true);
    zbIBrowserViewColumn* sorted = nullptr;
    this->signals.Once(&zbBrowserSignalManager::ColumnSortChanged,
                       [&](auto*, bool, bool) { sorted = this->view.GetSortedColumn(); });

    HandlerOf(this->view).ResetSortedColumn();

    EXPECT_EQ(sorted, &this->weight);
    EXPECT_EQ(this->view.GetSortedColumn(), nullptr);
}

TYPED_TEST(SortSlotsTest, ASlotThatHearsOfAResetMayResetToo) {
    this->view.SetAscendingOrder(&this->weight, true);
    this->signals.Discard();
    this->signals.Once(&zbBrowserSignalManager::ColumnSortChanged,
                       [&](auto*, bool, bool) { HandlerOf(this->view).ResetSortedColumn(); });

    HandlerOf(this->view).ResetSortedColumn();

    EXPECT_EQ(this->view.GetSortedColumn(), nullptr);
    EXPECT_THAT(this->signals.take(), ElementsAre("ColumnSortChanged weight false false"));
}

TYPED_TEST(SortSlotsTest, WhatASlotThrowsOnAResetPassesAndTheColumnStaysSorted) {
    this->view.SetAscendingOrder(&this->weight, true);
    this->signals.Once(&zbBrowserSignalManager::ColumnSortChanged,
                       [](auto*, bool, bool) { throw "slot"; });

    EXPECT_THROW(HandlerOf(this->view).ResetSortedColumn(), char const*);

    EXPECT_EQ(this->view.GetSortedColumn(), &this->weight);
}

TYPED_TEST(SortSlotsTest, AColumnThatASlotDeletesIsNotSorted) {
    this->view.SetAscendingOrder(&this->weight, true);
    this->signals.Once(&zbBrowserSignalManager::ColumnSortChanged,
                       [&](auto*, bool, bool) { this->view.DeleteScriptedColumn(&this->color); });
    auto* const gone = &this->color;

    EXPECT_FALSE(this->view.SetAscendingOrder(gone, true));

    EXPECT_EQ(this->view.GetSortedColumn(), nullptr);
    EXPECT_EQ(this->view.FindColumn("color"), nullptr);
}

TYPED_TEST(SortSlotsTest, AColumnThatGoesWhileItsSortIsToldLeavesTheViewUnsorted) {
    this->signals.Once(&zbBrowserSignalManager::ColumnSortChanged,
                       [&](auto*, bool, bool) { this->view.DeleteScriptedColumn(&this->weight); });

    EXPECT_TRUE(this->view.SetAscendingOrder(&this->weight, true));

    EXPECT_EQ(this->view.GetSortedColumn(), nullptr);
}

TYPED_TEST(SortSlotsTest, SortingByAColumnWhoseDeletionIsToldEndsWithIt) {
    bool sorted = false;
    this->signals.Once(&zbBrowserSignalManager::ColumnDeleted, [&](zbIBrowserViewColumn* column) {
        sorted = this->view.SetAscendingOrder(column, true);
    });

    this->view.DeleteScriptedColumn(&this->weight);

    EXPECT_TRUE(sorted);
    EXPECT_EQ(this->view.GetSortedColumn(), nullptr);
}

TYPED_TEST(SortSlotsTest, ASlotMaySortByAnotherColumnAndIsOverruled) {
    this->view.SetAscendingOrder(&this->standard, true);
    this->signals.Once(&zbBrowserSignalManager::ColumnSortChanged, [&](auto*, bool, bool) {
        this->view.SetAscendingOrder(&this->color, true);
    });

    EXPECT_TRUE(this->view.SetAscendingOrder(&this->weight, false));

    EXPECT_EQ(this->view.GetSortedColumn(), &this->weight);
    EXPECT_FALSE(this->IsAscending(this->weight));
}

TYPED_TEST(SortSlotsTest, ASlotMayDeleteTheViewWhenTheSortChanges) {
    this->signals.Once(&zbBrowserSignalManager::ColumnSortChanged,
                       [&](auto*, bool, bool) { this->host.DeleteView(this->view); });

    this->view.SetAscendingOrder(&this->weight, true);

    EXPECT_EQ(this->host.Controller().FindView("view"), nullptr);
    EXPECT_THAT(this->SignalsWithoutBracket(), ElementsAre("ColumnSortChanged weight true true"));
}

TYPED_TEST(SortSlotsTest, ASlotMayDeleteTheViewWhenTheOldColumnEnds) {
    this->view.SetAscendingOrder(&this->color, true);
    this->signals.Discard();
    this->signals.Once(&zbBrowserSignalManager::ColumnSortChanged,
                       [&](auto*, bool, bool) { this->host.DeleteView(this->view); });

    EXPECT_FALSE(this->view.SetAscendingOrder(&this->weight, true));

    EXPECT_THAT(this->SignalsWithoutBracket(), ElementsAre("ColumnSortChanged color false true"));
}

TYPED_TEST(SortSlotsTest, WhatASlotThrowsPassesAndTheSortStands) {
    this->signals.Once(&zbBrowserSignalManager::ColumnSortChanged,
                       [](auto*, bool, bool) { throw "slot"; });

    EXPECT_THROW(this->view.SetAscendingOrder(&this->weight, true), char const*);

    EXPECT_EQ(this->view.GetSortedColumn(), &this->weight);
}

class OldSortSlotsTest : public SortSlotsTest<OldGeneration> {};

TEST_F(OldSortSlotsTest, ARefusalLeavesTheBracketOpen) {
    signals.Once(&zbBrowserDataSignalManager::SortChanging,
                 [&](bool) { view.DeleteScriptedColumn(&weight); });

    EXPECT_FALSE(view.SetAscendingOrder(&weight, true));

    EXPECT_THAT(signals.take(), ElementsAre("SortChanging true"));
    EXPECT_EQ(view.GetSortedColumn(), nullptr);
}

TEST_F(OldSortSlotsTest, ASlotMayDeleteTheViewWhenTheBracketOpens) {
    signals.Once(&zbBrowserDataSignalManager::SortChanging, [&](bool) { host.DeleteView(view); });

    EXPECT_FALSE(view.SetAscendingOrder(&weight, true));

    EXPECT_THAT(signals.take(), ElementsAre("SortChanging true"));
}

TEST_F(OldSortSlotsTest, ASlotMayDeleteTheViewWhenItHasChanged) {
    signals.Once(&zbBrowserSignalManager::ViewChanged,
                 [&](zbIBrowserView*) { host.DeleteView(view); });

    EXPECT_TRUE(view.SetAscendingOrder(&weight, true));

    EXPECT_THAT(signals.take(), ElementsAre("SortChanging true",
                                            "ColumnSortChanged weight true true", "ViewChanged"));
}

class NewSortSlotsTest : public SortSlotsTest<NewGeneration> {};

TEST_F(NewSortSlotsTest, ASlotMayDeleteTheHandler) {
    signals.Once(&zbBrowserSignalManager::ColumnSortChanged,
                 [&](auto*, bool, bool) { view.DeleteSortHandler(); });

    EXPECT_TRUE(view.SetAscendingOrder(&weight, true));

    EXPECT_EQ(view.GetSortedColumn(), nullptr);
}

} // namespace
