// SPDX-License-Identifier: MIT
// The rows of an old view, sorted when they are read.
#include "SortedRowsTest.h"

namespace {

using testing::ElementsAre;
using testing::Gt;
using testing::IsEmpty;
using testing::Le;
using zbbrowser::detail::CurrentSortProperty;
using zbbrowser::detail::SetCurrentSortProperty;
using zbtest::Names;

class SortedRows : public zbtest::SortedRowsTest {};

TEST_F(SortedRows, AnUnsortedViewListsFoldersInCreationOrderThenRowsAsTheyAreStored) {
    view.SetKeepChildrenFreeFoldersInOrderAsCreated(&box, false);
    NewFolder(box, "z");
    NewFolder(box, "a");

    EXPECT_THAT(Rows(), ElementsAre("z", "a", "nut", "bolt", "pin", "axle"));
    EXPECT_EQ(Comparisons(), 0U);
}

TEST_F(SortedRows, TheDefaultColumnSortsByName) {
    SortBy(standard);

    EXPECT_THAT(Rows(), ElementsAre("axle", "bolt", "nut", "pin"));
}

TEST_F(SortedRows, RowsOfOneNameAreSortedByIdentity) {
    part["bolt"].Rename("nut");
    part["axle"].Rename("nut");
    SortBy(standard, false);
    std::vector<zbIBrowserViewItem*> rows;
    view.GetChildren(rows, &box);

    ASSERT_EQ(rows.size(), 4U);
    EXPECT_EQ(rows[1]->GetDataItemSimple(), part.All()[3]);
    EXPECT_EQ(rows[2]->GetDataItemSimple(), part.All()[1]);
    EXPECT_EQ(rows[3]->GetDataItemSimple(), part.All()[0]);
}

TEST_F(SortedRows, AnotherColumnSortsByWhatItShowsThenByName) {
    SortBy(byWeight);

    EXPECT_THAT(Rows(), ElementsAre("nut", "pin", "axle", "bolt"));
}

TEST_F(SortedRows, UnderTheDefaultColumnFoldersLeadAscendingAndTrailDescending) {
    view.SetKeepChildrenFreeFoldersInOrderAsCreated(&box, false);
    NewFolder(box, "z");
    NewFolder(box, "a");

    SortBy(standard);
    EXPECT_THAT(Rows(), ElementsAre("a", "z", "axle", "bolt", "nut", "pin"));
    SortBy(standard, false);
    EXPECT_THAT(Rows(), ElementsAre("pin", "nut", "bolt", "axle", "z", "a"));
}

TEST_F(SortedRows, UnderAnotherColumnFoldersLeadAscendingInBothDirections) {
    view.SetKeepChildrenFreeFoldersInOrderAsCreated(&box, false);
    NewFolder(box, "z");
    NewFolder(box, "a");

    SortBy(byWeight, false);

    EXPECT_THAT(Rows(), ElementsAre("a", "z", "bolt", "axle", "pin", "nut"));
}

TEST_F(SortedRows, FoldersThatAreKeptInOrderNeverTurnRound) {
    NewFolder(box, "z");
    NewFolder(box, "a");

    SortBy(standard, false);

    EXPECT_THAT(Rows(), ElementsAre("pin", "nut", "bolt", "axle", "z", "a"));
}

TEST_F(SortedRows, HiddenRowsAndFoldersAreLeftOut) {
    auto& hidden = NewFolder(box, "hidden");
    view.FindFreeFolder(&hidden)->SetHidden(true);
    static_cast<zbBrowserViewItemDataLeaf*>(zbtest::RowOf(view, box, "bolt"))->SetHidden(true);

    SortBy(standard);
    EXPECT_THAT(Rows(), ElementsAre("axle", "nut", "pin"));
    SortBy(standard, false);
    EXPECT_THAT(Rows(), ElementsAre("pin", "nut", "axle"));
}

TEST_F(SortedRows, RowsAreSortedWhenTheyAreReadAndNotBefore) {
    SortBy(standard);
    EXPECT_EQ(Comparisons(), 0U);

    EXPECT_THAT(Rows(), ElementsAre("axle", "bolt", "nut", "pin"));
    EXPECT_THAT(Comparisons(), Gt(0U));
}

TEST_F(SortedRows, ASortedListIsReadAgainWithoutAComparison) {
    SortBy(standard);
    EXPECT_THAT(Rows(), ElementsAre("axle", "bolt", "nut", "pin"));
    Comparisons();

    EXPECT_THAT(Rows(), ElementsAre("axle", "bolt", "nut", "pin"));
    EXPECT_EQ(Comparisons(), 0U);
}

TEST_F(SortedRows, FlippingTheDirectionComparesNothing) {
    SortBy(byWeight);
    EXPECT_THAT(Rows(), ElementsAre("nut", "pin", "axle", "bolt"));
    Comparisons();

    SortBy(byWeight, false);

    EXPECT_THAT(Rows(), ElementsAre("bolt", "axle", "pin", "nut"));
    EXPECT_EQ(Comparisons(), 0U);
}

TEST_F(SortedRows, FlippingTheDirectionTurnsTiesRoundToo) {
    part.compares = false;

    SortBy(standard);
    EXPECT_THAT(Rows(), ElementsAre("nut", "bolt", "pin", "axle"));
    SortBy(standard, false);
    EXPECT_THAT(Rows(), ElementsAre("axle", "pin", "bolt", "nut"));
}

TEST_F(SortedRows, AnotherColumnSortsAnew) {
    SortBy(byWeight);
    EXPECT_THAT(Rows(), ElementsAre("nut", "pin", "axle", "bolt"));

    SortBy(standard);

    EXPECT_THAT(Rows(), ElementsAre("axle", "bolt", "nut", "pin"));
}

TEST_F(SortedRows, AColumnThatTheHostMarksAsUnsortedSortsAnew) {
    SortBy(standard);
    Rows();
    part["axle"].Rename("zip");
    standard.SetUnsorted(true);

    SortBy(standard);

    EXPECT_THAT(Rows(), ElementsAre("bolt", "nut", "pin", "zip"));
}

TEST_F(SortedRows, TheFirstSortOfTheViewByAColumnThatTheHandlerWasGivenSortsAnew) {
    view.GetSortHandlerPtr()->SetAscendingOrder(&standard, true);
    Rows();
    part["axle"].Rename("zip");

    SortBy(standard);

    EXPECT_THAT(Rows(), ElementsAre("bolt", "nut", "pin", "zip"));
}

TEST_F(SortedRows, WithoutASortedColumnRowsStayAsTheyWereLastSorted) {
    SortBy(standard, false);
    Rows();

    view.GetSortHandlerPtr()->ResetSortedColumn();
    Create("anvil", 1);

    EXPECT_THAT(Rows(), ElementsAre("axle", "bolt", "nut", "pin", "anvil"));
}

TEST_F(SortedRows, ASortThatWasNeverReadLeavesRowsAsTheyWere) {
    SortBy(standard);
    view.GetSortHandlerPtr()->ResetSortedColumn();

    EXPECT_THAT(Rows(), ElementsAre("nut", "bolt", "pin", "axle"));
}

TEST_F(SortedRows, TheStoredListItselfIsSorted) {
    SortBy(standard, false);
    Rows();

    EXPECT_THAT(StoredRows(), ElementsAre("axle", "bolt", "nut", "pin"));
}

TEST_F(SortedRows, SourcesComeInTheOrderOfTheDataControl) {
    auto& tool = host.Source("tool").Items({"zange", "ahle"});
    view.DataSourceConnect(&tool);
    view.CreateList(&box, &tool, false);
    host.Control().sourceOrder = {&tool, &part};

    SortBy(standard);

    EXPECT_THAT(Rows(), ElementsAre("ahle", "zange", "axle", "bolt", "nut", "pin"));
}

TEST_F(SortedRows, SourcesThatTheDataControlDoesNotOrderAreMixed) {
    auto& tool = host.Source("tool").Items({"mallet"});
    view.DataSourceConnect(&tool);
    view.CreateList(&box, &tool, false);

    SortBy(standard);

    EXPECT_THAT(Rows(), ElementsAre("axle", "bolt", "mallet", "nut", "pin"));
}

TEST_F(SortedRows, ASourceWithoutAConnectionIsSortedByName) {
    auto& tool = host.Source("tool").Items({"mallet", "drill"});
    view.DataSourceConnect(&tool);
    auto& bench = NewFolder(*view.GetRootFreeFolder(), "bench");
    view.CreateList(&bench, &tool, false);

    SortBy(byWeight);

    EXPECT_THAT(zbtest::ChildrenOf(view, bench), ElementsAre("drill", "mallet"));
    EXPECT_EQ(host.calls.Count("CompareByDataProperty"), 0U);
}

TEST_F(SortedRows, TheCustomPropertyDoesNotTouchRowsOfFreeFolders) {
    view.SetSortDefaultColumnByCustomProperty("weight");

    SortBy(standard);

    EXPECT_THAT(Rows(), ElementsAre("axle", "bolt", "nut", "pin"));
    EXPECT_EQ(host.calls.Count("CompareBySortProperty"), 0U);
}

TEST_F(SortedRows, AListOfOneRowIsNotCompared) {
    part.Unlist("bolt");
    part.Unlist("pin");
    part.Unlist("axle");
    part.dirty = true;
    host.Controller().OnAllDirtyDataListsRebuild(&view);
    Comparisons();

    SortBy(standard);

    EXPECT_THAT(Rows(), ElementsAre("nut"));
    EXPECT_EQ(Comparisons(), 0U);
}

// The property that is current for the whole process

TEST_F(SortedRows, ASortByAColumnMakesItsPropertyCurrent) {
    SortBy(byWeight);
    EXPECT_EQ(CurrentSortProperty(), nullptr);

    Rows();

    EXPECT_EQ(CurrentSortProperty(), &Property("weight"));
}

TEST_F(SortedRows, ASortByTheDefaultColumnLeavesTheCurrentProperty) {
    SetCurrentSortProperty(&Property("weight"));
    SortBy(standard);

    EXPECT_THAT(Rows(), ElementsAre("axle", "bolt", "nut", "pin"));
    EXPECT_EQ(CurrentSortProperty(), &Property("weight"));
}

TEST_F(SortedRows, AColumnWithoutAStyleSortsByThePropertyOfAnEarlierSort) {
    SortBy(byWeight);
    Rows();

    SortBy(empty, false);

    EXPECT_THAT(Rows(), ElementsAre("bolt", "axle", "pin", "nut"));
}

TEST_F(SortedRows, AStyleWithoutAnElementCountsAsNone) {
    empty.CreateStyle("cell");
    SetCurrentSortProperty(&Property("weight"));

    SortBy(empty);

    EXPECT_THAT(Rows(), ElementsAre("nut", "pin", "axle", "bolt"));
}

TEST_F(SortedRows, ThePropertyOfAnEarlierSortMayBelongToAnotherView) {
    auto& other = host.OldView("other");
    other.CreateViewProperty("mass");
    auto* const mass = other.FindViewProperty("mass");
    other.CreateVPConnect(mass, &part, &part.Property("weight"));
    SetCurrentSortProperty(mass);

    SortBy(empty);

    EXPECT_THAT(Rows(), ElementsAre("nut", "pin", "axle", "bolt"));
}

TEST_F(SortedRows, ThePropertyOfAViewThatHasGoneIsNoneAnyMore) {
    auto& other = host.OldView("other");
    other.CreateViewProperty("mass");
    SetCurrentSortProperty(other.FindViewProperty("mass"));
    host.DeleteView(other);

    SortBy(empty);

    EXPECT_THAT(Rows(), ElementsAre("axle", "bolt", "nut", "pin"));
}

TEST_F(SortedRows, WithoutACurrentPropertyAColumnSortsByName) {
    SortBy(empty);

    EXPECT_THAT(Rows(), ElementsAre("axle", "bolt", "nut", "pin"));
    EXPECT_EQ(host.calls.Count("CompareByDataProperty"), 0U);
}

TEST_F(SortedRows, AnElementWithoutAPropertyMakesNoPropertyCurrent) {
    SetCurrentSortProperty(&Property("weight"));
    SortBy(NewColumn("blank", nullptr));

    EXPECT_THAT(Rows(), ElementsAre("axle", "bolt", "nut", "pin"));
    EXPECT_EQ(CurrentSortProperty(), nullptr);
}

// The handler

TEST_F(SortedRows, TheHandlerListsNoFolderOfAnotherView) {
    auto& other = host.OldView("other");
    auto* const root = other.FindFreeFolder(other.GetRootFreeFolder());
    std::vector<zbIBrowserViewItem*> out{&box};

    EXPECT_FALSE(view.GetSortHandlerPtr()->GetChildren(*root, out));
    EXPECT_THAT(out, IsEmpty()) << "it is cleared before the view is looked at";
}

TEST_F(SortedRows, TheHandlerLeavesAListAloneWhileTheViewIsNotSorted) {
    std::vector<zbIBrowserViewItem*> rows;
    view.GetChildren(rows, &box);
    auto const before = rows;

    EXPECT_TRUE(view.GetSortHandlerPtr()->SortDataItems(rows));

    EXPECT_EQ(rows, before);
    EXPECT_EQ(Comparisons(), 0U);
}

} // namespace
