// The music pane: the library's lists above and below the splitter, the search row, and the cue column beside
// them.

#include <algorithm>

#include "window/BrowserLayout.h"
#include "window/LayoutMeasures.h"

namespace window {
namespace {

using controls::Control;
using controls::MoveTwins;
using controls::Px;

constexpr double kSplitterHeight = Px(8);
constexpr double kLeastTracksHeight = Px(36);
constexpr double kLeastListsHeight = Px(20);
constexpr double kRowHeight = Px(28);
// Above and below the tracks: at the smallest window every pixel counts there.
constexpr double kTightGap = Px(6);
constexpr double kTrackCountWidth = Px(112);
constexpr double kWideCueColumn = Px(272);
constexpr double kNarrowCueColumn = Px(102);
constexpr double kCueButton = Px(86);

}  // namespace

void BrowserLayout::PlaceMusicPane() {
    Control& pane = window_.chrome.fraMusicTab;
    if (pane.Visible()) SameRect(pane, CurrentBrowser());
    Fill(window_.chrome.imgMusicTabBG, pane);
    Fill(window_.chrome.lblMusicBG, pane);
}

void BrowserLayout::PlaceLibraryLists() {
    auto& lists = window_.library.lists;
    const double height = (window_.chrome.fraMusicTab.Height() - Px(32)) / 2;
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
    window_.player.splitter.lblSlider.Move(kGap, lists.lstArtists.Bottom(), ListsWidth(), kSplitterHeight);
    PlaceTransport();
    PlaceBelowSplitter();
}

void BrowserLayout::PlaceBelowSplitter() {
    if (!IsJustTracks()) KeepSplitterInPlace();
    PlaceSearchRow();
    PlaceTracks();
}

// The splitter's own limits leave no place for the search row below it, nor, at the top, for the lists above
// it.
void BrowserLayout::KeepSplitterInPlace() {
    auto& lists = window_.library.lists;
    Control& splitter = window_.player.splitter.lblSlider;
    const double below = kSplitterHeight + kRowHeight + kTightGap + kLeastTracksHeight + kTightGap;
    const double lowest = window_.player.transport.fraControls.Top() - below;
    const double highest = lists.lstArtists.Top() + kLeastListsHeight;
    splitter.SetTop(std::min(std::max(splitter.Top(), highest), lowest));
    lists.lstArtists.SetHeight(splitter.Top() - lists.lstArtists.Top());
    lists.lstPlayLists.SetHeight(lists.lstArtists.Height());
}

void BrowserLayout::PlaceSearchRow() {
    auto& search = window_.library.search;
    auto& mode = window_.player.transport;
    auto& playlists = window_.library.playlists;
    const double top = IsJustTracks() ? kHeadingTop : window_.player.splitter.lblSlider.Bottom();
    const double right = kGap + ListsWidth();
    MoveTwins(right - Px(34), top, Px(34), kRowHeight, playlists.imgRemoveSong, playlists.imgRemoveSongOver);
    MoveTwins(playlists.imgRemoveSong.Left() - kGap - Px(58), top, Px(58), kRowHeight, mode.imgRepeat,
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
    MoveTwins(left, top, button, kRowHeight, queue.imgCueSong, queue.imgCueSongOver);
    MoveTwins(left + step_x, top + step_y, button, kRowHeight, queue.imgUnCue, queue.imgUnCueOver);
    MoveTwins(left + 2 * step_x, top + 2 * step_y, button, kRowHeight, playlists.imgAddSong,
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

bool BrowserLayout::IsJustTracks() const {
    return window_.menus.mnuMusicJustTracks.Checked();
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

}  // namespace window
