#include "web/SiteLogin.h"

#include <string>

#include "web/Addresses.h"

namespace web {

using Kind = ports::ElementStep::Kind;

void SiteLogin::LoginToHotmail(std::string_view strName, std::string_view strPass, int BrowserNum) {
    tabs_.Page(BrowserNum)
        .WorkOnDocument(LiveLoginHost, {{Kind::SetValue, "login", std::string(strName)},
                                        {Kind::SetValue, "passwd", std::string(strPass)},
                                        {Kind::Click, "SI", {}}});
}

void SiteLogin::LoginToMySpace(std::string_view strName, std::string_view strPass, int BrowserNum) {
    tabs_.Page(BrowserNum)
        .WorkOnDocument(MySpaceHost, {{Kind::SetValue, "email", std::string(strName)},
                                      {Kind::SetValue, "password", std::string(strPass)},
                                      {Kind::Submit, "theForm", {}}});
}

}  // namespace web
