// SPDX-License-Identifier: MIT
#include "selection/SelectedText.h"

namespace zbbrowser::detail {

void SelectedText::Append(zbString const& value) {
    if (value.empty())
        return;
    if (!text_.empty())
        text_ += ' ';
    auto const inBraces = isList_ && std::string_view(value).find(' ') != std::string_view::npos;
    if (inBraces)
        text_ += '{';
    text_ += value;
    if (inBraces)
        text_ += '}';
}

} // namespace zbbrowser::detail
