// Songs without a gap: what the device is told, and that nobody else notices.
#include <gtest/gtest.h>

#include "player/PlayerHouse.h"

namespace {

using player_tests::Orders;
using player_tests::PlayerHouse;
using Texts = std::vector<std::string>;

/// The fade is off for good, and the first of three songs of a minute plays.
struct Joining : PlayerHouse {
    Joining() {
        for (const char* name : {"1.mp3", "2.mp3", "3.mp3"}) {
            paths.push_back(AddSong(name, 60'000));
            AddTrack(name, paths.back());
        }
        state.FadeSeconds = 0;
        menu.mnuFadeOff.Click.Raise();
        DoubleClickTrack(0);
        player.RestoreBars();
        TakeCommands();
    }
    void GoTo(double seconds) {
        device.SetFrame("a", static_cast<std::int64_t>(seconds * 1000));
        controls.transport.tmrPlay.Tick.Raise();
    }
    std::string Next() const {
        const std::string next = device.NextOf("a");
        return next.empty() ? next : files.FromNative(files.ToNative(next));
    }

    Texts paths;
};

TEST(JoinRoom, TheNextSongOfTheOrderIsToldInTheLastSeconds) {
    Joining house;

    house.GoTo(45);
    EXPECT_EQ(house.Next(), "");

    house.GoTo(55);
    EXPECT_EQ(house.Next(), house.paths[1]);
    house.TakeCommands();
    house.GoTo(55.5);
    EXPECT_EQ(Orders(house.TakeCommands()), Texts()) << "once";
}

TEST(JoinRoom, NothingElseIsToldBeforeTheSongIsOver) {
    Joining house;
    const auto history = house.history.Rows;

    house.GoTo(55);
    house.GoTo(59.9);

    EXPECT_EQ(house.history.Rows, history);
    EXPECT_EQ(house.NowPlaying(), house.paths[0]);
    EXPECT_EQ(house.controls.queue.lstNowPlaying.ListIndex(), 0);
    EXPECT_EQ(house.PlayingOn("a"), house.paths[0]) << "the last half percent is heard too";
}

TEST(JoinRoom, TheSongGivesWayWhenItIsOver) {
    Joining house;
    house.GoTo(55);
    house.GoTo(59.9);

    house.device.Advance(200);
    house.controls.transport.tmrPlay.Tick.Raise();

    EXPECT_EQ(house.PlayingOn("a"), house.paths[1]);
    EXPECT_EQ(house.NowPlaying(), house.paths[1]);
    EXPECT_FALSE(house.controls.levels.tmrFade.Enabled());
    EXPECT_EQ(house.controls.queue.lstNowPlaying.ListIndex(), 1);
}

TEST(JoinRoom, ASongThatFollowsIsPannedOn) {
    Joining house;
    house.menu.mnuPanMedium.Click.Raise();
    ASSERT_TRUE(house.controls.levels.tmrPanning.Enabled());
    house.GoTo(55);
    house.GoTo(59.9);

    house.device.Advance(200);
    house.controls.transport.tmrPlay.Tick.Raise();

    ASSERT_EQ(house.PlayingOn("a"), house.paths[1]);
    EXPECT_TRUE(house.controls.levels.tmrPanning.Enabled());
}

TEST(JoinRoom, ADeviceThatDoesNotGetToTheEndIsNotWaitedForForEver) {
    Joining house;
    house.GoTo(55);

    for (int i = 0; i < 60; ++i)
        house.GoTo(59.9);

    EXPECT_EQ(house.NowPlaying(), house.paths[1]);
}

TEST(JoinRoom, APauseInTheLastMomentPauses) {
    Joining house;
    house.GoTo(55);
    house.GoTo(59.9);

    house.menu.mnuPause.Click.Raise();
    for (int i = 0; i < 60; ++i)
        house.controls.transport.tmrPlay.Tick.Raise();

    EXPECT_EQ(house.NowPlaying(), house.paths[0]);
    EXPECT_EQ(house.device.Mode("a"), "paused");

    house.menu.mnuPlay.Click.Raise();
    house.device.Advance(200);
    house.controls.transport.tmrPlay.Tick.Raise();
    EXPECT_EQ(house.NowPlaying(), house.paths[1]);
}

TEST(JoinRoom, OffChosenAtTheMarkerOfALongSongLastsIntoAShortOne) {
    PlayerHouse house;
    house.AddTrack("long", house.AddSong("long.mp3", 900'000));
    for (const char* name : {"short.mp3", "next.mp3"})
        house.AddTrack(name, house.AddSong(name, 180'000));
    house.DoubleClickTrack(0);
    house.player.RestoreBars();
    auto& marker = house.controls.levels.lblStartFade;
    PlayerHouse::Release(marker, controls::kRightButton);
    house.menu.mnuFadeOff.Click.Raise();
    EXPECT_EQ(house.state.FadeSeconds, 0) << "a pixel of this song is a second and a half";

    house.DoubleClickTrack(1);
    house.RunFor(100);
    const std::string alias = house.PlayingOn("a").empty() ? "b" : "a";
    house.device.SetFrame(alias, 175'000);
    house.controls.transport.tmrPlay.Tick.Raise();

    EXPECT_NE(house.device.NextOf(alias), "");
}

TEST(JoinRoom, ACueTakesItBack) {
    Joining house;
    house.GoTo(55);
    house.lstTracks.SetListIndex(2);

    house.menu.mnuCueSong.Click.Raise();
    house.GoTo(55.5);

    EXPECT_EQ(house.Next(), "");
}

TEST(JoinRoom, ARandomNextSongTakesItBack) {
    Joining house;
    house.GoTo(55);

    house.menu.mnuShuffle.Click.Raise();
    house.GoTo(55.5);

    EXPECT_EQ(house.Next(), "");
}

TEST(JoinRoom, RepeatMakesTheSongFollowItself) {
    Joining house;
    house.GoTo(55);

    house.menu.mnuRepeat.Click.Raise();
    house.GoTo(55.5);

    EXPECT_EQ(house.Next(), house.paths[0]);
}

TEST(JoinRoom, AFadeTakesItBack) {
    Joining house;
    house.GoTo(52);
    ASSERT_EQ(house.Next(), house.paths[1]);

    house.menu.mnuQuickFade.Click.Raise();
    house.GoTo(52.5);

    EXPECT_EQ(house.Next(), "");
}

TEST(JoinRoom, AnotherOrderChangesWhatFollows) {
    Joining house;
    house.GoTo(55);

    house.controls.queue.lstNowPlaying.RemoveItem(1);
    house.GoTo(55.5);

    EXPECT_EQ(house.Next(), house.paths[2]);
}

TEST(JoinRoom, ASongChosenByHandTakesItBackBeforeTheTwoCross) {
    Joining house;
    house.GoTo(55);
    house.TakeCommands();

    house.player.PlaySong(house.paths[2]);

    const Texts orders = Orders(house.TakeCommands());
    ASSERT_GE(orders.size(), 2U);
    EXPECT_EQ(orders[0], "follow a");
    EXPECT_EQ(orders[1], "Close b");
}

TEST(JoinRoom, FilmsAndFilesThatAreGoneDoNotFollow) {
    for (const char* name : {"2.avi", "gone.mp3"}) {
        PlayerHouse house;
        house.AddTrack("1", house.AddSong("1.mp3", 60'000));
        house.AddTrack("2", name[0] == 'g' ? PlayerHouse::Gone(name) : house.AddSong(name, 60'000));
        house.state.FadeSeconds = 0;
        house.menu.mnuFadeOff.Click.Raise();
        house.DoubleClickTrack(0);

        house.device.SetFrame("a", 55'000);
        house.controls.transport.tmrPlay.Tick.Raise();

        EXPECT_EQ(house.device.NextOf("a"), "") << name;
    }
}

TEST(JoinRoom, WithAFadeASongEndsAsEver) {
    Joining house;
    house.menu.mnuQuickFade.Click.Raise();
    house.player.RestoreBars();

    house.GoTo(56);

    EXPECT_EQ(house.device.NextOf("a"), "");
    EXPECT_EQ(house.NowPlaying(), house.paths[1]);
    EXPECT_TRUE(house.controls.levels.tmrFade.Enabled());
}

}  // namespace
