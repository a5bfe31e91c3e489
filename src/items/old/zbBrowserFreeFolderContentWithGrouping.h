// SPDX-License-Identifier: MIT
//! \file
//! Lists whose rows stand in a group for each source.
#pragma once

#include "items/old/zbBrowserFreeFolderContent.h"

//! The strategy for lists while the folder groups its leaves. Groups are not built yet: the lists
//! are recorded, connecting and rebuilding them succeeds, and no item is shown.
class zbBrowserFreeFolderContentWithGrouping final : public zbBrowserFreeFolderContent {
public:
    using zbBrowserFreeFolderContent::zbBrowserFreeFolderContent;

    bool ConnectList(Simple* source, bool) override { return source != nullptr; }
    bool DisconnectList(Simple* source, bool) override { return source != nullptr; }
    bool RefreshListItems(Simple*, bool) override { return true; }
    bool RebuildList(Simple* source, bool) override { return source != nullptr; }
};
