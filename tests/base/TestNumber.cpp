#include "base/Number.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace base {
namespace {

TEST(Number, HalvesGoToTheEvenNeighbour) {
    EXPECT_EQ(RoundHalfEven(0.5), 0);
    EXPECT_EQ(RoundHalfEven(1.5), 2);
    EXPECT_EQ(RoundHalfEven(2.5), 2);
    EXPECT_EQ(RoundHalfEven(-0.5), 0);
    EXPECT_EQ(RoundHalfEven(-1.5), -2);
    EXPECT_EQ(RoundHalfEven(-2.5), -2);
    EXPECT_EQ(RoundHalfEven(2.4999), 2);
    EXPECT_EQ(RoundHalfEven(2.5001), 3);
    EXPECT_EQ(RoundHalfEven(-7.9), -8);
}

TEST(Number, RoundingNeverFails) {
    EXPECT_EQ(RoundHalfEven(std::nan("")), 0);
    EXPECT_EQ(RoundHalfEven(1e300), std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(RoundHalfEven(-std::numeric_limits<double>::infinity()),
              std::numeric_limits<std::int64_t>::min());
}

TEST(Number, ValReadsTheNumberAtTheFront) {
    EXPECT_EQ(Val("12abc"), 12);
    EXPECT_EQ(Val("  12"), 12);
    EXPECT_EQ(Val("-3.5x"), -3.5);
    EXPECT_EQ(Val("+7"), 7);
    EXPECT_EQ(Val(".5"), 0.5);
    EXPECT_EQ(Val("abc"), 0);
    EXPECT_EQ(Val(""), 0);
    EXPECT_EQ(Val("-"), 0);
    EXPECT_EQ(Val("+-7"), 0);
    EXPECT_EQ(Val("nan"), 0);
    EXPECT_EQ(Val("inf"), 0);
    EXPECT_EQ(Val("1e999"), 0);
}

TEST(Number, WholeNumbersOfTextsStayInsideTheirRange) {
    constexpr auto kLeast = std::numeric_limits<std::int64_t>::min();
    constexpr auto kMost = std::numeric_limits<std::int64_t>::max();
    EXPECT_EQ(WholeVal("20260309"), 20260309);
    EXPECT_EQ(WholeVal("20260309123456"), 20260309123456);
    EXPECT_EQ(WholeVal("2.5 and more"), 2);
    EXPECT_EQ(WholeVal("often"), 0);
    EXPECT_EQ(WholeVal("9223372036854775807"), kMost);
    EXPECT_EQ(WholeVal("1e300"), kMost);
    EXPECT_EQ(WholeVal("-1e300"), kLeast);
    EXPECT_EQ(Saturated<std::int32_t>(20260309), 20260309);
    EXPECT_EQ(Saturated<std::int32_t>(20260309123456), 2147483647);
    EXPECT_EQ(Saturated<std::int32_t>(kLeast), -2147483648);
    EXPECT_EQ(Saturated<std::int16_t>(40000), 32767);
    EXPECT_EQ(Saturated<std::int64_t>(kMost), kMost);
    EXPECT_EQ(OneMore(-1), 0);
    EXPECT_EQ(OneMore(kMost), kMost);
}

TEST(Number, ToNumberTakesTheWholeTextOrNothing) {
    EXPECT_EQ(ToNumber(" 12 "), 12.0);
    EXPECT_EQ(ToNumber("-1.25"), -1.25);
    EXPECT_EQ(ToNumber("+3"), 3.0);
    EXPECT_FALSE(ToNumber("12abc").has_value());
    EXPECT_FALSE(ToNumber("").has_value());
    EXPECT_FALSE(ToNumber("1 2").has_value());
    EXPECT_FALSE(ToNumber("infinity").has_value());
    EXPECT_FALSE(ToNumber("\t1").has_value());
}

TEST(Number, WholeNumbersAreWrittenPlainly) {
    EXPECT_EQ(ToText(0), "0");
    EXPECT_EQ(ToText(-12), "-12");
    EXPECT_EQ(ToText(std::numeric_limits<std::int64_t>::min()), "-9223372036854775808");
}

TEST(Number, SinglesAreWrittenWithAsFewDigitsAsTellThemApart) {
    EXPECT_EQ(SingleToText(750), "750");
    EXPECT_EQ(SingleToText(10005), "10005");
    EXPECT_EQ(SingleToText(0.5), "0.5");
    EXPECT_EQ(SingleToText(0.1), "0.1");
    EXPECT_EQ(SingleToText(-2.25), "-2.25");
    EXPECT_EQ(SingleToText(0), "0");
}

TEST(Number, ShortNumbersArePaddedWithZeros) {
    EXPECT_EQ(Padded(7, 2), "07");
    EXPECT_EQ(Padded(123, 2), "123");
    EXPECT_EQ(Padded(-7, 2), "-07");
    EXPECT_EQ(Padded(0, 0), "0");
    EXPECT_EQ(Padded(5, -1), "5");
}

TEST(Number, ALengthIsShownInMinutesAndSeconds) {
    EXPECT_EQ(MinutesAndSeconds(0), "0:00");
    EXPECT_EQ(MinutesAndSeconds(59), "0:59");
    EXPECT_EQ(MinutesAndSeconds(60), "1:00");
    EXPECT_EQ(MinutesAndSeconds(3671), "61:11");
    EXPECT_EQ(MinutesAndSeconds(-1), "0:-01");
}

TEST(Number, AFlagIsAWord) {
    EXPECT_EQ(FlagText(true), "True");
    EXPECT_EQ(FlagText(false), "False");
}

}  // namespace
}  // namespace base
