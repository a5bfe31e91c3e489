// SPDX-License-Identifier: MIT
#include "Names.h"

#include <zbBrowserView/sqlite/Value.h>

#include <sqlite3.h>

#include <array>
#include <charconv>
#include <cmath>

namespace zbsqlite {

namespace {

// The reals that have a neighbour among the 64-bit integers lie in [-2^63, 2^63).
constexpr double kIntegerLimit = 9223372036854775808.0;

std::string RealToText(double value) {
    // SQLite's own printf: the C library's depends on the locale, and "!" keeps ".0" on whole
    // numbers, which is how SQL tells 1.0 from 1.
    std::array<char, 64> text{};
    sqlite3_snprintf(static_cast<int>(text.size()), text.data(), "%!.15g", value);
    return text.data();
}

std::string_view Trim(std::string_view text) {
    constexpr std::string_view blanks = " \t\n\v\f\r";
    auto const first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

template <class Number>
std::optional<Number> Parse(std::string_view text) {
    text = Trim(text);
    if (text.starts_with('+') && !text.starts_with("+-"))
        text.remove_prefix(1);
    Number number{};
    auto const [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size())
        return std::nullopt;
    return number;
}

//! A text such as "inf" or "nan" is a word, not a number.
std::optional<double> ParseReal(std::string_view text) {
    auto const number = Parse<double>(text);
    if (number && std::isfinite(*number))
        return number;
    return std::nullopt;
}

std::optional<std::int64_t> WholeNumber(double value) {
    if (value < -kIntegerLimit || value >= kIntegerLimit || std::trunc(value) != value)
        return std::nullopt;
    return static_cast<std::int64_t>(value);
}

template <class T>
int Order(T const& a, T const& b) {
    return a < b ? -1 : (b < a ? 1 : 0);
}

//! Exact where converting the integer to a real would round it.
int CompareIntegerWithReal(std::int64_t integer, double real) {
    if (real < -kIntegerLimit)
        return 1;
    if (real >= kIntegerLimit)
        return -1;
    auto const whole = static_cast<std::int64_t>(real);
    if (int const order = Order(integer, whole); order != 0)
        return order;
    return Order(0.0, real - static_cast<double>(whole));
}

int CompareNumbers(Value const& a, Value const& b) {
    bool const isIntegerA = a.kind == ValueKind::Integer;
    bool const isIntegerB = b.kind == ValueKind::Integer;
    if (isIntegerA && isIntegerB)
        return Order(a.integer, b.integer);
    if (isIntegerA)
        return CompareIntegerWithReal(a.integer, b.real);
    if (isIntegerB)
        return -CompareIntegerWithReal(b.integer, a.real);
    return Order(a.real, b.real);
}

int CompareBytes(std::string_view a, std::string_view b) {
    return Order(a.compare(b), 0);
}

//! Place among the kinds; integers and reals share one.
int Rank(ValueKind kind) {
    switch (kind) {
    case ValueKind::Null:
        return 0;
    case ValueKind::Integer:
    case ValueKind::Real:
        return 1;
    case ValueKind::Text:
        return 2;
    case ValueKind::Blob:
        break;
    }
    return 3;
}

} // namespace

std::string ToText(Value const& value) {
    switch (value.kind) {
    case ValueKind::Null:
        break;
    case ValueKind::Integer:
        return std::to_string(value.integer);
    case ValueKind::Real:
        return RealToText(value.real);
    case ValueKind::Text:
    case ValueKind::Blob:
        return std::string(value.bytes);
    }
    return {};
}

std::optional<std::int64_t> ToInteger(Value const& value) {
    switch (value.kind) {
    case ValueKind::Integer:
        return value.integer;
    case ValueKind::Real:
        return WholeNumber(value.real);
    case ValueKind::Text: {
        if (auto const integer = Parse<std::int64_t>(value.bytes))
            return integer;
        auto const real = ParseReal(value.bytes);
        return real ? WholeNumber(*real) : std::nullopt;
    }
    case ValueKind::Null:
    case ValueKind::Blob:
        break;
    }
    return std::nullopt;
}

std::optional<double> ToReal(Value const& value) {
    switch (value.kind) {
    case ValueKind::Integer:
        return static_cast<double>(value.integer);
    case ValueKind::Real:
        return value.real;
    case ValueKind::Text:
        return ParseReal(value.bytes);
    case ValueKind::Null:
    case ValueKind::Blob:
        break;
    }
    return std::nullopt;
}

int CompareText(std::string_view a, std::string_view b) {
    if (a == b)
        return 0;
    int const order = detail::CompareFolded(a, b);
    return order != 0 ? order : CompareBytes(a, b);
}

int Compare(Value const& a, Value const& b) {
    int const rank = Rank(a.kind);
    if (int const order = Order(rank, Rank(b.kind)); order != 0)
        return order;
    switch (rank) {
    case 0:
        return 0;
    case 1:
        return CompareNumbers(a, b);
    case 2:
        return CompareText(a.bytes, b.bytes);
    default:
        return CompareBytes(a.bytes, b.bytes);
    }
}

} // namespace zbsqlite
