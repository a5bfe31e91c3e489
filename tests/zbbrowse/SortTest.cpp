// SPDX-License-Identifier: MIT
//! \file
//! Columns, names and the order of rows, as the options ask for them.
#include "EndToEnd.h"

#include <nlohmann/json.hpp>

namespace {

using namespace zbtest;
using Json = nlohmann::ordered_json;
using Names = std::vector<std::string>;

//! What makes an order go wrong: equal values, mixed types, case, large numbers, no rowid, no rows.
constexpr char const* kAwkward =
    "create table mixed(v, w text);"
    "insert into mixed values (null,'b'),(10,'B'),(9,'a'),(9.5,'A'),('9',null),('a','x'),"
    "('A','x'),('_','y'),('ä','Ä'),('Ä','ä'),(x'61','z'),(x'41','Z'),(x'','z'),('','z'),"
    "(-0.0,'b'),(0,'B'),(0.0,'b'),(null,null),(9e999,'i'),(-9e999,'I'),(10,'B'),"
    "('a'||char(0)||'b','zero'),('a'||char(0)||'a','zero'),('A'||char(0),'Zero'),"
    "(cast(x'ff61' as text),'bad'),(cast(x'fe' as text),'bad');"
    "create table large(n int, name text); insert into large values"
    "(9007199254740993,'c'),(9007199254740992,'b'),(9007199254740992.0,'a'),"
    "(9223372036854775807,'d'),(-9223372036854775808,'e'),(9007199254740991,'f'),(null,'g');"
    "create table keyed(a text, b int, c real, primary key (b, a)) without rowid;"
    "insert into keyed values ('b',2,1.5),('B',2,null),('a',10,1.5),('A',9,1),('c',9,-1);"
    "create table numbers(x int, y int); insert into numbers values (3,1),(1,1),(2,1),(2,0);"
    "create table empty(a, b text);"
    "create table [odd name](\"a,b\" int, \"x:desc\", \"all\", \"\", \"default_style_elem_icon\");"
    "insert into [odd name] values (2,'y',1,4,'i'),(1,'X',null,3,'I'),(1,'x',2,null,null);"
    "create view seen as select w, v, length(w) from mixed where w is not null;"
    "create table few(title text, k); insert into few "
    "with recursive n(i) as (select 1 union all select i + 1 from n where i < 700)"
    "select char(97 + i % 7) || char(65 + i % 3), case i % 5 when 0 then null when 1 then i % 11 "
    "when 2 then i % 4 / 2.0 when 3 then 'T' || i % 6 else cast('b' || i % 3 as blob) end from n;";

class Sorting : public EndToEnd {
protected:
    Sorting() {
        Sql("shop.db", "create table part(id integer primary key, name text, mass real, old bool);"
                       "insert into part values (1,'nut',5,0),(2,'Bolt',30.5,1),(3,'pin',5,0),"
                       "(4,'axle',null,1);"
                       "create table maker(name text, city text);"
                       "insert into maker values ('Zorn','Ulm'),('adler','Bonn');");
        Sql("awkward.db", kAwkward);
        Sql("number.db", "create table number(n, name text); insert into number values"
                         "(9007199254740993,'c'),(9007199254740992,'b'),(9007199254740992.0,'a'),"
                         "(9223372036854775807,'d'),(-9e999,'e'),(null,'g'),(-0.0,'i'),(0,'h'),"
                         "(2,'j'),(10,'k'),('1','l'),(x'31','m');");
    }

    Json AsJson(std::vector<std::string> arguments, std::string const& file = "shop.db") const {
        arguments.insert(arguments.begin(), {Path(file), "--format", "json"});
        auto const ending = Browse(std::move(arguments));
        EXPECT_EQ(ending.status, 0) << ending.errors;
        return Json::parse(ending.output);
    }

    //! The names of the rows of a list, in their order.
    Names RowNames(std::vector<std::string> arguments, std::string const& file = "shop.db") const {
        Names names;
        for (auto const& row : AsJson(std::move(arguments), file))
            names.push_back(row["name"]);
        return names;
    }

    void ExpectRefused(std::vector<std::string> arguments, std::string const& complaint) const {
        arguments.insert(arguments.begin(), shop_);
        auto const ending = Browse(std::move(arguments));
        EXPECT_EQ(ending.status, 2);
        EXPECT_EQ(ending.output, "");
        EXPECT_EQ(ending.errors, "zbbrowse: " + complaint + "\n");
    }

    //! Compares each order of each list with ORDER BY.
    Ending Compare(std::string const& program, std::string const& file) const {
        return RunToEnd({.arguments = {PYTHON, COMPARE_ORDER, "--program", program, file},
                         .environment = {},
                         .input = {}});
    }

    std::string const shop_ = Path("shop.db");
};

TEST_F(Sorting, ANumberSortsAsANumberAndNullFirst) {
    EXPECT_EQ(RowNames({"--list", "part", "--sort", "mass"}),
              (Names{"axle", "nut", "pin", "Bolt"}));
}

TEST_F(Sorting, DownwardsIsUpwardsReadBackwards) {
    EXPECT_EQ(RowNames({"--list", "part", "--sort", "mass:desc"}),
              (Names{"Bolt", "pin", "nut", "axle"}));
}

TEST_F(Sorting, TextSortsWithoutRegardToCase) {
    EXPECT_EQ(RowNames({"--list", "part", "--sort", "NAME:asc"}),
              (Names{"axle", "Bolt", "nut", "pin"}));
}

TEST_F(Sorting, WithoutASortRowsStandAsTheyCome) {
    EXPECT_EQ(RowNames({"--list", "part", "--columns", "mass"}),
              (Names{"nut", "Bolt", "pin", "axle"}));
}

TEST_F(Sorting, TiesFallToTheNameThatIsAskedFor) {
    EXPECT_EQ(AsJson({"--list", "part", "--sort", "old", "--name", "mass"})[3]["columns"]["id"], 2);
}

TEST_F(Sorting, TheOrderOfEachListOfTheSampleIsThatOfSql) {
    auto const ending = Compare(ZBBROWSE_PROGRAM, SAMPLE_DATABASE);

    EXPECT_EQ(ending.status, 0) << ending.errors;
}

TEST_F(Sorting, TheOrderOfAwkwardValuesIsThatOfSql) {
    auto const ending = Compare(ZBBROWSE_PROGRAM, Path("awkward.db"));

    EXPECT_EQ(ending.status, 0) << ending.errors;
    EXPECT_NE(ending.output.find("8 lists"), std::string::npos) << ending.output;
}

TEST_F(Sorting, TheComparisonWithSqlSeesAWrongOrder) {
    Write("wrong", std::string("#!/bin/sh\nfor a; do shift; case $a in\n"
                               "--sort=mass:desc) a=--sort=mass:asc;; esac; set -- \"$@\" \"$a\"\n"
                               "done; exec ") +
                       ZBBROWSE_PROGRAM + " \"$@\"\n");
    std::filesystem::permissions(Path("wrong"), std::filesystem::perms::owner_all);

    auto const ending = Compare(Path("wrong"), shop_);

    EXPECT_EQ(ending.status, 1);
    EXPECT_NE(ending.errors.find("part, mass desc: row 1 is"), std::string::npos) << ending.errors;
}

TEST_F(Sorting, TheShellSaysTheSame) {
    EXPECT_EQ(RowNames({"--list", "number", "--sort", "n"}, "number.db"),
              Lines(Sql("number.db", "select name from number order by n, name, rowid;")));
    EXPECT_EQ(
        RowNames({"--list", "number", "--sort", "n:desc"}, "number.db"),
        Lines(Sql("number.db", "select name from number order by n desc, name desc, rowid desc;")));
}

TEST_F(Sorting, TheHeaderMarksTheColumnAndTheDirection) {
    EXPECT_EQ(
        Browse({shop_, "--list", "part", "--columns", "name,mass", "--sort", "mass:desc"}).output,
        "part (4)\n"
        "name  mass ▼\n"
        "────  ──────\n"
        "Bolt    30.5\n"
        "pin      5.0\n"
        "nut      5.0\n"
        "axle    NULL\n");
    EXPECT_EQ(
        Lines(Browse({shop_, "--list", "part", "--columns", "name,mass", "--sort", "name"}).output)
            .at(1),
        "name ▲  mass");
}

TEST_F(Sorting, AColumnThatIsNotShownSortsAllTheSame) {
    EXPECT_EQ(Browse({shop_, "--list", "part", "--columns", "name", "--sort", "mass"}).output,
              "part (4)\nname\n────\naxle\nnut\npin\nBolt\n");
}

TEST_F(Sorting, AListWithoutTheColumnIsSortedByName) {
    auto const json = AsJson({"--list", "part", "--list", "maker", "--sort", "mass"});

    EXPECT_EQ(json["part"][0]["name"], "axle");
    EXPECT_EQ(json["maker"][0]["name"], "adler");
}

TEST_F(Sorting, NameIsThatOfTheRowsWhereNoListHasSuchAColumn) {
    Sql("keys.db", "create table t(k int primary key, v int); insert into t values (10,1),(9,1);");

    EXPECT_EQ(Browse({Path("keys.db"), "--list", "t", "--sort", "name"}).output, "t (2)\n"
                                                                                 "name ▲   k  v\n"
                                                                                 "──────  ──  ─\n"
                                                                                 "9        9  1\n"
                                                                                 "10      10  1\n");
}

TEST_F(Sorting, ColumnsStandInTheOrderThatIsAskedFor) {
    auto const row = AsJson({"--list", "part", "--columns", "mass,ID,name"})[0]["columns"];
    Names names;
    for (auto const& column : row.items())
        names.push_back(column.key());

    EXPECT_EQ(names, (Names{"mass", "id", "name"}));
}

TEST_F(Sorting, AllColumnsStandInTheOrderOfTheList) {
    auto const all = AsJson({"--list", "part", "--columns", "all"});

    EXPECT_EQ(all, AsJson({"--list", "part"}));
}

TEST_F(Sorting, AListShowsThoseColumnsThatItHas) {
    EXPECT_EQ(Browse({shop_, "--list", "part", "--list", "maker", "--columns", "mass,city"}).output,
              "part (4)\n"
              "mass\n"
              "────\n"
              " 5.0\n"
              "30.5\n"
              " 5.0\n"
              "NULL\n"
              "\n"
              "maker (2)\n"
              "city\n"
              "────\n"
              "Ulm\n"
              "Bonn\n");
}

TEST_F(Sorting, AListWithNoneOfTheColumnsShowsItsCount) {
    EXPECT_EQ(
        Browse({shop_, "--list", "maker", "--list", "part", "--columns", "mass", "--limit", "1"})
            .output,
        "maker (2)\n"
        "\n"
        "part (4)\n"
        "mass\n"
        "────\n"
        " 5.0\n"
        "… 3 more\n");
}

TEST_F(Sorting, TheNameOfTheRowsMayBeAnotherColumn) {
    EXPECT_EQ(RowNames({"--list", "part", "--name", "id"}), (Names{"1", "2", "3", "4"}));
    EXPECT_EQ(
        Lines(Browse({shop_, "--list", "part", "--name", "id", "--columns", "mass"}).output).at(1),
        "name  mass");
}

TEST_F(Sorting, IconsStandBesideTheNames) {
    auto const row = AsJson({"--list", "part", "--icon", "--columns", "mass"})[0];

    EXPECT_EQ(row.size(), 3U);
    EXPECT_TRUE(row.contains("icon"));
    EXPECT_EQ(Lines(Browse({shop_, "--list", "part", "--icon", "--columns", "mass"}).output).at(1),
              "icon  name  mass");
}

TEST_F(Sorting, RowsAreBoldOnATerminalWhereTheColumnIsTrue) {
    Child child(Zbbrowse({shop_, "--list", "part", "--columns", "name", "--bold", "old"}),
                Child::Place::Terminal);

    auto const output = child.Wait().output;

    EXPECT_NE(output.find("\x1b[1mBolt\x1b[0m"), std::string::npos) << output;
    EXPECT_EQ(output.find("\x1b[1mnut"), std::string::npos) << output;
}

TEST_F(Sorting, ThePictureIsSortedToo) {
    auto const lines = Lines(Browse({shop_, "--sort", "name", "--limit", "1"}).output);

    ASSERT_GE(lines.size(), 5U);
    EXPECT_EQ(lines[3], "   │     id  name ▲  mass  old");
    EXPECT_EQ(lines[4], "   │      4  axle    NULL    1");
}

TEST_F(Sorting, AnUnknownColumnIsRefusedWithASuggestion) {
    auto const none = [this](std::string const& option, std::string const& column) {
        return shop_ + ": " + option + ": no list shown has a column \"" + column + "\"; nearest: ";
    };
    ExpectRefused({"--list", "part", "--sort", "mas"}, none("--sort", "mas") + "mass");
    ExpectRefused({"--list", "part", "--columns", "name,mss"}, none("--columns", "mss") + "mass");
    ExpectRefused({"--list", "part", "--name", "nam"}, none("--name", "nam") + "name");
    ExpectRefused({"--list", "part", "--bold", "odl"}, none("--bold", "odl") + "old, id");
    ExpectRefused({"--list", "part", "--sort", "mass:down"},
                  "--sort mass:down: the direction is asc or desc");
}

TEST_F(Sorting, AColumnOfAListThatIsNotShownIsUnknown) {
    auto const ending = Browse({shop_, "--list", "part", "--sort", "city"});

    EXPECT_EQ(ending.status, 2);
    EXPECT_NE(ending.errors.find("no list shown has a column \"city\""), std::string::npos);
}

TEST_F(Sorting, AListThatCannotBeReadIsToldOf) {
    Sql("broken.db", "create table gone(a); create view v as select a from gone; drop table gone;"
                     "create table t(a); insert into t values (2),(1);");

    auto const ending = Browse({Path("broken.db"), "--sort", "a"});

    EXPECT_EQ(ending.status, 2);
    EXPECT_NE(ending.output.find("v (cannot be read"), std::string::npos) << ending.output;
    EXPECT_NE(ending.output.find("a ▲"), std::string::npos) << ending.output;
}

TEST_F(Sorting, ANewViewShowsItsFoldersAndSaysThatItHasNoLists) {
    for (auto const* const icon : {"", "--icon"}) {
        std::vector<std::string> arguments{shop_, "--generation", "new"};
        if (*icon != '\0')
            arguments.emplace_back(icon);

        auto const ending = Browse(arguments);

        EXPECT_EQ(Lines(ending.output).front(), "shop");
        EXPECT_NE(ending.output.find("tables"), std::string::npos) << ending.output;
        EXPECT_EQ(ending.errors,
                  "zbbrowse: a view of the new generation has no lists yet: only its "
                  "folders are shown\n");
        EXPECT_EQ(ending.status, 0);
    }
}

TEST_F(Sorting, ANewViewRefusesWhatNeedsRows) {
    for (auto const& option :
         {Names{"--list", "part"}, Names{"--sort", "mass"}, Names{"--columns", "all"},
          Names{"--name", "id"}, Names{"--bold", "old"}, Names{"--limit", "1"}})
        ExpectRefused({"--generation", "new", option[0], option[1]},
                      option[0] + " needs rows, and --generation new has none yet; see zbbrowse "
                                  "--help");
}

} // namespace
