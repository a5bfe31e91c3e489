// SPDX-License-Identifier: MIT
//! \file
//! zbString: what is not inline, and StrICmp.
#include <zbBrowserView/platform/zbString.h>

#include <utility>

static_assert(sizeof(zbString) <= 32);

zbString& zbString::operator=(zbString&& other) noexcept {
    if (this != &other) {
        bytes_ = std::move(other.bytes_);
        other.bytes_.clear();
    }
    return *this;
}

zbString& zbString::operator=(char const* text) {
    bytes_ = OrEmpty(text);
    return *this;
}

zbString& zbString::operator+=(zbString const& text) {
    bytes_ += text.bytes_;
    return *this;
}

zbString& zbString::operator+=(char const* text) {
    bytes_ += OrEmpty(text);
    return *this;
}

zbString& zbString::operator+=(char byte) {
    bytes_ += byte;
    return *this;
}

namespace {

// Not std::tolower: that one asks the locale.
int Fold(char byte) noexcept {
    auto const value = static_cast<unsigned char>(byte);
    return value >= 'A' && value <= 'Z' ? value + ('a' - 'A') : value;
}

} // namespace

int StrICmp(char const* left, char const* right) noexcept {
    left = left != nullptr ? left : "";
    right = right != nullptr ? right : "";
    while (*left != '\0' && Fold(*left) == Fold(*right)) {
        ++left;
        ++right;
    }
    return Fold(*left) - Fold(*right);
}
