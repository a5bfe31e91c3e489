// SPDX-License-Identifier: MIT
//! \file
//! A view that does nothing.
#pragma once

#include <zbBrowserView/zbIBrowserView.h>

namespace zbtest {

//! Answers every operation of zbIBrowserView with false, null or nothing. Tests derive from it and
//! override what they are about.
class SilentView : public zbIBrowserView {
public:
    explicit SilentView(zbString name)
        : name_(std::move(name)) {}

    zbString const& GetName() const override { return name_; }
    bool IsNewView() const override { return false; }
    bool GetDataSourceSimpleList(std::vector<zbIBrowserDataSourceSimple*>&) const override {
        return false;
    }
    zbIBrowserDataSourceSimple*
    GetDataSourceSimple(zbIBrowserDataSourceSimple const*) const override {
        return nullptr;
    }
    zbIBrowserDataSourceSimple* GetDataSourceSimple(char const*) const override { return nullptr; }
    zbIBrowserDataSourceSimple* GetDataSourceSimpleFromHierarchical(char const*) const override {
        return nullptr;
    }
    bool DataSourceConnect(zbIBrowserDataSourceHierarchical*) override { return false; }
    bool DataSourceConnect(zbIBrowserDataSourceSimple*) override { return false; }
    bool DataSourceDisconnectAll(bool) override { return false; }
    bool DataSourceDisconnect(char const*) override { return false; }
    bool CreateViewOperation(char const*) override { return false; }
    bool
    GetDataSourceHierarchicalList(std::vector<zbIBrowserDataSourceHierarchical*>&) const override {
        return false;
    }
    zbIBrowserDataSourceHierarchical*
    GetDataSourceHierarchical(zbIBrowserDataSourceHierarchical const*) const override {
        return nullptr;
    }
    zbIBrowserDataSourceHierarchical* GetDataSourceHierarchical(char const*) const override {
        return nullptr;
    }
    zbIBrowserInfo* GetBrowserInfo() const override { return nullptr; }
    zbIBrowserViewCtrl* GetViewCtrl() const override { return nullptr; }
    zbIBrowserCollector* GetCollectorHandler() const override { return nullptr; }
    void SetDataCtrl(zbIBrowserDataCtrl* const) override {}
    zbIBrowserDataCtrl* GetDataCtrl() const override { return nullptr; }
    bool GetFreeFoldersFromViewItems(std::vector<zbIBrowserViewItem*> const&,
                                     std::vector<zbIBrowserViewItemFreeFolder*>&) const override {
        return false;
    }
    zbIBrowserViewItemFreeFolder* GetRootFreeFolder() const override { return nullptr; }
    bool GetFreeFolderAbsolutePathName(zbIBrowserViewItemFreeFolder const*,
                                       zbString&) const override {
        return false;
    }
    zbIBrowserStyle* GetViewItemStyle(zbIBrowserViewColumn* const,
                                      zbIBrowserViewItem* const) const override {
        return nullptr;
    }
    bool SetViewItemStyle(zbIBrowserViewItem* const) override { return false; }
    bool GetFreeFolderGroupLeafs(zbIBrowserViewItemFreeFolder*) const override { return false; }
    bool GetFreeFolderStyle(zbIBrowserViewItemFreeFolder*) const override { return false; }
    bool IsTextBold(zbIBrowserViewItem* const, zbIBrowserStyleElement* const,
                    bool&) const override {
        return false;
    }
    bool IsTextItalic(zbIBrowserViewItem* const, zbIBrowserStyleElement* const,
                      bool&) const override {
        return false;
    }
    bool GetColumns(std::vector<zbIBrowserViewColumn*>&) const override { return false; }
    zbIBrowserViewColumn* GetDefaultColumn() const override { return nullptr; }
    zbIBrowserViewColumn* FindColumn(char const*) const override { return nullptr; }
    void UpdatePreviousSelection() override {}
    zbIBrowserViewOperation* FindViewOperation(char const*) const override { return nullptr; }
    void PerformVOPAttachedToGvnDOP(char const*) override {}
    bool EditSelectedDataItem(char const*) override { return false; }
    bool GetFilterNames(std::vector<zbIBrowserDataSourceSimple*>&) const override { return false; }
    bool GetCurrentFilter(std::vector<zbIBrowserDataSourceSimple*>&) const override {
        return false;
    }
    bool GetFilterByName(bool&) const override { return false; }
    bool GetFilterMatchCase(bool&) const override { return false; }
    bool GetFilterMatchWord(bool&) const override { return false; }
    bool GetFilterUseRegExp(bool&) const override { return false; }
    bool GetFilterLookupString(zbString&) const override { return false; }
    zbIBrowserPopupMenu* CreatePopupMenu(char const*) override { return nullptr; }
    bool DeletePopupMenu(char const*, bool) override { return false; }
    bool FindPopupMenu(zbIBrowserPopupMenu* const) const override { return false; }
    zbIBrowserPopupMenu* FindPopupMenu(char const*) const override { return nullptr; }
    bool GetAllPopupMenus(std::vector<zbIBrowserPopupMenu*>&) override { return false; }
    zbIBrowserViewItem* GetNextViewItem(zbIBrowserViewItem const* const, bool,
                                        bool) const override {
        return nullptr;
    }
    zbIBrowserViewColumn* GetSortedColumn() const override { return nullptr; }
    bool GetAscendingOrder(zbIBrowserViewColumn* const, bool&) const override { return false; }
    bool GetSorting() const override { return false; }
    bool GetItalic() const override { return false; }
    zbIBrowserViewProperty* FindViewProperty(zbString const&) const override { return nullptr; }
    void CreateViewProperty(char const*) override {}
    bool DeleteViewProperty(zbIBrowserViewProperty*) override { return false; }
    bool GetViewPropertyList(std::vector<zbIBrowserViewProperty*>&) const override { return false; }
    void UpdateViewPropertyType(zbString const&, ZBBROWSER_DATA_TYPE) override {}
    void GetFilterMapNames(zbString&) const override {}
    zbIBrowserSelectionManager* GetSelectionManager() const override { return nullptr; }
    char const* GetCollectorGuiMapName() const override { return ""; }
    bool IsBrowserCollectorOn() const override { return false; }
    bool IsBrowserColDisabled() const override { return false; }
    void OnBrowserColPerform() override {}
    void ShowCollectorButton(ZBBROWSER_TCLAPI_KEYWORD, bool) override {}
    void OnBrowserColDeselected() override {}
    void OnBrowserColDisabled(bool) override {}
    void ResetCollector() override {}
    void SetCollectorEnable(bool) override {}
    bool IsCollectorEnable() const override { return false; }
    bool PerformCollectorOperation(ZBBROWSER_COLSEL_TYPE) const override { return false; }
    void ShowEmptyFolders(bool) override {}
    bool GetShowEmptyFoldersFlag() const override { return false; }
    bool IsEmptyFolderCanBeShown(zbIBrowserViewItem* const) override { return false; }
    bool CreateFreeFolder(zbIBrowserViewItemFreeFolder const*, zbString const&) override {
        return false;
    }
    bool DeleteFreeFolder(zbIBrowserViewItemFreeFolder*, bool) override { return false; }
    bool SetFreeFolderGroupLeafs(zbIBrowserViewItemFreeFolder*, bool) override { return false; }
    bool SetFreeFolderStyle(zbIBrowserViewItemFreeFolder*, bool) override { return false; }
    bool SetFreeFolderShowEmptyContainers(zbIBrowserViewItemFreeFolder*, bool) override {
        return false;
    }
    bool MakeCaptionBold(zbIBrowserViewItemFreeFolder* const, zbIBrowserDataSourceSimple* const,
                         char const*) override {
        return false;
    }
    bool CreateIconColumn(char const*, char const*, char const*) override { return false; }
    bool CreateButtonColumn(char const*, char const*) override { return false; }
    bool CreateCheckBoxColumn(char const*, char const*) override { return false; }
    bool CreateTextBoxColumn(char const*, char const*) override { return false; }
    bool CreateComboBoxColumn(char const*, char const*) override { return false; }
    bool DeleteScriptedColumn(zbIBrowserViewColumn*) override { return false; }
    bool ShowScriptedColumn(zbIBrowserViewColumn* const, bool) override { return false; }
    bool DeleteStyleElement(zbIBrowserStyleElement*) override { return false; }
    bool SetCurrentFilter(std::set<zbIBrowserDataSourceSimple*> const&) override { return false; }
    void ShowAscendants(zbIBrowserViewItem* const) override {}
    bool SetFilterLookupString(zbString const&) override { return false; }
    bool SetFilterMatchCaseFlag(bool) override { return false; }
    bool SetFilterMatchWordFlag(bool) override { return false; }
    bool GetFilterMatchWordFlag(bool&) override { return false; }
    void DeselectAllViewItems() override {}
    void OnSelectionChangeFinished() override {}
    void ExpandAllItems() override {}
    void ExpandSelectedItems() override {}
    bool ExpandFreeFolder(zbIBrowserViewItemFreeFolder*, bool) override { return false; }
    bool ExpandFreeFolderList(zbIBrowserViewItemFreeFolder*, zbIBrowserDataSourceSimple*,
                              bool) override {
        return false;
    }
    void CollapseAllItems() override {}
    void CollapseSelectedItems() override {}
    bool CollapseFreeFolder(zbIBrowserViewItemFreeFolder*, bool) override { return false; }
    bool CollapseFreeFolderList(zbIBrowserViewItemFreeFolder*, zbIBrowserDataSourceSimple*,
                                bool) override {
        return false;
    }
    bool SetListCaption(zbIBrowserViewItem* const, zbIBrowserDataSourceSimple* const,
                        char const*) override {
        return false;
    }
    bool SetSorting(bool) override { return false; }
    void SetSortingException(zbIBrowserViewItemFreeFolder* const, zbIBrowserDataSourceSimple* const,
                             int) override {}
    void SetCreateExpandedItem(zbIBrowserViewItemFreeFolder* const,
                               zbIBrowserDataSourceSimple* const, int) override {}
    bool SetAscendingOrder(zbIBrowserViewColumn* const, bool) override { return false; }
    bool SetItalic(bool) override { return false; }
    bool SetKeepChildrenFreeFoldersInOrderAsCreated(zbIBrowserViewItemFreeFolder*, bool) override {
        return false;
    }
    void SetDropItem(zbIBrowserViewItem*) override {}
    void ResetDropItem() override {}
    void OnDataControlDeleted(char const*) override {}
    void DeselectViewItem(zbIBrowserViewItem const* const, bool) override {}
    bool SetFilterGrouping(bool) override { return false; }
    bool GetFilterGrouping() const override { return false; }
    bool RebuildFilterLists() const override { return false; }
    zbIBrowserDataSourceSimple* GetFilterDataSource(char const*) const override { return nullptr; }
    bool GetConnected(std::set<zbIBrowserDataReference*>&) const override { return false; }
    bool GetConnected(std::set<zbIBrowserDataSource*>&) const override { return false; }
    bool Connect(zbIBrowserDataReference*, bool) override { return false; }
    bool Connect(zbIBrowserDataSource*, bool) override { return false; }
    zbIBrowserDataSource* FindConnected(char const*) override { return nullptr; }

protected:
    ~SilentView() = default;

private:
    zbString name_;
};

} // namespace zbtest
