#include "player/PlaybackRoom.h"

#include <algorithm>
#include <utility>

#include "base/DrivePath.h"
#include "base/MediaKinds.h"
#include "base/Number.h"
#include "player/SongTitle.h"
#include "player/Whole.h"

namespace player {

namespace {

constexpr double kTitleStart = 100;
/// Ticks of 50 ms, three seconds: a short title has its turning point where it begins, and would drop out of
/// its box before it was read.
constexpr int kTitleRest = 60;
constexpr int kDeviceLevel = 100;  ///< percent, of a file that was just opened
constexpr std::string_view kEveryTrackMissing = "Every track in this playlist is missing!";

}  // namespace

PlaybackRoom::PlaybackRoom(TitleControls& controls, controls::PictureBox& song_bar, MciLayer& mci,
                           PlayerState& state, PlaybackRooms rooms, PlaybackRoles roles, PlaybackPorts ports)
    : controls_(controls),
      song_bar_(song_bar),
      mci_(mci),
      state_(state),
      rooms_(rooms),
      roles_(roles),
      ports_(ports) {}

void PlaybackRoom::PlaySong(std::string_view filename) {
    Play(std::string(filename), false);
}

void PlaybackRoom::Play(std::string path, bool at_end) {
    // This one, then whatever is cued and every row of the order: after that each has had its turn.
    int turns = 1 + rooms_.cue.PathCount() + rooms_.order.Count();
    // A loop, because a list may hold more missing tracks than the stack has room for.
    while (!CanPlay(path)) {
        if (IsEveryTrackMissing(--turns, at_end)) return;
        path = ChooseNextSong();
    }
    StartSong(path);
}

void PlaybackRoom::EndOfSongCode() {
    PlaySong(ChooseNextSong());
}

void PlaybackRoom::EndSong() {
    Play(ChooseNextSong(), true);
}

void PlaybackRoom::PassOverSong() {
    int turns_left = std::max(rooms_.order.Count() - state_.MissingTrackCount - 1, 0);
    // A song that repeats lets the cue wait.
    if (!rooms_.mode.IsRepeating()) turns_left += rooms_.cue.PathCount();
    if (!IsEveryTrackMissing(turns_left, true)) EndSong();
}

void PlaybackRoom::PassOverLostSong(bool was_heard) {
    if (!was_heard) state_.MissingTrackCount = missing_before_start_;
    PassOverSong();
}

void PlaybackRoom::GetSongInfo(std::int64_t song_id) {
    if (const auto path = rooms_.songs.PathOf(song_id)) PlaySong(*path);
}

void PlaybackRoom::PreviousTrack() {
    if (rooms_.order.Count() > 0) PlaySong(rooms_.songs.PathOfEntry(rooms_.order.Previous()));
}

bool PlaybackRoom::CanPlay(const std::string& filename) {
    rooms_.fade.ClearDrag();
    controls_.lblTrack.Move(kTitleStart, 0, controls_.lblTrack.Width(), controls_.lblTrack.Height());
    state_.title_rest = kTitleRest;
    return base::IsMediaFile(filename) && ports_.files.FileExists(filename);
}

/// As many missing tracks in a row as the order has rows. Where the count is beyond that already, from tracks
/// that were missing before, the turns that are left decide.
bool PlaybackRoom::IsEveryTrackMissing(int turns_left, bool at_end) {
    controls_.lblNoFile.SetVisible(true);
    ++state_.MissingTrackCount;
    if (state_.MissingTrackCount != rooms_.order.Count() && turns_left > 0) return false;
    // With nothing open, or a song at its end, the ticks would go on looking for the next song, also while
    // the box is up.
    if (at_end || state_.FramesPerSecond < 0) {
        state_.PlayerStopped = true;
        rooms_.pair.ShowStopped();
    }
    ports_.dialogs.MsgBox(kEveryTrackMissing);
    return true;
}

void PlaybackRoom::StartSong(const std::string& filename) {
    missing_before_start_ = state_.MissingTrackCount;
    NoteStart(filename);
    CountThePlay(filename);
    was_called_off_ = !MakeReady(filename);
    if (was_called_off_) return;
    rooms_.video.ShowOrHideWindow();
    rooms_.join.Leave();
    if (OpenOnFreeAlias(filename)) {
        rooms_.pair.ShowPlaying();
    } else {
        state_.MissingTrackCount = missing_before_start_;
    }
    MeasureSong();
    ShowTitle(filename);
    rooms_.line.SendNowPlaying();
    CaptionVideoWindow();
    ApplySpeedAndMute();
    rooms_.fade.PlaceMarkerForSong();
    short_songs_ = song_bar_.ScaleWidth() < state_.FadeSeconds ? short_songs_ + 1 : 0;
    rooms_.video.PutVideo();
}

std::string PlaybackRoom::ChooseNextSong() {
    if (state_.VideoPlaying) rooms_.video.SavePlace();
    if (rooms_.mode.IsRepeating()) return controls_.lblFileNowPlaying.Caption();
    if (rooms_.cue.IsPathAtHead()) return rooms_.cue.TakePath();
    if (rooms_.cue.IsIdAtHead()) return rooms_.songs.PathOfEntry(rooms_.cue.TakeEntry());
    return rooms_.songs.PathOfEntry(rooms_.order.Next(rooms_.mode.IsShuffling()));
}

void PlaybackRoom::NoteStart(const std::string& filename) {
    controls_.lblNoFile.SetVisible(false);
    state_.MissingTrackCount = 0;
    roles_.history.AddSiteToHistory(roles::HistoryKind::Music, filename);
}

void PlaybackRoom::CountThePlay(const std::string& filename) {
    if (!roles_.start.IsLoading()) rooms_.songs.AddPlayCount(filename);
}

/// The steps that yield. False when the player was stopped or the program asked to end meanwhile.
bool PlaybackRoom::MakeReady(const std::string& filename) {
    const auto goes_on = [this] { return !ports_.loop.IsEnding() && !state_.PlayerStopped; };
    ++starting_;
    BeginPlaying();
    if (goes_on()) PrepareVideoWindow(filename);
    --starting_;
    return goes_on();
}

void PlaybackRoom::BeginPlaying() {
    state_.VideoPlaying = false;
    state_.PlayerStopped = false;
    // A tick of the yield must not take the song before, which failed, for this one.
    state_.FramesPerSecond = std::max<std::int16_t>(state_.FramesPerSecond, 0);
    ports_.loop.Yield();
}

void PlaybackRoom::PrepareVideoWindow(const std::string& filename) {
    // During the yield a video may have started, which this song now follows.
    state_.VideoPlaying = false;
    if (base::IsVideoFile(filename)) {
        rooms_.video.PrepareVideo();
    } else if (state_.VisualisationOn) {
        rooms_.video.PrepareLightShow();
    } else {
        rooms_.video.PrepareMusic();
    }
}

/// False when the song could not be opened.
bool PlaybackRoom::OpenOnFreeAlias(const std::string& filename) {
    const bool a_playing = mci_.ModeOf(TextOf(Alias::A)) == Mode::Playing;
    const bool b_playing = mci_.ModeOf(TextOf(Alias::B)) == Mode::Playing;
    const AliasRow& row = ChooseAlias(a_playing, b_playing, state_.CurrentAlias);
    const std::string_view alias = TextOf(row.alias);
    mci_.MciClose(alias);
    const std::string opened = mci_.MciOpen(rooms_.video.ParentHandle(), alias, filename, kMpegVideo);
    if (row.silent) {
        mci_.MciSetVolume(alias, "all", 0);
    } else if (row.fade == FadeStart::None && state_.MusicVolume != kDeviceLevel) {
        // No ramp brings it to the slider's level.
        mci_.MciSetVolume(alias, "all", state_.MusicVolume);
    }
    mci_.MciPlay(alias, "", "");
    StartFadeOf(row);
    state_.CurrentAlias = row.alias;
    controls_.lblFileNowPlaying.SetCaption(filename);
    return opened == kMciSuccess;
}

void PlaybackRoom::StartFadeOf(const AliasRow& row) {
    if (row.fade != FadeStart::None) rooms_.fade.StartFade(row.fade == FadeStart::ToB);
}

void PlaybackRoom::MeasureSong() {
    state_.FramesPerSecond =
        Whole16(static_cast<double>(mci_.MciFramesPerSecond(TextOf(state_.CurrentAlias))));
    const auto frames = static_cast<double>(mci_.MciLengthFrames(TextOf(state_.CurrentAlias)));
    // A song that could not be opened leaves the display as it was.
    if (frames == 0) state_.TotalTimeText.clear();
    if (state_.FramesPerSecond <= 0 || frames < 0) return;
    const double seconds = frames / state_.FramesPerSecond;
    song_bar_.SetScaleWidth(seconds);
    state_.TotalTimeText = base::MinutesAndSeconds(base::RoundHalfEven(seconds));
}

void PlaybackRoom::MeasureLateLength() {
    MeasureSong();
    if (state_.FramesPerSecond > 0) rooms_.fade.PlaceMarkerForSong();
}

void PlaybackRoom::ShowTitle(const std::string& filename) {
    const SongTitle song =
        TitleOfFile(base::WithoutStandIns(base::FileNameOf(filename)), state_.VideoPlaying);
    controls_.lblTrack.SetCaption(CaptionOf(song));
    state_.NowArtist = song.artist;
    state_.NowTitle = song.title;
}

void PlaybackRoom::CaptionVideoWindow() {
    if (state_.VideoPlaying) rooms_.video.SetWindowCaption(controls_.lblTrack.Caption());
}

void PlaybackRoom::ApplySpeedAndMute() {
    rooms_.speed.ApplySpeed();
    if (rooms_.volume.IsMuted()) mci_.MciSetVolume(TextOf(state_.CurrentAlias), "all", 0);
}

}  // namespace player
