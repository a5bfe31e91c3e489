// SPDX-License-Identifier: MIT
#include "text/CsvWriter.h"

#include "FakeList.h"

namespace {

using namespace zbtest;
using zbtext::CsvWriter;

std::string Csv(Value const& value) {
    std::string out;
    zbtext::AppendCsv(out, value);
    return out;
}

TEST(Csv, HasAHeaderAndLinesThatEndInCrLf) {
    auto const lists = MakeLists(
        FakeList("part", {"name", "mass"}, {{Text("bolt"), Real(0.5)}, {Text("nut"), Number(2)}}));

    EXPECT_EQ(Written<CsvWriter>(lists), "name,mass\r\nbolt,0.5\r\nnut,2\r\n");
}

TEST(Csv, AnEmptyListHasAHeader) {
    EXPECT_EQ(Written<CsvWriter>(MakeLists(FakeList("part", {"a", "b c,d"}))), "a,\"b c,d\"\r\n");
}

TEST(Csv, QuotesWhatWouldBreakALine) {
    EXPECT_EQ(Csv(Text("a,b")), "\"a,b\"");
    EXPECT_EQ(Csv(Text("a\nb")), "\"a\nb\"");
    EXPECT_EQ(Csv(Text("a\rb")), "\"a\rb\"");
    EXPECT_EQ(Csv(Text("say \"hi\"")), "\"say \"\"hi\"\"\"");
    EXPECT_EQ(Csv(Text("\"")), "\"\"\"\"");
}

TEST(Csv, QuotesBlanksAtTheEnds) {
    EXPECT_EQ(Csv(Text(" a")), "\" a\"");
    EXPECT_EQ(Csv(Text("a ")), "\"a \"");
    EXPECT_EQ(Csv(Text("a b")), "a b");
}

TEST(Csv, NullAndEmptyTextDiffer) {
    EXPECT_EQ(Csv({}), "");
    EXPECT_EQ(Csv(Text("")), "\"\"");
}

TEST(Csv, TextGoesThroughByteForByte) {
    EXPECT_EQ(Csv(Text("\xFF\x1b")), "\xFF\x1b");
    EXPECT_EQ(Csv(Text(std::string_view("a\0b", 3))), std::string("a\0b", 3));
}

TEST(Csv, ABlobIsWrittenAsInSql) {
    EXPECT_EQ(Csv(Blob(std::string_view("\0\xFF", 2))), "X'00FF'");
    EXPECT_EQ(Csv(Blob("")), "X''");
}

TEST(Csv, HasRoomForOneListOnly) {
    zbtext::StringSink sink;
    zbtext::Output output(sink);
    CsvWriter const writer(output);

    EXPECT_TRUE(writer.CanWrite(1));
    EXPECT_FALSE(writer.CanWrite(2));
}

TEST(Csv, AViewIsATableOfItsLists) {
    zbtext::Folder root{"v", {}, MakeLists(FakeList("x", {}).WithTotal(7))};
    root.folders.push_back({"a", {}, {}});
    root.folders[0].folders.push_back({"b,c", {}, MakeLists(FakeList("y", {}).WithTotal(1))});

    EXPECT_EQ(WrittenView<CsvWriter>(root), "folder,list,count\r\n\"a/b,c\",y,1\r\n\"\",x,7\r\n");
}

} // namespace
