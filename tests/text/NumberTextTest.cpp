// SPDX-License-Identifier: MIT
#include "text/NumberText.h"

#include <gtest/gtest.h>

#include <bit>
#include <cstdlib>
#include <limits>
#include <random>

namespace {

std::string Real(double number) {
    std::string out;
    zbtext::AppendReal(out, number);
    return out;
}

std::string Integer(std::int64_t number) {
    std::string out;
    zbtext::AppendInteger(out, number);
    return out;
}

TEST(NumberText, WritesIntegersInFull) {
    EXPECT_EQ(Integer(0), "0");
    EXPECT_EQ(Integer(9007199254740993), "9007199254740993");
    EXPECT_EQ(Integer(std::numeric_limits<std::int64_t>::max()), "9223372036854775807");
    EXPECT_EQ(Integer(std::numeric_limits<std::int64_t>::min()), "-9223372036854775808");
}

TEST(NumberText, ARealWithoutFractionKeepsItsPoint) {
    EXPECT_EQ(Real(0.0), "0.0");
    EXPECT_EQ(Real(1.0), "1.0");
    EXPECT_EQ(Real(-100.0), "-100.0");
    EXPECT_EQ(Real(123456789012345.0), "123456789012345.0");
}

TEST(NumberText, WritesTheShortestDigits) {
    EXPECT_EQ(Real(0.1), "0.1");
    EXPECT_EQ(Real(12.5), "12.5");
    EXPECT_EQ(Real(3.14159), "3.14159");
    EXPECT_EQ(Real(-0.25), "-0.25");
}

TEST(NumberText, WritesAsManyDigitsAsItTakesToReadTheNumberBack) {
    EXPECT_EQ(Real(0.1 + 0.2), "0.30000000000000004");
    EXPECT_EQ(Real(1.0 / 3.0), "0.3333333333333333");
}

TEST(NumberText, LargeNumbersHaveAnExponent) {
    EXPECT_EQ(Real(1e14), "100000000000000.0");
    EXPECT_EQ(Real(1e15), "1.0e+15");
    EXPECT_EQ(Real(1.5e20), "1.5e+20");
    EXPECT_EQ(Real(-1e100), "-1.0e+100");
}

TEST(NumberText, SmallNumbersHaveAnExponent) {
    EXPECT_EQ(Real(0.0001), "0.0001");
    EXPECT_EQ(Real(0.00001), "1.0e-05");
    EXPECT_EQ(Real(-2.5e-7), "-2.5e-07");
}

TEST(NumberText, TheEndsOfTheRangeAreExact) {
    EXPECT_EQ(std::strtod(Real(std::numeric_limits<double>::max()).c_str(), nullptr),
              std::numeric_limits<double>::max());
    EXPECT_EQ(Real(std::numeric_limits<double>::denorm_min()), "5.0e-324");
}

TEST(NumberText, MinusZeroKeepsItsSign) {
    EXPECT_EQ(Real(-0.0), "-0.0");
}

TEST(NumberText, InfinityAndNoNumberHaveNames) {
    EXPECT_EQ(Real(std::numeric_limits<double>::infinity()), "Inf");
    EXPECT_EQ(Real(-std::numeric_limits<double>::infinity()), "-Inf");
    EXPECT_EQ(Real(std::numeric_limits<double>::quiet_NaN()), "NaN");
}

TEST(NumberText, AnyRealReadsBackBitForBit) {
    std::mt19937_64 random(20240117);
    for (int i = 0; i < 20000; ++i) {
        auto const bits = random();
        auto const number = std::bit_cast<double>(bits);
        if (number != number || number - number != 0)
            continue;
        auto const text = Real(number);
        ASSERT_EQ(std::bit_cast<std::uint64_t>(std::strtod(text.c_str(), nullptr)), bits) << text;
        ASSERT_NE(text.find('.'), std::string::npos) << text;
    }
}

} // namespace
