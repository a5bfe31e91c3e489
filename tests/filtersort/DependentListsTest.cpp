// SPDX-License-Identifier: MIT
// The lists of dependent folders, whose rows and folders are doubles.
#include "filtersort/CurrentSortProperty.h"
#include "filtersort/zbBrowserSortHandler.h"
#include "RowSortTest.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using zbtest::Lines;

class DependentLists : public zbtest::RowSortTest {
protected:
    DependentLists() {
        weight.CreateStyle("cell");
        weight.FindStyle("cell")->CreateElement("text", "")->SetViewProperty(viewProperty);
        part.SetSortProperty(nullptr);
        host.calls.Record(true);
    }

    void SortBy(zbIBrowserViewColumn& column) { host.View().SetAscendingOrder(&column, true); }
    void SetCustomProperty(char const* name) {
        host.OldView().SetSortDefaultColumnByCustomProperty(name);
    }
    Lines Leaves(Lines const& names) {
        auto items = ItemsOf(names);
        EXPECT_TRUE(handler.SortDependentFolderLeaves(items));
        return NamesOf(items);
    }
    //! Rows of a tree, whose flat faces have these names.
    Lines Containers(Lines const& names) {
        auto items = ItemsOf(names);
        for (auto& row : rows)
            row.treeItem = &tree.Add(*part.Find(host.calls.NameOf(row.data)), nullptr);
        EXPECT_TRUE(handler.SortDependentFolderContainers(items));
        return NamesOf(items);
    }

    zbtest::RecordingTree& tree = host.Tree("assembly", part);
    zbBrowserSortHandler& handler = *host.OldView().GetSortHandlerPtr();
    zbIBrowserViewColumn& standard = *host.View().GetDefaultColumn();
    zbIBrowserViewColumn& weight = zbtest::ColumnOf(host.View(), "weight");
};

TEST_F(DependentLists, ListsOfRowsStayAsTheyAreWhileTheViewIsNotSorted) {
    SetCustomProperty("rank");

    EXPECT_THAT(Leaves({"nut", "bolt"}), ElementsAre("nut", "bolt"));
    EXPECT_THAT(host.calls.take(), IsEmpty());
}

TEST_F(DependentLists, ListsOfOneRowAreNotPrepared) {
    SetCustomProperty("rank");
    SortBy(standard);

    EXPECT_THAT(Leaves({"nut"}), ElementsAre("nut"));
    EXPECT_THAT(Leaves({}), IsEmpty());
    EXPECT_THAT(host.calls.take(), IsEmpty());
}

TEST_F(DependentLists, LeavesAreSortedByNameUnderTheDefaultColumn) {
    SortBy(standard);

    EXPECT_THAT(Leaves({"nut", "bolt"}), ElementsAre("bolt", "nut"));
    EXPECT_THAT(host.calls.take(), ElementsAre("part.CompareByName bolt nut"));
}

TEST_F(DependentLists, ContainersAreSortedBySourceAndNameUnderTheDefaultColumn) {
    SortBy(standard);

    EXPECT_THAT(Containers({"nut", "bolt"}), ElementsAre("bolt", "nut"));
    EXPECT_THAT(host.calls.take(),
                ElementsAre("data.CompareDataSources part part", "part.CompareByName bolt nut"));
}

TEST_F(DependentLists, ACustomPropertySortsLeavesByTwoKeys) {
    SetCustomProperty("rank");
    SortBy(standard);

    EXPECT_THAT(Leaves({"bolt", "nut"}), ElementsAre("nut", "bolt"));
    EXPECT_THAT(host.calls.take(),
                ElementsAre("part.FindDataProperty rank", "part.SetSortProperty rank",
                            "part.CompareBySortProperty nut bolt"));
}

TEST_F(DependentLists, ACustomPropertySortsContainersBySourceFirst) {
    SetCustomProperty("rank");
    SortBy(standard);

    EXPECT_THAT(Containers({"bolt", "nut"}), ElementsAre("nut", "bolt"));
    EXPECT_THAT(host.calls.take(),
                ElementsAre("part.FindDataProperty rank", "part.SetSortProperty rank",
                            "data.CompareDataSources part part",
                            "part.CompareBySortProperty nut bolt"));
}

TEST_F(DependentLists, ACustomPropertyThatTheSourceDoesNotKnowIsNotSet) {
    SetCustomProperty("taste");
    SortBy(standard);

    EXPECT_THAT(Leaves({"bolt", "nut"}), ElementsAre("nut", "bolt")) << "by identity";
    EXPECT_THAT(host.calls.take(),
                ElementsAre("part.FindDataProperty taste", "part.CompareById nut bolt"));
}

TEST_F(DependentLists, AnEmptyNameTurnsTheCustomPropertyOff) {
    SetCustomProperty("rank");
    SetCustomProperty("");
    SortBy(standard);

    EXPECT_THAT(Leaves({"nut", "bolt"}), ElementsAre("bolt", "nut"));
}

TEST_F(DependentLists, UnderAColumnTheFirstItemTellsTheSourceWhatToSortBy) {
    SortBy(weight);

    EXPECT_THAT(Leaves({"bolt", "nut"}), ElementsAre("nut", "bolt"));
    EXPECT_THAT(host.calls.take(),
                ElementsAre("part.SetSortProperty weight", "part.CompareBySortProperty nut bolt"));
    EXPECT_EQ(zbbrowser::detail::CurrentSortProperty(), viewProperty);
}

TEST_F(DependentLists, UnderAColumnContainersAreSortedByTheSourceOfTheFlatFace) {
    SortBy(weight);

    EXPECT_THAT(Containers({"bolt", "nut"}), ElementsAre("nut", "bolt"));
    EXPECT_THAT(host.calls.take(),
                ElementsAre("part.SetSortProperty weight", "part.CompareBySortProperty nut bolt"));
}

TEST_F(DependentLists, UnderAColumnRowsThatShowTheSameAreInNoOrder) {
    part["bolt"].Set("weight", 1);
    SortBy(weight);

    EXPECT_THAT(Leaves({"nut", "bolt"}), ElementsAre("nut", "bolt"));
    EXPECT_THAT(host.calls.take(),
                ElementsAre("part.SetSortProperty weight", "part.CompareBySortProperty bolt nut",
                            "part.CompareByName bolt nut"));
}

TEST_F(DependentLists, TheCustomPropertyDoesNotMatterUnderAColumn) {
    SetCustomProperty("rank");
    SortBy(weight);

    Leaves({"bolt", "nut"});

    EXPECT_EQ(host.calls.Count("FindDataProperty"), 0U);
}

TEST_F(DependentLists, AColumnThatShowsNothingOfASourceLeavesItWithoutASortProperty) {
    tool.SetSortProperty(&tool.Property("name"));
    SortBy(weight);
    (void)host.calls.take();

    EXPECT_THAT(Leaves({"saw", "file"}), ElementsAre("saw", "file"));
    EXPECT_THAT(host.calls.take(),
                ElementsAre("tool.SetSortProperty null", "tool.CompareByName file saw"));
}

TEST_F(DependentLists, AColumnWithoutAPropertyLeavesTheSortPropertyOfTheSource) {
    part.SetSortProperty(&part.Property("rank"));
    SortBy(zbtest::ColumnOf(host.View(), "empty"));
    (void)host.calls.take();

    EXPECT_THAT(Leaves({"bolt", "nut"}), ElementsAre("nut", "bolt"));
    EXPECT_THAT(host.calls.take(), ElementsAre("part.CompareBySortProperty nut bolt"));
}

TEST_F(DependentLists, AFirstItemWithoutDataPreparesNothing) {
    SetCustomProperty("rank");
    SortBy(standard);
    auto items = ItemsOf({"bolt", "nut"});
    items.insert(items.begin(), nullptr);

    EXPECT_TRUE(handler.SortDependentFolderLeaves(items));
    EXPECT_TRUE(handler.SortDependentFolderContainers(items));

    EXPECT_EQ(host.calls.Count("FindDataProperty"), 0U);
}

//! Captions are the names of the data items.
char const* CaptionOf(zbIBrowserViewItem const& folder) {
    auto* const item = static_cast<zbtest::RecordingItem*>(folder.GetDataItemSimple());
    return item->Name().c_str();
}

TEST_F(DependentLists, DependentFoldersAreSortedByCaptionAlsoInAViewThatIsNotSorted) {
    part.Items({"b 10", "B 2", "a"});
    auto folders = ItemsOf({"b 10", "B 2", "a"});

    zbBrowserSortHandler::SortDependentFolders(folders, CaptionOf);

    EXPECT_EQ(NamesOf(folders), (Lines{"a", "b 10", "B 2"}));
}

TEST_F(DependentLists, DependentFoldersOfOneCaptionKeepTheirOrder) {
    part.Items({"X", "x"});
    auto folders = ItemsOf({"x", "X"});
    auto const before = folders;

    zbBrowserSortHandler::SortDependentFolders(folders, CaptionOf);

    EXPECT_EQ(folders, before);
}

} // namespace
