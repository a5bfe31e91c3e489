// SPDX-License-Identifier: MIT
//! \file
//! The names of rows and of sources.
#include "SqliteTestSupport.h"

#include <zbBrowserView/sqlite/DataCtrl.h>

#include <gmock/gmock.h>

namespace zbtest {

namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using zbsqlite::Database;
using zbsqlite::DataCtrl;

//! The names of the rows of "t" in a database made by a script.
std::vector<std::string> RowNames(std::string_view sql) {
    TempFolder const folder;
    DataCtrl control{Database(folder.Make(sql))};
    return NamesOf(Find(control, "t"));
}

} // namespace

TEST(RowName, IsTheColumnCalledName) {
    EXPECT_THAT(RowNames("CREATE TABLE t(caption, label, title, NAME, x TEXT);"
                         "INSERT INTO t VALUES ('c', 'l', 't', 'n', 'x')"),
                ElementsAre("n"));
}

TEST(RowName, IsTheColumnCalledTitleWithoutAName) {
    EXPECT_THAT(RowNames("CREATE TABLE t(caption, label, Title, x TEXT);"
                         "INSERT INTO t VALUES ('c', 'l', 't', 'x')"),
                ElementsAre("t"));
}

TEST(RowName, IsTheColumnCalledLabelWithoutATitle) {
    EXPECT_THAT(RowNames("CREATE TABLE t(caption, lABEL, x TEXT);"
                         "INSERT INTO t VALUES ('c', 'l', 'x')"),
                ElementsAre("l"));
}

TEST(RowName, IsTheColumnCalledCaptionWithoutALabel) {
    EXPECT_THAT(RowNames("CREATE TABLE t(x TEXT, Caption); INSERT INTO t VALUES ('x', 'c')"),
                ElementsAre("c"));
}

TEST(RowName, IsTheFirstTextColumnOtherwise) {
    EXPECT_THAT(RowNames("CREATE TABLE t(id INTEGER PRIMARY KEY, b, c VARCHAR(9), d TEXT);"
                         "INSERT INTO t VALUES (1, 'b', 'c', 'd')"),
                ElementsAre("c"));
}

TEST(RowName, IsThePrimaryKeyWithoutAText) {
    EXPECT_THAT(RowNames("CREATE TABLE t(a, k INTEGER PRIMARY KEY);"
                         "INSERT INTO t VALUES ('x', 40), ('y', 41)"),
                ElementsAre("40", "41"));
}

TEST(RowName, JoinsTheValuesOfACompositeKeyInTheKeysOrder) {
    EXPECT_THAT(RowNames("CREATE TABLE t(a, b, c, PRIMARY KEY (c, a));"
                         "INSERT INTO t VALUES (1, 2, 3), (NULL, 5, 6.5)"),
                ElementsAre("3, 1", "6.5, "));
}

TEST(RowName, JoinsACompositeKeyOfATableWithoutRowid) {
    EXPECT_THAT(RowNames("CREATE TABLE t(a INT, b INT, PRIMARY KEY (a, b)) WITHOUT ROWID;"
                         "INSERT INTO t VALUES (2, 1), (1, 2)"),
                ElementsAre("1, 2", "2, 1"));
}

TEST(RowName, IsTheRowidWithoutAKey) {
    EXPECT_THAT(RowNames("CREATE TABLE t(a, b); INSERT INTO t(rowid, a) VALUES (17, 1), (99, 2)"),
                ElementsAre("17", "99"));
}

TEST(RowName, FindsTheRowidBehindAColumnOfItsName) {
    EXPECT_THAT(RowNames("CREATE TABLE t(rowid, oid); INSERT INTO t(_rowid_, rowid, oid)"
                         " VALUES (17, 1, 2)"),
                ElementsAre("17"));
}

TEST(RowName, IsTheRowsNumberWhenColumnsHideTheRowid) {
    EXPECT_THAT(RowNames("CREATE TABLE t(rowid, oid, _rowid_); INSERT INTO t VALUES (5, 5, 5)"),
                ElementsAre("1"));
}

TEST(RowName, IsTheRowsNumberInAViewOfNumbers) {
    EXPECT_THAT(RowNames("CREATE TABLE s(a INT, b INT); INSERT INTO s VALUES (8, 8), (9, 9);"
                         "CREATE VIEW t AS SELECT a, b FROM s"),
                ElementsAre("1", "2"));
}

TEST(RowName, IsTheFirstUntypedColumnOfAFullTextTable) {
    EXPECT_THAT(RowNames("CREATE VIRTUAL TABLE t USING fts5(subject, body);"
                         "INSERT INTO t VALUES ('hello', 'world')"),
                ElementsAre("hello"));
}

TEST(RowName, IsTheFirstComputedColumnOfAView) {
    EXPECT_THAT(RowNames("CREATE TABLE s(a INT); INSERT INTO s VALUES (8);"
                         "CREATE VIEW t AS SELECT a, 'no. ' || a AS words FROM s"),
                ElementsAre("no. 8"));
}

TEST(RowName, IsTheRowidOfAnRTree) {
    EXPECT_THAT(RowNames("CREATE VIRTUAL TABLE t USING rtree(k, x0, x1);"
                         "INSERT INTO t VALUES (12, 0, 1)"),
                ElementsAre("12"));
}

TEST(RowName, IsAbsentWhereItsColumnIsNull) {
    EXPECT_THAT(RowNames("CREATE TABLE t(name); INSERT INTO t VALUES (NULL), ('')"),
                ElementsAre("(none)", ""));
}

TEST(RowName, ShowsNumbersAndBlobsAsText) {
    EXPECT_THAT(RowNames("CREATE TABLE t(name); INSERT INTO t VALUES (1), (1.0), (x'00ff')"),
                ElementsAre("1", "1.0", "x'00ff'"));
}

TEST(RowName, KeepsItsBytes) {
    EXPECT_THAT(RowNames("CREATE TABLE t(name); INSERT INTO t VALUES (CAST(x'61ff0062' AS TEXT))"),
                ElementsAre(std::string("a\xff\0b", 4)));
}

TEST(RowName, IsAskedForUnderTheKeyName) {
    TempFolder const folder;
    DataCtrl control{Database(folder.Make("CREATE TABLE t(a INT, b TEXT, n INT);"
                                          "INSERT INTO t VALUES (5, 'text', NULL)"))};
    zbIBrowserDataItemSimple& row = *ItemsOf(Find(control, "t")).at(0);
    zbString value("before");

    EXPECT_FALSE(row.GetProperty("n", value)) << "null has no text";
    EXPECT_FALSE(row.GetProperty("nowhere", value));
    EXPECT_FALSE(row.GetProperty(nullptr, value));
    EXPECT_TRUE(value == "before");
    EXPECT_TRUE(row.GetProperty("name", value));
    EXPECT_TRUE(value == "text");
    EXPECT_TRUE(row.GetProperty("A", value));
    EXPECT_TRUE(value == "5");
}

namespace {

//! A database "test.db" with a second file attached as "other".
DataCtrl WithOther(TempFolder const& folder, char const* sql, char const* otherSql) {
    fs::path const other = folder / "other.db";
    OtherProgram(other).Run(otherSql);
    Database database(folder.Make(sql));
    database.Attach(other, "other");
    return DataCtrl(std::move(database));
}

} // namespace

TEST(SourceName, IsThatOfTheTable) {
    TempFolder const folder;
    DataCtrl const control =
        WithOther(folder, "CREATE TABLE \"a b\"(x)", "CREATE TABLE \"c.d\"(x)");
    EXPECT_THAT(SourceNames(control), ElementsAre("a b", "c.d"));
}

TEST(SourceName, HasTheSchemaInFrontWhereNamesDifferInCaseOnly) {
    TempFolder const folder;
    DataCtrl control =
        WithOther(folder, "CREATE TABLE part(x); INSERT INTO part VALUES (1); CREATE TABLE own(x)",
                  "CREATE TABLE PART(x); INSERT INTO PART VALUES (2)");
    EXPECT_THAT(SourceNames(control), ElementsAre("main.part", "own", "other.PART"));
    EXPECT_THAT(RowsOf(Find(control, "MAIN.part")), ElementsAre("int 1"));
    EXPECT_THAT(RowsOf(Find(control, "other.Part")), ElementsAre("int 2"));
    EXPECT_EQ(control.FindDataSourceSimple("part"), nullptr);
}

TEST(SourceName, GivesWayToATableThatIsReallyCalledSo) {
    TempFolder const folder;
    DataCtrl const control =
        WithOther(folder, "CREATE TABLE t(x); CREATE TABLE \"Main.T\"(x)", "CREATE TABLE t(x)");
    EXPECT_THAT(SourceNames(control), ElementsAre("main.t (2)", "Main.T", "other.t"));
}

TEST(SourceName, TellsNamesApartThatDifferInOtherLetters) {
    TempFolder const folder;
    DataCtrl const control =
        WithOther(folder, "CREATE TABLE \"höhe\"(x)", "CREATE TABLE \"hÖhe\"(x)");
    EXPECT_THAT(SourceNames(control), ElementsAre("höhe", "hÖhe"));
}

} // namespace zbtest
