// SPDX-License-Identifier: MIT
//! \file
//! What a frame needs to know.
#pragma once

#include <cstddef>
#include <cstdint>

namespace zbbench {

//! The rows and columns of a frame.
inline constexpr std::size_t rowsShown = 50;
inline constexpr std::size_t columnsShown = 4;

//! Takes what a widget would draw, and counts it. Two widgets that were told the same about the
//! same cells have the same sum.
class Canvas {
public:
    void Text(unsigned first, std::size_t length) {
        ++values_;
        sum_ += first * 31U + length;
    }
    void Number(int number) {
        ++values_;
        sum_ += static_cast<std::uint64_t>(number);
    }
    void Icon() { ++values_; }
    void Look(bool bold, bool italic) {
        ++looks_;
        sum_ += (bold ? 1U : 0U) + (italic ? 2U : 0U);
    }

    //! True if `frames` frames were told in full: for each row an icon, two texts and two numbers,
    //! for each cell a look.
    bool IsComplete(std::size_t frames) const {
        return values_ == frames * rowsShown * 5 && looks_ == frames * rowsShown * columnsShown;
    }
    std::uint64_t GetSum() const { return sum_; }

private:
    std::size_t values_ = 0;
    std::size_t looks_ = 0;
    std::uint64_t sum_ = 0;
};

} // namespace zbbench
