// SPDX-License-Identifier: MIT
#include "presentation/styles/StyleShelf.h"

#include "presentation/columns/ColumnSet.h"
#include "presentation/styles/zbBrowserStyle.h"
#include "presentation/styles/zbBrowserStyleElement.h"
#include "view/ViewContext.h"

namespace zbbrowser::detail {

// A style takes its elements along; those that no style has are left.
StyleShelf::~StyleShelf() {
    while (auto* const style = styles_.Last())
        delete style;
    while (auto* const element = elements_.Last())
        delete element;
}

zbBrowserStyle* StyleShelf::Find(zbIBrowserStyle const* style) const {
    return static_cast<zbBrowserStyle*>(styles_.Find(style));
}

zbBrowserStyleElement* StyleShelf::Find(zbIBrowserStyleElement const* element) const {
    return static_cast<zbBrowserStyleElement*>(elements_.Find(element));
}

zbIBrowserViewColumn* StyleShelf::ColumnOf(zbIBrowserStyleElement const* element) const {
    auto const* const own = Find(element);
    auto const* const style = own == nullptr ? nullptr : own->GetStyle();
    auto const* const columns = context_.Columns();
    return style == nullptr || columns == nullptr ? nullptr : columns->Find(style->GetColumn());
}

void StyleShelf::Add(zbBrowserStyle& style) {
    styles_.Add(&style);
}

void StyleShelf::Remove(zbBrowserStyle const& style) {
    styles_.Remove(&style);
}

void StyleShelf::Add(zbBrowserStyleElement& element) {
    elements_.Add(&element);
}

void StyleShelf::Remove(zbBrowserStyleElement const& element) {
    elements_.Remove(&element);
}

void StyleShelf::OnViewPropertyDeleted(zbIBrowserViewProperty const* property) const {
    elements_.ForEach([property](zbIBrowserStyleElement* element) {
        if (element->GetViewProperty() == property)
            element->SetViewProperty(nullptr);
    });
}

bool StyleShelf::TellCreated(zbIBrowserStyle& style) const {
    return Tell(&zbBrowserViewCtrl::OnStyleCreated, style);
}

bool StyleShelf::TellDeleted(zbIBrowserStyle& style) const {
    return Tell(&zbBrowserViewCtrl::OnStyleDeleted, style);
}

// Through the controller, whose operations a host may have overridden.
bool StyleShelf::Tell(Event event, zbIBrowserStyle& style) const {
    auto* const ctrl = context_.Ctrl();
    if (!context_.IsAlive() || ctrl == nullptr)
        return true;
    context_.Lifetime().NoteHostRun();
    (ctrl->*event)(&style);
    return context_.IsAlive() && styles_.Contains(&style);
}

} // namespace zbbrowser::detail
