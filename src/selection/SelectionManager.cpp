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
    if (!HasView())
        return;
    auto& lifetime = Context().Lifetime();
    CallScope const scope(lifetime);
    auto const retiredBefore = lifetime.RetiredCount();
    lastSelect_ = select;
    if (clear) {
        AnnounceClearing(retiredBefore);
        ClearAll();
        EraseGone(items, retiredBefore);
    }
    if (!MakesDifference(items, select))
        return;
    changed_.Clear();
    for (auto* const item : items)
        changed_.Insert(item);
    Change(items, select, retiredBefore);
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
    if (!HasView())
        return;
    CallScope const scope(Context().Lifetime());
    Context().RaiseData(&zbBrowserDataSignalManager::SelectionManagerChanged, Context().DataCtrl(),
                        this);
}

bool SelectionManager::GetChangedViewItems(Items& out) {
    out.clear();
    changed_.AppendTo(out);
    return !out.empty();
}

// A row without groups or rows above it has no ancestors in its folder.
bool SelectionManager::GetSelectedDataSources(std::set<zbIBrowserDataSource*>& out, bool) {
    out.clear();
    if (!HasView())
        return false;
    CallScope const scope(Context().Lifetime());
    out = detail::DataSourcesOf(Context(), Selected());
    return !out.empty();
}

bool SelectionManager::GetSelectedPropertyText(zbIBrowserViewProperty* property, zbString& out) {
    out.clear();
    return HasView() && property != nullptr && CollectText(nullptr, *property, out);
}

bool SelectionManager::GetSelectedPropertyTextOfSource(zbIBrowserDataSource* source,
                                                       zbIBrowserViewProperty* property,
                                                       zbString& out) {
    return HasView() && property != nullptr && property->GetDataProperty(source) != nullptr &&
           CollectText(source, *property, out);
}

bool SelectionManager::CollectText(zbIBrowserDataSource const* source,
                                   zbIBrowserViewProperty& property, zbString& out) {
    CallScope const scope(Context().Lifetime());
    detail::SelectedText text(false);
    detail::ForEachDataItemOf(Context(), Selected(), [&](zbIBrowserDataItem& item) {
        AppendValue(text, item, source, property);
    });
    out = text.Take();
    return !out.empty();
}

// The control may change connections and delete the view, so the data property is looked up behind
// it again.
void SelectionManager::AppendValue(detail::SelectedText& text, zbIBrowserDataItem& item,
                                   zbIBrowserDataSource const* source,
                                   zbIBrowserViewProperty& property) const {
    auto* const itsSource = item.GetDataSource();
    auto* const ctrl = Context().DataCtrl();
    if (ctrl == nullptr || (source != nullptr && itsSource != source) ||
        property.GetDataProperty(itsSource) == nullptr)
        return;
    ctrl->SetCurrentDataItem(&item);
    auto* const dataProperty = HasView() ? property.GetDataProperty(itsSource) : nullptr;
    zbVariant value;
    if (dataProperty != nullptr && dataProperty->GetVariant(value))
        text.Append(ToText(value));
}

} // namespace zbbrowser
