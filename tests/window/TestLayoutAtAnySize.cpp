#include <gtest/gtest.h>

#include <tuple>
#include <vector>

#include "LayoutBench.h"

namespace {

using controls::Control;
using controls::kTwipsPerPixel;
using window_tests::BrowserLayoutTest;
using window_tests::RectOf;

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

TEST_P(AnySize, ASplitterPulledToItsLimitsAtOnceCoversNothing) {
    if (window.menus.mnuMusicJustTracks.Checked()) return;
    Control& splitter = window.player.splitter.lblSlider;
    for (const double top : {-30000.0, 400.0, 30000.0, 0.0}) {
        SCOPED_TRACE(top);
        splitter.SetTop(top);

        layout.PlaceBelowSplitter();

        ExpectNoOverlap(window.chrome.fraMusicTab);
        EXPECT_GE(window.library.lists.lstArtists.Height(), 300);
        EXPECT_DOUBLE_EQ(window.library.lists.lstArtists.Bottom(), splitter.Top());
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
