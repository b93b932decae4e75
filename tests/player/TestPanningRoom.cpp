#include <gtest/gtest.h>

#include "player/PlayerHouse.h"

namespace {

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

struct Choice {
    controls::Menu player::PlayerMenu::* entry;
    int interval;
    bool runs;
    Texts sent;
};

TEST(PanningRoom, EachOfTheFiveChoicesHasItsIntervalAndItsCommands) {
    using Menu = player::PlayerMenu;
    const Texts begins = {"setaudio a Volume to 500", "setaudio a left Volume to 0",
                          "setaudio a right Volume to 1000"};
    const std::vector<Choice> choices = {{&Menu::mnuPanInstant, 50, true, begins},
                                         {&Menu::mnuPanQuick, 10, true, begins},
                                         {&Menu::mnuPanMedium, 50, true, begins},
                                         {&Menu::mnuPanLong, 100, true, begins},
                                         {&Menu::mnuPanOff, 100, false, {"setaudio a Volume to 500"}}};
    Playing house;
    house.controls.levels.imgVol.SetLeft(50 * 17.85);

    for (const Choice& choice : choices) {
        (house.menu.*choice.entry).Click.Raise();

        const auto& menu = house.menu;
        EXPECT_EQ(house.TakeCommands(), choice.sent) << choice.interval;
        EXPECT_EQ(house.controls.levels.tmrPanning.Interval(), choice.interval);
        EXPECT_EQ(house.controls.levels.tmrPanning.Enabled(), choice.runs);
        EXPECT_TRUE((menu.*choice.entry).Checked());
        EXPECT_EQ(menu.mnuPanInstant.Checked() + menu.mnuPanQuick.Checked() + menu.mnuPanMedium.Checked() +
                      menu.mnuPanLong.Checked() + menu.mnuPanOff.Checked(),
                  1);
    }
}

TEST(PanningRoom, ASweepTakesNinetyNineTicksOfItsInterval) {
    using Menu = player::PlayerMenu;
    for (const auto& [entry, sweep_ms] :
         {std::pair{&Menu::mnuPanQuick, 990}, std::pair{&Menu::mnuPanMedium, 4950},
          std::pair{&Menu::mnuPanLong, 9900}}) {
        Playing house;
        (house.menu.*entry).Click.Raise();

        house.desktop.Advance(sweep_ms);
        const auto at_the_end = house.Levels();
        house.desktop.Advance(sweep_ms);

        EXPECT_EQ(at_the_end, std::make_pair(99, 1)) << sweep_ms;
        EXPECT_EQ(house.Levels(), std::make_pair(1, 99)) << sweep_ms;
    }
}

TEST(PanningRoom, ASweepPlaysAtFullLevelWhateverTheSliderShows) {
    Playing house;
    house.controls.levels.imgVol.SetLeft(10 * 17.85);
    house.menu.mnuPanQuick.Click.Raise();
    house.TakeCommands();

    house.desktop.Advance(10);

    EXPECT_EQ(house.TakeCommands(),
              (Texts{"setaudio a left Volume to 10", "setaudio a right Volume to 990"}));
}

TEST(PanningRoom, ANewChoiceKeepsTheDirection) {
    Playing house;
    house.menu.mnuPanQuick.Click.Raise();
    house.desktop.Advance(990);
    house.menu.mnuPanQuick.Click.Raise();

    house.desktop.Advance(10);

    EXPECT_EQ(house.Levels(), std::make_pair(99, 1)) << "the sweep went back, and does so still";
}

TEST(PanningRoom, TheCountStandsStillDuringACrossfadeSinceTheTimerIsOff) {
    PlayerHouse house;
    house.AddTrack("1", house.AddSong("1.mp3", 20000));
    house.AddTrack("2", house.AddSong("2.mp3", 600000));
    house.DoubleClickTrack(0);
    house.menu.mnuPanLong.Click.Raise();
    house.device.SetFrame("a", 12000);
    house.RunFor(1000);
    house.device.SetFrame("a", 16000);
    house.RunFor(50);
    ASSERT_EQ(house.state.CurrentAlias, player::Alias::B);
    ASSERT_FALSE(house.controls.levels.tmrPanning.Enabled());

    house.RunFor(51 * 60);
    ASSERT_TRUE(house.controls.levels.tmrPanning.Enabled());
    house.RunFor(100);

    EXPECT_EQ(house.LevelOf("b"), 11) << "ten ticks before the crossfade, one behind it";
    EXPECT_EQ(house.RightLevelOf("b"), 89);
}

TEST(PanningRoom, CountsOnWhileTheSoundIsOffAndThenStartsTheOtherWay) {
    Playing house;
    house.menu.mnuPanQuick.Click.Raise();
    house.menu.mnuMusicMute.Click.Raise();
    house.desktop.Advance(1500);
    house.menu.mnuMusicMute.Click.Raise();
    house.TakeCommands();

    house.desktop.Advance(10);
    const Texts beyond = house.TakeCommands();
    house.desktop.Advance(10);

    EXPECT_TRUE(beyond.empty()) << "151 and -51 percent are refused";
    EXPECT_EQ(house.Levels(), std::make_pair(99, 1));
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
        sides.emplace_back(sent.empty() ? "-" : house.Levels().first == 100 ? "L" : "R");
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
