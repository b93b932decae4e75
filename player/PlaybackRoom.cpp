#include "player/PlaybackRoom.h"

#include "base/Number.h"
#include "base/Text.h"
#include "player/SongTitle.h"
#include "player/Whole.h"

namespace player {

namespace {

constexpr double kTitleStart = 100;
constexpr std::size_t kShortestCuedPath = 9;
constexpr std::string_view kMessageFormat = "{0} - {1} {2}";
constexpr std::string_view kMessageCategory = "Music";
constexpr std::string_view kEveryTrackMissing = "Every track in this playlist is missing!";

}  // namespace

PlaybackRoom::PlaybackRoom(TitleControls& controls, controls::PictureBox& picSongProgress, MciLayer& mci,
                           PlayerState& state, PlaybackParts parts, PlaybackRoles roles,
                           PlaybackNeighbours neighbours)
    : controls_(controls),
      picSongProgress_(picSongProgress),
      mci_(mci),
      state_(state),
      parts_(parts),
      roles_(roles),
      neighbours_(neighbours) {}

void PlaybackRoom::PlaySong(std::string_view filename) {
    std::string path(filename);
    // This one, then whatever is cued and every row of the order: after that each has had its turn.
    int turns = 1 + parts_.cue.Count() + parts_.order.Count();
    // A loop, because a list may hold more missing tracks than the stack has room for.
    while (!CanPlay(path)) {
        if (IsEveryTrackMissing(--turns)) return;
        path = ChooseNextSong();
    }
    StartSong(path);
}

void PlaybackRoom::EndOfSongCode() {
    PlaySong(ChooseNextSong());
}

void PlaybackRoom::PassOverSong() {
    const int turns_left = parts_.order.Count() - state_.MissingTrackCount - 1;
    if (!IsEveryTrackMissing(turns_left)) EndOfSongCode();
}

void PlaybackRoom::GetSongInfo(std::int64_t song_id) {
    if (const auto path = parts_.songs.PathOf(song_id)) PlaySong(*path);
}

void PlaybackRoom::PreviousTrack() {
    if (parts_.order.Count() > 0) PlaySong(PathOfEntry(parts_.order.Previous()));
}

bool PlaybackRoom::CanPlay(const std::string& filename) {
    roles_.crossfade.ClearDrag();
    controls_.lblTrack.SetLeft(kTitleStart);
    return neighbours_.kinds.IsMediaFile(filename) && neighbours_.kinds.FileExists(filename);
}

/// As many missing tracks in a row as the order has rows. Where the count is beyond that already, from tracks
/// that were missing before, the turns that are left decide.
bool PlaybackRoom::IsEveryTrackMissing(int turns_left) {
    controls_.lblNoFile.SetVisible(true);
    ++state_.MissingTrackCount;
    if (state_.MissingTrackCount != parts_.order.Count() && turns_left > 0) return false;
    // With nothing open the ticks would go on looking for the next song.
    if (state_.FramesPerSecond < 0) state_.PlayerStopped = true;
    neighbours_.dialogs.MsgBox(kEveryTrackMissing);
    return true;
}

void PlaybackRoom::StartSong(const std::string& filename) {
    const std::int32_t missing_before = state_.MissingTrackCount;
    NoteStart(filename);
    CountThePlay(filename);
    BeginPlaying();
    if (neighbours_.loop.IsEnding()) return;
    PrepareVideoWindow(filename);
    if (neighbours_.loop.IsEnding()) return;
    roles_.video.ShowOrHideWindow();
    if (!OpenOnFreeAlias(filename)) state_.MissingTrackCount = missing_before;
    MeasureSong();
    ShowTitle(filename);
    SendNowPlaying();
    CaptionVideoWindow();
    ApplySpeedAndMute();
    roles_.crossfade.PlaceMarkerForSong();
    roles_.video.PutVideo();
}

std::string PlaybackRoom::ChooseNextSong() {
    if (state_.VideoPlaying) roles_.video.SavePlace();
    if (roles_.mode.IsRepeating()) return controls_.lblFileNowPlaying.Caption();
    if (parts_.cue.IsPathAtHead()) return parts_.cue.TakePath();
    if (parts_.cue.IsIdAtHead()) return PathOfCuedEntry(parts_.cue.TakeEntry());
    return PathOfEntry(parts_.order.Next(roles_.mode.IsShuffling()));
}

std::string PlaybackRoom::PathOfEntry(const std::string& entry) {
    if (!IsSongId(entry)) return entry;
    return neighbours_.paths.SongPathFromId(base::WholeVal(entry));
}

std::string PlaybackRoom::PathOfCuedEntry(const std::string& entry) {
    if (base::Len(entry) >= kShortestCuedPath) return entry;
    return neighbours_.paths.SongPathFromId(base::WholeVal(entry));
}

void PlaybackRoom::NoteStart(const std::string& filename) {
    controls_.lblNoFile.SetVisible(false);
    state_.MissingTrackCount = 0;
    neighbours_.history.AddSiteToHistory("Music", filename);
}

void PlaybackRoom::CountThePlay(const std::string& filename) {
    if (!neighbours_.window.IsLoading()) parts_.songs.AddPlayCount(filename);
}

void PlaybackRoom::BeginPlaying() {
    state_.VideoPlaying = false;
    state_.PlayerStopped = false;
    neighbours_.loop.Yield();
}

void PlaybackRoom::PrepareVideoWindow(const std::string& filename) {
    // During the yield a video may have started, which this song now follows.
    state_.VideoPlaying = false;
    if (neighbours_.kinds.IsVideoFile(filename)) {
        roles_.video.PrepareVideo();
    } else if (state_.VisualisationOn) {
        roles_.video.PrepareLightShow();
    } else {
        roles_.video.PrepareMusic();
    }
}

/// False when the song could not be opened.
bool PlaybackRoom::OpenOnFreeAlias(const std::string& filename) {
    const bool a_playing = mci_.MciStatusMode("a") == "playing";
    const bool b_playing = mci_.MciStatusMode("b") == "playing";
    const AliasRow& row = ChooseAlias(a_playing, b_playing, state_.CurrentAlias);
    mci_.MciClose(row.alias);
    const std::string opened = mci_.MciOpen(roles_.video.ParentHandle(), row.alias, filename, kMpegVideo);
    if (row.silent) mci_.MciSetVolume(row.alias, "all", 0);
    mci_.MciPlay(row.alias, "", "");
    StartFadeOf(row);
    state_.CurrentAlias = row.alias;
    controls_.lblFileNowPlaying.SetCaption(filename);
    return opened == kMciSuccess;
}

void PlaybackRoom::StartFadeOf(const AliasRow& row) {
    if (row.fade != FadeStart::None) roles_.crossfade.StartFade(row.fade == FadeStart::ToB);
}

void PlaybackRoom::MeasureSong() {
    state_.FramesPerSecond = Whole16(static_cast<double>(mci_.MciFramesPerSecond(state_.CurrentAlias)));
    const auto frames = static_cast<double>(mci_.MciLengthFrames(state_.CurrentAlias));
    // A song that could not be opened leaves the display as it was.
    if (state_.FramesPerSecond <= 0 || frames < 0) return;
    const double seconds = frames / state_.FramesPerSecond;
    picSongProgress_.SetScaleWidth(seconds);
    state_.TotalTimeText = base::MinutesAndSeconds(base::RoundHalfEven(seconds));
}

void PlaybackRoom::ShowTitle(const std::string& filename) {
    const SongTitle song = TitleOfFile(neighbours_.kinds.FileNameOf(filename), state_.VideoPlaying);
    controls_.lblTrack.SetCaption(CaptionOf(song));
    state_.NowArtist = song.artist;
    state_.NowTitle = song.title;
}

void PlaybackRoom::SendNowPlaying() {
    neighbours_.message.SendNowPlaying(state_.NowArtist, state_.NowTitle, state_.NowAlbum, "", kMessageFormat,
                                       true, kMessageCategory);
}

void PlaybackRoom::SendNothingPlaying() {
    neighbours_.message.SendNowPlaying("", "", "", "", kMessageFormat, false, kMessageCategory);
}

void PlaybackRoom::CaptionVideoWindow() {
    if (state_.VideoPlaying) roles_.video.SetWindowCaption(controls_.lblTrack.Caption());
}

void PlaybackRoom::ApplySpeedAndMute() {
    roles_.speed.ApplySpeed();
    if (roles_.volume.IsMuted()) mci_.MciSetVolume(state_.CurrentAlias, "all", 0);
}

}  // namespace player
