// SPDX-License-Identifier: MIT
//! \file
//! What a host need not write, and what the types of the host interfaces promise.

#include "MinimalHost.h"

#include <zbBrowserView/host/PendingViewChangeInfo.h>
#include <zbBrowserView/host/zbBrowserManager.h>
#include <zbBrowserView/host/zbIBrowserDataCollectorType.h>
#include <zbBrowserView/host/zbIBrowserDataCtrl.h>
#include <zbBrowserView/host/zbIBrowserDataProperty.h>
#include <zbBrowserView/host/zbIBrowserDataReference.h>
#include <zbBrowserView/host/zbIBrowserGuiMap.h>
#include <zbBrowserView/host/zbIBrowserGuiMapManager.h>
#include <zbBrowserView/host/zbIBrowserPanel.h>
#include <zbBrowserView/zbBrowserEnums.h>

#include <gtest/gtest.h>

#include <type_traits>

namespace {

using namespace zbtest;

// The library never deletes an object of the host, and cannot.
static_assert(!std::is_destructible_v<zbIBrowserManager>);
static_assert(!std::is_destructible_v<zbBrowserManager>);
static_assert(!std::is_destructible_v<zbIBrowserPanel>);
static_assert(!std::is_destructible_v<zbIBrowserGuiMap>);
static_assert(!std::is_destructible_v<zbIBrowserGuiMapManager>);
static_assert(!std::is_destructible_v<zbIBrowserDataCtrl>);
static_assert(!std::is_destructible_v<zbIBrowserDataSource>);
static_assert(!std::is_destructible_v<zbIBrowserDataSourceSimple>);
static_assert(!std::is_destructible_v<zbIBrowserDataSourceHierarchical>);
static_assert(!std::is_destructible_v<zbIBrowserDataItem>);
static_assert(!std::is_destructible_v<zbIBrowserDataItemSimple>);
static_assert(!std::is_destructible_v<zbIBrowserDataItemHierarchical>);
static_assert(!std::is_destructible_v<zbIBrowserDataReference>);
static_assert(!std::is_destructible_v<zbIBrowserDataProperty>);
static_assert(!std::is_destructible_v<zbIBrowserDataOperation>);
static_assert(!std::is_destructible_v<zbIBrowserDataCollector>);
static_assert(!std::is_destructible_v<zbIBrowserDataCollectorType>);
static_assert(!std::is_destructible_v<zbIBrowserCollectorOperation>);

// A protected destructor that is virtual would take two places in the table of operations. The
// minimal classes are final, so that they can be destroyed without one.
static_assert(!std::has_virtual_destructor_v<zbIBrowserManager>);
static_assert(!std::has_virtual_destructor_v<zbIBrowserDataCtrl>);
static_assert(!std::has_virtual_destructor_v<MinimalSource>);
static_assert(!std::has_virtual_destructor_v<MinimalTree>);
static_assert(!std::has_virtual_destructor_v<MinimalItem>);
static_assert(!std::has_virtual_destructor_v<MinimalTreeItem>);

static_assert(sizeof(ZBBROWSER_DATA_TYPE) == 4);
static_assert(sizeof(ZBBROWSER_COLSEL_TYPE) == 4);
static_assert(sizeof(ZBBROWSER_TCLAPI_KEYWORD) == 4);
static_assert(ZBBROWSER_COLSEL_TYPE_PANEL == 4 && ZBBROWSER_COLSEL_TYPE_ON_DEMAND == 5);
static_assert(ZBBROWSER_TCLAPI_KEYWORD_PANEL_COLLECTOR == 121);
static_assert(ZBBROWSER_DATA_TYPE_BOOLEAN == 1 && ZBBROWSER_DATA_TYPE_INTEGER == 3 &&
              ZBBROWSER_DATA_TYPE_DOUBLE == 4 && ZBBROWSER_DATA_TYPE_STRING == 5 &&
              ZBBROWSER_DATA_TYPE_OTHER == 10);

static_assert(std::is_default_constructible_v<zbbrowser::PendingViewChangeInfo>);

TEST(HostInterfaces, AnItemAnswersItsSourceThroughEveryBase) {
    MinimalSource source;
    MinimalItem const item(source);
    zbIBrowserDataItemSimple const& flat = item;
    zbIBrowserDataItem const& any = item;
    static_assert(std::is_same_v<decltype(flat.GetDataSource()), zbIBrowserDataSourceSimple*>);
    static_assert(std::is_same_v<decltype(any.GetDataSource()), zbIBrowserDataSource*>);

    EXPECT_EQ(flat.GetDataSource(), &source);
    EXPECT_EQ(any.GetDataSource(), static_cast<zbIBrowserDataSource*>(&source));
}

TEST(HostInterfaces, ATreeItemAnswersItsTreeThroughEveryBase) {
    MinimalTree tree;
    MinimalTreeItem const item(tree);
    zbIBrowserDataItemHierarchical const& inTree = item;
    zbIBrowserDataItem const& any = item;
    static_assert(
        std::is_same_v<decltype(inTree.GetDataSource()), zbIBrowserDataSourceHierarchical*>);

    EXPECT_EQ(inTree.GetDataSource(), &tree);
    EXPECT_EQ(any.GetDataSource(), static_cast<zbIBrowserDataSource*>(&tree));
}

TEST(HostInterfaces, SourceAndItemHaveTheAddressOfTheirBase) {
    MinimalSource source;
    MinimalItem item(source);
    EXPECT_EQ(static_cast<void*>(static_cast<zbIBrowserDataSource*>(&source)),
              static_cast<void*>(static_cast<zbIBrowserDataSourceSimple*>(&source)));
    EXPECT_EQ(static_cast<void*>(static_cast<zbIBrowserDataItem*>(&item)),
              static_cast<void*>(static_cast<zbIBrowserDataItemSimple*>(&item)));
}

TEST(HostInterfaces, AFlatSourceHasNoParentSourceByDefault) {
    MinimalSource source;
    EXPECT_EQ(static_cast<zbIBrowserDataSourceSimple&>(source).GetParentSource(), nullptr);
}

TEST(HostInterfaces, ATreeItemHasNoParentByDefault) {
    MinimalTree tree;
    MinimalTreeItem item(tree);
    EXPECT_EQ(static_cast<zbIBrowserDataItemHierarchical&>(item).GetParent(), nullptr);
}

TEST(HostInterfaces, ATreeNeedNotTakeNoticeOfChangesInViews) {
    MinimalTree tree;
    zbIBrowserDataSourceHierarchical& asTree = tree;
    EXPECT_NO_THROW(asTree.BeginChange());
    EXPECT_NO_THROW(asTree.EndChange());
    EXPECT_NO_THROW(asTree.OnViewLost());
}

TEST(HostInterfaces, AnOperationDoesNothingByDefault) {
    MinimalOperation operation;
    EXPECT_FALSE(static_cast<zbIBrowserDataOperation&>(operation).Perform(nullptr));
}

TEST(HostInterfaces, ACollectorIsNamelessByDefault) {
    MinimalCollector collector;
    zbIBrowserDataCollector const& asCollector = collector;
    EXPECT_STREQ(asCollector.GetName(), "");
    EXPECT_STREQ(asCollector.GetTitle(), "");
}

TEST(HostInterfaces, ACollectorOperationDoesNothingByDefault) {
    MinimalCollectorOperation operation;
    EXPECT_NO_THROW(static_cast<zbIBrowserCollectorOperation&>(operation).Perform(
        ZBBROWSER_COLSEL_TYPE_ON_DEMAND));
}

} // namespace
