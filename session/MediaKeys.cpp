#include "session/MediaKeys.h"

#include <array>

#include "web/Addresses.h"

namespace session {

void MediaKeys::KeyDown(int key_code, int shift) {
    struct KeyAction {
        int key_code;  // the platform's
        void (*act)(MediaKeys&);
    };
    static constexpr std::array kKeys = {
        KeyAction{166, [](MediaKeys& keys) { keys.page_.GoBack(); }},
        KeyAction{167, [](MediaKeys& keys) { keys.page_.GoForward(); }},
        KeyAction{168, [](MediaKeys& keys) { keys.page_.Refresh(); }},
        KeyAction{172, [](MediaKeys& keys) { keys.opener_.OpenTab(web::MakerSiteUrl); }},
        KeyAction{173, [](MediaKeys& keys) { keys.transport_.ToggleMute(); }},
        KeyAction{174, [](MediaKeys& keys) { keys.transport_.DecreaseVolume(); }},
        KeyAction{175, [](MediaKeys& keys) { keys.transport_.IncreaseVolume(); }},
        KeyAction{176, [](MediaKeys& keys) { keys.transport_.Next(); }},
        KeyAction{177, [](MediaKeys& keys) { keys.transport_.Previous(); }},
        KeyAction{178, [](MediaKeys& keys) { keys.transport_.Stop(); }},
        KeyAction{179, [](MediaKeys& keys) { keys.PlayOrPause(); }},
    };
    if (shift != 0) return;
    for (const KeyAction& key : kKeys)
        if (key.key_code == key_code) return key.act(*this);
}

void MediaKeys::PlayOrPause() {
    if (transport_.IsPlayShown()) {
        transport_.Play();
    } else {
        transport_.Pause();
    }
}

}  // namespace session
