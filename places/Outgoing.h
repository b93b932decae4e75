// What history and favourites ask of the rest of the program.
//
// The main window's room implements these with one-line forwarders.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace places {

/// The address row.
class AddressRow {
public:
    virtual ~AddressRow() = default;
    /// Text of `cmbAddress`, and its list.
    virtual std::string Address() const = 0;
    virtual void SetAddress(std::string_view text) = 0;
    virtual void ClearList() = 0;
    virtual void AddToList(std::string_view text) = 0;
    /// Text of `txtAddress`.
    virtual void SetTyped(std::string_view text) = 0;
    /// Text of `cmbType`.
    virtual std::string Mode() const = 0;
    virtual void cmdGo() = 0;
    /// Enter in `cmbAddress`.
    virtual void PressEnter() = 0;
    /// The keyboard goes to `txtAddress`.
    virtual void FocusAddress() = 0;
};

/// The page of the browser `currentbrowser`.
class FrontPage {
public:
    virtual ~FrontPage() = default;
    virtual bool IsPageVisible() const = 0;
    virtual std::string LocationURL() const = 0;
    virtual std::string LocationName() const = 0;
};

/// The music pane's lists: tracks, their ids and their artists in step.
class PlayedSongsView {
public:
    virtual ~PlayedSongsView() = default;
    /// Empties the tracks and the artists, down to the row that stands for all artists.
    virtual void BeginView() = 0;
    /// A track behind the last one; its row shows artist and title without blanks around them.
    virtual void AddSong(std::string_view song_id, std::string_view artist, std::string_view title) = 0;
    /// Lists the artists of the tracks, sorted, each once.
    virtual void EndView() = 0;
};

/// The window around the favourites panel.
class FavouritesWindow {
public:
    virtual ~FavouritesWindow() = default;
    virtual void Form_Resize() = 0;
    virtual void NoMouseOvers() = 0;
    /// The multimedia keys.
    virtual void KeyDown(int key_code, int shift) = 0;
    virtual bool IsVideoAttached() const = 0;
    /// Shows `picVideo` and cuts the hole for it.
    virtual void ShowVideoPane() = 0;
    /// Hides `picVideo` and closes the hole.
    virtual void HideVideoPane() = 0;
    /// Rebuilds every list from the stores.
    virtual void Command1() = 0;
};

/// The dialog of the favourites, as the panel uses it.
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

/// The panel's lists, as the dialog uses them.
class FavouritesLists {
public:
    virtual ~FavouritesLists() = default;
    virtual void populatefavs() = 0;
    /// As a click on `lstFavs`: opens the selected group, closes all of them without a selection.
    virtual void lstFavs_Click() = 0;
    /// Empties `lstFavs`.
    virtual void ClearFavourites() = 0;
};

}  // namespace places
