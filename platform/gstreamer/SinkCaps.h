// What a sound sink can take, told in its place.
//
// A playbin asks its sink before it chooses a decoder, and the sink asks the sound server, with a stream made
// for the question. All that reaches the sink here is of one kind, which every server takes.
#pragma once

#include <gst/gst.h>

namespace gstreamer {

/// 32 bit float, left and right in turn.
inline constexpr const char* kSinkCaps = "audio/x-raw,format=F32LE,layout=interleaved,channels=2";

/// From here on the sink's questions about its caps are answered with kSinkCaps at any rate that the server's
/// library knows.
void AnswerForSink(GstElement* sink);

}  // namespace gstreamer
