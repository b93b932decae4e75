// When samples on their way to the speaker are going to be heard.
#pragma once

#include <gst/gst.h>

#include <chrono>

namespace gstreamer {

/// The moment the first sample of a buffer at `pad` is heard. Now, when its sink runs on no clock, or when
/// its clock is implausible.
std::chrono::steady_clock::time_point HeardAt(GstPad* pad, GstBuffer* buffer, GstElement* sink);

}  // namespace gstreamer
