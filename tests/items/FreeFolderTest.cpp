// SPDX-License-Identifier: MIT
// The old free folder itself: what it is, its marks, its child folders.
#include "items/old/zbBrowserViewItemVirtualRoot.h"
#include "ItemsTest.h"

#include <zbBrowserView/ViewItemChanges.h>

//! A new folder's records. No old folder looks into them, so they need no members here.
namespace zbbrowser {
struct TreeParentChildRecord {};
struct TreeTopLevelRecord {};
} // namespace zbbrowser

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class FreeFolderTest : public zbtest::ItemsTest {};

TEST_F(FreeFolderTest, IsAFreeFolderAndNothingElse) {
    EXPECT_TRUE(folder.IsFreeFolder());
    EXPECT_FALSE(folder.IsVirtualRoot());
    EXPECT_FALSE(folder.IsDependentFolder());
    EXPECT_FALSE(folder.IsGroupingFolder());
    EXPECT_FALSE(folder.IsDataLeaf());
    EXPECT_FALSE(folder.IsDataContainer());
    EXPECT_FALSE(folder.IsDataNode());
}

TEST_F(FreeFolderTest, HasNoDataItemAndNoSourcesOfARow) {
    std::vector<zbIBrowserDataSource*> sources{&part};
    EXPECT_EQ(folder.GetDataItemSimple(), nullptr);
    EXPECT_EQ(folder.GetDataItemHierarchical(), nullptr);
    EXPECT_EQ(folder.GetDataItem(), nullptr);
    EXPECT_FALSE(folder.GetDataSources(sources));
    EXPECT_THAT(sources, ElementsAre(&part));
}

TEST_F(FreeFolderTest, HasNoPendingChangesAndNoRecordsOfANewFolder) {
    zbbrowser::ViewItemChanges changes;
    std::vector<zbbrowser::TreeParentChildRecord> parentChild;
    std::vector<zbbrowser::TreeTopLevelRecord> topLevel;
    Show(folder, part);

    EXPECT_FALSE(folder.GetChanges(changes));
    EXPECT_FALSE(folder.GetTreeParentChildRecords(parentChild));
    EXPECT_FALSE(folder.GetTreeTopLevelRecords(topLevel));
    EXPECT_EQ(folder.FindDataSource("part"), nullptr);
}

TEST_F(FreeFolderTest, KnowsItsViewItsParentAndItsName) {
    auto& inner = NewFolder(folder, "inner");

    EXPECT_EQ(inner.GetView(), &View());
    EXPECT_EQ(inner.GetViewImpl(), &View());
    EXPECT_EQ(inner.GetParent(), &folder);
    EXPECT_EQ(inner.GetParentFreeFolder(), &folder);
    EXPECT_STREQ(inner.GetName(), "inner");
}

TEST_F(FreeFolderTest, AFolderWithoutANameAnswersAnEmptyOne) {
    EXPECT_STREQ(NewFolder(folder, "").GetName(), "");
}

TEST_F(FreeFolderTest, StartsWithItsDefaults) {
    EXPECT_FALSE(folder.IsExpanded());
    EXPECT_FALSE(folder.IsHidden());
    EXPECT_TRUE(folder.GetKeepChildrenInOrder());
    EXPECT_FALSE(folder.GetGroupLeafs());
    EXPECT_FALSE(folder.GetFreeFolderStyle());
    EXPECT_FALSE(folder.GetShowEmptyContainers());
    EXPECT_TRUE(folder.GetShowWhenEmpty());
    EXPECT_FALSE(folder.GetTextBold());
    EXPECT_FALSE(folder.GetTextItalic());
    EXPECT_EQ(folder.GetAttachedObject(), nullptr);
    EXPECT_EQ(folder.Holder(), nullptr);
    EXPECT_TRUE(folder.IconShowsDataOrRecursive());
}

TEST_F(FreeFolderTest, TheRootIsNamelessExpandedAndHasNoParent) {
    EXPECT_STREQ(root.GetName(), "");
    EXPECT_TRUE(root.IsVirtualRoot());
    EXPECT_TRUE(root.IsFreeFolder());
    EXPECT_TRUE(root.IsExpanded());
    EXPECT_TRUE(root.GetShowWhenEmpty());
    EXPECT_EQ(root.GetParent(), nullptr);
    EXPECT_EQ(root.GetParentFreeFolder(), nullptr);
    EXPECT_EQ(root.GetViewImpl(), &View());
}

TEST_F(FreeFolderTest, TheRootIsExpandedEvenWhenItWasCollapsed) {
    root.Collapse(false, false, true);

    EXPECT_TRUE(root.IsExpanded());
}

TEST_F(FreeFolderTest, SetExpandedFlagDoesNothing) {
    folder.SetExpandedFlag(true);

    EXPECT_FALSE(folder.IsExpanded());
}

TEST_F(FreeFolderTest, SetParentFolderWritesTheParentAndMovesNothing) {
    auto& other = NewFolder(root, "other");
    folder.SetParentFolder(&other);

    EXPECT_EQ(folder.GetParent(), &other);
    EXPECT_EQ(folder.GetParentFreeFolder(), &other);
    EXPECT_THAT(ChildNames(root), ElementsAre("box", "other"));
    EXPECT_THAT(ChildNames(other), IsEmpty());
}

TEST_F(FreeFolderTest, AFolderWhoseParentWasSetToNullStillKnowsItsView) {
    folder.SetParentFolder(nullptr);

    EXPECT_EQ(folder.GetParent(), nullptr);
    EXPECT_EQ(folder.GetView(), &View());
}

TEST_F(FreeFolderTest, SetParentFolderOfTheRootDoesNothing) {
    root.SetParentFolder(&folder);

    EXPECT_EQ(root.GetParent(), nullptr);
}

TEST_F(FreeFolderTest, ShowClearsTheHiddenMarkAndSignals) {
    folder.SetHidden(true);
    EXPECT_TRUE(folder.IsHidden());
    folder.Show();

    EXPECT_FALSE(folder.IsHidden());
    EXPECT_THAT(recorder.take(), ElementsAre("ViewItemShown box"));
}

TEST_F(FreeFolderTest, ShowSignalsAFolderThatIsNotHiddenAsWell) {
    folder.Show();

    EXPECT_THAT(recorder.take(), ElementsAre("ViewItemShown box"));
}

TEST_F(FreeFolderTest, BoldSignalsOnAChangeOnly) {
    folder.SetTextBold(false);
    EXPECT_THAT(recorder.take(), IsEmpty());
    folder.SetTextBold(true);
    EXPECT_TRUE(folder.GetTextBold());
    EXPECT_FALSE(folder.GetTextItalic());
    folder.SetTextBold(true);

    EXPECT_THAT(recorder.take(), ElementsAre("ViewItemChanged box"));
}

TEST_F(FreeFolderTest, ItalicSignalsOnAChangeOnly) {
    folder.SetTextItalic(false);
    EXPECT_THAT(recorder.take(), IsEmpty());
    folder.SetTextItalic(true);
    EXPECT_TRUE(folder.GetTextItalic());
    EXPECT_FALSE(folder.GetTextBold());
    folder.SetTextItalic(true);

    EXPECT_THAT(recorder.take(), ElementsAre("ViewItemChanged box"));
}

TEST_F(FreeFolderTest, IconShowsDataSignalsAlsoWithoutAChange) {
    folder.SetIconShowsData(true, false);
    EXPECT_TRUE(folder.IconShowsDataOrRecursive());
    folder.SetIconShowsData(false, true);
    EXPECT_TRUE(folder.IconShowsDataOrRecursive());
    folder.SetIconShowsData(false, false);
    EXPECT_FALSE(folder.IconShowsDataOrRecursive());
    folder.SetIconShowsData(false, false);

    EXPECT_THAT(recorder.take(), ElementsAre("ViewItemChanged box", "ViewItemChanged box",
                                             "ViewItemChanged box", "ViewItemChanged box"));
}

TEST_F(FreeFolderTest, CaptionShowsCountSignalsAlsoWithoutAChange) {
    folder.SetCaptionShowsCount(false, false);

    EXPECT_THAT(recorder.take(), ElementsAre("ViewItemChanged box"));
    EXPECT_TRUE(folder.IconShowsDataOrRecursive()) << "a mark of its own";
}

TEST_F(FreeFolderTest, ShowWhenEmptyOfOneFolderLeavesThoseBelowAlone) {
    auto& inner = NewFolder(folder, "inner");
    folder.SetShowWhenEmpty(false, false);

    EXPECT_FALSE(folder.GetShowWhenEmpty());
    EXPECT_TRUE(inner.GetShowWhenEmpty());
    EXPECT_THAT(recorder.take(), ElementsAre("ViewItemChanged box"));
}

TEST_F(FreeFolderTest, ShowWhenEmptySignalsTheFoldersBelowFirst) {
    auto& a = NewFolder(folder, "a");
    auto& b = NewFolder(a, "b");
    NewFolder(folder, "c");
    folder.SetShowWhenEmpty(false, true);

    EXPECT_FALSE(b.GetShowWhenEmpty());
    EXPECT_THAT(recorder.take(), ElementsAre("ViewItemChanged b", "ViewItemChanged a",
                                             "ViewItemChanged c", "ViewItemChanged box"));
}

TEST_F(FreeFolderTest, AFolderIsWrittenBeforeTheFoldersBelowItSignal) {
    NewFolder(folder, "a");
    recorder.Once(&zbBrowserSignalManager::ViewItemChanged,
                  [&](zbIBrowserViewItem*) { EXPECT_FALSE(folder.GetShowWhenEmpty()); });
    folder.SetShowWhenEmpty(false, true);

    EXPECT_THAT(recorder.take(), ElementsAre("ViewItemChanged a", "ViewItemChanged box"));
}

TEST_F(FreeFolderTest, ANewFolderTakesShowWhenEmptyFromItsParent) {
    folder.SetShowWhenEmpty(false, false);
    recorder.Discard();

    EXPECT_FALSE(NewFolder(folder, "inner").GetShowWhenEmpty());
    EXPECT_TRUE(NewFolder(root, "other").GetShowWhenEmpty());
}

TEST_F(FreeFolderTest, AttachingNullIsIgnored) {
    int object = 0;
    folder.SetAttachedObject(&object);
    folder.SetAttachedObject(nullptr);

    EXPECT_EQ(folder.GetAttachedObject(), &object);
}

// Child folders

TEST_F(FreeFolderTest, ChildFoldersAreKeptInTheOrderOfCreation) {
    NewFolder(folder, "b");
    NewFolder(folder, "a");
    NewFolder(folder, "B");

    EXPECT_THAT(ChildNames(folder), ElementsAre("b", "a", "B"));
    EXPECT_EQ(folder.ChildFolderCount(), 3U);
}

TEST_F(FreeFolderTest, AChildFolderIsFoundByNameWithoutRegardToCase) {
    auto& first = NewFolder(folder, "Nuts");
    NewFolder(folder, "nuts");

    EXPECT_EQ(folder.FindChildFreeFolder("NUTS"), &first);
    EXPECT_EQ(folder.FindChildFreeFolder("nut"), nullptr);
    EXPECT_EQ(root.FindChildFreeFolder("nuts"), nullptr) << "not one further below";
}

TEST_F(FreeFolderTest, ADeletedChildFolderIsNotFoundByName) {
    View().DeleteFreeFolder(&NewFolder(folder, "a"), true);
    recorder.Discard();
    auto& second = NewFolder(folder, "a");

    EXPECT_EQ(folder.FindChildFreeFolder("a"), &second);
}

class ChildOrderTest : public FreeFolderTest {
protected:
    Names Children(bool sorted, bool ascending) {
        std::vector<zbIBrowserViewItemFreeFolder*> out{&root};
        EXPECT_TRUE(folder.GetChildFreeFolders(out, sorted, ascending));
        return NamesOf({out.begin(), out.end()}, host.calls);
    }
    Names ChildItems(bool sorted, bool ascending) {
        Items out;
        folder.GetChildFolderItems(out, sorted, ascending);
        return NamesOf(out, host.calls);
    }
    Folder& b = NewFolder(folder, "b");
    Folder& a = NewFolder(folder, "a");
    Folder& c = NewFolder(folder, "c");
};

TEST_F(ChildOrderTest, WithChildrenKeptInOrderDescendingStillGivesCreationOrder) {
    EXPECT_THAT(Children(true, false), ElementsAre("b", "a", "c"));
    EXPECT_THAT(ChildItems(true, false), ElementsAre("b", "a", "c"));
}

TEST_F(ChildOrderTest, UnsortedGivesCreationOrderWhateverTheDirection) {
    folder.SetKeepChildrenInOrder(false);

    EXPECT_THAT(Children(false, false), ElementsAre("b", "a", "c"));
    EXPECT_THAT(Children(false, true), ElementsAre("b", "a", "c"));
    EXPECT_THAT(ChildItems(false, false), ElementsAre("b", "a", "c"));
}

TEST_F(ChildOrderTest, SortedGivesTheNamesInOrderInTheDirectionThatIsAskedFor) {
    folder.SetKeepChildrenInOrder(false);

    EXPECT_THAT(Children(true, true), ElementsAre("a", "b", "c"));
    EXPECT_THAT(Children(true, false), ElementsAre("c", "b", "a"));
    EXPECT_THAT(ChildItems(true, false), ElementsAre("c", "b", "a"));
}

TEST_F(ChildOrderTest, CreationOrderIsStillThereAfterASort) {
    folder.SetKeepChildrenInOrder(false);
    Children(true, true);

    EXPECT_THAT(Children(false, true), ElementsAre("b", "a", "c"));
    EXPECT_EQ(folder.FindChildFreeFolder("B"), &b);
}

TEST_F(ChildOrderTest, FoldersThatComeAndGoAfterASortAreSortedAgain) {
    folder.SetKeepChildrenInOrder(false);
    Children(true, true);

    NewFolder(folder, "aa");
    View().DeleteFreeFolder(&b, false);
    recorder.Discard();

    EXPECT_THAT(Children(true, true), ElementsAre("a", "aa", "c"));
}

TEST_F(ChildOrderTest, HiddenFoldersAreAmongTheChildFoldersButNotShown) {
    a.SetHidden(true);

    EXPECT_THAT(Children(false, true), ElementsAre("b", "a", "c"));
    EXPECT_THAT(ChildItems(false, true), ElementsAre("b", "c"));
    EXPECT_THAT(Shown(folder), ElementsAre("b", "c"));
}

TEST_F(ChildOrderTest, WhatIsShownIsChildFoldersAndThenRows) {
    Show(folder, part);

    EXPECT_THAT(Shown(folder), ElementsAre("b", "a", "c", "bolt", "nut", "pin"));
}

TEST_F(ChildOrderTest, DeletingFromTheMiddleKeepsTheOrder) {
    View().DeleteFreeFolder(&a, true);
    recorder.Discard();
    NewFolder(folder, "d");

    EXPECT_THAT(Children(false, true), ElementsAre("b", "c", "d"));
}

TEST_F(ChildOrderTest, DeletingMostOfManyFoldersKeepsTheOrderOfTheRest) {
    for (int i = 0; i < 100; ++i)
        NewFolder(folder, std::to_string(i).c_str());
    for (int i = 99; i >= 5; --i)
        View().DeleteFreeFolder(folder.FindChildFreeFolder(std::to_string(i).c_str()), true);
    View().DeleteFreeFolder(folder.FindChildFreeFolder("0"), true);
    recorder.Discard();

    EXPECT_THAT(Children(false, true), ElementsAre("b", "a", "c", "1", "2", "3", "4"));
}

} // namespace
