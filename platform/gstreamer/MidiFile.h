// Looks through a MIDI file before the engine's own parser gets it.
//
// That parser (GStreamer 1.22) trusts the lengths in a file and ends the process over a wrong one, so only a
// file whose every event lies inside its track is let through.
#pragma once

#include <string>
#include <string_view>

namespace gstreamer {

/// True for a Standard MIDI file, plain or in a RIFF shell, whose tracks lie inside the file and whose events
/// lie inside their tracks.
bool IsWholeMidi(std::string_view bytes);

/// The same for a file; false for one that is larger than any MIDI file (16 MiB) or cannot be read.
bool IsWholeMidiFile(const std::string& native_path);

}  // namespace gstreamer
