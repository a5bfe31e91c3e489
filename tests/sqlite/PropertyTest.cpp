// SPDX-License-Identifier: MIT
//! \file
//! Reading values through data properties.
#include "SqliteTestSupport.h"

#include <zbBrowserView/sqlite/DataCtrl.h>

#include <gmock/gmock.h>

#include <limits>

namespace zbtest {

namespace {

using zbsqlite::Database;
using zbsqlite::DataCtrl;
using zbsqlite::Property;
using zbsqlite::Source;

//! One value in a table of its own, and what the readers say about it.
class OneValue {
public:
    explicit OneValue(std::string const& literal)
        : control_(Database(folder_.Make("CREATE TABLE t(v); INSERT INTO t VALUES (" + literal +
                                         "); CREATE TABLE u(v); INSERT INTO u VALUES (1)")))
        , item_(ItemsOf(Find(control_, "t")).at(0))
        , property_(Find(control_, "t").FindDataProperty("v")) {}

    template <class Out>
    std::string Read(bool (Property::*reader)(zbIBrowserDataItem*, zbIBrowserDataItem*, Out&)) {
        Out out{};
        if (!(property_->*reader)(item_, nullptr, out))
            return "false";
        if constexpr (std::is_same_v<Out, zbString>)
            return std::string(std::string_view(out));
        else
            return testing::PrintToString(out);
    }

    std::string Integer() { return Read(&Property::GetInteger); }
    std::string Unsigned() { return Read(&Property::GetUnsigned); }
    std::string Boolean() { return Read(&Property::GetBoolean); }
    std::string Double() { return Read(&Property::GetDouble); }
    std::string String() { return Read(&Property::GetString); }
    std::string Display() { return Read(&Property::GetDisplayText); }

    std::string Pointer() {
        char const* const text = property_->GetTextPointer(item_, nullptr);
        return text != nullptr ? text : "(null)";
    }

    zbVariant Variant() {
        zbVariant out;
        control_.SetCurrentDataItem(item_);
        EXPECT_TRUE(property_->GetVariant(out));
        return out;
    }

    TempFolder folder_;
    DataCtrl control_;
    zbIBrowserDataItem* item_;
    Property* property_;
};

} // namespace

TEST(PropertyTest, ReadsAnIntegerInEveryForm) {
    OneValue value("42");
    EXPECT_EQ(value.Integer(), "42");
    EXPECT_EQ(value.Unsigned(), "42");
    EXPECT_EQ(value.Boolean(), "true");
    EXPECT_EQ(value.Double(), "42");
    EXPECT_EQ(value.String(), "42");
    EXPECT_EQ(value.Display(), "42");
    EXPECT_EQ(value.Pointer(), "42");
}

TEST(PropertyTest, ReadsAWholeRealAsAnInteger) {
    OneValue value("3.0");
    EXPECT_EQ(value.Integer(), "3");
    EXPECT_EQ(value.String(), "3.0");
    EXPECT_EQ(value.Double(), "3");
}

TEST(PropertyTest, ReadsNoIntegerFromAFraction) {
    OneValue value("3.25");
    EXPECT_EQ(value.Integer(), "false");
    EXPECT_EQ(value.Unsigned(), "false");
    EXPECT_EQ(value.Double(), "3.25");
    EXPECT_EQ(value.Boolean(), "true");
}

TEST(PropertyTest, ReadsNumbersThatAreStoredAsText) {
    OneValue value("' +17 '");
    EXPECT_EQ(value.Integer(), "17");
    EXPECT_EQ(value.Double(), "17");
    EXPECT_EQ(value.String(), " +17 ");
    EXPECT_EQ(OneValue("'1e3'").Integer(), "1000");
    EXPECT_EQ(OneValue("'-0.5'").Double(), "-0.5");
}

TEST(PropertyTest, ReadsNoNumberFromOtherText) {
    for (char const* const text : {"'12 mm'", "''", "' '", "'inf'", "'nan'", "'+-1'", "'0x10'"}) {
        OneValue value(text);
        EXPECT_EQ(value.Integer(), "false") << text;
        EXPECT_EQ(value.Double(), "false") << text;
        EXPECT_EQ(value.Boolean(), "false") << text;
    }
}

TEST(PropertyTest, ReadsNoIntegerThatDoesNotFit) {
    EXPECT_EQ(OneValue("2147483647").Integer(), "2147483647");
    EXPECT_EQ(OneValue("2147483648").Integer(), "false");
    EXPECT_EQ(OneValue("2147483648").Unsigned(), "2147483648");
    EXPECT_EQ(OneValue("-1").Unsigned(), "false");
    EXPECT_EQ(OneValue("1e300").Integer(), "false");
    EXPECT_EQ(OneValue("9e999").Integer(), "false");
}

TEST(PropertyTest, ReadsTruthValuesFromNumbersAndWords) {
    EXPECT_EQ(OneValue("0").Boolean(), "false");
    bool out = true;
    OneValue zero("0");
    EXPECT_TRUE(zero.property_->GetBoolean(zero.item_, nullptr, out));
    EXPECT_FALSE(out);
    EXPECT_EQ(OneValue("'TRUE'").Boolean(), "true");
    OneValue no("'False'");
    out = true;
    EXPECT_TRUE(no.property_->GetBoolean(no.item_, nullptr, out));
    EXPECT_FALSE(out);
    OneValue word("'yes'");
    EXPECT_FALSE(word.property_->GetBoolean(word.item_, nullptr, out));
}

TEST(PropertyTest, AnswersFalseForNullAndLeavesTheOutput) {
    OneValue value("NULL");
    int integer = 7;
    zbString text("before");
    EXPECT_FALSE(value.property_->GetInteger(value.item_, nullptr, integer));
    EXPECT_FALSE(value.property_->GetString(value.item_, nullptr, text));
    EXPECT_FALSE(value.property_->GetDisplayText(value.item_, nullptr, text));
    EXPECT_EQ(integer, 7);
    EXPECT_TRUE(text == "before");
    EXPECT_EQ(value.Pointer(), "(null)");
    EXPECT_EQ(value.Double(), "false");
    EXPECT_EQ(value.Boolean(), "false");
    value.control_.SetCurrentDataItem(value.item_);
    zbVariant variant;
    EXPECT_FALSE(value.property_->GetVariant(variant));
}

TEST(PropertyTest, AnswersFalseForAnItemOfAnotherSource) {
    OneValue value("5");
    value.item_ = ItemsOf(Find(value.control_, "u")).at(0);
    EXPECT_EQ(value.Integer(), "false");
    EXPECT_EQ(value.String(), "false");
    EXPECT_EQ(Describe(value.property_->GetValue(value.item_)), "null");
    value.item_ = nullptr;
    EXPECT_EQ(value.Integer(), "false");
}

TEST(PropertyTest, GivesTextByteForByte) {
    OneValue value("CAST(x'61ff0062' AS TEXT)");
    EXPECT_EQ(value.String(), std::string("a\xff\0b", 4));
    EXPECT_EQ(value.Display(), std::string("a\xff\0b", 4));
}

TEST(PropertyTest, HandsOutTextWithoutACopy) {
    OneValue value("'words'");
    EXPECT_EQ(static_cast<void const*>(value.property_->GetTextPointer(value.item_, nullptr)),
              value.property_->GetValue(value.item_).bytes.data());
}

TEST(PropertyTest, GivesABlobsBytesAndShowsThemAsALiteral) {
    OneValue value("x'00ff41'");
    EXPECT_EQ(value.String(), std::string("\0\xff\x41", 3));
    EXPECT_EQ(value.Display(), "x'00ff41'");
    EXPECT_EQ(value.Pointer(), "(null)");
    EXPECT_EQ(value.Integer(), "false");
}

TEST(PropertyTest, ShowsTheBeginningOfALongBlob) {
    EXPECT_EQ(OneValue("zeroblob(32)").Display(), "x'" + std::string(64, '0') + "'");
    EXPECT_EQ(OneValue("zeroblob(33)").Display(), "x'" + std::string(32, '0') + "...' (33 bytes)");
}

TEST(PropertyTest, WritesRealsAsSqlDoes) {
    for (char const* const real : {"0.1", "1e100", "-2.5e-7", "9e999", "123456789.125", "1e15"}) {
        OneValue value(real);
        OtherProgram sql(value.folder_ / "test.db");
        EXPECT_EQ("text " + value.String(), sql.Query("SELECT CAST(v AS TEXT) FROM t").at(0));
    }
}

TEST(PropertyTest, GivesVariantsOfTheItemOnWhichTheControlStands) {
    EXPECT_EQ(OneValue("5").Variant().GetKind(), zbVariant::Integer);
    EXPECT_EQ(OneValue("5").Variant().GetInteger(), 5);
    EXPECT_EQ(OneValue("5000000000").Variant().GetKind(), zbVariant::Long64);
    EXPECT_EQ(OneValue("5000000000").Variant().GetLong64(), 5000000000);
    EXPECT_EQ(OneValue("1.0").Variant().GetKind(), zbVariant::Double);
    EXPECT_EQ(OneValue("1.0").Variant().GetDouble(), 1.0);
    EXPECT_TRUE(OneValue("'x'").Variant().GetString() == "x");
    EXPECT_EQ(OneValue("x'00ff'").Variant().GetString().length(), 2U);
}

TEST(PropertyTest, GivesNoVariantWithoutAnItem) {
    OneValue value("5");
    zbVariant out;
    EXPECT_FALSE(value.property_->GetVariant(out));
    value.control_.SetCurrentDataItem(ItemsOf(Find(value.control_, "u")).at(0));
    EXPECT_FALSE(value.property_->GetVariant(out));
}

TEST(PropertyTest, WritesNothing) {
    OneValue value("5");
    value.control_.SetCurrentDataItem(value.item_);
    EXPECT_FALSE(value.property_->SetVariant(6));
    Find(value.control_, "t").SetDataPropertyInteger(value.item_, value.property_, 6);
    Find(value.control_, "t").SetDataPropertyBoolean(value.item_, value.property_, true);
    EXPECT_EQ(value.Integer(), "5");
}

TEST(PropertyTest, KnowsItsDeclaration) {
    TempFolder const folder;
    DataCtrl control{Database(folder.Make("CREATE TABLE t(a, Mass REAL NOT NULL)"))};
    Property const& mass = Find(control, "t").Properties()[1];
    EXPECT_EQ(mass.Name(), "Mass");
    EXPECT_EQ(mass.Index(), 1U);
    EXPECT_EQ(mass.Declaration().declaredType, "REAL");
    EXPECT_EQ(&mass.GetSource(), &Find(control, "t"));
}

TEST(PropertyTest, LeavesHiddenColumnsOut) {
    TempFolder const folder;
    DataCtrl control{Database(folder.Make("CREATE VIRTUAL TABLE t USING fts5(a, b)"))};
    EXPECT_EQ(Find(control, "t").Properties().size(), 2U);
    EXPECT_EQ(Find(control, "t").FindDataProperty("rank"), nullptr);
}

} // namespace zbtest
