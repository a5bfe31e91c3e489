// SPDX-License-Identifier: MIT
//! \file
//! From a view to folders and lists that the writers can write.
#pragma once

#include "text/List.h"
#include "text/RowReader.h"
#include "text/SourceList.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <vector>

class zbIBrowserView;
class zbIBrowserViewItemFreeFolder;

namespace zbtext {

//! Which rows of a list are read.
enum class Extent { All, Selected };

//! Reads a view the way any painter does: it asks for folders, for the lists in them and for the
//! items below them, and for nothing that is not shown.
//!
//! What it gives refers to the view's rows: it is valid until the view or its data change.
class ViewReader {
public:
    //! `rowLimit` is the most rows that a list hands out; its total counts all. With `paint`, names
    //! and cells come through the view's columns; otherwise each list has its source's own. Rows
    //! beyond the `extent` are passed over as if they were not there.
    ViewReader(zbIBrowserView const& view, RowReader const& rows, std::size_t rowLimit,
               std::optional<PaintOptions> const& paint = std::nullopt,
               Extent extent = Extent::All);

    //! The whole view, its root folder under the view's name. A view of the new generation has no
    //! lists.
    Folder ReadView() const;

private:
    Folder ReadFolder(zbIBrowserViewItemFreeFolder& folder) const;
    void ReadName(zbIBrowserViewItemFreeFolder& folder, Folder& result) const;
    std::vector<std::unique_ptr<List>> ReadLists(zbIBrowserViewItemFreeFolder& folder) const;
    std::unique_ptr<SourceList> MakeList(zbIBrowserDataSourceSimple& source) const;
    void Deal(zbIBrowserViewItemFreeFolder const& folder, SourceLists const& lists) const;

    zbIBrowserView const& view_;
    RowReader const& rows_;
    std::size_t rowLimit_;
    PaintOptions paint_;
    std::shared_ptr<Painter> painter_; // Null: nothing is painted.
    Extent extent_;
};

} // namespace zbtext
