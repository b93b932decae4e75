// The level of the current song, and mute. Only the current song hears a change.
#pragma once

#include "controls/Event.h"
#include "player/MciLayer.h"
#include "player/Outgoing.h"
#include "player/PlayerControls.h"
#include "player/PlayerMenu.h"
#include "player/PlayerState.h"
#include "player/Roles.h"

namespace player {

class VolumeRoom final : public Volume {
public:
    VolumeRoom(VolumeControls& controls, VolumeMenu& menu, MciLayer& mci, PlayerState& state,
               AddressRow& address, MainWindow& window);

    void volchanged() override;
    bool IsMuted() const override { return menu_.mnuMusicMute.Checked(); }

private:
    void picVolume_MouseWheel(int notches);
    void lblVol_MouseDown(double x);
    void imgVol_MouseDown(double x);
    void lblMute_Click();
    void mnuIncreaseVolume_Click();
    void mnuDecreaseVolume_Click();
    void mnuMusicMute_Click();
    void MoveLevel(double left);

    VolumeControls& controls_;
    VolumeMenu& menu_;
    MciLayer& mci_;
    PlayerState& state_;
    AddressRow& address_;
    MainWindow& window_;
    controls::EventClaims claims_;
};

}  // namespace player
