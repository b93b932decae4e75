// Repeat and shuffle. Repeat is on while one of its two pictures shows; the check of its menu entry goes
// along.
#pragma once

#include "controls/Event.h"
#include "player/Outgoing.h"
#include "player/PlayerControls.h"
#include "player/PlayerMenu.h"
#include "player/Roles.h"

namespace player {

class PlayModeRoom final : public PlayMode {
public:
    PlayModeRoom(PlayModeControls& controls, PlayModeMenu& menu, AddressRow& address);

    bool IsRepeating() const override;
    bool IsShuffling() const override { return menu_.mnuShuffle.Checked(); }
    /// Once the bright pictures were hidden: the plain ones say what the check of mnuRepeat says.
    void SettlePictures();

private:
    void imgRepeatOver_Click();
    void imgNoRepeatOver_Click();
    void mnuRepeat_Click();
    void mnuShuffle_Click();

    PlayModeControls& controls_;
    PlayModeMenu& menu_;
    AddressRow& address_;
    controls::EventClaims claims_;
};

}  // namespace player
