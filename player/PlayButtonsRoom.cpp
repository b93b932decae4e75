#include "player/PlayButtonsRoom.h"

#include <string>

#include "base/Number.h"
#include "controls/Arrange.h"

namespace player {

PlayButtonsRoom::PlayButtonsRoom(PlayButtonControls& controls, PlayButtonMenu& menu, TrackListView tracks,
                                 controls::Label& lblProgress, PlayOrder& order, MciLayer& mci,
                                 PlayerState& state, PlayButtonRoles roles, NowPlayingMessage& message,
                                 AddressRow& address)
    : controls_(controls),
      tracks_(tracks),
      lblProgress_(lblProgress),
      order_(order),
      mci_(mci),
      state_(state),
      roles_(roles),
      message_(message),
      address_(address) {
    ClaimTwin(claims_, controls_.imgPlay, controls_.imgPlayOver);
    claims_.Claim(controls_.imgPlayOver.Click, [this] { imgPlayOver_Click(); });
    ClaimTwin(claims_, controls_.imgPause, controls_.imgPauseOver);
    claims_.Claim(controls_.imgPauseOver.Click, [this] { imgPauseOver_Click(); });
    ClaimTwin(claims_, controls_.imgStop, controls_.imgStopOver);
    claims_.Claim(controls_.imgStopOver.Click, [this] { imgStopOver_Click(); });
    claims_.Claim(tracks_.lstTracks.DblClick, [this] { lstTracks_DblClick(); });
    claims_.Claim(menu.mnuPlay.Click, [this] { imgPlayOver_Click(); });
    claims_.Claim(menu.mnuPause.Click, [this] { imgPauseOver_Click(); });
    claims_.Claim(menu.mnuStop.Click, [this] { imgStopOver_Click(); });
}

void PlayButtonsRoom::imgPlayOver_Click() {
    ShowPauseButtons();
    if (IsAnyIn("paused")) {
        ResumeCurrent();
    } else if (!IsAnyIn("playing")) {
        lstTracks_DblClick();
    }
    address_.FocusAddress();
}

/// A pause during a crossfade drops the outgoing song here; the other one keeps the level it had.
void PlayButtonsRoom::ResumeCurrent() {
    if (state_.CurrentAlias != "a") {
        mci_.MciClose("a");
        mci_.MciResume("b");
    } else {
        mci_.MciResume("a");
        mci_.MciClose("b");
    }
}

void PlayButtonsRoom::imgPauseOver_Click() {
    mci_.MciPause("a");
    mci_.MciPause("b");
    roles_.crossfade.StopFade();
    ShowPlayButtons();
    address_.FocusAddress();
}

void PlayButtonsRoom::imgStopOver_Click() {
    state_.PlayerStopped = true;
    mci_.MciStop("a");
    mci_.MciStop("b");
    mci_.MciClose("a");
    mci_.MciClose("b");
    lblProgress_.SetLeft(0);
    roles_.video.ClosePane();
    controls_.imgPlay.SetVisible(true);
    controls_.imgPlayOver.SetVisible(false);
    controls_.imgPause.SetVisible(false);
    controls_.imgPauseOver.SetVisible(false);
    roles_.crossfade.StopFade();
    roles_.panning.SetPanningRunning(true);
    message_.SendNowPlaying("", "", "", "", "{0} - {1} {2}", false, "Music");
    roles_.video.HideWindow();
    address_.FocusAddress();
}

void PlayButtonsRoom::lstTracks_DblClick() {
    state_.MissingTrackCount = 0;
    if (!tracks_.lstTracks.Text().empty()) {
        PlaySelectedTrack();
    } else if (IsIdle()) {
        ShowPlayButtons();
    }
    roles_.video.theresize();
}

void PlayButtonsRoom::PlaySelectedTrack() {
    if (tracks_.ListMaybeChanged) order_.CopyFrom(tracks_.lstMaybe);
    tracks_.ListMaybeChanged = false;
    const std::string entry = order_.Select(tracks_.lstTracks.ListIndex());
    if (IsSongId(entry)) {
        roles_.player.GetSongInfo(base::WholeVal(entry));
    } else {
        roles_.player.PlaySong(entry);
    }
    ShowPauseButtons();
}

bool PlayButtonsRoom::IsAnyIn(std::string_view mode) {
    return mci_.MciStatusMode("a") == mode || mci_.MciStatusMode("b") == mode;
}

/// Either alias paused, stopped or closed; one that plays says nothing.
bool PlayButtonsRoom::IsIdle() {
    const std::string b = mci_.MciStatusMode("b");
    const std::string a = mci_.MciStatusMode("a");
    for (const std::string_view mode : {"paused", "stopped", "ERROR"}) {
        if (a == mode || b == mode) return true;
    }
    return false;
}

void PlayButtonsRoom::ShowPlayButtons() {
    controls_.imgPlayOver.SetVisible(true);
    controls_.imgPlay.SetVisible(true);
    controls_.imgPauseOver.SetVisible(false);
    controls_.imgPause.SetVisible(false);
}

void PlayButtonsRoom::ShowPauseButtons() {
    controls_.imgPlayOver.SetVisible(false);
    controls_.imgPlay.SetVisible(false);
    controls_.imgPauseOver.SetVisible(true);
    controls_.imgPause.SetVisible(true);
}

}  // namespace player
