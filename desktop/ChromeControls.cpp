#include "desktop/ChromeControls.h"

namespace desktop {

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

}  // namespace desktop
