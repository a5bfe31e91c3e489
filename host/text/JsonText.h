// SPDX-License-Identifier: MIT
//! \file
//! Values as JSON.
//!
//! Integers have all their digits, reals always a point or an exponent, null is `null`, and text is
//! a string. What JSON cannot say is an object with one key that begins with `$`, which no value
//! can be mistaken for: a blob is `{"$blob":"<base64>"}`, a text that is not UTF-8 is
//! `{"$bytes":"<base64>"}`, and an infinite real is `{"$real":"Inf"}` or `{"$real":"-Inf"}`.
#pragma once

#include "text/Value.h"

#include <string>
#include <string_view>

namespace zbtext {

void AppendJson(std::string& out, Value const& value);

//! Appends a string in quotes. Bytes that are no UTF-8 become U+FFFD: this is for keys and names
//! that must be strings; the values of rows go through `AppendJson`, which loses nothing.
void AppendJsonString(std::string& out, std::string_view text);

} // namespace zbtext
