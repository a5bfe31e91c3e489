// SPDX-License-Identifier: MIT
//! \file
//! The values of several items as one text.
#pragma once

#include <zbBrowserView/platform/zbString.h>

namespace zbbrowser::detail {

//! Values with a blank between two; empty ones are left out. As a list: a value with a blank in it
//! stands in braces.
class SelectedText {
public:
    explicit SelectedText(bool isList)
        : isList_(isList) {}

    void Append(zbString const& value);
    zbString Take() { return std::move(text_); }

private:
    bool const isList_;
    zbString text_;
};

} // namespace zbbrowser::detail
