// Swings the current song between the left and the right speaker, at full level whatever the slider shows.
//
// tmrPanning counts the steps of a sweep at every tick; levels go out only while a sweep is chosen, the sound
// is on and no crossfade runs.
#pragma once

#include "controls/CheckGroup.h"
#include "controls/Event.h"
#include "controls/Menu.h"
#include "controls/Timer.h"
#include "player/MciLayer.h"
#include "player/PlayerControls.h"
#include "player/PlayerMenu.h"
#include "player/PlayerState.h"
#include "player/VolumeRoom.h"

namespace player {

class PanningRoom final {
public:
    PanningRoom(PanningControls& controls, PanningMenu& menu, const controls::Timer& fade_timer,
                MciLayer& mci, const PlaybackState& state, VolumeRoom& volume);

    void SetPanningRunning(bool running);
    /// What the entry mnuPanOff does.
    void TurnPanningOff();

private:
    void tmrPanning_Tick();
    void mnuPanInstant_Click();
    void mnuPanQuick_Click();
    void mnuPanMedium_Click();
    void mnuPanLong_Click();
    void UnTickPanning() { pannings_.UncheckAll(); }
    void TakePanning(controls::Menu& entry, int interval_ms);
    void PanningOn();
    void StepInstant();
    void StepSweep();
    void SendLevels(int left, int right);

    PanningControls& controls_;
    PanningMenu& menu_;
    controls::CheckGroup pannings_;
    const controls::Timer& fade_timer_;
    MciLayer& mci_;
    const PlaybackState& state_;
    VolumeRoom& volume_;
    std::int16_t PanStep_ = 0;
    bool PanReversed_ = false;
    controls::EventClaims claims_;
};

}  // namespace player
