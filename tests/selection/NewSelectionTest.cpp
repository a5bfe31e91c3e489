// SPDX-License-Identifier: MIT
//! \file
//! What only the selection manager of a new view does.
#include "SelectionTest.h"

namespace zbtest {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class NewSelection : public SelectionTest<NewGeneration> {
protected:
    [[nodiscard]] std::string Changed() {
        Items items;
        auto const answer = manager.GetChangedViewItems(items);
        EXPECT_EQ(answer, !items.empty());
        return TextOf(items);
    }
    [[nodiscard]] zbbrowser::View& View() { return host.NewView(); }
};

TEST_F(NewSelection, SelectingTheSameAgainEndsSilentlyAndKeepsTheLastChange) {
    manager.UpdateSelection({&a}, true, false);
    EXPECT_THAT(signals.take(), ElementsAre("ViewItemsSelected [a]"));
    RecordingNotifier notifier;
    manager.AddNotifier(&notifier);

    manager.UpdateSelection({&a}, true, false);

    EXPECT_THAT(notifier.take(), IsEmpty());
    EXPECT_THAT(signals.take(), IsEmpty());
    EXPECT_EQ(Changed(), "[a]");
}

TEST_F(NewSelection, ACallWithoutADifferenceLeavesTheSyncFlag) {
    Select({&a});
    manager.SetSyncFlag(false);

    manager.UpdateSelection({&a}, true, false);

    EXPECT_FALSE(manager.GetSyncFlag());
}

TEST_F(NewSelection, TheLastChangeHasAllItemsThatWereGiven) {
    Select({&a});

    manager.UpdateSelection({&a, &b}, true, false);

    EXPECT_EQ(Changed(), InOrder({&a, &b}));
    signals.Discard();
}

TEST_F(NewSelection, DeselectedItemsAreTheLastChangeToo) {
    Select({&a, &b});

    manager.UpdateSelection({&b, &c}, false, false);

    EXPECT_EQ(Changed(), InOrder({&b, &c}));
    signals.Discard();
}

TEST_F(NewSelection, ClearingForgetsTheLastChange) {
    Select({&a});

    manager.UpdateSelection({}, false, true);

    EXPECT_EQ(Changed(), "[]");
    signals.Discard();
}

TEST_F(NewSelection, ClearSelectedKeepsTheLastChange) {
    Select({&a});

    manager.ClearSelected();

    EXPECT_EQ(Changed(), "[a]");
}

TEST_F(NewSelection, TheLastSelectIsNotedWhetherItMadeADifferenceOrNot) {
    EXPECT_FALSE(manager.GetLastSelect());

    manager.UpdateSelection({}, true, false);
    EXPECT_TRUE(manager.GetLastSelect());

    manager.UpdateSelection({&a}, false, false);
    EXPECT_FALSE(manager.GetLastSelect());
}

TEST_F(NewSelection, TheLastSelectIsNotedBeforeAClearingIsTold) {
    bool lastSelect = false;
    signals.Once(&zbBrowserSignalManager::SelectionClearing,
                 [&](auto*) { lastSelect = manager.GetLastSelect(); });

    manager.UpdateSelection({}, true, true);

    EXPECT_TRUE(lastSelect);
    signals.Discard();
}

TEST_F(NewSelection, TheLastChangeIsKnownWhenNotifiersAreTold) {
    Select({&a});
    RecordingNotifier notifier;
    manager.AddNotifier(&notifier);
    std::string changed;
    notifier.onChanged = [&] { changed = Changed(); };

    manager.UpdateSelection({&b}, true, false);

    EXPECT_EQ(changed, "[b]");
    signals.Discard();
}

TEST_F(NewSelection, ClearingAndDeselectingTheSameEndsBehindTheClearing) {
    Select({&a});
    RecordingNotifier notifier;
    manager.AddNotifier(&notifier);

    manager.UpdateSelection({&a}, false, true);

    EXPECT_THAT(notifier.take(), ElementsAre("deselected [a]"));
    EXPECT_THAT(signals.take(), ElementsAre("SelectionClearing view"));
    EXPECT_EQ(Changed(), "[]");
}

TEST_F(NewSelection, TheSyncFlagDoesNotHoldTheSignalBack) {
    RecordingNotifier notifier;
    manager.AddNotifier(&notifier);
    notifier.onChanged = [&] { manager.SetSyncFlag(false); };

    manager.UpdateSelection({&a}, true, false);

    EXPECT_THAT(signals.take(), ElementsAre("ViewItemsSelected [a]"));
    EXPECT_FALSE(manager.GetSyncFlag());
}

TEST_F(NewSelection, TheDataSideHearsOfNoChangeButOfTheEndOfIt) {
    manager.UpdateSelection({&a}, true, true);
    EXPECT_THAT(signals.take(), ElementsAre("SelectionClearing view", "ViewItemsSelected [a]"));

    view.OnSelectionChangeFinished();

    EXPECT_THAT(signals.take(), ElementsAre("SelectionManagerChanged data selection"));
}

TEST_F(NewSelection, WithoutADataControlTheEndOfAChangeIsToldWithNull) {
    view.SetDataCtrl(nullptr);

    manager.OnSelectionChangeFinished();

    EXPECT_THAT(signals.take(), ElementsAre("SelectionManagerChanged null selection"));
}

TEST_F(NewSelection, TheViewNameIsNotGiven) {
    zbString name = "other";

    EXPECT_FALSE(manager.GetViewName(name));
    EXPECT_EQ(name, "");
}

TEST_F(NewSelection, TheDropItemIsGivenBack) {
    EXPECT_EQ(manager.GetDropItem(), nullptr);
    manager.SetDropItem(&a);
    EXPECT_EQ(manager.GetDropItem(), &a);

    manager.ResetDropItem();
    EXPECT_EQ(manager.GetDropItem(), nullptr);
}

TEST_F(NewSelection, ApplyingTheFilterClearsWithoutASelectionSignal) {
    Select({&a});

    EXPECT_TRUE(View().ApplyCurrentFilter());

    EXPECT_THAT(signals.take(), ElementsAre("ViewContentChanged view", "ViewChanged view"));
    EXPECT_EQ(Selected(), "[]");
    EXPECT_EQ(Changed(), "[]");
}

TEST_F(NewSelection, DeletingTheDataDependentItemsClearsSilently) {
    Select({&a});

    View().AllDataDependentItemsDelete(true);

    EXPECT_THAT(signals.take(), IsEmpty());
    EXPECT_EQ(Selected(), "[]");
}

TEST_F(NewSelection, OneOfTwoSelectedItemsIsNotEdited) {
    Select({&a, &b});

    EXPECT_FALSE(view.EditSelectedDataItem("rename"));

    EXPECT_THAT(signals.take(), IsEmpty());
}

TEST_F(NewSelection, ItemsOfADeletedRootAreForgotten) {
    Select({&a, &c});
    manager.SetDropItem(&b);
    View().SetLastFindStartPoint(&b);

    View().DeleteVirtualRoot();

    EXPECT_EQ(Selected(), "[]");
    EXPECT_EQ(Changed(), "[]");
    EXPECT_EQ(manager.GetDropItem(), nullptr);
    EXPECT_EQ(View().GetLastFindStartPoint(), nullptr);
}

TEST_F(NewSelection, AnItemOfTheLastChangeIsForgottenAlsoIfItIsNotSelected) {
    Select({&a});
    manager.UpdateSelection({&a}, false, false);

    View().DeleteVirtualRoot();

    EXPECT_EQ(Changed(), "[]");
    signals.Discard();
}

TEST_F(NewSelection, DataThatIsSelectedReplacesTheSelectionIfAskedTo) {
    Select({&a});

    View().OnDataItemsSelected({&host.Source("part").Add("bolt")}, true, false);

    EXPECT_THAT(signals.take(), ElementsAre("SelectionClearing view"));
    EXPECT_EQ(Selected(), "[]");
}

TEST_F(NewSelection, DataThatIsSelectedOrDeselectedIsNothingWhileTheSyncFlagIsOff) {
    Select({&a});
    manager.SetSyncFlag(false);

    View().OnDataItemsSelected({&host.Source("part").Add("bolt")}, true, false);
    View().OnDataItemsDeselected({&host.Source("part")["bolt"]});

    EXPECT_THAT(signals.take(), IsEmpty());
    EXPECT_EQ(Selected(), "[a]");
}

TEST_F(NewSelection, WhatOnlyOldViewsOfferIsFalseOrNullAndLeavesTheOutputsAlone) {
    Select({&a});
    zbBrowserDataItemMap map{{nullptr, {}}};
    std::vector<zbIBrowserDataItemSimple*> simple{nullptr};
    std::vector<zbIBrowserDataItemHierarchical*> trees{nullptr};
    std::set<zbIBrowserDataItemSimple*> simpleSet{nullptr};
    std::set<zbIBrowserDataItemHierarchical*> treeSet{nullptr};
    std::set<zbIBrowserDataSourceSimple*> sources{nullptr};
    std::set<zbIBrowserDataSourceHierarchical*> treeSources{nullptr};
    Items groups{nullptr};
    zbString text = "untouched";
    auto* const source = static_cast<zbIBrowserDataSourceSimple*>(&host.Source("part"));
    auto* const tree =
        static_cast<zbIBrowserDataSourceHierarchical*>(&host.Tree("tree", host.Source("part")));
    auto* const property = view.FindViewProperty("default_name_prop");

    EXPECT_FALSE(manager.GetSelectedDataItems(map, simple, trees, true));
    EXPECT_FALSE(manager.GetSelectedDataItems(simple, true));
    EXPECT_FALSE(manager.GetSelectedDataItems(trees, true));
    EXPECT_FALSE(manager.GetSelectedDataItems(simpleSet, true));
    EXPECT_FALSE(manager.GetSelectedDataItems(treeSet, true));
    EXPECT_FALSE(manager.GetSelectedDataItemsOfSource(source, simple, true));
    EXPECT_FALSE(manager.GetSelectedDataItemsOfSource(source, simpleSet, true));
    EXPECT_FALSE(manager.GetSelectedDataItemsOfSource(tree, trees, true));
    EXPECT_FALSE(manager.GetSelectedDataItemsOfSource(tree, treeSet, true));
    EXPECT_FALSE(manager.GetSelectedDataSources(sources, true));
    EXPECT_FALSE(manager.GetSelectedDataSourcesHierarchical(treeSources, true));
    EXPECT_FALSE(manager.GetSelectedDependentFolders(groups));
    EXPECT_FALSE(manager.GetSelectedPropertyTextOfSource(source, property, property, text, true));
    EXPECT_FALSE(manager.GetSelectedPropertyTextOfSource(tree, property, property, text, true));
    EXPECT_EQ(manager.GetDropDataItemSimple(), nullptr);
    EXPECT_EQ(manager.GetDropDataItemHierarchical(), nullptr);
    EXPECT_EQ(manager.GetDropDataSource(), nullptr);

    EXPECT_EQ(map.size() + simple.size() + trees.size() + simpleSet.size() + treeSet.size() +
                  sources.size() + treeSources.size() + groups.size(),
              8U);
    EXPECT_EQ(text, "untouched");
}

} // namespace
} // namespace zbtest
