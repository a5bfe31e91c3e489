// SPDX-License-Identifier: MIT
#include "EndToEnd.h"

#include <nlohmann/json.hpp>

namespace {

using namespace zbtest;
using Json = nlohmann::ordered_json;

class Picture : public EndToEnd {
protected:
    Picture() {
        Sql("shop.db", "create table part(id integer primary key, name text, price real);"
                       "insert into part values (1,'bolt',0.25),(2,'nut',0.1),(3,'歯車',12.5),"
                       "(4,'pin',null);"
                       "create table supplier(name text);"
                       "create view dear as select name, price from part where price > 1;");
    }
    std::string const shop_ = Path("shop.db");
};

TEST_F(Picture, ShowsFoldersListsCountsAndFirstRows) {
    auto const ending = Browse({shop_});

    EXPECT_EQ(ending.output, "shop\n"
                             "├─ tables\n"
                             "│  ├─ part (4)\n"
                             "│  │     id  name  price\n"
                             "│  │      1  bolt   0.25\n"
                             "│  │      2  nut     0.1\n"
                             "│  │      3  歯車   12.5\n"
                             "│  │     … 1 more\n"
                             "│  └─ supplier (0)\n"
                             "└─ views\n"
                             "   └─ dear (1)\n"
                             "         name  price\n"
                             "         歯車   12.5\n");
    EXPECT_EQ(ending.errors, "");
    EXPECT_EQ(ending.status, 0);
}

TEST_F(Picture, TheLimitSetsHowManyRowsAreShown) {
    auto const output = Browse({shop_, "--limit", "1"}).output;

    EXPECT_NE(output.find("bolt"), std::string::npos);
    EXPECT_EQ(output.find("nut"), std::string::npos);
    EXPECT_NE(output.find("… 3 more"), std::string::npos);
}

TEST_F(Picture, ALimitOfZeroLeavesFoldersAndLists) {
    EXPECT_EQ(Browse({shop_, "--limit", "0"}).output, "shop\n"
                                                      "├─ tables\n"
                                                      "│  ├─ part (4)\n"
                                                      "│  └─ supplier (0)\n"
                                                      "└─ views\n"
                                                      "   └─ dear (1)\n");
}

TEST_F(Picture, TheViewMayHaveAnotherName) {
    EXPECT_EQ(Lines(Browse({shop_, "--view", "my shop"}).output).front(), "my shop");
}

TEST_F(Picture, FoldersOfOnesOwnTakeThePlaceOfThoseForTables) {
    EXPECT_EQ(Browse({shop_, "--limit", "0", "--folder", "stock/small=part", "--folder",
                      "stock=supplier,dear", "--folder", "all=part,dear"})
                  .output,
              "shop\n"
              "├─ stock\n"
              "│  ├─ small\n"
              "│  │  └─ part (4)\n"
              "│  ├─ supplier (0)\n"
              "│  └─ dear (1)\n"
              "└─ all\n"
              "   ├─ part (4)\n"
              "   └─ dear (1)\n");
}

TEST_F(Picture, AListNamedTwiceStandsInItsFolderOnce) {
    EXPECT_EQ(Browse({shop_, "--limit", "0", "--folder", "a=part,PART"}).output,
              "shop\n└─ a\n   └─ part (4)\n");
}

TEST_F(Picture, AsJsonHasTheSameParts) {
    auto const json = Json::parse(Browse({shop_, "--format", "json"}).output);

    EXPECT_EQ(json["view"], "shop");
    EXPECT_EQ(json["folders"].size(), 2U);
    EXPECT_EQ(json["folders"][0]["name"], "tables");
    EXPECT_EQ(json["folders"][0]["lists"][0]["count"], 4);
    EXPECT_EQ(json["folders"][0]["lists"][0]["rows"].size(), 3U);
    EXPECT_EQ(json["folders"][1]["lists"][0]["name"], "dear");
}

TEST_F(Picture, AsJsonLinesHasALineForEachList) {
    EXPECT_EQ(Browse({shop_, "--format", "jsonl"}).output,
              "{\"folder\":\"tables\",\"list\":\"part\",\"count\":4}\n"
              "{\"folder\":\"tables\",\"list\":\"supplier\",\"count\":0}\n"
              "{\"folder\":\"views\",\"list\":\"dear\",\"count\":1}\n");
}

TEST_F(Picture, AsCsvHasALineForEachList) {
    EXPECT_EQ(Browse({shop_, "--format", "csv"}).output,
              "folder,list,count\r\ntables,part,4\r\ntables,supplier,0\r\nviews,dear,1\r\n");
}

TEST_F(Picture, OfAnEmptyDatabaseIsItsNameAlone) {
    Sql("none.db", "create table t(a); drop table t;");

    auto const ending = Browse({Path("none.db")});

    EXPECT_EQ(ending.output, "none\n");
    EXPECT_EQ(ending.status, 0);
}

TEST_F(Picture, VirtualTablesAndWhatIsBehindThemStandApart) {
    Sql("search.db", "create virtual table note using fts5(body);"
                     "insert into note values ('hex bolt');");

    auto const lines = Lines(Browse({Path("search.db"), "--limit", "0"}).output);

    ASSERT_GE(lines.size(), 4U);
    EXPECT_EQ(lines[1], "├─ virtual tables");
    EXPECT_EQ(lines[2], "│  └─ note (1)");
    EXPECT_EQ(lines[3], "└─ shadow tables");
}

TEST_F(Picture, ManyTablesAreAllThere) {
    std::string sql = "begin;";
    for (int i = 0; i < 300; ++i)
        sql += "create table t" + std::to_string(i) + "(a); insert into t" + std::to_string(i) +
               " values (1);";
    Sql("many.db", sql + "commit;");

    EXPECT_EQ(Lines(Browse({Path("many.db"), "--limit", "0"}).output).size(), 302U);
}

} // namespace
