// SPDX-License-Identifier: MIT
//! \file
//! One value of a row, as the writers see it.
#pragma once

#include <cstdint>
#include <string_view>

namespace zbtext {

//! The types that a value can have. They are those of SQL, and each format keeps them apart.
enum class ValueKind : std::uint8_t { Null, Integer, Real, Text, Blob };

//! A value without memory of its own. `bytes` views the host's data and is valid as long as the row
//! that it came from; nothing promises that a text is valid UTF-8.
struct Value {
    ValueKind kind = ValueKind::Null;
    std::int64_t integer = 0;
    double real = 0.0;
    std::string_view bytes;

    static Value OfInteger(std::int64_t number) { return {ValueKind::Integer, number, 0.0, {}}; }
    static Value OfReal(double number) { return {ValueKind::Real, 0, number, {}}; }
    static Value OfText(std::string_view text) { return {ValueKind::Text, 0, 0.0, text}; }
    static Value OfBlob(std::string_view bytes) { return {ValueKind::Blob, 0, 0.0, bytes}; }

    bool IsNumber() const { return kind == ValueKind::Integer || kind == ValueKind::Real; }
};

} // namespace zbtext
