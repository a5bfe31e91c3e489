// SPDX-License-Identifier: MIT
//! \file
//! A view with content, an operation that runs on it, and a deed that is done within.
#pragma once

#include "ViewTestSupport.h"

#include <zbBrowserView/zbIBrowserSelectionNotifierBase.h>

#include <functional>
#include <set>

namespace zbtest {

//! A point at which the library leaves its own code: a signal, or an operation of a host object.
struct Trigger {
    std::string name;
    std::string object; //!< Empty: `name` is a signal.

    [[nodiscard]] bool IsSignal() const { return object.empty(); }
};

//! A notifier that reports to the calls of a host.
class ReportingNotifier final : public zbIBrowserSelectionNotifierBase {
public:
    explicit ReportingNotifier(RecordingHostCalls& calls)
        : calls_(calls) {}

    void OnSelectionChanged(std::vector<zbIBrowserViewItem*> const& /*items*/,
                            bool /*selected*/) override {
        calls_.Called("OnSelectionChanged", "notifier");
    }
    void OnPopupSelection(bool /*flag*/) override {}
    void OnSelectionFinished() override { calls_.Called("OnSelectionFinished", "notifier"); }

private:
    RecordingHostCalls& calls_;
};

//! The view "view" shows
//!
//!     /a      lists part and tool, tree assembly with the item engine
//!     /a/b    list part
//!     /c      list tool
//!     /g      list part, grouped
//!
//! with the folder b and some rows selected, and the source spare is not connected.
class ReentranceBench {
public:
    ReentranceBench();

    RecordingHost host;
    zbBrowserView* view;
    zbIBrowserViewItemFreeFolder* root;
    zbIBrowserViewItemFreeFolder* a;
    zbIBrowserViewItemFreeFolder* b;
    zbIBrowserViewItemFreeFolder* c;
    zbIBrowserViewItemFreeFolder* g;
    RecordingItem* announced;  //!< An item of part that no view was told of yet.
    RecordingTreeItem* engine; //!< The item of the tree.

    //! Does `deed` when `trigger` is reached for the nth time, counted from 1.
    void Arm(Trigger const& trigger, int nth, std::function<void()> deed);
    //! No deed from now on. True if it was done.
    bool Disarm();
    //! The host object that is being called while the deed is done; empty in a slot.
    [[nodiscard]] std::string const& Callee() const { return trigger_.object; }

    [[nodiscard]] bool ViewLives() { return host.Controller().FindView("view") == view; }
    //! Frees a source, unless it or an item of it is being called; it is disconnected before.
    void FreeSource(std::string const& name);
    //! Rows of a and c, with some that stand there no more.
    [[nodiscard]] std::vector<zbIBrowserViewItem*> SomeRows();
    //! The data items of part and tool.
    [[nodiscard]] std::vector<zbIBrowserDataItemSimple*> SomeData();
    //! Frees some items of a source without telling the view.
    void FreeItems(std::string const& name);

    //! The whole view hangs together; it still takes a new list and shows its rows.
    void ExpectThatTheViewWorks();
    //! After a full rebuild each folder shows exactly the items of its lists.
    void ExpectThatARebuildShowsTheData();

private:
    zbIBrowserViewItemFreeFolder* Make(zbIBrowserViewItemFreeFolder* parent, char const* name);
    void Listen(std::string const& signal);
    void Reached();
    void ExpectSound(zbIBrowserViewItemFreeFolder& folder, bool complete);
    [[nodiscard]] bool IsCalled(RecordingSource& source) const;

    ReportingNotifier notifier_{host.calls};
    Trigger trigger_;
    int left_ = 0;
    bool done_ = false;
    std::function<void()> deed_;
};

//! All points at which the operations of the old view call out.
[[nodiscard]] std::vector<Trigger> const& AllTriggers();

} // namespace zbtest
