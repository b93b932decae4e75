#include "library/SearchRoom.h"

#include "library/SearchText.h"
#include "library/TableRows.h"
#include "store/Tables.h"

namespace library {
namespace {

constexpr int kTicksBeforeSearch = 20;

}  // namespace

SearchRoom::SearchRoom(SearchControls& controls, SearchMenu menu, MediaSources& sources, TrackView& view,
                       MouseOvers& mouse_overs)
    : controls_(controls), menu_(menu), sources_(sources), view_(view), mouse_overs_(mouse_overs) {
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
    if (ticks_ < kTicksBeforeSearch) return;
    controls_.tmrSearch.SetEnabled(false);
    const std::string_view field = SearchField();
    RunLibrarySearch(field.empty() ? "Broad" : field, controls_.txtSearch.Text());
}

void SearchRoom::RunLibrarySearch(std::string_view field, std::string_view text) {
    std::optional<SearchText> search = SearchText::For(field, text);
    if (!search) return;
    view_.BeginView();
    store::RecordSet rows = OpenRows(sources_.datSong, store::kAllSongs);
    for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext()) {
        if (!search->Matches(rows)) continue;
        view_.AddSong(rows.Text(store::tblSong::SongID), rows.Text(store::tblSong::artist),
                      rows.Text(store::tblSong::title));
    }
    view_.EndView();
}

void SearchRoom::SetSearchField(std::string_view field) {
    UnCheckSongSearch();
    menu_.mnuSearchBroad.SetChecked(field == "Broad");
    menu_.mnuSearchTitle.SetChecked(field == "Title");
    menu_.mnuSearchArtist.SetChecked(field == "Artist");
    menu_.mnuSearchFilename.SetChecked(field == "Filename");
    ShowHint();
}

std::string_view SearchRoom::SearchField() const {
    if (menu_.mnuSearchBroad.Checked()) return "Broad";
    if (menu_.mnuSearchArtist.Checked()) return "Artist";
    if (menu_.mnuSearchTitle.Checked()) return "Title";
    if (menu_.mnuSearchFilename.Checked()) return "Filename";
    return {};
}

void SearchRoom::UnCheckSongSearch() {
    menu_.mnuSearchBroad.SetChecked(false);
    menu_.mnuSearchTitle.SetChecked(false);
    menu_.mnuSearchArtist.SetChecked(false);
    menu_.mnuSearchFilename.SetChecked(false);
}

void SearchRoom::ShowHint() {
    const std::string_view field = SearchField();
    controls_.txtSearch.SetHint(std::string("Search tracks \u2014 ").append(field.empty() ? "Broad" : field));
}

}  // namespace library
