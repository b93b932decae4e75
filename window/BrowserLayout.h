// Where everything in the main window is: no other code knows, and a constructor places nothing that is
// placed here. All numbers are twips, 15 to a pixel.
//
// Form_Resize is a contents function: its steps follow one another as named calls, and later steps build on
// places that earlier ones gave. The steps are in files by topic: PageLayout.cpp, MusicPaneLayout.cpp,
// TransportLayout.cpp, FavouritesLayout.cpp.
#pragma once

#include <functional>

#include "roles/Hole.h"
#include "roles/Layout.h"
#include "roles/PlayerSetup.h"
#include "roles/Transport.h"
#include "roles/VideoPane.h"
#include "web/WebState.h"
#include "window/BrowserForm.h"

namespace window {

/// The smallest size that the window springs back to.
inline constexpr double kSmallestWidth = 9225;
inline constexpr double kSmallestHeight = 7590;

struct LayoutRoles {
    roles::Transport& transport;
    roles::VideoPane& video;
    roles::PlayerSetup& player;
    roles::Hole& hole;
};

class BrowserLayout final : public roles::Layout {
public:
    BrowserLayout(BrowserForm& window, const web::WebState& tabs, const bool& PlayerStopped,
                  LayoutRoles roles);

    void Form_Resize() override;
    /// After the splitter moved: places the search row below it, and the tracks from there down to the
    /// controls.
    void PlaceBelowSplitter() override;
    /// After picVideo was shown or hidden: makes or takes back its space in the favourites panel.
    void PlaceFavouritesPanel() override;

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
    void KeepSplitterInPlace();
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
    const bool& PlayerStopped_;
    LayoutRoles roles_;
    bool resizing_ = false;
};

}  // namespace window
