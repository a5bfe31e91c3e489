// SPDX-License-Identifier: MIT
#include "zbbrowse/Options.h"

#include <gtest/gtest.h>

namespace {

using Names = std::vector<std::string>;
using zbbrowse::ReadFolderOption;

TEST(FolderOption, ReadsAPathAndNames) {
    auto const option = ReadFolderOption("shop/stock=part,supplier");

    ASSERT_TRUE(option);
    EXPECT_EQ(option->path, (Names{"shop", "stock"}));
    EXPECT_EQ(option->lists, (Names{"part", "supplier"}));
}

TEST(FolderOption, OnlyTheFirstEqualsSignEndsThePath) {
    auto const option = ReadFolderOption("a=b=c");

    ASSERT_TRUE(option);
    EXPECT_EQ(option->path, Names{"a"});
    EXPECT_EQ(option->lists, Names{"b=c"});
}

TEST(FolderOption, ABackslashTakesTheMeaningFromACharacter) {
    auto const option = ReadFolderOption(R"(in\/out\=x=a\,b,c\\d)");

    ASSERT_TRUE(option);
    EXPECT_EQ(option->path, Names{"in/out=x"});
    EXPECT_EQ(option->lists, (Names{"a,b", "c\\d"}));
}

TEST(FolderOption, ASlashInAListIsAPlainCharacter) {
    EXPECT_EQ(ReadFolderOption("a=b/c")->lists, Names{"b/c"});
}

TEST(FolderOption, ACommaInAPathIsAPlainCharacter) {
    EXPECT_EQ(ReadFolderOption("a,b=c")->path, Names{"a,b"});
}

TEST(FolderOption, RefusesWhatLacksAPart) {
    for (char const* const text :
         {"", "a", "a=", "=b", "a=b,", "a=,b", "a//c=b", "/a=b", "a/=b", "a=b\\", "a\\=b"})
        EXPECT_FALSE(ReadFolderOption(text)) << text;
}

} // namespace
