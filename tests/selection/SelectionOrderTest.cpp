// SPDX-License-Identifier: MIT
//! \file
//! The order of virtual operations of the selection manager and its notifiers, which hosts are
//! compiled against.
#include "support/VirtualOrder.h"

#include <zbBrowserView/zbIBrowserSelectionManager.h>
#include <zbBrowserView/zbIBrowserSelectionNotifierBase.h>

#include <gtest/gtest.h>

#include <type_traits>

namespace zbtest {
namespace {

class SelectionOrder : public testing::Test {
protected:
    void SetUp() override {
        if (!canReadVirtualSlots)
            GTEST_SKIP() << "this compiler represents pointers to members in another way";
    }
};

// Short, for the tables
using Manager = zbIBrowserSelectionManager;
using Map = zbBrowserDataItemMap;
using Flat = zbIBrowserDataSourceSimple;
using Tree = zbIBrowserDataSourceHierarchical;
using Property = zbIBrowserViewProperty;
using FlatItems = std::vector<zbIBrowserDataItemSimple*>;
using FlatItemSet = std::set<zbIBrowserDataItemSimple*>;
using TreeItems = std::vector<zbIBrowserDataItemHierarchical*>;
using TreeItemSet = std::set<zbIBrowserDataItemHierarchical*>;
using Folders = std::vector<zbIBrowserViewItemFreeFolder*>;
using FolderSet = std::set<zbIBrowserViewItemFreeFolder*>;

VirtualSlots SlotsOfChangesAndItems() {
    return {
        ZB_SLOT(Manager, UpdateSelection),
        ZB_SLOT(Manager, UpdatePreviousSelection),
        ZB_SLOT(Manager, ClearAll),
        ZB_SLOT(Manager, OnPopupSelection),
        ZB_SLOT(Manager, OnSelectionChangeFinished),
        ZB_SLOT(Manager, GetSelectedViewItems),
        ZB_SLOT(Manager, GetChangedViewItems),
        ZB_OVERLOAD_SLOT(Manager, GetSelectedDataItems, bool(Map&, FlatItems&, TreeItems&, bool)),
        ZB_OVERLOAD_SLOT(Manager, GetSelectedDataItems, bool(TreeItemSet&, bool)),
        ZB_OVERLOAD_SLOT(Manager, GetSelectedDataItems, bool(TreeItems&, bool)),
        ZB_OVERLOAD_SLOT(Manager, GetSelectedDataItems, bool(FlatItemSet&, bool)),
        ZB_OVERLOAD_SLOT(Manager, GetSelectedDataItems, bool(FlatItems&, bool)),
        ZB_OVERLOAD_SLOT(Manager, GetSelectedDataItemsOfSource, bool(Tree*, TreeItemSet&, bool)),
        ZB_OVERLOAD_SLOT(Manager, GetSelectedDataItemsOfSource, bool(Tree*, TreeItems&, bool)),
        ZB_OVERLOAD_SLOT(Manager, GetSelectedDataItemsOfSource, bool(Flat*, FlatItemSet&, bool)),
        ZB_OVERLOAD_SLOT(Manager, GetSelectedDataItemsOfSource, bool(Flat*, FlatItems&, bool)),
    };
}

VirtualSlots SlotsOfSourcesAndValues() {
    return {
        ZB_OVERLOAD_SLOT(Manager, GetSelectedDataSources, bool(std::set<Flat*>&, bool)),
        ZB_SLOT(Manager, GetSelectedDataSourcesHierarchical),
        ZB_OVERLOAD_SLOT(Manager, GetSelectedDataSources,
                         bool(std::set<zbIBrowserDataSource*>&, bool)),
        ZB_SLOT(Manager, GetSelectedPropertyText),
        ZB_OVERLOAD_SLOT(Manager, GetSelectedPropertyTextOfSource,
                         bool(zbIBrowserDataSource*, Property*, zbString&)),
        ZB_OVERLOAD_SLOT(Manager, GetSelectedPropertyTextOfSource,
                         bool(Flat*, Property*, Property*, zbString&, bool)),
        ZB_OVERLOAD_SLOT(Manager, GetSelectedPropertyTextOfSource,
                         bool(Tree*, Property*, Property*, zbString&, bool)),
    };
}

VirtualSlots SlotsOfFoldersDropAndNotifiers() {
    return {
        ZB_OVERLOAD_SLOT(Manager, GetSelectedFreeFolders, bool(FolderSet&)),
        ZB_OVERLOAD_SLOT(Manager, GetSelectedFreeFolders, bool(Folders&)),
        ZB_SLOT(Manager, GetSelectedDependentFolders),
        ZB_SLOT(Manager, GetDropDataItemSimple),
        ZB_SLOT(Manager, GetDropDataItemHierarchical),
        ZB_SLOT(Manager, GetDropDataSource),
        ZB_SLOT(Manager, IsDropOnFreeFolder),
        ZB_SLOT(Manager, SetDropItem),
        ZB_SLOT(Manager, GetDropItem),
        ZB_SLOT(Manager, ResetDropItem),
        ZB_SLOT(Manager, IsViewItemSelected),
        ZB_SLOT(Manager, SetSyncFlag),
        ZB_SLOT(Manager, GetSyncFlag),
        ZB_SLOT(Manager, ClearSelected),
        ZB_SLOT(Manager, AddNotifier),
        ZB_SLOT(Manager, RemoveNotifier),
        ZB_SLOT(Manager, ClearNotifiers),
        ZB_SLOT(Manager, GetLastSelect),
        ZB_SLOT(Manager, GetViewName),
    };
}

TEST_F(SelectionOrder, OfAManagerBeginsWithTheErrorReporter) {
    VirtualSlots slots;
    for (auto const& theme :
         {SlotsOfChangesAndItems(), SlotsOfSourcesAndValues(), SlotsOfFoldersDropAndNotifiers()})
        slots.insert(slots.end(), theme.begin(), theme.end());
    constexpr std::size_t behindReporter = 3; // Two entries of the destructor, and SetErrCommand

    EXPECT_EQ(slots.size(), 42U);
    EXPECT_EQ(slots, InThisOrder(slots, behindReporter));
    EXPECT_TRUE((std::is_base_of_v<zbBrowserErrorReporter, Manager>));
}

TEST_F(SelectionOrder, OfANotifierHasThreeOperationsAndNoDestructor) {
    using Notifier = zbIBrowserSelectionNotifierBase;
    VirtualSlots const slots{
        ZB_SLOT(Notifier, OnSelectionChanged),
        ZB_SLOT(Notifier, OnPopupSelection),
        ZB_SLOT(Notifier, OnSelectionFinished),
    };

    EXPECT_EQ(slots, InThisOrder(slots));
    EXPECT_FALSE(std::is_destructible_v<Notifier>);
}

} // namespace
} // namespace zbtest
