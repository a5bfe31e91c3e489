// SPDX-License-Identifier: MIT
// The two item interfaces as such.
#include "support/VirtualOrder.h"

#include <zbBrowserView/ViewItemChanges.h>
#include <zbBrowserView/zbIBrowserViewItem.h>
#include <zbBrowserView/zbIBrowserViewItemFreeFolder.h>

#include <gtest/gtest.h>

#include <type_traits>

namespace {

using Item = zbIBrowserViewItem;
using Folder = zbIBrowserViewItemFreeFolder;
using Simple = zbIBrowserDataSourceSimple;
using Tree = zbIBrowserDataSourceHierarchical;
using zbbrowser::ViewItemChanges;

TEST(ItemInterfaceTest, DeclaresItsOperationsInOrder) {
    if (!zbtest::canReadVirtualSlots)
        GTEST_SKIP();
    zbtest::VirtualSlots const slots{
        ZB_SLOT(Item, GetView),
        ZB_SLOT(Item, GetDataItemSimple),
        ZB_SLOT(Item, GetDataItemHierarchical),
        ZB_SLOT(Item, GetDataItem),
        ZB_SLOT(Item, GetDataSources),
        ZB_SLOT(Item, GetParent),
        ZB_SLOT(Item, GetParentFreeFolder),
        ZB_SLOT(Item, IsExpanded),
        ZB_SLOT(Item, IsDependentFolder),
        ZB_SLOT(Item, IsFreeFolder),
        ZB_SLOT(Item, GetChildrenCount),
        ZB_SLOT(Item, IsGroupingFolder),
        ZB_SLOT(Item, GetChanges),
        ZB_SLOT(Item, IsHidden),
        ZB_SLOT(Item, HasDataSource),
        ZB_SLOT(Item, IsDataLeaf),
        ZB_SLOT(Item, IsDataContainer),
        ZB_SLOT(Item, IsDataNode),
        ZB_SLOT(Item, Show),
    };
    EXPECT_EQ(slots.size(), 19U);
    EXPECT_EQ(slots, zbtest::InThisOrder(slots));
}

TEST(ItemInterfaceTest, AFolderDeclaresItsOperationsInOrderBehindThoseOfAnItem) {
    if (!zbtest::canReadVirtualSlots)
        GTEST_SKIP();
    zbtest::VirtualSlots const slots{
        ZB_SLOT(Folder, CreateList),
        ZB_SLOT(Folder, DeleteTreeRecursive),
        ZB_SLOT(Folder, DeleteListRecursive),
        ZB_SLOT(Folder, GetLists),
        ZB_SLOT(Folder, GetAllLists),
        ZB_OVERLOAD_SLOT(Folder, FindList, Simple * (char const*) const),
        ZB_OVERLOAD_SLOT(Folder, FindList, Simple * (Simple const*) const),
        ZB_SLOT(Folder, FindDataSourceSimple),
        ZB_SLOT(Folder, FindTree),
        ZB_SLOT(Folder, CreateTree),
        ZB_SLOT(Folder, GetTrees),
        ZB_SLOT(Folder, GetTreeParentChildRecords),
        ZB_SLOT(Folder, GetTreeTopLevelRecords),
        ZB_SLOT(Folder, FindDataSource),
        ZB_SLOT(Folder, GetName),
        ZB_SLOT(Folder, SetListGrouped),
        ZB_SLOT(Folder, SetChildTypeGrouped),
        ZB_SLOT(Folder, SetTreeGrouped),
        ZB_SLOT(Folder, GetGroupLeafs),
        ZB_SLOT(Folder, GetFreeFolderStyle),
        ZB_SLOT(Folder, GetShowEmptyContainers),
        ZB_SLOT(Folder, GetKeepChildrenInOrder),
        ZB_SLOT(Folder, GetChildTypes),
        ZB_SLOT(Folder, IsChildTypeShown),
        ZB_SLOT(Folder, IsChildTypeGrouped),
        ZB_SLOT(Folder, GetAllDataSources),
        ZB_SLOT(Folder, GetChildFreeFolders),
        ZB_SLOT(Folder, FindChildFreeFolder),
        ZB_SLOT(Folder, SetIconShowsData),
        ZB_SLOT(Folder, SetCaptionShowsCount),
        ZB_SLOT(Folder, IsVirtualRoot),
        ZB_SLOT(Folder, IsDataEmpty),
        ZB_SLOT(Folder, SetTextBold),
        ZB_SLOT(Folder, GetTextBold),
        ZB_SLOT(Folder, SetTextItalic),
        ZB_SLOT(Folder, GetTextItalic),
        ZB_SLOT(Folder, SetShowWhenEmpty),
        ZB_SLOT(Folder, GetShowWhenEmpty),
        ZB_SLOT(Folder, SetAttachedObject),
        ZB_SLOT(Folder, GetAttachedObject),
        ZB_SLOT(Folder, SetExpandedFlag),
        ZB_SLOT(Folder, GetViewImpl),
        ZB_SLOT(Folder, SetParentFolder),
    };
    EXPECT_EQ(slots.size(), 43U);
    EXPECT_EQ(slots, zbtest::InThisOrder(slots, 19));
}

TEST(ItemInterfaceTest, AnItemHasNoDestructorToCallAndAFolderHas) {
    EXPECT_FALSE(std::is_destructible_v<Item>);
    EXPECT_TRUE(std::has_virtual_destructor_v<Folder>);
    EXPECT_TRUE((std::is_base_of_v<Item, Folder>));
    EXPECT_TRUE((std::is_base_of_v<zbBrowserErrorReporter, Folder>));
}

TEST(ViewItemChangesTest, AreSevenBytesInTheirOrder) {
    EXPECT_EQ(sizeof(ViewItemChanges), 7U);
    EXPECT_EQ(offsetof(ViewItemChanges, Created), 0U);
    EXPECT_EQ(offsetof(ViewItemChanges, Deleted), 1U);
    EXPECT_EQ(offsetof(ViewItemChanges, Updated), 2U);
    EXPECT_EQ(offsetof(ViewItemChanges, Expanded), 3U);
    EXPECT_EQ(offsetof(ViewItemChanges, Reserved), 4U);
    EXPECT_EQ(offsetof(ViewItemChanges, ChildrenAdded), 5U);
    EXPECT_EQ(offsetof(ViewItemChanges, ChildrenRemoved), 6U);
}

//! Every field by itself, so that none is left out of the merge or merged into its neighbour.
TEST(ViewItemChangesTest, MergeSetsEachFieldOfTheOtherAndClearsNone) {
    std::uint8_t ViewItemChanges::*const fields[] = {
        &ViewItemChanges::Created,        &ViewItemChanges::Deleted,
        &ViewItemChanges::Updated,        &ViewItemChanges::Expanded,
        &ViewItemChanges::Reserved,       &ViewItemChanges::ChildrenAdded,
        &ViewItemChanges::ChildrenRemoved};
    for (auto const set : fields) {
        ViewItemChanges changes;
        EXPECT_FALSE(changes.Any());
        ViewItemChanges other;
        other.*set = 1;
        changes.Merge(other);
        EXPECT_TRUE(changes.Any());
        changes.Merge(ViewItemChanges());
        for (auto const field : fields)
            EXPECT_EQ(changes.*field, field == set ? 1 : 0);
    }
}

} // namespace
