// SPDX-License-Identifier: MIT
//! \file
//! Order and arguments of the signals. Slots are connected by the host to members of an object that
//! the host makes, so the layout is part of what both sides agree on.

#include <zbBrowserView/host/zbBrowserDataSignalManager.h>
#include <zbBrowserView/host/zbBrowserSignalManager.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace {

//! Where a signal stands in its manager, with its name.
using Places = std::vector<std::pair<std::string, std::size_t>>;

template <class Signal, class Manager>
std::pair<std::string, std::size_t> Place(char const* name, Manager const& manager,
                                          Signal Manager::*signal) {
    auto const* const begin = reinterpret_cast<char const*>(&manager);
    auto const* const member = reinterpret_cast<char const*>(&(manager.*signal));
    return {name, static_cast<std::size_t>(member - begin)};
}

//! The same signals, one directly after the other.
Places WithoutGaps(Places places) {
    std::size_t next = 0;
    for (auto& [name, place] : places) {
        place = next;
        next += sizeof(zbSignal<single_threaded>);
    }
    return places;
}

//! A signal with its place; does not compile unless it has exactly these arguments.
#define ZB_SIGNAL(Manager, signal, ...)                                                            \
    Place<zbSignal<single_threaded __VA_OPT__(, ) __VA_ARGS__>>(#signal, manager, &Manager::signal)

using View = zbIBrowserView*;
using Item = zbIBrowserViewItem*;
using Items = std::vector<zbIBrowserViewItem*>&;
using Folder = zbIBrowserViewItemFreeFolder*;
using Column = zbIBrowserViewColumn*;
using Style = zbIBrowserStyle*;
using Text = char const*;
using Keyword = ZBBROWSER_TCLAPI_KEYWORD;
using Type = ZBBROWSER_COLSEL_TYPE;

using Control = zbIBrowserDataCtrl*;
using Collector = zbIBrowserDataCollector*;
using DataItems = std::vector<zbIBrowserDataItem*>&;
using Simple = std::vector<zbIBrowserDataItemSimple*>&;
using Hierarchical = std::vector<zbIBrowserDataItemHierarchical*>&;
using Map = std::map<zbIBrowserDataSource*, std::vector<zbIBrowserDataItem*>>&;
using Selection = zbIBrowserSelectionManager*;

TEST(SignalManagerOrder, TheSignalsOfViewsStandInTheirOrderWithTheirArguments) {
    zbBrowserSignalManager const manager;
#define ZB_VIEW_SIGNAL(...) ZB_SIGNAL(zbBrowserSignalManager, __VA_ARGS__)
    Places const places{
        ZB_VIEW_SIGNAL(ViewItemCreated, Item),
        ZB_VIEW_SIGNAL(ViewItemChanged, Item),
        ZB_VIEW_SIGNAL(ViewItemDeleted, Item),
        ZB_VIEW_SIGNAL(ViewItemListDeleted, Items),
        ZB_VIEW_SIGNAL(ViewItemSelected, Item),
        ZB_VIEW_SIGNAL(ViewItemsSelected, Items),
        ZB_VIEW_SIGNAL(ViewItemDeselected, Item),
        ZB_VIEW_SIGNAL(ViewItemsDeselected, Items),
        ZB_VIEW_SIGNAL(ViewItemReparented, Item, Item),
        ZB_VIEW_SIGNAL(ViewItemRedraw, Item, bool),
        ZB_VIEW_SIGNAL(EditDataItem, Text, Item),
        ZB_VIEW_SIGNAL(StyleCreated, Style),
        ZB_VIEW_SIGNAL(StyleDeleted, Style),
        ZB_VIEW_SIGNAL(ColumnsChanged),
        ZB_VIEW_SIGNAL(SelectionClearing, View),
        ZB_VIEW_SIGNAL(ViewChanged, View),
        ZB_VIEW_SIGNAL(ViewItemExpanded, Item),
        ZB_VIEW_SIGNAL(ViewItemCollapsed, Item),
        ZB_VIEW_SIGNAL(ViewItemReplaced, Item, Item),
        ZB_VIEW_SIGNAL(ViewItemExpandedAll, Item, bool),
        ZB_VIEW_SIGNAL(ViewItemCollapsedAll, Item, bool),
        ZB_VIEW_SIGNAL(ViewContentChanged, View),
        ZB_VIEW_SIGNAL(FilterListChanged, View),
        ZB_VIEW_SIGNAL(ColumnCreated, Column),
        ZB_VIEW_SIGNAL(ColumnUpdated, Column),
        ZB_VIEW_SIGNAL(ColumnDeleted, Column),
        ZB_VIEW_SIGNAL(ColumnShown, Column),
        ZB_VIEW_SIGNAL(ColumnSortChanged, Column, bool, bool),
        ZB_VIEW_SIGNAL(ColumnSortRepeated, Column, bool, bool),
        ZB_VIEW_SIGNAL(ColumnStateChanged, Column, bool),
        ZB_VIEW_SIGNAL(ColumnCaptionChanged, Column),
        ZB_VIEW_SIGNAL(ViewItemShown, Item),
        ZB_VIEW_SIGNAL(FreeFolderStyleChanged, Folder, bool),
        ZB_VIEW_SIGNAL(FreeFolderCreated, Folder),
        ZB_VIEW_SIGNAL(CollectorAdded, View, Text, Text, Text, Text, Text, Text),
        ZB_VIEW_SIGNAL(CollectorRemoved, View, Text, Text, int),
        ZB_VIEW_SIGNAL(CollectorsChanged, View),
        ZB_VIEW_SIGNAL(CurrentCollectorChanged, View, Text),
        ZB_VIEW_SIGNAL(GuiEntryAdded, View, Text, Text, Text, Text, Text, Text),
        ZB_VIEW_SIGNAL(GuiEntryRemoved, View, Text, int),
        ZB_VIEW_SIGNAL(CurrentGuiEntryChanged, View, Text),
        ZB_VIEW_SIGNAL(CollectorDeselected, View),
        ZB_VIEW_SIGNAL(CollectorDisabled, View, bool),
        ZB_VIEW_SIGNAL(CollectorButtonState, View, Keyword, bool),
        ZB_VIEW_SIGNAL(CollectorButtonStateNotified, View, Keyword, bool),
        ZB_VIEW_SIGNAL(CollectorButtonShown, View, Keyword, bool),
        ZB_VIEW_SIGNAL(CollectorButtonMoved, View, Keyword, int, int),
        ZB_VIEW_SIGNAL(CollectorButtonMoveNotified, View, Keyword, int, int),
        ZB_VIEW_SIGNAL(CollectorTypeChanged, View, Type),
        ZB_VIEW_SIGNAL(CollectorButtonVisibleChanged, View, Type),
        ZB_VIEW_SIGNAL(CollectorButtonEnabledChanged, View, Type),
        ZB_VIEW_SIGNAL(EmptyFoldersShown, View, bool),
    };
#undef ZB_VIEW_SIGNAL
    EXPECT_EQ(places, WithoutGaps(places));
    EXPECT_EQ(sizeof manager, places.size() * sizeof(zbSignal<single_threaded>));
}

TEST(SignalManagerOrder, TheSignalsOfDataStandInTheirOrderWithTheirArguments) {
    zbBrowserDataSignalManager const manager;
#define ZB_DATA_SIGNAL(...) ZB_SIGNAL(zbBrowserDataSignalManager, __VA_ARGS__)
    Places const places{
        ZB_DATA_SIGNAL(CollectorAddToPanel, Control, Collector),
        ZB_DATA_SIGNAL(CollectorPanelButton, Control, Collector, bool),
        ZB_DATA_SIGNAL(CollectorDataItems, Control, DataItems, bool),
        ZB_DATA_SIGNAL(CollectorCurrentChanged, Control, Collector),
        ZB_DATA_SIGNAL(CollectorShowHide, Control, Collector, bool),
        ZB_DATA_SIGNAL(CollectorToggle, Control, Collector, bool),
        ZB_DATA_SIGNAL(CollectorIsolate, Control, Collector, bool, bool),
        ZB_DATA_SIGNAL(CollectorSwitched, Control, Collector, bool, bool, bool),
        ZB_DATA_SIGNAL(CollectorSwitchedInView, Control, View, bool, bool, bool),
        ZB_DATA_SIGNAL(CollectorStateOn, Control),
        ZB_DATA_SIGNAL(CollectorStateOff),
        ZB_DATA_SIGNAL(CurrentGuiEntrySelected, Control, Text),
        ZB_DATA_SIGNAL(CurrentCollectorSelected, Control, Text),
        ZB_DATA_SIGNAL(DataItemsSelectionChanging, Control, Simple, Hierarchical, bool),
        ZB_DATA_SIGNAL(SelectionChangeFinished, Control),
        ZB_DATA_SIGNAL(DataItemsSelectionSummary, Control, Simple, Hierarchical, Selection),
        ZB_DATA_SIGNAL(SelectionManagerChanged, Control, Selection),
        ZB_DATA_SIGNAL(DataItemsGrouped, Control, Map, Simple, Hierarchical),
        ZB_DATA_SIGNAL(PopupMenuShowing, Control, zbIBrowserPopupMenu*, Map, Simple, Hierarchical),
        ZB_DATA_SIGNAL(SortChanging, bool),
    };
#undef ZB_DATA_SIGNAL
    EXPECT_EQ(places, WithoutGaps(places));
    EXPECT_EQ(sizeof manager, places.size() * sizeof(zbSignal<single_threaded>));
}

} // namespace
