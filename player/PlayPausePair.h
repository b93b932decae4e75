// Which of play and pause the panel offers. More than one room decides it, so the pictures have this keeper.
#pragma once

#include "player/PlayerControls.h"

namespace player {

class PlayPausePair final {
public:
    explicit PlayPausePair(PlayButtonControls& controls) : controls_(controls) {}

    /// Offers play, lit.
    void ShowPlay();
    /// Offers pause, lit.
    void ShowPause();
    /// Offers play, not lit.
    void ShowStopped();
    /// Offers pause; it is lit only if it was.
    void ShowPlaying();
    bool IsPlayShown() const;

private:
    PlayButtonControls& controls_;
};

}  // namespace player
