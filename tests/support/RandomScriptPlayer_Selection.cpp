// SPDX-License-Identifier: MIT
// Steps on the selection.
#include "items/old/zbBrowserViewItemFreeFolder.h"
#include "RandomScriptPlayer.h"

#include <zbBrowserView/zbBrowserView.h>
#include <zbBrowserView/zbIBrowserSelectionManager.h>

namespace zbtest {

namespace {

using Items = std::vector<zbIBrowserViewItem*>;
using FlatItems = std::vector<zbIBrowserDataItemSimple*>;
using TreeItems = std::vector<zbIBrowserDataItemHierarchical*>;
using ItemSet = std::set<zbIBrowserViewItem*, std::less<>>;

ItemSet SelectedIn(zbBrowserView const& view) {
    Items items;
    view.GetSelectionManager()->GetSelectedViewItems(items);
    return {items.begin(), items.end()};
}

bool IsWithin(zbIBrowserViewItem const* item, zbIBrowserViewItem const* folder) {
    while (item != nullptr && item != folder) {
        item = item->GetParent();
    }
    return item != nullptr;
}

//! The rows of an item, if the view selects by its source.
Items RowsOf(zbBrowserView& view, RecordingItem& item) {
    Items rows;
    Items parents;
    if (view.GetDataSourceSimple(item.GetDataSource()) != nullptr) {
        view.GetDataDependentViewItems(&item, rows, parents);
    }
    return rows;
}

} // namespace

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

void ScriptPlayer::ChangeSelection(ScriptStep const& step, zbBrowserView& view,
                                   ItemSet const& expected, std::function<void()> const& change) {
    auto const attacksBefore = attacksMade_;
    change();
    if (attacksMade_ == attacksBefore && SelectedIn(view) != expected) {
        wrongSignals_ += step.Line() + ": something else is selected\n";
    }
}

//! The folder, its row of that name, and null.
std::string ScriptPlayer::Select(ScriptStep const& step) {
    zbBrowserView* view = nullptr;
    Folder* const folder = FindFolder(step.Arg(1), &view);
    if (view == nullptr) {
        return "skip";
    }
    Items const items{folder, FindRow(step.Arg(1), step.Arg(2)), nullptr};
    auto expected = step.Flag(4) ? ItemSet() : SelectedIn(*view);
    for (auto* const item : items) {
        if (step.Flag(3)) {
            expected.insert(item);
        } else {
            expected.erase(item);
        }
    }
    expected.erase(nullptr);
    ChangeSelection(step, *view, expected, [&] {
        host_.Controller().OnUpdateViewSelection(view, items, step.Flag(3), step.Flag(4));
    });
    return "";
}

// From within another event, or after one that was left by an exception, the view does nothing.
std::string ScriptPlayer::SelectData(ScriptStep const& step) {
    zbBrowserView* const view = View(step.Arg(1));
    RecordingItem* const item = data_.Item(step.Arg(2), step.Arg(3));
    if (view == nullptr || item == nullptr) {
        return "skip";
    }
    FlatItems const items{item, nullptr, item};
    auto const select = [&] { view->OnDataItemsSelected(items, TreeItems(), step.Flag(4)); };
    if (depth_ > 0 || hasThrown_) {
        select();
        return "";
    }
    auto expected = step.Flag(4) ? ItemSet() : SelectedIn(*view);
    auto const rows = RowsOf(*view, *item);
    expected.insert(rows.begin(), rows.end());
    ChangeSelection(step, *view, expected, select);
    return "";
}

std::string ScriptPlayer::DeselectData(ScriptStep const& step) {
    zbBrowserView* const view = View(step.Arg(1));
    RecordingItem* const item = data_.Item(step.Arg(2), step.Arg(3));
    if (view == nullptr || item == nullptr) {
        return "skip";
    }
    FlatItems const items{item};
    auto const deselect = [&] { view->OnDataItemsDeselected(items, TreeItems()); };
    if (depth_ > 0 || hasThrown_) {
        deselect();
        return "";
    }
    auto expected = SelectedIn(*view);
    for (auto* const row : RowsOf(*view, *item)) {
        expected.erase(row);
    }
    ChangeSelection(step, *view, expected, deselect);
    return "";
}

std::string ScriptPlayer::DeselectBelow(ScriptStep const& step) {
    zbBrowserView* view = nullptr;
    Folder const* const folder = FindFolder(step.Arg(1), &view);
    if (folder == nullptr) {
        return "skip";
    }
    auto expected = SelectedIn(*view);
    std::erase_if(expected, [folder](auto const* item) { return IsWithin(item, folder); });
    ChangeSelection(step, *view, expected, [&] { view->DeselectViewItem(folder, true); });
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
    auto const& manager = *view->GetSelectionManager();
    bool const isNoted = row == nullptr
                             ? manager.IsDropOnFreeFolder() == (folder != nullptr)
                             : manager.GetDropDataItemSimple() == row->GetDataItemSimple();
    wrongSignals_ += isNoted ? "" : step.Line() + ": it is not the drop item\n";
    return "";
}

} // namespace zbtest
