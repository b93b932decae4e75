// The favourites panel: groups with their favourites, or all favourites in one list.
//
// A row of the table whose FriendName is blank is a group; any other is a favourite of the group it names,
// its FriendName carrying the prefix "  - ". Walks over the table never stop at a match: a name that stands
// in two groups acts for both rows.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "controls/Event.h"
#include "places/FavouritesControls.h"
#include "places/Outgoing.h"
#include "places/PlacesMenu.h"
#include "ports/Dialogs.h"

namespace places {

/// What stands in front of a favourite's name, in the table and in the lists.
inline constexpr std::string_view kFavouritePrefix = "  - ";

/// What the panel asks of others.
struct FavouritesNeighbours {
    AddressRow& address;
    FrontPage& page;
    FavouritesWindow& window;
    FavouritesDialog& dialog;
};

class FavouritesRoom final : public FavouritesLists {
public:
    FavouritesRoom(FavouritesControls& controls, FavouritesMenu& menu, FavouritesNeighbours neighbours,
                   ports::Dialogs& dialogs);

    /// Reads the number of the last row; an empty table leaves the old one.
    void LoadFavs();
    /// Shows or hides the panel; `cmdFavs` stays as it is.
    void ShowFavs(bool shown);
    void DeleteFav();
    void DeleteFavGroup();

    // FavouritesLists
    void populatefavs() override;
    void lstFavs_Click() override;
    void ClearFavourites() override { controls_.lstFavs.Clear(); }

private:
    void cmdFavs_Click();
    void lstFavs_DblClick();
    void lstFavsAlt_Click();
    void lstFavsAlt_DblClick();
    void lstFavsAlt_KeyDown(int key_code, int shift);
    void List_OLEDragDrop(const controls::DropData& data);
    void imgAddOver_Click();
    void imgdeleteover_Click();
    void imgViewOver_Click();
    void mnuRemoveFav_Click();
    void mnuViewFavs_Click();

    void ClaimPanel();
    void ClaimMenu(FavouritesMenu& menu);
    void SwitchList();
    void OpenPanel();
    void ClosePanel();
    std::vector<std::string> AddressesOf(std::string_view line);
    void GoTo(const std::string& line);
    void PrepareAddress(const std::string& line);
    void OpenGroup(const std::string& group);
    void SortAllRows();
    void PickRowsOf(std::string_view group);

    FavouritesControls& controls_;
    FavouritesNeighbours neighbours_;
    ports::Dialogs& dialogs_;
    bool favs_alt_shown_ = false;  // outlasts the closing of the panel
    controls::EventClaims claims_;
};

}  // namespace places
