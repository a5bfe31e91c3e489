// SPDX-License-Identifier: MIT
#include "Connect.h"
#include "Names.h"

#include <zbBrowserView/sqlite/Presentation.h>
#include <zbBrowserView/sqlite/Source.h>
#include <zbBrowserView/zbBrowserView.h>
#include <zbBrowserView/zbIBrowserStyle.h>
#include <zbBrowserView/zbIBrowserStyleElement.h>
#include <zbBrowserView/zbIBrowserViewColumn.h>
#include <zbBrowserView/zbIBrowserViewProperty.h>

#include <algorithm>
#include <iterator>

namespace zbsqlite {

namespace {

constexpr char const* kStyleName = "column_style";

// Not the column's name: some names make an element one of the default style's.
constexpr char const* kElementName = "column_value";

// A view need not take an empty name, which SQL does.
constexpr char const* kNoName = "(no name)";

ZBBROWSER_DATA_TYPE TypeOf(Column const& column) {
    if (IsSameName(column.declaredType, "BOOLEAN") || IsSameName(column.declaredType, "BOOL"))
        return ZBBROWSER_DATA_TYPE_BOOLEAN;
    switch (column.affinity) {
    case Affinity::Integer:
        return ZBBROWSER_DATA_TYPE_INTEGER;
    case Affinity::Real:
    case Affinity::Numeric:
        return ZBBROWSER_DATA_TYPE_DOUBLE;
    case Affinity::Text:
    case Affinity::Blob:
        break;
    }
    return ZBBROWSER_DATA_TYPE_STRING;
}

//! A text, if the columns do not agree: every value has one.
ZBBROWSER_DATA_TYPE CommonType(std::vector<Property*> const& columns) {
    auto const type = TypeOf(columns.front()->Declaration());
    bool const agree = std::all_of(columns.begin(), columns.end(), [type](Property const* column) {
        return TypeOf(column->Declaration()) == type;
    });
    return agree ? type : ZBBROWSER_DATA_TYPE_STRING;
}

//! The name itself, or with the least number behind it that makes it a new one.
template <class IsTaken>
std::string FreeName(std::string const& name, IsTaken isTaken) {
    std::string const base = name.empty() ? kNoName : name;
    std::string free = base;
    for (int number = 2; isTaken(free); ++number)
        free = base + " (" + std::to_string(number) + ")";
    return free;
}

} // namespace

Presentation::Presentation(zbIBrowserView& view, std::vector<Source*> const& sources)
    : view_(view) {
    for (Source* const source : sources)
        Add(*source);
}

//! Each column goes behind the one before it, so that those of a source stand in its own order as
//! far as the sources agree.
void Presentation::Add(Source& source) {
    auto place = FirstShared(source);
    for (Property& column : source.Properties()) {
        auto const [found, isNew] = byName_.try_emplace(detail::FoldName(column.Name()), place);
        if (isNew)
            found->second = entries_.insert(place, {.name = column.Name(), .columns = {}});
        place = std::next(found->second);
        found->second->columns.push_back(&column);
    }
}

Presentation::Entries::iterator Presentation::FirstShared(Source const& source) {
    for (Property const& column : source.Properties()) {
        auto const found = byName_.find(detail::FoldName(column.Name()));
        if (found != byName_.end())
            return found->second;
    }
    return entries_.end();
}

std::vector<std::string> Presentation::Names() const {
    std::vector<std::string> names;
    names.reserve(entries_.size());
    for (Entry const& entry : entries_)
        names.push_back(entry.name);
    return names;
}

Presentation::Entry* Presentation::Find(std::string_view name) {
    auto const found = byName_.find(detail::FoldName(name));
    return found == byName_.end() ? nullptr : &*found->second;
}

zbIBrowserViewColumn* Presentation::FindColumn(std::string_view name) {
    Entry* const entry = Find(name);
    if (entry == nullptr)
        return nullptr;
    if (entry->column == nullptr)
        entry->column = MakeColumn(*entry);
    return entry->column;
}

bool Presentation::MakeRowsBoldBy(std::string_view name) {
    Entry const* const entry = Find(name);
    if (entry == nullptr)
        return false;
    Connect(view_.FindViewProperty(zbBrowserView::DEFAULT_BOLD_TEXT_PROP), *entry);
    return true;
}

bool Presentation::NameRowsBy(std::string_view name) {
    Entry const* const entry = Find(name);
    if (entry == nullptr)
        return false;
    for (Property* const column : entry->columns)
        column->GetSource().NameRowsBy(*column);
    return true;
}

zbIBrowserViewColumn* Presentation::MakeColumn(Entry const& entry) {
    auto const name = FreeName(entry.name, [this](std::string const& wanted) {
        return view_.FindColumn(wanted.c_str()) != nullptr;
    });
    if (!view_.CreateTextBoxColumn(name.c_str(), nullptr))
        return nullptr;
    auto* const column = view_.FindColumn(name.c_str());
    if (name != entry.name)
        column->SetTitle(entry.name.c_str());
    column->CreateStyle(kStyleName);
    auto* const element =
        column->FindStyle(kStyleName)->CreateElement(kElementName, entry.name.c_str());
    element->SetViewProperty(MakeProperty(entry));
    return column;
}

zbIBrowserViewProperty* Presentation::MakeProperty(Entry const& entry) {
    zbString const name(FreeName(entry.name, [this](std::string const& wanted) {
        return view_.FindViewProperty(zbString(wanted)) != nullptr;
    }));
    view_.CreateViewProperty(name.c_str());
    view_.UpdateViewPropertyType(name, CommonType(entry.columns));
    auto* const property = view_.FindViewProperty(name);
    Connect(property, entry);
    return property;
}

void Presentation::Connect(zbIBrowserViewProperty* property, Entry const& entry) {
    for (Property* const column : entry.columns)
        detail::Connect(view_, property, column->GetSource(), column);
}

} // namespace zbsqlite
