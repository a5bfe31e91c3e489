// SPDX-License-Identifier: MIT
#include "presentation/properties/zbBrowserViewProperty.h"

#include "items/old/zbBrowserViewItemFreeFolder.h"
#include "view/OldViewContext.h"

#include <zbBrowserView/host/zbIBrowserDataItemHierarchical.h>
#include <zbBrowserView/host/zbIBrowserDataItemSimple.h>
#include <zbBrowserView/host/zbIBrowserDataProperty.h>
#include <zbBrowserView/host/zbIBrowserDataSourceSimple.h>

#include <cstdlib>

using zbbrowser::detail::CallScope;

namespace {

// A number that does not fit is cut, as std::atoi does where a number that does not fit a long is
// the nearest one.
template <class T>
T ToInteger(zbString&& text) {
    return static_cast<T>(std::strtol(text.c_str(), nullptr, 10));
}

double ToDouble(zbString&& text) {
    return std::strtod(text.c_str(), nullptr);
}

bool ToBoolean(zbString&& text) {
    return text == "true";
}

zbString ToString(zbString&& text) {
    return std::move(text);
}

} // namespace

zbBrowserViewProperty::zbBrowserViewProperty(OldViewContext& context, zbString const& name)
    : ViewPropertyBase(context, name)
    , context_(context) {
}

bool zbBrowserViewProperty::GetConnections(
    std::map<zbIBrowserDataSourceSimple*, zbIBrowserDataProperty*>& out) {
    out.clear();
    for (auto const& [source, property] : AllConnections())
        out.emplace_hint(out.end(), static_cast<zbIBrowserDataSourceSimple*>(source), property);
    return true;
}

zbIBrowserDataProperty* zbBrowserViewProperty::GetDataProperty(zbIBrowserDataSourceSimple* source) {
    return Connected(source);
}

// If the host deletes the view while it is asked, it may have freed what is connected.
zbBrowserViewProperty::Cell zbBrowserViewProperty::CellOf(zbIBrowserViewItem const* item) const {
    Cell cell;
    if (item == nullptr)
        return cell;
    cell.data = item->GetDataItemSimple();
    if (auto const* const inTree = item->GetDataItemHierarchical(); inTree != nullptr) {
        cell.data = inTree->GetDataItemSimple();
        auto const* const parent = inTree->GetParent();
        cell.parent = parent == nullptr ? nullptr : parent->GetDataItemSimple();
    }
    if (cell.data != nullptr)
        cell.source = cell.data->GetDataSource();
    if (!context_.IsAlive())
        return {};
    cell.property = Connected(cell.source);
    return cell;
}

zbString zbBrowserViewProperty::RunGetScript(zbIBrowserViewItem const* item) const {
    zbString path;
    if (item != nullptr && item->IsFreeFolder())
        zbbrowser::detail::FolderPath(context_.FindFolder(item), path);
    return RunScript(GetScript(), path);
}

template <class T>
bool zbBrowserViewProperty::Read(zbIBrowserViewItem* item, T& out, Reader<T> reader,
                                 T (*convert)(zbString&&)) {
    CallScope const scope(context_.Lifetime());
    if (HasGetScript()) {
        out = convert(RunGetScript(item));
        return true;
    }
    auto const cell = CellOf(item);
    return cell.property != nullptr && (cell.property->*reader)(cell.data, cell.parent, out);
}

bool zbBrowserViewProperty::GetIntegerValue(zbIBrowserViewItem* item, int& out) {
    return item != nullptr && Read(item, out, &zbIBrowserDataProperty::GetInteger, ToInteger<int>);
}

bool zbBrowserViewProperty::GetUnsignedValue(zbIBrowserViewItem* item, unsigned& out) {
    return item != nullptr &&
           Read(item, out, &zbIBrowserDataProperty::GetUnsigned, ToInteger<unsigned>);
}

bool zbBrowserViewProperty::GetBooleanValue(zbIBrowserViewItem* item, bool& out) {
    return Read(item, out, &zbIBrowserDataProperty::GetBoolean, ToBoolean);
}

bool zbBrowserViewProperty::GetStringValue(zbIBrowserViewItem* item, zbString& out) {
    return item != nullptr && Read(item, out, &zbIBrowserDataProperty::GetString, ToString);
}

bool zbBrowserViewProperty::GetDoubleValue(zbIBrowserViewItem* item, double& out) {
    return item != nullptr && Read(item, out, &zbIBrowserDataProperty::GetDouble, ToDouble);
}

bool zbBrowserViewProperty::GetDisplayValue(zbIBrowserViewItem* item, zbString& out) {
    return Read(item, out, &zbIBrowserDataProperty::GetDisplayText, ToString);
}

// A script may delete the view, and the text with it.
char const* zbBrowserViewProperty::GetTextPointer(zbIBrowserViewItem* item) {
    CallScope const scope(context_.Lifetime());
    if (HasGetScript()) {
        scriptedText_ = RunGetScript(item);
        return context_.IsAlive() ? scriptedText_.c_str() : nullptr;
    }
    auto const cell = CellOf(item);
    return cell.property == nullptr ? nullptr
                                    : cell.property->GetTextPointer(cell.data, cell.parent);
}

void zbBrowserViewProperty::SetTextByScript(zbIBrowserViewItem* item, zbString const& text) {
    CallScope const scope(context_.Lifetime());
    if (!HasSetScript() || item == nullptr || !item->IsFreeFolder())
        return;
    zbString path;
    zbbrowser::detail::FolderPath(context_.FindFolder(item), path);
    if (!path.empty())
        RunScript(SetScript() + " " + path + " " + text);
}

template <class T>
bool zbBrowserViewProperty::Write(zbIBrowserViewItem* item, T value, Writer<T> writer) {
    if (item == nullptr)
        return false;
    CallScope const scope(context_.Lifetime());
    if (HasSetScript()) {
        SetTextByScript(item, value != T() ? "true" : "false");
        return true;
    }
    auto const cell = CellOf(item);
    if (cell.source == nullptr)
        return false;
    (cell.source->*writer)(cell.data, cell.property, value);
    return true;
}

bool zbBrowserViewProperty::SetIntegerValue(zbIBrowserViewItem* item, int value) {
    return Write(item, value, &zbIBrowserDataSource::SetDataPropertyInteger);
}

bool zbBrowserViewProperty::SetBooleanValue(zbIBrowserViewItem* item, bool value) {
    return Write(item, value, &zbIBrowserDataSource::SetDataPropertyBoolean);
}

zbBrowserDefaultTextViewProperty::zbBrowserDefaultTextViewProperty(OldViewContext& context,
                                                                   zbString const& name,
                                                                   DefaultText kind)
    : zbBrowserViewProperty(context, name)
    , kind_(kind) {
}

bool zbBrowserDefaultTextViewProperty::GetStringValue(zbIBrowserViewItem* item, zbString& out) {
    CallScope const scope(Context().Lifetime());
    if (HasGetScript()) {
        out = RunScript(GetScript());
        return true;
    }
    if (item == nullptr)
        return false;
    out.clear();
    if (item->IsFreeFolder()) {
        auto const* const folder = Context().FindFolder(item);
        if (folder != nullptr)
            out = TextOfFolder(*folder, kind_);
        return folder != nullptr;
    }
    if (item->IsDependentFolder())
        return false; // No view makes these groups yet, so it is none that could be found
    auto const cell = CellOf(item);
    if (cell.property != nullptr)
        return cell.property->GetString(cell.data, cell.parent, out);
    if (kind_ == DefaultText::Name || cell.source == nullptr)
        return false;
    out = cell.source->GetName();
    return true;
}
