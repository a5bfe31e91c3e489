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

bool ViewProperty::SetScripts(char const* setScript, char const* getScript,
                              char const* linkedProperty) {
    if (linkedProperty != nullptr) {
        auto* const found = context_.Properties()->Find(linkedProperty);
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

bool ViewProperty::FindCell(zbIBrowserViewItem const& item, Cell& cell) const {
    if (item.GetView() != GetView() || !item.IsDataNode())
        return false;
    cell.data = item.GetDataItem();
    cell.source = cell.data == nullptr ? nullptr : cell.data->GetDataSource();
    cell.property = Connected(cell.source);
    return true;
}

bool ViewProperty::Position(zbIBrowserDataCtrl* ctrl, Cell const& cell) const {
    if (ctrl != nullptr)
        ctrl->SetCurrentDataItem(cell.data);
    return context_.IsAlive();
}

bool ViewProperty::PositionView(Cell const& cell) const {
    return Position(context_.DataCtrl(), cell);
}

bool ViewProperty::GetValue(zbIBrowserViewItem* item, zbVariant& out) {
    CallScope const scope(context_.Lifetime());
    Cell cell;
    if (item == nullptr || !FindCell(*item, cell) || !PositionView(cell))
        return false;
    if (HasGetScript()) {
        out = RunScript(GetScript());
        return true;
    }
    return cell.property != nullptr && cell.property->GetVariant(out);
}

// A set script works on free folders only, and a row is none.
bool ViewProperty::SetValue(zbIBrowserViewItem* item, zbVariant value) {
    if (item == nullptr)
        return false;
    if (!item->IsDataNode())
        return true;
    CallScope const scope(context_.Lifetime());
    Cell cell;
    if (TypeOf(value) != GetDataType() || !FindCell(*item, cell) || !PositionView(cell))
        return false;
    return !HasSetScript() && cell.property != nullptr &&
           cell.property->SetVariant(std::move(value));
}

bool ViewProperty::SetBooleanValue(zbIBrowserViewItem* item, bool value) {
    CallScope const scope(context_.Lifetime());
    Cell cell;
    if (GetDataType() != ZBBROWSER_DATA_TYPE_BOOLEAN || item == nullptr || !FindCell(*item, cell) ||
        cell.source == nullptr || linked_ == nullptr)
        return false;
    auto* const ctrl = cell.source->GetDataCtrl();
    auto* const linked = linked_->GetDataProperty(cell.source);
    if (ctrl == nullptr || linked == nullptr || !Position(ctrl, cell))
        return false;
    zbVariant text;
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
    Cell cell;
    if (!FindCell(item, cell) || !PositionView(cell))
        return false;
    if (cell.property != nullptr)
        return cell.property->GetVariant(out);
    if (kind_ == detail::DefaultText::Name || cell.source == nullptr)
        return false;
    out = cell.source->GetName();
    return true;
}

} // namespace zbbrowser
