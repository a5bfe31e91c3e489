// SPDX-License-Identifier: MIT
//! \file
//! A manager that a host holds longer than the view.
#include "SelectionTest.h"

namespace zbtest {
namespace {

using testing::IsEmpty;

template <class Generation>
class SelectionWithoutView : public SelectionTest<Generation> {};

TYPED_TEST_SUITE(SelectionWithoutView, Generations, GenerationName);

TYPED_TEST(SelectionWithoutView, AManagerIsEmptyAndTellsNobody) {
    this->Select({&this->a});
    this->manager.SetDropItem(&this->b);
    auto* const gone = &this->a;
    this->host.DeleteView(this->view);
    this->signals.Discard();
    this->signals.ListenToAll();

    this->manager.UpdateSelection({gone}, true, true);
    this->manager.UpdatePreviousSelection();
    this->manager.OnSelectionChangeFinished();
    RecordingNotifier notifier;
    this->manager.AddNotifier(&notifier);
    this->manager.OnPopupSelection(true);
    this->manager.SetDropItem(gone);

    EXPECT_EQ(this->Selected(), "[]");
    EXPECT_FALSE(this->manager.IsViewItemSelected(gone));
    EXPECT_FALSE(this->manager.IsDropOnFreeFolder());
    EXPECT_EQ(this->manager.GetDropItem(), nullptr);
    EXPECT_THAT(notifier.take(), IsEmpty());
    EXPECT_THAT(this->signals.take(), IsEmpty());
}

// Data

void ExpectNoDataItems(zbIBrowserSelectionManager& manager) {
    zbBrowserDataItemMap map;
    std::vector<zbIBrowserDataItemSimple*> flat;
    std::vector<zbIBrowserDataItemHierarchical*> ofTrees;
    std::set<zbIBrowserDataItemSimple*> flatSet;
    std::set<zbIBrowserDataItemHierarchical*> ofTreesSet;
    zbIBrowserDataSourceSimple* const source = nullptr;
    zbIBrowserDataSourceHierarchical* const tree = nullptr;

    EXPECT_FALSE(manager.GetSelectedDataItems(map, flat, ofTrees, true));
    EXPECT_FALSE(manager.GetSelectedDataItems(flat, true));
    EXPECT_FALSE(manager.GetSelectedDataItems(ofTrees, true));
    EXPECT_FALSE(manager.GetSelectedDataItems(flatSet, true));
    EXPECT_FALSE(manager.GetSelectedDataItems(ofTreesSet, true));
    EXPECT_FALSE(manager.GetSelectedDataItemsOfSource(source, flat, true));
    EXPECT_FALSE(manager.GetSelectedDataItemsOfSource(source, flatSet, true));
    EXPECT_FALSE(manager.GetSelectedDataItemsOfSource(tree, ofTrees, true));
    EXPECT_FALSE(manager.GetSelectedDataItemsOfSource(tree, ofTreesSet, true));
}

void ExpectNoSources(zbIBrowserSelectionManager& manager) {
    std::set<zbIBrowserDataSource*> sources;
    std::set<zbIBrowserDataSourceSimple*> flatSources;
    std::set<zbIBrowserDataSourceHierarchical*> trees;

    EXPECT_FALSE(manager.GetSelectedDataSources(sources, true));
    EXPECT_FALSE(manager.GetSelectedDataSources(flatSources, true));
    EXPECT_FALSE(manager.GetSelectedDataSourcesHierarchical(trees, true));
}

//! The property may have gone with the view.
void ExpectNoText(zbIBrowserSelectionManager& manager, RecordingHost& host,
                  zbIBrowserViewProperty* property) {
    zbIBrowserDataSourceSimple* const part = &host.Source("part");
    zbIBrowserDataSourceHierarchical* const tree = &host.Tree("assembly", host.Source("part"));
    zbString text;

    EXPECT_FALSE(manager.GetSelectedPropertyText(property, text));
    EXPECT_FALSE(manager.GetSelectedPropertyTextOfSource(part, property, text));
    EXPECT_FALSE(manager.GetSelectedPropertyTextOfSource(part, property, property, text, true));
    EXPECT_FALSE(manager.GetSelectedPropertyTextOfSource(tree, property, property, text, true));
}

void ExpectNoFoldersAndNoName(zbIBrowserSelectionManager& manager) {
    std::set<zbIBrowserViewItemFreeFolder*> folderSet{nullptr};
    std::vector<zbIBrowserViewItemFreeFolder*> folders{nullptr};
    zbString name = "other";

    EXPECT_FALSE(manager.GetSelectedFreeFolders(folderSet));
    EXPECT_FALSE(manager.GetSelectedFreeFolders(folders));
    EXPECT_FALSE(manager.GetViewName(name));

    EXPECT_THAT(folderSet, IsEmpty());
    EXPECT_THAT(folders, IsEmpty());
    EXPECT_EQ(name, "");
}

TYPED_TEST(SelectionWithoutView, WhatAsksTheViewAnswersFalse) {
    auto* const property = this->view.FindViewProperty("default_name_prop");
    this->host.DeleteView(this->view);
    this->signals.Discard();

    ExpectNoDataItems(this->manager);
    ExpectNoSources(this->manager);
    ExpectNoText(this->manager, this->host, property);
    ExpectNoFoldersAndNoName(this->manager);
}

// In a slot

TYPED_TEST(SelectionWithoutView, AManagerIsEmptyAsSoonAsASlotHasDeletedTheView) {
    this->Select({&this->a});
    this->manager.SetDropItem(&this->a);
    this->signals.Once(&zbBrowserSignalManager::ViewItemsSelected, [this](Items&) {
        this->host.DeleteView(this->view);
        EXPECT_EQ(this->Selected(), "[]");
        EXPECT_FALSE(this->manager.IsViewItemSelected(&this->a));
        EXPECT_FALSE(this->manager.IsDropOnFreeFolder());
        EXPECT_EQ(this->manager.GetDropItem(), nullptr);
        Items changed;
        EXPECT_FALSE(this->manager.GetChangedViewItems(changed));
    });

    this->manager.UpdateSelection({&this->b}, true, false);

    EXPECT_EQ(this->signals.Count("ViewItemsSelected"), 1U);
    this->signals.Discard();
}

TYPED_TEST(SelectionWithoutView, WhatAsksTheViewAnswersFalseAsSoonAsASlotHasDeletedIt) {
    this->Select({&this->a});
    auto* const property = this->view.FindViewProperty("default_name_prop");
    this->signals.Once(&zbBrowserSignalManager::ViewItemsSelected, [&](Items&) {
        this->host.DeleteView(this->view);
        ExpectNoDataItems(this->manager);
        ExpectNoSources(this->manager);
        ExpectNoText(this->manager, this->host, property);
        ExpectNoFoldersAndNoName(this->manager);
    });

    this->manager.UpdateSelection({&this->b}, true, false);

    EXPECT_EQ(this->signals.Count("ViewItemsSelected"), 1U);
    this->signals.Discard();
}

TYPED_TEST(SelectionWithoutView, NothingIsTakenInAsSoonAsASlotHasDeletedTheView) {
    RecordingNotifier notifier;
    this->signals.Once(&zbBrowserSignalManager::ViewItemsSelected, [&](Items&) {
        this->host.DeleteView(this->view);
        this->manager.AddNotifier(&notifier);
        this->manager.UpdateSelection({&this->a}, true, true);
        this->manager.SetDropItem(&this->a);
        EXPECT_EQ(this->Selected(), "[]");
        EXPECT_FALSE(this->manager.IsDropOnFreeFolder());
    });

    this->manager.UpdateSelection({&this->b}, true, false);

    EXPECT_THAT(notifier.take(), IsEmpty());
    EXPECT_EQ(this->signals.Count("SelectionClearing"), 0U);
    this->signals.Discard();
}

TYPED_TEST(SelectionWithoutView, AChangeInWhoseClearingTheViewIsDeletedSelectsNothing) {
    this->signals.Once(&zbBrowserSignalManager::SelectionClearing,
                       [this](auto*) { this->host.DeleteView(this->view); });
    this->signals.Once(&zbBrowserSignalManager::ViewItemsSelected, [this](Items&) {
        this->manager.UpdateSelection({&this->a}, true, true);
        EXPECT_EQ(this->Selected(), "[]");
        Items changed;
        EXPECT_FALSE(this->manager.GetChangedViewItems(changed));
    });

    this->manager.UpdateSelection({&this->b}, true, false);

    EXPECT_EQ(this->signals.Count("SelectionClearing"), 1U);
    this->signals.Discard();
}

} // namespace
} // namespace zbtest
