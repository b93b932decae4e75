// The view of the music pane: everything, or just the tracks; and the window's own events that the layout
// answers.
#pragma once

#include <functional>

#include "controls/Event.h"
#include "controls/Form.h"
#include "library/LibraryControls.h"
#include "window/WindowMenu.h"

namespace window {

class ViewRoom final {
public:
    /// `form_resize` runs the layout.
    ViewRoom(controls::Form& window, ViewMenu& menu, library::LibraryListControls& lists,
             std::function<void()> form_resize);

private:
    void Form_Resize() { form_resize_(); }
    void mnuMusicJustTracks_Click();

    ViewMenu& menu_;
    library::LibraryListControls& lists_;
    std::function<void()> form_resize_;
    controls::EventClaims claims_;
};

}  // namespace window
