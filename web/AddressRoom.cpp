#include "web/AddressRoom.h"

#include <algorithm>
#include <array>
#include <utility>

#include "base/MediaKinds.h"
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

AddressRoom::AddressRoom(AddressControls& controls, WebState& state, bool& StartedWithArguments,
                         AddressBox& address, CompletionRoom& completion, TabRoom& tabs, AddressRoles roles,
                         AddressPorts ports)
    : controls_(controls),
      state_(state),
      StartedWithArguments_(StartedWithArguments),
      address_(address),
      completion_(completion),
      tabs_(tabs),
      roles_(roles),
      ports_(ports) {
    claims_.Claim(controls_.cmbType.Click, [this] { cmbType_Click(); });
    claims_.Claim(controls_.cmbType.KeyDown, [this](int key, int shift) { cmbType_KeyDown(key, shift); });
    claims_.Claim(controls_.cmbAddress.Click, [this] { cmbAddress_Click(); });
    claims_.Claim(controls_.cmbAddress.KeyDown,
                  [this](int key, int shift) { cmbAddress_KeyDown(key, shift); });
    claims_.Claim(controls_.cmbAddress.OLEDragDrop,
                  [this](const controls::DropData& data, double, double) { cmbAddress_OLEDragDrop(data); });
    claims_.Claim(controls_.txtAddress.KeyDown,
                  [this](int key, int shift) { txtAddress_KeyDown(key, shift); });
    claims_.Claim(controls_.txtAddress.Change, [this] { txtAddress_Change(); });
    claims_.Claim(controls_.txtAddress.LostFocus, [this] { txtAddress_LostFocus(); });
    claims_.Claim(controls_.txtAddress.OLEDragDrop,
                  [this](const controls::DropData& data, double, double) { txtAddress_OLEDragDrop(data); });
    claims_.Claim(controls_.txtAddress.SignClick, [this] { txtAddress_SignClick(); });
}

void AddressRoom::OpenTab(std::string_view address) {
    std::string page(address);
    if (!std::exchange(enters_whole_, false) && base::Contains(page, "(")) page = CutFromTitle(page);
    address_.SetAddress(page);
    if (tabs_.CanOpenTab()) {
        const int empty = tabs_.EmptyTabInFront();
        tabs_.GetNewBrowser(page);
        if (empty != 0) tabs_.DropEmptyTab(empty);
        tabs_.CorrectTabs();
    }
    address_.SetTyped("");
    address_.SetAddress("");
    address_.FocusIfVisible();
}

void AddressRoom::Enter(std::string_view text) {
    address_.SetAddress(text);
    cmbAddress_KeyDown(controls::kKeyEnter, 0);
}

void AddressRoom::EnterAsWeb(std::string_view text) {
    address_.SetAddress(text);
    enters_whole_ = true;
    TakeKey(controls::kKeyEnter, 0, roles::AddressMode::Web);
    enters_whole_ = false;
}

void AddressRoom::txtAddress_Change() {
    address_.OnChange();
    completion_.OnText();
}

void AddressRoom::txtAddress_LostFocus() {
    completion_.Close();
}

void AddressRoom::txtAddress_KeyDown(int key_code, int shift) {
    if (completion_.TakeKey(key_code, shift)) return;
    const bool enters = key_code == controls::kKeyEnter;
    address_.SetAddress(enters ? completion_.TextToEnter() : address_.Typed());
    if (enters) completion_.Close();
    cmbAddress_KeyDown(key_code, shift);
}

void AddressRoom::cmbAddress_Click() {
    address_.SetTyped(address_.Address());
}

void AddressRoom::cmbAddress_KeyDown(int key_code, int shift) {
    TakeKey(key_code, shift, address_.Mode());
}

void AddressRoom::TakeKey(int key_code, int shift, roles::AddressMode mode) {
    state_.ReloadLibraryAfterKey = false;
    if (key_code == controls::kKeyEnter) {
        if (TakeEnter(mode) == Handled::Wholly) return;
        address_.SetTyped("");
        if (!roles_.start.IsLoading()) RefillHistory();
    }
    if (state_.ReloadLibraryAfterKey) roles_.track_lists.Command1();
    roles_.keys.KeyDown(key_code, shift);
}

AddressRoom::Handled AddressRoom::TakeEnter(roles::AddressMode mode) {
    if (mode != roles::AddressMode::Msn && mode != roles::AddressMode::Search) {
        address_.SetAddress(ports_.files.FromNative(address_.Address()));
    }
    const std::string text = address_.Address();
    switch (mode) {
        case roles::AddressMode::None:
        case roles::AddressMode::Web:
            return EnterWeb(text);
        case roles::AddressMode::Msn:
            EnterMessengerText(text);
            break;
        case roles::AddressMode::File:
            EnterFile(text);
            break;
        case roles::AddressMode::Search:
            EnterSearch(text);
            break;
    }
    return Handled::SoFar;
}

AddressRoom::Handled AddressRoom::EnterWeb(const std::string& text) {
    if (base::IsPlayListFile(text) || IsForeignPlayList(text)) {
        roles_.media.AddPlayList(text);
        roles_.track_lists.Command1();
        roles_.history.AddSiteToHistory(roles::HistoryKind::File, text);
        return Handled::SoFar;
    }
    if (base::Len(text) >= kShortestMediaText && base::IsMediaFile(text)) return EnterMediaPath(text);
    OpenTab(text);
    return Handled::SoFar;
}

// The list of another player is one only where its file is: a web address may end so, too.
bool AddressRoom::IsForeignPlayList(std::string_view text) const {
    return base::IsForeignPlayListFile(text) && ports_.files.FileExists(ports_.files.LocalPath(text));
}

// For a file that is not there the player would go on to the next song, and seem to have played it.
AddressRoom::Handled AddressRoom::EnterMediaPath(const std::string& text) {
    roles_.history.AddSiteToHistory(roles::HistoryKind::File, text);
    const bool is_there = ports_.files.FileExists(text);
    if (is_there) {
        roles_.transport.PlaySong(text);
        ports_.events.Yield();
    }
    if (!is_there || roles_.now_playing.IsNoFileShown()) {
        OpenTab(text);
        return Handled::Wholly;
    }
    roles_.media.AddMediaFromCommand(text);
    if (StartedWithArguments_) AddStartUpMedia(text);
    StartedWithArguments_ = false;
    address_.SetAddress("");
    return Handled::SoFar;
}

// Each cued path is selected, but it is the entered one that is added: the library skips what it has.
void AddressRoom::AddStartUpMedia(const std::string& text) {
    if (roles_.cue.SongCount() == 0) return;
    for (int row = 0; row < roles_.cue.PathCount(); ++row) {
        roles_.cue.SelectPath(row);
        roles_.media.AddMediaFromCommand(text);
    }
}

void AddressRoom::EnterMessengerText(const std::string& text) {
    roles_.history.AddSiteToHistory(roles::HistoryKind::Msn, text);
    const std::string caption = roles_.now_playing.TrackCaption();
    // A caption may begin or end in a blank that nobody types.
    if (base::InStr("   " + text + "   ", caption) == 0) {
        roles_.messenger.SetCustomText(text);
        roles_.messenger.SendNowPlaying();
    } else if (base::Len(caption) <= base::Len(text)) {
        roles_.messenger.SetCustomText(base::Right(text, base::Len(text) - base::Len(caption)));
    }
    roles_.messenger.SendNowPlaying();
}

void AddressRoom::EnterFile(const std::string& text) {
    if (base::IsMediaFile(text)) {
        roles_.transport.PlaySong(text);
        roles_.media.AddMediaFromCommand(text);
        address_.SetAddress("");
        roles_.history.AddSiteToHistory(roles::HistoryKind::File, text);
    } else if (!LooksLikeAddress(text)) {
        OpenTab(text);
    }
}

void AddressRoom::EnterSearch(const std::string& text) {
    roles_.history.AddSiteToHistory(roles::HistoryKind::Search, text);
    OpenTab(SearchAddress(SearchWords(text)));
}

void AddressRoom::RefillHistory() {
    if (!address_.IsWebMode()) {
        roles_.history.PopulateHistory(roles::HistoryKindOf(address_.Mode()));
    } else if (tabs_.Page(0).LocationURL() != "http:///") {
        roles_.history.PopulateHistory(roles::HistoryKind::Web);
    }
}

// With no "(http" in it the text only loses its last character.
std::string AddressRoom::CutFromTitle(std::string_view text) {
    controls_.Label2.SetCaption(WithoutLast(base::Trim(text), 1));
    const std::string& scratch = controls_.Label2.Caption();
    return std::string(base::Right(scratch, base::Len(scratch) - base::InStr(scratch, "(http")));
}

// A mode that is chosen shows its own history; with none chosen it is the web's, and the address in front.
void AddressRoom::cmbType_Click() {
    address_.SetTyped("");
    roles_.history.PopulateHistory(roles::HistoryKindOf(address_.Mode()));
    if (address_.Mode() != roles::AddressMode::None) return;
    if (tabs_.Front().Visible()) address_.ShowLocation(tabs_.Front().LocationURL());
}

void AddressRoom::cmbType_KeyDown(int key_code, int shift) {
    roles_.keys.KeyDown(key_code, shift);
}

void AddressRoom::cmbAddress_OLEDragDrop(const controls::DropData& data) {
    Drop(data, false);
}

void AddressRoom::txtAddress_SignClick() {
    tabs_.Front().ShowSecurity();
}

void AddressRoom::txtAddress_OLEDragDrop(const controls::DropData& data) {
    Drop(data, true);
}

// A file without a "." keeps the extension of the file before it. A playlist that was read shows at once.
void AddressRoom::Drop(const controls::DropData& data, bool takes_play_lists) {
    if (data.HasText) {
        address_.SetAddress(data.Text);
        address_.SetTyped(data.Text);
    }
    std::string extension;
    bool read_a_list = false;
    for (std::size_t i = 0; i < data.Files.size(); ++i) {
        const std::string& path = data.Files[i];
        if (const std::size_t dot = base::InStrRev(path, "."); dot != 0) {
            extension = base::LCase(base::Mid(path, dot + 1));
        }
        if (std::find(kDroppedMedia.begin(), kDroppedMedia.end(), extension) != kDroppedMedia.end()) {
            DropMedia(path, i == 0);
        } else if (takes_play_lists && extension == "mpl") {
            roles_.media.AddPlayList(path);
            read_a_list = true;
        } else {
            Enter(path);
        }
    }
    if (read_a_list) roles_.track_lists.Command1();
}

void AddressRoom::DropMedia(const std::string& path, bool is_first) {
    if (is_first) roles_.transport.PlaySong(path);
    roles_.media.AddMediaFromCommand(path);
    if (is_first) return;
    roles_.cue.CueFile(path, WithoutLast(base::FileNameOf(path), 4));
}

}  // namespace web
