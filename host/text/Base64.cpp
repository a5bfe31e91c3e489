// SPDX-License-Identifier: MIT
#include "text/Base64.h"

#include <cstddef>
#include <cstdint>

namespace zbtext {

namespace {

constexpr char kLetters[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

std::uint32_t ByteAt(std::string_view bytes, std::size_t index) {
    return index < bytes.size() ? static_cast<unsigned char>(bytes[index]) : 0U;
}

} // namespace

void AppendBase64(std::string& out, std::string_view bytes) {
    for (std::size_t i = 0; i < bytes.size(); i += 3) {
        auto const group =
            ByteAt(bytes, i) << 16U | ByteAt(bytes, i + 1) << 8U | ByteAt(bytes, i + 2);
        out += kLetters[group >> 18U & 63U];
        out += kLetters[group >> 12U & 63U];
        out += i + 1 < bytes.size() ? kLetters[group >> 6U & 63U] : '=';
        out += i + 2 < bytes.size() ? kLetters[group & 63U] : '=';
    }
}

void AppendHex(std::string& out, std::string_view bytes) {
    constexpr char digits[] = "0123456789ABCDEF";
    for (char const c : bytes) {
        auto const byte = static_cast<unsigned char>(c);
        out += digits[byte >> 4U];
        out += digits[byte & 15U];
    }
}

} // namespace zbtext
