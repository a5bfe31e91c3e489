// SPDX-License-Identifier: MIT
//! \file
//! The old view's data control and data sources.

#include "ViewTestSupport.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using zbtest::Names;
using zbtest::RecordingSource;
using zbtest::RecordingTree;

class DataSourcesTest : public zbtest::ViewTest {
protected:
    [[nodiscard]] std::vector<zbIBrowserDataSourceSimple*> Simple() const {
        std::vector<zbIBrowserDataSourceSimple*> out;
        EXPECT_TRUE(view.GetDataSourceSimpleList(out));
        return out;
    }
    [[nodiscard]] std::vector<zbIBrowserDataSourceHierarchical*> Trees() const {
        std::vector<zbIBrowserDataSourceHierarchical*> out;
        EXPECT_TRUE(view.GetDataSourceHierarchicalList(out));
        return out;
    }
};

// Connecting

TEST_F(DataSourcesTest, AConnectedFlatSourceIsListedAndTold) {
    auto& part = host.Source("part");
    EXPECT_TRUE(view.DataSourceConnect(&part));
    EXPECT_THAT(Simple(), ElementsAre(&part));
    EXPECT_EQ(host.calls.Count("OnConnected", "part"), 1U);
}

TEST_F(DataSourcesTest, ASourceStandsInTheListAlreadyWhenItIsTold) {
    auto& part = host.Source("part");
    bool listed = false;
    host.calls.On("OnConnected", "part",
                  [&] { listed = view.GetDataSourceSimple(&part) == &part; });
    view.DataSourceConnect(&part);
    EXPECT_TRUE(listed);
}

TEST_F(DataSourcesTest, AConnectedTreeIsListedAndToldNothing) {
    auto& tree = host.Tree("assembly", host.Source("part"));
    EXPECT_TRUE(view.DataSourceConnect(&tree));
    EXPECT_THAT(Trees(), ElementsAre(&tree));
    EXPECT_EQ(host.calls.Count("OnConnected"), 0U);
}

TEST_F(DataSourcesTest, ConnectingTwiceChangesNothingAndTellsOnce) {
    auto& part = Connected("part", {});
    EXPECT_TRUE(view.DataSourceConnect(&part));
    EXPECT_THAT(Simple(), ElementsAre(&part));
    EXPECT_EQ(host.calls.Count("OnConnected", "part"), 1U);
}

TEST_F(DataSourcesTest, ConnectingATreeTwiceListsItOnce) {
    auto& tree = ConnectedTree("assembly");
    EXPECT_TRUE(view.DataSourceConnect(&tree));
    EXPECT_THAT(Trees(), ElementsAre(&tree));
}

TEST_F(DataSourcesTest, WithoutAControlNothingIsConnectedAndTheAnswerIsTrue) {
    view.SetDataCtrl(nullptr);
    auto& part = host.Source("part");
    auto& tree = host.Tree("assembly", part);

    EXPECT_TRUE(view.DataSourceConnect(&part));
    EXPECT_TRUE(view.DataSourceConnect(&tree));

    EXPECT_THAT(Simple(), IsEmpty());
    EXPECT_THAT(Trees(), IsEmpty());
    EXPECT_EQ(host.calls.Count("OnConnected"), 0U);
    EXPECT_TRUE(view.GetState());
}

TEST_F(DataSourcesTest, ASourceThatTheControlDoesNotKnowIsNotConnectedAndTheAnswerIsTrue) {
    host.Control().knowsSources = false;
    auto& part = host.Source("part");
    auto& tree = host.Tree("assembly", part);

    EXPECT_TRUE(view.DataSourceConnect(&part));
    EXPECT_TRUE(view.DataSourceConnect(&tree));

    EXPECT_THAT(Simple(), IsEmpty());
    EXPECT_THAT(Trees(), IsEmpty());
    EXPECT_TRUE(view.GetState());
}

TEST_F(DataSourcesTest, TheControlIsAskedByTheNameOfTheSource) {
    host.calls.Record(true);
    Connected("part", {});
    ConnectedTree("assembly");
    EXPECT_THAT(host.calls.take(), ElementsAre("data.FindDataSourceSimple part", "part.OnConnected",
                                               "data.FindDataSourceHierarchical assembly"));
}

TEST_F(DataSourcesTest, AConnectedSourceIsNotAskedAboutAgain) {
    auto& part = Connected("part", {});
    host.calls.ForgetCounts();
    view.DataSourceConnect(&part);
    EXPECT_EQ(host.calls.Count("FindDataSourceSimple"), 0U);
}

TEST_F(DataSourcesTest, ConnectingClearsTheErrorState) {
    view.CreateList(&Root(), nullptr, false);
    ASSERT_FALSE(view.GetState());
    view.DataSourceConnect(&host.Source("part"));
    EXPECT_TRUE(view.GetState());
}

TEST_F(DataSourcesTest, ConnectingATreeClearsTheErrorState) {
    view.CreateList(&Root(), nullptr, false);
    ASSERT_FALSE(view.GetState());
    view.DataSourceConnect(&host.Tree("assembly", host.Source("part")));
    EXPECT_TRUE(view.GetState());
}

TEST_F(DataSourcesTest, ConnectingRaisesNoSignal) {
    Connected("part", {"bolt_1"});
    ConnectedTree("assembly");
    EXPECT_THAT(signals.take(), IsEmpty());
}

TEST_F(DataSourcesTest, SourcesAreListedInTheOrderOfConnectionAndTheOutputIsCleared) {
    auto& tool = Connected("tool", {});
    auto& part = Connected("part", {});
    std::vector<zbIBrowserDataSourceSimple*> out{nullptr, &part};
    EXPECT_TRUE(view.GetDataSourceSimpleList(out));
    EXPECT_THAT(out, ElementsAre(&tool, &part));
}

TEST_F(DataSourcesTest, TreesAreListedInTheOrderOfConnectionAndTheOutputIsCleared) {
    auto& second = ConnectedTree("b");
    auto& first = ConnectedTree("a");
    std::vector<zbIBrowserDataSourceHierarchical*> out{nullptr, &first};
    EXPECT_TRUE(view.GetDataSourceHierarchicalList(out));
    EXPECT_THAT(out, ElementsAre(&second, &first));
}

// Looking up

TEST_F(DataSourcesTest, AFlatSourceIsFoundByNameRegardlessOfCase) {
    auto& part = Connected("part", {});
    EXPECT_EQ(view.GetDataSourceSimple("PART"), &part);
    EXPECT_EQ(view.GetDataSourceSimple("par"), nullptr);
    EXPECT_EQ(view.GetDataSourceSimple("parts"), nullptr);
}

TEST_F(DataSourcesTest, ATreeIsFoundByNameRegardlessOfCase) {
    auto& tree = ConnectedTree("assembly");
    EXPECT_EQ(view.GetDataSourceHierarchical("ASSEMBLY"), &tree);
    EXPECT_EQ(view.GetDataSourceHierarchical("part"), nullptr);
}

TEST_F(DataSourcesTest, OfTwoSourcesWhoseNamesDifferInCaseTheFirstConnectedIsFound) {
    auto& first = Connected("Part", {});
    Connected("part", {});
    EXPECT_EQ(view.GetDataSourceSimple("part"), &first);
}

TEST_F(DataSourcesTest, ByPointerOnlyAConnectedSourceIsFound) {
    auto& part = Connected("part", {});
    auto& tree = ConnectedTree("assembly");
    auto& other = host.Source("other");
    auto& otherTree = host.Tree("other tree", other);
    EXPECT_EQ(view.GetDataSourceSimple(&part), &part);
    EXPECT_EQ(view.GetDataSourceSimple(&other), nullptr);
    EXPECT_EQ(view.GetDataSourceHierarchical(&tree), &tree);
    EXPECT_EQ(view.GetDataSourceHierarchical(&otherTree), nullptr);
}

TEST_F(DataSourcesTest, ATypeIsFoundInTheFirstTreeThatHasIt) {
    auto& one = ConnectedTree("one");
    auto& two = ConnectedTree("two");
    auto& shared = host.Source("shared");
    auto& onlyTwo = host.Source("only two");
    one.childTypes.push_back(&shared);
    two.childTypes.push_back(&onlyTwo);
    two.childTypes.push_back(&shared);

    EXPECT_EQ(view.GetDataSourceSimpleFromHierarchical("shared"), &shared);
    EXPECT_EQ(host.calls.Count("FindDataSourceSimple", "two"), 0U);
    EXPECT_EQ(view.GetDataSourceSimpleFromHierarchical("only two"), &onlyTwo);
    EXPECT_EQ(view.GetDataSourceSimpleFromHierarchical("none"), nullptr);
}

TEST_F(DataSourcesTest, NullNamesAreNotFound) {
    Connected("part", {});
    ConnectedTree("assembly");
    EXPECT_EQ(view.GetDataSourceSimple(static_cast<char const*>(nullptr)), nullptr);
    EXPECT_EQ(view.GetDataSourceHierarchical(static_cast<char const*>(nullptr)), nullptr);
    EXPECT_EQ(view.GetDataSourceSimpleFromHierarchical(nullptr), nullptr);
    EXPECT_FALSE(view.DataSourceDisconnect(nullptr));
}

// Disconnecting

TEST_F(DataSourcesTest, DisconnectingTakesTheListsOutOfAllFoldersAndTellsTheSource) {
    auto& part = Connected("part", {"bolt_1"});
    auto& tool = Connected("tool", {"saw_1"});
    auto& a = Folder("a");
    auto& b = Folder("b", &a);
    Show(a, part);
    Show(b, part);
    Show(b, tool);

    EXPECT_TRUE(view.DataSourceDisconnect("PART"));

    EXPECT_EQ(Rows(a), (Names{"b"}));
    EXPECT_EQ(Rows(b), (Names{"saw_1"}));
    EXPECT_THAT(Simple(), ElementsAre(&tool));
    EXPECT_EQ(host.calls.Count("OnDisconnected", "part"), 1U);
    EXPECT_EQ(host.calls.Count("OnDisconnected", "tool"), 0U);
    EXPECT_THAT(signals.take(),
                ElementsAre("ViewItemsDeselected [bolt_1]", "ViewItemsSelected []",
                            "ViewItemListDeleted [bolt_1]", "ViewItemChanged a",
                            "ViewContentChanged view", "ViewItemsDeselected [bolt_1]",
                            "ViewItemsSelected []", "ViewItemListDeleted [bolt_1]",
                            "ViewItemChanged b", "ViewContentChanged view"));
}

TEST_F(DataSourcesTest, ASourceHasLeftTheListWhenItIsToldOfItsDisconnection) {
    auto& part = Connected("part", {});
    bool gone = false;
    host.calls.On("OnDisconnected", "part",
                  [&] { gone = view.GetDataSourceSimple(&part) == nullptr; });
    view.DataSourceDisconnect("part");
    EXPECT_TRUE(gone);
}

TEST_F(DataSourcesTest, DisconnectingATreeTakesItOutOfAllFoldersAndTellsIt) {
    auto& tree = ConnectedTree("assembly");
    auto& a = Folder("a");
    ASSERT_TRUE(view.CreateTree(&a, &tree));
    signals.Discard();

    EXPECT_TRUE(view.DataSourceDisconnect("assembly"));

    EXPECT_EQ(view.FindTree(&a, &tree), nullptr);
    EXPECT_THAT(Trees(), IsEmpty());
    EXPECT_EQ(host.calls.Count("OnDisconnected", "assembly"), 1U);
    EXPECT_THAT(signals.take(), ElementsAre("ViewContentChanged view"));
}

TEST_F(DataSourcesTest, AnUnknownNameCannotBeDisconnected) {
    Connected("part", {});
    EXPECT_FALSE(view.DataSourceDisconnect("tool"));
    EXPECT_EQ(Simple().size(), 1U);
}

TEST_F(DataSourcesTest, AFlatSourceGoesBeforeTheTreeOfTheSameName) {
    auto& part = Connected("part", {});
    auto& tree = host.Tree("part", part);
    ASSERT_TRUE(view.DataSourceConnect(&tree));

    EXPECT_TRUE(view.DataSourceDisconnect("part"));
    EXPECT_THAT(Simple(), IsEmpty());
    EXPECT_THAT(Trees(), ElementsAre(&tree));

    EXPECT_TRUE(view.DataSourceDisconnect("part"));
    EXPECT_THAT(Trees(), IsEmpty());
    EXPECT_FALSE(view.DataSourceDisconnect("part"));
}

TEST_F(DataSourcesTest, DisconnectingAllTellsFlatSourcesFirstAndEachOnce) {
    ConnectedTree("assembly");
    Connected("tool", {});
    Connected("part", {});
    host.calls.Record(true);

    EXPECT_TRUE(view.DataSourceDisconnectAll(true));

    EXPECT_THAT(host.calls.take(), ElementsAre("tool.OnDisconnected", "part.OnDisconnected",
                                               "assembly.OnDisconnected"));
    EXPECT_THAT(Simple(), IsEmpty());
    EXPECT_THAT(Trees(), IsEmpty());
}

TEST_F(DataSourcesTest, DisconnectingAllWithContentEmptiesTheFolders) {
    auto& part = Connected("part", {"bolt_1"});
    auto& tree = ConnectedTree("assembly");
    auto& a = Folder("a");
    Show(a, part);
    ASSERT_TRUE(view.CreateTree(&a, &tree));
    signals.Discard();

    view.DataSourceDisconnectAll(true);

    EXPECT_THAT(Rows(a), IsEmpty());
    EXPECT_EQ(view.FindList(&a, &part), nullptr);
    EXPECT_EQ(view.FindTree(&a, &tree), nullptr);
    EXPECT_THAT(signals.take(), ElementsAre("ViewItemsDeselected [bolt_1]", "ViewItemsSelected []",
                                            "ViewItemListDeleted [bolt_1]", "ViewItemChanged a",
                                            "ViewContentChanged view", "ViewContentChanged view"));
}

TEST_F(DataSourcesTest, DisconnectingAllWithoutContentLeavesTheItemsInTheFolders) {
    auto& part = Connected("part", {"bolt_1"});
    auto& tree = ConnectedTree("assembly");
    auto& a = Folder("a");
    Show(a, part);
    ASSERT_TRUE(view.CreateTree(&a, &tree));
    signals.Discard();

    EXPECT_TRUE(view.DataSourceDisconnectAll(false));

    EXPECT_EQ(Rows(a), (Names{"bolt_1"}));
    EXPECT_EQ(view.FindTree(&a, &tree), &tree);
    EXPECT_THAT(Simple(), IsEmpty());
    EXPECT_EQ(host.calls.Count("OnDisconnected"), 2U);
    EXPECT_THAT(signals.take(), IsEmpty());
}

TEST_F(DataSourcesTest, ADisconnectedSourceCanBeConnectedAgain) {
    auto& part = Connected("part", {"bolt_1"});
    view.DataSourceDisconnect("part");
    EXPECT_TRUE(view.DataSourceConnect(&part));
    EXPECT_EQ(part.connections, 1);
    Show(Root(), part);
    EXPECT_EQ(Rows(Root()), (Names{"bolt_1"}));
}

TEST_F(DataSourcesTest, AFolderMayBeDeletedWhileTheTreeThatIsLookedForIsAskedForItsName) {
    auto& tree = ConnectedTree("assembly");
    auto& folder = Folder("a");
    EXPECT_TRUE(view.CreateTree(&folder, &tree));
    host.calls.On("GetName", "assembly", [&] {
        host.calls.Off("GetName", "assembly");
        view.DeleteFreeFolder(&folder, true);
    });

    EXPECT_EQ(view.FindTree(&folder, &tree), nullptr);

    signals.Discard();
}

} // namespace
