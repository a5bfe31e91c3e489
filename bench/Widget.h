// SPDX-License-Identifier: MIT
//! \file
//! Painting 50 rows by 4 columns.
#pragma once

#include "Canvas.h"

#include <zbBrowserView/zbIBrowserView.h>

#include <vector>

class zbIBrowserStyle;
class zbIBrowserStyleElement;
class zbIBrowserViewColumn;
class zbIBrowserViewItem;
class zbIBrowserViewProperty;

namespace zbbench {

//! Reads a frame as a widget does: the columns anew each time, the elements of a column again where
//! the style is another one or pending.
class Widget {
public:
    Widget(zbIBrowserView& view, std::vector<zbIBrowserViewItem*> const& rows)
        : view_(view)
        , rows_(rows) {}

    //! Paints the rows from `first` on.
    void Paint(std::size_t first, Canvas& canvas);

private:
    struct Cell {
        zbIBrowserStyle* style = nullptr; // Of the row before; null: none
        std::vector<zbIBrowserStyleElement*> elements;
    };

    void PaintCell(zbIBrowserViewColumn& column, Cell& cell, zbIBrowserViewItem& row,
                   Canvas& canvas);
    void ReadValue(zbIBrowserViewProperty& property, zbIBrowserViewItem& row, Canvas& canvas);
    void ReadLook(zbIBrowserStyleElement& element, zbIBrowserViewItem& row, Canvas& canvas);

    zbIBrowserView& view_;
    std::vector<zbIBrowserViewItem*> const& rows_;
    std::vector<zbIBrowserViewColumn*> columns_;
    std::vector<Cell> cells_;
    zbString text_;
};

} // namespace zbbench
