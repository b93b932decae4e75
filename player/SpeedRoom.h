// The speed of the current song. The device gets the place of the marker's centre; so the normal speed is 3
// percent over the device's own.
#pragma once

#include "controls/Event.h"
#include "player/MarkerDrag.h"
#include "player/MciLayer.h"
#include "player/PlayerControls.h"
#include "player/PlayerMenu.h"
#include "player/PlayerState.h"
#include "roles/AddressRow.h"

namespace player {

/// From the left edge of the speed marker to its centre, in units of its bar.
inline constexpr int kSpeedMarkerCentre = 3;

class SpeedRoom final {
public:
    SpeedRoom(SpeedControls& controls, SpeedMenu& menu, MciLayer& mci, PlayerState& state,
              roles::AddressRow& address);

    /// Gives the current song the speed of the marker.
    void ApplySpeed();
    /// Percent of the device's own speed.
    int Speed() const;
    /// As a press on picSpeed there.
    void SetSpeed(double percent);
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
    void MoveMarker(double left);
    void KeepInsideRightEnd();

    SpeedControls& controls_;
    SpeedMenu& menu_;
    MciLayer& mci_;
    PlayerState& state_;
    roles::AddressRow& address_;
    MarkerDrag SpeedDragging_{DragEnds::FirstThatHolds};
    controls::EventClaims claims_;
};

}  // namespace player
