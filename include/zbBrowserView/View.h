// SPDX-License-Identifier: MIT
//! \file
//! zbbrowser::View: a view of the new generation.
//!
//! Contents:
//! 1. Life, name, data control, connections, lock: src/view/View.cpp
//! 2. Answers of what this generation does not offer: src/view/View_NotOffered.cpp
//! 3. What is not built yet and answers neutrally until then: src/view/View_Shell.cpp
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

namespace zbbrowser {

struct PendingViewChangeInfo;
class ViewItemFreeFolder;
class ViewsInfo;

namespace detail {
class ViewLifetime;
}

//! A view of the new generation. It holds a configuration per folder, is rebuilt in batches, and
//! hands its changes to the host's widget as flags on its items.
//!
//! The operations of zbIBrowserView are told there. A batch runs like this: `Lock(true)`, `Fill`,
//! the host's changes, `UpdateDirtyForWindowItems`, `ClearDirtyForWindowItems`, the pending changes
//! of each folder, `Lock(false)`. While it is locked, the view refuses to create or delete folders,
//! to expand items, and to be told that its data control goes.
//!
//! Of this generation there is so far the object itself: name, controller, data control,
//! connections, lock, and the switches for sorting, italic and empty folders. It has no root
//! folder, no columns and no handlers yet, and answers what needs them as a view without any would:
//! with null, false, or the zbString "Null pointer hit" for a folder that it cannot find.
//!
//! Ownership: made and deleted by the controller only.
class ZBBROWSERVIEW_API View : public zbIBrowserView {
public:
    //! A copy shows the same data and the same controller, but is no view of that controller.
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

    //! \name Events, given by the controller
    //! @{
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

    //! Forgets the host's data.
    void LetGo();

    //! The one way from a folder's interface to the folder itself.
    //! Failure: throws for null, for an item of another view and for an item that is no free
    //! folder. Null: the folder does not stand in this view's tree.
    ViewItemFreeFolder* FindFreeFolderImpl(zbIBrowserViewItem const* item) const;

    //! FindFreeFolderImpl for those who cannot go on without: throws "Null pointer hit" if it is
    //! null.
    ViewItemFreeFolder* RequireFreeFolder(zbIBrowserViewItem const* item) const;

    //! Makes pending records of a folder take effect.
    bool ApplyPendingChanges(zbIBrowserViewItemFreeFolder* folder, bool immediately);

    zbString name_;
    zbBrowserViewCtrl const* viewCtrl_;      // Not owned, never null
    zbIBrowserDataCtrl* dataCtrl_ = nullptr; // Not owned, may be null
    bool sorting_ = true;
    bool italic_ = true;
    bool showEmptyFolders_ = true;
    bool locked_ = false;
    std::set<zbIBrowserDataSource*> connectedSources_;       // Not owned
    std::set<zbIBrowserDataReference*> connectedReferences_; // Not owned
    std::unique_ptr<detail::ViewLifetime> lifetime_;         // Of each copy its own
};

} // namespace zbbrowser
