// SPDX-License-Identifier: MIT
//! \file
//! From a view to folders and lists that the writers can write.
#pragma once

#include "text/List.h"

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

class zbBrowserView;
class zbIBrowserDataItemSimple;
class zbIBrowserDataProperty;
class zbIBrowserDataSourceSimple;
class zbIBrowserViewItemFreeFolder;

namespace zbtext {

//! What only the host knows of its data: which properties are a source's columns, and how to get a
//! value with its type. A host with other data gives the writers another one of these.
class RowReader {
public:
    virtual ~RowReader() = default;

    //! Names for `FindDataProperty` of the source, in the order of its columns.
    virtual std::vector<std::string> GetColumnNames(zbIBrowserDataSourceSimple& source) const = 0;

    //! The bytes of the value live as long as the row.
    virtual Value GetValue(zbIBrowserDataProperty& property,
                           zbIBrowserDataItemSimple& row) const = 0;

    //! Why the source has no rows to give; empty if nothing is wrong.
    virtual std::string GetFault(zbIBrowserDataSourceSimple& source) const = 0;
};

//! Reads a view the way any painter does: it asks for folders, for the lists in them and for the
//! items below them, and for nothing that is not shown.
//!
//! What it gives refers to the view's rows: it is valid until the view or its data change.
class ViewReader {
public:
    //! `rowLimit` is the most rows that a list hands out; its total counts all.
    ViewReader(zbBrowserView const& view, RowReader const& rows, std::size_t rowLimit);

    //! The whole view, its root folder under the view's name.
    Folder ReadView() const;

private:
    Folder ReadFolder(zbIBrowserViewItemFreeFolder& folder) const;
    std::vector<std::unique_ptr<List>> ReadLists(zbIBrowserViewItemFreeFolder& folder) const;

    zbBrowserView const& view_;
    RowReader const& rows_;
    std::size_t rowLimit_;
};

} // namespace zbtext
