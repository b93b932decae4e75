#include "places/HistoryRoom.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <utility>

#include "base/Number.h"
#include "base/Text.h"
#include "store/FirstRows.h"
#include "store/Settings.h"
#include "store/Tables.h"

namespace places {
namespace {

using roles::HistoryKind;

constexpr std::size_t kLongestPlayedView = 20;
constexpr std::int64_t kLastNumber = std::numeric_limits<std::int16_t>::max();

}  // namespace

HistoryRoom::HistoryRoom(HistoryControls& controls, HistoryMenu& menu, store::DataSource& datSong,
                         const bool& Save_History, HistoryRoles others, ports::Dialogs& dialogs,
                         ports::PageEngine& pages)
    : controls_(controls),
      dat_song_(datSong),
      Save_History_(Save_History),
      others_(std::move(others)),
      dialogs_(dialogs),
      pages_(pages) {
    claims_.Claim(menu.mnuHistory.Click, [this] { mnuHistory_Click(); });
}

void HistoryRoom::AddSiteToHistory(roles::HistoryKind kind, std::string_view text) {
    if (!IsWanted(kind, text)) return;
    if (!controls_.datHistory.Open(store::kAllHistory)) return;
    const bool is_there = kind == HistoryKind::Music ? WasPlayedLast(text) : IsKnown(text);
    if (!is_there) Append(kind, text);
}

bool HistoryRoom::IsWanted(roles::HistoryKind kind, std::string_view text) const {
    if (kind == HistoryKind::Music) return true;
    if (!Save_History_) return false;
    if (kind != HistoryKind::Web && base::Trim(others_.address.Address()).empty()) return false;
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
        if (rows.Text(store::tblHistory::HistoryType) != TextOf(HistoryKind::Music)) continue;
        return base::EqualIgnoringCase(rows.Text(store::tblHistory::HistoryText), path);
    }
    return false;
}

void HistoryRoom::Append(roles::HistoryKind kind, std::string_view text) {
    store::RecordSet& rows = controls_.datHistory.Recordset();
    rows.MoveLast();
    const std::int64_t number = std::min(base::OneMore(store::HistoryNumber(rows)), kLastNumber);
    rows.AddNew();
    rows.Set(store::tblHistory::HistoryID, base::ToText(number));
    rows.Update();
    rows.MoveLast();
    rows.Edit();
    rows.Set(store::tblHistory::HistoryType, TextOf(kind));
    rows.Set(store::tblHistory::HistoryText, text);
    rows.Update();
}

void HistoryRoom::PopulateHistory(roles::HistoryKind kind) {
    if (kind == HistoryKind::Music) {
        ShowLastPlayed();
    } else {
        ShowKind(kind);
    }
}

void HistoryRoom::ShowKind(roles::HistoryKind kind) {
    controls_.datHistory.Open(store::kAllHistory);
    dat_song_.Open(store::kAllSongs);
    others_.address.SetAddress("");
    others_.address.ClearList();
    store::RecordSet& rows = controls_.datHistory.Recordset();
    for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext()) {
        if (rows.Text(store::tblHistory::HistoryType) != TextOf(kind)) continue;
        others_.address.AddToList(rows.Text(store::tblHistory::HistoryText));
    }
    if (others_.address.Mode() == roles::AddressMode::Web && others_.page.IsPageVisible())
        others_.address.ShowLocation(others_.page.LocationURL());
}

// A song that left the library keeps its place in the count: it shortens the view and lets no older song in.
void HistoryRoom::ShowLastPlayed() {
    others_.played.BeginView();
    controls_.datHistory.Open(store::kAllHistory);
    dat_song_.Open(store::kAllSongs);
    store::RecordSet& songs = dat_song_.Recordset();
    for (const auto& song : store::FirstRowsWith(songs, store::tblSong::FilePath, LastPlayedPaths())) {
        if (!song || !songs.MoveTo(*song)) continue;
        others_.played.AddPlayedSong(songs.Text(store::tblSong::SongID), songs.Text(store::tblSong::artist),
                                     songs.Text(store::tblSong::title));
    }
    others_.played.EndView();
}

std::vector<std::string> HistoryRoom::LastPlayedPaths() {
    store::RecordSet& rows = controls_.datHistory.Recordset();
    std::vector<std::string> paths;
    for (rows.MoveLast(); !rows.Bof() && paths.size() < kLongestPlayedView; rows.MovePrevious()) {
        if (rows.Text(store::tblHistory::HistoryType) != TextOf(HistoryKind::Music)) continue;
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
    others_.address.ClearList();
    if (others_.deleted) others_.deleted();
    // What pages left says where the user was, too.
    pages_.ForgetVisits();
}

void HistoryRoom::DeleteAll() {
    store::RecordSet& rows = controls_.datHistory.Recordset();
    for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext()) {
        if (store::HistoryNumber(rows) > store::NumberOf(store::kLastRowOfDeletedHistory)) rows.Delete();
    }
}

}  // namespace places
