#include "player/SpeakerTestRoom.h"

namespace player {

SpeakerTestRoom::SpeakerTestRoom(SpeakerTestForm& form, SpeakerTestMenu& menu, const controls::Label& title,
                                 MciLayer& mci, const PlayerState& state, SpeakerTestRooms rooms,
                                 roles::Window& window)
    : form_(form), title_(title), mci_(mci), state_(state), rooms_(rooms), window_(window) {
    claims_.Claim(menu.mnuSoundTest.Click, [this] { mnuSoundTest_Click(); });
    claims_.Claim(form_.cmdLeft.Click, [this] { cmdLeft_Click(); });
    claims_.Claim(form_.cmdRight.Click, [this] { cmdRight_Click(); });
    claims_.Claim(form_.cmdBoth.Click, [this] { cmdBoth_Click(); });
    claims_.Claim(form_.KeyDown, [this](int key_code, int) {
        if (key_code == controls::kKeyEscape) form_.UnloadWindow();
    });
    claims_.Claim(form_.Unload, [this](bool&) { frmSpeakerTest_Unload(); });
}

void SpeakerTestRoom::mnuSoundTest_Click() {
    form_.Show();
    form_.lblTrack.SetCaption(title_.Caption());
    rooms_.panning.TurnPanningOff();
    rooms_.fade.StopFade();
    window_.SetEnabled(false);
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
    rooms_.fade.RestartFade();
    window_.SetEnabled(true);
    rooms_.volume.volchanged();
}

void SpeakerTestRoom::Send(std::string_view channel, int percent) {
    mci_.MciSetVolume(TextOf(state_.CurrentAlias), channel, percent);
}

}  // namespace player
