// SPDX-License-Identifier: MIT
#include "presentation/properties/PropertyList.h"

#include "containers/MakeRoom.h"

#include <zbBrowserView/zbBrowserView.h>

#include <algorithm>

namespace zbbrowser::detail {

namespace {

struct DefaultRow {
    char const* const* name;
    PropertyKind kind;
    ZBBROWSER_DATA_TYPE type;
};

// In the order of DefaultProperty.
constexpr std::array<DefaultRow, 4> defaultRows = {{
    {&zbBrowserView::DEFAULT_NAME_PROP, PropertyKind::DefaultName, ZBBROWSER_DATA_TYPE_STRING},
    {&zbBrowserView::DEFAULT_ICON_NAME_PROP, PropertyKind::DefaultIcon, ZBBROWSER_DATA_TYPE_STRING},
    {&zbBrowserView::DEFAULT_BOLD_TEXT_PROP, PropertyKind::Plain, ZBBROWSER_DATA_TYPE_BOOLEAN},
    {&zbBrowserView::DEFAULT_ITALIC_TEXT_PROP, PropertyKind::Plain, ZBBROWSER_DATA_TYPE_BOOLEAN},
}};

} // namespace

PropertyList::~PropertyList() = default;

zbIBrowserViewProperty* PropertyList::Find(std::string_view name) const {
    auto const found = byName_.find(name);
    return found == byName_.end() ? nullptr : found->second;
}

ViewPropertyBase* PropertyList::FindListed(zbIBrowserViewProperty const* property) const {
    return static_cast<ViewPropertyBase*>(listed_.Find(property));
}

void PropertyList::CopyTo(std::vector<zbIBrowserViewProperty*>& out) const {
    out.clear();
    listed_.AppendTo(out);
}

void PropertyList::Create(char const* name) {
    if (name != nullptr)
        Create(PropertyKind::Plain, name);
}

// A default property is known by its name alone, whoever made it.
void PropertyList::Create(PropertyKind kind, zbString const& name) {
    if (byName_.contains(name))
        return;
    listed_.Reserve(1);
    MakeRoom(owned_);
    auto owned = Make(kind, name);
    auto* const made = owned.get();
    byName_.emplace(made->GetName(), made);
    owned_.push_back(std::move(owned));
    listed_.Add(made);
    for (std::size_t i = 0; i < defaultRows.size(); ++i) {
        if (name == *defaultRows[i].name)
            defaults_[i] = made;
    }
}

void PropertyList::CreateDefaults() {
    for (auto const& row : defaultRows) {
        zbString const name = *row.name;
        Create(row.kind, name);
        SetType(name, row.type);
    }
}

bool PropertyList::IsDefault(zbIBrowserViewProperty const* property) const {
    return std::find(defaults_.begin(), defaults_.end(), property) != defaults_.end();
}

bool PropertyList::Remove(zbIBrowserViewProperty* property) {
    auto* const found = FindListed(property);
    if (found == nullptr)
        return false;
    found->DisconnectAll();
    byName_.erase(found->GetName());
    listed_.Remove(found);
    return true;
}

void PropertyList::SetType(std::string_view name, ZBBROWSER_DATA_TYPE type) {
    if (type <= ZBBROWSER_DATA_TYPE_NOT_SET || type > ZBBROWSER_DATA_TYPE_LAST)
        return;
    if (auto* const property = Find(name); property != nullptr)
        property->SetDataType(type);
}

bool PropertyList::Connect(zbIBrowserViewProperty* property, zbIBrowserDataSource* source,
                           zbIBrowserDataProperty* dataProperty) {
    auto* const found = FindListed(property);
    if (found == nullptr)
        return false;
    found->Connect(source, dataProperty, rules_.replaces);
    return true;
}

bool PropertyList::Connect(zbIBrowserViewProperty* property, char const* script) {
    auto* const found = FindListed(property);
    return found != nullptr && found->SetScripts(script, "");
}

bool PropertyList::Disconnect(zbIBrowserViewProperty* property, zbIBrowserDataSource* source) {
    auto* const found = FindListed(property);
    return found != nullptr && (found->Disconnect(source) || !rules_.missesAbsent);
}

} // namespace zbbrowser::detail
