#include "real/damage/Originals.h"

#include <fstream>
#include <iterator>

#include "real/sound/Child.h"

namespace damage {
namespace {

std::string MakePicture(const sound::GeneratedMedia& files, const std::string& name) {
    std::string path = files.Path(name);
    sound::Child draw({"ffmpeg", "-y", "-loglevel", "error", "-f", "lavfi", "-i", "testsrc=size=160x120",
                       "-frames:v", "1", path});
    return draw.Wait(20) == 0 ? path : std::string();
}

}  // namespace

std::string ContentOf(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::string MakeMedia(sound::GeneratedMedia& files, const std::string& name) {
    if (name.ends_with(".jpeg")) return MakePicture(files, name);
    return files.Make(name, {.seconds = kSongSeconds});
}

}  // namespace damage
