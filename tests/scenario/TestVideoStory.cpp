#include <gtest/gtest.h>

#include <cmath>

#include "scenario/Program.h"

namespace {

using scenario::Computer;
using scenario::Program;

class VideoStory : public testing::Test {
protected:
    VideoStory() {
        computer.AddUser("Ann", "rose");
        computer.AddToLibrary(1, "Sun", "Rise");
        computer.AddToLibrary(2, "Moon", "Film", {60'000, 25}, "avi");
        program.StartAndLogIn("Ann", "rose");
        program.shape.Holes.clear();
    }

    void PlayTrack(int row) {
        Browser().library.lists.lstTracks.SetListIndex(row);
        program.DoubleClick(Browser().library.lists.lstTracks);
    }
    window::BrowserForm& Browser() { return program.Browser(); }
    /// The hole that was set last; nothing when the window is whole.
    std::optional<ports::Hole> LastHole() {
        const auto& holes = program.shape.Holes;
        EXPECT_FALSE(holes.empty());
        return holes.empty() ? std::nullopt : holes.back();
    }
    static ports::Hole HoleOf(const controls::Control& picVideo) {
        const auto px = [](double twips) { return static_cast<int>(std::lround(twips / 15)); };
        const int left = px(picVideo.Left()) + 2;
        const int top = px(picVideo.Top()) + 52;
        return {.box = {.left = left,
                        .top = top,
                        .right = left + px(picVideo.Width()),
                        .bottom = top + px(picVideo.Height()) - 2}};
    }

    Computer computer;
    Program program{computer};
};

TEST_F(VideoStory, AVideoOpensTheHoleAndItsWindowBehindIt) {
    PlayTrack(1);
    program.Wait(500);

    EXPECT_EQ(computer.media.Mode("a"), "playing");
    EXPECT_TRUE(program.windows.frmVideo.Visible());
    EXPECT_TRUE(Browser().player.video.picVideo.Visible());
    EXPECT_EQ(LastHole(), HoleOf(Browser().player.video.picVideo));
}

TEST_F(VideoStory, TheVideoWindowStandsWhereTheHoleIs) {
    PlayTrack(1);
    program.Wait(500);

    const auto& hole = Browser().player.video.picVideo;
    EXPECT_EQ(program.windows.frmVideo.Left(), Browser().Left() + hole.Left() + 25);
    EXPECT_EQ(program.windows.frmVideo.Top(), Browser().Top() + hole.Top() + 750);
    EXPECT_EQ(program.windows.frmVideo.Width(), hole.Width());
    EXPECT_EQ(program.windows.frmVideo.Height(), hole.Height());
}

TEST_F(VideoStory, TheVideoWindowFollowsTheMainWindow) {
    PlayTrack(1);
    program.Wait(500);
    const double left = program.windows.frmVideo.Left();
    const double top = program.windows.frmVideo.Top();

    Browser().Move(Browser().Left() + 600, Browser().Top() + 450, Browser().Width(), Browser().Height());
    program.Wait(100);

    EXPECT_EQ(program.windows.frmVideo.Left(), left + 600);
    EXPECT_EQ(program.windows.frmVideo.Top(), top + 450);
}

TEST_F(VideoStory, TheHoleFollowsTheSizeOfTheWindow) {
    PlayTrack(1);
    program.Wait(500);

    Browser().Move(Browser().Left(), Browser().Top(), Browser().Width() + 1500, Browser().Height() + 1500);
    program.Wait(100);

    EXPECT_EQ(LastHole(), HoleOf(Browser().player.video.picVideo));
}

TEST_F(VideoStory, AVideoOpensAClosedPanel) {
    program.Click(Browser().favourites.cmdFavs);
    ASSERT_EQ(Browser().favourites.cmdFavs.Caption(), ">");

    PlayTrack(1);
    program.Wait(500);

    EXPECT_EQ(Browser().favourites.cmdFavs.Caption(), "<");
    EXPECT_EQ(LastHole(), HoleOf(Browser().player.video.picVideo));
}

TEST_F(VideoStory, StopClosesTheHole) {
    PlayTrack(1);
    program.Wait(500);

    program.Click(Browser().player.transport.imgStopOver);
    program.Wait(500);

    EXPECT_EQ(LastHole(), std::nullopt);
    EXPECT_FALSE(Browser().player.video.picVideo.Visible());
    EXPECT_FALSE(program.windows.frmVideo.Visible());
}

TEST_F(VideoStory, ASongAfterTheVideoClosesTheHole) {
    PlayTrack(1);
    program.Wait(500);

    PlayTrack(0);
    program.Wait(2000);

    EXPECT_EQ(LastHole(), std::nullopt);
    EXPECT_FALSE(program.windows.frmVideo.Visible());
}

TEST_F(VideoStory, ALightShowUsesTheVideoWindow) {
    PlayTrack(0);
    program.Click(Browser().menus.mnuMood);
    program.Wait(1000);
    EXPECT_TRUE(program.windows.frmVideo.Visible());
    EXPECT_TRUE(program.windows.frmVideo.tmrVisual.Enabled());

    program.Click(Browser().menus.mnuNone);
    program.Wait(500);

    EXPECT_FALSE(program.windows.frmVideo.Visible());
}

}  // namespace
