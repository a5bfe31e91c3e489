// SPDX-License-Identifier: MIT
//! \file
//! The folder that a user makes, in an old view.
#pragma once

#include "containers/SlotVector.h"
#include "items/old/FolderPlace.h"
#include "view/ViewLifetime.h"

#include <zbBrowserView/zbBrowserView.h>
#include <zbBrowserView/zbIBrowserViewItemFreeFolder.h>

#include <memory>

class zbBrowserFreeFolderContentHolder;

namespace zbbrowser::detail {
class OldViewContext;
}

//! A free folder holds further free folders and, in its content holder, the lists and trees that it
//! shows. What an operation of the interface does is said there; here stands what the library
//! itself needs.
//!
//! The holder is made by the first operation that adds content or passes an event on. Operations
//! that only read do not make one and answer from nothing: false, an empty output or null.
//!
//! Two ways lead up: GetParent answers what SetParentFolder wrote, Owner() the folder that really
//! holds this one.
class zbBrowserViewItemFreeFolder : public zbIBrowserViewItemFreeFolder,
                                    public zbbrowser::detail::Retirable {
public:
    using OldViewContext = zbbrowser::detail::OldViewContext;

    //! \param owner null for the root only
    zbBrowserViewItemFreeFolder(OldViewContext& context, zbBrowserViewItemFreeFolder* owner,
                                zbString name, bool expanded = false);
    zbBrowserViewItemFreeFolder(zbBrowserViewItemFreeFolder const&) = delete;
    zbBrowserViewItemFreeFolder& operator=(zbBrowserViewItemFreeFolder const&) = delete;
    //! Silent. Folders below it go first, one after the other, however deep they are nested.
    ~zbBrowserViewItemFreeFolder() override;

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
    std::uint64_t GetChildrenCount() const override;
    bool IsGroupingFolder() const override { return false; }
    bool GetChanges(zbbrowser::ViewItemChanges&) const override { return false; }
    bool IsHidden() const override { return hidden_; }
    bool HasDataSource(zbIBrowserDataSource* source) const override;
    bool IsDataLeaf() const override { return false; }
    bool IsDataContainer() const override { return false; }
    bool IsDataNode() const override { return false; }
    void Show() override;
    //! \}

    //! \name zbIBrowserViewItemFreeFolder
    //! \{
    bool CreateList(zbIBrowserDataSourceSimple* source) override;
    bool DeleteTreeRecursive(zbIBrowserDataSourceHierarchical* tree) override;
    bool DeleteListRecursive(zbIBrowserDataSourceSimple* source) override;
    bool GetLists(std::vector<zbIBrowserDataSourceSimple*>& out) const override;
    bool GetAllLists(std::vector<zbIBrowserDataSourceSimple*>& out, bool recursive) const override;
    zbIBrowserDataSourceSimple* FindList(char const* name) const override;
    zbIBrowserDataSourceSimple* FindList(zbIBrowserDataSourceSimple const* source) const override;
    zbIBrowserDataSourceSimple* FindDataSourceSimple(char const* name) const override;
    zbIBrowserDataSourceHierarchical* FindTree(char const* name) const override;
    bool CreateTree(zbIBrowserDataSourceHierarchical* tree) override;
    bool GetTrees(std::vector<zbIBrowserDataSourceHierarchical*>& out) const override;
    bool GetTreeParentChildRecords(std::vector<zbbrowser::TreeParentChildRecord>&) const override;
    bool GetTreeTopLevelRecords(std::vector<zbbrowser::TreeTopLevelRecord>&) const override;
    zbIBrowserDataSource* FindDataSource(zbString const& name) const override;
    char const* GetName() const override { return name_.c_str(); }
    bool SetListGrouped(zbIBrowserDataSourceSimple* source, bool grouped) override;
    bool SetChildTypeGrouped(zbIBrowserDataSourceHierarchical* tree,
                             zbIBrowserDataSourceSimple* type, bool grouped) override;
    bool SetTreeGrouped(zbIBrowserDataSourceHierarchical* tree, bool grouped) override;
    bool GetGroupLeafs() const override { return groupLeafs_; }
    bool GetFreeFolderStyle() const override { return style_; }
    bool GetShowEmptyContainers() const override { return showEmptyContainers_; }
    bool GetKeepChildrenInOrder() const override { return keepChildrenInOrder_; }
    bool GetChildTypes(zbIBrowserDataSourceHierarchical* tree,
                       std::vector<zbIBrowserDataSourceSimple*>& out) const override;
    bool IsChildTypeShown(zbIBrowserDataSourceHierarchical* tree, zbIBrowserDataSourceSimple* type,
                          bool& out) const override;
    bool IsChildTypeGrouped(zbIBrowserDataSourceHierarchical* tree,
                            zbIBrowserDataSourceSimple* type, bool& out) const override;
    bool GetAllDataSources(std::vector<zbIBrowserDataSource*>& out, bool recursive) const override;
    bool GetChildFreeFolders(std::vector<zbIBrowserViewItemFreeFolder*>& out, bool sorted,
                             bool ascending) override;
    zbIBrowserViewItemFreeFolder* FindChildFreeFolder(zbString const& name) const override;
    void SetIconShowsData(bool show, bool recursive) override;
    void SetCaptionShowsCount(bool show, bool recursive) override;
    bool IsVirtualRoot() const override { return false; }
    bool IsDataEmpty(bool recursive) const override;
    void SetTextBold(bool bold) override;
    bool GetTextBold() const override { return textBold_; }
    void SetTextItalic(bool italic) override;
    bool GetTextItalic() const override { return textItalic_; }
    void SetShowWhenEmpty(bool show, bool recursive) override;
    bool GetShowWhenEmpty() const override { return showWhenEmpty_; }
    void SetAttachedObject(void* object) override;
    void* GetAttachedObject() const override { return attachedObject_; }
    void SetExpandedFlag(bool) override {}
    zbBrowserView* GetViewImpl() const override;
    void SetParentFolder(zbIBrowserViewItemFreeFolder* parent) override { parent_ = parent; }
    //! \}

    //! \name Structure
    //! \{
    OldViewContext& Context() const { return context_; }
    //! The folder that holds this one; null for the root, and once this one has been deleted.
    zbBrowserViewItemFreeFolder* Owner() const { return owner_; }
    zbbrowser::detail::FolderPlace const& Place() const { return place_; }
    //! False once it has been deleted and only waits to be freed.
    bool IsAlive() const { return alive_; }
    //! Null until content was first added or an event passed on.
    zbBrowserFreeFolderContentHolder* Holder() const { return holder_.get(); }
    zbBrowserFreeFolderContentHolder& RequireHolder();
    //! In the order of creation; a hole is null.
    std::vector<std::unique_ptr<zbBrowserViewItemFreeFolder>> const& ChildFolders() const {
        return children_.Slots();
    }
    std::size_t ChildFolderCount() const { return children_.Count(); }

    //! Adds a folder behind the others and raises the signals of zbBrowserView::CreateFreeFolder.
    void CreateChildFolder(zbString const& name);
    //! Detaches all that it holds, silently, and dies itself. Its owner has to free it.
    void LetGo();
    //! Removes one; see zbBrowserView::DeleteFreeFolder.
    void DeleteChildFolder(zbBrowserViewItemFreeFolder& folder, bool deleteContent);
    //! Child folders as they are to be shown: without the hidden ones.
    void GetChildFolderItems(std::vector<zbIBrowserViewItem*>& out, bool sorted, bool ascending);
    //! Child folders and rows as they are to be shown, in the order of the sort handler.
    void GetChildren(std::vector<zbIBrowserViewItem*>& out);
    void SetKeepChildrenInOrder(bool keep) { keepChildrenInOrder_ = keep; }
    void SetHidden(bool hidden) { hidden_ = hidden; }
    //! \}

    //! \name Content
    //! \{
    //! Takes the list or tree out of this folder. Without a holder true.
    bool DeleteList(zbIBrowserDataSourceSimple* source);
    bool DeleteTree(zbIBrowserDataSourceHierarchical* tree);
    bool SetGroupLeafs(bool group);
    bool SetStyle(bool style);
    bool SetShowEmptyContainers(bool show);
    bool SetListCaption(zbIBrowserDataSourceSimple* source, char const* caption);
    bool SetShowChildType(zbIBrowserDataSourceHierarchical* tree, zbIBrowserDataSourceSimple* type,
                          bool show);
    //! The rows of this folder, with `recursive` of those below it too.
    bool GetAllViewItems(std::vector<zbIBrowserViewItem*>& out, bool recursive) const;
    //! How many that are with `recursive`, without making a list of them. O(folders below).
    std::size_t CountAllViewItems() const;
    void ApplyFilter();
    void SelectChildren(bool select);
    //! A holder, and child folders or visible rows.
    bool HasChildren() const;
    //! No child folders, lists or trees. A list whose items are all hidden counts.
    bool IsContentEmpty() const;
    bool IconShowsData() const { return iconShowsData_; }
    bool IsIconRecursive() const { return iconRecursive_; }
    bool CaptionShowsCount() const { return captionShowsCount_; }
    bool IsCaptionRecursive() const { return captionRecursive_; }
    bool IconShowsDataOrRecursive() const { return iconShowsData_ || iconRecursive_; }
    //! \}

    //! \name Expansion
    //! \{
    void Expand(bool buildRecursive, bool silent);
    void Collapse(bool deselectSelf, bool deselectChildren, bool silent);
    bool ExpandRecursive(bool recursive);
    bool CollapseRecursive(bool recursive);
    void SetExpandedAll(bool expand, bool showAll, bool silent);
    bool ExpandList(zbIBrowserDataSourceSimple* list, bool recursive);
    bool CollapseList(zbIBrowserDataSourceSimple* list, bool recursive);
    //! \}

    //! The guard against calls that come back from a slot. A throwing slot leaves it set.
    bool IsBusy() const { return busy_; }
    void SetBusy(bool busy) { busy_ = busy; }

protected:
    //! Deletes all folders below, silently.
    void DeleteChildFolders();

private:
    using FolderPtr = std::unique_ptr<zbBrowserViewItemFreeFolder>;

    void RaiseChanged();
    //! Keeps the last message of a content that refused. Always false.
    bool Refuse(zbString const& message);
    void RetireHolder();
    //! Throws nothing.
    void ReplaceHolder(std::unique_ptr<zbBrowserFreeFolderContentHolder> holder);
    static void RetireSubtree(zbBrowserViewItemFreeFolder& top);
    //! Takes it out of the register and parks its holder.
    void Die();
    //! The child folders in the order that is asked for.
    template <class Visit>
    void ForEachChild(bool sorted, bool ascending, Visit visit);
    void SortChildren();
    void SetListExpanded(bool expand, zbIBrowserDataSourceSimple* list, bool recursive);
    //! Moves all lists and trees from one list strategy to the other.
    void MoveContent(bool grouped);
    void ConnectRecorded(std::vector<zbIBrowserDataSourceSimple*> const& lists,
                         std::vector<zbIBrowserDataSourceHierarchical*> const& trees);

    OldViewContext& context_;
    zbString const name_;
    zbIBrowserViewItemFreeFolder* parent_; // Not owned; as the host wrote it, never followed here
    zbBrowserViewItemFreeFolder* owner_;   // Not owned
    zbbrowser::detail::FolderPlace place_;
    std::unique_ptr<zbBrowserFreeFolderContentHolder> holder_;
    zbbrowser::detail::SlotVector<FolderPtr> children_;
    zbbrowser::detail::SlotVector<FolderPtr>::Slot slot_ = 0;   // Place in the owner's children
    std::vector<zbIBrowserViewItemFreeFolder*> sortedChildren_; // Valid if childrenSorted_
    void* attachedObject_ = nullptr;                            // Not owned; never followed
    bool alive_ = true;
    bool childrenSorted_ = false;
    bool keepChildrenInOrder_ = true;
    bool expanded_;
    bool groupLeafs_ = false;
    bool style_ = false;
    bool showEmptyContainers_ = false;
    bool busy_ = false;
    bool hidden_ = false;
    bool iconShowsData_ = false;
    bool iconRecursive_ = true;
    bool captionShowsCount_ = false;
    bool captionRecursive_ = false;
    bool showWhenEmpty_;
    bool textBold_ = false;
    bool textItalic_ = false;
};
