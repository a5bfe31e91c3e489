// SPDX-License-Identifier: MIT
//! \file
//! The order of rows and of sources.
#include "SqliteTestSupport.h"

#include <zbBrowserView/sqlite/DataCtrl.h>

#include <gmock/gmock.h>

#include <algorithm>
#include <limits>
#include <optional>

namespace zbtest {

namespace {

using testing::ElementsAre;
using zbsqlite::Compare;
using zbsqlite::Database;
using zbsqlite::DataCtrl;
using zbsqlite::Source;
using zbsqlite::Value;

int Sign(int number) {
    return (number > 0) - (number < 0);
}

class Order : public testing::Test {
protected:
    void Make(std::string_view sql) { control_.emplace(Database(folder_.Make(sql))); }
    Source& Named(char const* name) { return Find(*control_, name); }

    TempFolder folder_;
    std::optional<DataCtrl> control_;
};

} // namespace

TEST(ValueOrder, PutsNullBeforeNumbersBeforeTextBeforeBlobs) {
    Value const ordered[] = {Value(), Value::Integer(9), Value::Text("1"), Value::Blob("0")};
    for (std::size_t i = 0; i < std::size(ordered); ++i) {
        for (std::size_t j = 0; j < std::size(ordered); ++j)
            EXPECT_EQ(Sign(Compare(ordered[i], ordered[j])), (i > j) - (i < j)) << i << ' ' << j;
    }
}

TEST(ValueOrder, ComparesIntegersAndRealsBySize) {
    EXPECT_LT(Compare(Value::Integer(2), Value::Integer(10)), 0);
    EXPECT_LT(Compare(Value::Integer(2), Value::Real(2.5)), 0);
    EXPECT_GT(Compare(Value::Real(2.5), Value::Integer(2)), 0);
    EXPECT_LT(Compare(Value::Real(-2.5), Value::Integer(-2)), 0);
    EXPECT_EQ(Compare(Value::Integer(2), Value::Real(2.0)), 0);
    EXPECT_LT(Compare(Value::Real(0.1), Value::Real(0.2)), 0);
}

TEST(ValueOrder, ComparesBigIntegersWithRealsExactly) {
    std::int64_t const big = 9007199254740993; // 2^53 + 1, which no real holds.
    EXPECT_GT(Compare(Value::Integer(big), Value::Real(9007199254740992.0)), 0);
    EXPECT_LT(Compare(Value::Real(9007199254740992.0), Value::Integer(big)), 0);
    std::int64_t const largest = std::numeric_limits<std::int64_t>::max();
    EXPECT_LT(Compare(Value::Integer(largest), Value::Real(9223372036854775808.0)), 0);
    double const infinity = std::numeric_limits<double>::infinity();
    EXPECT_LT(Compare(Value::Integer(largest), Value::Real(infinity)), 0);
    EXPECT_GT(Compare(Value::Integer(-largest), Value::Real(-infinity)), 0);
}

TEST(ValueOrder, ComparesTextWithoutRegardToAsciiCaseFirst) {
    EXPECT_LT(Compare(Value::Text("apple"), Value::Text("Banana")), 0);
    EXPECT_LT(Compare(Value::Text("Apple"), Value::Text("apple")), 0);
    EXPECT_LT(Compare(Value::Text("apple"), Value::Text("Apples")), 0);
    EXPECT_EQ(Compare(Value::Text("same"), Value::Text("same")), 0);
    EXPECT_LT(Compare(Value::Text("z"), Value::Text("\xc3\xa4")), 0);
    EXPECT_LT(Compare(Value::Text("_"), Value::Text("A")), 0);
}

TEST(ValueOrder, ComparesBlobsByUnsignedBytes) {
    EXPECT_LT(Compare(Value::Blob("\x7f"), Value::Blob("\x80")), 0);
    EXPECT_LT(Compare(Value::Blob("A"), Value::Blob("a")), 0);
    EXPECT_LT(Compare(Value::Blob("a"), Value::Blob("aa")), 0);
}

TEST_F(Order, OfAColumnIsThatOfItsValues) {
    Make("CREATE TABLE t(id INTEGER PRIMARY KEY, v); INSERT INTO t(v) VALUES"
         "('b'), (x'00'), (10), (NULL), ('A'), (9.5), ('a')");
    auto items = ItemsOf(Named("t"));
    auto* const property = Named("t").FindDataProperty("v");
    std::stable_sort(items.begin(), items.end(), [&](auto* a, auto* b) {
        int cmp = 0;
        EXPECT_TRUE(Named("t").CompareByDataProperty(a, property, b, property, cmp));
        return cmp < 0;
    });
    std::vector<std::string> values;
    values.reserve(items.size());
    for (auto* const item : items)
        values.push_back(Describe(property->GetValue(item)));
    EXPECT_THAT(values,
                ElementsAre("null", "real 9.5", "int 10", "text A", "text a", "text b", "blob 00"));
}

TEST_F(Order, OfTwoSourcesComparesAPropertyOfEach) {
    Make("CREATE TABLE t(a, x); INSERT INTO t VALUES (0, 1), (0, 3); CREATE TABLE u(y);"
         "INSERT INTO u VALUES (2)");
    auto const ts = ItemsOf(Named("t"));
    auto const us = ItemsOf(Named("u"));
    auto* const x = Named("t").FindDataProperty("x");
    auto* const y = Named("u").FindDataProperty("y");
    int cmp = 0;
    EXPECT_TRUE(Named("t").CompareByDataProperty(ts[0], x, us[0], y, cmp));
    EXPECT_LT(cmp, 0);
    EXPECT_TRUE(Named("t").CompareByDataProperty(ts[1], x, us[0], y, cmp));
    EXPECT_GT(cmp, 0);
}

TEST_F(Order, IsUndecidedForAPropertyOfAnotherSource) {
    Make("CREATE TABLE t(x); INSERT INTO t VALUES (1), (2); CREATE TABLE u(y)");
    auto const items = ItemsOf(Named("t"));
    auto* const y = Named("u").FindDataProperty("y");
    auto* const x = Named("t").FindDataProperty("x");
    int cmp = 7;
    EXPECT_FALSE(Named("t").CompareByDataProperty(items[0], y, items[1], y, cmp));
    EXPECT_FALSE(Named("t").CompareByDataProperty(items[0], x, items[1], nullptr, cmp));
    EXPECT_FALSE(Named("t").CompareByDataProperty(nullptr, x, items[1], x, cmp));
    EXPECT_EQ(cmp, 7);
}

TEST_F(Order, FollowsTheSortPropertyUntilItIsTakenBack) {
    Make("CREATE TABLE t(a, b); INSERT INTO t VALUES (1, 2), (2, 1)");
    auto const items = ItemsOf(Named("t"));
    int cmp = 7;
    EXPECT_FALSE(Named("t").CompareBySortProperty(items[0], items[1], cmp));
    EXPECT_EQ(cmp, 7);
    Named("t").SetSortProperty(Named("t").FindDataProperty("b"));
    EXPECT_TRUE(Named("t").CompareBySortProperty(items[0], items[1], cmp));
    EXPECT_GT(cmp, 0);
    Named("t").SetSortProperty(nullptr);
    EXPECT_FALSE(Named("t").CompareBySortProperty(items[0], items[1], cmp));
}

TEST_F(Order, BySortPropertyAsksEachSourceForItsOwn) {
    Make("CREATE TABLE t(a); INSERT INTO t VALUES (5); CREATE TABLE u(b);"
         "INSERT INTO u VALUES (4)");
    auto* const a = ItemsOf(Named("t"))[0];
    auto* const b = ItemsOf(Named("u"))[0];
    int cmp = 0;
    Named("t").SetSortProperty(Named("t").FindDataProperty("a"));
    EXPECT_FALSE(Named("t").CompareBySortProperty(a, b, cmp));
    Named("u").SetSortProperty(Named("u").FindDataProperty("b"));
    EXPECT_TRUE(Named("t").CompareBySortProperty(a, b, cmp));
    EXPECT_GT(cmp, 0);
}

TEST_F(Order, ByNameComparesTextsWithoutRegardToCase) {
    Make("CREATE TABLE t(name); INSERT INTO t VALUES ('bolt'), ('Axle'), (NULL)");
    auto const items = ItemsOf(Named("t"));
    int cmp = 0;
    EXPECT_TRUE(Named("t").CompareByName(items[0], items[1], cmp));
    EXPECT_GT(cmp, 0);
    EXPECT_TRUE(Named("t").CompareByName(items[2], items[1], cmp));
    EXPECT_LT(cmp, 0);
}

TEST_F(Order, ByNameComparesKeysAsNumbersPartByPart) {
    Make("CREATE TABLE t(a INT, b INT, PRIMARY KEY (a, b));"
         "INSERT INTO t VALUES (9, 10), (9, 9), (10, 1)");
    auto const items = ItemsOf(Named("t"));
    int cmp = 0;
    EXPECT_TRUE(Named("t").CompareByName(items[0], items[1], cmp));
    EXPECT_GT(cmp, 0);
    EXPECT_TRUE(Named("t").CompareByName(items[0], items[2], cmp));
    EXPECT_LT(cmp, 0);
    EXPECT_TRUE(Named("t").CompareByName(items[0], items[0], cmp));
    EXPECT_EQ(cmp, 0);
}

TEST_F(Order, ByNameComparesRowsOfTwoSources) {
    Make("CREATE TABLE t(name); INSERT INTO t VALUES ('b'); CREATE TABLE u(title);"
         "INSERT INTO u VALUES ('a')");
    int cmp = 0;
    EXPECT_TRUE(Named("t").CompareByName(ItemsOf(Named("t"))[0], ItemsOf(Named("u"))[0], cmp));
    EXPECT_GT(cmp, 0);
    EXPECT_FALSE(Named("t").CompareByName(ItemsOf(Named("t"))[0], nullptr, cmp));
}

TEST_F(Order, ByIdIsThatOfTheDatabase) {
    Make("CREATE TABLE t(a); INSERT INTO t VALUES (2), (1); CREATE TABLE u(a);"
         "INSERT INTO u VALUES (0)");
    auto const items = ItemsOf(Named("t"));
    int cmp = 0;
    EXPECT_TRUE(Named("t").CompareById(items[0], items[1], cmp));
    EXPECT_LT(cmp, 0);
    EXPECT_TRUE(Named("t").CompareById(items[1], items[0], cmp));
    EXPECT_GT(cmp, 0);
    EXPECT_TRUE(Named("t").CompareById(items[1], items[1], cmp));
    EXPECT_EQ(cmp, 0);
    EXPECT_TRUE(Named("t").CompareById(items[1], ItemsOf(Named("u"))[0], cmp));
    EXPECT_LT(cmp, 0);
}

TEST_F(Order, OfSourcesIsThatOfTheSchema) {
    Make("CREATE TABLE z(a); CREATE TABLE a(a)");
    bool less = false;
    EXPECT_TRUE(control_->CompareDataSources(&Named("z"), &Named("a"), less));
    EXPECT_TRUE(less);
    EXPECT_TRUE(control_->CompareDataSources(&Named("a"), &Named("z"), less));
    EXPECT_FALSE(less);
    EXPECT_FALSE(control_->CompareDataSources(&Named("a"), &Named("a"), less));
    EXPECT_FALSE(control_->CompareDataSources(nullptr, &Named("a"), less));
}

TEST_F(Order, OfSourcesOfTwoControlsIsUndecided) {
    Make("CREATE TABLE z(a)");
    TempFolder const folder;
    DataCtrl other{Database(folder.Make("CREATE TABLE a(a); CREATE TABLE b(a)"))};
    bool less = false;
    EXPECT_FALSE(control_->CompareDataSources(&Named("z"), &Find(other, "b"), less));
}

} // namespace zbtest
