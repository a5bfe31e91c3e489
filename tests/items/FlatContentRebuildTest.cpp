// SPDX-License-Identifier: MIT
// Rebuilding, refreshing and redrawing rows directly in a folder.
#include "FlatContentFixture.h"

#include <algorithm>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using zbbrowser::detail::CallScope;

class RebuildTest : public zbtest::FlatContentFixture {
protected:
    RebuildTest() { Show(folder, part); }
};

TEST_F(RebuildTest, SurvivorsKeepTheirObjectTheirOrderAndTheirHiddenMark) {
    auto const* const nut = &Row(folder, "nut");
    Row(folder, "nut").SetHidden(true);
    part.Unlist("bolt");
    part.Insert(0, "cam");
    part.Reorder({"pin", "nut"});
    EXPECT_TRUE(content.RebuildList(&part, false));

    EXPECT_THAT(Rows(folder), ElementsAre("nut", "pin", "cam"));
    EXPECT_EQ(&Row(folder, "nut"), nut);
    EXPECT_TRUE(nut->IsHidden());
    recorder.Discard();
}

TEST_F(RebuildTest, SignalsTheDeletedThenTheCreatedThenTheFolderAndThenTheFoldersAbove) {
    part.Unlist("bolt");
    part.Unlist("pin");
    part.Items({"cam", "rod"});
    content.RebuildList(&part, false);

    EXPECT_THAT(recorder.take(),
                ElementsAre("ViewItemsDeselected [bolt pin]", "ViewItemsSelected []",
                            "ViewItemListDeleted [bolt pin]", "ViewItemCreated cam",
                            "ViewItemCreated rod", "ViewItemChanged box", "ViewItemChanged box",
                            "ViewItemChanged /"));
}

TEST_F(RebuildTest, WithoutAnyChangeOnlyFoldersAreSignalled) {
    content.RebuildList(&part, false);

    EXPECT_THAT(recorder.take(),
                ElementsAre("ViewItemChanged box", "ViewItemChanged box", "ViewItemChanged /"));
}

TEST_F(RebuildTest, SilentReachesTheDeletionOfRowsOnly) {
    part.Unlist("bolt");
    part.Add("cam");
    content.RebuildList(&part, true);

    EXPECT_THAT(recorder.take(), ElementsAre("ViewItemsDeselected [bolt]", "ViewItemsSelected []",
                                             "ViewItemCreated cam", "ViewItemChanged box",
                                             "ViewItemChanged box", "ViewItemChanged /"));
}

TEST_F(RebuildTest, ASourceWithoutItemsIsDisconnectedLoudlyAndTheFoldersFollow) {
    part.DeleteAll();
    EXPECT_TRUE(content.RebuildList(&part, true));

    EXPECT_THAT(Rows(folder), IsEmpty());
    EXPECT_THAT(recorder.take(),
                ElementsAre("ViewItemsDeselected [bolt nut pin]", "ViewItemsSelected []",
                            "ViewItemListDeleted [bolt nut pin]", "ViewItemChanged box",
                            "ViewItemChanged box", "ViewItemChanged /"));
    EXPECT_EQ(content.FindList(&part), &part) << "the list itself stays";
}

TEST_F(RebuildTest, ASourceThatFailsChangesNothing) {
    part.failing = true;
    part.Delete("bolt");

    EXPECT_FALSE(content.RebuildList(&part, false));
    EXPECT_EQ(folder.GetChildrenCount(), 3U);
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(RebuildTest, RowsOfOtherListsStayEvenIfTheirItemsHaveGone) {
    Show(folder, tool);
    tool.Delete("saw");
    part.Delete("nut");
    content.RebuildList(&part, false);

    EXPECT_EQ(folder.GetChildrenCount(), 4U);
    recorder.Discard();
}

TEST_F(RebuildTest, AsksTheSourceForItsItemsThenAboutEachRowAndThenForItsItemsAgain) {
    host.calls.Record(true);
    content.RebuildList(&part, true);

    EXPECT_THAT(host.calls.take(),
                ElementsAre("part.GetDataItems", "part.ContainsDataItem bolt",
                            "part.ContainsDataItem nut", "part.ContainsDataItem pin",
                            "part.GetDataItems", "manager.BeginLongOperation",
                            "manager.EndLongOperation"));
    recorder.Discard();
}

TEST_F(RebuildTest, OnlyFoldersWhoseIconMayDependOnTheDataAreSignalledAtTheEnd) {
    auto& inner = NewFolder(folder, "inner");
    Show(inner, tool);
    folder.SetIconShowsData(false, false);
    root.SetIconShowsData(true, false);
    recorder.Discard();
    Flat(inner).RebuildList(&tool, false);

    EXPECT_THAT(recorder.take(),
                ElementsAre("ViewItemChanged inner", "ViewItemChanged inner", "ViewItemChanged /"));
}

TEST_F(RebuildTest, TheFoldersAreSignalledWithinALongOperation) {
    std::vector<int> depths;
    static_cast<void>(recorder.On(&zbBrowserSignalManager::ViewItemChanged,
                                  [&](auto*) { depths.push_back(host.manager.longOperations); }));
    content.RebuildList(&part, false);

    EXPECT_THAT(depths, ElementsAre(0, 1, 1));
    EXPECT_EQ(host.manager.longOperations, 0);
    recorder.Discard();
}

// Refreshing and redrawing

class RedrawTest : public zbtest::FlatContentFixture {};

TEST_F(RedrawTest, RefreshSignalsTheDirtyRowsOfThatListOnly) {
    Show(folder, part);
    Show(folder, tool);
    part["pin"].dirty = true;
    part["bolt"].dirty = true;
    tool["saw"].dirty = true;

    EXPECT_TRUE(content.RefreshListItems(&part, false));
    EXPECT_THAT(recorder.take(), ElementsAre("ViewItemChanged bolt", "ViewItemChanged pin"));
}

TEST_F(RedrawTest, RefreshIsSilentWhenToldSo) {
    Show(folder, part);
    part["pin"].dirty = true;

    EXPECT_TRUE(content.RefreshListItems(&part, true));
    EXPECT_THAT(recorder.take(), IsEmpty());
}

//! In an operation of its own, in which no slot has run yet.
class RefreshTest : public zbtest::ItemsTest {
protected:
    RefreshTest() { Show(folder, tool); }

    void Refresh() {
        CallScope const scope(Lifetime());
        Flat(folder).RefreshListItems(&tool, false);
    }
};

TEST_F(RefreshTest, RunsWithinALongOperationAndAsksEachItemOnce) {
    host.calls.Record(true);
    Refresh();

    EXPECT_THAT(host.calls.take(), ElementsAre("manager.BeginLongOperation", "saw.IsDirty",
                                               "file.IsDirty", "manager.EndLongOperation"));
}

TEST_F(RefreshTest, OnceASlotHasRunTheSourceIsAskedWhetherAnItemIsStillThere) {
    tool["saw"].dirty = true;
    host.calls.Record(true);
    Refresh();

    EXPECT_THAT(host.calls.take(), ElementsAre("manager.BeginLongOperation", "saw.IsDirty",
                                               "tool.ContainsDataItem file", "file.IsDirty",
                                               "manager.EndLongOperation"));
    EXPECT_THAT(recorder.take(), ElementsAre("ViewItemChanged saw"));
}

TEST_F(RedrawTest, RedrawSignalsEveryRowWhateverItsSourceWithinALongOperation) {
    Show(folder, part);
    Show(folder, tool);
    host.calls.Record(true);

    EXPECT_TRUE(content.RedrawList(&tool));
    EXPECT_THAT(host.calls.take(),
                ElementsAre("manager.BeginLongOperation", "manager.EndLongOperation"));
    EXPECT_THAT(recorder.take(),
                ElementsAre("ViewItemChanged bolt", "ViewItemChanged nut", "ViewItemChanged pin",
                            "ViewItemChanged saw", "ViewItemChanged file"));
}

TEST_F(RebuildTest, OnlyTheDirtyRowsAreSortedAnewAfterARefresh) {
    for (int i = 0; i < 1000; ++i)
        part.Add(std::to_string(100'000 + i * 7919 % 1000));
    content.RebuildList(&part, true);
    View().SetAscendingOrder(View().GetDefaultColumn(), true);
    Shown(folder);
    part["100499"].dirty = true;
    part["100499"].Rename("zinc");
    host.calls.ForgetCounts();

    content.RefreshListItems(&part, true);

    auto const rows = Shown(folder);
    EXPECT_EQ(rows.back(), "zinc");
    EXPECT_TRUE(std::is_sorted(rows.begin(), rows.end()));
    EXPECT_THAT(host.calls.Count("CompareByName"), testing::Le(20U));
    recorder.Discard();
}

} // namespace
