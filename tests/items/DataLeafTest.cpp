// SPDX-License-Identifier: MIT
#include "ItemsTest.h"

#include <zbBrowserView/ViewItemChanges.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class DataLeafTest : public zbtest::ItemsTest {
protected:
    Leaf& ShownRow() {
        Show(folder, part);
        return Row(folder, "bolt");
    }
    Leaf& leaf = ShownRow();
};

TEST_F(DataLeafTest, KnowsItsViewItsParentAndItsDataItem) {
    EXPECT_EQ(leaf.GetView(), &View());
    EXPECT_EQ(leaf.GetViewImpl(), &View());
    EXPECT_EQ(leaf.GetParent(), &folder);
    EXPECT_EQ(leaf.GetParentFreeFolder(), &folder);
    EXPECT_EQ(leaf.GetDataItemSimple(), &part["bolt"]);
}

TEST_F(DataLeafTest, IsADataLeafAndNothingElse) {
    EXPECT_TRUE(leaf.IsDataLeaf());
    EXPECT_FALSE(leaf.IsDependentFolder());
    EXPECT_FALSE(leaf.IsFreeFolder());
    EXPECT_FALSE(leaf.IsGroupingFolder());
    EXPECT_FALSE(leaf.IsDataContainer());
    EXPECT_FALSE(leaf.IsDataNode());
}

TEST_F(DataLeafTest, HasNeitherTreeItemNorNewDataItem) {
    EXPECT_EQ(leaf.GetDataItemHierarchical(), nullptr);
    EXPECT_EQ(leaf.GetDataItem(), nullptr);
}

TEST_F(DataLeafTest, HasNoChildrenAndIsNeverExpanded) {
    EXPECT_EQ(leaf.GetChildrenCount(), 0U);
    EXPECT_FALSE(leaf.IsExpanded());
}

TEST_F(DataLeafTest, AnswersNoSourcesAndDoesNotEvenHaveItsOwn) {
    std::vector<zbIBrowserDataSource*> sources{&tool};
    EXPECT_FALSE(leaf.GetDataSources(sources));
    EXPECT_THAT(sources, ElementsAre(&tool));
    EXPECT_FALSE(leaf.HasDataSource(&part));
}

TEST_F(DataLeafTest, HasNoPendingChanges) {
    zbbrowser::ViewItemChanges changes;
    changes.Updated = 1;
    EXPECT_FALSE(leaf.GetChanges(changes));
    EXPECT_EQ(changes.Updated, 1);
}

TEST_F(DataLeafTest, IsHiddenAsItWasMade) {
    zbBrowserViewItemDataLeafInFreeFolder const hidden(folder, &part["bolt"], true);
    zbBrowserViewItemDataLeafInFreeFolder const shown(folder, &part["bolt"], false);

    EXPECT_TRUE(hidden.IsHidden());
    EXPECT_FALSE(shown.IsHidden());
}

TEST_F(DataLeafTest, HidingIsSilentAndTakesItOutOfWhatIsShown) {
    leaf.SetHidden(true);

    EXPECT_TRUE(leaf.IsHidden());
    EXPECT_THAT(Shown(folder), ElementsAre("nut", "pin"));
    EXPECT_THAT(Rows(folder), ElementsAre("bolt", "nut", "pin"));
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(DataLeafTest, ShowClearsTheMarkAndSignals) {
    leaf.SetHidden(true);
    leaf.Show();

    EXPECT_FALSE(leaf.IsHidden());
    EXPECT_THAT(Shown(folder), ElementsAre("bolt", "nut", "pin"));
    EXPECT_THAT(recorder.take(), ElementsAre("ViewItemShown bolt"));
}

TEST_F(DataLeafTest, ShowSignalsALeafThatIsNotHiddenAsWell) {
    leaf.Show();
    leaf.Show();

    EXPECT_THAT(recorder.take(), ElementsAre("ViewItemShown bolt", "ViewItemShown bolt"));
}

TEST_F(DataLeafTest, ShowHasClearedTheMarkWhenTheSlotRuns) {
    leaf.SetHidden(true);
    recorder.Once(&zbBrowserSignalManager::ViewItemShown,
                  [](zbIBrowserViewItem* item) { EXPECT_FALSE(item->IsHidden()); });
    leaf.Show();

    EXPECT_THAT(recorder.take(), ElementsAre("ViewItemShown bolt"));
}

TEST_F(DataLeafTest, ASlotOfShowMayDeleteTheFolder) {
    recorder.Once(&zbBrowserSignalManager::ViewItemShown,
                  [&](zbIBrowserViewItem*) { View().DeleteFreeFolder(&folder, true); });
    leaf.Show();

    EXPECT_THAT(recorder.take(),
                ElementsAre("ViewItemShown bolt", "ViewItemDeleted box", "ViewItemChanged /"));
    EXPECT_THAT(ChildNames(root), IsEmpty());
}

TEST_F(DataLeafTest, ASlotOfShowMayDeleteTheView) {
    recorder.Once(&zbBrowserSignalManager::ViewItemShown,
                  [&](zbIBrowserViewItem*) { host.DeleteView(View()); });
    leaf.Show();

    EXPECT_EQ(recorder.Count("ViewItemShown"), 1U);
    recorder.Discard();
    EXPECT_EQ(host.Controller().OLD_FindView("view"), nullptr);
}

} // namespace
