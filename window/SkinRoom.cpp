#include "window/SkinRoom.h"

#include <utility>

namespace window {

SkinRoom::SkinRoom(ChromeControls& controls, const BrightTwins& twins, std::function<void()> settled)
    : controls_(controls), twins_(twins), settled_(std::move(settled)) {
    const auto quiet = [this] { NoMouseOvers(); };
    claims_.Claim(controls_.imgFormBG.MouseMove, quiet);
    claims_.Claim(controls_.imgBG.MouseMove, quiet);
    claims_.Claim(controls_.imgRowBG.MouseMove, quiet);
    claims_.Claim(controls_.fraMusicTab.MouseMove, quiet);
    claims_.Claim(controls_.imgMusicTabBG.MouseMove, quiet);
    claims_.Claim(controls_.lblMusicBG.MouseMove, quiet);
    claims_.Claim(controls_.lblCopyright.MouseMove, [this] { lblCopyright_MouseMove(); });
}

void SkinRoom::NoMouseOvers() {
    for (controls::Image* twin : twins_)
        twin->SetVisible(false);
    controls_.lblCopyright.SetLook("status");
    settled_();
}

void SkinRoom::lblCopyright_MouseMove() {
    controls_.lblCopyright.SetLook("accent");
}

}  // namespace window
