// SPDX-License-Identifier: MIT
//! \file
//! A folder of a new view.
#pragma once

#include "view/ViewLifetime.h"

#include <zbBrowserView/zbIBrowserView.h>
#include <zbBrowserView/zbIBrowserViewItemFreeFolder.h>

#include <map>
#include <memory>
#include <vector>

namespace zbbrowser {

namespace detail {
class NewViewContext;
}

//! A named folder with child folders. It lives as long as its view: this generation deletes no
//! folders. What it shows is not built yet, so it is without content.
//!
//! Names of siblings differ in more than case.
class ViewItemFreeFolder : public zbIBrowserViewItemFreeFolder, public detail::Retirable {
public:
    //! \param parent null for the root only
    ViewItemFreeFolder(detail::NewViewContext& context, ViewItemFreeFolder* parent, zbString name,
                       bool expanded = false);
    ViewItemFreeFolder(ViewItemFreeFolder const&) = delete;
    ViewItemFreeFolder& operator=(ViewItemFreeFolder const&) = delete;
    //! Silent. Folders below it go first, one after the other, however deep they are nested.
    ~ViewItemFreeFolder() override;

    //! \name zbIBrowserViewItem
    //! \{
    zbIBrowserView* GetView() const override;
    zbIBrowserDataItemSimple* GetDataItemSimple() const override { return nullptr; }
    zbIBrowserDataItemHierarchical* GetDataItemHierarchical() const override { return nullptr; }
    zbIBrowserDataItem* GetDataItem() const override { return nullptr; }
    bool GetDataSources(std::vector<zbIBrowserDataSource*>&) const override { return false; }
    zbIBrowserViewItem* GetParent() const override { return parent_; }
    zbIBrowserViewItemFreeFolder* GetParentFreeFolder() const override { return parent_; }
    bool IsExpanded() const override { return expanded_; }
    bool IsDependentFolder() const override { return false; }
    bool IsFreeFolder() const override { return true; }
    std::uint64_t GetChildrenCount() const override { return 0; }
    bool IsGroupingFolder() const override { return false; }
    bool GetChanges(ViewItemChanges&) const override { return false; }
    bool IsHidden() const override { return hidden_; }
    bool HasDataSource(zbIBrowserDataSource*) const override { return false; }
    bool IsDataLeaf() const override { return false; }
    bool IsDataContainer() const override { return false; }
    bool IsDataNode() const override { return false; }
    void Show() override;
    //! \}

    //! \name zbIBrowserViewItemFreeFolder
    //! \{
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
    bool GetTreeParentChildRecords(std::vector<TreeParentChildRecord>&) const override;
    bool GetTreeTopLevelRecords(std::vector<TreeTopLevelRecord>&) const override;
    zbIBrowserDataSource* FindDataSource(zbString const&) const override { return nullptr; }
    char const* GetName() const override { return name_.c_str(); }
    bool SetListGrouped(zbIBrowserDataSourceSimple*, bool) override { return false; }
    bool SetChildTypeGrouped(zbIBrowserDataSourceHierarchical*, zbIBrowserDataSourceSimple*,
                             bool) override {
        return false;
    }
    bool SetTreeGrouped(zbIBrowserDataSourceHierarchical*, bool) override { return false; }
    bool GetGroupLeafs() const override { return groupLeafs_; }
    bool GetFreeFolderStyle() const override { return style_; }
    bool GetShowEmptyContainers() const override { return showEmptyContainers_; }
    bool GetKeepChildrenInOrder() const override { return keepChildrenInOrder_; }
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
    bool GetChildFreeFolders(std::vector<zbIBrowserViewItemFreeFolder*>& out, bool sorted,
                             bool ascending) override;
    zbIBrowserViewItemFreeFolder* FindChildFreeFolder(zbString const& name) const override;
    void SetIconShowsData(bool show, bool recursive) override;
    void SetCaptionShowsCount(bool show, bool recursive) override;
    bool IsVirtualRoot() const override { return false; }
    bool IsDataEmpty(bool) const override { return false; }
    void SetTextBold(bool) override {}
    bool GetTextBold() const override { return false; }
    void SetTextItalic(bool) override {}
    bool GetTextItalic() const override { return false; }
    void SetShowWhenEmpty(bool show, bool recursive) override;
    bool GetShowWhenEmpty() const override { return showWhenEmpty_; }
    void SetAttachedObject(void*) override {}
    void* GetAttachedObject() const override { return nullptr; }
    void SetExpandedFlag(bool expanded) override { expanded_ = expanded; }
    zbIBrowserView* GetViewImpl() const override { return GetView(); }
    void SetParentFolder(zbIBrowserViewItemFreeFolder* parent) override { parent_ = parent; }
    //! \}

    //! Adds a folder behind the others.
    //! Signals: `ViewItemCreated(child)`, `FreeFolderCreated(this)`, `ViewItemChanged(this)`.
    //! Failure: throws the `char const*` "Child Free Folder with supplied name already exists in
    //! parent".
    void CreateChild(zbString const& name);

    //! This folder and all below.
    void SetStyle(bool style);
    void SetKeepChildrenInOrder(bool keep) { keepChildrenInOrder_ = keep; }
    void Expand() { expanded_ = true; }

    std::vector<std::unique_ptr<ViewItemFreeFolder>> const& ChildFolders() const {
        return children_;
    }
    //! What its texts say about the rows below it: nothing, in this generation.
    std::size_t CountAllViewItems() const { return 0; }
    bool IconShowsData() const { return iconShowsData_; }
    bool IsIconRecursive() const { return iconRecursive_; }
    bool CaptionShowsCount() const { return captionShowsCount_; }
    bool IsCaptionRecursive() const { return captionRecursive_; }

private:
    struct NameLess {
        bool operator()(char const* a, char const* b) const { return StrICmp(a, b) < 0; }
    };

    void RaiseChanged();
    void SortChildren();
    //! This folder and all below it; backwards, a folder comes after those below it.
    std::vector<ViewItemFreeFolder*> Below();

    detail::NewViewContext& context_;
    zbString const name_;
    zbIBrowserViewItemFreeFolder* parent_; // Not owned; as the host wrote it, never followed here
    std::vector<std::unique_ptr<ViewItemFreeFolder>> children_;        // In order of creation
    std::map<char const*, ViewItemFreeFolder*, NameLess> childByName_; // Keys are their names
    std::vector<zbIBrowserViewItemFreeFolder*> sortedChildren_;        // Valid if childrenSorted_
    bool childrenSorted_ = false;
    bool keepChildrenInOrder_ = true;
    bool expanded_;
    bool groupLeafs_ = false;
    bool style_ = false;
    bool showEmptyContainers_ = false;
    bool hidden_ = false;
    bool iconShowsData_ = false;
    bool iconRecursive_ = true;
    bool captionShowsCount_ = false;
    bool captionRecursive_ = false;
    bool showWhenEmpty_;
};

} // namespace zbbrowser
