#include "web/WebCommandsRoom.h"

#include "base/Text.h"
#include "web/Addresses.h"

namespace web {

WebCommandsRoom::WebCommandsRoom(HelpControls& controls, WebCommandsMenu& menu, AddressBox& address,
                                 AddressOpener& opener, Tabs& tabs, ConnectionGuard& guard,
                                 BrowserWindow& window, MusicPlayer& player, ports::Dialogs& dialogs)
    : address_(address),
      opener_(opener),
      tabs_(tabs),
      guard_(guard),
      window_(window),
      player_(player),
      dialogs_(dialogs) {
    claims_.Claim(controls.imgHelp.MouseUp,
                  [this](int button, int, double, double) { imgHelp_MouseUp(button); });
    claims_.Claim(menu.mnuWebSearch.Click, [this] { mnuWebSearch_Click(); });
    claims_.Claim(menu.mnuLyricSearch.Click, [this] { mnuLyricSearch_Click(); });
    claims_.Claim(menu.mnuWebsite.Click, [this] { mnuWebsite_Click(); });
    claims_.Claim(menu.mnuWebTab.Click, [this] { mnuWebTab_Click(); });
    claims_.Claim(menu.mnuNewTabTab.Click, [this] { mnuNewTabTab_Click(); });
    claims_.Claim(menu.mnuOnlineHelp.Click, [this] { mnuOnlineHelp_Click(); });
    claims_.Claim(menu.mnuCheckUpdates.Click, [this] { mnuCheckUpdates_Click(); });
    claims_.Claim(menu.mnuRefreshAll.Click, [this] { mnuRefreshAll_Click(); });
}

void WebCommandsRoom::OpenAddress(std::string_view address) {
    address_.SetAddress(address);
    opener_.cmdGo();
}

void WebCommandsRoom::OpenInFront(std::string_view address) {
    OpenAddress(address);
    tabs_.BringForward(tabs_.Count() - 1);
}

void WebCommandsRoom::OpenWebsite() {
    const std::string answer =
        dialogs_.InputBox("Which website would you like to open?", "Open Website", "http://");
    if (!answer.empty()) OpenAddress(answer);
}

void WebCommandsRoom::OpenMakerHome() {
    if (guard_.Passes()) OpenAddress(MakerAddress(kHomeQuery));
}

void WebCommandsRoom::OpenUpdates() {
    if (guard_.Passes()) OpenAddress(MakerAddress(kUpdatesQuery));
}

void WebCommandsRoom::SearchArtistHomePage() {
    OpenAddress(SearchAddress(ArtistWords(), "+Official+Home+Page"));
}

void WebCommandsRoom::SearchArtistImages() {
    OpenAddress(ImagesAddress(ArtistWords()));
}

std::string WebCommandsRoom::ArtistWords() const {
    const std::string caption = player_.TrackCaption();
    return SearchWords(base::Left(caption, base::InStr(caption, " - ")));
}

void WebCommandsRoom::mnuWebSearch_Click() {
    if (!guard_.Passes()) return;
    const std::string answer = dialogs_.InputBox("What are you searching for?", "Web Search");
    if (!answer.empty()) OpenAddress(SearchAddress(SearchWords(answer)));
}

void WebCommandsRoom::mnuLyricSearch_Click() {
    if (!guard_.Passes()) return;
    OpenAddress(SearchAddress(SearchWords(player_.TrackCaption()), "+Lyrics"));
}

void WebCommandsRoom::mnuWebsite_Click() {
    if (guard_.Passes()) OpenWebsite();
}

void WebCommandsRoom::mnuWebTab_Click() {
    if (guard_.Passes()) OpenWebsite();
}

void WebCommandsRoom::mnuNewTabTab_Click() {
    if (guard_.Passes()) OpenWebsite();
}

void WebCommandsRoom::mnuOnlineHelp_Click() {
    if (guard_.Passes()) imgHelp_MouseUp(controls::kLeftButton);
}

void WebCommandsRoom::mnuCheckUpdates_Click() {
    if (guard_.Passes()) OpenInFront(MakerAddress(kUpdatesQuery));
}

void WebCommandsRoom::mnuRefreshAll_Click() {
    for (int i = 1; i < tabs_.Count(); ++i) {
        if (tabs_.IsShown(i)) tabs_.Page(i).RefreshPage();
    }
}

void WebCommandsRoom::imgHelp_MouseUp(int button) {
    if (button == controls::kRightButton) {
        window_.PopupHelpMenu();
    } else {
        OpenInFront(MakerAddress(kHelpQuery));
    }
}

}  // namespace web
