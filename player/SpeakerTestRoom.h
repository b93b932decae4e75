// The speaker test: sends the current song to one side or both, with panning and crossfade off.
//
// Closing it starts the fade timer, whether or not a crossfade ran before; the tick then closes the alias
// that FadeToB names as outgoing. The choice of panning stays off.
#pragma once

#include "controls/Event.h"
#include "controls/Label.h"
#include "player/MciLayer.h"
#include "player/Outgoing.h"
#include "player/PlayerMenu.h"
#include "player/PlayerState.h"
#include "player/Roles.h"
#include "player/SpeakerTestForm.h"

namespace player {

/// What other rooms do for it.
struct SpeakerTestRoles {
    Crossfade& crossfade;
    Panning& panning;
    Volume& volume;
};

class SpeakerTestRoom final {
public:
    SpeakerTestRoom(SpeakerTestForm& frmSpeakerTest, SpeakerTestMenu& menu, const controls::Label& lblTrack,
                    MciLayer& mci, const PlayerState& state, SpeakerTestRoles roles, MainWindow& window);

private:
    void mnuSoundTest_Click();
    void cmdLeft_Click();
    void cmdRight_Click();
    void cmdBoth_Click();
    void frmSpeakerTest_Unload();
    void Send(std::string_view channel, int percent);

    SpeakerTestForm& frmSpeakerTest_;
    const controls::Label& lblTrack_;
    MciLayer& mci_;
    const PlayerState& state_;
    SpeakerTestRoles roles_;
    MainWindow& window_;
    controls::EventClaims claims_;
};

}  // namespace player
