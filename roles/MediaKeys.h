// The multimedia keys of the keyboard. Why: whatever has the focus gets the key and passes it on.
#pragma once

namespace roles {

class MediaKeys {
public:
    virtual ~MediaKeys() = default;
    /// Does what the key stands for. Other keys, and any key with shift, control or alt, do nothing.
    virtual void KeyDown(int key_code, int shift) = 0;
};

}  // namespace roles
