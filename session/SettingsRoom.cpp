#include "session/SettingsRoom.h"

#include <algorithm>
#include <utility>

#include "base/Number.h"
#include "base/Text.h"
#include "session/DateAge.h"
#include "store/Tables.h"

namespace session {
namespace {

using store::SettingsRow;

constexpr std::string_view kHomePagesGroup = "Home Pages";

}  // namespace

SettingsRoom::SettingsRoom(SettingsControls controls, OptionControls& boxes, SessionOptions& options,
                           const SessionState& session, const ConnectionState& connection, web::WebState& web,
                           ActivateRoom& splash, roles::Tabs& tabs, roles::PageOpener& opener,
                           player::TitleState& title, ports::Clock& clock, ports::EventLoop& events,
                           ports::PageEngine& pages)
    : controls_(controls),
      boxes_(boxes),
      options_(options),
      session_(session),
      connection_(connection),
      web_(web),
      splash_(splash),
      tabs_(tabs),
      opener_(opener),
      title_(title),
      clock_(clock),
      events_(events),
      pages_(pages) {}

void SettingsRoom::LoadSettings() {
    splash_.SetStage("Previous settings");
    events_.Yield();
    music_tab_in_front_ = web_.MusicTabActive;
    std::vector<Row> rows;
    const bool were_read = TakeRows(rows);
    for (const Row& row : rows)
        RestoreRow(row);
    options_.Loaded = options_.Loaded || were_read;
    was_tried_ = true;
    BeginPages();
    if (!were_read) return;
    BeginHomePages();
    events_.Yield();
    FillTypes();
    splash_.SetStage("Media GUI");
    events_.Yield();
    if (!IsOver()) PlaceMusicTab();
}

// The rows are copied first: restoring one may yield, and whoever runs then may move the shared record set.
bool SettingsRoom::TakeRows(std::vector<Row>& rows) {
    if (!controls_.datHistory.Open(store::kAllHistory)) return false;
    store::RecordSet& records = controls_.datHistory.Recordset();
    for (records.MoveFirst(); !records.Eof(); records.MoveNext()) {
        if (store::HistoryNumber(records) >= store::NumberOf(SettingsRow::EndMark)) break;
        if (const store::Setting* const setting = store::SettingAt(records))
            rows.push_back({setting->row, std::string(records.Text(store::tblHistory::HistoryText))});
    }
    return true;
}

void SettingsRoom::RestoreRow(const Row& row) {
    const bool on = store::IsOn(row.row, row.text);
    switch (row.row) {
        case SettingsRow::Repeat:
            RestoreRepeat(on);
            break;
        case SettingsRow::Shuffle:
            controls_.mnuShuffle.SetChecked(on);
            break;
        case SettingsRow::RefreshSeconds:
            controls_.txtRefresh.SetText(row.text);
            break;
        case SettingsRow::SearchField:
            splash_.SetStage("Library search");
            events_.Yield();
            RestoreSearchField(row.text);
            break;
        case SettingsRow::LastCleanUp:
            options_.DaysStampA = AgeOf(RestoreDate(row), clock_);
            break;
        case SettingsRow::LastBackUp:
            options_.LastPlayListBackUp = RestoreDate(row);
            break;
        case SettingsRow::MusicTab:
            web_.MusicTabActive = on || session_.StartedWithArguments;
            music_tab_in_front_ = web_.MusicTabActive;
            break;
        case SettingsRow::ScrollTitle:
            title_.ScrollTitle = on;
            break;
        default:
            RestoreOption(row.row, on);
    }
}

// The click changes the check mark and the pictures together, so it runs exactly when the mode is another
// one.
void SettingsRoom::RestoreRepeat(bool repeat) {
    if (controls_.mnuRepeat.Checked() != repeat) controls_.mnuRepeat.Click.Raise();
}

void SettingsRoom::RestoreSearchField(std::string_view field) {
    controls_.mnuSearchBroad.SetChecked(field == "Broad");
    controls_.mnuSearchTitle.SetChecked(field == "Title");
    controls_.mnuSearchArtist.SetChecked(field == "Artist");
    controls_.mnuSearchFilename.SetChecked(field == "Filename");
}

// 0 means never, and counts from today on.
std::int32_t SettingsRoom::RestoreDate(const Row& row) {
    const std::int32_t date = DateOf(row.text);
    if (date != 0) return date;
    const std::int32_t today = Today(clock_);
    ReplaceText(row.row, base::ToText(today));
    return today;
}

void SettingsRoom::ReplaceText(SettingsRow row, std::string_view text) {
    if (!controls_.datHistory.Open(store::kAllHistory)) return;
    store::RecordSet& records = controls_.datHistory.Recordset();
    if (store::MoveToSetting(records, row)) store::WriteSetting(records, text);
}

void SettingsRoom::RestoreOption(SettingsRow row, bool on) {
    const auto* const option =
        std::find_if(kOptions.begin(), kOptions.end(), [row](const Option& one) { return one.row == row; });
    if (option == kOptions.end()) return;
    if (option->flag != nullptr) options_.*option->flag = on;
    (boxes_.*option->box).SetChecked(on);
    RestoreDependents(row, on);
}

void SettingsRoom::RestoreDependents(SettingsRow row, bool on) {
    if (row == SettingsRow::MessengerName) {
        boxes_.chkCustom.SetEnabled(on);
        boxes_.chkSaveMSN.SetEnabled(on);
    } else if (row == SettingsRow::MessengerCustom) {
        boxes_.chkSaveMSN.SetEnabled(on);
    } else if (row == SettingsRow::MultipleUsers) {
        boxes_.chkAutoLogin.SetEnabled(on);
        boxes_.cmdNewUser.SetVisible(on);
    }
}

void SettingsRoom::BeginPages() {
    if (!was_tried_ || !session_.LoggedIn) return;
    pages_.BeginUser(session_.UserName, options_.Loaded && options_.Save_History);
    OpenWaitingHomePages();
}

void SettingsRoom::BeginHomePages() {
    home_pages_wait_ = session_.HomePagesWait && !session_.LoggedIn;
    if (home_pages_wait_) return;
    const bool is_first = !std::exchange(had_home_pages_, true);
    if (!is_first || !session_.WithoutHomePages) OpenHomePages();
}

// The settings, and with them the tab in front, are there already.
void SettingsRoom::OpenWaitingHomePages() {
    if (!home_pages_wait_) return;
    const int tabs_before = tabs_.Count();
    BeginHomePages();
    if (tabs_.Count() > tabs_before && !IsOver()) PlaceMusicTab();
}

// At a second login the row may stand in another mode, and the first slots belong to tabs of the user before.
void SettingsRoom::OpenHomePages() {
    if (!connection_.Internet_Connection || !options_.Open_Home_Pages) return;
    splash_.SetStage("Home pages");
    events_.Yield();
    for (const HomePage& page : HomePages()) {
        if (IsOver()) return;
        opener_.EnterAsWeb(page.address);
        tabs_.NameTab(tabs_.Count() - 1, page.name);
        web_.TabsShown = true;
        web_.currentbrowser = static_cast<std::int16_t>(FirstOpenTab().value_or(1));
    }
}

// Opening a page may move the shared record set, so the pages are copied first.
std::vector<SettingsRoom::HomePage> SettingsRoom::HomePages() {
    std::vector<HomePage> pages;
    if (!controls_.datFav.Open(store::kAllFavourites)) return pages;
    store::RecordSet& records = controls_.datFav.Recordset();
    for (records.MoveFirst(); !records.Eof(); records.MoveNext()) {
        if (records.Text(store::tblFavs::GroupName) != kHomePagesGroup) continue;
        const std::string_view address = records.Text(store::tblFavs::URL);
        if (base::Trim(address).empty()) continue;
        pages.push_back({std::string(records.Text(store::tblFavs::FriendName)), std::string(address)});
    }
    return pages;
}

void SettingsRoom::FillTypes() {
    controls::ComboBox& types = controls_.cmbType;
    types.Clear();
    if (connection_.Internet_Connection) {
        types.AddItem("Web");
        if (options_.Allow_MSN_Name && options_.Allow_MSN_Custom) types.AddItem("MSN");
    }
    if (options_.Allow_Open_File) types.AddItem("File");
    if (connection_.Internet_Connection && options_.Allow_Search) types.AddItem("Search");
    const bool no_choice = types.ListCount() == 1 || !connection_.Internet_Connection;
    types.SetEnabled(!no_choice);
    if (no_choice) types.SetListIndex(0);
}

void SettingsRoom::PlaceMusicTab() {
    if (music_tab_in_front_) {
        tabs_.BringMusicTabForward();
        return;
    }
    tabs_.CloseMusicTab();
    events_.Yield();
    if (const std::optional<int> first = FirstOpenTab()) tabs_.BringForward(*first);
    events_.Yield();
}

std::optional<int> SettingsRoom::FirstOpenTab() const {
    for (int i = 1; i < tabs_.Count(); ++i) {
        if (tabs_.IsTabVisible(i)) return i;
    }
    return std::nullopt;
}

bool SettingsRoom::StoreSettings() {
    if (!controls_.datHistory.Open(store::kAllHistory)) return false;
    const bool all_rows = options_.Save_Settings && options_.Loaded;
    store::RecordSet& records = controls_.datHistory.Recordset();
    for (records.MoveFirst(); !records.Eof(); records.MoveNext()) {
        const store::Setting* const setting = store::SettingAt(records);
        if (setting == nullptr) continue;
        if (setting->writer == store::SettingsWriter::EveryEndOfSession)
            store::WriteSetting(records, base::FlagText(options_.Show_Activation));
        if (all_rows && setting->writer == store::SettingsWriter::EndOfSession)
            store::WriteSetting(records, TextToStore(setting->row));
    }
    return true;
}

std::string_view SettingsRoom::SearchField() const {
    if (controls_.mnuSearchBroad.Checked()) return "Broad";
    if (controls_.mnuSearchTitle.Checked()) return "Title";
    if (controls_.mnuSearchArtist.Checked()) return "Artist";
    return "Filename";
}

std::string SettingsRoom::TextToStore(SettingsRow row) const {
    switch (row) {
        case SettingsRow::Repeat:
            return std::string(base::FlagText(controls_.mnuRepeat.Checked()));
        case SettingsRow::Shuffle:
            return std::string(base::FlagText(controls_.mnuShuffle.Checked()));
        case SettingsRow::RefreshSeconds:
            return controls_.txtRefresh.Text();
        case SettingsRow::SearchField:
            return std::string(SearchField());
        case SettingsRow::MusicTab:
            return std::string(base::FlagText(web_.MusicTabActive));
        default:
            return std::string(base::FlagText(title_.ScrollTitle));
    }
}

}  // namespace session
