#include "window/Windows.h"

namespace window {

Windows::Windows(ports::Files& files) : add_media(files), info(files) {
    // Timers and data that the main window's rooms keep besides its groups.
    frmBrowser.Add(start_up.tmrLoad, trouble.tmrTrouble);
}

std::vector<controls::Form*> Windows::All() {
    return {&frmBrowser, &activate.frmActivate, &login.frmLogin, &add.frmAdd,    &add_media.frmAddMedia,
            &frmVideo,   &frmSpeakerTest,       &info.frmInfo,   &about.frmAbout};
}

void Windows::BringToFront() {
    frmBrowser.Restore();
    controls::Form& in_front = login.frmLogin.Visible() ? login.frmLogin : frmBrowser;
    in_front.BringToFront();
}

}  // namespace window
