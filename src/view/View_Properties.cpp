// SPDX-License-Identifier: MIT
// View properties.
#include "presentation/properties/ViewPropertyList.h"
#include "view/NewViewContext.h"
#include "view/PropertyOperations.h"

#include <zbBrowserView/View.h>

namespace zbbrowser {

void View::CreatePropertyHolder() {
    if (context_->Properties() == nullptr)
        context_->SetProperties(std::make_unique<ViewPropertyList>(*context_));
}

void View::DeletePropertyHolder() {
    detail::DeleteViewProperties(*context_);
}

void View::CreateDefaultViewProperties() {
    detail::CreateDefaultViewProperties(*context_);
}

void View::DeleteDefaultViewProperties() {
}

zbIBrowserViewProperty* View::FindViewProperty(zbString const& name) const {
    return detail::FindViewProperty(*context_, name);
}

void View::CreateViewProperty(char const* name) {
    detail::CreateViewProperty(*context_, name);
}

bool View::DeleteViewProperty(zbIBrowserViewProperty* property) {
    return detail::DeleteViewProperty(*context_, property);
}

bool View::GetViewPropertyList(std::vector<zbIBrowserViewProperty*>& out) const {
    return detail::GetViewPropertyList(*context_, out);
}

void View::UpdateViewPropertyType(zbString const& name, ZBBROWSER_DATA_TYPE type) {
    detail::UpdateViewPropertyType(*context_, name, type);
}

bool View::CreateVPConnect(zbIBrowserViewProperty* property, zbIBrowserDataSource* source,
                           zbIBrowserDataProperty* dataProperty) {
    return detail::CreateVPConnect(*context_, property, source, dataProperty);
}

bool View::CreateVPConnect(zbIBrowserViewProperty* property, char const* script) {
    return detail::CreateVPConnect(*context_, property, script);
}

bool View::DeleteVPConnect(zbIBrowserViewProperty* property, zbIBrowserDataSource* source) {
    return detail::DeleteVPConnect(*context_, property, source);
}

} // namespace zbbrowser
