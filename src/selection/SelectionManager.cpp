// SPDX-License-Identifier: MIT
#include "selection/SelectionManager.h"

#include "selection/SelectedText.h"
#include "view/DataOfItems.h"
#include "view/NewViewContext.h"

#include <zbBrowserView/host/zbIBrowserDataCtrl.h>
#include <zbBrowserView/host/zbIBrowserDataItem.h>
#include <zbBrowserView/host/zbIBrowserDataProperty.h>
#include <zbBrowserView/zbIBrowserViewProperty.h>

namespace zbbrowser {

using detail::CallScope;

SelectionManager::SelectionManager(detail::NewViewContext& context)
    : SelectionBase(context) {
}

void SelectionManager::Update(Items items, bool select, bool clear) {
    if (Context() == nullptr)
        return;
    CallScope const scope(Context()->Lifetime());
    lastSelect_ = select;
    if (clear) {
        AnnounceClearing();
        ClearAll();
        EraseGone(items);
    }
    if (!MakesDifference(items, select))
        return;
    changed_.Clear();
    for (auto* const item : items)
        changed_.Insert(item);
    Change(items, select);
    SetSyncFlag(true);
    Notify(items, select, true);
    RaiseChange(items, select);
}

void SelectionManager::ClearAll() {
    SelectionBase::ClearAll();
    changed_.Clear();
}

bool SelectionManager::RemembersAny() const {
    return SelectionBase::RemembersAny() || !changed_.IsEmpty();
}

void SelectionManager::ForgetItem(zbIBrowserViewItem const& item) {
    SelectionBase::ForgetItem(item);
    changed_.Erase(&item);
}

void SelectionManager::OnSelectionChangeFinished() {
    if (Context() == nullptr)
        return;
    CallScope const scope(Context()->Lifetime());
    Context()->RaiseData(&zbBrowserDataSignalManager::SelectionManagerChanged,
                         Context()->DataCtrl(), this);
}

bool SelectionManager::GetChangedViewItems(Items& out) {
    out.clear();
    changed_.AppendTo(out);
    return !out.empty();
}

// A row without groups or rows above it has no ancestors in its folder.
bool SelectionManager::GetSelectedDataSources(std::set<zbIBrowserDataSource*>& out, bool) {
    out.clear();
    if (Context() == nullptr)
        return false;
    CallScope const scope(Context()->Lifetime());
    out = detail::DataSourcesOf(*Context(), Selected());
    return !out.empty();
}

bool SelectionManager::GetSelectedPropertyText(zbIBrowserViewProperty* property, zbString& out) {
    return CollectText(nullptr, property, out);
}

bool SelectionManager::GetSelectedPropertyTextOfSource(zbIBrowserDataSource* source,
                                                       zbIBrowserViewProperty* property,
                                                       zbString& out) {
    return source != nullptr && property != nullptr &&
           property->GetDataProperty(source) != nullptr && CollectText(source, property, out);
}

bool SelectionManager::CollectText(zbIBrowserDataSource* source, zbIBrowserViewProperty* property,
                                   zbString& out) {
    out.clear();
    if (Context() == nullptr || property == nullptr)
        return false;
    CallScope const scope(Context()->Lifetime());
    detail::SelectedText text(false);
    for (auto* const item : detail::DataItemsOf(*Context(), Selected())) {
        auto* const itsSource = item->GetDataSource();
        auto* const ctrl = Context()->DataCtrl();
        auto* const dataProperty = property->GetDataProperty(itsSource);
        if (ctrl == nullptr || dataProperty == nullptr ||
            (source != nullptr && itsSource != source))
            continue;
        ctrl->SetCurrentDataItem(item);
        zbVariant value;
        if (dataProperty->GetVariant(value))
            text.Append(ToText(value));
    }
    out = text.Take();
    return !out.empty();
}

} // namespace zbbrowser
