// Tells every running messenger what plays, so that it can show it after the user's name.
#pragma once

#include <string>
#include <string_view>

#include "ports/Messenger.h"
#include "roles/Messenger.h"
#include "session/SessionState.h"

namespace window {

/// The window class of the messengers.
inline constexpr std::string_view kMessengerClass = "MsnMsgrUIManager";

class MSN final : public roles::Messenger {
public:
    /// Both must outlive the module.
    MSN(ports::Messenger& messenger, const session::SessionOptions& options)
        : messenger_(messenger), options_(options) {}

    /// Sends the text under the category "Music". Unless the user allows it (Allow_MSN_Name), which is not
    /// known before the settings are read, nothing is sent and no messenger is looked for.
    void SendNowPlaying(const roles::NowPlayingText& text) override;

private:
    ports::Messenger& messenger_;
    const session::SessionOptions& options_;
};

}  // namespace window
