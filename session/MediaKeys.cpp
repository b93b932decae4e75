#include "session/MediaKeys.h"

#include <array>

#include "web/Addresses.h"

namespace session {
namespace {

constexpr int kPlayOrPauseKey = 179;
constexpr int kHomeKey = 172;

struct KeyAction {
    int key_code;
    void (MediaKeyActions::*act)();
};

constexpr std::array kKeys = {
    KeyAction{166, &MediaKeyActions::GoBack},         KeyAction{167, &MediaKeyActions::GoForward},
    KeyAction{168, &MediaKeyActions::RefreshPage},    KeyAction{173, &MediaKeyActions::ToggleMute},
    KeyAction{174, &MediaKeyActions::DecreaseVolume}, KeyAction{175, &MediaKeyActions::IncreaseVolume},
    KeyAction{176, &MediaKeyActions::EndOfSongCode},  KeyAction{177, &MediaKeyActions::PlayPreviousTrack},
    KeyAction{178, &MediaKeyActions::Stop},
};

}  // namespace

MediaKeys::MediaKeys(MediaKeyActions& actions, AddressBar& address_bar)
    : actions_(actions), address_bar_(address_bar) {}

void MediaKeys::KeyDown(int key_code, int shift) {
    if (shift != 0) return;
    if (key_code == kPlayOrPauseKey) PlayOrPause();
    if (key_code == kHomeKey) GoHome();
    for (const KeyAction& key : kKeys) {
        if (key.key_code == key_code) (actions_.*key.act)();
    }
}

void MediaKeys::PlayOrPause() {
    if (actions_.IsPlayShown()) {
        actions_.Play();
    } else {
        actions_.Pause();
    }
}

void MediaKeys::GoHome() {
    address_bar_.SetAddress(web::MakerSiteUrl);
    address_bar_.cmdGo();
}

}  // namespace session
