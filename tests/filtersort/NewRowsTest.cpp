// SPDX-License-Identifier: MIT
// Rows that come, go and change after their list was sorted.
#include "SortedRowsTest.h"

namespace {

using testing::ElementsAre;
using testing::Le;
using zbtest::Names;

class NewRows : public zbtest::SortedRowsTest {};

TEST_F(NewRows, ANewRowIsSortedInWhenTheListIsNextRead) {
    SortBy(byWeight);
    Rows();

    Create("gear", 6);

    EXPECT_THAT(StoredRows(), ElementsAre("nut", "pin", "axle", "bolt", "gear"));
    EXPECT_THAT(Rows(), ElementsAre("nut", "pin", "gear", "axle", "bolt"));
}

TEST_F(NewRows, NewRowsStandBehindOldOnesThatAreEqual) {
    SortBy(standard);
    Rows();
    part.compares = false;

    Create("a", 1);
    Create("b", 1);

    EXPECT_THAT(Rows(), ElementsAre("axle", "bolt", "nut", "pin", "a", "b"));
}

TEST_F(NewRows, RowsThatAreSortedAreNotComparedWithEachOtherWhenSomeCome) {
    for (int i = 0; i < 1000; ++i)
        Create(std::to_string(100'000 + i * 7919 % 1000).c_str(), 0);
    SortBy(standard);
    Rows();
    Comparisons();

    Create("100499", 0);
    Create("lug", 0);

    auto const rows = Rows();
    EXPECT_TRUE(std::is_sorted(rows.begin(), rows.end()));
    EXPECT_THAT(Comparisons(), Le(60U));
}

TEST_F(NewRows, RowsThatGoLeaveTheRestSorted) {
    SortBy(standard);
    Rows();
    Comparisons();

    view.OnDataItemDeleted(&part["bolt"]);

    EXPECT_THAT(Rows(), ElementsAre("axle", "nut", "pin"));
    EXPECT_EQ(Comparisons(), 0U);
}

TEST_F(NewRows, RowsMayComeAndGoBetweenTwoSorts) {
    SortBy(standard);
    Rows();

    Create("cog", 1);
    view.OnDataItemDeleted(&part["axle"]);
    Create("anvil", 1);
    view.OnDataItemDeleted(&part["cog"]);

    EXPECT_THAT(Rows(), ElementsAre("anvil", "bolt", "nut", "pin"));
}

TEST_F(NewRows, RowsThatComeAfterTheLastOneHasGoneAreSorted) {
    SortBy(standard);
    Rows();
    for (auto const* const name : {"nut", "bolt", "pin", "axle"})
        view.OnDataItemDeleted(&part[name]);

    for (auto const* const name : {"d", "b", "c", "a"})
        Create(name, 1);

    EXPECT_THAT(Rows(), ElementsAre("a", "b", "c", "d"));
}

TEST_F(NewRows, ADirtyRowIsSortedAnew) {
    SortBy(standard);
    Rows();
    part["axle"].Rename("zip");
    part["zip"].dirty = true;

    view.OnAllDirtyDataItemsRebuild();

    EXPECT_THAT(Rows(), ElementsAre("bolt", "nut", "pin", "zip"));
}

TEST_F(NewRows, AReportedChangeSortsNothing) {
    SortBy(standard);
    Rows();
    part["axle"].Rename("zip");
    Comparisons();

    host.Controller().OnDataItemSimpleUpdated(&part["zip"]);

    EXPECT_THAT(Rows(), ElementsAre("zip", "bolt", "nut", "pin"));
    EXPECT_EQ(Comparisons(), 0U);
}

TEST_F(NewRows, ANewRowAfterAReportedChangeSortsAllRowsAnew) {
    SortBy(standard);
    Rows();
    part["axle"].Rename("zip");
    host.Controller().OnDataItemSimpleUpdated(&part["zip"]);

    Create("gear", 6);

    EXPECT_THAT(Rows(), ElementsAre("bolt", "gear", "nut", "pin", "zip"));
}

TEST_F(NewRows, ARowThatGoesAfterAReportedChangeHasTheChangedOneSortedAnew) {
    SortBy(standard);
    Rows();
    part["axle"].Rename("zip");
    host.Controller().OnDataItemSimpleUpdated(&part["zip"]);

    view.OnDataItemDeleted(&part["bolt"]);

    EXPECT_THAT(Rows(), ElementsAre("nut", "pin", "zip"));
}

TEST_F(NewRows, ARowThatGoesAfterARedrawHasAllRowsSortedAnew) {
    SortBy(standard);
    Rows();
    part["axle"].Rename("zip");
    part.dirty = true;
    view.RedrawAllDirtyDataLists(true);

    view.OnDataItemDeleted(&part["bolt"]);

    EXPECT_THAT(Rows(), ElementsAre("nut", "pin", "zip"));
}

TEST_F(NewRows, ARowThatGoesAfterAnotherConnectionHasAllRowsSortedAnew) {
    SortBy(byWeight);
    Rows();
    view.DeleteVPConnect(&Property("weight"), &part);
    Bind("weight", part, "name");

    view.OnDataItemDeleted(&part["bolt"]);

    EXPECT_THAT(Rows(), ElementsAre("axle", "nut", "pin"));
}

TEST_F(NewRows, ANewRowAfterARedrawSortsAllRowsAnew) {
    SortBy(standard);
    Rows();
    part["axle"].Rename("zip");
    part.dirty = true;
    view.RedrawAllDirtyDataLists(true);

    Create("gear", 6);

    EXPECT_THAT(Rows(), ElementsAre("bolt", "gear", "nut", "pin", "zip"));
}

TEST_F(NewRows, RenumberingFromWithinAnotherEventSortsAnew) {
    SortBy(standard);
    Rows();
    part["axle"].Rename("zip");
    zbtest::SortSignals signals(host);
    signals.Once(&zbBrowserSignalManager::ViewItemCreated,
                 [&](auto*) { view.OnDataSourceRenumbered(&part); });

    Create("gear", 6);

    EXPECT_THAT(Rows(), ElementsAre("bolt", "gear", "nut", "pin", "zip"));
}

TEST_F(NewRows, RenumberingASourceSortsAnew) {
    SortBy(standard);
    Rows();
    part["axle"].Rename("zip");

    view.OnDataSourceRenumbered(&part);

    EXPECT_THAT(Rows(), ElementsAre("bolt", "nut", "pin", "zip"));
}

TEST_F(NewRows, RenumberingATreeSortsAllListsAnew) {
    SortBy(standard);
    Rows();
    part["axle"].Rename("zip");

    view.OnDataSourceRenumbered(&host.Tree("assembly", part));

    EXPECT_THAT(Rows(), ElementsAre("bolt", "nut", "pin", "zip"));
}

TEST_F(NewRows, AllListsCanBeMarkedAsUnsorted) {
    SortBy(standard);
    Rows();
    part["axle"].Rename("zip");
    EXPECT_THAT(Rows(), ElementsAre("zip", "bolt", "nut", "pin"));

    view.SetAllDataItemListsUnsorted();

    EXPECT_THAT(Rows(), ElementsAre("bolt", "nut", "pin", "zip"));
}

TEST_F(NewRows, MarkingAllListsGivesEachFolderItsContent) {
    auto& unused = NewFolder(box, "unused");
    ASSERT_EQ(view.FindFreeFolder(&unused)->Holder(), nullptr);

    view.SetAllDataItemListsUnsorted();

    EXPECT_NE(view.FindFreeFolder(&unused)->Holder(), nullptr);
}

TEST_F(NewRows, ANewRowAfterTheColumnShowsSomethingElseSortsAllRowsAnew) {
    SortBy(byWeight);
    Rows();
    std::vector<zbIBrowserStyleElement*> elements;
    byWeight.FindStyle("cell")->GetElements(elements);
    Bind("name", part, "name");

    elements.front()->SetViewProperty(&Property("name"));
    Create("gear", 6);

    EXPECT_THAT(Rows(), ElementsAre("axle", "bolt", "gear", "nut", "pin"));
}

TEST_F(NewRows, ANewRowAfterAnotherConnectionSortsAllRowsAnew) {
    SortBy(byWeight);
    Rows();

    view.DeleteVPConnect(&Property("weight"), &part);
    Bind("weight", part, "name");
    Create("gear", 6);

    EXPECT_THAT(Rows(), ElementsAre("axle", "bolt", "gear", "nut", "pin"));
}

TEST_F(NewRows, ANewRowAfterTheHandlerWasGivenAnotherColumnSortsAllRowsAnew) {
    SortBy(byWeight);
    Rows();

    view.GetSortHandlerPtr()->SetAscendingOrder(&standard, true);
    EXPECT_THAT(Rows(), ElementsAre("nut", "pin", "axle", "bolt")) << "no list was marked";
    Create("gear", 6);

    EXPECT_THAT(Rows(), ElementsAre("axle", "bolt", "gear", "nut", "pin"));
}

} // namespace
