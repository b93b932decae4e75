// The title that runs through its box: out to the left, down out of the box, in again from the right on the
// top line.
#pragma once

#include "controls/Event.h"
#include "player/Outgoing.h"
#include "player/PlayerControls.h"
#include "player/PlayerState.h"
#include "player/Roles.h"

namespace player {

class TitleRoom final : public TitleScroller {
public:
    TitleRoom(TitleControls& controls, TitleState& state, MainWindow& window);

    void ScrollStep() override;
    /// Stops the title at its resting place.
    void dontscrolltitle();

private:
    void trackscrollclick();
    void lblTrack_Change();

    TitleControls& controls_;
    TitleState& state_;
    MainWindow& window_;
    controls::EventClaims claims_;
};

}  // namespace player
