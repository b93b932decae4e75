#include "web/WebControls.h"

#include "controls/Arrange.h"

namespace web {

namespace {

constexpr double kLabelHeight = 270;
constexpr double kLabelTop = kStripTop + 90;
constexpr double kCloseSize = 240;
constexpr double kMiniWidth = kFirstTabLeftWithoutMusic - kMusicTabLeft;
constexpr double kLineTop = kStripTop + kStripHeight;

}  // namespace

TabControls::TabControls() {
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
    cmbType.SetAccessibleName("What the address box does");
    // What the box does while no mode was chosen.
    cmbType.SetHint("Web");
    cmbAddress.SetAccessibleName("Earlier addresses");
    txtAddress.SetAccessibleName("Address");
    txtAddress.SetLook("address");
    txtAddress.SetHint("Type an address, a file or a search and press Enter");
    Hide(Label2);
}

void AddressControls::PutInto(controls::Container& container) {
    container.Add(cmbType, cmbAddress, txtAddress, Label2);
}

CompletionControls::CompletionControls() {
    lstSuggestions.SetAccessibleName("Suggested addresses");
    lstSuggestions.SetLook("popup");
    Hide(lstSuggestions);
}

void CompletionControls::PutInto(controls::Container& container) {
    container.Add(lstSuggestions);
}

TabFinderControls::TabFinderControls() {
    txtTabFinder.SetAccessibleName("Find a tab");
    txtTabFinder.SetHint("Find a tab by its title or address");
    lstTabFinder.SetAccessibleName("Tabs");
    lstTabFinder.SetLook("popup");
    lstTabFinder.SetHint("No tab like that");
    fraTabFinder.Add(txtTabFinder, lstTabFinder);
    Hide(fraTabFinder);
}

void TabFinderControls::PutInto(controls::Container& container) {
    container.Add(fraTabFinder, tmrTabFinder);
}

NavigationControls::NavigationControls() {
    lblRefresh2.SetAlign(controls::Alignment::Centre);
    lblRefresh2.SetLook("button");
    NameTwins(imgBack, imgBackOver, "Back");
    NameTwins(imgForward, imgForwardOver, "Forward");
    Name(lblRefresh2, "Refresh the page", "Refresh the page in front");
}

void NavigationControls::PutInto(controls::Container& container) {
    container.Add(imgBack, imgBackOver, imgForward, imgForwardOver, lblRefresh2);
}

RefreshControls::RefreshControls() {
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
    completion.PutInto(container);
    finder.PutInto(container);
}

}  // namespace web
