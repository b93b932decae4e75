#include <gtest/gtest.h>

#include <algorithm>

#include "base/Text.h"
#include "scenario/Program.h"

namespace {

using scenario::Computer;
using scenario::Program;
using Texts = std::vector<std::string>;

/// The commands that change something: no questions, and no time format that a question sets.
Texts Orders(const Texts& commands) {
    Texts orders;
    for (const std::string& command : commands) {
        const bool asks = base::StartsWith(command, "status ") || base::Contains(command, " time format ");
        if (!asks) orders.push_back(command);
    }
    return orders;
}

class PlayingStory : public testing::Test {
protected:
    PlayingStory() {
        computer.AddUser("Ann", "rose");
        rise = computer.AddToLibrary(1, "Sun", "Rise", {20'000, 1000});
        fall = computer.AddToLibrary(2, "Moon", "Fall", {30'000, 1000});
        program.StartAndLogIn("Ann", "rose");
        computer.media.NewCommands();
    }

    void PlayTrack(int row) {
        program.Browser().library.lists.lstTracks.SetListIndex(row);
        program.DoubleClick(program.Browser().library.lists.lstTracks);
    }
    std::string Playing(std::string_view alias) {
        return computer.files.NameInFolder(computer.media.PathOf(alias));
    }

    Computer computer;
    std::string rise;
    std::string fall;
    Program program{computer};
};

TEST_F(PlayingStory, ADoubleClickPlaysTheTrack) {
    PlayTrack(0);

    EXPECT_EQ(Orders(computer.media.NewCommands()),
              (Texts{"Close a",
                     "open " + computer.files.GetShortPathName(rise) +
                         " type MPEGVideo Alias a parent 0 Style 1073741824",
                     "play a from 0 to 20000", "set a speed 1030", "put a window at 0 0 320 240"}));
    EXPECT_EQ(computer.media.Mode("a"), "playing");
}

TEST_F(PlayingStory, WhatPlaysIsShownCountedAndRemembered) {
    PlayTrack(0);
    program.Wait(3000);

    const auto& transport = program.Browser().player.transport;
    EXPECT_NE(transport.lblTrack.Caption().find("Sun - Rise"), std::string::npos);
    EXPECT_EQ(transport.lblRunningTime.Caption(), "0:03/0:20");
    EXPECT_NEAR(transport.lblProgress.Left(), 3, 0.2);
    EXPECT_TRUE(transport.imgPause.Visible());
    EXPECT_FALSE(transport.imgPlay.Visible());
    EXPECT_EQ(computer.database.Rows(scenario::kMediaPath, "tblSong")[0][4], "1");
    const auto history = computer.database.Rows(scenario::kHistoryPath, "tblHistory");
    EXPECT_EQ(history.back()[1], "Music");
}

TEST_F(PlayingStory, PauseHoldsAndPlayGoesOn) {
    PlayTrack(0);
    program.Wait(2000);
    auto& buttons = program.Browser().player.transport;

    program.Click(buttons.imgPauseOver);
    EXPECT_EQ(computer.media.Mode("a"), "paused");
    const std::int64_t held = computer.media.Frame("a");
    program.Wait(5000);
    EXPECT_EQ(computer.media.Frame("a"), held);
    program.Click(buttons.imgPlayOver);
    program.Wait(1000);

    EXPECT_EQ(computer.media.Mode("a"), "playing");
    // A second at the program's normal speed, three percent above the device's.
    EXPECT_EQ(computer.media.Frame("a"), held + 1030);
}

TEST_F(PlayingStory, StopClosesBothAliasesAndStaysStopped) {
    PlayTrack(0);
    program.Wait(2000);
    computer.media.NewCommands();

    program.Click(program.Browser().player.transport.imgStopOver);

    EXPECT_EQ(Orders(computer.media.NewCommands()), (Texts{"Stop a", "Stop b", "Close a", "Close b"}));
    program.Wait(60'000);
    EXPECT_FALSE(computer.media.IsOpen("a"));
    EXPECT_FALSE(computer.media.IsOpen("b"));
    EXPECT_TRUE(program.Browser().player.transport.imgPlay.Visible());
}

TEST_F(PlayingStory, NearTheEndTheNextSongFadesIn) {
    PlayTrack(0);
    program.Wait(14'000);
    EXPECT_FALSE(computer.media.IsOpen("b"));

    program.Wait(2500);
    EXPECT_EQ(Playing("a"), "Sun - Rise.mp3");
    EXPECT_EQ(Playing("b"), "Moon - Fall.mp3");
    EXPECT_LT(computer.media.Left("a"), 1000);
    EXPECT_GT(computer.media.Left("b"), 0);
    program.Wait(8000);

    EXPECT_FALSE(computer.media.IsOpen("a"));
    EXPECT_EQ(computer.media.Mode("b"), "playing");
    EXPECT_EQ(computer.media.Left("b"), 1000);
    EXPECT_EQ(computer.media.Right("b"), 1000);
}

TEST_F(PlayingStory, RepeatPlaysTheSameSongAgain) {
    program.Click(program.Browser().menus.mnuRepeat);
    PlayTrack(0);

    program.Wait(17'000);

    EXPECT_EQ(Playing("b"), "Sun - Rise.mp3");
}

TEST_F(PlayingStory, ACuedSongGoesFirst) {
    computer.AddSong("C:\\Music\\Star - Shine.mp3");
    auto& browser = program.Browser();
    PlayTrack(1);
    browser.library.lists.lstTracks.SetListIndex(1);
    program.Click(browser.player.queue.imgCueSongOver);
    ASSERT_EQ(browser.player.queue.lstCuedSongs.ListCount(), 1);

    program.Wait(27'000);

    EXPECT_EQ(Playing("b"), "Moon - Fall.mp3");
    EXPECT_EQ(browser.player.queue.lstCuedSongs.ListCount(), 0);
}

TEST_F(PlayingStory, MuteAndVolumeReachTheDevice) {
    PlayTrack(0);
    auto& menus = program.Browser().menus;

    program.Click(menus.mnuDecreaseVolume);
    const int lower = computer.media.Left("a");
    EXPECT_LT(lower, 1000);
    program.Click(menus.mnuMusicMute);
    EXPECT_EQ(computer.media.Left("a"), 0);
    EXPECT_TRUE(program.Browser().player.levels.lblMute.Visible());
    program.Click(menus.mnuMusicMute);

    EXPECT_EQ(computer.media.Left("a"), lower);
    EXPECT_FALSE(program.Browser().player.levels.lblMute.Visible());
}

TEST_F(PlayingStory, AMissingFileGivesItsNoticeAndTheNextSongPlays) {
    computer.files.Remove(rise);

    PlayTrack(0);

    EXPECT_EQ(Playing("a"), "Moon - Fall.mp3");
}

TEST_F(PlayingStory, AListOfFilesThatEndTheirDecoderEndsInTheNoticeOfMissingOnes) {
    PlayTrack(0);

    for (int starts = 0; starts < 8 && program.dialogs.Boxes.empty(); ++starts) {
        program.Wait(200);
        computer.media.SendString("close all");
        program.Wait(50);
    }

    EXPECT_EQ(program.BoxTexts(), (Texts{"Every track in this playlist is missing!"}));
    program.Wait(2000);
    EXPECT_EQ(program.dialogs.Boxes.size(), 1U);
    EXPECT_TRUE(computer.media.Mode("a").empty());
}

TEST_F(PlayingStory, WithTheFadeOffTheNextSongIsTheDevicesBeforeAnybodyIsToldOfIt) {
    PlayTrack(0);
    program.Click(program.Browser().menus.mnuFadeOff);

    program.Wait(15'000);

    EXPECT_EQ(computer.media.NextOf("a"), computer.files.GetShortPathName(fall));
    EXPECT_EQ(Playing("a"), computer.files.NameInFolder(rise));
    const auto history = computer.database.Rows(scenario::kHistoryPath, "tblHistory").size();
    program.Wait(6'000);
    EXPECT_EQ(Playing("a"), computer.files.NameInFolder(fall));
    EXPECT_EQ(computer.database.Rows(scenario::kHistoryPath, "tblHistory").size(), history + 1);
}

TEST_F(PlayingStory, APathInTheAddressRowIsPlayedAndAddedToTheLibrary) {
    computer.AddSong("C:\\Music\\Star - Shine.mp3");

    program.GoTo("C:\\Music\\Star - Shine.mp3");

    EXPECT_EQ(Playing("a"), "Star - Shine.mp3");
    const auto songs = computer.database.Rows(scenario::kMediaPath, "tblSong");
    ASSERT_EQ(songs.size(), 3U);
    EXPECT_EQ(songs[2][1], "Star");
}

TEST_F(PlayingStory, ANativePathInTheAddressRowIsTheSameFile) {
    computer.AddSong("C:\\Music\\Star - Shine.mp3");

    program.GoTo("/Music/Star - Shine.mp3");

    EXPECT_EQ(Playing("a"), "Star - Shine.mp3");
}

TEST_F(PlayingStory, TheKeyboardsMediaKeysPlayOnPauseAndStop) {
    constexpr int kNextKey = 176;
    constexpr int kStopKey = 178;
    constexpr int kPlayOrPauseKey = 179;
    PlayTrack(0);

    program.Browser().KeyDown.Raise(kNextKey, 0);
    EXPECT_EQ(Playing("b"), "Moon - Fall.mp3");
    program.Wait(8000);
    program.Browser().KeyDown.Raise(kPlayOrPauseKey, 0);
    EXPECT_EQ(computer.media.Mode("b"), "paused");
    program.Browser().KeyDown.Raise(kPlayOrPauseKey, 0);
    EXPECT_EQ(computer.media.Mode("b"), "playing");
    program.Browser().KeyDown.Raise(kStopKey, 0);

    EXPECT_FALSE(computer.media.IsOpen("b"));
}

TEST_F(PlayingStory, TheSoundTestSendsTheSongToOneSideUntilItCloses) {
    PlayTrack(0);
    auto& dialog = program.windows.frmSpeakerTest;

    program.Click(program.Browser().menus.mnuSoundTest);
    EXPECT_TRUE(dialog.Visible());
    EXPECT_FALSE(program.Browser().Enabled());
    program.Click(dialog.cmdLeft);
    EXPECT_EQ(computer.media.Left("a"), 1000);
    EXPECT_EQ(computer.media.Right("a"), 0);
    dialog.UnloadWindow();

    EXPECT_TRUE(program.Browser().Enabled());
    EXPECT_EQ(computer.media.Right("a"), 1000);
}

TEST_F(PlayingStory, AClickOnTheSongBarGoesThere) {
    PlayTrack(0);
    program.Wait(1000);

    program.Browser().player.transport.picSongProgress.MouseDown.Raise(controls::kLeftButton, 0, 10, 4);
    program.Wait(500);

    EXPECT_NEAR(static_cast<double>(computer.media.Frame("a")), 10'515, 60);
    EXPECT_NEAR(program.Browser().player.transport.lblProgress.Left(), 10.5, 0.2);
}

TEST_F(PlayingStory, ClosingTheMusicTabStopsTheSong) {
    PlayTrack(0);

    program.Click(program.Browser().web.tabs.tabMusicClose);

    EXPECT_FALSE(computer.media.IsOpen("a"));
    EXPECT_FALSE(program.Browser().chrome.fraMusicTab.Visible());
}

}  // namespace
