// SPDX-License-Identifier: MIT
//! \file
//! Text from anywhere made fit for a terminal: how wide it is, and how it is cut and aligned.
//!
//! A terminal counts cells, not bytes: a CJK letter takes two, a combining mark none. What could
//! move the cursor or change how the rest is read is replaced by a visible sign of one cell: a
//! control character by its picture (`␊` for a line feed, `␛` for an escape), a character that
//! turns the writing direction and every byte that is no UTF-8 by `�`.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace zbtext {

enum class Align { Left, Right };

//! Says that a text is shown whole, however wide.
inline constexpr std::size_t kNoLimit = static_cast<std::size_t>(-1);

//! True if `text` is UTF-8 throughout: no overlong forms, no surrogates, nothing cut off.
bool IsUtf8(std::string_view text);

//! `text` with `U+FFFD` for each byte that is no UTF-8, and everything else as it is.
std::string ReplaceInvalidUtf8(std::string_view text);

//! Cells that `text` takes as `AppendShown` writes it. With a `limit`, counting stops beyond it and
//! the answer is only known to be greater than the limit, so that a long text costs no more than a
//! short one.
std::size_t DisplayWidth(std::string_view text, std::size_t limit = kNoLimit);

//! Appends `text` with everything unsafe replaced.
void AppendShown(std::string& out, std::string_view text);

//! Appends `text` in at most `limit` cells, the last of which is `…` if something had to go.
//! Returns the cells used, which can be one less than the limit where a wide character did not fit.
std::size_t AppendCut(std::string& out, std::string_view text, std::size_t limit);

} // namespace zbtext
