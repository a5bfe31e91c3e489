// SPDX-License-Identifier: MIT
#include "presentation/styles/zbBrowserStyleElement.h"

#include "presentation/styles/zbBrowserStyle.h"
#include "view/ViewContext.h"

#include <zbBrowserView/host/zbIBrowserDataSourceSimple.h>
#include <zbBrowserView/zbIBrowserViewProperty.h>

#include <utility>

zbBrowserStyleElement::zbBrowserStyleElement(zbbrowser::detail::ViewContext& context, zbString name,
                                             zbString title)
    : context_(context)
    , name_(std::move(name))
    , title_(std::move(title)) {
    context_.Styles().Add(*this);
}

zbBrowserStyleElement::~zbBrowserStyleElement() {
    if (style_ != nullptr)
        style_->Forget(*this);
    context_.Styles().Remove(*this);
}

zbIBrowserStyle* zbBrowserStyleElement::GetStyle() const {
    return style_;
}

bool zbBrowserStyleElement::SetGuiMapName(zbString const& name) {
    guiMapName_ = name;
    return true;
}

bool zbBrowserStyleElement::SetViewProperty(zbIBrowserViewProperty* property) {
    property_ = property;
    return true;
}

// Properties of old views are asked for flat sources, those of new views for sources.
zbIBrowserDataProperty* zbBrowserStyleElement::GetDataProperty(zbIBrowserDataSource* source) {
    if (property_ == nullptr || source == nullptr)
        return nullptr;
    if (context_.IsNew())
        return property_->GetDataProperty(source);
    auto* const flat = dynamic_cast<zbIBrowserDataSourceSimple*>(source);
    return flat == nullptr ? nullptr : property_->GetDataProperty(flat);
}

bool zbBrowserStyleElement::IsProtected() const {
    return name_ == defaultIconName || name_ == defaultNameName;
}
