// SPDX-License-Identifier: MIT
// Steps on the selection.
#include "items/old/zbBrowserViewItemFreeFolder.h"
#include "RandomScriptPlayer.h"

#include <zbBrowserView/View.h>
#include <zbBrowserView/zbBrowserView.h>
#include <zbBrowserView/zbIBrowserSelectionManager.h>

namespace zbtest {

namespace {

using Items = std::vector<zbIBrowserViewItem*>;
using FlatItems = std::vector<zbIBrowserDataItemSimple*>;
using TreeItems = std::vector<zbIBrowserDataItemHierarchical*>;
using ItemSet = std::set<zbIBrowserViewItem*, std::less<>>;

ItemSet SelectedIn(zbIBrowserView const& view) {
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

} // namespace

std::map<std::string, ScriptPlayer::Handler> const& ScriptPlayer::SelectionHandlers() {
    static std::map<std::string, Handler> const handlers = {
        {"select", &ScriptPlayer::Select},
        {"select-data", &ScriptPlayer::SelectData},
        {"deselect-data", &ScriptPlayer::DeselectData},
        {"deselect-below", &ScriptPlayer::DeselectBelow},
        {"deselect-row", &ScriptPlayer::DeselectRow},
        {"deselect-all", &ScriptPlayer::DeselectAll},
        {"clear-all", &ScriptPlayer::ForgetSelection},
        {"clear-selected", &ScriptPlayer::ForgetSelection},
        {"tell-previous", &ScriptPlayer::TellPrevious},
        {"finish-selection", &ScriptPlayer::FinishSelection},
        {"sync", &ScriptPlayer::SetSync},
        {"notifier", &ScriptPlayer::SetNotifier},
        {"popup", &ScriptPlayer::Popup},
        {"edit", &ScriptPlayer::Edit},
        {"drop-item", &ScriptPlayer::SetDropItem},
    };
    return handlers;
}

// From within a signal a row that is on its way out may still be selected, and stands below
// nothing.
void ScriptPlayer::ChangeSelection(ScriptStep const& step, zbIBrowserView& view,
                                   ItemSet const& expected, std::function<void()> const& change) {
    auto const attacksBefore = attacksMade_;
    change();
    if (depth_ == 0 && attacksMade_ == attacksBefore && SelectedIn(view) != expected) {
        wrongSignals_ += step.Line() + ": something else is selected\n";
    }
}

// By items

//! The folder, its row of that name, and null.
std::string ScriptPlayer::Select(ScriptStep const& step) {
    zbIBrowserView* view = nullptr;
    auto* const folder = FindAnyFolder(step.Arg(1), &view);
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

std::string ScriptPlayer::DeselectBelow(ScriptStep const& step) {
    zbIBrowserView* view = nullptr;
    auto const* const folder = FindAnyFolder(step.Arg(1), &view);
    if (folder == nullptr) {
        return "skip";
    }
    auto expected = SelectedIn(*view);
    std::erase_if(expected, [folder](auto const* item) { return IsWithin(item, folder); });
    ChangeSelection(step, *view, expected, [&] { view->DeselectViewItem(folder, true); });
    return "";
}

std::string ScriptPlayer::DeselectRow(ScriptStep const& step) {
    zbBrowserView* view = nullptr;
    static_cast<void>(FindFolder(step.Arg(1), &view));
    auto* const row = FindRow(step.Arg(1), step.Arg(2));
    if (row == nullptr) {
        return "skip";
    }
    auto expected = SelectedIn(*view);
    expected.erase(row);
    ChangeSelection(step, *view, expected, [&] { view->DeselectViewItem(row, false); });
    return "";
}

std::string ScriptPlayer::DeselectAll(ScriptStep const& step) {
    zbIBrowserView* const view = AnyView(step.Arg(1));
    if (view == nullptr) {
        return "skip";
    }
    ChangeSelection(step, *view, {}, [&] { view->DeselectAllViewItems(); });
    return "";
}

std::string ScriptPlayer::ForgetSelection(ScriptStep const& step) {
    zbIBrowserView const* const view = AnyView(step.Arg(1));
    if (view == nullptr) {
        return "skip";
    }
    auto& manager = *view->GetSelectionManager();
    ChangeSelection(step, *AnyView(step.Arg(1)), {}, [&] {
        step.Name() == "clear-all" ? manager.ClearAll() : manager.ClearSelected();
    });
    return "";
}

// By data items

ScriptPlayer::FlatItems ScriptPlayer::ItemsOf(ScriptStep const& step, std::size_t from) {
    FlatItems items;
    for (std::size_t i = from; i + 1 < step.Count(); i += 2) {
        items.push_back(data_.Item(step.Arg(i), step.Arg(i + 1)));
    }
    return items;
}

//! The rows of items by whose sources the view selects. No attack comes meanwhile.
Items ScriptPlayer::RowsOf(zbBrowserView& view, FlatItems const& items) {
    bool const wasQuiet = std::exchange(isQuiet_, true);
    Items rows;
    Items parents;
    for (auto* const item : items) {
        if (item != nullptr && view.GetDataSourceSimple(item->GetDataSource()) != nullptr) {
            view.GetDataDependentViewItems(item, rows, parents);
        }
    }
    isQuiet_ = wasQuiet;
    return rows;
}

// From within another event, or after one that was left by an exception, the view does nothing.
std::string ScriptPlayer::SelectData(ScriptStep const& step) {
    zbBrowserView* const view = View(step.Arg(1));
    FlatItems items = ItemsOf(step, 3);
    if (zbbrowser::View* const newView = NewView(step.Arg(1))) {
        newView->OnDataItemsSelected({items.begin(), items.end()}, step.Flag(2), false);
        return "";
    }
    if (view == nullptr) {
        return "skip";
    }
    items.push_back(items.empty() ? nullptr : items.front());
    auto const select = [&] { view->OnDataItemsSelected(items, TreeItems(), step.Flag(2)); };
    if (depth_ > 0 || hasThrown_ || !view->GetSelectionManager()->GetSyncFlag()) {
        select();
        return "";
    }
    auto expected = step.Flag(2) ? ItemSet() : SelectedIn(*view);
    auto const rows = RowsOf(*view, items);
    expected.insert(rows.begin(), rows.end());
    ChangeSelection(step, *view, expected, select);
    return "";
}

std::string ScriptPlayer::DeselectData(ScriptStep const& step) {
    zbBrowserView* const view = View(step.Arg(1));
    FlatItems const items = ItemsOf(step, 2);
    if (zbbrowser::View* const newView = NewView(step.Arg(1))) {
        newView->OnDataItemsDeselected({items.begin(), items.end()});
        return "";
    }
    if (view == nullptr) {
        return "skip";
    }
    auto const deselect = [&] { view->OnDataItemsDeselected(items, TreeItems()); };
    if (depth_ > 0 || hasThrown_ || !view->GetSelectionManager()->GetSyncFlag()) {
        deselect();
        return "";
    }
    auto expected = SelectedIn(*view);
    for (auto* const row : RowsOf(*view, items)) {
        expected.erase(row);
    }
    ChangeSelection(step, *view, expected, deselect);
    return "";
}

// The rest of the manager

std::string ScriptPlayer::TellPrevious(ScriptStep const& step) {
    zbIBrowserView* const view = AnyView(step.Arg(1));
    if (view == nullptr) {
        return "skip";
    }
    view->UpdatePreviousSelection();
    return "";
}

std::string ScriptPlayer::FinishSelection(ScriptStep const& step) {
    zbIBrowserView* const view = AnyView(step.Arg(1));
    if (view == nullptr) {
        return "skip";
    }
    host_.Controller().OnViewSelectionChangeFinished(view);
    return "";
}

std::string ScriptPlayer::SetSync(ScriptStep const& step) {
    zbIBrowserView const* const view = AnyView(step.Arg(1));
    if (view == nullptr) {
        return "skip";
    }
    view->GetSelectionManager()->SetSyncFlag(step.Flag(2));
    return "";
}

std::string ScriptPlayer::SetNotifier(ScriptStep const& step) {
    zbIBrowserView const* const view = AnyView(step.Arg(1));
    if (view == nullptr) {
        return "skip";
    }
    ScriptNotifier& notifier = notifiers_[step.Arg(1)];
    notifier.hear = [this, name = step.Arg(1)](auto const& operation, auto const& items,
                                               bool flag) {
        HearNotice(name, operation, items, flag);
    };
    auto& manager = *view->GetSelectionManager();
    step.Flag(2) ? manager.AddNotifier(&notifier) : manager.RemoveNotifier(&notifier);
    return "";
}

std::string ScriptPlayer::Popup(ScriptStep const& step) {
    zbIBrowserView* const view = AnyView(step.Arg(1));
    if (view == nullptr) {
        return "skip";
    }
    host_.Controller().OnPopupSelection(view, step.Flag(2));
    return "";
}

std::string ScriptPlayer::Edit(ScriptStep const& step) {
    zbIBrowserView* const view = AnyView(step.Arg(1));
    return view != nullptr && view->EditSelectedDataItem("edit") ? "true" : "false";
}

std::string ScriptPlayer::SetDropItem(ScriptStep const& step) {
    zbIBrowserView* view = nullptr;
    auto* const folder = FindAnyFolder(step.Arg(1), &view);
    if (view == nullptr) {
        return "skip";
    }
    zbIBrowserViewItem* const row = FindRow(step.Arg(1), step.Arg(2));
    view->SetDropItem(row == nullptr ? folder : row);
    if (zbBrowserView* const old = View(step.Arg(1).substr(0, 2))) {
        old->SetLastFindStartPoint(row);
    }
    auto const& manager = *view->GetSelectionManager();
    bool const isNoted = row == nullptr
                             ? manager.IsDropOnFreeFolder() == (folder != nullptr)
                             : manager.GetDropDataItemSimple() == row->GetDataItemSimple();
    wrongSignals_ += isNoted ? "" : step.Line() + ": it is not the drop item\n";
    return "";
}

} // namespace zbtest
