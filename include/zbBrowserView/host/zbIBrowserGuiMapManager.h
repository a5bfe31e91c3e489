// SPDX-License-Identifier: MIT
//! \file
//! zbIBrowserGuiMapManager: finds gui maps by name.
#pragma once

#include <zbBrowserView/platform/zbExport.h>
#include <zbBrowserView/platform/zbString.h>

class zbIBrowserGuiMap;

//! Finds gui maps by name. Ownership: the host's; reached through the manager each time.
class ZBBROWSERVIEW_API zbIBrowserGuiMapManager {
public:
    //! Null: there is no such map, and what would have been read from it stays empty. Old views
    //! ask for "default_filter_gmap", styles and collectors for the names that they were given.
    virtual zbIBrowserGuiMap* FindGuiMap(zbString const& name) = 0;

protected:
    ~zbIBrowserGuiMapManager() = default;
};
