// SPDX-License-Identifier: MIT
// Expanding and collapsing old free folders.
#include "ItemsTest.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

//! box holds a (which holds b) and c.
class FreeFolderExpansionTest : public zbtest::ItemsTest {
protected:
    Folder& a = NewFolder(folder, "a");
    Folder& b = NewFolder(a, "b");
    Folder& c = NewFolder(folder, "c");
};

TEST_F(FreeFolderExpansionTest, ExpandSetsTheMarkAndSignals) {
    folder.Expand(false, false);

    EXPECT_TRUE(folder.IsExpanded());
    EXPECT_FALSE(a.IsExpanded());
    EXPECT_THAT(recorder.take(), ElementsAre("ViewItemExpanded box"));
}

TEST_F(FreeFolderExpansionTest, ExpandingAnExpandedFolderDoesNothing) {
    folder.Expand(false, true);
    folder.Expand(false, false);

    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(FreeFolderExpansionTest, ExpandIsSilentWhenToldSo) {
    folder.Expand(true, true);

    EXPECT_TRUE(folder.IsExpanded());
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(FreeFolderExpansionTest, AFolderIsExpandedWhenThatIsSignalled) {
    recorder.Once(&zbBrowserSignalManager::ViewItemExpanded,
                  [](zbIBrowserViewItem* item) { EXPECT_TRUE(item->IsExpanded()); });
    folder.Expand(false, false);

    EXPECT_THAT(recorder.take(), ElementsAre("ViewItemExpanded box"));
}

TEST_F(FreeFolderExpansionTest, CollapseClearsTheMarkOfThisFolderOnlyDeselectsAndSignals) {
    folder.Expand(false, true);
    a.Expand(false, true);
    folder.Collapse(false, true, false);

    EXPECT_FALSE(folder.IsExpanded());
    EXPECT_TRUE(a.IsExpanded());
    EXPECT_THAT(recorder.take(), ElementsAre("ViewItemsDeselected [a]", "ViewItemsDeselected [b]",
                                             "ViewItemsDeselected [c]", "ViewItemCollapsed box"));
}

TEST_F(FreeFolderExpansionTest, CollapsingACollapsedFolderDoesNothing) {
    folder.Collapse(true, true, false);

    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(FreeFolderExpansionTest, CollapseOnlyDeselectsWhenToldToBeSilent) {
    folder.Expand(false, true);
    folder.Collapse(true, true, true);

    EXPECT_FALSE(folder.IsExpanded());
    EXPECT_THAT(recorder.take(), ElementsAre("ViewItemsDeselected [box]", "ViewItemsDeselected [a]",
                                             "ViewItemsDeselected [b]", "ViewItemsDeselected [c]"));
}

TEST_F(FreeFolderExpansionTest, ExpandRecursiveOfOneLevelLeavesTheFoldersBelowAlone) {
    EXPECT_TRUE(folder.ExpandRecursive(false));

    EXPECT_FALSE(a.IsExpanded());
    EXPECT_THAT(recorder.take(), ElementsAre("ViewItemExpanded box"));
}

TEST_F(FreeFolderExpansionTest, ExpandRecursiveExpandsAllFoldersBelowParentFirst) {
    EXPECT_TRUE(folder.ExpandRecursive(true));

    EXPECT_THAT(recorder.take(), ElementsAre("ViewItemExpanded box", "ViewItemExpanded a",
                                             "ViewItemExpanded b", "ViewItemExpanded c"));
    EXPECT_FALSE(folder.IsBusy());
}

TEST_F(FreeFolderExpansionTest, ExpandRecursiveGoesBelowAFolderThatIsExpandedAlready) {
    a.Expand(false, true);
    folder.ExpandRecursive(true);

    EXPECT_THAT(recorder.take(),
                ElementsAre("ViewItemExpanded box", "ViewItemExpanded b", "ViewItemExpanded c"));
}

TEST_F(FreeFolderExpansionTest, ExpandRecursiveOfABusyFolderIsFalse) {
    folder.SetBusy(true);

    EXPECT_FALSE(folder.ExpandRecursive(true));
    EXPECT_FALSE(folder.IsExpanded());
    EXPECT_THAT(recorder.take(), IsEmpty());
    EXPECT_TRUE(folder.IsBusy());
}

TEST_F(FreeFolderExpansionTest, ASlotOfExpandRecursiveFindsTheFolderBusy) {
    recorder.Once(&zbBrowserSignalManager::ViewItemExpanded, [&](auto*) {
        EXPECT_FALSE(folder.ExpandRecursive(true));
        EXPECT_FALSE(folder.CollapseRecursive(true));
        EXPECT_FALSE(folder.ExpandList(&part, true));
        EXPECT_FALSE(folder.CollapseList(&part, true));
    });
    folder.ExpandRecursive(false);

    EXPECT_THAT(recorder.take(), ElementsAre("ViewItemExpanded box"));
    EXPECT_TRUE(folder.CollapseRecursive(false)) << "no longer busy";
    recorder.Discard();
}

TEST_F(FreeFolderExpansionTest, CollapseRecursiveCollapsesTheFoldersBelowFirst) {
    for (auto* const each : {&folder, &a, &b})
        each->Expand(false, true);
    EXPECT_TRUE(folder.CollapseRecursive(true));

    EXPECT_THAT(recorder.take(), ElementsAre("ViewItemsDeselected [a]", "ViewItemCollapsed a",
                                             "ViewItemsDeselected [b]", "ViewItemCollapsed b",
                                             "ViewItemCollapsed box"));
    EXPECT_FALSE(folder.IsBusy());
}

TEST_F(FreeFolderExpansionTest, CollapseRecursiveGoesBelowAFolderThatIsCollapsedAlready) {
    b.Expand(false, true);
    folder.CollapseRecursive(true);

    EXPECT_THAT(recorder.take(), ElementsAre("ViewItemsDeselected [b]", "ViewItemCollapsed b"));
}

TEST_F(FreeFolderExpansionTest, CollapseRecursiveOfOneLevelLeavesTheFoldersBelowAlone) {
    folder.Expand(false, true);
    a.Expand(false, true);
    EXPECT_TRUE(folder.CollapseRecursive(false));

    EXPECT_TRUE(a.IsExpanded());
    EXPECT_THAT(recorder.take(), ElementsAre("ViewItemCollapsed box"));
}

TEST_F(FreeFolderExpansionTest, CollapseRecursiveOfABusyFolderIsFalse) {
    folder.Expand(false, true);
    folder.SetBusy(true);

    EXPECT_FALSE(folder.CollapseRecursive(true));
    EXPECT_TRUE(folder.IsExpanded());
}

TEST_F(FreeFolderExpansionTest, SetExpandedAllLeavesItsOwnMarkAlone) {
    folder.SetExpandedAll(true, true, false);

    EXPECT_FALSE(folder.IsExpanded());
    EXPECT_THAT(recorder.take(),
                ElementsAre("ViewItemExpanded a", "ViewItemExpanded b", "ViewItemExpanded c"));
    folder.SetExpandedAll(false, false, true);
    EXPECT_FALSE(b.IsExpanded());
    EXPECT_THAT(recorder.take(), ElementsAre("ViewItemsDeselected [a]", "ViewItemsDeselected [b]",
                                             "ViewItemsDeselected [c]"));
}

TEST_F(FreeFolderExpansionTest, SetExpandedAllHasNoGuard) {
    folder.SetBusy(true);
    a.SetBusy(true);
    folder.SetExpandedAll(true, true, true);

    EXPECT_TRUE(b.IsExpanded());
}

TEST_F(FreeFolderExpansionTest, ExpandListExpandsTheFolderAndCollapseListDoesNotCollapseIt) {
    Show(folder, part);
    EXPECT_TRUE(folder.ExpandList(&part, true));
    EXPECT_THAT(recorder.take(), ElementsAre("ViewItemExpanded box"));
    EXPECT_FALSE(folder.IsBusy());
    EXPECT_TRUE(folder.CollapseList(&part, true));

    EXPECT_TRUE(folder.IsExpanded());
    EXPECT_THAT(recorder.take(), IsEmpty());
    EXPECT_FALSE(folder.IsBusy());
}

TEST_F(FreeFolderExpansionTest, ExpandListAndCollapseListOfABusyFolderAreFalse) {
    folder.SetBusy(true);

    EXPECT_FALSE(folder.ExpandList(&part, false));
    EXPECT_FALSE(folder.IsExpanded());
    EXPECT_FALSE(folder.CollapseList(&part, false));
}

TEST_F(FreeFolderExpansionTest, ASlotMayDeleteTheFolderThatIsExpandedRecursively) {
    recorder.Once(&zbBrowserSignalManager::ViewItemExpanded,
                  [&](auto*) { View().DeleteFreeFolder(&folder, true); });

    EXPECT_TRUE(folder.ExpandRecursive(true));
    EXPECT_THAT(recorder.take(),
                ElementsAre("ViewItemExpanded box", "ViewItemDeleted box", "ViewItemChanged /"));
}

TEST_F(FreeFolderExpansionTest, ASlotMayDeleteAFolderWhoseTurnHasNotCome) {
    recorder.Once(&zbBrowserSignalManager::ViewItemExpanded,
                  [&](auto*) { View().DeleteFreeFolder(&a, true); });
    folder.ExpandRecursive(true);

    EXPECT_THAT(recorder.take(), ElementsAre("ViewItemExpanded box", "ViewItemDeleted a",
                                             "ViewItemChanged box", "ViewItemExpanded c"));
}

TEST_F(FreeFolderExpansionTest, ASlotMayDeleteTheViewWhoseFolderIsCollapsed) {
    folder.ExpandRecursive(true);
    recorder.Discard();
    recorder.Once(&zbBrowserSignalManager::ViewItemCollapsed,
                  [&](auto*) { host.DeleteView(View()); });

    EXPECT_TRUE(folder.CollapseRecursive(true));
    EXPECT_EQ(recorder.Count("ViewItemCollapsed"), 1U);
    recorder.Discard();
}

} // namespace
