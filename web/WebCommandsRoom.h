// The commands that open pages. Each puts an address into `cmbAddress` and opens it in a new tab.
#pragma once

#include <string>
#include <string_view>

#include "controls/Event.h"
#include "ports/Dialogs.h"
#include "web/AddressBox.h"
#include "web/AddressRoom.h"
#include "web/ConnectionGuard.h"
#include "web/Outgoing.h"
#include "web/Tabs.h"
#include "web/WebControls.h"
#include "web/WebMenu.h"

namespace web {

class WebCommandsRoom final {
public:
    WebCommandsRoom(HelpControls& controls, WebCommandsMenu& menu, AddressBox& address, AddressOpener& opener,
                    Tabs& tabs, ConnectionGuard& guard, BrowserWindow& window, MusicPlayer& player,
                    ports::Dialogs& dialogs);

    /// Asks for an address and opens it.
    void OpenWebsite();
    /// Opens an address in a new tab.
    void OpenAddress(std::string_view address);
    /// The same under the connection guard: the maker's home page and the page of updates.
    void OpenMakerHome();
    void OpenUpdates();
    /// Searches for the artist of the current song: what stands before " - " in its caption.
    void SearchArtistHomePage();
    void SearchArtistImages();

private:
    void mnuWebSearch_Click();
    void mnuLyricSearch_Click();
    void mnuWebsite_Click();
    void mnuWebTab_Click();
    void mnuNewTabTab_Click();
    void mnuOnlineHelp_Click();
    void mnuCheckUpdates_Click();
    void mnuRefreshAll_Click();
    void imgHelp_MouseUp(int button);

    void OpenInFront(std::string_view address);
    std::string ArtistWords() const;

    AddressBox& address_;
    AddressOpener& opener_;
    Tabs& tabs_;
    ConnectionGuard& guard_;
    BrowserWindow& window_;
    MusicPlayer& player_;
    ports::Dialogs& dialogs_;
    controls::EventClaims claims_;
};

}  // namespace web
