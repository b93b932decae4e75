#include "store/RowStorage.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using store::RowStorage;
using Views = std::vector<std::string_view>;

TEST(RowStorage, KeepsTextsOfEveryLength) {
    RowStorage storage(3);
    std::vector<RowStorage::Place> places;
    std::vector<std::string> texts;
    for (const std::size_t length : {0U, 1U, 127U, 128U, 255U, 256U, 65'535U, 65'536U, 300'000U}) {
        texts.emplace_back(length, 'x');
    }

    places.reserve(texts.size());
    for (const std::string& text : texts)
        places.push_back(storage.Add(Views{"a", text, "b"}));

    for (std::size_t i = 0; i < texts.size(); ++i) {
        EXPECT_EQ(storage.Text(places[i], 0), "a");
        EXPECT_EQ(storage.Text(places[i], 1), texts[i]);
        EXPECT_EQ(storage.Text(places[i], 2), "b");
    }
}

TEST(RowStorage, KeepsRowsWithoutColumns) {
    RowStorage storage(0);
    const RowStorage::Place place = storage.Add({});
    const RowStorage::Place other = storage.Add({});

    storage.Remove(place);
    storage.Remove(other);

    EXPECT_EQ(storage.BytesWasted(), storage.BytesHeld());
}

TEST(RowStorage, AShorterRowStaysInItsPlace) {
    RowStorage storage(2);
    const RowStorage::Place place = storage.Add(Views{"one", "two"});
    storage.Add(Views{"next", "row"});

    const RowStorage::Place now = storage.Replace(place, Views{"1", "2"});

    EXPECT_EQ(now.offset, place.offset);
    EXPECT_EQ(storage.Text(now, 0), "1");
    EXPECT_EQ(storage.Text(now, 1), "2");
}

TEST(RowStorage, ALongerRowMovesAndMayBeMadeOfItsOwnTexts) {
    RowStorage storage(2);
    const RowStorage::Place place = storage.Add(Views{"one", "two"});
    const std::string tail(5000, 'z');

    const RowStorage::Place now = storage.Replace(place, Views{storage.Text(place, 1), tail});

    EXPECT_EQ(storage.Text(now, 0), "two");
    EXPECT_EQ(storage.Text(now, 1), tail);
}

TEST(RowStorage, UsesTheMemoryOfRemovedRowsAgain) {
    RowStorage storage(1);
    const std::string text(1000, 'x');

    for (int i = 0; i < 10'000; ++i)
        storage.Remove(storage.Add(Views{text}));

    EXPECT_LT(storage.BytesHeld(), 10'000U);
}

}  // namespace
