// SPDX-License-Identifier: MIT
#include "presentation/properties/FolderTexts.h"

#include <array>
#include <charconv>

namespace zbbrowser::detail {

void AppendCount(zbString& text, std::uint64_t count) {
    std::array<char, 16> digits{};
    std::to_chars(digits.begin(), digits.end() - 1, static_cast<std::uint32_t>(count));
    text += " (";
    text += digits.data();
    text += ')';
}

} // namespace zbbrowser::detail
