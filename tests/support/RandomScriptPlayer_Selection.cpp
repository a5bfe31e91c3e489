// SPDX-License-Identifier: MIT
// Steps on the selection.
#include "items/old/zbBrowserViewItemFreeFolder.h"
#include "RandomScriptPlayer.h"

#include <zbBrowserView/zbBrowserView.h>

namespace zbtest {

std::map<std::string, ScriptPlayer::Handler> const& ScriptPlayer::SelectionHandlers() {
    static std::map<std::string, Handler> const handlers = {
        {"select", &ScriptPlayer::Select},
        {"select-data", &ScriptPlayer::SelectData},
        {"deselect-data", &ScriptPlayer::DeselectData},
        {"deselect-below", &ScriptPlayer::DeselectBelow},
        {"drop-item", &ScriptPlayer::SetDropItem},
    };
    return handlers;
}

//! The folder, its row of that name, and null.
std::string ScriptPlayer::Select(ScriptStep const& step) {
    zbBrowserView* view = nullptr;
    Folder* const folder = FindFolder(step.Arg(1), &view);
    if (view == nullptr) {
        return "skip";
    }
    host_.Controller().OnUpdateViewSelection(
        view, {folder, FindRow(step.Arg(1), step.Arg(2)), nullptr}, step.Flag(3), step.Flag(4));
    return "";
}

std::string ScriptPlayer::SelectData(ScriptStep const& step) {
    zbBrowserView* const view = View(step.Arg(1));
    RecordingItem* const item = data_.Item(step.Arg(2), step.Arg(3));
    if (view == nullptr || item == nullptr) {
        return "skip";
    }
    view->OnDataItemsSelected({item, nullptr, item}, {}, step.Flag(4));
    return "";
}

std::string ScriptPlayer::DeselectData(ScriptStep const& step) {
    zbBrowserView* const view = View(step.Arg(1));
    RecordingItem* const item = data_.Item(step.Arg(2), step.Arg(3));
    if (view == nullptr || item == nullptr) {
        return "skip";
    }
    view->OnDataItemsDeselected({item}, {});
    return "";
}

std::string ScriptPlayer::DeselectBelow(ScriptStep const& step) {
    zbBrowserView* view = nullptr;
    Folder const* const folder = FindFolder(step.Arg(1), &view);
    if (folder == nullptr) {
        return "skip";
    }
    view->DeselectViewItem(folder, true);
    return "";
}

std::string ScriptPlayer::SetDropItem(ScriptStep const& step) {
    zbBrowserView* view = nullptr;
    Folder* const folder = FindFolder(step.Arg(1), &view);
    if (view == nullptr) {
        return "skip";
    }
    zbIBrowserViewItem* const row = FindRow(step.Arg(1), step.Arg(2));
    view->SetDropItem(row == nullptr ? folder : row);
    view->SetLastFindStartPoint(row);
    return "";
}

} // namespace zbtest
