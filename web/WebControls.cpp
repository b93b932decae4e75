#include "web/WebControls.h"

namespace web {

namespace {

constexpr double kButtonSize = 420;
constexpr double kLabelHeight = 270;
constexpr double kLabelTop = kStripTop + 90;
constexpr double kCloseSize = 240;
constexpr double kMiniWidth = kFirstTabLeftWithoutMusic - kMusicTabLeft;
constexpr double kLineTop = kStripTop + kStripHeight;
constexpr double kRefreshLeft = 13170;

void Name(controls::Control& control, std::string_view accessible, std::string_view tool_tip = {}) {
    control.SetAccessibleName(accessible);
    control.SetToolTipText(tool_tip.empty() ? accessible : tool_tip);
}

template <class... C>
void Hide(C&... controls) {
    (controls.SetVisible(false), ...);
}

}  // namespace

TabControls::TabControls() {
    Browser(0).Move(3000, kPageTop, 14000, 9000);
    BrowserBG.Move(3000, kPageTop, 14000, 9000);
    Browser(0).SetAccessibleName("Web page");
    BrowserBG.SetAccessibleName("Backdrop page");

    imgMusicTab.Move(kMusicTabLeft, kStripTop, kTabWidth, kStripHeight);
    imgMusicTab.SetPicture("/images/musictab_pale.bmp");
    Name(imgMusicTab, "Music Player");
    imgMusicTabMini.Move(kMusicTabLeft, kStripTop, kMiniWidth, kStripHeight);
    Name(imgMusicTabMini, "Open the music tab");
    tabMusicClose.Move(kMusicTabLeft + kTabCloseOffset, kLabelTop, kCloseSize, kLabelHeight);
    tabMusicClose.SetLook("tab close");
    Name(tabMusicClose, "Close the music tab");

    tabtab(0).Move(kFirstTabLeft - kTabWidth, kStripTop, kTabWidth, kStripHeight);
    tabtab(0).SetPicture("\\images\\dark.bmp");
    tabLabel(0).Move(tabtab(0).Left() + kTabLabelOffset, kLabelTop, kTabCloseOffset - 2 * kTabLabelOffset,
                     kLabelHeight);
    tabLabel(0).SetLook("tab");
    tabClose(0).Move(tabtab(0).Left() + kTabCloseOffset, kLabelTop, kCloseSize, kLabelHeight);
    tabClose(0).SetCaption("\xC3\x97");
    tabClose(0).SetLook("tab close");

    TabLineLeft.Move(0, kLineTop, kMusicTabLeft, 0);
    TabLineRight.Move(kFirstTabLeft, kLineTop, kFirstTabLeft, 0);
    Hide(Browser(0), BrowserBG, tabtab(0), tabLabel(0), tabClose(0), mnuTabTab(0), imgMusicTabMini);
}

void TabControls::PutInto(controls::Container& container) {
    container.Add(BrowserBG, Browser(0), imgMusicTab, imgMusicTabMini, tabMusicClose, tabtab(0), tabLabel(0),
                  tabClose(0), TabLineLeft, TabLineRight);
}

AddressControls::AddressControls() {
    cmbType.Move(1260, kAddressRowTop, 1290, kAddressRowHeight);
    cmbType.SetAccessibleName("What the address box does");
    cmbAddress.Move(2640, kAddressRowTop, 10350, kAddressRowHeight);
    cmbAddress.SetAccessibleName("Earlier addresses");
    txtAddress.Move(2655, kAddressRowTop + 15, 10030, kAddressRowHeight - 50);
    txtAddress.SetAccessibleName("Address");
    txtAddress.SetHint("Type an address, a file or a search and press Enter");
    Hide(Label2);
}

void AddressControls::PutInto(controls::Container& container) {
    container.Add(cmbType, cmbAddress, txtAddress, Label2);
}

NavigationControls::NavigationControls() {
    imgBack.Move(150, kAddressRowTop, kButtonSize, kButtonSize);
    imgBackOver.Move(150, kAddressRowTop, kButtonSize, kButtonSize);
    imgForward.Move(660, kAddressRowTop, kButtonSize, kButtonSize);
    imgForwardOver.Move(660, kAddressRowTop, kButtonSize, kButtonSize);
    lblRefresh2.Move(kRefreshLeft + 2820, kAddressRowTop, 1080, kAddressRowHeight);
    lblRefresh2.SetAlign(controls::Alignment::Centre);
    lblRefresh2.SetLook("button");
    Name(imgBack, "Back");
    Name(imgBackOver, "Back");
    Name(imgForward, "Forward");
    Name(imgForwardOver, "Forward");
    Name(lblRefresh2, "Refresh the page", "Refresh the page in front");
    Hide(imgBackOver, imgForwardOver);
}

void NavigationControls::PutInto(controls::Container& container) {
    container.Add(imgBack, imgBackOver, imgForward, imgForwardOver, lblRefresh2);
}

RefreshControls::RefreshControls() {
    imgCheck.Move(kRefreshLeft, kAddressRowTop + 90, 240, 240);
    imgCheckChecked.Move(kRefreshLeft, kAddressRowTop + 90, 240, 240);
    lblRefresh1.Move(kRefreshLeft + 330, kAddressRowTop + 75, 1320, kLabelHeight);
    txtRefresh.Move(kRefreshLeft + 1740, kAddressRowTop, 660, kAddressRowHeight);
    txtRefresh.SetText("60");
    Name(imgCheck, "Refresh automatically", "Refresh the page in front again and again");
    Name(imgCheckChecked, "Stop refreshing automatically");
    txtRefresh.SetAccessibleName("Seconds between refreshes");
    Hide(imgCheckChecked, txtRefresh);
}

void RefreshControls::PutInto(controls::Container& container) {
    container.Add(imgCheck, imgCheckChecked, lblRefresh1, txtRefresh, tmrRefresh);
}

HelpControls::HelpControls() {
    imgHelp.Move(kRefreshLeft + 3990, kAddressRowTop, kButtonSize, kButtonSize);
    Name(imgHelp, "Help");
}

void HelpControls::PutInto(controls::Container& container) {
    container.Add(imgHelp);
}

void WebControls::PutInto(controls::Container& container) {
    tabs.PutInto(container);
    navigation.PutInto(container);
    address.PutInto(container);
    refresh.PutInto(container);
    help.PutInto(container);
}

}  // namespace web
