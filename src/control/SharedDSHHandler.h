// SPDX-License-Identifier: MIT
//! \file
//! zbBrowserViewCtrl::SharedDSHHandler: which old views share which tree.
#pragma once

#include <zbBrowserView/platform/zbBrowserErrorReporter.h>
#include <zbBrowserView/zbBrowserViewCtrl.h>

#include <map>
#include <utility>
#include <vector>

//! A table that the host keeps here: for each shared tree, the first pair of old views that was
//! named for it. Entries stay until the table goes. Their pointers may outlive what they point at
//! and are compared only.
class zbBrowserViewCtrl::SharedDSHHandler : public zbBrowserErrorReporter {
public:
    using Tree = zbIBrowserDataSourceHierarchical const*;

    explicit SharedDSHHandler(zbBrowserViewCtrl* viewCtrl);

    bool CreateShare(zbIBrowserView const* view1, zbIBrowserView const* view2, Tree source);
    bool GetSharedInfo(zbIBrowserView const* view,
                       std::vector<std::pair<zbIBrowserView const*, Tree>>& out) const;
    bool GetSharedList(zbIBrowserView const* view1, zbIBrowserView const* view2,
                       std::vector<Tree>& out) const;

private:
    using Pair = std::pair<zbBrowserView const*, zbBrowserView const*>;

    zbBrowserViewCtrl* viewCtrl_; // Not owned, never null
    std::map<Tree, Pair> shares_; // Results come in the order of the source pointers
};
