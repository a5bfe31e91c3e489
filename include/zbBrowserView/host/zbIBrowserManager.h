// SPDX-License-Identifier: MIT
//! \file
//! zbIBrowserManager: the host as the library sees it.
#pragma once

#include <zbBrowserView/platform/zbExport.h>
#include <zbBrowserView/platform/zbString.h>

class zbBrowserDataSignalManager;
class zbBrowserSignalManager;
class zbIBrowserGuiMap;
class zbIBrowserGuiMapManager;
class zbIBrowserPanel;
class zbIBrowserView;
class zbIBrowserViewItem;

//! The host as the library sees it: where signals go, where scripts run, where the panel is.
//! A host derives from zbBrowserManager, not from this interface, and hands the object to
//! CreateBrowserViewCtrl.
//!
//! Ownership: the host's; it lives longer than the controller. What the operations hand out is
//! asked for anew each time that it is needed and never kept, so a host may exchange it between
//! calls. Everything is called on the thread that calls the library.
class ZBBROWSERVIEW_API zbIBrowserManager {
public:
    //! Holder of the signals that are tied to a data control.
    //! Null: nobody listens; these signals are not raised.
    virtual zbBrowserDataSignalManager* GetDataSignalManager() = 0;

    //! Null: there are no gui maps; icons and captions from them stay empty.
    virtual zbIBrowserGuiMapManager* GetGuiMapManager() = 0;

    //! A rebuild begins. Brackets nest, and each is closed by one EndLongOperation; between them
    //! many signals may come, so this is the place for a wait cursor and for holding back repaints.
    virtual void BeginLongOperation() = 0;

    //! The rebuild is over.
    virtual void EndLongOperation() = 0;

    //! Runs the script of a view operation or of a popup menu. The library drops `result`.
    virtual void EvaluateScript(zbString const& script, zbString& result) = 0;

    //! Asks the user interface to bring `item` into sight: after data was selected, and after
    //! something was added to a selection while a collector is on.
    virtual void ShowViewItem(zbIBrowserViewItem* item) = 0;

    //! The panel in which the active view stands. Null: there is none; see zbIBrowserPanel.
    virtual zbIBrowserPanel* GetBrowserPanel() = 0;

    //! Announces that the library uses a gui map: called once for each old view while it is made,
    //! with "default_filter_gmap", provided that there is a gui map manager.
    virtual void RegisterGuiMap(char const* name) = 0;

    //! Hands over the map that was found under the name just announced; `use` is always 13. Not
    //! called if there is no such map.
    virtual void RegisterGuiMapObject(zbIBrowserGuiMap* map, int use) = 0;

    //! Shows or hides a collector button of a new view; `which` is always 4. Old views are told
    //! through their own operation of this name instead, and raise a signal.
    virtual void ShowCollectorButton(zbIBrowserView* view, int which, bool show) = 0;

    //! Holder of the signals of the views. Null: nobody listens; nothing is raised.
    virtual zbBrowserSignalManager* GetSignalManager() const = 0;

    //! The collector of an old view is being switched on, before it says so by a signal; the
    //! collectors of other views may be switched off here.
    virtual void OnCollectorSwitchedOn(zbIBrowserView* view) = 0;

protected:
    ~zbIBrowserManager() = default;
};
