// SPDX-License-Identifier: MIT
//! \file
//! Bytes as letters.
#pragma once

#include <string>
#include <string_view>

namespace zbtext {

//! Appends base64 with the usual alphabet (`+` and `/`) and padding, without line breaks.
void AppendBase64(std::string& out, std::string_view bytes);

//! Appends two upper-case hexadecimal digits for each byte.
void AppendHex(std::string& out, std::string_view bytes);

} // namespace zbtext
