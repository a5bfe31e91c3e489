// SPDX-License-Identifier: MIT
//! \file
//! The nameless root of a new view.
#pragma once

#include "items/new/ViewItemFreeFolder.h"

namespace zbbrowser {

//! The one folder without a parent. Always expanded.
class ViewItemVirtualRoot final : public ViewItemFreeFolder {
public:
    explicit ViewItemVirtualRoot(detail::NewViewContext& context);

    zbIBrowserViewItemFreeFolder* GetParentFreeFolder() const override { return nullptr; }
    bool IsExpanded() const override { return true; }
    bool IsVirtualRoot() const override { return true; }
};

} // namespace zbbrowser
