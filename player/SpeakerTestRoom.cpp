#include "player/SpeakerTestRoom.h"

namespace player {

SpeakerTestRoom::SpeakerTestRoom(SpeakerTestForm& frmSpeakerTest, SpeakerTestMenu& menu,
                                 const controls::Label& lblTrack, MciLayer& mci, const PlayerState& state,
                                 SpeakerTestRoles roles, MainWindow& window)
    : frmSpeakerTest_(frmSpeakerTest),
      lblTrack_(lblTrack),
      mci_(mci),
      state_(state),
      roles_(roles),
      window_(window) {
    claims_.Claim(menu.mnuSoundTest.Click, [this] { mnuSoundTest_Click(); });
    claims_.Claim(frmSpeakerTest_.cmdLeft.Click, [this] { cmdLeft_Click(); });
    claims_.Claim(frmSpeakerTest_.cmdRight.Click, [this] { cmdRight_Click(); });
    claims_.Claim(frmSpeakerTest_.cmdBoth.Click, [this] { cmdBoth_Click(); });
    claims_.Claim(frmSpeakerTest_.Unload, [this](bool&) { frmSpeakerTest_Unload(); });
}

void SpeakerTestRoom::mnuSoundTest_Click() {
    frmSpeakerTest_.Show();
    frmSpeakerTest_.lblTrack.SetCaption(lblTrack_.Caption());
    roles_.panning.mnuPanOff_Click();
    roles_.crossfade.StopFade();
    window_.EnableWindow(false);
}

void SpeakerTestRoom::cmdLeft_Click() {
    Send("left", 100);
    Send("right", 0);
}

void SpeakerTestRoom::cmdRight_Click() {
    Send("right", 100);
    Send("left", 0);
}

void SpeakerTestRoom::cmdBoth_Click() {
    Send("left", 100);
    Send("right", 100);
}

void SpeakerTestRoom::frmSpeakerTest_Unload() {
    roles_.crossfade.RestartFade();
    window_.EnableWindow(true);
    roles_.volume.volchanged();
}

void SpeakerTestRoom::Send(std::string_view channel, int percent) {
    mci_.MciSetVolume(state_.CurrentAlias, channel, percent);
}

}  // namespace player
