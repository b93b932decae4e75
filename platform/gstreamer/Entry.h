// Where decoded sound comes in: what an encoder put around the recording is left out, and the speed that the
// song is going to have holds from its first sample.
#pragma once

#include <gst/gst.h>

#include <atomic>
#include <memory>

#include "platform/gstreamer/EncoderDelay.h"

namespace gstreamer {

struct EntryWish {
    Recording recording;
    /// Of what comes in before the first jump; a jump brings its own.
    std::atomic<double> rate = 1;
};

class Successor;

/// From here on `pad`, a sink pad, takes sound as `wish` says, and what follows as `successor` says. That
/// begins where the sound before ended, not where its file did.
void TakeAs(GstPad* pad, std::shared_ptr<const EntryWish> wish, std::shared_ptr<Successor> successor);

}  // namespace gstreamer
