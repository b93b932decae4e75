#include "web/WebHarness.h"

namespace {

using web_tests::Calls;

const std::string kMailLogin = std::string(web::LiveLoginUrl) + "in";
const std::string kOtherLogin = "http://" + std::string(web::MySpaceHost) + "/";

class SiteLogin : public web_tests::WebTest {
protected:
    SiteLogin() {
        web_[kMailLogin] = {"Mail", {}, ""};
        web_[kOtherLogin] = {"Other", {}, ""};
        session.Allow_Multiple_Users = true;
        session.Auto_Login = true;
    }

    /// Lets a login page arrive in tab 1. What the page was then asked for is in its calls.
    void Arrive(const std::string& page) {
        groups.tabs.Browser(1).Navigate(page);
        for (int i = 1; i <= LastTab(); ++i)
            Engine(i).Calls.clear();
        Settle(1);
    }
};

TEST_F(SiteLogin, TheMailLoginIsFilledInAndClicked) {
    Open("http://one.example/");
    session.credentials = {
        .MySpaceE = "x", .MySpaceP = "x", .HotmailE = "owl@one.example", .HotmailP = "hoot"};

    Arrive(kMailLogin);

    EXPECT_EQ(Engine(1).Calls, (Calls{"SetValue login owl@one.example", "SetValue passwd hoot", "Click SI"}));
}

TEST_F(SiteLogin, TheOtherLoginIsFilledInAndSubmitted) {
    Open("http://one.example/");
    session.credentials = {
        .MySpaceE = "owl@one.example", .MySpaceP = "hoot", .HotmailE = "x", .HotmailP = "x"};

    Arrive(kOtherLogin);

    EXPECT_EQ(Engine(1).Calls,
              (Calls{"SetValue email owl@one.example", "SetValue password hoot", "Submit theForm"}));
}

TEST_F(SiteLogin, EmptyCredentialsAreSubmittedAsTheyAre) {
    Open("http://one.example/");

    Arrive(kOtherLogin);

    EXPECT_EQ(Engine(1).Calls, (Calls{"SetValue email ", "SetValue password ", "Submit theForm"}));
}

TEST_F(SiteLogin, OnlyThePageOfThatTabIsTouched) {
    Open("http://one.example/");
    Open("http://two.example/");

    Arrive(kMailLogin);

    EXPECT_FALSE(Engine(1).Calls.empty());
    EXPECT_TRUE(Engine(2).Calls.empty());
}

}  // namespace
