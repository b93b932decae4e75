#include "desktop/Windows.h"

namespace desktop {

Windows::Windows(ports::Files& files) : add_media(files) {
    // Timers and data that the main window's rooms keep besides its groups.
    frmBrowser.Add(start_up.tmrLoad, trouble.tmrTrouble);
}

std::vector<controls::Form*> Windows::All() {
    return {&frmBrowser, &activate.frmActivate, &login.frmLogin, &add.frmAdd,    &add_media.frmAddMedia,
            &frmVideo,   &frmSpeakerTest,       &info.frmInfo,   &about.frmAbout};
}

}  // namespace desktop
