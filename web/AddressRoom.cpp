#include "web/AddressRoom.h"

#include <algorithm>
#include <array>

#include "base/Text.h"
#include "web/Addresses.h"

namespace web {

namespace {

constexpr std::size_t kShortestMediaText = 5;

/// What makes a text look like a web address to the "File" mode.
constexpr std::array<std::string_view, 7> kAddressParts{".com", ".net", ".co.uk", ".org",
                                                        ".php", ".asp", ".htm"};

/// Extensions that are played when they are dropped on the address row.
constexpr std::array<std::string_view, 10> kDroppedMedia{"mpg", "mpeg", "mp3", "mid",  "wav",
                                                         "wma", "wmv",  "avi", "midi", "peg"};

bool LooksLikeAddress(std::string_view text) {
    const std::string_view start = base::Left(text, 4);
    if (start == "http" || start == "www.") return true;
    return std::any_of(kAddressParts.begin(), kAddressParts.end(),
                       [text](std::string_view part) { return base::Contains(text, part); });
}

std::string_view WithoutLast(std::string_view text, std::size_t count) {
    const std::size_t length = base::Len(text);
    return base::Left(text, length > count ? length - count : 0);
}

}  // namespace

AddressRoom::AddressRoom(AddressControls& controls, WebState& state, AddressBox& address, Tabs& tabs,
                         AddressPartners partners)
    : controls_(controls), state_(state), address_(address), tabs_(tabs), partners_(partners) {
    claims_.Claim(controls_.cmbType.Click, [this] { cmbType_Click(); });
    claims_.Claim(controls_.cmbType.KeyDown, [this](int key, int shift) { cmbType_KeyDown(key, shift); });
    claims_.Claim(controls_.cmbAddress.Click, [this] { cmbAddress_Click(); });
    claims_.Claim(controls_.cmbAddress.KeyDown,
                  [this](int key, int shift) { cmbAddress_KeyDown(key, shift); });
    claims_.Claim(controls_.cmbAddress.OLEDragDrop,
                  [this](const controls::DropData& data, double, double) { cmbAddress_OLEDragDrop(data); });
    claims_.Claim(controls_.txtAddress.KeyDown,
                  [this](int key, int shift) { txtAddress_KeyDown(key, shift); });
    claims_.Claim(controls_.txtAddress.OLEDragDrop,
                  [this](const controls::DropData& data, double, double) { txtAddress_OLEDragDrop(data); });
}

void AddressRoom::EnterAddress() {
    cmbAddress_KeyDown(controls::kKeyEnter, 0);
}

void AddressRoom::EnterTyped() {
    txtAddress_KeyDown(controls::kKeyEnter, 0);
}

void AddressRoom::txtAddress_KeyDown(int key_code, int shift) {
    address_.SetAddress(address_.Typed());
    cmbAddress_KeyDown(key_code, shift);
}

void AddressRoom::cmbAddress_Click() {
    address_.SetTyped(address_.Address());
}

void AddressRoom::cmbAddress_KeyDown(int key_code, int shift) {
    state_.ReloadLibraryAfterKey = false;
    if (key_code == controls::kKeyEnter) {
        if (Enter() == Handled::Wholly) return;
        address_.SetTyped("");
        if (!partners_.session.IsLoading()) RefillHistory();
    }
    if (state_.ReloadLibraryAfterKey) partners_.library.Command1();
    partners_.window.KeyDown(key_code, shift);
}

AddressRoom::Handled AddressRoom::Enter() {
    const std::string mode = address_.Mode();
    if (address_.IsWebMode() || mode == "File") {
        address_.SetAddress(partners_.files.ToDriveForm(address_.Address()));
    }
    const std::string text = address_.Address();
    if (address_.IsWebMode()) return EnterWeb(text);
    if (mode == "MSN") EnterMessengerText(text);
    if (mode == "File") EnterFile(text);
    if (mode == "Search") EnterSearch(text);
    return Handled::SoFar;
}

AddressRoom::Handled AddressRoom::EnterWeb(const std::string& text) {
    if (partners_.files.IsPlayListFile(text)) {
        partners_.library.AddPlayList(text);
        partners_.library.Command1();
        partners_.history.AddSiteToHistory("File", text);
        return Handled::SoFar;
    }
    if (base::Len(text) >= kShortestMediaText && partners_.files.IsMediaFile(text))
        return EnterMediaPath(text);
    cmdGo();
    return Handled::SoFar;
}

AddressRoom::Handled AddressRoom::EnterMediaPath(const std::string& text) {
    partners_.history.AddSiteToHistory("File", text);
    partners_.player.PlaySong(text);
    partners_.events.Yield();
    if (partners_.player.IsNoFileShown()) {
        cmdGo();
        return Handled::Wholly;
    }
    partners_.library.AddMediaFromCommand(text);
    if (partners_.session.StartedWithArguments()) AddStartUpMedia();
    partners_.session.ClearStartedWithArguments();
    address_.SetAddress("");
    return Handled::SoFar;
}

// Each cued path is selected, but it is the address that is added: the library skips what it has.
void AddressRoom::AddStartUpMedia() {
    if (partners_.cue.CuedSongs() == 0) return;
    for (int row = 0; row < partners_.cue.CuedPaths(); ++row) {
        partners_.cue.SelectCuedPath(row);
        partners_.library.AddMediaFromCommand(address_.Address());
    }
}

void AddressRoom::EnterMessengerText(const std::string& text) {
    partners_.history.AddSiteToHistory("MSN", text);
    const std::string caption = partners_.player.TrackCaption();
    // A caption may begin or end in a blank that nobody types.
    if (base::InStr("   " + text + "   ", caption) == 0) {
        partners_.messenger.SetCustomText(text);
        partners_.messenger.SendNowPlaying();
    } else if (base::Len(caption) <= base::Len(text)) {
        partners_.messenger.SetCustomText(base::Right(text, base::Len(text) - base::Len(caption)));
    }
    partners_.messenger.SendNowPlaying();
}

void AddressRoom::EnterFile(const std::string& text) {
    if (partners_.files.IsMediaFile(text)) {
        partners_.player.PlaySong(text);
        partners_.library.AddMediaFromCommand(text);
        address_.SetAddress("");
        partners_.history.AddSiteToHistory("File", text);
    } else if (!LooksLikeAddress(text)) {
        cmdGo();
    }
}

void AddressRoom::EnterSearch(const std::string& text) {
    partners_.history.AddSiteToHistory("Search", text);
    address_.SetAddress(SearchAddress(SearchWords(text)));
    cmdGo();
}

void AddressRoom::RefillHistory() {
    if (!address_.IsWebMode()) {
        partners_.history.PopulateHistory(std::string(address_.Mode()));
    } else if (tabs_.Page(0).LocationURL() != "http:///") {
        partners_.history.PopulateHistory("Web");
    }
}

void AddressRoom::cmdGo() {
    if (base::Contains(address_.Address(), "(")) address_.SetAddress(CutFromTitle(address_.Address()));
    if (tabs_.Count() <= kLastTabIndex) {
        state_.NextBrowserIndex = static_cast<std::int16_t>(tabs_.Count());
        tabs_.GetNewBrowser();
        tabs_.CorrectTabs();
    }
    address_.SetTyped("");
    address_.SetAddress("");
    address_.FocusIfVisible();
}

// With no "(http" in it the text only loses its last character.
std::string AddressRoom::CutFromTitle(std::string_view text) {
    controls_.Label2.SetCaption(WithoutLast(base::Trim(text), 1));
    const std::string& scratch = controls_.Label2.Caption();
    return std::string(base::Right(scratch, base::Len(scratch) - base::InStr(scratch, "(http")));
}

void AddressRoom::cmbType_Click() {
    address_.SetTyped("");
    const std::string mode = address_.Mode();
    if (!mode.empty()) {
        partners_.history.PopulateHistory(mode);
        return;
    }
    partners_.history.PopulateHistory("Web");
    if (tabs_.IsShown(state_.currentbrowser)) {
        address_.SetTyped(tabs_.Page(state_.currentbrowser).LocationURL());
    }
}

void AddressRoom::cmbType_KeyDown(int key_code, int shift) {
    partners_.window.KeyDown(key_code, shift);
}

void AddressRoom::cmbAddress_OLEDragDrop(const controls::DropData& data) {
    Drop(data, false);
}

void AddressRoom::txtAddress_OLEDragDrop(const controls::DropData& data) {
    Drop(data, true);
}

// A file without a "." keeps the extension of the file before it.
void AddressRoom::Drop(const controls::DropData& data, bool takes_play_lists) {
    if (data.HasText) address_.SetAddress(data.Text);
    std::string extension;
    for (std::size_t i = 0; i < data.Files.size(); ++i) {
        const std::string& path = data.Files[i];
        if (const std::size_t dot = base::InStrRev(path, "."); dot != 0) {
            extension = base::LCase(base::Mid(path, dot + 1));
        }
        if (std::find(kDroppedMedia.begin(), kDroppedMedia.end(), extension) != kDroppedMedia.end()) {
            DropMedia(path, i == 0);
        } else if (takes_play_lists && extension == "mpl") {
            partners_.library.AddPlayList(path);
        } else {
            address_.SetAddress(path);
            cmbAddress_KeyDown(controls::kKeyEnter, 0);
        }
    }
}

void AddressRoom::DropMedia(const std::string& path, bool is_first) {
    if (is_first) partners_.player.PlaySong(path);
    partners_.library.AddMediaFromCommand(path);
    if (is_first) return;
    partners_.cue.CueFile(path, WithoutLast(partners_.files.FileNameOf(path), 4));
}

}  // namespace web
