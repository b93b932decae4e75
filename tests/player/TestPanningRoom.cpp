#include <gtest/gtest.h>

#include "player/PlayerHouse.h"

namespace {

using player_tests::Orders;
using player_tests::PlayerHouse;
using Texts = std::vector<std::string>;

/// One long song, with the heartbeat still.
struct Playing : PlayerHouse {
    Playing() {
        controls.transport.tmrPlay.SetEnabled(false);
        player.PlaySong(AddSong("a.mp3", 600000));
        TakeCommands();
    }
    std::pair<int, int> Levels() { return {LevelOf("a"), RightLevelOf("a")}; }
};

TEST(PanningRoom, AChoiceRestartsTheSweepAtTheRight) {
    Playing house;

    house.menu.mnuPanQuick.Click.Raise();

    const Texts expected = {"setaudio a Volume to 1000", "setaudio a left Volume to 0",
                            "setaudio a right Volume to 1000"};
    EXPECT_EQ(house.TakeCommands(), expected);
    EXPECT_EQ(house.controls.levels.tmrPanning.Interval(), 10);
    EXPECT_TRUE(house.controls.levels.tmrPanning.Enabled());
    EXPECT_TRUE(house.menu.mnuPanQuick.Checked());
    EXPECT_FALSE(house.menu.mnuPanOff.Checked());
}

TEST(PanningRoom, EachChoiceHasItsInterval) {
    Playing house;
    const std::vector<std::pair<controls::Menu*, int>> choices = {{&house.menu.mnuPanInstant, 50},
                                                                  {&house.menu.mnuPanQuick, 10},
                                                                  {&house.menu.mnuPanMedium, 50},
                                                                  {&house.menu.mnuPanLong, 100}};

    for (const auto& [entry, interval] : choices) {
        entry->Click.Raise();

        EXPECT_EQ(house.controls.levels.tmrPanning.Interval(), interval) << entry->Name();
        EXPECT_TRUE(entry->Checked());
    }
}

TEST(PanningRoom, ASweepGoesUpIn99TicksAndThenBack) {
    Playing house;
    house.menu.mnuPanQuick.Click.Raise();

    house.desktop.Advance(10);
    const auto first = house.Levels();
    house.desktop.Advance(980);
    const auto last = house.Levels();
    house.desktop.Advance(10);

    EXPECT_EQ(first, std::make_pair(1, 99));
    EXPECT_EQ(last, std::make_pair(99, 1));
    EXPECT_EQ(house.Levels(), std::make_pair(99, 1)) << "back from 99, one step";
}

TEST(PanningRoom, InstantPlaysLeftForTenTicksAndRightForNine) {
    Playing house;
    house.menu.mnuPanInstant.Click.Raise();
    Texts sides;

    for (int tick = 1; tick <= 20; ++tick) {
        house.TakeCommands();
        house.desktop.Advance(50);
        const auto sent = house.TakeCommands();
        sides.push_back(sent.empty() ? "-" : house.Levels().first == 100 ? "L" : "R");
    }

    const Texts expected = {"L", "L", "L", "L", "L", "L", "L", "L", "L", "R",
                            "R", "R", "R", "R", "R", "R", "R", "R", "-", "L"};
    EXPECT_EQ(sides, expected) << "the first round has no tick 0";
}

TEST(PanningRoom, SendsNothingDuringACrossfade) {
    Playing house;
    house.menu.mnuPanQuick.Click.Raise();
    house.player.PlaySong(house.AddSong("b.mp3", 600000));
    house.TakeCommands();

    house.desktop.Advance(50);

    EXPECT_TRUE(house.TakeCommands().empty());
}

TEST(PanningRoom, SendsNothingWhileTheSoundIsOff) {
    Playing house;
    house.menu.mnuPanQuick.Click.Raise();
    house.menu.mnuMusicMute.Click.Raise();
    house.TakeCommands();

    house.desktop.Advance(50);

    EXPECT_TRUE(house.TakeCommands().empty());
}

TEST(PanningRoom, OffPutsBothChannelsAtTheLevel) {
    Playing house;
    house.menu.mnuPanQuick.Click.Raise();
    house.desktop.Advance(100);
    house.controls.levels.imgVol.SetLeft(892.5);

    house.menu.mnuPanOff.Click.Raise();

    EXPECT_EQ(house.Levels(), std::make_pair(50, 50));
    EXPECT_FALSE(house.controls.levels.tmrPanning.Enabled());
    EXPECT_TRUE(house.menu.mnuPanOff.Checked());
}

TEST(PanningRoom, CountsWithoutEffectWhileItIsOff) {
    Playing house;
    house.menu.mnuStop.Click.Raise();
    house.TakeCommands();

    house.desktop.Advance(4'000'000);

    EXPECT_TRUE(house.TakeCommands().empty());
}

TEST(PanningRoom, FailsSilentlyWithNoSongOpen) {
    PlayerHouse house;

    house.menu.mnuPanQuick.Click.Raise();
    house.desktop.Advance(50);

    EXPECT_TRUE(house.dialogs.Boxes.empty());
    EXPECT_TRUE(house.menu.mnuPanQuick.Checked());
}

}  // namespace
