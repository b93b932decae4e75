// The ramp between two songs and the marker that starts it.
//
// A tick of tmrFade lowers the outgoing song by 2 percent and raises the incoming one by 2. The ramp ends
// when the incoming song has reached MusicVolume; Pause and Stop end it too. While the sound is muted ticks
// do nothing. The lengths of the ramps and FadeSeconds are separate: a long fade starts 20 seconds before the
// end and takes 25.
#pragma once

#include <string_view>

#include "controls/CheckGroup.h"
#include "controls/Event.h"
#include "controls/Menu.h"
#include "controls/PictureBox.h"
#include "player/MciLayer.h"
#include "player/Outgoing.h"
#include "player/PlayerControls.h"
#include "player/PlayerMenu.h"
#include "player/PlayerState.h"
#include "player/Roles.h"

namespace player {

class FadeRoom final : public Crossfade {
public:
    FadeRoom(FadeControls& controls, FadeMenu& menu, const controls::PictureBox& picSongProgress,
             MciLayer& mci, LevelState& state, const Volume& volume, Panning& panning, AddressRow& address,
             MainWindow& window);

    void StartFade(bool to_b) override;
    void StopFade() override;
    void RestartFade() override;
    void ClearDrag() override;
    void PlaceMarkerForSong() override;
    /// Gives the marker its width and place, after the bar got another width or scale.
    void RestoreMarker();

private:
    void lblStartFade_MouseDown(double x);
    void lblStartFade_MouseMove(double x);
    void lblStartFade_MouseUp(int button);
    void tmrFade_Tick();
    void mnuQuickFade_Click();
    void mnuMediumFade_Click();
    void mnuLongFade_Click();
    void mnuFadeOff_Click();
    void UnTickFades() { fades_.UncheckAll(); }
    void TakeFade(controls::Menu& entry, int interval_ms, int seconds);
    void RunCheckedFade();
    void PlaceMarker();
    void DragMarker(double x);
    int Percent(std::string_view alias);
    void LowerOutgoing(std::string_view alias);
    bool RaiseIncoming(std::string_view alias);

    FadeControls& controls_;
    FadeMenu& menu_;
    controls::CheckGroup fades_;
    const controls::PictureBox& picSongProgress_;
    MciLayer& mci_;
    LevelState& state_;
    const Volume& volume_;
    Panning& panning_;
    AddressRow& address_;
    MainWindow& window_;
    std::int16_t FadeDragX_ = 0;
    controls::EventClaims claims_;
};

}  // namespace player
