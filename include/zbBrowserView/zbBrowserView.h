// SPDX-License-Identifier: MIT
//! \file
//! zbBrowserView: a view of the old generation.
//!
//! | Theme                                        | Where                             |
//! |----------------------------------------------|-----------------------------------|
//! | 1. The object, its parts and its accessors   | src/view/zbBrowserView.cpp        |
//! | 2. Data control and data sources             | zbBrowserView_DataSources.cpp     |
//! | 3. Free folders, lists and trees             | zbBrowserView_Folders.cpp         |
//! | 4. Data events and rebuilds                  | zbBrowserView_DataEvents.cpp      |
//! | 5. Data items, view items and selection      | zbBrowserView_Mapping.cpp         |
//! | 6. Listing and expansion                     | zbBrowserView_Expansion.cpp       |
//! | 7. View properties                           | zbBrowserView_Properties.cpp      |
//! | 8. Columns and styles                        | zbBrowserView_Columns.cpp         |
//! | 9. Sorting                                   | zbBrowserView_Sorting.cpp         |
//! | 10. Filter, menus, collector                 | zbBrowserView_Presentation.cpp    |
//!
//! One class answers all 123 operations of zbIBrowserView, hence the length of this file.
#pragma once

#include <zbBrowserView/platform/zbBrowserErrorReporter.h>
#include <zbBrowserView/platform/zbExport.h>
#include <zbBrowserView/platform/zbString.h>
#include <zbBrowserView/zbIBrowserView.h>

#include <cstdint>
#include <memory>
#include <set>
#include <utility>
#include <vector>

class zbBrowserSelectionManager;
class zbBrowserSortHandler;
class zbBrowserViewColumnCustom;
class zbBrowserViewColumnDefault;
class zbBrowserViewCtrl;
class zbBrowserViewItemFreeFolder;
class zbBrowserViewItemVirtualRoot;
class zbIBrowserDataItem;
class zbIBrowserDataItemHierarchical;
class zbIBrowserDataItemSimple;
class zbIBrowserDataProperty;

namespace zbbrowser {
class ViewsInfo;
namespace detail {
class DetachedLeaves;
class OldViewContext;
struct ConnectedSources;
} // namespace detail
} // namespace zbbrowser

//! A named view of the old generation: free folders below a root, and in the folders lists of flat
//! sources (trees are recorded, their items are not built yet).
//!
//! Made and owned by the controller: `zbBrowserViewCtrl::CreateView(name, false)`, found again with
//! `OLD_FindView(name)`. The answers of `zbIBrowserView` that this generation does not offer are
//! listed there. What is not said here about an operation of `zbIBrowserView` is said there.
//!
//! What works in this version: data sources, free folders, flat lists, listing, data events of flat
//! items, selection, view properties, columns, styles and sorting. What hangs on filter, menus,
//! collector and view operations answers like a view that has no such handler: false, null, an
//! empty output, or nothing. A list in a folder that groups its leaves is recorded and shows no
//! items yet.
//!
//! Calling back: a slot or a host operation that runs inside an operation of the view may call any
//! operation of it and may delete folders, lists, data items or the view itself. What goes is
//! detached at once and freed when the outermost operation returns, so item pointers stay valid
//! until then. An exception that is thrown through the view leaves it whole; only the guards of
//! theme 4 and the busy mark of a folder stay set, as told there.
//!
//! Failure: an operation that answers false leaves a text in GetError() where one is named. Plain
//! `char const*` texts are thrown for requests that cannot be, `zbString` for null and foreign
//! objects where that is named; everything else answers false.
class ZBBROWSERVIEW_API zbBrowserView : public zbIBrowserView, private zbBrowserErrorReporter {
public:
    //! \name Names of default properties and operations
    //! \{
    static char const* const DEFAULT_NAME_PROP;        //!< "default_name_prop"
    static char const* const DEFAULT_ICON_NAME_PROP;   //!< "default_icon_name_prop"
    static char const* const DEFAULT_BOLD_TEXT_PROP;   //!< "default_bold_text_prop"
    static char const* const DEFAULT_ITALIC_TEXT_PROP; //!< "default_italic_text_prop"
    static char const* const DEFAULT_COPYAT_OPERATION; //!< "default_copyat_operation"
    static char const* const DEFAULT_MOVETO_OPERATION; //!< "default_moveto_operation"
    //! \}

    //! A copy has the name and the source lists of its own and shares everything else, which goes
    //! with the original; nothing may be done with the copy after that. The library never copies.
    //! Requires, for the assignment: no operation of the target is running.
    zbBrowserView(zbBrowserView const& other);
    zbBrowserView& operator=(zbBrowserView const& other);

    //! \name 1. The object
    //! \{

    //! Text of the last failure; "" if there was none. Never null. Valid until the next failure.
    using zbBrowserErrorReporter::GetError;
    //! False after a failure that left a text.
    using zbBrowserErrorReporter::GetState;

    zbString const& GetName() const override;
    zbIBrowserInfo* GetBrowserInfo() const override;
    zbIBrowserViewCtrl* GetViewCtrl() const override;
    zbBrowserViewCtrl* GetViewCtrlPtr() const;
    //! The host's signal manager, asked of the manager anew. Null without one.
    class zbBrowserSignalManager* GetSignalManager() const;
    zbBrowserViewItemVirtualRoot* GetVirtualRoot() const;
    zbIBrowserViewItemFreeFolder* GetRootFreeFolder() const override;
    //! Stored for the host, which may store what it likes; the library never follows it. Null at
    //! first, and when the item has left the view.
    zbIBrowserViewItem* GetLastFindStartPoint() const;
    void SetLastFindStartPoint(zbIBrowserViewItem* item);
    bool IsNewView() const override;
    //! \}

    //! \name 2. Data control and data sources
    //! \{

    //! Ownership: the host's; it must outlive the view or be taken away before.
    //! Null: takes the control away and does DataSourceDisconnectAll(true).
    //! A different control does not disconnect the sources of the one before.
    void SetDataCtrl(zbIBrowserDataCtrl* const dataCtrl) override;
    zbIBrowserDataCtrl* GetDataCtrl() const override;

    //! Takes the data control away if its name is exactly `name`. Dropped when called from within
    //! itself or a data event.
    void OnDataControlDeleted(char const* name) override;

    //! Makes a source available to the folders of this view. Clears the error state.
    //!
    //! The data control is asked for the source's name first: a source that it does not know is
    //! not connected, and neither is any without a data control. A connected flat source is told
    //! `OnConnected`; a tree is told nothing, although both are told `OnDisconnected` later.
    //! \return always true, also if nothing was connected; ask GetDataSourceSimple.
    bool DataSourceConnect(zbIBrowserDataSourceHierarchical* source) override;
    bool DataSourceConnect(zbIBrowserDataSourceSimple* source) override;

    //! Takes the lists of the source out of all folders, then the source out of the view, then
    //! tells it `OnDisconnected`. The name is compared regardless of case; a flat source goes
    //! before a tree of the same name. False if neither has it.
    bool DataSourceDisconnect(char const* name) override;

    //! The same for all sources, flat ones first. With `removeContent` false the folders keep their
    //! items, and the host must keep the sources alive that these show. Always true.
    bool DataSourceDisconnectAll(bool removeContent) override;

    zbIBrowserDataSourceSimple* GetDataSourceSimple(char const* name) const override;
    zbIBrowserDataSourceSimple*
    GetDataSourceSimple(zbIBrowserDataSourceSimple const* source) const override;
    zbIBrowserDataSourceHierarchical* GetDataSourceHierarchical(char const* name) const override;
    zbIBrowserDataSourceHierarchical*
    GetDataSourceHierarchical(zbIBrowserDataSourceHierarchical const* source) const override;
    //! Asks each connected tree, in the order of connection, for its type of that name.
    zbIBrowserDataSourceSimple*
    GetDataSourceSimpleFromHierarchical(char const* name) const override;
    bool GetDataSourceSimpleList(std::vector<zbIBrowserDataSourceSimple*>& out) const override;
    bool GetDataSourceHierarchicalList(
        std::vector<zbIBrowserDataSourceHierarchical*>& out) const override;
    //! \}

    //! \name 3. Free folders, lists and trees
    //! An interface pointer that is not a folder of this view is never followed: it is looked up.
    //! FindList, FindTree and GetFreeFolderAbsolutePathName take folders of any view and follow it.
    //! \{

    //! The concrete folder behind an item. Null: for null and for anything else. O(1).
    zbBrowserViewItemFreeFolder* FindFreeFolder(zbIBrowserViewItem const* item) const;
    bool IsVirtualRoot(zbBrowserViewItemFreeFolder* const folder) const;

    //! Shows a flat source in a folder. The third argument is not used.
    //! The items are built at once: directly in the folder, or in a group if
    //! `folder->GetGroupLeafs()` at this moment.
    //! Signals: `ViewItemCreated` for each row, `ViewItemChanged(folder)` if there was any row,
    //! `ViewContentChanged(view)`.
    //! Failure: false for a folder of another view; false with the folder's error text if the list
    //! is there already or the source does not give its items. In the latter case the list stays
    //! recorded, and a rebuild tries again.
    //! Cost: O(rows).
    bool CreateList(zbIBrowserViewItemFreeFolder* const folder,
                    zbIBrowserDataSourceSimple* const source, bool unused);

    //! Takes a list out of a folder.
    //! Signals: `ViewItemListDeleted` with its rows if there are any, `ViewItemChanged(folder)`,
    //! `ViewContentChanged(view)`.
    //! \return true for a folder that never showed anything. False, with the folder's error text,
    //!         for a list that is not there.
    bool DeleteList(zbIBrowserViewItemFreeFolder* const folder,
                    zbIBrowserDataSourceSimple* const source);

    //! The list itself if the folder shows it. The folder may belong to any view.
    //! FindTree, its twin, compares names instead of pointers.
    zbIBrowserDataSourceSimple* FindList(zbIBrowserViewItemFreeFolder* const folder,
                                         zbIBrowserDataSourceSimple* const source);

    //! Like CreateList and DeleteList, for a tree. Creating a tree that is there already keeps its
    //! settings, connects it again and answers true.
    bool CreateTree(zbIBrowserViewItemFreeFolder* const folder,
                    zbIBrowserDataSourceHierarchical* const tree);
    bool DeleteTree(zbIBrowserViewItemFreeFolder* const folder,
                    zbIBrowserDataSourceHierarchical* const tree);
    zbIBrowserDataSourceHierarchical* FindTree(zbIBrowserViewItemFreeFolder* const folder,
                                               zbIBrowserDataSourceHierarchical* const tree);

    //! Adds a folder behind the others of its parent. Names need not be unique among siblings.
    //! Signals: `ViewItemCreated(folder)`, `FreeFolderCreated(parent)`, `ViewItemChanged(parent)`.
    //! \return false for a parent that is null or not of this view
    bool CreateFreeFolder(zbIBrowserViewItemFreeFolder const* parent,
                          zbString const& name) override;

    //! Removes a folder; with `deleteContent` all that is in it as well.
    //! Signals: `ViewItemDeleted(folder)`, `ViewItemChanged(parent)`; nothing for the folders and
    //! items in it.
    //! Failure: throws `zbString` "Null pointer hit" for null, an unknown folder and the root;
    //! `char const*` "Cannot delete non-empty folder. Use deletecontent flag or delete all content
    //! first." if it has been used for content and has child folders or visible items;
    //! "Attempt to delete non-empty free folder object" if child folders, lists or trees remain,
    //! for instance lists all of whose items are hidden. The folder is as before.
    //! Cost: O(what is in it).
    bool DeleteFreeFolder(zbIBrowserViewItemFreeFolder* folder, bool deleteContent) override;

    //! Folder and all folders below it: lists shown from now on are grouped or not, and the lists
    //! and trees that are there move over.
    //! Signals: those of the moves, then `FreeFolderStyleChanged(folder, true)`.
    //! \return false for null or unknown, and for a folder that is busy with such a call already
    bool SetFreeFolderGroupLeafs(zbIBrowserViewItemFreeFolder* folder, bool group) override;
    //! Folder and all folders below it. No signal.
    bool SetFreeFolderStyle(zbIBrowserViewItemFreeFolder* folder, bool style) override;
    //! The folder alone. On a change all its items are built anew.
    //! Signals: on a change those of the lists and trees that are built; then always
    //! `FreeFolderStyleChanged(folder, true)`.
    //! Failure: false with "Cannot show empty folders when grouping is disabled" on a change while
    //! group leafs is off.
    bool SetFreeFolderShowEmptyContainers(zbIBrowserViewItemFreeFolder* folder, bool show) override;
    bool GetFreeFolderGroupLeafs(zbIBrowserViewItemFreeFolder* folder) const override;
    bool GetFreeFolderStyle(zbIBrowserViewItemFreeFolder* folder) const override;
    bool SetKeepChildrenFreeFoldersInOrderAsCreated(zbIBrowserViewItemFreeFolder* folder,
                                                    bool keep) override;
    //! \return false for null, unknown, busy, or a folder that never showed anything; else true
    bool SetListCaption(zbIBrowserViewItem* const folder, zbIBrowserDataSourceSimple* const source,
                        char const* caption) override;
    bool MakeCaptionBold(zbIBrowserViewItemFreeFolder* const, zbIBrowserDataSourceSimple* const,
                         char const*) override;
    //! Failure: both throw `char const*` "NULL pointer hit" for a folder that is null, unknown or
    //! never showed anything.
    void SetSortingException(zbIBrowserViewItemFreeFolder* const folder,
                             zbIBrowserDataSourceSimple* const source, int value) override;
    void SetCreateExpandedItem(zbIBrowserViewItemFreeFolder* const folder,
                               zbIBrowserDataSourceSimple* const source, int value) override;

    //! Signals: `EmptyFoldersShown(view, show)`, also without a change.
    void ShowEmptyFolders(bool show) override;
    bool GetShowEmptyFoldersFlag() const override;
    //! A question with effects: false means that `item` is a folder that is really empty and does
    //! not want to be shown then, and it has been deselected. The flag of ShowEmptyFolders is not
    //! looked at.
    bool IsEmptyFolderCanBeShown(zbIBrowserViewItem* const item) override;

    //! "/" for the root, "/a/b" for folder b in a. False for null, `out` untouched then.
    bool GetFreeFolderAbsolutePathName(zbIBrowserViewItemFreeFolder const* folder,
                                       zbString& out) const override;
    //! The folders among the items. False at the first item that is null or of another view; `out`
    //! then holds what was found before it.
    bool
    GetFreeFoldersFromViewItems(std::vector<zbIBrowserViewItem*> const& items,
                                std::vector<zbIBrowserViewItemFreeFolder*>& out) const override;
    //! \}

    //! \name 4. Data events and rebuilds
    //! The controller calls these; see there for when a host reports what. Each event down to
    //! OnDataItemsRebuildAll is dropped, not queued, when it comes from within another;
    //! OnDataSourceRenumbered and the rebuilds and the redraw below it take place. If a slot or
    //! host operation throws from within an event, the guard stays set and all later ones are
    //! dropped. So does the busy mark of the folder that was at work and of those above it.
    //!
    //! An event reaches the folders one after the other, a folder before those in it. A busy folder
    //! and all in it are passed over, save by OnDataSourceRenumbered; so are folders that are made
    //! meanwhile.
    //!
    //! Requires: the data item is there, also one that is reported deleted, and its source is the
    //! same as long as it has rows. Null: no event.
    //! Cost, for a flat item: the folders that show its source, each with those above it; however
    //! many others there are, they are not looked at, except once after folders were made.
    //! \{

    //! Shows a new item in each folder that lists its source. The flag is not used.
    //! Requires: its source contains it. It may otherwise be missing in the folders and views that
    //! come after a slot has run, which ask the source first.
    //! Signals, for each folder: `ViewItemCreated(row)` unless the row is there;
    //! `ViewItemChanged(folder)`.
    void OnDataItemCreated(zbIBrowserDataItemHierarchical* const item, bool flag);
    void OnDataItemCreated(zbIBrowserDataItemSimple* const item, bool flag);
    //! Takes out the rows of an item at once.
    //! Signals, for each row: `ViewItemDeleted(row)`, before it goes; `ViewItemChanged(folder)` if
    //! nothing is left to be seen in the folder. It is deselected silently.
    void OnDataItemDeleted(zbIBrowserDataItemHierarchical* const item);
    void OnDataItemDeleted(zbIBrowserDataItemSimple* const item);
    //! Signals: `ViewItemChanged(folder)` for each row of the item, by way of the controller's
    //! `OnViewItemChanged`. None for the rows themselves, which keep their place in a sorted list
    //! until one comes or goes there.
    void OnDataItemUpdated(zbIBrowserDataItemHierarchical* const item);
    void OnDataItemUpdated(zbIBrowserDataItemSimple* const item);
    //! Concerns trees, whose items are not built yet.
    void OnDataItemReparented(zbIBrowserDataItemHierarchical* const item,
                              zbIBrowserDataItemHierarchical* const newParent);
    //! Makes all rows anew, silently. Nothing is selected afterwards; the folders stay as they are.
    //! In a folder it ends with the first list whose source does not give its items.
    //! Signals: if GetCurrentFilter names a source, `ViewItemShown` for each row that it lets
    //! through, `ViewContentChanged(view)`, `ViewChanged(view)`.
    void OnDataItemsRebuildAll();

    //! The rows of all lists are sorted anew when they are next read, whatever the source is.
    void OnDataSourceRenumbered(zbIBrowserDataSourceSimple* source);
    void OnDataSourceRenumbered(zbIBrowserDataSourceHierarchical* source);

    //! Signals: `ViewItemChanged(row)` for each row whose data item is dirty, those of a list
    //! within a long operation. These rows get their new place when the list is next read in
    //! sorted form. Rows of items that their source contains no longer may be passed over.
    void OnAllDirtyDataItemsRebuild();

    //! Lists whose source is dirty lose the rows of items that have gone and get those of new ones;
    //! the other rows stay the same objects, with their place and selection. Child folders come
    //! before their folder, and then the rows of the folder and of all below it are refreshed as by
    //! OnAllDirtyDataItemsRebuild. No mark is taken back.
    //! Signals, for each dirty list: those of DeleteViewItemList if rows go, `ViewItemCreated` for
    //! each new row, `ViewItemChanged(folder)`; then `ViewItemChanged` for each folder from this
    //! one up whose icon may depend on its data. For each folder: `ViewContentChanged(view)` three
    //! times, dirty or not.
    //! Failure: a list whose source does not give its items keeps its rows, without a signal; the
    //! others are rebuilt all the same.
    void OnAllDirtyDataListsRebuild();

    //! Signals: in a folder with a dirty list, `ViewItemChanged` for every row of the folder, once
    //! for each such list, whose mark is taken back then; a further folder with the same list finds
    //! it clean. For each folder `ViewContentChanged(view)` three times, the first after the marks
    //! of its flat lists were taken back.
    void RedrawAllDirtyDataLists(bool unused);

    //! The events above without their guard.
    void CreateDataDependentViewItems(bool silent);
    //! Appends the row in each folder to `created`, the one that was there if there was one; null
    //! where the list went before the row was made. Rows that a slot deletes meanwhile are left
    //! out. `parents` stays as it is. For the item of a tree nothing is appended yet.
    void CreateDataDependentViewItems(zbIBrowserDataItemSimple* item,
                                      std::vector<zbIBrowserViewItem*>& created,
                                      std::vector<zbIBrowserViewItem*>& parents, bool flag);
    void CreateDataDependentViewItems(zbIBrowserDataItemHierarchical* item,
                                      std::vector<zbIBrowserViewItem*>& created,
                                      std::vector<zbIBrowserViewItem*>& parents, bool flag);
    //! Unlike OnDataItemDeleted it leaves a row whose folder does not list the source of the item,
    //! and no folder is reported as changed. Signals: `ViewItemDeleted(row)` unless `silent`.
    void DeleteDataDependentViewItems(zbIBrowserDataItemSimple* item, bool silent);
    void DeleteDataDependentViewItems(zbIBrowserDataItemHierarchical* item, bool silent);

    //! Deletes rows. Those that are not rows of this view, or no longer, are passed over.
    //! Signals: those of deselecting them; `ViewItemsSelected` with what is still selected;
    //! `ViewItemListDeleted(items)` unless `silent`.
    //! `items` comes back empty.
    void DeleteViewItemList(std::vector<zbIBrowserViewItem*>& items, bool silent);
    //! \}

    //! \name 5. Data items, view items and selection
    //! One data item may stand in many places of a view, so that way always gives a list.
    //! \{

    //! The data items behind view items, in the order of these; a data item comes once for each
    //! place. A folder stands for its rows, with `withDescendants` also for those of the folders
    //! below, hidden ones included. Flat items are those of rows of flat sources only.
    //!
    //! Tree items, with `withDescendants`: what the tree lists below a row follows its item; for a
    //! folder that is not expanded, whose rows may not be made yet, what the trees list below all
    //! that is in `out` so far.
    //! False: an item is null or of another view; `out` has what was found before it. True for no
    //! items at all. OLD_GetDataItemsFromViewItems is the same.
    bool GetDataItemsFromViewItems(std::vector<zbIBrowserViewItem*> const& items,
                                   std::vector<zbIBrowserDataItemHierarchical*>& out,
                                   bool withDescendants) const;
    bool GetDataItemsFromViewItems(std::vector<zbIBrowserViewItem*> const& items,
                                   std::vector<zbIBrowserDataItemSimple*>& out,
                                   bool withDescendants) const;
    bool OLD_GetDataItemsFromViewItems(std::vector<zbIBrowserViewItem*> const& items,
                                       std::vector<zbIBrowserDataItemHierarchical*>& out,
                                       bool withDescendants) const;
    bool OLD_GetDataItemsFromViewItems(std::vector<zbIBrowserViewItem*> const& items,
                                       std::vector<zbIBrowserDataItemSimple*>& out,
                                       bool withDescendants) const;

    //! Appends what the trees list below `items`, all levels. Items without a tree are passed over.
    //! `out` stays as it is if the view is deleted meanwhile.
    void AppendDescendentDataItems(std::vector<zbIBrowserDataItemHierarchical*>& out,
                                   std::vector<zbIBrowserDataItemHierarchical*> const& items) const;

    //! True, and `out` empty, whatever the items are.
    bool GetSelectionTypes(std::vector<zbIBrowserViewItem*> const& items,
                           std::vector<zbIBrowserDataSourceSimple*>& out);

    //! Appends each row of a data item to `found` and, at the same place, the item to be painted
    //! anew when the row changes to `parents`. Rows in busy folders and below are not found.
    void GetDataDependentViewItems(zbIBrowserDataItemSimple* item,
                                   std::vector<zbIBrowserViewItem*>& found,
                                   std::vector<zbIBrowserViewItem*>& parents);
    void GetDataDependentViewItems(zbIBrowserDataItemHierarchical* item,
                                   std::vector<zbIBrowserViewItem*>& found,
                                   std::vector<zbIBrowserViewItem*>& parents);

    //! The data side selected these items. The rows of those whose source is connected to this view
    //! are selected, after all else has been deselected with `clear`, the folders around them are
    //! expanded, and the host is asked to show the first row. Busy folders are not passed over.
    //! Nothing happens while the sync flag of the selection manager is false, nor from within
    //! itself or a data event.
    //! Signals: `ViewItemExpanded` for each folder, a folder before the one that it stands in;
    //! those of zbIBrowserSelectionManager::UpdateSelection; then `ShowViewItem` of the manager.
    void OnDataItemsSelected(std::vector<zbIBrowserDataItemSimple*> const& simple,
                             std::vector<zbIBrowserDataItemHierarchical*> const& hierarchical,
                             bool clear);
    //! With `first` only the first item of a connected tree, and whatever the sync flag is.
    void OnDataItemsSelected(std::vector<zbIBrowserDataItemHierarchical*> const& items, bool clear,
                             bool first);
    //! Does nothing: the items of this generation are flat ones and those of trees.
    void OnDataItemsSelected(std::vector<zbIBrowserDataItem*> const& items, bool clear,
                             bool noPanelUpdate);
    //! Deselects the rows of these items, under the same conditions. Nothing is expanded.
    void OnDataItemsDeselected(std::vector<zbIBrowserDataItemSimple*> const& simple,
                               std::vector<zbIBrowserDataItemHierarchical*> const& hierarchical);
    //! Does nothing.
    void OnDataItemsDeselected(std::vector<zbIBrowserDataItem*> const& items);
    bool EditSelectedDataItem(char const* operation) override;
    void UpdatePreviousSelection() override;
    void OnSelectionChangeFinished() override;
    void DeselectAllViewItems() override;
    void DeselectViewItem(zbIBrowserViewItem const* const item, bool recursive) override;
    void SetDropItem(zbIBrowserViewItem* item) override;
    void ResetDropItem() override;
    zbIBrowserSelectionManager* GetSelectionManager() const override;
    zbBrowserSelectionManager* GetSelectionManagerPtr() const;
    //! \}

    //! \name 6. Listing and expansion
    //! \{

    //! The children of an item as they are to be shown: of a folder its child folders and then its
    //! rows, both without the hidden ones.
    //! \param out comes back with the children and nothing else
    //! \return true if there is any. False for null, with `out` untouched, and for a row.
    //! Cost: O(children); if no row is hidden, one block copy.
    bool GetChildren(std::vector<zbIBrowserViewItem*>& out, zbIBrowserViewItem const* item) const;
    //! Expands the folders around each item, in order; of a folder also itself.
    //! Signals: `ViewItemExpanded` for each folder that was closed, a folder before the one that it
    //! stands in.
    //! Failure: throws the zbString for a null item or one of another view.
    void ExpandAscendants(std::vector<zbIBrowserViewItem*> const& items);
    void ExpandAllItems() override;
    void ExpandSelectedItems() override;
    //! \return false for null or unknown, and with the folder's error text while it is busy
    bool ExpandFreeFolder(zbIBrowserViewItemFreeFolder* folder, bool recursive) override;
    bool ExpandFreeFolderList(zbIBrowserViewItemFreeFolder* folder,
                              zbIBrowserDataSourceSimple* list, bool recursive) override;
    void CollapseAllItems() override;
    void CollapseSelectedItems() override;
    bool CollapseFreeFolder(zbIBrowserViewItemFreeFolder* folder, bool recursive) override;
    bool CollapseFreeFolderList(zbIBrowserViewItemFreeFolder* folder,
                                zbIBrowserDataSourceSimple* list, bool recursive) override;
    void ShowAscendants(zbIBrowserViewItem* const item) override;
    zbIBrowserViewItem* GetNextViewItem(zbIBrowserViewItem const* const item, bool recursive,
                                        bool forward) const override;
    //! \}

    //! \name 7. View properties
    //! Each view property belongs to one view; one of another view is answered like one that is not
    //! there. The pointers stay valid as long as the view, see zbIBrowserViewProperty.
    //! \{
    zbIBrowserViewProperty* FindViewProperty(zbString const& name) const override;
    void CreateViewProperty(char const* name) override;
    bool DeleteViewProperty(zbIBrowserViewProperty* property) override;
    bool GetViewPropertyList(std::vector<zbIBrowserViewProperty*>& out) const override;
    void UpdateViewPropertyType(zbString const& name, ZBBROWSER_DATA_TYPE type) override;

    //! Connects a data property for a source. A source that has a connection keeps it, and the
    //! answer is true all the same; the new generation overwrites.
    //! Failure, of all three: false for null or unknown properties; GetState() is false then, and
    //! the text is empty.
    bool CreateVPConnect(zbIBrowserViewProperty* property, zbIBrowserDataSourceSimple* source,
                         zbIBrowserDataProperty* dataProperty);
    //! Makes the text the set script of the property and takes away its get script.
    bool CreateVPConnect(zbIBrowserViewProperty* property, char const* script);
    //! Takes the connection of a source away; true also if there was none. The new generation
    //! answers false then.
    bool DeleteVPConnect(zbIBrowserViewProperty* property, zbIBrowserDataSourceSimple* source);
    //! \}

    //! \name 8. Columns and styles
    //! \{
    bool GetColumns(std::vector<zbIBrowserViewColumn*>& out) const override;
    zbIBrowserViewColumn* GetDefaultColumn() const override;
    zbBrowserViewColumnDefault* GetDefaultColumnPtr() const;
    zbIBrowserViewColumn* FindColumn(char const* name) const override;
    //! The column itself if it is one of this view. Null: for any other.
    zbIBrowserViewColumn* FindColumn(zbIBrowserViewColumn const* const column) const;
    //! The same for scripted columns only.
    zbBrowserViewColumnCustom* FindScriptedColumn(zbIBrowserViewColumn const* const column) const;

    //! Adds a column without a signal and without looking whether there is one of that name; the
    //! Create operations look. Null: for null. Clears the error state.
    zbBrowserViewColumnCustom* CreateColumnCustom(char const* name);
    bool CreateIconColumn(char const* name, char const*, char const*) override;
    bool CreateButtonColumn(char const* name, char const*) override;
    bool CreateCheckBoxColumn(char const* name, char const*) override;
    bool CreateTextBoxColumn(char const* name, char const*) override;
    bool CreateComboBoxColumn(char const* name, char const*) override;
    bool DeleteScriptedColumn(zbIBrowserViewColumn* column) override;
    bool ShowScriptedColumn(zbIBrowserViewColumn* const column, bool show) override;
    bool GetItalic() const override;
    bool SetItalic(bool italic) override;

    zbIBrowserStyle* GetViewItemStyle(zbIBrowserViewColumn* const column,
                                      zbIBrowserViewItem* const item) const override;
    bool SetViewItemStyle(zbIBrowserViewItem* const item) override;
    //! Takes the styles of its own from a folder. True also if it had none. False: for null and for
    //! an item of another view.
    bool RemoveViewItemStyle(zbIBrowserViewItem* const item);
    bool DeleteStyleElement(zbIBrowserStyleElement* element) override;
    bool IsTextBold(zbIBrowserViewItem* const item, zbIBrowserStyleElement* const element,
                    bool& out) const override;
    bool IsTextItalic(zbIBrowserViewItem* const item, zbIBrowserStyleElement* const element,
                      bool& out) const override;
    //! Whether the check box of a row is set, in `out`: the value of "default_italic_text_prop".
    //! False: for folders and groups, for null and for an element of another view. Whether the
    //! column allows italic texts does not matter.
    bool GetCheckBoxValue(zbIBrowserViewItem* const item, zbIBrowserStyleElement* const element,
                          bool& out) const;
    void OnGuiMapDeleted(zbString const& name);
    //! \}

    //! \name 9. Sorting
    //! \{
    zbIBrowserViewColumn* GetSortedColumn() const override;
    bool GetAscendingOrder(zbIBrowserViewColumn* const column, bool& out) const override;
    bool SetAscendingOrder(zbIBrowserViewColumn* const column, bool ascending) override;
    bool GetSorting() const override;
    bool SetSorting(bool sorting) override;
    zbBrowserSortHandler* GetSortHandlerPtr() const;

    //! The lists of all folders are sorted anew when they are next read.
    //! Cost: O(folders).
    void SetAllDataItemListsUnsorted();

    //! The name of a data property by which the rows of groups are sorted under the default column,
    //! instead of by name. "": by name. True. It takes effect with the next sort.
    bool SetSortDefaultColumnByCustomProperty(zbString const& name);
    //! Reads that name; true. Sorts nothing.
    bool SortDefaultColumnByCustomProperty(zbString& name);
    //! \}

    //! \name 10. Filter, menus, collector
    //! \{
    bool CreateViewOperation(char const* name) override;
    zbIBrowserCollector* GetCollectorHandler() const override;
    zbIBrowserViewOperation* FindViewOperation(char const* name) const override;
    void PerformVOPAttachedToGvnDOP(char const* name) override;
    bool GetFilterNames(std::vector<zbIBrowserDataSourceSimple*>& out) const override;
    bool GetCurrentFilter(std::vector<zbIBrowserDataSourceSimple*>& out) const override;
    bool GetFilterByName(bool& out) const override;
    bool GetFilterMatchCase(bool& out) const override;
    bool GetFilterMatchWord(bool& out) const override;
    bool GetFilterUseRegExp(bool& out) const override;
    bool GetFilterLookupString(zbString& out) const override;
    zbIBrowserPopupMenu* CreatePopupMenu(char const* name) override;
    bool DeletePopupMenu(char const* name, bool recursive) override;
    bool FindPopupMenu(zbIBrowserPopupMenu* const menu) const override;
    zbIBrowserPopupMenu* FindPopupMenu(char const* name) const override;
    bool GetAllPopupMenus(std::vector<zbIBrowserPopupMenu*>& out) override;
    void GetFilterMapNames(zbString& out) const override;
    char const* GetCollectorGuiMapName() const override;
    bool IsBrowserCollectorOn() const override;
    bool IsBrowserColDisabled() const override;
    void OnBrowserColPerform() override;
    void ShowCollectorButton(ZBBROWSER_TCLAPI_KEYWORD keyword, bool show) override;
    void OnBrowserColDeselected() override;
    void OnBrowserColDisabled(bool disabled) override;
    void ResetCollector() override;
    void SetCollectorEnable(bool enable) override;
    bool IsCollectorEnable() const override;
    bool PerformCollectorOperation(ZBBROWSER_COLSEL_TYPE type) const override;
    bool SetCurrentFilter(std::set<zbIBrowserDataSourceSimple*> const& sources) override;
    bool SetFilterLookupString(zbString const& text) override;
    bool SetFilterMatchCaseFlag(bool match) override;
    bool SetFilterMatchWordFlag(bool match) override;
    bool GetFilterMatchWordFlag(bool& out) override;
    bool SetFilterGrouping(bool grouping) override;
    bool GetFilterGrouping() const override;
    bool RebuildFilterLists() const override;
    zbIBrowserDataSourceSimple* GetFilterDataSource(char const* name) const override;
    bool GetConnected(std::set<zbIBrowserDataReference*>& out) const override;
    bool GetConnected(std::set<zbIBrowserDataSource*>& out) const override;
    bool Connect(zbIBrowserDataReference* reference, bool connect) override;
    bool Connect(zbIBrowserDataSource* source, bool connect) override;
    zbIBrowserDataSource* FindConnected(char const* name) override;
    //! \}

protected:
    zbBrowserView(zbBrowserViewCtrl const* ctrl, char const* name);
    ~zbBrowserView() override;

private:
    friend class zbBrowserViewCtrl;
    friend class zbbrowser::ViewsInfo;
    friend class zbbrowser::detail::OldViewContext;

    //! Deletes the view now or, if one of its operations is running, when that returns.
    static void Destroy(zbBrowserView* view);

    //! Deletes rows that their content has let go of already.
    //! Signals: `ViewItemListDeleted` unless `silent`.
    void DeleteViewItems(zbbrowser::detail::DetachedLeaves& leaves, bool silent);
    friend class zbBrowserFreeFolderContent;

    //! In this order; each leaves what is there.
    void CreateViewPropertyHolder();
    void CreateDefaultViewProperties();
    void CreateDefaultColumn();
    void CreateSortHandler();

    void CleanUp();
    //! Forgets all data and content of a view that was given up while an operation of it is
    //! running.
    void LetGo();
    void RemoveContentOf(zbIBrowserDataSourceSimple& source);
    void RemoveContentOf(zbIBrowserDataSourceHierarchical& source);
    bool FailWith(zbBrowserViewItemFreeFolder const& folder);
    bool SetShowChildType(zbIBrowserViewItemFreeFolder* folder,
                          zbIBrowserDataSourceHierarchical* tree, zbIBrowserDataSourceSimple* type,
                          bool show);
    bool Expand(zbIBrowserViewItem* item) const;
    bool Collapse(zbIBrowserViewItem* item);
    void Hide(zbIBrowserViewItem* item);
    void ExpandAscendants(zbIBrowserViewItem const* item) const;
    //! For several items. `parents` may name the parents of the first of them.
    void ExpandAscendants(std::vector<zbIBrowserViewItem*> const& items,
                          std::vector<zbIBrowserViewItem*> const& parents) const;
    //! Flat items by their source.
    using ItemsBySource =
        std::vector<std::pair<zbIBrowserDataSource const*, std::vector<zbIBrowserDataItemSimple*>>>;
    void DataItemsSelected(ItemsBySource const& simple,
                           std::vector<zbIBrowserDataItemHierarchical*> const& hierarchical,
                           bool clear);
    void DataItemsDeselected(ItemsBySource const& simple,
                             std::vector<zbIBrowserDataItemHierarchical*> const& hierarchical);
    ItemsBySource ConnectedItems(std::vector<zbIBrowserDataItemSimple*> const& items) const;
    std::vector<zbIBrowserDataItemHierarchical*>
    ConnectedItems(std::vector<zbIBrowserDataItemHierarchical*> const& items, bool first) const;
    //! The rows of these items, those of flat ones first, with their parents.
    std::vector<zbIBrowserViewItem*>
    ItemsOf(ItemsBySource const& simple,
            std::vector<zbIBrowserDataItemHierarchical*> const& hierarchical,
            std::vector<zbIBrowserViewItem*>& parents);
    void AppendRowsOf(ItemsBySource const& simple, std::vector<zbIBrowserViewItem*>& found,
                      std::vector<zbIBrowserViewItem*>& parents);
    //! Selects an item alone, or deselects it, then with `recursive` with all that stands in it.
    void SelectViewItem(zbIBrowserViewItem* item, bool select, bool recursive);
    void OnUpdateViewSelection(std::vector<zbIBrowserViewItem*> const& items, bool select,
                               bool clear);
    void OnPopupSelection(bool flag);
    bool IsViewItemSelected(zbIBrowserViewItem* item);
    //! Work that is dropped when it comes from within other such work.
    template <class Work>
    void Guarded(Work work);
    template <class DataItem>
    void ReportCreated(DataItem* item, bool flag);
    template <class DataItem>
    void ReportDeleted(DataItem* item);
    template <class Collect>
    void ReportUpdated(Collect collect);
    //! For an item that may have gone, of which the source is known.
    void OnDataItemUpdated(zbIBrowserDataItemSimple* const item,
                           zbIBrowserDataSourceSimple const* source);
    //! GetDataDependentViewItems, with an item that is compared only.
    void AppendRowsOf(zbIBrowserDataItemSimple* item, zbIBrowserDataSource const* source,
                      std::vector<zbIBrowserViewItem*>& found,
                      std::vector<zbIBrowserViewItem*>& parents);
    void RaiseChanged(std::vector<zbIBrowserViewItem*> const& items);
    //! The rows behind the first ones that a slot has deleted.
    void DropGone(std::vector<zbIBrowserViewItem*>& items, std::size_t first) const;
    void RefreshFolders(zbBrowserViewItemFreeFolder& top);
    void ApplyCurrentFilter();

    zbString name_;
    zbBrowserViewCtrl const* viewCtrl_;            // Not owned; null only in tests
    zbIBrowserDataCtrl* dataCtrl_ = nullptr;       // Not owned; null until it is set
    zbBrowserViewItemVirtualRoot* root_ = nullptr; // Owned unless this is a copy
    std::unique_ptr<zbbrowser::detail::ConnectedSources> sources_;
    zbbrowser::detail::OldViewContext* context_; // Owned unless this is a copy
    bool sorting_ = true;
    bool italic_ = true;
    bool showEmptyFolders_ = true;
    bool inCallback_ = false; // Not closed when an exception passes
    bool isCopy_ = false;
};
