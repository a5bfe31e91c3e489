// SPDX-License-Identifier: MIT
#include "view/PropertyOperations.h"

#include "presentation/columns/ColumnSet.h"
#include "presentation/properties/PropertyList.h"
#include "view/ViewContext.h"

namespace zbbrowser::detail {

namespace {

// A connection that was refused leaves the text of the list with the view.
template <class Operation>
bool Try(ViewContext& context, Operation operation) {
    auto* const list = context.Properties();
    return list != nullptr && (operation(*list) || context.Report(list->ErrorText()));
}

} // namespace

zbIBrowserViewProperty* FindViewProperty(ViewContext const& context, zbString const& name) {
    auto const* const list = context.Properties();
    return list == nullptr ? nullptr : list->Find(name);
}

void CreateViewProperty(ViewContext& context, char const* name) {
    if (auto* const list = context.Properties(); list != nullptr)
        list->Create(name);
}

void CreateDefaultViewProperties(ViewContext& context) {
    if (auto* const list = context.Properties(); list != nullptr)
        list->CreateDefaults();
}

// That a view with scripted columns answers true, and one without false, is required as it stands.
bool DeleteViewProperty(ViewContext& context, zbIBrowserViewProperty* property) {
    auto* const list = context.Properties();
    if (property == nullptr || list == nullptr || list->IsDefault(property))
        return false;
    if (!list->Remove(property))
        return context.Report(list->ErrorText());
    auto* const columns = context.Columns();
    if (columns == nullptr)
        return false;
    columns->OnViewPropertyDeleted(property);
    return columns->HasScripted();
}

bool GetViewPropertyList(ViewContext const& context, std::vector<zbIBrowserViewProperty*>& out) {
    auto const* const list = context.Properties();
    if (list == nullptr)
        return false;
    list->CopyTo(out);
    return true;
}

void UpdateViewPropertyType(ViewContext& context, zbString const& name, ZBBROWSER_DATA_TYPE type) {
    if (auto* const list = context.Properties(); list != nullptr)
        list->SetType(name, type);
}

bool CreateVPConnect(ViewContext& context, zbIBrowserViewProperty* property,
                     zbIBrowserDataSource* source, zbIBrowserDataProperty* dataProperty) {
    return Try(context,
               [&](PropertyList& list) { return list.Connect(property, source, dataProperty); });
}

bool CreateVPConnect(ViewContext& context, zbIBrowserViewProperty* property, char const* script) {
    return Try(context, [&](PropertyList& list) { return list.Connect(property, script); });
}

bool DeleteVPConnect(ViewContext& context, zbIBrowserViewProperty* property,
                     zbIBrowserDataSource* source) {
    return Try(context, [&](PropertyList& list) { return list.Disconnect(property, source); });
}

void DeleteViewProperties(ViewContext& context) {
    auto const* const list = context.Properties();
    auto* const columns = context.Columns();
    if (list != nullptr && columns != nullptr)
        list->ForEach([columns](auto* property) { columns->OnViewPropertyDeleted(property); });
    context.SetProperties(nullptr);
}

} // namespace zbbrowser::detail
