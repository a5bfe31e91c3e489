// SPDX-License-Identifier: MIT
//! \file
//! How text output may look.
#pragma once

#include "text/DisplayText.h"

#include <cstddef>
#include <string_view>

namespace zbtext {

//! Cells in a line, and whether colours may be used.
struct TextStyle {
    std::size_t width = kNoLimit; //!< `kNoLimit`: nothing is cut, as befits a pipe or a file.
    bool colour = false;
};

//! True if colours may go to an output: it is a terminal, NO_COLOR is not set or empty, and TERM is
//! set and is not "dumb". The two texts are the variables' values, null if they are not set.
bool MayColour(bool isTerminal, char const* noColor, char const* term);

//! Escape sequences for what is painted; all empty without colours.
struct Palette {
    std::string_view title;
    std::string_view folder;
    std::string_view header;
    std::string_view faint;
    std::string_view fault;
    std::string_view bold;
    std::string_view italic;
    std::string_view boldItalic;
    std::string_view reset;
};

Palette const& GetPalette(bool colour);

} // namespace zbtext
