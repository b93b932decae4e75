#include <gtest/gtest.h>

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
    EXPECT_EQ(house.state.CurrentAlias, "a");
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
    EXPECT_EQ(house.message.Sent, Texts{"on|Music|{0} - {1} {2}|Owls |Fly|at home|"});
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

    EXPECT_EQ(house.state.CurrentAlias, "a");
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

TEST(PlaybackRoom, SaysOnceThatEveryTrackOfAListOfTwoIsMissing) {
    PlayerHouse house;
    house.AddTrack("one", "C:\\m\\gone1.mp3");
    house.AddTrack("two", "C:\\m\\gone2.mp3");

    house.DoubleClickTrack(0);

    ASSERT_EQ(house.dialogs.Boxes.size(), 1U);
    EXPECT_EQ(house.dialogs.Boxes[0].text, "Every track in this playlist is missing!");
    EXPECT_EQ(house.dialogs.Boxes[0].buttons, ports::BoxButtons::Ok);
    EXPECT_TRUE(house.controls.transport.lblNoFile.Visible());
    EXPECT_FALSE(house.IsOpen("a"));
}

TEST(PlaybackRoom, MovesOnFromAMissingTrackAtOnce) {
    PlayerHouse house;
    house.AddTrack("gone", "C:\\m\\gone.mp3");
    house.AddTrack("here", house.AddSong("here.mp3"));

    house.DoubleClickTrack(0);

    EXPECT_EQ(house.NowPlaying(), "C:\\m\\here.mp3");
    EXPECT_EQ(house.state.MissingTrackCount, 0);
    EXPECT_FALSE(house.controls.transport.lblNoFile.Visible());
    EXPECT_TRUE(house.dialogs.Boxes.empty());
}

TEST(PlaybackRoom, EndsWithTheMissingBoxOnAnEmptyPlayOrder) {
    PlayerHouse house;

    house.player.EndOfSongCode();

    EXPECT_EQ(house.dialogs.Boxes.size(), 1U);
    EXPECT_FALSE(house.IsOpen("a"));
}

TEST(PlaybackRoom, GetsThroughAVeryLongListOfMissingTracks) {
    PlayerHouse house;
    for (int i = 0; i < 60000; ++i)
        house.AddTrack("gone", "C:\\m\\gone.mp3");

    house.DoubleClickTrack(0);

    EXPECT_EQ(house.dialogs.Boxes.size(), 1U);
}

TEST(PlaybackRoom, TakesAFileOfAnotherKindAsMissing) {
    PlayerHouse house;
    const auto text = house.AddSong("notes.txt");

    house.player.PlaySong(text);

    EXPECT_TRUE(house.controls.transport.lblNoFile.Visible());
    EXPECT_TRUE(house.history.Rows.empty());
}

TEST(PlaybackRoom, LeavesTheDisplayWhenASongCannotBeOpened) {
    PlayerHouse house;
    house.player.PlaySong(house.AddSong("good.mp3", 61000));
    const std::string broken = "C:\\m\\broken.mp3";
    house.files.AddFile(broken);
    house.library.Existing.insert(broken);

    house.player.PlaySong(broken);

    EXPECT_FALSE(house.IsOpen("b"));
    EXPECT_EQ(house.state.FramesPerSecond, -1);
    EXPECT_EQ(house.state.TotalTimeText, "1:01");
    EXPECT_DOUBLE_EQ(house.controls.transport.picSongProgress.ScaleWidth(), 61);
}

TEST(PlaybackRoom, MovesOnFromASongThatCannotBeOpened) {
    PlayerHouse house;
    house.AddTrack("broken", house.AddBrokenSong("broken.mp3"));
    house.AddTrack("good", house.AddSong("good.mp3"));
    house.DoubleClickTrack(0);
    const bool stood_there = house.NowPlaying() == "C:\\m\\broken.mp3";

    house.RunFor(50);

    EXPECT_TRUE(stood_there);
    EXPECT_EQ(house.PlayingOn("a"), "C:\\m\\good.mp3");
    EXPECT_EQ(house.state.MissingTrackCount, 0);
    EXPECT_FALSE(house.controls.transport.lblNoFile.Visible());
}

TEST(PlaybackRoom, SaysOnceThatNoSongOfAListCanBeOpened) {
    PlayerHouse house;
    house.AddTrack("one", house.AddBrokenSong("one.mp3"));
    house.AddTrack("two", house.AddBrokenSong("two.mp3"));
    house.AddTrack("three", "C:\\m\\missing.mp3");
    house.DoubleClickTrack(0);

    house.RunFor(2000);

    ASSERT_EQ(house.dialogs.Boxes.size(), 1U);
    EXPECT_EQ(house.dialogs.Boxes[0].text, "Every track in this playlist is missing!");
    EXPECT_TRUE(house.state.PlayerStopped);
    EXPECT_TRUE(house.controls.transport.lblNoFile.Visible());
}

TEST(PlaybackRoom, RepeatsASongThatCannotBeOpenedNoMoreThanTheListIsLong) {
    PlayerHouse house;
    house.AddTrack("broken", house.AddBrokenSong("broken.mp3"));
    house.AddTrack("good", house.AddSong("good.mp3"));
    house.controls.transport.imgRepeat.SetVisible(true);
    house.DoubleClickTrack(0);

    house.RunFor(1000);

    EXPECT_EQ(house.dialogs.Boxes.size(), 1U);
    EXPECT_TRUE(house.state.PlayerStopped);
}

TEST(PlaybackRoom, RepeatsTheSongWhileACueWaits) {
    PlayerHouse house;
    const auto song = house.AddSong("a.mp3");
    house.player.PlaySong(song);
    house.AddTrack("other", house.AddSong("other.mp3"));
    house.lstTracks.SetListIndex(0);
    house.menu.mnuCueSong.Click.Raise();
    house.menu.mnuRepeat.Click.Raise();

    house.player.EndOfSongCode();

    EXPECT_EQ(house.NowPlaying(), song);
    EXPECT_EQ(house.controls.queue.lstCuedSongs.ListCount(), 1);
}

TEST(PlaybackRoom, RepeatsWhileOnlyTheBrightPictureShows) {
    PlayerHouse house;
    const auto song = house.AddSong("a.mp3");
    house.AddTrack("other", house.AddSong("other.mp3"));
    house.player.PlaySong(song);
    house.controls.transport.imgNoRepeatOver.Click.Raise();

    house.player.EndOfSongCode();

    EXPECT_EQ(house.NowPlaying(), song);
}

TEST(PlaybackRoom, WalksThePlayOrderRoundAndRound) {
    PlayerHouse house;
    house.AddTrack("1", house.AddSong("1.mp3"));
    house.AddTrack("2", house.AddSong("2.mp3"));
    house.DoubleClickTrack(0);

    Texts played;
    for (int i = 0; i < 3; ++i) {
        house.player.EndOfSongCode();
        played.push_back(house.NowPlaying());
    }

    EXPECT_EQ(played, (Texts{"C:\\m\\2.mp3", "C:\\m\\1.mp3", "C:\\m\\2.mp3"}));
}

TEST(PlaybackRoom, PlaysAnEntryOfLessThanEightCharactersByItsNumber) {
    PlayerHouse house;
    house.AddTrack("seven", "1234567");
    const auto song = house.AddSong("seven.mp3", 30000, 1234567);

    house.DoubleClickTrack(0);
    house.player.EndOfSongCode();

    EXPECT_EQ(house.NowPlaying(), song);
    EXPECT_EQ(house.history.Rows.size(), 2U);
}

TEST(PlaybackRoom, ShufflesOverTheWholeOrder) {
    PlayerHouse house;
    for (const char* name : {"1.mp3", "2.mp3", "3.mp3"})
        house.AddTrack(name, house.AddSong(name));
    house.DoubleClickTrack(0);
    house.menu.mnuShuffle.Click.Raise();
    house.chance.Value = 0.999;

    house.player.EndOfSongCode();

    EXPECT_EQ(house.NowPlaying(), "C:\\m\\3.mp3");
}

TEST(PlaybackRoom, MayShuffleToTheSongThatJustPlayed) {
    PlayerHouse house;
    for (const char* name : {"1.mp3", "2.mp3"})
        house.AddTrack(name, house.AddSong(name));
    house.DoubleClickTrack(0);
    house.menu.mnuShuffle.Click.Raise();
    house.chance.Value = 0.5;

    house.player.EndOfSongCode();

    EXPECT_EQ(house.NowPlaying(), "C:\\m\\1.mp3") << "half of 1 rounds to the even 0";
}

TEST(PlaybackRoom, DoesNotShuffleAListOfOne) {
    PlayerHouse house;
    house.AddTrack("1", house.AddSong("1.mp3"));
    house.DoubleClickTrack(0);
    house.menu.mnuShuffle.Click.Raise();
    house.chance.Value = 0.9;

    house.player.EndOfSongCode();

    EXPECT_EQ(house.controls.queue.lstNowPlaying.ListIndex(), 0);
    EXPECT_EQ(house.history.Rows.size(), 2U);
}

TEST(PlaybackRoom, PlaysACuedNumber) {
    PlayerHouse house;
    house.AddTrack("first", house.AddSong("first.mp3"));
    house.AddTrack("cued", "12");
    const auto cued = house.AddSong("cued.mp3", 30000, 12);
    house.DoubleClickTrack(0);
    house.lstTracks.SetListIndex(1);
    house.menu.mnuCueSong.Click.Raise();

    house.player.EndOfSongCode();

    EXPECT_EQ(house.NowPlaying(), cued);
    EXPECT_EQ(house.controls.queue.lstCuedSongs.ListCount(), 0);
    EXPECT_EQ(house.controls.queue.lstCuedSongsPath.ListCount(), 0);
    EXPECT_FALSE(house.state.CueHeadIsId);
}

TEST(PlaybackRoom, TakesTheQuotesOffACuedPath) {
    PlayerHouse house;
    const auto song = house.AddSong("quoted.mp3");
    house.controls.queue.lstCuedSongs.AddItem("quoted");
    house.controls.queue.lstCuedSongsPath.AddItem("\"" + song + "\"");
    house.state.CueHeadIsPath = true;

    house.player.EndOfSongCode();

    EXPECT_EQ(house.NowPlaying(), song);
    EXPECT_FALSE(house.state.CueHeadIsPath);
    EXPECT_FALSE(house.state.CueHeadIsId);
}

TEST(PlaybackRoom, TakesASevenCharacterNumberAtTheHeadForAPathAndLaterForANumber) {
    PlayerHouse house;
    const auto first = house.AddSong("first.mp3");
    auto& queue = house.controls.queue;
    for (const std::string& entry : {first, std::string("1234567")}) {
        queue.lstCuedSongs.AddItem("cued");
        queue.lstCuedSongsPath.AddItem(entry);
    }
    house.state.CueHeadIsPath = true;

    house.player.EndOfSongCode();

    EXPECT_EQ(house.NowPlaying(), first);
    EXPECT_TRUE(house.state.CueHeadIsPath);
    EXPECT_FALSE(house.state.CueHeadIsId);
}

TEST(PlaybackRoom, SendsASevenCharacterNumberToTheLibraryOnTheNumberBranch) {
    PlayerHouse house;
    house.AddTrack("cued", "1234567");
    const auto song = house.AddSong("seven.mp3", 30000, 1234567);
    house.lstTracks.SetListIndex(0);
    house.menu.mnuCueSong.Click.Raise();

    house.player.EndOfSongCode();

    EXPECT_EQ(house.NowPlaying(), song);
}

TEST(PlaybackRoom, MovesOnFromAMissingCue) {
    PlayerHouse house;
    house.AddTrack("gone", "C:\\m\\gone.mp3");
    house.AddTrack("here", house.AddSong("here.mp3"));
    for (int row : {0, 1}) {
        house.lstTracks.SetListIndex(row);
        house.menu.mnuCueSong.Click.Raise();
    }
    house.DoubleClickTrack(1);

    house.player.EndOfSongCode();

    EXPECT_EQ(house.NowPlaying(), "C:\\m\\here.mp3");
    EXPECT_EQ(house.controls.queue.lstCuedSongs.ListCount(), 0);
    EXPECT_TRUE(house.dialogs.Boxes.empty());
}

TEST(PlaybackRoom, PlaysNothingForANumberThatNoSongHas) {
    PlayerHouse house;

    house.player.GetSongInfo(99);

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

    EXPECT_FALSE(house.state.FadeDragging);
}

TEST(PlaybackRoom, StartsNothingOnceTheProgramIsEnding) {
    PlayerHouse house;
    const auto song = house.AddSong("a.mp3");
    house.desktop.Ending = true;

    house.player.PlaySong(song);

    EXPECT_FALSE(house.IsOpen("a"));
}

TEST(PlaybackRoom, PlaysThePreviousTrack) {
    PlayerHouse house;
    for (const char* name : {"1.mp3", "2.mp3", "3.mp3"})
        house.AddTrack(name, house.AddSong(name));
    house.DoubleClickTrack(1);

    house.player.PreviousTrack();
    const std::string before = house.NowPlaying();
    house.player.PreviousTrack();

    EXPECT_EQ(before, "C:\\m\\1.mp3");
    EXPECT_EQ(house.NowPlaying(), "C:\\m\\3.mp3");
}

}  // namespace
