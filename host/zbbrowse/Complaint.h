// SPDX-License-Identifier: MIT
//! \file
//! What the program tells the user when it cannot do what was asked.
#pragma once

#include <stdexcept>
#include <string>

namespace zbbrowse {

//! Something that the user can put right; `what()` is one line, without the program's name.
class Complaint : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

//! Writes `zbbrowse: <what>` to standard error, as one line that no file name can break up.
void Complain(std::string const& what);

} // namespace zbbrowse
