// The line about the current song that messengers show.
#pragma once

#include "player/PlayerState.h"
#include "roles/Messenger.h"
#include "roles/MessengerLine.h"

namespace player {

class MessengerLine final : public roles::MessengerLine {
public:
    MessengerLine(PlaybackState& state, roles::Messenger& messenger) : state_(state), messenger_(messenger) {}

    void SetCustomText(std::string_view text) override;
    void SendNowPlaying() override;
    void SendNothingPlaying() override;

private:
    PlaybackState& state_;
    roles::Messenger& messenger_;
};

}  // namespace player
