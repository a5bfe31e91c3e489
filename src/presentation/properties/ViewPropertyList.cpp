// SPDX-License-Identifier: MIT
#include "presentation/properties/ViewPropertyList.h"

#include "presentation/properties/ViewProperty.h"

namespace zbbrowser {

using detail::PropertyKind;

ViewPropertyList::ViewPropertyList(detail::NewViewContext& context)
    : PropertyList({.replaces = true, .missesAbsent = true})
    , context_(context) {
}

std::unique_ptr<detail::ViewPropertyBase> ViewPropertyList::Make(PropertyKind kind,
                                                                 zbString const& name) {
    switch (kind) {
    case PropertyKind::DefaultName:
        return std::make_unique<ViewPropertyDefaultName>(context_, name);
    case PropertyKind::DefaultIcon:
        return std::make_unique<ViewPropertyDefaultIcon>(context_, name);
    case PropertyKind::Plain:
        break;
    }
    return std::make_unique<ViewProperty>(context_, name);
}

} // namespace zbbrowser
