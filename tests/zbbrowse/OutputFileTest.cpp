// SPDX-License-Identifier: MIT
#include "EndToEnd.h"

#include <sys/stat.h>
#include <unistd.h>

namespace {

using namespace zbtest;

class OutputFile : public EndToEnd {
protected:
    OutputFile() { Sql("a.db", "create table part(a); insert into part values (1),(2);"); }

    Ending WriteTo(std::string const& path) const {
        return Browse({Path("a.db"), "--list", "part", "--format", "csv", "--output", path});
    }

    std::string const expected_ = "a\r\n1\r\n2\r\n";
};

TEST_F(OutputFile, HoldsWhatWouldHaveBeenPrinted) {
    auto const ending = WriteTo(Path("out.csv"));

    EXPECT_EQ(ending.status, 0);
    EXPECT_EQ(ending.output, "");
    EXPECT_EQ(Read("out.csv"), expected_);
    EXPECT_EQ(Files(), (std::vector<std::string>{"a.db", "out.csv"}));
}

TEST_F(OutputFile, ReplacesWhatWasThereAndKeepsItsPermissions) {
    Write("out.csv", "a long text that was there before");
    ::chmod(Path("out.csv").c_str(), 0640);

    EXPECT_EQ(WriteTo(Path("out.csv")).status, 0);

    EXPECT_EQ(Read("out.csv"), expected_);
    struct stat state {};
    ::stat(Path("out.csv").c_str(), &state);
    EXPECT_EQ(state.st_mode & 0777U, 0640U);
}

TEST_F(OutputFile, ANewFileHasTheUsualPermissions) {
    auto const mask = ::umask(027);
    WriteTo(Path("out.csv"));
    ::umask(mask);

    struct stat state {};
    ::stat(Path("out.csv").c_str(), &state);
    EXPECT_EQ(state.st_mode & 0777U, 0640U);
}

TEST_F(OutputFile, IsWrittenWhereALinkLeads) {
    Write("target.csv", "old");
    std::filesystem::create_symlink("target.csv", Path("link.csv"));

    EXPECT_EQ(WriteTo(Path("link.csv")).status, 0);

    EXPECT_EQ(Read("target.csv"), expected_);
    EXPECT_TRUE(std::filesystem::is_symlink(Path("link.csv")));
}

TEST_F(OutputFile, OnFailureWhatWasThereStays) {
    Write("out.csv", "old");

    auto const ending = Browse({Path("a.db"), "--list", "none", "--output", Path("out.csv")});

    EXPECT_EQ(ending.status, 2);
    EXPECT_EQ(Read("out.csv"), "old");
    EXPECT_EQ(Files(), (std::vector<std::string>{"a.db", "out.csv"}));
}

TEST_F(OutputFile, AfterAListThatCannotBeReadNothingIsLeft) {
    Sql("a.db", "create table gone(a); create view broken as select * from gone; drop table gone;");

    auto const ending = Browse({Path("a.db"), "--list", "broken", "--output", Path("out.csv")});

    EXPECT_EQ(ending.status, 2);
    EXPECT_EQ(Files(), std::vector<std::string>{"a.db"});
}

TEST_F(OutputFile, TheDatabaseItselfIsNeverOverwritten) {
    std::filesystem::create_symlink("a.db", Path("link"));

    EXPECT_EQ(WriteTo(Path("a.db")).status, 2);
    EXPECT_EQ(WriteTo(Path("link")).status, 2);

    EXPECT_EQ(Read("a.db").substr(0, 6), "SQLite");
}

TEST_F(OutputFile, AFolderThatIsNotThereIsToldOf) {
    auto const ending = WriteTo(Path("no/out.csv"));

    EXPECT_EQ(ending.status, 2);
    EXPECT_NE(ending.errors.find("no/out.csv: No such file or directory"), std::string::npos)
        << ending.errors;
}

TEST_F(OutputFile, AFolderInItsPlaceIsToldOf) {
    std::filesystem::create_directory(Path("out"));

    auto const ending = WriteTo(Path("out"));

    EXPECT_EQ(ending.status, 2);
    EXPECT_NE(ending.errors.find("Is a directory"), std::string::npos) << ending.errors;
}

TEST_F(OutputFile, ADeviceIsWrittenInPlace) {
    EXPECT_EQ(WriteTo("/dev/null").status, 0);
    EXPECT_TRUE(std::filesystem::is_character_file("/dev/null"));
}

TEST_F(OutputFile, AFullDiskIsToldOf) {
    auto const ending = WriteTo("/dev/full");

    EXPECT_EQ(ending.status, 2);
    EXPECT_EQ(ending.errors, "zbbrowse: /dev/full: No space left on device\n");
}

TEST_F(OutputFile, AFullStandardOutputIsToldOf) {
    auto const ending = RunToEnd({.arguments = {"/bin/sh", "-c", "exec \"$0\" \"$1\" >/dev/full",
                                                ZBBROWSE_PROGRAM, Path("a.db")},
                                  .environment = {},
                                  .input = {}});

    EXPECT_EQ(ending.status, 2);
    EXPECT_EQ(ending.errors, "zbbrowse: standard output: No space left on device\n");
}

TEST_F(OutputFile, AClosedStandardOutputIsToldOf) {
    auto const ending = RunToEnd(
        {.arguments = {"/bin/sh", "-c", "exec \"$0\" \"$1\" >&-", ZBBROWSE_PROGRAM, Path("a.db")},
         .environment = {},
         .input = {}});

    EXPECT_EQ(ending.status, 2);
    EXPECT_EQ(ending.errors, "zbbrowse: standard output: Bad file descriptor\n");
    EXPECT_EQ(Sql("a.db", "select count(*) from part;"), "2\n");
}

} // namespace
