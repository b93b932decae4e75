// Media that comes from outside the library: opened by the shell, dropped, typed. And the ways to the dialog
// that fills the library.
#pragma once

#include <string>
#include <string_view>

#include "controls/CommandButton.h"
#include "controls/Event.h"
#include "library/AddMediaRoom.h"
#include "library/LibraryControls.h"
#include "library/LibraryMenu.h"
#include "ports/Dialogs.h"

namespace library {

class OpenedMediaRoom final {
public:
    OpenedMediaRoom(OpenedMediaControls& controls, OpenedMediaMenu& menu,
                    controls::CommandButton& cmdAddToLibrary, AddMediaRoom& add_media, MediaSources& sources,
                    ports::Dialogs& dialogs);

    /// Takes a file into the library unless a song has its path already. A file that the library does not
    /// take is ignored.
    void AddMediaFromCommand(std::string_view path);
    /// Asks, when the library is empty, whether media shall be added, and opens the dialog on Yes.
    void OfferToAddMedia();

    /// Takes a file into the library unless a song has its path. No play is counted: the reload comes here
    /// after every change of a table.
    void AddIfMissing(std::string_view path);
    /// A song has just this path. The test counts a play of that song.
    bool AlreadyInLibrary(std::string_view path);

private:
    void mnuAddToLibrary_Click() { add_media_.ShowDialog(); }
    void cmdAddToLibrary_Click() { add_media_.ShowDialog(); }
    bool IsLibraryEmpty();
    void Add(const std::string& path);
    store::RecordSet SongWith(std::string_view path);

    OpenedMediaControls& controls_;
    AddMediaRoom& add_media_;
    MediaSources& sources_;
    ports::Dialogs& dialogs_;
    controls::EventClaims claims_;
};

}  // namespace library
