// SPDX-License-Identifier: MIT
//! \file
//! The packed form in which rows are kept.
//!
//! A record of n columns is
//!
//!     offsets   4 bytes for each started group of 16 columns but the first: where its bodies begin
//!     tags      1 byte for each column: type and size
//!     bodies    the values, one after the other, unaligned; nothing for null and 0
//!
//! so that a row of ten short values costs ten bytes beyond them, and reading a column walks at
//! most 15 tags, however many columns there are. A text ends with a zero byte, so that it can be
//! handed out as a C string.
#pragma once

#include <zbBrowserView/sqlite/Value.h>

#include <cstddef>
#include <span>

namespace zbsqlite::detail {

//! Records do not grow beyond this; offsets are 32-bit.
constexpr std::size_t kMaxRecordSize = 0xffffffff;

std::size_t RecordSize(std::span<Value const> values);

//! The size of a record that has been written. `columns`: of the whole record.
std::size_t RecordSize(std::byte const* record, std::size_t columns);

//! Requires: room for `RecordSize(values)` bytes, at most `kMaxRecordSize`.
void WriteRecord(std::span<Value const> values, std::byte* record);

//! A record of any number of columns, all null.
std::byte const* NullRecord();

//! `columns`: of the whole record. The value refers to the record's bytes.
Value ReadRecord(std::byte const* record, std::size_t columns, std::size_t column);

} // namespace zbsqlite::detail
