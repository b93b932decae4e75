// What plays, as messengers, the desktop's player controls and the screen saver learn it from the whole
// program.
#include <gtest/gtest.h>

#include <limits>
#include <utility>

#include "scenario/Program.h"

namespace {

using ports::PlaybackStatus;
using scenario::Computer;
using scenario::Program;
using Texts = std::vector<std::string>;

constexpr std::int64_t kSecond = 1'000'000;
const std::string kNothing = R"(\0Music\00\0{0} - {1} {2}\0\0\0\0\0)";

class TellingStory : public testing::Test {
protected:
    TellingStory() {
        computer.AddUser("Ann", "rose");
        computer.AddToLibrary(1, "Moon", "Fall", {60'000, 1000});
        rise = computer.AddToLibrary(2, "Sun", "Rise", {60'000, 1000});
        computer.AddToLibrary(3, "Tide", "Film", {60'000, 25}, "avi");
        program.StartAndLogIn("Ann", "rose");
        program.messenger.AddWindow("MsnMsgrUIManager");
    }

    void PlayTrack(int row) {
        program.Browser().library.lists.lstTracks.SetListIndex(row);
        program.DoubleClick(program.Browser().library.lists.lstTracks);
        program.Wait(100);
    }
    /// What the messenger received since the last call; letters of other scripts are not read here.
    Texts Received() {
        Texts texts;
        for (const ports::CopyData& block : std::exchange(program.messenger.Windows[0].Received, {})) {
            std::string text;
            for (std::size_t i = 0; i + 2 < block.lpData.size(); i += 2)
                text += static_cast<char>(block.lpData[i]);
            texts.push_back(text);
        }
        return texts;
    }
    static std::string Line(const std::string& artist, const std::string& title, const std::string& own) {
        return R"(\0Music\01\0{0} - {1} {2}\0)" + artist + R"(\0)" + title + R"(\0)" + own + R"(\0\0)";
    }
    void EnterInModeMSN(const std::string& text) {
        auto& types = program.Browser().web.address.cmbType;
        for (int row = 0; row < types.ListCount(); ++row) {
            if (types.List(row) == "MSN") types.SetListIndex(row);
        }
        program.GoTo(text);
    }
    /// A remote control's wish, as an event of its own.
    template <class... Arguments>
    void Ask(void (ports::RemoteControl::*verb)(Arguments...), Arguments... arguments) {
        (program.board.Listener->*verb)(arguments...);
        program.desktop.EndHandler();
    }
    const ports::NowPlaying& Shown() const { return program.board.Shown; }
    player::TransportControls& Transport() { return program.Browser().player.transport; }

    Computer computer;
    std::string rise;
    Program program{computer};
};

TEST_F(TellingStory, ASongThatStartsIsSentWithItsBlank) {
    PlayTrack(1);

    EXPECT_EQ(Received(), Texts{Line("Sun ", "Rise", "")});
}

TEST_F(TellingStory, StopClearsTheMessengersLine) {
    PlayTrack(0);
    Received();

    program.Click(Transport().imgStopOver);

    EXPECT_EQ(Received(), Texts{kNothing});
}

TEST_F(TellingStory, NobodyIsToldAgainWhileAStoppedWindowIsResized) {
    PlayTrack(1);
    program.Click(Transport().imgStop);
    program.Click(Transport().imgStopOver);
    Received();

    for (int step = 1; step <= 20; ++step) {
        auto& window = program.Browser();
        window.Move(window.Left(), window.Top(), window.Width() + 15 * step, window.Height());
        program.Wait(20);
    }

    EXPECT_EQ(Received(), Texts{});
}

TEST_F(TellingStory, ClosingTheMusicTabClearsIt) {
    PlayTrack(0);
    Received();

    program.Click(program.Browser().web.tabs.tabMusicClose);

    // Once by the stop, once by the close itself.
    EXPECT_EQ(Received(), (Texts{kNothing, kNothing}));
}

TEST_F(TellingStory, TheExitClearsItAtTheQuestionAndAtTheSave) {
    PlayTrack(0);
    Received();

    program.Click(program.Browser().menus.mnuExit);

    EXPECT_EQ(Received(), (Texts{kNothing, kNothing, kNothing, kNothing}));
    EXPECT_TRUE(program.ended);
}

TEST_F(TellingStory, LoggingOutSavesAndTellsNothing) {
    program.Click(program.Browser().menus.mnuLogout);

    EXPECT_EQ(Received(), Texts{});
}

TEST_F(TellingStory, ATextOfOnesOwnIsSentTwiceAndStays) {
    PlayTrack(1);
    Received();

    EnterInModeMSN("gone fishing");
    EXPECT_EQ(Received(),
              (Texts{Line("Sun ", "Rise", "gone fishing"), Line("Sun ", "Rise", "gone fishing")}));
    PlayTrack(0);

    EXPECT_EQ(Received(), Texts{Line("Moon ", "Fall", "gone fishing")});
}

TEST_F(TellingStory, WhatFollowsTheTrackIsSentOnce) {
    PlayTrack(1);
    Received();

    EnterInModeMSN("Sun - Rise from the roof");

    EXPECT_EQ(Received(), Texts{Line("Sun ", "Rise", " from the roof")});
}

TEST_F(TellingStory, TheTextIsLoggedAndItsListRefilled) {
    EnterInModeMSN("gone fishing");

    const auto rows = computer.database.Rows(scenario::kHistoryPath, "tblHistory");
    EXPECT_EQ(rows.back()[1], "MSN");
    EXPECT_EQ(rows.back()[2], "gone fishing");
    EXPECT_EQ(program.Browser().web.address.txtAddress.Text(), "");
}

TEST_F(TellingStory, WithTheOptionOffNobodyIsLookedFor) {
    Computer quiet;
    quiet.AddUser("Ann", "rose");
    quiet.AddToLibrary(1, "Sun", "Rise", {60'000, 1000});
    auto settings = quiet.database.Rows(scenario::kHistoryPath, "tblHistory");
    settings[10][2] = "False";
    quiet.database.Remove(scenario::kHistoryPath);
    quiet.database.MakeStore(scenario::kHistoryPath);
    quiet.database.Seed(scenario::kHistoryPath, "tblHistory", settings);
    Program other{quiet};
    other.messenger.AddWindow("MsnMsgrUIManager");
    other.StartAndLogIn("Ann", "rose");

    other.Browser().library.lists.lstTracks.SetListIndex(0);
    other.DoubleClick(other.Browser().library.lists.lstTracks);
    other.Click(other.Browser().player.transport.imgStopOver);
    other.Click(other.Browser().menus.mnuExit);

    EXPECT_EQ(other.messenger.Searches, 0);
}

TEST_F(TellingStory, ASongIsShownOnTheDesktopsControls) {
    PlayTrack(1);

    EXPECT_EQ(Shown().status, PlaybackStatus::Playing);
    EXPECT_EQ(Shown().artist, "Sun");
    EXPECT_EQ(Shown().title, "Rise");
    EXPECT_EQ(Shown().path, computer.files.ToNative(rise));
    EXPECT_EQ(Shown().length, 60 * kSecond);
    EXPECT_DOUBLE_EQ(Shown().rate, 1.03);
    EXPECT_DOUBLE_EQ(Shown().volume, 1.0);
    EXPECT_TRUE(Shown().can_go_next);
    EXPECT_TRUE(Shown().can_go_previous);
}

TEST_F(TellingStory, AVideoIsShownWithTheProgramsOwnTitle) {
    PlayTrack(2);

    EXPECT_EQ(Shown().title, "Film [Video]");
    EXPECT_EQ(Shown().length, 60 * kSecond);
}

TEST_F(TellingStory, PauseAndPlayFromOutsideAreTheButtons) {
    PlayTrack(1);

    Ask(&ports::RemoteControl::OnPause);
    EXPECT_EQ(Shown().status, PlaybackStatus::Paused);
    EXPECT_EQ(computer.media.Mode("a"), "paused");
    EXPECT_TRUE(Transport().imgPlay.Visible());
    Ask(&ports::RemoteControl::OnPlayPause);

    EXPECT_EQ(Shown().status, PlaybackStatus::Playing);
    EXPECT_EQ(computer.media.Mode("a"), "playing");
    EXPECT_TRUE(Transport().imgPause.Visible());
}

TEST_F(TellingStory, StopFromOutsideIsTheButtonAndClearsTheMessenger) {
    PlayTrack(1);
    Received();

    Ask(&ports::RemoteControl::OnStop);

    EXPECT_EQ(Shown().status, PlaybackStatus::Stopped);
    EXPECT_EQ(Shown().track, 0);
    EXPECT_FALSE(computer.media.IsOpen("a"));
    EXPECT_EQ(Received(), Texts{kNothing});
}

TEST_F(TellingStory, PlayFromOutsideStartsTheSelectedTrack) {
    program.Browser().library.lists.lstTracks.SetListIndex(1);
    program.desktop.EndHandler();

    Ask(&ports::RemoteControl::OnPlay);

    EXPECT_EQ(Shown().title, "Rise");
}

TEST_F(TellingStory, NextAndPreviousWalkThePlayOrder) {
    PlayTrack(0);
    const std::int64_t first = Shown().track;

    Ask(&ports::RemoteControl::OnNext);
    EXPECT_EQ(Shown().title, "Rise");
    EXPECT_GT(Shown().track, first);
    Ask(&ports::RemoteControl::OnPrevious);

    EXPECT_EQ(Shown().title, "Fall");
}

TEST_F(TellingStory, APositionFromOutsideSeeksAndIsToldBack) {
    PlayTrack(1);

    Ask(&ports::RemoteControl::OnSetPosition, Shown().track, 30 * kSecond);

    EXPECT_EQ(computer.media.Frame("a"), 30'000);
    EXPECT_EQ(program.board.Jumps, std::vector<std::int64_t>{30 * kSecond});
    EXPECT_EQ(program.board.Listener->Position(), 30 * kSecond);
}

TEST_F(TellingStory, APressOnTheBarIsToldToo) {
    PlayTrack(1);

    Transport().picSongProgress.MouseDown.Raise(controls::kLeftButton, 0, 20, 0);
    program.desktop.EndHandler();

    EXPECT_EQ(program.board.Jumps, std::vector<std::int64_t>{20 * kSecond});
}

TEST_F(TellingStory, ASeekInAPausedSongLeavesItPaused) {
    PlayTrack(1);
    Ask(&ports::RemoteControl::OnPause);

    Ask(&ports::RemoteControl::OnSeek, 10 * kSecond);

    EXPECT_EQ(computer.media.Mode("a"), "paused");
    EXPECT_EQ(Shown().status, PlaybackStatus::Paused);
}

TEST_F(TellingStory, VolumeAndRateFromOutsideAreTheSliders) {
    PlayTrack(1);

    Ask(&ports::RemoteControl::OnSetVolume, 0.5);
    Ask(&ports::RemoteControl::OnSetRate, 1.5);

    EXPECT_EQ(computer.media.Left("a"), 500);
    EXPECT_EQ(computer.media.Speed("a"), 1500);
    EXPECT_DOUBLE_EQ(Shown().volume, 0.5);
    EXPECT_DOUBLE_EQ(Shown().rate, 1.5);
}

TEST_F(TellingStory, MuteIsNoVolume) {
    PlayTrack(1);

    program.Click(program.Browser().menus.mnuMusicMute);
    EXPECT_DOUBLE_EQ(Shown().volume, 0.0);
    program.Click(program.Browser().menus.mnuMusicMute);

    EXPECT_DOUBLE_EQ(Shown().volume, 1.0);
}

TEST_F(TellingStory, ASongThatCannotBeOpenedIsNoSong) {
    const std::string broken = "C:\\Music\\Bad - Song.mp3";
    computer.files.AddFile(broken);
    computer.media.AddBroken(computer.files.GetShortPathName(broken));

    program.GoTo(broken);

    EXPECT_EQ(Shown().status, PlaybackStatus::Stopped);
    EXPECT_EQ(Shown().track, 0);
}

TEST_F(TellingStory, QuitFromOutsideIsTheMenuEntry) {
    Ask(&ports::RemoteControl::OnQuit);

    EXPECT_TRUE(program.ended);
}

TEST_F(TellingStory, RaiseBringsAMinimisedWindowBack) {
    program.Browser().SetState(controls::WindowState::Minimised);

    Ask(&ports::RemoteControl::OnRaise);

    EXPECT_EQ(program.Browser().State(), controls::WindowState::Normal);
}

TEST_F(TellingStory, TheScreenStaysOnDuringAVideoOnly) {
    PlayTrack(1);
    EXPECT_FALSE(program.screen_saver.Inhibited);
    PlayTrack(2);
    EXPECT_TRUE(program.screen_saver.Inhibited);
    program.Click(Transport().imgPauseOver);
    EXPECT_FALSE(program.screen_saver.Inhibited);
    program.Click(Transport().imgPlayOver);
    EXPECT_TRUE(program.screen_saver.Inhibited);
    program.Click(Transport().imgStopOver);

    EXPECT_FALSE(program.screen_saver.Inhibited);
}

TEST_F(TellingStory, AnExitDuringAVideoLetsTheScreenGoDark) {
    PlayTrack(2);

    program.Click(program.Browser().menus.mnuExit);

    EXPECT_FALSE(program.screen_saver.Inhibited);
    EXPECT_EQ(Shown().status, PlaybackStatus::Stopped);
}

TEST_F(TellingStory, StrangeWishesAreHarmless) {
    PlayTrack(1);
    constexpr auto kHuge = std::numeric_limits<std::int64_t>::max();
    constexpr auto kTiny = std::numeric_limits<std::int64_t>::min();
    constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();

    Ask(&ports::RemoteControl::OnSeek, kTiny);
    Ask(&ports::RemoteControl::OnSetPosition, std::int64_t{77}, std::int64_t{5});
    Ask(&ports::RemoteControl::OnSetPosition, Shown().track, kHuge);
    Ask(&ports::RemoteControl::OnSetPosition, Shown().track, kTiny);
    Ask(&ports::RemoteControl::OnSetVolume, kNoNumber);
    Ask(&ports::RemoteControl::OnSetRate, kNoNumber);

    EXPECT_EQ(computer.media.Mode("a"), "playing");
    EXPECT_EQ(computer.media.Left("a"), 1000);
    EXPECT_EQ(computer.media.Speed("a"), 1030);
    Ask(&ports::RemoteControl::OnSeek, kHuge);
    EXPECT_NE(Shown().title, "Rise") << "past the end comes the next song";
}

}  // namespace
