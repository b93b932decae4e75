#include "web/WebHarness.h"

namespace {

using SiteLogin = web_test::WebTest;
using web_test::Calls;

TEST_F(SiteLogin, TheMailLoginIsFilledInAndClicked) {
    Open("http://one.example/");
    Engine(1).Calls.clear();

    rooms.logins.LoginToHotmail("owl@one.example", "hoot", 1);

    EXPECT_EQ(Engine(1).Calls, (Calls{"SetValue login owl@one.example", "SetValue passwd hoot", "Click SI"}));
}

TEST_F(SiteLogin, TheOtherLoginIsFilledInAndSubmitted) {
    Open("http://one.example/");
    Engine(1).Calls.clear();

    rooms.logins.LoginToMySpace("owl@one.example", "hoot", 1);

    EXPECT_EQ(Engine(1).Calls,
              (Calls{"SetValue email owl@one.example", "SetValue password hoot", "Submit theForm"}));
}

TEST_F(SiteLogin, EmptyCredentialsAreSubmittedAsTheyAre) {
    Open("http://one.example/");
    Engine(1).Calls.clear();

    rooms.logins.LoginToMySpace("", "", 1);

    EXPECT_EQ(Engine(1).Calls, (Calls{"SetValue email ", "SetValue password ", "Submit theForm"}));
}

TEST_F(SiteLogin, OnlyThePageOfThatTabIsTouched) {
    Open("http://one.example/");
    Open("http://two.example/");
    Engine(1).Calls.clear();
    Engine(2).Calls.clear();

    rooms.logins.LoginToHotmail("owl", "hoot", 1);

    EXPECT_TRUE(Engine(2).Calls.empty());
}

}  // namespace
