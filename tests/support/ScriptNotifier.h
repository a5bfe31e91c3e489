// SPDX-License-Identifier: MIT
//! \file
//! ScriptNotifier: what a script knows of a selection manager's notices.
#pragma once

#include <zbBrowserView/zbIBrowserSelectionNotifierBase.h>

#include <functional>
#include <string>
#include <vector>

namespace zbtest {

//! Hands each notice on: the name of the operation, the items that it is about and its flag.
class ScriptNotifier final : public zbIBrowserSelectionNotifierBase {
public:
    using Items = std::vector<zbIBrowserViewItem*>;
    std::function<void(std::string const& operation, Items const& items, bool flag)> hear;

    void OnSelectionChanged(Items const& items, bool selected) override {
        hear("OnSelectionChanged", items, selected);
    }
    void OnPopupSelection(bool flag) override { hear("OnPopupSelection", {}, flag); }
    void OnSelectionFinished() override { hear("OnSelectionFinished", {}, true); }
};

} // namespace zbtest
