// The about box. Its content is not built yet, and it is never shown.
#pragma once

#include "controls/Form.h"

namespace window {

struct AboutForm {
    controls::Form frmAbout{"frmAbout", "About Brindlepost", controls::BorderStyle::FixedDialog};
};

}  // namespace window
