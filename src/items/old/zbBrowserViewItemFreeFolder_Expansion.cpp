// SPDX-License-Identifier: MIT
// Expanding and collapsing folders.
#include "items/old/FolderWalk.h"
#include "items/old/zbBrowserFreeFolderContentHolder.h"
#include "items/old/zbBrowserViewItemFreeFolder.h"
#include "view/OldViewContext.h"

using zbbrowser::detail::CallScope;
using zbbrowser::detail::WalkFolders;

// The marks are set after building: a slot that is called while the children are built still sees
// the folder collapsed.
void zbBrowserViewItemFreeFolder::Expand(bool buildRecursive, bool silent) {
    if (expanded_)
        return;
    CallScope const scope(context_.Lifetime());
    if (holder_ != nullptr)
        holder_->WithTree().BuildNextLevel(buildRecursive, silent);
    expanded_ = true;
    if (!silent && IsAlive())
        context_.Raise(&zbBrowserSignalManager::ViewItemExpanded, this);
}

void zbBrowserViewItemFreeFolder::Collapse(bool deselectSelf, bool deselectChildren, bool silent) {
    if (!expanded_)
        return;
    CallScope const scope(context_.Lifetime());
    expanded_ = false;
    if (deselectSelf)
        context_.SelectViewItem(*this, false, false);
    if (deselectChildren)
        SelectChildren(false);
    if (!silent && IsAlive())
        context_.Raise(&zbBrowserSignalManager::ViewItemCollapsed, this);
}

bool zbBrowserViewItemFreeFolder::ExpandRecursive(bool recursive) {
    if (busy_)
        return Refuse(GetError());
    CallScope const scope(context_.Lifetime());
    busy_ = true;
    Expand(true, false);
    if (recursive)
        SetExpandedAll(true, true, false);
    busy_ = false;
    return true;
}

bool zbBrowserViewItemFreeFolder::CollapseRecursive(bool recursive) {
    if (busy_)
        return Refuse(GetError());
    CallScope const scope(context_.Lifetime());
    busy_ = true;
    if (recursive)
        SetExpandedAll(false, false, false);
    Collapse(false, false, false);
    busy_ = false;
    return true;
}

void zbBrowserViewItemFreeFolder::SetExpandedAll(bool expand, bool showAll, bool silent) {
    CallScope const scope(context_.Lifetime());
    WalkFolders(*this, [&](zbBrowserViewItemFreeFolder& folder) {
        if (&folder != this && expand)
            folder.Expand(showAll, silent);
        if (&folder != this && !expand)
            folder.Collapse(true, false, silent);
        if (folder.holder_ != nullptr) {
            folder.holder_->ForEach([&](zbBrowserFreeFolderContent& content) {
                content.SetExpandedAll(expand, showAll, silent);
            });
        }
        return true;
    });
}

bool zbBrowserViewItemFreeFolder::ExpandList(zbIBrowserDataSourceSimple* list, bool recursive) {
    if (busy_)
        return Refuse(GetError());
    CallScope const scope(context_.Lifetime());
    busy_ = true;
    Expand(false, false);
    SetListExpanded(true, list, recursive);
    busy_ = false;
    return true;
}

bool zbBrowserViewItemFreeFolder::CollapseList(zbIBrowserDataSourceSimple* list, bool recursive) {
    if (busy_)
        return Refuse(GetError());
    CallScope const scope(context_.Lifetime());
    busy_ = true;
    SetListExpanded(false, list, recursive);
    busy_ = false;
    return true;
}

// Recursive means one level of child folders, no more.
void zbBrowserViewItemFreeFolder::SetListExpanded(bool expand, zbIBrowserDataSourceSimple* list,
                                                  bool recursive) {
    WalkFolders(*this, [&](zbBrowserViewItemFreeFolder& folder) {
        if (folder.holder_ != nullptr) {
            folder.holder_->ForEach([&](zbBrowserFreeFolderContent& content) {
                content.SetExpandedList(expand, list, false);
            });
        }
        return recursive && &folder == this;
    });
}
