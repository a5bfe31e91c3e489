// SPDX-License-Identifier: MIT
//! \file
//! A view with content, an operation that runs on it, and a deed that is done within.
#pragma once

#include "ViewTestSupport.h"

#include <functional>
#include <set>

namespace zbtest {

//! A point at which the library leaves its own code: a signal, or an operation of a host object.
struct Trigger {
    std::string name;
    std::string object; //!< Empty: `name` is a signal.

    [[nodiscard]] bool IsSignal() const { return object.empty(); }
};

//! The view "view" shows
//!
//!     /a      lists part and tool, tree assembly
//!     /a/b    list part
//!     /c      list tool
//!     /g      list part, grouped
//!
//! and the source spare is not connected.
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
    RecordingItem* announced; //!< An item of part that no view was told of yet.

    //! Does `deed` when `trigger` is reached for the nth time, counted from 1.
    void Arm(Trigger const& trigger, int nth, std::function<void()> deed);
    //! No deed from now on. True if it was done.
    bool Disarm();
    //! The host object that is being called while the deed is done; empty in a slot.
    [[nodiscard]] std::string const& Callee() const { return trigger_.object; }

    [[nodiscard]] bool ViewLives() { return host.Controller().FindView("view") == view; }
    //! Frees a source, unless it or an item of it is being called; it is disconnected before.
    void FreeSource(std::string const& name);
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

    Trigger trigger_;
    int left_ = 0;
    bool done_ = false;
    std::function<void()> deed_;
};

//! All points at which the operations of the old view call out.
[[nodiscard]] std::vector<Trigger> const& AllTriggers();

} // namespace zbtest
