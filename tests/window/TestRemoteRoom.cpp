#include "window/RemoteRoom.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <optional>
#include <vector>

#include "fakes/FakeDesktop.h"
#include "fakes/FakeFiles.h"
#include "fakes/FakeNowPlayingBoard.h"
#include "fakes/FakeScreenSaver.h"

namespace {

using ports::PlaybackStatus;
using roles::PlayerStatus;
using Calls = std::vector<std::string>;

constexpr std::int64_t kSecond = 1'000'000;
constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();
constexpr double kEndless = std::numeric_limits<double>::infinity();

/// A player that notes what it is asked to do.
struct RecordingPlayer final : roles::Transport, roles::NowPlaying, roles::PlayOrder {
    roles::PlayerGlance Glance() const override {
        return {.orders = OrderCount,
                .openings = OpeningCount,
                .seeks = SeekCount,
                .volume = Level,
                .has_selected_track = Selected,
                .has_next = NextThere,
                .has_previous = PreviousThere};
    }
    roles::PlayerStatus Status() override {
        ++StatusQuestions;
        return Now;
    }
    roles::CurrentSong Song() override {
        return {.artist = "Owls ",
                .title = " Nightjar",
                .path = "C:\\m\\Owls - Nightjar.mp3",
                .length = LengthSeconds,
                .speed = SpeedPercent,
                .is_video = Video};
    }
    double Position() override { return PositionSeconds; }
    bool IsStopped() const override { return false; }
    bool IsNoFileShown() const override { return false; }
    std::string TrackCaption() const override { return {}; }
    void PlaySong(std::string_view) override { Did("song"); }
    void Play() override { Did("play"); }
    void Pause() override { Did("pause"); }
    bool IsPlayShown() const override { return false; }
    void Stop() override { Did("stop"); }
    void StayStopped() override { Did("stay stopped"); }
    void StopAndForget() override { Did("forget"); }
    void Next() override { Did("next"); }
    void Previous() override { Did("previous"); }
    void SeekTo(double second) override { Did("seek " + std::to_string(second)); }
    void SetSpeed(double percent) override { Did("speed " + std::to_string(percent)); }
    void SetVolume(double level) override { Did("volume " + std::to_string(level)); }
    void ToggleMute() override { Did("mute"); }
    void IncreaseVolume() override { Did("louder"); }
    void DecreaseVolume() override { Did("quieter"); }

    roles::OrderGlance Order() const override { return Ordered; }
    bool PlaysItsRow() override { return FromTheOrder; }
    std::vector<roles::OrderedSong> SongsAt(const std::vector<int>& rows) override {
        std::vector<roles::OrderedSong> songs;
        songs.reserve(rows.size());
        for (const int row : rows)
            songs.push_back({.artist = "Owls", .title = std::to_string(row), .path = "C:\\m\\x.mp3"});
        return songs;
    }
    void SetRepeat(bool repeat) override { Did(repeat ? "repeat" : "repeat no more"); }
    void SetShuffle(bool shuffle) override { Did(shuffle ? "shuffle" : "shuffle no more"); }
    void PlayRow(int row) override { Did("row " + std::to_string(row)); }

    void Did(std::string what) { Done.push_back(std::move(what)); }

    std::uint64_t OrderCount = 0;
    std::int64_t OpeningCount = 0;
    std::uint64_t SeekCount = 0;
    roles::PlayerStatus Now = roles::PlayerStatus::Stopped;
    int StatusQuestions = 0;
    bool Video = false;
    double LengthSeconds = 180;
    double PositionSeconds = 0;
    int SpeedPercent = 103;
    double Level = 1;
    bool Selected = true;
    bool NextThere = true;
    bool PreviousThere = true;
    roles::OrderGlance Ordered;
    bool FromTheOrder = true;
    Calls Done;
};

class RemoteRoomTest : public testing::Test {
protected:
    RemoteRoomTest() {
        room.emplace(
            window::RemoteRoles{
                .transport = player, .playing = player, .order = player, .LoggedIn = logged_in},
            window::RemoteActions{.raise = [this] { player.Did("raise"); },
                                  .quit = [this] { player.Did("quit"); }},
            window::RemotePorts{.board = board,
                                .screen_saver = screen_saver,
                                .events = desktop,
                                .files = files,
                                .clock = desktop});
        desktop.EndHandler();
    }

    /// A song is opened and plays from the start.
    void StartSong() {
        ++player.OpeningCount;
        ChangeTo(PlayerStatus::Playing);
    }
    void ChangeTo(PlayerStatus status) {
        ++player.OrderCount;
        player.Now = status;
        desktop.EndHandler();
    }
    ports::RemoteControl& Remote() { return *board.Listener; }

    bool logged_in = true;
    RecordingPlayer player;
    fakes::FakeDesktop desktop;
    fakes::FakeNowPlayingBoard board;
    fakes::FakeScreenSaver screen_saver;
    fakes::FakeFiles files;
    std::optional<window::RemoteRoom> room;
};

TEST_F(RemoteRoomTest, BeforeTheFirstSongNothingPlays) {
    EXPECT_EQ(board.Shown.status, PlaybackStatus::Stopped);
    EXPECT_EQ(board.Shown.track, 0);
    EXPECT_EQ(board.Shown.title, "");
    EXPECT_TRUE(board.Shown.can_play);
    EXPECT_FALSE(board.Shown.can_pause);
    EXPECT_FALSE(board.Shown.can_seek);
    EXPECT_EQ(Remote().Position(), 0);
}

TEST_F(RemoteRoomTest, ASongIsShownWithAllThatIsKnown) {
    StartSong();

    EXPECT_EQ(board.Shown.status, PlaybackStatus::Playing);
    EXPECT_EQ(board.Shown.track, 1);
    EXPECT_EQ(board.Shown.title, "Nightjar");
    EXPECT_EQ(board.Shown.artist, "Owls");
    EXPECT_EQ(board.Shown.path, files.ToNative("C:\\m\\Owls - Nightjar.mp3"));
    EXPECT_EQ(board.Shown.length, 180 * kSecond);
    EXPECT_DOUBLE_EQ(board.Shown.rate, 1.03);
    EXPECT_TRUE(board.Shown.can_pause);
    EXPECT_TRUE(board.Shown.can_seek);
}

TEST_F(RemoteRoomTest, TheSameSongAgainIsAnotherTrack) {
    StartSong();
    StartSong();

    EXPECT_EQ(board.Shown.track, 2);
    EXPECT_EQ(board.News.back().track, 2);
}

TEST_F(RemoteRoomTest, AHandlerThatChangedNothingIsNoNews) {
    StartSong();
    const std::size_t news = board.News.size();

    for (int i = 0; i < 100; ++i)
        desktop.EndHandler();

    EXPECT_EQ(board.News.size(), news);
}

TEST_F(RemoteRoomTest, WhileNothingPlaysTheDeviceIsNotAsked) {
    ChangeTo(PlayerStatus::Stopped);
    const int asked = player.StatusQuestions;

    for (int i = 0; i < 100; ++i)
        desktop.EndHandler();

    EXPECT_EQ(player.StatusQuestions, asked);
}

// The device is in another process, and pages end a great many handlers.
TEST_F(RemoteRoomTest, WhilePlayingTheDeviceIsAskedAFewTimesASecond) {
    StartSong();
    const int asked = player.StatusQuestions;

    for (int i = 0; i < 1000; ++i) {
        desktop.Pass(1);
        desktop.EndHandler();
    }

    EXPECT_GE(player.StatusQuestions - asked, 9);
    EXPECT_LE(player.StatusQuestions - asked, 10);
}

TEST_F(RemoteRoomTest, ASongThatEndsByItselfIsShownOnce) {
    StartSong();
    const std::size_t news = board.News.size();

    player.Now = PlayerStatus::Stopped;
    desktop.EndHandler();
    desktop.EndHandler();

    EXPECT_EQ(board.Shown.status, PlaybackStatus::Stopped);
    EXPECT_EQ(board.Shown.track, 0);
    EXPECT_EQ(board.News.size(), news + 1);
}

TEST_F(RemoteRoomTest, LevelAndChoicesAreShownWithoutAnOrder) {
    player.Level = 0.25;
    player.Selected = false;
    player.NextThere = false;
    player.PreviousThere = false;

    desktop.EndHandler();

    EXPECT_EQ(board.Shown.volume, 0.25);
    EXPECT_FALSE(board.Shown.can_play);
    EXPECT_FALSE(board.Shown.can_go_next);
    EXPECT_FALSE(board.Shown.can_go_previous);
}

TEST_F(RemoteRoomTest, AJumpIsToldWithItsPlace) {
    StartSong();
    player.PositionSeconds = 12.5;
    ++player.SeekCount;

    desktop.EndHandler();

    EXPECT_EQ(board.Jumps, std::vector<std::int64_t>{12'500'000});
}

TEST_F(RemoteRoomTest, PlayingOnIsNoJump) {
    StartSong();
    player.PositionSeconds = 60;
    ChangeTo(PlayerStatus::Paused);

    EXPECT_TRUE(board.Jumps.empty());
    EXPECT_EQ(Remote().Position(), 60 * kSecond);
}

TEST_F(RemoteRoomTest, PlayPressesPlay) {
    Remote().OnPlay();

    EXPECT_EQ(player.Done, Calls{"play"});
}

TEST_F(RemoteRoomTest, WithNothingToPlayPlayDoesNothing) {
    player.Selected = false;
    desktop.EndHandler();

    Remote().OnPlay();
    Remote().OnPlayPause();

    EXPECT_TRUE(player.Done.empty());
}

TEST_F(RemoteRoomTest, PlayPauseGoesByWhatPlays) {
    Remote().OnPlayPause();
    StartSong();
    Remote().OnPlayPause();
    ChangeTo(PlayerStatus::Paused);
    Remote().OnPlayPause();

    EXPECT_EQ(player.Done, (Calls{"play", "pause", "play"}));
}

TEST_F(RemoteRoomTest, PauseAndStopOnlyWhatIsToBePausedAndStopped) {
    Remote().OnPause();
    Remote().OnStop();
    EXPECT_TRUE(player.Done.empty());
    StartSong();

    Remote().OnPause();
    Remote().OnStop();

    EXPECT_EQ(player.Done, (Calls{"pause", "stop"}));
}

TEST_F(RemoteRoomTest, NextAndPreviousOnlyWhereThereIsOne) {
    Remote().OnNext();
    Remote().OnPrevious();
    EXPECT_EQ(player.Done, (Calls{"next", "previous"}));
    player.Done.clear();
    player.NextThere = player.PreviousThere = false;
    desktop.EndHandler();

    Remote().OnNext();
    Remote().OnPrevious();

    EXPECT_TRUE(player.Done.empty());
}

TEST_F(RemoteRoomTest, SeekGoesFromWhereTheSongStands) {
    StartSong();
    player.PositionSeconds = 30;

    Remote().OnSeek(5 * kSecond);
    Remote().OnSeek(-10 * kSecond);

    EXPECT_EQ(player.Done, (Calls{"seek 35.000000", "seek 20.000000"}));
}

TEST_F(RemoteRoomTest, SeekBeforeTheStartGoesToTheStart) {
    StartSong();
    player.PositionSeconds = 3;

    Remote().OnSeek(-4 * kSecond);
    Remote().OnSeek(std::numeric_limits<std::int64_t>::min());

    EXPECT_EQ(player.Done, (Calls{"seek 0.000000", "seek 0.000000"}));
}

TEST_F(RemoteRoomTest, SeekPastTheEndIsTheNextSong) {
    StartSong();
    player.PositionSeconds = 100;

    Remote().OnSeek(80 * kSecond);
    Remote().OnSeek(80 * kSecond + 1);
    Remote().OnSeek(std::numeric_limits<std::int64_t>::max());

    EXPECT_EQ(player.Done, (Calls{"seek 180.000000", "next", "next"}));
}

TEST_F(RemoteRoomTest, APositionOutsideTheSongIsLeftAlone) {
    StartSong();

    for (const std::int64_t place :
         {std::int64_t{-1}, 180 * kSecond + 1, std::numeric_limits<std::int64_t>::max(),
          std::numeric_limits<std::int64_t>::min()}) {
        Remote().OnSetPosition(1, place);
    }

    EXPECT_TRUE(player.Done.empty());
}

TEST_F(RemoteRoomTest, APositionInTheSongIsSought) {
    StartSong();

    Remote().OnSetPosition(1, 0);
    Remote().OnSetPosition(1, 90 * kSecond);

    EXPECT_EQ(player.Done, (Calls{"seek 0.000000", "seek 90.000000"}));
}

TEST_F(RemoteRoomTest, APositionForAnotherTrackIsLeftAlone) {
    StartSong();

    Remote().OnSetPosition(0, kSecond);
    Remote().OnSetPosition(2, kSecond);
    Remote().OnSetPosition(-1, kSecond);

    EXPECT_TRUE(player.Done.empty());
}

TEST_F(RemoteRoomTest, APausedSongStaysPausedAfterASeek) {
    StartSong();
    ChangeTo(PlayerStatus::Paused);

    Remote().OnSetPosition(1, 90 * kSecond);

    EXPECT_EQ(player.Done, (Calls{"seek 90.000000", "pause"}));
}

TEST_F(RemoteRoomTest, NothingToSeekInIsNotSought) {
    Remote().OnSeek(kSecond);
    Remote().OnSetPosition(0, 0);
    player.LengthSeconds = 0;
    StartSong();

    Remote().OnSeek(kSecond);
    Remote().OnSetPosition(1, 0);

    EXPECT_FALSE(board.Shown.can_seek);
    EXPECT_TRUE(player.Done.empty());
}

TEST_F(RemoteRoomTest, ARateIsASpeedInPercentWithinItsRange) {
    for (const double rate : {1.0, 0.5, 0.001, 17.0})
        Remote().OnSetRate(rate);

    EXPECT_EQ(player.Done,
              (Calls{"speed 100.000000", "speed 50.000000", "speed 3.000000", "speed 200.000000"}));
}

TEST_F(RemoteRoomTest, ARateOfNothingPauses) {
    StartSong();

    Remote().OnSetRate(0);

    EXPECT_EQ(player.Done, Calls{"pause"});
}

TEST_F(RemoteRoomTest, ARateThatIsNoneIsLeftAlone) {
    StartSong();

    for (const double rate : {-1.0, kNoNumber, kEndless, -kEndless})
        Remote().OnSetRate(rate);

    EXPECT_TRUE(player.Done.empty());
}

TEST_F(RemoteRoomTest, TheRateShownStaysInItsRange) {
    player.SpeedPercent = 217;
    StartSong();
    EXPECT_DOUBLE_EQ(board.Shown.rate, 2.0);
    player.SpeedPercent = -17;

    ChangeTo(PlayerStatus::Playing);

    EXPECT_DOUBLE_EQ(board.Shown.rate, 0.03);
}

TEST_F(RemoteRoomTest, AVolumeIsTakenWithinItsRangeAndOtherwiseNot) {
    for (const double volume : {0.5, -3.0, 7.0, kEndless, kNoNumber})
        Remote().OnSetVolume(volume);

    EXPECT_EQ(player.Done,
              (Calls{"volume 0.500000", "volume 0.000000", "volume 1.000000", "volume 1.000000"}));
}

TEST_F(RemoteRoomTest, ModesAreShownAndSet) {
    player.Ordered.repeats = true;
    player.Ordered.shuffles = true;
    desktop.EndHandler();
    EXPECT_TRUE(board.Shown.repeats);
    EXPECT_TRUE(board.Shown.shuffles);

    Remote().OnSetRepeat(false);
    Remote().OnSetShuffle(false);
    logged_in = false;
    Remote().OnSetRepeat(true);
    Remote().OnSetShuffle(true);

    EXPECT_EQ(player.Done, (Calls{"repeat no more", "shuffle no more"}));
}

TEST_F(RemoteRoomTest, TheOrderIsListedWithTheTrackThatPlays) {
    player.Ordered = {.version = 2, .count = 3, .row = 1};
    StartSong();

    ASSERT_EQ(board.Shown.tracks.size(), 3U);
    EXPECT_EQ(board.Shown.tracks[1], board.Shown.track);
    EXPECT_NE(board.Shown.tracks[0], board.Shown.tracks[2]);

    Remote().OnGoTo(board.Shown.tracks[2]);
    Remote().OnGoTo(board.Shown.tracks[1]);
    Remote().OnGoTo(12345);
    EXPECT_EQ(player.Done, (Calls{"row 2", "row 1"}));
}

TEST_F(RemoteRoomTest, ACuedSongIsNoTrackOfTheList) {
    player.Ordered = {.version = 2, .count = 3, .row = 1};
    player.FromTheOrder = false;
    StartSong();

    EXPECT_EQ(std::count(board.Shown.tracks.begin(), board.Shown.tracks.end(), board.Shown.track), 0);
}

TEST_F(RemoteRoomTest, OfALongOrderTheSurroundingsAreListed) {
    for (const int row : {0, 19, 20, 500, 980, 999}) {
        player.Ordered = {.version = 1, .count = 1000, .row = row};
        StartSong();
        EXPECT_EQ(board.Shown.tracks.size(), 100U) << row;
        EXPECT_EQ(std::count(board.Shown.tracks.begin(), board.Shown.tracks.end(), board.Shown.track), 1)
            << row;
        const ports::ListedTrack first = Remote().Describe({board.Shown.tracks.front()}).at(0);
        EXPECT_EQ(first.title, std::to_string(std::clamp(row - 20, 0, 900))) << row;
    }
}

TEST_F(RemoteRoomTest, TracksOfAnOlderListAreNone) {
    player.Ordered = {.version = 1, .count = 2, .row = -1};
    desktop.EndHandler();
    const std::vector<std::int64_t> old = board.Shown.tracks;
    ASSERT_EQ(old.size(), 2U);
    EXPECT_EQ(Remote().Describe(old).size(), 2U);

    player.Ordered.version = 2;
    desktop.EndHandler();
    Remote().OnGoTo(old[0]);

    EXPECT_TRUE(Remote().Describe(old).empty());
    EXPECT_TRUE(player.Done.empty());
}

TEST_F(RemoteRoomTest, ACoverBesideTheSongIsItsPicture) {
    StartSong();
    EXPECT_EQ(board.Shown.art, "");

    files.AddFile("C:\\m\\cover.jpg");
    StartSong();

    EXPECT_EQ(board.Shown.art, files.ToNative("C:\\m\\cover.jpg"));
}

TEST_F(RemoteRoomTest, RaiseAndQuitArePassedOn) {
    Remote().OnRaise();
    Remote().OnQuit();

    EXPECT_EQ(player.Done, (Calls{"raise", "quit"}));
}

TEST_F(RemoteRoomTest, TheScreenStaysOnWhileAVideoPlays) {
    player.Video = true;
    StartSong();
    EXPECT_TRUE(screen_saver.Inhibited);
    ChangeTo(PlayerStatus::Paused);
    EXPECT_FALSE(screen_saver.Inhibited);
    ChangeTo(PlayerStatus::Playing);
    EXPECT_TRUE(screen_saver.Inhibited);

    ChangeTo(PlayerStatus::Stopped);

    EXPECT_FALSE(screen_saver.Inhibited);
}

TEST_F(RemoteRoomTest, AVideoThatEndsByItselfLetsTheScreenGoDark) {
    player.Video = true;
    StartSong();
    player.Now = PlayerStatus::Stopped;

    desktop.EndHandler();

    EXPECT_FALSE(screen_saver.Inhibited);
}

TEST_F(RemoteRoomTest, ASongAfterAVideoLetsTheScreenGoDark) {
    player.Video = true;
    StartSong();
    player.Video = false;

    StartSong();

    EXPECT_FALSE(screen_saver.Inhibited);
}

TEST_F(RemoteRoomTest, MusicAloneLetsTheScreenGoDark) {
    StartSong();

    EXPECT_EQ(screen_saver.Changes, 0);
}

TEST_F(RemoteRoomTest, TheEndOfTheRoomLeavesNobodyToAskAndNothingInhibited) {
    player.Video = true;
    StartSong();

    room.reset();

    EXPECT_EQ(board.Listener, nullptr);
    EXPECT_FALSE(screen_saver.Inhibited);
}

TEST_F(RemoteRoomTest, WithNobodyLoggedInNothingIsOfferedAndNothingDone) {
    StartSong();
    ASSERT_TRUE(board.Shown.can_pause);
    logged_in = false;
    desktop.EndHandler();
    EXPECT_FALSE(board.Shown.can_play || board.Shown.can_pause || board.Shown.can_seek ||
                 board.Shown.can_go_next || board.Shown.can_go_previous);

    Remote().OnPlay();
    Remote().OnPause();
    Remote().OnPlayPause();
    Remote().OnStop();
    Remote().OnNext();
    Remote().OnPrevious();
    Remote().OnSeek(kSecond);
    Remote().OnSetPosition(board.Shown.track, kSecond);
    Remote().OnSetRate(1.5);
    Remote().OnSetVolume(0.5);
    EXPECT_EQ(player.Done, Calls{});
    Remote().OnRaise();
    Remote().OnQuit();

    EXPECT_EQ(player.Done, (Calls{"raise", "quit"}));
}

}  // namespace
