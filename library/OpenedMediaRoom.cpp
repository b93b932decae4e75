#include "library/OpenedMediaRoom.h"

#include <cstdint>
#include <string>

#include "base/Number.h"
#include "library/Naming.h"
#include "library/TableRows.h"
#include "store/Tables.h"

namespace library {

OpenedMediaRoom::OpenedMediaRoom(OpenedMediaControls& controls, OpenedMediaMenu& menu,
                                 controls::CommandButton& cmdAddToLibrary, AddMediaRoom& add_media,
                                 MediaSources& sources, ports::Dialogs& dialogs)
    : controls_(controls), add_media_(add_media), sources_(sources), dialogs_(dialogs) {
    claims_.Claim(menu.mnuAddToLibrary.Click, [this] { mnuAddToLibrary_Click(); });
    claims_.Claim(cmdAddToLibrary.Click, [this] { cmdAddToLibrary_Click(); });
}

void OpenedMediaRoom::AddMediaFromCommand(std::string_view path) {
    // The text may belong to a control that the words below change.
    const std::string file(path);
    const SongName name = SongNameFromPath(file);
    controls_.Label5.SetCaption(name.artist);
    controls_.Label6.SetCaption(name.title);
    if (!AlreadyInLibrary(file)) Add(file);
}

void OpenedMediaRoom::AddIfMissing(std::string_view path) {
    const std::string file(path);
    if (!SongWith(file).Eof()) return;
    const SongName name = SongNameFromPath(file);
    controls_.Label5.SetCaption(name.artist);
    controls_.Label6.SetCaption(name.title);
    Add(file);
}

void OpenedMediaRoom::Add(const std::string& path) {
    std::string rejected_in_silence;
    add_media_.addfile(path, controls_.Label5.Caption(), controls_.Label6.Caption(), rejected_in_silence);
}

store::RecordSet OpenedMediaRoom::SongWith(std::string_view path) {
    store::RecordSet songs = OpenRows(sources_.datSong, store::kAllSongs);
    songs.MoveFirst();
    while (!songs.Eof() && songs.Text(store::tblSong::FilePath) != path)
        songs.MoveNext();
    return songs;
}

bool OpenedMediaRoom::AlreadyInLibrary(std::string_view path) {
    store::RecordSet songs = SongWith(path);
    if (songs.Eof()) return false;
    const std::int64_t plays = base::WholeVal(songs.Text(store::tblSong::PlayCount));
    songs.Edit();
    songs.Set(store::tblSong::PlayCount, base::ToText(base::OneMore(plays)));
    songs.Update();
    return true;
}

void OpenedMediaRoom::OfferToAddMedia() {
    if (!IsLibraryEmpty()) return;
    const ports::BoxAnswer answer =
        dialogs_.MsgBox("You currently have no media files in your library, would you like to add media now?",
                        ports::BoxButtons::YesNo, "Add Media");
    if (answer == ports::BoxAnswer::Yes) add_media_.ShowDialog();
}

bool OpenedMediaRoom::IsLibraryEmpty() {
    if (!sources_.datSong.Open(store::kAllSongs)) return false;
    return sources_.datSong.Recordset().RecordCount() == 0;
}

}  // namespace library
