#include "window/ChromeControls.h"

namespace window {

ChromeControls::ChromeControls() {
    imgFormBG.SetLook("strip");
    imgBG.SetLook("ground");
    imgRowBG.SetLook("row");
    fraMusicTab.SetLook("ground");
    fraMusicTab.SetAccessibleName("Music Player");
    imgMusicTabBG.SetLook("panel");
    lblMusicBG.SetLook("bare");
    lblVolumeLabel.SetLook("heading");
    lblCopyright.SetLook("status");
}

}  // namespace window
