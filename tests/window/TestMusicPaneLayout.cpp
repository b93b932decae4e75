#include <gtest/gtest.h>

#include <utility>
#include <vector>

#include "LayoutBench.h"

namespace {

using controls::Control;
using controls::kTwipsPerPixel;
using window_tests::BrowserLayoutTest;
using window_tests::Rect;
using window_tests::RectOf;

class MusicPaneLayout : public BrowserLayoutTest {};

TEST_F(MusicPaneLayout, TheMusicPaneTakesTheRectangleOfTheCurrentBrowser) {
    Resize(15000, 9000);

    EXPECT_EQ(RectOf(Pane()), RectOf(window.web.tabs.Browser(0)));
    EXPECT_EQ(RectOf(window.chrome.imgMusicTabBG), (Rect{0, 0, Pane().Width(), Pane().Height()}));
    EXPECT_EQ(RectOf(window.chrome.lblMusicBG), (Rect{0, 0, Pane().Width(), Pane().Height()}));
}

TEST_F(MusicPaneLayout, AHiddenMusicPaneStaysWhereItIs) {
    Resize(15000, 9000);
    const Rect before = RectOf(Pane());
    Pane().SetVisible(false);

    Resize(20000, 12000);

    EXPECT_EQ(RectOf(Pane()), before);
}

TEST_F(MusicPaneLayout, TheUpperListsTakeHalfOfThePaneLess480SideBySide) {
    Resize(15000, 9000);

    const auto& lists = window.library.lists;
    const double half = (Pane().Height() - 480) / 2;
    EXPECT_EQ(lists.lstPlayLists.Height(), half);
    EXPECT_EQ(lists.lstArtists.Height(), half);
    EXPECT_EQ(lists.lstArtists.Top(), lists.lstPlayLists.Top());
    EXPECT_GT(lists.lstArtists.Left(), lists.lstPlayLists.Right());
}

TEST_F(MusicPaneLayout, NothingIsDrawnBetweenTheSearchBoxAndTheButtonBesideIt) {
    Resize(15000, 9000);

    const auto& search = window.library.search;
    EXPECT_GT(search.cmdAddToLibrary.Left(), search.txtSearch.Right());
    EXPECT_EQ(search.fraSearch.Look(), "bare");
}

TEST_F(MusicPaneLayout, TheSplitterAndTheSearchRowFollowTheUpperLists) {
    Resize(15000, 9000);

    const Control& splitter = window.player.splitter.lblSlider;
    EXPECT_EQ(splitter.Top(), window.library.lists.lstArtists.Bottom());
    EXPECT_EQ(splitter.Left(), window.library.lists.lstPlayLists.Left());
    EXPECT_EQ(splitter.Right(), window.library.lists.lstArtists.Right());
    EXPECT_EQ(window.library.search.fraSearch.Top(), splitter.Bottom());
}

TEST_F(MusicPaneLayout, TheTracksTakeTheWidthOfBothListsAndEndAtTheControls) {
    Resize(15000, 9000);

    const auto& lists = window.library.lists;
    EXPECT_EQ(lists.lstTracks.Left(), lists.lstPlayLists.Left());
    EXPECT_NEAR(lists.lstTracks.Right(), lists.lstArtists.Right(), 0.001);
    EXPECT_EQ(lists.lstTracks.Bottom() + 90, window.player.transport.fraControls.Top());
}

TEST_F(MusicPaneLayout, TheControlsHaveThePanesWidthLess240) {
    Resize(15000, 9000);

    EXPECT_EQ(window.player.transport.fraControls.Width(), Pane().Width() - 240);
}

TEST_F(MusicPaneLayout, JustTracksTakeTheHeightOfBothRows) {
    Resize(15000, 9000);
    const double width = window.library.lists.lstTracks.Width();
    ShowJustTracks();

    layout.Form_Resize();

    const auto& lists = window.library.lists;
    EXPECT_FALSE(lists.lblPlayLists.Visible());
    EXPECT_FALSE(lists.lblArtists.Visible());
    EXPECT_FALSE(window.player.splitter.lblSlider.Visible());
    EXPECT_LT(lists.lstTracks.Top(), lists.lstPlayLists.Top() + 480);
    EXPECT_EQ(lists.lstTracks.Bottom() + 90, window.player.transport.fraControls.Top());
    EXPECT_EQ(lists.lstTracks.Width(), width);
}

TEST_F(MusicPaneLayout, TheNormalViewComesBackAfterJustTracks) {
    Resize(15000, 9000);
    const Rect before = RectOf(window.library.lists.lstTracks);
    ShowJustTracks();
    layout.Form_Resize();
    window.menus.mnuMusicJustTracks.SetChecked(false);

    layout.Form_Resize();

    EXPECT_EQ(RectOf(window.library.lists.lstTracks), before);
    EXPECT_TRUE(window.library.lists.lblArtists.Visible());
    EXPECT_TRUE(window.player.splitter.lblSlider.Visible());
}

TEST_F(MusicPaneLayout, TheControlsGroundFillsTheControls) {
    Resize(15000, 9000);

    const auto& transport = window.player.transport;
    EXPECT_EQ(RectOf(transport.imgControlsBG),
              (Rect{0, 0, transport.fraControls.Width(), transport.fraControls.Height()}));
}

TEST_F(MusicPaneLayout, TitleAndSongBarGrowWithTheControls) {
    Resize(15000, 9000);
    const double title = window.player.transport.picTrackTitle.Width();
    const double bar = window.player.transport.picSongProgress.Width();

    Resize(16500, 9000);

    EXPECT_EQ(window.player.transport.picTrackTitle.Width(), title + 1500);
    EXPECT_EQ(window.player.transport.picSongProgress.Width(), bar + 1500);
}

TEST_F(MusicPaneLayout, TheCuedSongsStandBesideTheListsAboveTheirButtons) {
    Resize(15000, 9000);

    const auto& queue = window.player.queue;
    EXPECT_GT(queue.lstCuedSongs.Left(), window.library.lists.lstArtists.Right());
    EXPECT_EQ(queue.lblCuedLabel.Left(), queue.lstCuedSongs.Left());
    EXPECT_LE(queue.lblCuedLabel.Bottom(), queue.lstCuedSongs.Top());
    EXPECT_LT(queue.lstCuedSongs.Bottom(), queue.imgCueSong.Top());
    EXPECT_LE(queue.imgUnCue.Bottom(), window.library.lists.lstTracks.Bottom());
}

TEST_F(MusicPaneLayout, EveryBrightTwinLiesOverItsPicture) {
    Resize(15000, 9000);

    const auto& t = window.player.transport;
    const auto& q = window.player.queue;
    const auto& p = window.library.playlists;
    const auto& f = window.favourites;
    for (const auto& [plain, bright] : std::vector<std::pair<const Control*, const Control*>>{
             {&t.imgPlay, &t.imgPlayOver},
             {&t.imgPause, &t.imgPauseOver},
             {&t.imgPlay, &t.imgPause},
             {&t.imgStop, &t.imgStopOver},
             {&t.imgRepeat, &t.imgRepeatOver},
             {&t.imgNoRepeat, &t.imgNoRepeatOver},
             {&t.imgRepeat, &t.imgNoRepeat},
             {&q.imgCueSong, &q.imgCueSongOver},
             {&q.imgUnCue, &q.imgUnCueOver},
             {&p.imgAddSong, &p.imgAddSongOver},
             {&p.imgRemoveSong, &p.imgRemoveSongOver},
             {&p.imgOk, &p.imgOkOver},
             {&p.imgCancel, &p.imgCancelOver},
             {&p.imgDeletePlayList, &p.imgDeletePlayListOver},
             {&f.imgAdd, &f.imgAddOver},
             {&f.imgdelete, &f.imgdeleteover},
             {&f.imgView, &f.imgViewOver},
         }) {
        SCOPED_TRACE(bright->Name());
        EXPECT_EQ(RectOf(*bright), RectOf(*plain));
    }
}

TEST_F(MusicPaneLayout, TheCountOfTracksStandsBetweenTheSearchAndTheModes) {
    Resize(18000, 9000);

    const auto& count = window.library.lists.lblTrackCount;
    EXPECT_TRUE(count.Visible());
    EXPECT_GT(count.Left(), window.library.search.fraSearch.Right());
    EXPECT_LT(count.Right(), window.player.transport.imgRepeat.Left());
    EXPECT_EQ(count.Top(), window.library.search.fraSearch.Top());
}

TEST_F(MusicPaneLayout, ANarrowPaneGivesThePlaceOfTheCountToTheSearch) {
    Resize(9225, 7590);

    EXPECT_FALSE(window.library.lists.lblTrackCount.Visible());
    EXPECT_EQ(window.library.search.fraSearch.Right() + 120, window.player.transport.imgRepeat.Left());
}

TEST_F(MusicPaneLayout, ThePanelThatAddsToAPlaylistLiesOverThePaneWithItsCentreInTheMiddle) {
    Resize(15000, 9000);

    const auto& panel = window.library.playlists;
    EXPECT_EQ(RectOf(panel.fraAddToPlaylist), RectOf(Pane()));
    EXPECT_EQ(RectOf(panel.imgBG2), (Rect{0, 0, Pane().Width(), Pane().Height()}));
    EXPECT_EQ(panel.fraPlayListCenter.Left(), (Pane().Width() - panel.fraPlayListCenter.Width()) / 2);
    EXPECT_EQ(panel.fraPlayListCenter.Top(), (Pane().Height() - panel.fraPlayListCenter.Height()) / 2);
}

TEST_F(MusicPaneLayout, InTheSmallestWindowThePanelsFitWithAllThatIsInThem) {
    Resize(9225, 7590);

    auto& library = window.library;
    for (controls::Frame* centre : {&library.playlists.fraPlayListCenter, &library.task.fraTaskCenter}) {
        EXPECT_GE(centre->Left(), 0) << centre->Name();
        EXPECT_GE(centre->Top(), 0) << centre->Name();
        for (const Control* inner : centre->Children()) {
            EXPECT_GE(inner->Left(), 0) << inner->Name();
            EXPECT_LE(inner->Right(), centre->Width()) << inner->Name();
            EXPECT_LE(inner->Bottom(), centre->Height()) << inner->Name();
        }
    }
    EXPECT_GT(library.playlists.lstAddToPlaylist.Height(), 4 * 24 * 15);
    EXPECT_LT(library.playlists.imgDeletePlayList.Right(), library.playlists.imgOk.Left());
}

TEST_F(MusicPaneLayout, TheTaskPanelAndTheBackdropTakeTheRectangleOfTheBrowserInFront) {
    window.web.tabs.Browser.Load(1);
    tabs.currentbrowser = 1;

    Resize(15000, 9000);

    const auto& task = window.library.task;
    EXPECT_EQ(RectOf(task.fraTask), RectOf(window.web.tabs.Browser(1)));
    EXPECT_EQ(RectOf(task.imgTaskBG), (Rect{0, 0, task.fraTask.Width(), task.fraTask.Height()}));
    EXPECT_EQ(task.fraTaskCenter.Left(), (task.fraTask.Width() - task.fraTaskCenter.Width()) / 2);
    EXPECT_EQ(task.fraTaskCenter.Top(), (task.fraTask.Height() - task.fraTaskCenter.Height()) / 2);
    EXPECT_EQ(RectOf(window.web.tabs.BrowserBG), RectOf(window.web.tabs.Browser(1)));
}

TEST_F(MusicPaneLayout, ASplitterDraggedToTheBottomLeavesTheTracksTheirRows) {
    Resize(15000, 9000);
    Control& splitter = window.player.splitter.lblSlider;
    splitter.SetTop(window.player.transport.fraControls.Top() - 500);

    layout.PlaceBelowSplitter();

    EXPECT_EQ(window.library.lists.lstTracks.Height(), 36 * kTwipsPerPixel);
    EXPECT_EQ(window.library.lists.lstArtists.Bottom(), splitter.Top());
    EXPECT_EQ(window.library.lists.lstPlayLists.Bottom(), splitter.Top());
}

TEST_F(MusicPaneLayout, ASplitterInTheMiddleTakesTheSearchRowAlong) {
    Resize(15000, 9000);
    Control& splitter = window.player.splitter.lblSlider;
    splitter.SetTop(splitter.Top() - 900);

    layout.PlaceBelowSplitter();

    EXPECT_EQ(window.library.search.fraSearch.Top(), splitter.Bottom());
    EXPECT_EQ(window.library.lists.lstTracks.Bottom() + 90, window.player.transport.fraControls.Top());
}

TEST_F(MusicPaneLayout, TheSmallestWindowStillGivesTheUpperListsTheirHalf) {
    for (const bool panel : {false, true}) {
        SCOPED_TRACE(panel ? "panel open" : "panel closed");
        if (panel) OpenPanel();

        Resize(9225, 7590);

        EXPECT_EQ(window.library.lists.lstArtists.Height(), (Pane().Height() - 480) / 2);
        EXPECT_GE(window.library.lists.lstTracks.Height(), 36 * kTwipsPerPixel);
    }
}

}  // namespace
