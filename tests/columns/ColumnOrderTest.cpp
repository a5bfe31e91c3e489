// SPDX-License-Identifier: MIT
//! \file
//! The order of virtual operations of columns and styles, which hosts are compiled against.
#include "support/VirtualOrder.h"

#include <zbBrowserView/zbIBrowserStyle.h>
#include <zbBrowserView/zbIBrowserStyleElement.h>
#include <zbBrowserView/zbIBrowserStyleManager.h>
#include <zbBrowserView/zbIBrowserViewColumn.h>

#include <gtest/gtest.h>

namespace zbtest {
namespace {

class ColumnOrder : public testing::Test {
protected:
    // Behind the two entries of the destructor and SetErrCommand of zbBrowserErrorReporter.
    static constexpr std::size_t behindReporter = 3;

    void SetUp() override {
        if (!canReadVirtualSlots) {
            GTEST_SKIP() << "this compiler represents pointers to members in another way";
        }
    }
};

TEST_F(ColumnOrder, OfAColumn) {
    VirtualSlots const slots{
        ZB_SLOT(zbIBrowserViewColumn, GetStyleManager),
        ZB_SLOT(zbIBrowserViewColumn, GetView),
        ZB_SLOT(zbIBrowserViewColumn, GetName),
        ZB_SLOT(zbIBrowserViewColumn, GetTitle),
        ZB_SLOT(zbIBrowserViewColumn, IsIconColumn),
        ZB_SLOT(zbIBrowserViewColumn, GetStyles),
        ZB_SLOT(zbIBrowserViewColumn, CreateStyle),
        ZB_SLOT(zbIBrowserViewColumn, FindStyle),
        ZB_SLOT(zbIBrowserViewColumn, DeleteStyle),
        ZB_SLOT(zbIBrowserViewColumn, DeleteStyleElement),
        ZB_SLOT(zbIBrowserViewColumn, IsDefault),
        ZB_SLOT(zbIBrowserViewColumn, SetIndex),
        ZB_SLOT(zbIBrowserViewColumn, GetIndex),
        ZB_SLOT(zbIBrowserViewColumn, SetPosition),
        ZB_SLOT(zbIBrowserViewColumn, GetPosition),
        ZB_SLOT(zbIBrowserViewColumn, SetPopupMenu),
        ZB_SLOT(zbIBrowserViewColumn, GetPopupMenu),
        ZB_SLOT(zbIBrowserViewColumn, IsVisible),
        ZB_SLOT(zbIBrowserViewColumn, SetVisible),
        ZB_SLOT(zbIBrowserViewColumn, GetSorting),
        ZB_SLOT(zbIBrowserViewColumn, SetSorting),
        ZB_SLOT(zbIBrowserViewColumn, GetItalic),
        ZB_SLOT(zbIBrowserViewColumn, SetItalic),
        ZB_SLOT(zbIBrowserViewColumn, SetTitle),
        ZB_SLOT(zbIBrowserViewColumn, SetFolderDataSourceStyle),
        ZB_SLOT(zbIBrowserViewColumn, SetFolderDataListStyle),
        ZB_SLOT(zbIBrowserViewColumn, AddFolderStyle),
        ZB_SLOT(zbIBrowserViewColumn, GetViewItemStyle),
        ZB_SLOT(zbIBrowserViewColumn, SetCurrentStyle),
        ZB_SLOT(zbIBrowserViewColumn, IsUnsorted),
        ZB_SLOT(zbIBrowserViewColumn, SetUnsorted),
    };

    EXPECT_EQ(slots, InThisOrder(slots));
}

TEST_F(ColumnOrder, OfAStyleElement) {
    VirtualSlots const slots{
        ZB_SLOT(zbIBrowserStyleElement, GetStyle),
        ZB_SLOT(zbIBrowserStyleElement, GetName),
        ZB_SLOT(zbIBrowserStyleElement, GetTitle),
        ZB_SLOT(zbIBrowserStyleElement, GetGuiMapName),
        ZB_SLOT(zbIBrowserStyleElement, SetGuiMapName),
        ZB_SLOT(zbIBrowserStyleElement, GetViewProperty),
        ZB_SLOT(zbIBrowserStyleElement, SetViewProperty),
        ZB_SLOT(zbIBrowserStyleElement, GetDataProperty),
    };

    EXPECT_EQ(slots, InThisOrder(slots));
}

TEST_F(ColumnOrder, OfAStyle) {
    VirtualSlots const slots{
        ZB_SLOT(zbIBrowserStyle, GetName),       ZB_SLOT(zbIBrowserStyle, GetColumn),
        ZB_SLOT(zbIBrowserStyle, GetElements),   ZB_SLOT(zbIBrowserStyle, FindElement),
        ZB_SLOT(zbIBrowserStyle, DeleteElement), ZB_SLOT(zbIBrowserStyle, CreateElement),
        ZB_SLOT(zbIBrowserStyle, SetPending),    ZB_SLOT(zbIBrowserStyle, IsPending),
    };

    EXPECT_EQ(slots, InThisOrder(slots, behindReporter));
}

TEST_F(ColumnOrder, OfAStyleManager) {
    VirtualSlots const slots{
        ZB_SLOT(zbIBrowserStyleManager, GetColumn),
        ZB_SLOT(zbIBrowserStyleManager, CreateStyle),
        ZB_SLOT(zbIBrowserStyleManager, DeleteStyleByName),
        ZB_SLOT(zbIBrowserStyleManager, DeleteStyle),
        ZB_SLOT(zbIBrowserStyleManager, FindStyle),
        ZB_SLOT(zbIBrowserStyleManager, GetStyles),
        ZB_SLOT(zbIBrowserStyleManager, SetFolderDataSourceStyle),
        ZB_SLOT(zbIBrowserStyleManager, SetFolderDataListStyle),
        ZB_SLOT(zbIBrowserStyleManager, AddFolderStyle),
        ZB_SLOT(zbIBrowserStyleManager, RemoveFolderStyles),
        ZB_SLOT(zbIBrowserStyleManager, GetViewItemStyle),
        ZB_SLOT(zbIBrowserStyleManager, DeleteStyleElement),
        ZB_SLOT(zbIBrowserStyleManager, SetCurrentStyle),
        ZB_SLOT(zbIBrowserStyleManager, OnViewPropertyDeleted),
        ZB_SLOT(zbIBrowserStyleManager, OnGuiMapDeleted),
    };

    EXPECT_EQ(slots, InThisOrder(slots, behindReporter));
}

} // namespace
} // namespace zbtest
