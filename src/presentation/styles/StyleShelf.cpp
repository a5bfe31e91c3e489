// SPDX-License-Identifier: MIT
#include "presentation/styles/StyleShelf.h"

#include "presentation/styles/zbBrowserStyle.h"
#include "presentation/styles/zbBrowserStyleElement.h"
#include "view/ViewContext.h"

namespace zbbrowser::detail {

namespace {

template <class Map, class Key>
auto Lookup(Map const& map, Key const* key) -> typename Map::mapped_type {
    auto const found = map.find(key);
    return found == map.end() ? nullptr : found->second;
}

} // namespace

// A style takes its elements along; those that no style has are left.
StyleShelf::~StyleShelf() {
    while (!styles_.empty())
        delete styles_.begin()->second;
    while (!elements_.empty())
        delete elements_.begin()->second;
}

zbBrowserStyle* StyleShelf::Find(zbIBrowserStyle const* style) const {
    return Lookup(styles_, style);
}

zbBrowserStyleElement* StyleShelf::Find(zbIBrowserStyleElement const* element) const {
    return Lookup(elements_, element);
}

zbIBrowserViewColumn* StyleShelf::ColumnOf(zbIBrowserStyleElement const* element) const {
    auto const* const own = Find(element);
    auto const* const style = own == nullptr ? nullptr : own->GetStyle();
    return style == nullptr ? nullptr : style->GetColumn();
}

void StyleShelf::Add(zbBrowserStyle& style) {
    styles_.emplace(&style, &style);
}

void StyleShelf::Remove(zbBrowserStyle const& style) {
    styles_.erase(&style);
}

void StyleShelf::Add(zbBrowserStyleElement& element) {
    elements_.emplace(&element, &element);
}

void StyleShelf::Remove(zbBrowserStyleElement const& element) {
    elements_.erase(&element);
}

void StyleShelf::OnViewPropertyDeleted(zbIBrowserViewProperty const* property) const {
    for (auto const& [key, element] : elements_) {
        if (element->GetViewProperty() == property)
            element->SetViewProperty(nullptr);
    }
}

// Through the controller, whose operations a host may have overridden.
bool StyleShelf::CanTell() const {
    if (!context_.IsAlive() || context_.Ctrl() == nullptr)
        return false;
    context_.Lifetime().NoteHostRun();
    return true;
}

bool StyleShelf::TellCreated(zbIBrowserStyle& style) const {
    if (CanTell())
        context_.Ctrl()->OnStyleCreated(&style);
    return styles_.contains(&style);
}

bool StyleShelf::TellDeleted(zbIBrowserStyle& style) const {
    if (CanTell())
        context_.Ctrl()->OnStyleDeleted(&style);
    return styles_.contains(&style);
}

} // namespace zbbrowser::detail
