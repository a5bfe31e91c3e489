// SPDX-License-Identifier: MIT
// Which column a view is sorted by, in both generations.
#include "SortStateTest.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using zbtest::ColumnOf;
using zbtest::HandlerOf;
using zbtest::NewGeneration;
using zbtest::OldGeneration;

template <class Generation>
class SortStateTest : public zbtest::SortStateTest<Generation> {};

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

TYPED_TEST(SortStateTest, TheFirstSortByAColumnThatTheHandlerWasGivenIsAChangeOfTheView) {
    HandlerOf(this->view).SetAscendingOrder(&this->weight, true);
    this->signals.Discard();

    EXPECT_TRUE(this->view.SetAscendingOrder(&this->weight, true));

    EXPECT_FALSE(this->weight.IsUnsorted());
    auto const lines = this->SignalsWithoutBracket();
    if (std::is_same_v<TypeParam, OldGeneration>) {
        EXPECT_THAT(lines, ElementsAre("ColumnSortRepeated weight true true", "ViewChanged"));
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

TYPED_TEST(SortStateTest, ResettingAnUnsortedViewTellsNobody) {
    HandlerOf(this->view).ResetSortedColumn();

    EXPECT_THAT(this->signals.take(), IsEmpty());
}

TYPED_TEST(SortStateTest, TheSameSortAfterAResetIsAChangeAgain) {
    this->view.SetAscendingOrder(&this->weight, false);
    HandlerOf(this->view).ResetSortedColumn();
    this->signals.Discard();

    EXPECT_TRUE(this->view.SetAscendingOrder(&this->weight, false));

    EXPECT_THAT(this->SignalsWithoutBracket(),
                ElementsAre("ColumnSortChanged weight true false", "ViewChanged"));
}

TYPED_TEST(SortStateTest, TheSortingFlagLeavesTheSortAlone) {
    this->view.SetAscendingOrder(&this->weight, true);
    this->signals.Discard();

    this->view.SetSorting(false);

    EXPECT_EQ(this->view.GetSortedColumn(), &this->weight);
    EXPECT_THAT(this->signals.take(), IsEmpty());
}

TYPED_TEST(SortStateTest, WithoutASignalManagerASortIsNotTold) {
    this->host.manager.signals = nullptr;

    EXPECT_TRUE(this->view.SetAscendingOrder(&this->weight, true));

    EXPECT_EQ(this->view.GetSortedColumn(), &this->weight);
}

class OldSortStateTest : public SortStateTest<OldGeneration> {};

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

TEST_F(NewSortStateTest, CreatingAHandlerLeavesTheOneThatIsThere) {
    auto* const before = view.GetSortHandler();

    view.CreateSortHandler();

    EXPECT_EQ(view.GetSortHandler(), before);
}

} // namespace
