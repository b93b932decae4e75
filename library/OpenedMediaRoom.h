// Media that comes from outside the library: opened by the shell, dropped, typed. And the ways to the dialog
// that fills the library.
#pragma once

#include <string_view>

#include "controls/CommandButton.h"
#include "controls/Event.h"
#include "controls/Form.h"
#include "library/LibraryControls.h"
#include "library/LibraryMenu.h"
#include "library/LibraryOutlets.h"
#include "ports/Dialogs.h"

namespace library {

class OpenedMediaRoom final {
public:
    OpenedMediaRoom(OpenedMediaControls& controls, OpenedMediaMenu& menu,
                    controls::CommandButton& cmdAddToLibrary, controls::Form& frmAddMedia,
                    SongStore& song_store, MediaSources& sources, ports::Dialogs& dialogs);

    /// Takes a file into the library, unless it stands there already. A file that the library does not take
    /// is passed over in silence.
    void AddMediaFromCommand(std::string_view path);
    /// A song has just this path. The test counts a play of that song.
    bool AlreadyInLibrary(std::string_view path);
    /// Asks, when the library is empty, whether media shall be added, and opens the dialog on Yes.
    void OfferToAddMedia();

private:
    void mnuAddToLibrary_Click() { frmAddMedia_.Show(); }
    void cmdAddToLibrary_Click() { frmAddMedia_.Show(); }
    bool IsLibraryEmpty();

    OpenedMediaControls& controls_;
    controls::Form& frmAddMedia_;
    SongStore& song_store_;
    MediaSources& sources_;
    ports::Dialogs& dialogs_;
    controls::EventClaims claims_;
};

}  // namespace library
