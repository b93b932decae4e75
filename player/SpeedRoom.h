// The speed of the current song. The device gets the marker's Left plus 3, the centre of the marker; so the
// normal speed is 3 percent over the device's own.
#pragma once

#include "controls/Event.h"
#include "player/MciLayer.h"
#include "player/Outgoing.h"
#include "player/PlayerControls.h"
#include "player/PlayerMenu.h"
#include "player/PlayerState.h"
#include "player/Roles.h"

namespace player {

class SpeedRoom final : public Speed {
public:
    SpeedRoom(SpeedControls& controls, SpeedMenu& menu, MciLayer& mci, PlayerState& state,
              AddressRow& address);

    void ApplySpeed() override;
    /// Gives the bar its scale and the marker its place, after the bar got another width.
    void PlaceMarker();

private:
    void picSpeed_MouseDown(double x);
    void lblSongSpeed_MouseDown(double x);
    void lblSongSpeed_MouseMove(double x);
    void lblSongSpeed_MouseUp();
    void mnuIncreaseSpeed_Click();
    void mnuDecreaseSpeed_Click();
    void mnuNormalSpeed_Click();
    void KeepInsideRightEnd();

    SpeedControls& controls_;
    SpeedMenu& menu_;
    MciLayer& mci_;
    PlayerState& state_;
    AddressRow& address_;
    bool SpeedDragging_ = false;
    std::int16_t SpeedDragX_ = 0;
    controls::EventClaims claims_;
};

}  // namespace player
