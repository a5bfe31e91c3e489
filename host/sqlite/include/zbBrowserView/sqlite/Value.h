// SPDX-License-Identifier: MIT
//! \file
//! One value of a row, as SQLite types it.
#pragma once

#include <zbBrowserView/sqlite/zbSqliteExport.h>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace zbsqlite {

enum class ValueKind : std::uint8_t { Null, Integer, Real, Text, Blob };

//! A value with the type that is stored, which need not be the type that its column declares.
//! It refers to the row's bytes and copies none; see `Row::GetValue` for how long it is valid.
struct ZBSQLITE_API Value {
    ValueKind kind = ValueKind::Null;
    std::int64_t integer = 0; //!< `Integer` only.
    double real = 0;          //!< `Real` only. Never not-a-number, may be infinite.

    //! `Text` and `Blob` only. Text is whatever bytes the file holds, UTF-8 or not, zero bytes
    //! included, and a zero byte follows it; nothing follows a blob.
    std::string_view bytes;

    static Value Integer(std::int64_t value) { return {ValueKind::Integer, value, 0, {}}; }
    static Value Real(double value) { return {ValueKind::Real, 0, value, {}}; }
    static Value Text(std::string_view value) { return {ValueKind::Text, 0, 0, value}; }
    static Value Blob(std::string_view value) { return {ValueKind::Blob, 0, 0, value}; }

    bool IsNull() const { return kind == ValueKind::Null; }
};

//! The text that SQL's `CAST(value AS TEXT)` gives: numbers in decimal (15 digits for a real),
//! text and blobs as they stand, nothing for null.
ZBSQLITE_API std::string ToText(Value const& value);

//! The value as a whole number: an integer, a real without a fraction, or a text that is nothing
//! but such a number (blanks around it do not count). Nothing otherwise.
ZBSQLITE_API std::optional<std::int64_t> ToInteger(Value const& value);

//! The value as a number, under the rules of `ToInteger`.
ZBSQLITE_API std::optional<double> ToReal(Value const& value);

//! The order of two values, negative, zero or positive: null first, then numbers by size (an
//! integer and a real are compared exactly), then texts without regard to ASCII case and, where
//! these are equal, by bytes, then blobs by bytes. Zero only for values that are equal.
ZBSQLITE_API int Compare(Value const& a, Value const& b);

//! The order of two texts as in `Compare`.
ZBSQLITE_API int CompareText(std::string_view a, std::string_view b);

} // namespace zbsqlite
