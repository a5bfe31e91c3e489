// SPDX-License-Identifier: MIT
//! \file
//! Something to look at while a long list loads.
#pragma once

#include <chrono>
#include <cstdint>
#include <string_view>

namespace zbbrowse {

//! A line on standard error, if that is a terminal, from half a second after the start on.
class Progress {
public:
    Progress();
    ~Progress();
    Progress(Progress const&) = delete;
    Progress& operator=(Progress const&) = delete;

    //! May be called as often as one likes.
    void Show(std::string_view list, std::uint64_t rows);

    //! Takes the line away.
    void Clear();

private:
    using Clock = std::chrono::steady_clock;

    bool enabled_;
    bool shown_ = false;
    Clock::time_point next_;
};

} // namespace zbbrowse
