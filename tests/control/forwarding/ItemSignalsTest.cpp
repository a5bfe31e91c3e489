// SPDX-License-Identifier: MIT
//! \file
//! The signals that the controller raises for others.
#include "ControlTest.h"
#include "support/SignalRecorder.h"

#include <zbBrowserView/host/zbBrowserDataSignalManager.h>

namespace zbtest {
namespace {

class ItemSignals : public ControlTest {
protected:
    ItemSignals() {
        zbBrowserView& view = Old("view");
        bolt.view = nut.view = &view;
    }

    FolderDouble bolt{nullptr, "bolt"};
    FolderDouble nut{nullptr, "nut"};
    zbBrowserDataSignalManager dataSignals;
    SignalRecorder recorder{signals, dataSignals};
};

TEST_F(ItemSignals, OfACreatedItemSayThatItIsDeleted) {
    ctrl->OnViewItemCreated(&bolt);

    EXPECT_THAT(recorder.take(), ElementsAre("ViewItemDeleted bolt"));
}

TEST_F(ItemSignals, OfADeletedItem) {
    ctrl->OnViewItemDeleted(&bolt);

    EXPECT_THAT(recorder.take(), ElementsAre("ViewItemDeleted bolt"));
}

TEST_F(ItemSignals, OfCreatedItemsSayOfEachThatItIsDeleted) {
    ctrl->OnViewItemsCreated({&nut, &bolt});

    EXPECT_THAT(recorder.take(), ElementsAre("ViewItemDeleted nut", "ViewItemDeleted bolt"));
}

TEST_F(ItemSignals, OfDeletedItemsComeForEach) {
    ctrl->OnViewItemsDeleted({&nut, &bolt});

    EXPECT_THAT(recorder.take(), ElementsAre("ViewItemDeleted nut", "ViewItemDeleted bolt"));
}

TEST_F(ItemSignals, OfAChangedItem) {
    ctrl->OnViewItemChanged(&bolt);

    EXPECT_THAT(recorder.take(), ElementsAre("ViewItemChanged bolt"));
}

TEST_F(ItemSignals, OfUpdatedItemsSayOfEachThatItIsChanged) {
    ctrl->OnViewItemsUpdated({&nut, &bolt});

    EXPECT_THAT(recorder.take(), ElementsAre("ViewItemChanged nut", "ViewItemChanged bolt"));
}

TEST_F(ItemSignals, OfUpdatedItemsGoThroughTheVirtualOperation) {
    class Counting : public zbBrowserViewCtrl {
    public:
        using zbBrowserViewCtrl::zbBrowserViewCtrl;
        void OnViewItemChanged(zbIBrowserViewItem*) override { ++changes; }
        int changes = 0;
    };
    Counting counting(&manager);

    counting.OnViewItemsUpdated({&nut, &bolt});

    EXPECT_EQ(counting.changes, 2);
}

TEST_F(ItemSignals, OfARedrawCarryTheFlag) {
    ctrl->OnViewItemRedraw(&bolt, true);
    ctrl->OnViewItemRedraw(&bolt, false);

    EXPECT_THAT(recorder.take(),
                ElementsAre("ViewItemRedraw bolt true", "ViewItemRedraw bolt false"));
}

TEST_F(ItemSignals, OfSelectedAndDeselectedItems) {
    ctrl->OnViewItemSelected(&bolt);
    ctrl->OnViewItemDeselected(&nut);

    EXPECT_THAT(recorder.take(), ElementsAre("ViewItemSelected bolt", "ViewItemDeselected nut"));
}

TEST_F(ItemSignals, OfListsOfItemsComeOnceWithTheList) {
    std::vector<zbIBrowserViewItem*> items{&nut, &bolt};

    ctrl->OnViewItemsSelected(items);
    ctrl->OnViewItemsDeselected(items);

    EXPECT_THAT(recorder.take(),
                ElementsAre("ViewItemsSelected [nut bolt]", "ViewItemsDeselected [nut bolt]"));
}

TEST_F(ItemSignals, OfListsOfItemsHandOutTheListItself) {
    std::vector<zbIBrowserViewItem*> items{&nut, &bolt};
    auto const shorten = [](std::vector<zbIBrowserViewItem*>& list) { list.pop_back(); };
    auto const handle = recorder.On(&zbBrowserSignalManager::ViewItemsSelected, shorten);

    ctrl->OnViewItemsSelected(items);

    EXPECT_THAT(items, ElementsAre(&nut));
    recorder.Discard();
}

TEST_F(ItemSignals, OfAMovedItemNameItsNewParent) {
    ctrl->OnViewItemReparented(&bolt, &nut);

    EXPECT_THAT(recorder.take(), ElementsAre("ViewItemReparented bolt nut"));
}

TEST_F(ItemSignals, OfStyles) {
    ctrl->OnStyleCreated(nullptr);
    ctrl->OnStyleDeleted(nullptr);

    EXPECT_THAT(recorder.take(), ElementsAre("StyleCreated null", "StyleDeleted null"));
}

TEST_F(ItemSignals, AreNotRaisedWithoutASignalManager) {
    manager.signals = nullptr;
    std::vector<zbIBrowserViewItem*> items{&nut};

    ctrl->OnViewItemDeleted(&bolt);
    ctrl->OnViewItemsSelected(items);
    ctrl->OnViewItemsUpdated(items);

    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(ItemSignals, OfEachItemGoOnWhenASlotChangesTheCallersList) {
    std::vector<zbIBrowserViewItem*> items{&nut, &bolt};
    auto const forget = [&](zbIBrowserViewItem*) {
        std::vector<zbIBrowserViewItem*>().swap(items);
    };
    auto const changed = recorder.On(&zbBrowserSignalManager::ViewItemChanged, forget);
    auto const deleted = recorder.On(&zbBrowserSignalManager::ViewItemDeleted, forget);

    ctrl->OnViewItemsUpdated(items);
    EXPECT_THAT(recorder.take(), ElementsAre("ViewItemChanged nut", "ViewItemChanged bolt"));

    items = {&bolt, &nut};
    ctrl->OnViewItemsDeleted(items);
    EXPECT_THAT(recorder.take(), ElementsAre("ViewItemDeleted bolt", "ViewItemDeleted nut"));
}

} // namespace
} // namespace zbtest
