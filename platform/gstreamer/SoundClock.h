// The clock of a sound sink, without its leaps.
//
// A song's place and a film's pictures follow the clock of its sound sink, which asks the sound server's
// client library how much was played. That library reckons from the moment at which a stream that was started
// should be heard; asked before that moment it answers with a time below zero, taken for a huge one, and as
// its answers never go back, with that for good. The sound would go on, and the place and the pictures would
// stay where they are.
#pragma once

#include <gst/gst.h>

#include <functional>

namespace gstreamer {

/// From here on an answer that lies further ahead than time has passed since the last good one, and a second,
/// is ignored; in its place the clock goes on by itself for as long as `is_running` says that the sound does,
/// which is asked from any thread. A clock that is no sound clock, and null, are left alone. Called once for
/// a clock, before it is used.
void IgnoreLeaps(GstClock* clock, std::function<bool()> is_running);
/// The same for the clock of a sink that has not been opened yet.
void IgnoreLeapsOf(GstElement* sink);

}  // namespace gstreamer
