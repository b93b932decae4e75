#include "window/BrowserLayout.h"

#include <algorithm>

namespace window {
namespace {

using controls::Control;

constexpr double Px(double pixels) {
    return pixels * controls::kTwipsPerPixel;
}

constexpr double kGap = Px(8);
// Above and below the tracks: at the smallest window every pixel counts there.
constexpr double kTightGap = Px(6);
constexpr double kHeadingTop = Px(6);
constexpr double kHeadingHeight = Px(14);
constexpr double kListsTop = Px(24);
constexpr double kSplitterHeight = Px(8);
constexpr double kLeastTracksHeight = Px(36);
constexpr double kRowHeight = Px(28);
constexpr double kControlsHeight = Px(80);
constexpr double kWideCueColumn = Px(272);
constexpr double kNarrowCueColumn = Px(102);
constexpr double kCueButton = Px(86);
constexpr double kTrackCountWidth = Px(112);
constexpr double kVolumeWidth = Px(130);
constexpr double kTimeWidth = Px(110);
constexpr double kTitleLeft = Px(108);
constexpr double kSpeedLabelWidth = Px(44);

void Fill(Control& control, const Control& container) {
    control.Move(0, 0, container.Width(), container.Height());
}

void Centre(Control& control, const Control& container) {
    control.Move((container.Width() - control.Width()) / 2, (container.Height() - control.Height()) / 2,
                 control.Width(), control.Height());
}

void SameRect(Control& control, const Control& model) {
    control.Move(model.Left(), model.Top(), model.Width(), model.Height());
}

template <class... Twins>
void PlaceTwins(double left, double top, double width, double height, Twins&... twins) {
    (twins.Move(left, top, width, height), ...);
}

}  // namespace

BrowserLayout::BrowserLayout(BrowserForm& window, const web::WebState& tabs, LayoutPartners& partners)
    : window_(window), tabs_(tabs), partners_(partners) {}

void BrowserLayout::Form_Resize() {
    // The spring-back and the click of the stop button change the window once more; one run is enough for
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
    partners_.RestoreBars();
    PlaceAddToPlaylist();
    PlaceTaskPanel();
    if (partners_.IsPlayerStopped()) partners_.StopPlayer();
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

void BrowserLayout::PlaceFavouritesButton() {
    Control& button = window_.favourites.cmdFavs;
    button.Move(IsPanelOpen() ? 2760 : 120, web::kPageTop, Px(13), window_.Height() - (web::kPageTop + 900));
}

void BrowserLayout::PlaceBrowsers() {
    const double left = IsPanelOpen() ? 3000 : 375;
    const double width = window_.Width() - (IsPanelOpen() ? 3275 : 595);
    auto& browsers = window_.web.tabs.Browser;
    for (int i = 0; i < browsers.Count(); ++i) {
        browsers(i).Move(left, web::kPageTop, width, window_.favourites.cmdFavs.Height());
    }
}

void BrowserLayout::PlaceAddressRow() {
    auto& row = window_.web.address;
    row.cmbAddress.SetWidth(window_.Width() - (4500 + row.cmbAddress.Left()));
    row.txtAddress.SetLeft(row.cmbAddress.Left());
    row.txtAddress.SetWidth(row.cmbAddress.Width() - 250);
}

void BrowserLayout::PlaceRefreshControls() {
    constexpr double kTop = web::kAddressRowTop;
    constexpr double kHeight = web::kAddressRowHeight;
    auto& refresh = window_.web.refresh;
    Control& button = window_.web.navigation.lblRefresh2;
    PlaceTwins(window_.web.address.cmbAddress.Right() + 120, kTop + Px(6), Px(16), Px(16), refresh.imgCheck,
               refresh.imgCheckChecked);
    const double caption = refresh.imgCheck.Right() + Px(5);
    refresh.lblRefresh1.Move(caption, kTop + Px(5), Px(32), Px(18));
    button.Move(caption + 520, kTop, Px(84), kHeight);
    refresh.txtRefresh.Move(caption + 1920, kTop, Px(42), kHeight);
    window_.web.help.imgHelp.Move(window_.Width() - Px(42), kTop, Px(28), Px(28));
}

void BrowserLayout::PlaceMusicPane() {
    Control& pane = window_.chrome.fraMusicTab;
    if (pane.Visible()) SameRect(pane, CurrentBrowser());
    Fill(window_.chrome.imgMusicTabBG, pane);
    Fill(window_.chrome.lblMusicBG, pane);
    window_.player.splitter.lblSlider.Move(kGap, window_.player.splitter.lblSlider.Top(), ListsWidth(),
                                           kSplitterHeight);
}

void BrowserLayout::PlaceLibraryLists() {
    auto& lists = window_.library.lists;
    const double height = (window_.chrome.fraMusicTab.Height() - 480) / 2;
    const double playlists = (ListsWidth() - Px(6)) * 0.445;
    const double artists_left = kGap + playlists + Px(6);
    const bool shown = !IsJustTracks();
    for (Control* control :
         {static_cast<Control*>(&lists.lblPlayLists), static_cast<Control*>(&lists.lblArtists),
          static_cast<Control*>(&window_.player.splitter.lblSlider)}) {
        control->SetVisible(shown);
    }
    lists.lblPlayLists.Move(kGap, kHeadingTop, playlists, kHeadingHeight);
    lists.lstPlayLists.Move(kGap, kListsTop, playlists, height);
    lists.lblArtists.Move(artists_left, kHeadingTop, ListsWidth() - playlists - Px(6), kHeadingHeight);
    lists.lstArtists.Move(artists_left, kListsTop, ListsWidth() - playlists - Px(6), height);
    window_.player.splitter.lblSlider.SetTop(lists.lstArtists.Bottom());
    PlaceTransport();
    PlaceBelowSplitter();
}

void BrowserLayout::PlaceBelowSplitter() {
    if (!IsJustTracks()) KeepSplitterAboveTracks();
    PlaceSearchRow();
    PlaceTracks();
}

// The splitter's own limits leave no place for the search row below it.
void BrowserLayout::KeepSplitterAboveTracks() {
    auto& lists = window_.library.lists;
    Control& splitter = window_.player.splitter.lblSlider;
    const double below = kSplitterHeight + kRowHeight + kTightGap + kLeastTracksHeight + kTightGap;
    const double lowest = window_.player.transport.fraControls.Top() - below;
    if (splitter.Top() <= lowest) return;
    splitter.SetTop(lowest);
    lists.lstArtists.SetHeight(lowest - lists.lstArtists.Top());
    lists.lstPlayLists.SetHeight(lists.lstArtists.Height());
}

void BrowserLayout::PlaceSearchRow() {
    auto& search = window_.library.search;
    auto& mode = window_.player.transport;
    auto& playlists = window_.library.playlists;
    const double top = IsJustTracks() ? kHeadingTop : window_.player.splitter.lblSlider.Bottom();
    const double right = kGap + ListsWidth();
    PlaceTwins(right - Px(34), top, Px(34), kRowHeight, playlists.imgRemoveSong, playlists.imgRemoveSongOver);
    PlaceTwins(playlists.imgRemoveSong.Left() - kGap - Px(58), top, Px(58), kRowHeight, mode.imgRepeat,
               mode.imgRepeatOver, mode.imgNoRepeat, mode.imgNoRepeatOver);
    search.fraSearch.Move(kGap, top, PlaceTrackCount(top) - kGap, kRowHeight);
    const double button = search.fraSearch.Width() < Px(260) ? 0 : Px(112);
    search.cmdAddToLibrary.SetVisible(button > 0);
    search.cmdAddToLibrary.Move(search.fraSearch.Width() - button, 0, button, kRowHeight);
    search.txtSearch.Move(0, 0, search.fraSearch.Width() - (button > 0 ? button + kGap : 0), kRowHeight);
}

// Where the search ends, a gap before the count; the search needs the place of the count in a narrow pane.
double BrowserLayout::PlaceTrackCount(double top) {
    Control& count = window_.library.lists.lblTrackCount;
    const double right = window_.player.transport.imgRepeat.Left() - kGap;
    const bool fits = right - kTrackCountWidth - 2 * kGap >= Px(320);
    count.SetVisible(fits);
    count.Move(right - kTrackCountWidth, top, kTrackCountWidth, kRowHeight);
    return fits ? count.Left() - kGap : right;
}

void BrowserLayout::PlaceTracks() {
    const double top = window_.library.search.fraSearch.Bottom() + kTightGap;
    const double bottom = window_.player.transport.fraControls.Top() - kTightGap;
    window_.library.lists.lstTracks.Move(kGap, top, ListsWidth(), bottom - top);
}

void BrowserLayout::PlaceTransport() {
    Control& pane = window_.chrome.fraMusicTab;
    window_.player.transport.fraControls.Move(120, pane.Height() - kControlsHeight - kGap, pane.Width() - 240,
                                              kControlsHeight);
}

void BrowserLayout::PlaceControlsGround() {
    auto& transport = window_.player.transport;
    Fill(transport.imgControlsBG, transport.fraControls);
    const double top = IsNarrow() ? Px(4) : Px(8);
    const double right = IsNarrow() ? transport.fraControls.Width() - kGap
                                    : transport.fraControls.Width() - kVolumeWidth - 3 * kGap;
    transport.picTrackTitle.Move(kTitleLeft, top, right - kTitleLeft - kTimeWidth - Px(6), Px(24));
    transport.picSongProgress.Move(kTitleLeft, top + (IsNarrow() ? Px(28) : Px(30)), right - kTitleLeft,
                                   Px(16));
}

void BrowserLayout::PlaceFavouritesPanel() {
    auto& panel = window_.favourites;
    Control& copyright = window_.chrome.lblCopyright;
    copyright.Move(Px(14), window_.Height() - 1400, 2400, Px(34));
    // With the panel closed the page or the music pane takes its place.
    copyright.SetVisible(IsPanelOpen());
    panel.fraFavs.Move(120, web::kPageTop, 2760 - 120 - Px(4), copyright.Top() - web::kPageTop);
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
    const double top = bottom - Px(26);
    PlaceTwins(kGap, top, Px(50), Px(26), panel.imgAdd, panel.imgAddOver);
    PlaceTwins(panel.imgAdd.Right() + Px(2), top, Px(54), Px(26), panel.imgdelete, panel.imgdeleteover);
    PlaceTwins(panel.imgdelete.Right() + Px(2), top, Px(48), Px(26), panel.imgView, panel.imgViewOver);
}

void BrowserLayout::PlaceVideoPane() {
    auto& panel = window_.favourites;
    const double top = panel.fraFavs.Top() + panel.imgAdd.Bottom() + kGap;
    window_.player.video.picVideo.Move(panel.fraFavs.Left() + kGap, top, panel.fraFavs.Width() - 2 * kGap,
                                       panel.fraFavs.Bottom() - kGap - top);
    if (!partners_.IsVideoAttached()) return;
    partners_.CloseHole();
    partners_.MakeHole();
}

void BrowserLayout::PlacePaneChains() {
    auto& transport = window_.player.transport;
    transport.picRunningTime.Move(transport.picTrackTitle.Right() + Px(6), transport.picTrackTitle.Top(),
                                  kTimeWidth, Px(24));
    PlaceVolume();
    PlaceCueColumn();
    const double buttons = IsNarrow() ? Px(6) : Px(18);
    PlaceTwins(Px(12), buttons, Px(44), Px(44), transport.imgPlay, transport.imgPlayOver, transport.imgPause,
               transport.imgPauseOver);
    PlaceTwins(Px(64), buttons + Px(5), Px(34), Px(34), transport.imgStop, transport.imgStopOver);
    PlaceSpeedRow();
}

// The row below the song bar. A narrow panel has no room for all of it beside one another: the attach button
// goes below the play button, the notices below the speed.
void BrowserLayout::PlaceSpeedRow() {
    auto& levels = window_.player.levels;
    auto& transport = window_.player.transport;
    Control& attach = window_.player.video.cmdAttachVid;
    const double top = IsNarrow() ? Px(51) : Px(60);
    levels.lblSpeedLabel.Move(kTitleLeft, top, kSpeedLabelWidth, kHeadingHeight);
    levels.picSpeed.Move(levels.lblSpeedLabel.Right(), top, IsNarrow() ? Px(80) : Px(180), Px(13));
    if (IsNarrow()) {
        attach.Move(kGap, Px(56), Px(92), Px(19));
        transport.lblNoFile.Move(kTitleLeft, Px(65), Px(88), kHeadingHeight);
    } else {
        attach.Move(levels.picSpeed.Right() + kGap, Px(58), Px(72), Px(19));
        const double left = attach.Right() + kGap;
        transport.lblNoFile.Move(left, Px(58), std::min(Px(160), transport.fraControls.Width() - kGap - left),
                                 Px(18));
    }
}

void BrowserLayout::PlaceVolume() {
    auto& levels = window_.player.levels;
    const double left = window_.player.transport.fraControls.Width() - kVolumeWidth - kGap - Px(4);
    window_.chrome.lblVolumeLabel.SetVisible(!IsNarrow());
    window_.chrome.lblVolumeLabel.Move(left, Px(14), Px(60), kHeadingHeight);
    levels.picVolume.Move(left, IsNarrow() ? Px(55) : Px(35), player::kFullVolumeLeft + Px(10), Px(22));
    if (IsNarrow()) {
        levels.lblMute.Move(kTitleLeft + Px(90), Px(65), Px(38), kHeadingHeight);
    } else {
        levels.lblMute.Move(left + Px(70), Px(12), Px(60), Px(18));
    }
}

void BrowserLayout::PlaceCueColumn() {
    auto& queue = window_.player.queue;
    auto& playlists = window_.library.playlists;
    const double left = CueColumnLeft();
    const double width = CueColumnWidth();
    const bool side_by_side = width >= kWideCueColumn;
    const double bottom = window_.library.lists.lstTracks.Bottom();
    const double step_x = side_by_side ? (width - kCueButton) / 2 : 0;
    const double step_y = side_by_side ? 0 : kRowHeight + Px(4);
    const double top = bottom - kRowHeight - 2 * step_y;
    const double button = side_by_side ? kCueButton : width;
    PlaceTwins(left, top, button, kRowHeight, queue.imgCueSong, queue.imgCueSongOver);
    PlaceTwins(left + step_x, top + step_y, button, kRowHeight, queue.imgUnCue, queue.imgUnCueOver);
    PlaceTwins(left + 2 * step_x, top + 2 * step_y, button, kRowHeight, playlists.imgAddSong,
               playlists.imgAddSongOver);
    queue.lblCuedLabel.Move(left, kHeadingTop, width, kHeadingHeight);
    queue.lstCuedSongs.Move(left, kListsTop, width, top - kGap - kListsTop);
}

void BrowserLayout::PlaceAddToPlaylist() {
    auto& panel = window_.library.playlists;
    SameRect(panel.fraAddToPlaylist, window_.chrome.fraMusicTab);
    panel.SizeCenter(panel.fraAddToPlaylist.Width(), panel.fraAddToPlaylist.Height());
    Centre(panel.fraPlayListCenter, panel.fraAddToPlaylist);
    Fill(panel.imgBG2, panel.fraAddToPlaylist);
}

void BrowserLayout::PlaceTaskPanel() {
    auto& task = window_.library.task;
    SameRect(task.fraTask, CurrentBrowser());
    task.SizeCenter(task.fraTask.Width());
    Centre(task.fraTaskCenter, task.fraTask);
    Fill(task.imgTaskBG, task.fraTask);
    SameRect(window_.web.tabs.BrowserBG, CurrentBrowser());
}

void BrowserLayout::PlaceAddressBox() {
    const Control& box = window_.web.address.cmbAddress;
    window_.web.address.txtAddress.Move(box.Left() + Px(2), box.Top() + Px(2), box.Width() - 320,
                                        box.Height() - 50);
}

bool BrowserLayout::IsPanelOpen() const {
    return window_.favourites.cmdFavs.Caption() == "<";
}

bool BrowserLayout::IsJustTracks() const {
    return window_.menus.mnuMusicJustTracks.Checked();
}

bool BrowserLayout::IsNarrow() const {
    return window_.chrome.fraMusicTab.Width() < Px(560);
}

double BrowserLayout::CueColumnWidth() const {
    return window_.chrome.fraMusicTab.Width() < Px(720) ? kNarrowCueColumn : kWideCueColumn;
}

double BrowserLayout::CueColumnLeft() const {
    return kGap + ListsWidth() + kGap;
}

double BrowserLayout::ListsWidth() const {
    return window_.chrome.fraMusicTab.Width() - CueColumnWidth() - 3 * kGap;
}

controls::Control& BrowserLayout::CurrentBrowser() {
    auto& browsers = window_.web.tabs.Browser;
    return browsers(tabs_.currentbrowser < browsers.Count() ? tabs_.currentbrowser : 0);
}

}  // namespace window
