#include <gtest/gtest.h>

#include "player/PlayerHouse.h"

namespace {

using player_tests::PlayerHouse;
using Texts = std::vector<std::string>;

struct Playing : PlayerHouse {
    Playing() {
        player.PlaySong(AddSong("a.mp3"));
        TakeCommands();
        marker.SetWidth(10);
    }
    controls::Label& marker = controls.levels.lblSongSpeed;
};

TEST(SpeedRoom, APressOnTheBarSetsTheSpeed) {
    Playing house;

    PlayerHouse::Press(house.controls.levels.picSpeed, 60.4);

    EXPECT_EQ(house.TakeCommands(), Texts{"set a speed 630"});
    EXPECT_DOUBLE_EQ(house.marker.Left(), 60.4);
    EXPECT_EQ(house.state.SongSpeed, 60);
}

TEST(SpeedRoom, TheNormalSpeedIsThreePercentOverTheDevices) {
    Playing house;

    house.menu.mnuNormalSpeed.Click.Raise();

    EXPECT_EQ(house.TakeCommands(), Texts{"set a speed 1030"});
}

TEST(SpeedRoom, IncreaseAtTheRightEndGoesOnAtTheDeviceOnly) {
    Playing house;
    house.marker.SetLeft(190);

    house.menu.mnuIncreaseSpeed.Click.Raise();

    EXPECT_EQ(house.TakeCommands(), Texts{"set a speed 2130"});
    EXPECT_DOUBLE_EQ(house.marker.Left(), 190);
}

TEST(SpeedRoom, DecreaseAtTheLeftEndGoesOnAtTheDeviceOnly) {
    Playing house;
    house.marker.SetLeft(5);

    house.menu.mnuDecreaseSpeed.Click.Raise();

    EXPECT_EQ(house.TakeCommands(), Texts{"set a speed -120"});
    EXPECT_DOUBLE_EQ(house.marker.Left(), 0);
}

TEST(SpeedRoom, TheSpeedBeyondTheEndIsTheOneThatIsKept) {
    Playing house;
    house.marker.SetLeft(190);

    house.menu.mnuIncreaseSpeed.Click.Raise();
    house.player.RestoreBars();

    EXPECT_EQ(house.state.SongSpeed, 210);
    EXPECT_DOUBLE_EQ(house.marker.Left(), 210) << "and a resize puts the marker there";
}

TEST(SpeedRoom, EachMenuEntrySendsTheMarkerAndItsCentre) {
    struct Case {
        controls::Menu player::PlayerMenu::* entry;
        double from;
        const char* sent;
        double left;
        int kept;
    };
    using Menu = player::PlayerMenu;
    for (const Case& one : {Case{&Menu::mnuIncreaseSpeed, 100, "set a speed 1230", 120, 120},
                            Case{&Menu::mnuIncreaseSpeed, 170, "set a speed 1930", 190, 190},
                            Case{&Menu::mnuIncreaseSpeed, 171, "set a speed 1940", 190, 191},
                            Case{&Menu::mnuDecreaseSpeed, 100, "set a speed 830", 80, 80},
                            Case{&Menu::mnuDecreaseSpeed, 20, "set a speed 30", 0, 0},
                            Case{&Menu::mnuDecreaseSpeed, 0, "set a speed -170", 0, -20},
                            Case{&Menu::mnuNormalSpeed, 12, "set a speed 1030", 100, 100}}) {
        Playing house;
        house.marker.SetLeft(one.from);

        (house.menu.*one.entry).Click.Raise();

        EXPECT_EQ(house.TakeCommands(), Texts{one.sent}) << one.from;
        EXPECT_DOUBLE_EQ(house.marker.Left(), one.left) << one.from;
        EXPECT_EQ(house.state.SongSpeed, one.kept) << one.from;
    }
}

TEST(SpeedRoom, OnlyTheCurrentSongOfACrossfadeHearsIt) {
    Playing house;
    house.player.PlaySong(house.AddSong("b.mp3"));
    house.TakeCommands();

    house.menu.mnuNormalSpeed.Click.Raise();

    EXPECT_EQ(house.TakeCommands(), Texts{"set b speed 1030"});
}

TEST(SpeedRoom, ADragCreepsByTheRatioAndTellsTheDeviceEachTime) {
    Playing house;
    house.marker.SetLeft(100);

    PlayerHouse::Press(house.marker, 4);
    PlayerHouse::MoveTo(house.marker, 8);
    PlayerHouse::Release(house.marker);
    PlayerHouse::MoveTo(house.marker, 8);

    EXPECT_EQ(house.TakeCommands(), Texts{"set a speed 1050"});
    EXPECT_DOUBLE_EQ(house.marker.Left(), 102);
    EXPECT_EQ(house.state.SongSpeed, 102);
    EXPECT_EQ(house.address.Focused, 1);
}

TEST(SpeedRoom, ADragStaysOnTheBar) {
    Playing house;

    PlayerHouse::Press(house.marker, 1);
    PlayerHouse::MoveTo(house.marker, -500);
    const double left_end = house.marker.Left();
    PlayerHouse::MoveTo(house.marker, 500);

    EXPECT_DOUBLE_EQ(left_end, 0);
    EXPECT_DOUBLE_EQ(house.marker.Left(), 190);
}

TEST(SpeedRoom, APressOnTheFirstUnitLeavesTheMarkerInPlace) {
    Playing house;
    house.marker.SetLeft(100);

    PlayerHouse::Press(house.marker, 0.2);
    PlayerHouse::MoveTo(house.marker, 9);

    EXPECT_DOUBLE_EQ(house.marker.Left(), 100);
    EXPECT_TRUE(house.TakeCommands().empty());
}

TEST(SpeedRoom, AResizeRestoresScaleAndMarker) {
    Playing house;
    PlayerHouse::Press(house.controls.levels.picSpeed, 140);
    house.marker.SetLeft(3);
    house.controls.levels.picSpeed.SetWidth(6000);

    house.player.RestoreBars();

    EXPECT_DOUBLE_EQ(house.controls.levels.picSpeed.ScaleWidth(), 200);
    EXPECT_DOUBLE_EQ(house.marker.Left(), 140);
    EXPECT_DOUBLE_EQ(house.marker.Width(), 4) << "120 twips";
}

TEST(SpeedRoom, ReleaseOnTheBarGivesTheFocusBack) {
    Playing house;

    PlayerHouse::Release(house.controls.levels.picSpeed);

    EXPECT_EQ(house.address.Focused, 1);
}

}  // namespace
