#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "player/PlayerHouse.h"

namespace {

using player_tests::PlayerHouse;

/// A box of 3000 by 360, a title of 1000.
struct Title : PlayerHouse {
    Title() {
        state.PlayerStopped = false;
        controls.levels.lblStartFade.SetLeft(1e9);
        controls.transport.picTrackTitle.Move(0, 0, 3000, 360);
        label.Move(100, 0, 1000, 345);
    }
    void Ticks(int count) {
        for (int i = 0; i < count; ++i)
            controls.transport.tmrPlay.Tick.Raise();
    }
    controls::Label& label = controls.transport.lblTrack;
};

TEST(TitleRoom, AShortTitleRunsLeftUntilItsTurningPoint) {
    Title house;
    house.label.SetLeft(500);

    house.Ticks(10);

    EXPECT_EQ(house.label.Left(), 100);
    EXPECT_EQ(house.label.Top(), 0);
}

TEST(TitleRoom, ALongTitleRunsUntilItsEndShows) {
    Title house;
    house.label.SetWidth(4000);

    house.Ticks(33);

    EXPECT_EQ(house.label.Left(), 100 - 33 * 40);
    EXPECT_EQ(house.label.Top(), 0);
}

TEST(TitleRoom, ThenDropsOutOfTheBoxAndComesInFromTheRight) {
    Title house;

    house.Ticks(10);
    const double dropped = house.label.Top();
    house.Ticks(1);

    EXPECT_EQ(dropped, 400);
    EXPECT_EQ(house.label.Left(), 3000);
    EXPECT_EQ(house.label.Top(), 0);
}

TEST(TitleRoom, EachPlaceHasItsStep) {
    struct Case {
        double left, top, width;
        double left_after, top_after;
    };
    for (const Case& one :
         {Case{1800, 0, 1000, 1760, 0}, Case{1799, 0, 1000, 1759, 0}, Case{100, 0, 2700, 60, 0},
          Case{100, 0, 2699, 100, 40}, Case{101, 0, 1000, 61, 0}, Case{100, 0, 1000, 100, 40},
          Case{100, 360, 1000, 100, 400}, Case{100, 361, 1000, 3000, 0}, Case{-300, 0, 1000, -300, 40},
          Case{3000, 0, 0, 2960, 0}}) {
        Title house;
        house.label.Move(one.left, one.top, one.width, 345);

        house.Ticks(1);

        EXPECT_EQ(house.label.Left(), one.left_after) << one.left << " " << one.top << " " << one.width;
        EXPECT_EQ(house.label.Top(), one.top_after) << one.left << " " << one.top << " " << one.width;
    }
}

TEST(TitleRoom, ANewSongBeginsAtTheLeftOnTheTopLine) {
    Title house;
    house.label.Move(-700, 80, 1000, 345);

    house.player.PlaySong(house.AddSong("a.mp3"));

    EXPECT_EQ(house.label.Left(), 100);
    EXPECT_EQ(house.label.Top(), 0);
}

TEST(TitleRoom, ANewTitleRestsForThreeSecondsBeforeItScrolls) {
    Title house;
    house.player.PlaySong(house.AddSong("a.mp3"));
    house.controls.levels.lblStartFade.SetLeft(1e9);

    house.Ticks(60);
    const double rested = house.label.Top();
    house.Ticks(1);

    EXPECT_EQ(rested, 0);
    EXPECT_EQ(house.label.Left(), 100);
    EXPECT_EQ(house.label.Top(), 40);
}

TEST(TitleRoom, ATitleThatShallNotScrollGoesToItsPlaceAtOnce) {
    Title house;
    house.state.ScrollTitle = false;
    house.player.PlaySong(house.AddSong("a.mp3"));
    house.controls.levels.lblStartFade.SetLeft(1e9);

    house.Ticks(1);

    EXPECT_EQ(house.label.Left(), 5);
}

TEST(TitleRoom, WhatAStoppedSongLeavesIsMutedUntilTheNextPlays) {
    Title house;
    const auto& time = house.controls.transport.lblRunningTime;
    house.player.PlaySong(house.AddSong("Ann - a.mp3"));
    house.Ticks(1);
    ASSERT_EQ(house.label.Look(), "display");
    const std::string shown = time.Caption();

    house.player.Stop();
    house.Ticks(1);

    EXPECT_EQ(house.label.Look(), "display off");
    EXPECT_EQ(time.Look(), "readout off");
    EXPECT_EQ(house.label.Caption(), "Ann - a");
    EXPECT_EQ(time.Caption(), shown);
    house.player.PlaySong(house.AddSong("b.mp3"));
    house.Ticks(1);
    EXPECT_EQ(house.label.Look(), "display");
    EXPECT_EQ(time.Look(), "readout");
}

TEST(TitleRoom, AStoppedTitleIsInSightWhereverItWasOnItsWay) {
    Title house;
    house.Ticks(1);
    house.label.Move(2900, 0, 1000, 345);

    house.player.Stop();
    house.Ticks(2);

    EXPECT_EQ(house.label.Left(), 5);
    EXPECT_TRUE(house.state.ScrollTitle) << "the next title scrolls again";
}

TEST(TitleRoom, TheToolTipsNameTheSongInFull) {
    Title house;

    house.player.PlaySong(house.AddSong("The Owls of the Far North - A Night That Would Not End.mp3"));

    const std::string name = "The Owls of the Far North - A Night That Would Not End";
    EXPECT_EQ(house.label.ToolTipText(), name);
    EXPECT_EQ(house.controls.transport.picTrackTitle.ToolTipText(), name);
}

TEST(TitleRoom, AClickStopsTheTitleAtItsRestingPlace) {
    Title house;
    house.label.SetTop(200);

    house.label.Click.Raise();
    house.Ticks(3);

    EXPECT_FALSE(house.state.ScrollTitle);
    EXPECT_EQ(house.label.Left(), 5);
    EXPECT_EQ(house.label.Top(), 0);
}

TEST(TitleRoom, AClickOnTheBoxStartsItAgain) {
    Title house;
    house.label.Click.Raise();

    house.controls.transport.picTrackTitle.Click.Raise();

    EXPECT_TRUE(house.state.ScrollTitle);
}

TEST(TitleRoom, TheLabelIsAsWideAsItsText) {
    Title house;

    house.label.SetCaption("ten chars!");

    EXPECT_EQ(house.label.Width(), 10 * 8 * 15);
}

TEST(TitleRoom, WideLettersGetMoreRoom) {
    Title house;

    house.label.SetCaption("\u540d\u524d");

    EXPECT_EQ(house.label.Width(), 2 * 14 * 15);
}

controls::DropData FilesOf(std::vector<std::string> paths) {
    controls::DropData data;
    data.Files = std::move(paths);
    return data;
}

TEST(TitleRoom, EachAcceptedExtensionPlaysWhenItIsDropped) {
    for (const std::string extension :
         {"mpg", "peg", "mp3", "mid", "wav", "wma", "wmv", "avi", "mpeg", "MP3", "jpeg"}) {
        for (const bool on_label : {true, false}) {
            PlayerHouse house;
            const std::string path = house.AddSong("A song." + extension);
            auto& transport = house.controls.transport;
            controls::Control& target =
                on_label ? static_cast<controls::Control&>(transport.lblTrack) : transport.picTrackTitle;

            target.OLEDragDrop.Raise(FilesOf({path}), 0, 0);

            EXPECT_EQ(transport.lblFileNowPlaying.Caption(), path);
        }
    }
}

TEST(TitleRoom, OtherFilesDoNotPlay) {
    PlayerHouse house;
    auto& transport = house.controls.transport;

    for (const std::string extension : {"mp4", "m4a", "mov", "vob", "midi", "mpl", "gif", "htm", "txt"}) {
        transport.lblTrack.OLEDragDrop.Raise(FilesOf({house.AddSong("A song." + extension)}), 0, 0);
    }
    transport.picTrackTitle.OLEDragDrop.Raise(FilesOf({house.AddSong("a.mp3\\song")}), 0, 0);

    EXPECT_EQ(transport.lblFileNowPlaying.Caption(), "");
    EXPECT_TRUE(house.state.PlayerStopped);
}

TEST(TitleRoom, OfTwoDroppedFilesTheSecondPlays) {
    PlayerHouse house;
    const std::string one = house.AddSong("One song.mp3");
    const std::string two = house.AddSong("Two songs.mp3");
    auto& transport = house.controls.transport;

    transport.picTrackTitle.OLEDragDrop.Raise(FilesOf({one, "C:\\x.txt", two}), 0, 0);

    EXPECT_EQ(transport.lblFileNowPlaying.Caption(), two);
}

}  // namespace
