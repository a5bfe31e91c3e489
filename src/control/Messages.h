// SPDX-License-Identifier: MIT
//! \file
//! The texts of the failures inside the library.
#pragma once

#include <zbBrowserView/platform/zbString.h>

// Two kinds of exception leave the library and are kept apart. What fails inside is thrown as a
// zbString, by value, with one of these texts: write `Fail(NullPointerHit);`. What the caller got
// wrong is thrown as `char const*`: write `throw "the text";` at the place itself, where a literal
// of its own says what was wrong.
namespace zbbrowser::detail {

//! A pointer argument or an object that was looked up is null.
inline constexpr char const* NullPointerHit = "Null pointer hit";
//! A create step finds its member set.
inline constexpr char const* InitializedMemory =
    "Initialized memory where null is expected, possible memory leak";
//! An allocation failed.
inline constexpr char const* NotEnoughMemory =
    "Could not create new object in the heap, possibly unsufficient memory";
//! A value outside its enumeration.
inline constexpr char const* UnexpectedEnum = "Unexpected enum value supplied";
//! An item, a column or a folder of another view or controller.
inline constexpr char const* DifferentManager =
    "Attempt to operate on object belonging to different manager";
//! The children of an item could not be read.
inline constexpr char const* GetChildrenFailed = "View::GetChildren(output,parent) call failed";
//! A step for dirty items only met a clean one.
inline constexpr char const* UnexpectedCleanItem = "Unexpected clean item";
//! A step for clean items only met a dirty one.
inline constexpr char const* UnexpectedDirtyItem = "Unexpected dirty item";
//! Any other broken invariant.
inline constexpr char const* UnexpectedGeneralError = "Unexpected general error";

[[noreturn]] inline void Fail(char const* message) {
    throw zbString(message);
}

} // namespace zbbrowser::detail
