// SPDX-License-Identifier: MIT
//! \file
//! zbBrowserViewCtrl::SharedDSHHandler
#include "control/SharedDSHHandler.h"

#include <zbBrowserView/zbBrowserView.h>

namespace {

using Pair = std::pair<zbBrowserView const*, zbBrowserView const*>;

bool IsPairOf(Pair const& pair, zbBrowserView const* a, zbBrowserView const* b) {
    return pair == Pair(a, b) || pair == Pair(b, a);
}

bool Contains(Pair const& pair, zbBrowserView const* view) {
    return pair.first == view || pair.second == view;
}

} // namespace

zbBrowserViewCtrl::SharedDSHHandler::SharedDSHHandler(zbBrowserViewCtrl* viewCtrl)
    : viewCtrl_(viewCtrl) {
}

// Only view1 is looked for in the pair that is there. A request from outside that pair is answered
// as if it had been met, and the first pair stays.
bool zbBrowserViewCtrl::SharedDSHHandler::CreateShare(zbIBrowserView const* view1,
                                                      zbIBrowserView const* view2, Tree source) {
    if (source == nullptr)
        return false;
    Pair const wanted(viewCtrl_->OLD_FindViewByPtr(view1), viewCtrl_->OLD_FindViewByPtr(view2));
    if (wanted.first == nullptr || wanted.second == nullptr)
        return false;
    auto const [share, isNew] = shares_.emplace(source, wanted);
    if (isNew || !Contains(share->second, wanted.first))
        return true;
    SetError("Share already exists");
    return false;
}

bool zbBrowserViewCtrl::SharedDSHHandler::GetSharedInfo(
    zbIBrowserView const* view, std::vector<std::pair<zbIBrowserView const*, Tree>>& out) const {
    if (view == nullptr)
        return false;
    out.clear();
    zbBrowserView const* const known = viewCtrl_->OLD_FindViewByPtr(view);
    if (known == nullptr)
        return false;
    for (auto const& [source, pair] : shares_)
        if (Contains(pair, known))
            out.emplace_back(pair.first == known ? pair.second : pair.first, source);
    return true;
}

bool zbBrowserViewCtrl::SharedDSHHandler::GetSharedList(zbIBrowserView const* view1,
                                                        zbIBrowserView const* view2,
                                                        std::vector<Tree>& out) const {
    if (view1 == nullptr || view2 == nullptr)
        return false;
    out.clear();
    zbBrowserView const* const known1 = viewCtrl_->OLD_FindViewByPtr(view1);
    zbBrowserView const* const known2 = viewCtrl_->OLD_FindViewByPtr(view2);
    if (known1 == nullptr || known2 == nullptr)
        return false;
    for (auto const& [source, pair] : shares_)
        if (IsPairOf(pair, known1, known2))
            out.push_back(source);
    return true;
}
