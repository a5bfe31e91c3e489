// SPDX-License-Identifier: MIT
//! \file
//! The nameless root of an old view.
#pragma once

#include "items/old/zbBrowserViewItemFreeFolder.h"

//! The one folder without a parent. Always expanded, and it stays where it is.
class zbBrowserViewItemVirtualRoot final : public zbBrowserViewItemFreeFolder {
public:
    explicit zbBrowserViewItemVirtualRoot(zbbrowser::detail::OldViewContext& context);
    zbBrowserViewItemVirtualRoot(zbBrowserViewItemVirtualRoot const&) = delete;
    zbBrowserViewItemVirtualRoot& operator=(zbBrowserViewItemVirtualRoot const&) = delete;
    ~zbBrowserViewItemVirtualRoot() override;

    bool IsExpanded() const override { return true; }
    bool IsVirtualRoot() const override { return true; }
    void SetParentFolder(zbIBrowserViewItemFreeFolder*) override {}
};
