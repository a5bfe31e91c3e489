// SPDX-License-Identifier: MIT
//! \file
//! Text for people.
#pragma once

#include "text/ListWriter.h"
#include "text/TextStyle.h"

#include <string>
#include <string_view>

namespace zbtext {

//! Paints lists as tables and a view as a picture of its folders.
//!
//! The picture is a sketch: it shows the first rows of each list, with no value wider than
//! `kSketchCell`. A list by itself is whole, unless the style has a width that it must fit.
class TextWriter : public ListWriter {
public:
    static constexpr std::size_t kSketchCell = 32;

    TextWriter(Output& output, TextStyle const& style);

    void WriteLists(std::vector<std::unique_ptr<List>> const& lists) override;
    void WriteView(Folder const& root) override;

private:
    void WriteList(List const& list);
    void WriteFolder(Folder const& folder, std::string const& prefix);
    void WriteSketch(List const& list, std::string const& prefix);
    void WriteName(std::string_view prefix, std::string_view name, std::string_view colour,
                   std::string const& note, std::string_view noteColour);
    void WriteMore(std::string_view prefix, List const& list);

    Output& output_;
    TextStyle style_;
    Palette const& palette_;
};

} // namespace zbtext
