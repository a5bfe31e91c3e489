// SPDX-License-Identifier: MIT
//! \file
//! zbIBrowserDataItemHierarchical: an item of a tree.
#pragma once

#include <zbBrowserView/host/zbIBrowserDataItem.h>
#include <zbBrowserView/host/zbIBrowserDataSourceHierarchical.h>

class zbIBrowserDataItemSimple;

//! An item of a tree. What it is and what it is called stand in its flat face.
class ZBBROWSERVIEW_API zbIBrowserDataItemHierarchical : public zbIBrowserDataItem {
public:
    //! As in the base; the source is a tree. Not the source of the flat face, which is the type.
    zbIBrowserDataSourceHierarchical* GetDataSource() const override = 0;

    //! The flat face, through which type, name and properties are read. Not null.
    //! Ownership: the host's; it lives as long as the tree item. Several items of a tree, or of
    //! different trees, may share one.
    virtual zbIBrowserDataItemSimple* GetDataItemSimple() const = 0;

    //! True: no row is made for the item. Asked when rows are built and when the item is reported
    //! as created; a later change of the answer does not hide a row that is there.
    virtual bool IsHiddenFromTree() const = 0;

    //! True from a change of the item or of its children until the host takes the mark back. The
    //! library reads the mark and never clears it.
    virtual bool IsDirty() const = 0;

    //! The item above in the tree. Views ask when the flat face of the parent is needed to read a
    //! property, and when a link between two items appeared or went.
    //! Null, as by default: the item stands on top, or the tree does not know.
    virtual zbIBrowserDataItemHierarchical* GetParent() const { return nullptr; }

protected:
    ~zbIBrowserDataItemHierarchical() = default;
};
