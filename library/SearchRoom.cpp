#include "library/SearchRoom.h"

#include <algorithm>
#include <array>
#include <string>

#include "library/TableRows.h"
#include "store/Tables.h"

namespace library {
namespace {

constexpr int kTicksBeforeSearch = 20;
constexpr std::size_t kRowsATick = 65'536;
constexpr std::size_t kRowsAhead = 16;  // so long takes a row to come from memory

struct FieldEntry {
    SearchField field;
    controls::Menu SearchMenu::* entry;
};

constexpr std::array kFields = {FieldEntry{SearchField::Broad, &SearchMenu::mnuSearchBroad},
                                FieldEntry{SearchField::Artist, &SearchMenu::mnuSearchArtist},
                                FieldEntry{SearchField::Title, &SearchMenu::mnuSearchTitle},
                                FieldEntry{SearchField::Filename, &SearchMenu::mnuSearchFilename}};

}  // namespace

SearchRoom::SearchRoom(SearchControls& controls, SearchMenu& menu, MediaSources& sources,
                       roles::TrackView& view, roles::Highlights& highlights)
    : controls_(controls),
      menu_(menu),
      fields_(menu.mnuSearchBroad, menu.mnuSearchArtist, menu.mnuSearchTitle, menu.mnuSearchFilename),
      sources_(sources),
      view_(view),
      highlights_(highlights) {
    claims_.Claim(controls_.fraSearch.MouseMove, [this] { highlights_.NoMouseOvers(); });
    claims_.Claim(controls_.txtSearch.Change, [this] { txtSearch_Change(); });
    claims_.Claim(controls_.tmrSearch.Tick, [this] { tmrSearch_Tick(); });
    claims_.Claim(menu_.mnuSearchArtist.Click, [this] { mnuSearchArtist_Click(); });
    claims_.Claim(menu_.mnuSearchTitle.Click, [this] { mnuSearchTitle_Click(); });
    claims_.Claim(menu_.mnuSearchFilename.Click, [this] { mnuSearchFilename_Click(); });
    claims_.Claim(menu_.mnuSearchBroad.Click, [this] { mnuSearchBroad_Click(); });
    // The saved field is checked without a click.
    for (const FieldEntry& one : kFields)
        claims_.Claim((menu_.*one.entry).Change, [this] { ShowHint(); });
    ShowHint();
}

void SearchRoom::txtSearch_Change() {
    ticks_ = 0;
    controls_.tmrSearch.SetEnabled(true);
}

void SearchRoom::tmrSearch_Tick() {
    ++ticks_;
    const SearchField field = FieldToSearch();
    if (ticks_ < kTicksBeforeSearch) {
        PrepareSome(field);
        return;
    }
    controls_.tmrSearch.SetEnabled(false);
    RunLibrarySearch(field, controls_.txtSearch.Text());
}

// The pause before a search is time enough to clean a large library, a part at each tick.
void SearchRoom::PrepareSome(SearchField field) {
    if (controls_.txtSearch.Text().empty()) return;
    store::RecordSet songs = OpenRows(sources_.datSong, store::kAllSongs);
    cleaned_.Prepare(RuleOf(field), songs, kRowsATick);
}

void SearchRoom::RunLibrarySearch(SearchField field, std::string_view text) {
    const SearchRule& rule = RuleOf(field);
    std::string wanted;
    AppendCleaned(wanted, text, rule);
    view_.BeginView();
    store::RecordSet songs = OpenRows(sources_.datSong, store::kAllSongs);
    if (wanted.empty()) {
        cleaned_.Forget();
        for (songs.MoveFirst(); !songs.Eof(); songs.MoveNext())
            AddSong(songs);
    } else {
        cleaned_.Prepare(rule, songs, songs.EndOfBookmarks());
        const std::vector<store::Bookmark> rows = cleaned_.RowsWith(wanted);
        for (std::size_t i = 0; i < rows.size(); ++i) {
            if (songs.MoveTo(rows[i], rows[std::min(i + kRowsAhead, rows.size() - 1)])) AddSong(songs);
        }
    }
    view_.EndView();
}

void SearchRoom::AddSong(const store::RecordSet& song) {
    view_.AddSong(song.Text(store::tblSong::SongID), song.Text(store::tblSong::artist),
                  song.Text(store::tblSong::title));
}

void SearchRoom::CheckField(SearchField field) {
    for (const FieldEntry& one : kFields)
        if (one.field == field) fields_.Check(menu_.*one.entry);
}

std::optional<SearchField> SearchRoom::CheckedField() const {
    for (const FieldEntry& one : kFields)
        if ((menu_.*one.entry).Checked()) return one.field;
    return std::nullopt;
}

void SearchRoom::ShowHint() {
    controls_.txtSearch.SetHint(std::string("Search tracks \u2014 ").append(RuleOf(FieldToSearch()).text));
}

}  // namespace library
