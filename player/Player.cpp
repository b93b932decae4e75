#include "player/Player.h"

namespace player {

Player::Player(PlayerWindows windows, PlayerState& state, PlayerNeighbours neighbours, PlayerPorts ports)
    : state_(state),
      songs_(ports.datSong),
      order_(windows.controls.queue, ports.chance),
      cue_(windows.controls.queue, windows.controls.transport.lblQuote, state),
      mode_(windows.controls.transport, windows.menu, neighbours.address),
      volume_(windows.controls.levels, windows.menu, ports.mci, state, neighbours.address, neighbours.window),
      speed_(windows.controls.levels, windows.menu, ports.mci, state, neighbours.address),
      panning_(windows.controls.levels, windows.menu, windows.controls.levels.tmrFade, ports.mci, state,
               volume_),
      fade_(windows.controls.levels, windows.menu, windows.controls.transport.picSongProgress, ports.mci,
            state, volume_, panning_, neighbours.address, neighbours.window),
      video_(windows.frmVideo, windows.controls.video, windows.menu, windows.menu.mnuNone, ports.mci, state,
             neighbours.window, ports.loop),
      visuals_(windows.frmVideo, windows.menu, windows.controls.video.picVideo, state, video_,
               neighbours.window, ports.chance),
      playback_(windows.controls.transport, windows.controls.transport.picSongProgress, ports.mci, state,
                {songs_, order_, cue_}, {mode_, fade_, volume_, speed_, video_},
                {neighbours.kinds, neighbours.paths, neighbours.history, neighbours.message,
                 neighbours.window, ports.dialogs, ports.loop}),
      queue_(windows.controls.queue, windows.menu, windows.tracks, cue_, playback_, neighbours.address,
             neighbours.window),
      buttons_(windows.controls.transport, windows.menu, windows.tracks,
               windows.controls.transport.lblProgress, order_, ports.mci, state,
               {playback_, fade_, panning_, video_}, neighbours.message, neighbours.address),
      title_(windows.controls.transport, state, neighbours.window),
      transport_(windows.controls.transport, windows.controls.transport, windows.controls.levels.lblStartFade,
                 windows.controls.transport.lblTrack, ports.mci, state, {playback_, panning_, title_, video_},
                 neighbours.address, neighbours.window),
      splitter_(windows.controls.splitter, windows.lists, windows.controls.transport.fraControls,
                neighbours.window),
      speaker_test_(windows.frmSpeakerTest, windows.menu, windows.controls.transport.lblTrack, ports.mci,
                    state, {fade_, panning_, volume_}, neighbours.window) {}

void Player::RestoreBars() {
    transport_.RestoreBarScale();
    fade_.RestoreMarker();
    speed_.PlaceMarker();
}

bool Player::IsVideoAttached() const {
    return (state_.VideoPlaying || state_.VisualisationOn) && !state_.resized;
}

}  // namespace player
