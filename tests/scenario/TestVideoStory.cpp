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

TEST_F(VideoStory, ALightShowThatIsChosenWhileStoppedStaysOverItsHole) {
    program.Click(Browser().menus.mnuStrobe);
    program.Wait(500);
    const double left = program.windows.frmVideo.Left();
    const double top = program.windows.frmVideo.Top();

    Browser().Move(Browser().Left() + 600, Browser().Top() + 450, Browser().Width() + 1500,
                   Browser().Height());
    program.Wait(100);

    EXPECT_TRUE(program.windows.frmVideo.Visible());
    EXPECT_EQ(program.windows.frmVideo.Left(), left + 600);
    EXPECT_EQ(program.windows.frmVideo.Top(), top + 450);
    EXPECT_EQ(LastHole(), HoleOf(Browser().player.video.picVideo));
}

TEST_F(VideoStory, AStoppedLightShowDoesNotComeBackWithALayout) {
    program.Click(Browser().menus.mnuStrobe);
    program.Wait(100);
    program.Click(Browser().player.transport.imgStop);
    program.Click(Browser().player.transport.imgStopOver);

    Browser().Move(Browser().Left(), Browser().Top(), Browser().Width() + 1500, Browser().Height());
    program.Wait(100);

    EXPECT_FALSE(program.windows.frmVideo.Visible());
    EXPECT_EQ(LastHole(), std::nullopt);
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

/// Of every window that is on the screen: what a closed panel must leave alone.
struct Place {
    double left, top, width, height;
    bool operator==(const Place&) const = default;
};

Place PlaceOf(const controls::Control& control) {
    return {control.Left(), control.Top(), control.Width(), control.Height()};
}

TEST_F(VideoStory, ClosingThePanelOverAVideoLeavesTheWindowWhole) {
    PlayTrack(1);
    program.Wait(500);
    const Place before = PlaceOf(program.windows.frmVideo);

    program.Click(Browser().favourites.cmdFavs);
    program.Wait(500);

    EXPECT_EQ(LastHole(), std::nullopt);
    EXPECT_EQ(PlaceOf(program.windows.frmVideo), before);
    EXPECT_EQ(computer.media.Mode("a"), "playing");
}

TEST_F(VideoStory, NoHoleIsCutByAnySizeWhileThePanelIsClosed) {
    PlayTrack(1);
    program.Wait(500);
    program.Click(Browser().favourites.cmdFavs);

    Browser().Move(Browser().Left(), Browser().Top(), Browser().Width() + 1500, Browser().Height() + 1500);
    program.Wait(100);

    EXPECT_EQ(LastHole(), std::nullopt);
}

TEST_F(VideoStory, OpeningThePanelBringsTheHoleBack) {
    PlayTrack(1);
    program.Wait(500);
    program.Click(Browser().favourites.cmdFavs);
    Browser().Move(Browser().Left(), Browser().Top(), Browser().Width() + 1500, Browser().Height() + 1500);

    program.Click(Browser().favourites.cmdFavs);
    program.Wait(100);

    const auto& hole = Browser().player.video.picVideo;
    EXPECT_EQ(LastHole(), HoleOf(hole));
    EXPECT_GT(hole.Height(), 1500);
    EXPECT_EQ(program.windows.frmVideo.Height(), hole.Height());
}

TEST_F(VideoStory, ClosingThePanelOverALightShowLeavesTheWindowWhole) {
    PlayTrack(0);
    program.Click(Browser().menus.mnuMood);
    program.Wait(500);
    ASSERT_EQ(LastHole(), HoleOf(Browser().player.video.picVideo));
    const Place before = PlaceOf(program.windows.frmVideo);

    program.Click(Browser().favourites.cmdFavs);
    program.Wait(500);

    EXPECT_EQ(LastHole(), std::nullopt);
    EXPECT_EQ(PlaceOf(program.windows.frmVideo), before);
}

TEST_F(VideoStory, AttachingWithThePanelClosedOpensIt) {
    PlayTrack(1);
    program.Wait(500);
    program.windows.frmVideo.lblVideoCaption.MouseDown.Raise(1, 0, 10, 10);
    program.windows.frmVideo.lblVideoCaption.MouseUp.Raise(1, 0, 10, 10);
    program.Click(Browser().favourites.cmdFavs);

    program.Click(Browser().player.video.cmdAttachVid);
    program.Wait(100);

    EXPECT_EQ(Browser().favourites.cmdFavs.Caption(), "<");
    EXPECT_EQ(LastHole(), HoleOf(Browser().player.video.picVideo));
}

TEST_F(VideoStory, AttachingAfterThePanelWasClosedAndOpenedMakesRoomForTheVideo) {
    PlayTrack(1);
    program.Wait(500);
    program.windows.frmVideo.lblVideoCaption.MouseDown.Raise(1, 0, 10, 10);
    program.windows.frmVideo.lblVideoCaption.MouseUp.Raise(1, 0, 10, 10);
    program.Click(Browser().favourites.cmdFavs);
    program.Click(Browser().favourites.cmdFavs);

    program.Click(Browser().player.video.cmdAttachVid);
    program.Wait(100);

    const auto& hole = Browser().player.video.picVideo;
    EXPECT_TRUE(hole.Visible());
    EXPECT_EQ(LastHole(), HoleOf(hole));
    EXPECT_LE(Browser().favourites.lstFavs.Bottom() + Browser().favourites.fraFavs.Top(), hole.Top());
}

TEST_F(VideoStory, AFloatingVideoThatIsClickedGoesBackIntoThePanelThatWasClosedAndOpened) {
    PlayTrack(1);
    program.Wait(500);
    auto& video = program.windows.frmVideo;
    video.lblVideoCaption.MouseDown.Raise(1, 0, 10, 10);
    video.lblVideoCaption.MouseUp.Raise(1, 0, 10, 10);
    program.Click(Browser().favourites.cmdFavs);
    program.Click(Browser().favourites.cmdFavs);

    video.Activate.Raise();
    program.Wait(200);

    EXPECT_TRUE(Browser().player.video.picVideo.Visible());
    EXPECT_EQ(LastHole(), HoleOf(Browser().player.video.picVideo));
}

TEST_F(VideoStory, AFloatingVideoThatIsClickedStaysInSightWhileThePanelIsClosed) {
    PlayTrack(1);
    program.Wait(500);
    auto& video = program.windows.frmVideo;
    video.lblVideoCaption.MouseDown.Raise(1, 0, 10, 10);
    video.lblVideoCaption.MouseMove.Raise(1, 0, 3000, 900);
    video.lblVideoCaption.MouseUp.Raise(1, 0, 10, 10);
    program.Click(Browser().favourites.cmdFavs);
    const Place before = PlaceOf(video);

    video.Activate.Raise();
    program.Wait(200);

    EXPECT_EQ(PlaceOf(video), before);
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
