// The preferences window, with its options in their places. What its buttons do is not built yet, and it is
// never shown.
#pragma once

#include "controls/Form.h"
#include "controls/Frame.h"
#include "session/Options.h"

namespace window {

struct InfoForm {
    InfoForm();

    controls::Form frmInfo{"frmInfo", "Brindlepost - Preferences", controls::BorderStyle::FixedDialog};
    controls::Frame fraOptions{"fraOptions"};
    session::OptionControls options;
    /// The window may unload; until then closing it only hides it.
    bool unloadme = false;
};

/// The about box. Its content is not built yet, and it is never shown.
struct AboutForm {
    controls::Form frmAbout{"frmAbout", "About Brindlepost", controls::BorderStyle::FixedDialog};
};

}  // namespace window
