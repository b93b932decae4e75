#include <gtest/gtest.h>

#include "player/PlayerHouse.h"

namespace {

using player_tests::PlayerHouse;

TEST(PlayModeRoom, TheMenuTurnsRepeatOnAndOff) {
    PlayerHouse house;
    auto& t = house.controls.transport;

    house.menu.mnuRepeat.Click.Raise();
    const bool on = house.menu.mnuRepeat.Checked() && t.imgRepeat.Visible() && !t.imgNoRepeat.Visible();
    house.menu.mnuRepeat.Click.Raise();

    EXPECT_TRUE(on);
    EXPECT_FALSE(house.menu.mnuRepeat.Checked());
    EXPECT_FALSE(t.imgRepeat.Visible());
    EXPECT_TRUE(t.imgNoRepeat.Visible());
}

TEST(PlayModeRoom, TheButtonTurnsRepeatOnByItsBrightPictureAlone) {
    PlayerHouse house;
    auto& t = house.controls.transport;
    PlayerHouse::MoveTo(t.imgNoRepeat, 0);

    t.imgNoRepeatOver.Click.Raise();

    EXPECT_TRUE(house.menu.mnuRepeat.Checked());
    EXPECT_TRUE(t.imgRepeatOver.Visible());
    EXPECT_FALSE(t.imgRepeat.Visible());
    EXPECT_FALSE(t.imgNoRepeat.Visible());
    EXPECT_FALSE(t.imgNoRepeatOver.Visible());
}

TEST(PlayModeRoom, TheButtonTurnsRepeatOff) {
    PlayerHouse house;
    auto& t = house.controls.transport;
    t.imgNoRepeatOver.Click.Raise();

    t.imgRepeatOver.Click.Raise();

    EXPECT_FALSE(house.menu.mnuRepeat.Checked());
    EXPECT_FALSE(t.imgRepeatOver.Visible());
    EXPECT_TRUE(t.imgNoRepeat.Visible());
}

TEST(PlayModeRoom, ThePlainPictureTellsTheStateOnceTheHighlightsAreGone) {
    PlayerHouse house;
    auto& t = house.controls.transport;
    t.imgNoRepeatOver.Click.Raise();
    t.imgRepeatOver.SetVisible(false);

    house.player.SettlePictures();

    EXPECT_TRUE(t.imgRepeat.Visible());
    EXPECT_FALSE(t.imgNoRepeat.Visible());
}

TEST(PlayModeRoom, ShuffleTogglesItsCheck) {
    PlayerHouse house;

    house.menu.mnuShuffle.Click.Raise();
    const bool on = house.menu.mnuShuffle.Checked();
    house.menu.mnuShuffle.Click.Raise();

    EXPECT_TRUE(on);
    EXPECT_FALSE(house.menu.mnuShuffle.Checked());
}

}  // namespace
