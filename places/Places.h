// History and favourites: owns their rooms and hands out what they answer for other subjects.
#pragma once

#include <string>
#include <string_view>

#include "places/AddFavouriteForm.h"
#include "places/AddFavouriteRoom.h"
#include "places/FavouritesControls.h"
#include "places/FavouritesExchange.h"
#include "places/FavouritesRoom.h"
#include "places/HistoryRoom.h"
#include "places/PlacesMenu.h"
#include "places/SuggestionsRoom.h"
#include "ports/Dialogs.h"
#include "ports/EventLoop.h"
#include "ports/PageEngine.h"
#include "roles/AddressRow.h"
#include "roles/Favourites.h"
#include "roles/FrontPage.h"
#include "roles/Highlights.h"
#include "roles/History.h"
#include "roles/Layout.h"
#include "roles/MediaKeys.h"
#include "roles/PageOpener.h"
#include "roles/Suggestions.h"
#include "roles/TrackLists.h"
#include "roles/TrackView.h"
#include "roles/VideoPane.h"
#include "roles/Window.h"
#include "store/DataSource.h"

namespace places {

/// The windows that show history and favourites, and the songs that the history names.
struct PlacesWindows {
    FavouritesControls& favourites;
    HistoryControls& history;
    PlacesMenu& menu;
    AddFavouriteForm& add;
    store::DataSource& datSong;
};

struct PlacesState {
    const bool& Save_History;
    const bool& mainclose;
};

struct PlacesRoles {
    roles::AddressRow& address;
    roles::PageOpener& opener;
    const roles::FrontPage& page;
    roles::TrackLists& lists;
    roles::TrackView& played;
    roles::Layout& layout;
    roles::VideoPane& video;
    roles::Highlights& highlights;
    roles::MediaKeys& keys;
    roles::Window& window;
};

/// Where the tables are.
struct PlacesStores {
    store::Stores& stores;
    std::string folder;  ///< the application folder
};

struct PlacesPorts {
    ports::Dialogs& dialogs;
    ports::EventLoop& loop;
    ports::PageEngine& pages;
};

class Places final : private roles::Favourites {
public:
    Places(PlacesWindows windows, PlacesState state, PlacesRoles others, PlacesPorts ports,
           const PlacesStores& stores);
    Places(const Places&) = delete;
    Places& operator=(const Places&) = delete;

    roles::History& History() { return history_; }
    roles::Favourites& Favourites() { return *this; }
    /// From and for other browsers.
    FavouritesExchange& Exchange() { return exchange_; }
    roles::Suggestions& Suggestions() { return suggestions_; }

private:
    // roles::Favourites
    void LoadFavs() override { panel_.LoadFavs(); }
    void SettleAtStart() override { dialog_.SettleAtStart(); }
    bool IsPanelClosed() const override { return panel_.IsPanelClosed(); }
    void TogglePanel() override { panel_.TogglePanel(); }
    void AddPageInFront() override { panel_.AddPageInFront(); }

    HistoryRoom history_;
    AddFavouriteRoom dialog_;
    FavouritesRoom panel_;
    FavouritesExchange exchange_;
    SuggestionsRoom suggestions_;
};

}  // namespace places
