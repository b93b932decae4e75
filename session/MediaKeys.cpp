#include "session/MediaKeys.h"

#include "web/Addresses.h"

namespace session {

// The platform's codes of the keys.
void MediaKeys::KeyDown(int key_code, int shift) {
    if (shift != 0) return;
    switch (key_code) {
        case 166:
            return page_.GoBack();
        case 167:
            return page_.GoForward();
        case 168:
            return page_.Refresh();
        case 172:
            return opener_.OpenTab(web::MakerSiteUrl);
        case 173:
            return transport_.ToggleMute();
        case 174:
            return transport_.DecreaseVolume();
        case 175:
            return transport_.IncreaseVolume();
        case 176:
            return transport_.Next();
        case 177:
            return transport_.Previous();
        case 178:
            return transport_.Stop();
        case 179:
            return PlayOrPause();
        default:
            return;
    }
}

void MediaKeys::PlayOrPause() {
    if (transport_.IsPlayShown()) {
        transport_.Play();
    } else {
        transport_.Pause();
    }
}

}  // namespace session
