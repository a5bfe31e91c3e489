// SPDX-License-Identifier: MIT
//! \file
//! The rows of one list as aligned columns.
#pragma once

#include "text/List.h"
#include "text/Output.h"
#include "text/TextStyle.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zbtext {

//! Lays the columns of one list out and writes them.
//!
//! Numbers stand to the right of their column, texts to the left, and null where the header stands.
//! The header of the column by which the list is sorted says so and in which direction: `mass ▲`
//! with the smallest on top, `mass ▼` with the largest. Bold and italic show with colours only.
//! If the style has a width, the widest columns are narrowed until a line fits, and columns at the
//! end are left out where even that does not help. Without a width nothing is left out; a column
//! then is as wide as its widest value, but a value of more than `kWidestColumn` cells only makes
//! its own line longer.
class TextTable {
public:
    static constexpr std::size_t kWidestColumn = 60;

    //! `prefix` stands before each line and takes `prefixWidth` cells. `cellLimit` is the most that
    //! any value may take, `kNoLimit` for no such limit. Reads all rows once to measure them.
    TextTable(Output& output, List const& list, TextStyle const& style, std::string_view prefix,
              std::size_t prefixWidth, std::size_t cellLimit);

    void WriteHeader();
    void WriteRule();
    void WriteRows();

private:
    struct Column {
        std::size_t width = 0;   //!< Cells to fill.
        std::size_t cut = 0;     //!< Cells that a value may take.
        std::size_t numbers = 0; //!< Values that are numbers, and
        std::size_t others = 0;  //!< those that are neither numbers nor null.

        Align HeaderAlign() const {
            return numbers != 0 && others == 0 ? Align::Right : Align::Left;
        }
    };

    void Measure();
    std::string_view MarkOf(std::size_t index) const;
    std::size_t AppendHeader(std::size_t index);
    std::string_view ColourOf(std::size_t row, std::size_t index) const;
    void Narrow(std::size_t available);
    std::size_t WidthWithCap(std::size_t cap) const;

    void BeginLine();
    void EndLine();
    void AppendColumn(std::size_t index, std::string_view cell, std::size_t width, Align align,
                      std::string_view colour);
    void WriteCell(std::size_t row, std::size_t index);

    Output& output_;
    List const& list_;
    Palette const& palette_;
    bool colour_;
    std::optional<SortMark> sortMark_;
    std::string_view prefix_;
    std::size_t measureLimit_;
    std::vector<Column> columns_; //!< Those that are shown; fewer than the list's if `dropped_`.
    bool dropped_ = false;
    std::string scratch_;
};

//! Appends a value as it is shown to people: `NULL`, a number, safe text, or a blob as `X'00FF'`;
//! in at most `limit` cells. Returns the cells used.
std::size_t AppendCell(std::string& out, Value const& value, std::size_t limit);

} // namespace zbtext
