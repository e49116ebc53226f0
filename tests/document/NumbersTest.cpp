#include "document/Numbers.h"

#include <gtest/gtest.h>

#include <cmath>

#include "document/RuntimeFailure.h"

namespace tolva {
namespace {

TEST(NumberRule, HalvesGoToTheEvenNumber) {
    EXPECT_EQ(ToInt16("2.5"), 2);
    EXPECT_EQ(ToInt16("3.5"), 4);
    EXPECT_EQ(ToInt16("-2.5"), -2);
    EXPECT_EQ(ToInt16("-3.5"), -4);
    EXPECT_EQ(ToInt16("0.5"), 0);
    EXPECT_EQ(ToInt16("1.5"), 2);
    EXPECT_EQ(ToInt16("2.51"), 3);
    EXPECT_EQ(RealToInt16(1463.75 / 36.59375), 40);
}

TEST(NumberRule, SignAndFractionAreOptional) {
    EXPECT_EQ(ToInt16("12"), 12);
    EXPECT_EQ(ToInt16("+12"), 12);
    EXPECT_EQ(ToInt16("-12"), -12);
    EXPECT_EQ(ToInt16("12."), 12);
    EXPECT_EQ(ToInt16(".6"), 1);
    EXPECT_EQ(ToInt16(" 7 "), 7);
}

TEST(NumberRule, SixteenBitRange) {
    EXPECT_EQ(ToInt16("32767"), 32767);
    EXPECT_EQ(ToInt16("-32768"), -32768);
    EXPECT_THROW(ToInt16("32768"), RuntimeFailure);
    EXPECT_THROW(ToInt16("-32769"), RuntimeFailure);
    EXPECT_THROW(ToInt16("32767.5"), RuntimeFailure);  // rounds to 32768
    EXPECT_EQ(ToInt16("32766.5"), 32766);
}

TEST(NumberRule, ThirtyTwoBitRange) {
    EXPECT_EQ(ToInt32("65535"), 65535);
    EXPECT_EQ(ToInt32("2147483647"), 2147483647);
    EXPECT_EQ(ToInt32("-2147483648"), -2147483647 - 1);
    EXPECT_THROW(ToInt32("2147483648"), RuntimeFailure);
}

TEST(NumberRule, TextThatIsNoNumberIsARunTimeFailure) {
    for (const char* bad : {"", " ", "abc", "1a", "1.2.3", "--1", "+", ".", "1e3", "0x10", "1 2"}) {
        EXPECT_FALSE(IsNumeric(bad)) << bad;
        EXPECT_THROW(ToInt16(bad), RuntimeFailure) << bad;
    }
    EXPECT_TRUE(IsNumeric("-0.25"));
}

TEST(NumberRule, IntegersBecomePlainDecimalText) {
    EXPECT_EQ(IntToText(0), "0");
    EXPECT_EQ(IntToText(-17), "-17");
    EXPECT_EQ(IntToText(65535), "65535");
}

TEST(NumberRule, RoundHalfEvenOfReals) {
    EXPECT_EQ(RoundHalfEven(105.5), 106);  // 5855 / 55 = 106.45 -> 106 anyway
    EXPECT_EQ(RoundHalfEven(106.5), 106);
    EXPECT_EQ(RoundHalfEven(-0.5), 0);
    EXPECT_EQ(RoundHalfEven(17.5), 18);
}

TEST(NumberRule, SaturatingRoundHoldsToTheIntRange) {
    EXPECT_EQ(RoundToIntSaturating(2.5), 2);
    EXPECT_EQ(RoundToIntSaturating(-3.5), -4);
    EXPECT_EQ(RoundToIntSaturating(1e12), 2147483647);
    EXPECT_EQ(RoundToIntSaturating(-1e12), -2147483647 - 1);
    EXPECT_EQ(RoundToIntSaturating(std::nan("")), 0);
}

}  // namespace
}  // namespace tolva
