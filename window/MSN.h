// Tells every running messenger what plays, so that it can show it behind the person's name.
#pragma once

#include <string>
#include <string_view>

#include "ports/Messenger.h"
#include "session/SessionState.h"

namespace window {

/// The window class of the messengers.
inline constexpr std::string_view kMessengerClass = "MsnMsgrUIManager";

class MSN final {
public:
    /// Both must outlive the module.
    MSN(ports::Messenger& messenger, const session::SessionOptions& options)
        : messenger_(messenger), options_(options) {}

    /// `format` says how the messenger puts first {0}, second {1} and third {2} together. The category is not
    /// used: the text always says "Music".
    /// Unless the user allows it (Allow_MSN_Name), which is not known before the settings are read, nothing
    /// is sent and no messenger is looked for.
    void SendNowPlaying(std::string_view first, std::string_view second, std::string_view third,
                        std::string_view extra, std::string_view format, bool enabled,
                        std::string_view category);

private:
    ports::Messenger& messenger_;
    const session::SessionOptions& options_;
};

}  // namespace window
