#include "player/PlayerControls.h"

namespace player {

namespace {

constexpr double kSmallButton = 420;
constexpr double kPlayButton = 660;
constexpr double kRowHeight = 360;
constexpr double kBarHeight = 240;
constexpr double kKnobWidth = 150;

void Name(controls::Control& control, std::string_view accessible) {
    control.SetAccessibleName(accessible);
    control.SetToolTipText(accessible);
}

template <class... C>
void Hide(C&... controls) {
    (controls.SetVisible(false), ...);
}

/// A plain picture and its bright twin, on one place.
void Pair(controls::Image& plain, controls::Image& bright, double size, std::string_view accessible) {
    plain.Move(plain.Left(), plain.Top(), size, size);
    bright.Move(plain.Left(), plain.Top(), size, size);
    Name(plain, accessible);
    Name(bright, accessible);
    bright.SetVisible(false);
}

}  // namespace

void KeepMarkerWidth(controls::Label& marker, const controls::PictureBox& bar, double width) {
    if (bar.Width() > 0) marker.SetWidth(width * bar.ScaleWidth() / bar.Width());
}

PlayButtonControls::PlayButtonControls() {
    imgPlay.Move(180, 180, 0, 0);
    imgPause.Move(180, 180, 0, 0);
    imgStop.Move(960, 300, 0, 0);
    Pair(imgPlay, imgPlayOver, kPlayButton, "Play");
    Pair(imgPause, imgPauseOver, kPlayButton, "Pause");
    Pair(imgStop, imgStopOver, kSmallButton, "Stop");
    Hide(imgPause);
}

PlayModeControls::PlayModeControls() {
    Pair(imgRepeat, imgRepeatOver, kSmallButton, "Repeat is on: repeat no more");
    Pair(imgNoRepeat, imgNoRepeatOver, kSmallButton, "Repeat this song");
    Hide(imgRepeat);
}

TitleControls::TitleControls() {
    picTrackTitle.Move(1650, 180, 7050, kRowHeight);
    picTrackTitle.SetLook("well");
    picTrackTitle.SetAccessibleName("Track title");
    lblTrack.Move(100, 0, 0, kRowHeight - 15);
    lblTrack.SetLook("display");
    lblTrack.SetAccessibleName("What is playing");
    lblNoFile.Move(1650, 1290, 2400, 270);
    lblNoFile.SetLook("accent");
    Hide(lblNoFile, lblFileNowPlaying, lblQuote);
}

ProgressControls::ProgressControls() {
    picRunningTime.Move(8790, 180, 1650, kRowHeight);
    picRunningTime.SetLook("well");
    picRunningTime.SetAccessibleName("Running time");
    lblRunningTime.Move(0, 0, 1650, kRowHeight - 15);
    lblRunningTime.SetAlign(controls::Alignment::Centre);
    lblRunningTime.SetLook("readout");
    picSongProgress.Move(1650, 630, 8790, kBarHeight);
    picSongProgress.SetLook("progress");
    picSongProgress.SetAccessibleName("Position in the song");
    lblProgress.Move(0, 0, kSongMarkerWidth, kBarHeight);
    lblProgress.SetLook("marker");
    lblProgress.SetAccessibleName("Position");
}

PanelControls::PanelControls() {
    fraControls.Move(0, 0, 14220, 1680);
    fraControls.SetLook("raised");
    fraControls.SetAccessibleName("Player");
    imgControlsBG.SetLook("raised");
}

FadeControls::FadeControls() {
    lblStartFade.Move(0, 0, kSongMarkerWidth, kBarHeight);
    lblStartFade.SetLook("fademarker");
    lblStartFade.SetAccessibleName("Start of the cross fade");
}

VolumeControls::VolumeControls() {
    picVolume.Move(10680, 600, kFullVolumeLeft + kKnobWidth, kBarHeight + 90);
    picVolume.SetLook("level");
    picVolume.SetAccessibleName("Volume");
    lblVol.Move(0, 0, kFullVolumeLeft + controls::kTwipsPerPixel, kBarHeight + 90);
    lblVol.SetLook("bare");
    lblVol.SetAccessibleName("Volume");
    lblFullVol.Move(lblVol.Right(), 0, picVolume.Width() - lblVol.Right(), kBarHeight + 90);
    lblFullVol.SetLook("bare");
    Name(lblFullVol, "Full volume");
    imgVol.Move(kFullVolumeLeft, 0, kKnobWidth, kBarHeight + 90);
    imgVol.SetLook("marker");
    imgVol.SetAccessibleName("Volume");
    lblMute.Move(11820, 240, 720, 270);
    lblMute.SetLook("accent");
    Name(lblMute, "The sound is off: turn it on");
    Hide(lblMute);
}

SpeedControls::SpeedControls() {
    picSpeed.Move(2370, 1050, 2700, kBarHeight - 45);
    picSpeed.SetLook("track");
    Name(picSpeed, "Speed");
    lblSongSpeed.Move(1350, 0, kSpeedMarkerWidth, kBarHeight - 45);
    lblSongSpeed.SetLook("marker");
    Name(lblSongSpeed, "Speed");
    lblSpeedLabel.Move(1650, 1035, 660, 270);
    lblSpeedLabel.SetLook("heading");
    picSpeed.Add(lblSongSpeed);
    picSpeed.SetScaleWidth(kSpeedBarScale);
}

PlayOrderControls::PlayOrderControls() {
    Hide(lstNowPlaying);
}

CueControls::CueControls() {
    lblCuedLabel.SetLook("heading");
    lblCuedLabel.Move(0, 0, 2400, 270);
    lstCuedSongs.Move(0, 0, 4080, 6690);
    lstCuedSongs.SetAccessibleName("Up next");
    lstCuedSongs.SetHint("Cue a track or drop files here");
    Pair(imgCueSong, imgCueSongOver, kSmallButton, "Cue the selected track");
    Pair(imgUnCue, imgUnCueOver, kSmallButton, "Take the track off the cue list");
    Hide(lstCuedSongsPath);
}

void TransportControls::PutInto(controls::Container& pane) {
    pane.Add(fraControls, imgRepeat, imgRepeatOver, imgNoRepeat, imgNoRepeatOver, tmrPlay);
    fraControls.Add(imgControlsBG, imgPlay, imgPlayOver, imgPause, imgPauseOver, imgStop, imgStopOver,
                    picTrackTitle, picRunningTime, picSongProgress, lblNoFile, lblFileNowPlaying, lblQuote);
    picTrackTitle.Add(lblTrack);
    picRunningTime.Add(lblRunningTime);
    picSongProgress.Add(lblProgress);
}

void LevelControls::PutInto(TransportControls& transport) {
    transport.picSongProgress.Add(lblStartFade);
    transport.fraControls.Add(picVolume, lblMute, picSpeed, lblSpeedLabel, tmrFade, tmrPanning);
    picVolume.Add(imgVol, lblVol, lblFullVol);
    picSpeed.Add(lblSongSpeed);
}

void QueueControls::PutInto(controls::Container& pane) {
    pane.Add(lblCuedLabel, lstCuedSongs, lstCuedSongsPath, lstNowPlaying, imgCueSong, imgCueSongOver,
             imgUnCue, imgUnCueOver);
}

SplitterControls::SplitterControls() {
    lblSlider.Move(120, 2880, 10020, 120);
    lblSlider.SetLook("splitter");
    Name(lblSlider, "Drag to share the height between the lists");
}

VideoPaneControls::VideoPaneControls() {
    picVideo.Move(240, 8340, 2400, 2790);
    picVideo.SetLook("well");
    picVideo.SetAccessibleName("Video");
    picVideo.SetVisible(false);
    cmdAttachVid.Move(5310, 1035, 1080, 330);
    Name(cmdAttachVid, "Put the video into the main window");
}

void PlayerControls::PutInto(controls::Container& pane, controls::Container& window) {
    transport.PutInto(pane);
    levels.PutInto(transport);
    queue.PutInto(pane);
    pane.Add(splitter.lblSlider);
    transport.fraControls.Add(video.cmdAttachVid);
    window.Add(video.picVideo);
}

}  // namespace player
