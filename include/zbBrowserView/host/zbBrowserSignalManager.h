// SPDX-License-Identifier: MIT
//! \file
//! zbBrowserSignalManager: the signals that tell a host what happens in its views.
#pragma once

#include <zbBrowserView/platform/zbExport.h>
#include <zbBrowserView/platform/zbSignal.h>
#include <zbBrowserView/zbBrowserEnums.h>

#include <vector>

class zbIBrowserStyle;
class zbIBrowserView;
class zbIBrowserViewColumn;
class zbIBrowserViewItem;
class zbIBrowserViewItemFreeFolder;

//! The signals that tell a host what happens in its views. The host owns the object and hands it
//! out with zbIBrowserManager::GetSignalManager; it listens by connecting slots to the members.
//!
//! Slots run inside the operation that raises the signal. A slot may call the library and may
//! delete views, folders and lists, also those at hand; it must not delete the controller. A signal
//! that is raised while it is being raised already is dropped: a slot of `ViewItemChanged` that
//! changes an item is not called for that. A slot that throws leaves its signal mute for good.
//!
//! Pointers are not null unless said otherwise, and are valid during the call: an item that is
//! reported as deleted can still be asked. Lists that are handed over by reference are copies made
//! for the call, except the host's own list in `ViewItemsSelected` and `ViewItemsDeselected` when
//! the host reports through zbBrowserViewCtrl. Texts are valid during the call.
class ZBBROWSERVIEW_API zbBrowserSignalManager {
    template <class... Args>
    using Signal = zbSignal<single_threaded, Args...>;

public:
    //! \name Items
    //!@{

    //! An item exists now and has its place.
    Signal<zbIBrowserViewItem*> ViewItemCreated;
    //! Children or state of the item changed; paint it anew.
    Signal<zbIBrowserViewItem*> ViewItemChanged;
    //! The item is about to go.
    Signal<zbIBrowserViewItem*> ViewItemDeleted;
    //! These items are about to go and have just been deselected.
    Signal<std::vector<zbIBrowserViewItem*>&> ViewItemListDeleted;
    //! Raised only for the host's own report to the controller; a selection that changes in a view
    //! raises `ViewItemsSelected`, also for a single item.
    Signal<zbIBrowserViewItem*> ViewItemSelected;
    Signal<std::vector<zbIBrowserViewItem*>&> ViewItemsSelected;
    //! As `ViewItemSelected`: see `ViewItemsDeselected`.
    Signal<zbIBrowserViewItem*> ViewItemDeselected;
    Signal<std::vector<zbIBrowserViewItem*>&> ViewItemsDeselected;
    //! (item, new parent): the item stands under its new parent now.
    Signal<zbIBrowserViewItem*, zbIBrowserViewItem*> ViewItemReparented;
    //! Raised for the host's own report to the controller, with the flag that it gave.
    Signal<zbIBrowserViewItem*, bool> ViewItemRedraw;
    //! (name of the view operation, first selected item): start editing in place.
    Signal<char const*, zbIBrowserViewItem*> EditDataItem;

    //!@}
    //! \name Styles, columns, view
    //!@{

    Signal<zbIBrowserStyle*> StyleCreated;
    Signal<zbIBrowserStyle*> StyleDeleted;
    //! Columns were shown or hidden.
    Signal<> ColumnsChanged;
    //! The selection is about to be cleared.
    Signal<zbIBrowserView*> SelectionClearing;
    //! The whole view must be painted anew.
    Signal<zbIBrowserView*> ViewChanged;
    Signal<zbIBrowserViewItem*> ViewItemExpanded;
    Signal<zbIBrowserViewItem*> ViewItemCollapsed;
    //! (old item, new item): the data item moved, and the new item now shows it.
    Signal<zbIBrowserViewItem*, zbIBrowserViewItem*> ViewItemReplaced;
    //! (top of the subtree, true): the whole subtree was expanded. Items in it are not signalled
    //! one by one.
    Signal<zbIBrowserViewItem*, bool> ViewItemExpandedAll;
    //! (top of the subtree, true): the whole subtree was collapsed.
    Signal<zbIBrowserViewItem*, bool> ViewItemCollapsedAll;
    //! Lists or the filter changed.
    Signal<zbIBrowserView*> ViewContentChanged;
    //! The sources that the filter offers changed.
    Signal<zbIBrowserView*> FilterListChanged;
    Signal<zbIBrowserViewColumn*> ColumnCreated;
    Signal<zbIBrowserViewColumn*> ColumnUpdated;
    Signal<zbIBrowserViewColumn*> ColumnDeleted;
    //! A scripted column was shown or hidden.
    Signal<zbIBrowserViewColumn*> ColumnShown;
    //! (column, sorted, ascending): the view is sorted by that column now, or not any more; the
    //! direction then is that of the column that takes its place, false if none does.
    Signal<zbIBrowserViewColumn*, bool, bool> ColumnSortChanged;
    //! (column, sorted, ascending): the same was asked for again. Old views only.
    Signal<zbIBrowserViewColumn*, bool, bool> ColumnSortRepeated;
    //! (column, whether it may be sorted by): the sorting or the italic flag changed.
    Signal<zbIBrowserViewColumn*, bool> ColumnStateChanged;
    Signal<zbIBrowserViewColumn*> ColumnCaptionChanged;
    //! The item is among what is shown again.
    Signal<zbIBrowserViewItem*> ViewItemShown;
    //! (folder, true): grouping or the showing of empty groups changed.
    Signal<zbIBrowserViewItemFreeFolder*, bool> FreeFolderStyleChanged;
    //! (parent): it has one more child folder.
    Signal<zbIBrowserViewItemFreeFolder*> FreeFolderCreated;

    //!@}
    //! \name Collectors
    //!@{

    //! (view, name, title, text, value, text when disabled, value when disabled)
    Signal<zbIBrowserView*, char const*, char const*, char const*, char const*, char const*,
           char const*>
        CollectorAdded;
    //! (view, name, title, 0-based index)
    Signal<zbIBrowserView*, char const*, char const*, int> CollectorRemoved;
    Signal<zbIBrowserView*> CollectorsChanged;
    //! (view, name of the collector, in new views of the type). Not `CollectorCurrentChanged` of
    //! zbBrowserDataSignalManager.
    Signal<zbIBrowserView*, char const*> CurrentCollectorChanged;
    //! (view, name, title, text, value, text when disabled, value when disabled)
    Signal<zbIBrowserView*, char const*, char const*, char const*, char const*, char const*,
           char const*>
        GuiEntryAdded;
    //! (view, name, 0-based index)
    Signal<zbIBrowserView*, char const*, int> GuiEntryRemoved;
    Signal<zbIBrowserView*, char const*> CurrentGuiEntryChanged;
    Signal<zbIBrowserView*> CollectorDeselected;
    Signal<zbIBrowserView*, bool> CollectorDisabled;
    Signal<zbIBrowserView*, ZBBROWSER_TCLAPI_KEYWORD, bool> CollectorButtonState;
    Signal<zbIBrowserView*, ZBBROWSER_TCLAPI_KEYWORD, bool> CollectorButtonStateNotified;
    Signal<zbIBrowserView*, ZBBROWSER_TCLAPI_KEYWORD, bool> CollectorButtonShown;
    //! (view, button, x, y)
    Signal<zbIBrowserView*, ZBBROWSER_TCLAPI_KEYWORD, int, int> CollectorButtonMoved;
    //! (view, button, x, y)
    Signal<zbIBrowserView*, ZBBROWSER_TCLAPI_KEYWORD, int, int> CollectorButtonMoveNotified;
    //! New views only, as the next two.
    Signal<zbIBrowserView*, ZBBROWSER_COLSEL_TYPE> CollectorTypeChanged;
    Signal<zbIBrowserView*, ZBBROWSER_COLSEL_TYPE> CollectorButtonVisibleChanged;
    Signal<zbIBrowserView*, ZBBROWSER_COLSEL_TYPE> CollectorButtonEnabledChanged;

    //!@}

    //! Whether the view shows empty folders changed.
    Signal<zbIBrowserView*, bool> EmptyFoldersShown;
};
