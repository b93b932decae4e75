// The commands that open pages, each in a new tab.
#pragma once

#include <string>
#include <string_view>

#include "controls/Event.h"
#include "ports/Dialogs.h"
#include "roles/MakerPages.h"
#include "roles/NowPlaying.h"
#include "roles/Window.h"
#include "web/AddressRoom.h"
#include "web/ConnectionGuard.h"
#include "web/TabRoom.h"
#include "web/WebControls.h"
#include "web/WebMenu.h"

namespace web {

class WebCommandsRoom final : public roles::MakerPages {
public:
    WebCommandsRoom(HelpControls& controls, WebCommandsMenu& menu, AddressRoom& opener, TabRoom& tabs,
                    ConnectionGuard& guard, roles::Window& window, roles::NowPlaying& now_playing,
                    ports::Dialogs& dialogs);

    // roles::MakerPages
    void OpenMakerHome() override;
    void OpenUpdates() override;

    /// Searches for the artist of the current song, which is what comes before " - " in its caption. Kept for
    /// menu entries; none calls them yet.
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

    /// Asks for an address and opens it.
    void OpenWebsite();
    void OpenInFront(std::string_view address);
    std::string ArtistWords() const;

    WebCommandsMenu& menu_;
    AddressRoom& opener_;
    TabRoom& tabs_;
    ConnectionGuard& guard_;
    roles::Window& window_;
    roles::NowPlaying& now_playing_;
    ports::Dialogs& dialogs_;
    controls::EventClaims claims_;
};

}  // namespace web
