// SPDX-License-Identifier: MIT
//! \file
//! zbBrowserManager: the class from which a host derives its manager.
#pragma once

#include <zbBrowserView/host/zbIBrowserManager.h>

class zbBrowserViewCtrl;
class zbIBrowserViewItemFreeFolder;

//! The class from which a host derives its manager: zbIBrowserManager, plus the right to create and
//! delete views and free folders. These four operations of the controller are protected, so that
//! only the manager of a host decides about them; a derived class publishes the ones it likes:
//!
//!     class Manager : public zbBrowserManager {
//!     public:
//!         bool NewView(char const* name) { return CreateView(*controller_, name, false); }
//!         ...
//!     };
//!
//! What they do, signal and throw stands in zbBrowserViewCtrl.h.
class ZBBROWSERVIEW_API zbBrowserManager : public zbIBrowserManager {
protected:
    zbBrowserManager() = default;
    ~zbBrowserManager() = default;
    zbBrowserManager(zbBrowserManager const&) = default;
    zbBrowserManager& operator=(zbBrowserManager const&) = default;

    static bool CreateView(zbBrowserViewCtrl& controller, char const* name, bool isNew);
    static bool DeleteView(zbBrowserViewCtrl& controller, zbIBrowserView* view);
    static bool CreateFreeFolder(zbBrowserViewCtrl& controller,
                                 zbIBrowserViewItemFreeFolder* parent, zbString const& name);
    static bool DeleteFreeFolder(zbBrowserViewCtrl& controller,
                                 zbIBrowserViewItemFreeFolder* folder, bool withContent);
};
