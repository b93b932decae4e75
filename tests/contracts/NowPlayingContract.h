// What every board that shows what plays promises: one body of tests for the stand-in and for the real bus.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "fakes/RecordingRemoteControl.h"
#include "ports/NowPlaying.h"

namespace contracts {

/// A board and somebody who watches it and asks.
class NowPlayingBench {
public:
    virtual ~NowPlayingBench() = default;
    virtual ports::NowPlayingBoard& Board() = 0;
    /// The state as the watcher sees it.
    virtual ports::NowPlaying Seen() = 0;
    /// How often the watcher was notified of changes since the start, and of which jumps.
    virtual int NewsTold() = 0;
    virtual std::vector<std::int64_t> JumpsTold() = 0;
    /// The place in the song, as reported to the watcher.
    virtual std::int64_t AskPosition() = 0;
    /// The watcher asks for it and the listener has been notified: "play", "pause", "play or pause", "stop",
    /// "next", "previous", "raise", "quit".
    virtual void Ask(const std::string& verb) = 0;
    virtual void AskSeek(std::int64_t offset) = 0;
    virtual void AskPosition(std::int64_t track, std::int64_t position) = 0;
    virtual void AskRate(double rate) = 0;
    virtual void AskVolume(double volume) = 0;
    virtual void AskRepeat(bool repeat) = 0;
    virtual void AskShuffle(bool shuffle) = 0;
    virtual void AskGoTo(std::int64_t track) = 0;
    /// What the watcher learns of tracks.
    virtual std::vector<ports::ListedTrack> AskTracks(const std::vector<std::int64_t>& tracks) = 0;
};

using MakeNowPlayingBench = std::function<std::unique_ptr<NowPlayingBench>()>;

class NowPlayingContract : public testing::TestWithParam<MakeNowPlayingBench> {
protected:
    NowPlayingContract() { bench_->Board().SetListener(&control_); }

    static ports::NowPlaying Song(std::int64_t track) {
        ports::NowPlaying now;
        now.status = ports::PlaybackStatus::Playing;
        now.track = track;
        now.title = "Nachtmusik \xE2\x99\xAB";
        now.artist = "Mozart";
        now.path = "/m/Nachtmusik #1 100%.mp3";
        now.art = "/m/cover #1.jpg";
        now.length = 185'000'000;
        now.repeats = now.shuffles = true;
        now.tracks = {(std::int64_t{1} << 32U) + 5, track, (std::int64_t{1} << 32U) + 7};
        now.rate = 1.03;
        now.volume = 0.5;
        now.can_play = now.can_pause = now.can_seek = now.can_go_next = now.can_go_previous = true;
        return now;
    }

    fakes::RecordingRemoteControl control_;
    std::unique_ptr<NowPlayingBench> bench_ = GetParam()();
};

TEST_P(NowPlayingContract, WhatIsShownIsSeen) {
    bench_->Board().Show(Song(7));

    EXPECT_EQ(bench_->Seen(), Song(7));
}

TEST_P(NowPlayingContract, AtTheStartNothingPlays) {
    EXPECT_EQ(bench_->Seen(), ports::NowPlaying());
}

TEST_P(NowPlayingContract, AfterASongNothingOfItIsLeft) {
    bench_->Board().Show(Song(7));

    bench_->Board().Show({});

    EXPECT_EQ(bench_->Seen(), ports::NowPlaying());
}

TEST_P(NowPlayingContract, OnlyWhatIsNewsIsTold) {
    ports::NowPlaying now = Song(7);
    bench_->Board().Show(now);
    bench_->Board().Show(now);
    EXPECT_EQ(bench_->NewsTold(), 1);

    now.status = ports::PlaybackStatus::Paused;
    bench_->Board().Show(now);

    EXPECT_EQ(bench_->NewsTold(), 2);
    EXPECT_EQ(bench_->Seen(), now);
}

TEST_P(NowPlayingContract, JumpsAreTold) {
    bench_->Board().Show(Song(7));

    bench_->Board().ShowJump(0);
    bench_->Board().ShowJump(90'000'000);

    EXPECT_EQ(bench_->JumpsTold(), (std::vector<std::int64_t>{0, 90'000'000}));
}

TEST_P(NowPlayingContract, ThePositionIsTheListenersOwn) {
    control_.At = 12'345'678;

    EXPECT_EQ(bench_->AskPosition(), 12'345'678);
}

TEST_P(NowPlayingContract, EveryWishReachesTheListener) {
    const std::vector<std::string> verbs = {"play", "pause",    "play or pause", "stop",
                                            "next", "previous", "raise",         "quit"};

    for (const std::string& verb : verbs)
        bench_->Ask(verb);

    EXPECT_EQ(control_.Asked, verbs);
}

TEST_P(NowPlayingContract, PlacesAndLevelsReachTheListenerAsTheyAre) {
    bench_->Board().Show(Song(7));

    bench_->AskSeek(-5'000'000);
    bench_->AskSeek(INT64_MAX);
    bench_->AskPosition(7, 60'000'000);
    bench_->AskPosition(99, -1);
    bench_->AskRate(1.5);
    bench_->AskVolume(-2);

    EXPECT_EQ(control_.Asked, (std::vector<std::string>{"seek -5000000", "seek " + std::to_string(INT64_MAX),
                                                        "position 7 60000000", "position 99 -1",
                                                        "rate 1.500000", "volume -2.000000"}));
}

TEST_P(NowPlayingContract, WithoutAListenerNothingHappens) {
    bench_->Board().SetListener(nullptr);

    bench_->Ask("play");
    bench_->AskSeek(1);
    bench_->AskVolume(1);

    EXPECT_TRUE(control_.Asked.empty());
    EXPECT_EQ(bench_->AskPosition(), 0);
}

TEST_P(NowPlayingContract, ModesAndTracksReachTheListener) {
    bench_->Board().Show(Song(7));

    bench_->AskRepeat(true);
    bench_->AskRepeat(false);
    bench_->AskShuffle(true);
    bench_->AskShuffle(false);
    bench_->AskGoTo(7);
    bench_->AskGoTo((std::int64_t{1} << 32U) + 5);

    EXPECT_EQ(control_.Asked, (std::vector<std::string>{"repeat", "repeat no more", "shuffle",
                                                        "shuffle no more", "go to 7", "go to 4294967301"}));
}

TEST_P(NowPlayingContract, TracksAreDescribedByTheListener) {
    control_.Known = {{.track = 7, .title = "Nachtmusik", .artist = "Mozart", .path = "/m/#1 100%.mp3"},
                      {.track = 8, .title = "Gone", .artist = "", .path = ""}};

    EXPECT_EQ(bench_->AskTracks({8, 99, 7}), control_.Known);
    EXPECT_TRUE(bench_->AskTracks({}).empty());
}

TEST_P(NowPlayingContract, AnotherOrderIsSeen) {
    ports::NowPlaying now = Song(7);
    bench_->Board().Show(now);

    now.tracks = {7};
    bench_->Board().Show(now);

    EXPECT_EQ(bench_->Seen(), now);
}

}  // namespace contracts
