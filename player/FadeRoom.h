// The ramp between two songs and the marker that starts it.
//
// A tick of tmrFade lowers the outgoing song by 2 percent and raises the incoming one by 2. The ramp ends
// when the incoming song has reached MusicVolume; Pause and Stop end it too. While the sound is muted ticks
// do nothing. The lengths of the ramps and FadeSeconds are separate: a long fade starts 20 seconds before the
// end and takes 25.
#pragma once

#include "controls/CheckGroup.h"
#include "controls/Event.h"
#include "controls/Menu.h"
#include "controls/PictureBox.h"
#include "player/MciLayer.h"
#include "player/PanningRoom.h"
#include "player/PlayerControls.h"
#include "player/PlayerMenu.h"
#include "player/PlayerState.h"
#include "player/VolumeRoom.h"
#include "roles/AddressRow.h"
#include "roles/Window.h"

namespace player {

struct FadeRoles {
    roles::AddressRow& address;
    roles::Window& window;
};

class FadeRoom final {
public:
    FadeRoom(FadeControls& controls, FadeMenu& menu, const controls::PictureBox& song_bar, MciLayer& mci,
             LevelState& state, const VolumeRoom& volume, PanningRoom& panning, FadeRoles roles);

    /// The start of a fade as it is before a length is chosen.
    void SetDefaults();
    /// What the entry mnuQuickFade does.
    void ChooseQuickFade();
    /// The fade is off for this song: the marker is at the end of the bar.
    bool IsOff() const;
    /// Starts the ramp towards "b", or else towards "a".
    void StartFade(bool to_b);
    void StopFade();
    /// Lets the timer run in the direction that it had, whether or not there was a ramp.
    void RestartFade();
    /// Ends a drag of the marker, as a new song does.
    void ClearDrag();
    /// Puts the marker on the bar of a song that just started.
    void PlaceMarkerForSong();
    /// Gives the marker its width and place, after the bar got another width or scale.
    void RestoreMarker();

private:
    void lblStartFade_MouseDown(double x);
    void lblStartFade_MouseMove(double x);
    void lblStartFade_MouseUp(int button);
    void TakeSecondsOfMarker();
    void FinishChoice();
    void tmrFade_Tick();
    void mnuMediumFade_Click();
    void mnuLongFade_Click();
    void mnuFadeOff_Click();
    void UnTickFades() { fades_.UncheckAll(); }
    void TakeFade(controls::Menu& entry, int interval_ms, int seconds);
    void RunCheckedFade();
    void PlaceMarker();
    int Percent(Alias alias);
    void LowerOutgoing(Alias alias);
    bool RaiseIncoming(Alias alias);

    FadeControls& controls_;
    FadeMenu& menu_;
    controls::CheckGroup fades_;
    const controls::PictureBox& song_bar_;
    MciLayer& mci_;
    LevelState& state_;
    const VolumeRoom& volume_;
    PanningRoom& panning_;
    FadeRoles roles_;
    bool chooses_at_marker_ = false;  ///< the menu popped up at the marker
    controls::EventClaims claims_;
};

}  // namespace player
