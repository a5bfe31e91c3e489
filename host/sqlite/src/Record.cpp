// SPDX-License-Identifier: MIT
#include "Record.h"

#include <cstring>
#include <limits>
#include <type_traits>

namespace zbsqlite::detail {

namespace {

using Byte = std::byte;

constexpr std::size_t kGroup = 16;

enum Tag : std::uint8_t {
    Null,
    Zero,
    Integer8,
    Integer16,
    Integer32,
    Integer64,
    Real64,
    LongText, // 4 bytes of length in front.
    LongBlob, // 4 bytes of length in front.
    ShortText = 16
};

constexpr std::size_t kMaxShortText = 0xff - ShortText;

std::size_t OffsetsSize(std::size_t columns) {
    return columns <= kGroup ? 0 : (columns - 1) / kGroup * sizeof(std::uint32_t);
}

template <class T>
T Load(Byte const* from) {
    static_assert(std::is_trivially_copyable_v<T>);
    T value;
    std::memcpy(&value, from, sizeof value);
    return value;
}

template <class T>
Byte* Store(Byte* to, T value) {
    static_assert(std::is_trivially_copyable_v<T>);
    std::memcpy(to, &value, sizeof value);
    return to + sizeof value;
}

template <class T>
bool Fits(std::int64_t value) {
    return value >= std::numeric_limits<T>::min() && value <= std::numeric_limits<T>::max();
}

std::uint8_t TagOfInteger(std::int64_t value) {
    if (value == 0)
        return Zero;
    if (Fits<std::int8_t>(value))
        return Integer8;
    if (Fits<std::int16_t>(value))
        return Integer16;
    return Fits<std::int32_t>(value) ? Integer32 : Integer64;
}

std::uint8_t TagOf(Value const& value) {
    switch (value.kind) {
    case ValueKind::Null:
        break;
    case ValueKind::Integer:
        return TagOfInteger(value.integer);
    case ValueKind::Real:
        return Real64;
    case ValueKind::Text:
        return value.bytes.size() > kMaxShortText
                   ? std::uint8_t{LongText}
                   : static_cast<std::uint8_t>(ShortText + value.bytes.size());
    case ValueKind::Blob:
        return LongBlob;
    }
    return Null;
}

//! `length`: what the four bytes in front of a long text or blob say.
std::size_t BodySize(std::uint8_t tag, std::size_t length) {
    constexpr std::uint8_t sizes[] = {0, 0, 1, 2, 4, 8, 8};
    if (tag >= ShortText)
        return static_cast<std::size_t>(tag - ShortText) + 1;
    if (tag == LongText)
        return sizeof(std::uint32_t) + length + 1;
    if (tag == LongBlob)
        return sizeof(std::uint32_t) + length;
    return sizes[tag];
}

Byte* StoreInteger(Byte* to, std::uint8_t tag, std::int64_t value) {
    switch (tag) {
    case Integer8:
        return Store(to, static_cast<std::int8_t>(value));
    case Integer16:
        return Store(to, static_cast<std::int16_t>(value));
    case Integer32:
        return Store(to, static_cast<std::int32_t>(value));
    case Integer64:
        return Store(to, value);
    default:
        return to;
    }
}

Byte* StoreBytes(Byte* to, std::string_view bytes) {
    if (!bytes.empty())
        std::memcpy(to, bytes.data(), bytes.size());
    return to + bytes.size();
}

Byte* StoreBody(Byte* to, std::uint8_t tag, Value const& value) {
    switch (value.kind) {
    case ValueKind::Null:
        break;
    case ValueKind::Integer:
        return StoreInteger(to, tag, value.integer);
    case ValueKind::Real:
        return Store(to, value.real);
    case ValueKind::Text:
        if (tag == LongText)
            to = Store(to, static_cast<std::uint32_t>(value.bytes.size()));
        return Store(StoreBytes(to, value.bytes), '\0');
    case ValueKind::Blob:
        return StoreBytes(Store(to, static_cast<std::uint32_t>(value.bytes.size())), value.bytes);
    }
    return to;
}

Byte const* SkipBody(Byte const* body, std::uint8_t tag) {
    bool const isLong = tag == LongText || tag == LongBlob;
    return body + BodySize(tag, isLong ? Load<std::uint32_t>(body) : 0);
}

std::string_view View(Byte const* from, std::size_t size) {
    return {reinterpret_cast<char const*>(from), size};
}

Value LoadBody(Byte const* body, std::uint8_t tag) {
    switch (tag) {
    case Null:
        return Value();
    case Zero:
        return Value::Integer(0);
    case Integer8:
        return Value::Integer(Load<std::int8_t>(body));
    case Integer16:
        return Value::Integer(Load<std::int16_t>(body));
    case Integer32:
        return Value::Integer(Load<std::int32_t>(body));
    case Integer64:
        return Value::Integer(Load<std::int64_t>(body));
    case Real64:
        return Value::Real(Load<double>(body));
    case LongText:
        return Value::Text(View(body + sizeof(std::uint32_t), Load<std::uint32_t>(body)));
    case LongBlob:
        return Value::Blob(View(body + sizeof(std::uint32_t), Load<std::uint32_t>(body)));
    default:
        return Value::Text(View(body, static_cast<std::size_t>(tag - ShortText)));
    }
}

} // namespace

std::size_t RecordSize(std::span<Value const> values) {
    std::size_t size = OffsetsSize(values.size()) + values.size();
    for (Value const& value : values)
        size += BodySize(TagOf(value), value.bytes.size());
    return size;
}

std::size_t RecordSize(std::byte const* record, std::size_t columns) {
    Byte const* const tags = record + OffsetsSize(columns);
    Byte const* body = tags + columns;
    for (std::size_t i = 0; i < columns; ++i)
        body = SkipBody(body, std::to_integer<std::uint8_t>(tags[i]));
    return static_cast<std::size_t>(body - record);
}

void WriteRecord(std::span<Value const> values, std::byte* record) {
    Byte* const tags = record + OffsetsSize(values.size());
    Byte* body = tags + values.size();
    for (std::size_t i = 0; i < values.size(); ++i) {
        if (i % kGroup == 0 && i > 0)
            Store(record + (i / kGroup - 1) * sizeof(std::uint32_t),
                  static_cast<std::uint32_t>(body - record));
        std::uint8_t const tag = TagOf(values[i]);
        tags[i] = Byte{tag};
        body = StoreBody(body, tag, values[i]);
    }
}

std::byte const* NullRecord() {
    // Offsets and tags of as many columns as SQLite can be made to allow, and no bodies.
    constexpr std::size_t columns = 0x8000;
    static constexpr std::byte record[columns + columns / kGroup * sizeof(std::uint32_t)] = {};
    return record;
}

Value ReadRecord(std::byte const* record, std::size_t columns, std::size_t column) {
    Byte const* const tags = record + OffsetsSize(columns);
    std::size_t const group = column / kGroup;
    Byte const* body = tags + columns;
    if (group > 0)
        body = record + Load<std::uint32_t>(record + (group - 1) * sizeof(std::uint32_t));
    for (std::size_t i = group * kGroup; i < column; ++i)
        body = SkipBody(body, std::to_integer<std::uint8_t>(tags[i]));
    return LoadBody(body, std::to_integer<std::uint8_t>(tags[column]));
}

} // namespace zbsqlite::detail
