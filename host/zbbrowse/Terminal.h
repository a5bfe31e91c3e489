// SPDX-License-Identifier: MIT
//! \file
//! What the program must know of the terminal.
#pragma once

#include "text/TextStyle.h"

#include <cstddef>

namespace zbbrowse {

bool IsTerminal(int descriptor);

//! Cells in a line of the terminal: as the variable COLUMNS says, else the terminal, else 80.
std::size_t GetTerminalWidth(int descriptor);

//! On a terminal its width and, where the environment allows them, colours; elsewhere plain.
zbtext::TextStyle GetTextStyle(int descriptor);

} // namespace zbbrowse
