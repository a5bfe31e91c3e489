// SPDX-License-Identifier: MIT
#include <zbBrowserView/sqlite/DataCtrl.h>
#include <zbBrowserView/sqlite/Property.h>
#include <zbBrowserView/sqlite/Row.h>
#include <zbBrowserView/sqlite/Source.h>

#include <limits>
#include <optional>
#include <utility>

namespace zbsqlite {

namespace {

constexpr std::size_t kMaxWholeBlob = 32;
constexpr std::size_t kShownBytes = 16;

template <class Number>
bool ReadWholeNumber(Value const& value, Number& out) {
    auto const integer = ToInteger(value);
    if (!integer || !std::in_range<Number>(*integer))
        return false;
    out = static_cast<Number>(*integer);
    return true;
}

//! Refers to the variant's text. Nothing for a kind that means nothing here.
std::optional<Value> ToValue(zbVariant const& variant) {
    switch (variant.GetKind()) {
    case zbVariant::None:
        return Value();
    case zbVariant::Boolean:
        return Value::Integer(variant.GetBoolean() ? 1 : 0);
    case zbVariant::Integer:
        return Value::Integer(variant.GetInteger());
    case zbVariant::Long64:
        return Value::Integer(variant.GetLong64());
    case zbVariant::Double:
    case zbVariant::Double6:
        return Value::Real(variant.GetDouble());
    case zbVariant::String:
        return Value::Text(variant.GetString());
    default:
        return std::nullopt;
    }
}

std::string BlobToText(std::string_view bytes) {
    constexpr std::string_view digits = "0123456789abcdef";
    bool const isCut = bytes.size() > kMaxWholeBlob;
    std::string text = "x'";
    for (char const c : isCut ? bytes.substr(0, kShownBytes) : bytes) {
        auto const byte = static_cast<unsigned char>(c);
        text += digits[byte >> 4U];
        text += digits[byte & 15U];
    }
    text += isCut ? "...'" : "'";
    if (isCut)
        text += " (" + std::to_string(bytes.size()) + " bytes)";
    return text;
}

} // namespace

std::string ToDisplayText(Value const& value) {
    return value.kind == ValueKind::Blob ? BlobToText(value.bytes) : ToText(value);
}

Value Property::GetValue(Row const& row) const {
    return IsGone() ? Value() : row.GetValue(index_);
}

Value Property::GetValue(zbIBrowserDataItem const* item) const {
    Row const* const row = source_->FindRow(item);
    return row != nullptr ? GetValue(*row) : Value();
}

bool Property::GetDisplayText(zbIBrowserDataItem* item, zbIBrowserDataItem* /*parent*/,
                              zbString& out) {
    Value const value = GetValue(item);
    if (value.IsNull())
        return false;
    out = value.kind == ValueKind::Text ? zbString(value.bytes) : zbString(ToDisplayText(value));
    return true;
}

bool Property::GetInteger(zbIBrowserDataItem* item, zbIBrowserDataItem* /*parent*/, int& out) {
    return ReadWholeNumber(GetValue(item), out);
}

bool Property::GetUnsigned(zbIBrowserDataItem* item, zbIBrowserDataItem* /*parent*/,
                           unsigned& out) {
    return ReadWholeNumber(GetValue(item), out);
}

bool Property::GetBoolean(zbIBrowserDataItem* item, zbIBrowserDataItem* /*parent*/, bool& out) {
    Value const value = GetValue(item);
    if (auto const number = ToReal(value)) {
        out = *number != 0;
        return true;
    }
    bool const isTrue = value.kind == ValueKind::Text && IsSameName(value.bytes, "true");
    if (!isTrue && !(value.kind == ValueKind::Text && IsSameName(value.bytes, "false")))
        return false;
    out = isTrue;
    return true;
}

char const* Property::GetTextPointer(zbIBrowserDataItem* item, zbIBrowserDataItem* /*parent*/) {
    Value const value = GetValue(item);
    if (value.kind == ValueKind::Text)
        return value.bytes.data();
    if (value.kind == ValueKind::Null || value.kind == ValueKind::Blob)
        return nullptr;
    text_ = ToText(value);
    return text_.c_str();
}

bool Property::GetString(zbIBrowserDataItem* item, zbIBrowserDataItem* /*parent*/, zbString& out) {
    Value const value = GetValue(item);
    if (value.IsNull())
        return false;
    bool const isBytes = value.kind == ValueKind::Text || value.kind == ValueKind::Blob;
    out = isBytes ? zbString(value.bytes) : zbString(ToText(value));
    return true;
}

bool Property::GetDouble(zbIBrowserDataItem* item, zbIBrowserDataItem* /*parent*/, double& out) {
    auto const number = ToReal(GetValue(item));
    if (!number)
        return false;
    out = *number;
    return true;
}

bool Property::GetVariant(zbVariant& out) {
    Value const value = GetValue(source_->Control().GetCurrentDataItem());
    switch (value.kind) {
    case ValueKind::Null:
        return false;
    case ValueKind::Integer:
        if (std::in_range<int>(value.integer))
            out = static_cast<int>(value.integer);
        else
            out = static_cast<long long>(value.integer);
        return true;
    case ValueKind::Real:
        out = value.real;
        return true;
    case ValueKind::Text:
    case ValueKind::Blob:
        out = zbString(value.bytes);
        return true;
    }
    return false;
}

bool Property::SetVariant(zbVariant value) {
    Row const* const row = source_->FindRow(source_->Control().GetCurrentDataItem());
    auto const written = ToValue(value);
    return row != nullptr && written && source_->Write(*row, *this, *written);
}

} // namespace zbsqlite
