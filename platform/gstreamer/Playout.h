// The last stretch of samples on their way to the speaker: cut into short pieces, each gets its level when
// the sink takes it.
//
// Whatever has its level waits in the sink until it is heard, so a change of level is heard late by the
// sink's store and one piece. Decoders and stretchers hand over pieces of up to a tenth of a second.
#pragma once

#include <gst/gst.h>

#include <functional>
#include <memory>

#include "platform/gstreamer/Gain.h"

namespace gstreamer {

/// Stretched sound carries times that are off by some 50 milliseconds. A sink that minds it skips so much a
/// second after each start; one that bears this plays all samples in a row.
inline constexpr GstClockTimeDiff kTimesMayBeOff = 200 * GST_MSECOND;

/// From here on the sink takes samples (32 bit float, left and right in turn) in short pieces with the levels
/// of `gain`. `on_empty` is called on the thread that feeds the sink whenever samples come too late, once the
/// song was heard. For a sink that has not been opened yet and bears times that are off by `kTimesMayBeOff`.
void LevelAtSink(GstElement* sink, std::shared_ptr<Gain> gain, std::function<void()> on_empty);

}  // namespace gstreamer
