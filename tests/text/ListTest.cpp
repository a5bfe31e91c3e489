// SPDX-License-Identifier: MIT
#include "FakeList.h"

namespace {

using namespace zbtest;

TEST(TakingAList, FindsItInAFolderBelow) {
    zbtext::Folder root{"root", {}, MakeLists(FakeList("a", {}))};
    root.folders.push_back({"below", {}, MakeLists(FakeList("b", {}))});

    auto const list = zbtext::TakeList(root, "b");

    ASSERT_NE(list, nullptr);
    EXPECT_EQ(list->GetName(), "b");
    EXPECT_TRUE(root.folders[0].lists.empty());
}

TEST(TakingAList, TakesTheFirstOfSeveral) {
    zbtext::Folder root{"root", {}, MakeLists(FakeList("a", {}).WithTotal(1))};
    root.folders.push_back({"below", {}, MakeLists(FakeList("a", {}).WithTotal(2))});

    EXPECT_EQ(zbtext::TakeList(root, "a")->GetTotal(), 1U);
    EXPECT_EQ(zbtext::TakeList(root, "a")->GetTotal(), 2U);
    EXPECT_EQ(zbtext::TakeList(root, "a"), nullptr);
}

TEST(TakingAList, ANameInOtherLettersIsAnotherName) {
    zbtext::Folder root{"root", {}, MakeLists(FakeList("a", {}))};

    EXPECT_EQ(zbtext::TakeList(root, "A"), nullptr);
}

} // namespace
