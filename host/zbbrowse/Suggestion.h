// SPDX-License-Identifier: MIT
//! \file
//! What somebody who mistyped a name may have meant.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zbbrowse {

//! Up to three of `names`, the nearest first: those that need few letters changed, left out, added
//! or swapped with their neighbour, or that begin with or contain what was typed. Upper and lower
//! case are the same. Where none is near, the first three, so that the user sees what there is.
std::vector<std::string> FindNearest(std::string_view typed, std::vector<std::string> const& names);

//! The same as the end of a message: `; nearest: a, b`, or nothing if there are no names.
std::string NearestNote(std::string_view typed, std::vector<std::string> const& names);

} // namespace zbbrowse
