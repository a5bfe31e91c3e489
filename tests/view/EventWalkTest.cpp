// SPDX-License-Identifier: MIT
//! \file
//! How events come to the folders of an old view: which, in which order, and which are busy.

#include "ViewTestSupport.h"

#include <zbBrowserView/zbBrowserViewCtrl.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using zbtest::Names;
using zbtest::RecordingSource;
using zbtest::ThrownText;

//! The folders a, b in a, c, and d in c.
class EventWalkTest : public zbtest::ViewTest {
protected:
    RecordingSource& part = Connected("part", {"bolt_1", "nut_2"});
    RecordingSource& tool = Connected("tool", {"saw_1"});
    FreeFolder& a = Folder("a");
    FreeFolder& b = Folder("b", &a);
    FreeFolder& c = Folder("c");
    FreeFolder& d = Folder("d", &c);

    void ShowEverywhere() {
        for (auto* const folder : {&d, &b, &Root(), &c, &a}) {
            Show(*folder, part);
        }
    }
    //! The folders that hear of an update.
    [[nodiscard]] std::vector<std::string> HeardUpdate() {
        view.OnDataItemUpdated(&part["bolt_1"]);
        return signals.take();
    }
    template <class Slot>
    void OnceChanged(FreeFolder& folder, Slot slot) {
        static_cast<void>(
            signals.On(&zbBrowserSignalManager::ViewItemChanged,
                       [&folder, slot, done = false](zbIBrowserViewItem* item) mutable {
                           if (item == &folder && !std::exchange(done, true)) {
                               slot();
                           }
                       }));
    }
};

// Order

TEST_F(EventWalkTest, AFolderComesBeforeThoseBelowWhateverTheOrderOfTheLists) {
    ShowEverywhere();
    EXPECT_THAT(HeardUpdate(),
                ElementsAre("ViewItemChanged /", "ViewItemChanged a", "ViewItemChanged b",
                            "ViewItemChanged c", "ViewItemChanged d"));
}

TEST_F(EventWalkTest, AFolderThatIsMadeLaterStandsBehindItsSiblingsAndBeforeTheNextOfItsParent) {
    ShowEverywhere();
    Show(Folder("late", &a), part);
    EXPECT_THAT(HeardUpdate(),
                ElementsAre("ViewItemChanged /", "ViewItemChanged a", "ViewItemChanged b",
                            "ViewItemChanged late", "ViewItemChanged c", "ViewItemChanged d"));
}

TEST_F(EventWalkTest, TheOrderOutlastsFoldersThatGo) {
    auto& first = Folder("first", &a);
    Show(first, part);
    for (int i = 0; i < 100; ++i) {
        auto& passing = Folder("passing", &a);
        Show(passing, part);
        ASSERT_TRUE(view.DeleteFreeFolder(&passing, true));
    }
    auto& last = Folder("last", &a);
    Show(last, part);
    Show(b, part);
    EXPECT_THAT(HeardUpdate(),
                ElementsAre("ViewItemChanged b", "ViewItemChanged first", "ViewItemChanged last"));
}

// Which folders

TEST_F(EventWalkTest, AListThatHasLeftHearsNothing) {
    ShowEverywhere();
    ASSERT_TRUE(view.DeleteList(&a, &part));
    ASSERT_TRUE(view.DeleteFreeFolder(&c, true));
    signals.Discard();
    EXPECT_THAT(HeardUpdate(), ElementsAre("ViewItemChanged /", "ViewItemChanged b"));
}

TEST_F(EventWalkTest, AListThatCameBackHearsAgain) {
    Show(a, part);
    ASSERT_TRUE(view.DeleteList(&a, &part));
    Show(a, part);
    view.OnDataItemCreated(&part.Add("pin_3"), false);
    EXPECT_THAT(signals.take(), ElementsAre("ViewItemCreated pin_3", "ViewItemChanged a"));
}

TEST_F(EventWalkTest, AListThatWasGroupedForATimeHearsAgain) {
    Show(a, part);
    ASSERT_TRUE(a.SetListGrouped(&part, true));
    ASSERT_TRUE(a.SetListGrouped(&part, false));
    signals.Discard();
    view.OnDataItemCreated(&part.Add("pin_3"), false);
    EXPECT_THAT(signals.take(), ElementsAre("ViewItemCreated pin_3", "ViewItemChanged a"));
}

TEST_F(EventWalkTest, ASecondListIsNoReasonToForgetTheFirst) {
    Show(a, part);
    Show(a, tool);
    ASSERT_TRUE(view.DeleteList(&a, &tool));
    signals.Discard();
    EXPECT_THAT(HeardUpdate(), ElementsAre("ViewItemChanged a"));
}

TEST_F(EventWalkTest, AnEmptyListHearsOfItsFirstItem) {
    auto& gauge = Connected("gauge", {});
    Show(a, gauge);
    view.OnDataItemCreated(&gauge.Add("rule_1"), false);
    EXPECT_EQ(Rows(a), (Names{"b", "rule_1"}));
    signals.Discard();
}

TEST_F(EventWalkTest, AListHearsAgainAfterARebuildOfEverything) {
    Show(a, part);
    view.OnDataItemsRebuildAll();
    EXPECT_THAT(HeardUpdate(), ElementsAre("ViewItemChanged a"));
}

TEST_F(EventWalkTest, AListHearsAgainAfterItsContentWasBuiltAnew) {
    ASSERT_TRUE(view.SetFreeFolderGroupLeafs(&a, true));
    ASSERT_TRUE(view.SetFreeFolderShowEmptyContainers(&a, true));
    ASSERT_TRUE(view.SetFreeFolderGroupLeafs(&a, false));
    Show(a, part);
    EXPECT_THAT(HeardUpdate(), ElementsAre("ViewItemChanged a"));
}

TEST_F(EventWalkTest, ARowIsDeletedWithTheListOfAnotherSource) {
    part["nut_2"].source = &tool;
    Show(a, part);
    Show(b, part);
    view.OnDataItemDeleted(&part["nut_2"]);
    EXPECT_EQ(Rows(a), (Names{"b", "bolt_1"}));
    EXPECT_EQ(Rows(b), (Names{"bolt_1"}));
    signals.Discard();
}

TEST_F(EventWalkTest, ARowThatASlotMakesAnewIsKnownAfterTheListOfItsSourceHasGone) {
    auto& nut = part["nut_2"];
    nut.source = &tool;
    Show(a, part);
    Show(a, tool);
    OnceChanged(a, [&] { view.CreateDataDependentViewItems(true); });
    ASSERT_TRUE(view.DeleteList(&a, &tool));
    signals.Discard();
    view.OnDataItemUpdated(&nut);
    EXPECT_THAT(signals.take(), ElementsAre("ViewItemChanged a"));
}

TEST_F(EventWalkTest, AnEventOfOneSourceGivesEachFolderAHolder) {
    Show(c, tool);
    view.OnDataItemUpdated(&tool["saw_1"]);
    auto& fresh = Folder("fresh");
    Folder("below", &fresh);
    view.OnDataItemUpdated(&tool["saw_1"]);
    for (auto* const folder : {&a, &fresh}) {
        EXPECT_EQ(ThrownText([&] { view.DeleteFreeFolder(folder, false); }),
                  "Cannot delete non-empty folder. Use deletecontent flag or delete all content "
                  "first.");
    }
    signals.Discard();
}

TEST_F(EventWalkTest, AnItemOfATreeIsAskedOncePerFolderWhetherItIsHidden) {
    auto& tree = ConnectedTree("assembly");
    auto& engine = tree.Add(host.Source("assembly_type"), "engine");
    host.Controller().OnDataItemCreated(&engine, false);
    EXPECT_EQ(host.calls.Count("IsHiddenFromTree", "engine"), 5U);
    EXPECT_THAT(signals.take(), IsEmpty());
}

TEST_F(EventWalkTest, RenumberingASourceThatNoFolderShowsSortsAllListsAnew) {
    auto& gauge = Connected("gauge", {});
    Show(a, part);
    Show(b, part);
    view.SetAscendingOrder(view.GetDefaultColumn(), true);
    ASSERT_EQ(Rows(b), (Names{"bolt_1", "nut_2"}));
    part["bolt_1"].Rename("zinc_1");
    ASSERT_EQ(Rows(b), (Names{"zinc_1", "nut_2"}));

    view.OnDataSourceRenumbered(&gauge);

    EXPECT_EQ(Rows(a), (Names{"b", "nut_2", "zinc_1"}));
    EXPECT_EQ(Rows(b), (Names{"nut_2", "zinc_1"}));
    signals.Discard();
}

// What slots do on the way

TEST_F(EventWalkTest, AFolderThatASlotDeletesIsPassedOverAndThoseBehindItAreNot) {
    ShowEverywhere();
    OnceChanged(Root(), [&] { view.DeleteFreeFolder(&b, true); });
    view.OnDataItemCreated(&part.Add("pin_3"), false);
    EXPECT_THAT(Rows(a), ElementsAre("bolt_1", "nut_2", "pin_3"));
    EXPECT_THAT(Rows(d), ElementsAre("bolt_1", "nut_2", "pin_3"));
    signals.Discard();
}

TEST_F(EventWalkTest, TheFolderThatHearsMayGoAndThoseBehindItHearAllTheSame) {
    ShowEverywhere();
    OnceChanged(a, [&] { view.DeleteFreeFolder(&a, true); });
    view.OnDataItemCreated(&part.Add("pin_3"), false);
    EXPECT_THAT(Rows(d), ElementsAre("bolt_1", "nut_2", "pin_3"));
    signals.Discard();
}

TEST_F(EventWalkTest, AListThatASlotTakesOutIsPassedOver) {
    ShowEverywhere();
    OnceChanged(a, [&] { view.DeleteList(&c, &part); });
    view.OnDataItemCreated(&part.Add("pin_3"), false);
    EXPECT_THAT(Rows(c), ElementsAre("d"));
    EXPECT_THAT(Rows(d), ElementsAre("bolt_1", "nut_2", "pin_3"));
    signals.Discard();
}

TEST_F(EventWalkTest, AnItemThatASlotFreesIsUpdatedInTheNextViewToo) {
    auto& other = host.OldView("other");
    other.DataSourceConnect(&part);
    other.CreateList(other.GetRootFreeFolder(), &part, false);
    Show(a, part);
    OnceChanged(a, [&] { part.Delete("bolt_1"); });

    host.Controller().OnDataItemSimpleUpdated(&part["bolt_1"]);

    EXPECT_THAT(signals.take(), ElementsAre("ViewItemChanged a", "ViewItemChanged /"));
}

TEST_F(EventWalkTest, AnItemThatItsSourceDoesNotListIsTakenFromWithinASlotToo) {
    Show(b, part);
    auto& hidden = tool.Add("hidden_2");
    tool.Unlist(hidden);
    Show(c, tool);
    OnceChanged(a, [&] { view.OnDataItemCreated(&hidden, false); });
    a.SetTextBold(true);
    EXPECT_EQ(Rows(c), (Names{"d", "saw_1", "hidden_2"}));
    signals.Discard();
}

TEST_F(EventWalkTest, AFolderThatASlotMakesMeanwhileDoesNotHear) {
    Show(a, part);
    int made = 0;
    auto const connection = signals.On(&zbBrowserSignalManager::ViewItemChanged, [&](auto*) {
        if (++made > 10) {
            return;
        }
        view.CreateFreeFolder(&Root(), "made");
        view.CreateList(Root().FindChildFreeFolder("made"), &part, false);
    });

    view.OnDataItemCreated(&part.Add("pin_3"), false);

    EXPECT_EQ(made, 1);
    EXPECT_THAT(Rows(*Root().FindChildFreeFolder("made")), ElementsAre("bolt_1", "nut_2", "pin_3"));
    signals.Discard();
}

TEST_F(EventWalkTest, ARefreshPassesOverFoldersThatASlotMakesMeanwhile) {
    Show(c, tool);
    tool["saw_1"].dirty = true;
    int made = 0;
    auto const connection =
        signals.On(&zbBrowserSignalManager::ViewItemChanged, [&](zbIBrowserViewItem* row) {
            if (++made > 10) {
                return;
            }
            auto* const folder = row->GetParentFreeFolder();
            view.CreateFreeFolder(folder, "made");
            view.CreateList(folder->FindChildFreeFolder("made"), &tool, false);
        });

    view.OnAllDirtyDataItemsRebuild();

    EXPECT_EQ(made, 1);
    signals.Discard();
}

TEST_F(EventWalkTest, ARebuildEndsThoughTheHostMakesAFolderEachTimeItBeginsOne) {
    Show(c, tool);
    tool.dirty = true;
    constexpr int endless = 1000;
    int made = 0;
    bool isMaking = false;
    zbIBrowserViewItemFreeFolder* last = &d;
    host.calls.On("BeginLongOperation", [&] {
        if (isMaking || made == endless) {
            return;
        }
        isMaking = true;
        ++made;
        view.CreateFreeFolder(last, "made");
        last = last->FindChildFreeFolder("made");
        isMaking = false;
    });

    view.OnAllDirtyDataListsRebuild();

    EXPECT_LT(made, endless);
    signals.Discard();
}

TEST_F(EventWalkTest, AfterASlotHasRunAFolderAsksTheSourceForTheItemFirst) {
    auto& hidden = part.Add("hidden_3");
    part.Unlist(hidden);
    Show(b, part);
    Show(c, part);
    view.OnDataItemCreated(&hidden, false);
    EXPECT_THAT(signals.take(), ElementsAre("ViewItemCreated hidden_3", "ViewItemChanged b"));
    EXPECT_THAT(Rows(c), ElementsAre("d", "bolt_1", "nut_2"));
}

// Busy folders

TEST_F(EventWalkTest, WhatHasHeardIsNotBusyWhileTheNextOneHears) {
    ShowEverywhere();
    std::vector<bool> expands;
    OnceChanged(d, [&] {
        for (auto* const folder : {&a, &b, &c, &d, &Root()}) {
            expands.push_back(view.ExpandFreeFolder(folder, false));
        }
    });
    view.OnDataItemCreated(&part.Add("pin_3"), false);
    EXPECT_THAT(expands, ElementsAre(true, true, false, false, false));
    signals.Discard();
}

TEST_F(EventWalkTest, AFolderThatHasHeardStaysBusyWhileOneBelowItHears) {
    ShowEverywhere();
    std::vector<bool> expands;
    OnceChanged(b, [&] {
        for (auto* const folder : {&a, &b, &Root()}) {
            expands.push_back(view.ExpandFreeFolder(folder, false));
        }
    });
    view.OnDataItemCreated(&part.Add("pin_3"), false);
    EXPECT_THAT(expands, ElementsAre(false, false, false));
    signals.Discard();
}

TEST_F(EventWalkTest, NoFolderIsBusyAfterOneWentWhileItHeard) {
    Show(b, part);
    OnceChanged(b, [&] { view.DeleteFreeFolder(&b, true); });
    view.OnDataItemCreated(&part.Add("pin_3"), false);
    EXPECT_TRUE(view.ExpandFreeFolder(&a, false));
    EXPECT_TRUE(view.ExpandFreeFolder(&Root(), false));
    signals.Discard();
}

TEST_F(EventWalkTest, TheFolderThatHearsAndThoseAboveItAreBusyAndNoOthers) {
    Show(b, part);
    std::vector<bool> expands;
    OnceChanged(b, [&] {
        for (auto* const folder : {&b, &a, &Root(), &c}) {
            expands.push_back(view.ExpandFreeFolder(folder, false));
        }
    });
    view.OnDataItemCreated(&part.Add("pin_3"), false);
    EXPECT_THAT(expands, ElementsAre(false, false, false, true));
    EXPECT_TRUE(view.ExpandFreeFolder(&b, false)) << "afterwards it is not";
    signals.Discard();
}

TEST_F(EventWalkTest, AnExceptionLeavesTheFolderThatHeardAndThoseAboveItBusy) {
    Show(b, part);
    Show(d, part);
    OnceChanged(b, [] { throw "slot failed"; });
    EXPECT_EQ(ThrownText([&] { view.OnDataItemCreated(&part.Add("pin_3"), false); }),
              "slot failed");
    EXPECT_FALSE(view.ExpandFreeFolder(&b, false));
    EXPECT_FALSE(view.ExpandFreeFolder(&a, false));
    EXPECT_FALSE(view.ExpandFreeFolder(&Root(), false));
    EXPECT_TRUE(view.ExpandFreeFolder(&d, false));
    signals.Discard();
}

TEST_F(EventWalkTest, BelowABusyFolderNoRowIsFound) {
    Show(a, part);
    Show(b, part);
    Show(c, part);
    std::vector<zbIBrowserViewItem*> found;
    std::vector<zbIBrowserViewItem*> parents;
    signals.Once(&zbBrowserSignalManager::ViewItemCollapsed,
                 [&](auto*) { view.GetDataDependentViewItems(&part["bolt_1"], found, parents); });
    ASSERT_TRUE(view.ExpandFreeFolder(&a, false));
    ASSERT_TRUE(view.CollapseFreeFolder(&a, false));
    EXPECT_THAT(parents, ElementsAre(&c));
    signals.Discard();
}

} // namespace
