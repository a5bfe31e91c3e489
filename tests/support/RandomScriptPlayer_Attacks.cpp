// SPDX-License-Identifier: MIT
// What an attack can wait for, and when it comes.
#include "items/new/ViewItemFreeFolder.h"
#include "items/old/zbBrowserViewItemVirtualRoot.h"
#include "RandomScriptPlayer.h"
#include "view/NewViewContext.h"
#include "view/OldViewContext.h"
#include "ViewItemNames.h"

#include <zbBrowserView/View.h>

#include <algorithm>

namespace zbtest {

namespace {

constexpr std::size_t deepestAttack = 3;

class Counted {
public:
    Counted(std::size_t& counter, bool counts)
        : counter_(counter)
        , counts_(counts) {
        counter_ += counts_ ? 1 : 0;
    }
    Counted(Counted const&) = delete;
    Counted& operator=(Counted const&) = delete;
    ~Counted() { counter_ -= counts_ ? 1 : 0; }

private:
    std::size_t& counter_;
    bool const counts_;
};

//! An operation of the host that only answers something.
bool IsQuestion(std::string const& operation) {
    return operation.starts_with("Get") && operation != "GetDataItems";
}

//! Calls `hear(signal, name)` for the signals about single items, which are there when they are
//! told.
template <class Hear>
void ForEachItemSignal(zbBrowserSignalManager& signals, Hear hear) {
    hear(signals.ViewItemCreated, "ViewItemCreated");
    hear(signals.ViewItemChanged, "ViewItemChanged");
    hear(signals.ViewItemDeleted, "ViewItemDeleted");
    hear(signals.ViewItemShown, "ViewItemShown");
    hear(signals.ViewItemExpanded, "ViewItemExpanded");
    hear(signals.ViewItemCollapsed, "ViewItemCollapsed");
    hear(signals.FreeFolderCreated, "FreeFolderCreated");
    hear(signals.FreeFolderStyleChanged, "FreeFolderStyleChanged");
}

template <class Hear>
void ForEachOtherSignal(zbBrowserSignalManager& signals, Hear hear) {
    hear(signals.ViewItemListDeleted, "ViewItemListDeleted");
    hear(signals.ViewContentChanged, "ViewContentChanged");
    hear(signals.ViewChanged, "ViewChanged");
    hear(signals.EmptyFoldersShown, "EmptyFoldersShown");
    hear(signals.SelectionClearing, "SelectionClearing");
    hear(signals.ViewItemsSelected, "ViewItemsSelected");
    hear(signals.ViewItemsDeselected, "ViewItemsDeselected");
    hear(signals.EditDataItem, "EditDataItem");
    hear(signals.StyleCreated, "StyleCreated");
    hear(signals.StyleDeleted, "StyleDeleted");
    hear(signals.ColumnsChanged, "ColumnsChanged");
    hear(signals.ColumnCreated, "ColumnCreated");
    hear(signals.ColumnUpdated, "ColumnUpdated");
    hear(signals.ColumnDeleted, "ColumnDeleted");
    hear(signals.ColumnShown, "ColumnShown");
    hear(signals.ColumnSortChanged, "ColumnSortChanged");
    hear(signals.ColumnSortRepeated, "ColumnSortRepeated");
    hear(signals.ColumnStateChanged, "ColumnStateChanged");
    hear(signals.ColumnCaptionChanged, "ColumnCaptionChanged");
}

template <class Hear>
void ForEachDataSignal(zbBrowserDataSignalManager& signals, Hear hear) {
    hear(signals.DataItemsSelectionChanging, "DataItemsSelectionChanging");
    hear(signals.SelectionChangeFinished, "SelectionChangeFinished");
    hear(signals.DataItemsSelectionSummary, "DataItemsSelectionSummary");
    hear(signals.SelectionManagerChanged, "SelectionManagerChanged");
    hear(signals.DataItemsGrouped, "DataItemsGrouped");
    hear(signals.SortChanging, "SortChanging");
}

} // namespace

std::vector<std::string> const& ScriptPlayer::Signals() {
    static std::vector<std::string> const all = [] {
        zbBrowserSignalManager signals;
        zbBrowserDataSignalManager dataSignals;
        std::vector<std::string> names = {"OnSelectionChanged", "OnSelectionFinished",
                                          "OnPopupSelection"};
        auto const add = [&names](auto&, char const* name) { names.emplace_back(name); };
        ForEachItemSignal(signals, add);
        ForEachOtherSignal(signals, add);
        ForEachDataSignal(dataSignals, add);
        return names;
    }();
    return all;
}

// Those that a view without menus, collectors, groups and rows of trees calls.
std::vector<std::string> const& ScriptPlayer::HostOperations() {
    static std::vector<std::string> const names = {
        "BeginChange",
        "BeginLongOperation",
        "ClearDirty",
        "CompareByDataProperty",
        "CompareById",
        "CompareByName",
        "CompareBySortProperty",
        "CompareDataSources",
        "ContainsDataItem",
        "EndChange",
        "EndLongOperation",
        "FindDataProperty",
        "FindDataSourceHierarchical",
        "FindDataSourceSimple",
        "GetActiveView",
        "GetBoolean",
        "GetBrowserPanel",
        "GetChildTypes",
        "GetDataCtrl",
        "GetDataItems",
        "GetDataSignalManager",
        "GetDataSource",
        "GetDisplayText",
        "GetDouble",
        "GetInteger",
        "GetName",
        "GetOwnType",
        "GetProperty",
        "GetSignalManager",
        "GetString",
        "GetStringFromScript",
        "GetTextPointer",
        "GetTypeName",
        "GetUnsigned",
        "GetVariant",
        "IsDirty",
        "OnConnected",
        "OnDataItemsDeselected",
        "OnDataItemsSelected",
        "OnDisconnected",
        "OnViewLost",
        "SetCurrentDataItem",
        "SetDataPropertyBoolean",
        "SetDataPropertyInteger",
        "SetSortProperty",
        "ShowViewItem",
    };
    return names;
}

void ScriptPlayer::Listen() {
    auto const hear = [this](auto& signal, char const* name) {
        static_cast<void>(
            signal.Connect([this, name](auto&&...) { Reached(name, false); }, &listener_));
    };
    auto const hearOf = [this](auto& signal, char const* name) {
        auto const slot = [this, name](auto* item, auto&&...) {
            CheckSignalled(name, item);
            Reached(name, false);
        };
        static_cast<void>(signal.Connect(slot, &listener_));
    };
    ForEachItemSignal(host_.signals, hearOf);
    ForEachOtherSignal(host_.signals, hear);
    ForEachDataSignal(host_.dataSignals, hear);
}

// Rows that go in a list have left their folder before they are signalled; all others stand in
// their view. One may be told of once more that a plain question made go, such as the one for the
// signal manager.
void ScriptPlayer::CheckSignalled(std::string const& signal, zbIBrowserViewItem const* item) {
    bool isThere = false;
    for (std::string const& view : ViewNames()) {
        auto& context = static_cast<Folder*>(View(view)->GetVirtualRoot())->Context();
        isThere = isThere || context.Owns(item);
    }
    auto const folders = NewFolders("n0");
    isThere =
        isThere || std::any_of(folders.begin(), folders.end(),
                               [item](zbIBrowserViewItem const* folder) { return folder == item; });
    wrongSignals_ +=
        isThere || wasAttackedInQuestion_ ? "" : signal + " about an item that is not there\n";
}

void ScriptPlayer::HearNotice(std::string const& view, std::string const& operation,
                              std::vector<zbIBrowserViewItem*> const& items, bool flag) {
    if (!IsCalm()) {
        Reached(operation, false);
        return;
    }
    std::string names;
    for (auto const* const item : items) {
        names.append(names.empty() ? "" : " ").append(NameOf(item, &host_.calls));
    }
    std::string const answer = flag ? "true" : "false";
    notices_.push_back(view + (operation == "OnSelectionFinished" ? " finished"
                               : operation == "OnPopupSelection"
                                   ? " popup " + answer
                                   : " changed [" + names + "] " + answer));
}

std::string ScriptPlayer::Arm(ScriptStep const& step) {
    std::size_t const left = std::strtoul(step.Arg(2).c_str(), nullptr, 10);
    if (left == 0) {
        return "skip";
    }
    std::string const& on = step.Arg(1);
    attacks_.push_back({on, left, step.Rest(3)});
    auto const& operations = HostOperations();
    if (std::find(operations.begin(), operations.end(), on) != operations.end() &&
        hooked_.insert(on).second) {
        host_.calls.On(on, [this, on] { Reached(on, true); });
    }
    return "";
}

// The host insists that each of its hooks was reached, which is a matter of chance here.
void ScriptPlayer::Unhook() {
    isQuiet_ = true;
    for (std::string const& operation : hooked_) {
        host_.calls.Asked(operation.c_str(), "");
        host_.calls.Off(operation);
    }
}

void ScriptPlayer::Reached(std::string const& what, bool inHost) {
    if (isQuiet_ || depth_ >= deepestAttack) {
        return;
    }
    auto const due = std::find_if(attacks_.begin(), attacks_.end(), [&](Attack& attack) {
        return attack.on == what && --attack.left == 0;
    });
    if (due == attacks_.end()) {
        return;
    }
    ScriptStep const step = due->step;
    attacks_.erase(due);
    ++attacksMade_;
    wasAttackedInQuestion_ = wasAttackedInQuestion_ || IsQuestion(what);
    Counted const deeper(depth_, true);
    Counted const host(hostCalls_, inHost);
    Counted const calm(lookingCalls_, inHost && what != "GetDataItems");
    try {
        Perform(step);
    } catch (...) {
        // Then the host misses the end that it was just told of.
        hasMissedEnd_ = hasMissedEnd_ || what.starts_with("End");
        throw;
    }
}

} // namespace zbtest
