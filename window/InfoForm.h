// The preferences window. Its options are placed here; what its buttons do is not built yet, and nothing
// shows it.
#pragma once

#include "controls/CheckBox.h"
#include "controls/CommandButton.h"
#include "controls/Form.h"
#include "controls/Frame.h"

namespace window {

struct InfoForm {
    InfoForm();

    controls::Form frmInfo{"frmInfo", "Brindlepost - Preferences", controls::BorderStyle::FixedDialog};
    controls::Frame fraOptions{"fraOptions"};
    controls::CheckBox chkSettings{"chkSettings", "Save settings on log out and close"};
    controls::CheckBox chkHomePages{"chkHomePages", "Open home pages on startup"};
    controls::CheckBox chkMSN{"chkMSN", "Show \"What I'm listening to\" on MSN"};
    controls::CheckBox chkCustom{"chkCustom", "Allow custom MSN message"};
    controls::CheckBox chkSaveMSN{"chkSaveMSN", "Save MSN custom messages"};
    controls::CheckBox chkMultiLogin{"chkMultiLogin", "Allow multiple logins"};
    controls::CheckBox chkAutoLogin{"chkAutoLogin", "Use auto-logins (hotmail + myspace)"};
    controls::CheckBox chkHistory{"chkHistory", "Save history"};
    controls::CheckBox chkGoogle{"chkGoogle", "Allow quick Google searching on address bar"};
    controls::CheckBox chkFile{"chkFile", "Allow file open on address bar"};
    controls::CheckBox chkSubFolders{"chkSubFolders", "Include sub-folders when adding new media."};
    controls::CommandButton cmdNewUser{"cmdNewUser", "Create New User"};
    /// The window may unload; until then closing hides it.
    bool unloadme = false;
};

/// The about box; what it shows and does is not built yet, and nothing shows it.
struct AboutForm {
    controls::Form frmAbout{"frmAbout", "About Brindlepost", controls::BorderStyle::FixedDialog};
};

}  // namespace window
