// SPDX-License-Identifier: MIT
#include "SignalRecorder.h"

#include "AllocationFailures.h"
#include "RecordingHost.h"
#include "ViewItemNames.h"

#include <zbBrowserView/zbIBrowserStyle.h>
#include <zbBrowserView/zbIBrowserViewColumn.h>
#include <zbBrowserView/zbIBrowserViewItemFreeFolder.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace zbtest {

SignalRecorder::SignalRecorder(RecordingHost& host)
    : SignalRecorder(host.signals, host.dataSignals, &host.calls) {
}

SignalRecorder::SignalRecorder(zbBrowserSignalManager& signals,
                               zbBrowserDataSignalManager& dataSignals,
                               RecordingHostCalls const* calls)
    : signals_(signals)
    , dataSignals_(dataSignals)
    , calls_(calls) {
    ListenToViews();
    ListenToColumnsAndFolders();
    ListenToCollectors();
    ListenToData();
}

SignalRecorder::~SignalRecorder() {
    if (lines_.empty()) {
        return;
    }
    MemoryIsBack const memory;
    std::string unread;
    for (std::string const& line : lines_) {
        unread.append("\n  ").append(line);
    }
    ADD_FAILURE() << "signals that nobody took:" << unread;
}

std::vector<std::string> SignalRecorder::take() {
    return std::exchange(lines_, {});
}

std::size_t SignalRecorder::Count(std::string const& signal) const {
    CheckNames({signal});
    return static_cast<std::size_t>(
        std::count_if(lines_.begin(), lines_.end(), [&](std::string const& line) {
            return line == signal || line.starts_with(signal + ' ');
        }));
}

void SignalRecorder::Ignore(std::set<std::string> const& signals) {
    CheckNames(signals);
    ignored_.insert(signals.begin(), signals.end());
}

void SignalRecorder::Only(std::set<std::string> const& signals) {
    CheckNames(signals);
    ignored_ = {names_.begin(), names_.end()};
    for (std::string const& signal : signals) {
        ignored_.erase(signal);
    }
}

#define ZB_LISTEN(signal) Listen(signals_.signal, #signal)
#define ZB_LISTEN_DATA(signal) Listen(dataSignals_.signal, #signal)

void SignalRecorder::ListenToViews() {
    ZB_LISTEN(ViewItemCreated);
    ZB_LISTEN(ViewItemChanged);
    ZB_LISTEN(ViewItemDeleted);
    ZB_LISTEN(ViewItemListDeleted);
    ZB_LISTEN(ViewItemSelected);
    ZB_LISTEN(ViewItemsSelected);
    ZB_LISTEN(ViewItemDeselected);
    ZB_LISTEN(ViewItemsDeselected);
    ZB_LISTEN(ViewItemReparented);
    ZB_LISTEN(ViewItemRedraw);
    ZB_LISTEN(EditDataItem);
    ZB_LISTEN(StyleCreated);
    ZB_LISTEN(StyleDeleted);
    ZB_LISTEN(ColumnsChanged);
    ZB_LISTEN(SelectionClearing);
    ZB_LISTEN(ViewChanged);
    ZB_LISTEN(ViewItemExpanded);
    ZB_LISTEN(ViewItemCollapsed);
    ZB_LISTEN(ViewItemReplaced);
    ZB_LISTEN(ViewItemExpandedAll);
    ZB_LISTEN(ViewItemCollapsedAll);
    ZB_LISTEN(ViewContentChanged);
}

void SignalRecorder::ListenToColumnsAndFolders() {
    ZB_LISTEN(FilterListChanged);
    ZB_LISTEN(ColumnCreated);
    ZB_LISTEN(ColumnUpdated);
    ZB_LISTEN(ColumnDeleted);
    ZB_LISTEN(ColumnShown);
    ZB_LISTEN(ColumnSortChanged);
    ZB_LISTEN(ColumnSortRepeated);
    ZB_LISTEN(ColumnStateChanged);
    ZB_LISTEN(ColumnCaptionChanged);
    ZB_LISTEN(ViewItemShown);
    ZB_LISTEN(FreeFolderStyleChanged);
    ZB_LISTEN(FreeFolderCreated);
}

void SignalRecorder::ListenToCollectors() {
    ZB_LISTEN(CollectorAdded);
    ZB_LISTEN(CollectorRemoved);
    ZB_LISTEN(CollectorsChanged);
    ZB_LISTEN(CurrentCollectorChanged);
    ZB_LISTEN(GuiEntryAdded);
    ZB_LISTEN(GuiEntryRemoved);
    ZB_LISTEN(CurrentGuiEntryChanged);
    ZB_LISTEN(CollectorDeselected);
    ZB_LISTEN(CollectorDisabled);
    ZB_LISTEN(CollectorButtonState);
    ZB_LISTEN(CollectorButtonStateNotified);
    ZB_LISTEN(CollectorButtonShown);
    ZB_LISTEN(CollectorButtonMoved);
    ZB_LISTEN(CollectorButtonMoveNotified);
    ZB_LISTEN(CollectorTypeChanged);
    ZB_LISTEN(CollectorButtonVisibleChanged);
    ZB_LISTEN(CollectorButtonEnabledChanged);
    ZB_LISTEN(EmptyFoldersShown);
}

void SignalRecorder::ListenToData() {
    ZB_LISTEN_DATA(CollectorAddToPanel);
    ZB_LISTEN_DATA(CollectorPanelButton);
    ZB_LISTEN_DATA(CollectorDataItems);
    ZB_LISTEN_DATA(CollectorCurrentChanged);
    ZB_LISTEN_DATA(CollectorShowHide);
    ZB_LISTEN_DATA(CollectorToggle);
    ZB_LISTEN_DATA(CollectorIsolate);
    ZB_LISTEN_DATA(CollectorSwitched);
    ZB_LISTEN_DATA(CollectorSwitchedInView);
    ZB_LISTEN_DATA(CollectorStateOn);
    ZB_LISTEN_DATA(CollectorStateOff);
    ZB_LISTEN_DATA(CurrentGuiEntrySelected);
    ZB_LISTEN_DATA(CurrentCollectorSelected);
    ZB_LISTEN_DATA(DataItemsSelectionChanging);
    ZB_LISTEN_DATA(SelectionChangeFinished);
    ZB_LISTEN_DATA(DataItemsSelectionSummary);
    ZB_LISTEN_DATA(SelectionManagerChanged);
    ZB_LISTEN_DATA(DataItemsGrouped);
    ZB_LISTEN_DATA(PopupMenuShowing);
    ZB_LISTEN_DATA(SortChanging);
}

#undef ZB_LISTEN
#undef ZB_LISTEN_DATA

void SignalRecorder::CheckNames(std::set<std::string> const& signals) const {
    for (std::string const& signal : signals) {
        if (std::find(names_.begin(), names_.end(), signal) == names_.end()) {
            throw std::invalid_argument(signal + " is no signal");
        }
    }
}

void SignalRecorder::Append(char const* signal, std::vector<std::string> const& arguments) {
    if (ignored_.contains(signal)) {
        return;
    }
    std::string line = signal;
    for (std::string const& argument : arguments) {
        line.append(" ").append(argument);
    }
    lines_.push_back(std::move(line));
}

std::string SignalRecorder::Text(ZBBROWSER_TCLAPI_KEYWORD keyword) const {
    return std::to_string(static_cast<int>(keyword));
}

std::string SignalRecorder::Text(ZBBROWSER_COLSEL_TYPE type) const {
    return std::to_string(static_cast<int>(type));
}

std::string SignalRecorder::Text(char const* text) const {
    return text == nullptr ? "null" : '"' + std::string(text) + '"';
}

std::string SignalRecorder::Text(zbIBrowserView* view) const {
    return NameOf(view);
}

std::string SignalRecorder::Text(zbIBrowserViewItem* item) const {
    return NameOf(item, calls_);
}

std::string SignalRecorder::Text(zbIBrowserViewItemFreeFolder* folder) const {
    return NameOf(static_cast<zbIBrowserViewItem*>(folder), calls_);
}

std::string SignalRecorder::Text(zbIBrowserDataItem* item) const {
    if (item == nullptr || (calls_ != nullptr && calls_->Knows(item))) {
        return item == nullptr ? "null" : calls_->NameOf(item);
    }
    return NameOf(item);
}

std::string SignalRecorder::Text(zbIBrowserDataItemSimple* item) const {
    return Text(static_cast<zbIBrowserDataItem*>(item));
}

std::string SignalRecorder::Text(zbIBrowserDataItemHierarchical* item) const {
    return Text(static_cast<zbIBrowserDataItem*>(item));
}

std::string SignalRecorder::Text(zbIBrowserDataSource* source) const {
    return source == nullptr ? "null" : source->GetName();
}

std::string SignalRecorder::Text(zbIBrowserDataCtrl* control) const {
    return control == nullptr ? "null" : control->GetName();
}

std::string SignalRecorder::Text(zbIBrowserDataCollector* collector) const {
    return collector == nullptr ? "null" : collector->GetName();
}

std::string SignalRecorder::Text(zbIBrowserViewColumn* column) const {
    return column == nullptr ? "null" : column->GetName();
}

std::string SignalRecorder::Text(zbIBrowserStyle* style) const {
    return style == nullptr ? "null" : style->GetName();
}

std::string SignalRecorder::Text(zbIBrowserPopupMenu* menu) const {
    return menu == nullptr ? "null" : "menu";
}

std::string SignalRecorder::Text(zbIBrowserSelectionManager* manager) const {
    return manager == nullptr ? "null" : "selection";
}

std::string SignalRecorder::Text(zbBrowserDataItemMap const& map) const {
    std::vector<std::string> entries;
    for (auto const& [source, items] : map) {
        entries.push_back(Text(source) + ": " + Text(items));
    }
    std::sort(entries.begin(), entries.end()); // Not by address, as the map is.
    std::string text = "{";
    for (std::string const& entry : entries) {
        text.append(text.size() > 1 ? ", " : "").append(entry);
    }
    return text + "}";
}

} // namespace zbtest
