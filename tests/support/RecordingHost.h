// SPDX-License-Identifier: MIT
//! \file
//! RecordingHost: a complete host in memory.
#pragma once

#include "RecordingHostControl.h"
#include "RecordingHostGui.h"

#include <zbBrowserView/host/zbBrowserDataSignalManager.h>
#include <zbBrowserView/host/zbBrowserSignalManager.h>
#include <zbBrowserView/zbBrowserViewCtrl.h>

namespace zbtest {

//! A complete host in memory: every host interface, built from small literals.
//!
//!     RecordingHost host;
//!     host.Source("part").Items({"bolt_1", "nut_2"});
//!     zbIBrowserView& view = host.View("parts");
//!     view.DataSourceConnect(&host.Source("part"));
//!     host.calls.On("GetDataItems", "part", [&] { host.DeleteView(view); });
//!
//! Items, sources and trees are really freed when they are deleted, so that a stale pointer shows
//! under AddressSanitizer. Destroyed, it deletes the controller with its views first, and then the
//! data; a test that wants another order calls DeleteController.
class RecordingHost {
public:
    RecordingHost();
    RecordingHost(RecordingHost const&) = delete;
    RecordingHost& operator=(RecordingHost const&) = delete;
    ~RecordingHost();

    RecordingHostCalls calls; //!< First, so that it goes last.
    zbBrowserSignalManager signals;
    zbBrowserDataSignalManager dataSignals;
    RecordingGuiMapManager guiMaps;
    RecordingPanel panel;
    RecordingManager manager;

    //! A data control, made if need be. "data" is the one that View gives to new views.
    [[nodiscard]] RecordingDataCtrl& Control(std::string const& name = "data");
    void DeleteControl(std::string const& name = "data");
    //! Short for Control().Source(name) and so on.
    RecordingSource& Source(std::string const& name) { return Control().Source(name); }
    RecordingTree& Tree(std::string const& name) { return Control().Tree(name); }
    RecordingTree& Tree(std::string const& name, RecordingSource& ownType) {
        return Control().Tree(name, ownType);
    }

    //! Made when first asked for.
    [[nodiscard]] zbBrowserViewCtrl& Controller();
    void DeleteController();

    //! The view of that name, of either generation; made if need be, as an old one with the data
    //! control "data".
    zbIBrowserView& View(char const* name = "view");
    //! As View, for its concrete class.
    zbBrowserView& OldView(char const* name = "view");
    //! As View, but made as a new one.
    zbbrowser::View& NewView(char const* name = "view");
    bool DeleteView(zbIBrowserView& view);

    //! It is a source or tree of this host. The pointer is compared and not followed.
    [[nodiscard]] bool Owns(zbIBrowserDataSource const* source) const;

    //! False: the test breaks on purpose what is looked at there.
    bool isCheckedAfterFailure = true;
    //! Called at the end of a host for which an allocation has failed on purpose. May be null.
    static inline void (*checkAfterFailure)(RecordingHost& host) = nullptr;

private:
    std::map<std::string, std::unique_ptr<RecordingDataCtrl>> controls_;
    std::unique_ptr<zbBrowserViewCtrl> controller_;
};

} // namespace zbtest
