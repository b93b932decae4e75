// The favourites panel, the button that opens and closes it, and the video that shares the panel.

#include <algorithm>

#include "window/BrowserLayout.h"
#include "window/LayoutMeasures.h"

namespace window {
namespace {

using controls::Control;
using controls::MoveTwins;
using controls::Px;

/// The panel's button begins here while the panel is open, and at the window's margin while it is closed.
constexpr double kPanelEnd = Px(184);
constexpr double kWindowMargin = Px(8);
constexpr double kBelowPage = Px(60);
/// From the top of the copyright line to the window's bottom, in twips.
constexpr double kFootHeight = 1400;
constexpr double kButtonHeight = Px(26);

}  // namespace

void BrowserLayout::PlaceFavouritesButton() {
    Control& button = window_.favourites.cmdFavs;
    button.Move(IsPanelOpen() ? kPanelEnd : kWindowMargin, web::kPageTop, Px(13),
                window_.Height() - web::kPageTop - kBelowPage);
}

void BrowserLayout::PlaceFavouritesPanel() {
    auto& panel = window_.favourites;
    Control& copyright = window_.chrome.lblCopyright;
    copyright.Move(Px(14), window_.Height() - kFootHeight, Px(160), Px(34));
    // With the panel closed the page or the music pane takes its place.
    copyright.SetVisible(IsPanelOpen());
    panel.fraFavs.Move(kWindowMargin, web::kPageTop, kPanelEnd - kWindowMargin - Px(4),
                       copyright.Top() - web::kPageTop);
    panel.lblFavs.Move(kGap, kHeadingTop, panel.fraFavs.Width() - 2 * kGap, kHeadingHeight);
    const double video =
        window_.player.video.picVideo.Visible() ? std::min(Px(170), panel.fraFavs.Height() / 3) : 0;
    const double bottom = panel.fraFavs.Height() - kGap - (video > 0 ? video + kGap : 0);
    PlaceFavouritesButtons(bottom);
    const double lists_bottom = panel.imgAdd.Top() - kGap;
    for (Control* list : {static_cast<Control*>(&panel.lstFavs), static_cast<Control*>(&panel.lstFavsAlt)}) {
        list->Move(kGap, kListsTop, panel.fraFavs.Width() - 2 * kGap, lists_bottom - kListsTop);
    }
}

void BrowserLayout::PlaceFavouritesButtons(double bottom) {
    auto& panel = window_.favourites;
    const double top = bottom - kButtonHeight;
    MoveTwins(kGap, top, Px(50), kButtonHeight, panel.imgAdd, panel.imgAddOver);
    MoveTwins(panel.imgAdd.Right() + Px(2), top, Px(54), kButtonHeight, panel.imgdelete, panel.imgdeleteover);
    MoveTwins(panel.imgdelete.Right() + Px(2), top, Px(48), kButtonHeight, panel.imgView, panel.imgViewOver);
}

// A hidden pane keeps its place: the panel has no room for it, and a hole in no room is a slit in the page.
void BrowserLayout::PlaceVideoPane() {
    if (!window_.player.video.picVideo.Visible()) return;
    auto& panel = window_.favourites;
    const double top = panel.fraFavs.Top() + panel.imgAdd.Bottom() + kGap;
    window_.player.video.picVideo.Move(panel.fraFavs.Left() + kGap, top, panel.fraFavs.Width() - 2 * kGap,
                                       panel.fraFavs.Bottom() - kGap - top);
    if (!roles_.video.IsVideoAttached()) return;
    roles_.hole.CloseHole();
    roles_.hole.MakeHole();
}

bool BrowserLayout::IsPanelOpen() const {
    return window_.favourites.IsPanelOpen();
}

}  // namespace window
