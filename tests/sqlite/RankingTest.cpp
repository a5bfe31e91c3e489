// SPDX-License-Identifier: MIT
//! \file
//! The order of many rows, which is worked out once for a column and then remembered.
#include "SqliteTestSupport.h"

#include <zbBrowserView/sqlite/Source.h>

#include <gtest/gtest.h>

#include <algorithm>

namespace zbtest {

namespace {

//! A table t(id, v) with many rows, few different values, and the values in no order. `values` is a
//! query with one column v.
class RankingTest : public testing::Test {
protected:
    void Make(std::string const& values) {
        file_ = folder_.Make("CREATE TABLE t(id INTEGER PRIMARY KEY, v);"
                             "INSERT INTO t(v) WITH RECURSIVE n(i) AS"
                             "(SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 40),"
                             "s AS MATERIALIZED (" +
                             values +
                             ") SELECT v FROM s, n ORDER BY (s.rowid * 7919 + i * 104729) % 1009");
    }

    //! The rows by v, as the source compares them.
    std::vector<std::string> Sorted() {
        zbsqlite::DataCtrl control{zbsqlite::Database(file_)};
        auto& source = Find(control, "t");
        auto items = ItemsOf(source);
        EXPECT_GT(items.size(), 256U) << "a short list is not ranked";
        auto* const v = source.FindDataProperty("v");
        std::stable_sort(items.begin(), items.end(), [&](auto* a, auto* b) {
            int order = 0;
            EXPECT_TRUE(source.CompareByDataProperty(a, v, b, v, order));
            return order < 0;
        });
        std::vector<std::string> rows;
        rows.reserve(items.size());
        for (auto* const item : items)
            rows.push_back(Describe(source.FindDataProperty("id")->GetValue(item)) + "|" +
                           Describe(v->GetValue(item)));
        return rows;
    }

    std::vector<std::string> SortedBySql() {
        return OtherProgram(file_).Query("SELECT id, v FROM t ORDER BY v COLLATE NOCASE, v, id");
    }

private:
    TempFolder folder_;
    std::filesystem::path file_;
};

} // namespace

TEST_F(RankingTest, OfNumbersIsExactBeyondWhatRealsHold) {
    Make("SELECT column1 AS v, column2 AS rowid FROM (VALUES"
         "(9007199254740991, 1), (9007199254740992, 2), (9007199254740993, 3),"
         "(9007199254740992.0, 4), (9007199254740994.0, 5), (-9007199254740993, 6),"
         "(9223372036854775807, 7), (9223372036854775808.0, 8), (-9223372036854775808, 9),"
         "(9e999, 10), (-9e999, 11), (0, 12), (-0.0, 13), (0.5, 14), (1, 15), (1.0, 16))");

    EXPECT_EQ(Sorted(), SortedBySql());
}

TEST_F(RankingTest, OfTextsMindsCaseOnlyWhereTheyAreAlikeOtherwise) {
    Make("SELECT column1 AS v, column2 AS rowid FROM (VALUES ('', 1), ('a', 2), ('A', 3),"
         "('ab', 4), ('aB', 5), ('abcdefg', 6), ('ABCDEFG', 7), ('abcdefgh', 8), ('abcdefgH', 9),"
         "('abcdefga', 10), ('_', 11), ('z', 12), ('ä', 13), ('Ä', 14), ('[', 15), ('10', 16),"
         "('9', 17), ('abcdefgabcdefgx', 18), ('abcdefgABCDEFGX', 19))");

    EXPECT_EQ(Sorted(), SortedBySql());
}

TEST_F(RankingTest, OfLongTextsThatAreAlikeLooksToTheirEnds) {
    Make("WITH p(x, n) AS (VALUES ('a', 1), ('A', 2), ('b', 3), ('', 4), ('ab', 5), ('B', 6),"
         "('c', 7), ('C', 8), ('aB', 9))"
         "SELECT replace(hex(zeroblob(30)), '00', 'path/') || x AS v, n AS rowid FROM p");

    EXPECT_EQ(Sorted(), SortedBySql());
}

TEST_F(RankingTest, OfTextsWithZeroBytesIsThatOfNocase) {
    Make("WITH p(x, n) AS (VALUES ('a', 1), ('A', 2), ('b', 3), ('', 4), ('ba', 5), ('Bb', 6))"
         "SELECT 'k' || char(0) || x AS v, n AS rowid FROM p UNION ALL "
         "SELECT 'k' || x, n + 6 FROM p UNION ALL SELECT x || char(0), n + 12 FROM p");

    EXPECT_EQ(Sorted(), SortedBySql());
}

TEST_F(RankingTest, OfBlobsIsByBytes) {
    Make("SELECT column1 AS v, column2 AS rowid FROM (VALUES (x'', 1), (x'00', 2), (x'0000', 3),"
         "(x'41', 4), (x'61', 5), (x'ff', 6), (x'7f', 7), (x'00010203040506', 8),"
         "(x'0001020304050600', 9), (x'000102030405', 10))");

    EXPECT_EQ(Sorted(), SortedBySql());
}

TEST_F(RankingTest, PutsNullsBeforeNumbersBeforeTextsBeforeBlobs) {
    Make("SELECT column1 AS v, column2 AS rowid FROM (VALUES (NULL, 1), (5, 2), ('5', 3),"
         "(x'35', 4), (4.5, 5), ('', 6), (x'', 7), ('x', 8), (NULL, 9), (-1, 10))");

    EXPECT_EQ(Sorted(), SortedBySql());
}

TEST_F(RankingTest, OfEqualValuesIsATie) {
    Make("SELECT 'same' AS v, column1 AS rowid FROM (VALUES (1), (2), (3), (4), (5), (6), (7))");

    EXPECT_EQ(Sorted(), SortedBySql());
}

} // namespace zbtest
