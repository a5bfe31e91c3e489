// SPDX-License-Identifier: MIT
//! \file
//! View items that belong to whatever view a test says.
#pragma once

#include <zbBrowserView/zbIBrowserViewItemFreeFolder.h>

#include <string>
#include <utility>

namespace zbtest {

//! zbIBrowserViewItem, whose own destructor is not virtual, for ItemDoubleOf to derive from.
class DestructibleItem : public zbIBrowserViewItem {
public:
    virtual ~DestructibleItem() = default;
};

//! A row of no data, or a folder without content, in a view that the test chooses.
template <class Interface>
class ItemDoubleOf : public Interface {
public:
    explicit ItemDoubleOf(zbIBrowserView* itsView)
        : view(itsView) {}

    zbIBrowserView* view;
    zbIBrowserViewItemFreeFolder* parentFolder = nullptr;
    mutable int timesAskedForView = 0;

    zbIBrowserView* GetView() const override {
        ++timesAskedForView;
        return view;
    }
    zbIBrowserDataItemSimple* GetDataItemSimple() const override { return nullptr; }
    zbIBrowserDataItemHierarchical* GetDataItemHierarchical() const override { return nullptr; }
    zbIBrowserDataItem* GetDataItem() const override { return nullptr; }
    bool GetDataSources(std::vector<zbIBrowserDataSource*>&) const override { return false; }
    zbIBrowserViewItem* GetParent() const override { return parentFolder; }
    zbIBrowserViewItemFreeFolder* GetParentFreeFolder() const override { return parentFolder; }
    bool IsExpanded() const override { return false; }
    bool IsDependentFolder() const override { return false; }
    bool IsFreeFolder() const override { return false; }
    std::uint64_t GetChildrenCount() const override { return 0; }
    bool IsGroupingFolder() const override { return false; }
    bool GetChanges(zbbrowser::ViewItemChanges&) const override { return false; }
    bool IsHidden() const override { return false; }
    bool HasDataSource(zbIBrowserDataSource*) const override { return false; }
    bool IsDataLeaf() const override { return true; }
    bool IsDataContainer() const override { return false; }
    bool IsDataNode() const override { return false; }
    void Show() override {}
};

using ItemDouble = ItemDoubleOf<DestructibleItem>;

class FolderDouble final : public ItemDoubleOf<zbIBrowserViewItemFreeFolder> {
public:
    FolderDouble(zbIBrowserView* itsView, std::string name)
        : ItemDoubleOf(itsView)
        , name_(std::move(name)) {}

    bool isFreeFolder = true;

    bool IsFreeFolder() const override { return isFreeFolder; }
    bool IsDataLeaf() const override { return false; }
    bool CreateList(zbIBrowserDataSourceSimple*) override { return false; }
    bool DeleteTreeRecursive(zbIBrowserDataSourceHierarchical*) override { return false; }
    bool DeleteListRecursive(zbIBrowserDataSourceSimple*) override { return false; }
    bool GetLists(std::vector<zbIBrowserDataSourceSimple*>&) const override { return false; }
    bool GetAllLists(std::vector<zbIBrowserDataSourceSimple*>&, bool) const override {
        return false;
    }
    zbIBrowserDataSourceSimple* FindList(char const*) const override { return nullptr; }
    zbIBrowserDataSourceSimple* FindList(zbIBrowserDataSourceSimple const*) const override {
        return nullptr;
    }
    zbIBrowserDataSourceSimple* FindDataSourceSimple(char const*) const override { return nullptr; }
    zbIBrowserDataSourceHierarchical* FindTree(char const*) const override { return nullptr; }
    bool CreateTree(zbIBrowserDataSourceHierarchical*) override { return false; }
    bool GetTrees(std::vector<zbIBrowserDataSourceHierarchical*>&) const override { return false; }
    bool GetTreeParentChildRecords(std::vector<zbbrowser::TreeParentChildRecord>&) const override {
        return false;
    }
    bool GetTreeTopLevelRecords(std::vector<zbbrowser::TreeTopLevelRecord>&) const override {
        return false;
    }
    zbIBrowserDataSource* FindDataSource(zbString const&) const override { return nullptr; }
    char const* GetName() const override { return name_.c_str(); }
    bool SetListGrouped(zbIBrowserDataSourceSimple*, bool) override { return false; }
    bool SetChildTypeGrouped(zbIBrowserDataSourceHierarchical*, zbIBrowserDataSourceSimple*,
                             bool) override {
        return false;
    }
    bool SetTreeGrouped(zbIBrowserDataSourceHierarchical*, bool) override { return false; }
    bool GetGroupLeafs() const override { return false; }
    bool GetFreeFolderStyle() const override { return false; }
    bool GetShowEmptyContainers() const override { return false; }
    bool GetKeepChildrenInOrder() const override { return false; }
    bool GetChildTypes(zbIBrowserDataSourceHierarchical*,
                       std::vector<zbIBrowserDataSourceSimple*>&) const override {
        return false;
    }
    bool IsChildTypeShown(zbIBrowserDataSourceHierarchical*, zbIBrowserDataSourceSimple*,
                          bool&) const override {
        return false;
    }
    bool IsChildTypeGrouped(zbIBrowserDataSourceHierarchical*, zbIBrowserDataSourceSimple*,
                            bool&) const override {
        return false;
    }
    bool GetAllDataSources(std::vector<zbIBrowserDataSource*>&, bool) const override {
        return false;
    }
    bool GetChildFreeFolders(std::vector<zbIBrowserViewItemFreeFolder*>&, bool, bool) override {
        return false;
    }
    zbIBrowserViewItemFreeFolder* FindChildFreeFolder(zbString const&) const override {
        return nullptr;
    }
    void SetIconShowsData(bool, bool) override {}
    void SetCaptionShowsCount(bool, bool) override {}
    bool IsVirtualRoot() const override { return false; }
    bool IsDataEmpty(bool) const override { return false; }
    void SetTextBold(bool) override {}
    bool GetTextBold() const override { return false; }
    void SetTextItalic(bool) override {}
    bool GetTextItalic() const override { return false; }
    void SetShowWhenEmpty(bool, bool) override {}
    bool GetShowWhenEmpty() const override { return false; }
    void SetAttachedObject(void*) override {}
    void* GetAttachedObject() const override { return nullptr; }
    void SetExpandedFlag(bool) override {}
    zbIBrowserView* GetViewImpl() const override { return view; }
    void SetParentFolder(zbIBrowserViewItemFreeFolder* parent) override { parentFolder = parent; }

private:
    std::string name_;
};

} // namespace zbtest
