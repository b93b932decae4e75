// The level of the current song, and mute. Only the current song hears a change.
#pragma once

#include "controls/Event.h"
#include "player/MciLayer.h"
#include "player/PlayerControls.h"
#include "player/PlayerMenu.h"
#include "player/PlayerState.h"
#include "roles/AddressRow.h"
#include "roles/Highlights.h"

namespace player {

class VolumeRoom final {
public:
    VolumeRoom(VolumeControls& controls, VolumeMenu& menu, MciLayer& mci, PlayerState& state,
               roles::AddressRow& address, roles::Highlights& highlights);

    /// Full volume, mute off. The knob keeps its place.
    void SetDefaults();
    /// Sends and keeps the level of imgVol; ends mute.
    void volchanged();
    bool IsMuted() const { return menu_.mnuMusicMute.Checked(); }
    /// 0 to 1; 0 while the sound is off.
    double Volume() const;
    /// As a press on lblVol there.
    void SetVolume(double volume);
    void IncreaseVolume();
    void DecreaseVolume();
    void ToggleMute();

private:
    void picVolume_MouseWheel(int notches);
    void lblVol_MouseDown(double x);
    void imgVol_MouseDown(double x);
    void lblMute_Click();
    void MoveLevel(double left);

    VolumeControls& controls_;
    VolumeMenu& menu_;
    MciLayer& mci_;
    PlayerState& state_;
    roles::AddressRow& address_;
    roles::Highlights& highlights_;
    controls::EventClaims claims_;
};

}  // namespace player
