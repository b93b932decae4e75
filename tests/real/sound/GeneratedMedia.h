// Sound and video files made for a test, in a folder that goes with the object.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace sound {

struct Tone {
    double hertz = 440;
    double seconds = 5;
    double amplitude = 0.5;
    std::string wave{};        ///< when given, heard in place of the tone: an expression in t, of amplitude 1
    std::string right_wave{};  ///< when given, heard on the right channel only, in place of the other
    bool left = true;          ///< it is heard on the left channel
    bool right = true;
};

class GeneratedMedia final {
public:
    GeneratedMedia();
    ~GeneratedMedia();
    GeneratedMedia(const GeneratedMedia&) = delete;
    GeneratedMedia& operator=(const GeneratedMedia&) = delete;

    /// A file whose kind is the ending of its name: the same tone on both channels; a test picture of 25
    /// frames a second in a video; in "mid" a flute of 880 hertz. The native path; empty when it could not be
    /// made.
    std::string Make(std::string_view name, const Tone& tone = {});
    /// A file with these bytes.
    std::string Write(std::string_view name, std::string_view bytes);
    std::string Path(std::string_view name) const { return folder_ + "/" + std::string(name); }

    /// Every kind of the media lists.
    static const std::vector<std::string>& Kinds();

private:
    std::string folder_;
};

}  // namespace sound
