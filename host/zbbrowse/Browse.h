// SPDX-License-Identifier: MIT
//! \file
//! The program as a function.
#pragma once

namespace zbbrowse {

//! Does what the command line asks for and gives the exit status: 0 if all went well, 2 if not.
//! Where a signal asks the program to end, it ends here with 128 and the number of the signal.
int Browse(int argc, char const* const* argv);

} // namespace zbbrowse
