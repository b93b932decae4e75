// The incremental search of the library: a pause after the last key runs one walk over all songs.
#pragma once

#include <string>
#include <string_view>

#include "controls/CheckGroup.h"
#include "controls/Event.h"
#include "library/CleanedSongs.h"
#include "library/LibraryControls.h"
#include "library/LibraryMenu.h"
#include "library/LibraryOutlets.h"

namespace library {

class SearchRoom final {
public:
    SearchRoom(SearchControls& controls, SearchMenu& menu, MediaSources& sources, TrackView& view,
               MouseOvers& mouse_overs);

    /// Fills the view with the songs whose field contains the text. `field` is "Broad", "Title", "Artist" or
    /// "Filename"; any other finds nothing to search and changes nothing. An empty text matches every song.
    void RunLibrarySearch(std::string_view field, std::string_view text);
    /// Checks the entry of a field and no other; none for any other text.
    void SetSearchField(std::string_view field);
    /// The field of the checked entry; empty when none is checked.
    std::string_view SearchField() const;
    void UnCheckSongSearch() { fields_.UncheckAll(); }

private:
    void txtSearch_Change();
    void tmrSearch_Tick();
    void mnuSearchArtist_Click() { SetSearchField("Artist"); }
    void mnuSearchTitle_Click() { SetSearchField("Title"); }
    void mnuSearchFilename_Click() { SetSearchField("Filename"); }
    void mnuSearchBroad_Click() { SetSearchField("Broad"); }
    void PrepareSome(std::string_view field);
    void AddSong(const store::RecordSet& song);
    void ShowHint();

    SearchControls& controls_;
    SearchMenu& menu_;
    controls::CheckGroup fields_;
    MediaSources& sources_;
    TrackView& view_;
    MouseOvers& mouse_overs_;
    CleanedSongs cleaned_;
    int ticks_ = 0;
    controls::EventClaims claims_;
};

}  // namespace library
