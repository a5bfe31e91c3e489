// SPDX-License-Identifier: MIT
//! \file
//! Every kind of table, column and value is read as plain SQL reads it.
#include "SqliteTestSupport.h"

#include <zbBrowserView/sqlite/DataCtrl.h>

#include <gtest/gtest.h>

namespace zbtest {

namespace {

namespace fs = std::filesystem;
using zbsqlite::Database;
using zbsqlite::DataCtrl;

struct Kind {
    char const* name;
    char const* sql;
};

class KindOfData : public testing::TestWithParam<Kind> {};

} // namespace

TEST_P(KindOfData, IsReadAsPlainSqlReadsIt) {
    TempFolder const folder;
    fs::path const file = folder.Make(GetParam().sql);
    DataCtrl control{Database(file)};
    ExpectSameAsSql(control, file);
}

INSTANTIATE_TEST_SUITE_P(
    All, KindOfData,
    testing::Values(
        Kind{"TablesWithoutRowid", "CREATE TABLE t(k TEXT PRIMARY KEY, v) WITHOUT ROWID;"
                                   "INSERT INTO t VALUES ('b', 1), ('a', 2)"},
        Kind{"CompositeKeys", "CREATE TABLE t(a, b, c, PRIMARY KEY (b, a));"
                              "INSERT INTO t VALUES (1, 2, 3), (0, 3, 1)"},
        Kind{"Views", "CREATE TABLE t(a, b); INSERT INTO t VALUES (1, 'x'), (2, 'y');"
                      "CREATE VIEW v(p, q) AS SELECT a * 10, b || b FROM t ORDER BY a DESC;"
                      "CREATE VIEW w AS SELECT x.a, y.a, count(*) FROM t x, t y GROUP BY 1, 2"},
        Kind{"GeneratedColumns",
             "CREATE TABLE t(a INT, v AS (a * 2), s TEXT AS ('<' || a || '>') STORED);"
             "INSERT INTO t(a) VALUES (1), (2)"},
        Kind{"FullTextSearch", "CREATE VIRTUAL TABLE f USING fts5(title, body);"
                               "INSERT INTO f VALUES ('one', 'two three'), ('four', NULL);"
                               "CREATE VIRTUAL TABLE g USING fts4(words);"
                               "INSERT INTO g VALUES ('five six')"},
        Kind{"ViewsOfFullTextSearch",
             "CREATE VIRTUAL TABLE f USING fts5(body); INSERT INTO f VALUES ('two three');"
             "CREATE VIEW v AS SELECT highlight(f, 0, '[', ']') AS h FROM f WHERE f MATCH 'two';"
             "CREATE VIEW w AS SELECT name FROM pragma_table_info('v')"},
        Kind{"RTrees", "CREATE VIRTUAL TABLE r USING rtree(id, x0, x1, +note TEXT);"
                       "INSERT INTO r VALUES (1, 0.5, 1.25, 'n'), (9, -1, 3, NULL)"},
        Kind{"ReservedWordsBlanksAndQuotes",
             "CREATE TABLE \"select\"(\"from\", \"group by\", \"it's \"\"so\"\"\", [a;b--c], \"\");"
             "INSERT INTO \"select\" VALUES (1, 2, 3, 4, 5); CREATE TABLE \" \"(\"*\", rowid);"
             "INSERT INTO \" \" VALUES (6, 7);"
             "CREATE VIEW \"a.b\" AS SELECT 1 AS \"x.y\", 2 AS \"count(*)\""},
        Kind{"Nulls", "CREATE TABLE t(a, b TEXT); INSERT INTO t VALUES (NULL, NULL), (1, NULL)"},
        Kind{"Blobs", "CREATE TABLE t(a BLOB); INSERT INTO t VALUES (x''), (x'00'), (x'00ff41'),"
                      "(zeroblob(300)), (randomblob(70000))"},
        Kind{"NumbersAsText", "CREATE TABLE t(a TEXT, b INT, c); INSERT INTO t VALUES"
                              "(12, '12', '12'), ('007', 'x7', 7), (1.5, '1.5', '1.50')"},
        Kind{"Integers", "CREATE TABLE t(a); INSERT INTO t VALUES (0), (1), (-1), (127), (128),"
                         "(-128), (-129), (32767), (32768), (-32768), (-32769), (2147483647),"
                         "(2147483648), (-2147483648), (-2147483649), (9223372036854775807),"
                         "(-9223372036854775808)"},
        Kind{"Reals", "CREATE TABLE t(a REAL); INSERT INTO t VALUES (0.1), (1), (-0.0), (1e308),"
                      "(9e999), (-9e999), (5e-324), (0.30000000000000004)"},
        Kind{"TextThatIsNotUtf8",
             "CREATE TABLE t(a TEXT); INSERT INTO t VALUES (CAST(x'80' AS TEXT)),"
             "(CAST(x'c3' AS TEXT)), (CAST(x'61ff62' AS TEXT)), (CAST(x'eda080' AS TEXT))"},
        Kind{"TextWithZeroBytes",
             "CREATE TABLE t(a TEXT); INSERT INTO t VALUES (CAST(x'610062' AS TEXT)), ('')"},
        Kind{"Utf16", "PRAGMA encoding = 'UTF-16'; CREATE TABLE t(a); INSERT INTO t VALUES"
                      "('grün 漢字 😀'), ('')"},
        Kind{"TextOfAMebibyte", "CREATE TABLE t(a, b); INSERT INTO t VALUES"
                                "(printf('%.*c', 1048576, 'x'), 1), (printf('%.*c', 238, 'y'), 2),"
                                "(printf('%.*c', 239, 'y'), 3), (printf('%.*c', 240, 'y'), 4)"},
        Kind{"EmptyTables", "CREATE TABLE t(a); CREATE VIEW v AS SELECT a FROM t"},
        Kind{"EmptyDatabases", ""},
        Kind{"SystemTables", "CREATE TABLE t(id INTEGER PRIMARY KEY AUTOINCREMENT, a);"
                             "INSERT INTO t(a) VALUES (1), (2); CREATE INDEX i ON t(a); ANALYZE"},
        Kind{"StrictTables", "CREATE TABLE t(a INT, b TEXT, c ANY) STRICT;"
                             "INSERT INTO t VALUES (1, '2', '3'), (NULL, NULL, 4.0)"},
        Kind{"CoveringIndexes",
             "CREATE TABLE t(id INTEGER PRIMARY KEY, a, b);"
             "CREATE INDEX i ON t(b, a); INSERT INTO t VALUES (1, 1, 9), (2, 2, 8)"},
        Kind{"WriteAheadFiles", "PRAGMA journal_mode = WAL; CREATE TABLE t(a);"
                                "INSERT INTO t VALUES (1)"}),
    [](auto const& test) { return std::string(test.param.name); });

TEST(Columns, AreReadAsPlainSqlReadsThemWhenThereAreMany) {
    std::string columns;
    std::string values;
    for (int i = 0; i < 1999; ++i) {
        columns += (i > 0 ? ", c" : "c") + std::to_string(i);
        values += (i > 0 ? ", " : "") +
                  (i % 3 == 0 ? "'text " + std::to_string(i) + "'" : std::to_string(i * i * 100));
    }
    TempFolder const folder;
    fs::path const file =
        folder.Make("CREATE TABLE t(" + columns + "); INSERT INTO t VALUES (" + values + ")");
    DataCtrl control{Database(file)};
    ExpectSameAsSql(control, file);
}

} // namespace zbtest
