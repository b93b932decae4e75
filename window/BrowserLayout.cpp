#include "window/BrowserLayout.h"

#include <algorithm>

#include "window/LayoutMeasures.h"

namespace window {
namespace {

using controls::Control;
using controls::Px;

}  // namespace

BrowserLayout::BrowserLayout(BrowserForm& window, const web::WebState& tabs, const bool& PlayerStopped,
                             LayoutRoles roles)
    : window_(window), tabs_(tabs), PlayerStopped_(PlayerStopped), roles_(roles) {}

void BrowserLayout::Form_Resize() {
    // The spring-back and what a stopped player puts back change the window once more; one run is enough for
    // both.
    if (resizing_) return;
    resizing_ = true;
    PlaceFormGround();
    if (SpringBackToSmallest()) PlaceFormGround();
    PlaceGround();
    PlaceFavouritesButton();
    PlaceBrowsers();
    PlaceAddressRow();
    PlaceRefreshControls();
    PlaceMusicPane();
    PlaceLibraryLists();
    PlaceControlsGround();
    PlaceFavouritesPanel();
    PlaceVideoPane();
    PlacePaneChains();
    roles_.player.RestoreBars();
    PlaceAddToPlaylist();
    PlaceTaskPanel();
    if (PlayerStopped_) roles_.transport.StayStopped();
    PlaceAddressBox();
    resizing_ = false;
}

void BrowserLayout::PlaceFormGround() {
    window_.chrome.imgFormBG.Move(0, 0, window_.Width(), window_.Height());
}

bool BrowserLayout::SpringBackToSmallest() {
    if (window_.State() == controls::WindowState::Minimised) return false;
    const double width = std::max(window_.Width(), kSmallestWidth);
    const double height = std::max(window_.Height(), kSmallestHeight);
    if (width == window_.Width() && height == window_.Height()) return false;
    window_.Move(window_.Left(), window_.Top(), width, height);
    return true;
}

void BrowserLayout::PlaceGround() {
    constexpr double kStripBottom = web::kStripTop + web::kStripHeight + Px(1);
    Control& ground = window_.chrome.imgBG;
    ground.Move(0, kStripBottom, window_.Width(), window_.Height() - kStripBottom);
    window_.chrome.imgRowBG.Move(0, kStripBottom, window_.Width(), web::kPageTop - kGap - kStripBottom);
}

}  // namespace window
