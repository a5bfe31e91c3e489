// SPDX-License-Identifier: MIT
//! \file
//! What slots of one data event report and rebuild: some of it is dropped, the rest takes place.

#include "ViewTestSupport.h"

#include <zbBrowserView/zbBrowserViewCtrl.h>
#include <zbBrowserView/zbIBrowserSelectionManager.h>

namespace {

using testing::ElementsAre;
using zbtest::Names;
using zbtest::RecordingSource;

//! The folder a shows part.
class EventGuardsTest : public zbtest::ViewTest {
protected:
    EventGuardsTest() { Show(a, part); }

    //! Reports an update of an item and does the deed in the slot that hears of it. No folder is
    //! busy then.
    template <class Deed>
    void WithinAnUpdate(Deed deed) {
        signals.Once(&zbBrowserSignalManager::ViewItemChanged, [deed](auto*) { deed(); });
        view.OnDataItemUpdated(&part["bolt_1"]);
        signals.Discard();
    }
    //! Expands the folder a and does the deed in the slot that hears of it, while a is busy.
    template <class Deed>
    void WhileTheFolderIsBusy(Deed deed) {
        signals.Once(&zbBrowserSignalManager::ViewItemExpanded, [deed](auto*) { deed(); });
        ASSERT_TRUE(view.ExpandFreeFolder(&a, false));
        signals.Discard();
    }

    void SelectNut() {
        view.OnDataItemsSelected(std::vector<zbIBrowserDataItemSimple*>{&part["nut_2"]}, {}, false);
    }

    RecordingSource& part = Connected("part", {"bolt_1", "nut_2"});
    FreeFolder& a = Folder("a");
};

// Dropped

TEST_F(EventGuardsTest, ADeletionFromWithinAnUpdateIsDropped) {
    WithinAnUpdate([this] { view.OnDataItemDeleted(&part["nut_2"]); });
    EXPECT_EQ(Rows(a), (Names{"bolt_1", "nut_2"}));
}

TEST_F(EventGuardsTest, ACreationInATreeFromWithinAnUpdateIsDropped) {
    auto& engine = ConnectedTree("assembly").Add(host.Source("assembly_type"), "engine");
    WithinAnUpdate([&] { view.OnDataItemCreated(&engine, false); });
    EXPECT_EQ(host.calls.Count("IsHiddenFromTree", "engine"), 0U);
}

// Not dropped

TEST_F(EventGuardsTest, RowsAreRefreshedFromWithinAnUpdate) {
    WithinAnUpdate([this] { view.OnAllDirtyDataItemsRebuild(); });
    EXPECT_EQ(host.calls.Count("IsDirty", "nut_2"), 1U);
}

TEST_F(EventGuardsTest, DirtyListsAreRebuiltFromWithinAnUpdate) {
    part.Add("pin_3");
    part.dirty = true;
    WithinAnUpdate([this] { view.OnAllDirtyDataListsRebuild(); });
    EXPECT_EQ(Rows(a), (Names{"bolt_1", "nut_2", "pin_3"}));
}

TEST_F(EventGuardsTest, DirtyListsAreRedrawnFromWithinAnUpdate) {
    part.dirty = true;
    WithinAnUpdate([this] { view.RedrawAllDirtyDataLists(false); });
    EXPECT_FALSE(part.dirty);
}

// Busy folders

TEST_F(EventGuardsTest, TheDataSideSelectsRowsOfABusyFolder) {
    auto* const nut = Row(a, "nut_2");
    WhileTheFolderIsBusy([this] { SelectNut(); });
    EXPECT_TRUE(view.GetSelectionManager()->IsViewItemSelected(nut));
}

TEST_F(EventGuardsTest, TheDataSideDeselectsRowsOfABusyFolder) {
    auto* const nut = Row(a, "nut_2");
    view.GetSelectionManager()->UpdateSelection({nut}, true, true);
    WhileTheFolderIsBusy([this] { view.OnDataItemsDeselected({&part["nut_2"]}, {}); });
    EXPECT_FALSE(view.GetSelectionManager()->IsViewItemSelected(nut));
}

TEST_F(EventGuardsTest, ASelectionGivesABusyFolderAHolder) {
    auto& unused = Folder("unused");
    signals.Once(&zbBrowserSignalManager::ViewItemExpanded, [&](auto*) { SelectNut(); });
    ASSERT_TRUE(view.ExpandFreeFolder(&unused, false));
    signals.Discard();
    Folder("below", &unused);
    EXPECT_EQ(
        zbtest::ThrownText([&] { view.DeleteFreeFolder(&unused, false); }),
        "Cannot delete non-empty folder. Use deletecontent flag or delete all content first.");
}

} // namespace
