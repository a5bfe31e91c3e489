// SPDX-License-Identifier: MIT
#include "text/NumberText.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <string_view>

namespace zbtext {

namespace {

constexpr int kFirstExponentShown = 15;
constexpr int kLastExponentHidden = -4;

//! A number taken apart: 1234.5 has the digits 12345 and the exponent 3.
struct Decimal {
    bool negative;
    std::string_view digits;
    int exponent;
};

//! `text` is what `to_chars` writes: `-d.ddde+xx`. The point is taken out in place.
Decimal TakeApart(char* first, char* last) {
    Decimal result{false, {}, 0};
    if (*first == '-') {
        result.negative = true;
        ++first;
    }
    auto const mark = std::string_view(first, static_cast<std::size_t>(last - first)).find('e');
    auto const* exponent = first + mark + 1;
    if (*exponent == '+')
        ++exponent;
    std::from_chars(exponent, last, result.exponent);
    if (mark == 1) {
        result.digits = std::string_view(first, 1);
        return result;
    }
    first[1] = first[0];
    result.digits = std::string_view(first + 1, mark - 1);
    return result;
}

void AppendWithExponent(std::string& out, Decimal const& number) {
    out += number.digits.front();
    out += '.';
    if (number.digits.size() == 1)
        out += '0';
    else
        out += number.digits.substr(1);
    out += number.exponent < 0 ? "e-" : "e+";
    auto const size = std::abs(number.exponent);
    if (size < 10)
        out += '0';
    AppendInteger(out, size);
}

void AppendFraction(std::string& out, Decimal const& number) {
    out += "0.";
    out.append(static_cast<std::size_t>(-number.exponent - 1), '0');
    out += number.digits;
}

void AppendPlain(std::string& out, Decimal const& number) {
    auto const whole = static_cast<std::size_t>(number.exponent) + 1;
    if (number.digits.size() <= whole) {
        out += number.digits;
        out.append(whole - number.digits.size(), '0');
        out += ".0";
        return;
    }
    out += number.digits.substr(0, whole);
    out += '.';
    out += number.digits.substr(whole);
}

} // namespace

void AppendInteger(std::string& out, std::int64_t number) {
    std::array<char, 24> text;
    auto const result = std::to_chars(text.data(), text.data() + text.size(), number);
    out.append(text.data(), result.ptr);
}

void AppendReal(std::string& out, double number) {
    if (std::isnan(number)) {
        out += "NaN";
        return;
    }
    if (std::isinf(number)) {
        out += number < 0 ? "-Inf" : "Inf";
        return;
    }
    std::array<char, 40> text;
    auto const written = std::to_chars(text.data(), text.data() + text.size(), number,
                                       std::chars_format::scientific);
    auto const decimal = TakeApart(text.data(), written.ptr);
    if (decimal.negative)
        out += '-';
    if (decimal.exponent >= kFirstExponentShown || decimal.exponent < kLastExponentHidden)
        AppendWithExponent(out, decimal);
    else if (decimal.exponent < 0)
        AppendFraction(out, decimal);
    else
        AppendPlain(out, decimal);
}

} // namespace zbtext
