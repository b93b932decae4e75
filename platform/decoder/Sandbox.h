// What a decoder's process gives up before it reads the first file.
//
// It starts no program, makes no file, reaches no network and no other process. What it opens and connects to
// is asked for at its Gatekeeper. What it takes of memory has a limit.
#pragma once

#include "platform/decoder/Wire.h"

namespace decoder {

/// For the whole process, and for good. What the system does not have is in `missing`. `network` leaves the
/// network open, for a display or a sound server that is only there.
Hello EnterSandbox(bool network);

}  // namespace decoder
