// SPDX-License-Identifier: MIT
//! \file
//! What is read of a schema.
#include "SqliteTestSupport.h"

#include <zbBrowserView/sqlite/Schema.h>

#include <gmock/gmock.h>

#include <stdexcept>

namespace zbtest {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using zbsqlite::Affinity;
using zbsqlite::Column;
using zbsqlite::ColumnKind;
using zbsqlite::Database;
using zbsqlite::DataCtrl;
using zbsqlite::ForeignKey;
using zbsqlite::Table;
using zbsqlite::TableKind;

class Schema : public testing::Test {
protected:
    void Make(std::string_view sql) { tables_ = zbsqlite::ReadSchema(Database(folder_.Make(sql))); }

    Table const& Named(std::string const& name) const {
        for (Table const& table : tables_) {
            if (table.name == name)
                return table;
        }
        throw std::runtime_error("no table " + name);
    }

    std::vector<std::string> Names() const {
        std::vector<std::string> names;
        for (Table const& table : tables_)
            names.push_back(table.name);
        return names;
    }

    TempFolder folder_;
    std::vector<Table> tables_;
};

std::vector<std::string> ColumnNames(Table const& table) {
    std::vector<std::string> names;
    for (Column const& column : table.columns)
        names.push_back(column.name);
    return names;
}

} // namespace

TEST_F(Schema, ListsTablesAndViewsInTheOrderOfTheirCreation) {
    Make("CREATE TABLE z(a); CREATE VIEW m AS SELECT a FROM z; CREATE TABLE a(a);"
         "CREATE INDEX i ON a(a); CREATE TRIGGER g AFTER INSERT ON a BEGIN SELECT 1; END");
    EXPECT_THAT(Names(), ElementsAre("z", "m", "a"));
}

TEST_F(Schema, TellsTheKindsOfTablesApart) {
    Make("CREATE TABLE plain(id INTEGER PRIMARY KEY AUTOINCREMENT);"
         "CREATE VIEW seen AS SELECT 1 AS one; CREATE VIRTUAL TABLE found USING fts5(words)");
    EXPECT_EQ(Named("plain").kind, TableKind::Table);
    EXPECT_EQ(Named("seen").kind, TableKind::View);
    EXPECT_EQ(Named("found").kind, TableKind::Virtual);
    EXPECT_EQ(Named("found_data").kind, TableKind::Shadow);
    EXPECT_EQ(Named("sqlite_sequence").kind, TableKind::System);
}

TEST_F(Schema, TellsTablesWithoutRowidAndStrictOnes) {
    Make("CREATE TABLE a(x); CREATE TABLE b(x PRIMARY KEY) WITHOUT ROWID;"
         "CREATE TABLE c(x INT) STRICT; CREATE VIEW v AS SELECT x FROM a");
    EXPECT_TRUE(Named("a").hasRowid);
    EXPECT_FALSE(Named("a").isStrict);
    EXPECT_FALSE(Named("b").hasRowid);
    EXPECT_TRUE(Named("c").isStrict);
    EXPECT_FALSE(Named("v").hasRowid);
}

TEST_F(Schema, ReadsWhatIsDeclaredAboutAColumn) {
    Make("CREATE TABLE t(a VARCHAR(20) NOT NULL DEFAULT 'x', b)");
    Column const& a = Named("t").columns.at(0);
    EXPECT_EQ(a.declaredType, "VARCHAR(20)");
    EXPECT_EQ(a.affinity, Affinity::Text);
    EXPECT_TRUE(a.isNotNull);
    EXPECT_TRUE(a.hasDefault);
    EXPECT_EQ(a.defaultValue, "'x'");
    Column const& b = Named("t").columns.at(1);
    EXPECT_EQ(b.declaredType, "");
    EXPECT_FALSE(b.isNotNull);
    EXPECT_FALSE(b.hasDefault);
}

TEST_F(Schema, MarksGeneratedAndHiddenColumns) {
    Make("CREATE TABLE t(a, v AS (a + 1) VIRTUAL, s AS (a + 2) STORED);"
         "CREATE VIRTUAL TABLE f USING fts5(words)");
    EXPECT_EQ(Named("t").columns.at(0).kind, ColumnKind::Plain);
    EXPECT_EQ(Named("t").columns.at(1).kind, ColumnKind::GeneratedVirtual);
    EXPECT_EQ(Named("t").columns.at(2).kind, ColumnKind::GeneratedStored);
    EXPECT_EQ(Named("f").columns.at(0).kind, ColumnKind::Plain);
    EXPECT_EQ(Named("f").columns.at(1).kind, ColumnKind::Hidden);
}

TEST_F(Schema, GivesThePrimaryKeyInItsOwnOrder) {
    Make("CREATE TABLE t(a, b, c, PRIMARY KEY (c, a)); CREATE TABLE u(a)");
    EXPECT_THAT(Named("t").PrimaryKey(), ElementsAre(2U, 0U));
    EXPECT_THAT(Named("u").PrimaryKey(), IsEmpty());
}

TEST_F(Schema, FindsAColumnWithoutRegardToAsciiCase) {
    Make("CREATE TABLE t(\"Höhe\", Breite)");
    EXPECT_EQ(Named("t").FindColumn("breite"), 1);
    EXPECT_EQ(Named("t").FindColumn("hÖhe"), -1);
    EXPECT_EQ(Named("t").FindColumn("höhE"), 0);
}

TEST_F(Schema, KeepsForeignKeysWholeAndInTheOrderOfTheirDeclaration) {
    Make("CREATE TABLE p(x, y, PRIMARY KEY (x, y)); CREATE TABLE q(k PRIMARY KEY);"
         "CREATE TABLE c(a, b, d,"
         " FOREIGN KEY (a, b) REFERENCES p(y, x) ON DELETE CASCADE ON UPDATE SET NULL,"
         " FOREIGN KEY (d) REFERENCES q(k))");
    auto const& keys = Named("c").foreignKeys;
    ASSERT_EQ(keys.size(), 2U);
    EXPECT_THAT(keys[0].columns, ElementsAre("a", "b"));
    EXPECT_EQ(keys[0].parentTable, "p");
    EXPECT_THAT(keys[0].parentColumns, ElementsAre("y", "x"));
    EXPECT_EQ(keys[0].onDelete, "CASCADE");
    EXPECT_EQ(keys[0].onUpdate, "SET NULL");
    EXPECT_EQ(keys[0].match, "NONE");
    EXPECT_THAT(keys[1].columns, ElementsAre("d"));
}

TEST_F(Schema, ResolvesAForeignKeyThatNamesNoColumnsToThePrimaryKey) {
    Make("CREATE TABLE P(x, y, PRIMARY KEY (y, x));"
         "CREATE TABLE c(a, b, FOREIGN KEY (a, b) REFERENCES p)");
    EXPECT_THAT(Named("c").foreignKeys.at(0).parentColumns, ElementsAre("y", "x"));
}

TEST_F(Schema, LeavesAForeignKeyOpenThatDoesNotFitThePrimaryKey) {
    Make("CREATE TABLE p(x, y, PRIMARY KEY (y, x)); CREATE TABLE c(a REFERENCES p);"
         "CREATE TABLE d(a REFERENCES nowhere)");
    EXPECT_THAT(Named("c").foreignKeys.at(0).parentColumns, ElementsAre(""));
    EXPECT_EQ(Named("d").foreignKeys.at(0).parentTable, "nowhere");
    EXPECT_THAT(Named("d").foreignKeys.at(0).parentColumns, ElementsAre(""));
}

TEST_F(Schema, ReadsNamesThatAreReservedOrHoldBlanksAndQuotes) {
    Make("CREATE TABLE \"select\"(\"from\", \"group by\", \"it's \"\"so\"\"\", [a;b--c], \"\" );"
         "CREATE TABLE \" \"(a); CREATE VIEW \"a.b\" AS SELECT 1 AS \"x.y\"");
    EXPECT_THAT(Names(), ElementsAre("select", " ", "a.b"));
    EXPECT_THAT(ColumnNames(Named("select")),
                ElementsAre("from", "group by", "it's \"so\"", "a;b--c", ""));
    EXPECT_THAT(ColumnNames(Named("a.b")), ElementsAre("x.y"));
}

TEST_F(Schema, SaysWhatIsWrongWithATableAndReadsTheOthers) {
    Make("CREATE TABLE good(a); CREATE TABLE gone(a); CREATE VIEW orphan AS SELECT a FROM gone;"
         "DROP TABLE gone; PRAGMA writable_schema = ON;"
         "INSERT INTO sqlite_schema VALUES"
         " ('table', 'strange', 'strange', 0, 'CREATE VIRTUAL TABLE strange USING no_such(x)')");
    EXPECT_THAT(Names(), ElementsAre("good", "orphan", "strange"));
    EXPECT_EQ(Named("good").problem, "");
    EXPECT_THAT(ColumnNames(Named("good")), ElementsAre("a"));
    EXPECT_THAT(Named("orphan").problem, HasSubstr("gone"));
    EXPECT_THAT(Named("strange").problem, HasSubstr("no such module: no_such"));
}

struct AffinityCase {
    char const* declared;
    Affinity affinity;
};

class AffinityOfType : public testing::TestWithParam<AffinityCase> {};

TEST_P(AffinityOfType, IsThatOfSqlite) {
    EXPECT_EQ(zbsqlite::AffinityOf(GetParam().declared), GetParam().affinity);
}

INSTANTIATE_TEST_SUITE_P(
    Types, AffinityOfType,
    testing::Values(AffinityCase{"INTEGER", Affinity::Integer},
                    AffinityCase{"unsigned big int", Affinity::Integer},
                    AffinityCase{"CHARINT", Affinity::Integer},
                    AffinityCase{"nvarchar(10)", Affinity::Text},
                    AffinityCase{"CLOB", Affinity::Text}, AffinityCase{"TEXT", Affinity::Text},
                    AffinityCase{"", Affinity::Blob}, AffinityCase{"BLOB", Affinity::Blob},
                    AffinityCase{"double precision", Affinity::Real},
                    AffinityCase{"FLOAT", Affinity::Real}, AffinityCase{"REAL", Affinity::Real},
                    AffinityCase{"DATE", Affinity::Numeric},
                    AffinityCase{"DECIMAL(10,5)", Affinity::Numeric}));

} // namespace zbtest
