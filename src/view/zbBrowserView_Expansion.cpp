// SPDX-License-Identifier: MIT
// Listing and expansion. What walks over selected items joins with the selection manager.
#include "items/old/zbBrowserViewItemVirtualRoot.h"
#include "view/OldViewContext.h"

#include <zbBrowserView/zbBrowserView.h>

using zbbrowser::detail::CallScope;

bool zbBrowserView::GetChildren(std::vector<zbIBrowserViewItem*>& out,
                                zbIBrowserViewItem const* item) const {
    if (item == nullptr)
        return false;
    auto const* const folder = FindFreeFolder(item);
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

void zbBrowserView::ExpandAscendants(std::vector<zbIBrowserViewItem*> const&) {
}
void zbBrowserView::ExpandAscendants(zbIBrowserViewItem const*) const {
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
