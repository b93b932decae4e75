// Fills in the login forms of two sites with what a user has stored.
//
// The steps are sent off whenever they are asked for. That names and passwords go to no other host than their
// own is seen to in the document itself: the page engine carries them out only where they belong. Nothing
// looks at the result, and nothing keeps it from firing again when the page comes back after a refused
// password.
#pragma once

#include <string_view>

#include "web/TabRoom.h"

namespace web {

class SiteLogin final {
public:
    explicit SiteLogin(TabRoom& tabs) : tabs_(tabs) {}

    /// Both work on the page of tab `BrowserNum`; what the page does not have is skipped.
    void LoginToHotmail(std::string_view strName, std::string_view strPass, int BrowserNum);
    void LoginToMySpace(std::string_view strName, std::string_view strPass, int BrowserNum);

private:
    TabRoom& tabs_;
};

}  // namespace web
