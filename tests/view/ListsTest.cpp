// SPDX-License-Identifier: MIT
//! \file
//! Lists and trees in the folders of the old view.

#include "ViewTestSupport.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using zbtest::Names;

class ListsTest : public zbtest::ViewTest {
protected:
    zbtest::RecordingSource& part = Connected("part", {"bolt_1", "nut_2"});
    FreeFolder& a = Folder("a");
    FreeFolder& foreign = *host.View("other").GetRootFreeFolder();
};

TEST_F(ListsTest, AListShowsItsRowsAtOnceAndInOrder) {
    EXPECT_TRUE(view.CreateList(&a, &part, false));
    EXPECT_EQ(Rows(a), (Names{"bolt_1", "nut_2"}));
    EXPECT_THAT(signals.take(), ElementsAre("ViewItemCreated bolt_1", "ViewItemCreated nut_2",
                                            "ViewItemChanged a", "ViewContentChanged view"));
}

TEST_F(ListsTest, TheThirdArgumentOfAListMakesNoDifference) {
    EXPECT_TRUE(view.CreateList(&a, &part, true));
    EXPECT_EQ(Rows(a), (Names{"bolt_1", "nut_2"}));
    EXPECT_THAT(signals.take(), ElementsAre("ViewItemCreated bolt_1", "ViewItemCreated nut_2",
                                            "ViewItemChanged a", "ViewContentChanged view"));
}

TEST_F(ListsTest, AListWithoutRowsChangesTheContentOnly) {
    auto& empty = Connected("empty", {});
    EXPECT_TRUE(view.CreateList(&a, &empty, false));
    EXPECT_THAT(signals.take(), ElementsAre("ViewContentChanged view"));
}

TEST_F(ListsTest, AListMayStandInSeveralFolders) {
    Show(a, part);
    Show(Root(), part);
    EXPECT_EQ(Rows(a), (Names{"bolt_1", "nut_2"}));
    EXPECT_EQ(Rows(Root()), (Names{"a", "bolt_1", "nut_2"}));
    EXPECT_NE(Row(a, "bolt_1"), Row(Root(), "bolt_1"));
}

TEST_F(ListsTest, RowsOfSeveralListsStandInTheOrderOfTheLists) {
    auto& tool = Connected("tool", {"saw_1"});
    Show(a, tool);
    Show(a, part);
    EXPECT_EQ(Rows(a), (Names{"saw_1", "bolt_1", "nut_2"}));
}

TEST_F(ListsTest, TheSameListIsNotMadeTwice) {
    Show(a, part);
    host.calls.ForgetCounts();
    EXPECT_FALSE(view.CreateList(&a, &part, false));
    EXPECT_FALSE(view.GetState());
    EXPECT_EQ(host.calls.Count("GetDataItems"), 0U);
    EXPECT_EQ(Rows(a), (Names{"bolt_1", "nut_2"}));
    EXPECT_THAT(signals.take(), IsEmpty());
}

TEST_F(ListsTest, AListWhoseSourceFailsStaysRecordedAndIsBuiltByARebuild) {
    part.failing = true;
    EXPECT_FALSE(view.CreateList(&a, &part, false));
    EXPECT_FALSE(view.GetState());
    EXPECT_THAT(signals.take(), IsEmpty());
    EXPECT_THAT(Rows(a), IsEmpty());
    EXPECT_EQ(view.FindList(&a, &part), &part);

    part.failing = false;
    view.OnDataItemsRebuildAll();
    EXPECT_EQ(Rows(a), (Names{"bolt_1", "nut_2"}));
}

TEST_F(ListsTest, AListNeedNotBeConnectedToTheView) {
    auto& loose = host.Source("loose").Items({"x_1"});
    EXPECT_TRUE(view.CreateList(&a, &loose, false));
    EXPECT_EQ(Rows(a), (Names{"x_1"}));
    signals.Discard();
}

TEST_F(ListsTest, AFolderOfAnotherViewGetsNoListHere) {
    EXPECT_FALSE(view.CreateList(&foreign, &part, false));
    EXPECT_EQ(foreign.GetChildrenCount(), 0U);
    EXPECT_THAT(signals.take(), IsEmpty());
}

TEST_F(ListsTest, ADeletedListTakesItsRowsAlong) {
    auto& tool = Connected("tool", {"saw_1"});
    Show(a, part);
    Show(a, tool);

    EXPECT_TRUE(view.DeleteList(&a, &part));

    EXPECT_EQ(Rows(a), (Names{"saw_1"}));
    EXPECT_THAT(signals.take(),
                ElementsAre("ViewItemsDeselected [bolt_1 nut_2]", "ViewItemsSelected []",
                            "ViewItemListDeleted [bolt_1 nut_2]", "ViewItemChanged a",
                            "ViewContentChanged view"));
}

TEST_F(ListsTest, ADeletedListWithoutRowsDeletesNoItems) {
    auto& empty = Connected("empty", {});
    Show(a, empty);
    EXPECT_TRUE(view.DeleteList(&a, &empty));
    EXPECT_THAT(signals.take(), ElementsAre("ViewItemChanged a", "ViewContentChanged view"));
}

TEST_F(ListsTest, AFolderThatNeverShowedAnythingDeletesAnyListAndTree) {
    EXPECT_TRUE(view.DeleteList(&a, &part));
    EXPECT_TRUE(view.DeleteList(&a, nullptr));
    EXPECT_TRUE(view.DeleteTree(&a, nullptr));
    EXPECT_THAT(signals.take(), IsEmpty());
}

TEST_F(ListsTest, AListThatIsNotThereCannotBeDeleted) {
    Show(a, part);
    EXPECT_FALSE(view.DeleteList(&a, &host.Source("other")));
    EXPECT_FALSE(view.GetState());
    EXPECT_FALSE(view.DeleteList(&a, nullptr));
    EXPECT_FALSE(view.DeleteList(&foreign, &part));
    EXPECT_FALSE(view.DeleteList(nullptr, &part));
    EXPECT_EQ(Rows(a), (Names{"bolt_1", "nut_2"}));
}

TEST_F(ListsTest, AListIsFoundByItsPointerInTheFolderAlone) {
    auto& b = Folder("b", &a);
    Show(b, part);
    EXPECT_EQ(view.FindList(&b, &part), &part);
    EXPECT_EQ(view.FindList(&a, &part), nullptr);
    EXPECT_EQ(view.FindList(&b, nullptr), nullptr);
    EXPECT_EQ(view.FindList(nullptr, &part), nullptr);
}

TEST_F(ListsTest, AListAndATreeAreFoundInFoldersOfOtherViewsToo) {
    auto& tree = ConnectedTree("assembly");
    auto& other = host.OldView("other");
    other.CreateList(&foreign, &part, false);
    other.CreateTree(&foreign, &tree);
    signals.Discard();
    EXPECT_EQ(view.FindList(&foreign, &part), &part);
    EXPECT_EQ(view.FindTree(&foreign, &tree), &tree);
}

TEST_F(ListsTest, AListOfAGroupingFolderIsRecordedAndFoundAndDeleted) {
    view.SetFreeFolderGroupLeafs(&a, true);
    Show(a, part);
    EXPECT_EQ(view.FindList(&a, &part), &part);
    EXPECT_TRUE(view.DeleteList(&a, &part));
    EXPECT_EQ(view.FindList(&a, &part), nullptr);
    signals.Discard();
}

// Trees

TEST_F(ListsTest, ATreeIsMadeBetweenTheBeginAndTheEndOfAChange) {
    auto& tree = ConnectedTree("assembly");
    host.calls.Record(true);
    EXPECT_TRUE(view.CreateTree(&a, &tree));
    EXPECT_THAT(host.calls.take(), ElementsAre("assembly.GetChildTypes", "assembly.BeginChange",
                                               "assembly.EndChange"));
    EXPECT_THAT(signals.take(), ElementsAre("ViewContentChanged view"));
    EXPECT_EQ(view.FindTree(&a, &tree), &tree);
}

TEST_F(ListsTest, ATreeThatIsThereIsConnectedAgain) {
    auto& tree = ConnectedTree("assembly");
    view.CreateTree(&a, &tree);
    signals.Discard();
    EXPECT_TRUE(view.CreateTree(&a, &tree));
    EXPECT_EQ(host.calls.Count("BeginChange"), 2U);
    EXPECT_THAT(signals.take(), ElementsAre("ViewContentChanged view"));
}

TEST_F(ListsTest, ADeletedTreeIsToldThatItLostAView) {
    auto& tree = ConnectedTree("assembly");
    view.CreateTree(&a, &tree);
    signals.Discard();
    EXPECT_TRUE(view.DeleteTree(&a, &tree));
    EXPECT_EQ(host.calls.Count("OnViewLost", "assembly"), 1U);
    EXPECT_EQ(view.FindTree(&a, &tree), nullptr);
    EXPECT_THAT(signals.take(), ElementsAre("ViewContentChanged view"));
}

TEST_F(ListsTest, ATreeIsFoundByItsNameRegardlessOfCase) {
    auto& tree = ConnectedTree("assembly");
    auto& twin = host.Control("twin").Tree("ASSEMBLY", host.Control("twin").Source("x"));
    view.CreateTree(&a, &tree);
    signals.Discard();
    EXPECT_EQ(view.FindTree(&a, &twin), &tree);
    EXPECT_EQ(view.FindTree(&a, &ConnectedTree("other")), nullptr);
}

TEST_F(ListsTest, NullAndForeignFoldersAndNullTreesAreRefused) {
    auto& tree = ConnectedTree("assembly");
    EXPECT_FALSE(view.CreateTree(nullptr, &tree));
    EXPECT_FALSE(view.CreateTree(&foreign, &tree));
    EXPECT_FALSE(view.CreateTree(&a, nullptr));
    EXPECT_FALSE(view.DeleteTree(nullptr, &tree));
    EXPECT_FALSE(view.DeleteTree(&foreign, &tree));
    EXPECT_EQ(view.FindTree(nullptr, &tree), nullptr);
    EXPECT_EQ(view.FindTree(&a, nullptr), nullptr);
    EXPECT_THAT(signals.take(), IsEmpty());
}

TEST_F(ListsTest, ATreeThatIsNotThereCannotBeDeleted) {
    Show(a, part);
    EXPECT_FALSE(view.DeleteTree(&a, &ConnectedTree("assembly")));
    EXPECT_FALSE(view.GetState());
    EXPECT_EQ(host.calls.Count("OnViewLost"), 0U);
}

// Reading

TEST_F(ListsTest, ChildFoldersComeBeforeRows) {
    Show(a, part);
    Folder("b", &a);
    EXPECT_EQ(Rows(a), (Names{"b", "bolt_1", "nut_2"}));
}

TEST_F(ListsTest, TheChildrenReplaceWhatTheOutputHeld) {
    std::vector<zbIBrowserViewItem*> out{nullptr, nullptr};
    EXPECT_FALSE(view.GetChildren(out, &a));
    EXPECT_THAT(out, IsEmpty());
}

TEST_F(ListsTest, ARowHasNoChildrenAndNullIsNoItem) {
    Show(a, part);
    std::vector<zbIBrowserViewItem*> out{&a};
    EXPECT_FALSE(view.GetChildren(out, nullptr));
    EXPECT_THAT(out, ElementsAre(&a));
    EXPECT_FALSE(view.GetChildren(out, Row(a, "bolt_1")));
    EXPECT_THAT(out, IsEmpty());
}

} // namespace
