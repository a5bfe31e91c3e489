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

TYPED_TEST(SelectionWithoutView, WhatAsksTheViewAnswersFalse) {
    this->host.DeleteView(this->view);
    this->signals.Discard();
    std::set<zbIBrowserViewItemFreeFolder*> folderSet{nullptr};
    std::vector<zbIBrowserViewItemFreeFolder*> folders{nullptr};
    std::vector<zbIBrowserDataItemSimple*> flat;
    std::vector<zbIBrowserDataItemHierarchical*> ofTrees;
    std::set<zbIBrowserDataSource*> sources;
    std::set<zbIBrowserDataSourceSimple*> flatSources;
    std::set<zbIBrowserDataSourceHierarchical*> trees;
    zbBrowserDataItemMap map;
    zbString name = "other";

    EXPECT_FALSE(this->manager.GetSelectedFreeFolders(folderSet));
    EXPECT_FALSE(this->manager.GetSelectedFreeFolders(folders));
    EXPECT_FALSE(this->manager.GetSelectedDataItems(map, flat, ofTrees, true));
    EXPECT_FALSE(this->manager.GetSelectedDataItems(flat, true));
    EXPECT_FALSE(this->manager.GetSelectedDataItems(ofTrees, true));
    EXPECT_FALSE(this->manager.GetSelectedDataSources(sources, true));
    EXPECT_FALSE(this->manager.GetSelectedDataSources(flatSources, true));
    EXPECT_FALSE(this->manager.GetSelectedDataSourcesHierarchical(trees, true));
    EXPECT_FALSE(this->manager.GetViewName(name));

    EXPECT_THAT(folderSet, IsEmpty());
    EXPECT_THAT(folders, IsEmpty());
    EXPECT_EQ(name, "");
}

} // namespace
} // namespace zbtest
