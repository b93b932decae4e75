#include <gtest/gtest.h>

#include "player/PlayerHouse.h"

namespace {

using player_tests::Orders;
using player_tests::PlayerHouse;
using Texts = std::vector<std::string>;

/// A ramp of two long songs from "a" to "b", with the heartbeat still, so that nothing but the ramp acts.
struct RunningRamp : PlayerHouse {
    RunningRamp() {
        controls.transport.tmrPlay.SetEnabled(false);
        player.PlaySong(AddSong("a.mp3", 600000));
        player.PlaySong(AddSong("b.mp3", 600000));
        TakeCommands();
    }
    bool IsRunning() const { return controls.levels.tmrFade.Enabled(); }
};

TEST(FadeRoom, AQuickFadeTakesFiftyTicksAndOneToStop) {
    RunningRamp house;

    house.desktop.Advance(49 * 60);
    const int outgoing_after_49 = house.LevelOf("a");
    house.desktop.Advance(60);
    const int incoming_after_50 = house.LevelOf("b");
    const bool running_after_50 = house.IsRunning();
    const bool outgoing_closed = !house.IsOpen("a");
    house.desktop.Advance(60);

    EXPECT_EQ(outgoing_after_49, 2);
    EXPECT_TRUE(outgoing_closed);
    EXPECT_EQ(incoming_after_50, 100);
    EXPECT_TRUE(running_after_50);
    EXPECT_FALSE(house.IsRunning());
    EXPECT_TRUE(house.controls.levels.tmrPanning.Enabled());
}

TEST(FadeRoom, ATickReadsEachVolumeAgainBeforeItSetsIt) {
    RunningRamp house;

    house.desktop.Advance(60);

    const Texts expected = {"status a Volume", "status a Volume", "setaudio a Volume to 980",
                            "status b Volume", "status b Volume", "setaudio b Volume to 20"};
    EXPECT_EQ(house.TakeCommands(), expected);
}

TEST(FadeRoom, TheLastTickClosesTheOutgoingSongAgain) {
    RunningRamp house;
    house.desktop.Advance(50 * 60);
    house.TakeCommands();

    house.desktop.Advance(60);

    EXPECT_EQ(house.TakeCommands(), (Texts{"status a Volume", "Close a", "status b Volume", "Close a"}));
}

TEST(FadeRoom, RaisesTheIncomingSongToMusicVolumeOnly) {
    RunningRamp house;
    house.state.MusicVolume = 41;

    house.desktop.Advance(22 * 60);

    EXPECT_EQ(house.LevelOf("b"), 42) << "an odd level is overshot by one";
    EXPECT_FALSE(house.IsRunning());
}

struct RampCase {
    controls::Menu player::PlayerMenu::* entry;
    int tick_ms;
    int ramp_ms;  ///< of the fifty ticks
};

TEST(FadeRoom, EachLengthRampsInFiftyTicksOfItsOwn) {
    using Menu = player::PlayerMenu;
    for (const RampCase& one :
         {RampCase{&Menu::mnuQuickFade, 60, 3000}, RampCase{&Menu::mnuMediumFade, 220, 11000},
          RampCase{&Menu::mnuLongFade, 500, 25000}, RampCase{&Menu::mnuFadeOff, 1, 50}}) {
        RunningRamp house;
        (house.menu.*one.entry).Click.Raise();

        house.desktop.Advance(one.ramp_ms - one.tick_ms);
        const std::pair before{house.LevelOf("a"), house.LevelOf("b")};
        house.desktop.Advance(one.tick_ms);
        const std::pair after{house.LevelOf("a"), house.LevelOf("b")};

        EXPECT_EQ(before, (std::pair{2, 98})) << one.tick_ms;
        EXPECT_EQ(after, (std::pair{-1, 100})) << one.tick_ms;
        EXPECT_TRUE(house.IsRunning()) << one.tick_ms;
        house.desktop.Advance(one.tick_ms);
        EXPECT_FALSE(house.IsRunning()) << one.tick_ms;
    }
}

TEST(FadeRoom, ALevelOfThreeIsLoweredAndOneOfTwoClosed) {
    RunningRamp house;
    house.mci.MciSetVolume("a", "all", 3);
    house.TakeCommands();

    house.desktop.Advance(60);
    const Texts first = Orders(house.TakeCommands());
    house.mci.MciSetVolume("a", "all", 2);
    house.TakeCommands();
    house.desktop.Advance(60);

    EXPECT_EQ(first, (Texts{"setaudio a Volume to 10", "setaudio b Volume to 20"}));
    EXPECT_EQ(Orders(house.TakeCommands()), (Texts{"Close a", "setaudio b Volume to 40"}));
}

TEST(FadeRoom, WithNoVolumeTheFirstTickEndsTheRamp) {
    RunningRamp house;
    house.state.MusicVolume = 0;

    house.desktop.Advance(60);

    EXPECT_EQ(Orders(house.TakeCommands()), (Texts{"setaudio a Volume to 980", "Close a"}));
    EXPECT_FALSE(house.IsRunning());
    EXPECT_TRUE(house.controls.levels.tmrPanning.Enabled());
}

TEST(FadeRoom, AnIncomingSongAtNinetyNineIsRefusedTheNextStepAndStaysThere) {
    RunningRamp house;
    house.mci.MciSetVolume("b", "all", 99);
    house.TakeCommands();

    house.desktop.Advance(60);

    EXPECT_EQ(house.TakeCommands(), (Texts{"status a Volume", "status a Volume", "setaudio a Volume to 980",
                                           "status b Volume", "status b Volume"}));
    EXPECT_EQ(house.LevelOf("b"), 99);
    EXPECT_TRUE(house.IsRunning());
}

TEST(FadeRoom, AVolumeChangeDuringTheRampMovesTheIncomingSongOnly) {
    RunningRamp house;
    house.desktop.Advance(600);

    PlayerHouse::Press(house.controls.levels.lblVol, 50 * 17.85);
    house.TakeCommands();
    house.desktop.Advance(60);

    EXPECT_EQ(Orders(house.TakeCommands()), (Texts{"setaudio a Volume to 780", "Close a"}))
        << "the incoming song has its level, so the outgoing one goes at once";
    EXPECT_EQ(house.LevelOf("b"), 50);
    EXPECT_FALSE(house.IsRunning());
}

TEST(FadeRoom, AFadeToAGoesTheOtherWay) {
    RunningRamp house;
    house.desktop.Advance(51 * 60);
    house.player.PlaySong(house.AddSong("c.mp3", 600000));

    house.desktop.Advance(60);

    EXPECT_EQ(house.LevelOf("b"), 98);
    EXPECT_EQ(house.LevelOf("a"), 2);
}

TEST(FadeRoom, MuteFreezesTheRampAndTheTimerRunsOn) {
    RunningRamp house;
    house.desktop.Advance(600);
    house.menu.mnuMusicMute.SetChecked(true);
    house.TakeCommands();

    house.desktop.Advance(600);

    EXPECT_TRUE(house.TakeCommands().empty());
    EXPECT_TRUE(house.IsRunning());
    EXPECT_EQ(house.LevelOf("a"), 80);
    EXPECT_EQ(house.LevelOf("b"), 20);
}

TEST(FadeRoom, UnmuteSetsTheCurrentSongOnlyAndTheRampGoesOn) {
    RunningRamp house;
    house.desktop.Advance(600);
    house.menu.mnuMusicMute.Click.Raise();
    house.menu.mnuMusicMute.Click.Raise();
    EXPECT_EQ(house.LevelOf("a"), 80);
    EXPECT_EQ(house.LevelOf("b"), 100);
    EXPECT_TRUE(house.IsRunning());

    house.desktop.Advance(60);

    EXPECT_FALSE(house.IsOpen("a")) << "the next tick finds the new song at its level and ends the ramp";
    EXPECT_EQ(house.LevelOf("b"), 100);
    EXPECT_FALSE(house.IsRunning());
}

TEST(FadeRoom, AMuteBeforeTheNewSongHasALevelGoesOnWithTheRampAfterIt) {
    RunningRamp house;
    house.desktop.Advance(600);
    house.menu.mnuMusicMute.Click.Raise();
    house.desktop.Advance(600);
    const int frozen = house.LevelOf("a");
    house.menu.mnuMusicMute.Click.Raise();
    // A slider at half: the new song is above it at once, so it is lowered first.
    house.mci.MciSetVolume("b", "all", 20);

    house.desktop.Advance(120);

    EXPECT_EQ(frozen, 80);
    EXPECT_EQ(house.LevelOf("a"), 76);
    EXPECT_EQ(house.LevelOf("b"), 24);
    EXPECT_TRUE(house.IsRunning());
}

TEST(FadeRoom, NeverEndsWhileTheIncomingAliasIsClosed) {
    RunningRamp house;
    house.mci.MciClose("b");
    house.desktop.Advance(51 * 60);
    house.TakeCommands();

    house.desktop.Advance(60);

    EXPECT_EQ(Orders(house.TakeCommands()), (Texts{"Close a", "setaudio b Volume to 10"}));
    EXPECT_TRUE(house.IsRunning());
}

struct Choice {
    controls::Menu player::PlayerMenu::* entry;
    int interval;
    int seconds;
    double left;
};

TEST(FadeRoom, EachLengthSetsIntervalSecondsAndMarker) {
    using Menu = player::PlayerMenu;
    PlayerHouse house;
    house.controls.transport.picSongProgress.SetScaleWidth(100);
    house.controls.levels.lblStartFade.SetWidth(2);
    const std::vector<Choice> choices = {{&Menu::mnuQuickFade, 60, 5, 95},
                                         {&Menu::mnuMediumFade, 220, 10, 90},
                                         {&Menu::mnuLongFade, 500, 20, 80},
                                         {&Menu::mnuFadeOff, 1, 20, 98}};

    for (const Choice& choice : choices) {
        (house.menu.*choice.entry).Click.Raise();

        EXPECT_TRUE((house.menu.*choice.entry).Checked());
        EXPECT_EQ(house.controls.levels.tmrFade.Interval(), choice.interval);
        EXPECT_EQ(house.state.FadeSeconds, choice.seconds);
        EXPECT_DOUBLE_EQ(house.controls.levels.lblStartFade.Left(), choice.left);
        EXPECT_EQ(house.menu.mnuQuickFade.Checked() + house.menu.mnuMediumFade.Checked() +
                      house.menu.mnuLongFade.Checked() + house.menu.mnuFadeOff.Checked(),
                  1);
    }
}

/// The marker at 40 of 100 seconds, 2 seconds wide.
struct MarkerAt40 : PlayerHouse {
    MarkerAt40() {
        controls.transport.picSongProgress.SetScaleWidth(100);
        marker.Move(40, 0, 2, 240);
    }
    controls::Label& marker = controls.levels.lblStartFade;
};

TEST(FadeRoom, TheMarkerTellsItsTime) {
    const std::vector<std::pair<double, const char*>> cases = {
        {93.4, "1:33"}, {0, "0:00"},     {9.5, "0:10"}, {10.5, "0:10"},
        {59.5, "1:00"}, {119.6, "2:00"}, {-6, "0:-06"}, {3600, "60:00"}};
    for (const auto& [left, time] : cases) {
        MarkerAt40 house;
        house.marker.SetLeft(left);

        PlayerHouse::MoveTo(house.marker, 1);

        EXPECT_EQ(house.marker.ToolTipText(), std::string("Cross fade at: ") + time);
    }
}

TEST(FadeRoom, TheMarkerTellsNothingNewWhileItIsDragged) {
    MarkerAt40 house;
    PlayerHouse::MoveTo(house.marker, 1);

    PlayerHouse::Press(house.marker, 1);
    PlayerHouse::MoveTo(house.marker, 20);

    EXPECT_EQ(house.marker.ToolTipText(), "Cross fade at: 0:40");
    EXPECT_DOUBLE_EQ(house.marker.Left(), 60);
}

TEST(FadeRoom, ADragDoesNotSeekWhileAPressOnTheBarDoes) {
    MarkerAt40 house;
    house.player.PlaySong(house.AddSong("a.mp3", 100000));
    PlayerHouse::Press(house.marker, 2);
    house.TakeCommands();

    PlayerHouse::Press(house.controls.transport.picSongProgress, 50);
    const bool sought_while_dragging = !house.TakeCommands().empty();
    PlayerHouse::Release(house.marker);
    PlayerHouse::Press(house.controls.transport.picSongProgress, 50);

    EXPECT_FALSE(sought_while_dragging);
    EXPECT_EQ(Orders(house.TakeCommands()), (Texts{"seek a to 50000", "Play a"}));
}

TEST(FadeRoom, ReleaseRoundsTheSecondsToTheEvenNeighbour) {
    MarkerAt40 house;
    house.marker.SetLeft(94.5);

    PlayerHouse::Release(house.marker);
    const int down = house.state.FadeSeconds;
    house.marker.SetLeft(92.5);
    PlayerHouse::Release(house.marker);

    EXPECT_EQ(down, 6);
    EXPECT_EQ(house.state.FadeSeconds, 8);
    EXPECT_TRUE(house.window.TakeCalls().empty()) << "the left button pops nothing up";
}

TEST(FadeRoom, ADragCreepsByTheRatio) {
    MarkerAt40 house;

    PlayerHouse::Press(house.marker, 2);
    PlayerHouse::MoveTo(house.marker, 3);

    EXPECT_DOUBLE_EQ(house.marker.Left(), 41.5);
}

TEST(FadeRoom, ADragStaysOnTheBar) {
    MarkerAt40 house;

    PlayerHouse::Press(house.marker, 1);
    PlayerHouse::MoveTo(house.marker, -50);
    const double left_end = house.marker.Left();
    PlayerHouse::MoveTo(house.marker, 98);

    EXPECT_DOUBLE_EQ(left_end, 0);
    EXPECT_DOUBLE_EQ(house.marker.Left(), 98);
}

TEST(FadeRoom, APressOnTheFirstUnitLeavesTheMarkerInPlace) {
    MarkerAt40 house;

    PlayerHouse::Press(house.marker, 0.4);
    PlayerHouse::MoveTo(house.marker, 30);

    EXPECT_DOUBLE_EQ(house.marker.Left(), 40);
}

TEST(FadeRoom, ReleaseKeepsTheSecondsAndRightPopsUpTheMenu) {
    MarkerAt40 house;
    PlayerHouse::Press(house.marker, 2);

    PlayerHouse::Release(house.marker, controls::kRightButton);

    EXPECT_EQ(house.state.FadeSeconds, 60);
    EXPECT_FALSE(house.state.FadeDragging.IsOn());
    EXPECT_EQ(house.window.TakeCalls(), Texts{"popup mnuCrossfade"});
    EXPECT_EQ(house.address.Focused, 1);
}

struct Popup {
    controls::Menu player::PlayerMenu::* entry;
    int seconds;
    double left;
};

TEST(FadeRoom, WhatIsChosenAtTheMarkerIsThereBeforeItsPlaceIsTaken) {
    using Menu = player::PlayerMenu;
    for (const Popup& choice : {Popup{&Menu::mnuQuickFade, 5, 95}, Popup{&Menu::mnuMediumFade, 10, 90},
                                Popup{&Menu::mnuLongFade, 20, 80}, Popup{&Menu::mnuFadeOff, 0, 98}}) {
        MarkerAt40 house;
        PlayerHouse::Press(house.marker, 2);
        PlayerHouse::Release(house.marker, controls::kRightButton);

        (house.menu.*choice.entry).Click.Raise();

        EXPECT_EQ(house.state.FadeSeconds, choice.seconds);
        EXPECT_DOUBLE_EQ(house.marker.Left(), choice.left);
    }
}

TEST(FadeRoom, OffFromTheMenuBarKeepsTheSecondsAlsoAfterTheMenuAtTheMarkerWasLeft) {
    MarkerAt40 house;
    PlayerHouse::Press(house.marker, 2);
    PlayerHouse::Release(house.marker, controls::kRightButton);
    PlayerHouse::MoveTo(house.marker, 2);

    house.menu.mnuFadeOff.Click.Raise();

    EXPECT_EQ(house.state.FadeSeconds, 60);
}

}  // namespace
