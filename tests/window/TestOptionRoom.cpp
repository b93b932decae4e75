#include "window/OptionRoom.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "fakes/FakeInstanceLock.h"

namespace {

using roles::PlayerStatus;

/// A player that notes what it is asked to do.
struct RecordingPlayer final : roles::Transport, roles::NowPlaying {
    roles::PlayerGlance Glance() const override {
        return {.has_selected_track = Selected, .has_next = NextThere, .has_previous = PreviousThere};
    }
    roles::PlayerStatus Status() override { return Now; }
    roles::CurrentSong Song() override {
        return {.artist = "Owls ", .title = " Nightjar", .path = "C:\\m.mp3", .length = Length};
    }
    double Position() override { return Place; }
    bool IsStopped() const override { return false; }
    bool IsNoFileShown() const override { return false; }
    std::string TrackCaption() const override { return {}; }
    void PlaySong(std::string_view) override { Done.emplace_back("song"); }
    void Play() override { Done.emplace_back("play"); }
    void Pause() override { Done.emplace_back("pause"); }
    bool IsPlayShown() const override { return false; }
    void StayStopped() override { Done.emplace_back("stay stopped"); }
    void Stop() override { Done.emplace_back("stop"); }
    void StopAndForget() override { Done.emplace_back("forget"); }
    void Next() override { Done.emplace_back("next"); }
    void Previous() override { Done.emplace_back("previous"); }
    void SeekTo(double) override { Done.emplace_back("seek"); }
    void SetSpeed(double) override { Done.emplace_back("speed"); }
    void SetVolume(double) override { Done.emplace_back("volume"); }
    void ToggleMute() override { Done.emplace_back("mute"); }
    void IncreaseVolume() override { Done.emplace_back("louder"); }
    void DecreaseVolume() override { Done.emplace_back("quieter"); }

    roles::PlayerStatus Now = PlayerStatus::Stopped;
    bool Selected = true;
    bool NextThere = true;
    bool PreviousThere = true;
    double Place = 12.9;
    double Length = 187;
    std::vector<std::string> Done;
};

class OptionRoomTest : public testing::Test {
protected:
    OptionRoomTest() { first.TryBecomeFirst(); }

    /// The exit code and the text that a later start with the option shows.
    std::string Ask(std::string_view option) {
        const std::optional<ports::OptionAnswer> answer = later.AskFirst(option);
        return answer ? std::to_string(answer->exit_code) + " " + answer->text : "nobody";
    }

    RecordingPlayer player;
    bool logged_in = true;
    fakes::FakeInstances instances;
    fakes::FakeInstanceLock first{instances};
    fakes::FakeInstanceLock later{instances};
    std::unique_ptr<window::OptionRoom> room =
        std::make_unique<window::OptionRoom>(window::OptionRoles{player, player, logged_in}, first);
};

TEST_F(OptionRoomTest, PlayPausePausesWhatPlaysAndPlaysWhatDoesNot) {
    EXPECT_EQ(Ask("play-pause"), "0 ");
    player.Now = PlayerStatus::Playing;
    EXPECT_EQ(Ask("play-pause"), "0 ");
    player.Now = PlayerStatus::Paused;
    player.Selected = false;
    EXPECT_EQ(Ask("play-pause"), "0 ");

    EXPECT_EQ(player.Done, (std::vector<std::string>{"play", "pause", "play"}));
}

TEST_F(OptionRoomTest, WhatCannotBeDoneIsTold) {
    player.Selected = player.NextThere = player.PreviousThere = false;

    EXPECT_EQ(Ask("play-pause"), "1 There is nothing to play.");
    EXPECT_EQ(Ask("next"), "1 There is no next song.");
    EXPECT_EQ(Ask("previous"), "1 There is no song before.");
    EXPECT_TRUE(player.Done.empty());
}

TEST_F(OptionRoomTest, NextPreviousAndStop) {
    player.Now = PlayerStatus::Playing;

    EXPECT_EQ(Ask("next"), "0 ");
    EXPECT_EQ(Ask("previous"), "0 ");
    EXPECT_EQ(Ask("stop"), "0 ");

    EXPECT_EQ(player.Done, (std::vector<std::string>{"next", "previous", "stop"}));
}

TEST_F(OptionRoomTest, StoppingWhatIsStoppedIsDoneAlready) {
    EXPECT_EQ(Ask("stop"), "0 ");
    EXPECT_TRUE(player.Done.empty());
}

TEST_F(OptionRoomTest, TheStatusIsWhatPlaysAndWhere) {
    EXPECT_EQ(Ask("status"), "0 stopped");
    player.Now = PlayerStatus::Playing;
    EXPECT_EQ(Ask("status"), "0 playing\nOwls - Nightjar\n0:12 of 3:07");
    player.Now = PlayerStatus::Paused;
    player.Place = 3723;
    player.Length = 0;
    EXPECT_EQ(Ask("status"), "0 paused\nOwls - Nightjar\n1:02:03");
}

TEST_F(OptionRoomTest, WithNobodyLoggedInOnlyTheStatusIsAnswered) {
    logged_in = false;
    player.Now = PlayerStatus::Playing;

    EXPECT_EQ(Ask("play-pause"), "1 Nobody is logged in.");
    EXPECT_EQ(Ask("next"), "1 Nobody is logged in.");
    EXPECT_EQ(Ask("previous"), "1 Nobody is logged in.");
    EXPECT_EQ(Ask("stop"), "1 Nobody is logged in.");
    EXPECT_EQ(Ask("status"), "0 playing\nOwls - Nightjar\n0:12 of 3:07");
    EXPECT_TRUE(player.Done.empty());
}

TEST_F(OptionRoomTest, AnUnknownOptionOfAnotherVersionIsTold) {
    EXPECT_EQ(Ask("dance"), "2 The program that runs does not know this option.");
}

TEST_F(OptionRoomTest, AfterItsEndOptionsFindNobody) {
    room.reset();
    EXPECT_EQ(Ask("status"), "nobody");
}

}  // namespace
