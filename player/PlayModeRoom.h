// Repeat and shuffle. Repeat is on while one of its two pictures shows; the check of its menu entry goes
// along.
#pragma once

#include "controls/Event.h"
#include "player/PlayerControls.h"
#include "player/PlayerMenu.h"
#include "roles/AddressRow.h"

namespace player {

class PlayModeRoom final {
public:
    PlayModeRoom(PlayModeControls& controls, PlayModeMenu& menu, roles::AddressRow& address);

    bool IsRepeating() const;
    /// The check of mnuRepeat, which goes along with the pictures.
    bool IsRepeatChecked() const { return menu_.mnuRepeat.Checked(); }
    bool IsShuffling() const { return menu_.mnuShuffle.Checked(); }
    /// The clicks of mnuRepeat and mnuShuffle.
    void ToggleRepeat() { mnuRepeat_Click(); }
    void ToggleShuffle() { mnuShuffle_Click(); }
    /// Once the bright pictures were hidden: the plain ones say what the check of mnuRepeat says.
    void SettlePictures();

private:
    void imgRepeatOver_Click();
    void imgNoRepeatOver_Click();
    void mnuRepeat_Click();
    void mnuShuffle_Click();

    PlayModeControls& controls_;
    PlayModeMenu& menu_;
    roles::AddressRow& address_;
    controls::EventClaims claims_;
};

}  // namespace player
