#include "player/OrderView.h"

#include <gtest/gtest.h>

#include "player/PlayerHouse.h"

namespace {

using player_tests::PlayerHouse;
using roles::OrderedSong;

/// Three tracks, two of them of the library; the second one plays.
struct Listening : PlayerHouse {
    Listening() {
        first = AddSong("Owls - Fly.mp3", 100000, 11);
        second = AddSong("Bats - Hang.mp3", 100000);
        third = AddSong("Moths - Film.avi", 100000, 13);
        AddTrack("Owls - Fly", "11");
        AddTrack("Bats - Hang", second);
        AddTrack("Moths - Film", "13");
        DoubleClickTrack(1);
        TakeCommands();
    }

    roles::PlayOrder& Order() { return player.Order(); }

    std::string first;
    std::string second;
    std::string third;
};

TEST(OrderView, TheGlanceTellsTheOrderAndTheModes) {
    PlayerHouse empty;
    EXPECT_EQ(empty.player.Order().Order(), roles::OrderGlance());

    Listening house;
    const roles::OrderGlance before = house.Order().Order();
    EXPECT_EQ(before.count, 3);
    EXPECT_EQ(before.row, 1);
    EXPECT_FALSE(before.repeats || before.shuffles);

    house.ListMaybeChanged = true;
    house.DoubleClickTrack(0);
    EXPECT_GT(house.Order().Order().version, before.version);
    EXPECT_EQ(house.Order().Order().row, 0);
}

TEST(OrderView, SongsAreNamedAsThePlayerNamesThem) {
    Listening house;

    EXPECT_EQ(house.Order().SongsAt({2, 0, 1, 0}),
              (std::vector<OrderedSong>{
                  {.artist = "Moths", .title = "Film [Video]", .path = house.third},
                  {.artist = "Owls", .title = "Fly", .path = house.first},
                  {.artist = "Bats", .title = "Hang", .path = house.second},
                  {.artist = "Owls", .title = "Fly", .path = house.first},
              }));
    EXPECT_TRUE(house.Order().SongsAt({}).empty());
}

TEST(OrderView, ASongThatLeftTheLibraryHasNoPath) {
    PlayerHouse house;
    const std::string path = house.AddSong("Owls - Fly.mp3");
    house.AddTrack("Gone", "77");
    house.AddTrack("Owls - Fly", path);
    house.DoubleClickTrack(1);

    EXPECT_EQ(house.player.Order().SongsAt({0}).at(0).path, "");
}

TEST(OrderView, ACuedSongIsNotTheRowOfTheOrder) {
    Listening house;
    EXPECT_TRUE(house.Order().PlaysItsRow());

    house.player.PlaySong(house.first);
    EXPECT_FALSE(house.Order().PlaysItsRow());
}

TEST(OrderView, ModesAreTheMenusOwn) {
    Listening house;

    house.Order().SetRepeat(true);
    house.Order().SetRepeat(true);
    house.Order().SetShuffle(true);
    EXPECT_TRUE(house.menu.mnuRepeat.Checked());
    EXPECT_TRUE(house.controls.transport.imgRepeat.Visible());
    EXPECT_TRUE(house.menu.mnuShuffle.Checked());
    EXPECT_TRUE(house.Order().Order().repeats && house.Order().Order().shuffles);

    house.Order().SetRepeat(false);
    house.Order().SetShuffle(false);
    EXPECT_FALSE(house.controls.transport.imgRepeat.Visible());
    EXPECT_FALSE(house.Order().Order().repeats || house.Order().Order().shuffles);
}

TEST(OrderView, ARowIsPlayedAndTheOrderGoesOnFromThere) {
    Listening house;

    house.Order().PlayRow(0);
    EXPECT_EQ(house.NowPlaying(), house.first);
    house.player.Next();
    EXPECT_EQ(house.NowPlaying(), house.second);
}

TEST(OrderView, ARowThatIsNotThereIsNotPlayed) {
    Listening house;

    for (const int row : {-1, 3, 1000000}) {
        house.Order().PlayRow(row);
        EXPECT_TRUE(house.TakeCommands().empty()) << row;
    }
}

}  // namespace
