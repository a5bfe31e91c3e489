// SPDX-License-Identifier: MIT
#include "items/old/zbBrowserViewItemVirtualRoot.h"

zbBrowserViewItemVirtualRoot::zbBrowserViewItemVirtualRoot(
    zbbrowser::detail::OldViewContext& context)
    : zbBrowserViewItemFreeFolder(context, nullptr, zbString(), true) {
}

zbBrowserViewItemVirtualRoot::~zbBrowserViewItemVirtualRoot() = default;
