// SPDX-License-Identifier: MIT
//! \file
//! The order of the virtual operations of the host interfaces. A host may have been compiled
//! against an older library, so operations keep their places and new ones come last.

#include "support/VirtualOrder.h"

#include <zbBrowserView/host/zbBrowserManager.h>
#include <zbBrowserView/host/zbIBrowserCollectorOperation.h>
#include <zbBrowserView/host/zbIBrowserDataCollector.h>
#include <zbBrowserView/host/zbIBrowserDataCtrl.h>
#include <zbBrowserView/host/zbIBrowserDataItemHierarchical.h>
#include <zbBrowserView/host/zbIBrowserDataItemSimple.h>
#include <zbBrowserView/host/zbIBrowserDataOperation.h>
#include <zbBrowserView/host/zbIBrowserDataProperty.h>
#include <zbBrowserView/host/zbIBrowserDataReference.h>
#include <zbBrowserView/host/zbIBrowserGuiMap.h>
#include <zbBrowserView/host/zbIBrowserGuiMapManager.h>
#include <zbBrowserView/host/zbIBrowserPanel.h>

#include <gtest/gtest.h>

namespace {

using zbtest::InThisOrder;
using zbtest::VirtualSlots;

class HostInterfaceOrder : public testing::Test {
protected:
    void SetUp() override {
        if (!zbtest::canReadVirtualSlots) {
            GTEST_SKIP() << "places of virtual operations cannot be read with this compiler";
        }
    }
};

TEST_F(HostInterfaceOrder, TheManagerKeepsItsOrder) {
    VirtualSlots const slots{
        ZB_SLOT(zbIBrowserManager, GetDataSignalManager),
        ZB_SLOT(zbIBrowserManager, GetGuiMapManager),
        ZB_SLOT(zbIBrowserManager, BeginLongOperation),
        ZB_SLOT(zbIBrowserManager, EndLongOperation),
        ZB_SLOT(zbIBrowserManager, EvaluateScript),
        ZB_SLOT(zbIBrowserManager, ShowViewItem),
        ZB_SLOT(zbIBrowserManager, GetBrowserPanel),
        ZB_SLOT(zbIBrowserManager, RegisterGuiMap),
        ZB_SLOT(zbIBrowserManager, RegisterGuiMapObject),
        ZB_SLOT(zbIBrowserManager, ShowCollectorButton),
        ZB_SLOT(zbIBrowserManager, GetSignalManager),
        ZB_SLOT(zbIBrowserManager, OnCollectorSwitchedOn),
    };
    EXPECT_EQ(slots, InThisOrder(slots));
}

TEST_F(HostInterfaceOrder, TheBaseOfManagersAddsNoPlaceOfItsOwn) {
    EXPECT_EQ(sizeof(zbBrowserManager), sizeof(zbIBrowserManager));
    EXPECT_EQ(zbtest::VirtualSlot(&zbBrowserManager::OnCollectorSwitchedOn), 11U);
}

TEST_F(HostInterfaceOrder, ThePanelKeepsItsOrder) {
    using Simple = std::vector<zbIBrowserDataItemSimple*>;
    using Hierarchical = std::vector<zbIBrowserDataItemHierarchical*>;
    using Any = std::vector<zbIBrowserDataItem*>;
    VirtualSlots const slots{
        ZB_SLOT(zbIBrowserPanel, GetActiveView),
        ZB_OVERLOAD_SLOT(zbIBrowserPanel, OnDataItemsSelected, void(Simple&, Hierarchical&, bool)),
        ZB_OVERLOAD_SLOT(zbIBrowserPanel, OnDataItemsSelected, void(Any const&, bool)),
        ZB_OVERLOAD_SLOT(zbIBrowserPanel, OnDataItemsDeselected, void(Simple&, Hierarchical&)),
        ZB_OVERLOAD_SLOT(zbIBrowserPanel, OnDataItemsDeselected, void(Any const&)),
        ZB_SLOT(zbIBrowserPanel, GetStringFromScript),
    };
    EXPECT_EQ(slots, InThisOrder(slots));
}

TEST_F(HostInterfaceOrder, GuiMapsKeepTheirOrder) {
    EXPECT_EQ(zbtest::VirtualSlot(&zbIBrowserGuiMapManager::FindGuiMap), 0U);
    VirtualSlots const slots{
        ZB_SLOT(zbIBrowserGuiMap, GetEntryKind),
        ZB_SLOT(zbIBrowserGuiMap, GetEntryValue),
    };
    EXPECT_EQ(slots, InThisOrder(slots));
}

TEST_F(HostInterfaceOrder, TheDataControlKeepsItsOrder) {
    VirtualSlots const slots{
        ZB_SLOT(zbIBrowserDataCtrl, GetName),
        ZB_SLOT(zbIBrowserDataCtrl, FindDataSourceSimple),
        ZB_SLOT(zbIBrowserDataCtrl, FindDataSourceHierarchical),
        ZB_SLOT(zbIBrowserDataCtrl, IsSelectionForwardingBlocked),
        ZB_SLOT(zbIBrowserDataCtrl, IsCollectorDisabledNew),
        ZB_SLOT(zbIBrowserDataCtrl, IsCollectorDisabled),
        ZB_SLOT(zbIBrowserDataCtrl, Release),
        ZB_SLOT(zbIBrowserDataCtrl, IsCollectorInUse),
        ZB_SLOT(zbIBrowserDataCtrl, FindDataOperation),
        ZB_SLOT(zbIBrowserDataCtrl, CompareDataSources),
        ZB_SLOT(zbIBrowserDataCtrl, SetCurrentDataItem),
        ZB_SLOT(zbIBrowserDataCtrl, FindCollectorType),
        ZB_SLOT(zbIBrowserDataCtrl, GetDirtyItems),
        ZB_SLOT(zbIBrowserDataCtrl, GetDeletedItems),
        ZB_SLOT(zbIBrowserDataCtrl, GetItems),
        ZB_SLOT(zbIBrowserDataCtrl, GetChangedLinks),
    };
    EXPECT_EQ(slots, InThisOrder(slots));
}

TEST_F(HostInterfaceOrder, SourcesKeepTheirOrder) {
    VirtualSlots const slots{
        ZB_SLOT(zbIBrowserDataSource, GetDataCtrl),
        ZB_SLOT(zbIBrowserDataSource, GetName),
        ZB_SLOT(zbIBrowserDataSource, GetTypeId),
        ZB_SLOT(zbIBrowserDataSource, IsDirty),
        ZB_SLOT(zbIBrowserDataSource, GetFolderScriptText),
        ZB_SLOT(zbIBrowserDataSource, FindDataProperty),
        ZB_SLOT(zbIBrowserDataSource, SetDataPropertyInteger),
        ZB_SLOT(zbIBrowserDataSource, SetDataPropertyBoolean),
        ZB_SLOT(zbIBrowserDataSource, SetSortProperty),
        ZB_SLOT(zbIBrowserDataSource, CompareBySortProperty),
        ZB_SLOT(zbIBrowserDataSource, CompareByDataProperty),
        ZB_SLOT(zbIBrowserDataSource, CompareByName),
        ZB_SLOT(zbIBrowserDataSource, CompareById),
    };
    EXPECT_EQ(slots, InThisOrder(slots));
}

TEST_F(HostInterfaceOrder, FlatSourcesFollowTheirBase) {
    VirtualSlots const slots{
        ZB_SLOT(zbIBrowserDataSourceSimple, GetListCaption),
        ZB_SLOT(zbIBrowserDataSourceSimple, GetTypeName),
        ZB_SLOT(zbIBrowserDataSourceSimple, OnConnected),
        ZB_SLOT(zbIBrowserDataSourceSimple, OnDisconnected),
        ZB_SLOT(zbIBrowserDataSourceSimple, GetFilterGroups),
        ZB_SLOT(zbIBrowserDataSourceSimple, IsOfType),
        ZB_SLOT(zbIBrowserDataSourceSimple, ClearDirty),
        ZB_SLOT(zbIBrowserDataSourceSimple, GetDataItems),
        ZB_SLOT(zbIBrowserDataSourceSimple, ContainsDataItem),
        ZB_SLOT(zbIBrowserDataSourceSimple, AcceptsEmptySelection),
        ZB_SLOT(zbIBrowserDataSourceSimple, GetParentSource),
    };
    EXPECT_EQ(slots, InThisOrder(slots, 13));
}

TEST_F(HostInterfaceOrder, TreesFollowTheirBase) {
    VirtualSlots const slots{
        ZB_SLOT(zbIBrowserDataSourceHierarchical, OnDisconnected),
        ZB_SLOT(zbIBrowserDataSourceHierarchical, SkipsBuildOnExpand),
        ZB_SLOT(zbIBrowserDataSourceHierarchical, HasDirtyItems),
        ZB_SLOT(zbIBrowserDataSourceHierarchical, GetOwnType),
        ZB_SLOT(zbIBrowserDataSourceHierarchical, GetChildTypes),
        ZB_SLOT(zbIBrowserDataSourceHierarchical, FindDataSourceSimple),
        ZB_SLOT(zbIBrowserDataSourceHierarchical, GetChildren),
        ZB_SLOT(zbIBrowserDataSourceHierarchical, BeginChange),
        ZB_SLOT(zbIBrowserDataSourceHierarchical, EndChange),
        ZB_SLOT(zbIBrowserDataSourceHierarchical, OnViewLost),
    };
    EXPECT_EQ(slots, InThisOrder(slots, 13));
}

TEST_F(HostInterfaceOrder, FlatItemsKeepTheirOrder) {
    VirtualSlots const slots{
        ZB_SLOT(zbIBrowserDataItemSimple, GetDataSource),
        ZB_SLOT(zbIBrowserDataItemSimple, GetProperty),
        ZB_SLOT(zbIBrowserDataItemSimple, IsDirty),
    };
    EXPECT_EQ(slots, InThisOrder(slots));
    EXPECT_EQ(zbtest::VirtualSlot(&zbIBrowserDataItem::GetDataSource), 0U);
}

TEST_F(HostInterfaceOrder, TreeItemsKeepTheirOrder) {
    VirtualSlots const slots{
        ZB_SLOT(zbIBrowserDataItemHierarchical, GetDataSource),
        ZB_SLOT(zbIBrowserDataItemHierarchical, GetDataItemSimple),
        ZB_SLOT(zbIBrowserDataItemHierarchical, IsHiddenFromTree),
        ZB_SLOT(zbIBrowserDataItemHierarchical, IsDirty),
        ZB_SLOT(zbIBrowserDataItemHierarchical, GetParent),
    };
    EXPECT_EQ(slots, InThisOrder(slots));
}

TEST_F(HostInterfaceOrder, ReferencesKeepTheirOrder) {
    VirtualSlots const slots{
        ZB_SLOT(zbIBrowserDataReference, GetDataCtrl),
        ZB_SLOT(zbIBrowserDataReference, GetParentTypeId),
        ZB_SLOT(zbIBrowserDataReference, GetChildTypeId),
        ZB_SLOT(zbIBrowserDataReference, IsDirty),
    };
    EXPECT_EQ(slots, InThisOrder(slots));
}

TEST_F(HostInterfaceOrder, PropertiesKeepTheirOrder) {
    VirtualSlots const slots{
        ZB_SLOT(zbIBrowserDataProperty, GetDisplayText),
        ZB_SLOT(zbIBrowserDataProperty, GetInteger),
        ZB_SLOT(zbIBrowserDataProperty, GetUnsigned),
        ZB_SLOT(zbIBrowserDataProperty, GetBoolean),
        ZB_SLOT(zbIBrowserDataProperty, GetTextPointer),
        ZB_SLOT(zbIBrowserDataProperty, GetString),
        ZB_SLOT(zbIBrowserDataProperty, GetDouble),
        ZB_SLOT(zbIBrowserDataProperty, GetVariant),
        ZB_SLOT(zbIBrowserDataProperty, SetVariant),
    };
    EXPECT_EQ(slots, InThisOrder(slots));
}

TEST_F(HostInterfaceOrder, OperationsKeepTheirOrder) {
    VirtualSlots const slots{
        ZB_SLOT(zbIBrowserDataOperation, GetName),
        ZB_SLOT(zbIBrowserDataOperation, IsAvailableForItems),
        ZB_SLOT(zbIBrowserDataOperation, IsAvailable),
        ZB_SLOT(zbIBrowserDataOperation, IsChecked),
        ZB_SLOT(zbIBrowserDataOperation, Perform),
    };
    EXPECT_EQ(slots, InThisOrder(slots));
}

TEST_F(HostInterfaceOrder, CollectorsKeepTheirOrder) {
    VirtualSlots const slots{
        ZB_SLOT(zbIBrowserDataCollector, GetName),
        ZB_SLOT(zbIBrowserDataCollector, GetTitle),
    };
    EXPECT_EQ(slots, InThisOrder(slots));
    EXPECT_EQ(zbtest::VirtualSlot(&zbIBrowserCollectorOperation::Perform), 0U);
}

} // namespace
