// SPDX-License-Identifier: MIT
//! \file
//! InvariantChecker: what must hold in an old view between any two operations.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

class zbBrowserView;
class zbBrowserViewItemFreeFolder;
class zbIBrowserViewItem;

namespace zbtest {

class RecordingHost;

//! Walks a whole view, asks everything in each way in which it can be asked, and notes down what
//! does not agree. It follows no data item.
//!
//!     EXPECT_EQ(InvariantChecker(view).Check(), "");
class InvariantChecker {
public:
    //! \param threw an exception has passed through the view before, so folders may be busy for
    //! good
    explicit InvariantChecker(zbBrowserView& view, bool threw = false)
        : view_(view)
        , threw_(threw) {}

    //! One line for each thing that does not hold; empty if all does.
    [[nodiscard]] std::string Check();

    //! What must hold on the host's side between two operations.
    [[nodiscard]] static std::string CheckHost(RecordingHost& host);

private:
    using Folder = zbBrowserViewItemFreeFolder;

    void Expect(bool holds, char const* what);
    void CheckFolder(Folder& folder);
    void CheckPlace(Folder& folder);
    void CheckListing(Folder& folder, std::vector<zbIBrowserViewItem*> const& rows);
    void CheckRow(Folder& folder, zbIBrowserViewItem& row);
    void CheckStore(Folder& folder, std::vector<zbIBrowserViewItem*> const& rows);
    void CheckLists(Folder& folder);
    void CheckEvents(Folder& folder);
    void CheckTrees(Folder& folder);
    void CheckUnused(Folder& folder);

    zbBrowserView& view_;
    bool const threw_;
    std::string where_;
    std::string problems_;
    std::vector<zbIBrowserViewItem*> allRows_;
    std::size_t folders_ = 0;
    std::size_t holders_ = 0;
};

} // namespace zbtest
