#include "player/PlayerControls.h"

#include "controls/Arrange.h"

namespace player {

namespace {

using controls::Px;

constexpr double kTextHeight = Px(23);
constexpr double kSongBarHeight = Px(16);
constexpr double kVolumeBarHeight = Px(22);
constexpr double kSpeedBarHeight = Px(13);
constexpr double kKnobWidth = Px(10);

}  // namespace

void KeepMarkerWidth(controls::Label& marker, const controls::PictureBox& bar, double width) {
    if (bar.Width() > 0) marker.SetWidth(width * bar.ScaleWidth() / bar.Width());
}

PlayButtonControls::PlayButtonControls() {
    NameTwins(imgPlay, imgPlayOver, "Play");
    NameTwins(imgPause, imgPauseOver, "Pause");
    NameTwins(imgStop, imgStopOver, "Stop");
    Hide(imgPause);
}

PlayModeControls::PlayModeControls() {
    NameTwins(imgRepeat, imgRepeatOver, "Repeat is on: repeat no more");
    NameTwins(imgNoRepeat, imgNoRepeatOver, "Repeat this song");
    Hide(imgRepeat);
}

TitleControls::TitleControls() {
    picTrackTitle.SetLook("well");
    picTrackTitle.SetAccessibleName("Track title");
    lblTrack.Move(100, 0, 0, kTextHeight);
    lblTrack.SetLook("display");
    lblTrack.SetAccessibleName("What is playing");
    lblNoFile.SetLook("accent");
    Hide(lblNoFile, lblFileNowPlaying, lblQuote);
}

ProgressControls::ProgressControls() {
    picRunningTime.SetLook("well");
    picRunningTime.SetAccessibleName("Running time");
    lblRunningTime.Move(0, 0, Px(110), kTextHeight);
    lblRunningTime.SetAlign(controls::Alignment::Centre);
    lblRunningTime.SetLook("readout");
    picSongProgress.SetLook("progress");
    picSongProgress.SetAccessibleName("Position in the song");
    lblProgress.Move(0, 0, kSongMarkerWidth, kSongBarHeight);
    lblProgress.SetLook("marker");
    lblProgress.SetAccessibleName("Position");
}

PanelControls::PanelControls() {
    fraControls.SetLook("raised");
    fraControls.SetAccessibleName("Player");
    imgControlsBG.SetLook("raised");
}

FadeControls::FadeControls() {
    lblStartFade.Move(0, 0, kSongMarkerWidth, kSongBarHeight);
    lblStartFade.SetLook("fademarker");
    lblStartFade.SetAccessibleName("Start of the cross fade");
}

VolumeControls::VolumeControls() {
    picVolume.SetLook("level");
    picVolume.SetAccessibleName("Volume");
    lblNoVol.Move(0, 0, kKnobWidth / 2, kVolumeBarHeight);
    lblNoVol.SetLook("bare");
    Name(lblNoVol, "No sound");
    lblVol.Move(lblNoVol.Right(), 0, kFullVolumeLeft + Px(1), kVolumeBarHeight);
    lblVol.SetLook("bare");
    lblVol.SetAccessibleName("Volume");
    lblFullVol.Move(lblVol.Right(), 0, kKnobWidth / 2 - Px(1), kVolumeBarHeight);
    lblFullVol.SetLook("bare");
    Name(lblFullVol, "Full volume");
    imgVol.Move(kFullVolumeLeft, 0, kKnobWidth, kVolumeBarHeight);
    imgVol.SetLook("marker");
    imgVol.SetAccessibleName("Volume");
    lblMute.SetLook("accent");
    Name(lblMute, "The sound is off: turn it on");
    Hide(lblMute);
}

SpeedControls::SpeedControls() {
    picSpeed.SetLook("track");
    Name(picSpeed, "Speed");
    picSpeed.SetScaleWidth(kSpeedBarScale);
    picSpeed.Add(lblSongSpeed);
    lblSongSpeed.Move(kSpeedBarScale / 2, 0, 0, kSpeedBarHeight);
    lblSongSpeed.SetLook("marker");
    Name(lblSongSpeed, "Speed");
    lblSpeedLabel.SetLook("heading");
}

PlayOrderControls::PlayOrderControls() {
    Hide(lstNowPlaying);
}

CueControls::CueControls() {
    lblCuedLabel.SetLook("heading");
    lstCuedSongs.SetAccessibleName("Up next");
    lstCuedSongs.SetHint("Cue a track or drop files here");
    NameTwins(imgCueSong, imgCueSongOver, "Cue the selected track");
    NameTwins(imgUnCue, imgUnCueOver, "Take the track off the cue list");
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
    picVolume.Add(imgVol, lblNoVol, lblVol, lblFullVol);
    picSpeed.Add(lblSongSpeed);
}

void QueueControls::PutInto(controls::Container& pane) {
    pane.Add(lblCuedLabel, lstCuedSongs, lstCuedSongsPath, lstNowPlaying, imgCueSong, imgCueSongOver,
             imgUnCue, imgUnCueOver);
}

SplitterControls::SplitterControls() {
    lblSlider.SetLook("splitter");
    Name(lblSlider, "Drag to share the height between the lists");
}

ResumeControls::ResumeControls() {
    lblResume.SetLook("link");
    Hide(lblResume);
}

VideoPaneControls::VideoPaneControls() {
    picVideo.SetLook("well");
    picVideo.SetAccessibleName("Video");
    picVideo.SetVisible(false);
    Name(cmdAttachVid, "Put the video into the main window");
}

void PlayerControls::PutInto(controls::Container& pane, controls::Container& window) {
    transport.PutInto(pane);
    levels.PutInto(transport);
    queue.PutInto(pane);
    pane.Add(splitter.lblSlider, resume.tmrKeepPlace);
    transport.picTrackTitle.Add(resume.lblResume);
    transport.fraControls.Add(video.cmdAttachVid);
    window.Add(video.picVideo);
}

}  // namespace player
