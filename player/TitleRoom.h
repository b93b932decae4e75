// The title that runs through its box: out to the left, down out of the box, in again from the right on the
// top line. A new one rests first, so that it can be read. A file dropped on the title plays at once.
#pragma once

#include "controls/Event.h"
#include "player/PlaybackRoom.h"
#include "player/PlayerControls.h"
#include "player/PlayerState.h"
#include "roles/Highlights.h"

namespace player {

class TitleRoom final {
public:
    TitleRoom(TitleControls& controls, TitleState& state, PlaybackRoom& playback,
              roles::Highlights& highlights);

    /// One step of the title, or its resting place when it does not scroll.
    void ScrollStep();
    /// The title of a song that was stopped stays, muted, at its resting place.
    void ShowWhether(bool stopped);
    /// Stops the title at its resting place.
    void dontscrolltitle();
    /// Empties the title.
    void Clear();

private:
    void Rest();
    void trackscrollclick();
    void lblTrack_Change();
    void Title_OLEDragDrop(const controls::DropData& data);

    TitleControls& controls_;
    TitleState& state_;
    PlaybackRoom& playback_;
    roles::Highlights& highlights_;
    controls::EventClaims claims_;
};

}  // namespace player
