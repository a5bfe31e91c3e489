// SPDX-License-Identifier: MIT
//! \file
//! The order of virtual operations of view properties and their holder, which hosts are compiled
//! against.

#include "presentation/properties/ViewProperty.h"
#include "presentation/properties/zbBrowserViewProperty.h"
#include "presentation/properties/zbBrowserViewPropertyHolder.h"
#include "support/VirtualOrder.h"

#include <gtest/gtest.h>

namespace {

using zbtest::InThisOrder;
using zbtest::VirtualSlots;

class PropertyOrder : public testing::Test {
protected:
    void SetUp() override {
        if (!zbtest::canReadVirtualSlots) {
            GTEST_SKIP() << "this compiler represents pointers to members in another way";
        }
    }
};

TEST_F(PropertyOrder, OfAProperty) {
    using Property = zbIBrowserViewProperty;
    using Simple = std::map<zbIBrowserDataSourceSimple*, zbIBrowserDataProperty*>;
    using Any = std::map<zbIBrowserDataSource*, zbIBrowserDataProperty*>;
    VirtualSlots const slots{
        ZB_SLOT(Property, GetName),
        ZB_SLOT(Property, GetReservedTextA),
        ZB_SLOT(Property, GetReservedTextB),
        ZB_SLOT(Property, IsAvailable),
        ZB_SLOT(Property, GetFlag),
        ZB_SLOT(Property, SetFlag),
        ZB_SLOT(Property, SetScripts),
        ZB_SLOT(Property, SetTextByScript),
        ZB_SLOT(Property, GetView),
        ZB_SLOT(Property, GetValue),
        ZB_SLOT(Property, SetValue),
        ZB_SLOT(Property, GetDataType),
        ZB_SLOT(Property, SetDataType),
        ZB_SLOT(Property, IsReadable),
        ZB_SLOT(Property, IsWritable),
        ZB_OVERLOAD_SLOT(Property, GetConnections, bool(Simple&)),
        ZB_OVERLOAD_SLOT(Property, GetConnections, bool(Any&)),
        ZB_OVERLOAD_SLOT(Property, GetDataProperty,
                         zbIBrowserDataProperty * (zbIBrowserDataSourceSimple*)),
        ZB_OVERLOAD_SLOT(Property, GetDataProperty,
                         zbIBrowserDataProperty * (zbIBrowserDataSource*)),
        ZB_SLOT(Property, GetIntegerValue),
        ZB_SLOT(Property, GetUnsignedValue),
        ZB_SLOT(Property, GetBooleanValue),
        ZB_SLOT(Property, GetTextPointer),
        ZB_OVERLOAD_SLOT(Property, GetStringValue,
                         bool(zbIBrowserViewItem*, zbIBrowserDataItem*, zbString&)),
        ZB_OVERLOAD_SLOT(Property, GetStringValue, bool(zbIBrowserViewItem*, zbString&)),
        ZB_SLOT(Property, GetDoubleValue),
        ZB_SLOT(Property, SetIntegerValue),
        ZB_SLOT(Property, SetBooleanValue),
        ZB_SLOT(Property, GetDisplayValue),
    };

    EXPECT_EQ(slots, InThisOrder(slots));
}

TEST_F(PropertyOrder, OfThePropertiesOfOneGenerationAddsADestructor) {
    EXPECT_FALSE(std::is_destructible_v<zbIBrowserViewProperty>);
    EXPECT_TRUE(std::has_virtual_destructor_v<zbBrowserViewProperty>);
    EXPECT_TRUE(std::has_virtual_destructor_v<zbbrowser::ViewProperty>);
    EXPECT_TRUE((std::is_base_of_v<zbBrowserErrorReporter, zbBrowserViewProperty>));
    EXPECT_FALSE((std::is_base_of_v<zbBrowserErrorReporter, zbbrowser::ViewProperty>));
}

TEST_F(PropertyOrder, OfTheHolderBeginsWithTheErrorReporter) {
    VirtualSlots const slots{
        ZB_SLOT(zbBrowserViewPropertyHolder, FindViewProperty),
        ZB_SLOT(zbBrowserViewPropertyHolder, GetViewPropertyList),
    };
    constexpr std::size_t behindReporter = 3; // Two entries of the destructor, and SetErrCommand

    EXPECT_EQ(slots, InThisOrder(slots, behindReporter));
}

} // namespace
