#include "real/sound/GeneratedMedia.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>

#include "real/sound/Child.h"

namespace sound {
namespace {

using Words = std::vector<std::string>;

constexpr double kEncodingTime = 60;

// How each kind is made: pictures first, where it has them, then sound.
const std::map<std::string, Words, std::less<>>& Codecs() {
    static const std::map<std::string, Words, std::less<>> codecs{
        {"mp3", {"-c:a", "libmp3lame"}},
        {"wma", {"-c:a", "wmav2"}},
        {"wav", {"-c:a", "pcm_s16le"}},
        {"m4a", {"-c:a", "aac"}},
        {"mpg", {"-c:v", "mpeg1video", "-c:a", "mp2"}},
        {"mpeg", {"-c:v", "mpeg1video", "-c:a", "mp2"}},
        {"vob", {"-c:v", "mpeg2video", "-c:a", "ac3", "-f", "vob"}},
        {"wmv", {"-c:v", "wmv2", "-c:a", "wmav2"}},
        {"avi", {"-c:v", "mpeg4", "-c:a", "libmp3lame"}},
        {"mp4", {"-c:v", "mpeg4", "-c:a", "aac"}},
        {"mov", {"-c:v", "mpeg4", "-c:a", "aac"}},
    };
    return codecs;
}

std::string KindOf(std::string_view name) {
    return std::string(name.substr(name.rfind('.') + 1));
}

std::string Channel(const Tone& tone, const std::string& wave, bool heard) {
    if (!heard) return "0";
    const std::string sine = "sin(2*PI*t*" + std::to_string(tone.hertz) + ")";
    return std::to_string(tone.amplitude) + "*(" + (wave.empty() ? sine : wave) + ")";
}

// One flute note of 880 hertz, four seconds long.
constexpr std::string_view kFlute{
    "MThd\0\0\0\6\0\0\0\1\0\x60"
    "MTrk\0\0\0\x14"
    "\0\xC0\x4A"
    "\0\x90\x51\x7F"
    "\x86\0\x80\x51\0"
    "\x60\xB0\x07\x7F"
    "\0\xFF\x2F\0",
    22 + 3 + 4 + 5 + 4 + 4};

}  // namespace

GeneratedMedia::GeneratedMedia() {
    std::string pattern = std::filesystem::temp_directory_path() / "media-XXXXXX";
    if (mkdtemp(pattern.data()) != nullptr) folder_ = pattern;
}

GeneratedMedia::~GeneratedMedia() {
    std::error_code ignored;
    if (!folder_.empty()) std::filesystem::remove_all(folder_, ignored);
}

std::string GeneratedMedia::Make(std::string_view name, const Tone& tone) {
    const std::string kind = KindOf(name);
    if (kind == "mid") return Write(name, kFlute);
    const auto codecs = Codecs().find(kind);
    if (codecs == Codecs().end()) return {};
    const std::string seconds = std::to_string(tone.seconds);
    Words words{"ffmpeg", "-y", "-loglevel", "error"};
    if (codecs->second.front() == "-c:v") {
        words.insert(words.end(), {"-f", "lavfi", "-i", "testsrc=size=160x120:rate=25:duration=" + seconds});
    }
    const std::string left = Channel(tone, tone.wave, tone.left);
    const std::string right =
        Channel(tone, tone.right_wave.empty() ? tone.wave : tone.right_wave, tone.right);
    words.insert(words.end(),
                 {"-f", "lavfi", "-i", "aevalsrc=" + left + "|" + right + ":c=stereo:s=44100:d=" + seconds});
    words.insert(words.end(), codecs->second.begin(), codecs->second.end());
    const std::string path = Path(name);
    words.push_back(path);
    return Child(words).Wait(kEncodingTime) == 0 ? path : std::string();
}

std::string GeneratedMedia::Write(std::string_view name, std::string_view bytes) {
    std::string path = Path(name);
    std::ofstream(path, std::ios::binary) << bytes;
    return path;
}

const std::vector<std::string>& GeneratedMedia::Kinds() {
    static const std::vector<std::string> kinds{"mp3", "wma", "mpg", "mpeg", "wav", "wmv",
                                                "mid", "mp4", "m4a", "mov",  "avi", "vob"};
    return kinds;
}

}  // namespace sound
