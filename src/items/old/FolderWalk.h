// SPDX-License-Identifier: MIT
//! \file
//! The walk over a folder and all folders below it.
#pragma once

#include "items/old/zbBrowserViewItemFreeFolder.h"
#include "view/OldViewContext.h"

#include <type_traits>
#include <vector>

namespace zbbrowser::detail {

//! Visits a folder, then the folders below it, depth first, in their stored order. `enter(folder)`
//! comes before the child folders and `leave(folder)` after them; if enter answers false, the
//! folder is neither gone into nor left.
//!
//! Both may call the host, which may add and delete folders: one that was made after the walk began
//! or went before its turn is passed over, and one that goes while it is entered is not left. (With
//! a new folder for each that is entered the walk would not end.)
//! Requires: an open CallScope, so that no folder is freed under the walk.
//!
//! The walk keeps a stack of its own, since folders may be nested a hundred thousand deep.
template <class Folder, class Enter, class Leave>
void WalkFolders(Folder& top, Enter enter, Leave leave) {
    using Node = std::conditional_t<std::is_const_v<Folder>, zbBrowserViewItemFreeFolder const,
                                    zbBrowserViewItemFreeFolder>;
    struct Step {
        Node* folder;
        bool entered;
    };
    auto const made = top.Context().FoldersMade();
    std::vector<Step> steps{{&top, false}};
    while (!steps.empty()) {
        auto const step = steps.back();
        if (!step.folder->IsAlive()) {
            steps.pop_back();
            continue;
        }
        if (step.entered) {
            steps.pop_back();
            leave(*step.folder);
            continue;
        }
        steps.back().entered = true;
        if (!enter(*step.folder)) {
            steps.pop_back();
            continue;
        }
        auto const& children = step.folder->ChildFolders();
        for (auto child = children.rbegin(); child != children.rend(); ++child) {
            if (*child != nullptr && (*child)->Place().Number() < made)
                steps.push_back({child->get(), false});
        }
    }
}

//! The same without the way back.
template <class Folder, class Enter>
void WalkFolders(Folder& top, Enter enter) {
    WalkFolders(top, enter, [](zbBrowserViewItemFreeFolder const&) {});
}

} // namespace zbbrowser::detail
