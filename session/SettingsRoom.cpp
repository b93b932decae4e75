#include "session/SettingsRoom.h"

#include "base/Number.h"
#include "base/Text.h"
#include "store/StartingContent.h"
#include "store/Tables.h"

namespace session {
namespace {

enum SettingsRow {
    kRepeat = 1,
    kShuffle = 2,
    kRefreshSeconds = 3,
    kSearchField = 4,
    kDateStamp = 5,
    kLastBackUp = 6,
    kMusicTab = 7,
    kScrollTitle = 8,
    kFirstOption = 9,
    kMessengerName = 11,
    kMessengerCustom = 12,
    kMultipleUsers = 14,
    kLastOption = 19,
    kEndMark = 20,
};

struct Option {
    int id;
    bool SessionOptions::*flag;  // null: no flag beside the box
};

constexpr std::array kOptions = {
    Option{9, &SessionOptions::Save_Settings},        Option{10, &SessionOptions::Open_Home_Pages},
    Option{11, &SessionOptions::Allow_MSN_Name},      Option{12, &SessionOptions::Allow_MSN_Custom},
    Option{13, &SessionOptions::Save_MSN_names},      Option{14, nullptr},
    Option{15, &SessionOptions::Auto_Login},          Option{16, &SessionOptions::Save_History},
    Option{17, &SessionOptions::Allow_Search},        Option{18, &SessionOptions::Allow_Open_File},
    Option{19, &SessionOptions::Include_Sub_Folders},
};
static_assert(kOptions.size() == kLastOption - kFirstOption + 1);

constexpr std::string_view kHomePagesGroup = "Home Pages";

bool EqualsTrue(std::string_view text) {
    return text == base::FlagText(true);
}
bool IsNotFalse(std::string_view text) {
    return text != base::FlagText(false);
}

int IdOf(const store::RecordSet& row) {
    return static_cast<int>(base::Val(row.Text(store::tblHistory::HistoryID)));
}

void Write(store::RecordSet& row, std::string_view text) {
    row.Edit();
    row.Set(store::tblHistory::HistoryType, store::kSettingsType);
    row.Set(store::tblHistory::HistoryText, text);
    row.Update();
}

}  // namespace

SettingsRoom::SettingsRoom(SettingsControls controls, OptionBoxes boxes, SessionOptions& options,
                           const SessionState& session, const ConnectionState& connection, web::WebState& web,
                           StageLabel& stage, Tabs& tabs, AddressBar& address_bar, SessionPlayer& player,
                           ports::Clock& clock, ports::EventLoop& events)
    : controls_(controls),
      boxes_(boxes),
      options_(options),
      session_(session),
      connection_(connection),
      web_(web),
      stage_(stage),
      tabs_(tabs),
      address_bar_(address_bar),
      player_(player),
      clock_(clock),
      events_(events) {}

void SettingsRoom::LoadSettings() {
    stage_.SetStage("Previous settings");
    events_.Yield();
    music_tab_in_front_ = web_.MusicTabActive;
    std::vector<Row> rows;
    if (!TakeRows(rows)) return;
    for (const Row& row : rows)
        RestoreRow(row);
    options_.Loaded = true;
    OpenHomePages();
    events_.Yield();
    FillTypes();
    stage_.SetStage("Media GUI");
    events_.Yield();
    if (!IsOver()) PlaceMusicTab();
}

// The rows are copied first: restoring one may yield, and whoever runs then may move the shared record set.
bool SettingsRoom::TakeRows(std::vector<Row>& rows) {
    if (!controls_.datHistory.Open(store::kAllHistory)) return false;
    store::RecordSet& records = controls_.datHistory.Recordset();
    for (records.MoveFirst(); !records.Eof(); records.MoveNext()) {
        const int id = IdOf(records);
        if (id >= kEndMark) break;
        rows.push_back({id, std::string(records.Text(store::tblHistory::HistoryText))});
    }
    return true;
}

void SettingsRoom::RestoreRow(const Row& row) {
    switch (row.id) {
        case kRepeat:
            RestoreRepeat(EqualsTrue(row.text));
            break;
        case kShuffle:
            controls_.mnuShuffle.SetChecked(EqualsTrue(row.text));
            break;
        case kRefreshSeconds:
            controls_.txtRefresh.SetText(row.text);
            break;
        case kSearchField:
            stage_.SetStage("Library search");
            events_.Yield();
            RestoreSearchField(row.text);
            break;
        case kDateStamp:
            RestoreDate(row.id, row.text, options_.DaysStampA, options_.DaysStampAge);
            break;
        case kLastBackUp:
            RestoreDate(row.id, row.text, options_.LastPlayListBackUp, options_.LastPlayListBackUpAge);
            break;
        case kMusicTab:
            web_.MusicTabActive = EqualsTrue(row.text) || session_.StartedWithArguments;
            music_tab_in_front_ = web_.MusicTabActive;
            break;
        case kScrollTitle:
            player_.SetTitleScrolling(IsNotFalse(row.text));
            break;
        default:
            if (row.id >= kFirstOption && row.id <= kLastOption) RestoreOption(row.id, IsNotFalse(row.text));
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

std::int32_t SettingsRoom::Today() const {
    return static_cast<std::int32_t>(base::Val(ports::DateStamp(clock_.Today())));
}

// 0 means never, and counts from today on.
void SettingsRoom::RestoreDate(int id, std::string_view text, std::int32_t& stamp, std::int32_t& age) {
    const std::int32_t today = Today();
    stamp = static_cast<std::int32_t>(base::Val(text));
    if (stamp == 0) {
        stamp = today;
        ReplaceText(id, base::ToText(today));
    }
    age = today - stamp;
}

void SettingsRoom::ReplaceText(int id, std::string_view text) {
    if (!controls_.datHistory.Open(store::kAllHistory)) return;
    store::RecordSet& records = controls_.datHistory.Recordset();
    for (records.MoveFirst(); !records.Eof(); records.MoveNext()) {
        if (IdOf(records) != id) continue;
        records.Edit();
        records.Set(store::tblHistory::HistoryText, text);
        records.Update();
        return;
    }
}

void SettingsRoom::RestoreOption(int id, bool on) {
    const std::array<controls::CheckBox*, kOptions.size()> boxes = {
        &boxes_.chkSettings, &boxes_.chkHomePages,  &boxes_.chkMSN,       &boxes_.chkCustom,
        &boxes_.chkSaveMSN,  &boxes_.chkMultiLogin, &boxes_.chkAutoLogin, &boxes_.chkHistory,
        &boxes_.chkGoogle,   &boxes_.chkFile,       &boxes_.chkSubFolders};
    const auto place = static_cast<std::size_t>(id - kFirstOption);
    if (kOptions[place].flag != nullptr) options_.*kOptions[place].flag = on;
    boxes[place]->SetChecked(on);
    RestoreDependents(id, on);
}

void SettingsRoom::RestoreDependents(int id, bool on) {
    if (id == kMessengerName) {
        boxes_.chkCustom.SetEnabled(on);
        boxes_.chkSaveMSN.SetEnabled(on);
    } else if (id == kMessengerCustom) {
        boxes_.chkSaveMSN.SetEnabled(on);
    } else if (id == kMultipleUsers) {
        boxes_.chkAutoLogin.SetEnabled(on);
        boxes_.cmdNewUser.SetVisible(on);
    }
}

void SettingsRoom::OpenHomePages() {
    if (!connection_.Internet_Connection || !options_.Open_Home_Pages) return;
    stage_.SetStage("Home pages");
    events_.Yield();
    for (const HomePage& page : HomePages()) {
        if (IsOver()) return;
        address_bar_.SetAddress(page.address);
        address_bar_.PressEnter();
        tabs_.NameTab(tabs_.TabCount() - 1, page.name);
        web_.TabsShown = true;
        web_.currentbrowser = 1;
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
        tabs_.BringMusicTabToFront();
        return;
    }
    tabs_.CloseMusicTab();
    events_.Yield();
    if (tabs_.TabCount() >= 2) tabs_.BringTabToFront(1);
    events_.Yield();
}

bool SettingsRoom::StoreSettings() {
    if (!controls_.datHistory.Open(store::kAllHistory)) return false;
    const bool all_rows = options_.Save_Settings && options_.Loaded;
    store::RecordSet& records = controls_.datHistory.Recordset();
    for (records.MoveFirst(); !records.Eof(); records.MoveNext()) {
        const int id = IdOf(records);
        if (id == kEndMark) Write(records, base::FlagText(options_.Show_Activation));
        const bool is_written =
            (id >= kRepeat && id <= kSearchField) || id == kMusicTab || id == kScrollTitle;
        if (all_rows && is_written) Write(records, TextToStore(id));
    }
    return true;
}

std::string_view SettingsRoom::SearchField() const {
    if (controls_.mnuSearchBroad.Checked()) return "Broad";
    if (controls_.mnuSearchTitle.Checked()) return "Title";
    if (controls_.mnuSearchArtist.Checked()) return "Artist";
    return "Filename";
}

std::string SettingsRoom::TextToStore(int id) const {
    switch (id) {
        case kRepeat:
            return std::string(base::FlagText(controls_.mnuRepeat.Checked()));
        case kShuffle:
            return std::string(base::FlagText(controls_.mnuShuffle.Checked()));
        case kRefreshSeconds:
            return controls_.txtRefresh.Text();
        case kSearchField:
            return std::string(SearchField());
        case kMusicTab:
            return std::string(base::FlagText(web_.MusicTabActive));
        default:
            return std::string(base::FlagText(player_.IsTitleScrolling()));
    }
}

}  // namespace session
