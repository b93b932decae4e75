// One sound sink that no song uses, open from the first connection to a sound server to the engine's end.
//
// The sinks of a process share one main loop of the sound client's library, and the last of them to close
// frees it. A song that breaks while one of its decoders is still asking its sink what it can take would have
// that loop freed under the decoder, which ends the process.
//
// And sinks of one client name share a connection to the server; so with the spare sink open a song need not
// connect. When the server went, so did the connection: the first song that finds it dead replaces the spare
// sink by one with another name, as the dead one may be held on to by songs that still have to notice.
#pragma once

#include <gst/gst.h>

namespace gstreamer {

class SpareSink final {
public:
    /// Opens it unless it is open, which takes a connection to the server; called from any thread.
    static void Keep();
    /// A new sound sink that is open, over the spare one's connection where there is one, and belongs to
    /// nobody yet; null when no server can be reached.
    static GstElement* Connect();
    /// Closes it. No other sink may be in use.
    static void Release();
};

}  // namespace gstreamer
