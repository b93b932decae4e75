// What the web subsystem reads of the session. Plain data: whoever builds the subsystem binds it to the
// session's own flags.
#pragma once

#include <string>

namespace web {

/// What a user has stored for the two sites whose login forms are filled in.
struct SiteCredentials {
    std::string MySpaceE;
    std::string MySpaceP;
    std::string HotmailE;
    std::string HotmailP;
};

struct SessionFacts {
    const bool& LoggedIn;
    const bool& Internet_Connection;
    const bool& Save_History;
    const bool& Allow_Multiple_Users;
    const bool& Auto_Login;
    /// Cleared by the first media path that is entered.
    bool& StartedWithArguments;
    const SiteCredentials& credentials;
};

}  // namespace web
