// SPDX-License-Identifier: MIT
//! \file
//! zbVariant and the text in which a value is shown.
#include <zbBrowserView/platform/zbVariant.h>

#include <array>
#include <cstdint>
#include <cstdio>
#include <limits>
#include <utility>

namespace {

bool IsDouble(int kind) noexcept {
    return kind == zbVariant::Double || kind == zbVariant::Double6;
}

zbString IntegerText(int value) {
    std::array<char, 16> text{};
    std::snprintf(text.data(), text.size(), "%d", value);
    return text.data();
}

zbString DoubleText(double value) {
    // Sign, every digit before the point of the greatest double, a point, six digits, zero byte. A
    // locale's point may take several bytes.
    std::array<char, std::numeric_limits<double>::max_exponent10 + 32> text{};
    std::snprintf(text.data(), text.size(), "%lf", value);
    return text.data();
}

} // namespace

zbVariant::zbVariant(zbVariant&& other) noexcept
    : kind_(other.kind_)
    , number_(other.number_)
    , text_(std::move(other.text_)) {
    other.SetKind(None);
}

zbVariant& zbVariant::operator=(zbVariant&& other) noexcept {
    if (this != &other) {
        kind_ = other.kind_;
        number_ = other.number_;
        text_ = std::move(other.text_);
        other.SetKind(None);
    }
    return *this;
}

void zbVariant::SetKind(int kind) noexcept {
    bool const keepsValue = kind == kind_ || (IsDouble(kind) && IsDouble(kind_));
    kind_ = kind;
    if (keepsValue) {
        return;
    }
    text_.clear();
    number_ = IsDouble(kind) ? Number{.real = 0.0} : Number{.long64 = 0};
    if (kind == Boolean) {
        number_ = Number{.boolean = false};
    } else if (kind == Integer) {
        number_ = Number{.integer = 0};
    }
}

bool zbVariant::GetBoolean() const noexcept {
    return kind_ == Boolean && number_.boolean;
}

int zbVariant::GetInteger() const noexcept {
    return kind_ == Integer ? number_.integer : 0;
}

long long zbVariant::GetLong64() const noexcept {
    return kind_ == Long64 ? number_.long64 : 0;
}

double zbVariant::GetDouble() const noexcept {
    return IsDouble(kind_) ? number_.real : 0.0;
}

zbString ToText(zbVariant const& value) {
    switch (value.GetKind()) {
    case zbVariant::Boolean:
        return value.GetBoolean() ? "true" : "false";
    case zbVariant::Integer:
        return IntegerText(value.GetInteger());
    case zbVariant::Long64:
        return IntegerText(static_cast<std::int32_t>(value.GetLong64()));
    case zbVariant::Double:
    case zbVariant::Double6:
        return DoubleText(value.GetDouble());
    case zbVariant::String:
        return value.GetString();
    default:
        return {};
    }
}
