// SPDX-License-Identifier: MIT
// What an old free folder shows: lists, rows and the questions about them.
#include "ItemsTest.h"

#include <algorithm>
#include <functional>

namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

class FreeFolderContentTest : public zbtest::ItemsTest {};

// Lists

TEST_F(FreeFolderContentTest, CreateListBuildsTheRowsAndSignals) {
    EXPECT_TRUE(folder.CreateList(&part));

    EXPECT_THAT(Rows(folder), ElementsAre("bolt", "nut", "pin"));
    EXPECT_THAT(recorder.take(),
                ElementsAre("ViewItemCreated bolt", "ViewItemCreated nut", "ViewItemCreated pin",
                            "ViewItemChanged box", "ViewContentChanged view"));
}

TEST_F(FreeFolderContentTest, TheSameListTwiceIsRefusedAndNotConnectedAgain) {
    Show(folder, part);
    host.calls.ForgetCounts();

    EXPECT_FALSE(folder.CreateList(&part));
    EXPECT_EQ(host.calls.Count("GetDataItems"), 0U);
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(FreeFolderContentTest, NullIsNoList) {
    EXPECT_FALSE(folder.CreateList(nullptr));
    EXPECT_FALSE(folder.DeleteList(nullptr));
    EXPECT_FALSE(folder.DeleteListRecursive(nullptr));
    EXPECT_EQ(folder.FindList(static_cast<zbIBrowserDataSourceSimple*>(nullptr)), nullptr);
}

TEST_F(FreeFolderContentTest, AListThatFailsToConnectStaysListed) {
    part.failing = true;

    EXPECT_FALSE(folder.CreateList(&part));
    EXPECT_EQ(folder.FindList(&part), &part);
    EXPECT_THAT(Rows(folder), IsEmpty());
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(FreeFolderContentTest, DeleteListTakesItsRowsOutAndSignals) {
    Show(folder, part);
    Show(folder, tool);

    EXPECT_TRUE(folder.DeleteList(&part));

    EXPECT_THAT(Rows(folder), ElementsAre("saw", "file"));
    EXPECT_EQ(folder.FindList(&part), nullptr);
    EXPECT_THAT(recorder.take(),
                ElementsAre("ViewItemsDeselected [bolt nut pin]", "ViewItemsSelected []",
                            "ViewItemListDeleted [bolt nut pin]", "ViewItemChanged box",
                            "ViewContentChanged view"));
}

TEST_F(FreeFolderContentTest, DeletingAListThatIsNotThereIsFalseAndSilent) {
    Show(folder, part);

    EXPECT_FALSE(folder.DeleteList(&tool));
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(FreeFolderContentTest, DeleteListRecursiveReachesAllFoldersBelowAlsoPastEmptyOnes) {
    auto& inner = NewFolder(NewFolder(folder, "between"), "inner");
    Show(inner, part);
    Show(folder, part);
    ASSERT_EQ(NewFolder(folder, "x").Holder(), nullptr);

    EXPECT_TRUE(folder.DeleteListRecursive(&part));
    EXPECT_THAT(Rows(inner), IsEmpty());
    EXPECT_THAT(Rows(folder), IsEmpty());
    EXPECT_THAT(recorder.take(),
                ElementsAre("ViewItemsDeselected [bolt nut pin]", "ViewItemsSelected []",
                            "ViewItemListDeleted [bolt nut pin]", "ViewItemChanged box",
                            "ViewContentChanged view", "ViewItemsDeselected [bolt nut pin]",
                            "ViewItemsSelected []", "ViewItemListDeleted [bolt nut pin]",
                            "ViewItemChanged inner", "ViewContentChanged view"));
    EXPECT_FALSE(folder.DeleteListRecursive(&part)) << "no folder has it any more";
}

TEST_F(FreeFolderContentTest, DeleteListRecursiveIsTrueIfAnyFolderHasIt) {
    auto& inner = NewFolder(folder, "inner");
    Show(inner, part);
    Show(folder, tool);

    EXPECT_TRUE(folder.DeleteListRecursive(&part));
    EXPECT_THAT(Rows(folder), ElementsAre("saw", "file"));
    recorder.Discard();
}

TEST_F(FreeFolderContentTest, ListsAreFoundByNameWithoutRegardToCase) {
    Show(folder, part);

    EXPECT_EQ(folder.FindList("PART"), &part);
    EXPECT_EQ(folder.FindList("par"), nullptr);
    EXPECT_EQ(folder.FindList(&part), &part);
    EXPECT_EQ(folder.FindList(&tool), nullptr);
}

TEST_F(FreeFolderContentTest, GetListsGivesThemInTheOrderOfConnection) {
    Show(folder, tool);
    Show(folder, part);
    Sources lists{&part};

    EXPECT_TRUE(folder.GetLists(lists));
    EXPECT_THAT(lists, ElementsAre(&tool, &part));
}

TEST_F(FreeFolderContentTest, GetListsIsTrueForAHolderWithoutLists) {
    Show(folder, tool);
    folder.DeleteList(&tool);
    recorder.Discard();
    Sources lists;

    EXPECT_TRUE(folder.GetLists(lists));
    EXPECT_THAT(lists, IsEmpty());
}

TEST_F(FreeFolderContentTest, AllListsComeFolderByFolderAndNotOnlyOnce) {
    auto& inner = NewFolder(folder, "inner");
    Show(inner, part);
    Show(folder, tool);
    Show(folder, part);
    Sources lists;

    folder.GetAllLists(lists, false);
    EXPECT_THAT(lists, ElementsAre(&tool, &part));
    folder.GetAllLists(lists, true);
    EXPECT_THAT(lists, ElementsAre(&tool, &part, &part));
}

TEST_F(FreeFolderContentTest, AllListsNameTheUngroupedBeforeTheGroupedAndThenTheTypesOfTrees) {
    auto& tree = host.Tree("tree", host.Source("own"));
    auto& child = host.Source("child");
    tree.childTypes = {&child};
    Show(folder, part);
    folder.SetListGrouped(&part, true);
    Show(folder, tool);
    folder.CreateTree(&tree);
    recorder.Discard();
    Sources lists;
    folder.GetAllLists(lists, false);

    EXPECT_THAT(lists, ElementsAre(&tool, &part, &host.Source("own"), &child));
}

TEST_F(FreeFolderContentTest, AllDataSourcesComeOnceAndByNameWithoutRegardToCase) {
    auto& inner = NewFolder(folder, "inner");
    auto& b = host.Source("B");
    auto& a = host.Source("a");
    auto& c = host.Source("c");
    Show(folder, c);
    Show(folder, b);
    Show(folder, a);
    Show(inner, b);
    Show(inner, host.Source("D"));
    std::vector<zbIBrowserDataSource*> sources{&part};

    EXPECT_TRUE(folder.GetAllDataSources(sources, false));
    EXPECT_THAT(sources, ElementsAre(&a, &b, &c));
    EXPECT_TRUE(folder.GetAllDataSources(sources, true));
    EXPECT_THAT(sources, ElementsAre(&a, &b, &c, &host.Source("D")));
}

TEST_F(FreeFolderContentTest, AllDataSourcesOfOneNameComeInTheOrderOfTheirAddresses) {
    auto& a = host.Source("twin");
    auto& b = host.Control("other").Source("Twin");
    Show(folder, a);
    Show(folder, b);
    std::vector<zbIBrowserDataSource*> expected{&a, &b};
    std::sort(expected.begin(), expected.end(), std::less<>());
    std::vector<zbIBrowserDataSource*> sources;
    folder.GetAllDataSources(sources, false);

    EXPECT_THAT(sources, ElementsAreArray(expected));
}

TEST_F(FreeFolderContentTest, HasDataSourceLooksAtThisFolderOnly) {
    auto& inner = NewFolder(folder, "inner");
    Show(inner, tool);
    Show(folder, part);

    EXPECT_TRUE(folder.HasDataSource(&part));
    EXPECT_FALSE(folder.HasDataSource(&tool));
    EXPECT_FALSE(folder.HasDataSource(nullptr));
}

TEST_F(FreeFolderContentTest, HasDataSourceKnowsTheShownTypesOfTrees) {
    auto& child = host.Source("child");
    auto& tree = host.Tree("tree", part);
    tree.childTypes = {&child};
    folder.CreateTree(&tree);
    recorder.Discard();

    EXPECT_TRUE(folder.HasDataSource(&part));
    EXPECT_TRUE(folder.HasDataSource(&child));
    EXPECT_FALSE(folder.HasDataSource(&tree));
    Trees(folder).SetTypeShown(&tree, &child, false);
    recorder.Discard();
    EXPECT_FALSE(folder.HasDataSource(&child));
}

TEST_F(FreeFolderContentTest, FindDataSourceSimpleAsksTheListsAndThenTheTypesOfTheTrees) {
    auto& tree = host.Tree("tree", host.Source("own"));
    auto& child = host.Source("child");
    tree.childTypes = {&child};
    Show(folder, part);
    folder.CreateTree(&tree);
    recorder.Discard();

    EXPECT_EQ(folder.FindDataSourceSimple("PART"), &part);
    EXPECT_EQ(folder.FindDataSourceSimple("own"), &host.Source("own"));
    EXPECT_EQ(folder.FindDataSourceSimple("child"), &child);
    EXPECT_EQ(folder.FindDataSourceSimple("CHILD"), nullptr) << "types are compared exactly";
    EXPECT_EQ(folder.FindDataSourceSimple("tree"), nullptr);
}

// Rows

TEST_F(FreeFolderContentTest, ChildrenCountIsThatOfItsOwnRowsHiddenOnesIncluded) {
    Show(NewFolder(folder, "inner"), tool);
    Show(folder, part);
    Row(folder, "nut").SetHidden(true);

    EXPECT_EQ(folder.GetChildrenCount(), 3U);
}

TEST_F(FreeFolderContentTest, AllViewItemsAreRowsAndNotFolders) {
    Show(NewFolder(folder, "inner"), tool);
    Show(folder, part);
    Items rows{&root};

    EXPECT_TRUE(folder.GetAllViewItems(rows, false));
    EXPECT_THAT(NamesOf(rows, host.calls), ElementsAre("bolt", "nut", "pin"));
}

TEST_F(FreeFolderContentTest, AllViewItemsRecursiveComeParentFirstAndPassThroughEmptyFolders) {
    auto& between = NewFolder(folder, "between");
    Show(NewFolder(between, "inner"), tool);
    Show(folder, part);
    Items rows;

    EXPECT_TRUE(folder.GetAllViewItems(rows, true));
    EXPECT_THAT(NamesOf(rows, host.calls), ElementsAre("bolt", "nut", "pin", "saw", "file"));
    EXPECT_TRUE(between.GetAllViewItems(rows, true));
    EXPECT_FALSE(between.GetAllViewItems(rows, false));
}

TEST_F(FreeFolderContentTest, HasChildrenNeedsAHolder) {
    NewFolder(folder, "inner");
    EXPECT_FALSE(folder.HasChildren());
    folder.RequireHolder();

    EXPECT_TRUE(folder.HasChildren());
}

TEST_F(FreeFolderContentTest, HasChildrenCountsVisibleRowsOnly) {
    Show(folder, host.Source("empty"));
    EXPECT_FALSE(folder.HasChildren());
    Show(folder, tool);
    EXPECT_TRUE(folder.HasChildren());
    Row(folder, "saw").SetHidden(true);
    EXPECT_TRUE(folder.HasChildren());
    Row(folder, "file").SetHidden(true);

    EXPECT_FALSE(folder.HasChildren());
}

TEST_F(FreeFolderContentTest, IsContentEmptyOfAFolderWhoseHolderHoldsNothing) {
    EXPECT_TRUE(folder.IsContentEmpty());
    folder.RequireHolder();

    EXPECT_TRUE(folder.IsContentEmpty());
}

TEST_F(FreeFolderContentTest, AListWithoutItemsATreeOrAChildFolderIsContent) {
    Show(folder, host.Source("empty"));
    EXPECT_FALSE(folder.IsContentEmpty());

    auto& second = NewFolder(root, "second");
    second.CreateTree(&host.Tree("tree", part));
    recorder.Discard();
    EXPECT_FALSE(second.IsContentEmpty());

    auto& third = NewFolder(root, "third");
    NewFolder(third, "inner");
    EXPECT_FALSE(third.IsContentEmpty());
}

TEST_F(FreeFolderContentTest, IsDataEmptyAsksTheSourcesAndNotTheRows) {
    Show(folder, part);
    EXPECT_FALSE(folder.IsDataEmpty(false));
    part.DeleteAll();

    EXPECT_TRUE(folder.IsDataEmpty(false));
    EXPECT_EQ(folder.GetChildrenCount(), 3U) << "the rows are still there";
}

TEST_F(FreeFolderContentTest, IsDataEmptyLooksBelowOnlyWhenAskedTo) {
    Show(NewFolder(folder, "inner"), part);
    folder.RequireHolder();

    EXPECT_TRUE(folder.IsDataEmpty(false));
    EXPECT_FALSE(folder.IsDataEmpty(true));
}

TEST_F(FreeFolderContentTest, AFolderThatNeverShowedAnythingIsDataEmptyWhateverIsBelow) {
    Show(NewFolder(folder, "inner"), part);

    EXPECT_TRUE(folder.IsDataEmpty(true));
}

TEST_F(FreeFolderContentTest, ItemsOfATypeOfATreeMakeAFolderNotEmpty) {
    auto& child = host.Source("child").Items({"c"});
    auto& tree = host.Tree("tree", host.Source("own"));
    tree.childTypes = {&child};
    folder.CreateTree(&tree);
    recorder.Discard();

    EXPECT_FALSE(folder.IsDataEmpty(false));
    child.DeleteAll();
    EXPECT_TRUE(folder.IsDataEmpty(false));
}

TEST_F(FreeFolderContentTest, ApplyFilterShowsEveryRowOfAllFoldersAndTheirFoldersNot) {
    auto& inner = NewFolder(folder, "inner");
    Show(inner, tool);
    Show(folder, part);
    Row(folder, "nut").SetHidden(true);
    inner.SetHidden(true);
    zbbrowser::detail::CallScope const scope(Lifetime());
    folder.ApplyFilter();

    EXPECT_THAT(recorder.take(),
                ElementsAre("ViewItemShown bolt", "ViewItemShown nut", "ViewItemShown pin",
                            "ViewItemShown saw", "ViewItemShown file"));
    EXPECT_FALSE(Row(folder, "nut").IsHidden());
    EXPECT_TRUE(inner.IsHidden()) << "never hides or shows a folder";
}

TEST_F(FreeFolderContentTest, ApplyFilterMakesTheHolder) {
    zbbrowser::detail::CallScope const scope(Lifetime());
    folder.ApplyFilter();

    EXPECT_NE(folder.Holder(), nullptr);
}

// Destruction

TEST_F(FreeFolderContentTest, DeletingTheViewIsSilentAndFreesAllRows) {
    Show(NewFolder(folder, "inner"), tool);
    Show(folder, part);
    Show(root, part);
    host.DeleteView(View());

    EXPECT_THAT(recorder.take(), IsEmpty());
}

} // namespace
