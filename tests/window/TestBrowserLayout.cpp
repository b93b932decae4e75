#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "LayoutBench.h"

namespace {

using controls::Control;
using controls::kTwipsPerPixel;
using window_tests::BrowserLayoutTest;
using window_tests::PlacedOf;
using window_tests::Rect;
using window_tests::RectOf;

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

}  // namespace
