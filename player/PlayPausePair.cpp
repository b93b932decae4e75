#include "player/PlayPausePair.h"

namespace player {

void PlayPausePair::ShowPlay() {
    controls_.imgPlayOver.SetVisible(true);
    controls_.imgPlay.SetVisible(true);
    controls_.imgPauseOver.SetVisible(false);
    controls_.imgPause.SetVisible(false);
}

void PlayPausePair::ShowPause() {
    controls_.imgPlayOver.SetVisible(false);
    controls_.imgPlay.SetVisible(false);
    controls_.imgPauseOver.SetVisible(true);
    controls_.imgPause.SetVisible(true);
}

void PlayPausePair::ShowStopped() {
    controls_.imgPlay.SetVisible(true);
    controls_.imgPlayOver.SetVisible(false);
    controls_.imgPause.SetVisible(false);
    controls_.imgPauseOver.SetVisible(false);
}

void PlayPausePair::ShowPlaying() {
    controls_.imgPlayOver.SetVisible(false);
    controls_.imgPlay.SetVisible(false);
    controls_.imgPause.SetVisible(true);
}

bool PlayPausePair::IsPlayShown() const {
    return controls_.imgPlay.Visible() || controls_.imgPlayOver.Visible();
}

}  // namespace player
