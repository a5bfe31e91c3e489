// SPDX-License-Identifier: MIT
//! \file
//! The row of one flat data item.
#pragma once

#include <zbBrowserView/zbIBrowserViewItem.h>

#include <cstddef>
#include <cstdint>

class zbBrowserView;
class zbBrowserViewItemFreeFolder;
class zbIBrowserDataSource;

namespace zbbrowser::detail {
class LeafStore;
class OldViewContext;
} // namespace zbbrowser::detail

//! A leaf shows one flat data item. It has no children and cannot be expanded. What depends on
//! where it stands (parent, free folder, view) is answered by a class for each place.
//!
//! A view has as many leaves as rows, so a leaf is kept small: its place in the store, the number
//! of its source there and its marks share eight bytes.
class zbBrowserViewItemDataLeaf : public zbIBrowserViewItem {
public:
    //! Bytes of a leaf of any class.
    static constexpr std::size_t memorySize = 32;

    zbBrowserViewItemDataLeaf(zbIBrowserDataItemSimple* dataItem, bool hidden);
    zbBrowserViewItemDataLeaf(zbBrowserViewItemDataLeaf const&) = delete;
    zbBrowserViewItemDataLeaf& operator=(zbBrowserViewItemDataLeaf const&) = delete;

    zbIBrowserView* GetView() const final;
    zbIBrowserDataItemSimple* GetDataItemSimple() const final { return dataItem_; }
    zbIBrowserDataItemHierarchical* GetDataItemHierarchical() const final { return nullptr; }
    zbIBrowserDataItem* GetDataItem() const final { return nullptr; }
    bool GetDataSources(std::vector<zbIBrowserDataSource*>&) const final { return false; }
    bool IsExpanded() const final { return false; }
    bool IsDependentFolder() const final { return false; }
    bool IsFreeFolder() const final { return false; }
    std::uint64_t GetChildrenCount() const final { return 0; }
    bool IsGroupingFolder() const final { return false; }
    bool GetChanges(zbbrowser::ViewItemChanges&) const final { return false; }
    bool IsHidden() const final { return hidden_ != 0; }
    bool HasDataSource(zbIBrowserDataSource*) const final { return false; }
    bool IsDataLeaf() const final { return true; }
    bool IsDataContainer() const final { return false; }
    bool IsDataNode() const final { return false; }

    //! Clears the hidden mark and raises `ViewItemShown`, also if the leaf was not hidden.
    void Show() final;

    virtual zbBrowserView* GetViewImpl() const = 0;
    virtual ~zbBrowserViewItemDataLeaf() = default;

    //! Sets the mark without a signal.
    void SetHidden(bool hidden);

    //! It stands in its store; false once it has been taken out and is about to go.
    bool IsListed() const { return listed_ != 0; }
    //! Its data item was of that source when the leaf was made. Calls nobody. Requires: IsListed().
    bool IsOf(zbIBrowserDataSource const* source) const;
    //! Takes it out; the caller has to free it. Requires: IsListed().
    void TakeOutOfStore();

protected:
    virtual zbbrowser::detail::OldViewContext& Context() const = 0;
    //! The store in which it is listed. Requires: IsListed().
    virtual zbbrowser::detail::LeafStore& Store() const = 0;

private:
    friend class zbbrowser::detail::LeafStore;

    zbIBrowserDataItemSimple* const dataItem_; // Not owned; compared only, it may be gone
    std::uint32_t slot_ = 0;
    std::uint32_t sourceNumber_ : 30 = 0;
    std::uint32_t hidden_ : 1;
    std::uint32_t listed_ : 1 = 0;
};

//! A leaf directly in a free folder, in a list without grouping.
class zbBrowserViewItemDataLeafInFreeFolder final : public zbBrowserViewItemDataLeaf {
public:
    zbBrowserViewItemDataLeafInFreeFolder(zbBrowserViewItemFreeFolder& parent,
                                          zbIBrowserDataItemSimple* dataItem, bool hidden);

    zbIBrowserViewItem* GetParent() const override;
    zbIBrowserViewItemFreeFolder* GetParentFreeFolder() const override;
    zbBrowserView* GetViewImpl() const override;

protected:
    zbbrowser::detail::OldViewContext& Context() const override;
    zbbrowser::detail::LeafStore& Store() const override;

private:
    zbBrowserViewItemFreeFolder& parent_;
};

static_assert(sizeof(zbBrowserViewItemDataLeafInFreeFolder) <=
              zbBrowserViewItemDataLeaf::memorySize);
