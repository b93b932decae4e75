#include "window/ViewRoom.h"

#include <utility>

namespace window {

ViewRoom::ViewRoom(controls::Form& window, controls::Menu& mnuMusicJustTracks,
                   library::LibraryListControls& lists, std::function<void()> form_resize)
    : mnuMusicJustTracks_(mnuMusicJustTracks), lists_(lists), form_resize_(std::move(form_resize)) {
    claims_.Claim(window.Resize, [this] { Form_Resize(); });
    claims_.Claim(mnuMusicJustTracks_.Click, [this] { mnuMusicJustTracks_Click(); });
}

void ViewRoom::mnuMusicJustTracks_Click() {
    const bool just_tracks = !mnuMusicJustTracks_.Checked();
    mnuMusicJustTracks_.SetChecked(just_tracks);
    lists_.lstArtists.SetVisible(!just_tracks);
    lists_.lstPlayLists.SetVisible(!just_tracks);
    form_resize_();
}

}  // namespace window
