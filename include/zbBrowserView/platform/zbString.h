// SPDX-License-Identifier: MIT
//! \file
//! The text type of the system, and the case-blind comparison that goes with it.
#pragma once

#include <zbBrowserView/platform/zbExport.h>

#include <compare>
#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <utility>

//! A text: a sequence of bytes in an encoding that the host chooses. Zero bytes are kept.
//!
//! Both sides use it: as an argument, as a place for results, and as an exception (failures inside
//! the library are thrown as a zbString by value). It wraps std::string for its storage: a text of
//! up to 15 bytes lies inside the object and allocates nothing, and moving never throws.
//!
//! Null: a null `char const*` is the empty text in every operation.
//! Failure: whatever has to allocate throws std::bad_alloc and leaves the object as it was.
class ZBBROWSERVIEW_API zbString {
public:
    zbString() noexcept = default;
    zbString(char const* text)
        : bytes_(OrEmpty(text)) {}
    //! Takes \p length bytes, zero bytes among them. Null: the empty text, whatever the length.
    zbString(char const* text, std::size_t length)
        : bytes_(text != nullptr ? std::string_view(text, length) : std::string_view()) {}
    explicit zbString(std::string_view text)
        : bytes_(text) {}
    zbString(zbString const&) = default;
    //! Leaves \p other empty.
    zbString(zbString&& other) noexcept
        : bytes_(std::move(other.bytes_)) {
        other.bytes_.clear();
    }
    ~zbString() = default;

    zbString& operator=(zbString const&) = default;
    //! Leaves \p other empty, unless it is this object.
    zbString& operator=(zbString&& other) noexcept;
    //! \p text may point into this object's own bytes.
    zbString& operator=(char const* text);

    //! Never null; ends with a zero byte. Valid until the text changes, moves or goes.
    [[nodiscard]] char const* c_str() const noexcept { return bytes_.c_str(); }
    //! In bytes, the closing zero byte not counted.
    [[nodiscard]] std::size_t length() const noexcept { return bytes_.length(); }
    [[nodiscard]] bool empty() const noexcept { return bytes_.empty(); }
    //! Keeps the storage for the next text.
    void clear() noexcept { bytes_.clear(); }
    //! Valid as long as `c_str()`.
    operator std::string_view() const noexcept { return bytes_; }

    zbString& operator+=(zbString const& text);
    zbString& operator+=(char const* text);
    zbString& operator+=(char byte);

    friend zbString operator+(zbString left, zbString const& right) {
        left += right;
        return left;
    }
    friend zbString operator+(zbString left, char const* right) {
        left += right;
        return left;
    }
    friend zbString operator+(char const* left, zbString const& right) {
        return zbString(left) + right;
    }

    //! Texts are equal, or in order, byte by byte; bytes count as unsigned. For a comparison that
    //! is blind to case, see StrICmp.
    friend bool operator==(zbString const& left, zbString const& right) noexcept {
        return left.bytes_ == right.bytes_;
    }
    friend bool operator==(zbString const& left, char const* right) noexcept {
        return left.bytes_ == OrEmpty(right);
    }
    friend std::strong_ordering operator<=>(zbString const& left, zbString const& right) noexcept {
        return left.bytes_.compare(right.bytes_) <=> 0;
    }
    friend std::strong_ordering operator<=>(zbString const& left, char const* right) noexcept {
        return left.bytes_.compare(OrEmpty(right)) <=> 0;
    }

private:
    static char const* OrEmpty(char const* text) noexcept { return text != nullptr ? text : ""; }

    std::string bytes_;
};

template <>
struct std::hash<zbString> {
    std::size_t operator()(zbString const& text) const noexcept {
        return std::hash<std::string_view>()(text);
    }
};

//! Compares two texts without regard to the case of the letters A to Z: below zero, zero or above
//! zero as \p left stands before, with or after \p right.
//!
//! Capital letters count as small ones and bytes as unsigned, so that `_` stands before every
//! letter and a byte above 127 after every ASCII one. No other letters are folded, whatever the
//! locale. Null: counts as the empty text.
ZBBROWSERVIEW_API int StrICmp(char const* left, char const* right) noexcept;
