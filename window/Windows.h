// Every window of the program.
#pragma once

#include <vector>

#include "controls/Form.h"
#include "library/AddMediaForm.h"
#include "places/AddFavouriteForm.h"
#include "places/HistoryRoom.h"
#include "player/SpeakerTestForm.h"
#include "player/VideoForm.h"
#include "session/ActivateForm.h"
#include "session/InfoForm.h"
#include "session/LoginForm.h"
#include "session/StartUpRoom.h"
#include "session/StoreTroubleRoom.h"
#include "window/AboutForm.h"
#include "window/BrowserForm.h"

namespace window {

struct Windows {
    /// `files` is what the folder lists show.
    explicit Windows(ports::Files& files);

    BrowserForm frmBrowser;
    session::ActivateForm activate;
    session::LoginForm login;
    places::AddFavouriteForm add;
    library::AddMediaForm add_media;
    player::VideoForm frmVideo;
    player::SpeakerTestForm frmSpeakerTest;
    session::InfoForm info;
    AboutForm about;
    session::StoreTroubleControls trouble;
    places::HistoryControls history;
    session::StartUpControls start_up;
    /// The player's own record set of songs, so that the library's walks do not disturb it.
    store::DataSource player_songs{"datSong"};

    /// Every window, the main window first.
    std::vector<controls::Form*> All();
    /// Restores the main window if it is minimised and brings it to the front; during a login, the login
    /// window.
    void BringToFront();
};

}  // namespace window
