#include "web/WebCommandsRoom.h"

#include "base/Text.h"
#include "web/Addresses.h"

namespace web {

WebCommandsRoom::WebCommandsRoom(HelpControls& controls, WebCommandsMenu& menu, AddressRoom& opener,
                                 TabRoom& tabs, ConnectionGuard& guard, roles::Window& window,
                                 roles::NowPlaying& now_playing, ports::Dialogs& dialogs)
    : menu_(menu),
      opener_(opener),
      tabs_(tabs),
      guard_(guard),
      window_(window),
      now_playing_(now_playing),
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

void WebCommandsRoom::OpenInFront(std::string_view address) {
    opener_.OpenTab(address);
    tabs_.BringForward(tabs_.Count() - 1);
}

void WebCommandsRoom::OpenWebsite() {
    const std::string answer =
        dialogs_.InputBox("Which website would you like to open?", "Open Website", "http://");
    if (!answer.empty()) opener_.OpenTab(answer);
}

void WebCommandsRoom::OpenMakerHome() {
    if (guard_.Passes()) opener_.OpenTab(MakerAddress(kHomeQuery));
}

void WebCommandsRoom::OpenUpdates() {
    if (guard_.Passes()) opener_.OpenTab(MakerAddress(kUpdatesQuery));
}

void WebCommandsRoom::SearchArtistHomePage() {
    opener_.OpenTab(SearchAddress(ArtistWords(), "+Official+Home+Page"));
}

void WebCommandsRoom::SearchArtistImages() {
    opener_.OpenTab(ImagesAddress(ArtistWords()));
}

std::string WebCommandsRoom::ArtistWords() const {
    const std::string caption = now_playing_.TrackCaption();
    return SearchWords(base::Left(caption, base::InStr(caption, " - ")));
}

void WebCommandsRoom::mnuWebSearch_Click() {
    if (!guard_.Passes()) return;
    const std::string answer = dialogs_.InputBox("What are you searching for?", "Web Search");
    if (!answer.empty()) opener_.OpenTab(SearchAddress(SearchWords(answer)));
}

void WebCommandsRoom::mnuLyricSearch_Click() {
    if (!guard_.Passes()) return;
    opener_.OpenTab(SearchAddress(SearchWords(now_playing_.TrackCaption()), "+Lyrics"));
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
        window_.PopupMenu(menu_.mnuHelp);
    } else {
        OpenInFront(MakerAddress(kHelpQuery));
    }
}

}  // namespace web
