#include "player/Player.h"

#include "base/Text.h"

namespace player {
namespace {

VideoRoles RolesOfVideo(const PlayerRoles& roles) {
    return {.window = roles.window,
            .layout = roles.layout,
            .hole = roles.hole,
            .keys = roles.keys,
            .favourites = roles.favourites};
}

}  // namespace

Player::Player(PlayerWindows windows, PlayerState& state, PlayerRoles roles, PlayerPorts ports)
    : watch_(ports.media),
      mci_(watch_, ports.windows, ports.files),
      songs_(ports.songs),
      order_(windows.controls.queue, ports.chance),
      cue_(windows.controls.queue, windows.controls.transport.lblQuote, songs_, state),
      line_(state, roles.messenger),
      mode_(windows.controls.transport, windows.menu, roles.address),
      volume_(windows.controls.levels, windows.menu, mci_, state, roles.address, roles.highlights),
      speed_(windows.controls.levels, windows.menu, mci_, state, roles.address),
      panning_(windows.controls.levels, windows.menu, windows.controls.levels.tmrFade, mci_, state, volume_),
      fade_(windows.controls.levels, windows.menu, windows.controls.transport.picSongProgress, mci_, state,
            volume_, panning_, {.address = roles.address, .window = roles.window}),
      join_(windows.controls.transport, windows.controls.transport.picSongProgress,
            windows.controls.transport.lblProgress, mci_, state,
            {.fade = fade_, .mode = mode_, .order = order_, .cue = cue_, .songs = songs_}, ports.files),
      video_(windows.video, windows.controls.video, windows.menu, mci_, state, RolesOfVideo(roles),
             ports.loop),
      visuals_(windows.video, windows.menu, windows.controls.video.picVideo, state, video_,
               {.layout = roles.layout, .hole = roles.hole, .favourites = roles.favourites}, ports.chance),
      pair_(windows.controls.transport),
      playback_(windows.controls.transport, windows.controls.transport.picSongProgress, mci_, state,
                RoomsOfPlayback(), {.history = roles.history, .start = roles.start},
                {.files = ports.files, .dialogs = ports.dialogs, .loop = ports.loop}),
      queue_(windows.controls.queue, windows.menu, windows.tracks, cue_, playback_, roles.address,
             roles.highlights),
      buttons_(windows.controls.transport, windows.menu, windows.tracks,
               windows.controls.transport.lblProgress, mci_, state, RoomsOfButtons(), roles.address),
      title_(windows.controls.transport, state, playback_, roles.highlights),
      transport_(
          windows.controls.transport, windows.controls.transport, windows.controls.levels.lblStartFade,
          windows.controls.transport.lblTrack, mci_, state,
          {.playback = playback_, .panning = panning_, .title = title_, .video = video_, .join = join_},
          {.address = roles.address, .highlights = roles.highlights}),
      splitter_(windows.controls.splitter, windows.lists, windows.controls.transport.fraControls,
                roles.layout),
      speaker_test_(windows.speaker_test, windows.menu, windows.controls.transport.lblTrack, mci_, state,
                    {.fade = fade_, .panning = panning_, .volume = volume_}, roles.window),
      playing_(windows.controls.transport, windows.tracks, mci_, state, RoomsOfPlaying()),
      order_view_(windows.controls.transport, state,
                  {.order = order_, .mode = mode_, .songs = songs_, .playback = playback_}),
      resume_(windows.controls.resume, windows.controls.transport, state, RoomsOfResume(),
              windows.tracks.ListMaybeChanged, roles.address, ports.kept) {}

PlaybackRooms Player::RoomsOfPlayback() {
    return {.pair = pair_,
            .songs = songs_,
            .order = order_,
            .cue = cue_,
            .mode = mode_,
            .fade = fade_,
            .join = join_,
            .volume = volume_,
            .speed = speed_,
            .video = video_,
            .line = line_};
}

PlayButtonRooms Player::RoomsOfButtons() {
    return {.pair = pair_,
            .order = order_,
            .playback = playback_,
            .fade = fade_,
            .panning = panning_,
            .video = video_,
            .line = line_};
}

NowPlayingRooms Player::RoomsOfPlaying() const {
    return {.watch = watch_, .mode = mode_, .volume = volume_, .speed = speed_, .order = order_, .cue = cue_};
}

ResumeRooms Player::RoomsOfResume() {
    return {.watch = watch_, .order = order_, .cue = cue_, .playback = playback_, .transport = transport_};
}

void Player::StopAndForget() {
    buttons_.Stop();
    title_.Clear();
}

void Player::EndUser() {
    const bool is_anything_there = playing_.Status() != roles::PlayerStatus::Stopped ||
                                   !base::Trim(playing_.TrackCaption()).empty() || line_.HasTold() ||
                                   playback_.IsStarting();
    if (is_anything_there) StopAndForget();
    line_.Forget();
}

void Player::SetDefaults() {
    volume_.SetDefaults();
    fade_.SetDefaults();
    transport_.HideMarker();
}

void Player::RestoreBars() {
    transport_.RestoreBarScale();
    fade_.RestoreMarker();
    speed_.PlaceMarker();
}

}  // namespace player
