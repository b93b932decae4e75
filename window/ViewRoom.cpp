#include "window/ViewRoom.h"

#include <utility>

namespace window {

ViewRoom::ViewRoom(controls::Form& window, ViewMenu& menu, library::LibraryListControls& lists,
                   std::function<void()> form_resize)
    : menu_(menu), lists_(lists), form_resize_(std::move(form_resize)) {
    claims_.Claim(window.Resize, [this] { Form_Resize(); });
    claims_.Claim(menu_.mnuMusicJustTracks.Click, [this] { mnuMusicJustTracks_Click(); });
}

void ViewRoom::mnuMusicJustTracks_Click() {
    const bool just_tracks = !menu_.mnuMusicJustTracks.Checked();
    menu_.mnuMusicJustTracks.SetChecked(just_tracks);
    lists_.lstArtists.SetVisible(!just_tracks);
    lists_.lstPlayLists.SetVisible(!just_tracks);
    form_resize_();
}

}  // namespace window
