#include "window/OptionRoom.h"

#include <array>
#include <cstdint>

#include "base/Number.h"
#include "base/Text.h"

namespace window {
namespace {

using ports::OptionAnswer;
using roles::PlayerStatus;

OptionAnswer NotPossible(std::string_view why) {
    return {.exit_code = ports::kOptionNotPossible, .text = std::string(why)};
}

std::string_view NameOf(PlayerStatus status) {
    switch (status) {
        case PlayerStatus::Playing:
            return "playing";
        case PlayerStatus::Paused:
            return "paused";
        case PlayerStatus::Stopped:
            break;
    }
    return "stopped";
}

// "3:07", or "1:02:03".
std::string ClockText(double seconds) {
    constexpr std::int64_t kMinute = 60;
    constexpr std::int64_t kHour = 3600;
    const auto whole = seconds > 0 ? static_cast<std::int64_t>(seconds) : 0;
    const std::string rest = base::Padded(whole % kMinute, 2);
    if (whole < kHour) return base::ToText(whole / kMinute) + ":" + rest;
    return base::ToText(whole / kHour) + ":" + base::Padded(whole % kHour / kMinute, 2) + ":" + rest;
}

}  // namespace

OptionRoom::OptionRoom(OptionRoles roles, ports::InstanceLock& instance)
    : roles_(roles), instance_(instance) {
    instance_.SetOptionListener(this);
}

OptionRoom::~OptionRoom() {
    instance_.SetOptionListener(nullptr);
}

OptionAnswer OptionRoom::OnOption(std::string_view option) {
    using Verb = OptionAnswer (OptionRoom::*)();
    struct Row {
        std::string_view option;
        Verb verb;
    };
    constexpr std::array kVerbs{Row{"play-pause", &OptionRoom::PlayPause}, Row{"next", &OptionRoom::Next},
                                Row{"previous", &OptionRoom::Previous}, Row{"stop", &OptionRoom::Stop}};
    if (option == "status") return Status();
    for (const Row& row : kVerbs) {
        if (row.option != option) continue;
        return roles_.LoggedIn ? (this->*row.verb)() : NotPossible("Nobody is logged in.");
    }
    return {.exit_code = ports::kOptionUnknown, .text = "The program that runs does not know this option."};
}

OptionAnswer OptionRoom::PlayPause() {
    const PlayerStatus status = roles_.playing.Status();
    if (status == PlayerStatus::Playing) {
        roles_.transport.Pause();
    } else if (status == PlayerStatus::Paused || roles_.playing.Glance().has_selected_track) {
        roles_.transport.Play();
    } else {
        return NotPossible("There is nothing to play.");
    }
    return {};
}

OptionAnswer OptionRoom::Next() {
    if (!roles_.playing.Glance().has_next) return NotPossible("There is no next song.");
    roles_.transport.Next();
    return {};
}

OptionAnswer OptionRoom::Previous() {
    if (!roles_.playing.Glance().has_previous) return NotPossible("There is no song before.");
    roles_.transport.Previous();
    return {};
}

OptionAnswer OptionRoom::Stop() {
    if (roles_.playing.Status() != PlayerStatus::Stopped) roles_.transport.Stop();
    return {};
}

OptionAnswer OptionRoom::Status() {
    const PlayerStatus status = roles_.playing.Status();
    std::string text(NameOf(status));
    if (status == PlayerStatus::Stopped) return {.text = text};
    const roles::CurrentSong song = roles_.playing.Song();
    text.append("\n").append(base::Trim(song.artist)).append(" - ").append(base::Trim(song.title));
    text.append("\n").append(ClockText(roles_.playing.Position()));
    if (song.length > 0) text.append(" of ").append(ClockText(song.length));
    return {.text = text};
}

}  // namespace window
