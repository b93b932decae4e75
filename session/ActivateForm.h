// The splash: a borderless panel with the product's name, the stage that is being loaded, and a progress bar.
// The connection panel lies over its lower half, hidden.
#pragma once

#include "controls/CommandButton.h"
#include "controls/Form.h"
#include "controls/Frame.h"
#include "controls/Label.h"
#include "controls/ProgressBar.h"
#include "controls/Timer.h"
#include "controls/WebBrowser.h"

namespace session {

struct ActivateForm {
    ActivateForm();

    controls::Form frmActivate{"frmActivate", "Brindlepost", controls::BorderStyle::None};
    controls::Frame fraSplash{"fraSplash"};
    controls::Label lblProduct{"lblProduct", "Brindlepost"};
    controls::Label lblProductLine{"lblProductLine", "Your pages and your music in one window"};
    controls::Label lblNowLoading{"lblNowLoading", "Now Loading..."};
    controls::Label lblLoading{"lblLoading", "Brindlepost"};
    controls::ProgressBar pbLoad{"pbLoad"};
    controls::WebBrowser Browser{"Browser"};  ///< probes the connection, never shown
    controls::Timer Timer1{"Timer1", 100};
    controls::Timer Timer2{"Timer2", 100};

    controls::Frame fraConnection{"fraConnection"};
    controls::Label lblNoConnection{"lblNoConnection", "Cannot find Internet connection"};
    controls::CommandButton cmdRetry{"cmdRetry", "Retry"};
    controls::CommandButton cmdJustMusic{"cmdJustMusic", "Skip"};
    controls::CommandButton cmdClose{"cmdClose", "X"};
};

}  // namespace session
