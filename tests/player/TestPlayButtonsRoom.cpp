#include <gtest/gtest.h>

#include "player/PlayerHouse.h"

namespace {

using player_tests::Orders;
using player_tests::PlayerHouse;
using Texts = std::vector<std::string>;

struct Shown {
    bool play, play_over, pause, pause_over;
    bool operator==(const Shown&) const = default;
};

Shown Buttons(const PlayerHouse& house) {
    const auto& t = house.controls.transport;
    return {t.imgPlay.Visible(), t.imgPlayOver.Visible(), t.imgPause.Visible(), t.imgPauseOver.Visible()};
}

constexpr Shown kPlayPair{true, true, false, false};
constexpr Shown kPausePair{false, false, true, true};

TEST(PlayButtonsRoom, DoubleClickPlaysTheSelectedTrackAndShowsPause) {
    PlayerHouse house;
    house.AddTrack("1", house.AddSong("1.mp3"));
    house.AddTrack("2", house.AddSong("2.mp3"));
    house.state.MissingTrackCount = 4;

    house.DoubleClickTrack(1);

    EXPECT_EQ(house.PlayingOn("a"), "C:\\m\\2.mp3");
    EXPECT_EQ(house.controls.queue.lstNowPlaying.ListCount(), 2);
    EXPECT_EQ(house.controls.queue.lstNowPlaying.ListIndex(), 1);
    EXPECT_FALSE(house.ListMaybeChanged);
    EXPECT_EQ(house.state.MissingTrackCount, 0);
    EXPECT_EQ(Buttons(house), kPausePair);
}

TEST(PlayButtonsRoom, DoubleClickReadsANumberFromTheLibrarysTable) {
    PlayerHouse house;
    const auto song = house.AddSong("five.mp3", 30000, 5);
    house.AddTrack("five", "5");

    house.DoubleClickTrack(0);

    EXPECT_EQ(house.PlayingOn("a"), song);
}

TEST(PlayButtonsRoom, DoubleClickKeepsThePlayOrderWhileTheTracksAreTheSame) {
    PlayerHouse house;
    house.AddTrack("1", house.AddSong("1.mp3"));
    house.DoubleClickTrack(0);
    house.lstMaybe.AddItem("C:\\m\\later.mp3");

    house.DoubleClickTrack(0);

    EXPECT_EQ(house.controls.queue.lstNowPlaying.ListCount(), 1);
}

TEST(PlayButtonsRoom, DoubleClickOnNothingShowsPlayWhileADeviceIsClosed) {
    PlayerHouse house;

    house.lstTracks.DblClick.Raise();

    EXPECT_EQ(house.TakeCommands(), (Texts{"status b mode", "status a mode"}));
    EXPECT_EQ(Buttons(house), kPlayPair);
}

TEST(PlayButtonsRoom, DoubleClickOnNothingLeavesTheButtonsWhileBothPlay) {
    PlayerHouse house;
    house.player.PlaySong(house.AddSong("1.mp3"));
    house.player.PlaySong(house.AddSong("2.mp3"));
    const Shown before = Buttons(house);

    house.lstTracks.DblClick.Raise();

    EXPECT_EQ(Buttons(house), before);
}

/// Puts an alias into a mode: "playing", "paused", "stopped", or closed for "ERROR".
void PutInto(PlayerHouse& house, std::string_view alias, std::string_view mode) {
    if (mode == "ERROR") return;
    house.mci.MciOpen(0, alias, house.AddSong("any.mp3"), "MPEGVideo");
    if (mode == "stopped") return;
    house.mci.MciPlay(alias, "", "");
    if (mode == "paused") house.mci.MciPause(alias);
}

TEST(PlayButtonsRoom, DoubleClickOnNothingShowsPlayUnlessBothPlay) {
    for (const char* a : {"playing", "paused", "stopped", "ERROR"}) {
        for (const char* b : {"playing", "paused", "stopped", "ERROR"}) {
            PlayerHouse house;
            PutInto(house, "a", a);
            PutInto(house, "b", b);
            house.controls.transport.imgPause.SetVisible(true);

            house.lstTracks.DblClick.Raise();

            const bool both_play = std::string_view(a) == "playing" && std::string_view(b) == "playing";
            EXPECT_EQ(house.controls.transport.imgPause.Visible(), both_play) << a << " " << b;
        }
    }
}

TEST(PlayButtonsRoom, PlayActsOnTheModesOfBothAliases) {
    using player::Alias;
    struct Case {
        const char* a;
        const char* b;
        Alias current;
        Texts orders;
    };
    const std::vector<Case> cases = {
        {"paused", "ERROR", Alias::A, {"Resume a", "Close b"}},
        {"paused", "paused", Alias::A, {"Resume a", "Close b"}},
        {"paused", "paused", Alias::B, {"Close a", "Resume b"}},
        {"ERROR", "paused", Alias::B, {"Close a", "Resume b"}},
        {"playing", "paused", Alias::B, {"Close a", "Resume b"}},
        {"paused", "playing", Alias::None, {"Close a", "Resume b"}},
        {"playing", "ERROR", Alias::A, {}},
        {"ERROR", "playing", Alias::B, {}},
        {"stopped", "playing", Alias::B, {}},
    };
    for (const Case& one : cases) {
        PlayerHouse house;
        PutInto(house, "a", one.a);
        PutInto(house, "b", one.b);
        house.state.CurrentAlias = one.current;
        house.TakeCommands();

        house.controls.transport.imgPlayOver.Click.Raise();

        EXPECT_EQ(Orders(house.TakeCommands()), one.orders)
            << one.a << " " << one.b << " " << player::TextOf(one.current);
        EXPECT_EQ(Buttons(house), kPausePair);
        EXPECT_EQ(house.address.Focused, 1);
    }
}

TEST(PlayButtonsRoom, PlayWithNothingToPlayShowsThePlayPairAgain) {
    PlayerHouse house;

    house.controls.transport.imgPlayOver.Click.Raise();

    EXPECT_EQ(Buttons(house), kPlayPair);
    EXPECT_EQ(house.address.Focused, 1);
}

TEST(PlayButtonsRoom, DoubleClickShowsPauseThoughTheSongIsGone) {
    PlayerHouse house;
    house.AddTrack("gone", "77");

    house.DoubleClickTrack(0);

    EXPECT_EQ(Buttons(house), kPausePair);
    EXPECT_FALSE(house.IsOpen("a"));
}

TEST(PlayButtonsRoom, DoubleClickTakesTheRowsAsTheyAreOnceTheListWasRefilled) {
    PlayerHouse house;
    house.AddTrack("1", house.AddSong("1.mp3"));
    house.DoubleClickTrack(0);
    house.lstTracks.Clear();
    house.lstMaybe.Clear();
    house.AddTrack("2", house.AddSong("2.mp3"));
    house.AddTrack("3", house.AddSong("3.mp3"));

    house.DoubleClickTrack(1);

    const auto& order = house.controls.queue.lstNowPlaying;
    ASSERT_EQ(order.ListCount(), 2);
    EXPECT_EQ(order.List(0), "C:\\m\\2.mp3");
    EXPECT_EQ(order.List(1), "C:\\m\\3.mp3");
    EXPECT_EQ(order.ListIndex(), 1);
}

TEST(PlayButtonsRoom, APausedFadeIsNeverTakenUpAgain) {
    PlayerHouse house;
    house.player.PlaySong(house.AddSong("1.mp3", 600000));
    house.player.PlaySong(house.AddSong("2.mp3", 600000));
    house.desktop.Advance(600);
    house.menu.mnuPause.Click.Raise();
    house.menu.mnuPlay.Click.Raise();

    house.desktop.Advance(10'000);

    EXPECT_EQ(house.LevelOf("b"), 20);
    EXPECT_FALSE(house.IsOpen("a"));
    EXPECT_FALSE(house.controls.levels.tmrFade.Enabled());
}

TEST(PlayButtonsRoom, DoubleClickCountsForTheVideoWindow) {
    PlayerHouse house;

    house.lstTracks.DblClick.Raise();

    EXPECT_EQ(house.state.counter, 1);
}

TEST(PlayButtonsRoom, TheMouseOverAPlainPictureShowsTheBrightOne) {
    PlayerHouse house;
    auto& t = house.controls.transport;

    PlayerHouse::MoveTo(t.imgPlay, 0);
    PlayerHouse::MoveTo(t.imgPause, 0);
    PlayerHouse::MoveTo(t.imgStop, 0);

    EXPECT_TRUE(t.imgPlayOver.Visible());
    EXPECT_TRUE(t.imgPauseOver.Visible());
    EXPECT_TRUE(t.imgStopOver.Visible());
}

TEST(PlayButtonsRoom, PauseStopsBothSongsAndTheFade) {
    PlayerHouse house;
    house.player.PlaySong(house.AddSong("1.mp3"));
    house.player.PlaySong(house.AddSong("2.mp3"));
    house.TakeCommands();

    house.controls.transport.imgPauseOver.Click.Raise();

    EXPECT_EQ(house.TakeCommands(), (Texts{"Pause a", "Pause b"}));
    EXPECT_FALSE(house.controls.levels.tmrFade.Enabled());
    EXPECT_EQ(Buttons(house), kPlayPair);
    EXPECT_EQ(house.address.Focused, 1);
}

TEST(PlayButtonsRoom, PlayDropsTheOutgoingSongOfAPausedCrossfade) {
    PlayerHouse house;
    house.player.PlaySong(house.AddSong("1.mp3"));
    house.player.PlaySong(house.AddSong("2.mp3"));
    house.desktop.Advance(600);
    house.menu.mnuPause.Click.Raise();
    house.TakeCommands();

    house.menu.mnuPlay.Click.Raise();

    EXPECT_EQ(Orders(house.TakeCommands()), (Texts{"Close a", "Resume b"}));
    EXPECT_EQ(house.LevelOf("b"), 20) << "it stays at the level it had reached";
    EXPECT_EQ(Buttons(house), kPausePair);
}

TEST(PlayButtonsRoom, PlayResumesA) {
    PlayerHouse house;
    house.player.PlaySong(house.AddSong("1.mp3"));
    house.menu.mnuPause.Click.Raise();
    house.TakeCommands();

    house.menu.mnuPlay.Click.Raise();

    EXPECT_EQ(Orders(house.TakeCommands()), (Texts{"Resume a", "Close b"}));
}

TEST(PlayButtonsRoom, PlayDoesNothingMoreWhileASongPlays) {
    PlayerHouse house;
    house.AddTrack("1", house.AddSong("1.mp3"));
    house.DoubleClickTrack(0);
    house.TakeCommands();

    house.menu.mnuPlay.Click.Raise();

    EXPECT_TRUE(Orders(house.TakeCommands()).empty());
    EXPECT_EQ(house.history.Rows.size(), 1U);
}

TEST(PlayButtonsRoom, PlayStartsTheSelectedTrackWhenNothingIsOpen) {
    PlayerHouse house;
    house.AddTrack("1", house.AddSong("1.mp3"));
    house.lstTracks.SetListIndex(0);

    house.controls.transport.imgPlayOver.Click.Raise();

    EXPECT_EQ(house.PlayingOn("a"), "C:\\m\\1.mp3");
}

TEST(PlayButtonsRoom, StopStopsBothThenClosesBothAndTellsTheMessenger) {
    PlayerHouse house;
    house.player.PlaySong(house.AddSong("1.mp3"));
    house.desktop.Advance(1000);
    house.TakeCommands();
    house.window.TakeCalls();
    house.message.Sent.clear();

    house.menu.mnuStop.Click.Raise();

    EXPECT_EQ(house.TakeCommands(), (Texts{"Stop a", "Stop b", "Close a", "Close b"}));
    EXPECT_TRUE(house.state.PlayerStopped);
    EXPECT_EQ(house.controls.transport.lblProgress.Left(), 0);
    EXPECT_EQ(house.window.TakeCalls(), Texts{"close hole"});
    EXPECT_EQ(Buttons(house), (Shown{true, false, false, false}));
    EXPECT_FALSE(house.controls.levels.tmrFade.Enabled());
    EXPECT_TRUE(house.controls.levels.tmrPanning.Enabled());
    EXPECT_EQ(house.message.Sent, Texts{"off|{0} - {1} {2}||||"});
    EXPECT_FALSE(house.frmVideo.Visible());
    EXPECT_EQ(house.address.Focused, 1);
    EXPECT_EQ(house.window.VideoPanePlacings, 1);
}

TEST(PlayButtonsRoom, StopHoldsAlsoWhileASongIsBeingStarted) {
    struct Case {
        const char* name;
        bool at_second_yield;
    };
    for (const Case& now : {Case{"song.mp3", false}, Case{"film.avi", false}, Case{"film.avi", true}}) {
        PlayerHouse house;
        house.AddTrack(now.name, house.AddSong(now.name));
        const auto stop = [&house] { house.menu.mnuStop.Click.Raise(); };
        house.desktop.Post([&] { now.at_second_yield ? house.desktop.Post(stop) : stop(); });

        house.DoubleClickTrack(0);
        house.RunFor(200);

        EXPECT_TRUE(house.state.PlayerStopped) << now.name << now.at_second_yield;
        EXPECT_EQ(house.PlayingOn("a"), "") << now.name << now.at_second_yield;
        EXPECT_TRUE(house.controls.transport.imgPlay.Visible()) << now.name << now.at_second_yield;
        EXPECT_FALSE(house.controls.transport.imgPause.Visible()) << now.name << now.at_second_yield;
        EXPECT_FALSE(house.frmVideo.Visible()) << now.name << now.at_second_yield;
    }
}

TEST(PlayButtonsRoom, ALayoutWhileStoppedTellsNobodyAndLeavesTheKeyboard) {
    PlayerHouse house;
    house.player.PlaySong(house.AddSong("a.mp3"));
    house.menu.mnuStop.Click.Raise();
    const std::size_t sent = house.message.Sent.size();
    const int focused = house.address.Focused;
    house.TakeCommands();
    house.controls.transport.lblProgress.SetLeft(7);

    for (int step = 0; step < 20; ++step)
        house.window.Form_Resize();

    EXPECT_EQ(house.message.Sent.size(), sent);
    EXPECT_EQ(house.address.Focused, focused);
    EXPECT_TRUE(Orders(house.TakeCommands()).empty());
    EXPECT_EQ(house.controls.transport.lblProgress.Left(), 0);
    EXPECT_TRUE(house.player.IsPlayShown());
    EXPECT_TRUE(house.controls.levels.tmrPanning.Enabled());
}

}  // namespace
