// SPDX-License-Identifier: MIT
#include "text/JsonWriter.h"

#include "FakeList.h"
#include "text/JsonText.h"

#include <nlohmann/json.hpp>

#include <limits>

namespace {

using namespace zbtest;
using Json = nlohmann::ordered_json;
using zbtext::JsonLinesWriter;
using zbtext::JsonWriter;

std::string AsJson(Value const& value) {
    std::string out;
    zbtext::AppendJson(out, value);
    return out;
}

TEST(JsonValue, KeepsTheTypesApart) {
    EXPECT_EQ(AsJson({}), "null");
    EXPECT_EQ(AsJson(Number(1)), "1");
    EXPECT_EQ(AsJson(Real(1.0)), "1.0");
    EXPECT_EQ(AsJson(Text("1")), "\"1\"");
}

TEST(JsonValue, LargeIntegersAreExact) {
    auto const largest = std::numeric_limits<std::int64_t>::max();
    EXPECT_EQ(Json::parse(AsJson(Number(largest))).get<std::int64_t>(), largest);
    EXPECT_EQ(AsJson(Number(9007199254740993)), "9007199254740993");
}

TEST(JsonValue, ARealStaysARealWhenItIsReadBack) {
    for (double const number : {1.0, 0.1, -0.0, 1e15, 1e300, 5e-324, 0.1 + 0.2}) {
        auto const json = Json::parse(AsJson(Real(number)));
        EXPECT_TRUE(json.is_number_float()) << json;
        EXPECT_EQ(json.get<double>(), number);
    }
}

TEST(JsonValue, EveryTextReadsBack) {
    std::string all;
    for (int c = 0; c < 128; ++c)
        all += static_cast<char>(c);
    all += "Läufer 歯車 🔩 \xE2\x80\xA8";
    EXPECT_EQ(Json::parse(AsJson(Text(all))).get<std::string>(), all);
}

TEST(JsonValue, EscapesAreTheUsualOnes) {
    EXPECT_EQ(AsJson(Text("\"\\/\n\r\t\x01\x1f")), R"("\"\\/\n\r\t\u0001\u001f")");
}

TEST(JsonValue, ABlobIsMarked) {
    EXPECT_EQ(AsJson(Blob(std::string_view("\0\xFF", 2))), R"({"$blob":"AP8="})");
    EXPECT_EQ(AsJson(Blob("")), R"({"$blob":""})");
}

TEST(JsonValue, ATextThatIsNoUtf8IsMarkedAndKeepsItsBytes) {
    EXPECT_EQ(AsJson(Text("a\xFF")), R"({"$bytes":"Yf8="})");
}

TEST(JsonValue, AnInfiniteRealIsMarked) {
    EXPECT_EQ(AsJson(Real(std::numeric_limits<double>::infinity())), R"({"$real":"Inf"})");
    EXPECT_EQ(AsJson(Real(-std::numeric_limits<double>::infinity())), R"({"$real":"-Inf"})");
}

TEST(JsonString, IsAStringWhateverTheBytes) {
    std::string out;
    zbtext::AppendJsonString(out, "a\xFF\"");
    EXPECT_EQ(Json::parse(out).get<std::string>(), "a\xEF\xBF\xBD\"");
}

FakeList Parts() {
    return {"part",
            {"name", "id", "zeta", "alpha"},
            {{Text("bolt"), Number(1), Real(2.0), {}}, {Text("nut"), Number(2), {}, Blob("x")}}};
}

TEST(JsonList, IsAnArrayWithARowInEachLine) {
    EXPECT_EQ(
        Written<JsonWriter>(MakeLists(Parts())),
        "[\n"
        R"({"name":"bolt","columns":{"name":"bolt","id":1,"zeta":2.0,"alpha":null}},)"
        "\n"
        R"({"name":"nut","columns":{"name":"nut","id":2,"zeta":null,"alpha":{"$blob":"eA=="}}})"
        "\n]\n");
}

TEST(JsonList, ColumnsKeepTheirOrder) {
    auto const json = Json::parse(Written<JsonWriter>(MakeLists(Parts())));
    std::vector<std::string> keys;
    for (auto const& [key, value] : json[0]["columns"].items())
        keys.push_back(key);

    EXPECT_EQ(keys, (std::vector<std::string>{"name", "id", "zeta", "alpha"}));
}

TEST(JsonList, TheIconStandsBehindTheName) {
    FakeList list("part", {"n"}, {{Text("bolt")}});

    EXPECT_EQ(Written<zbtext::JsonWriter>(MakeLists(list.WithIcon("/screw"))),
              "[\n{\"name\":\"bolt\",\"icon\":\"/screw\",\"columns\":{\"n\":\"bolt\"}}\n]\n");
}

TEST(JsonList, WithoutRowsIsAnEmptyArray) {
    EXPECT_EQ(Written<JsonWriter>(MakeLists(FakeList("part", {"a"}))), "[]\n");
}

TEST(JsonList, ARowWithoutNameHasANull) {
    auto const lists = MakeLists(FakeList("part", {"id"}, {{Number(1)}}));

    EXPECT_TRUE(Json::parse(Written<JsonWriter>(lists))[0]["name"].is_null());
}

TEST(JsonList, ColumnNamesAreEscaped) {
    auto const lists = MakeLists(FakeList("part", {"a\"b\\c"}, {{Number(1)}}));

    EXPECT_EQ(Json::parse(Written<JsonWriter>(lists))[0]["columns"]["a\"b\\c"], 1);
}

TEST(JsonLists, AreOneObjectWithAnArrayForEach) {
    auto const lists = MakeLists(Parts(), FakeList("ro\"w", {"a"}));

    auto const json = Json::parse(Written<JsonWriter>(lists));

    EXPECT_EQ(json.size(), 2U);
    EXPECT_EQ(json["part"].size(), 2U);
    EXPECT_EQ(json["ro\"w"], Json::array());
}

TEST(JsonLines, OneListHasARowInEachLine) {
    EXPECT_EQ(
        Written<JsonLinesWriter>(MakeLists(Parts())),
        R"({"name":"bolt","columns":{"name":"bolt","id":1,"zeta":2.0,"alpha":null}})"
        "\n"
        R"({"name":"nut","columns":{"name":"nut","id":2,"zeta":null,"alpha":{"$blob":"eA=="}}})"
        "\n");
}

TEST(JsonLines, ALineEndInATextDoesNotEndTheLine) {
    auto const lists = MakeLists(FakeList("part", {"a"}, {{Text("x\ny")}}));
    auto const text = Written<JsonLinesWriter>(lists);

    EXPECT_EQ(text.find('\n'), text.size() - 1);
}

TEST(JsonLines, OfSeveralListsEachRowNamesItsList) {
    auto const lists =
        MakeLists(FakeList("a", {"x"}, {{Number(1)}}), FakeList("b", {"y"}, {{Number(2)}}));

    EXPECT_EQ(Written<JsonLinesWriter>(lists), R"({"list":"a","name":null,"columns":{"x":1}})"
                                               "\n"
                                               R"({"list":"b","name":null,"columns":{"y":2}})"
                                               "\n");
}

zbtext::Folder SomeView() {
    zbtext::Folder root{"sample", {}, {}};
    root.folders.push_back({"tables", {}, MakeLists(Parts().WithTotal(9))});
    root.folders.push_back({"views", {}, {}});
    root.folders[1].folders.push_back(
        {"deep", {}, MakeLists(FakeList("bad", {}).WithFault("no such table: x"))});
    return root;
}

TEST(JsonView, HoldsFoldersListsCountsAndFirstRows) {
    auto const json = Json::parse(WrittenView<JsonWriter>(SomeView()));

    EXPECT_EQ(json["view"], "sample");
    EXPECT_EQ(json["lists"], Json::array());
    EXPECT_EQ(json["folders"][0]["name"], "tables");
    EXPECT_EQ(json["folders"][0]["folders"], Json::array());
    auto const& list = json["folders"][0]["lists"][0];
    EXPECT_EQ(list["name"], "part");
    EXPECT_EQ(list["count"], 9);
    EXPECT_EQ(list["rows"].size(), 2U);
    EXPECT_EQ(list["rows"][1]["name"], "nut");
    EXPECT_FALSE(list.contains("error"));
}

TEST(JsonView, SaysWhyAListIsMissing) {
    auto const json = Json::parse(WrittenView<JsonWriter>(SomeView()));

    auto const& list = json["folders"][1]["folders"][0]["lists"][0];
    EXPECT_EQ(list["error"], "no such table: x");
    EXPECT_EQ(list["rows"], Json::array());
}

TEST(JsonView, InLinesNamesTheFolderOfEachList) {
    EXPECT_EQ(WrittenView<JsonLinesWriter>(SomeView()),
              R"({"folder":"tables","list":"part","count":9})"
              "\n"
              R"({"folder":"views/deep","list":"bad","count":0,"error":"no such table: x"})"
              "\n");
}

} // namespace
