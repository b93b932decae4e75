// What other subjects ask of the player: transport, cue list, messenger line, video pane, set-up.
#include <gtest/gtest.h>

#include "player/PlayerHouse.h"

namespace {

using player_tests::Orders;
using player_tests::PlayerHouse;
using Texts = std::vector<std::string>;

struct Playing : PlayerHouse {
    Playing() {
        player.PlaySong(AddSong("Owls - Fly.mp3", 100000));
        TakeCommands();
    }
};

TEST(PlayerVerbs, SeekToDoesWhatAPressOnTheBarDoes) {
    Playing house;

    house.player.SeekTo(33.3);
    const Texts by_verb = Orders(house.TakeCommands());
    PlayerHouse::Press(house.controls.transport.picSongProgress, 33.3);

    EXPECT_EQ(by_verb, (Texts{"seek a to 33300", "Play a"}));
    EXPECT_EQ(Orders(house.TakeCommands()), by_verb);
}

TEST(PlayerVerbs, SeekToDoesNothingWithoutATitle) {
    Playing house;
    house.controls.transport.lblTrack.SetCaption("");

    house.player.SeekTo(33.3);

    EXPECT_TRUE(house.TakeCommands().empty());
}

TEST(PlayerVerbs, SetSpeedMovesTheMarkerAndTellsTheDevice) {
    Playing house;

    house.player.SetSpeed(50);

    EXPECT_EQ(house.TakeCommands(), Texts{"set a speed 500"});
    EXPECT_EQ(house.controls.levels.lblSongSpeed.Left(), 47);
    EXPECT_EQ(house.state.SongSpeed, 47);
}

TEST(PlayerVerbs, SetVolumeMovesTheKnobAndEndsMute) {
    Playing house;
    house.player.ToggleMute();
    house.TakeCommands();

    house.player.SetVolume(0.5);

    EXPECT_EQ(house.TakeCommands(), Texts{"setaudio a Volume to 500"});
    EXPECT_DOUBLE_EQ(house.controls.levels.imgVol.Left(), 892.5);
    EXPECT_FALSE(house.menu.mnuMusicMute.Checked());
    EXPECT_EQ(house.address.Focused, 1);
}

TEST(PlayerVerbs, StopAndForgetTakesTheTitleAway) {
    Playing house;

    house.player.StopAndForget();

    EXPECT_EQ(house.controls.transport.lblTrack.Caption(), "");
    EXPECT_TRUE(house.state.PlayerStopped);
    EXPECT_FALSE(house.IsOpen("a"));
}

TEST(PlayerVerbs, TheEndOfAUserForgetsTheTitleOfAStoppedSongAndItsNames) {
    Playing house;
    house.player.Stop();

    house.player.EndUser();

    EXPECT_EQ(house.controls.transport.lblTrack.Caption(), "");
    EXPECT_EQ(house.state.NowArtist + house.state.NowTitle, "");
}

TEST(PlayerVerbs, TheEndOfAUserTellsMessengersNothingWhereTheyWereToldNothing) {
    PlayerHouse house;
    house.player.Line().SetCustomText("my own text");

    house.player.EndUser();

    EXPECT_EQ(house.message.Sent, Texts());
    EXPECT_EQ(house.state.NowAlbum, "") << "the next user's songs would go out with it";
}

TEST(PlayerVerbs, TheEndOfAUserTakesBackATextThatMessengersShow) {
    PlayerHouse house;
    house.player.Line().SetCustomText("my own text");
    house.player.Line().SendNowPlaying();

    house.player.EndUser();
    house.player.EndUser();

    EXPECT_EQ(house.message.Sent, (Texts{"on|{0} - {1} {2}|||my own text|", "off|{0} - {1} {2}||||"}));
}

TEST(PlayerVerbs, TheEndOfAUserHoldsAlsoWhileTheFirstSongIsBeingStarted) {
    PlayerHouse house;
    house.desktop.Post([&] { house.player.EndUser(); });

    house.player.PlaySong(house.AddSong("a.mp3"));

    EXPECT_FALSE(house.IsOpen("a"));
    EXPECT_EQ(house.state.NowTitle, "");
}

TEST(PlayerVerbs, PlayIsShownUntilSomethingPlays) {
    PlayerHouse house;
    EXPECT_TRUE(house.player.IsPlayShown());
    house.AddTrack("a", house.AddSong("a.mp3"));
    house.lstTracks.SetListIndex(0);

    house.player.Play();
    EXPECT_FALSE(house.player.IsPlayShown());

    house.player.Pause();
    EXPECT_TRUE(house.player.IsPlayShown());
}

TEST(PlayerVerbs, PauseIsShownWhereverTheSongWasStartedFrom) {
    PlayerHouse house;
    const auto& buttons = house.controls.transport;

    house.player.PlaySong(house.AddSong("a.mp3"));

    EXPECT_FALSE(house.player.IsPlayShown());
    EXPECT_TRUE(buttons.imgPause.Visible());
    EXPECT_FALSE(buttons.imgPauseOver.Visible()) << "the pointer is elsewhere";
}

TEST(PlayerVerbs, PauseIsShownAgainWithTheSongAfterAPausedOne) {
    Playing house;
    house.player.Pause();

    house.player.PlaySong(house.AddSong("b.mp3"));

    EXPECT_FALSE(house.player.IsPlayShown());
}

TEST(PlayerVerbs, PlayStaysWhenTheSongCannotBeOpened) {
    PlayerHouse house;

    house.player.PlaySong("C:\\m\\missing.mp3");

    EXPECT_TRUE(house.player.IsPlayShown());
}

TEST(PlayerVerbs, TheDefaultsAreFullVolumeSoundOnAndFiveSeconds) {
    Playing house;
    house.player.SetVolume(0.3);
    house.player.ToggleMute();
    house.state.FadeSeconds = 20;
    house.controls.transport.lblProgress.SetVisible(true);

    house.player.SetDefaults();

    EXPECT_EQ(house.state.MusicVolume, 100);
    EXPECT_EQ(house.state.FadeSeconds, 5);
    EXPECT_FALSE(house.menu.mnuMusicMute.Checked());
    EXPECT_FALSE(house.controls.levels.lblMute.Visible());
    EXPECT_FALSE(house.controls.transport.lblProgress.Visible());
}

TEST(PlayerVerbs, QuickFadeIsChosenAsByItsEntry) {
    PlayerHouse house;
    house.menu.mnuLongFade.Click.Raise();

    house.player.ChooseQuickFade();

    EXPECT_TRUE(house.menu.mnuQuickFade.Checked());
    EXPECT_FALSE(house.menu.mnuLongFade.Checked());
    EXPECT_EQ(house.controls.levels.tmrFade.Interval(), 60);
    EXPECT_EQ(house.state.FadeSeconds, 5);
}

TEST(PlayerVerbs, TheVideoPictureIsClearedAndTheMediaAreClosed) {
    Playing house;
    house.frmVideo.picVid.SetBackColor(0x00FF00);

    house.player.ClearVideoPicture();
    house.player.CloseMedia();

    EXPECT_EQ(house.frmVideo.picVid.BackColor(), 0x000000U);
    EXPECT_EQ(house.TakeCommands(), Texts{"Close All"});
}

TEST(PlayerVerbs, TheVideoPaneIsShownAndClosedWithItsHole) {
    PlayerHouse house;

    house.player.Video().ShowPane();
    EXPECT_TRUE(house.controls.video.picVideo.Visible());
    house.player.Video().ClosePane();

    EXPECT_FALSE(house.controls.video.picVideo.Visible());
    EXPECT_EQ(house.window.TakeCalls(), (Texts{"make hole", "close hole"}));
    EXPECT_EQ(house.window.VideoPanePlacings, 0) << "who asks is the panel itself";
}

TEST(PlayerVerbs, TheMessengerGetsTheUsersOwnTextWithTheSong) {
    Playing house;
    house.message.Sent.clear();

    house.player.Line().SetCustomText("at home");
    house.player.Line().SendNowPlaying();
    house.player.Line().SendNothingPlaying();

    EXPECT_EQ(house.message.Sent, (Texts{"on|{0} - {1} {2}|Owls |Fly|at home|", "off|{0} - {1} {2}||||"}));
}

TEST(CueList, AFileThatIsCuedFirstIsPlayedAsAPath) {
    PlayerHouse house;
    const auto song = house.AddSong("a.mp3");

    house.player.Cue().CueFile(song, "a");
    house.player.Next();

    EXPECT_EQ(house.NowPlaying(), song);
    EXPECT_EQ(house.player.Cue().SongCount(), 0);
    EXPECT_EQ(house.player.Cue().PathCount(), 0);
}

TEST(CueList, AFileCuedAfterASongLeavesTheSongItsTurn) {
    PlayerHouse house;
    const auto first = house.AddSong("first.mp3", 30000, 12);
    const auto second = house.AddSong("second.mp3");
    house.AddTrack("first", "12");
    house.lstTracks.SetListIndex(0);
    house.menu.mnuCueSong.Click.Raise();

    house.player.Cue().CueFile(second, "second");
    house.player.Next();
    const std::string after_one = house.NowPlaying();
    house.player.Next();

    EXPECT_EQ(after_one, first);
    EXPECT_EQ(house.NowPlaying(), second);
    EXPECT_TRUE(house.dialogs.Boxes.empty());
}

TEST(CueList, FilesArePlayedInTheirTurn) {
    PlayerHouse house;
    const auto first = house.AddSong("first.mp3");
    const auto second = house.AddSong("second.mp3");
    house.player.Cue().CueFile(first, "first");
    house.player.Cue().CueFile(second, "second");
    house.player.Cue().SelectPath(1);
    EXPECT_EQ(house.controls.queue.lstCuedSongsPath.Text(), second);

    house.player.Next();
    EXPECT_EQ(house.NowPlaying(), first);
    house.player.Next();

    EXPECT_EQ(house.NowPlaying(), second);
}

TEST(RandomIndex, IsRoundedSoThatTheCountComesOutToo) {
    player_tests::FakeChance chance;
    const auto pick = [&chance](int count, double value) {
        chance.Value = value;
        return ports::RandomIndex(count, chance);
    };

    EXPECT_EQ(pick(10, 0.0), 0);
    EXPECT_EQ(pick(10, 0.5), 5);
    EXPECT_EQ(pick(5, 0.5), 2) << "2.5 goes to the even neighbour";
    EXPECT_EQ(pick(10, 0.9999999), 10);
    EXPECT_EQ(pick(0, 0.9999999), 0);
}

}  // namespace
