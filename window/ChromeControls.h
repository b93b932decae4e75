// The backgrounds and panels of the main window's groups, and the copyright line.
#pragma once

#include "controls/Frame.h"
#include "controls/Image.h"
#include "controls/Label.h"

namespace window {

struct ChromeControls {
    ChromeControls();

    controls::Image imgFormBG{"imgFormBG"};      ///< the whole window: the strip under menu and tabs
    controls::Image imgBG{"imgBG"};              ///< everything below the tab strip
    controls::Image imgRowBG{"imgRowBG"};        ///< the address row
    controls::Frame fraMusicTab{"fraMusicTab"};  ///< the music pane
    controls::Image imgMusicTabBG{"imgMusicTabBG"};
    controls::Label lblMusicBG{"lblMusicBG"};
    controls::Label lblVolumeLabel{"lblVolumeLabel", "VOLUME"};
    controls::Label lblCopyright{"lblCopyright", "\u00a9 Larkmoor"};
};

}  // namespace window
