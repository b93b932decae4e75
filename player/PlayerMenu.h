// The menu entries that the player answers; captions and order are in window/MenuTree.cpp.
//
// Each small struct is the group of one room; the last one only puts them together.
#pragma once

#include "controls/Menu.h"

namespace player {

struct PlayButtonMenu {
    controls::Menu mnuPlay{"mnuPlay"};
    controls::Menu mnuPause{"mnuPause"};
    controls::Menu mnuStop{"mnuStop"};
};

struct PlayModeMenu {
    controls::Menu mnuRepeat{"mnuRepeat"};
    controls::Menu mnuShuffle{"mnuShuffle"};
};

struct CueMenu {
    controls::Menu mnuCueSong{"mnuCueSong"};
    controls::Menu mnuRemoveCueList{"mnuRemoveCueList"};
};

struct FadeMenu {
    controls::Menu mnuCrossfade{"mnuCrossfade"};  ///< popped up over the marker
    controls::Menu mnuQuickFade{"mnuQuickFade"};
    controls::Menu mnuMediumFade{"mnuMediumFade"};
    controls::Menu mnuLongFade{"mnuLongFade"};
    controls::Menu mnuFadeOff{"mnuFadeOff"};
};

struct VolumeMenu {
    controls::Menu mnuIncreaseVolume{"mnuIncreaseVolume"};
    controls::Menu mnuDecreaseVolume{"mnuDecreaseVolume"};
    controls::Menu mnuMusicMute{"mnuMusicMute"};
};

struct SpeedMenu {
    controls::Menu mnuIncreaseSpeed{"mnuIncreaseSpeed"};
    controls::Menu mnuDecreaseSpeed{"mnuDecreaseSpeed"};
    controls::Menu mnuNormalSpeed{"mnuNormalSpeed"};
};

struct PanningMenu {
    controls::Menu mnuPanInstant{"mnuPanInstant"};
    controls::Menu mnuPanQuick{"mnuPanQuick"};
    controls::Menu mnuPanMedium{"mnuPanMedium"};
    controls::Menu mnuPanLong{"mnuPanLong"};
    controls::Menu mnuPanOff{"mnuPanOff"};
};

struct VisualMenu {
    controls::Menu mnuStrobe{"mnuStrobe"};
    controls::Menu mnuParty{"mnuParty"};
    controls::Menu mnuMood{"mnuMood"};
    controls::Menu mnuAnim{"mnuAnim"};
    controls::Menu mnuNone{"mnuNone"};
};

struct VideoMenu {
    controls::Menu mnuFullScreen{"mnuFullScreen"};
};

struct SpeakerTestMenu {
    controls::Menu mnuSoundTest{"mnuSoundTest"};
};

struct PlayerMenu : PlayButtonMenu,
                    PlayModeMenu,
                    CueMenu,
                    FadeMenu,
                    VolumeMenu,
                    SpeedMenu,
                    PanningMenu,
                    VisualMenu,
                    VideoMenu,
                    SpeakerTestMenu {};

}  // namespace player
