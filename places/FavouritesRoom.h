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
#include "places/FavouritesTable.h"
#include "places/PlacesMenu.h"
#include "ports/Dialogs.h"
#include "roles/AddressRow.h"
#include "roles/FrontPage.h"
#include "roles/Highlights.h"
#include "roles/Layout.h"
#include "roles/MediaKeys.h"
#include "roles/PageOpener.h"
#include "roles/VideoPane.h"

namespace places {

/// The dialog of the favourites, as the panel uses it. Why: the dialog uses the panel, too.
class FavouritesDialog {
public:
    virtual ~FavouritesDialog() = default;
    /// The Add layout, filled in for a page.
    virtual void OpenToAdd(std::string_view name, std::string_view address) = 0;
    /// The layout that deletes groups.
    virtual void OpenToDelete() = 0;
    /// Shows the dialog as it last was, with this address.
    virtual void OfferAddress(std::string_view address) = 0;
    /// The groups to choose from.
    virtual void ClearGroups() = 0;
    virtual void AddGroup(std::string_view name) = 0;
};

/// What the panel asks of other subjects.
struct FavouritesRoles {
    roles::AddressRow& address;
    roles::PageOpener& opener;
    const roles::FrontPage& page;
    roles::Layout& layout;
    roles::VideoPane& video;
    roles::Highlights& highlights;
    roles::MediaKeys& keys;
};

class FavouritesRoom final {
public:
    FavouritesRoom(FavouritesControls& controls, FavouritesMenu& menu, FavouritesDialog& dialog,
                   FavouritesRoles others, ports::Dialogs& dialogs);

    /// Reads the number of the last row; an empty table leaves the old one.
    void LoadFavs();
    /// `cmdFavs` shows ">".
    bool IsPanelClosed() const;
    /// The click of `cmdFavs`.
    void TogglePanel() { cmdFavs_Click(); }
    /// The click of `imgAddOver`.
    void AddPageInFront() { imgAddOver_Click(); }
    /// Shows or hides the panel; `cmdFavs` stays as it is.
    void ShowFavs(bool shown);
    void DeleteFav();
    void DeleteFavGroup();
    /// Fills the lists of groups and of all favourites, and the dialog's groups, from the table.
    void populatefavs();
    /// The click of `lstFavs`: opens the selected group, closes all of them without a selection.
    void lstFavs_Click();
    /// Empties `lstFavs`.
    void ClearFavourites() { controls_.lstFavs.Clear(); }

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
    FavouritesDialog& dialog_;
    FavouritesRoles others_;
    ports::Dialogs& dialogs_;
    bool favs_alt_shown_ = false;  // outlasts the closing of the panel
    controls::EventClaims claims_;
};

}  // namespace places
