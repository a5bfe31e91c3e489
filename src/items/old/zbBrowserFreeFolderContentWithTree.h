// SPDX-License-Identifier: MIT
//! \file
//! Trees in a folder.
#pragma once

#include "items/old/zbBrowserFreeFolderContent.h"

//! The strategy for trees. Their items are not built yet: the trees and the settings of their types
//! are recorded, connecting and rebuilding them succeeds, and no item is shown.
class zbBrowserFreeFolderContentWithTree final : public zbBrowserFreeFolderContent {
public:
    using zbBrowserFreeFolderContent::zbBrowserFreeFolderContent;

    bool ConnectTree(Tree* tree, bool) override { return tree != nullptr; }
    bool DisconnectTree(Tree* tree, bool) override { return tree != nullptr; }
    bool RefreshTreeItems(Tree*, bool) override { return true; }
    bool RedrawTree(Tree*, bool) override { return true; }
    bool RebuildTree(Tree*, bool) override { return true; }
    bool GetShowEmptyGroups() const override { return showEmptyGroups_; }
    bool SetShowEmptyGroups(bool show) override {
        showEmptyGroups_ = show;
        return true;
    }

private:
    bool showEmptyGroups_ = false;
};
