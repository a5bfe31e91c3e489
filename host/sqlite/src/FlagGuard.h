// SPDX-License-Identifier: MIT
//! \file
//! A flag that tells that something is going on.
#pragma once

namespace zbsqlite::detail {

//! Sets a flag as long as it lives.
class FlagGuard {
public:
    explicit FlagGuard(bool& flag)
        : flag_(flag) {
        flag_ = true;
    }
    FlagGuard(FlagGuard const&) = delete;
    FlagGuard& operator=(FlagGuard const&) = delete;
    ~FlagGuard() { flag_ = false; }

private:
    bool& flag_;
};

} // namespace zbsqlite::detail
