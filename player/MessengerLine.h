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

    /// The last line that was sent told of a song or of the user's own text.
    bool HasTold() const { return has_told_; }
    /// Forgets the names and the user's own text.
    void Forget();

private:
    PlaybackState& state_;
    roles::Messenger& messenger_;
    bool has_told_ = false;
};

}  // namespace player
