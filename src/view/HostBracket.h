// SPDX-License-Identifier: MIT
//! \file
//! A pair of host calls around a block.
#pragma once

#include <exception>
#include <utility>

namespace zbbrowser::detail {

//! Runs `end` on every way out of the block that made it. An exception that the host throws from
//! `end` passes on, unless one is on its way already: the first is the one that the host gets to
//! see.
template <class End>
class [[nodiscard]] HostBracket {
public:
    explicit HostBracket(End end)
        : end_(std::move(end)) {}
    HostBracket(HostBracket const&) = delete;
    HostBracket& operator=(HostBracket const&) = delete;

    ~HostBracket() noexcept(false) {
        if (std::uncaught_exceptions() == exceptionsBefore_) {
            end_();
            return;
        }
        try {
            end_();
        } catch (...) {
            return;
        }
    }

private:
    End end_;
    int const exceptionsBefore_ = std::uncaught_exceptions();
};

} // namespace zbbrowser::detail
