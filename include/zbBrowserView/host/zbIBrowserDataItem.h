// SPDX-License-Identifier: MIT
//! \file
//! zbIBrowserDataItem: one object of the host's data.
#pragma once

#include <zbBrowserView/platform/zbExport.h>

class zbIBrowserDataSource;

//! One object of the host's data, which views show as a row. Implement one of the two derived
//! interfaces: zbIBrowserDataItemSimple for items of flat sources and
//! zbIBrowserDataItemHierarchical for items of trees. Views of the new generation use items through
//! this base only.
//!
//! Ownership: the host's, through the item's source. Views hold plain pointers, so an item stays
//! alive and at its address as long as it may be shown; zbIBrowserDataCtrl.h tells in which order
//! a host removes one. The address is the item's identity: the same object must not be handed out
//! under two addresses.
class ZBBROWSERVIEW_API zbIBrowserDataItem {
public:
    //! The source to which the item belongs. Asked when the host reports the item, when a row for
    //! it is made and when its properties are read; keep it cheap.
    //! Null: the item then belongs to nothing that a view could have connected, reports about it
    //! are dropped, and its properties cannot be read.
    virtual zbIBrowserDataSource* GetDataSource() const = 0;

protected:
    ~zbIBrowserDataItem() = default;
};
