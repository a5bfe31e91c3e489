// SPDX-License-Identifier: MIT
// View properties.
#include "presentation/properties/zbBrowserViewPropertyHolder.h"
#include "view/OldViewContext.h"
#include "view/PropertyOperations.h"

#include <zbBrowserView/host/zbIBrowserDataSourceSimple.h>
#include <zbBrowserView/zbBrowserView.h>

namespace detail = zbbrowser::detail;

void zbBrowserView::CreateViewPropertyHolder() {
    if (context_->Properties() == nullptr)
        context_->SetProperties(std::make_unique<zbBrowserViewPropertyHolder>(*context_));
}

void zbBrowserView::CreateDefaultViewProperties() {
    detail::CreateDefaultViewProperties(*context_);
}

zbIBrowserViewProperty* zbBrowserView::FindViewProperty(zbString const& name) const {
    return detail::FindViewProperty(*context_, name);
}

void zbBrowserView::CreateViewProperty(char const* name) {
    detail::CreateViewProperty(*context_, name);
}

bool zbBrowserView::DeleteViewProperty(zbIBrowserViewProperty* property) {
    return detail::DeleteViewProperty(*context_, property);
}

bool zbBrowserView::GetViewPropertyList(std::vector<zbIBrowserViewProperty*>& out) const {
    return detail::GetViewPropertyList(*context_, out);
}

void zbBrowserView::UpdateViewPropertyType(zbString const& name, ZBBROWSER_DATA_TYPE type) {
    detail::UpdateViewPropertyType(*context_, name, type);
}

bool zbBrowserView::CreateVPConnect(zbIBrowserViewProperty* property,
                                    zbIBrowserDataSourceSimple* source,
                                    zbIBrowserDataProperty* dataProperty) {
    return detail::CreateVPConnect(*context_, property, source, dataProperty);
}

bool zbBrowserView::CreateVPConnect(zbIBrowserViewProperty* property, char const* script) {
    return detail::CreateVPConnect(*context_, property, script);
}

bool zbBrowserView::DeleteVPConnect(zbIBrowserViewProperty* property,
                                    zbIBrowserDataSourceSimple* source) {
    return detail::DeleteVPConnect(*context_, property, source);
}
