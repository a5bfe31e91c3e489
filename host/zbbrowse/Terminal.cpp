// SPDX-License-Identifier: MIT
#include "zbbrowse/Terminal.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include <charconv>
#include <cstdlib>
#include <string_view>

namespace zbbrowse {

namespace {

constexpr std::size_t kUsualWidth = 80;

//! 0 if the variable is not set or no number.
std::size_t WidthFromEnvironment() {
    auto const* const text = std::getenv("COLUMNS");
    if (text == nullptr)
        return 0;
    std::string_view const columns = text;
    std::size_t width = 0;
    auto const* const end = columns.data() + columns.size();
    auto const result = std::from_chars(columns.data(), end, width);
    return result.ec == std::errc() && result.ptr == end ? width : 0;
}

} // namespace

bool IsTerminal(int descriptor) {
    return ::isatty(descriptor) == 1;
}

std::size_t GetTerminalWidth(int descriptor) {
    if (auto const width = WidthFromEnvironment(); width != 0)
        return width;
    winsize size{};
    if (::ioctl(descriptor, TIOCGWINSZ, &size) == 0 && size.ws_col != 0)
        return size.ws_col;
    return kUsualWidth;
}

zbtext::TextStyle GetTextStyle(int descriptor) {
    if (!IsTerminal(descriptor))
        return {};
    return {.width = GetTerminalWidth(descriptor),
            .colour = zbtext::MayColour(true, std::getenv("NO_COLOR"), std::getenv("TERM"))};
}

} // namespace zbbrowse
