// SPDX-License-Identifier: MIT
// The selection, and from view items to data items and back.
#include "items/new/ViewItemFreeFolder.h"
#include "selection/SelectionManager.h"
#include "view/DataOfItems.h"
#include "view/NewViewContext.h"

#include <zbBrowserView/host/zbIBrowserDataItem.h>
#include <zbBrowserView/host/zbIBrowserManager.h>
#include <zbBrowserView/View.h>
#include <zbBrowserView/zbIBrowserViewItem.h>

namespace zbbrowser {

using detail::CallScope;

using Items = std::vector<zbIBrowserViewItem*>;

void View::CreateSelectionManager() {
    context_->SetSelection(std::make_shared<SelectionManager>(*context_));
}

zbIBrowserSelectionManager* View::GetSelectionManager() const {
    return &context_->Selection();
}

// Forwarded to the selection manager

void View::OnUpdateViewSelection(Items const& items, bool select, bool clear) {
    context_->Selection().UpdateSelection(items, select, clear);
}

void View::OnPopupSelection(bool flag) {
    context_->Selection().OnPopupSelection(flag);
}

bool View::IsViewItemSelected(zbIBrowserViewItem* item) {
    return context_->Selection().IsViewItemSelected(item);
}

void View::UpdatePreviousSelection() {
    context_->Selection().UpdatePreviousSelection();
}

void View::OnSelectionChangeFinished() {
    context_->Selection().OnSelectionChangeFinished();
}

void View::SetDropItem(zbIBrowserViewItem* item) {
    context_->Selection().SetDropItem(item);
}

void View::ResetDropItem() {
    context_->Selection().ResetDropItem();
}

void View::DeselectAllViewItems() {
    context_->Selection().Update({}, false, true);
}

// Each folder comes before the ones in it. What is below a row is not looked at.
void View::DeselectViewItem(zbIBrowserViewItem const* const item, bool recursive) {
    auto* const top = context_->FindFolder(item);
    if (top == nullptr)
        return;
    Items items;
    std::vector<ViewItemFreeFolder*> ahead{top};
    while (!ahead.empty()) {
        auto* const folder = ahead.back();
        ahead.pop_back();
        items.push_back(folder);
        auto const& children = folder->ChildFolders();
        for (auto child = children.rbegin(); recursive && child != children.rend(); ++child)
            ahead.push_back(child->get());
    }
    context_->Selection().Update(std::move(items), false, false);
}

bool View::EditSelectedDataItem(char const* operation) {
    Items selected;
    context_->Selection().GetSelectedViewItems(selected);
    if (selected.size() != 1)
        return false;
    CallScope const scope(context_->Lifetime());
    context_->Raise(&zbBrowserSignalManager::EditDataItem, operation, selected.front());
    return true;
}

bool View::ApplyCurrentFilter() {
    CallScope const scope(context_->Lifetime());
    context_->Selection().ClearAll();
    context_->Raise(&zbBrowserSignalManager::ViewContentChanged, this);
    context_->Raise(&zbBrowserSignalManager::ViewChanged, this);
    return true;
}

// The content of the folders, once they have any, goes first.
void View::AllDataDependentItemsDelete(bool) {
    context_->Selection().ClearAll();
}

// From view items to data items

bool View::GetDataItemsFromViewItems(Items const& items, std::set<zbIBrowserDataItem*>& out,
                                     bool) const {
    CallScope const scope(context_->Lifetime());
    out = detail::DataItemsOf(*context_, items);
    return !items.empty();
}

bool View::GetDataItemsFromViewItems(Items const& items, std::set<zbIBrowserDataItem*>& out,
                                     zbIBrowserDataSource* const source, bool) const {
    CallScope const scope(context_->Lifetime());
    out = detail::DataItemsOf(*context_, items, source);
    return !items.empty();
}

bool View::GetDataSourcesFromViewItems(Items const& items, std::set<zbIBrowserDataSource*>& out,
                                       bool) const {
    CallScope const scope(context_->Lifetime());
    out = detail::DataSourcesOf(*context_, items);
    return !items.empty();
}

// From data items to view items

// Folders without content go on to their child folders, which have none either yet.
void View::GetDataDependentViewItems(std::set<zbIBrowserDataItem*> const&, Items&) const {
}

void View::OnDataItemsSelected(std::vector<zbIBrowserDataItem*> const& items, bool clear, bool) {
    CallScope const scope(context_->Lifetime());
    if (!context_->Selection().GetSyncFlag())
        return;
    Items found;
    GetDataDependentViewItems({items.begin(), items.end()}, found);
    context_->Selection().Update(found, true, clear);
    auto* const manager = context_->IsAlive() ? context_->Manager() : nullptr;
    if (manager != nullptr && !found.empty() && context_->ShowsSelectedItem())
        manager->ShowViewItem(found.front());
}

void View::OnDataItemsDeselected(std::vector<zbIBrowserDataItem*> const& items) {
    CallScope const scope(context_->Lifetime());
    if (!context_->Selection().GetSyncFlag())
        return;
    Items found;
    GetDataDependentViewItems({items.begin(), items.end()}, found);
    context_->Selection().Update(std::move(found), false, false);
}

} // namespace zbbrowser
