#include "library/SearchRoom.h"

#include <array>

#include "library/SearchText.h"
#include "library/TableRows.h"
#include "store/Tables.h"

namespace library {
namespace {

constexpr int kTicksBeforeSearch = 20;
constexpr std::size_t kRowsATick = 65'536;

struct FieldEntry {
    std::string_view field;
    controls::Menu SearchMenu::*entry;
};

constexpr std::array kFields = {
    FieldEntry{"Broad", &SearchMenu::mnuSearchBroad}, FieldEntry{"Artist", &SearchMenu::mnuSearchArtist},
    FieldEntry{"Title", &SearchMenu::mnuSearchTitle}, FieldEntry{"Filename", &SearchMenu::mnuSearchFilename}};

}  // namespace

SearchRoom::SearchRoom(SearchControls& controls, SearchMenu& menu, MediaSources& sources, TrackView& view,
                       MouseOvers& mouse_overs)
    : controls_(controls),
      menu_(menu),
      fields_(menu.mnuSearchBroad, menu.mnuSearchArtist, menu.mnuSearchTitle, menu.mnuSearchFilename),
      sources_(sources),
      view_(view),
      mouse_overs_(mouse_overs) {
    claims_.Claim(controls_.fraSearch.MouseMove,
                  [this](int, int, double, double) { mouse_overs_.NoMouseOvers(); });
    claims_.Claim(controls_.txtSearch.Change, [this] { txtSearch_Change(); });
    claims_.Claim(controls_.tmrSearch.Tick, [this] { tmrSearch_Tick(); });
    claims_.Claim(menu_.mnuSearchArtist.Click, [this] { mnuSearchArtist_Click(); });
    claims_.Claim(menu_.mnuSearchTitle.Click, [this] { mnuSearchTitle_Click(); });
    claims_.Claim(menu_.mnuSearchFilename.Click, [this] { mnuSearchFilename_Click(); });
    claims_.Claim(menu_.mnuSearchBroad.Click, [this] { mnuSearchBroad_Click(); });
    ShowHint();
}

void SearchRoom::txtSearch_Change() {
    ticks_ = 0;
    controls_.tmrSearch.SetEnabled(true);
}

void SearchRoom::tmrSearch_Tick() {
    ++ticks_;
    const std::string_view checked = SearchField();
    const std::string_view field = checked.empty() ? "Broad" : checked;
    if (ticks_ < kTicksBeforeSearch) {
        PrepareSome(field);
        return;
    }
    controls_.tmrSearch.SetEnabled(false);
    RunLibrarySearch(field, controls_.txtSearch.Text());
}

// The pause before a search is time enough to clean a large library, a part at each tick.
void SearchRoom::PrepareSome(std::string_view field) {
    if (controls_.txtSearch.Text().empty()) return;
    store::RecordSet songs = OpenRows(sources_.datSong, store::kAllSongs);
    cleaned_.Prepare(*SearchFieldNamed(field), songs, kRowsATick);
}

void SearchRoom::RunLibrarySearch(std::string_view field, std::string_view text) {
    const library::SearchField* const searched = SearchFieldNamed(field);
    if (searched == nullptr) return;
    std::string wanted;
    AppendCleaned(wanted, text, *searched);
    view_.BeginView();
    store::RecordSet songs = OpenRows(sources_.datSong, store::kAllSongs);
    if (wanted.empty()) {
        cleaned_.Forget();
        for (songs.MoveFirst(); !songs.Eof(); songs.MoveNext())
            AddSong(songs);
    } else {
        cleaned_.Prepare(*searched, songs, songs.EndOfBookmarks());
        for (const store::Bookmark row : cleaned_.RowsWith(wanted)) {
            if (songs.MoveTo(row)) AddSong(songs);
        }
    }
    view_.EndView();
}

void SearchRoom::AddSong(const store::RecordSet& song) {
    view_.AddSong(song.Text(store::tblSong::SongID), song.Text(store::tblSong::artist),
                  song.Text(store::tblSong::title));
}

void SearchRoom::SetSearchField(std::string_view field) {
    UnCheckSongSearch();
    for (const FieldEntry& one : kFields)
        if (one.field == field) fields_.Check(menu_.*one.entry);
    ShowHint();
}

std::string_view SearchRoom::SearchField() const {
    for (const FieldEntry& one : kFields)
        if ((menu_.*one.entry).Checked()) return one.field;
    return {};
}

void SearchRoom::ShowHint() {
    const std::string_view field = SearchField();
    controls_.txtSearch.SetHint(std::string("Search tracks \u2014 ").append(field.empty() ? "Broad" : field));
}

}  // namespace library
