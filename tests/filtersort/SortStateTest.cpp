// SPDX-License-Identifier: MIT
// Which column a view is sorted by, in both generations.
#include "filtersort/SortHandler.h"
#include "filtersort/zbBrowserSortHandler.h"
#include "SortTest.h"
#include "support/Generations.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using zbtest::ColumnOf;
using zbtest::NewGeneration;
using zbtest::OldGeneration;

zbBrowserSortHandler& HandlerOf(zbBrowserView& view) {
    return *view.GetSortHandlerPtr();
}
zbbrowser::SortHandler& HandlerOf(zbbrowser::View& view) {
    return *view.GetSortHandler();
}

template <class Generation>
class SortStateTest : public testing::Test {
protected:
    //! Without the bracket, which only old views raise.
    [[nodiscard]] zbtest::Names SignalsWithoutBracket() {
        auto lines = signals.take();
        std::erase_if(lines, [](std::string const& line) {
            return line == "SortChanging true" || line == "SortChanging false";
        });
        return lines;
    }
    [[nodiscard]] bool IsAscending(zbIBrowserViewColumn& column) const {
        bool ascending = false;
        return view.GetAscendingOrder(&column, ascending) && ascending;
    }
    [[nodiscard]] bool KnowsDirectionOf(zbIBrowserViewColumn* column) const {
        bool ascending = true;
        auto const known = view.GetAscendingOrder(column, ascending);
        EXPECT_TRUE(known || ascending) << "the output changes only with true";
        return known;
    }

    zbtest::RecordingHost host;
    typename Generation::View& view = Generation::Make(host, "view");
    zbIBrowserViewColumn& standard = *view.GetDefaultColumn();
    zbIBrowserViewColumn& weight = ColumnOf(view, "weight");
    zbIBrowserViewColumn& color = ColumnOf(view, "color");
    zbtest::SortSignals signals{host};
};

TYPED_TEST_SUITE(SortStateTest, zbtest::Generations, zbtest::GenerationName);

TYPED_TEST(SortStateTest, AViewStartsUnsorted) {
    EXPECT_EQ(this->view.GetSortedColumn(), nullptr);
    EXPECT_FALSE(this->KnowsDirectionOf(&this->standard));
    EXPECT_FALSE(this->KnowsDirectionOf(&this->weight));
}

TYPED_TEST(SortStateTest, SettingAColumnSortsTheViewByIt) {
    EXPECT_TRUE(this->view.SetAscendingOrder(&this->weight, false));

    EXPECT_EQ(this->view.GetSortedColumn(), &this->weight);
    EXPECT_TRUE(this->KnowsDirectionOf(&this->weight));
    EXPECT_FALSE(this->IsAscending(this->weight));
    EXPECT_FALSE(this->KnowsDirectionOf(&this->color));
    EXPECT_THAT(this->SignalsWithoutBracket(),
                ElementsAre("ColumnSortChanged weight true false", "ViewChanged"));
}

TYPED_TEST(SortStateTest, SettingAColumnTakesItsUnsortedMark) {
    ASSERT_TRUE(this->weight.IsUnsorted());

    this->view.SetAscendingOrder(&this->weight, true);

    EXPECT_FALSE(this->weight.IsUnsorted());
    EXPECT_TRUE(this->color.IsUnsorted());
}

TYPED_TEST(SortStateTest, TheOldColumnIsToldTheNewDirection) {
    this->view.SetAscendingOrder(&this->weight, true);
    this->signals.Discard();

    EXPECT_TRUE(this->view.SetAscendingOrder(&this->color, false));

    EXPECT_THAT(this->SignalsWithoutBracket(),
                ElementsAre("ColumnSortChanged weight false false",
                            "ColumnSortChanged color true false", "ViewChanged"));
}

TYPED_TEST(SortStateTest, TheSameColumnInTheOtherDirectionIsOneChange) {
    this->view.SetAscendingOrder(&this->weight, true);
    this->signals.Discard();

    EXPECT_TRUE(this->view.SetAscendingOrder(&this->weight, false));

    EXPECT_THAT(this->SignalsWithoutBracket(),
                ElementsAre("ColumnSortChanged weight true false", "ViewChanged"));
    EXPECT_FALSE(this->IsAscending(this->weight));
}

TYPED_TEST(SortStateTest, TheSameColumnAndDirectionAgainDoesNothing) {
    this->view.SetAscendingOrder(&this->weight, true);
    this->signals.Discard();

    EXPECT_TRUE(this->view.SetAscendingOrder(&this->weight, true));

    EXPECT_THAT(this->signals.take(), IsEmpty());
}

TYPED_TEST(SortStateTest, AnUnsortedMarkMakesTheSameColumnAndDirectionAChangeOfTheView) {
    this->view.SetAscendingOrder(&this->weight, true);
    this->signals.Discard();
    this->weight.SetUnsorted(true);

    EXPECT_TRUE(this->view.SetAscendingOrder(&this->weight, true));

    EXPECT_FALSE(this->weight.IsUnsorted());
    auto const lines = this->signals.take();
    if (std::is_same_v<TypeParam, OldGeneration>) {
        EXPECT_THAT(lines, ElementsAre("SortChanging true", "ColumnSortRepeated weight true true",
                                       "ViewChanged", "SortChanging false"));
    } else {
        EXPECT_THAT(lines, ElementsAre("ViewChanged"));
    }
}

TYPED_TEST(SortStateTest, OnlyOldViewsBracketAChange) {
    this->view.SetAscendingOrder(&this->weight, true);

    auto const lines = this->signals.take();

    if (std::is_same_v<TypeParam, OldGeneration>) {
        EXPECT_THAT(lines, ElementsAre("SortChanging true", "ColumnSortChanged weight true true",
                                       "ViewChanged", "SortChanging false"));
    } else {
        EXPECT_THAT(lines, ElementsAre("ColumnSortChanged weight true true", "ViewChanged"));
    }
}

TYPED_TEST(SortStateTest, NullIsNoColumn) {
    EXPECT_FALSE(this->view.SetAscendingOrder(nullptr, true));
    EXPECT_FALSE(this->KnowsDirectionOf(nullptr));
    EXPECT_FALSE(HandlerOf(this->view).SetAscendingOrder(nullptr, true));
    EXPECT_THAT(this->signals.take(), IsEmpty());
}

TYPED_TEST(SortStateTest, NullIsNotTheSortedColumnOfAnUnsortedView) {
    bool ascending = false;

    EXPECT_FALSE(HandlerOf(this->view).GetAscendingOrder(nullptr, ascending));
}

TYPED_TEST(SortStateTest, AColumnOfAnotherViewIsRefusedWithoutASignal) {
    auto& foreign = ColumnOf(TypeParam::Make(this->host, "other"), "weight");
    this->signals.Discard();

    EXPECT_FALSE(this->view.SetAscendingOrder(&foreign, true));
    EXPECT_FALSE(HandlerOf(this->view).SetAscendingOrder(&foreign, true));
    EXPECT_FALSE(this->KnowsDirectionOf(&foreign));

    EXPECT_THAT(this->signals.take(), IsEmpty());
    EXPECT_TRUE(foreign.IsUnsorted());
}

TYPED_TEST(SortStateTest, ADeletedColumnIsRefused) {
    auto* const gone = &this->weight;
    this->view.DeleteScriptedColumn(gone);
    this->signals.Discard();

    EXPECT_FALSE(this->view.SetAscendingOrder(gone, true));
    EXPECT_FALSE(this->KnowsDirectionOf(gone));

    EXPECT_THAT(this->signals.take(), IsEmpty());
}

TYPED_TEST(SortStateTest, DeletingTheSortedColumnLeavesTheViewUnsorted) {
    this->view.SetAscendingOrder(&this->weight, true);
    this->signals.Discard();

    this->view.DeleteScriptedColumn(&this->weight);

    EXPECT_EQ(this->view.GetSortedColumn(), nullptr);
    EXPECT_THAT(this->signals.take(), ElementsAre("ColumnSortChanged weight false false"));
}

TYPED_TEST(SortStateTest, DeletingAHiddenColumnEndsASortByTheDefaultColumn) {
    this->view.ShowScriptedColumn(&this->weight, false);
    this->view.SetAscendingOrder(&this->standard, true);
    this->signals.Discard();

    this->view.DeleteScriptedColumn(&this->weight);

    EXPECT_EQ(this->view.GetSortedColumn(), nullptr);
    EXPECT_THAT(this->signals.take(), ElementsAre("ColumnSortChanged default_column false false"));
}

TYPED_TEST(SortStateTest, HidingAnyColumnEndsTheSort) {
    this->view.SetAscendingOrder(&this->standard, true);
    this->signals.Discard();

    this->view.ShowScriptedColumn(&this->weight, false);

    EXPECT_EQ(this->view.GetSortedColumn(), nullptr);
    EXPECT_THAT(this->signals.take(), ElementsAre("ColumnSortChanged default_column false false"));
}

TYPED_TEST(SortStateTest, TheColumnIsStillSortedWhileItsEndIsTold) {
    this->view.SetAscendingOrder(&this->weight, true);
    zbIBrowserViewColumn* sorted = nullptr;
    this->signals.Once(&zbBrowserSignalManager::ColumnSortChanged,
                       [&](auto*, bool, bool) { sorted = this->view.GetSortedColumn(); });

    HandlerOf(this->view).ResetSortedColumn();

    EXPECT_EQ(sorted, &this->weight);
    EXPECT_EQ(this->view.GetSortedColumn(), nullptr);
}

TYPED_TEST(SortStateTest, ResettingAnUnsortedViewTellsNobody) {
    HandlerOf(this->view).ResetSortedColumn();

    EXPECT_THAT(this->signals.take(), IsEmpty());
}

TYPED_TEST(SortStateTest, TheDirectionOutlivesAReset) {
    auto& handler = HandlerOf(this->view);
    this->view.SetAscendingOrder(&this->weight, false);
    handler.ResetSortedColumn();
    this->signals.Discard();

    EXPECT_TRUE(this->view.SetAscendingOrder(&this->weight, false));

    EXPECT_THAT(this->SignalsWithoutBracket(),
                ElementsAre("ColumnSortChanged weight true false", "ViewChanged"))
        << "the column is not sorted any more, so this is a change";
}

TYPED_TEST(SortStateTest, TheSortingFlagLeavesTheSortAlone) {
    this->view.SetAscendingOrder(&this->weight, true);
    this->signals.Discard();

    this->view.SetSorting(false);

    EXPECT_EQ(this->view.GetSortedColumn(), &this->weight);
    EXPECT_THAT(this->signals.take(), IsEmpty());
}

TYPED_TEST(SortStateTest, AColumnThatASlotDeletesIsNotSorted) {
    this->view.SetAscendingOrder(&this->weight, true);
    this->signals.Once(&zbBrowserSignalManager::ColumnSortChanged,
                       [&](auto*, bool, bool) { this->view.DeleteScriptedColumn(&this->color); });
    auto* const gone = &this->color;

    EXPECT_FALSE(this->view.SetAscendingOrder(gone, true));

    EXPECT_EQ(this->view.GetSortedColumn(), nullptr);
    EXPECT_EQ(this->view.FindColumn("color"), nullptr);
}

TYPED_TEST(SortStateTest, AColumnThatGoesWhileItsSortIsToldLeavesTheViewUnsorted) {
    this->signals.Once(&zbBrowserSignalManager::ColumnSortChanged,
                       [&](auto*, bool, bool) { this->view.DeleteScriptedColumn(&this->weight); });

    EXPECT_TRUE(this->view.SetAscendingOrder(&this->weight, true));

    EXPECT_EQ(this->view.GetSortedColumn(), nullptr);
}

TYPED_TEST(SortStateTest, SortingByAColumnWhoseDeletionIsToldEndsWithIt) {
    bool sorted = false;
    this->signals.Once(&zbBrowserSignalManager::ColumnDeleted, [&](zbIBrowserViewColumn* column) {
        sorted = this->view.SetAscendingOrder(column, true);
    });

    this->view.DeleteScriptedColumn(&this->weight);

    EXPECT_TRUE(sorted);
    EXPECT_EQ(this->view.GetSortedColumn(), nullptr);
}

TYPED_TEST(SortStateTest, ASlotMaySortByAnotherColumnAndIsOverruled) {
    this->view.SetAscendingOrder(&this->standard, true);
    this->signals.Once(&zbBrowserSignalManager::ColumnSortChanged, [&](auto*, bool, bool) {
        this->view.SetAscendingOrder(&this->color, true);
    });

    EXPECT_TRUE(this->view.SetAscendingOrder(&this->weight, false));

    EXPECT_EQ(this->view.GetSortedColumn(), &this->weight);
    EXPECT_FALSE(this->IsAscending(this->weight));
}

TYPED_TEST(SortStateTest, ASlotMayDeleteTheViewWhenTheSortChanges) {
    this->signals.Once(&zbBrowserSignalManager::ColumnSortChanged,
                       [&](auto*, bool, bool) { this->host.DeleteView(this->view); });

    this->view.SetAscendingOrder(&this->weight, true);

    EXPECT_EQ(this->host.Controller().FindView("view"), nullptr);
    EXPECT_THAT(this->SignalsWithoutBracket(), ElementsAre("ColumnSortChanged weight true true"));
}

TYPED_TEST(SortStateTest, ASlotMayDeleteTheViewWhenTheOldColumnEnds) {
    this->view.SetAscendingOrder(&this->color, true);
    this->signals.Discard();
    this->signals.Once(&zbBrowserSignalManager::ColumnSortChanged,
                       [&](auto*, bool, bool) { this->host.DeleteView(this->view); });

    EXPECT_FALSE(this->view.SetAscendingOrder(&this->weight, true));

    EXPECT_THAT(this->SignalsWithoutBracket(), ElementsAre("ColumnSortChanged color false true"));
}

TYPED_TEST(SortStateTest, WhatASlotThrowsPassesAndTheSortStands) {
    this->signals.Once(&zbBrowserSignalManager::ColumnSortChanged,
                       [](auto*, bool, bool) { throw "slot"; });

    EXPECT_THROW(this->view.SetAscendingOrder(&this->weight, true), char const*);

    EXPECT_EQ(this->view.GetSortedColumn(), &this->weight);
}

TYPED_TEST(SortStateTest, WithoutASignalManagerASortIsNotTold) {
    this->host.manager.signals = nullptr;

    EXPECT_TRUE(this->view.SetAscendingOrder(&this->weight, true));

    EXPECT_EQ(this->view.GetSortedColumn(), &this->weight);
}

class OldSortStateTest : public SortStateTest<OldGeneration> {};

TEST_F(OldSortStateTest, ARefusalLeavesTheBracketOpen) {
    signals.Once(&zbBrowserDataSignalManager::SortChanging,
                 [&](bool) { view.DeleteScriptedColumn(&weight); });

    EXPECT_FALSE(view.SetAscendingOrder(&weight, true));

    EXPECT_THAT(signals.take(), ElementsAre("SortChanging true"));
    EXPECT_EQ(view.GetSortedColumn(), nullptr);
}

TEST_F(OldSortStateTest, ASlotMayDeleteTheViewWhenTheBracketOpens) {
    signals.Once(&zbBrowserDataSignalManager::SortChanging, [&](bool) { host.DeleteView(view); });

    EXPECT_FALSE(view.SetAscendingOrder(&weight, true));

    EXPECT_THAT(signals.take(), ElementsAre("SortChanging true"));
}

TEST_F(OldSortStateTest, ASlotMayDeleteTheViewWhenItHasChanged) {
    signals.Once(&zbBrowserSignalManager::ViewChanged,
                 [&](zbIBrowserView*) { host.DeleteView(view); });

    EXPECT_TRUE(view.SetAscendingOrder(&weight, true));

    EXPECT_THAT(signals.take(), ElementsAre("SortChanging true",
                                            "ColumnSortChanged weight true true", "ViewChanged"));
}

TEST_F(OldSortStateTest, TheHandlerTellsARepetition) {
    auto& handler = *view.GetSortHandlerPtr();
    handler.SetAscendingOrder(&weight, true);
    signals.Discard();

    EXPECT_TRUE(handler.SetAscendingOrder(&weight, true));

    EXPECT_THAT(signals.take(), ElementsAre("ColumnSortRepeated weight true true"));
}

TEST_F(OldSortStateTest, TheNameOfTheCustomPropertyIsKept) {
    EXPECT_TRUE(view.SetSortDefaultColumnByCustomProperty("rank"));

    zbString name;
    EXPECT_TRUE(view.SortDefaultColumnByCustomProperty(name));
    EXPECT_EQ(name, "rank");
}

TEST_F(OldSortStateTest, NoCustomPropertyIsSetAtFirst) {
    zbString name = "before";

    EXPECT_TRUE(view.SortDefaultColumnByCustomProperty(name));

    EXPECT_EQ(name, "");
}

class NewSortStateTest : public SortStateTest<NewGeneration> {};

TEST_F(NewSortStateTest, TheHandlerTellsNobodyOfARepetition) {
    auto& handler = *view.GetSortHandler();
    handler.SetAscendingOrder(&weight, true);
    signals.Discard();

    EXPECT_TRUE(handler.SetAscendingOrder(&weight, true));

    EXPECT_THAT(signals.take(), IsEmpty());
}

TEST_F(NewSortStateTest, AViewWithoutAHandlerIsNotSorted) {
    view.SetAscendingOrder(&weight, true);
    view.DeleteSortHandler();

    EXPECT_EQ(view.GetSortHandler(), nullptr);
    EXPECT_EQ(view.GetSortedColumn(), nullptr);
    EXPECT_FALSE(view.SetAscendingOrder(&weight, true));
    EXPECT_FALSE(KnowsDirectionOf(&weight));
}

TEST_F(NewSortStateTest, ASlotMayDeleteTheHandler) {
    signals.Once(&zbBrowserSignalManager::ColumnSortChanged,
                 [&](auto*, bool, bool) { view.DeleteSortHandler(); });

    EXPECT_TRUE(view.SetAscendingOrder(&weight, true));

    EXPECT_EQ(view.GetSortedColumn(), nullptr);
}

TEST_F(NewSortStateTest, CreatingAHandlerLeavesTheOneThatIsThere) {
    auto* const before = view.GetSortHandler();

    view.CreateSortHandler();

    EXPECT_EQ(view.GetSortHandler(), before);
}

} // namespace
