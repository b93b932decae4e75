// Where everything in the main window stands: the one place that knows. All numbers are twips, 15 to a pixel.
//
// Form_Resize is a contents function: its steps follow one another as named calls, and later steps build on
// places that earlier ones gave.
#pragma once

#include <functional>

#include "web/WebState.h"
#include "window/BrowserForm.h"

namespace window {

/// The smallest size that the window springs back to.
inline constexpr double kSmallestWidth = 9225;
inline constexpr double kSmallestHeight = 7590;

/// What the layout asks of the rooms.
class LayoutPartners {
public:
    virtual ~LayoutPartners() = default;
    /// The stop flag: nothing plays.
    virtual bool IsPlayerStopped() const = 0;
    /// The click of imgStopOver.
    virtual void StopPlayer() = 0;
    /// A video or light show stands in picVideo, over the hole.
    virtual bool IsVideoAttached() const = 0;
    virtual void MakeHole() = 0;
    virtual void CloseHole() = 0;
    /// Gives the song bar and the speed bar their scales, and their markers the places they stand for.
    virtual void RestoreBars() = 0;
};

class BrowserLayout final {
public:
    BrowserLayout(BrowserForm& window, const web::WebState& tabs, LayoutPartners& partners);

    void Form_Resize();
    /// After the splitter moved: the search row under it, the tracks from there down to the controls.
    void PlaceBelowSplitter();
    /// After picVideo came or went: its room in the favourites panel.
    void PlaceFavouritesPanel();

private:
    void PlaceFormGround();
    bool SpringBackToSmallest();
    void PlaceGround();
    void PlaceFavouritesButton();
    void PlaceBrowsers();
    void PlaceAddressRow();
    void PlaceRefreshControls();
    void PlaceMusicPane();
    void PlaceLibraryLists();
    void KeepSplitterAboveTracks();
    void PlaceSearchRow();
    double PlaceTrackCount(double top);
    void PlaceTracks();
    void PlaceTransport();
    void PlaceControlsGround();
    void PlaceFavouritesButtons(double bottom);
    void PlaceVideoPane();
    void PlacePaneChains();
    void PlaceSpeedRow();
    void PlaceVolume();
    void PlaceCueColumn();
    void PlaceAddToPlaylist();
    void PlaceTaskPanel();
    void PlaceAddressBox();

    bool IsPanelOpen() const;
    bool IsJustTracks() const;
    bool IsNarrow() const;
    double CueColumnWidth() const;
    double CueColumnLeft() const;
    double ListsWidth() const;
    controls::Control& CurrentBrowser();

    BrowserForm& window_;
    const web::WebState& tabs_;
    LayoutPartners& partners_;
    bool resizing_ = false;
};

}  // namespace window
