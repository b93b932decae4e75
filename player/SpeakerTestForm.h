// The dialog that sends the sound to one speaker or to both.
#pragma once

#include "controls/CommandButton.h"
#include "controls/Form.h"
#include "controls/Label.h"

namespace player {

struct SpeakerTestForm : controls::Form {
    SpeakerTestForm();

    controls::Label lblTrack{"lblTrack"};  ///< what plays
    controls::CommandButton cmdLeft{"cmdLeft", "Left"};
    controls::CommandButton cmdBoth{"cmdBoth", "Both"};
    controls::CommandButton cmdRight{"cmdRight", "Right"};
};

}  // namespace player
