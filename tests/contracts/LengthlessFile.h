// A file that does not tell how long it is.
#pragma once

#include <string>

#include "real/sound/Child.h"
#include "real/sound/GeneratedMedia.h"

namespace contracts {

/// A sound of 2 seconds as it was recorded from a stream: its length was not known when its head was
/// written. The native path; empty when it could not be made.
inline std::string MakeLengthless(const sound::GeneratedMedia& files) {
    const std::string path = files.Path("stream.wma");
    sound::Child writer({"sh", "-c",
                         "exec ffmpeg -y -loglevel error -f lavfi -i sine=440:duration=2 -c:a wmav2 -f asf -"
                         " > \"$0\"",
                         path});
    return writer.Wait(60) == 0 ? path : std::string();
}

}  // namespace contracts
