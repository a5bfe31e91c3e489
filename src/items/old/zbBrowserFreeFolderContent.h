// SPDX-License-Identifier: MIT
//! \file
//! What fills a free folder: the common part of the three strategies.
#pragma once

#include "containers/PointerList.h"

#include <zbBrowserView/platform/zbString.h>

#include <cstdint>
#include <map>
#include <set>
#include <vector>

class zbBrowserFreeFolderContentHolder;
class zbBrowserViewItemFreeFolder;
class zbIBrowserDataItemHierarchical;
class zbIBrowserDataItemSimple;
class zbIBrowserDataSource;
class zbIBrowserDataSourceHierarchical;
class zbIBrowserDataSourceSimple;
class zbIBrowserViewItem;

namespace zbbrowser::detail {
class DetachedLeaves;
class OldViewContext;

//! How a tree shows one of its types.
struct TreeTypeSettings {
    static constexpr std::uint32_t grouped = 1;
    static constexpr std::uint32_t shown = 2;

    std::uint32_t bits = shown;

    bool IsGrouped() const { return (bits & grouped) != 0; }
    bool IsShown() const { return (bits & shown) != 0; }
    void Set(std::uint32_t bit, bool on) { bits = on ? bits | bit : bits & ~bit; }
};
} // namespace zbbrowser::detail

//! The base of the strategies: which lists and trees there are and how their types are shown. The
//! virtual operations are the events and commands that a strategy answers in its own way; the ones
//! here do nothing and answer false, null or nothing, for a strategy that has no use for them.
//!
//! `silent` is a building pass whose caller signals once at its end. Where an operation is not told
//! so, it signals.
//!
//! A configuration call that is refused answers false and leaves a text in LastMessage.
//!
//! Requires, for all that may call the host: an open CallScope of the view.
class zbBrowserFreeFolderContent {
public:
    using Items = std::vector<zbIBrowserViewItem*>;
    using Simple = zbIBrowserDataSourceSimple;
    using Tree = zbIBrowserDataSourceHierarchical;
    using SimpleItems = std::vector<zbIBrowserDataItemSimple*>;
    using HierarchicalSet = std::set<zbIBrowserDataItemHierarchical*>;

    explicit zbBrowserFreeFolderContent(zbBrowserFreeFolderContentHolder& holder);
    zbBrowserFreeFolderContent(zbBrowserFreeFolderContent const&) = delete;
    zbBrowserFreeFolderContent& operator=(zbBrowserFreeFolderContent const&) = delete;

    virtual bool OnDataItemCreated(zbIBrowserDataItemSimple* item, Items& created, Items& parents);
    virtual bool ConnectList(Simple* source, bool silent);
    virtual bool DisconnectList(Simple* source, bool silent);
    virtual bool RefreshTreeItems(Tree* tree, bool silent);
    virtual bool RefreshListItems(Simple* source, bool silent);
    virtual bool RebuildList(Simple* source, bool silent);
    virtual bool RedrawList(Simple* source);
    virtual bool RedrawTree(Tree* tree, bool silent);
    virtual bool RebuildTree(Tree* tree, bool silent);
    virtual void OnDataItemDeletedInTree(zbIBrowserDataItemHierarchical* item);
    //! `source` is that of the item, which is not asked any more.
    virtual void OnDataItemDeleted(zbIBrowserDataItemSimple* item, Simple const* source,
                                   bool silent);
    virtual bool SetGroupCaption(Simple* source, zbString const& caption);
    virtual bool OnReferenceCreated(zbIBrowserDataItemHierarchical* item, Items& created,
                                    Items& parents);
    virtual bool ConnectTree(Tree* tree, bool silent);
    virtual bool DisconnectTree(Tree* tree, bool silent);
    virtual bool ConnectChildType(Tree* tree, Simple* type);
    virtual void DisconnectChildType(Tree* tree, Simple* type);
    virtual void GetViewItemsFromDataSet(HierarchicalSet const& items, Items& found,
                                         Items& parents);
    virtual void GetViewItemsFromItem(zbIBrowserDataItemHierarchical* item, Items& found,
                                      Items& parents);
    //! An item may stand in `items` more than once.
    virtual void GetViewItems(SimpleItems const& items, Items& found, Items& parents);
    virtual void GetViewItems(zbIBrowserDataItemSimple* item, Items& found, Items& parents);
    virtual void OnReferenceChanged(zbIBrowserDataItemHierarchical* item,
                                    zbIBrowserDataItemHierarchical* newParent);
    virtual void GetAllViewItems(Items& out, bool recursive) const;
    virtual bool GetShowEmptyGroups() const;
    virtual bool HasRowsOf(Simple const* source) const;
    virtual bool HasVisibleItems() const;
    //! Appends the rows without the hidden ones, first to last or, unless `ascending`, last to
    //! first; the child folders are not among them. `sorted`: by the sorted column of the view,
    //! otherwise as they stand. False once this content has gone.
    virtual bool GetSortedItems(Items& out, bool sorted, bool ascending);
    virtual zbIBrowserViewItem* FindViewItem(zbIBrowserViewItem const* item) const;
    virtual zbIBrowserViewItem* FindTreeItem(zbIBrowserViewItem const* item, bool deep) const;
    virtual zbIBrowserViewItem* FindGroup(zbIBrowserViewItem const* item, bool deep) const;
    virtual void SetSortingException(Simple* source, int value);
    virtual void SetCreateExpandedItem(Simple* source, int value);
    virtual ~zbBrowserFreeFolderContent();
    virtual bool SetShowEmptyGroups(bool show);
    virtual void DeleteAll();
    virtual void DeleteAllDependent();
    virtual void OnViewItemRemoved(zbIBrowserViewItem* item);
    virtual bool ApplyFilter();
    virtual void SetUnsorted();
    virtual void SelectAll(bool select);
    virtual void ResetExpansion();
    virtual void SetExpandedAll(bool expand, bool showAll, bool silent);
    virtual void SetExpandedList(bool expand, Simple* source, bool silent);
    virtual void SetTreeExpanded(Tree* tree, bool expand, bool silent);

    //! Rows, without building a list of them.
    virtual std::size_t CountViewItems(bool recursive) const;
    //! Builds the items one level below the top ones.
    virtual void BuildNextLevel(bool recursive, bool silent);
    //! The content is about to be parked: its items count as gone from now on.
    virtual void MarkDead();

    //! \name Lists
    //! \{
    bool AddList(Simple* source);
    bool AddLists(std::vector<Simple*> const& sources);
    //! The two halves of AddList, for a list that comes from another place: as long as it is
    //! recorded somewhere, a slot that takes it away for good is noticed.
    bool RecordList(Simple* source);
    bool ConnectRecordedList(Simple* source);
    //! Undoes RecordList.
    void UnrecordList(Simple* source) { lists_.Remove(source); }
    bool RemoveList(Simple* source);
    Simple* FindList(char const* name) const;
    Simple* FindList(Simple const* source) const { return lists_.Find(source); }
    zbbrowser::detail::PointerList<Simple> const& Lists() const { return lists_; }
    //! \}

    //! \name Trees
    //! \{
    bool AddTree(Tree* tree);
    //! The first half of AddTree; the types are asked for by the second.
    void RecordTree(Tree* tree);
    bool RemoveTree(Tree* tree);
    Tree* FindTree(char const* name) const;
    bool HasTrees() const { return !treeSettings_.empty(); }
    bool HasTree(Tree* tree) const { return treeSettings_.contains(tree); }
    std::vector<Tree*> Trees() const;
    //! Among the types of the first tree only. Exact.
    Simple* FindChildType(char const* name);
    bool GetChildTypes(Tree* tree, std::vector<Simple*>& out);
    bool IsTypeGrouped(Tree* tree, Simple* type, bool& out);
    bool IsTypeShown(Tree* tree, Simple* type, bool& out);
    bool SetTypeGrouped(Tree* tree, Simple* type, bool grouped);
    bool SetTypeShown(Tree* tree, Simple* type, bool show);
    bool SetTreeGrouped(Tree* tree, bool grouped);
    //! \}

    //! Lists and the types of the trees, each once, in falling order of their addresses.
    void GetAllDataSources(std::vector<Simple*>& out);

    //! \name Passes over all lists and trees
    //! \{
    bool ConnectAll(bool silent);
    bool RefreshAll();
    void RebuildDirty();
    void RedrawDirty();
    //! \}

    zbString const& LastMessage() const { return lastMessage_; }
    bool IsAlive() const { return alive_; }

protected:
    zbbrowser::detail::OldViewContext& Context() const;
    zbBrowserViewItemFreeFolder& Folder() const;
    zbBrowserFreeFolderContentHolder& Holder() const { return holder_; }
    //! Events of the source come to this folder from now on.
    void NoteSource(zbIBrowserDataSource const* source) const;
    //! ViewItemChanged of an item.
    void RaiseChanged(zbIBrowserViewItem& item) const;
    void DeleteItems(zbbrowser::detail::DetachedLeaves& leaves, bool silent) const;
    //! ViewItemChanged for this folder and those above it whose icon depends on the data.
    void SignalFolderChain() const;

private:
    using TypeSettings = std::map<Simple*, zbbrowser::detail::TreeTypeSettings>;

    bool Refuse(zbString message);
    bool RefuseUnknownTree(Tree const* tree);
    TypeSettings* FindSettings(Tree* tree);
    //! Asks the tree for its types if it does not know this one. Null for an unknown tree or type.
    zbbrowser::detail::TreeTypeSettings* FindTypeSettings(Tree* tree, Simple* type);
    //! Asks the tree for its child types, once, and answers them.
    std::vector<Simple*> AddMissingTypes(Tree& tree);
    void AddMissingType(TypeSettings& settings, Simple* type) const;
    void RaiseContentChanged() const;

    zbString lastMessage_;
    std::map<Tree*, TypeSettings> treeSettings_;
    zbBrowserFreeFolderContentHolder& holder_;
    zbbrowser::detail::PointerList<Simple> lists_;
    bool alive_ = true;
};
