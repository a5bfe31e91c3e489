// SPDX-License-Identifier: MIT
//! \file
//! Lists whose rows stand directly in the folder.
#pragma once

#include "filtersort/SortBasis.h"
#include "items/old/LeafStore.h"
#include "items/old/zbBrowserFreeFolderContent.h"

//! One leaf for each data item of each list, directly in the free folder: the strategy for lists
//! while the folder does not group its leaves. Leaves stand in the order of their creation until
//! they are first sorted; from then on in the order of the last sort, new ones behind the others.
//!
//! A leaf lives until its data item has left its source or its list has left the folder. Over a
//! rebuild the survivors keep their object and with it their place, selection and hidden mark; a
//! new leaf is hidden if the filter says so at that moment.
class zbBrowserFreeFolderContentNoGrouping final : public zbBrowserFreeFolderContent {
public:
    using zbBrowserFreeFolderContent::zbBrowserFreeFolderContent;
    zbBrowserFreeFolderContentNoGrouping(zbBrowserFreeFolderContentNoGrouping const&) = delete;
    zbBrowserFreeFolderContentNoGrouping&
    operator=(zbBrowserFreeFolderContentNoGrouping const&) = delete;
    ~zbBrowserFreeFolderContentNoGrouping() override;

    //! Adds the leaf of a new data item to `created` and signals the folder itself; `parents` stays
    //! as it is. Signals: `ViewItemCreated(leaf)` unless it exists, `ViewItemChanged(folder)`.
    bool OnDataItemCreated(zbIBrowserDataItemSimple* item, Items& created, Items& parents) override;

    //! Builds what is missing. Stops, and answers false, if a slot takes the list out meanwhile.
    //! Requires: the source is one of the lists. Signals: `ViewItemCreated` for each new leaf, then
    //! `ViewItemChanged(folder)`, which also comes if nothing was new. None for an empty source.
    bool ConnectList(Simple* source, bool silent) override;

    //! Deletes the leaves of a source. Signals: `ViewItemListDeleted`, `ViewItemChanged(folder)`.
    bool DisconnectList(Simple* source, bool silent) override;

    //! Signals `ViewItemChanged` for each leaf of the source whose data item is dirty. These leaves
    //! are sorted into the others when the list is next read in sorted form.
    bool RefreshListItems(Simple* source, bool silent) override;

    //! Deletes the leaves whose data items the source no longer contains, then adds what is new.
    //! Signals: `ViewItemListDeleted` unless `silent`; those of ConnectList, or for an empty source
    //! of DisconnectList, in any case; then `ViewItemChanged` for this folder and each above it
    //! whose icon may depend on its data.
    bool RebuildList(Simple* source, bool silent) override;

    //! Signals `ViewItemChanged` for every leaf of this content, whatever its source.
    bool RedrawList(Simple* source) override;

    //! Nothing if the source is not one of the lists: the row stays. Signals:
    //! `ViewItemDeleted(leaf)` unless `silent`.
    void OnDataItemDeleted(zbIBrowserDataItemSimple* item, Simple const* source,
                           bool silent) override;
    //! Both fill `found` and `parents` in pairs: the leaf, and the folder.
    void GetViewItems(SimpleItems const& items, Items& found, Items& parents) override;
    void GetViewItems(zbIBrowserDataItemSimple* item, Items& found, Items& parents) override;
    void GetAllViewItems(Items& out, bool recursive) const override;
    std::size_t CountViewItems(bool) const override { return leaves_.Count(); }
    bool HasRowsOf(Simple const* source) const override;
    bool HasVisibleItems() const override { return leaves_.HasVisible(); }
    bool GetSortedItems(Items& out, bool sorted, bool ascending) override;
    zbIBrowserViewItem* FindViewItem(zbIBrowserViewItem const* item) const override;
    void DeleteAll() override;
    void OnViewItemRemoved(zbIBrowserViewItem* item) override;
    bool ApplyFilter() override;
    //! All rows are sorted when the list is next read in sorted form. A new row does not take this:
    //! it is sorted into the others.
    void SetUnsorted() override { leaves_.ForgetOrder(); }
    //! What a row is sorted by may have changed. It stays where it is until the others are sorted
    //! next, for instance since one has come or gone; then it finds its place anew.
    void NoteChangedValues(zbBrowserViewItemDataLeaf const& leaf) { leaves_.NoteChanged(leaf); }
    void SelectAll(bool select) override;
    void MarkDead() override;

    //! Sorts the rows by the sorted column unless they are sorted. They are left as they are, and
    //! unsorted, if a comparison throws, and if one changes the list or the order meanwhile.
    //! False once this content has gone. Requires: an open CallScope.
    bool SortRows();

    zbbrowser::detail::LeafStore& Leaves() { return leaves_; }
    zbbrowser::detail::LeafStore const& Leaves() const { return leaves_; }

private:
    using Leaf = zbBrowserViewItemDataLeaf;

    //! The leaf of an item of a list, made if there is none. Null once the list has gone from here.
    Leaf* FindOrCreateLeaf(zbIBrowserDataItemSimple& item, Simple const* list, bool silent);
    Leaf* CreateLeaf(zbIBrowserDataItemSimple& item, Simple const* list, bool silent);
    //! The same, loudly, for an item that the source contains. False once the list has gone.
    bool CreateLeafIfContained(Simple& source, zbIBrowserDataItemSimple* item);
    Leaf& MakeLeaf(zbIBrowserDataItemSimple* item, zbIBrowserDataSource const* source, bool hidden);
    bool IsDirty(Simple& source, Leaf const& leaf) const;
    void DeleteLeaf(Leaf& leaf, bool silent);
    void DeleteLeaves(std::vector<Leaf*> leaves, bool silent);
    //! Asks the source for its items. False also if the list is taken out meanwhile.
    bool ListItems(Simple& source, std::vector<zbIBrowserDataItemSimple*>& items) const;
    std::vector<Leaf*> FindStale(Simple& source) const;
    //! For a loop that is at `i` and asks each data item something.
    static void PrefetchData(std::vector<Leaf*> const& leaves, std::size_t i);
    bool IsStillListed(Leaf const& leaf) const { return IsAlive() && leaf.IsListed(); }
    bool IsStillConnected(Simple const* source) const {
        return IsAlive() && Lists().Contains(source);
    }

    zbbrowser::detail::LeafStore leaves_;
    zbbrowser::detail::SortBasis sortBasis_; // Of the rows that are in order
    bool isSorting_ = false;
};
