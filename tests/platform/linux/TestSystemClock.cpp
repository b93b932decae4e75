#include "platform/linux/SystemClock.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace linux {
namespace {

TEST(SystemClock, TodayIsADate) {
    const SystemClock clock;

    const ports::Date today = clock.Today();

    EXPECT_GE(today.year, 2024);
    EXPECT_TRUE(today.month >= 1 && today.month <= 12);
    EXPECT_TRUE(today.day >= 1 && today.day <= 31);
}

TEST(SystemClock, MillisecondsNeverRunBackwards) {
    const SystemClock clock;
    std::int64_t last = clock.Milliseconds();

    for (int i = 0; i < 10000; ++i) {
        const std::int64_t now = clock.Milliseconds();
        ASSERT_GE(now, last);
        last = now;
    }
}

TEST(RandomChance, NumbersFillTheRangeBelowOne) {
    RandomChance chance;
    double lowest = 1;
    double highest = 0;

    for (int i = 0; i < 100000; ++i) {
        const double number = chance.Below1();
        lowest = std::min(lowest, number);
        highest = std::max(highest, number);
    }

    EXPECT_GE(lowest, 0.0);
    EXPECT_LT(lowest, 0.01);
    EXPECT_GT(highest, 0.99);
    EXPECT_LT(highest, 1.0);
}

TEST(RandomChance, TwoStartsDiffer) {
    RandomChance one;
    RandomChance other;

    EXPECT_NE(one.Below1(), other.Below1());
}

}  // namespace
}  // namespace linux
