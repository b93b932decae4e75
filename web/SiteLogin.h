// Fills in the login forms of two sites with what a person has stored.
//
// Nothing looks at the result, and nothing keeps it from firing again when the page comes back after a
// refused password.
#pragma once

#include <string_view>

#include "web/Tabs.h"

namespace web {

class SiteLogin final {
public:
    explicit SiteLogin(Tabs& tabs) : tabs_(tabs) {}

    /// Both work on the page of tab `BrowserNum`; what the page does not have is skipped.
    void LoginToHotmail(std::string_view strName, std::string_view strPass, int BrowserNum);
    void LoginToMySpace(std::string_view strName, std::string_view strPass, int BrowserNum);

private:
    Tabs& tabs_;
};

}  // namespace web
