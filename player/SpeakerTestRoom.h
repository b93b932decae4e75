// The speaker test: sends the current song to one side or both, with panning and crossfade off.
//
// Closing it starts the fade timer, whether or not a crossfade ran before; the tick then closes the alias
// that FadeToB names as outgoing. The choice of panning stays off.
#pragma once

#include "controls/Event.h"
#include "controls/Label.h"
#include "player/FadeRoom.h"
#include "player/MciLayer.h"
#include "player/PanningRoom.h"
#include "player/PlayerMenu.h"
#include "player/PlayerState.h"
#include "player/SpeakerTestForm.h"
#include "player/VolumeRoom.h"
#include "roles/Window.h"

namespace player {

struct SpeakerTestRooms {
    FadeRoom& fade;
    PanningRoom& panning;
    VolumeRoom& volume;
};

class SpeakerTestRoom final {
public:
    SpeakerTestRoom(SpeakerTestForm& form, SpeakerTestMenu& menu, const controls::Label& title, MciLayer& mci,
                    const PlayerState& state, SpeakerTestRooms rooms, roles::Window& window);

private:
    void mnuSoundTest_Click();
    void cmdLeft_Click();
    void cmdRight_Click();
    void cmdBoth_Click();
    void frmSpeakerTest_Unload();
    void Send(std::string_view channel, int percent);

    SpeakerTestForm& form_;
    const controls::Label& title_;
    MciLayer& mci_;
    const PlayerState& state_;
    SpeakerTestRooms rooms_;
    roles::Window& window_;
    controls::EventClaims claims_;
};

}  // namespace player
