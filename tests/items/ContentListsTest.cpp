// SPDX-License-Identifier: MIT
// What the base of the contents does with its lists, seen through the content without grouping.
#include "ItemsTest.h"

#include <algorithm>
#include <functional>

namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;
using zbbrowser::detail::CallScope;

class ContentListsTest : public zbtest::ItemsTest {
protected:
    ContentListsTest() { host.calls.Record(false); }

    CallScope scope{Lifetime()};
    zbBrowserFreeFolderContentNoGrouping& content = Flat(folder);
};

TEST_F(ContentListsTest, AddListConnectsLoudlyAndThenSignalsTheContent) {
    EXPECT_TRUE(content.AddList(&tool));

    EXPECT_THAT(recorder.take(), ElementsAre("ViewItemCreated saw", "ViewItemCreated file",
                                             "ViewItemChanged box", "ViewContentChanged view"));
}

TEST_F(ContentListsTest, AddListOfAnEmptySourceSignalsTheContentOnly) {
    EXPECT_TRUE(content.AddList(&host.Source("empty")));

    EXPECT_THAT(recorder.take(), ElementsAre("ViewContentChanged view"));
}

TEST_F(ContentListsTest, AddListRefusesAListThatIsThere) {
    content.AddList(&tool);
    recorder.Discard();

    EXPECT_FALSE(content.AddList(&tool));
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(ContentListsTest, AddListKeepsAListThatFails) {
    tool.failing = true;

    EXPECT_FALSE(content.AddList(&tool));
    EXPECT_EQ(content.FindList(&tool), &tool);
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(ContentListsTest, AddListsAddsInOrder) {
    EXPECT_TRUE(content.AddLists({&tool, &part}));

    EXPECT_THAT(content.Lists().Snapshot(), ElementsAre(&tool, &part));
    EXPECT_EQ(recorder.Count("ViewContentChanged"), 2U);
    recorder.Discard();
}

TEST_F(ContentListsTest, AddListsStopsAtTheFirstThatIsThere) {
    content.AddList(&tool);
    recorder.Discard();

    EXPECT_FALSE(content.AddLists({&host.Source("empty"), &tool, &part}));
    EXPECT_THAT(content.Lists().Snapshot(), ElementsAre(&tool, &host.Source("empty")));
    recorder.Discard();
}

TEST_F(ContentListsTest, AddListsStopsAtTheFirstThatFails) {
    tool.failing = true;

    EXPECT_FALSE(content.AddLists({&tool, &part}));
    EXPECT_THAT(content.Lists().Snapshot(), ElementsAre(&tool));
}

TEST_F(ContentListsTest, RemoveListDisconnectsLoudlyAndThenSignalsTheContent) {
    content.AddList(&tool);
    recorder.Discard();

    EXPECT_TRUE(content.RemoveList(&tool));
    EXPECT_TRUE(content.Lists().IsEmpty());
    EXPECT_THAT(recorder.take(),
                ElementsAre("ViewItemsDeselected [saw file]", "ViewItemsSelected []",
                            "ViewItemListDeleted [saw file]", "ViewItemChanged box",
                            "ViewContentChanged view"));
}

TEST_F(ContentListsTest, RemoveListOfAnUnknownListIsFalse) {
    EXPECT_FALSE(content.RemoveList(&tool));
    EXPECT_FALSE(content.RemoveList(nullptr));
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(ContentListsTest, TheListHasGoneBeforeItsRowsAreDeleted) {
    content.AddList(&tool);
    recorder.Discard();
    recorder.Once(&zbBrowserSignalManager::ViewItemListDeleted,
                  [&](auto&) { EXPECT_EQ(content.FindList(&tool), nullptr); });
    content.RemoveList(&tool);

    EXPECT_EQ(recorder.Count("ViewItemListDeleted"), 1U);
    recorder.Discard();
}

TEST_F(ContentListsTest, ListsAreFoundByNameWithoutRegardToCaseAndTheFirstWins) {
    auto& twin = host.Control("other").Source("TOOL");
    content.AddLists({&part, &tool, &twin});
    recorder.Discard();

    EXPECT_EQ(content.FindList("Tool"), &tool);
    EXPECT_EQ(content.FindList("too"), nullptr);
    EXPECT_EQ(content.FindList(static_cast<char const*>(nullptr)), nullptr);
}

TEST_F(ContentListsTest, AllDataSourcesComeOnceInFallingOrderOfTheirAddresses) {
    auto& tree = host.Tree("tree", part);
    tree.childTypes = {&host.Source("a"), &host.Source("b")};
    Trees(folder).AddList(&tool);
    Trees(folder).AddList(&part);
    Trees(folder).AddTree(&tree);
    recorder.Discard();
    Sources expected{&part, &tool, &host.Source("a"), &host.Source("b")};
    std::sort(expected.begin(), expected.end(), std::greater<>());
    Sources sources{&part, &part};
    Trees(folder).GetAllDataSources(sources);

    EXPECT_THAT(sources, ElementsAreArray(expected));
}

// Passes over all lists

TEST_F(ContentListsTest, ConnectAllBuildsEachListInOrder) {
    content.AddLists({&part, &tool});
    content.DeleteAll();
    recorder.Discard();

    EXPECT_TRUE(content.ConnectAll(false));
    EXPECT_THAT(recorder.take(),
                ElementsAre("ViewItemCreated bolt", "ViewItemCreated nut", "ViewItemCreated pin",
                            "ViewItemChanged box", "ViewItemCreated saw", "ViewItemCreated file",
                            "ViewItemChanged box"));
}

TEST_F(ContentListsTest, ConnectAllIsSilentWhenToldSo) {
    content.AddLists({&part, &tool});
    content.DeleteAll();
    recorder.Discard();

    EXPECT_TRUE(content.ConnectAll(true));
    EXPECT_THAT(Rows(folder), ElementsAre("bolt", "nut", "pin", "saw", "file"));
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(ContentListsTest, ConnectAllStopsAtTheFirstListThatFails) {
    content.AddLists({&part, &tool});
    content.DeleteAll();
    recorder.Discard();
    part.failing = true;

    EXPECT_FALSE(content.ConnectAll(true));
    EXPECT_THAT(Rows(folder), IsEmpty());
}

TEST_F(ContentListsTest, RefreshAllSignalsTheDirtyRowsOfEachListAndTakesNoMarkAway) {
    content.AddLists({&part, &tool});
    recorder.Discard();
    part["nut"].dirty = true;
    tool["file"].dirty = true;

    EXPECT_TRUE(content.RefreshAll());
    EXPECT_THAT(recorder.take(), ElementsAre("ViewItemChanged nut", "ViewItemChanged file"));
    EXPECT_TRUE(part["nut"].dirty);
    EXPECT_EQ(host.calls.Count("ClearDirty"), 0U);
}

TEST_F(ContentListsTest, RebuildDirtyRebuildsTheDirtyListsOnlyAndThenSignalsTheContent) {
    content.AddLists({&part, &tool});
    recorder.Discard();
    part.Delete("nut");
    tool.Delete("saw");
    tool.dirty = true;
    content.RebuildDirty();

    EXPECT_THAT(recorder.take(),
                ElementsAre("ViewItemsDeselected [saw]", "ViewItemsSelected []",
                            "ViewItemListDeleted [saw]", "ViewItemChanged box",
                            "ViewItemChanged box", "ViewItemChanged /", "ViewContentChanged view"));
    EXPECT_TRUE(tool.dirty) << "a rebuild takes no mark away";
}

TEST_F(ContentListsTest, RebuildDirtySignalsTheContentAlsoWhenNothingIsDirty) {
    content.AddList(&part);
    recorder.Discard();
    content.RebuildDirty();

    EXPECT_THAT(recorder.take(), ElementsAre("ViewContentChanged view"));
}

TEST_F(ContentListsTest, RebuildDirtyRunsWithinALongOperationAndSignalsAfterIt) {
    content.AddList(&part);
    recorder.Discard();
    part.dirty = true;
    int within = 0;
    host.calls.On("IsDirty", "part", [&] { within = host.manager.longOperations; });
    recorder.Once(&zbBrowserSignalManager::ViewContentChanged,
                  [&](auto*) { EXPECT_EQ(host.manager.longOperations, 0); });
    content.RebuildDirty();

    EXPECT_EQ(within, 1);
    EXPECT_EQ(host.manager.longOperations, 0);
    recorder.Discard();
}

TEST_F(ContentListsTest, RedrawDirtySignalsEveryRowOfTheContentForEachDirtyList) {
    content.AddLists({&part, &tool});
    recorder.Discard();
    tool.dirty = true;
    content.RedrawDirty();

    EXPECT_THAT(recorder.take(), ElementsAre("ViewItemChanged bolt", "ViewItemChanged nut",
                                             "ViewItemChanged pin", "ViewItemChanged saw",
                                             "ViewItemChanged file", "ViewContentChanged view"));
}

TEST_F(ContentListsTest, RedrawDirtyTakesTheMarksOfTheRedrawnListsAwayAfterTheBracket) {
    content.AddLists({&part, &tool});
    recorder.Discard();
    tool.dirty = true;
    host.calls.Record(true);
    content.RedrawDirty();

    EXPECT_THAT(host.calls.take(),
                ElementsAre("manager.BeginLongOperation", "part.IsDirty", "tool.IsDirty",
                            "manager.BeginLongOperation", "manager.EndLongOperation",
                            "manager.EndLongOperation", "tool.ClearDirty false"));
    EXPECT_FALSE(tool.dirty);
    recorder.Discard();
}

TEST_F(ContentListsTest, RedrawDirtySignalsTheContentAlsoWhenNothingIsDirty) {
    content.AddList(&part);
    recorder.Discard();
    content.RedrawDirty();

    EXPECT_THAT(recorder.take(), ElementsAre("ViewContentChanged view"));
}

TEST_F(ContentListsTest, WithoutAManagerASignalManagerOrListenersNothingBreaks) {
    host.manager.signals = nullptr;

    EXPECT_TRUE(content.AddList(&part));
    part.dirty = true;
    part.Delete("nut");
    content.RebuildDirty();
    EXPECT_TRUE(content.RemoveList(&part));
    host.manager.signals = &host.signals;
    EXPECT_THAT(recorder.take(), IsEmpty());
}

// What a content without use for an operation answers, here that without grouping.

TEST_F(ContentListsTest, AFlatContentAnswersWhatConcernsTreesAndGroupsWithFalseOrNull) {
    auto& tree = host.Tree("tree", part);
    auto& item = tree.Add(part, "engine");
    Items found;
    Items parents;
    content.AddList(&part);
    recorder.Discard();

    EXPECT_FALSE(content.RefreshTreeItems(&tree, false));
    EXPECT_FALSE(content.RedrawTree(&tree, false));
    EXPECT_FALSE(content.RebuildTree(&tree, false));
    EXPECT_FALSE(content.ConnectTree(&tree, false));
    EXPECT_FALSE(content.DisconnectTree(&tree, false));
    EXPECT_FALSE(content.OnReferenceCreated(&item, found, parents));
    EXPECT_FALSE(content.ConnectChildType(&tree, &part));
    EXPECT_FALSE(content.GetShowEmptyGroups());
    EXPECT_FALSE(content.SetShowEmptyGroups(true));
    EXPECT_FALSE(content.GetShowEmptyGroups());
    EXPECT_TRUE(content.SetGroupCaption(&part, "caption"));
    EXPECT_EQ(content.FindTreeItem(&Row(folder, "bolt"), true), nullptr);
    EXPECT_EQ(content.FindGroup(&Row(folder, "bolt"), true), nullptr);
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(ContentListsTest, AFlatContentDoesNothingAboutTreesGroupsAndExpansion) {
    auto& tree = host.Tree("tree", part);
    auto& item = tree.Add(part, "engine");
    Items found;
    Items parents;
    content.AddList(&part);
    recorder.Discard();

    content.OnDataItemDeletedInTree(&item);
    content.DisconnectChildType(&tree, &part);
    content.GetViewItemsFromDataSet({&item}, found, parents);
    content.GetViewItemsFromItem(&item, found, parents);
    content.OnReferenceChanged(&item, nullptr);
    content.SetSortingException(&part, 1);
    content.SetCreateExpandedItem(&part, 1);
    content.ResetExpansion();
    content.SetExpandedAll(true, true, false);
    content.SetExpandedList(true, &part, false);
    content.SetTreeExpanded(&tree, true, false);
    EXPECT_THAT(found, IsEmpty());
    EXPECT_THAT(parents, IsEmpty());
    EXPECT_THAT(Rows(folder), ElementsAre("bolt", "nut", "pin", "engine"));
    EXPECT_THAT(recorder.take(), IsEmpty());
}

} // namespace
