// SPDX-License-Identifier: MIT
#include "EndToEnd.h"

namespace {

using namespace zbtest;

class Selecting : public EndToEnd {
protected:
    Selecting() {
        Sql("a.db", "create table part(id integer primary key, name text, mass integer);"
                    "insert into part values (1,'bolt',5),(2,'nut',2),(3,'bolt, long',7),"
                    "(4,null,1),(5,'écrou',3),(6,'Bolt',4);"
                    "create table box(name); insert into box values ('bolts'),('nuts');");
    }

    //! The names of the selected rows, a list's name in front of each.
    std::string Selected(std::vector<std::string> const& patterns) const {
        std::vector<std::string> arguments{Path("a.db"), "--format",  "csv", "--list",
                                           "part",       "--columns", "id"};
        for (auto const& pattern : patterns)
            arguments.insert(arguments.end(), {"--select", pattern});
        auto const ending = Browse(std::move(arguments));
        EXPECT_EQ(ending.status, 0) << ending.errors;
        std::string ids;
        for (auto const& line : Lines(ending.output))
            ids += line.substr(0, line.find('\r')) + ' ';
        return ids;
    }
};

TEST_F(Selecting, APatternIsForTheWholeName) {
    EXPECT_EQ(Selected({"bolt"}), "id 1 ");
    EXPECT_EQ(Selected({"bol"}), "id ");
}

TEST_F(Selecting, AStarStandsForAnyCharacters) {
    EXPECT_EQ(Selected({"bolt*"}), "id 1 3 ");
    EXPECT_EQ(Selected({"*o*"}), "id 1 3 5 6 ");
}

TEST_F(Selecting, AQuestionMarkStandsForOneCharacterNotOneByte) {
    EXPECT_EQ(Selected({"?crou"}), "id 5 ");
}

TEST_F(Selecting, BracketsStandForOneOfTheirs) {
    EXPECT_EQ(Selected({"[bB]olt"}), "id 1 6 ");
    EXPECT_EQ(Selected({"[^a-z]olt"}), "id 6 ");
}

TEST_F(Selecting, ARowWithoutANameIsNotSelected) {
    EXPECT_EQ(Selected({"*"}), "id 1 2 3 5 6 ");
}

TEST_F(Selecting, SeveralPatternsSelectWhatAnyOfThemMatches) {
    EXPECT_EQ(Selected({"nut", "Bolt", "*t"}), "id 1 2 6 ");
}

TEST_F(Selecting, ThePictureShowsAllThatIsSelectedInEachList) {
    auto const ending = Browse({Path("a.db"), "--select", "[bB]olt*"});

    EXPECT_EQ(ending.status, 0);
    EXPECT_EQ(ending.output, "a\n"
                             "└─ tables\n"
                             "   ├─ part (3)\n"
                             "   │     id  name        mass\n"
                             "   │      1  bolt           5\n"
                             "   │      3  bolt, long     7\n"
                             "   │      6  Bolt           4\n"
                             "   └─ box (1)\n"
                             "         name\n"
                             "         bolts\n");
}

TEST_F(Selecting, OrderAndLimitAreForWhatIsSelected) {
    auto const ending = Browse({Path("a.db"), "--list", "part", "--select", "[bB]olt*", "--columns",
                                "name", "--sort", "mass:desc", "--limit", "2", "--format", "csv"});

    EXPECT_EQ(ending.output, "name\r\n\"bolt, long\"\r\nbolt\r\n");
}

TEST_F(Selecting, NamesAreThoseThatAreAskedFor) {
    auto const ending = Browse({Path("a.db"), "--list", "part", "--name", "mass", "--select", "7",
                                "--format", "jsonl", "--columns", "id"});

    EXPECT_EQ(ending.output, "{\"name\":\"7\",\"columns\":{\"id\":3}}\n");
}

} // namespace
