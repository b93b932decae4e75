#include "player/PlayModeRoom.h"

#include "controls/Arrange.h"

namespace player {

PlayModeRoom::PlayModeRoom(PlayModeControls& controls, PlayModeMenu& menu, roles::AddressRow& address)
    : controls_(controls), menu_(menu), address_(address) {
    ClaimTwin(claims_, controls_.imgRepeat, controls_.imgRepeatOver);
    claims_.Claim(controls_.imgRepeatOver.Click, [this] { imgRepeatOver_Click(); });
    ClaimTwin(claims_, controls_.imgNoRepeat, controls_.imgNoRepeatOver);
    claims_.Claim(controls_.imgNoRepeatOver.Click, [this] { imgNoRepeatOver_Click(); });
    claims_.Claim(menu_.mnuRepeat.Click, [this] { mnuRepeat_Click(); });
    claims_.Claim(menu_.mnuShuffle.Click, [this] { mnuShuffle_Click(); });
}

bool PlayModeRoom::IsRepeating() const {
    return controls_.imgRepeat.Visible() || controls_.imgRepeatOver.Visible();
}

void PlayModeRoom::SettlePictures() {
    controls_.imgRepeat.SetVisible(menu_.mnuRepeat.Checked());
    controls_.imgNoRepeat.SetVisible(!menu_.mnuRepeat.Checked());
}

void PlayModeRoom::imgRepeatOver_Click() {
    controls_.imgRepeatOver.SetVisible(false);
    controls_.imgNoRepeat.SetVisible(true);
    menu_.mnuRepeat.SetChecked(false);
    address_.FocusAddress();
}

/// imgRepeat itself is not shown here, which is why both pictures count as repeat.
void PlayModeRoom::imgNoRepeatOver_Click() {
    controls_.imgRepeatOver.SetVisible(true);
    controls_.imgNoRepeat.SetVisible(false);
    controls_.imgNoRepeatOver.SetVisible(false);
    menu_.mnuRepeat.SetChecked(true);
    address_.FocusAddress();
}

void PlayModeRoom::mnuRepeat_Click() {
    const bool repeat = !menu_.mnuRepeat.Checked();
    menu_.mnuRepeat.SetChecked(repeat);
    controls_.imgRepeat.SetVisible(repeat);
    controls_.imgNoRepeat.SetVisible(!repeat);
}

void PlayModeRoom::mnuShuffle_Click() {
    menu_.mnuShuffle.SetChecked(!menu_.mnuShuffle.Checked());
}

}  // namespace player
