// The incremental search of the library: a pause after the last key runs one walk over all songs.
#pragma once

#include <optional>
#include <string_view>

#include "controls/CheckGroup.h"
#include "controls/Event.h"
#include "library/CleanedSongs.h"
#include "library/LibraryControls.h"
#include "library/LibraryMenu.h"
#include "library/SearchText.h"
#include "roles/Highlights.h"
#include "roles/TrackView.h"

namespace library {

class SearchRoom final {
public:
    SearchRoom(SearchControls& controls, SearchMenu& menu, MediaSources& sources, roles::TrackView& view,
               roles::Highlights& highlights);

    /// Fills the view with the songs whose field contains the text. An empty text matches every song.
    void RunLibrarySearch(SearchField field, std::string_view text);
    /// Empties the box; a search that was typed there makes way for the whole library after the usual pause.
    void ClearSearch() { controls_.txtSearch.SetText(""); }
    /// Checks the entry of a field and no other.
    void CheckField(SearchField field);
    /// The field of the checked entry.
    std::optional<SearchField> CheckedField() const;
    /// Unchecks all four entries. A search is by file name then, as it would be stored.
    void UnCheckSongSearch() { fields_.UncheckAll(); }

private:
    void txtSearch_Change();
    void tmrSearch_Tick();
    void mnuSearchArtist_Click() { CheckField(SearchField::Artist); }
    void mnuSearchTitle_Click() { CheckField(SearchField::Title); }
    void mnuSearchFilename_Click() { CheckField(SearchField::Filename); }
    void mnuSearchBroad_Click() { CheckField(SearchField::Broad); }
    SearchField FieldToSearch() const { return CheckedField().value_or(SearchField::Filename); }
    void PrepareSome(SearchField field);
    void AddSong(const store::RecordSet& song);
    void ShowHint();

    SearchControls& controls_;
    SearchMenu& menu_;
    controls::CheckGroup fields_;
    MediaSources& sources_;
    roles::TrackView& view_;
    roles::Highlights& highlights_;
    CleanedSongs cleaned_;
    int ticks_ = 0;
    controls::EventClaims claims_;
};

}  // namespace library
