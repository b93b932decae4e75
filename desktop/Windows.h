// Every window of the program.
#pragma once

#include <vector>

#include "core/ActivateForm.h"
#include "core/LoginForm.h"
#include "core/StartUpRoom.h"
#include "core/StoreTroubleRoom.h"
#include "desktop/BrowserForm.h"
#include "desktop/InfoForm.h"
#include "library/AddMediaForm.h"
#include "player/SpeakerTestForm.h"
#include "player/VideoForm.h"
#include "webdata/AddFavouriteForm.h"
#include "webdata/HistoryRoom.h"

namespace desktop {

struct Windows {
    /// `files` is what the folder lists show.
    explicit Windows(ports::Files& files);

    BrowserForm frmBrowser;
    core::ActivateForm activate;
    core::LoginForm login;
    webdata::AddFavouriteForm add;
    library::AddMediaForm add_media;
    player::VideoForm frmVideo;
    player::SpeakerTestForm frmSpeakerTest;
    InfoForm info;
    AboutForm about;
    core::StoreTroubleControls trouble;
    webdata::HistoryControls history;
    core::StartUpControls start_up;
    /// The player walks the songs by itself; the library's walks do not disturb it.
    store::DataSource player_songs{"datSong"};

    /// Every window, the main window first.
    std::vector<controls::Form*> All();
    /// Restores the main window if it is minimised and brings it to the front; while somebody logs in, the
    /// login.
    void BringToFront();
};

}  // namespace desktop
