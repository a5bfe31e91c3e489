// SPDX-License-Identifier: MIT
#include "zbbrowse/Progress.h"

#include "text/DisplayText.h"
#include "text/NumberText.h"
#include "zbbrowse/Interrupt.h"
#include "zbbrowse/Terminal.h"

#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <string>

namespace zbbrowse {

namespace {

using namespace std::chrono_literals;

constexpr auto kPatience = 500ms;
constexpr auto kInterval = 100ms;
constexpr char const* kClearLine = "\r\x1b[K";

bool CanClearLines() {
    auto const* const term = std::getenv("TERM");
    return term != nullptr && std::string_view(term) != "dumb";
}

} // namespace

Progress::Progress()
    : enabled_(IsTerminal(STDERR_FILENO) && CanClearLines())
    , next_(Clock::now() + kPatience) {
}

Progress::~Progress() {
    Clear();
}

void Progress::Show(std::string_view list, std::uint64_t rows) {
    if (!enabled_ || Clock::now() < next_)
        return;
    next_ = Clock::now() + kInterval;
    Interrupt::SetFarewell(STDERR_FILENO, kClearLine);
    std::string tail = ": ";
    zbtext::AppendInteger(tail, static_cast<std::int64_t>(rows));
    tail += " rows";
    auto const width = GetTerminalWidth(STDERR_FILENO);
    std::string line = kClearLine;
    zbtext::AppendCut(line, list, width > tail.size() + 1 ? width - tail.size() - 1 : 1);
    line += tail;
    std::fputs(line.c_str(), stderr);
    std::fflush(stderr);
    shown_ = true;
}

void Progress::Clear() {
    if (!shown_)
        return;
    std::fputs(kClearLine, stderr);
    std::fflush(stderr);
    Interrupt::SetFarewell(STDERR_FILENO, nullptr);
    shown_ = false;
}

} // namespace zbbrowse
