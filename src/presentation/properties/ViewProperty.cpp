// SPDX-License-Identifier: MIT
#include "presentation/properties/ViewProperty.h"

#include "control/Messages.h"
#include "items/new/ViewItemFreeFolder.h"
#include "presentation/properties/PropertyList.h"
#include "view/NewViewContext.h"

#include <zbBrowserView/host/zbIBrowserDataCtrl.h>
#include <zbBrowserView/host/zbIBrowserDataItem.h>
#include <zbBrowserView/host/zbIBrowserDataProperty.h>
#include <zbBrowserView/host/zbIBrowserDataSource.h>

namespace zbbrowser {

using detail::CallScope;

namespace {

ZBBROWSER_DATA_TYPE TypeOf(zbVariant const& value) {
    switch (value.GetKind()) {
    case zbVariant::Boolean:
        return ZBBROWSER_DATA_TYPE_BOOLEAN;
    case 2:
    case zbVariant::Integer:
    case zbVariant::Long64:
        return ZBBROWSER_DATA_TYPE_INTEGER;
    case zbVariant::Double:
    case zbVariant::Double6:
        return ZBBROWSER_DATA_TYPE_DOUBLE;
    case zbVariant::String:
        return ZBBROWSER_DATA_TYPE_STRING;
    case 8:
        return ZBBROWSER_DATA_TYPE_OTHER;
    default:
        return ZBBROWSER_DATA_TYPE_NOT_SET;
    }
}

} // namespace

ViewProperty::ViewProperty(detail::NewViewContext& context, zbString const& name)
    : ViewPropertyBase(context, name)
    , context_(context) {
}

// The list may have been deleted by what is running here.
bool ViewProperty::SetScripts(char const* setScript, char const* getScript,
                              char const* linkedProperty) {
    auto const* const list = context_.Properties();
    if (list != nullptr && linkedProperty != nullptr) {
        auto* const found = list->Find(linkedProperty);
        linked_ = found == nullptr ? linked_ : found;
    }
    return ViewPropertyBase::SetScripts(setScript, getScript, linkedProperty);
}

bool ViewProperty::GetConnections(std::map<zbIBrowserDataSource*, zbIBrowserDataProperty*>& out) {
    out = AllConnections();
    return true;
}

zbIBrowserDataProperty* ViewProperty::GetDataProperty(zbIBrowserDataSource* source) {
    return Connected(source);
}

bool ViewProperty::IsRow(zbIBrowserViewItem const& item) const {
    return item.GetView() == GetView() && item.IsDataNode();
}

bool ViewProperty::Position(zbIBrowserViewItem const& item) const {
    return IsRow(item) && Position(context_.DataCtrl(), item);
}

// The control may change scripts and connections, so they are looked up behind this.
bool ViewProperty::Position(zbIBrowserDataCtrl* ctrl, zbIBrowserViewItem const& row) const {
    if (ctrl != nullptr)
        ctrl->SetCurrentDataItem(row.GetDataItem());
    return context_.IsAlive();
}

// Once the view has gone, the host may have freed what is connected.
zbIBrowserDataSource* ViewProperty::SourceOf(zbIBrowserViewItem const& row) const {
    auto const* const data = row.GetDataItem();
    auto* const source = data == nullptr ? nullptr : data->GetDataSource();
    return context_.IsAlive() ? source : nullptr;
}

bool ViewProperty::GetValue(zbIBrowserViewItem* item, zbVariant& out) {
    CallScope const scope(context_.Lifetime());
    if (item == nullptr || !Position(*item))
        return false;
    if (HasGetScript()) {
        out = RunScript(GetScript());
        return true;
    }
    auto* const property = Connected(SourceOf(*item));
    return property != nullptr && property->GetVariant(out);
}

// A set script works on free folders only, and a row is none.
bool ViewProperty::SetValue(zbIBrowserViewItem* item, zbVariant value) {
    if (item == nullptr)
        return false;
    if (!item->IsDataNode())
        return true;
    CallScope const scope(context_.Lifetime());
    if (TypeOf(value) != GetDataType() || !Position(*item) || HasSetScript())
        return false;
    auto* const property = Connected(SourceOf(*item));
    return property != nullptr && property->SetVariant(std::move(value));
}

bool ViewProperty::SetBooleanValue(zbIBrowserViewItem* item, bool value) {
    CallScope const scope(context_.Lifetime());
    if (GetDataType() != ZBBROWSER_DATA_TYPE_BOOLEAN || item == nullptr || !IsRow(*item) ||
        linked_ == nullptr)
        return false;
    auto* const source = SourceOf(*item);
    auto* const ctrl = source == nullptr ? nullptr : source->GetDataCtrl();
    if (ctrl == nullptr || linked_->GetDataProperty(source) == nullptr || !Position(ctrl, *item))
        return false;
    zbVariant text;
    if (auto* const linked = linked_->GetDataProperty(source); linked != nullptr)
        linked->GetVariant(text);
    if (!HasSetScript())
        return false;
    RunScript(SetScript() + " " + ToText(text) + (value ? " true\n" : " false\n"));
    return true;
}

ViewPropertyDefaultText::ViewPropertyDefaultText(detail::NewViewContext& context,
                                                 zbString const& name, detail::DefaultText kind)
    : ViewProperty(context, name)
    , kind_(kind) {
}

bool ViewPropertyDefaultText::GetValue(zbIBrowserViewItem* item, zbVariant& out) {
    CallScope const scope(Context().Lifetime());
    if (HasGetScript()) {
        out = RunScript(GetScript());
        return true;
    }
    if (item == nullptr)
        return false;
    if (item->IsFreeFolder())
        return GetFolderValue(*item, out);
    if (item->IsDependentFolder())
        return true;
    if (item->IsGroupingFolder())
        return GetGroupValue(*item, out);
    return GetRowValue(*item, out);
}

bool ViewPropertyDefaultText::GetFolderValue(zbIBrowserViewItem const& item, zbVariant& out) const {
    auto const* const folder = Context().FindFolder(&item);
    if (folder == nullptr)
        return false;
    out = TextOfFolder(*folder, kind_);
    return true;
}

// The name of a group is looked for in its folder. Folders hold no groups yet, so there is none.
bool ViewPropertyDefaultText::GetGroupValue(zbIBrowserViewItem const& item, zbVariant& out) const {
    if (kind_ == detail::DefaultText::Name)
        detail::Fail(detail::NullPointerHit);
    std::vector<zbIBrowserDataSource*> sources;
    if (!item.GetDataSources(sources) || sources.empty() || sources.front() == nullptr)
        return false;
    out = sources.front()->GetName();
    return true;
}

bool ViewPropertyDefaultText::GetRowValue(zbIBrowserViewItem const& item, zbVariant& out) const {
    if (!Position(item))
        return false;
    auto* const source = SourceOf(item);
    if (auto* const property = Connected(source); property != nullptr)
        return property->GetVariant(out);
    if (kind_ == detail::DefaultText::Name || source == nullptr)
        return false;
    out = source->GetName();
    return true;
}

} // namespace zbbrowser
