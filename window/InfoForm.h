// The preferences window. It places its options; what its buttons do is not built yet, and nothing shows it.
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
    /// The window may unload; until then closing hides it.
    bool unloadme = false;
};

/// The about box; what it shows and does is not built yet, and nothing shows it.
struct AboutForm {
    controls::Form frmAbout{"frmAbout", "About Brindlepost", controls::BorderStyle::FixedDialog};
};

}  // namespace window
