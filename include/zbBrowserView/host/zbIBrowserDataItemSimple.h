// SPDX-License-Identifier: MIT
//! \file
//! zbIBrowserDataItemSimple: an item of a flat source.
#pragma once

#include <zbBrowserView/host/zbIBrowserDataItem.h>
#include <zbBrowserView/host/zbIBrowserDataSourceSimple.h>
#include <zbBrowserView/platform/zbString.h>

//! An item of a flat source, or the flat face of an item of a tree.
class ZBBROWSERVIEW_API zbIBrowserDataItemSimple : public zbIBrowserDataItem {
public:
    //! As in the base; the source is a flat one.
    zbIBrowserDataSourceSimple* GetDataSource() const override = 0;

    //! Gives the text of a property by its key. The filter of an old view asks with the key "name"
    //! and matches its pattern against the answer.
    //! Failure: false; the item then has no such text.
    virtual bool GetProperty(char const* key, zbString& value) = 0;

    //! True from a change of the item until the host takes the mark back: a refresh of dirty items
    //! signals the row of an item that answers true. The library reads the mark and never clears
    //! it.
    virtual bool IsDirty() const = 0;

protected:
    ~zbIBrowserDataItemSimple() = default;
};
