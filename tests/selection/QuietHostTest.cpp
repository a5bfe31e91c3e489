// SPDX-License-Identifier: MIT
//! \file
//! A host without listeners, which deletes items while it is asked for its signal managers.
#include "SelectionTest.h"

namespace zbtest {
namespace {

class QuietHost : public testing::Test {
protected:
    //! Once, while the host is asked for that manager.
    void When(std::string const& asked, std::function<void()> const& deed) {
        host.calls.On(asked, "manager", [this, asked, deed] {
            host.calls.Off(asked, "manager");
            deed();
        });
    }
    [[nodiscard]] static zbIBrowserViewItemFreeFolder& MakeFolder(zbIBrowserView& view) {
        EXPECT_TRUE(view.CreateFreeFolder(view.GetRootFreeFolder(), "a"));
        return *view.GetRootFreeFolder()->FindChildFreeFolder("a");
    }

    RecordingHost host;
};

TEST_F(QuietHost, AnItemThatGoesBeforeTheDataSideIsToldIsNotSelected) {
    zbIBrowserView& view = host.OldView();
    auto& manager = *view.GetSelectionManager();
    auto& a = MakeFolder(view);
    When("GetDataSignalManager", [&] { view.DeleteFreeFolder(&a, true); });

    manager.UpdateSelection({&a}, true, false);

    Items selected;
    EXPECT_FALSE(manager.GetSelectedViewItems(selected));
    EXPECT_FALSE(manager.IsViewItemSelected(&a));
}

TEST_F(QuietHost, AnItemThatGoesBeforeAClearingIsToldIsNotSelected) {
    zbIBrowserView& view = host.NewView();
    auto& manager = *view.GetSelectionManager();
    auto& a = MakeFolder(view);
    std::string told;
    static_cast<void>(
        host.signals.ViewItemsSelected.Connect([&](Items const& items) { told = TextOf(items); }));
    When("GetSignalManager", [this] { host.NewView().DeleteVirtualRoot(); });

    manager.UpdateSelection({&a}, true, true);

    Items items;
    EXPECT_FALSE(manager.GetSelectedViewItems(items));
    EXPECT_FALSE(manager.GetChangedViewItems(items));
    EXPECT_EQ(told, "");
}

} // namespace
} // namespace zbtest
