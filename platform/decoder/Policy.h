// What a decoder may read and whom it may talk to besides the song it was handed, by name.
//
// Read: what the system installs for every program to read, its codecs and sounds among it, and the few files
// of the user that lead to the display and the sound server. Talk: to those two.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace decoder {

/// What the environment says of the display and the sound server.
struct Surroundings {
    std::string home;
    std::string runtime_folder;
    std::string sound_folder;
    std::string sound_server;
    std::string display;
    std::string display_key;

    static Surroundings OfThisProcess();
};

enum class Reading {
    No,
    Exactly,  ///< this file, wherever its name leads
    Below     ///< a file of the system; what its name leads to has to be one as well
};

class Policy final {
public:
    explicit Policy(const Surroundings& surroundings);

    /// `path` is absolute; one with ".." in it is never read.
    Reading MayRead(std::string_view path) const;
    /// The address of a local socket; an abstract one begins with a zero.
    bool MayConnect(std::string_view address) const;
    /// The display or the sound server is on another machine.
    bool NeedsNetwork() const { return needs_network_; }

private:
    void AddDisplay(const Surroundings& surroundings);
    void AddSoundServer(const Surroundings& surroundings);

    std::vector<std::string> files_;
    std::vector<std::string> addresses_;
    std::string sound_settings_;
    bool needs_network_ = false;
};

}  // namespace decoder
