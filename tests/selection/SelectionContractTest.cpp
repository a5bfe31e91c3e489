// SPDX-License-Identifier: MIT
//! \file
//! What the selection managers of both generations do alike.
#include "SelectionTest.h"

namespace zbtest {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

template <class Generation>
class SelectionContract : public SelectionTest<Generation> {
protected:
    SelectionContract() { this->ListenToViewsOnly(); }
};

TYPED_TEST_SUITE(SelectionContract, Generations, GenerationName);

// Changing

TYPED_TEST(SelectionContract, NothingIsSelectedAtFirst) {
    EXPECT_EQ(this->Selected(), "[]");
    EXPECT_FALSE(this->manager.IsViewItemSelected(&this->a));
    EXPECT_TRUE(this->manager.GetSyncFlag());
}

TYPED_TEST(SelectionContract, ItemsAreSignalledAsTheyWereGivenAndListedByAddress) {
    this->manager.UpdateSelection({&this->b, &this->a}, true, false);

    EXPECT_THAT(this->signals.take(), ElementsAre("ViewItemsSelected [b a]"));
    EXPECT_EQ(this->Selected(), InOrder({&this->a, &this->b}));
}

TYPED_TEST(SelectionContract, SelectingAddsToWhatIsSelected) {
    this->Select({&this->a});

    this->manager.UpdateSelection({&this->c}, true, false);

    EXPECT_THAT(this->signals.take(), ElementsAre("ViewItemsSelected [c]"));
    EXPECT_EQ(this->Selected(), InOrder({&this->a, &this->c}));
}

TYPED_TEST(SelectionContract, AnItemThatIsSelectedAlreadyIsToldAgainWithAnother) {
    this->Select({&this->a});
    RecordingNotifier notifier;
    this->manager.AddNotifier(&notifier);

    this->manager.UpdateSelection({&this->a, &this->b}, true, false);

    EXPECT_THAT(notifier.take(), ElementsAre("selected [a b]", "finished"));
    EXPECT_THAT(this->signals.take(), ElementsAre("ViewItemsSelected [a b]"));
}

TYPED_TEST(SelectionContract, DeselectingTakesOutAndTells) {
    this->Select({&this->a, &this->b});
    RecordingNotifier notifier;
    this->manager.AddNotifier(&notifier);

    this->manager.UpdateSelection({&this->b, &this->c}, false, false);

    EXPECT_THAT(notifier.take(), ElementsAre("deselected [b c]", "finished"));
    EXPECT_THAT(this->signals.take(), ElementsAre("ViewItemsDeselected [b c]"));
    EXPECT_EQ(this->Selected(), "[a]");
}

TYPED_TEST(SelectionContract, ClearingTellsTheNotifiersAndRaisesNoDeselection) {
    this->Select({&this->a});
    RecordingNotifier notifier;
    this->manager.AddNotifier(&notifier);

    this->manager.UpdateSelection({}, false, true);

    EXPECT_THAT(notifier.take(), ElementsAre("deselected [a]"));
    EXPECT_THAT(this->signals.take(), ElementsAre("SelectionClearing view"));
    EXPECT_EQ(this->Selected(), "[]");
}

TYPED_TEST(SelectionContract, ClearingNothingIsToldAllTheSame) {
    RecordingNotifier notifier;
    this->manager.AddNotifier(&notifier);

    this->manager.UpdateSelection({}, true, true);

    EXPECT_THAT(notifier.take(), ElementsAre("deselected []"));
    EXPECT_THAT(this->signals.take(), ElementsAre("SelectionClearing view"));
}

TYPED_TEST(SelectionContract, ClearAndSelectLeavesTheNewItemsAlone) {
    this->Select({&this->a});
    RecordingNotifier notifier;
    this->manager.AddNotifier(&notifier);

    this->manager.UpdateSelection({&this->b}, true, true);

    EXPECT_THAT(notifier.take(), ElementsAre("deselected [a]", "selected [b]", "finished"));
    EXPECT_THAT(this->signals.take(),
                ElementsAre("SelectionClearing view", "ViewItemsSelected [b]"));
    EXPECT_EQ(this->Selected(), "[b]");
}

TYPED_TEST(SelectionContract, ClearAndSelectTheSameMakesADifference) {
    this->Select({&this->a});
    RecordingNotifier notifier;
    this->manager.AddNotifier(&notifier);

    this->manager.UpdateSelection({&this->a}, true, true);

    EXPECT_THAT(notifier.take(), ElementsAre("deselected [a]", "selected [a]", "finished"));
    EXPECT_THAT(this->signals.take(),
                ElementsAre("SelectionClearing view", "ViewItemsSelected [a]"));
}

TYPED_TEST(SelectionContract, SelectingNoItemsIsNothing) {
    RecordingNotifier notifier;
    this->manager.AddNotifier(&notifier);

    this->manager.UpdateSelection({}, true, false);
    this->manager.UpdateSelection({}, false, false);

    EXPECT_THAT(notifier.take(), IsEmpty());
    EXPECT_THAT(this->signals.take(), IsEmpty());
}

TYPED_TEST(SelectionContract, AnItemThatIsGivenTwiceIsSelectedOnce) {
    this->manager.UpdateSelection({&this->a, &this->a}, true, false);

    EXPECT_THAT(this->signals.take(), ElementsAre("ViewItemsSelected [a a]"));
    EXPECT_EQ(this->Selected(), "[a]");
}

// Bad input

TYPED_TEST(SelectionContract, NullAndItemsOfAnotherViewArePassedOver) {
    auto& foreign = *this->Another().GetRootFreeFolder();

    this->manager.UpdateSelection({nullptr, &foreign, &this->a}, true, false);
    this->manager.UpdateSelection({nullptr, &foreign}, true, false);

    EXPECT_THAT(this->signals.take(), ElementsAre("ViewItemsSelected [a]"));
    EXPECT_FALSE(this->manager.IsViewItemSelected(&foreign));
    EXPECT_FALSE(this->manager.IsViewItemSelected(nullptr));
}

TYPED_TEST(SelectionContract, DeselectingNullAndItemsOfAnotherViewIsNothing) {
    this->Select({&this->a});

    this->manager.UpdateSelection({nullptr, this->Another().GetRootFreeFolder()}, false, false);

    EXPECT_THAT(this->signals.take(), IsEmpty());
    EXPECT_EQ(this->Selected(), "[a]");
}

TYPED_TEST(SelectionContract, APointerToNothingIsComparedAndNotFollowed) {
    this->Select({&this->a});
    auto* const noItem = reinterpret_cast<zbIBrowserViewItem*>(0x1235);

    this->manager.UpdateSelection({noItem}, true, false);
    this->manager.UpdateSelection({noItem}, false, false);
    this->view.SetDropItem(noItem);
    this->view.DeselectViewItem(noItem, true);

    EXPECT_FALSE(this->manager.IsViewItemSelected(noItem));
    EXPECT_EQ(this->Selected(), "[a]");
}

// Silent changes and announcements

TYPED_TEST(SelectionContract, ClearAllIsSilentAndKeepsTheDropItem) {
    this->Select({&this->a});
    this->manager.SetDropItem(&this->b);
    RecordingNotifier notifier;
    this->manager.AddNotifier(&notifier);

    this->manager.ClearAll();

    EXPECT_EQ(this->Selected(), "[]");
    EXPECT_TRUE(this->manager.IsDropOnFreeFolder());
    EXPECT_THAT(notifier.take(), IsEmpty());
    EXPECT_THAT(this->signals.take(), IsEmpty());
}

TYPED_TEST(SelectionContract, ClearSelectedIsSilentAndForgetsTheDropItem) {
    this->Select({&this->a});
    this->manager.SetDropItem(&this->b);

    this->manager.ClearSelected();

    EXPECT_EQ(this->Selected(), "[]");
    EXPECT_FALSE(this->manager.IsDropOnFreeFolder());
    EXPECT_THAT(this->signals.take(), IsEmpty());
}

TYPED_TEST(SelectionContract, TheSelectionIsAnnouncedAsItStands) {
    this->view.UpdatePreviousSelection();
    this->Select({&this->a});
    this->signals.ListenToAll();

    this->view.UpdatePreviousSelection();

    EXPECT_THAT(this->signals.take(), ElementsAre("ViewItemsSelected [a]"));
}

TYPED_TEST(SelectionContract, AnEmptySelectionIsAnnouncedToo) {
    this->manager.UpdatePreviousSelection();

    EXPECT_THAT(this->signals.take(), ElementsAre("ViewItemsSelected []"));
}

TYPED_TEST(SelectionContract, ASlotThatChangesTheListChangesACopy) {
    Items given{&this->a};
    this->signals.Once(&zbBrowserSignalManager::ViewItemsSelected,
                       [](Items& items) { items.clear(); });

    this->manager.UpdateSelection(given, true, false);

    EXPECT_EQ(given.size(), 1U);
    EXPECT_EQ(this->Selected(), "[a]");
    this->signals.Discard();
}

TYPED_TEST(SelectionContract, ASlotThatChangesTheCallersListChangesNothing) {
    Items given{&this->a, &this->b};
    this->signals.Once(&zbBrowserSignalManager::SelectionClearing,
                       [&](zbIBrowserView*) { given = {&this->c}; });

    this->manager.UpdateSelection(given, true, true);

    EXPECT_THAT(this->signals.take(),
                ElementsAre("SelectionClearing view", "ViewItemsSelected [a b]"));
}

// Sync flag

TYPED_TEST(SelectionContract, AChangeSetsTheSyncFlag) {
    this->manager.SetSyncFlag(false);
    EXPECT_FALSE(this->manager.GetSyncFlag());

    this->manager.UpdateSelection({&this->a}, true, false);

    EXPECT_TRUE(this->manager.GetSyncFlag());
    this->signals.Discard();
}

TYPED_TEST(SelectionContract, ClearingAloneLeavesTheSyncFlag) {
    this->manager.SetSyncFlag(false);

    this->manager.UpdateSelection({}, false, true);

    EXPECT_FALSE(this->manager.GetSyncFlag());
    this->signals.Discard();
}

// Folders, drop item

TYPED_TEST(SelectionContract, WithoutSelectedFoldersTheSetFormIsFalseAndTheVectorFormTrue) {
    std::set<zbIBrowserViewItemFreeFolder*> set{&this->a};
    std::vector<zbIBrowserViewItemFreeFolder*> list{&this->a};

    EXPECT_FALSE(this->manager.GetSelectedFreeFolders(set));
    EXPECT_TRUE(this->manager.GetSelectedFreeFolders(list));

    EXPECT_THAT(set, IsEmpty());
    EXPECT_THAT(list, IsEmpty());
}

TYPED_TEST(SelectionContract, SelectedFoldersAreGivenInBothForms) {
    this->Select({&this->a, &this->c});
    std::set<zbIBrowserViewItemFreeFolder*> set;
    std::vector<zbIBrowserViewItemFreeFolder*> list;

    EXPECT_TRUE(this->manager.GetSelectedFreeFolders(set));
    EXPECT_TRUE(this->manager.GetSelectedFreeFolders(list));

    EXPECT_THAT(set, testing::UnorderedElementsAre(&this->a, &this->c));
    EXPECT_THAT(list, testing::UnorderedElementsAre(&this->a, &this->c));
}

TYPED_TEST(SelectionContract, ADropOnAFolderIsKnownUntilItIsReset) {
    this->view.SetDropItem(&this->a);
    EXPECT_TRUE(this->manager.IsDropOnFreeFolder());

    this->view.ResetDropItem();
    EXPECT_FALSE(this->manager.IsDropOnFreeFolder());
}

TYPED_TEST(SelectionContract, ADropOnNothingForgetsTheOneBefore) {
    this->manager.SetDropItem(&this->a);

    this->manager.SetDropItem(nullptr);

    EXPECT_FALSE(this->manager.IsDropOnFreeFolder());
}

TYPED_TEST(SelectionContract, ADropOnAnItemOfAnotherViewForgetsTheOneBefore) {
    this->manager.SetDropItem(&this->a);

    this->manager.SetDropItem(this->Another().GetRootFreeFolder());

    EXPECT_FALSE(this->manager.IsDropOnFreeFolder());
}

// Through the view and the controller

TYPED_TEST(SelectionContract, TheControllerSelectsInTheViewThatIsMeant) {
    auto& another = this->Another();

    this->host.Controller().OnUpdateViewSelection(&this->view, {&this->a}, true, false);

    EXPECT_THAT(this->signals.take(), ElementsAre("ViewItemsSelected [a]"));
    EXPECT_TRUE(this->host.Controller().IsViewItemSelected(&this->a));
    EXPECT_FALSE(this->host.Controller().IsViewItemSelected(another.GetRootFreeFolder()));
}

TYPED_TEST(SelectionContract, TheControllerReachesTheEndOfAChange) {
    this->signals.ListenToAll();
    this->signals.Only({"SelectionManagerChanged"});

    this->host.Controller().OnViewSelectionChangeFinished(&this->view);

    EXPECT_THAT(this->signals.take(), ElementsAre("SelectionManagerChanged data selection"));
}

TYPED_TEST(SelectionContract, DeselectingAllClears) {
    this->Select({&this->a, &this->b});

    this->view.DeselectAllViewItems();

    EXPECT_THAT(this->signals.take(), ElementsAre("SelectionClearing view"));
    EXPECT_EQ(this->Selected(), "[]");
}

TYPED_TEST(SelectionContract, AnItemIsDeselectedAlone) {
    this->Select({&this->b, &this->c});

    this->view.DeselectViewItem(&this->b, false);

    EXPECT_THAT(this->signals.take(), ElementsAre("ViewItemsDeselected [b]"));
    EXPECT_EQ(this->Selected(), "[c]");
}

TYPED_TEST(SelectionContract, AFolderIsDeselectedWithAllFoldersBelow) {
    this->Select({&this->a, &this->c});

    this->view.DeselectViewItem(&this->Root(), true);

    EXPECT_THAT(this->signals.take(), ElementsAre("ViewItemsDeselected [/ a b c]"));
    EXPECT_EQ(this->Selected(), "[]");
}

TYPED_TEST(SelectionContract, DeselectingAnItemOfAnotherViewIsNothing) {
    this->view.DeselectViewItem(this->Another().GetRootFreeFolder(), true);
    this->view.DeselectViewItem(nullptr, true);

    EXPECT_THAT(this->signals.take(), IsEmpty());
}

TYPED_TEST(SelectionContract, TheOneSelectedItemIsEdited) {
    EXPECT_FALSE(this->view.EditSelectedDataItem("rename"));
    this->Select({&this->a});

    EXPECT_TRUE(this->view.EditSelectedDataItem("rename"));

    EXPECT_THAT(this->signals.take(), ElementsAre("EditDataItem \"rename\" a"));
}

} // namespace
} // namespace zbtest
