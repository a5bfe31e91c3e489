// SPDX-License-Identifier: MIT
//! \file
//! Packing rows.
#include "Record.h"

#include "Arena.h"
#include "Quote.h"

#include <gtest/gtest.h>

#include <cstring>
#include <random>
#include <vector>

namespace zbsqlite::detail {

namespace {

Value RandomValue(std::mt19937_64& random, std::vector<std::string>& texts) {
    std::string& text = texts.emplace_back(random() % 600, 't');
    switch (random() % 6) {
    case 0:
        return Value();
    case 1:
        return Value::Integer(static_cast<std::int64_t>(random()) >> (random() % 64));
    case 2:
        return Value::Real(static_cast<double>(random()) / 3);
    case 3:
        return Value::Text(text);
    case 4:
        return Value::Text(std::string_view(text).substr(0, text.size() % 20));
    default:
        return Value::Blob(text);
    }
}

bool IsSame(Value const& a, Value const& b) {
    return a.kind == b.kind && a.integer == b.integer && a.real == b.real && a.bytes == b.bytes;
}

class RecordOfColumns : public testing::TestWithParam<std::size_t> {};

} // namespace

TEST_P(RecordOfColumns, GivesBackWhatWasPutIn) {
    std::mt19937_64 random(GetParam());
    std::vector<std::string> texts;
    texts.reserve(GetParam());
    std::vector<Value> values;
    for (std::size_t i = 0; i < GetParam(); ++i)
        values.push_back(RandomValue(random, texts));
    // Exactly as large as it says, so that a sanitizer sees a byte too many.
    std::vector<std::byte> record(RecordSize(values));

    WriteRecord(values, record.data());

    for (std::size_t i = 0; i < values.size(); ++i)
        EXPECT_TRUE(IsSame(ReadRecord(record.data(), values.size(), i), values[i])) << i;
}

INSTANTIATE_TEST_SUITE_P(Sizes, RecordOfColumns,
                         testing::Values(1, 2, 15, 16, 17, 31, 32, 33, 200, 2000));

TEST(RecordTest, SpendsAByteOnANullAndOnAZero) {
    EXPECT_EQ(RecordSize(std::vector<Value>{Value(), Value::Integer(0)}), 2U);
}

TEST(RecordTest, SpendsTagAndZeroByteOnAShortText) {
    EXPECT_EQ(RecordSize(std::vector<Value>{Value::Text("abc")}), 5U);
}

TEST(RecordTest, SpendsWhatAnIntegerNeeds) {
    EXPECT_EQ(RecordSize(std::vector<Value>{Value::Integer(-128)}), 2U);
    EXPECT_EQ(RecordSize(std::vector<Value>{Value::Integer(-129)}), 3U);
    EXPECT_EQ(RecordSize(std::vector<Value>{Value::Integer(32768)}), 5U);
    EXPECT_EQ(RecordSize(std::vector<Value>{Value::Integer(1LL << 31)}), 9U);
}

TEST(ArenaTest, GivesPiecesThatDoNotOverlapAndStay) {
    Arena arena;
    std::vector<std::pair<std::byte*, std::size_t>> pieces;
    for (std::size_t i = 0; i < 3000; ++i) {
        std::size_t const size = i % 100 == 0 ? 5000 : i % 37;
        std::byte* const piece = arena.Allocate(size);
        std::memset(piece, static_cast<int>(i % 251), size);
        pieces.emplace_back(piece, size);
    }
    Arena const moved = std::move(arena);
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        for (std::size_t j = 0; j < pieces[i].second; ++j)
            ASSERT_EQ(pieces[i].first[j], static_cast<std::byte>(i % 251)) << i;
    }
}

TEST(ArenaTest, WastesLittle) {
    Arena arena;
    std::size_t asked = 0;
    for (std::size_t i = 0; i < 100000; ++i) {
        arena.Allocate(40);
        asked += 40;
    }
    arena.Allocate(3 << 20);
    asked += 3 << 20;
    EXPECT_LE(arena.BytesTaken(), asked + (1U << 20U) + (1U << 10U));
}

TEST(QuoteTest, KeepsANameOneName) {
    EXPECT_EQ(QuoteName("part"), "\"part\"");
    EXPECT_EQ(QuoteName(""), "\"\"");
    EXPECT_EQ(QuoteName("a\"; DROP TABLE t; --"), "\"a\"\"; DROP TABLE t; --\"");
}

} // namespace zbsqlite::detail
