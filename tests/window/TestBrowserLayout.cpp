#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <tuple>
#include <vector>

#include "WindowWalk.h"
#include "fakes/NullPlayer.h"
#include "window/BrowserLayout.h"

namespace {

using controls::Control;
using controls::kTwipsPerPixel;

// What the layout asks for, written down; a stopped player may lay out again, as the real one may.
struct FakePlayer final : fakes::NullTransport, fakes::NullVideoPane, fakes::NullPlayerSetup, roles::Hole {
    void Stop() override { calls.emplace_back("click of stop"); }
    void StayStopped() override {
        calls.emplace_back("stop");
        if (on_stop) on_stop();
    }
    bool IsVideoAttached() const override { return attached; }
    void MakeHole() override { calls.emplace_back("make hole"); }
    void CloseHole() override { calls.emplace_back("close hole"); }
    void RestoreBars() override { calls.emplace_back("bars"); }

    bool stopped = false;
    bool attached = false;
    std::function<void()> on_stop;
    std::vector<std::string> calls;
};

struct Rect {
    double left, top, width, height;
    bool operator==(const Rect&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Rect& rect) {
    return out << rect.left << " " << rect.top << " " << rect.width << " " << rect.height;
}

Rect RectOf(const Control& control) {
    return {control.Left(), control.Top(), control.Width(), control.Height()};
}

/// Everything in a window, at any depth, that has a place: all but timers and menus.
std::vector<const Control*> PlacedOf(const controls::Form& window) {
    std::vector<const Control*> all;
    for (const Control* control : window_tests::ControlsOf(window)) {
        const bool elsewhere = control == &window || control->ControlKind() == controls::Kind::Timer ||
                               control->ControlKind() == controls::Kind::Menu;
        if (!elsewhere) all.push_back(control);
    }
    return all;
}

class BrowserLayoutTest : public testing::Test {
protected:
    void Resize(double width, double height) {
        window.Move(window.Left(), window.Top(), width, height);
        layout.Form_Resize();
    }
    void OpenPanel() {
        window.favourites.cmdFavs.SetCaption("<");
        window.favourites.fraFavs.SetVisible(true);
    }
    void ShowVideo() {
        partners.attached = true;
        window.player.video.picVideo.SetVisible(true);
    }
    void ShowJustTracks() {
        window.menus.mnuMusicJustTracks.SetChecked(true);
        window.library.lists.lstArtists.SetVisible(false);
        window.library.lists.lstPlayLists.SetVisible(false);
    }
    Control& Pane() { return window.chrome.fraMusicTab; }

    window::BrowserForm window;
    web::WebState tabs;
    FakePlayer partners;
    window::BrowserLayout layout{window, tabs, partners.stopped, {partners, partners, partners, partners}};
};

TEST_F(BrowserLayoutTest, TheFormGroundTakesTheWindowsSize) {
    Resize(15000, 9000);

    EXPECT_EQ(RectOf(window.chrome.imgFormBG), (Rect{0, 0, 15000, 9000}));
}

TEST_F(BrowserLayoutTest, ATooNarrowWindowSpringsBackInItsWidthAlone) {
    Resize(9224, 9000);

    EXPECT_EQ(window.Width(), 9225);
    EXPECT_EQ(window.Height(), 9000);
}

TEST_F(BrowserLayoutTest, ATooLowWindowSpringsBackInItsHeightAlone) {
    Resize(12000, 7589);

    EXPECT_EQ(window.Width(), 12000);
    EXPECT_EQ(window.Height(), 7590);
}

TEST_F(BrowserLayoutTest, TheSmallestSizeIsLeftAlone) {
    Resize(9225, 7590);

    EXPECT_EQ(window.Width(), 9225);
    EXPECT_EQ(window.Height(), 7590);
}

TEST_F(BrowserLayoutTest, SpringingBackKeepsThePlaceOfTheWindow) {
    window.Move(700, 300, 12000, 9000);

    Resize(100, 100);

    EXPECT_EQ(RectOf(window), (Rect{700, 300, 9225, 7590}));
}

TEST_F(BrowserLayoutTest, EverythingFollowsTheSizeThatTheWindowSprangBackTo) {
    Resize(100, 100);

    EXPECT_EQ(RectOf(window.chrome.imgFormBG), (Rect{0, 0, 9225, 7590}));
    EXPECT_EQ(window.web.tabs.Browser(0).Right(), 9225 - 220);
}

TEST_F(BrowserLayoutTest, AMinimisedWindowIsNotMadeLarger) {
    window.SetState(controls::WindowState::Minimised);

    Resize(2400, 400);

    EXPECT_EQ(window.Width(), 2400);
    EXPECT_EQ(window.Height(), 400);
}

TEST_F(BrowserLayoutTest, TheGroundGoesFromItsTopToTheWindowsHeight) {
    Resize(15000, 9000);

    const Control& ground = window.chrome.imgBG;
    EXPECT_EQ(ground.Width(), 15000);
    EXPECT_EQ(ground.Height(), 9000 - ground.Top());
}

TEST_F(BrowserLayoutTest, TheFavouritesButtonBegins120InWithThePanelClosed) {
    Resize(15000, 9000);

    EXPECT_EQ(window.favourites.cmdFavs.Left(), 120);
}

TEST_F(BrowserLayoutTest, TheFavouritesButtonBegins2760InWithThePanelOpen) {
    OpenPanel();
    Resize(15000, 9000);

    EXPECT_EQ(window.favourites.cmdFavs.Left(), 2760);
}

TEST_F(BrowserLayoutTest, EveryControlThatShowsHasItsPlaceAfterOneRun) {
    // What these two take of their bars follows from a text and a scale.
    const Control* const track = &window.player.transport.lblTrack;
    const Control* const speed = &window.player.levels.lblSongSpeed;
    OpenPanel();
    window.SetVisible(true);
    Resize(15000, 9000);

    std::size_t placed = 0;
    for (const Control* control : PlacedOf(window)) {
        if (!control->IsShown() || control == track || control == speed) continue;
        SCOPED_TRACE(control->Name());
        EXPECT_GT(control->Width(), 0);
        EXPECT_GT(control->Height() + (control->ControlKind() == controls::Kind::Line ? 1 : 0), 0);
        ++placed;
    }
    EXPECT_GT(placed, 40u);
}

TEST_F(BrowserLayoutTest, WhatAConstructorPlacedIsNotPlacedAgain) {
    const std::vector<const Control*> all = PlacedOf(window);
    std::vector<Rect> before;
    before.reserve(all.size());
    for (const Control* control : all)
        before.push_back(RectOf(*control));

    OpenPanel();
    ShowVideo();
    Resize(15000, 9000);

    for (std::size_t i = 0; i < all.size(); ++i) {
        if (before[i] == Rect{0, 0, 0, 0}) continue;
        EXPECT_EQ(RectOf(*all[i]), before[i]) << all[i]->Name();
    }
}

TEST_F(BrowserLayoutTest, TheFavouritesButtonEnds900AboveTheBottom) {
    Resize(15000, 9000);

    const Control& button = window.favourites.cmdFavs;
    EXPECT_EQ(button.Height(), 9000 - (button.Top() + 900));
}

TEST_F(BrowserLayoutTest, ABrowserBegins375InAndEnds220InWithThePanelClosed) {
    Resize(15000, 9000);

    const Control& browser = window.web.tabs.Browser(0);
    EXPECT_EQ(browser.Left(), 375);
    EXPECT_EQ(browser.Width(), 15000 - 595);
    EXPECT_EQ(15000 - browser.Right(), 220);
}

TEST_F(BrowserLayoutTest, ABrowserBegins3000InAndEnds275InWithThePanelOpen) {
    OpenPanel();

    Resize(15000, 9000);

    const Control& browser = window.web.tabs.Browser(0);
    EXPECT_EQ(browser.Left(), 3000);
    EXPECT_EQ(browser.Width(), 15000 - 3275);
    EXPECT_EQ(15000 - browser.Right(), 275);
}

TEST_F(BrowserLayoutTest, EveryBrowserOfTheArrayIsPlacedAndEndsWithTheButton) {
    window.web.tabs.Browser.Load(1);
    window.web.tabs.Browser.Load(2);

    Resize(15000, 9000);

    const Control& button = window.favourites.cmdFavs;
    for (int i = 0; i < 3; ++i) {
        SCOPED_TRACE(i);
        EXPECT_EQ(RectOf(window.web.tabs.Browser(i)), (Rect{375, button.Top(), 14405, button.Height()}));
    }
}

TEST_F(BrowserLayoutTest, TheAddressBoxLeaves4500AtTheRight) {
    Resize(15000, 9000);

    const Control& box = window.web.address.cmbAddress;
    EXPECT_EQ(box.Width(), 15000 - (4500 + box.Left()));
}

TEST_F(BrowserLayoutTest, TheTypedTextEndsUpALittleInsideTheAddressBox) {
    Resize(15000, 9000);

    const Control& box = window.web.address.cmbAddress;
    const Control& typed = window.web.address.txtAddress;
    EXPECT_EQ(typed.Width(), box.Width() - 320);
    EXPECT_EQ(typed.Height(), box.Height() - 50);
    EXPECT_GT(typed.Left(), box.Left());
    EXPECT_GT(typed.Top(), box.Top());
    EXPECT_LT(typed.Right(), box.Right());
    EXPECT_LT(typed.Bottom(), box.Bottom());
}

TEST_F(BrowserLayoutTest, TheCheckStands120BehindTheAddressBoxWithItsTwinOnIt) {
    Resize(15000, 9000);

    const auto& refresh = window.web.refresh;
    EXPECT_EQ(refresh.imgCheck.Left(), window.web.address.cmbAddress.Right() + 120);
    EXPECT_EQ(RectOf(refresh.imgCheckChecked), RectOf(refresh.imgCheck));
}

TEST_F(BrowserLayoutTest, TheRefreshCaptionIsFollowedAt520And1920) {
    Resize(15000, 9000);

    const double caption = window.web.refresh.lblRefresh1.Left();
    EXPECT_GE(caption, window.web.refresh.imgCheck.Right());
    EXPECT_EQ(window.web.navigation.lblRefresh2.Left(), caption + 520);
    EXPECT_EQ(window.web.refresh.txtRefresh.Left(), caption + 1920);
}

TEST_F(BrowserLayoutTest, TheMusicPaneTakesTheRectangleOfTheCurrentBrowser) {
    Resize(15000, 9000);

    EXPECT_EQ(RectOf(Pane()), RectOf(window.web.tabs.Browser(0)));
    EXPECT_EQ(RectOf(window.chrome.imgMusicTabBG), (Rect{0, 0, Pane().Width(), Pane().Height()}));
    EXPECT_EQ(RectOf(window.chrome.lblMusicBG), (Rect{0, 0, Pane().Width(), Pane().Height()}));
}

TEST_F(BrowserLayoutTest, AHiddenMusicPaneStaysWhereItIs) {
    Resize(15000, 9000);
    const Rect before = RectOf(Pane());
    Pane().SetVisible(false);

    Resize(20000, 12000);

    EXPECT_EQ(RectOf(Pane()), before);
}

TEST_F(BrowserLayoutTest, TheUpperListsTakeHalfOfThePaneLess480SideBySide) {
    Resize(15000, 9000);

    const auto& lists = window.library.lists;
    const double half = (Pane().Height() - 480) / 2;
    EXPECT_EQ(lists.lstPlayLists.Height(), half);
    EXPECT_EQ(lists.lstArtists.Height(), half);
    EXPECT_EQ(lists.lstArtists.Top(), lists.lstPlayLists.Top());
    EXPECT_GT(lists.lstArtists.Left(), lists.lstPlayLists.Right());
}

TEST_F(BrowserLayoutTest, TheSplitterAndTheSearchRowFollowTheUpperLists) {
    Resize(15000, 9000);

    const Control& splitter = window.player.splitter.lblSlider;
    EXPECT_EQ(splitter.Top(), window.library.lists.lstArtists.Bottom());
    EXPECT_EQ(splitter.Left(), window.library.lists.lstPlayLists.Left());
    EXPECT_EQ(splitter.Right(), window.library.lists.lstArtists.Right());
    EXPECT_EQ(window.library.search.fraSearch.Top(), splitter.Bottom());
}

TEST_F(BrowserLayoutTest, TheTracksTakeTheWidthOfBothListsAndEndAtTheControls) {
    Resize(15000, 9000);

    const auto& lists = window.library.lists;
    EXPECT_EQ(lists.lstTracks.Left(), lists.lstPlayLists.Left());
    EXPECT_NEAR(lists.lstTracks.Right(), lists.lstArtists.Right(), 0.001);
    EXPECT_EQ(lists.lstTracks.Bottom() + 90, window.player.transport.fraControls.Top());
}

TEST_F(BrowserLayoutTest, TheControlsHaveThePanesWidthLess240) {
    Resize(15000, 9000);

    EXPECT_EQ(window.player.transport.fraControls.Width(), Pane().Width() - 240);
}

TEST_F(BrowserLayoutTest, JustTracksTakeTheHeightOfBothRows) {
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

TEST_F(BrowserLayoutTest, TheNormalViewComesBackAfterJustTracks) {
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

TEST_F(BrowserLayoutTest, TheControlsGroundFillsTheControls) {
    Resize(15000, 9000);

    const auto& transport = window.player.transport;
    EXPECT_EQ(RectOf(transport.imgControlsBG),
              (Rect{0, 0, transport.fraControls.Width(), transport.fraControls.Height()}));
}

TEST_F(BrowserLayoutTest, TitleAndSongBarGrowWithTheControls) {
    Resize(15000, 9000);
    const double title = window.player.transport.picTrackTitle.Width();
    const double bar = window.player.transport.picSongProgress.Width();

    Resize(16500, 9000);

    EXPECT_EQ(window.player.transport.picTrackTitle.Width(), title + 1500);
    EXPECT_EQ(window.player.transport.picSongProgress.Width(), bar + 1500);
}

TEST_F(BrowserLayoutTest, TheMakersNameStands1400AboveTheBottom) {
    Resize(15000, 9000);

    EXPECT_EQ(window.chrome.lblCopyright.Top(), 9000 - 1400);
}

TEST_F(BrowserLayoutTest, TheMakersNameShowsOnlyBelowAnOpenPanel) {
    Resize(15000, 9000);
    EXPECT_FALSE(window.chrome.lblCopyright.Visible());

    OpenPanel();
    layout.Form_Resize();

    EXPECT_TRUE(window.chrome.lblCopyright.Visible());
}

TEST_F(BrowserLayoutTest, TheFavouritesEndWhereTheMakersNameBegins) {
    OpenPanel();

    Resize(15000, 9000);

    const auto& panel = window.favourites;
    EXPECT_EQ(panel.fraFavs.Bottom(), window.chrome.lblCopyright.Top());
    EXPECT_EQ(RectOf(panel.lstFavsAlt), RectOf(panel.lstFavs));
    EXPECT_EQ(panel.lstFavs.Left(), panel.lblFavs.Left());
    EXPECT_EQ(panel.lstFavs.Right(), panel.lblFavs.Right());
}

TEST_F(BrowserLayoutTest, AVideoTakesTheLowerPartOfThePanel) {
    OpenPanel();
    ShowVideo();

    Resize(15000, 9000);

    const auto& panel = window.favourites;
    const Control& video = window.player.video.picVideo;
    EXPECT_GE(video.Left(), panel.fraFavs.Left());
    EXPECT_LE(video.Right(), panel.fraFavs.Right());
    EXPECT_LE(video.Bottom(), panel.fraFavs.Bottom());
    EXPECT_GE(video.Top(), panel.fraFavs.Top() + panel.imgAdd.Bottom());
    EXPECT_GE(video.Height(), 100 * kTwipsPerPixel);
}

TEST_F(BrowserLayoutTest, AnAttachedVideoGetsItsHoleAnew) {
    OpenPanel();
    ShowVideo();

    Resize(15000, 9000);

    EXPECT_EQ(partners.calls, (std::vector<std::string>{"close hole", "make hole", "bars"}));
}

TEST_F(BrowserLayoutTest, AHiddenVideoKeepsItsPlaceAndCutsNoHole) {
    OpenPanel();
    ShowVideo();
    Resize(15000, 9000);
    const Rect before = RectOf(window.player.video.picVideo);
    partners.calls.clear();
    window.player.video.picVideo.SetVisible(false);
    window.favourites.cmdFavs.SetCaption(">");

    Resize(16000, 10000);

    EXPECT_EQ(RectOf(window.player.video.picVideo), before);
    EXPECT_EQ(partners.calls, (std::vector<std::string>{"bars"}));
}

// What was moved, in order, and the widths that the box of the address went through.
struct MoveObserver final : controls::ControlObserver {
    void OnPropertyChanged(Control& control, controls::Property property) override {
        if (property != controls::Property::Geometry) return;
        moved.push_back(control.Name());
        widths.push_back(control.Width());
    }
    std::vector<std::string> moved;
    std::vector<double> widths;
};

TEST_F(BrowserLayoutTest, TheStepsFollowOneAnother) {
    OpenPanel();
    ShowVideo();
    // One control of each step; the wide window moves every one of them.
    const std::vector<Control*> of_steps = {&window.chrome.imgFormBG,
                                            &window.chrome.imgBG,
                                            &window.favourites.cmdFavs,
                                            &window.web.tabs.Browser(0),
                                            &window.web.address.cmbAddress,
                                            &window.web.refresh.imgCheck,
                                            &window.chrome.fraMusicTab,
                                            &window.library.lists.lstPlayLists,
                                            &window.player.transport.imgControlsBG,
                                            &window.favourites.fraFavs,
                                            &window.player.video.picVideo,
                                            &window.player.transport.picRunningTime,
                                            &window.library.playlists.fraAddToPlaylist,
                                            &window.library.task.fraTask};
    std::vector<std::string> names;
    MoveObserver observer;
    for (Control* control : of_steps) {
        names.push_back(control->Name());
        control->SetObserver(&observer);
    }

    Resize(15000, 9000);

    for (Control* control : of_steps)
        control->SetObserver(nullptr);
    std::vector<std::string> first;
    for (const std::string& name : observer.moved) {
        if (std::ranges::find(first, name) == first.end()) first.push_back(name);
    }
    EXPECT_EQ(first, names);
}

TEST_F(BrowserLayoutTest, TheAddressTextLiesOverTheTextPartOfItsBoxUntilItsLastPlace) {
    Control& txtAddress = window.web.address.txtAddress;
    MoveObserver observer;
    txtAddress.SetObserver(&observer);

    Resize(15000, 9000);

    txtAddress.SetObserver(nullptr);
    const Control& box = window.web.address.cmbAddress;
    ASSERT_EQ(observer.widths.size(), 3U);
    EXPECT_EQ(observer.widths[1], box.Width() - 250);
    EXPECT_EQ(observer.widths[2], box.Width() - 320);
}

TEST_F(BrowserLayoutTest, WithoutAVideoNoHoleIsCut) {
    Resize(15000, 9000);

    EXPECT_EQ(partners.calls, (std::vector<std::string>{"bars"}));
}

TEST_F(BrowserLayoutTest, TheStopButtonIsClickedAsLongAsTheStopFlagIsOn) {
    partners.stopped = true;

    Resize(15000, 9000);

    EXPECT_EQ(partners.calls, (std::vector<std::string>{"bars", "stop"}));
}

TEST_F(BrowserLayoutTest, AClickOfStopThatLaysOutAgainDoesNotGoRound) {
    partners.stopped = true;
    partners.on_stop = [this] { layout.Form_Resize(); };

    Resize(15000, 9000);

    EXPECT_EQ(partners.calls, (std::vector<std::string>{"bars", "stop"}));
}

TEST_F(BrowserLayoutTest, TheAddressTextIsPlacedAfterTheStop) {
    partners.stopped = true;
    partners.on_stop = [this] { window.web.address.txtAddress.Move(0, 0, 1, 1); };

    Resize(15000, 9000);

    EXPECT_EQ(window.web.address.txtAddress.Width(), window.web.address.cmbAddress.Width() - 320);
}

TEST_F(BrowserLayoutTest, TheCuedSongsStandBesideTheListsAboveTheirButtons) {
    Resize(15000, 9000);

    const auto& queue = window.player.queue;
    EXPECT_GT(queue.lstCuedSongs.Left(), window.library.lists.lstArtists.Right());
    EXPECT_EQ(queue.lblCuedLabel.Left(), queue.lstCuedSongs.Left());
    EXPECT_LE(queue.lblCuedLabel.Bottom(), queue.lstCuedSongs.Top());
    EXPECT_LT(queue.lstCuedSongs.Bottom(), queue.imgCueSong.Top());
    EXPECT_LE(queue.imgUnCue.Bottom(), window.library.lists.lstTracks.Bottom());
}

TEST_F(BrowserLayoutTest, EveryBrightTwinLiesOverItsPicture) {
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

TEST_F(BrowserLayoutTest, TheCountOfTracksStandsBetweenTheSearchAndTheModes) {
    Resize(18000, 9000);

    const auto& count = window.library.lists.lblTrackCount;
    EXPECT_TRUE(count.Visible());
    EXPECT_GT(count.Left(), window.library.search.fraSearch.Right());
    EXPECT_LT(count.Right(), window.player.transport.imgRepeat.Left());
    EXPECT_EQ(count.Top(), window.library.search.fraSearch.Top());
}

TEST_F(BrowserLayoutTest, ANarrowPaneGivesThePlaceOfTheCountToTheSearch) {
    Resize(9225, 7590);

    EXPECT_FALSE(window.library.lists.lblTrackCount.Visible());
    EXPECT_EQ(window.library.search.fraSearch.Right() + 120, window.player.transport.imgRepeat.Left());
}

TEST_F(BrowserLayoutTest, ThePanelThatAddsToAPlaylistLiesOverThePaneWithItsCentreInTheMiddle) {
    Resize(15000, 9000);

    const auto& panel = window.library.playlists;
    EXPECT_EQ(RectOf(panel.fraAddToPlaylist), RectOf(Pane()));
    EXPECT_EQ(RectOf(panel.imgBG2), (Rect{0, 0, Pane().Width(), Pane().Height()}));
    EXPECT_EQ(panel.fraPlayListCenter.Left(), (Pane().Width() - panel.fraPlayListCenter.Width()) / 2);
    EXPECT_EQ(panel.fraPlayListCenter.Top(), (Pane().Height() - panel.fraPlayListCenter.Height()) / 2);
}

TEST_F(BrowserLayoutTest, InTheSmallestWindowThePanelsFitWithAllThatIsInThem) {
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

TEST_F(BrowserLayoutTest, TheTaskPanelAndTheBackdropTakeTheRectangleOfTheBrowserInFront) {
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

TEST_F(BrowserLayoutTest, ASplitterDraggedToTheBottomLeavesTheTracksTheirRows) {
    Resize(15000, 9000);
    Control& splitter = window.player.splitter.lblSlider;
    splitter.SetTop(window.player.transport.fraControls.Top() - 500);

    layout.PlaceBelowSplitter();

    EXPECT_EQ(window.library.lists.lstTracks.Height(), 36 * kTwipsPerPixel);
    EXPECT_EQ(window.library.lists.lstArtists.Bottom(), splitter.Top());
    EXPECT_EQ(window.library.lists.lstPlayLists.Bottom(), splitter.Top());
}

TEST_F(BrowserLayoutTest, ASplitterInTheMiddleTakesTheSearchRowAlong) {
    Resize(15000, 9000);
    Control& splitter = window.player.splitter.lblSlider;
    splitter.SetTop(splitter.Top() - 900);

    layout.PlaceBelowSplitter();

    EXPECT_EQ(window.library.search.fraSearch.Top(), splitter.Bottom());
    EXPECT_EQ(window.library.lists.lstTracks.Bottom() + 90, window.player.transport.fraControls.Top());
}

TEST_F(BrowserLayoutTest, TheSmallestWindowStillGivesTheUpperListsTheirHalf) {
    for (const bool panel : {false, true}) {
        SCOPED_TRACE(panel ? "panel open" : "panel closed");
        if (panel) OpenPanel();

        Resize(9225, 7590);

        EXPECT_EQ(window.library.lists.lstArtists.Height(), (Pane().Height() - 480) / 2);
        EXPECT_GE(window.library.lists.lstTracks.Height(), 36 * kTwipsPerPixel);
    }
}

// What holds at any size, with and without each pane.

struct Size {
    double width;
    double height;
};

void PrintTo(const Size& size, std::ostream* out) {
    *out << size.width << " by " << size.height;
}

enum class View { PanelClosed, PanelOpen, JustTracks, WithVideo };

class AnySize : public BrowserLayoutTest, public testing::WithParamInterface<std::tuple<Size, View>> {
protected:
    AnySize() {
        const auto& [size, view] = GetParam();
        if (view != View::PanelClosed) OpenPanel();
        if (view == View::JustTracks) ShowJustTracks();
        if (view == View::WithVideo) ShowVideo();
        // All that may come and go is there at once.
        window.player.levels.lblMute.SetVisible(true);
        window.player.transport.lblNoFile.SetVisible(true);
        window.player.video.cmdAttachVid.SetVisible(true);
        window.web.refresh.txtRefresh.SetVisible(true);
        window.favourites.lblFavs.SetVisible(true);
        window.favourites.lstFavs.SetVisible(true);
        Resize(size.width, size.height);
    }

    /// Visible children that are no ground (a picture or label that fills its container) and no timer.
    static std::vector<Control*> ThingsIn(const controls::Container& container) {
        std::vector<Control*> things;
        for (Control* child : container.Children()) {
            const bool ground = child->Width() >= container.Width() && child->Height() >= container.Height();
            if (!child->Visible() || ground || child->ControlKind() == controls::Kind::Timer) continue;
            things.push_back(child);
        }
        return things;
    }
    static void ExpectNoOverlap(const controls::Container& container) {
        const std::vector<Control*> things = ThingsIn(container);
        for (std::size_t i = 0; i < things.size(); ++i) {
            for (std::size_t k = i + 1; k < things.size(); ++k) {
                const Control& a = *things[i];
                const Control& b = *things[k];
                const bool apart = a.Right() <= b.Left() + kHair || b.Right() <= a.Left() + kHair ||
                                   a.Bottom() <= b.Top() + kHair || b.Bottom() <= a.Top() + kHair;
                EXPECT_TRUE(apart) << a.Name() << " " << RectOf(a) << " and " << b.Name() << " " << RectOf(b);
            }
        }
    }
    static void ExpectInside(const controls::Container& container) {
        for (const Control* thing : ThingsIn(container)) {
            SCOPED_TRACE(thing->Name());
            EXPECT_GE(thing->Left(), 0);
            EXPECT_GE(thing->Top(), 0);
            EXPECT_LE(thing->Right(), container.Width() + kHair);
            EXPECT_LE(thing->Bottom(), container.Height() + kHair);
            EXPECT_GT(thing->Width(), 0);
            EXPECT_GT(thing->Height(), 0);
        }
    }
    std::vector<controls::Container*> Panels() {
        return {&window.chrome.fraMusicTab, &window.player.transport.fraControls,
                &window.library.search.fraSearch, &window.favourites.fraFavs};
    }

    static constexpr double kHair = 0.01;  // twips, for what was divided
};

TEST_P(AnySize, NothingInAPanelLiesOverItsNeighbour) {
    for (const controls::Container* panel : Panels()) {
        SCOPED_TRACE(panel->Name());
        ExpectNoOverlap(*panel);
    }
}

TEST_P(AnySize, NothingIsCutOffByItsPanel) {
    for (const controls::Container* panel : Panels()) {
        SCOPED_TRACE(panel->Name());
        ExpectInside(*panel);
    }
}

TEST_P(AnySize, TheTracksKeepAtLeast36PixelsOfHeight) {
    EXPECT_GE(window.library.lists.lstTracks.Height(), 36 * kTwipsPerPixel);
}

TEST_P(AnySize, TheWindowHoldsItsPanesAndItsAddressRow) {
    auto& row = window.web;
    for (const Control* control : std::vector<const Control*>{
             &window.chrome.fraMusicTab, &window.favourites.cmdFavs, &window.favourites.fraFavs,
             &window.chrome.lblCopyright, &row.address.cmbAddress, &row.refresh.txtRefresh, &row.help.imgHelp,
             &row.tabs.Browser(0)}) {
        SCOPED_TRACE(control->Name());
        EXPECT_GE(control->Left(), 0);
        EXPECT_LE(control->Right(), window.ContentWidth());
        EXPECT_LE(control->Bottom(), window.ContentHeight());
    }
}

TEST_P(AnySize, TheAddressRowStandsSideBySide) {
    const auto& row = window.web;
    const std::vector<const Control*> in_order = {
        &row.navigation.imgBack,     &row.navigation.imgForward, &row.address.cmbType,
        &row.address.cmbAddress,     &row.refresh.imgCheck,      &row.refresh.lblRefresh1,
        &row.navigation.lblRefresh2, &row.refresh.txtRefresh,    &row.help.imgHelp};
    for (std::size_t i = 1; i < in_order.size(); ++i) {
        EXPECT_LE(in_order[i - 1]->Right(), in_order[i]->Left())
            << in_order[i - 1]->Name() << " and " << in_order[i]->Name();
    }
}

TEST_P(AnySize, PanelButtonAndPageStandSideBySide) {
    const Control& button = window.favourites.cmdFavs;
    const Control& page = window.web.tabs.Browser(0);
    EXPECT_LE(button.Right(), page.Left());
    EXPECT_EQ(button.Bottom(), page.Bottom());
    if (!window.favourites.fraFavs.Visible()) return;
    EXPECT_LE(window.favourites.fraFavs.Right(), button.Left());
    EXPECT_LE(window.chrome.lblCopyright.Right(), button.Left());
}

TEST_P(AnySize, ASplitterPulledAnywhereCoversNothing) {
    if (window.menus.mnuMusicJustTracks.Checked()) {
        EXPECT_FALSE(window.player.splitter.lblSlider.Visible());
        return;
    }
    Control& splitter = window.player.splitter.lblSlider;
    const int lowest = static_cast<int>(window.player.transport.fraControls.Top()) - 500;
    for (int top = 400; top < lowest; top += 120) {
        SCOPED_TRACE(top);
        splitter.SetTop(top);
        window.library.lists.lstArtists.SetHeight(top - window.library.lists.lstArtists.Top());
        window.library.lists.lstPlayLists.SetHeight(window.library.lists.lstArtists.Height());

        layout.PlaceBelowSplitter();

        ExpectNoOverlap(window.chrome.fraMusicTab);
        EXPECT_GE(window.library.lists.lstTracks.Height(), 36 * kTwipsPerPixel);
    }
}

INSTANTIATE_TEST_SUITE_P(
    FromTheSmallestToALargeScreen, AnySize,
    testing::Combine(testing::Values(Size{9225, 7590}, Size{9225, 20000}, Size{30000, 7590},
                                     Size{11730, 8000}, Size{12660, 8200}, Size{14070, 9000},
                                     Size{17760, 12090}, Size{28800, 16200}, Size{57600, 32400}),
                     testing::Values(View::PanelClosed, View::PanelOpen, View::JustTracks, View::WithVideo)));

}  // namespace
