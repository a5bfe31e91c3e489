// SPDX-License-Identifier: MIT
//! \file
//! zbIBrowserViewItem: a row, folder or group of a view.
#pragma once

#include <zbBrowserView/platform/zbExport.h>

#include <cstdint>
#include <vector>

class zbIBrowserDataItem;
class zbIBrowserDataItemHierarchical;
class zbIBrowserDataItemSimple;
class zbIBrowserDataSource;
class zbIBrowserView;
class zbIBrowserViewItemFreeFolder;

namespace zbbrowser {
struct ViewItemChanges;
}

//! Whatever stands in the tree of a view: a free folder, a row, a group. Host and handlers hold
//! views of the tree as pointers of this type only.
//!
//! Ownership: items belong to their view and are never deleted by a host. A pointer is valid until
//! the item's deletion has been signalled (`ViewItemDeleted`, `ViewItemListDeleted`), or until its
//! folder or view goes; while one of the view's operations runs, slots included, it stays valid.
//!
//! Exactly one of IsFreeFolder, IsDependentFolder, IsGroupingFolder, IsDataLeaf, IsDataContainer
//! and IsDataNode answers true. None of the operations fails, and none but Show changes anything.
class ZBBROWSERVIEW_API zbIBrowserViewItem {
public:
    //! The view in which the item lives; never null.
    virtual zbIBrowserView* GetView() const = 0;

    //! The flat data item that the item shows.
    //! Null: for all but rows of flat sources, and rows of trees in old views, which answer with
    //! the flat face of their tree item.
    virtual zbIBrowserDataItemSimple* GetDataItemSimple() const = 0;

    //! The tree item that the item shows. Null: for all but rows of trees in old views.
    virtual zbIBrowserDataItemHierarchical* GetDataItemHierarchical() const = 0;

    //! The data item that a row of a new view shows. Null: for everything else, in particular for
    //! every item of an old view; there, ask GetDataItemSimple or GetDataItemHierarchical.
    virtual zbIBrowserDataItem* GetDataItem() const = 0;

    //! Gives the sources behind a row of a new view. False and `out` untouched for any other item.
    virtual bool GetDataSources(std::vector<zbIBrowserDataSource*>& out) const = 0;

    //! The item in which this one stands. Null: for the root only.
    virtual zbIBrowserViewItem* GetParent() const = 0;

    //! The nearest free folder above the item, not the item itself. Null: for the root only.
    virtual zbIBrowserViewItemFreeFolder* GetParentFreeFolder() const = 0;

    //! Whether the item stands open. The root of an old view is always open.
    virtual bool IsExpanded() const = 0;

    //! True for the group that an old view makes for the rows of a source.
    virtual bool IsDependentFolder() const = 0;

    //! True for a free folder, the root included.
    virtual bool IsFreeFolder() const = 0;

    //! Number of children as the item counts them. A free folder of an old view counts its rows,
    //! hidden ones included, and no child folders; a free folder of a new view counts 0 whatever it
    //! holds; a row of a tree in an old view counts 0.
    virtual std::uint64_t GetChildrenCount() const = 0;

    //! True for the group that a new view makes for the rows of a source.
    virtual bool IsGroupingFolder() const = 0;

    //! Copies the pending changes of an item of a new view.
    //! Failure: false and `out` untouched when none are pending, so always in an old view.
    virtual bool GetChanges(zbbrowser::ViewItemChanges& out) const = 0;

    //! True if the item is left out of what is shown.
    virtual bool IsHidden() const = 0;

    //! Whether a folder, a group or a row of a tree in an old view stands for data of `source`.
    //! False for a row of a flat source, whatever its source, and for every item of a new view.
    virtual bool HasDataSource(zbIBrowserDataSource* source) const = 0;

    //! True for a row of a flat source in an old view.
    virtual bool IsDataLeaf() const = 0;

    //! True for a row of a tree in an old view.
    virtual bool IsDataContainer() const = 0;

    //! True for a row of a new view.
    virtual bool IsDataNode() const = 0;

    //! Takes the item back into what is shown.
    //! Signals: in an old view `ViewItemShown` with this item, also when it was not hidden.
    virtual void Show() = 0;

protected:
    ~zbIBrowserViewItem() = default;
};
