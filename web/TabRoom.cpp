#include "web/TabRoom.h"

#include <algorithm>

#include "base/Text.h"
#include "web/Addresses.h"

namespace web {

namespace {

constexpr std::string_view kTitle = "Brindlepost";
/// What a tab is called for screen readers while its page has no title.
constexpr std::string_view kNewTab = "New tab";

}  // namespace

TabRoom::TabRoom(TabControls& controls, TabMenu& menu, WebState& state, AddressBox& address, TabRoles roles,
                 ports::EventLoop& events, PageWatcher& watcher)
    : controls_(controls),
      menu_(menu),
      state_(state),
      address_(address),
      roles_(roles),
      events_(events),
      watcher_(watcher),
      strip_(controls) {
    ClaimMusicTab();
    claims_.Claim(menu_.mnuMusicTabTab.Click, [this] { imgMusicTabMini_Click(); });
    claims_.Claim(menu_.mnuViewMusicTab.Click, [this] { imgMusicTab_MouseUp(controls::kLeftButton); });
    claims_.Claim(menu_.mnuCloseCurrentTab.Click, [this] { mnuCloseCurrentTab_Click(); });
    claims_.Claim(menu_.mnuCloseAllTabs.Click, [this] { mnuCloseAllTabs_Click(); });
}

void TabRoom::ClaimMusicTab() {
    claims_.Claim(controls_.imgMusicTab.MouseUp,
                  [this](int button, int, double, double) { imgMusicTab_MouseUp(button); });
    claims_.Claim(controls_.imgMusicTabMini.Click, [this] { imgMusicTabMini_Click(); });
    claims_.Claim(controls_.tabMusicClose.Click, [this] { tabMusicClose_Click(); });
}

// The index may be set before its tab is there: home pages set it to 1 whether they opened a tab or not.
int TabRoom::FrontIndex() const {
    return state_.currentbrowser < Count() ? state_.currentbrowser : 0;
}

int TabRoom::GetNewBrowser(std::string_view address) {
    const int index = Count();
    state_.NextBrowserIndex = static_cast<std::int16_t>(index);
    if (controls_.imgMusicTabMini.Visible()) state_.TabsShown = IsAnyTabOpen();
    LoadPage(index);
    LoadStripMembers(index);
    FaceNewTab(index);
    strip_.PlaceLabelAndClose(index);
    controls_.tabtab(index).SetVisible(true);
    controls_.tabClose(index).SetVisible(true);
    controls_.Browser(index).Navigate(address);
    controls_.Browser(index).Navigate2(address);
    BringForward(index);
    ShowStripMembers(index);
    return index;
}

// The keyboard stays in the page that the user works in.
int TabRoom::OpenBehind() {
    const int index = Count();
    state_.NextBrowserIndex = static_cast<std::int16_t>(index);
    LoadPage(index);
    LoadStripMembers(index);
    FaceNewTab(index);
    // The newest control lies on top.
    if (state_.MusicTabActive) {
        roles_.window.BringMusicPanelToFront();
    } else {
        Front().BringToFront();
    }
    strip_.RaiseLines();
    controls_.tabtab(index).SetVisible(true);
    controls_.tabClose(index).SetVisible(true);
    ShowStripMembers(index);
    strip_.PlaceShownTabs(strip_.FirstLeft());
    return index;
}

void TabRoom::LoadPage(int index) {
    controls::WebBrowser& page = controls_.Browser.Load(index);
    const controls::WebBrowser& model = controls_.Browser(0);
    watcher_.OnPageLoaded(index);
    state_.BackdropHidden = true;
    page.Navigate("");
    page.Move(model.Left(), model.Top(), model.Width(), model.Height());
    page.SetAccessibleName(model.AccessibleName());
    page.SetVisible(true);
    if (!state_.TabsShown) page.BringToFront();
}

void TabRoom::LoadStripMembers(int index) {
    controls_.tabtab.Load(index, [this, index](controls::Image& face) {
        face.SetAccessibleName(kNewTab);
        claims_.Claim(face.MouseUp,
                      [this, index](int button, int, double, double) { tabtab_MouseUp(index, button); });
        claims_.Claim(face.MouseMove, [this, index] { tabtab_MouseMove(index); });
    });
    controls_.tabLabel.Load(index, [this, index](controls::Label& label) {
        claims_.Claim(label.MouseUp,
                      [this, index](int button, int, double, double) { tabLabel_MouseUp(index, button); });
        claims_.Claim(label.MouseMove, [this, index] { tabLabel_MouseMove(index); });
    });
    controls_.tabClose.Load(index, [this, index](controls::Label& close) {
        close.SetCaption(controls_.tabClose(0).Caption());
        close.SetAccessibleName("Close this tab");
        claims_.Claim(close.Click, [this, index] { tabClose_Click(index); });
    });
    controls::Menu& entry = controls_.mnuTabTab.Load(index);
    const auto& entries = menu_.mnuTab.Entries();
    menu_.mnuTab.AddEntry(entry, static_cast<int>(std::find(entries.begin(), entries.end(), &menu_.mnuSep11) -
                                                  entries.begin()));
    claims_.Claim(entry.Click, [this, index] { mnuTabTab_Click(index); });
}

void TabRoom::FaceNewTab(int index) {
    const controls::Image& before = controls_.tabtab(index - 1);
    controls_.tabtab(index).SetLeft(before.Right());
    controls_.tabtab(index).SetPicture("\\images\\dark.bmp");
    if (state_.MusicTabActive) {
        strip_.MakeAllTabsDark();
    } else if (!IsFrontShown()) {
        strip_.MakePale(index);
        state_.currentbrowser = static_cast<std::int16_t>(index);
    }
}

void TabRoom::ShowStripMembers(int index) {
    state_.TabsShown = true;
    controls_.tabLabel(index).SetCaption("");
    controls_.tabLabel(index).SetVisible(true);
    strip_.Raise(index);
    controls_.mnuTabTab(index).SetVisible(true);
}

void TabRoom::BringForward(int index) {
    strip_.MakeAllTabsDark();
    strip_.MakeMusicTabDark();
    strip_.MakePale(index);
    controls_.Browser(index).BringToFront();
    strip_.RaiseLines();
    state_.currentbrowser = static_cast<std::int16_t>(index);
    state_.MusicTabActive = false;
    TabChange();
}

void TabRoom::NameTab(int index, std::string_view caption) {
    controls_.tabLabel(index).SetCaption(caption);
}

void TabRoom::ShowTitle(int index) {
    const std::string title = controls_.Browser(index).LocationName();
    controls_.tabLabel(index).SetCaption(title);
    controls_.tabtab(index).SetAccessibleName(title.empty() ? kNewTab : std::string_view(title));
    controls_.mnuTabTab(index).SetCaption(title);
    if (index == state_.currentbrowser && !state_.MusicTabActive) {
        roles_.window.SetCaption(std::string(kTitle).append(" - ").append(title));
    }
}

void TabRoom::ShowSigns(int index) {
    const ports::PageSigns signs = controls_.Browser(index).Signs();
    controls_.tabLabel(index).SetIcon(signs.icon);
    controls_.tabLabel(index).SetProgress(signs.progress);
    if (index == FrontIndex()) address_.ShowSecurity(signs.security, Front().LocationURL());
}

void TabRoom::TabChange() {
    MarkMenuEntries();
    if (state_.MusicTabActive) {
        ShowMusicInFront();
    } else if (IsFrontShown()) {
        ShowPageInFront();
    } else {
        ShowNothingInFront();
    }
    CheckMiniLine();
    address_.FocusAddress();
}

void TabRoom::MarkMenuEntries() {
    for (int i = 1; i < Count(); ++i) {
        controls_.mnuTabTab(i).SetVisible(IsShown(i));
        controls_.mnuTabTab(i).SetChecked(false);
    }
}

void TabRoom::ShowNothingInFront() {
    roles_.window.SetCaption(kTitle);
    strip_.EndLeftLine(roles_.window.Width());
    state_.TabsShown = false;
    // The backdrop's address is the program's own and of no use to the user.
    address_.ClearLocation();
}

void TabRoom::ShowMusicInFront() {
    roles_.window.SetCaption(std::string(kTitle).append(" - Music Player"));
    strip_.OpenLines(kMusicTabLeft, kFirstTabLeft);
    address_.ClearLocation();
}

void TabRoom::ShowPageInFront() {
    const int front = FrontIndex();
    strip_.OpenLines(controls_.tabtab(front).Left(), controls_.tabtab(front).Right());
    controls_.mnuTabTab(front).SetChecked(true);
    roles_.window.SetCaption(std::string(kTitle).append(" - ").append(controls_.mnuTabTab(front).Caption()));
    const std::string address = Front().LocationURL();
    if (address_.IsWebMode()) address_.ShowLocation(address);
    state_.LastTabUrl = address;
    address_.ShowSecurity(Front().Signs().security, address);
}

void TabRoom::CheckMiniLine() {
    if (!controls_.imgMusicTabMini.Visible()) return;
    for (int i = 1; i < Count(); ++i) {
        if (IsShown(i) || controls_.tabtab(i).Visible()) return;
    }
    strip_.EndLeftLine(roles_.window.Width());
    state_.TabsShown = false;
}

void TabRoom::CorrectTabs() {
    strip_.PlaceShownTabs(strip_.FirstLeft());
    for (int i = 1; i < Count(); ++i)
        controls_.mnuTabTab(i).SetVisible(IsShown(i));
    TabChange();
}

void TabRoom::CheckOpenBrowser() {
    if (controls_.imgMusicTab.Visible() || IsAnyTabOpen()) return;
    state_.BackdropHidden = false;
    controls_.BrowserBG.Navigate(MakerAddress(kBackdropQuery));
    controls_.BrowserBG.SetVisible(true);
    controls_.BrowserBG.BringToFront();
    strip_.EndLeftLine(roles_.window.Width());
}

void TabRoom::ShowNextBrowser() {
    for (int i = 1; i < Count(); ++i) {
        if (!IsShown(i)) continue;
        BringForward(i);
        return;
    }
}

bool TabRoom::IsAnyTabOpen() const {
    for (int i = 1; i < Count(); ++i) {
        if (IsShown(i)) return true;
    }
    return false;
}

void TabRoom::ShowMembers(int index, bool shown) {
    controls_.Browser(index).SetVisible(shown);
    controls_.tabtab(index).SetVisible(shown);
    controls_.tabLabel(index).SetVisible(shown);
    controls_.tabClose(index).SetVisible(shown);
}

std::vector<int> TabRoom::Strip() const {
    std::vector<int> strip;
    if (IsMusicTabVisible()) strip.push_back(0);
    for (int i = 1; i < Count(); ++i) {
        if (IsShown(i)) strip.push_back(i);
    }
    return strip;
}

int TabRoom::InFront() const {
    if (state_.MusicTabActive) return IsMusicTabVisible() ? 0 : -1;
    return IsFrontShown() ? FrontIndex() : -1;
}

void TabRoom::ShowMember(int index) {
    if (index == 0) {
        BringMusicTabForward();
    } else {
        BringForward(index);
    }
}

// A slot whose page ended with its user's log out has nothing to show.
bool TabRoom::HasPageToShow(int index) const {
    const controls::WebBrowser& page = controls_.Browser(index);
    return page.Engine() != nullptr || !page.WaitingAddress().empty();
}

void TabRoom::Reopen() {
    while (!closed_.empty()) {
        const int index = closed_.back();
        closed_.pop_back();
        if (IsShown(index) || !HasPageToShow(index)) continue;
        ShowMembers(index, true);
        state_.BackdropHidden = true;
        state_.TabsShown = true;
        BringForward(index);
        CorrectTabs();
        return;
    }
}

int TabRoom::EmptyTabInFront() const {
    if (empty_tab_ == 0 || InFront() != empty_tab_) return 0;
    const std::string address = Front().LocationURL();
    return address.empty() || base::StartsWith(address, MakerSiteUrl) ? empty_tab_ : 0;
}

void TabRoom::DropEmptyTab(int index) {
    CloseTab(index);
    empty_tab_ = 0;
    std::erase(closed_, index);
}

// The first pass always starts after the music tab; CorrectTabs at the end moves the tabs when it is closed.
// So the leftmost tab is found by its place here in both cases.
void TabRoom::CloseTab(int index) {
    if (index > 0 && IsShown(index)) closed_.push_back(index);
    ShowMembers(index, false);
    strip_.PlaceShownTabs(kFirstTabLeft);
    if (!IsFrontShown() && !state_.MusicTabActive) TakeOverLeftmost();
    if (!IsFrontShown()) BringMusicTabForward();
    TabChange();
    CheckOpenBrowser();
    CorrectTabs();
}

void TabRoom::TakeOverLeftmost() {
    for (int i = 1; i < Count(); ++i) {
        if (!controls_.tabtab(i).Visible() || controls_.tabtab(i).Left() != kFirstTabLeft) continue;
        strip_.MakePale(i);
        controls_.Browser(i).BringToFront();
        state_.currentbrowser = static_cast<std::int16_t>(i);
        return;
    }
}

void TabRoom::BringMusicTabForward() {
    state_.MusicTabActive = true;
    strip_.MakeAllTabsDark();
    strip_.MakeMusicTabPale();
    roles_.window.BringMusicPanelToFront();
    TabChange();
    address_.SetTyped("");
}

void TabRoom::OpenMusicTab() {
    if (!controls_.imgMusicTab.Visible()) address_.SetTyped("");
    roles_.window.ShowMusicPanel(true);
    controls_.imgMusicTabMini.SetVisible(false);
    controls_.imgMusicTab.SetVisible(true);
    controls_.tabMusicClose.SetVisible(true);
    roles_.layout.Form_Resize();
    BringMusicTabForward();
    CorrectTabs();
    events_.Yield();
    roles_.track_lists.RefillIfEmpty();
    roles_.media.OfferToAddMedia();
}

void TabRoom::CloseMusicTab() {
    state_.ClosingMusicTab = true;
    controls_.imgMusicTab.SetVisible(false);
    controls_.imgMusicTabMini.SetVisible(true);
    CorrectTabs();
    roles_.window.ShowMusicPanel(false);
    controls_.tabMusicClose.SetVisible(false);
    roles_.transport.StopAndForget();
    CheckOpenBrowser();
    ShowNextBrowser();
    state_.MusicTabActive = false;
    // The tab was still in front when the title was written.
    if (!IsFrontShown()) roles_.window.SetCaption(kTitle);
    roles_.messenger.SendNothingPlaying();
    address_.FocusAddress();
}

void TabRoom::tabtab_MouseUp(int index, int button) {
    if (button == controls::kRightButton) {
        roles_.window.PopupMenu(menu_.mnuTab);
    } else {
        BringForward(index);
    }
}

void TabRoom::tabtab_MouseMove(int index) {
    roles_.highlights.NoMouseOvers();
    controls_.tabtab(index).SetToolTipText(controls_.Browser(index).LocationName());
}

void TabRoom::tabLabel_MouseUp(int index, int button) {
    tabtab_MouseUp(index, button);
}

void TabRoom::tabLabel_MouseMove(int index) {
    controls_.tabLabel(index).SetToolTipText(controls_.Browser(index).LocationName());
}

void TabRoom::tabClose_Click(int index) {
    CloseTab(index);
}

void TabRoom::imgMusicTab_MouseUp(int button) {
    if (button == controls::kRightButton) {
        roles_.window.PopupMenu(menu_.mnuMusicPlayer);
    } else {
        BringMusicTabForward();
    }
}

void TabRoom::imgMusicTabMini_Click() {
    OpenMusicTab();
}

void TabRoom::tabMusicClose_Click() {
    CloseMusicTab();
}

void TabRoom::mnuTabTab_Click(int index) {
    BringForward(index);
}

void TabRoom::mnuCloseCurrentTab_Click() {
    if (state_.MusicTabActive) return;
    CloseTab(FrontIndex());
    CorrectTabs();
}

// Slots long closed are closed again, to the same end.
void TabRoom::mnuCloseAllTabs_Click() {
    for (int i = 1; i < Count(); ++i)
        CloseTab(i);
    CorrectTabs();
}

}  // namespace web
