// SPDX-License-Identifier: MIT
#include "presentation/properties/zbBrowserViewPropertyHolder.h"

#include "presentation/properties/zbBrowserViewProperty.h"

using zbbrowser::detail::PropertyKind;
using zbbrowser::detail::PropertyList;
using zbbrowser::detail::ViewPropertyBase;

zbBrowserViewPropertyHolder::zbBrowserViewPropertyHolder(OldViewContext& context)
    : PropertyList({.replaces = false, .missesAbsent = false})
    , context_(context) {
}

zbIBrowserViewProperty* zbBrowserViewPropertyHolder::FindViewProperty(char const* name) const {
    return name == nullptr ? nullptr : Find(name);
}

bool zbBrowserViewPropertyHolder::GetViewPropertyList(
    std::vector<zbIBrowserViewProperty*>& out) const {
    CopyTo(out);
    return true;
}

std::unique_ptr<ViewPropertyBase> zbBrowserViewPropertyHolder::Make(PropertyKind kind,
                                                                    zbString const& name) {
    switch (kind) {
    case PropertyKind::DefaultName:
        return std::make_unique<zbBrowserDefaultNameViewProperty>(context_, name);
    case PropertyKind::DefaultIcon:
        return std::make_unique<zbBrowserDefaultIconNameViewProperty>(context_, name);
    case PropertyKind::Plain:
        break;
    }
    return std::make_unique<zbBrowserViewProperty>(context_, name);
}
