#include "platform/linux/NameSorter.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "base/Text.h"

namespace linux {
namespace {

using Names = std::vector<std::string>;

Names Shuffled(std::size_t count) {
    Names names;
    for (std::size_t i = 0; i < count; ++i)
        names.push_back((i % 3 == 0 ? "Song " : "song ") + std::to_string(i));
    std::shuffle(names.begin(), names.end(), std::mt19937(7));
    return names;
}

TEST(NameSorter, NoNamesAreInOrder) {
    const ports::MayGoOn never_asked;
    Pace pace(never_asked);

    EXPECT_EQ(NameSorter().Sorted(pace), Names());
}

TEST(NameSorter, AnyNumberOfNamesComesOutInTheOrderOfASortedList) {
    for (const std::size_t count : {1U, 2047U, 2048U, 2049U, 4096U, 20'001U}) {
        const ports::MayGoOn never_asked;
        Pace pace(never_asked);
        NameSorter sorter;
        Names wanted = Shuffled(count);
        for (const std::string& name : wanted)
            sorter.Add(name);
        std::sort(wanted.begin(), wanted.end(), [](const std::string& left, const std::string& right) {
            return base::CompareForSort(left, right) < 0;
        });

        EXPECT_EQ(sorter.Sorted(pace), wanted) << count;
    }
}

TEST(NameSorter, PuttingManyRunsTogetherCanBeGivenUp) {
    int questions = 0;
    const ports::MayGoOn give_up_soon = [&questions] { return ++questions < 3; };
    Pace pace(give_up_soon);
    NameSorter sorter;
    for (const std::string& name : Shuffled(20'000))
        sorter.Add(name);

    EXPECT_FALSE(sorter.Sorted(pace).has_value());
    EXPECT_EQ(questions, 3);
}

}  // namespace
}  // namespace linux
