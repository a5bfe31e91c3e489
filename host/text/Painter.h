// SPDX-License-Identifier: MIT
//! \file
//! The cells of a view.
#pragma once

#include "text/List.h"
#include "text/RowReader.h"

#include <zbBrowserView/platform/zbString.h>
#include <zbBrowserView/platform/zbVariant.h>

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

class zbIBrowserDataSourceSimple;
class zbIBrowserStyle;
class zbIBrowserStyleElement;
class zbIBrowserView;
class zbIBrowserViewColumn;
class zbIBrowserViewItem;
class zbIBrowserViewProperty;

namespace zbtext {

//! What a cell shows: an element is an icon if its column is one of icons, or if it is the default
//! style's "default_style_elem_icon", and a text otherwise.
enum class Part : std::uint8_t { Text, Icon };

//! Gives what a widget would paint, and in the way in which it would: the view tells the style for
//! column and item, the style its elements, each element its view property, and that the value. For
//! a text the view is asked whether it is bold or italic.
//!
//! It asks for the cell that it is asked for and for nothing else, so painting some rows of a long
//! list costs as much as painting those of a short one. Of each column it remembers the elements of
//! the last style. It clears the style's pending mark when it reads them; a style that changes is
//! pending again.
//!
//! The columns are those that the view has when the painter is made, the default column first; one
//! that the view has no more shows nothing. Requires: the view outlives the painter. It works for
//! both generations.
class Painter {
public:
    Painter(zbIBrowserView const& view, RowReader const& rows);

    std::size_t GetColumnCount() const { return columns_.size(); }
    //! Requires: the view still has it.
    zbIBrowserViewColumn& GetColumn(std::size_t column) const { return *columns_[column].column; }

    //! A cell. What is connected to a property with typed values keeps its type (so that a script
    //! of such a view property is not run); the texts of several elements are joined by a blank.
    //! Null if there is nothing to show. Valid until the next call.
    Value GetValue(zbIBrowserViewItem& item, std::size_t column, Part part);

    //! How the text of a cell looks; of several elements, the first.
    Look GetLook(zbIBrowserViewItem& item, std::size_t column);

    //! Whether a column has anything to show for the rows of a source: whether a view property of
    //! one of its elements is connected for it. Requires: the view still has the column.
    bool HasCells(zbIBrowserDataSourceSimple& source, std::size_t column) const;

    //! By which column the view is sorted.
    std::optional<SortMark> GetSortMark() const;

private:
    struct Element {
        zbIBrowserStyleElement* element;
        Part part;
    };
    struct Column {
        zbIBrowserViewColumn* column; // Not owned; a slot may delete it while it is painted.
        bool isIcon;
        zbIBrowserStyle* style = nullptr; // That of `elements`; null: none was read.
        std::vector<Element> elements;
    };

    //! Empty for a cell that shows nothing.
    std::vector<Element> const& ElementsOf(zbIBrowserViewItem& item, std::size_t column);
    zbIBrowserDataProperty* ConnectedTo(zbIBrowserViewProperty& property,
                                        zbIBrowserDataSourceSimple* source) const;
    Value Read(zbIBrowserStyleElement const& element, zbIBrowserViewItem& item);
    Value ReadText(zbIBrowserViewProperty& property, zbIBrowserViewItem& item);
    Value ReadJoined(std::vector<Element> const& elements, zbIBrowserViewItem& item, Part part);

    zbIBrowserView const& view_;
    RowReader const& rows_;
    bool isNew_;
    std::vector<Column> columns_;
    zbString text_;
    zbVariant variant_;
    std::string joined_;
};

} // namespace zbtext
