#include <gtest/gtest.h>

#include <functional>

#include "player/PlayerHouse.h"

namespace {

using player_tests::PlayerHouse;
using Texts = std::vector<std::string>;

TEST(VideoRoom, AVideoShowsItsWindowAndItsPlace) {
    PlayerHouse house;
    house.frmVideo.tmrVisual.SetEnabled(true);
    house.frmVideo.picVid.SetBackColor(0x123456);
    house.frmVideo.imgAnim1.SetVisible(true);

    house.player.PlaySong(house.AddSong("Owls - Fly.avi"));

    EXPECT_TRUE(house.state.VideoPlaying);
    EXPECT_TRUE(house.frmVideo.Visible());
    EXPECT_TRUE(house.controls.video.picVideo.Visible());
    EXPECT_FALSE(house.frmVideo.tmrVisual.Enabled());
    EXPECT_EQ(house.frmVideo.picVid.BackColor(), 0x000000U);
    EXPECT_FALSE(house.frmVideo.imgAnim1.Visible());
    EXPECT_EQ(house.frmVideo.Caption(), "Owls - Fly [Video]");
    EXPECT_EQ(house.frmVideo.lblVideoCaption.Caption(), "Owls - Fly [Video]");
    EXPECT_EQ(house.window.TakeCalls(), Texts{"resize"});
}

TEST(VideoRoom, AWindowThatComesToTheScreenStandsBehindItsHoleAtOnce) {
    PlayerHouse house;

    house.player.PlaySong(house.AddSong("a.avi"));

    EXPECT_EQ(house.frmVideo.Left(), 1500 + 300 + 25);
    EXPECT_EQ(house.frmVideo.Width(), 2400);
}

TEST(VideoRoom, AFloatingWindowGoesToTheKeptLeftWithTheNextVideo) {
    PlayerHouse house;
    house.player.PlaySong(house.AddSong("a.avi"));
    house.Float(6000, 7000, 4800, 3600);
    house.state.VideoLeft = 4500;

    house.player.PlaySong(house.AddSong("b.avi"));

    EXPECT_EQ(house.frmVideo.Left(), 4500);
    EXPECT_EQ(house.frmVideo.Top(), 7000);
}

TEST(VideoRoom, TheFirstVideoOfARunKeepsTheWindowsSize) {
    PlayerHouse house;
    house.player.PlaySong(house.AddSong("a.avi"));
    house.Float(6000, 7000, 4800, 3600);
    ASSERT_TRUE(house.state.VideoSizeText.empty());

    house.player.PlaySong(house.AddSong("b.avi"));

    EXPECT_EQ(house.frmVideo.Width(), 4800);
    EXPECT_EQ(house.frmVideo.Height(), 3600);
}

TEST(VideoRoom, AVideoOpensAClosedFavouritesPanel) {
    PlayerHouse house;
    house.window.FavouritesClosed = true;

    house.player.PlaySong(house.AddSong("a.avi"));

    EXPECT_EQ(house.window.TakeCalls(), (Texts{"favourites", "resize"}));
}

TEST(VideoRoom, ASongTakesTheWindowAway) {
    PlayerHouse house;
    house.player.PlaySong(house.AddSong("a.avi"));
    house.window.TakeCalls();

    house.player.PlaySong(house.AddSong("b.mp3"));

    EXPECT_FALSE(house.frmVideo.Visible());
    EXPECT_FALSE(house.controls.video.picVideo.Visible());
    EXPECT_FALSE(house.state.VideoPlaying);
    EXPECT_EQ(house.window.TakeCalls(), (Texts{"close hole", "resize"}));
}

TEST(VideoRoom, AVideoAfterADoubleClickedSongIsSeenThroughItsHole) {
    PlayerHouse house;
    house.DoubleClickNoTrack();

    house.player.PlaySong(house.AddSong("a.avi"));

    EXPECT_FALSE(house.state.resized);
    EXPECT_EQ(house.window.TakeCalls(), (Texts{"resize", "close hole", "refresh", "make hole"}));
}

TEST(VideoRoom, HeightAndWidthChangePlacesFromOneVideoToTheNext) {
    PlayerHouse house;
    house.AddTrack("v", house.AddSong("a.avi"));
    house.DoubleClickTrack(0);
    house.Float(3000, 200, 6000, 4500);

    house.player.Next();
    const std::string first_text = house.state.VideoSizeText;
    const double first_width = house.frmVideo.Width();
    const double first_height = house.frmVideo.Height();
    house.player.Next();

    EXPECT_EQ(house.state.VideoLeft, 3000);
    EXPECT_EQ(first_text, "4500,6000");
    EXPECT_EQ(first_width, 4500);
    EXPECT_EQ(first_height, 6000);
    EXPECT_EQ(house.state.VideoSizeText, "6000,4500");
    EXPECT_EQ(house.frmVideo.Width(), 6000);
    EXPECT_EQ(house.frmVideo.Height(), 4500);
    EXPECT_TRUE(house.state.resized) << "it floats on";
}

TEST(VideoRoom, TheKeptSizeIsToldAsPlainNumbers) {
    PlayerHouse house;
    house.AddTrack("v", house.AddSong("a.avi"));
    house.DoubleClickTrack(0);
    house.Float(1234.5, 0, 3000.25, 2000.5);

    house.player.Next();

    EXPECT_EQ(house.state.VideoLeft, 1234) << "halves to the even neighbour";
    EXPECT_EQ(house.state.VideoSizeText, "2000.5,3000.25");
}

TEST(VideoRoom, ASongsEndKeepsNothingOfTheWindow) {
    PlayerHouse house;
    house.AddTrack("s", house.AddSong("a.mp3"));
    house.DoubleClickTrack(0);
    house.frmVideo.Move(3000, 200, 6000, 4500);

    house.player.Next();

    EXPECT_EQ(house.state.VideoLeft, 0);
    EXPECT_EQ(house.state.VideoSizeText, "");
}

TEST(VideoRoom, ReadsTheHeightFromAsManyCharactersAsTheWidthHas) {
    PlayerHouse house;
    house.player.PlaySong(house.AddSong("a.avi"));
    house.Float(0, 0, 4800, 3600);
    house.state.VideoSizeText = "10005,750";

    house.player.PlaySong(house.AddSong("b.avi"));

    EXPECT_EQ(house.frmVideo.Width(), 10005);
    EXPECT_EQ(house.frmVideo.Height(), 5);
}

TEST(VideoRoom, AMaximisedVideoMaximisesTheNextOne) {
    PlayerHouse house;
    house.AddTrack("v", house.AddSong("a.avi"));
    house.DoubleClickTrack(0);
    house.frmVideo.cmdMax.Click.Raise();
    house.window.FavouritesClosed = true;
    house.window.TakeCalls();

    house.player.Next();

    EXPECT_EQ(house.state.VideoSizeText, "Max");
    EXPECT_EQ(house.frmVideo.State(), controls::WindowState::Maximised);
    const Texts calls = house.window.TakeCalls();
    EXPECT_EQ(std::count(calls.begin(), calls.end(), "favourites"), 0);
}

TEST(VideoRoom, AVideoUnderAMaximisedWindowCountsOneResize) {
    PlayerHouse house;
    house.player.PlaySong(house.AddSong("a.avi"));
    house.frmVideo.cmdMax.Click.Raise();
    const double width = house.frmVideo.Width();
    house.state.VideoSizeText = "3000,2000";
    house.state.VideoLeft = 700;
    const double left = house.frmVideo.Left();

    house.player.PlaySong(house.AddSong("b.avi"));

    EXPECT_EQ(house.frmVideo.State(), controls::WindowState::Maximised);
    EXPECT_EQ(house.frmVideo.Width(), width) << "a maximised window keeps its size";
    EXPECT_EQ(house.frmVideo.Left(), left);
}

TEST(VideoRoom, SongAfterAMaximisedVideoMakesTheWindowNormal) {
    PlayerHouse house;
    house.player.PlaySong(house.AddSong("a.avi"));
    house.frmVideo.cmdMax.Click.Raise();

    house.player.PlaySong(house.AddSong("b.mp3"));

    EXPECT_EQ(house.frmVideo.State(), controls::WindowState::Normal);
    EXPECT_FALSE(house.frmVideo.Visible());
    EXPECT_EQ(house.frmVideo.cmdMax.Caption(), "v") << "only its own click changes the sign";
}

TEST(VideoRoom, AVideoDoubleClickedAfterAnotherStaysInItsHole) {
    PlayerHouse house;
    house.AddTrack("v", house.AddSong("a.avi"));
    house.DoubleClickTrack(0);

    house.DoubleClickTrack(0);
    house.DoubleClickTrack(0);

    EXPECT_FALSE(house.state.resized);
    EXPECT_EQ(house.state.counter, 1);
}

TEST(VideoRoom, AProgramThatEndsMeanwhilePlaysNothing) {
    PlayerHouse house;
    const std::string path = house.AddSong("a.avi");
    // The first yield comes before the video's preparation, the second in it.
    house.desktop.Post([&] { house.desktop.Post([&] { house.desktop.Ending = true; }); });

    house.player.PlaySong(path);

    EXPECT_EQ(house.desktop.Yields, 2);
    EXPECT_FALSE(house.frmVideo.Visible());
    EXPECT_FALSE(house.IsOpen("a"));
}

TEST(VideoRoom, ASongThatStartsDuringTheYieldOfAVideoLeavesItsPicture) {
    PlayerHouse house;
    const auto film = house.AddSong("Owls - Film.avi");
    const auto song = house.AddSong("Owls - Song.mp3");
    house.desktop.Post([&] { house.desktop.Post([&] { house.player.PlaySong(song); }); });
    bool was_attached = false;
    house.window.LaidOut = [&] { was_attached = house.player.Video().IsVideoAttached(); };

    house.player.PlaySong(film);

    EXPECT_TRUE(was_attached) << "the layout makes its hole";
    EXPECT_TRUE(house.state.VideoPlaying);
    EXPECT_EQ(house.controls.transport.lblTrack.Caption(), "Owls - Film [Video]");
    EXPECT_TRUE(house.frmVideo.Visible());
    EXPECT_TRUE(house.controls.video.picVideo.Visible());
}

TEST(VideoRoom, NothingIsAttachedOnceTheWindowIsGone) {
    using Goes = std::function<void(PlayerHouse&)>;
    const Goes ways[] = {[](PlayerHouse& house) { house.frmVideo.UnloadWindow(); },
                         [](PlayerHouse& house) { house.player.Stop(); }};
    for (const Goes& goes : ways) {
        PlayerHouse house;
        const auto film = house.AddSong("a.avi");
        house.player.PlaySong(film);
        ASSERT_TRUE(house.player.Video().IsVideoAttached());

        goes(house);
        EXPECT_FALSE(house.player.Video().IsVideoAttached())
            << "the favourites panel would open a hole for it";

        house.player.PlaySong(film);
        EXPECT_TRUE(house.player.Video().IsVideoAttached());
    }
}

TEST(VideoRoom, TheHoleIsMadeBeforeTheWindowComes) {
    PlayerHouse house;
    bool was_attached = false;
    house.window.LaidOut = [&] { was_attached = house.player.Video().IsVideoAttached(); };

    house.player.PlaySong(house.AddSong("a.avi"));

    EXPECT_TRUE(was_attached);
}

TEST(VideoRoom, TheSecondCallOfTheresizeDetaches) {
    PlayerHouse house;

    house.DoubleClickNoTrack();
    const Texts first = house.window.TakeCalls();
    house.DoubleClickNoTrack();
    const Texts second = house.window.TakeCalls();
    house.DoubleClickNoTrack();

    EXPECT_TRUE(first.empty());
    EXPECT_EQ(second, (Texts{"close hole", "refresh"}));
    EXPECT_TRUE(house.state.resized);
    EXPECT_TRUE(house.window.TakeCalls().empty());
}

TEST(VideoRoom, ShowingTheWindowAttachesIt) {
    PlayerHouse house;
    house.state.resized = true;
    house.state.counter = 5;

    house.frmVideo.Show();

    EXPECT_FALSE(house.state.resized);
    EXPECT_EQ(house.state.counter, 0);
}

TEST(VideoRoom, MaximiseAndBackAttachesAgain) {
    PlayerHouse house;
    house.player.PlaySong(house.AddSong("a.avi"));

    house.frmVideo.cmdMax.Click.Raise();
    const auto state = house.frmVideo.State();
    const std::string sign = house.frmVideo.cmdMax.Caption();
    house.window.TakeCalls();
    house.frmVideo.lblVideoCaption.DblClick.Raise();

    EXPECT_EQ(state, controls::WindowState::Maximised);
    EXPECT_EQ(sign, "v");
    EXPECT_EQ(house.frmVideo.cmdMax.Caption(), "^");
    EXPECT_EQ(house.frmVideo.State(), controls::WindowState::Normal);
    EXPECT_EQ(house.state.counter, 1);
    EXPECT_EQ(house.window.TakeCalls(), Texts{"make hole"});
}

TEST(VideoRoom, AnyOtherSignOfTheButtonMakesTheWindowNormal) {
    PlayerHouse house;
    house.player.PlaySong(house.AddSong("a.avi"));
    house.frmVideo.cmdMax.SetCaption("v");
    house.state.resized = true;
    house.window.TakeCalls();

    house.frmVideo.cmdMax.Click.Raise();

    EXPECT_EQ(house.frmVideo.State(), controls::WindowState::Normal);
    EXPECT_EQ(house.frmVideo.cmdMax.Caption(), "^");
    EXPECT_FALSE(house.state.resized);
    EXPECT_EQ(house.window.TakeCalls(), Texts{"make hole"});
}

TEST(VideoRoom, AttachBringsAFloatingWindowBack) {
    PlayerHouse house;
    house.player.PlaySong(house.AddSong("a.avi"));
    house.Float(6000, 7000, 4800, 3600);
    house.window.TakeCalls();

    house.controls.video.cmdAttachVid.Click.Raise();
    house.desktop.Advance(50);

    EXPECT_EQ(house.window.TakeCalls(), Texts{"make hole"});
    EXPECT_FALSE(house.state.resized);
    EXPECT_EQ(house.state.counter, 1);
    EXPECT_EQ(house.frmVideo.Left(), 1500 + 300 + 25);
    EXPECT_EQ(house.frmVideo.Width(), 2400);
}

TEST(VideoRoom, AttachMakesAMaximisedWindowNormal) {
    PlayerHouse house;
    house.player.PlaySong(house.AddSong("a.avi"));
    house.frmVideo.cmdMax.Click.Raise();

    house.controls.video.cmdAttachVid.Click.Raise();

    EXPECT_EQ(house.frmVideo.State(), controls::WindowState::Normal);
}

TEST(VideoRoom, AttachWithoutAVideoWindowClosesTheHole) {
    PlayerHouse house;
    house.controls.video.picVideo.SetVisible(true);

    house.controls.video.cmdAttachVid.Click.Raise();

    EXPECT_FALSE(house.controls.video.picVideo.Visible());
    EXPECT_EQ(house.window.TakeCalls(), (Texts{"close hole", "resize", "close hole"}))
        << "the last by the layout of a player that is stopped";
}

TEST(VideoRoom, ADragOfTheCaptionDetachesAndRunsAhead) {
    PlayerHouse house;
    house.player.PlaySong(house.AddSong("a.avi"));
    house.frmVideo.Move(1000, 1000, 4800, 3600);
    house.window.TakeCalls();
    auto& caption = house.frmVideo.lblVideoCaption;

    PlayerHouse::Press(caption, 50, 60);
    PlayerHouse::MoveTo(caption, 30, 40);
    PlayerHouse::MoveTo(caption, 30, 40);
    PlayerHouse::Release(caption);
    PlayerHouse::MoveTo(caption, 30, 40);

    EXPECT_TRUE(house.state.resized);
    EXPECT_EQ(house.frmVideo.Left(), 1060);
    EXPECT_EQ(house.frmVideo.Top(), 1080);
    EXPECT_EQ(house.window.TakeCalls(), Texts{"close hole"});
}

TEST(VideoRoom, AMaximisedWindowCannotBeDraggedAway) {
    PlayerHouse house;
    house.player.PlaySong(house.AddSong("a.avi"));
    house.frmVideo.cmdMax.Click.Raise();
    const double left = house.frmVideo.Left();

    PlayerHouse::Press(house.frmVideo.lblVideoCaption, 50, 60);
    PlayerHouse::MoveTo(house.frmVideo.lblVideoCaption, 500, 60);

    EXPECT_TRUE(house.state.resized);
    EXPECT_EQ(house.frmVideo.Left(), left);
}

TEST(VideoRoom, GoingToAFloatingWindowAttachesItAgain) {
    PlayerHouse house;
    house.player.PlaySong(house.AddSong("a.avi"));
    house.Float(6000, 7000, 4800, 3600);
    house.state.counter = 0;
    house.window.TakeCalls();

    house.frmVideo.Activate.Raise();

    EXPECT_FALSE(house.state.resized);
    EXPECT_EQ(house.state.counter, 0);
    EXPECT_EQ(house.window.TakeCalls(), Texts{"make hole"});
}

TEST(VideoRoom, AnAttachedWindowIsMinimisedWithTheMainWindow) {
    PlayerHouse house;
    house.player.PlaySong(house.AddSong("a.avi"));

    house.window.Now = controls::WindowState::Minimised;
    house.desktop.Advance(50);
    const auto away = house.frmVideo.State();
    house.window.Now = controls::WindowState::Normal;
    house.desktop.Advance(50);

    EXPECT_EQ(away, controls::WindowState::Minimised);
    EXPECT_EQ(house.frmVideo.State(), controls::WindowState::Normal);
}

TEST(VideoRoom, AFloatingWindowStaysWhenTheMainWindowIsMinimised) {
    PlayerHouse house;
    house.player.PlaySong(house.AddSong("a.avi"));
    house.Float(6000, 7000, 4800, 3600);

    house.window.Now = controls::WindowState::Minimised;
    house.desktop.Advance(50);

    EXPECT_EQ(house.frmVideo.State(), controls::WindowState::Normal);
    EXPECT_EQ(house.frmVideo.Left(), 6000);
}

TEST(VideoRoom, AMaximisedWindowStaysMaximisedAtTheTick) {
    PlayerHouse house;
    house.player.PlaySong(house.AddSong("a.avi"));
    house.frmVideo.cmdMax.Click.Raise();

    house.desktop.Advance(50);

    EXPECT_EQ(house.frmVideo.State(), controls::WindowState::Maximised);
}

TEST(VideoRoom, AnAttachedWindowFollowsTheMainWindow) {
    PlayerHouse house;
    house.player.PlaySong(house.AddSong("a.avi"));

    house.desktop.Advance(50);

    EXPECT_EQ(house.frmVideo.Left(), 1500 + 300 + 25);
    EXPECT_EQ(house.frmVideo.Top(), 900 + 6000 + 750);
    EXPECT_EQ(house.frmVideo.Width(), 2400);
    EXPECT_EQ(house.frmVideo.Height(), 1800);
}

TEST(VideoRoom, ADetachedWindowStaysWhereItIs) {
    PlayerHouse house;
    house.player.PlaySong(house.AddSong("a.avi"));
    house.Float(6000, 7000, 4800, 3600);

    house.desktop.Advance(50);

    EXPECT_EQ(house.frmVideo.Left(), 6000);
    EXPECT_EQ(house.frmVideo.Width(), 4800);
}

TEST(VideoRoom, AResizeLaysTheWindowOutAndPutsThePicture) {
    PlayerHouse house;
    house.player.PlaySong(house.AddSong("a.avi"));
    house.TakeCommands();

    house.frmVideo.Move(0, 0, 9607, 6000);

    EXPECT_EQ(house.frmVideo.picVid.Width(), 9607);
    EXPECT_EQ(house.frmVideo.picVid.Height(), 6000);
    EXPECT_DOUBLE_EQ(house.frmVideo.cmdMax.Right(), 9607);
    EXPECT_DOUBLE_EQ(house.frmVideo.imgAnim1.Left(), (9607 - 1920) / 2.0);
    EXPECT_DOUBLE_EQ(house.frmVideo.imgAnim2.Top(), (6000 - 1920) / 2.0);
    EXPECT_EQ(house.TakeCommands(), Texts{"put a window at 0 0 640 400"});
}

TEST(VideoRoom, ClosingTheWindowClosesTheHoleAndChecksNone) {
    PlayerHouse house;
    house.player.PlaySong(house.AddSong("a.avi"));
    house.window.TakeCalls();

    house.frmVideo.UnloadWindow();

    EXPECT_FALSE(house.controls.video.picVideo.Visible());
    EXPECT_EQ(house.window.TakeCalls(), (Texts{"close hole", "resize"}));
    EXPECT_TRUE(house.menu.mnuNone.Checked());
}

TEST(VideoRoom, KeysGoToTheMainWindow) {
    PlayerHouse house;

    house.frmVideo.KeyDown.Raise(176, 0);

    EXPECT_EQ(house.window.TakeCalls(), Texts{"key 176 0"});
}

TEST(VideoRoom, FullScreenMaximisesTheMainWindow) {
    PlayerHouse house;

    house.menu.mnuFullScreen.Click.Raise();
    house.menu.mnuFullScreen.Click.Raise();
    const Texts from_normal = house.window.TakeCalls();
    house.window.Now = controls::WindowState::Minimised;
    house.menu.mnuFullScreen.Click.Raise();

    EXPECT_EQ(from_normal, Texts{"maximise"});
    EXPECT_EQ(house.window.TakeCalls(), (Texts{"show", "maximise"}));
}

TEST(VideoRoom, OpensEverySongUnderThePicturesHandle) {
    PlayerHouse house;
    house.frmVideo.picVid.SetHandle(4711);
    house.player.PlaySong(house.AddSong("a.mp3"));

    const auto commands = house.TakeCommands();

    EXPECT_TRUE(std::any_of(commands.begin(), commands.end(), [](const std::string& command) {
        return base::Contains(command, "parent 4711 Style 1073741824");
    }));
}

}  // namespace
