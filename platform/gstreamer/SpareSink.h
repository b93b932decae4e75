// One sound sink that no song uses, open from the first connection to a sound server to the engine's end.
//
// The sinks of a process share one main loop of the sound client's library, and the last of them to close
// frees it. A song that breaks while one of its decoders is still asking its sink what it can take would have
// that loop freed under the decoder, which ends the process.
#pragma once

namespace gstreamer {

class SpareSink final {
public:
    /// Opens the sink unless it is open, which takes a connection to the server; called from any thread.
    static void Keep();
    /// Closes it. No other sink may be in use.
    static void Release();
};

}  // namespace gstreamer
