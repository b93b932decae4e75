#include "places/HistoryRoom.h"

#include <algorithm>
#include <cstdint>
#include <limits>

#include "base/Number.h"
#include "base/Text.h"
#include "store/FirstRows.h"
#include "store/Settings.h"
#include "store/Tables.h"

namespace places {
namespace {

constexpr std::size_t kLongestPlayedView = 20;
constexpr std::int64_t kLastNumber = std::numeric_limits<std::int16_t>::max();

}  // namespace

HistoryRoom::HistoryRoom(HistoryControls& controls, HistoryMenu& menu, store::DataSource& datSong,
                         const bool& save_history, AddressRow& address, const FrontPage& page,
                         PlayedSongsView& played, ports::Dialogs& dialogs)
    : controls_(controls),
      dat_song_(datSong),
      save_history_(save_history),
      address_(address),
      page_(page),
      played_(played),
      dialogs_(dialogs) {
    claims_.Claim(menu.mnuHistory.Click, [this] { mnuHistory_Click(); });
}

void HistoryRoom::AddSiteToHistory(std::string_view kind, std::string_view text) {
    if (!IsWanted(kind, text)) return;
    if (!controls_.datHistory.Open(store::kAllHistory)) return;
    const bool is_there = kind == kMusicHistory ? WasPlayedLast(text) : IsKnown(text);
    if (!is_there) Append(kind, text);
}

bool HistoryRoom::IsWanted(std::string_view kind, std::string_view text) const {
    if (kind == kMusicHistory) return true;
    if (!save_history_) return false;
    if (kind != "Web" && base::Trim(address_.Address()).empty()) return false;
    return !base::Trim(text).empty();
}

bool HistoryRoom::IsKnown(std::string_view text) {
    store::RecordSet& rows = controls_.datHistory.Recordset();
    for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext()) {
        if (base::EqualIgnoringCase(rows.Text(store::tblHistory::HistoryText), text)) return true;
    }
    return false;
}

bool HistoryRoom::WasPlayedLast(std::string_view path) {
    store::RecordSet& rows = controls_.datHistory.Recordset();
    for (rows.MoveLast(); !rows.Bof(); rows.MovePrevious()) {
        if (rows.Text(store::tblHistory::HistoryType) != kMusicHistory) continue;
        return base::EqualIgnoringCase(rows.Text(store::tblHistory::HistoryText), path);
    }
    return false;
}

void HistoryRoom::Append(std::string_view kind, std::string_view text) {
    store::RecordSet& rows = controls_.datHistory.Recordset();
    rows.MoveLast();
    const std::int64_t number = std::min(base::OneMore(store::HistoryNumber(rows)), kLastNumber);
    rows.AddNew();
    rows.Set(store::tblHistory::HistoryID, base::ToText(number));
    rows.Update();
    rows.MoveLast();
    rows.Edit();
    rows.Set(store::tblHistory::HistoryType, kind);
    rows.Set(store::tblHistory::HistoryText, text);
    rows.Update();
}

void HistoryRoom::PopulateHistory(std::string_view kind) {
    if (kind == kMusicHistory) {
        ShowLastPlayed();
    } else {
        ShowKind(kind);
    }
}

void HistoryRoom::ShowKind(std::string_view kind) {
    controls_.datHistory.Open(store::kAllHistory);
    dat_song_.Open(store::kAllSongs);
    address_.SetAddress("");
    address_.ClearList();
    store::RecordSet& rows = controls_.datHistory.Recordset();
    for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext()) {
        if (rows.Text(store::tblHistory::HistoryType) != kind) continue;
        address_.AddToList(rows.Text(store::tblHistory::HistoryText));
    }
    if (address_.Mode() == "Web" && page_.IsPageVisible()) address_.SetTyped(page_.LocationURL());
}

// A song that left the library keeps its place in the count: it shortens the view and lets no older song in.
void HistoryRoom::ShowLastPlayed() {
    played_.BeginView();
    controls_.datHistory.Open(store::kAllHistory);
    dat_song_.Open(store::kAllSongs);
    store::RecordSet& songs = dat_song_.Recordset();
    for (const auto& song : store::FirstRowsWith(songs, store::tblSong::FilePath, LastPlayedPaths())) {
        if (!song || !songs.MoveTo(*song)) continue;
        played_.AddSong(songs.Text(store::tblSong::SongID), songs.Text(store::tblSong::artist),
                        songs.Text(store::tblSong::title));
    }
    played_.EndView();
}

std::vector<std::string> HistoryRoom::LastPlayedPaths() {
    store::RecordSet& rows = controls_.datHistory.Recordset();
    std::vector<std::string> paths;
    for (rows.MoveLast(); !rows.Bof() && paths.size() < kLongestPlayedView; rows.MovePrevious()) {
        if (rows.Text(store::tblHistory::HistoryType) != kMusicHistory) continue;
        paths.emplace_back(rows.Text(store::tblHistory::HistoryText));
    }
    return paths;
}

void HistoryRoom::mnuHistory_Click() {
    controls_.datHistory.Open(store::kAllHistory);
    if (dialogs_.MsgBox("Are you sure you want to delete all of your history?", ports::BoxButtons::YesNo,
                        "Delete History") != ports::BoxAnswer::Yes) {
        return;
    }
    DeleteAll();
    address_.ClearList();
}

void HistoryRoom::DeleteAll() {
    store::RecordSet& rows = controls_.datHistory.Recordset();
    for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext()) {
        if (store::HistoryNumber(rows) > store::NumberOf(store::kLastRowOfDeletedHistory)) rows.Delete();
    }
}

}  // namespace places
