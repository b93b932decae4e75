// A playbin that has its first song behind it, so that the next one starts sooner.
//
// In its first song a playbin lists every decoder with every sink that could take what comes out of it, which
// takes longer than all the rest of opening a file. A ready one has done so for a moment of silence, played
// into nothing, and is closed again. Each serves one song.
#pragma once

#include <gst/gst.h>

namespace gstreamer {

class ReadyPlaybin final {
public:
    /// The ready one, else a new one; null when there can be none. The caller owns it.
    static GstElement* Take();
    /// Makes one ready unless there is one, which takes some ten milliseconds; called from any thread.
    static void Prepare();
    /// Lets go of it.
    static void Release();
};

}  // namespace gstreamer
