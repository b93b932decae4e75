// The preferences window: three panes in one place, chosen by the buttons beside them.
#pragma once

#include "controls/CommandButton.h"
#include "controls/Form.h"
#include "controls/Frame.h"
#include "controls/Label.h"
#include "ports/Files.h"
#include "session/BackUpRoom.h"
#include "session/MaintenanceRoom.h"
#include "session/Options.h"
#include "store/DataSource.h"

namespace session {

struct InfoForm {
    /// `files` must outlive the form.
    explicit InfoForm(const ports::Files& files);

    controls::Form frmInfo{"frmInfo", "Brindlepost - Preferences", controls::BorderStyle::FixedDialog};
    controls::Frame fraPanes{"fraPanes"};  ///< the buttons, so that the keyboard goes through them first
    controls::CommandButton cmdOptions{"cmdOptions", "Options"};
    controls::CommandButton cmdHistory{"cmdHistory", "Maintenance"};
    controls::CommandButton cmdBackingUp{"cmdBackingUp", "Back-up"};

    controls::Frame fraOptions{"fraOptions"};
    controls::Label lblOptions{"lblOptions", "OPTIONS"};
    OptionControls options;
    /// What the program does about the file type unasked (docs/decisions/file-type.md).
    controls::Label lblFileType{
        "lblFileType",
        "Brindlepost makes itself your desktop's player for mp3 files (audio/mpeg) at each "
        "start, by an entry in your applications folder and in mimeapps.list. To take it "
        "back, choose another player in the settings of your desktop and then make "
        "mimeapps.list read-only."};
    controls::CommandButton cmdApply{"cmdApply", "Apply"};

    MaintenanceControls maintenance;
    BackUpControls back_up;

    // The window's own, so that its walks disturb no other window's.
    store::DataSource datHistory{"datHistory"};
    store::DataSource datSong{"datSong"};
    store::DataSource datPlayList{"datPlayList"};
    store::DataSource datFolder{"datFolder"};
    /// The window may unload; until then closing it only hides it.
    bool unloadme = false;

private:
    void FillOptions();
    void FillMaintenance();
    void FillBackUp();
};

}  // namespace session
