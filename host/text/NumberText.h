// SPDX-License-Identifier: MIT
//! \file
//! Numbers as text, the same in every format.
#pragma once

#include <cstdint>
#include <string>

namespace zbtext {

//! Appends all digits: a 64-bit number is never rounded.
void AppendInteger(std::string& out, std::int64_t number);

//! Appends the shortest digits that read back as the same number, and always a point, so that a
//! real stays a real: `1.0`, `0.1`, `1.0e+20`, `-2.5e-07`. From 1e15 on and below 1e-4 it has an
//! exponent. Infinity is `Inf` or `-Inf`; no number is `NaN`. These two are no JSON.
void AppendReal(std::string& out, double number);

} // namespace zbtext
