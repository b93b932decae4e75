#include "player/PlayButtonsRoom.h"

#include "controls/Arrange.h"

namespace player {

namespace {

constexpr std::string_view kA = TextOf(Alias::A);
constexpr std::string_view kB = TextOf(Alias::B);

}  // namespace

PlayButtonsRoom::PlayButtonsRoom(PlayButtonControls& controls, PlayButtonMenu& menu, TrackListView tracks,
                                 controls::Label& song_marker, MciLayer& mci, PlayerState& state,
                                 PlayButtonRooms rooms, roles::AddressRow& address)
    : controls_(controls),
      tracks_(tracks),
      song_marker_(song_marker),
      mci_(mci),
      state_(state),
      rooms_(rooms),
      address_(address) {
    ClaimTwin(claims_, controls_.imgPlay, controls_.imgPlayOver);
    claims_.Claim(controls_.imgPlayOver.Click, [this] { Play(); });
    ClaimTwin(claims_, controls_.imgPause, controls_.imgPauseOver);
    claims_.Claim(controls_.imgPauseOver.Click, [this] { Pause(); });
    ClaimTwin(claims_, controls_.imgStop, controls_.imgStopOver);
    claims_.Claim(controls_.imgStopOver.Click, [this] { Stop(); });
    claims_.Claim(tracks_.lstTracks.DblClick, [this] { lstTracks_DblClick(); });
    claims_.Claim(menu.mnuPlay.Click, [this] { Play(); });
    claims_.Claim(menu.mnuPause.Click, [this] { Pause(); });
    claims_.Claim(menu.mnuStop.Click, [this] { Stop(); });
}

void PlayButtonsRoom::Play() {
    rooms_.pair.ShowPause();
    if (IsAnyIn(Mode::Paused)) {
        ResumeCurrent();
    } else if (!IsAnyIn(Mode::Playing)) {
        lstTracks_DblClick();
    }
    address_.FocusAddress();
}

/// A pause during a crossfade drops the outgoing song here; the other one keeps the level it had.
void PlayButtonsRoom::ResumeCurrent() {
    if (state_.CurrentAlias != Alias::A) {
        mci_.MciClose(kA);
        mci_.MciResume(kB);
    } else {
        mci_.MciResume(kA);
        mci_.MciClose(kB);
    }
}

void PlayButtonsRoom::Pause() {
    mci_.MciPause(kA);
    mci_.MciPause(kB);
    rooms_.fade.StopFade();
    rooms_.pair.ShowPlay();
    address_.FocusAddress();
}

void PlayButtonsRoom::Stop() {
    state_.PlayerStopped = true;
    mci_.MciStop(kA);
    mci_.MciStop(kB);
    mci_.MciClose(kA);
    mci_.MciClose(kB);
    song_marker_.SetLeft(0);
    rooms_.video.GivePaneBack();
    ShowStopped();
    rooms_.line.SendNothingPlaying();
    rooms_.video.HideWindow();
    address_.FocusAddress();
}

void PlayButtonsRoom::StayStopped() {
    song_marker_.SetLeft(0);
    ShowStopped();
    if (rooms_.video.IsLightShowSeen()) return;
    rooms_.video.GivePaneBack();
    rooms_.video.HideWindow();
}

void PlayButtonsRoom::ShowStopped() {
    rooms_.pair.ShowStopped();
    rooms_.fade.StopFade();
    rooms_.panning.SetPanningRunning(true);
}

void PlayButtonsRoom::lstTracks_DblClick() {
    state_.MissingTrackCount = 0;
    if (!tracks_.lstTracks.Text().empty()) {
        PlaySelectedTrack();
    } else if (IsIdle()) {
        rooms_.pair.ShowPlay();
    }
    rooms_.video.theresize();
}

void PlayButtonsRoom::PlaySelectedTrack() {
    if (tracks_.ListMaybeChanged) rooms_.order.CopyFrom(tracks_.lstMaybe);
    tracks_.ListMaybeChanged = false;
    const base::SongEntry entry = rooms_.order.Select(tracks_.lstTracks.ListIndex());
    if (entry.IsSongId()) {
        rooms_.playback.GetSongInfo(entry.SongId());
    } else {
        rooms_.playback.PlaySong(entry.Text());
    }
    if (!rooms_.playback.WasCalledOff()) rooms_.pair.ShowPause();
}

bool PlayButtonsRoom::IsAnyIn(Mode mode) {
    return mci_.ModeOf(kA) == mode || mci_.ModeOf(kB) == mode;
}

/// Either alias paused, stopped or closed; one that plays says nothing.
bool PlayButtonsRoom::IsIdle() {
    const Mode b = mci_.ModeOf(kB);
    const Mode a = mci_.ModeOf(kA);
    for (const Mode mode : {Mode::Paused, Mode::Stopped, Mode::Error}) {
        if (a == mode || b == mode) return true;
    }
    return false;
}

}  // namespace player
