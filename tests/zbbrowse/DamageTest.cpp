// SPDX-License-Identifier: MIT
#include "EndToEnd.h"

namespace {

using namespace zbtest;

class Damage : public EndToEnd {
protected:
    //! One line on standard error that names `place` and `reason`, and nothing else.
    static void ExpectComplaint(Ending const& ending, std::string const& place,
                                std::string const& reason) {
        EXPECT_EQ(ending.status, 2);
        EXPECT_EQ(ending.output, "");
        EXPECT_EQ(Lines(ending.errors).size(), 1U) << ending.errors;
        EXPECT_EQ(ending.errors.find("zbbrowse: "), 0U) << ending.errors;
        EXPECT_NE(ending.errors.find(place), std::string::npos) << ending.errors;
        EXPECT_NE(ending.errors.find(reason), std::string::npos) << ending.errors;
    }
};

TEST_F(Damage, AMissingFile) {
    ExpectComplaint(Browse({Path("none.db")}), Path("none.db"), "no such file");
    EXPECT_TRUE(Files().empty());
}

TEST_F(Damage, AFolder) {
    std::filesystem::create_directory(Path("folder"));

    ExpectComplaint(Browse({Path("folder")}), Path("folder"), "folder, not a database");
}

TEST_F(Damage, AFileThatIsNoDatabase) {
    Write("letter.txt", std::string(5000, 'x'));

    ExpectComplaint(Browse({Path("letter.txt")}), Path("letter.txt"), "not a");
}

TEST_F(Damage, ADatabaseThatIsCutOff) {
    Sql("cut.db", "create table t(a); with recursive c(x) as (select 1 union all select x+1 from c "
                  "where x<20000) insert into t select x from c;");
    std::filesystem::resize_file(Path("cut.db"), std::filesystem::file_size(Path("cut.db")) / 2);

    auto const ending = Browse({Path("cut.db"), "--list", "t"});

    ExpectComplaint(ending, Path("cut.db"), "");
}

TEST_F(Damage, AFileNameWithControlCharactersStaysInItsLine) {
    ExpectComplaint(Browse({Path("a\nb\x1b[2J.db")}), "a␊b␛[2J.db", "no such file");
}

TEST_F(Damage, AnUnknownListIsNamedWithTheNearestOnes) {
    Sql("a.db", "create table part(a); create table supplier(a);");

    auto const ending = Browse({Path("a.db"), "--list", "prat"});

    ExpectComplaint(ending, "\"prat\"", "nearest: part");
}

TEST_F(Damage, AnUnknownListInAFolderIsNamedToo) {
    Sql("a.db", "create table part(a); create table supplier(a);");

    ExpectComplaint(Browse({Path("a.db"), "--folder", "x=suplier"}), "\"suplier\"",
                    "nearest: supplier");
}

TEST_F(Damage, InAnEmptyDatabaseThereIsNothingToSuggest) {
    Sql("a.db", "create table part(a); drop table part;");

    auto const ending = Browse({Path("a.db"), "--list", "part"});

    ExpectComplaint(ending, "\"part\"", "no list");
    EXPECT_EQ(ending.errors.find("nearest"), std::string::npos);
}

TEST_F(Damage, ABrokenViewDoesNotHideTheRest) {
    Sql("a.db", "create table part(a); insert into part values (1); create table gone(a);"
                "create view broken as select * from gone; drop table gone;");

    auto const ending = Browse({Path("a.db"), "--limit", "0"});

    EXPECT_EQ(ending.status, 2);
    EXPECT_NE(ending.output.find("part (1)"), std::string::npos);
    EXPECT_NE(ending.output.find("broken (cannot be read: "), std::string::npos);
    EXPECT_EQ(Lines(ending.errors).size(), 1U) << ending.errors;
    EXPECT_NE(ending.errors.find("gone"), std::string::npos) << ending.errors;
}

TEST_F(Damage, ABrokenViewAskedForByNameWritesNothing) {
    Sql("a.db", "create table part(a); create table gone(a);"
                "create view broken as select * from gone; drop table gone;");

    ExpectComplaint(Browse({Path("a.db"), "--list", "part", "--list", "broken"}), "broken", "gone");
}

} // namespace
