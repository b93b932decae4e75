// The about box: what the program is, its version and that of the page engine, and where to read more.
#pragma once

#include "controls/CommandButton.h"
#include "controls/Form.h"
#include "controls/Frame.h"
#include "controls/Image.h"
#include "controls/Label.h"

namespace window {

struct AboutForm {
    AboutForm();

    controls::Form frmAbout{"frmAbout", "About Brindlepost", controls::BorderStyle::FixedDialog};
    controls::Frame fraAbout{"fraAbout"};
    controls::Image imgAbout{"imgAbout", "brindlepost"};
    controls::Label lblTitle{"lblTitle"};
    controls::Label lblVersion{"lblVersion"};
    controls::Label lblEngineHeading{"lblEngineHeading", "Page engine"};
    controls::Label lblEngine{"lblEngine"};
    controls::Label lblStoresHeading{"lblStoresHeading", "Databases"};
    controls::Label lblStores{"lblStores"};
    controls::Label lblDisclaimer{"lblDisclaimer"};
    controls::CommandButton cmdLarkmoorHome{"cmdLarkmoorHome", "Larkmoor Home Page"};
    controls::CommandButton cmdUpdates{"cmdUpdates", "Check For Updates"};
    controls::CommandButton cmdSysInfo{"cmdSysInfo", "&System Info..."};
    controls::CommandButton cmdOK{"cmdOK", "OK"};
};

}  // namespace window
