// SPDX-License-Identifier: MIT
// From data items to view items, and the selection traffic, which joins with the selection manager.
#include "items/old/FolderWalk.h"
#include "items/old/zbBrowserFreeFolderContentHolder.h"
#include "items/old/zbBrowserViewItemVirtualRoot.h"
#include "view/OldViewContext.h"

#include <zbBrowserView/zbBrowserView.h>

using zbbrowser::detail::CallScope;
using zbbrowser::detail::WalkFolders;

void zbBrowserView::GetDataDependentViewItems(zbIBrowserDataItemSimple* item,
                                              std::vector<zbIBrowserViewItem*>& found,
                                              std::vector<zbIBrowserViewItem*>& parents) {
    CallScope const scope(context_->Lifetime());
    WalkFolders(*root_, [&](zbBrowserViewItemFreeFolder& folder) {
        if (folder.IsBusy())
            return false;
        folder.RequireHolder().GetViewItems(item, found, parents);
        return true;
    });
}

void zbBrowserView::GetDataDependentViewItems(zbIBrowserDataItemHierarchical* item,
                                              std::vector<zbIBrowserViewItem*>& found,
                                              std::vector<zbIBrowserViewItem*>& parents) {
    CallScope const scope(context_->Lifetime());
    WalkFolders(*root_, [&](zbBrowserViewItemFreeFolder& folder) {
        if (folder.IsBusy())
            return false;
        folder.RequireHolder().WithTree().GetViewItemsFromItem(item, found, parents);
        return true;
    });
}

void zbBrowserView::OnDataItemsSelected(std::vector<zbIBrowserDataItemSimple*> const&,
                                        std::vector<zbIBrowserDataItemHierarchical*> const&, bool) {
}
void zbBrowserView::OnDataItemsSelected(std::vector<zbIBrowserDataItemHierarchical*> const&, bool,
                                        bool) {
}
void zbBrowserView::OnDataItemsSelected(std::vector<zbIBrowserDataItem*> const&, bool, bool) {
}
void zbBrowserView::OnDataItemsDeselected(std::vector<zbIBrowserDataItemSimple*> const&,
                                          std::vector<zbIBrowserDataItemHierarchical*> const&) {
}
void zbBrowserView::OnDataItemsDeselected(std::vector<zbIBrowserDataItem*> const&) {
}

void zbBrowserView::UpdatePreviousSelection() {
    context_->Handlers().UpdatePreviousSelection();
}

void zbBrowserView::OnSelectionChangeFinished() {
}

void zbBrowserView::DeselectAllViewItems() {
    CallScope const scope(context_->Lifetime());
    context_->Handlers().UpdateSelection({}, false, true);
}

void zbBrowserView::DeselectViewItem(zbIBrowserViewItem const* const item, bool recursive) {
    CallScope const scope(context_->Lifetime());
    if (context_->Owns(item))
        context_->Handlers().DeselectViewItem(*item, recursive);
}

void zbBrowserView::SetDropItem(zbIBrowserViewItem*) {
}
void zbBrowserView::ResetDropItem() {
}
zbIBrowserSelectionManager* zbBrowserView::GetSelectionManager() const {
    return nullptr;
}
void zbBrowserView::OnUpdateViewSelection(std::vector<zbIBrowserViewItem*> const& items,
                                          bool select, bool clear) {
    CallScope const scope(context_->Lifetime());
    context_->Handlers().UpdateSelection(items, select, clear);
}
void zbBrowserView::OnPopupSelection(bool) {
}
bool zbBrowserView::IsViewItemSelected(zbIBrowserViewItem*) {
    return false;
}
