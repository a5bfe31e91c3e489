// SPDX-License-Identifier: MIT
#include "text/TextWriter.h"

#include "FakeList.h"

namespace {

using namespace zbtest;
using zbtext::TextStyle;
using zbtext::TextWriter;

FakeList Parts() {
    return {"part", {"id", "name"}, {{Number(1), Text("bolt")}, {Number(2), Text("nut")}}};
}

TEST(TextList, HasATitleAHeaderAndARule) {
    EXPECT_EQ(Written<TextWriter>(MakeLists(Parts()), TextStyle{}), "part (2)\n"
                                                                    "id  name\n"
                                                                    "──  ────\n"
                                                                    " 1  bolt\n"
                                                                    " 2  nut\n");
}

TEST(TextList, TellsHowManyRowsAreNotShown) {
    auto const text = Written<TextWriter>(MakeLists(Parts().WithTotal(12)), TextStyle{});

    EXPECT_NE(text.find("part (12)\n"), std::string::npos);
    EXPECT_NE(text.find("\n… 10 more\n"), std::string::npos);
}

TEST(TextList, SeveralStandApart) {
    auto const text =
        Written<TextWriter>(MakeLists(FakeList("a", {"x"}), FakeList("b", {"y"})), TextStyle{});

    EXPECT_EQ(text, "a (0)\nx\n─\n\nb (0)\ny\n─\n");
}

TEST(TextList, WithoutColumnsIsItsTitleAlone) {
    FakeList const rows("part", {}, {{Number(1)}, {Number(2)}});

    EXPECT_EQ(Written<TextWriter>(MakeLists(rows), TextStyle{}), "part (2)\n");
}

zbtext::Folder SomeView() {
    zbtext::Folder root{"sample", {}, {}};
    root.folders.push_back(
        {"tables", {}, MakeLists(Parts().WithTotal(5), FakeList("empty", {"a"}))});
    root.folders.push_back(
        {"views", {}, MakeLists(FakeList("bad", {}).WithFault("no such table: x"))});
    return root;
}

TEST(TextView, IsAPictureOfFoldersListsAndFirstRows) {
    EXPECT_EQ(WrittenView<TextWriter>(SomeView(), TextStyle{}),
              "sample\n"
              "├─ tables\n"
              "│  ├─ part (5)\n"
              "│  │     id  name\n"
              "│  │      1  bolt\n"
              "│  │      2  nut\n"
              "│  │     … 3 more\n"
              "│  └─ empty (0)\n"
              "└─ views\n"
              "   └─ bad (cannot be read: no such table: x)\n");
}

TEST(TextView, AListThatHandsOutNoRowsShowsItsCountAlone) {
    zbtext::Folder root{"v", {}, MakeLists(FakeList("part", {"id"}).WithTotal(5))};

    EXPECT_EQ(WrittenView<TextWriter>(root, TextStyle{}), "v\n└─ part (5)\n");
}

TEST(TextView, ListsStandBehindFolders) {
    zbtext::Folder root{"v", {}, MakeLists(FakeList("part", {"id"}))};
    root.folders.push_back({"f", {}, {}});

    EXPECT_EQ(WrittenView<TextWriter>(root, TextStyle{}), "v\n├─ f\n└─ part (0)\n");
}

TEST(TextView, ASketchCutsLongValuesEvenWithoutAWidth) {
    std::string const longText(1000, 'x');
    zbtext::Folder root{"v", {}, MakeLists(FakeList("l", {"a"}, {{Text(longText)}}))};

    auto const text = WrittenView<TextWriter>(root, TextStyle{});

    EXPECT_NE(text.find(std::string(TextWriter::kSketchCell - 1, 'x') + "…\n"), std::string::npos);
}

TEST(TextView, NamesThatAreTooLongAreCut) {
    zbtext::Folder root{"a long name of a view", {}, MakeLists(FakeList("a long name", {"id"}))};

    EXPECT_EQ(WrittenView<TextWriter>(root, TextStyle{.width = 10}), "a long na…\n└─ a long…\n");
}

TEST(TextView, ControlCharactersInNamesAreShown) {
    zbtext::Folder root{"v\x1b[2J", {}, {}};

    EXPECT_EQ(WrittenView<TextWriter>(root, TextStyle{}), "v␛[2J\n");
}

TEST(TextView, IsColouredOnlyIfTheStyleSaysSo) {
    EXPECT_EQ(WrittenView<TextWriter>(SomeView(), TextStyle{}).find('\x1b'), std::string::npos);
    auto const coloured =
        WrittenView<TextWriter>(SomeView(), TextStyle{.width = 80, .colour = true});
    EXPECT_NE(coloured.find("\x1b[1;34mtables\x1b[0m"), std::string::npos);
}

} // namespace
