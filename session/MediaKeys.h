// The multimedia keys of the keyboard, wherever the focus is.
#pragma once

#include "session/Outgoing.h"

namespace session {

class MediaKeys final {
public:
    MediaKeys(MediaKeyActions& actions, AddressBar& address_bar);

    /// Does what the key means. Other keys, and any key with shift, control or alt, do nothing.
    void KeyDown(int key_code, int shift);

private:
    void PlayOrPause();
    void GoHome();

    MediaKeyActions& actions_;
    AddressBar& address_bar_;
};

}  // namespace session
