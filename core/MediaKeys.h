// The multimedia keys of the keyboard, wherever the focus is.
#pragma once

#include "core/Outgoing.h"

namespace core {

class MediaKeys final {
public:
    MediaKeys(MediaKeyActions& actions, AddressBar& address_bar);

    /// Does what the key stands for. Other keys, and any key with shift, control or alt, do nothing.
    void KeyDown(int key_code, int shift);

private:
    void PlayOrPause();
    void GoHome();

    MediaKeyActions& actions_;
    AddressBar& address_bar_;
};

}  // namespace core
