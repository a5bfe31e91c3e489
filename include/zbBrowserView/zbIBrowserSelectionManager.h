// SPDX-License-Identifier: MIT
//! \file
//! zbIBrowserSelectionManager: which items of a view are selected.
#pragma once

#include <zbBrowserView/host/zbIBrowserDataSource.h>
#include <zbBrowserView/platform/zbBrowserErrorReporter.h>
#include <zbBrowserView/platform/zbExport.h>
#include <zbBrowserView/platform/zbString.h>

#include <set>
#include <vector>

class zbIBrowserDataItemHierarchical;
class zbIBrowserDataItemSimple;
class zbIBrowserDataSourceHierarchical;
class zbIBrowserDataSourceSimple;
class zbIBrowserSelectionNotifierBase;
class zbIBrowserViewItem;
class zbIBrowserViewItemFreeFolder;
class zbIBrowserViewProperty;

//! The selection of one view: which items are selected, what the last change touched, and over what
//! something is being dragged. Each view has one; see zbIBrowserView::GetSelectionManager.
//!
//! The selection is a set: it comes out in the order of the items' addresses, never in the order in
//! which they were selected. An item that leaves the view is forgotten here without a word; it is
//! deselected aloud first only where a list of rows goes (`ViewItemListDeleted`). Items that are
//! null or not of this view are passed over wherever items are taken.
//!
//! What one generation does not offer is answered with false or null, or does nothing, and leaves
//! its outputs untouched; it is marked here ("New:", "Old:"). Outputs of what is offered are
//! cleared first. `recursive` means: with what stands below the item, also where a folder that was
//! never opened has not made its rows yet.
//!
//! Ownership: the controller's. The pointer stays valid when the view goes, until the controller
//! goes; without its view a manager is empty, tells nobody, and what asks the view answers false.
//! That holds as soon as the view has been deleted, also in a slot of one of its operations.
//!
//! Cost: selecting or deselecting an item O(log rows), since a row is recognised first; asking for
//! one O(1); listing n selected items O(n) and a sort of the 64 KiB blocks of memory in which they
//! lie. Old: a change also lists the data of all that is selected if anybody listens to
//! `DataItemsGrouped` or `DataItemsSelectionSummary`, so select many items in one call.
class ZBBROWSERVIEW_API zbIBrowserSelectionManager : public zbBrowserErrorReporter {
public:
    //! \name Changing the selection
    //! @{

    //! Selects or deselects `items`; with `clear` all that is selected is deselected before. To
    //! select one item alone: `UpdateSelection({item}, true, true)`; none:
    //! `UpdateSelection({}, false, true)`.
    //!
    //! Selected are a and b:
    //!
    //!     UpdateSelection({b, c}, true, false)     // a b c; told: [b c] selected
    //!     UpdateSelection({c}, true, true)         // c; told: [a b c] deselected, [c] selected
    //!
    //! With `clear`, also if nothing is selected: `SelectionClearing(view)`; the notifiers' \ref
    //! zbIBrowserSelectionNotifierBase::OnSelectionChanged with all that is selected and false;
    //! Old: `DataItemsSelectionChanging(dataCtrl, flat items, tree items, false)` if there are any.
    //! The set is empty then. Old, if `items` is empty or none of them is (still) of the view:
    //! `SelectionManagerChanged(dataCtrl, manager)`. No `ViewItemsDeselected` is raised for what
    //! was cleared.
    //!
    //! With `items`: Old: `DataItemsSelectionChanging(dataCtrl, flat items, tree items, select)` if
    //! there are any. The set changes. Each notifier's `OnSelectionChanged(items, select)` and
    //! `OnSelectionFinished()`. `ViewItemsSelected(items)` or `ViewItemsDeselected(items)`, with
    //! all of `items`, those included that were selected, or not, before. Old:
    //! `DataItemsGrouped(dataCtrl, by source, flat items, tree items)` if the view has a data
    //! control, then `DataItemsSelectionSummary(dataCtrl, flat items, tree items, manager)`, both
    //! with the whole selection: the rows of selected groups by source, selected flat rows,
    //! selected tree rows. The summary has the rows of groups among the flat items, or if a folder
    //! is selected, the tree items in folders among the tree items instead.
    //!
    //! A call that makes no difference: New: ends there, silently, and GetChangedViewItems answers
    //! as before. Old: the notifiers are told without `OnSelectionFinished`, and of the signals
    //! only `ViewItemsSelected` or `ViewItemsDeselected` is raised.
    //!
    //! Notifiers and slots may call back. Items that leave the view meanwhile are not selected;
    //! those that leave while the clearing is told are not told as selected either. Once the view
    //! has gone nobody hears more.
    //! Failure: what a notifier or slot throws passes on. Before the set changes, the selection
    //! stays; afterwards the change stands, and what would have been told is left out.
    virtual void UpdateSelection(std::vector<zbIBrowserViewItem*> const& items, bool select,
                                 bool clear) = 0;

    //! Announces the selection as it stands.
    //! Signals: `ViewItemsSelected` with all selected items, also if there are none.
    virtual void UpdatePreviousSelection() = 0;

    //! Empties the selection without a word. New: and forgets the last change.
    //! See ClearSelected, which forgets the drop item instead.
    virtual void ClearAll() = 0;

    //! Passes the flag on to each notifier's `OnPopupSelection`.
    virtual void OnPopupSelection(bool flag) = 0;

    //! Says that a series of changes is over.
    //! Signals: Old: `SelectionChangeFinished(dataCtrl)`; both:
    //! `SelectionManagerChanged(dataCtrl, manager)`.
    virtual void OnSelectionChangeFinished() = 0;
    //! @}

    //! \name What is selected
    //! @{

    //! True if there is any.
    virtual bool GetSelectedViewItems(std::vector<zbIBrowserViewItem*>& out) = 0;

    //! New: the items that were given with the last change that made a difference; true if there is
    //! any. Old: false.
    virtual bool GetChangedViewItems(std::vector<zbIBrowserViewItem*>& out) = 0;
    //! @}

    //! \name The data of what is selected
    //! New: false. The rows of a selected folder count as selected.
    //! @{

    //! Each selected item in one of three places: the rows of groups by the source of the group,
    //! flat rows, tree rows. Folders are left out. False: without a view.
    virtual bool GetSelectedDataItems(zbBrowserDataItemMap& bySource,
                                      std::vector<zbIBrowserDataItemSimple*>& simple,
                                      std::vector<zbIBrowserDataItemHierarchical*>& hierarchical,
                                      bool recursive) = 0;

    //! Tree items. True also if there are none. A vector has each item as often as it is found.
    virtual bool GetSelectedDataItems(std::set<zbIBrowserDataItemHierarchical*>& out,
                                      bool recursive) = 0;
    virtual bool GetSelectedDataItems(std::vector<zbIBrowserDataItemHierarchical*>& out,
                                      bool recursive) = 0;

    //! Flat items, of rows of flat sources only. True if there is any.
    virtual bool GetSelectedDataItems(std::set<zbIBrowserDataItemSimple*>& out, bool recursive) = 0;
    virtual bool GetSelectedDataItems(std::vector<zbIBrowserDataItemSimple*>& out,
                                      bool recursive) = 0;

    //! The same four, without the items of other sources. A flat item counts for the source that it
    //! had when its row was made. Null: the items that have none.
    virtual bool GetSelectedDataItemsOfSource(zbIBrowserDataSourceHierarchical* source,
                                              std::set<zbIBrowserDataItemHierarchical*>& out,
                                              bool recursive) = 0;
    virtual bool GetSelectedDataItemsOfSource(zbIBrowserDataSourceHierarchical* source,
                                              std::vector<zbIBrowserDataItemHierarchical*>& out,
                                              bool recursive) = 0;
    virtual bool GetSelectedDataItemsOfSource(zbIBrowserDataSourceSimple* source,
                                              std::set<zbIBrowserDataItemSimple*>& out,
                                              bool recursive) = 0;
    virtual bool GetSelectedDataItemsOfSource(zbIBrowserDataSourceSimple* source,
                                              std::vector<zbIBrowserDataItemSimple*>& out,
                                              bool recursive) = 0;
    //! @}

    //! \name The sources of what is selected
    //! A row stands for its source, a folder for what it shows itself, whatever is below it.
    //! `ancestors`: adds the sources of the rows and groups above a row. True if there is any.
    //! @{

    //! Flat sources. New: false.
    virtual bool GetSelectedDataSources(std::set<zbIBrowserDataSourceSimple*>& out,
                                        bool ancestors) = 0;
    //! Trees. New: false.
    virtual bool
    GetSelectedDataSourcesHierarchical(std::set<zbIBrowserDataSourceHierarchical*>& out,
                                       bool ancestors) = 0;
    //! Old: false.
    virtual bool GetSelectedDataSources(std::set<zbIBrowserDataSource*>& out, bool ancestors) = 0;
    //! @}

    //! \name The values of what is selected
    //! One text of the values that are not empty, with a blank between two. True if the text is not
    //! empty.
    //! @{

    //! New: the values of a property for all selected data items, folders' rows included, in the
    //! order of the items' addresses. Items without a data property for their source are passed
    //! over. The data control is told `SetCurrentDataItem` before each value is read; a value shows
    //! as ToText of zbVariant.h says. Without a data control there is no text. Items whose rows go
    //! meanwhile, and connections that end, are passed over, here and in the other forms.
    //! Null: false, and `out` is empty. Old: false.
    virtual bool GetSelectedPropertyText(zbIBrowserViewProperty* property, zbString& out) = 0;

    //! New: the same for the items of one source. False, and `out` untouched: the property is null
    //! or has no data property for the source, as null has none. Old: false.
    virtual bool GetSelectedPropertyTextOfSource(zbIBrowserDataSource* source,
                                                 zbIBrowserViewProperty* property,
                                                 zbString& out) = 0;

    //! Old: the same from `GetString` of the data properties, for flat items and for tree items
    //! whose flat face is of that source. `list`: a value with a blank in it stands in braces,
    //! "{left handed}". False, and `out` untouched: one of the properties is null or has no data
    //! property for the source, as null has none. New: false.
    virtual bool GetSelectedPropertyTextOfSource(zbIBrowserDataSourceSimple* source,
                                                 zbIBrowserViewProperty* ofSimple,
                                                 zbIBrowserViewProperty* ofHierarchical,
                                                 zbString& out, bool list) = 0;

    //! Old: the same for the items of a tree; the data property is that for the type of each item.
    //! False, and `out` untouched: the tree or one of the properties is null, or one of them has no
    //! data property for the tree's own type. New: false.
    virtual bool GetSelectedPropertyTextOfSource(zbIBrowserDataSourceHierarchical* source,
                                                 zbIBrowserViewProperty* ofSimple,
                                                 zbIBrowserViewProperty* ofHierarchical,
                                                 zbString& out, bool list) = 0;
    //! @}

    //! \name Folders and groups among what is selected
    //! @{

    //! True if there is any. The next one, its twin, answers true also if there is none.
    virtual bool GetSelectedFreeFolders(std::set<zbIBrowserViewItemFreeFolder*>& out) = 0;
    virtual bool GetSelectedFreeFolders(std::vector<zbIBrowserViewItemFreeFolder*>& out) = 0;

    //! Old: the groups, true also if there is none. New: false.
    virtual bool GetSelectedDependentFolders(std::vector<zbIBrowserViewItem*>& out) = 0;
    //! @}

    //! \name The item under a drag
    //! @{

    //! Old: the data item of the flat row that was dragged over last; ResetDropItem and SetDropItem
    //! of something else leave it. Null once that row has gone and after ClearSelected. New: null.
    virtual zbIBrowserDataItemSimple* GetDropDataItemSimple() const = 0;
    //! Old: null unless it is a row of a tree. New: null.
    virtual zbIBrowserDataItemHierarchical* GetDropDataItemHierarchical() const = 0;
    //! Old: the tree of a tree row; the attached object of a folder, which then must be a
    //! zbIBrowserDataSource, or without one its first tree; null for a flat row and once the
    //! view has disconnected that source. New: null.
    virtual zbIBrowserDataSource* GetDropDataSource() const = 0;
    virtual bool IsDropOnFreeFolder() const = 0;

    //! Notes down the item over which something is being dragged.
    //! Null: none.
    virtual void SetDropItem(zbIBrowserViewItem* item) = 0;
    //! New: null without one. Old: null.
    virtual zbIBrowserViewItem* GetDropItem() const = 0;
    virtual void ResetDropItem() = 0;
    //! @}

    //! The pointer is compared, not followed. False for an item that has gone.
    virtual bool IsViewItemSelected(zbIBrowserViewItem* item) = 0;

    //! While false, the view does not select what data events name (`OnDataItemsSelected`,
    //! `OnDataItemsDeselected`). Each UpdateSelection with items that gets as far as the notifiers
    //! sets it to true before they are told. Old: a notifier that sets it to false keeps
    //! `ViewItemsSelected` or `ViewItemsDeselected` of this one call from being raised; then it is
    //! true again, also if a notifier or slot throws. True at first.
    virtual void SetSyncFlag(bool sync) = 0;
    virtual bool GetSyncFlag() const = 0;

    //! Empties the selection and forgets the drop item, without a word. See ClearAll.
    virtual void ClearSelected() = 0;

    //! \name Notifiers
    //! Ownership: not taken; a notifier is removed before it goes. Null is ignored, and so is one
    //! that is there, or not there, already. They are told in the order of their addresses, and
    //! those that come or go meanwhile are told, or not told, from then on.
    //! @{
    virtual void AddNotifier(zbIBrowserSelectionNotifierBase* notifier) = 0;
    virtual void RemoveNotifier(zbIBrowserSelectionNotifierBase* notifier) = 0;
    virtual void ClearNotifiers() = 0;
    //! @}

    //! New: `select` of the last UpdateSelection, whether it made a difference or not. Old: false.
    virtual bool GetLastSelect() const = 0;

    //! Old: the view's name; false and empty without a view. New: false and empty.
    virtual bool GetViewName(zbString& out) const = 0;
};
