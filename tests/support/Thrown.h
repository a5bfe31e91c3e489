// SPDX-License-Identifier: MIT
//! \file
//! What an operation throws, as a text that tells both kinds of exception apart.
#pragma once

#include <zbBrowserView/platform/zbString.h>

#include <string>

namespace zbtest {

//! What `action` throws: "string: text" for a zbString, "text: text" for a char const*, else
//! "nothing".
template <class Action>
std::string Thrown(Action&& action) {
    try {
        action();
    } catch (zbString const& message) {
        return std::string("string: ") + message.c_str();
    } catch (char const* message) {
        return std::string("text: ") + message;
    }
    return "nothing";
}

} // namespace zbtest
