// What an mp3's encoder and decoder put around a recording: silence at both ends, which an album that is cut
// into files must not have where it was cut.
//
// Encoders leave a note of it: in the first frame, which holds no sound ("Info" or "Xing" and what follows
// it), or in a comment of the tag in front of it ("iTunSMPB").
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace gstreamer {

/// Where the recording begins and ends, in nanoseconds of what a decoder gives out. An end of 0 is that of
/// the file.
struct Recording {
    std::int64_t begin = 0;
    std::int64_t end = 0;
};

/// `tag` is the tag in front of the first frame, `frame` the beginning of that frame. The whole file where
/// neither tells.
Recording RecordingOf(std::string_view tag, std::string_view frame);

/// The same for a file; one that is no mp3, or cannot be read, tells nothing.
Recording RecordingOfFile(const std::string& native_path);

}  // namespace gstreamer
