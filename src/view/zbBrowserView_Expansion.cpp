// SPDX-License-Identifier: MIT
// Listing and expansion. What walks over selected items joins with the selection manager.
#include "control/Messages.h"
#include "items/old/zbBrowserViewItemDataLeaf.h"
#include "items/old/zbBrowserViewItemVirtualRoot.h"
#include "view/OldViewContext.h"

#include <zbBrowserView/zbBrowserView.h>

#include <unordered_set>

using zbbrowser::detail::CallScope;
using zbbrowser::detail::Fail;
using zbbrowser::detail::OldViewContext;

bool zbBrowserView::GetChildren(std::vector<zbIBrowserViewItem*>& out,
                                zbIBrowserViewItem const* item) const {
    if (item == nullptr)
        return false;
    CallScope const scope(context_->Lifetime());
    auto* const folder = FindFreeFolder(item);
    if (folder == nullptr) {
        out.clear();
        return false;
    }
    folder->GetChildren(out);
    return !out.empty();
}

bool zbBrowserView::ExpandFreeFolder(zbIBrowserViewItemFreeFolder* folder, bool recursive) {
    CallScope const scope(context_->Lifetime());
    auto* const found = FindFreeFolder(folder);
    return found != nullptr && (found->ExpandRecursive(recursive) || FailWith(*found));
}

bool zbBrowserView::CollapseFreeFolder(zbIBrowserViewItemFreeFolder* folder, bool recursive) {
    CallScope const scope(context_->Lifetime());
    auto* const found = FindFreeFolder(folder);
    return found != nullptr && (found->CollapseRecursive(recursive) || FailWith(*found));
}

bool zbBrowserView::ExpandFreeFolderList(zbIBrowserViewItemFreeFolder* folder,
                                         zbIBrowserDataSourceSimple* list, bool recursive) {
    CallScope const scope(context_->Lifetime());
    auto* const found = FindFreeFolder(folder);
    return found != nullptr && (found->ExpandList(list, recursive) || FailWith(*found));
}

bool zbBrowserView::CollapseFreeFolderList(zbIBrowserViewItemFreeFolder* folder,
                                           zbIBrowserDataSourceSimple* list, bool recursive) {
    CallScope const scope(context_->Lifetime());
    auto* const found = FindFreeFolder(folder);
    return found != nullptr && (found->CollapseList(list, recursive) || FailWith(*found));
}

namespace {

using Folders = std::unordered_set<zbBrowserViewItemFreeFolder const*>;

//! Expands a folder and those above it, less the root. Those in `done` stand open already, with all
//! above them; a slot may have closed them since.
void ExpandChain(zbBrowserViewItemFreeFolder& innermost, Folders& done) {
    auto const& lifetime = innermost.Context().Lifetime();
    for (auto* folder = &innermost; folder != nullptr; folder = folder->Owner()) {
        if (folder->IsVirtualRoot() && folder != &innermost)
            return;
        auto const runsBefore = lifetime.HostRuns();
        folder->Expand(false, false);
        if (lifetime.HostRuns() != runsBefore)
            done.clear();
        if (!done.insert(folder).second)
            return;
    }
}

//! An item may leave the view, or its whole folder, when a slot hears of an expansion.
void ExpandAround(OldViewContext& context, zbIBrowserViewItem const* item, std::size_t runsBefore,
                  Folders& done) {
    if (item == nullptr)
        Fail(zbbrowser::detail::NullPointerHit);
    auto* const leaf = context.FindLeaf(item);
    auto* const folder = context.FindFolder(leaf == nullptr ? item : leaf->GetParentFreeFolder());
    if (folder != nullptr)
        ExpandChain(*folder, done);
    else if (context.Lifetime().HostRuns() == runsBefore && !context.Knows(item))
        Fail(zbbrowser::detail::DifferentManager);
}

} // namespace

void zbBrowserView::ExpandAscendants(std::vector<zbIBrowserViewItem*> const& items) {
    ExpandAscendants(items, {});
}

// What stands beside the item before has nothing left to expand, unless a slot has run since.
void zbBrowserView::ExpandAscendants(std::vector<zbIBrowserViewItem*> const& items,
                                     std::vector<zbIBrowserViewItem*> const& parents) const {
    auto& lifetime = context_->Lifetime();
    CallScope const scope(lifetime);
    auto const runsBefore = lifetime.HostRuns();
    auto runs = runsBefore;
    Folders done;
    for (std::size_t i = 0; i < items.size(); ++i) {
        auto const isSibling = i > 0 && i < parents.size() && parents[i] == parents[i - 1];
        if (isSibling && lifetime.HostRuns() == runs)
            continue;
        runs = lifetime.HostRuns();
        ExpandAround(*context_, items[i], runsBefore, done);
    }
}

void zbBrowserView::ExpandAscendants(zbIBrowserViewItem const* item) const {
    CallScope const scope(context_->Lifetime());
    Folders done;
    ExpandAround(*context_, item, context_->Lifetime().HostRuns(), done);
}

void zbBrowserView::ExpandAllItems() {
}
void zbBrowserView::ExpandSelectedItems() {
}
void zbBrowserView::CollapseAllItems() {
}
void zbBrowserView::CollapseSelectedItems() {
}
void zbBrowserView::ShowAscendants(zbIBrowserViewItem* const) {
}
zbIBrowserViewItem* zbBrowserView::GetNextViewItem(zbIBrowserViewItem const* const, bool,
                                                   bool) const {
    return nullptr;
}
bool zbBrowserView::Expand(zbIBrowserViewItem*) const {
    return false;
}
bool zbBrowserView::Collapse(zbIBrowserViewItem*) {
    return false;
}
void zbBrowserView::Hide(zbIBrowserViewItem*) {
}
