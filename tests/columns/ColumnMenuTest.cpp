// SPDX-License-Identifier: MIT
//! \file
//! The menu of a column, which its view finds by name.
#include "control/fakes/SilentView.h"
#include "presentation/columns/ColumnBase.h"
#include "view/ViewContext.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace zbtest {
namespace {

using zbbrowser::detail::CustomColumn;
using zbbrowser::detail::Generation;
using zbbrowser::detail::ViewContext;

//! A view with menus, of which nothing but the address is needed.
class ViewWithMenus final : public SilentView {
public:
    ViewWithMenus()
        : SilentView("view") {}

    using SilentView::FindPopupMenu;

    std::map<std::string, int> menus;

    zbIBrowserPopupMenu* Menu(char const* name) {
        return static_cast<zbIBrowserPopupMenu*>(static_cast<void*>(&menus[name]));
    }
    zbIBrowserPopupMenu* FindPopupMenu(char const* name) const override {
        auto const found = menus.find(name);
        return found == menus.end() ? nullptr : const_cast<ViewWithMenus*>(this)->Menu(name);
    }
};

class ContextWithoutItems final : public ViewContext {
public:
    explicit ContextWithoutItems(zbIBrowserView& view)
        : ViewContext(view, nullptr, Generation::Old) {}

    bool Owns(zbIBrowserViewItem const*) const override { return false; }
};

class Column final : public CustomColumn {
public:
    explicit Column(ViewContext& context)
        : CustomColumn(context, "weight", 1) {}
};

class ColumnMenuTest : public testing::Test {
protected:
    ViewWithMenus view;
    ContextWithoutItems context{view};
    Column column{context};
};

TEST_F(ColumnMenuTest, AMenuIsSetByName) {
    auto* const menu = view.Menu("header");

    EXPECT_TRUE(column.SetPopupMenu("header"));

    EXPECT_EQ(column.GetPopupMenu(), menu);
}

TEST_F(ColumnMenuTest, AnUnknownMenuIsRefusedAndTheOldOneStays) {
    auto* const menu = view.Menu("header");
    column.SetPopupMenu("header");

    EXPECT_FALSE(column.SetPopupMenu("unknown"));

    EXPECT_EQ(column.GetPopupMenu(), menu);
}

TEST_F(ColumnMenuTest, AMenuThatHasGoneIsNotFound) {
    view.Menu("header");
    column.SetPopupMenu("header");

    view.menus.clear();

    EXPECT_EQ(column.GetPopupMenu(), nullptr);
}

TEST_F(ColumnMenuTest, AMenuThatIsMadeAnewIsFoundByTheOldName) {
    view.Menu("header");
    column.SetPopupMenu("header");
    view.menus.clear();

    auto* const anew = view.Menu("header");

    EXPECT_EQ(column.GetPopupMenu(), anew);
}

} // namespace
} // namespace zbtest
