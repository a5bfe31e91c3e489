// SPDX-License-Identifier: MIT
#include "EndToEnd.h"

#include <nlohmann/json.hpp>

#include <cstdlib>

namespace {

using namespace zbtest;
using Json = nlohmann::ordered_json;

class Formats : public EndToEnd {
protected:
    Formats() {
        Sql("types.db", "create table val(name text, v);"
                        "insert into val values"
                        "('null',null),('one',1),('large',9223372036854775807),"
                        "('small',-9223372036854775808),('beyond',9007199254740993),"
                        "('real',1.0),('tenth',0.1),('sum',0.1+0.2),('huge',1e300),('tiny',5e-324),"
                        "('infinite',9e999),('less',-9e999),"
                        "('text','x'),('digits','007'),('empty',''),('quotes','say \"hi\", it''s'),"
                        "('lines','a'||char(10)||'b'||char(13)||char(9)||'c'),('wide','歯車 é 🔩'),"
                        "('zero','a'||char(0)||'b'),('escape',char(27)||'[31m'),"
                        "('odd',cast(x'61ff62' as text)),"
                        "('blob',x'00ff10'),('no bytes',x''),(null,'without a name');"
                        "create table part(id integer primary key, name text);"
                        "insert into part values (1,'bolt'),(2,'nut'),(3,'pin');");
    }

    Json ListAsJson(std::string const& list) const {
        return Json::parse(Browse({types_, "--list", list, "--format", "json"}).output);
    }

    Json ValueOf(std::string const& name) const {
        for (auto const& row : ListAsJson("val")) {
            if (row["name"] == name)
                return row["columns"]["v"];
        }
        ADD_FAILURE() << "no row " << name;
        return {};
    }

    std::string const types_ = Path("types.db");
};

TEST_F(Formats, TextIsATable) {
    auto const ending = Browse({types_, "--list", "part"});

    EXPECT_EQ(ending.output, "part (3)\n"
                             "id  name\n"
                             "──  ────\n"
                             " 1  bolt\n"
                             " 2  nut\n"
                             " 3  pin\n");
    EXPECT_EQ(ending.status, 0);
}

TEST_F(Formats, JsonIsAnArrayOfNamesAndColumns) {
    EXPECT_EQ(Browse({types_, "--list", "part", "--format", "json"}).output,
              "[\n"
              "{\"name\":\"bolt\",\"columns\":{\"id\":1,\"name\":\"bolt\"}},\n"
              "{\"name\":\"nut\",\"columns\":{\"id\":2,\"name\":\"nut\"}},\n"
              "{\"name\":\"pin\",\"columns\":{\"id\":3,\"name\":\"pin\"}}\n"
              "]\n");
}

TEST_F(Formats, JsonKeepsTheTypesOfSql) {
    EXPECT_TRUE(ValueOf("null").is_null());
    EXPECT_TRUE(ValueOf("one").is_number_integer());
    EXPECT_TRUE(ValueOf("real").is_number_float());
    EXPECT_EQ(ValueOf("digits"), "007");
    EXPECT_EQ(ValueOf("empty"), "");
}

TEST_F(Formats, JsonHasBigIntegersInFull) {
    EXPECT_EQ(ValueOf("large").get<std::int64_t>(), INT64_MAX);
    EXPECT_EQ(ValueOf("small").get<std::int64_t>(), INT64_MIN);
    EXPECT_EQ(ValueOf("beyond").get<std::int64_t>(), 9007199254740993);
}

TEST_F(Formats, JsonHasRealsToTheLastBit) {
    EXPECT_EQ(ValueOf("sum").get<double>(), 0.1 + 0.2);
    EXPECT_EQ(ValueOf("tiny").get<double>(), 5e-324);
    EXPECT_EQ(ValueOf("infinite"), Json({{"$real", "Inf"}}));
    EXPECT_EQ(ValueOf("less"), Json({{"$real", "-Inf"}}));
}

TEST_F(Formats, JsonMarksWhatItCannotSay) {
    EXPECT_EQ(ValueOf("blob"), Json({{"$blob", "AP8Q"}}));
    EXPECT_EQ(ValueOf("no bytes"), Json({{"$blob", ""}}));
    EXPECT_EQ(ValueOf("odd"), Json({{"$bytes", "Yf9i"}}));
}

TEST_F(Formats, JsonKeepsEachCharacterOfATextToTheZeroByte) {
    EXPECT_EQ(ValueOf("lines"), "a\nb\r\tc");
    EXPECT_EQ(ValueOf("wide"), "歯車 é 🔩");
    EXPECT_EQ(ValueOf("zero"), std::string("a\0b", 3));
}

std::string Hex(std::string const& bytes) {
    constexpr char digits[] = "0123456789ABCDEF";
    std::string out;
    for (char const c : bytes) {
        out += digits[static_cast<unsigned char>(c) >> 4U];
        out += digits[static_cast<unsigned char>(c) & 15U];
    }
    return out;
}

std::string FromBase64(std::string const& text) {
    std::string const letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string out;
    unsigned bits = 0;
    int count = 0;
    for (char const c : text) {
        if (c == '=')
            break;
        bits = bits << 6U | static_cast<unsigned>(letters.find(c));
        count += 6;
        if (count >= 8) {
            count -= 8;
            out += static_cast<char>(bits >> static_cast<unsigned>(count) & 255U);
        }
    }
    return out;
}

//! A value in words that the shell can produce as well: its type and its bytes.
std::string Described(Json const& value) {
    if (value.is_null())
        return "null ";
    if (value.is_string())
        return "text " + Hex(value.get<std::string>());
    if (value.is_number_integer())
        return "integer " + std::to_string(value.get<std::int64_t>());
    if (value.contains("$blob"))
        return "blob " + Hex(FromBase64(value["$blob"]));
    if (value.contains("$bytes"))
        return "text " + Hex(FromBase64(value["$bytes"]));
    auto const number = value.is_number_float()
                            ? value.get<double>()
                            : std::strtod(value["$real"].get<std::string>().c_str(), nullptr);
    char text[64];
    std::snprintf(text, sizeof text, "real %a", number);
    return text;
}

TEST_F(Formats, EveryValueIsThatOfTheShell) {
    auto expected =
        Lines(Sql("types.db", "select typeof(v) || ' ' || case typeof(v) when 'null' then '' "
                              "when 'integer' then v when 'real' then printf('%!.17g', v) "
                              "else hex(cast(v as blob)) end from val;"));
    for (auto& line : expected) {
        if (line.find("real ") != 0)
            continue;
        char text[64];
        std::snprintf(text, sizeof text, "real %a", std::strtod(line.c_str() + 5, nullptr));
        line = text;
    }

    std::vector<std::string> values;
    for (auto const& row : ListAsJson("val"))
        values.push_back(Described(row["columns"]["v"]));

    EXPECT_EQ(values, expected);
    EXPECT_EQ(values.size(), 24U);
}

TEST_F(Formats, JsonLinesAreTheRowsOfTheArray) {
    auto const lines = Lines(Browse({types_, "--list", "val", "--format", "jsonl"}).output);
    Json rows = Json::array();
    for (auto const& line : lines)
        rows.push_back(Json::parse(line));

    EXPECT_EQ(rows, ListAsJson("val"));
}

TEST_F(Formats, CsvIsReadBackByTheShellByteForByte) {
    Sql("plain.db", "create table t(a text, b text);"
                    "insert into t values ('x','y'),('say \"hi\"','a,b'),"
                    "(' blanks ','a'||char(10)||'b'||char(13)||char(10)),('歯車',''),"
                    "(cast(x'61ff' as text),char(27)||'[31m');");
    ASSERT_EQ(
        Browse({Path("plain.db"), "--list", "t", "--format", "csv", "--output", Path("out.csv")})
            .status,
        0);

    auto const copy = Sql("copy.db", ".import --csv " + Path("out.csv") + " t\n" +
                                         "select hex(a), hex(b) from t;");

    EXPECT_EQ(copy, Sql("plain.db", "select hex(a), hex(b) from t;"));
    EXPECT_EQ(Lines(copy).size(), 5U);
}

TEST_F(Formats, CsvHasAHeaderAndTellsNullFromEmpty) {
    Sql("null.db", "create table t(\"a,b\", c); insert into t values (null,''),(x'01',2.0);");

    EXPECT_EQ(Browse({Path("null.db"), "--list", "t", "--format", "csv"}).output,
              "\"a,b\",c\r\n,\"\"\r\nX'01',2.0\r\n");
}

TEST_F(Formats, TextMakesWhatIsUnsafeVisible) {
    auto const output = Browse({types_, "--list", "val"}).output;

    EXPECT_EQ(output.find('\x1b'), std::string::npos);
    EXPECT_EQ(output.find('\xFF'), std::string::npos);
    EXPECT_NE(output.find("␛[31m"), std::string::npos);
    EXPECT_NE(output.find("a\xEF\xBF\xBD"
                          "b"),
              std::string::npos);
    EXPECT_NE(output.find("a␊b␍␉c"), std::string::npos);
}

TEST_F(Formats, ALongTextIsWholeWhereNobodyCutsIt) {
    Sql("long.db", "create table t(name text); insert into t values (printf('%.*c',1048576,'x'));");

    EXPECT_EQ(Lines(Browse({Path("long.db"), "--list", "t"}).output).back(),
              std::string(1048576, 'x'));
}

TEST_F(Formats, ListsAreFoundInAnyCase) {
    EXPECT_EQ(Lines(Browse({types_, "--list", "PART"}).output).front(), "part (3)");
}

TEST_F(Formats, SeveralListsFollowEachOtherEachOnce) {
    auto const output =
        Browse({types_, "--list", "val", "--list", "part", "--list", "VAL", "--limit", "1"}).output;

    EXPECT_EQ(output, "val (24)\n"
                      "name  v\n"
                      "────  ────\n"
                      "null  NULL\n"
                      "… 23 more\n"
                      "\n"
                      "part (3)\n"
                      "id  name\n"
                      "──  ────\n"
                      " 1  bolt\n"
                      "… 2 more\n");
}

TEST_F(Formats, SeveralListsAreOneJsonObject) {
    auto const json =
        Json::parse(Browse({types_, "--list", "part", "--list", "val", "--format", "json"}).output);

    EXPECT_EQ(json["part"].size(), 3U);
    EXPECT_EQ(json["val"].size(), 24U);
}

TEST_F(Formats, SeveralListsDoNotFitInCsv) {
    auto const ending = Browse({types_, "--list", "part", "--list", "val", "--format", "csv"});

    EXPECT_EQ(ending.status, 2);
    EXPECT_EQ(ending.output, "");
    EXPECT_EQ(Lines(ending.errors).size(), 1U);
}

TEST_F(Formats, TheLimitCutsAListInEachFormat) {
    EXPECT_EQ(
        Json::parse(Browse({types_, "--list", "part", "--limit", "2", "--format", "json"}).output)
            .size(),
        2U);
    EXPECT_EQ(Lines(Browse({types_, "--list", "part", "--limit", "2", "--format", "jsonl"}).output)
                  .size(),
              2U);
    EXPECT_EQ(
        Lines(Browse({types_, "--list", "part", "--limit", "2", "--format", "csv"}).output).size(),
        3U);
}

TEST_F(Formats, AListInOnesOwnFolderIsFoundThere) {
    EXPECT_EQ(Lines(Browse({types_, "--folder", "a/b=part", "--list", "part"}).output).size(), 6U);
}

TEST_F(Formats, AListOutsideOnesOwnFoldersIsFoundAllTheSame) {
    EXPECT_EQ(Lines(Browse({types_, "--folder", "a=val", "--list", "part"}).output).size(), 6U);
}

TEST_F(Formats, NamesThatNeedQuotingAreShownAsTheyAre) {
    Sql("names.db",
        "create table \"select\"(\"order by\" int, \"a\"\"b\" int);"
        "insert into \"select\" values (1,2);"
        "create table \"two words, [x]'\"(a); insert into \"two words, [x]'\" values (3);");

    EXPECT_EQ(Browse({Path("names.db"), "--list", "select", "--format", "csv"}).output,
              "order by,\"a\"\"b\"\r\n1,2\r\n");
    EXPECT_EQ(Browse({Path("names.db"), "--list", "two words, [x]'", "--format", "csv"}).output,
              "a\r\n3\r\n");
}

} // namespace
