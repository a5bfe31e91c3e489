// SPDX-License-Identifier: MIT
#include "text/DisplayText.h"

#include <utf8proc.h>

#include <algorithm>

namespace zbtext {

namespace {

constexpr std::string_view kReplacement = "\xEF\xBF\xBD";
constexpr std::string_view kEllipsis = "\xE2\x80\xA6";
constexpr utf8proc_int32_t kControlPictures = 0x2400;
constexpr utf8proc_int32_t kDeletePicture = 0x2421;
constexpr utf8proc_int32_t kNewLinePicture = 0x2424;

//! What stands at the start of a text: so many bytes, to be shown as `shown` in `width` cells.
struct Glyph {
    std::size_t bytes;
    std::string_view shown;
    std::size_t width;
};

bool IsPlain(char c) {
    return c >= 0x20 && c < 0x7F;
}

//! Bytes of the first character, which goes to `point`; 0 if they are no UTF-8.
std::size_t Decode(std::string_view text, utf8proc_int32_t& point) {
    auto const most = std::min<std::size_t>(text.size(), 4);
    auto const bytes = utf8proc_iterate(reinterpret_cast<utf8proc_uint8_t const*>(text.data()),
                                        static_cast<utf8proc_ssize_t>(most), &point);
    return bytes > 0 ? static_cast<std::size_t>(bytes) : 0;
}

//! Bytes from the start of `text` that are UTF-8.
std::size_t Utf8Length(std::string_view text) {
    std::size_t length = 0;
    while (length < text.size()) {
        if ((static_cast<unsigned char>(text[length]) & 0x80U) == 0) {
            ++length;
            continue;
        }
        utf8proc_int32_t point = 0;
        auto const bytes = Decode(text.substr(length), point);
        if (bytes == 0)
            break;
        length += bytes;
    }
    return length;
}

//! All pictures lie in one block of three-byte characters, so they are made once.
std::string_view Picture(utf8proc_int32_t point) {
    struct Table {
        char text[0x25][3];
        Table() {
            for (int i = 0; i < 0x25; ++i)
                utf8proc_encode_char(kControlPictures + i,
                                     reinterpret_cast<utf8proc_uint8_t*>(text[i]));
        }
    };
    static Table const table;
    return {table.text[point - kControlPictures], 3};
}

bool TurnsDirection(utf8proc_int32_t point) {
    return (point >= 0x202A && point <= 0x202E) || (point >= 0x2066 && point <= 0x2069);
}

//! Empty if the character can be shown as it is.
std::string_view SafeSign(utf8proc_int32_t point) {
    if (point < 0x20)
        return Picture(kControlPictures + point);
    if (point == 0x7F)
        return Picture(kDeletePicture);
    if (point == 0x2028 || point == 0x2029)
        return Picture(kNewLinePicture);
    if ((point >= 0x80 && point < 0xA0) || TurnsDirection(point))
        return kReplacement;
    return {};
}

Glyph FirstGlyph(std::string_view text) {
    if (IsPlain(text.front()))
        return {1, text.substr(0, 1), 1};
    utf8proc_int32_t point = 0;
    auto const length = Decode(text, point);
    if (length == 0)
        return {1, kReplacement, 1};
    if (auto const sign = SafeSign(point); !sign.empty())
        return {length, sign, 1};
    return {length, text.substr(0, length), static_cast<std::size_t>(utf8proc_charwidth(point))};
}

std::size_t PlainLength(std::string_view text) {
    return static_cast<std::size_t>(std::find_if_not(text.begin(), text.end(), IsPlain) -
                                    text.begin());
}

//! Appends as many glyphs as fit, with the marks that combine with the last; returns the cells
//! used.
std::size_t AppendFitting(std::string& out, std::string_view text, std::size_t limit) {
    std::size_t used = 0;
    while (!text.empty()) {
        auto const glyph = FirstGlyph(text);
        if (used + glyph.width > limit)
            break;
        out += glyph.shown;
        used += glyph.width;
        text.remove_prefix(glyph.bytes);
    }
    return used;
}

} // namespace

bool IsUtf8(std::string_view text) {
    return Utf8Length(text) == text.size();
}

std::string ReplaceInvalidUtf8(std::string_view text) {
    std::string result;
    while (true) {
        auto const length = Utf8Length(text);
        result += text.substr(0, length);
        if (length == text.size())
            return result;
        result += kReplacement;
        text.remove_prefix(length + 1);
    }
}

std::size_t DisplayWidth(std::string_view text, std::size_t limit) {
    auto width = PlainLength(text.substr(0, limit == kNoLimit ? limit : limit + 1));
    text.remove_prefix(width);
    while (!text.empty() && width <= limit) {
        auto const glyph = FirstGlyph(text);
        width += glyph.width;
        text.remove_prefix(glyph.bytes);
    }
    return width;
}

void AppendShown(std::string& out, std::string_view text) {
    while (!text.empty()) {
        auto const plain = PlainLength(text);
        out += text.substr(0, plain);
        text.remove_prefix(plain);
        if (text.empty())
            return;
        auto const glyph = FirstGlyph(text);
        out += glyph.shown;
        text.remove_prefix(glyph.bytes);
    }
}

std::size_t AppendCut(std::string& out, std::string_view text, std::size_t limit) {
    if (auto const width = DisplayWidth(text, limit); width <= limit) {
        AppendShown(out, text);
        return width;
    }
    if (limit == 0)
        return 0;
    auto const used = AppendFitting(out, text, limit - 1);
    out += kEllipsis;
    return used + 1;
}

} // namespace zbtext
