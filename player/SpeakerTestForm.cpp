#include "player/SpeakerTestForm.h"

namespace player {

SpeakerTestForm::SpeakerTestForm()
    : controls::Form("frmSpeakerTest", "Sound Test", controls::BorderStyle::FixedDialog) {
    Add(lblTrack, cmdLeft, cmdBoth, cmdRight);
    lblTrack.Move(240, 240, 5160, 360);
    lblTrack.SetAlign(controls::Alignment::Centre);
    lblTrack.SetAccessibleName("What is playing");
    cmdLeft.Move(240, 840, 1560, 480);
    cmdBoth.Move(2040, 840, 1560, 480);
    cmdRight.Move(3840, 840, 1560, 480);
    SetContentSize(5640, 1560);
}

}  // namespace player
