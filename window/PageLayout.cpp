// The address row, the pages below it, and what takes their place.

#include "window/BrowserLayout.h"
#include "window/LayoutMeasures.h"

namespace window {
namespace {

using controls::Control;
using controls::MoveTwins;
using controls::Px;

constexpr double kButton = Px(28);
constexpr double kRightOfAddress = Px(300);
// In twips: these are not whole pixels.
constexpr double kRightOfPage = 220;
constexpr double kRightOfPageWithPanel = 275;
constexpr double kCaptionToButton = 520;
constexpr double kBesideAddressText = 250;
constexpr double kInsideOfAddressX = 320;
constexpr double kInsideOfAddressY = 50;

}  // namespace

void BrowserLayout::PlaceBrowsers() {
    const double left = IsPanelOpen() ? Px(200) : Px(25);
    const double width = window_.Width() - left - (IsPanelOpen() ? kRightOfPageWithPanel : kRightOfPage);
    auto& browsers = window_.web.tabs.Browser;
    for (int i = 0; i < browsers.Count(); ++i) {
        browsers(i).Move(left, web::kPageTop, width, window_.favourites.cmdFavs.Height());
    }
}

void BrowserLayout::PlaceAddressRow() {
    constexpr double kTop = web::kAddressRowTop;
    constexpr double kHeight = web::kAddressRowHeight;
    constexpr double kAddressLeft = Px(176);
    auto& row = window_.web.address;
    auto& navigation = window_.web.navigation;
    MoveTwins(Px(10), kTop, kButton, kButton, navigation.imgBack, navigation.imgBackOver);
    MoveTwins(Px(44), kTop, kButton, kButton, navigation.imgForward, navigation.imgForwardOver);
    row.cmbType.Move(Px(84), kTop, Px(86), kHeight);
    row.cmbAddress.Move(kAddressLeft, kTop, window_.Width() - kRightOfAddress - kAddressLeft, kHeight);
    row.txtAddress.SetLeft(kAddressLeft);
    row.txtAddress.SetWidth(row.cmbAddress.Width() - kBesideAddressText);
}

void BrowserLayout::PlaceRefreshControls() {
    constexpr double kTop = web::kAddressRowTop;
    constexpr double kHeight = web::kAddressRowHeight;
    auto& refresh = window_.web.refresh;
    Control& button = window_.web.navigation.lblRefresh2;
    MoveTwins(window_.web.address.cmbAddress.Right() + kGap, kTop + Px(6), Px(16), Px(16), refresh.imgCheck,
              refresh.imgCheckChecked);
    const double caption = refresh.imgCheck.Right() + Px(5);
    refresh.lblRefresh1.Move(caption, kTop + Px(5), Px(32), Px(18));
    button.Move(caption + kCaptionToButton, kTop, Px(84), kHeight);
    refresh.txtRefresh.Move(caption + Px(128), kTop, Px(42), kHeight);
    window_.web.help.imgHelp.Move(window_.Width() - Px(42), kTop, kButton, kButton);
}

void BrowserLayout::PlaceAddressBox() {
    const Control& box = window_.web.address.cmbAddress;
    window_.web.address.txtAddress.Move(box.Left() + Px(2), box.Top() + Px(2),
                                        box.Width() - kInsideOfAddressX, box.Height() - kInsideOfAddressY);
}

void BrowserLayout::PlaceTaskPanel() {
    auto& task = window_.library.task;
    SameRect(task.fraTask, CurrentBrowser());
    task.SizeCenter(task.fraTask.Width());
    Centre(task.fraTaskCenter, task.fraTask);
    Fill(task.imgTaskBG, task.fraTask);
    SameRect(window_.web.tabs.BrowserBG, CurrentBrowser());
}

controls::Control& BrowserLayout::CurrentBrowser() {
    auto& browsers = window_.web.tabs.Browser;
    return browsers(tabs_.currentbrowser < browsers.Count() ? tabs_.currentbrowser : 0);
}

}  // namespace window
