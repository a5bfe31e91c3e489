// SPDX-License-Identifier: MIT
//! \file
//! zbbrowser::View: a view of the new generation.
//!
//! | Theme                                              | Where                        |
//! |----------------------------------------------------|------------------------------|
//! | 1. Life, name, data control, connections, lock     | src/view/View.cpp            |
//! | 2. Free folders                                    | View_Folders.cpp             |
//! | 3. View properties                                 | View_Properties.cpp          |
//! | 4. Columns and styles                              | View_Columns.cpp             |
//! | 5. Sorting                                         | View_Sorting.cpp             |
//! | 6. Selection, view items and data items            | View_Selection.cpp           |
//! | 7. What this generation does not offer             | View_NotOffered.cpp          |
//! | 8. What is not built yet, answered neutrally       | View_Shell.cpp               |
//!
//! One class answers all 123 operations of zbIBrowserView, hence the length of this file.
#pragma once

#include <zbBrowserView/platform/zbExport.h>
#include <zbBrowserView/platform/zbString.h>
#include <zbBrowserView/zbBrowserEnums.h>
#include <zbBrowserView/zbIBrowserView.h>

#include <memory>
#include <set>
#include <vector>

class zbBrowserSignalManager;
class zbBrowserViewCtrl;
class zbIBrowserDataItem;
class zbIBrowserDataProperty;

namespace zbbrowser {

class FilterHandler;
struct PendingViewChangeInfo;
class SortHandler;
class ViewColumnCustom;
class ViewColumnDefault;
class ViewItemFreeFolder;
class ViewItemVirtualRoot;
class ViewsInfo;

namespace detail {
class NewViewContext;
}

//! A view of the new generation. It holds a configuration per folder, is rebuilt in batches, and
//! hands its changes to the host's widget as flags on its items.
//!
//! The operations of zbIBrowserView are told there. A batch runs like this: `Lock(true)`, `Fill`,
//! the host's changes, `UpdateDirtyForWindowItems`, `ClearDirtyForWindowItems`, the pending changes
//! of each folder, `Lock(false)`. While it is locked, the view refuses to create or delete folders,
//! to expand items, and to be told that its data control goes.
//!
//! What works in this version: the object itself, free folders, selection, view properties,
//! columns, styles and sorting. A folder shows no rows yet, and there are no menus, no collector
//! and no view operations. What would use them answers like this until then:
//! - Rows: GetNextViewItem: null. ShowAscendants, ExpandAllItems, CollapseAllItems,
//!   ClearDirtyForWindowItems, UpdateDirtyForWindowItems, AllDirtyDataDependentItemsRebuild:
//!   nothing. AllDataDependentItemsDelete clears the selection, silently. Expand and Collapse test
//!   their item only. GetDataItemsFromViewItems and GetDataSourcesFromViewItems find what an item
//!   shows itself, which for a folder is nothing; GetDataDependentViewItems finds nothing.
//! - Menus: CreatePopupMenu, FindPopupMenu: null. DeletePopupMenu, GetAllPopupMenus and the
//!   FindPopupMenu that compares: false.
//! - Collector: GetCollectorHandler: null. GetCollectorGuiMapName: "". IsBrowserCollectorOn,
//!   IsCollectorEnable, PerformCollectorOperation: false. ResetCollector, SetCollectorEnable:
//!   nothing.
//! - View operations: FindViewOperation: null. CreateViewOperation: false, so that the two default
//!   ones are missing, too. PerformVOPAttachedToGvnDOP: nothing.
//!
//! A fresh view has the four default properties, a default column, and a root without children.
//!
//! Ownership: made and deleted by the controller only. What it is made of (root, columns,
//! properties, handlers) can be deleted and made again one by one with the operations of "Parts";
//! each Create does nothing if the part is there, each Delete nothing if it is not. What needs a
//! part that is missing answers false or null.
class ZBBROWSERVIEW_API View : public zbIBrowserView {
public:
    //! \name Names of default properties and operations
    //! @{
    static char const* const DEFAULT_NAME_PROP;        //!< "default_name_prop"
    static char const* const DEFAULT_ICON_NAME_PROP;   //!< "default_icon_name_prop"
    static char const* const DEFAULT_BOLD_TEXT_PROP;   //!< "default_bold_text_prop"
    static char const* const DEFAULT_ITALIC_TEXT_PROP; //!< "default_italic_text_prop"
    static char const* const DEFAULT_COPYAT_OPERATION; //!< "default_copyat_operation"
    static char const* const DEFAULT_MOVETO_OPERATION; //!< "default_moveto_operation"
    //! @}

    //! A copy has the name, the connections and the switches of its own and shares everything else,
    //! which goes with the original; nothing may be done with the copy after that. The library
    //! never copies. Requires, for the assignment: no operation of the target is running.
    View(View const& other);
    View& operator=(View const& other);

    //! \name zbIBrowserView
    //! @{
    bool GetDataSourceSimpleList(std::vector<zbIBrowserDataSourceSimple*>& out) const override;
    zbIBrowserDataSourceSimple*
    GetDataSourceSimple(zbIBrowserDataSourceSimple const* source) const override;
    zbIBrowserDataSourceSimple* GetDataSourceSimple(char const* name) const override;
    zbIBrowserDataSourceSimple*
    GetDataSourceSimpleFromHierarchical(char const* name) const override;
    bool DataSourceConnect(zbIBrowserDataSourceHierarchical* source) override;
    bool DataSourceConnect(zbIBrowserDataSourceSimple* source) override;
    bool DataSourceDisconnectAll(bool removeContent) override;
    bool DataSourceDisconnect(char const* name) override;
    bool CreateViewOperation(char const* name) override;
    bool GetDataSourceHierarchicalList(
        std::vector<zbIBrowserDataSourceHierarchical*>& out) const override;
    zbIBrowserDataSourceHierarchical*
    GetDataSourceHierarchical(zbIBrowserDataSourceHierarchical const* source) const override;
    zbIBrowserDataSourceHierarchical* GetDataSourceHierarchical(char const* name) const override;
    zbString const& GetName() const override;
    zbIBrowserInfo* GetBrowserInfo() const override;
    zbIBrowserViewCtrl* GetViewCtrl() const override;
    zbIBrowserCollector* GetCollectorHandler() const override;
    void SetDataCtrl(zbIBrowserDataCtrl* const ctrl) override;
    zbIBrowserDataCtrl* GetDataCtrl() const override;
    bool
    GetFreeFoldersFromViewItems(std::vector<zbIBrowserViewItem*> const& items,
                                std::vector<zbIBrowserViewItemFreeFolder*>& out) const override;
    zbIBrowserViewItemFreeFolder* GetRootFreeFolder() const override;
    bool GetFreeFolderAbsolutePathName(zbIBrowserViewItemFreeFolder const* folder,
                                       zbString& out) const override;
    zbIBrowserStyle* GetViewItemStyle(zbIBrowserViewColumn* const column,
                                      zbIBrowserViewItem* const item) const override;
    bool SetViewItemStyle(zbIBrowserViewItem* const item) override;
    bool GetFreeFolderGroupLeafs(zbIBrowserViewItemFreeFolder* folder) const override;
    bool GetFreeFolderStyle(zbIBrowserViewItemFreeFolder* folder) const override;
    bool IsTextBold(zbIBrowserViewItem* const item, zbIBrowserStyleElement* const element,
                    bool& out) const override;
    bool IsTextItalic(zbIBrowserViewItem* const item, zbIBrowserStyleElement* const element,
                      bool& out) const override;
    bool GetColumns(std::vector<zbIBrowserViewColumn*>& out) const override;
    zbIBrowserViewColumn* GetDefaultColumn() const override;
    zbIBrowserViewColumn* FindColumn(char const* name) const override;
    void UpdatePreviousSelection() override;
    zbIBrowserViewOperation* FindViewOperation(char const* name) const override;
    void PerformVOPAttachedToGvnDOP(char const* name) override;
    bool EditSelectedDataItem(char const* operation) override;
    bool GetFilterNames(std::vector<zbIBrowserDataSourceSimple*>& out) const override;
    bool GetCurrentFilter(std::vector<zbIBrowserDataSourceSimple*>& out) const override;
    bool GetFilterByName(bool& out) const override;
    bool GetFilterMatchCase(bool& out) const override;
    bool GetFilterMatchWord(bool& out) const override;
    bool GetFilterUseRegExp(bool& out) const override;
    bool GetFilterLookupString(zbString& out) const override;
    zbIBrowserPopupMenu* CreatePopupMenu(char const* name) override;
    bool DeletePopupMenu(char const* name, bool flag) override;
    bool FindPopupMenu(zbIBrowserPopupMenu* const menu) const override;
    zbIBrowserPopupMenu* FindPopupMenu(char const* name) const override;
    bool GetAllPopupMenus(std::vector<zbIBrowserPopupMenu*>& out) override;
    zbIBrowserViewItem* GetNextViewItem(zbIBrowserViewItem const* const item, bool recurse,
                                        bool forward) const override;
    zbIBrowserViewColumn* GetSortedColumn() const override;
    bool GetAscendingOrder(zbIBrowserViewColumn* const column, bool& out) const override;
    bool GetSorting() const override;
    bool GetItalic() const override;
    zbIBrowserViewProperty* FindViewProperty(zbString const& name) const override;
    void CreateViewProperty(char const* name) override;
    bool DeleteViewProperty(zbIBrowserViewProperty* property) override;
    bool GetViewPropertyList(std::vector<zbIBrowserViewProperty*>& out) const override;
    void UpdateViewPropertyType(zbString const& name, ZBBROWSER_DATA_TYPE type) override;
    void GetFilterMapNames(zbString& out) const override;
    zbIBrowserSelectionManager* GetSelectionManager() const override;
    char const* GetCollectorGuiMapName() const override;
    bool IsBrowserCollectorOn() const override;
    bool IsBrowserColDisabled() const override;
    void OnBrowserColPerform() override;
    void ShowCollectorButton(ZBBROWSER_TCLAPI_KEYWORD button, bool show) override;
    void OnBrowserColDeselected() override;
    void OnBrowserColDisabled(bool disabled) override;
    void ResetCollector() override;
    void SetCollectorEnable(bool enable) override;
    bool IsCollectorEnable() const override;
    bool PerformCollectorOperation(ZBBROWSER_COLSEL_TYPE operation) const override;
    void ShowEmptyFolders(bool show) override;
    bool GetShowEmptyFoldersFlag() const override;
    bool IsEmptyFolderCanBeShown(zbIBrowserViewItem* const item) override;
    bool CreateFreeFolder(zbIBrowserViewItemFreeFolder const* parent,
                          zbString const& name) override;
    bool DeleteFreeFolder(zbIBrowserViewItemFreeFolder* folder, bool flag) override;
    bool SetFreeFolderGroupLeafs(zbIBrowserViewItemFreeFolder* folder, bool group) override;
    bool SetFreeFolderStyle(zbIBrowserViewItemFreeFolder* folder, bool style) override;
    bool SetFreeFolderShowEmptyContainers(zbIBrowserViewItemFreeFolder* folder, bool show) override;
    bool MakeCaptionBold(zbIBrowserViewItemFreeFolder* const folder,
                         zbIBrowserDataSourceSimple* const source, char const* caption) override;
    bool CreateIconColumn(char const* name, char const* title, char const* icon) override;
    bool CreateButtonColumn(char const* name, char const* title) override;
    bool CreateCheckBoxColumn(char const* name, char const* title) override;
    bool CreateTextBoxColumn(char const* name, char const* title) override;
    bool CreateComboBoxColumn(char const* name, char const* title) override;
    bool DeleteScriptedColumn(zbIBrowserViewColumn* column) override;
    bool ShowScriptedColumn(zbIBrowserViewColumn* const column, bool show) override;
    bool DeleteStyleElement(zbIBrowserStyleElement* element) override;
    bool SetCurrentFilter(std::set<zbIBrowserDataSourceSimple*> const& sources) override;
    void ShowAscendants(zbIBrowserViewItem* const item) override;
    bool SetFilterLookupString(zbString const& lookup) override;
    bool SetFilterMatchCaseFlag(bool match) override;
    bool SetFilterMatchWordFlag(bool match) override;
    bool GetFilterMatchWordFlag(bool& out) override;
    void DeselectAllViewItems() override;
    void OnSelectionChangeFinished() override;
    void ExpandAllItems() override;
    void ExpandSelectedItems() override;
    bool ExpandFreeFolder(zbIBrowserViewItemFreeFolder* folder, bool recursive) override;
    bool ExpandFreeFolderList(zbIBrowserViewItemFreeFolder* folder,
                              zbIBrowserDataSourceSimple* source, bool recursive) override;
    void CollapseAllItems() override;
    void CollapseSelectedItems() override;
    bool CollapseFreeFolder(zbIBrowserViewItemFreeFolder* folder, bool recursive) override;
    bool CollapseFreeFolderList(zbIBrowserViewItemFreeFolder* folder,
                                zbIBrowserDataSourceSimple* source, bool recursive) override;
    bool SetListCaption(zbIBrowserViewItem* const folder, zbIBrowserDataSourceSimple* const source,
                        char const* caption) override;
    bool SetSorting(bool sorting) override;
    void SetSortingException(zbIBrowserViewItemFreeFolder* const folder,
                             zbIBrowserDataSourceSimple* const source, int value) override;
    void SetCreateExpandedItem(zbIBrowserViewItemFreeFolder* const folder,
                               zbIBrowserDataSourceSimple* const source, int value) override;
    bool SetAscendingOrder(zbIBrowserViewColumn* const column, bool ascending) override;
    bool SetItalic(bool italic) override;
    bool SetKeepChildrenFreeFoldersInOrderAsCreated(zbIBrowserViewItemFreeFolder* folder,
                                                    bool keep) override;
    void SetDropItem(zbIBrowserViewItem* item) override;
    void ResetDropItem() override;
    void OnDataControlDeleted(char const* name) override;
    void DeselectViewItem(zbIBrowserViewItem const* const item, bool flag) override;
    bool SetFilterGrouping(bool grouping) override;
    bool GetFilterGrouping() const override;
    bool RebuildFilterLists() const override;
    zbIBrowserDataSourceSimple* GetFilterDataSource(char const* name) const override;
    bool GetConnected(std::set<zbIBrowserDataReference*>& out) const override;
    bool GetConnected(std::set<zbIBrowserDataSource*>& out) const override;
    bool Connect(zbIBrowserDataReference* reference, bool connect) override;
    bool Connect(zbIBrowserDataSource* source, bool connect) override;
    zbIBrowserDataSource* FindConnected(char const* name) override;
    bool IsNewView() const override;
    //! @}

    //! The view's controller, for what changes it.
    zbBrowserViewCtrl* GetViewCtrlPtr() const;

    //! The host's signals, asked anew each time. May be null.
    zbBrowserSignalManager* GetSignalManager() const;

    ViewItemVirtualRoot* GetVirtualRoot() const;
    ViewColumnDefault* GetDefaultColumnPtr() const;
    SortHandler* GetSortHandler() const;
    //! Null: this generation has no filter.
    FilterHandler* GetFilterHandlerImpl() const;

    //! Stored for the host, which may store what it likes; the library never follows it. Null at
    //! first, and when the item has left the view.
    zbIBrowserViewItem* GetLastFindStartPoint() const;
    void SetLastFindStartPoint(zbIBrowserViewItem* item);

    //! \name Parts
    //! @{

    //! Failure: throws the zbString "Initialized memory where null is expected, possible memory
    //! leak" if there is a root.
    void CreateVirtualRoot();
    void DeleteVirtualRoot();
    void CreatePropertyHolder();
    void DeletePropertyHolder();
    //! Adds those of the four default properties that are missing, and gives each its type.
    void CreateDefaultViewProperties();
    //! Does nothing: default properties go with their holder.
    void DeleteDefaultViewProperties();
    void CreateDefaultColumn();
    //! GetColumns gives null in its place.
    void DeleteDefaultColumn();
    void DeleteScriptedColumns();
    //! The default column first. No signals.
    void DeleteColumns();
    void CreateSortHandler();
    void DeleteSortHandler();
    //! Both do nothing, see GetFilterHandlerImpl.
    void CreateFilterHandler();
    void DeleteFilterHandler();
    //! @}

    //! \name View properties
    //! As those of zbBrowserView, but for what is said there.
    //! @{
    bool CreateVPConnect(zbIBrowserViewProperty* property, zbIBrowserDataSource* source,
                         zbIBrowserDataProperty* dataProperty);
    bool CreateVPConnect(zbIBrowserViewProperty* property, char const* script);
    bool DeleteVPConnect(zbIBrowserViewProperty* property, zbIBrowserDataSource* source);
    //! @}

    //! \name Columns and styles
    //! As those of zbBrowserView.
    //! @{
    zbIBrowserViewColumn* FindColumn(zbIBrowserViewColumn const* column) const;
    ViewColumnCustom* FindScriptedColumn(zbIBrowserViewColumn const* const column) const;
    //! Null for an empty name, too.
    ViewColumnCustom* CreateColumnCustom(zbString const& name);
    //! The index of a scripted column. 0 for any other column, null included.
    unsigned GetColumnIndex(zbIBrowserViewColumn const* column) const;
    bool RemoveViewItemStyle(zbIBrowserViewItem* const item);
    //! False always.
    bool GetCheckBoxValue(zbIBrowserViewItem* const item, zbIBrowserStyleElement* const element,
                          bool& out) const;
    //! @}

    //! Walks all folders and changes nothing: their child folders are sorted once, and rows of this
    //! generation stand as the data side gave them.
    void SetAllDataItemListsUnsorted();

    //! \name Settings of folders that only old views have
    //! Each tests the folder as described for zbIBrowserView, throwing where that says so, and then
    //! answers false.
    //! @{
    bool ChildrenAdd(zbIBrowserViewItemFreeFolder* folder, zbIBrowserDataReference* reference,
                     zbIBrowserDataSource* source, bool flag);
    bool ChildrenGroup(zbIBrowserViewItemFreeFolder* folder, zbIBrowserDataReference* reference,
                       zbIBrowserDataSource* source, bool flag);
    bool ChildrenShowEmptyGroupingFolder(zbIBrowserViewItemFreeFolder* folder,
                                         zbIBrowserDataReference* reference,
                                         zbIBrowserDataSource* source, bool flag);
    bool ListAdd(zbIBrowserViewItemFreeFolder* folder, zbIBrowserDataSource* source, bool flag);
    bool ListGroup(zbIBrowserViewItemFreeFolder* folder, zbIBrowserDataSource* source, bool flag);
    bool ListShowEmptyGroupingFolder(zbIBrowserViewItemFreeFolder* folder,
                                     zbIBrowserDataSource* source, bool flag);
    //! @}

    //! \name Not offered
    //! False, whatever the folder is.
    //! @{
    bool DeleteTreeParentChild(zbIBrowserViewItemFreeFolder* folder,
                               zbIBrowserDataReference* reference, zbIBrowserDataSource* parent,
                               zbIBrowserDataSource* child);
    bool DeleteTreeTopLevel(zbIBrowserViewItemFreeFolder* folder, zbIBrowserDataSource* source);
    bool GetCaption(zbIBrowserViewItemFreeFolder* folder, zbString& out) const;
    //! @}

    //! Announces that the filter changed: clears the selection.
    //! Signals: `ViewContentChanged(view)`, `ViewChanged(view)`. True.
    bool ApplyCurrentFilter();

    //! \name Batches
    //! @{

    //! Begins or ends batch mode; nothing else happens. No lock in the sense of threads, and it
    //! does not nest.
    void Lock(bool lock);
    bool IsLocked() const;

    //! Checks that the view is locked; the record is left as it was.
    //! Failure: throws the zbString "Unexpected general error" if the view is not locked.
    void Fill(PendingViewChangeInfo& info);

    void ClearDirtyForWindowItems();
    void UpdateDirtyForWindowItems();
    void AllDataDependentItemsDelete(bool flag);

    //! Allowed while locked.
    void AllDirtyDataDependentItemsRebuild(bool flag);
    //! @}

    //! \name Items
    //! @{

    //! Opens or closes a row or group. An item that is a free folder is left alone: true.
    //! Failure: throws as the lookup of the folder in which the item stands, so "Null pointer hit"
    //! for the root. Expand answers false first of all while the view is locked; Collapse works
    //! then.
    bool Expand(zbIBrowserViewItem* item);
    bool Collapse(zbIBrowserViewItem* item);

    //! Does nothing: this generation hides nothing on request.
    void Hide(zbIBrowserViewItem* item);

    bool IsViewItemSelected(zbIBrowserViewItem* item);
    //! @}

    //! \name View items and data items
    //! Sets come in the order of addresses. Items that are null or of another view are passed over.
    //! @{

    //! The data items that the items show; a folder stands for its rows, with `recursive` also for
    //! those below. False: `items` is empty.
    bool GetDataItemsFromViewItems(std::vector<zbIBrowserViewItem*> const& items,
                                   std::set<zbIBrowserDataItem*>& out, bool recursive) const;
    //! The same, of one source only.
    bool GetDataItemsFromViewItems(std::vector<zbIBrowserViewItem*> const& items,
                                   std::set<zbIBrowserDataItem*>& out,
                                   zbIBrowserDataSource* const source, bool recursive) const;
    //! The sources of those, with `withAncestors` also of the rows above them.
    bool GetDataSourcesFromViewItems(std::vector<zbIBrowserViewItem*> const& items,
                                     std::set<zbIBrowserDataSource*>& out,
                                     bool withAncestors) const;
    //! Appends the items that show any of `dataItems`.
    void GetDataDependentViewItems(std::set<zbIBrowserDataItem*> const& dataItems,
                                   std::vector<zbIBrowserViewItem*>& out) const;
    //! @}

    //! \name Events, given by the controller
    //! @{
    //! Selects, or deselects, what shows these items. Nothing happens while the sync flag of the
    //! selection manager is false.
    void OnDataItemsSelected(std::vector<zbIBrowserDataItem*> const& items, bool clear, bool flag);
    void OnDataItemsDeselected(std::vector<zbIBrowserDataItem*> const& items);
    void OnUpdateViewSelection(std::vector<zbIBrowserViewItem*> const& items, bool select,
                               bool clear);
    void OnPopupSelection(bool flag);
    void OnGuiMapDeleted(zbString const& name);
    //! @}

protected:
    View(zbBrowserViewCtrl const* ctrl, zbString const& name);
    virtual ~View();

private:
    friend class ViewsInfo;
    friend class ::zbBrowserViewCtrl;

    //! Deletes the view now or, if one of its operations is running, when that returns.
    static void Destroy(View* view);

    void CreateSelectionManager();
    void CleanUp();

    //! Forgets the host's data.
    void LetGo();

    //! The one way from a folder's interface to the folder itself.
    //! Failure: throws for null, for an item of another view and for an item that is no free
    //! folder. Null: the folder does not stand in this view's tree.
    ViewItemFreeFolder* FindFreeFolderImpl(zbIBrowserViewItem const* item) const;

    //! FindFreeFolderImpl for those who cannot go on without: throws "Null pointer hit" if it is
    //! null.
    ViewItemFreeFolder& RequireFreeFolder(zbIBrowserViewItem const* item) const;

    //! Makes pending records of a folder take effect.
    bool ApplyPendingChanges(zbIBrowserViewItemFreeFolder* folder, bool immediately);

    zbString name_;
    zbBrowserViewCtrl const* viewCtrl_;         // Not owned, never null
    zbIBrowserDataCtrl* dataCtrl_ = nullptr;    // Not owned, may be null
    detail::NewViewContext* context_ = nullptr; // Owned unless this is a copy
    bool sorting_ = true;
    bool italic_ = true;
    bool showEmptyFolders_ = true;
    bool locked_ = false;
    bool isCopy_ = false;
    std::set<zbIBrowserDataSource*> connectedSources_;       // Not owned
    std::set<zbIBrowserDataReference*> connectedReferences_; // Not owned
};

} // namespace zbbrowser
