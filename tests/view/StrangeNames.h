// SPDX-License-Identifier: MIT
//! \file
//! Names that a host may give although nobody would.
#pragma once

#include <gtest/gtest.h>

#include <string>

namespace zbtest {

struct StrangeName {
    char const* title;
    std::string name;

    [[nodiscard]] std::string UpToTheFirstNul() const { return name.substr(0, name.find('\0')); }
};

//! For INSTANTIATE_TEST_SUITE_P, with TitleOfName.
inline auto StrangeNames() {
    return testing::Values(
        StrangeName{"Empty", ""}, StrangeName{"OneMebibyte", std::string(1 << 20, 'x')},
        StrangeName{"NotUtf8", "\xff\xfe\x80 part"},
        StrangeName{"WithNul", std::string("ab\0cd", 5)}, StrangeName{"WithSlash", "a/b"},
        StrangeName{"ControlBytes", "\n\t\x01"});
}

inline std::string TitleOfName(testing::TestParamInfo<StrangeName> const& tested) {
    return tested.param.title;
}

} // namespace zbtest
