#include "window/WebDataLinks.h"

namespace window {

bool WebDataLinks::IsVideoAttached() const {
    return desk_.rooms.player->IsVideoAttached();
}

void WebDataLinks::ShowPane() {
    desk_.windows.frmBrowser.player.video.picVideo.SetVisible(true);
    desk_.rooms.hole->MakeHole();
}

void WebDataLinks::ClosePane() {
    desk_.windows.frmBrowser.player.video.picVideo.SetVisible(false);
    desk_.rooms.hole->CloseHole();
}

void WebDataLinks::FollowMainWindow() {
    desk_.rooms.player->FollowMainWindow();
}

}  // namespace window
