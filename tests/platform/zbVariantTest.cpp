// SPDX-License-Identifier: MIT
//! \file
//! zbVariant and ToText.
#include <zbBrowserView/platform/zbVariant.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string>
#include <type_traits>

namespace {

static_assert(!std::is_constructible_v<zbVariant, int*>, "a pointer must not become a bool");
static_assert(std::is_nothrow_move_constructible_v<zbVariant>);

zbVariant OfKind(int kind) {
    zbVariant value;
    value.SetKind(kind);
    return value;
}

TEST(zbVariantTest, ANewVariantHasKindZero) {
    EXPECT_EQ(zbVariant().GetKind(), 0);
}

TEST(zbVariantTest, EachTypeHasItsKind) {
    EXPECT_EQ(zbVariant(true).GetKind(), 1);
    EXPECT_EQ(zbVariant(7).GetKind(), 3);
    EXPECT_EQ(zbVariant(7L).GetKind(), 4);
    EXPECT_EQ(zbVariant(7LL).GetKind(), 4);
    EXPECT_EQ(zbVariant(std::int64_t{7}).GetKind(), 4);
    EXPECT_EQ(zbVariant(0.5).GetKind(), 5);
    EXPECT_EQ(zbVariant("text").GetKind(), 7);
    EXPECT_EQ(zbVariant(zbString("text")).GetKind(), 7);
}

TEST(zbVariantTest, EachGetterGivesTheValueOfItsKind) {
    EXPECT_TRUE(zbVariant(true).GetBoolean());
    EXPECT_EQ(zbVariant(-7).GetInteger(), -7);
    EXPECT_EQ(zbVariant(1LL << 40).GetLong64(), 1LL << 40);
    EXPECT_EQ(zbVariant(0.5).GetDouble(), 0.5);
    EXPECT_EQ(zbVariant("text").GetString(), "text");
}

TEST(zbVariantTest, ANullTextIsTheEmptyText) {
    char const* const none = nullptr;
    zbVariant const value(none);

    EXPECT_EQ(value.GetKind(), 7);
    EXPECT_EQ(value.GetString(), "");
}

TEST(zbVariantTest, AssigningAValueSetsTheKind) {
    zbVariant value("text");

    value = 5;

    EXPECT_EQ(value.GetKind(), 3);
    EXPECT_EQ(value.GetInteger(), 5);
    EXPECT_EQ(value.GetString(), "");
    value = zbString("again");
    EXPECT_EQ(value.GetKind(), 7);
    EXPECT_EQ(value.GetInteger(), 0);
    value = false;
    EXPECT_EQ(value.GetKind(), 1);
}

TEST(zbVariantTest, GettersOfOtherKindsAreNeutral) {
    for (zbVariant const& value :
         {zbVariant(), zbVariant(7LL), zbVariant("1"), zbVariant(1.0), OfKind(2), OfKind(8)}) {
        EXPECT_FALSE(value.GetBoolean()) << value.GetKind();
        EXPECT_EQ(value.GetInteger(), 0) << value.GetKind();
    }
    for (zbVariant const& value : {zbVariant(), zbVariant(true), zbVariant(7), OfKind(8)}) {
        EXPECT_EQ(value.GetLong64(), 0) << value.GetKind();
        EXPECT_EQ(value.GetDouble(), 0.0) << value.GetKind();
        EXPECT_EQ(value.GetString(), "") << value.GetKind();
    }
}

TEST(zbVariantTest, AnyKindCanBeSet) {
    for (int const kind : {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, -1}) {
        EXPECT_EQ(OfKind(kind).GetKind(), kind);
    }
}

TEST(zbVariantTest, SettingAnotherKindMakesTheValueNeutral) {
    zbVariant value(-1);

    value.SetKind(zbVariant::Long64);

    EXPECT_EQ(value.GetLong64(), 0);
    value = "text";
    value.SetKind(zbVariant::Boolean);
    EXPECT_FALSE(value.GetBoolean());
    value.SetKind(zbVariant::String);
    EXPECT_EQ(value.GetString(), "");
    value = 7LL;
    value.SetKind(zbVariant::Double);
    EXPECT_EQ(value.GetDouble(), 0.0);
    value = 7LL;
    value.SetKind(zbVariant::Integer);
    EXPECT_EQ(value.GetInteger(), 0);
}

TEST(zbVariantTest, SettingTheSameKindKeepsTheValue) {
    zbVariant text("text");

    text.SetKind(7);

    EXPECT_EQ(text.GetString(), "text");
}

TEST(zbVariantTest, BothDoubleKindsHoldOneValue) {
    zbVariant value(2.5);

    value.SetKind(6);

    EXPECT_EQ(value.GetKind(), 6);
    EXPECT_EQ(value.GetDouble(), 2.5);
}

TEST(zbVariantTest, ACopyIsIndependentOfItsOriginal) {
    zbVariant original("text");
    zbVariant const copy(original);

    original = 1;

    EXPECT_EQ(copy.GetKind(), 7);
    EXPECT_EQ(copy.GetString(), "text");
}

TEST(zbVariantTest, MovingLeavesKindZero) {
    zbVariant text("text");
    zbVariant number(7);

    zbVariant const moved(std::move(text));
    zbVariant assigned;
    assigned = std::move(number);

    EXPECT_EQ(moved.GetString(), "text");
    EXPECT_EQ(assigned.GetInteger(), 7);
    EXPECT_EQ(text.GetKind(), 0);   // NOLINT(bugprone-use-after-move): this is what is tested
    EXPECT_EQ(number.GetKind(), 0); // NOLINT(bugprone-use-after-move): this is what is tested
}

TEST(zbVariantTest, MovingAVariantToItselfKeepsIt) {
    zbVariant value("text");
    zbVariant& same = value;

    value = std::move(same);

    EXPECT_EQ(value.GetKind(), 7);
    EXPECT_EQ(value.GetString(), "text");
}

TEST(ToTextTest, ABooleanIsAWord) {
    EXPECT_EQ(ToText(true), "true");
    EXPECT_EQ(ToText(false), "false");
}

TEST(ToTextTest, AnIntegerIsDecimal) {
    EXPECT_EQ(ToText(0), "0");
    EXPECT_EQ(ToText(std::numeric_limits<int>::min()), "-2147483648");
}

TEST(ToTextTest, OnlyTheLow32BitsOfALongIntegerAreShown) {
    EXPECT_EQ(ToText(42LL), "42");
    EXPECT_EQ(ToText(4294967297LL), "1");
    EXPECT_EQ(ToText(4294967295LL), "-1");
    EXPECT_EQ(ToText(2147483648LL), "-2147483648");
}

TEST(ToTextTest, ADoubleHasSixDigitsAfterThePoint) {
    EXPECT_EQ(ToText(0.5), "0.500000");
    EXPECT_EQ(ToText(-1e-9), "-0.000000");
    zbVariant six(0.1);
    six.SetKind(6);
    EXPECT_EQ(ToText(six), "0.100000");
}

TEST(ToTextTest, TheGreatestDoubleIsShownWhole) {
    zbString const text = ToText(std::numeric_limits<double>::lowest());

    EXPECT_EQ(text.length(), 317U);
    EXPECT_EQ(std::string_view(text).substr(0, 8), "-1797693");
    EXPECT_EQ(std::string_view(text).substr(310), ".000000");
}

TEST(ToTextTest, AStringStandsAsItIs) {
    zbString const bytes("a\0%d", 4);

    EXPECT_EQ(ToText(bytes), bytes);
    EXPECT_EQ(ToText(""), "");
}

TEST(ToTextTest, EveryOtherKindIsEmpty) {
    for (int const kind : {0, 2, 8, 9, -1}) {
        EXPECT_EQ(ToText(OfKind(kind)), "") << kind;
    }
}

} // namespace
