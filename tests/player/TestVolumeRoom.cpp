#include <gtest/gtest.h>

#include "player/PlayerHouse.h"

namespace {

using player_tests::PlayerHouse;
using Texts = std::vector<std::string>;

struct Playing : PlayerHouse {
    Playing() {
        player.PlaySong(AddSong("a.mp3"));
        TakeCommands();
    }
    double Left() const { return controls.levels.imgVol.Left(); }
};

TEST(VolumeRoom, APressOnTheBarSetsTheLevel) {
    Playing house;

    PlayerHouse::Press(house.controls.levels.lblVol, 892.5);

    EXPECT_EQ(house.TakeCommands(), Texts{"setaudio a Volume to 500"});
    EXPECT_EQ(house.state.MusicVolume, 50);
    EXPECT_EQ(house.Left(), 892.5);
    EXPECT_EQ(house.address.Focused, 1);
}

TEST(VolumeRoom, APressOnTheKnobCountsFromTheKnob) {
    Playing house;

    PlayerHouse::Press(house.controls.levels.imgVol, 178.5);

    EXPECT_EQ(house.state.MusicVolume, 10);
}

TEST(VolumeRoom, APressBehindTheBarIsFullVolume) {
    Playing house;
    PlayerHouse::Press(house.controls.levels.lblVol, 892.5);
    house.TakeCommands();

    PlayerHouse::Press(house.controls.levels.lblFullVol, 60);

    EXPECT_EQ(house.TakeCommands(), Texts{"setaudio a Volume to 1000"});
    EXPECT_EQ(house.Left(), 1785);
}

TEST(VolumeRoom, APressBeforeTheBarIsNoVolume) {
    Playing house;

    PlayerHouse::Press(house.controls.levels.lblNoVol, 60);

    EXPECT_EQ(house.TakeCommands(), Texts{"setaudio a Volume to 0"});
    EXPECT_EQ(house.Left(), 0);
}

// The pointer in the middle of the whole bar is 5 pixels less into lblVol.
TEST(VolumeRoom, APressInTheMiddleIsHalfTheVolume) {
    Playing house;
    auto& levels = house.controls.levels;
    const double middle = levels.picVolume.Width() / 2;
    ASSERT_EQ(levels.picVolume.Width(), 1785 + 150);

    PlayerHouse::Press(levels.lblVol, middle - levels.lblVol.Left());

    EXPECT_EQ(house.state.MusicVolume, 50);
    EXPECT_EQ(levels.imgVol.Left() + levels.imgVol.Width() / 2, middle) << "the knob is where the pointer is";
}

TEST(VolumeRoom, TheWholeBarTakesPresses) {
    const PlayerHouse house;
    const auto& levels = house.controls.levels;

    EXPECT_EQ(levels.lblNoVol.Left(), 0);
    EXPECT_EQ(levels.lblVol.Left(), levels.lblNoVol.Right());
    EXPECT_EQ(levels.lblFullVol.Left(), levels.lblVol.Right());
    EXPECT_EQ(levels.lblFullVol.Right(), levels.picVolume.Width());
}

TEST(VolumeRoom, NoPressOnTheBarIsBeyondItsEnd) {
    PlayerHouse house;

    const double last_pixel = house.controls.levels.lblVol.Width() - controls::kTwipsPerPixel;

    EXPECT_EQ(last_pixel, 1785);
}

TEST(VolumeRoom, ALevelBeyondTheBarIsRefusedAndTheDeviceCatchesUpLater) {
    Playing house;
    PlayerHouse::Press(house.controls.levels.lblVol, 892.5);
    house.TakeCommands();

    PlayerHouse::Press(house.controls.levels.lblVol, 112 * 17.85);
    const Texts sent = house.TakeCommands();
    const int level = house.LevelOf("a");
    house.player.SetVolume(1);

    EXPECT_TRUE(sent.empty());
    EXPECT_EQ(level, 50);
    EXPECT_EQ(house.Left(), 1785);
    EXPECT_EQ(house.state.MusicVolume, 100);
    EXPECT_EQ(house.LevelOf("a"), 100);
}

TEST(VolumeRoom, AStepIsThreeHundredUnitsAndStaysOnTheBar) {
    Playing house;

    house.menu.mnuDecreaseVolume.Click.Raise();
    const double once = house.Left();
    for (int i = 0; i < 6; ++i)
        house.menu.mnuDecreaseVolume.Click.Raise();
    const double least = house.Left();
    house.menu.mnuIncreaseVolume.Click.Raise();

    EXPECT_EQ(once, 1485);
    EXPECT_EQ(least, 0);
    EXPECT_EQ(house.state.MusicVolume, 17);
}

TEST(VolumeRoom, ALevelIsRoundedToTheEvenPercent) {
    const std::vector<std::pair<double, int>> cases = {{0, 0},      {8.9, 0},    {8.925, 0}, {62.475, 4},
                                                       {44.625, 2}, {892.5, 50}, {1776, 99}, {1785, 100},
                                                       {1793, 100}, {-8.925, 0}};
    for (const auto& [left, percent] : cases) {
        Playing house;

        PlayerHouse::Press(house.controls.levels.lblVol, left);

        EXPECT_EQ(house.TakeCommands(), Texts{"setaudio a Volume to " + base::ToText(10L * percent)}) << left;
        EXPECT_EQ(house.state.MusicVolume, percent) << left;
    }
}

TEST(VolumeRoom, ALevelBelowTheBarIsRefusedToo) {
    Playing house;

    PlayerHouse::Press(house.controls.levels.lblVol, -40);

    EXPECT_TRUE(house.TakeCommands().empty());
    EXPECT_EQ(house.Left(), 0);
    EXPECT_EQ(house.state.MusicVolume, 0);
    EXPECT_EQ(house.LevelOf("a"), 100) << "the device catches up at the next change";
}

TEST(VolumeRoom, AMenuStepBeyondTheEndLeavesTheDeviceWhereItWas) {
    Playing house;
    PlayerHouse::Press(house.controls.levels.lblVol, 90 * 17.85);
    house.TakeCommands();

    house.menu.mnuIncreaseVolume.Click.Raise();

    EXPECT_TRUE(house.TakeCommands().empty());
    EXPECT_EQ(house.LevelOf("a"), 90);
    EXPECT_EQ(house.state.MusicVolume, 100);
}

TEST(VolumeRoom, ANotchOfTheWheelIsFivePercent) {
    Playing house;
    PlayerHouse::Press(house.controls.levels.lblVol, 50 * 17.85);
    house.TakeCommands();

    house.controls.levels.picVolume.MouseWheel.Raise(1);
    house.controls.levels.picVolume.MouseWheel.Raise(-3);

    EXPECT_EQ(house.TakeCommands(), (Texts{"setaudio a Volume to 550", "setaudio a Volume to 400"}));
    EXPECT_EQ(house.state.MusicVolume, 40);
}

TEST(VolumeRoom, TheWheelTakesTheDeviceToBothEndsOfTheBar) {
    Playing house;
    PlayerHouse::Press(house.controls.levels.lblVol, 98 * 17.85);
    house.TakeCommands();

    house.controls.levels.picVolume.MouseWheel.Raise(1);
    house.controls.levels.picVolume.MouseWheel.Raise(-40);

    EXPECT_EQ(house.TakeCommands(), (Texts{"setaudio a Volume to 1000", "setaudio a Volume to 0"}));
    EXPECT_EQ(house.Left(), 0);
}

TEST(VolumeRoom, TheWheelEndsMute) {
    Playing house;
    PlayerHouse::Press(house.controls.levels.lblVol, 50 * 17.85);
    house.menu.mnuMusicMute.Click.Raise();
    house.TakeCommands();

    house.controls.levels.picVolume.MouseWheel.Raise(1);

    EXPECT_EQ(house.TakeCommands(), Texts{"setaudio a Volume to 550"});
    EXPECT_FALSE(house.menu.mnuMusicMute.Checked());
    EXPECT_FALSE(house.controls.levels.lblMute.Visible());
}

TEST(VolumeRoom, UnmuteSendsTheUnitsWheneverTheyAreAPercent) {
    const std::vector<std::pair<double, Texts>> cases = {
        {0, {"setaudio a Volume to 0", "setaudio a Volume to 0"}},
        {53.55, {"setaudio a Volume to 540", "setaudio a Volume to 30"}},
        {100, {"setaudio a Volume to 1000", "setaudio a Volume to 60"}},
        {100.6, {"setaudio a Volume to 60"}},
        {1785, {"setaudio a Volume to 1000"}}};
    for (const auto& [left, sent] : cases) {
        Playing house;
        house.controls.levels.imgVol.SetLeft(left);
        house.menu.mnuMusicMute.Click.Raise();
        house.TakeCommands();

        house.menu.mnuMusicMute.Click.Raise();

        EXPECT_EQ(house.TakeCommands(), sent) << left;
    }
}

TEST(VolumeRoom, UsesBUnlessTheCurrentAliasIsA) {
    PlayerHouse house;

    house.player.SetVolume(1);

    EXPECT_EQ(house.TakeCommands(), Texts{"setaudio b Volume to 1000"});
}

TEST(VolumeRoom, MuteSilencesTheCurrentSong) {
    Playing house;

    house.menu.mnuMusicMute.Click.Raise();

    EXPECT_EQ(house.TakeCommands(), Texts{"setaudio a Volume to 0"});
    EXPECT_TRUE(house.controls.levels.lblMute.Visible());
    EXPECT_TRUE(house.menu.mnuMusicMute.Checked());
}

TEST(VolumeRoom, UnmuteFirstSendsTheUnitsOfASmallLevel) {
    Playing house;
    PlayerHouse::Press(house.controls.levels.lblVol, 89.25);
    house.menu.mnuMusicMute.Click.Raise();
    house.TakeCommands();

    house.controls.levels.lblMute.Click.Raise();

    EXPECT_EQ(house.TakeCommands(), (Texts{"setaudio a Volume to 890", "setaudio a Volume to 50"}));
    EXPECT_FALSE(house.controls.levels.lblMute.Visible());
    EXPECT_EQ(house.address.Focused, 2);
}

TEST(VolumeRoom, UnmuteOfALargeLevelSendsOnlyTheTrueOne) {
    Playing house;
    house.menu.mnuMusicMute.Click.Raise();
    house.TakeCommands();

    house.menu.mnuMusicMute.Click.Raise();

    EXPECT_EQ(house.TakeCommands(), Texts{"setaudio a Volume to 1000"});
}

TEST(VolumeRoom, AnyChangeEndsMute) {
    Playing house;
    house.menu.mnuMusicMute.Click.Raise();

    house.menu.mnuDecreaseVolume.Click.Raise();

    EXPECT_FALSE(house.menu.mnuMusicMute.Checked());
    EXPECT_FALSE(house.controls.levels.lblMute.Visible());
}

TEST(VolumeRoom, AMoveOnlyHidesTheHighlights) {
    Playing house;
    house.window.TakeCalls();

    PlayerHouse::MoveTo(house.controls.levels.lblVol, 500);
    PlayerHouse::MoveTo(house.controls.levels.imgVol, 50);

    EXPECT_EQ(house.window.TakeCalls(), (Texts{"no mouse overs", "no mouse overs"}));
    EXPECT_EQ(house.Left(), 1785);
}

}  // namespace
