// SPDX-License-Identifier: MIT
#include "filtersort/CurrentSortProperty.h"

#include "support/RecordingHost.h"

#include <zbBrowserView/zbBrowserView.h>

#include <gtest/gtest.h>

namespace {

using zbbrowser::detail::CurrentSortProperty;
using zbbrowser::detail::ForgetSortProperty;
using zbbrowser::detail::SetCurrentSortProperty;

class CurrentSortPropertyTest : public testing::Test {
protected:
    ~CurrentSortPropertyTest() override { SetCurrentSortProperty(nullptr); }

    zbIBrowserViewProperty* Property(char const* name) {
        host.View().CreateViewProperty(name);
        return host.View().FindViewProperty(name);
    }

    zbtest::RecordingHost host;
};

TEST_F(CurrentSortPropertyTest, APropertyThatGoesIsForgotten) {
    auto* const color = Property("color");
    SetCurrentSortProperty(color);

    ForgetSortProperty(color);

    EXPECT_EQ(CurrentSortProperty(), nullptr);
}

TEST_F(CurrentSortPropertyTest, AnotherPropertyThatGoesChangesNothing) {
    auto* const color = Property("color");
    SetCurrentSortProperty(color);

    ForgetSortProperty(Property("weight"));

    EXPECT_EQ(CurrentSortProperty(), color);
}

TEST_F(CurrentSortPropertyTest, ThePropertyOfAViewIsForgottenWithTheView) {
    SetCurrentSortProperty(Property("color"));

    host.DeleteView(host.View());

    EXPECT_EQ(CurrentSortProperty(), nullptr);
}

} // namespace
