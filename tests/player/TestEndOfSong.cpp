// What comes next: repeat, cue list, shuffle, the play order.
#include <gtest/gtest.h>

#include "player/PlayerHouse.h"

namespace {

using player_tests::PlayerHouse;
using Texts = std::vector<std::string>;

TEST(EndOfSong, RepeatsTheSongWhileACueWaits) {
    PlayerHouse house;
    const auto song = house.AddSong("a.mp3");
    house.player.PlaySong(song);
    house.AddTrack("other", house.AddSong("other.mp3"));
    house.lstTracks.SetListIndex(0);
    house.menu.mnuCueSong.Click.Raise();
    house.menu.mnuRepeat.Click.Raise();

    house.player.Next();

    EXPECT_EQ(house.NowPlaying(), song);
    EXPECT_EQ(house.controls.queue.lstCuedSongs.ListCount(), 1);
}

TEST(EndOfSong, RepeatsWhileOnlyTheBrightPictureShows) {
    PlayerHouse house;
    const auto song = house.AddSong("a.mp3");
    house.AddTrack("other", house.AddSong("other.mp3"));
    house.player.PlaySong(song);
    house.controls.transport.imgNoRepeatOver.Click.Raise();

    house.player.Next();

    EXPECT_EQ(house.NowPlaying(), song);
}

TEST(EndOfSong, ASongThatStillSaysPlayingAtItsEndIsCrossedOver) {
    for (const int says_playing_ms : {0, 300}) {
        PlayerHouse house;
        house.device.SaysPlayingAtEnd = says_playing_ms;
        // So short that a tick goes from less than a whole percent to the end, with the marker there.
        house.state.FadeSeconds = 0;
        house.AddTrack("1", house.AddSong("1.mp3", 2985));
        house.AddTrack("2", house.AddSong("2.mp3", 2985));
        house.DoubleClickTrack(0);

        house.RunFor(2'900);  // at the program's normal speed of 1.03

        const bool crosses = says_playing_ms > 0;
        EXPECT_EQ(house.PlayingOn(crosses ? "b" : "a"), "C:\\m\\2.mp3");
        EXPECT_EQ(house.controls.levels.tmrFade.Enabled(), crosses);
    }
}

TEST(EndOfSong, WalksThePlayOrderRoundAndRound) {
    PlayerHouse house;
    house.AddTrack("1", house.AddSong("1.mp3"));
    house.AddTrack("2", house.AddSong("2.mp3"));
    house.DoubleClickTrack(0);

    Texts played;
    for (int i = 0; i < 3; ++i) {
        house.player.Next();
        played.push_back(house.NowPlaying());
    }

    EXPECT_EQ(played, (Texts{"C:\\m\\2.mp3", "C:\\m\\1.mp3", "C:\\m\\2.mp3"}));
}

TEST(EndOfSong, PlaysAnEntryOfLessThanEightCharactersByItsNumber) {
    PlayerHouse house;
    house.AddTrack("seven", "1234567");
    const auto song = house.AddSong("seven.mp3", 30000, 1234567);

    house.DoubleClickTrack(0);
    house.player.Next();

    EXPECT_EQ(house.NowPlaying(), song);
    EXPECT_EQ(house.history.Rows.size(), 2U);
}

TEST(EndOfSong, ShufflesOverTheWholeOrderWithBothEndsHalfAsLikely) {
    const std::vector<std::pair<double, int>> picks = {
        {0.0, 0},  {0.124, 0}, {0.125, 0}, {0.126, 1}, {0.374, 1}, {0.375, 2}, {0.5, 2},
        {0.62, 2}, {0.625, 2}, {0.626, 3}, {0.874, 3}, {0.875, 4}, {0.999, 4},
    };
    PlayerHouse house;
    for (const char* name : {"0.mp3", "1.mp3", "2.mp3", "3.mp3", "4.mp3"})
        house.AddTrack(name, house.AddSong(name));
    house.DoubleClickTrack(0);
    house.menu.mnuShuffle.Click.Raise();

    for (const auto& [chance, row] : picks) {
        house.chance.Value = chance;
        house.player.Next();

        EXPECT_EQ(house.controls.queue.lstNowPlaying.ListIndex(), row) << chance;
    }
}

TEST(EndOfSong, MayShuffleToTheSongThatJustPlayed) {
    PlayerHouse house;
    for (const char* name : {"1.mp3", "2.mp3"})
        house.AddTrack(name, house.AddSong(name));
    house.DoubleClickTrack(0);
    house.menu.mnuShuffle.Click.Raise();
    house.chance.Value = 0.5;

    house.player.Next();

    EXPECT_EQ(house.NowPlaying(), "C:\\m\\1.mp3") << "half of 1 rounds to the even 0";
}

TEST(EndOfSong, DoesNotShuffleAListOfOne) {
    PlayerHouse house;
    house.AddTrack("1", house.AddSong("1.mp3"));
    house.DoubleClickTrack(0);
    house.menu.mnuShuffle.Click.Raise();
    house.chance.Value = 0.9;

    house.player.Next();

    EXPECT_EQ(house.controls.queue.lstNowPlaying.ListIndex(), 0);
    EXPECT_EQ(house.history.Rows.size(), 2U);
}

TEST(EndOfSong, PlaysACuedNumber) {
    PlayerHouse house;
    house.AddTrack("first", house.AddSong("first.mp3"));
    house.AddTrack("cued", "12");
    const auto cued = house.AddSong("cued.mp3", 30000, 12);
    house.DoubleClickTrack(0);
    house.lstTracks.SetListIndex(1);
    house.menu.mnuCueSong.Click.Raise();

    house.player.Next();

    EXPECT_EQ(house.NowPlaying(), cued);
    EXPECT_EQ(house.controls.queue.lstCuedSongs.ListCount(), 0);
    EXPECT_EQ(house.controls.queue.lstCuedSongsPath.ListCount(), 0);
    EXPECT_FALSE(house.state.CueHeadIsId);
}

TEST(EndOfSong, TakesTheQuotesOffACuedPath) {
    PlayerHouse house;
    const auto song = house.AddSong("quoted.mp3");
    house.controls.queue.lstCuedSongs.AddItem("quoted");
    house.controls.queue.lstCuedSongsPath.AddItem("\"" + song + "\"");
    house.state.CueHeadIsPath = true;

    house.player.Next();

    EXPECT_EQ(house.NowPlaying(), song);
    EXPECT_FALSE(house.state.CueHeadIsPath);
    EXPECT_FALSE(house.state.CueHeadIsId);
}

TEST(EndOfSong, TakesASevenCharacterNumberAtTheHeadForAPathAndLaterForANumber) {
    PlayerHouse house;
    const auto first = house.AddSong("first.mp3");
    auto& queue = house.controls.queue;
    for (const std::string& entry : {first, std::string("1234567")}) {
        queue.lstCuedSongs.AddItem("cued");
        queue.lstCuedSongsPath.AddItem(entry);
    }
    house.state.CueHeadIsPath = true;

    house.player.Next();

    EXPECT_EQ(house.NowPlaying(), first);
    EXPECT_TRUE(house.state.CueHeadIsPath);
    EXPECT_FALSE(house.state.CueHeadIsId);
}

TEST(EndOfSong, SendsASevenCharacterNumberToTheLibraryOnTheNumberBranch) {
    PlayerHouse house;
    house.AddTrack("cued", "1234567");
    const auto song = house.AddSong("seven.mp3", 30000, 1234567);
    house.lstTracks.SetListIndex(0);
    house.menu.mnuCueSong.Click.Raise();

    house.player.Next();

    EXPECT_EQ(house.NowPlaying(), song);
}

TEST(EndOfSong, MovesOnFromAMissingCue) {
    PlayerHouse house;
    house.AddTrack("gone", "C:\\m\\gone.mp3");
    house.AddTrack("here", house.AddSong("here.mp3"));
    for (int row : {0, 1}) {
        house.lstTracks.SetListIndex(row);
        house.menu.mnuCueSong.Click.Raise();
    }
    house.DoubleClickTrack(1);

    house.player.Next();

    EXPECT_EQ(house.NowPlaying(), "C:\\m\\here.mp3");
    EXPECT_EQ(house.controls.queue.lstCuedSongs.ListCount(), 0);
    EXPECT_TRUE(house.dialogs.Boxes.empty());
}

TEST(EndOfSong, TakesAnEntryOfEightCharactersOnTheNumberBranchForANumber) {
    PlayerHouse house;
    house.AddSong("a.mp3");
    house.files.AddFile("C:\\b.mp3");
    house.AddTrack("next", "C:\\m\\a.mp3");
    house.DoubleClickTrack(0);
    house.Cue("short path", "C:\\b.mp3");
    house.state.CueHeadIsId = true;

    house.player.Next();

    EXPECT_EQ(house.controls.queue.lstCuedSongs.ListCount(), 0);
    EXPECT_NE(house.NowPlaying(), "C:\\b.mp3") << "fewer than nine characters are a number here";
}

TEST(EndOfSong, TakesAnEntryOfNineCharactersOnTheNumberBranchForAPath) {
    PlayerHouse house;
    const std::string path = "C:\\bb.mp3";
    house.files.AddFile(path);
    house.Cue("path", path);
    house.state.CueHeadIsId = true;

    house.player.Next();

    EXPECT_EQ(house.NowPlaying(), path);
}

TEST(EndOfSong, ThePathBranchGoesBeforeTheNumberBranch) {
    PlayerHouse house;
    house.AddSong("twelve.mp3", 30000, 12);
    const auto path = house.AddSong("path.mp3");
    house.Cue("path", path);
    house.Cue("number", "12");
    house.state.CueHeadIsPath = true;
    house.state.CueHeadIsId = true;

    house.player.Next();

    EXPECT_EQ(house.NowPlaying(), path);
    EXPECT_FALSE(house.state.CueHeadIsPath);
    EXPECT_TRUE(house.state.CueHeadIsId) << "the new head is short";
}

TEST(EndOfSong, TheNumberBranchLeavesTheFlagOfThePathAlone) {
    PlayerHouse house;
    house.AddSong("twelve.mp3", 30000, 12);
    house.Cue("number", "12");
    house.Cue("path", house.AddSong("path.mp3"));
    house.state.CueHeadIsId = true;

    house.player.Next();

    EXPECT_TRUE(house.state.CueHeadIsId) << "rows remain, of whatever kind";
    EXPECT_FALSE(house.state.CueHeadIsPath);
}

TEST(EndOfSong, AFlagWithoutACuedRowIsNoCue) {
    PlayerHouse house;
    house.AddTrack("1", house.AddSong("1.mp3"));
    house.AddTrack("2", house.AddSong("2.mp3"));
    house.DoubleClickTrack(0);
    house.state.CueHeadIsPath = true;

    house.player.Next();

    EXPECT_EQ(house.NowPlaying(), "C:\\m\\2.mp3");
    EXPECT_FALSE(house.controls.transport.lblNoFile.Visible());
}

TEST(EndOfSong, PlaysThePreviousTrack) {
    PlayerHouse house;
    for (const char* name : {"1.mp3", "2.mp3", "3.mp3"})
        house.AddTrack(name, house.AddSong(name));
    house.DoubleClickTrack(1);

    house.player.Previous();
    const std::string before = house.NowPlaying();
    house.player.Previous();

    EXPECT_EQ(before, "C:\\m\\1.mp3");
    EXPECT_EQ(house.NowPlaying(), "C:\\m\\3.mp3");
}

TEST(EndOfSong, ASongOfUnknownLengthAfterAnotherPlaysToItsEnd) {
    PlayerHouse house;
    house.AddTrack("a", house.AddSong("a.mp3", 10'000));
    house.AddTrack("b", house.AddSongWithoutLength("b.mp3", 8'000));
    house.AddTrack("c", house.AddSong("c.mp3", 10'000));
    house.DoubleClickTrack(0);
    house.RunFor(5'500);
    ASSERT_EQ(house.NowPlaying(), "C:\\m\\b.mp3");

    house.RunFor(7'000);

    EXPECT_EQ(house.NowPlaying(), "C:\\m\\b.mp3") << "none of the end of the song before";
    EXPECT_EQ(house.controls.transport.lblRunningTime.Caption(), "0:00/0:00");
    EXPECT_EQ(house.controls.transport.lblProgress.Left(), 0);

    house.RunFor(1'500);

    EXPECT_EQ(house.NowPlaying(), "C:\\m\\c.mp3");
    EXPECT_EQ(house.history.Rows.size(), 3U);
}

TEST(EndOfSong, ALengthThatIsKnownLateIsShownAndEndsTheSong) {
    PlayerHouse house;
    house.AddTrack("a", house.AddSong("a.mp3", 10'000));
    house.AddTrack("b", house.AddSongWithoutLength("b.mp3", 20'000));
    house.DoubleClickTrack(1);
    house.RunFor(2'000);

    house.device.TellLength("a");
    house.RunFor(1'000);

    EXPECT_EQ(house.controls.transport.lblRunningTime.Caption(), "0:03/0:20");
    EXPECT_EQ(house.controls.levels.lblStartFade.Left(), 15);
    house.RunFor(12'500);
    EXPECT_EQ(house.NowPlaying(), "C:\\m\\a.mp3");
}

TEST(EndOfSong, AListOfSongsShorterThanTheFadeIsPlayedWholeAfterOneRound) {
    PlayerHouse house;
    for (const char* name : {"1.mp3", "2.mp3", "3.mp3"})
        house.AddTrack(name, house.AddSong(name, 4'000));
    house.DoubleClickTrack(0);

    house.RunFor(500);
    EXPECT_EQ(house.history.Rows.size(), 4U) << "each ends at once, and the first is on again";

    house.RunFor(20'000);
    EXPECT_LE(house.history.Rows.size(), 10U) << "four seconds each, not a twentieth";
    EXPECT_GE(house.history.Rows.size(), 8U) << "and one after another";
}

TEST(EndOfSong, ALongerSongLetsShortOnesEndAtOnceAgain) {
    PlayerHouse house;
    for (const char* name : {"1.mp3", "2.mp3"})
        house.AddTrack(name, house.AddSong(name, 4'000));
    house.AddTrack("long", house.AddSong("long.mp3", 10'000));
    house.DoubleClickTrack(0);

    house.RunFor(500);
    ASSERT_EQ(house.NowPlaying(), "C:\\m\\long.mp3");
    house.RunFor(5'500);

    EXPECT_EQ(house.NowPlaying(), "C:\\m\\long.mp3") << "the short ones went by";
    EXPECT_EQ(house.history.Rows.size(), 6U);
}

}  // namespace
