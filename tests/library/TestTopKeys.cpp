#include "library/TopKeys.h"

#include <gtest/gtest.h>

#include <array>
#include <random>
#include <string>
#include <vector>

#include "base/Number.h"
#include "controls/ListBox.h"

namespace {

using library::TopKeys;
using Texts = std::vector<std::string>;

TEST(TopKeys, AKeyIsTheCountAGapAndTheId) {
    TopKeys top(20);

    top.Offer("7", "12");

    EXPECT_EQ(top.Keys(), (Texts{"00007         12"}));
    EXPECT_EQ(TopKeys::SongIdOf("00007         12"), "12");
}

TEST(TopKeys, SongsThatWereNeverPlayedMakeNone) {
    TopKeys top(20);

    top.Offer("", "1");
    top.Offer("0", "2");
    top.Offer("-3", "3");
    top.Offer("often", "4");

    EXPECT_TRUE(top.Keys().empty());
}

TEST(TopKeys, CountsOfSixDigitsStandAsTextsDo) {
    TopKeys top(2);

    for (const char* count : {"99999", "100000", "2"})
        top.Offer(count, "1");

    EXPECT_EQ(top.Keys(), (Texts{"99999         1", "100000         1"}));
}

TEST(TopKeys, ACountBeyond64BitsIsTheLargest) {
    TopKeys top(1);

    for (const char* count : {"9223372036854775806", "99999999999999999999", "3"})
        top.Offer(count, "1");

    EXPECT_EQ(top.Keys(), (Texts{"9223372036854775807         1"}));
}

TEST(TopKeys, AreTheLastOfASortedListOfAllKeys) {
    static constexpr std::array kCounts = {"",  "0",     "1",      "2",      "10",      " 2",
                                           "3", "99999", "100000", "123456", "1000000", "2.5"};
    std::mt19937 random(11);
    for (int round = 0; round < 200; ++round) {
        TopKeys top(20);
        controls::ListBox all("lstTop20", controls::Sorted::Yes);
        for (auto songs = random() % 60; songs > 0; --songs) {
            const std::string count = kCounts[random() % kCounts.size()];
            const std::string id = std::to_string(random() % 300);
            top.Offer(count, id);
            const auto played = static_cast<std::int64_t>(base::Val(count));
            if (played > 0) all.AddItem(base::Padded(played, 5) + "         " + id);
        }
        Texts expected;
        for (int row = all.ListCount() - 1; row >= 0 && expected.size() < 20; --row)
            expected.emplace_back(all.List(row));

        ASSERT_EQ(top.Keys(), expected) << round;
    }
}

}  // namespace
