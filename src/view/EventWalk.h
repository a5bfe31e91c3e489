// SPDX-License-Identifier: MIT
//! \file
//! How an event comes to the folders of an old view.
#pragma once

#include "items/old/FolderWalk.h"
#include "items/old/zbBrowserFreeFolderContentHolder.h"
#include "items/old/zbBrowserViewItemVirtualRoot.h"
#include "view/OldViewContext.h"

#include <algorithm>
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

//! Makes the holders that a walk over all folders would make which goes into those for which
//! `isEntered` holds. Nothing to do as long as no folder is new.
template <class IsEntered>
void RequireHolders(zbBrowserViewItemFreeFolder& root, IsEntered isEntered) {
    if (root.Context().AllFoldersHaveHolders())
        return;
    WalkFolders(root, [&](zbBrowserViewItemFreeFolder& folder) {
        if (!isEntered(folder))
            return false;
        folder.RequireHolder();
        return true;
    });
}

//! The folder that is at work and those above it, marked as busy. From one folder to the next only
//! the difference is marked and unmarked, so that in the order of a walk all folders together cost
//! what the walk does. The marks stay where an exception passes while a folder is at work.
class BusyPath {
public:
    BusyPath() = default;
    BusyPath(BusyPath const&) = delete;
    BusyPath& operator=(BusyPath const&) = delete;
    ~BusyPath() {
        if (!isAtWork_)
            Unmark(0);
    }

    //! The folder is at work from now on. False if it or one above it is busy without being marked
    //! here. Requires: none is at work.
    bool Enter(zbBrowserViewItemFreeFolder& folder) {
        if (busy_ != nullptr && folder.Place().IsWithin(*busy_))
            return false;
        auto* above = &folder;
        for (; above != nullptr && !Holds(*above); above = above->Owner()) {
            if (above->IsBusy()) {
                busy_ = &above->Place();
                return false;
            }
        }
        Unmark(above == nullptr ? 0 : DepthOf(*above) + 1);
        folders_.resize(DepthOf(folder) + 1);
        for (auto* place = &folder; place != above; place = place->Owner()) {
            folders_[DepthOf(*place)] = place;
            place->SetBusy(true);
        }
        isAtWork_ = true;
        return true;
    }
    //! It has done its work.
    void Leave() { isAtWork_ = false; }

private:
    using Folder = zbBrowserViewItemFreeFolder;

    static std::size_t DepthOf(Folder const& folder) { return folder.Place().Depth(); }
    bool Holds(Folder const& folder) const {
        return DepthOf(folder) < folders_.size() && folders_[DepthOf(folder)] == &folder;
    }
    //! Those from this depth on.
    void Unmark(std::size_t depth) {
        for (auto i = depth; i < folders_.size(); ++i)
            folders_[i]->SetBusy(false);
        folders_.resize(std::min(depth, folders_.size()));
    }

    std::vector<Folder*> folders_;      // From the root down
    FolderPlace const* busy_ = nullptr; // One that others have marked
    bool isAtWork_ = false;
};

//! WalkContents for an event that only concerns the folders of one source: the others are not
//! looked at. Requires: an open CallScope.
template <class Event>
void VisitContents(zbBrowserViewItemFreeFolder& root, zbIBrowserDataSource const* source,
                   Event event) {
    RequireHolders(root,
                   [](zbBrowserViewItemFreeFolder const& folder) { return !folder.IsBusy(); });
    auto const made = root.Context().FoldersMade();
    auto const& folders = root.Context().Folders();
    BusyPath path;
    for (auto* folder = folders.Next(source, nullptr); folder != nullptr;
         folder = folders.Next(source, folder)) {
        if (folder->Place().Number() >= made || !path.Enter(*folder))
            continue;
        event(folder->RequireHolder());
        path.Leave();
    }
}

} // namespace zbbrowser::detail
