// SPDX-License-Identifier: MIT
//! \file
//! zbBrowserDataSignalManager: the signals that tell a host what views ask of its data.
#pragma once

#include <zbBrowserView/host/zbIBrowserDataSource.h>
#include <zbBrowserView/platform/zbExport.h>
#include <zbBrowserView/platform/zbSignal.h>

#include <vector>

class zbIBrowserDataCollector;
class zbIBrowserDataCtrl;
class zbIBrowserDataItem;
class zbIBrowserDataItemHierarchical;
class zbIBrowserDataItemSimple;
class zbIBrowserPopupMenu;
class zbIBrowserSelectionManager;
class zbIBrowserView;

//! The signals that are tied to a data control: selection and collectors as the data side sees
//! them. The host owns the object and hands it out with zbIBrowserManager::GetDataSignalManager.
//!
//! The first argument is the data control of the view, except where there is no argument for it; it
//! is null if the view has none, and the signal is raised all the same. What zbBrowserSignalManager
//! says about slots, pointers and lists holds here too.
class ZBBROWSERVIEW_API zbBrowserDataSignalManager {
    template <class... Args>
    using Signal = zbSignal<single_threaded, Args...>;

public:
    //! \name Collectors of old views
    //! The collector is the current one of the view.
    //!@{

    //! Add what is gathered to the panel's collector.
    Signal<zbIBrowserDataCtrl*, zbIBrowserDataCollector*> CollectorAddToPanel;
    //! (control, collector, state of button 121)
    Signal<zbIBrowserDataCtrl*, zbIBrowserDataCollector*, bool> CollectorPanelButton;
    //! (control, items, whether they were selected or deselected)
    Signal<zbIBrowserDataCtrl*, std::vector<zbIBrowserDataItem*>&, bool> CollectorDataItems;
    //! Not `CurrentCollectorChanged` of zbBrowserSignalManager.
    Signal<zbIBrowserDataCtrl*, zbIBrowserDataCollector*> CollectorCurrentChanged;
    //! (control, collector, show): show or hide what is gathered.
    Signal<zbIBrowserDataCtrl*, zbIBrowserDataCollector*, bool> CollectorShowHide;
    //! (control, collector, toggle flag)
    Signal<zbIBrowserDataCtrl*, zbIBrowserDataCollector*, bool> CollectorToggle;
    //! (control, collector, flag of the collector, toggle flag)
    Signal<zbIBrowserDataCtrl*, zbIBrowserDataCollector*, bool, bool> CollectorIsolate;
    //! (control, collector, on, a, b); a and b are true, true in mode "toggle", true, false in
    //! mode "isolate" and false, false in the others.
    Signal<zbIBrowserDataCtrl*, zbIBrowserDataCollector*, bool, bool, bool> CollectorSwitched;
    //! (control, view, on, a, b): follows `CollectorSwitched`, with the same three.
    Signal<zbIBrowserDataCtrl*, zbIBrowserView*, bool, bool, bool> CollectorSwitchedInView;
    Signal<zbIBrowserDataCtrl*> CollectorStateOn;
    //! Without the control, unlike its twin.
    Signal<> CollectorStateOff;
    Signal<zbIBrowserDataCtrl*, char const*> CurrentGuiEntrySelected;
    Signal<zbIBrowserDataCtrl*, char const*> CurrentCollectorSelected;

    //!@}
    //! \name Selection
    //!@{

    //! (control, flat items, tree items, selected): about to be selected or deselected in an old
    //! view.
    Signal<zbIBrowserDataCtrl*, std::vector<zbIBrowserDataItemSimple*>&,
           std::vector<zbIBrowserDataItemHierarchical*>&, bool>
        DataItemsSelectionChanging;
    //! Old views only.
    Signal<zbIBrowserDataCtrl*> SelectionChangeFinished;
    //! (control, flat items, tree items, selection manager): all that is selected, after a change
    //! in an old view.
    Signal<zbIBrowserDataCtrl*, std::vector<zbIBrowserDataItemSimple*>&,
           std::vector<zbIBrowserDataItemHierarchical*>&, zbIBrowserSelectionManager*>
        DataItemsSelectionSummary;
    Signal<zbIBrowserDataCtrl*, zbIBrowserSelectionManager*> SelectionManagerChanged;
    //! (control, items by source, flat items, tree items): all that is selected, grouped, before
    //! `DataItemsSelectionSummary`.
    Signal<zbIBrowserDataCtrl*, zbBrowserDataItemMap&, std::vector<zbIBrowserDataItemSimple*>&,
           std::vector<zbIBrowserDataItemHierarchical*>&>
        DataItemsGrouped;

    //!@}

    //! (control, menu, items by source, flat items, tree items): a popup menu of an old view is
    //! about to show, and the slot fills it.
    Signal<zbIBrowserDataCtrl*, zbIBrowserPopupMenu*, zbBrowserDataItemMap&,
           std::vector<zbIBrowserDataItemSimple*>&, std::vector<zbIBrowserDataItemHierarchical*>&>
        PopupMenuShowing;

    //! An old view is being sorted by a column or in the other direction: true before, false after.
    //! No false comes if a slot deletes the column or the view meanwhile. Without the control.
    Signal<bool> SortChanging;
};
