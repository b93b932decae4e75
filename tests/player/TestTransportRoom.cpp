#include <gtest/gtest.h>

#include "player/PlayerHouse.h"

namespace {

using player_tests::Orders;
using player_tests::PlayerHouse;
using Texts = std::vector<std::string>;

/// A song of 100 seconds on "a", its marker 2 seconds wide; the next one in the order waits.
struct Playing : PlayerHouse {
    Playing() {
        AddTrack("a", AddSong("a.mp3", 100000));
        AddTrack("b", AddSong("b.mp3", 100000));
        DoubleClickTrack(0);
        bar.SetScaleWidth(100);
        marker.SetWidth(2);
        start_fade.SetWidth(2);
        TakeCommands();
        window.TakeCalls();
    }
    void GoTo(double seconds) {
        device.SetFrame("a", static_cast<std::int64_t>(seconds * 1000));
        controls.transport.tmrPlay.Tick.Raise();
    }

    controls::PictureBox& bar = controls.transport.picSongProgress;
    controls::Label& marker = controls.transport.lblProgress;
    controls::Label& start_fade = controls.levels.lblStartFade;
    controls::Label& time = controls.transport.lblRunningTime;
};

TEST(TransportRoom, ATickWhileStoppedOnlyLooksAtTheAddress) {
    PlayerHouse house;

    house.desktop.Advance(500);

    EXPECT_EQ(house.address.Cleared, 10);
    EXPECT_TRUE(house.TakeCommands().empty());
    EXPECT_TRUE(house.window.TakeCalls().empty());
}

TEST(TransportRoom, ATickMovesTheMarkerAndWritesTheTime) {
    Playing house;

    house.GoTo(65.6);

    EXPECT_DOUBLE_EQ(house.marker.Left(), 64.6);
    EXPECT_EQ(house.time.Caption(), "1:06/1:40");
}

TEST(TransportRoom, ATickAsksTheDeviceInOrder) {
    Playing house;
    house.GoTo(9);
    house.TakeCommands();

    house.GoTo(10);

    const Texts expected = {"status a position", "status a position", "set a time format frames",
                            "status a length", "status a position"};
    EXPECT_EQ(house.TakeCommands(), expected);
}

TEST(TransportRoom, PastTheMarkerTheNextSongStartsWithACrossfade) {
    Playing house;
    house.controls.levels.tmrPanning.SetEnabled(true);

    house.GoTo(94.1);

    EXPECT_EQ(house.PlayingOn("b"), "C:\\m\\b.mp3");
    EXPECT_TRUE(house.controls.levels.tmrFade.Enabled());
    EXPECT_FALSE(house.controls.levels.tmrPanning.Enabled());
}

TEST(TransportRoom, EqualEdgesDoNotEndTheSong) {
    Playing house;

    house.GoTo(94);

    EXPECT_DOUBLE_EQ(house.marker.Right(), house.start_fade.Left());
    EXPECT_FALSE(house.IsOpen("b"));
}

TEST(TransportRoom, TheTickBehindEqualEdgesEndsTheSong) {
    Playing house;
    house.GoTo(94);

    house.GoTo(94.05);

    EXPECT_TRUE(house.IsOpen("b"));
}

TEST(TransportRoom, ATickThatEndsASongDoesNothingElse) {
    Playing house;
    const double left = house.controls.transport.lblTrack.Left();

    house.GoTo(94.1);

    EXPECT_EQ(house.controls.transport.lblTrack.Left(), left);
    EXPECT_EQ(house.controls.transport.lblTrack.Top(), 0) << "the title made no step";
}

TEST(TransportRoom, TheNumberOfFramesASecondMayBeMissing) {
    Playing house;
    house.GoTo(10);
    const double left = house.marker.Left();
    house.state.FramesPerSecond = 0;

    house.GoTo(20);

    EXPECT_EQ(house.marker.Left(), left);
    EXPECT_EQ(house.time.Caption(), "0:10/1:40");
    EXPECT_EQ(house.PlayingOn("a"), "C:\\m\\a.mp3") << "the percent test still asks the device";
}

TEST(TransportRoom, TheNumberOfFramesASecondIsAskedForUntilItIsKnown) {
    Playing house;
    house.GoTo(10);
    house.state.FramesPerSecond = -1;

    house.GoTo(20);

    EXPECT_EQ(house.time.Caption(), "0:20/1:40");
}

TEST(TransportRoom, ASongThatWasCutOffLeavesTheDisplayAsItWas) {
    Playing house;
    house.GoTo(10);
    house.mci.MciClose("a");

    house.controls.transport.tmrPlay.Tick.Raise();

    EXPECT_DOUBLE_EQ(house.marker.Left(), 9);
    EXPECT_EQ(house.time.Caption(), "0:10/1:40");
    EXPECT_FALSE(house.IsOpen("b"));
}

TEST(TransportRoom, TheTimeIsRoundedToTheEvenSecond) {
    const std::vector<std::pair<double, const char*>> cases = {{0.5, "0:00/1:40"},
                                                               {1.5, "0:02/1:40"},
                                                               {59.4, "0:59/1:40"},
                                                               {59.5, "1:00/1:40"},
                                                               {61.2, "1:01/1:40"}};
    for (const auto& [seconds, text] : cases) {
        Playing house;

        house.GoTo(seconds);

        EXPECT_EQ(house.time.Caption(), text) << seconds;
    }
}

TEST(TransportRoom, TheLastHalfPercentRoundsToTheEvenHundred) {
    for (const auto& [seconds, ends] :
         {std::pair{99.4, false}, std::pair{99.5, true}, std::pair{99.9, true}}) {
        Playing house;
        house.marker.SetWidth(0.1);
        house.start_fade.SetLeft(200);

        house.GoTo(seconds);

        EXPECT_EQ(house.IsOpen("b"), ends) << seconds;
    }
}

TEST(TransportRoom, AtHundredPercentTheNextSongStartsAndPanningGoesOn) {
    Playing house;
    house.controls.levels.tmrPanning.SetEnabled(true);
    house.start_fade.SetLeft(98);
    house.marker.SetWidth(0.1);

    house.device.Advance(100000);
    house.start_fade.SetLeft(101);
    house.controls.transport.tmrPlay.Tick.Raise();

    EXPECT_EQ(house.PlayingOn("a"), "C:\\m\\b.mp3") << "the first had stopped, so there is no fade";
    EXPECT_FALSE(house.controls.levels.tmrFade.Enabled());
    EXPECT_TRUE(house.controls.levels.tmrPanning.Enabled());
}

TEST(TransportRoom, WithTheFadeOffTheLastHalfPercentEndsTheSong) {
    Playing house;
    // A random next song cannot follow the last sample.
    house.menu.mnuShuffle.Click.Raise();
    house.chance.Value = 0.9;
    house.menu.mnuFadeOff.Click.Raise();
    house.marker.SetWidth(0.2);
    house.start_fade.SetLeft(99.8);

    house.GoTo(99.4);
    const bool before = house.IsOpen("b");
    house.GoTo(99.6);

    EXPECT_FALSE(before);
    EXPECT_EQ(house.PlayingOn("b"), "C:\\m\\b.mp3");
}

TEST(TransportRoom, ASongShorterThanTheFadeEndsAtOnce) {
    PlayerHouse house;
    house.AddTrack("short", house.AddSong("short.mp3", 3000));
    house.AddTrack("long", house.AddSong("long.mp3", 300000));
    house.DoubleClickTrack(0);

    house.RunFor(50);

    EXPECT_EQ(house.NowPlaying(), "C:\\m\\long.mp3");
}

TEST(TransportRoom, AWholeSongRunsIntoTheNextByItself) {
    PlayerHouse house;
    house.AddTrack("1", house.AddSong("1.mp3", 60000));
    house.AddTrack("2", house.AddSong("2.mp3", 60000));
    house.DoubleClickTrack(0);

    // At 103 percent speed the marker, 5 seconds before the end, is reached after some 53 seconds.
    house.RunFor(52000);
    const std::string before = house.NowPlaying();
    house.RunFor(5000);

    EXPECT_EQ(before, "C:\\m\\1.mp3");
    EXPECT_EQ(house.NowPlaying(), "C:\\m\\2.mp3");
    EXPECT_FALSE(house.IsOpen("a"));
    EXPECT_EQ(house.LevelOf("b"), 100);
}

TEST(TransportRoom, WithoutASongTheDisplayStays) {
    PlayerHouse house;
    house.state.PlayerStopped = false;
    house.controls.transport.lblProgress.SetLeft(7);

    house.controls.transport.tmrPlay.Tick.Raise();

    EXPECT_EQ(house.controls.transport.lblProgress.Left(), 7);
    EXPECT_EQ(house.controls.transport.lblRunningTime.Caption(), "0:00/0:00");
}

TEST(TransportRoom, ATimeWithoutATotalIsShownEmpty) {
    Playing house;
    house.state.TotalTimeText.clear();

    house.GoTo(10);

    EXPECT_EQ(house.time.Caption(), "0:00/0:00");
}

TEST(TransportRoom, TheTimeStaysAfterStop) {
    Playing house;
    house.GoTo(10);

    house.menu.mnuStop.Click.Raise();
    house.desktop.Advance(100);

    EXPECT_EQ(house.time.Caption(), "0:10/1:40");
}

TEST(TransportRoom, APressOnTheBarSeeksToItsSecond) {
    Playing house;

    PlayerHouse::Press(house.bar, 33.3);

    EXPECT_EQ(Orders(house.TakeCommands()), (Texts{"seek a to 33300", "Play a"}));
    EXPECT_EQ(house.device.Frame("a"), 33300);
}

TEST(TransportRoom, APressOnTheBarOfAVideoSeeksToItsPicture) {
    PlayerHouse house;
    house.player.PlaySong(house.AddSong("film.avi", 100000));
    house.TakeCommands();

    PlayerHouse::Press(house.controls.transport.picSongProgress, 1.1);

    EXPECT_EQ(Orders(house.TakeCommands()), (Texts{"seek a to 28", "Play a"}))
        << "27.5 rounds to the even 28";
}

TEST(TransportRoom, APressAsksForTheFramesASecondFirst) {
    Playing house;

    PlayerHouse::Press(house.bar, 5);

    EXPECT_EQ(house.TakeCommands(),
              (Texts{"set a time format ms", "status a length", "set a time format frames",
                     "set a time format frames", "status a length", "seek a to 5000", "Play a"}));
}

TEST(TransportRoom, ANotchOfTheWheelIsFiveSeconds) {
    Playing house;
    house.device.SetFrame("a", 30000);

    house.bar.MouseWheel.Raise(1);
    const auto forward = house.device.Frame("a");
    house.bar.MouseWheel.Raise(-3);

    EXPECT_EQ(forward, 35000);
    EXPECT_EQ(house.device.Frame("a"), 20000);
    EXPECT_EQ(house.PlayingOn("a"), "C:\\m\\a.mp3");
}

TEST(TransportRoom, TheWheelStaysInTheSong) {
    Playing house;
    house.device.SetFrame("a", 3000);

    house.bar.MouseWheel.Raise(-1);
    const auto start = house.device.Frame("a");
    house.bar.MouseWheel.Raise(50);

    EXPECT_EQ(start, 0);
    EXPECT_EQ(house.device.Frame("a"), 100000);
}

TEST(TransportRoom, TheWheelDoesNothingWithoutASongOrDuringADragOfTheFadeMarker) {
    Playing house;
    house.state.FadeDragging.Press(1);
    house.bar.MouseWheel.Raise(1);
    house.state.FadeDragging.End();
    house.menu.mnuStop.Click.Raise();
    house.TakeCommands();

    house.bar.MouseWheel.Raise(1);

    EXPECT_TRUE(Orders(house.TakeCommands()).empty());
    EXPECT_FALSE(house.IsOpen("a"));
}

TEST(TransportRoom, APressOnTheBarDoesNothingWhileTheFadeMarkerIsDraggedOrNothingPlays) {
    Playing house;
    house.state.FadeDragging.Press(1);
    PlayerHouse::Press(house.bar, 33.3);
    house.state.FadeDragging.End();
    house.controls.transport.lblTrack.SetCaption("");

    PlayerHouse::Press(house.bar, 33.3);

    EXPECT_TRUE(house.TakeCommands().empty());
}

TEST(TransportRoom, EachMoveOfADragSeeks) {
    Playing house;
    house.marker.SetLeft(20);

    PlayerHouse::Press(house.marker, 2);
    PlayerHouse::MoveTo(house.marker, 8);
    PlayerHouse::MoveTo(house.marker, 8);
    PlayerHouse::Release(house.marker);
    PlayerHouse::MoveTo(house.marker, 8);

    EXPECT_DOUBLE_EQ(house.marker.Left(), 28);
    EXPECT_EQ(Orders(house.TakeCommands()),
              (Texts{"seek a to 24000", "Play a", "seek a to 28000", "Play a"}));
    EXPECT_EQ(house.address.Focused, 1);
}

TEST(TransportRoom, ADragStaysOnTheBar) {
    Playing house;

    PlayerHouse::Press(house.marker, 1);
    PlayerHouse::MoveTo(house.marker, -30);
    const double left_end = house.marker.Left();
    PlayerHouse::MoveTo(house.marker, 500);

    EXPECT_DOUBLE_EQ(left_end, 0);
    EXPECT_DOUBLE_EQ(house.marker.Left(), 98);
}

TEST(TransportRoom, APressOnTheFirstUnitLeavesTheMarkerInPlace) {
    Playing house;
    house.marker.SetLeft(20);

    PlayerHouse::Press(house.marker, 0.3);
    PlayerHouse::MoveTo(house.marker, 8);

    EXPECT_DOUBLE_EQ(house.marker.Left(), 20);
    EXPECT_TRUE(house.TakeCommands().empty());
}

TEST(TransportRoom, NothingIsDraggedBeforeTheFirstSong) {
    PlayerHouse house;

    PlayerHouse::Press(house.controls.transport.lblProgress, 2);
    PlayerHouse::MoveTo(house.controls.transport.lblProgress, 8);

    EXPECT_EQ(house.controls.transport.lblProgress.Left(), 0);
}

TEST(TransportRoom, ClicksOnTheTimeGiveTheFocusBack) {
    PlayerHouse house;

    house.controls.transport.lblRunningTime.Click.Raise();
    house.controls.transport.picRunningTime.Click.Raise();
    PlayerHouse::Release(house.controls.transport.picSongProgress);

    EXPECT_EQ(house.address.Focused, 3);
}

TEST(TransportRoom, MovesOverTheDisplaysHideTheHighlights) {
    PlayerHouse house;
    auto& t = house.controls.transport;

    for (controls::Control* control : std::initializer_list<controls::Control*>{
             &t.picSongProgress, &t.picRunningTime, &t.picTrackTitle, &t.fraControls, &t.imgControlsBG}) {
        PlayerHouse::MoveTo(*control, 1);
    }

    EXPECT_EQ(house.window.TakeCalls(), Texts(5, "no mouse overs"));
}

TEST(TransportRoom, AResizeRestoresScaleAndMarkers) {
    Playing house;
    house.bar.SetWidth(12000);
    house.bar.SetScaleWidth(50);

    house.player.RestoreBars();

    EXPECT_DOUBLE_EQ(house.bar.ScaleWidth(), 100);
    EXPECT_DOUBLE_EQ(house.start_fade.Left(), 95);
    EXPECT_DOUBLE_EQ(house.marker.Width(), 0.125) << "15 twips";
}

TEST(TransportRoom, WithTheFadeOffTheMarkersMeetInTheLastHalfPercent) {
    Playing house;
    house.bar.SetWidth(5000);
    house.player.RestoreBars();
    house.menu.mnuFadeOff.Click.Raise();

    house.GoTo(99.4);

    EXPECT_EQ(house.PlayingOn("a"), "C:\\m\\a.mp3") << "the last sound of a song is not cut off";
    EXPECT_EQ(house.PlayingOn("b"), "");
}

}  // namespace
