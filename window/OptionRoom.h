// The options of later starts ("--next", "--status"), answered by the program that runs. They steer the
// player as its own buttons do, and leave the window where it is.
#pragma once

#include <string>
#include <string_view>

#include "ports/InstanceLock.h"
#include "roles/NowPlaying.h"
#include "roles/Transport.h"

namespace window {

struct OptionRoles {
    roles::Transport& transport;
    roles::NowPlaying& playing;
    /// With nobody logged in the player is not steered from outside.
    const bool& LoggedIn;
};

class OptionRoom final : private ports::OptionListener {
public:
    /// Listens as long as it lives. Roles and port must outlive the room.
    OptionRoom(OptionRoles roles, ports::InstanceLock& instance);
    ~OptionRoom() override;
    OptionRoom(const OptionRoom&) = delete;
    OptionRoom& operator=(const OptionRoom&) = delete;

private:
    // ports::OptionListener
    ports::OptionAnswer OnOption(std::string_view option) override;

    ports::OptionAnswer PlayPause();
    ports::OptionAnswer Next();
    ports::OptionAnswer Previous();
    ports::OptionAnswer Stop();
    ports::OptionAnswer Status();

    OptionRoles roles_;
    ports::InstanceLock& instance_;
};

}  // namespace window
