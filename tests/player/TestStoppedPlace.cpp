#include "player/StoppedPlace.h"

#include <gtest/gtest.h>

#include <random>

namespace {

using player::ListsOfText;
using player::PlaceOfText;
using player::StoppedLists;
using player::StoppedPlace;
using player::TextOf;

StoppedLists SomeLists() {
    return {.stamp = 7,
            .CueHeadIsPath = true,
            .CueHeadIsId = false,
            .cued = {{"Owls - Fly", "C:\\m\\Owls - Fly.mp3"}, {"", "12"}},
            .order = {"1", "C:\\a\nb%0A.mp3", "", "%25"}};
}

StoppedPlace SomePlace() {
    return {.stamp = 7,
            .row = 3,
            .milliseconds = 83250,
            .path = "C:\\m\\a\nb%.mp3",
            .title =
                "Gr\xC3\xB6\xC3\x9F"
                "e"};
}

TEST(StoppedPlace, WhatIsWrittenIsRead) {
    EXPECT_EQ(ListsOfText(TextOf(SomeLists())), SomeLists());
    EXPECT_EQ(ListsOfText(TextOf(StoppedLists())), StoppedLists());
    EXPECT_EQ(PlaceOfText(TextOf(SomePlace())), SomePlace());
    EXPECT_EQ(PlaceOfText(TextOf(StoppedPlace())), StoppedPlace());
}

TEST(StoppedPlace, APartIsNotTakenForTheWhole) {
    const std::string lists = TextOf(SomeLists());
    for (std::size_t length = 0; length < lists.size(); ++length)
        EXPECT_EQ(ListsOfText(lists.substr(0, length)), std::nullopt) << length;
    const std::string place = TextOf(SomePlace());
    for (std::size_t length = 0; length < place.size(); ++length)
        EXPECT_EQ(PlaceOfText(place.substr(0, length)), std::nullopt) << length;
    EXPECT_EQ(PlaceOfText(place + "\n"), std::nullopt);
    EXPECT_EQ(PlaceOfText(lists), std::nullopt);
    EXPECT_EQ(ListsOfText(place), std::nullopt);
}

TEST(StoppedPlace, ACountBeyondTheTextIsNoCount) {
    EXPECT_EQ(ListsOfText("brindlepost lists 1\n1\n0\n0\n99999999999\nend\n"), std::nullopt);
    EXPECT_EQ(ListsOfText("brindlepost lists 1\n1\n0\n0\n-1\n0\nend\n"), std::nullopt);
}

TEST(StoppedPlace, AnyBytesAreReadWithoutHarm) {
    std::mt19937 random(4711);
    for (int round = 0; round < 20000; ++round) {
        std::string text = round % 2 == 0 ? TextOf(SomeLists()) : TextOf(SomePlace());
        for (int changes = 1 + static_cast<int>(random() % 4); changes > 0; --changes)
            text[random() % text.size()] = static_cast<char>(random());
        if (const auto lists = ListsOfText(text)) {
            EXPECT_EQ(ListsOfText(TextOf(*lists)), lists);
        }
        if (const auto place = PlaceOfText(text)) {
            EXPECT_EQ(PlaceOfText(TextOf(*place)), place);
        }
    }
}

}  // namespace
