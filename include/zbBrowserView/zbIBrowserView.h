// SPDX-License-Identifier: MIT
//! \file
//! zbIBrowserView: what a view of either generation offers.
//!
//! Longer than other headers, since it is one interface: hosts depend on the order of its
//! operations.
#pragma once

#include <zbBrowserView/platform/zbExport.h>
#include <zbBrowserView/platform/zbString.h>
#include <zbBrowserView/zbBrowserEnums.h>

#include <set>
#include <vector>

class zbIBrowserCollector;
class zbIBrowserDataCtrl;
class zbIBrowserDataReference;
class zbIBrowserDataSource;
class zbIBrowserDataSourceHierarchical;
class zbIBrowserDataSourceSimple;
class zbIBrowserInfo;
class zbIBrowserPopupMenu;
class zbIBrowserSelectionManager;
class zbIBrowserStyle;
class zbIBrowserStyleElement;
class zbIBrowserViewColumn;
class zbIBrowserViewCtrl;
class zbIBrowserViewItem;
class zbIBrowserViewItemFreeFolder;
class zbIBrowserViewOperation;
class zbIBrowserViewProperty;

//! A view of either generation. `IsNewView` tells which one it is.
//!
//! An old view (`zbBrowserView`) follows the data through events and raises a signal for each
//! change. A new view (`zbbrowser::View`) is rebuilt in batches and hands out its changes as flags
//! on its items. What one generation does not offer is answered with false or null, or does
//! nothing; each such answer is marked here ("New:", "Old:") and can be relied upon.
//!
//! Ownership: views belong to their controller. A view pointer is valid until the view is deleted
//! through the controller or its manager. Pointers that a view hands out to its own objects (items,
//! columns, properties, menus, managers) belong to the view; pointers to data belong to the host.
//! `out` vectors and sets are cleared before they are filled, unless an operation answers false at
//! once because a generation does not offer it: then they stay untouched.
//!
//! Null and foreign arguments: an operation that returns bool or a pointer answers false or null
//! where its text says so. Otherwise a null pointer throws the zbString "Null pointer hit", an
//! item, folder or column of another view the zbString "Attempt to operate on object belonging to
//! different manager", and an item that is no free folder where one is wanted the `char const*`
//! "Another type of view item where free folder is expected".
//!
//! Names of views, columns, sources, folders and operations are compared regardless of case, those
//! of data controls, properties and popup menus exactly.
class ZBBROWSERVIEW_API zbIBrowserView {
public:
    //! \name Sources of an old view
    //! A new view answers false or null and connects nothing; see Connect.
    //! @{

    //! Gives the connected flat sources in order of connection.
    virtual bool GetDataSourceSimpleList(std::vector<zbIBrowserDataSourceSimple*>& out) const = 0;

    //! `source` itself if it is connected, otherwise null. It is compared, not followed.
    virtual zbIBrowserDataSourceSimple*
    GetDataSourceSimple(zbIBrowserDataSourceSimple const* source) const = 0;

    //! The first connected flat source of that name. Null: when there is none.
    virtual zbIBrowserDataSourceSimple* GetDataSourceSimple(char const* name) const = 0;

    //! The flat source of that name in the connected trees, as the first of them that knows it
    //! says. Null: when none does.
    virtual zbIBrowserDataSourceSimple*
    GetDataSourceSimpleFromHierarchical(char const* name) const = 0;

    //! Connects a tree. Answers true always: also when nothing is connected because the view has no
    //! data control, or because the control does not know the source's name.
    //! The tree is told nothing, unlike a flat source.
    virtual bool DataSourceConnect(zbIBrowserDataSourceHierarchical* source) = 0;

    //! Connects a flat source, as above, and calls its `OnConnected`.
    virtual bool DataSourceConnect(zbIBrowserDataSourceSimple* source) = 0;

    //! Disconnects all sources and calls `OnDisconnected` on each; true.
    //! `removeContent`: takes their lists and trees out of all folders first. Otherwise the folders
    //! keep their items, and the data items must stay alive.
    virtual bool DataSourceDisconnectAll(bool removeContent) = 0;

    //! Disconnects the flat source of that name, or if there is none the tree of that name, takes
    //! it out of all folders and calls its `OnDisconnected`. False: when there is neither.
    virtual bool DataSourceDisconnect(char const* name) = 0;
    //! @}

    //! Makes a view operation, unless there is one of that name; true in both cases.
    virtual bool CreateViewOperation(char const* name) = 0;

    //! Gives the connected trees in order of connection. New: false.
    virtual bool
    GetDataSourceHierarchicalList(std::vector<zbIBrowserDataSourceHierarchical*>& out) const = 0;

    //! `source` itself if it is connected, otherwise null. New: null.
    virtual zbIBrowserDataSourceHierarchical*
    GetDataSourceHierarchical(zbIBrowserDataSourceHierarchical const* source) const = 0;

    //! The first connected tree of that name. Null: when there is none. New: null.
    virtual zbIBrowserDataSourceHierarchical* GetDataSourceHierarchical(char const* name) const = 0;

    //! \name The view and its data control
    //! @{

    //! The name given at creation, unique among all views of the controller regardless of case.
    virtual zbString const& GetName() const = 0;

    //! The controller's version record.
    virtual zbIBrowserInfo* GetBrowserInfo() const = 0;

    virtual zbIBrowserViewCtrl* GetViewCtrl() const = 0;

    //! May be null.
    virtual zbIBrowserCollector* GetCollectorHandler() const = 0;

    //! Sets the data control.
    //! Null: disconnects all sources with their content, see DataSourceDisconnectAll. Exchanging
    //! one control for another disconnects nothing. New: the control is stored, and that is all.
    virtual void SetDataCtrl(zbIBrowserDataCtrl* const ctrl) = 0;

    //! Null: until one is set.
    virtual zbIBrowserDataCtrl* GetDataCtrl() const = 0;
    //! @}

    //! \name Folders and styles
    //! @{

    //! Gives the free folders among `items`. False at the first item of another view, with what was
    //! found before it in `out`.
    virtual bool
    GetFreeFoldersFromViewItems(std::vector<zbIBrowserViewItem*> const& items,
                                std::vector<zbIBrowserViewItemFreeFolder*>& out) const = 0;

    //! The folder at the top of the view.
    virtual zbIBrowserViewItemFreeFolder* GetRootFreeFolder() const = 0;

    //! Gives "/" for the root, "/a/b" for folder b in folder a. Null: false.
    virtual bool GetFreeFolderAbsolutePathName(zbIBrowserViewItemFreeFolder const* folder,
                                               zbString& out) const = 0;

    //! The style that a column uses for an item, see zbIBrowserStyleManager. Null: for a null item,
    //! a column that is null or not of this view, and when there is no style.
    //! Signals: `StyleCreated(style)` while the style is pending, at each call.
    virtual zbIBrowserStyle* GetViewItemStyle(zbIBrowserViewColumn* const column,
                                              zbIBrowserViewItem* const item) const = 0;

    //! Gives a free folder the current style of the default column, see
    //! zbIBrowserStyleManager::AddFolderStyle. False: for an item that is null or of another view,
    //! and without a default column. True for any other, also if the item is no folder or there is
    //! no style to give.
    virtual bool SetViewItemStyle(zbIBrowserViewItem* const item) = 0;

    virtual bool GetFreeFolderGroupLeafs(zbIBrowserViewItemFreeFolder* folder) const = 0;
    virtual bool GetFreeFolderStyle(zbIBrowserViewItemFreeFolder* folder) const = 0;

    //! Whether the element's text is bold for that item, in `out`. A free folder answers for itself
    //! (New: never bold), a group of an old view is not bold, and a row of an old view is bold if
    //! "default_bold_text_prop" says so.
    //! False, and `out` untouched: for a null argument, an element of another view or of a column
    //! that has gone, a row or group of a new view, and where the property has no value. True, and
    //! `out` untouched, for a row while the data type of the property is not 1.
    virtual bool IsTextBold(zbIBrowserViewItem* const item, zbIBrowserStyleElement* const element,
                            bool& out) const = 0;

    //! The same for italic, with "default_italic_text_prop"; false also if the element's column has
    //! italic switched off.
    virtual bool IsTextItalic(zbIBrowserViewItem* const item, zbIBrowserStyleElement* const element,
                              bool& out) const = 0;
    //! @}

    //! \name Columns
    //! @{

    //! Gives the default column and then the scripted ones in order of creation, hidden ones
    //! included, without one that is just being deleted; true.
    virtual bool GetColumns(std::vector<zbIBrowserViewColumn*>& out) const = 0;

    virtual zbIBrowserViewColumn* GetDefaultColumn() const = 0;

    //! The column of that name, regardless of case, hidden ones included. Null: when there is none.
    virtual zbIBrowserViewColumn* FindColumn(char const* name) const = 0;
    //! @}

    //! \name Selection and operations
    //! @{

    //! Announces the selection as it stands.
    //! Signals: `ViewItemsSelected` with all selected items.
    virtual void UpdatePreviousSelection() = 0;

    //! The view operation of that name. Null: when there is none.
    virtual zbIBrowserViewOperation* FindViewOperation(char const* name) const = 0;

    //! Performs each view operation that is attached to the data operation of that name, case
    //! matters, in order of creation.
    virtual void PerformVOPAttachedToGvnDOP(char const* dataOperation) = 0;

    //! Asks the host to edit the selected item in place.
    //! Signals: `EditDataItem(operation, item)`, Old: with the first of the selected items.
    //! False: nothing is selected, New: or more than one item.
    virtual bool EditSelectedDataItem(char const* operation) = 0;
    //! @}

    //! \name Filter
    //! A new view has none: each operation of the filter answers false there.
    //! @{

    //! Gives the sources, or groups of sources, that the filter offers.
    virtual bool GetFilterNames(std::vector<zbIBrowserDataSourceSimple*>& out) const = 0;

    //! Gives those that are chosen.
    virtual bool GetCurrentFilter(std::vector<zbIBrowserDataSourceSimple*>& out) const = 0;

    //! False in both generations, and `out` untouched.
    virtual bool GetFilterByName(bool& out) const = 0;

    virtual bool GetFilterMatchCase(bool& out) const = 0;

    //! See GetFilterMatchWordFlag, which is another operation.
    virtual bool GetFilterMatchWord(bool& out) const = 0;

    //! False in both generations, and `out` untouched.
    virtual bool GetFilterUseRegExp(bool& out) const = 0;

    virtual bool GetFilterLookupString(zbString& out) const = 0;
    //! @}

    //! \name Popup menus
    //! @{

    //! Makes a menu. If the name is taken: Old: the menu of that name. New: null.
    virtual zbIBrowserPopupMenu* CreatePopupMenu(char const* name) = 0;

    //! Deletes a menu, with `deleteSubMenus` also the menus that open from it. False: when there is
    //! none of that name.
    virtual bool DeletePopupMenu(char const* name, bool deleteSubMenus) = 0;

    //! Whether `menu` is one of this view's.
    virtual bool FindPopupMenu(zbIBrowserPopupMenu* const menu) const = 0;

    //! The menu of that name. Null: when there is none.
    virtual zbIBrowserPopupMenu* FindPopupMenu(char const* name) const = 0;

    virtual bool GetAllPopupMenus(std::vector<zbIBrowserPopupMenu*>& out) = 0;
    //! @}

    //! The item after or before `item`, walking through the view and around its end.
    //! `recurse`: walks into items; without it there is no next item and the answer is null.
    //! `forward`: the next one, otherwise the previous one.
    //! Null: for an item of another view.
    virtual zbIBrowserViewItem* GetNextViewItem(zbIBrowserViewItem const* const item, bool recurse,
                                                bool forward) const = 0;

    //! \name Sorting, italic and properties
    //! @{

    //! Null: when the view is not sorted by a column.
    virtual zbIBrowserViewColumn* GetSortedColumn() const = 0;

    //! Whether the view is sorted by that column ascending, in `out`. False: for a column that is
    //! null or not of this view, and for any but the sorted one.
    virtual bool GetAscendingOrder(zbIBrowserViewColumn* const column, bool& out) const = 0;

    //! Whether columns sort when the user clicks them. True at first.
    virtual bool GetSorting() const = 0;

    //! Whether texts may be italic. True at first.
    virtual bool GetItalic() const = 0;

    //! The view property of that name, case included. Null: when there is none.
    virtual zbIBrowserViewProperty* FindViewProperty(zbString const& name) const = 0;

    //! Adds a view property without connections. Does nothing if the name is taken, or null.
    virtual void CreateViewProperty(char const* name) = 0;

    //! Takes a view property out of the view and out of the style elements that are bound to it;
    //! the object lives on as long as the view. The four default properties stay: false. True if
    //! the view has a scripted column. False if it has none, although the property is gone then as
    //! well: ask FindViewProperty.
    virtual bool DeleteViewProperty(zbIBrowserViewProperty* property) = 0;

    //! Gives the view properties in order of creation, the four default ones first; true.
    virtual bool GetViewPropertyList(std::vector<zbIBrowserViewProperty*>& out) const = 0;

    //! Sets the data type of a property. Does nothing for a type outside 1 to 13 and for a name
    //! that no property has.
    virtual void UpdateViewPropertyType(zbString const& name, ZBBROWSER_DATA_TYPE type) = 0;
    //! @}

    //! Appends "{name} {type} true " for each source or group that the filter offers to `out`,
    //! "false" for those that are not chosen. `out` is not cleared. New: does nothing.
    virtual void GetFilterMapNames(zbString& out) const = 0;

    //! The same one always, never null. It outlives the view; see there.
    virtual zbIBrowserSelectionManager* GetSelectionManager() const = 0;

    //! \name Collector
    //! @{

    //! The name of the collector's gui map; empty without one, never null.
    virtual char const* GetCollectorGuiMapName() const = 0;

    virtual bool IsBrowserCollectorOn() const = 0;

    //! New: false.
    virtual bool IsBrowserColDisabled() const = 0;

    //! New: does nothing. So do the next three.
    virtual void OnBrowserColPerform() = 0;
    virtual void ShowCollectorButton(ZBBROWSER_TCLAPI_KEYWORD button, bool show) = 0;
    virtual void OnBrowserColDeselected() = 0;
    virtual void OnBrowserColDisabled(bool disabled) = 0;

    //! Old: does nothing. So does the next one.
    virtual void ResetCollector() = 0;
    virtual void SetCollectorEnable(bool enable) = 0;

    //! Old: false.
    virtual bool IsCollectorEnable() const = 0;

    //! Old: false.
    virtual bool PerformCollectorOperation(ZBBROWSER_COLSEL_TYPE operation) const = 0;
    //! @}

    //! \name Changing folders
    //! @{

    //! Shows or leaves out free folders with nothing in them.
    //! Signals: `EmptyFoldersShown`, also when that changes nothing.
    virtual void ShowEmptyFolders(bool show) = 0;

    //! True at first.
    virtual bool GetShowEmptyFoldersFlag() const = 0;

    //! Whether the item is to be shown as far as ShowEmptyFolders decides about it. New: true.
    virtual bool IsEmptyFolderCanBeShown(zbIBrowserViewItem* const item) = 0;

    //! Makes a child folder behind the others.
    //! Signals: `ViewItemCreated(child)`, `FreeFolderCreated(parent)`, `ViewItemChanged(parent)`.
    //! Old: folders of one parent may have the same name. False for a parent that is not of the
    //! view. New: false while the view is locked; throws a `char const*` if the parent has a folder
    //! of that name already, regardless of case.
    virtual bool CreateFreeFolder(zbIBrowserViewItemFreeFolder const* parent,
                                  zbString const& name) = 0;

    //! Deletes a folder; with `deleteContent` also one that is not empty. The root cannot be
    //! deleted: an exception, and so for null. New: deletes nothing; false, first of all while the
    //! view is locked.
    virtual bool DeleteFreeFolder(zbIBrowserViewItemFreeFolder* folder, bool deleteContent) = 0;

    //! Groups the rows of all lists and trees of a folder, or ends that. New: false.
    virtual bool SetFreeFolderGroupLeafs(zbIBrowserViewItemFreeFolder* folder, bool group) = 0;

    virtual bool SetFreeFolderStyle(zbIBrowserViewItemFreeFolder* folder, bool style) = 0;

    //! Signals: `FreeFolderStyleChanged(folder, true)`, also when that changes nothing. New: the
    //! flag is not stored.
    virtual bool SetFreeFolderShowEmptyContainers(zbIBrowserViewItemFreeFolder* folder,
                                                  bool show) = 0;

    //! False in both generations.
    virtual bool MakeCaptionBold(zbIBrowserViewItemFreeFolder* const folder,
                                 zbIBrowserDataSourceSimple* const source, char const* caption) = 0;
    //! @}

    //! \name Making columns
    //! @{

    //! Makes a scripted column whose name and title are `name`, and marks it as one of icons. The
    //! other texts are not used. The same goes for the next and CreateTextBoxColumn, without the
    //! mark.
    //! Signals: `ColumnCreated(column)`.
    //! Failure: false if there is a column of that name, regardless of case, for null, and in a new
    //! view for an empty name. Old: with an error text.
    virtual bool CreateIconColumn(char const* name, char const* title, char const* icon) = 0;

    //! The same as CreateTextBoxColumn.
    virtual bool CreateButtonColumn(char const* name, char const* title) = 0;

    //! Makes nothing and answers true.
    virtual bool CreateCheckBoxColumn(char const* name, char const* title) = 0;

    //! The same as CreateButtonColumn.
    virtual bool CreateTextBoxColumn(char const* name, char const* title) = 0;

    //! Makes nothing and answers true.
    virtual bool CreateComboBoxColumn(char const* name, char const* title) = 0;

    //! Deletes a scripted column, and ends the sorting, whichever column the view is sorted by.
    //! Null: false. A column that is not one of the view's: true. Old: false if a slot left an
    //! error text with the view; the same goes for ShowScriptedColumn.
    //! Signals: `ColumnSortChanged(sorted column, false, false)` if the view is sorted, then
    //! `ColumnDeleted(column)`, when GetColumns leaves it out and FindColumn still finds it.
    virtual bool DeleteScriptedColumn(zbIBrowserViewColumn* column) = 0;

    //! Shows or hides a scripted column. Hiding ends the sorting, whichever column the view is
    //! sorted by. Null: false. A column that is not one of the view's: true.
    //! Signals: when hiding, the one of the sorting as above; `ColumnShown(column)`;
    //! `ColumnsChanged`. Old: also without a change, and the sorting ends too. New: without a
    //! change none, and the view stays sorted.
    virtual bool ShowScriptedColumn(zbIBrowserViewColumn* const column, bool show) = 0;

    //! Takes an element out of its style. False: for null and an element of another view or of a
    //! column that has gone. True for any other, also if it stays: see
    //! zbIBrowserStyleManager::DeleteStyleElement. New: deletes nothing and answers true.
    virtual bool DeleteStyleElement(zbIBrowserStyleElement* element) = 0;
    //! @}

    //! Chooses the sources or groups that pass the filter, and applies it; true, also when nothing
    //! changes because none of them is offered or they are chosen already. New: false.
    virtual bool SetCurrentFilter(std::set<zbIBrowserDataSourceSimple*> const& sources) = 0;

    //! Takes whatever hides an item out of the way: shows what stands above it in its folder.
    virtual void ShowAscendants(zbIBrowserViewItem* const item) = 0;

    //! \name Setting the filter
    //! New: false.
    //! @{

    //! Sets the text that names must match, and applies the filter; true.
    virtual bool SetFilterLookupString(zbString const& lookup) = 0;

    //! Stores the flag; true. The filter is not applied. So with the next one.
    virtual bool SetFilterMatchCaseFlag(bool match) = 0;
    virtual bool SetFilterMatchWordFlag(bool match) = 0;

    //! Reads the flag and applies the filter, unlike GetFilterMatchWord; true.
    virtual bool GetFilterMatchWordFlag(bool& out) = 0;
    //! @}

    //! \name Selection and expansion
    //! @{
    virtual void DeselectAllViewItems() = 0;

    //! Says that a series of changes of the selection is over; to be called once after it.
    virtual void OnSelectionChangeFinished() = 0;

    virtual void ExpandAllItems() = 0;

    //! New: does nothing. So does CollapseSelectedItems.
    virtual void ExpandSelectedItems() = 0;

    //! Opens a folder; with `recursive`, in an old view, all that is in it.
    virtual bool ExpandFreeFolder(zbIBrowserViewItemFreeFolder* folder, bool recursive) = 0;

    //! Opens the groups of a source in a folder. New: false.
    virtual bool ExpandFreeFolderList(zbIBrowserViewItemFreeFolder* folder,
                                      zbIBrowserDataSourceSimple* source, bool recursive) = 0;

    virtual void CollapseAllItems() = 0;
    virtual void CollapseSelectedItems() = 0;

    //! Closes a folder. New: answers true, and a folder that was opened stays open.
    virtual bool CollapseFreeFolder(zbIBrowserViewItemFreeFolder* folder, bool recursive) = 0;

    //! Closes the groups of a source in a folder. New: false.
    virtual bool CollapseFreeFolderList(zbIBrowserViewItemFreeFolder* folder,
                                        zbIBrowserDataSourceSimple* source, bool recursive) = 0;
    //! @}

    //! \name Settings
    //! @{

    //! Sets the caption of a list's group. New: false.
    virtual bool SetListCaption(zbIBrowserViewItem* const folder,
                                zbIBrowserDataSourceSimple* const source, char const* caption) = 0;

    //! Sets what GetSorting tells, and tells the columns, see zbIBrowserViewColumn::SetSorting;
    //! true. The view stays sorted as it is.
    virtual bool SetSorting(bool sorting) = 0;

    //! New: does nothing. So does the next one.
    virtual void SetSortingException(zbIBrowserViewItemFreeFolder* const folder,
                                     zbIBrowserDataSourceSimple* const source, int value) = 0;
    virtual void SetCreateExpandedItem(zbIBrowserViewItemFreeFolder* const folder,
                                       zbIBrowserDataSourceSimple* const source, int value) = 0;

    //! Sorts the view by a column. Rows are sorted when they are next listed; a mere change of the
    //! direction only reads them backwards, rows that compare equal included.
    //! Does nothing, and answers true, if the view is sorted that way already, unless the column is
    //! marked with SetUnsorted.
    //! Signals: Old: `SortChanging(true)`; `ColumnSortChanged(old column, false, ascending)` if
    //! another column was sorted; `ColumnSortChanged(column, true, ascending)`, or Old:
    //! `ColumnSortRepeated(column, true, ascending)` if it is sorted that way already;
    //! `ViewChanged(view)`; Old: `SortChanging(false)`.
    //! False: for a column that is null or not of this view, also when a slot makes it so; what
    //! comes after that signal is not raised then.
    virtual bool SetAscendingOrder(zbIBrowserViewColumn* const column, bool ascending) = 0;

    //! Sets what GetItalic tells, and tells the columns, see zbIBrowserViewColumn::SetItalic; true.
    virtual bool SetItalic(bool italic) = 0;

    //! Keeps the child folders of a folder in order of creation, or lets them be sorted. Null:
    //! false.
    virtual bool SetKeepChildrenFreeFoldersInOrderAsCreated(zbIBrowserViewItemFreeFolder* folder,
                                                            bool keep) = 0;

    //! Notes down the item over which something is being dragged.
    virtual void SetDropItem(zbIBrowserViewItem* item) = 0;
    virtual void ResetDropItem() = 0;
    //! @}

    //! Tells the view that the data control of that name, case matters, is about to go: as
    //! SetDataCtrl(nullptr) if it is the view's. New: does nothing while the view is locked.
    virtual void OnDataControlDeleted(char const* name) = 0;

    //! Deselects an item, with `recursive` also what stands in it.
    virtual void DeselectViewItem(zbIBrowserViewItem const* const item, bool recursive) = 0;

    //! \name Groups of the filter
    //! New: false or null.
    //! @{

    //! Lets the filter offer groups in place of the sources that have any; true.
    virtual bool SetFilterGrouping(bool grouping) = 0;
    virtual bool GetFilterGrouping() const = 0;

    //! Takes up which sources the folders show by now. False: when these are the same as before.
    virtual bool RebuildFilterLists() const = 0;

    //! The source or group of that name in the filter; case matters. Null: when there is none.
    virtual zbIBrowserDataSourceSimple* GetFilterDataSource(char const* name) const = 0;
    //! @}

    //! \name Sources and references of a new view
    //! Old: false or null. See DataSourceConnect.
    //! @{

    //! Gives the connected references, ordered by pointer; true.
    virtual bool GetConnected(std::set<zbIBrowserDataReference*>& out) const = 0;

    //! Gives the connected sources, ordered by pointer; true.
    virtual bool GetConnected(std::set<zbIBrowserDataSource*>& out) const = 0;

    //! Connects or disconnects a reference. It shows nothing by itself.
    //! False: for null, to connect what is connected, to disconnect what is not.
    virtual bool Connect(zbIBrowserDataReference* reference, bool connect) = 0;

    //! The same for a source.
    virtual bool Connect(zbIBrowserDataSource* source, bool connect) = 0;

    //! The connected source of that name; case matters, unlike elsewhere. The first by pointer if
    //! there are several. Null: when there is none, and for a null name.
    virtual zbIBrowserDataSource* FindConnected(char const* name) = 0;
    //! @}

    //! Whether this is a `zbbrowser::View`; otherwise it is a `zbBrowserView`.
    virtual bool IsNewView() const = 0;

protected:
    ~zbIBrowserView() = default;
};
