#include <gtest/gtest.h>

#include "base/DrivePath.h"
#include "player/PlayerHouse.h"

namespace {

using player_tests::Orders;
using player_tests::PlayerHouse;
using Texts = std::vector<std::string>;

TEST(PlaybackRoom, OpensAndPlaysTheFirstSongOnA) {
    PlayerHouse house;
    const auto song = house.AddSong("Owls - Fly.mp3");
    const auto word = house.files.GetShortPathName(song);

    house.player.PlaySong(song);

    const Texts expected = {
        "Close a",
        "open " + word + " type MPEGVideo Alias a parent 0 Style 1073741824",
        "play a from 0 to 30000",
        "set a speed 1030",
        "put a window at 0 0 320 240",
    };
    EXPECT_EQ(Orders(house.TakeCommands()), expected);
    EXPECT_EQ(house.state.CurrentAlias, player::Alias::A);
    EXPECT_EQ(house.NowPlaying(), song);
    EXPECT_FALSE(house.state.PlayerStopped);
}

TEST(PlaybackRoom, AsksBothModesBeforeItChoosesTheAlias) {
    PlayerHouse house;

    house.player.PlaySong(house.AddSong("a.mp3"));

    const Texts commands = house.TakeCommands();
    ASSERT_GE(commands.size(), 3U);
    EXPECT_EQ(commands[0], "status a mode");
    EXPECT_EQ(commands[1], "status b mode");
    EXPECT_EQ(commands[2], "Close a");
}

TEST(PlaybackRoom, MeasuresTheSongInSeconds) {
    PlayerHouse house;

    house.player.PlaySong(house.AddSong("a.mp3", 125400));

    EXPECT_EQ(house.state.FramesPerSecond, 1000);
    EXPECT_DOUBLE_EQ(house.controls.transport.picSongProgress.ScaleWidth(), 125.4);
    EXPECT_EQ(house.state.TotalTimeText, "2:05");
    EXPECT_DOUBLE_EQ(house.controls.levels.lblStartFade.Left(), 120.4);
}

TEST(PlaybackRoom, ShowsTheTitleAndTellsHistoryAndMessenger) {
    PlayerHouse house;
    house.state.NowAlbum = "at home";
    const auto song = house.AddSong("Owls - Fly.mp3");

    house.player.PlaySong(song);

    EXPECT_EQ(house.controls.transport.lblTrack.Caption(), "Owls - Fly");
    EXPECT_EQ(house.controls.transport.lblTrack.Left(), 100);
    EXPECT_EQ(house.history.Rows, Texts{"Music:" + song});
    EXPECT_EQ(house.message.Sent, Texts{"on|{0} - {1} {2}|Owls |Fly|at home|"});
}

TEST(PlaybackRoom, CountsThePlay) {
    PlayerHouse house;
    const auto song = house.AddSong("a.mp3", 30000, 7);

    house.player.PlaySong(song);

    EXPECT_EQ(house.stores.Rows("tblSong").at(0).at(4), "1");
}

TEST(PlaybackRoom, CountsNoPlayDuringStartUp) {
    PlayerHouse house;
    const auto song = house.AddSong("a.mp3", 30000, 7);
    house.window.Loading = true;

    house.player.PlaySong(song);

    EXPECT_EQ(house.stores.Rows("tblSong").at(0).at(4), "0");
    EXPECT_EQ(house.PlayingOn("a"), song);
}

TEST(PlaybackRoom, StartsTheSecondSongSilentlyOnBAndFades) {
    PlayerHouse house;
    house.player.PlaySong(house.AddSong("a.mp3"));
    const auto second = house.AddSong("b.mp3");
    house.TakeCommands();

    house.player.PlaySong(second);

    const Texts orders = Orders(house.TakeCommands());
    ASSERT_GE(orders.size(), 4U);
    EXPECT_EQ(orders[0], "Close b");
    EXPECT_EQ(orders[2], "setaudio b Volume to 0");
    EXPECT_EQ(orders[3], "play b from 0 to 30000");
    EXPECT_TRUE(house.state.FadeToB);
    EXPECT_TRUE(house.controls.levels.tmrFade.Enabled());
}

TEST(PlaybackRoom, GoesBackToAForTheThirdSong) {
    PlayerHouse house;
    house.player.PlaySong(house.AddSong("a.mp3"));
    house.player.PlaySong(house.AddSong("b.mp3"));
    house.mci.MciClose("a");

    house.player.PlaySong(house.AddSong("c.mp3"));

    EXPECT_EQ(house.state.CurrentAlias, player::Alias::A);
    EXPECT_EQ(house.LevelOf("a"), 0);
    EXPECT_FALSE(house.state.FadeToB);
}

TEST(PlaybackRoom, CutsTheOlderSongOffWhenAThirdStartsDuringACrossfade) {
    PlayerHouse house;
    house.player.PlaySong(house.AddSong("a.mp3"));
    house.player.PlaySong(house.AddSong("b.mp3"));
    const auto third = house.AddSong("c.mp3");

    house.player.PlaySong(third);

    EXPECT_EQ(house.PlayingOn("a"), third);
    EXPECT_EQ(house.LevelOf("a"), 100) << "it sounds at the device's level at once";
    EXPECT_FALSE(house.state.FadeToB);
}

struct AliasCase {
    const char* what;
    bool a_plays;
    bool b_plays;
    player::Alias current;
    Texts first_orders;
    bool fades;
    bool to_b;
};

TEST(PlaybackRoom, EachStateOfTheTwoDevicesHasItsCommandsAndItsFade) {
    const std::vector<AliasCase> cases = {
        {"none", false, false, player::Alias::B, {"Close a", "open", "play a from 0 to 30000"}, false, false},
        {"b",
         false,
         true,
         player::Alias::B,
         {"Close a", "open", "setaudio a Volume to 0", "play a from 0 to 30000"},
         true,
         false},
        {"a",
         true,
         false,
         player::Alias::A,
         {"Close b", "open", "setaudio b Volume to 0", "play b from 0 to 30000"},
         true,
         true},
        {"both, a current",
         true,
         true,
         player::Alias::A,
         {"Close b", "open", "play b from 0 to 30000"},
         true,
         true},
        {"both, b current",
         true,
         true,
         player::Alias::B,
         {"Close a", "open", "play a from 0 to 30000"},
         true,
         false},
    };
    for (const AliasCase& one : cases) {
        PlayerHouse house;
        const auto song = house.AddSong("new.mp3");
        house.AddSong("old.mp3");
        for (const auto& [alias, plays] : {std::pair{"a", one.a_plays}, std::pair{"b", one.b_plays}}) {
            if (!plays) continue;
            house.mci.MciOpen(0, alias, "C:\\m\\old.mp3", "MPEGVideo");
            house.mci.MciPlay(alias, "", "");
        }
        house.state.CurrentAlias = one.current;
        house.state.FadeToB = !one.to_b;
        house.TakeCommands();

        house.player.PlaySong(song);

        Texts orders = Orders(house.TakeCommands());
        ASSERT_GE(orders.size(), one.first_orders.size()) << one.what;
        orders.resize(one.first_orders.size());
        orders[1] = orders[1].substr(0, 4);
        EXPECT_EQ(orders, one.first_orders) << one.what;
        EXPECT_EQ(house.controls.levels.tmrFade.Enabled(), one.fades) << one.what;
        EXPECT_EQ(house.state.FadeToB, one.fades ? one.to_b : !one.to_b) << one.what;
        EXPECT_EQ(house.PlayingOn(house.state.CurrentAlias), song) << one.what;
    }
}

TEST(PlaybackRoom, ClosesTheNewAliasEvenWhenItIsPaused) {
    PlayerHouse house;
    house.player.PlaySong(house.AddSong("a.mp3"));
    house.menu.mnuPause.Click.Raise();
    const auto second = house.AddSong("b.mp3");
    house.TakeCommands();

    house.player.PlaySong(second);

    EXPECT_EQ(Orders(house.TakeCommands()).front(), "Close a");
    EXPECT_EQ(house.PlayingOn("a"), second);
    EXPECT_FALSE(house.controls.levels.tmrFade.Enabled());
}

TEST(PlaybackRoom, HistoryAndCountComeBeforeTheYieldAndTheDeviceAfterIt) {
    PlayerHouse house;
    const auto song = house.AddSong("a.mp3", 30000, 7);
    bool seen = false;
    house.desktop.Post([&] {
        seen = true;
        EXPECT_EQ(house.history.Rows, Texts{"Music:" + song});
        EXPECT_EQ(house.stores.Rows("tblSong").at(0).at(4), "1");
        EXPECT_FALSE(house.state.PlayerStopped);
        EXPECT_TRUE(house.TakeCommands().empty());
        EXPECT_TRUE(house.window.TakeCalls().empty());
        EXPECT_EQ(house.state.CurrentAlias, player::Alias::None);
    });

    house.player.PlaySong(song);

    EXPECT_TRUE(seen);
}

TEST(PlaybackRoom, TellsTheMessengerBetweenTheTitleAndTheSpeed) {
    PlayerHouse house;
    Texts before;
    house.message.WhenSent = [&] {
        before = Orders(house.TakeCommands());
        EXPECT_EQ(house.controls.transport.lblTrack.Caption(), "Owls - Fly");
        EXPECT_EQ(house.state.TotalTimeText, "0:30");
    };

    house.player.PlaySong(house.AddSong("Owls - Fly.mp3"));

    ASSERT_EQ(before.size(), 3U);
    EXPECT_EQ(before.back(), "play a from 0 to 30000");
    EXPECT_EQ(Orders(house.TakeCommands()), (Texts{"set a speed 1030", "put a window at 0 0 320 240"}));
}

TEST(PlaybackRoom, AsksForEachLengthInTheOrderOfItsSteps) {
    PlayerHouse house;

    house.player.PlaySong(house.AddSong("a.mp3"));

    const Texts commands = house.TakeCommands();
    const Texts expected = {"set a time format frames", "status a length",  "play a from 0 to 30000",
                            "set a time format ms",     "status a length",  "set a time format frames",
                            "set a time format frames", "status a length",  "set a time format frames",
                            "status a length",          "set a speed 1030", "put a window at 0 0 320 240"};
    ASSERT_EQ(commands.size(), 4 + expected.size());
    EXPECT_EQ(Texts(commands.begin() + 4, commands.end()), expected);
}

TEST(PlaybackRoom, ASongThatStartsDuringTheYieldIsCrossedOverToTheOuterOne) {
    PlayerHouse house;
    const auto inner = house.AddSong("inner.mp3");
    const auto outer = house.AddSong("outer.mp3");
    house.desktop.Post([&] { house.player.PlaySong(inner); });

    house.player.PlaySong(outer);

    EXPECT_EQ(house.PlayingOn("a"), inner);
    EXPECT_EQ(house.PlayingOn("b"), outer);
    EXPECT_EQ(house.state.CurrentAlias, player::Alias::B);
    EXPECT_TRUE(house.state.FadeToB);
}

TEST(PlaybackRoom, ATickDuringTheYieldDoesNotEndTheSongBeforeAgain) {
    PlayerHouse house;
    house.AddTrack("one", house.AddSong("1.mp3"));
    house.AddTrack("two", house.AddSong("2.mp3"));
    house.AddTrack("three", house.AddSong("3.mp3"));
    house.DoubleClickTrack(0);
    house.device.Advance(29'000);
    house.desktop.YieldTakes = 60;

    house.DoubleClickTrack(2);

    EXPECT_EQ(house.PlayingOn("a"), "C:\\m\\1.mp3");
    EXPECT_EQ(house.PlayingOn("b"), "C:\\m\\3.mp3");
    EXPECT_EQ(house.history.Rows, (Texts{"Music:C:\\m\\1.mp3", "Music:C:\\m\\3.mp3"}));
}

TEST(PlaybackRoom, ATickDuringTheYieldDoesNotTakeTheLastSongsPlacesForThisOnes) {
    PlayerHouse house;
    house.AddTrack("one", house.AddSong("1.mp3"));
    house.AddTrack("broken", house.AddBrokenSong("broken.mp3"));
    house.AddTrack("three", house.AddSong("3.mp3"));
    house.DoubleClickTrack(0);
    // It was past its marker when the next one, which does not open, took its place.
    house.controls.transport.tmrPlay.SetEnabled(false);
    house.controls.transport.lblProgress.SetLeft(26);
    house.player.PlaySong("C:\\m\\broken.mp3");
    house.controls.transport.tmrPlay.SetEnabled(true);
    ASSERT_GT(house.controls.transport.lblProgress.Right(), house.controls.levels.lblStartFade.Left());
    ASSERT_LT(house.state.FramesPerSecond, 0);
    house.history.Rows.clear();
    house.desktop.YieldTakes = 60;

    house.DoubleClickTrack(2);

    EXPECT_EQ(house.NowPlaying(), "C:\\m\\3.mp3");
    EXPECT_EQ(house.history.Rows, Texts{"Music:C:\\m\\3.mp3"});
}

TEST(PlaybackRoom, ATickThatIsLateBecauseAFileOpenedSlowlyFindsTheNewSong) {
    PlayerHouse house;
    house.AddTrack("one", house.AddSong("1.mp3"));
    house.AddTrack("two", house.AddSong("2.mp3"));
    house.DoubleClickTrack(0);
    house.device.Advance(24'990);
    house.device.WhenOpened = [&house] { house.desktop.Pass(4'000); };

    house.RunFor(5'000);

    EXPECT_EQ(house.history.Rows, (Texts{"Music:C:\\m\\1.mp3", "Music:C:\\m\\2.mp3"}));
    EXPECT_EQ(house.NowPlaying(), "C:\\m\\2.mp3");
}

TEST(PlaybackRoom, TheFirstSongAfterAStopHasTheSlidersLevelFromItsStart) {
    PlayerHouse house;
    PlayerHouse::Press(house.controls.levels.lblVol, 0.3 * 1785);
    const auto song = house.AddSong("a.mp3");
    house.TakeCommands();

    house.player.PlaySong(song);

    EXPECT_EQ(house.LevelOf("a"), 30);
    const Texts orders = Orders(house.TakeCommands());
    ASSERT_GE(orders.size(), 4U);
    EXPECT_EQ(orders[2], "setaudio a Volume to 300");
    EXPECT_EQ(orders[3], "play a from 0 to 30000");
}

TEST(PlaybackRoom, AFirstSongAtTheFullLevelIsLeftAtTheDevicesOwn) {
    PlayerHouse house;

    house.player.PlaySong(house.AddSong("a.mp3"));

    for (const std::string& command : house.TakeCommands())
        EXPECT_FALSE(base::StartsWith(command, "setaudio")) << command;
}

TEST(PlaybackRoom, AThirdSongDuringARampStillSoundsAtTheDevicesOwnLevel) {
    PlayerHouse house;
    PlayerHouse::Press(house.controls.levels.lblVol, 0.3 * 1785);
    for (const char* name : {"1.mp3", "2.mp3", "3.mp3"})
        house.player.PlaySong(house.AddSong(name));

    EXPECT_EQ(house.LevelOf(player::TextOf(house.state.CurrentAlias)), 100);
}

TEST(PlaybackRoom, AVideoThatStartsDuringTheYieldOfASongLeavesNoVideoBehind) {
    PlayerHouse house;
    const auto film = house.AddSong("Owls - Film.avi");
    const auto song = house.AddSong("Owls - Song.mp3");
    house.desktop.Post([&] { house.player.PlaySong(film); });

    house.player.PlaySong(song);

    EXPECT_FALSE(house.state.VideoPlaying);
    EXPECT_EQ(house.controls.transport.lblTrack.Caption(), "Owls - Song");
    EXPECT_FALSE(house.frmVideo.Visible());
}

TEST(PlaybackRoom, PlaysTheFirstOfTwoSongsWithOneNumber) {
    PlayerHouse house;
    const auto first = house.AddSong("first.mp3", 30000, 5);
    house.AddSong("second.mp3", 30000, 5);
    house.AddTrack("first or second", "5");

    house.DoubleClickTrack(0);

    EXPECT_EQ(house.PlayingOn("a"), first);
}

TEST(PlaybackRoom, CountsThePlayOfTheFirstOfTwoRowsWithOnePath) {
    PlayerHouse house;
    const auto song = house.AddSong("twice.mp3", 30000, 5);
    house.AddSong("twice.mp3", 30000, 6);

    house.player.PlaySong(song);

    EXPECT_EQ(house.stores.Rows("tblSong").at(0).at(4), "1");
    EXPECT_EQ(house.stores.Rows("tblSong").at(1).at(4), "0");
}

TEST(PlaybackRoom, PlaysNothingForANumberThatNoSongHas) {
    PlayerHouse house;
    house.AddTrack("gone", "99");

    house.DoubleClickTrack(0);

    EXPECT_TRUE(house.TakeCommands().empty());
    EXPECT_FALSE(house.controls.transport.lblNoFile.Visible());
}

TEST(PlaybackRoom, SilencesANewSongWhileTheSoundIsOff) {
    PlayerHouse house;
    house.menu.mnuMusicMute.SetChecked(true);

    house.player.PlaySong(house.AddSong("a.mp3"));

    EXPECT_EQ(house.LevelOf("a"), 0);
}

TEST(PlaybackRoom, RerunsTheCheckedFadeForASongShorterThanTheFade) {
    PlayerHouse house;
    house.menu.mnuMediumFade.Click.Raise();
    house.state.FadeSeconds = 17;

    house.player.PlaySong(house.AddSong("short.mp3", 4000));

    EXPECT_EQ(house.state.FadeSeconds, 10);
    EXPECT_DOUBLE_EQ(house.controls.levels.lblStartFade.Left(), -6);
}

struct ShortSongCase {
    std::vector<controls::Menu player::PlayerMenu::*> checked;
    int seconds;
    int interval;
};

TEST(PlaybackRoom, AShortSongRunsTheFirstCheckedFadeOnly) {
    using Menu = player::PlayerMenu;
    const std::vector<ShortSongCase> cases = {
        {{&Menu::mnuQuickFade}, 5, 60},
        {{&Menu::mnuMediumFade}, 10, 220},
        {{&Menu::mnuLongFade}, 20, 500},
        {{&Menu::mnuFadeOff}, 30, 1},
        {{&Menu::mnuMediumFade, &Menu::mnuLongFade}, 10, 220},
        {{&Menu::mnuQuickFade, &Menu::mnuFadeOff}, 5, 60},
        {{}, 30, 60},
    };
    for (const ShortSongCase& one : cases) {
        PlayerHouse house;
        house.menu.mnuQuickFade.SetChecked(false);
        for (const auto entry : one.checked)
            (house.menu.*entry).SetChecked(true);
        house.state.FadeSeconds = 30;

        house.player.PlaySong(house.AddSong("short.mp3", 4000));

        EXPECT_EQ(house.state.FadeSeconds, one.seconds);
        EXPECT_EQ(house.controls.levels.tmrFade.Interval(), one.interval);
        EXPECT_DOUBLE_EQ(house.controls.levels.lblStartFade.Left(), 4.0 - one.seconds);
    }
}

TEST(PlaybackRoom, ASongJustAsLongAsTheFadeRunsNoMenuEntry) {
    PlayerHouse house;
    house.menu.mnuMediumFade.Click.Raise();
    house.state.FadeSeconds = 12;

    house.player.PlaySong(house.AddSong("twelve.mp3", 12000));

    EXPECT_EQ(house.state.FadeSeconds, 12);
    EXPECT_DOUBLE_EQ(house.controls.levels.lblStartFade.Left(), 0);
}

TEST(PlaybackRoom, PlacesTheMarkerByFadeSecondsThoughTheFadeIsOff) {
    PlayerHouse house;
    house.menu.mnuFadeOff.Click.Raise();

    house.player.PlaySong(house.AddSong("short.mp3", 4000));

    EXPECT_DOUBLE_EQ(house.controls.levels.lblStartFade.Left(), -1);
}

TEST(PlaybackRoom, EndsADragOfTheMarker) {
    PlayerHouse house;
    PlayerHouse::Press(house.controls.levels.lblStartFade, 2);

    house.player.PlaySong(house.AddSong("a.mp3"));

    EXPECT_FALSE(house.state.FadeDragging.IsOn());
}

TEST(PlaybackRoom, StartsNothingOnceTheProgramIsEnding) {
    PlayerHouse house;
    const auto song = house.AddSong("a.mp3");
    house.desktop.Ending = true;

    house.player.PlaySong(song);

    EXPECT_FALSE(house.IsOpen("a"));
}

TEST(PlaybackRoom, OpensNothingWhenTheProgramEndsWhileAVideoIsPrepared) {
    PlayerHouse house;
    const auto film = house.AddSong("film.avi");
    house.desktop.Post([&] { house.desktop.Post([&] { house.desktop.Ending = true; }); });

    house.player.PlaySong(film);

    EXPECT_TRUE(house.state.VideoPlaying) << "the end came at the second yield";
    EXPECT_TRUE(house.TakeCommands().empty());
}

TEST(PlaybackRoom, RoundsTheLengthToTheEvenSecond) {
    const std::vector<std::pair<int, const char*>> cases = {
        {59499, "0:59"}, {59500, "1:00"},   {60500, "1:00"},   {61500, "1:02"},
        {9000, "0:09"},  {600000, "10:00"}, {3600000, "60:00"}};
    for (const auto& [length, text] : cases) {
        PlayerHouse house;

        house.player.PlaySong(house.AddSong("a.mp3", length));

        EXPECT_EQ(house.state.TotalTimeText, text) << length;
    }
}

TEST(PlaybackRoom, NamesAFileWithoutADashUnknown) {
    PlayerHouse house;

    house.player.PlaySong(house.AddSong("humming.mp3"));

    EXPECT_EQ(house.controls.transport.lblTrack.Caption(), "Unknown - humming");
    EXPECT_EQ(house.state.NowArtist, "Unknown");
    EXPECT_EQ(house.state.NowTitle, "humming");
}

TEST(PlaybackRoom, KeepsTheBlanksOfArtistAndTitleForTheMessenger) {
    PlayerHouse house;

    house.player.PlaySong(house.AddSong(" Owls -  Fly .mp3"));

    EXPECT_EQ(house.controls.transport.lblTrack.Caption(), "Owls - Fly");
    EXPECT_EQ(house.state.NowArtist, " Owls ");
    EXPECT_EQ(house.state.NowTitle, " Fly ");
}

TEST(PlaybackRoom, ANameThatIsNoUtf8IsReadableInTheTitleAndForOthers) {
    PlayerHouse house;

    house.player.PlaySong(house.AddSong(base::NameToText("Caf\xE9 - Fl\xFCg.mp3")));

    EXPECT_EQ(house.controls.transport.lblTrack.Caption(), "Caf\u00e9 - Fl\u00fcg");
    EXPECT_EQ(house.state.NowArtist, "Caf\u00e9 ");
    EXPECT_EQ(house.state.NowTitle, "Fl\u00fcg");
    EXPECT_EQ(house.message.Sent.back(), "on|{0} - {1} {2}|Caf\u00e9 |Fl\u00fcg||");
}

TEST(PlaybackRoom, AppliesTheMarkersSpeedToANewSong) {
    PlayerHouse house;
    // As a drag leaves it; a layout puts the marker where SongSpeed says.
    house.controls.levels.lblSongSpeed.SetLeft(47.5);
    house.window.LaidOut = nullptr;

    house.player.PlaySong(house.AddSong("a.mp3"));

    EXPECT_EQ(house.device.Speed("a"), 500) << "50.5 rounds to the even 50";
}

}  // namespace
