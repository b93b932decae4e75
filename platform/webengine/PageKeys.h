// The keys that a page's own area answers: what is done to the page itself, as finding, zooming and printing.
//
// They come whatever has the keyboard, the page, the address row or a list, as long as the page is in front.
// Keys that work the tabs and the address row are in web/PageKeysRoom.
#pragma once

namespace webengine {

class EnginePage;

/// Does what the key stands for, by the table in the source. True if the key is used up. `key_code` is the
/// platform's code (letters and digits are their capitals, F1 is 112), `shift` a sum of controls::kShiftMask,
/// kControlMask and kAltMask.
bool TakePageKey(EnginePage& page, int key_code, int shift);

}  // namespace webengine
