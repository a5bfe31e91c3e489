// SPDX-License-Identifier: MIT
#include "text/TextStyle.h"

namespace zbtext {

bool MayColour(bool isTerminal, char const* noColor, char const* term) {
    if (!isTerminal || term == nullptr || std::string_view(term) == "dumb")
        return false;
    return noColor == nullptr || *noColor == '\0';
}

Palette const& GetPalette(bool colour) {
    static constexpr Palette plain{};
    static constexpr Palette coloured{
        .title = "\x1b[1m",
        .folder = "\x1b[1;34m",
        .header = "\x1b[4m",
        .faint = "\x1b[2m",
        .fault = "\x1b[31m",
        .bold = "\x1b[1m",
        .italic = "\x1b[3m",
        .boldItalic = "\x1b[1;3m",
        .reset = "\x1b[0m",
    };
    return colour ? coloured : plain;
}

} // namespace zbtext
