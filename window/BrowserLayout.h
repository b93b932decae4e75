// Where everything in the main window is: no other code knows, and a constructor places nothing that is
// placed here. All numbers are twips, 15 to a pixel.
//
// Form_Resize is a contents function: its steps follow one another as named calls, and later steps build on
// places that earlier ones gave. The steps are in files by topic: PageLayout.cpp, MusicPaneLayout.cpp,
// TransportLayout.cpp, FavouritesLayout.cpp.
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
    /// The stop flag: nothing is playing.
    virtual bool IsPlayerStopped() const = 0;
    /// The click of imgStopOver.
    virtual void StopPlayer() = 0;
    /// A video or light show is in picVideo, over the hole.
    virtual bool IsVideoAttached() const = 0;
    virtual void MakeHole() = 0;
    virtual void CloseHole() = 0;
    /// Gives the song bar and the speed bar their scales, and their markers the places of their values.
    virtual void RestoreBars() = 0;
};

class BrowserLayout final {
public:
    BrowserLayout(BrowserForm& window, const web::WebState& tabs, LayoutPartners& partners);

    void Form_Resize();
    /// After the splitter moved: places the search row below it, and the tracks from there down to the
    /// controls.
    void PlaceBelowSplitter();
    /// After picVideo was shown or hidden: makes or takes back its space in the favourites panel.
    void PlaceFavouritesPanel();

private:
    void PlaceFormGround();
    bool SpringBackToSmallest();
    void PlaceGround();

    // The page.
    void PlaceBrowsers();
    void PlaceAddressRow();
    void PlaceRefreshControls();
    void PlaceAddressBox();
    void PlaceTaskPanel();
    controls::Control& CurrentBrowser();

    // The music pane.
    void PlaceMusicPane();
    void PlaceLibraryLists();
    void KeepSplitterAboveTracks();
    void PlaceSearchRow();
    double PlaceTrackCount(double top);
    void PlaceTracks();
    void PlaceCueColumn();
    void PlaceAddToPlaylist();
    bool IsJustTracks() const;
    double CueColumnWidth() const;
    double CueColumnLeft() const;
    double ListsWidth() const;

    // The transport.
    void PlaceTransport();
    void PlaceControlsGround();
    void PlacePaneChains();
    void PlaceSpeedRow();
    void PlaceVolume();
    bool IsNarrow() const;

    // The favourites panel.
    void PlaceFavouritesButton();
    void PlaceFavouritesButtons(double bottom);
    void PlaceVideoPane();
    bool IsPanelOpen() const;

    BrowserForm& window_;
    const web::WebState& tabs_;
    LayoutPartners& partners_;
    bool resizing_ = false;
};

}  // namespace window
