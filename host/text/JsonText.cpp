// SPDX-License-Identifier: MIT
#include "text/JsonText.h"

#include "text/Base64.h"
#include "text/DisplayText.h"
#include "text/NumberText.h"

#include <algorithm>
#include <cmath>

namespace zbtext {

namespace {

bool NeedsEscape(char c) {
    return static_cast<unsigned char>(c) < 0x20 || c == '"' || c == '\\';
}

void AppendEscape(std::string& out, char c) {
    constexpr char digits[] = "0123456789abcdef";
    switch (c) {
    case '"':
        out += "\\\"";
        return;
    case '\\':
        out += "\\\\";
        return;
    case '\n':
        out += "\\n";
        return;
    case '\r':
        out += "\\r";
        return;
    case '\t':
        out += "\\t";
        return;
    default:
        out += "\\u00";
        out += digits[static_cast<unsigned char>(c) >> 4U];
        out += digits[static_cast<unsigned char>(c) & 15U];
    }
}

void AppendQuoted(std::string& out, std::string_view text) {
    out += '"';
    while (true) {
        auto const stop = std::find_if(text.begin(), text.end(), NeedsEscape);
        auto const clean = static_cast<std::size_t>(stop - text.begin());
        out += text.substr(0, clean);
        if (stop == text.end())
            break;
        AppendEscape(out, *stop);
        text.remove_prefix(clean + 1);
    }
    out += '"';
}

void AppendMarked(std::string& out, std::string_view marker, std::string_view bytes) {
    out += "{\"$";
    out += marker;
    out += "\":\"";
    AppendBase64(out, bytes);
    out += "\"}";
}

void AppendJsonReal(std::string& out, double number) {
    if (std::isfinite(number)) {
        AppendReal(out, number);
        return;
    }
    out += "{\"$real\":\"";
    AppendReal(out, number);
    out += "\"}";
}

} // namespace

void AppendJson(std::string& out, Value const& value) {
    switch (value.kind) {
    case ValueKind::Null:
        out += "null";
        return;
    case ValueKind::Integer:
        AppendInteger(out, value.integer);
        return;
    case ValueKind::Real:
        AppendJsonReal(out, value.real);
        return;
    case ValueKind::Blob:
        AppendMarked(out, "blob", value.bytes);
        return;
    case ValueKind::Text:
        if (IsUtf8(value.bytes))
            AppendQuoted(out, value.bytes);
        else
            AppendMarked(out, "bytes", value.bytes);
        return;
    }
}

void AppendJsonString(std::string& out, std::string_view text) {
    if (IsUtf8(text)) {
        AppendQuoted(out, text);
        return;
    }
    AppendQuoted(out, ReplaceInvalidUtf8(text));
}

} // namespace zbtext
