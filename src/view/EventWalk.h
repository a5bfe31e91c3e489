// SPDX-License-Identifier: MIT
//! \file
//! How an event comes to the folders of an old view.
#pragma once

#include "items/old/FolderWalk.h"
#include "items/old/zbBrowserFreeFolderContentHolder.h"
#include "items/old/zbBrowserViewItemVirtualRoot.h"
#include "view/OldViewContext.h"

#include <vector>

namespace zbbrowser::detail {

//! Gives an event to each folder that is not busy, the holders being made where they are missing.
//! The folder is busy while it and the folders below it work on the event.
//! Requires: an open CallScope.
template <class Event>
void WalkContents(zbBrowserViewItemFreeFolder& top, Event event) {
    auto const enter = [&](zbBrowserViewItemFreeFolder& folder) {
        if (folder.IsBusy())
            return false;
        folder.SetBusy(true);
        event(folder.RequireHolder());
        return true;
    };
    WalkFolders(top, enter, [](zbBrowserViewItemFreeFolder& folder) { folder.SetBusy(false); });
}

//! Makes the holders that such a walk would make. Nothing to do as long as no folder is new.
inline void RequireHolders(zbBrowserViewItemFreeFolder& root) {
    if (root.Context().AllFoldersHaveHolders())
        return;
    WalkFolders(root, [](zbBrowserViewItemFreeFolder& folder) {
        if (!folder.IsBusy())
            folder.RequireHolder();
        return !folder.IsBusy();
    });
}

//! A folder and those above it, marked as busy. The marks stay where an exception passes.
class BusyPath {
public:
    //! False, and none is marked, if one of them is busy.
    bool Enter(zbBrowserViewItemFreeFolder& folder) {
        folders_.clear();
        for (auto* place = &folder; place != nullptr; place = place->Owner()) {
            if (place->IsBusy())
                return false;
            folders_.push_back(place);
        }
        Mark(true);
        return true;
    }
    void Leave() { Mark(false); }

private:
    void Mark(bool busy) {
        for (auto* const folder : folders_)
            folder->SetBusy(busy);
    }

    std::vector<zbBrowserViewItemFreeFolder*> folders_;
};

//! WalkContents for an event that only concerns the folders of one source: the others are not
//! looked at. Requires: an open CallScope.
template <class Event>
void VisitContents(zbBrowserViewItemFreeFolder& root, zbIBrowserDataSource const* source,
                   Event event) {
    RequireHolders(root);
    auto const& folders = root.Context().Folders();
    BusyPath path;
    for (auto* folder = folders.Next(source, nullptr); folder != nullptr;
         folder = folders.Next(source, folder)) {
        if (!path.Enter(*folder))
            continue;
        event(folder->RequireHolder());
        path.Leave();
    }
}

} // namespace zbbrowser::detail
