// SPDX-License-Identifier: MIT
#include "filtersort/CurrentSortProperty.h"

namespace zbbrowser::detail {

namespace {
zbIBrowserViewProperty* current = nullptr;
} // namespace

zbIBrowserViewProperty* CurrentSortProperty() {
    return current;
}

void SetCurrentSortProperty(zbIBrowserViewProperty* property) {
    current = property;
}

void ForgetSortProperty(zbIBrowserViewProperty const* property) {
    if (current == property)
        current = nullptr;
}

} // namespace zbbrowser::detail
