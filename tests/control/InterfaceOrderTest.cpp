// SPDX-License-Identifier: MIT
//! \file
//! The order of virtual operations, which is a part of what hosts are compiled against.
#include "support/ItemDoubles.h"
#include "support/VirtualOrder.h"

#include <zbBrowserView/View.h>
#include <zbBrowserView/zbBrowserViewCtrl.h>
#include <zbBrowserView/zbIBrowserView.h>

#include <gtest/gtest.h>

#include <type_traits>

namespace zbtest {
namespace {

class InterfaceOrder : public testing::Test {
protected:
    void SetUp() override {
        if (!canReadVirtualSlots)
            GTEST_SKIP() << "this compiler represents pointers to members in another way";
    }
};

// A class with virtual operations of its own, behind those of an interface.
template <class Interface>
struct Behind : Interface {
    virtual void First();

protected:
    ~Behind() = default;
};

TEST_F(InterfaceOrder, OfAViewHas123OperationsAndNoDestructor) {
    VirtualSlots const slots{
        ZB_SLOT(zbIBrowserView, GetDataSourceSimpleList),
        ZB_OVERLOAD_SLOT(zbIBrowserView, GetDataSourceSimple,
                         zbIBrowserDataSourceSimple * (zbIBrowserDataSourceSimple const*) const),
        ZB_OVERLOAD_SLOT(zbIBrowserView, GetDataSourceSimple,
                         zbIBrowserDataSourceSimple * (char const*) const),
        ZB_SLOT(zbIBrowserView, GetDataSourceSimpleFromHierarchical),
        ZB_OVERLOAD_SLOT(zbIBrowserView, DataSourceConnect,
                         bool(zbIBrowserDataSourceHierarchical*)),
        ZB_OVERLOAD_SLOT(zbIBrowserView, DataSourceConnect, bool(zbIBrowserDataSourceSimple*)),
        ZB_SLOT(zbIBrowserView, DataSourceDisconnectAll),
        ZB_SLOT(zbIBrowserView, DataSourceDisconnect),
        ZB_SLOT(zbIBrowserView, CreateViewOperation),
        ZB_SLOT(zbIBrowserView, GetDataSourceHierarchicalList),
        ZB_OVERLOAD_SLOT(zbIBrowserView, GetDataSourceHierarchical,
                         zbIBrowserDataSourceHierarchical *
                             (zbIBrowserDataSourceHierarchical const*) const),
        ZB_OVERLOAD_SLOT(zbIBrowserView, GetDataSourceHierarchical,
                         zbIBrowserDataSourceHierarchical * (char const*) const),
        ZB_SLOT(zbIBrowserView, GetName),
        ZB_SLOT(zbIBrowserView, GetBrowserInfo),
        ZB_SLOT(zbIBrowserView, GetViewCtrl),
        ZB_SLOT(zbIBrowserView, GetCollectorHandler),
        ZB_SLOT(zbIBrowserView, SetDataCtrl),
        ZB_SLOT(zbIBrowserView, GetDataCtrl),
        ZB_SLOT(zbIBrowserView, GetFreeFoldersFromViewItems),
        ZB_SLOT(zbIBrowserView, GetRootFreeFolder),
        ZB_SLOT(zbIBrowserView, GetFreeFolderAbsolutePathName),
        ZB_SLOT(zbIBrowserView, GetViewItemStyle),
        ZB_SLOT(zbIBrowserView, SetViewItemStyle),
        ZB_SLOT(zbIBrowserView, GetFreeFolderGroupLeafs),
        ZB_SLOT(zbIBrowserView, GetFreeFolderStyle),
        ZB_SLOT(zbIBrowserView, IsTextBold),
        ZB_SLOT(zbIBrowserView, IsTextItalic),
        ZB_SLOT(zbIBrowserView, GetColumns),
        ZB_SLOT(zbIBrowserView, GetDefaultColumn),
        ZB_SLOT(zbIBrowserView, FindColumn),
        ZB_SLOT(zbIBrowserView, UpdatePreviousSelection),
        ZB_SLOT(zbIBrowserView, FindViewOperation),
        ZB_SLOT(zbIBrowserView, PerformVOPAttachedToGvnDOP),
        ZB_SLOT(zbIBrowserView, EditSelectedDataItem),
        ZB_SLOT(zbIBrowserView, GetFilterNames),
        ZB_SLOT(zbIBrowserView, GetCurrentFilter),
        ZB_SLOT(zbIBrowserView, GetFilterByName),
        ZB_SLOT(zbIBrowserView, GetFilterMatchCase),
        ZB_SLOT(zbIBrowserView, GetFilterMatchWord),
        ZB_SLOT(zbIBrowserView, GetFilterUseRegExp),
        ZB_SLOT(zbIBrowserView, GetFilterLookupString),
        ZB_SLOT(zbIBrowserView, CreatePopupMenu),
        ZB_SLOT(zbIBrowserView, DeletePopupMenu),
        ZB_OVERLOAD_SLOT(zbIBrowserView, FindPopupMenu, bool(zbIBrowserPopupMenu* const) const),
        ZB_OVERLOAD_SLOT(zbIBrowserView, FindPopupMenu, zbIBrowserPopupMenu * (char const*) const),
        ZB_SLOT(zbIBrowserView, GetAllPopupMenus),
        ZB_SLOT(zbIBrowserView, GetNextViewItem),
        ZB_SLOT(zbIBrowserView, GetSortedColumn),
        ZB_SLOT(zbIBrowserView, GetAscendingOrder),
        ZB_SLOT(zbIBrowserView, GetSorting),
        ZB_SLOT(zbIBrowserView, GetItalic),
        ZB_SLOT(zbIBrowserView, FindViewProperty),
        ZB_SLOT(zbIBrowserView, CreateViewProperty),
        ZB_SLOT(zbIBrowserView, DeleteViewProperty),
        ZB_SLOT(zbIBrowserView, GetViewPropertyList),
        ZB_SLOT(zbIBrowserView, UpdateViewPropertyType),
        ZB_SLOT(zbIBrowserView, GetFilterMapNames),
        ZB_SLOT(zbIBrowserView, GetSelectionManager),
        ZB_SLOT(zbIBrowserView, GetCollectorGuiMapName),
        ZB_SLOT(zbIBrowserView, IsBrowserCollectorOn),
        ZB_SLOT(zbIBrowserView, IsBrowserColDisabled),
        ZB_SLOT(zbIBrowserView, OnBrowserColPerform),
        ZB_SLOT(zbIBrowserView, ShowCollectorButton),
        ZB_SLOT(zbIBrowserView, OnBrowserColDeselected),
        ZB_SLOT(zbIBrowserView, OnBrowserColDisabled),
        ZB_SLOT(zbIBrowserView, ResetCollector),
        ZB_SLOT(zbIBrowserView, SetCollectorEnable),
        ZB_SLOT(zbIBrowserView, IsCollectorEnable),
        ZB_SLOT(zbIBrowserView, PerformCollectorOperation),
        ZB_SLOT(zbIBrowserView, ShowEmptyFolders),
        ZB_SLOT(zbIBrowserView, GetShowEmptyFoldersFlag),
        ZB_SLOT(zbIBrowserView, IsEmptyFolderCanBeShown),
        ZB_SLOT(zbIBrowserView, CreateFreeFolder),
        ZB_SLOT(zbIBrowserView, DeleteFreeFolder),
        ZB_SLOT(zbIBrowserView, SetFreeFolderGroupLeafs),
        ZB_SLOT(zbIBrowserView, SetFreeFolderStyle),
        ZB_SLOT(zbIBrowserView, SetFreeFolderShowEmptyContainers),
        ZB_SLOT(zbIBrowserView, MakeCaptionBold),
        ZB_SLOT(zbIBrowserView, CreateIconColumn),
        ZB_SLOT(zbIBrowserView, CreateButtonColumn),
        ZB_SLOT(zbIBrowserView, CreateCheckBoxColumn),
        ZB_SLOT(zbIBrowserView, CreateTextBoxColumn),
        ZB_SLOT(zbIBrowserView, CreateComboBoxColumn),
        ZB_SLOT(zbIBrowserView, DeleteScriptedColumn),
        ZB_SLOT(zbIBrowserView, ShowScriptedColumn),
        ZB_SLOT(zbIBrowserView, DeleteStyleElement),
        ZB_SLOT(zbIBrowserView, SetCurrentFilter),
        ZB_SLOT(zbIBrowserView, ShowAscendants),
        ZB_SLOT(zbIBrowserView, SetFilterLookupString),
        ZB_SLOT(zbIBrowserView, SetFilterMatchCaseFlag),
        ZB_SLOT(zbIBrowserView, SetFilterMatchWordFlag),
        ZB_SLOT(zbIBrowserView, GetFilterMatchWordFlag),
        ZB_SLOT(zbIBrowserView, DeselectAllViewItems),
        ZB_SLOT(zbIBrowserView, OnSelectionChangeFinished),
        ZB_SLOT(zbIBrowserView, ExpandAllItems),
        ZB_SLOT(zbIBrowserView, ExpandSelectedItems),
        ZB_SLOT(zbIBrowserView, ExpandFreeFolder),
        ZB_SLOT(zbIBrowserView, ExpandFreeFolderList),
        ZB_SLOT(zbIBrowserView, CollapseAllItems),
        ZB_SLOT(zbIBrowserView, CollapseSelectedItems),
        ZB_SLOT(zbIBrowserView, CollapseFreeFolder),
        ZB_SLOT(zbIBrowserView, CollapseFreeFolderList),
        ZB_SLOT(zbIBrowserView, SetListCaption),
        ZB_SLOT(zbIBrowserView, SetSorting),
        ZB_SLOT(zbIBrowserView, SetSortingException),
        ZB_SLOT(zbIBrowserView, SetCreateExpandedItem),
        ZB_SLOT(zbIBrowserView, SetAscendingOrder),
        ZB_SLOT(zbIBrowserView, SetItalic),
        ZB_SLOT(zbIBrowserView, SetKeepChildrenFreeFoldersInOrderAsCreated),
        ZB_SLOT(zbIBrowserView, SetDropItem),
        ZB_SLOT(zbIBrowserView, ResetDropItem),
        ZB_SLOT(zbIBrowserView, OnDataControlDeleted),
        ZB_SLOT(zbIBrowserView, DeselectViewItem),
        ZB_SLOT(zbIBrowserView, SetFilterGrouping),
        ZB_SLOT(zbIBrowserView, GetFilterGrouping),
        ZB_SLOT(zbIBrowserView, RebuildFilterLists),
        ZB_SLOT(zbIBrowserView, GetFilterDataSource),
        ZB_OVERLOAD_SLOT(zbIBrowserView, GetConnected,
                         bool(std::set<zbIBrowserDataReference*>&) const),
        ZB_OVERLOAD_SLOT(zbIBrowserView, GetConnected,
                         bool(std::set<zbIBrowserDataSource*>&) const),
        ZB_OVERLOAD_SLOT(zbIBrowserView, Connect, bool(zbIBrowserDataReference*, bool)),
        ZB_OVERLOAD_SLOT(zbIBrowserView, Connect, bool(zbIBrowserDataSource*, bool)),
        ZB_SLOT(zbIBrowserView, FindConnected),
        ZB_SLOT(zbIBrowserView, IsNewView),
    };

    EXPECT_EQ(slots.size(), 123U);
    EXPECT_EQ(slots, InThisOrder(slots));
    EXPECT_EQ(VirtualSlot(&Behind<zbIBrowserView>::First), 123U);
    EXPECT_FALSE(std::has_virtual_destructor_v<zbIBrowserView>);
    EXPECT_FALSE(std::is_destructible_v<zbIBrowserView>);
}

TEST_F(InterfaceOrder, OfANewViewAddsADestructorBehindThem) {
    struct BehindView : zbbrowser::View {
        virtual void First();
    };
    constexpr std::size_t slotsOfADestructor = 2;

    EXPECT_TRUE(std::has_virtual_destructor_v<zbbrowser::View>);
    EXPECT_EQ(VirtualSlot(&BehindView::First), 123U + slotsOfADestructor);
}

TEST_F(InterfaceOrder, OfTheControllerHas19OperationsAndThenADestructor) {
    VirtualSlots const slots{
        ZB_SLOT(zbIBrowserViewCtrl, GetManager),
        ZB_SLOT(zbIBrowserViewCtrl, GetBrowserInfo),
        ZB_SLOT(zbIBrowserViewCtrl, GetError),
        ZB_SLOT(zbIBrowserViewCtrl, GetViewList),
        ZB_SLOT(zbIBrowserViewCtrl, FindView),
        ZB_SLOT(zbIBrowserViewCtrl, FindNewView),
        ZB_SLOT(zbIBrowserViewCtrl, OnStyleCreated),
        ZB_SLOT(zbIBrowserViewCtrl, OnStyleDeleted),
        ZB_SLOT(zbIBrowserViewCtrl, OnViewItemChanged),
        ZB_SLOT(zbIBrowserViewCtrl, OnViewItemRedraw),
        ZB_SLOT(zbIBrowserViewCtrl, OnGuiMapDeleted),
        ZB_SLOT(zbIBrowserViewCtrl, ResetAllCollectors),
        ZB_SLOT(zbIBrowserViewCtrl, SetCollectorEnable),
        ZB_SLOT(zbIBrowserViewCtrl, GetDataSourceHierarchicalSharedInfo),
        ZB_SLOT(zbIBrowserViewCtrl, GetDataSourceHierarchicalSharedList),
        ZB_SLOT(zbIBrowserViewCtrl, OnUpdateViewSelection),
        ZB_SLOT(zbIBrowserViewCtrl, OnViewSelectionChangeFinished),
        ZB_SLOT(zbIBrowserViewCtrl, IsViewItemSelected),
        ZB_SLOT(zbIBrowserViewCtrl, OnPopupSelection),
    };
    constexpr std::size_t slotsOfADestructor = 2;
    struct BehindCtrl : zbBrowserViewCtrl {
        virtual void First();
    };

    EXPECT_EQ(slots.size(), 19U);
    EXPECT_EQ(slots, InThisOrder(slots));
    EXPECT_EQ(VirtualSlot(&Behind<zbIBrowserViewCtrl>::First), 19U);
    EXPECT_FALSE(std::is_destructible_v<zbIBrowserViewCtrl>);
    EXPECT_TRUE(std::has_virtual_destructor_v<zbBrowserViewCtrl>);
    EXPECT_TRUE(std::is_destructible_v<zbBrowserViewCtrl>);
    EXPECT_EQ(VirtualSlot(&BehindCtrl::First), 19U + slotsOfADestructor);
}

TEST_F(InterfaceOrder, OfAnItemHas19OperationsAndNoDestructor) {
    VirtualSlots const slots{
        ZB_SLOT(zbIBrowserViewItem, GetView),
        ZB_SLOT(zbIBrowserViewItem, GetDataItemSimple),
        ZB_SLOT(zbIBrowserViewItem, GetDataItemHierarchical),
        ZB_SLOT(zbIBrowserViewItem, GetDataItem),
        ZB_SLOT(zbIBrowserViewItem, GetDataSources),
        ZB_SLOT(zbIBrowserViewItem, GetParent),
        ZB_SLOT(zbIBrowserViewItem, GetParentFreeFolder),
        ZB_SLOT(zbIBrowserViewItem, IsExpanded),
        ZB_SLOT(zbIBrowserViewItem, IsDependentFolder),
        ZB_SLOT(zbIBrowserViewItem, IsFreeFolder),
        ZB_SLOT(zbIBrowserViewItem, GetChildrenCount),
        ZB_SLOT(zbIBrowserViewItem, IsGroupingFolder),
        ZB_SLOT(zbIBrowserViewItem, GetChanges),
        ZB_SLOT(zbIBrowserViewItem, IsHidden),
        ZB_SLOT(zbIBrowserViewItem, HasDataSource),
        ZB_SLOT(zbIBrowserViewItem, IsDataLeaf),
        ZB_SLOT(zbIBrowserViewItem, IsDataContainer),
        ZB_SLOT(zbIBrowserViewItem, IsDataNode),
        ZB_SLOT(zbIBrowserViewItem, Show),
    };

    EXPECT_EQ(slots.size(), 19U);
    EXPECT_EQ(slots, InThisOrder(slots));
    EXPECT_EQ(VirtualSlot(&Behind<zbIBrowserViewItem>::First), 19U);
    EXPECT_FALSE(std::is_destructible_v<zbIBrowserViewItem>);
}

TEST_F(InterfaceOrder, OfAFreeFolderHas43OperationsBehindThoseOfAnItem) {
    VirtualSlots const slots{
        ZB_SLOT(zbIBrowserViewItemFreeFolder, CreateList),
        ZB_SLOT(zbIBrowserViewItemFreeFolder, DeleteTreeRecursive),
        ZB_SLOT(zbIBrowserViewItemFreeFolder, DeleteListRecursive),
        ZB_SLOT(zbIBrowserViewItemFreeFolder, GetLists),
        ZB_SLOT(zbIBrowserViewItemFreeFolder, GetAllLists),
        ZB_OVERLOAD_SLOT(zbIBrowserViewItemFreeFolder, FindList,
                         zbIBrowserDataSourceSimple * (char const*) const),
        ZB_OVERLOAD_SLOT(zbIBrowserViewItemFreeFolder, FindList,
                         zbIBrowserDataSourceSimple * (zbIBrowserDataSourceSimple const*) const),
        ZB_SLOT(zbIBrowserViewItemFreeFolder, FindDataSourceSimple),
        ZB_SLOT(zbIBrowserViewItemFreeFolder, FindTree),
        ZB_SLOT(zbIBrowserViewItemFreeFolder, CreateTree),
        ZB_SLOT(zbIBrowserViewItemFreeFolder, GetTrees),
        ZB_SLOT(zbIBrowserViewItemFreeFolder, GetTreeParentChildRecords),
        ZB_SLOT(zbIBrowserViewItemFreeFolder, GetTreeTopLevelRecords),
        ZB_SLOT(zbIBrowserViewItemFreeFolder, FindDataSource),
        ZB_SLOT(zbIBrowserViewItemFreeFolder, GetName),
        ZB_SLOT(zbIBrowserViewItemFreeFolder, SetListGrouped),
        ZB_SLOT(zbIBrowserViewItemFreeFolder, SetChildTypeGrouped),
        ZB_SLOT(zbIBrowserViewItemFreeFolder, SetTreeGrouped),
        ZB_SLOT(zbIBrowserViewItemFreeFolder, GetGroupLeafs),
        ZB_SLOT(zbIBrowserViewItemFreeFolder, GetFreeFolderStyle),
        ZB_SLOT(zbIBrowserViewItemFreeFolder, GetShowEmptyContainers),
        ZB_SLOT(zbIBrowserViewItemFreeFolder, GetKeepChildrenInOrder),
        ZB_SLOT(zbIBrowserViewItemFreeFolder, GetChildTypes),
        ZB_SLOT(zbIBrowserViewItemFreeFolder, IsChildTypeShown),
        ZB_SLOT(zbIBrowserViewItemFreeFolder, IsChildTypeGrouped),
        ZB_SLOT(zbIBrowserViewItemFreeFolder, GetAllDataSources),
        ZB_SLOT(zbIBrowserViewItemFreeFolder, GetChildFreeFolders),
        ZB_SLOT(zbIBrowserViewItemFreeFolder, FindChildFreeFolder),
        ZB_SLOT(zbIBrowserViewItemFreeFolder, SetIconShowsData),
        ZB_SLOT(zbIBrowserViewItemFreeFolder, SetCaptionShowsCount),
        ZB_SLOT(zbIBrowserViewItemFreeFolder, IsVirtualRoot),
        ZB_SLOT(zbIBrowserViewItemFreeFolder, IsDataEmpty),
        ZB_SLOT(zbIBrowserViewItemFreeFolder, SetTextBold),
        ZB_SLOT(zbIBrowserViewItemFreeFolder, GetTextBold),
        ZB_SLOT(zbIBrowserViewItemFreeFolder, SetTextItalic),
        ZB_SLOT(zbIBrowserViewItemFreeFolder, GetTextItalic),
        ZB_SLOT(zbIBrowserViewItemFreeFolder, SetShowWhenEmpty),
        ZB_SLOT(zbIBrowserViewItemFreeFolder, GetShowWhenEmpty),
        ZB_SLOT(zbIBrowserViewItemFreeFolder, SetAttachedObject),
        ZB_SLOT(zbIBrowserViewItemFreeFolder, GetAttachedObject),
        ZB_SLOT(zbIBrowserViewItemFreeFolder, SetExpandedFlag),
        ZB_SLOT(zbIBrowserViewItemFreeFolder, GetViewImpl),
        ZB_SLOT(zbIBrowserViewItemFreeFolder, SetParentFolder),
    };

    EXPECT_EQ(slots.size(), 43U);
    // The destructor, which comes from the error reporter, has a place in both tables
    constexpr std::size_t first = 19;
    EXPECT_EQ(slots, InThisOrder(slots, first));
    EXPECT_TRUE(std::has_virtual_destructor_v<zbIBrowserViewItemFreeFolder>);
    EXPECT_TRUE((std::is_base_of_v<zbBrowserErrorReporter, zbIBrowserViewItemFreeFolder>));
}

// An item is reached through two bases, and both must lead to the same object.
TEST_F(InterfaceOrder, OfAFreeFolderStartsWithTheItem) {
    FolderDouble folder(nullptr, "tools");
    zbIBrowserViewItem& item = folder;

    EXPECT_EQ(static_cast<void*>(&item), static_cast<void*>(&folder));
    EXPECT_EQ(dynamic_cast<zbIBrowserViewItemFreeFolder*>(&item), &folder);
}

} // namespace
} // namespace zbtest
