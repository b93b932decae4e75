// The view of the music pane: everything, or just the tracks; and the window's own events that the layout
// answers.
#pragma once

#include <functional>

#include "controls/Event.h"
#include "controls/Surfaces.h"
#include "library/LibraryControls.h"

namespace window {

class ViewRoom final {
public:
    /// `form_resize` lays the window out.
    ViewRoom(controls::Form& window, controls::Menu& mnuMusicJustTracks, library::LibraryListControls& lists,
             std::function<void()> form_resize);

private:
    void Form_Resize() { form_resize_(); }
    void mnuMusicJustTracks_Click();

    controls::Menu& mnuMusicJustTracks_;
    library::LibraryListControls& lists_;
    std::function<void()> form_resize_;
    controls::EventClaims claims_;
};

}  // namespace window
