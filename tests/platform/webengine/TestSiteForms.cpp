// Names and passwords on their way into the forms of web pages, with the addresses at which a login is
// triggered: what counts is what arrives at a server.
#include <gtest/gtest.h>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>

#include "base/Text.h"
#include "platform/webengine/EngineWorld.h"

namespace {

using webengine_tests::EngineWorld;
using webengine_tests::Net;
using webengine_tests::WaitFor;

constexpr const char* kForm = "<form name=theForm action=/in><input name=email><input name=password></form>";

/// Sends the steps of a login whenever something arrives at an address that ends in the host's name.
class LoginTrigger final : public ports::BrowserListener {
public:
    explicit LoginTrigger(ports::BrowserControl& browser) : browser_(browser) { browser.SetListener(this); }
    ~LoginTrigger() override { browser_.SetListener(nullptr); }
    void OnTitleChange(std::string_view /*title*/) override {}
    void OnNavigateComplete(std::string_view /*url*/) override {
        using Kind = ports::ElementStep::Kind;
        const std::string address = browser_.LocationURL();
        if (!base::EndsWith(address, "pal.example") && !base::EndsWith(address, "pal.example/")) return;
        ++Triggered;
        browser_.WorkOnDocument("pal.example", {{Kind::SetValue, "email", "owl"},
                                                {Kind::SetValue, "password", "hoot"},
                                                {Kind::Submit, "theForm", ""}});
    }
    bool OnNavigateError(std::string_view url, int /*code*/) override {
        ADD_FAILURE() << url;
        return true;
    }
    ports::BrowserControl* OnNewWindow(ports::WindowPlace /*place*/) override { return nullptr; }
    void OnWindowClosing() override {}

    int Triggered = 0;

private:
    ports::BrowserControl& browser_;
};

class SiteForms : public testing::Test {
protected:
    SiteForms() {
        Net().Pages["/"] = {QByteArray("<title>Sign in</title>") + kForm};
        Net().Pages["/?pal.example"] = Net().Pages["/"];
        Net().Pages["/in?email=owl&password=hoot"] = {"<title>Welcome</title>"};
        Net().Pages["/pause"] = {"<title>Pause</title>"};
    }

    /// Opens the page, lets the login be triggered, and tells how often the password then went out to
    /// whichever server.
    qsizetype SentFrom(const std::string& address) {
        const qsizetype before = Net().Addresses().size();
        triggered_ = trigger_.Triggered;
        world_.Browser().Navigate(address);
        EXPECT_TRUE(WaitFor([&] { return trigger_.Triggered > triggered_ && !world_.Browser().Busy(); }))
            << address;
        WaitAWhile();
        qsizetype sent = 0;
        for (qsizetype i = before; i < Net().Addresses().size(); ++i)
            sent += Net().Addresses()[i].contains("hoot") ? 1 : 0;
        return sent;
    }
    std::string Title() { return world_.Browser().LocationName(); }

private:
    /// Longer than a form takes to reach the server.
    void WaitAWhile() {
        QElapsedTimer clock;
        clock.start();
        WaitFor([&] { return clock.hasExpired(600); });
    }

    EngineWorld world_;
    LoginTrigger trigger_{world_.Browser()};
    int triggered_ = 0;
};

TEST_F(SiteForms, TheHostOfALoginGetsItOverAnEncryptedConnection) {
    EXPECT_EQ(SentFrom("https://pal.example/"), 1);
    EXPECT_EQ(Title(), "Welcome");
    EXPECT_TRUE(Net().Addresses().contains("https://pal.example/in?email=owl&password=hoot"));
}

TEST_F(SiteForms, TheKeysOfAConnectionAreWrittenNowhere) {
    SentFrom("https://pal.example/");

    EXPECT_FALSE(QFile::exists(QDir::homePath() + QStringLiteral("/keys.log")));
    EXPECT_EQ(qgetenv("SSLKEYLOGFILE"), QByteArray());
}

TEST_F(SiteForms, ANameBelowItGetsItToo) {
    EXPECT_EQ(SentFrom("https://www.pal.example/"), 1);
}

TEST_F(SiteForms, WithoutEncryptionNothingIsSent) {
    EXPECT_EQ(SentFrom("http://pal.example/"), 0);
    EXPECT_EQ(Title(), "Sign in");
}

TEST_F(SiteForms, AHostThatOnlyEndsInTheSameTextGetsNothing) {
    EXPECT_EQ(SentFrom("http://otherpal.example/"), 0);
    EXPECT_EQ(SentFrom("https://otherpal.example/"), 0);
}

TEST_F(SiteForms, AQueryThatEndsInTheSameTextGetsNothing) {
    EXPECT_EQ(SentFrom("http://one.example/?pal.example"), 0);
    EXPECT_EQ(SentFrom("https://one.example/?pal.example"), 0);
}

TEST_F(SiteForms, AFormThatComesLateIsFilledInWhenTheDocumentIsReady) {
    Net().Pages["/"] = {"<title>Sign in</title><p>" + QByteArray(4000, 'x')};
    Net().Pages["/"].late = kForm;

    EXPECT_EQ(SentFrom("https://pal.example/"), 1);
    EXPECT_EQ(Title(), "Welcome");
}

TEST_F(SiteForms, APageWithFramesIsFilledInOnce) {
    // A form that goes nowhere new: the document stays, and what arrives in its frames triggers again.
    Net().Pages["/"] = {
        "<title>Sign in</title><form name=theForm action=/in target=within><input name=email>"
        "<input name=password></form><iframe name=within></iframe><iframe src=/pause></iframe>"
        "<iframe src='/pause?2'></iframe>"};

    EXPECT_EQ(SentFrom("https://pal.example/"), 1);
}

TEST_F(SiteForms, AFrameOfTheHostInAnotherPageGetsNothing) {
    Net().Pages["/?pal.example"] = {"<title>Outside</title><iframe src='https://pal.example/'></iframe>"};

    EXPECT_EQ(SentFrom("https://one.example/?pal.example"), 0);
    EXPECT_EQ(Title(), "Outside");
}

TEST_F(SiteForms, APageThatLeavesBeforeItIsReadyTakesNothingAlong) {
    Net().Pages["/"] = {
        "<title>Sign in</title><script>location = 'https://other.example/?pal.example'"
        "</script>"};
    Net().Pages["/"].late = kForm;

    EXPECT_EQ(SentFrom("https://pal.example/"), 0);
}

}  // namespace
