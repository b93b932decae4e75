#include <gtest/gtest.h>

#include <QDialog>
#include <QKeyEvent>
#include <QTest>
#include <chrono>

#include "platform/qt/QtBench.h"

namespace {

using namespace std::chrono_literals;

class NullPage final : public ports::BrowserControl {
public:
    void SetListener(ports::BrowserListener* listener) override { Listener = listener; }
    void Navigate(std::string_view address) override { Addresses.emplace_back(address); }
    void GoBack() override {}
    void GoForward() override {}
    void Refresh() override {}
    std::string LocationURL() const override { return Location; }
    std::string LocationName() const override { return {}; }
    bool Busy() const override { return false; }

    ports::BrowserListener* Listener = nullptr;
    std::vector<std::string> Addresses;
    std::string Location;
};

class RecordingFactory final : public qt::PageFactory {
public:
    ports::BrowserControl* MakePage(controls::WebBrowser& /*browser*/, QWidget* parent) override {
        Widgets.push_back(new QWidget(parent));
        Pages.push_back(std::make_unique<NullPage>());
        return Pages.back().get();
    }
    void BeginUser(std::string_view name, bool keeps_history) override {
        Log.push_back("Begin " + std::string(name) + (keeps_history ? " kept" : " forgotten"));
        Pages.clear();
    }
    void EndUser() override {
        Log.emplace_back("End");
        Pages.clear();
    }
    void ForgetVisits() override {
        Log.emplace_back("Forget");
        Pages.clear();
    }
    void ShowDownloads() override { Log.emplace_back("Downloads"); }
    std::vector<std::string> Log;
    std::vector<QWidget*> Widgets;
    std::vector<std::unique_ptr<NullPage>> Pages;
};

class PagesTest : public testing::Test {
protected:
    PagesTest() {
        qt_tests::PlaceAt(browser_, 0, 0, 300, 200);
        options_.LoadPages = [this] {
            ++loads_;
            auto factory = std::make_unique<RecordingFactory>();
            factory_ = factory.get();
            return factory;
        };
        options_.ForgetVisitsOf = [this](std::string_view user) { forgotten_.emplace_back(user); };
        options_.RemoveUser = [this](std::string_view user) { removed_.emplace_back(user); };
    }
    /// The window has been painted, and Ann is logged in.
    static void Begin(qt_tests::Desk& desk) {
        desk.screen.ReleasePages();
        desk.screen.BeginUser("Ann", true);
    }
    controls::WebBrowser browser_{"Browser"};
    qt::ScreenOptions options_;
    RecordingFactory* factory_ = nullptr;
    int loads_ = 0;
    std::vector<std::string> forgotten_;
    std::vector<std::string> removed_;
};

TEST_F(PagesTest, TheEngineIsNotLoadedBeforeAPageIsWanted) {
    qt_tests::Desk desk(options_, browser_);

    Begin(desk);

    EXPECT_EQ(loads_, 0);
}

TEST_F(PagesTest, AnAddressAskedForEarlyIsGoneToOnceEnginesMayBeMade) {
    browser_.Navigate("http://example.org/");
    qt_tests::Desk desk(options_, browser_);
    const int loads_before = loads_;

    Begin(desk);

    EXPECT_EQ(loads_before, 0);
    ASSERT_EQ(loads_, 1);
    EXPECT_EQ(factory_->Pages[0]->Addresses, std::vector<std::string>{"http://example.org/"});
}

TEST_F(PagesTest, EnginesAreReleasedByThemselvesAfterTheFirstPaint) {
    browser_.Navigate("http://example.org/");
    qt_tests::Desk desk(options_, browser_);
    desk.screen.BeginUser("Ann", true);

    EXPECT_TRUE(qt_tests::WaitFor([this] { return loads_ == 1; }));
}

TEST_F(PagesTest, LaterAnEngineIsThereAtOnce) {
    qt_tests::Desk desk(options_, browser_);
    Begin(desk);

    browser_.Navigate("http://example.org/");

    EXPECT_NE(browser_.Engine(), nullptr);
}

TEST_F(PagesTest, ThePageFillsItsPlace) {
    qt_tests::Desk desk(options_, browser_);
    Begin(desk);
    browser_.Navigate("http://example.org/");

    qt_tests::PlaceAt(browser_, 0, 0, 350, 250);
    desk.screen.CatchUp();

    EXPECT_EQ(factory_->Widgets[0]->geometry(), QRect(0, 0, 350, 250));
}

TEST_F(PagesTest, WithoutAnEngineTheControlStaysBlank) {
    options_.LoadPages = [this] {
        ++loads_;
        return std::unique_ptr<qt::PageFactory>();
    };
    qt_tests::Desk desk(options_, browser_);
    Begin(desk);

    browser_.Navigate("http://example.org/");
    browser_.Navigate("http://example.org/2");

    EXPECT_EQ(browser_.Engine(), nullptr);
    EXPECT_EQ(loads_, 1);
}

TEST_F(PagesTest, NoPageIsMadeBeforeSomebodyIsLoggedIn) {
    browser_.Navigate("http://example.org/");
    qt_tests::Desk desk(options_, browser_);
    desk.screen.ReleasePages();
    browser_.Navigate("http://example.org/2");
    EXPECT_EQ(loads_, 0);

    desk.screen.BeginUser("Ann", true);

    ASSERT_EQ(loads_, 1);
    EXPECT_EQ(factory_->Log, std::vector<std::string>{"Begin Ann kept"});
    EXPECT_EQ(factory_->Pages[0]->Addresses, std::vector<std::string>{"http://example.org/2"});
}

TEST_F(PagesTest, ALoginBeforeTheFirstPaintWaitsForIt) {
    browser_.Navigate("http://example.org/");
    qt_tests::Desk desk(options_, browser_);
    desk.screen.BeginUser("Ann", true);
    EXPECT_EQ(loads_, 0);

    desk.screen.ReleasePages();

    EXPECT_EQ(loads_, 1);
}

TEST_F(PagesTest, ASecondLoginOfTheSameUserChangesNothing) {
    qt_tests::Desk desk(options_, browser_);
    Begin(desk);
    browser_.Navigate("http://example.org/");

    desk.screen.BeginUser("Ann", true);

    EXPECT_EQ(factory_->Log.size(), 1U);
    EXPECT_EQ(factory_->Pages.size(), 1U);
}

TEST_F(PagesTest, ALoginOfSomebodyElseWithoutALogOutEndsThePagesBefore) {
    qt_tests::Desk desk(options_, browser_);
    Begin(desk);
    browser_.Navigate("http://example.org/");

    desk.screen.BeginUser("Bob", false);

    EXPECT_EQ(factory_->Log, (std::vector<std::string>{"Begin Ann kept", "End", "Begin Bob forgotten"}));
    EXPECT_EQ(browser_.Engine(), nullptr) << "it was destroyed";
    EXPECT_EQ(browser_.LocationURL(), "");
    browser_.Navigate("http://bob.example/");
    ASSERT_EQ(factory_->Pages.size(), 1U);
    EXPECT_EQ(factory_->Pages[0]->Addresses, std::vector<std::string>{"http://bob.example/"});
}

TEST_F(PagesTest, ALogOutEndsEveryPageAndForgetsThoseThatWait) {
    controls::WebBrowser waiting{"BrowserBG"};
    waiting.SetVisible(false);
    qt_tests::Desk desk(options_, browser_, waiting);
    Begin(desk);
    browser_.Navigate("http://example.org/");
    waiting.Navigate("http://ann.example/");

    desk.screen.EndUser();
    EXPECT_EQ(browser_.Engine(), nullptr);
    EXPECT_EQ(browser_.LocationURL(), "");
    browser_.Navigate("http://bob.example/");
    waiting.SetVisible(true);
    desk.screen.CatchUp();
    EXPECT_TRUE(factory_->Pages.empty()) << "nobody is logged in";

    desk.screen.BeginUser("Bob", false);

    EXPECT_EQ(factory_->Log, (std::vector<std::string>{"Begin Ann kept", "End", "Begin Bob forgotten"}));
    ASSERT_EQ(factory_->Pages.size(), 1U);
    EXPECT_EQ(factory_->Pages[0]->Addresses, std::vector<std::string>{"http://bob.example/"});
    EXPECT_EQ(waiting.Engine(), nullptr);
    EXPECT_EQ(loads_, 1);
}

TEST_F(PagesTest, ForAUserWhoWillWantPagesTheEngineIsMadeReadyStepByStep) {
    std::vector<int> loads_at_preparation;
    options_.Ahead = {.is_likely = [](std::string_view user) { return user == "Ann"; },
                      .prepare = [&] { loads_at_preparation.push_back(loads_); },
                      .after = 10ms,
                      .between = 1ms};
    qt_tests::Desk desk(options_, browser_);
    Begin(desk);
    EXPECT_EQ(loads_, 0) << "the window has the first turns";

    ASSERT_TRUE(qt_tests::WaitFor([this] { return factory_ != nullptr && !factory_->Log.empty(); }));

    EXPECT_EQ(loads_at_preparation, std::vector<int>{0});
    EXPECT_EQ(factory_->Log, std::vector<std::string>{"Begin Ann kept"});
    EXPECT_TRUE(factory_->Pages.empty());
    browser_.Navigate("http://example.org/");
    EXPECT_EQ(loads_, 1);
    EXPECT_EQ(factory_->Log.size(), 1U);
}

TEST_F(PagesTest, ForAUserWhoHasHadNoPageNothingIsMadeReady) {
    bool was_prepared = false;
    options_.Ahead = {.is_likely = [](std::string_view user) { return user != "Ann"; },
                      .prepare = [&was_prepared] { was_prepared = true; },
                      .after = 1ms,
                      .between = 1ms};
    qt_tests::Desk desk(options_, browser_);
    Begin(desk);

    QTest::qWait(50);

    EXPECT_FALSE(was_prepared);
    EXPECT_EQ(loads_, 0);
}

TEST_F(PagesTest, APageThatComesBetweenTwoStepsTakesThoseThatAreLeft) {
    options_.Ahead = {
        .is_likely = [](std::string_view) { return true; }, .prepare = {}, .after = 1ms, .between = 1h};
    qt_tests::Desk desk(options_, browser_);
    Begin(desk);
    ASSERT_TRUE(qt_tests::WaitFor([this] { return loads_ == 1; }));
    EXPECT_TRUE(factory_->Log.empty());

    browser_.Navigate("http://example.org/");

    EXPECT_EQ(loads_, 1);
    EXPECT_EQ(factory_->Log, std::vector<std::string>{"Begin Ann kept"});
    EXPECT_EQ(factory_->Pages.size(), 1U);
}

TEST_F(PagesTest, VisitsForgottenBetweenTwoStepsAreThoseOfTheUser) {
    options_.Ahead = {
        .is_likely = [](std::string_view) { return true; }, .prepare = {}, .after = 1ms, .between = 1h};
    qt_tests::Desk desk(options_, browser_);
    Begin(desk);
    ASSERT_TRUE(qt_tests::WaitFor([this] { return loads_ == 1; }));

    desk.screen.ForgetVisits();

    EXPECT_EQ(factory_->Log, (std::vector<std::string>{"Begin Ann kept", "Forget"}));
}

TEST_F(PagesTest, NothingIsMadeReadyForOneWhoHasLoggedOut) {
    options_.Ahead = {.is_likely = [](std::string_view user) { return user == "Ann"; },
                      .prepare = {},
                      .after = 1ms,
                      .between = 1ms};
    qt_tests::Desk desk(options_, browser_);
    Begin(desk);

    desk.screen.EndUser();
    desk.screen.BeginUser("Bob", true);
    QTest::qWait(50);

    EXPECT_EQ(loads_, 0);
}

TEST_F(PagesTest, PagesThatAreOpenLoadAgainOnceTheirVisitsAreForgotten) {
    controls::WebBrowser closed{"Browser"};
    qt_tests::Desk desk(options_, browser_, closed);
    Begin(desk);
    browser_.Navigate("http://example.org/");
    closed.Navigate("http://example.org/closed");
    factory_->Pages[0]->Location = "http://example.org/seen";
    factory_->Pages[1]->Location = "http://example.org/closed";
    closed.SetVisible(false);
    desk.screen.CatchUp();

    desk.screen.ForgetVisits();
    desk.screen.CatchUp();

    EXPECT_EQ(factory_->Log, (std::vector<std::string>{"Begin Ann kept", "Forget"}));
    ASSERT_EQ(factory_->Pages.size(), 1U) << "what nobody sees waits until it is seen";
    EXPECT_EQ(factory_->Pages[0]->Addresses, std::vector<std::string>{"http://example.org/seen"});
    closed.SetVisible(true);
    desk.screen.CatchUp();
    ASSERT_EQ(factory_->Pages.size(), 2U);
    EXPECT_EQ(factory_->Pages[1]->Addresses, std::vector<std::string>{"http://example.org/closed"});
}

TEST_F(PagesTest, AFirstPageOnItsWayIsAskedForAgainOnceVisitsAreForgotten) {
    qt_tests::Desk desk(options_, browser_);
    Begin(desk);
    int visits = 0;
    controls::EventClaims claims;
    claims.Claim(browser_.NavigateComplete2, [&visits](std::string_view) { ++visits; });
    browser_.Navigate("http://example.org/first");

    desk.screen.ForgetVisits();
    desk.screen.CatchUp();

    ASSERT_EQ(factory_->Pages.size(), 1U);
    EXPECT_EQ(factory_->Pages[0]->Addresses, std::vector<std::string>{"http://example.org/first"});
    factory_->Pages[0]->Location = "http://example.org/first";
    factory_->Pages[0]->Listener->OnNavigateComplete("http://example.org/first");
    EXPECT_EQ(visits, 1) << "nobody was there before";
}

TEST_F(PagesTest, AFirstPageThatFailedIsAskedForAgainOnceVisitsAreForgotten) {
    controls::WebBrowser closed{"Browser"};
    qt_tests::Desk desk(options_, browser_, closed);
    Begin(desk);
    for (controls::WebBrowser* browser : {&browser_, &closed}) {
        browser->Navigate("http://example.org/fails");
        factory_->Pages.back()->Listener->OnNavigateError("http://example.org/fails", -105);
    }
    closed.SetVisible(false);
    desk.screen.CatchUp();

    desk.screen.ForgetVisits();
    desk.screen.CatchUp();

    ASSERT_EQ(factory_->Pages.size(), 1U) << "what nobody sees waits until it is seen";
    EXPECT_EQ(factory_->Pages[0]->Addresses, std::vector<std::string>{"http://example.org/fails"});
    closed.SetVisible(true);
    desk.screen.CatchUp();
    ASSERT_EQ(factory_->Pages.size(), 2U);
    EXPECT_EQ(factory_->Pages[1]->Addresses, std::vector<std::string>{"http://example.org/fails"});
}

TEST_F(PagesTest, DownloadsShowWithoutAPageAndForAUserOnly) {
    qt_tests::Desk desk(options_, browser_);
    desk.screen.ReleasePages();
    desk.screen.ShowDownloads();
    EXPECT_EQ(loads_, 0) << "nobody is logged in";
    desk.screen.BeginUser("Ann", true);

    desk.screen.ShowDownloads();

    EXPECT_EQ(factory_->Log, (std::vector<std::string>{"Begin Ann kept", "Downloads"}));
    desk.screen.EndUser();
    desk.screen.ShowDownloads();
    EXPECT_EQ(factory_->Log.back(), "End");
}

TEST_F(PagesTest, WithoutPagesVisitsAreForgottenWithoutTheEngine) {
    qt_tests::Desk desk(options_, browser_);
    desk.screen.ForgetVisits();
    EXPECT_TRUE(forgotten_.empty()) << "nobody is logged in";
    Begin(desk);

    desk.screen.ForgetVisits();

    EXPECT_EQ(loads_, 0);
    EXPECT_EQ(forgotten_, std::vector<std::string>{"Ann"});
}

TEST_F(PagesTest, WhatAUserWhoKeepsNoHistoryLeftBeforeGoesWithoutAPage) {
    qt_tests::Desk desk(options_, browser_);

    desk.screen.BeginUser("Ann", false);

    EXPECT_EQ(loads_, 0);
    EXPECT_EQ(forgotten_, std::vector<std::string>{"Ann"});
}

TEST_F(PagesTest, ANewUserFindsNothingOfAnEarlierOne) {
    qt_tests::Desk desk(options_, browser_);

    desk.screen.RemoveUser("Ann");

    EXPECT_EQ(removed_, std::vector<std::string>{"Ann"});
}

TEST_F(PagesTest, TheEnginesVersionIsAskedForOnlyWhenItIsWanted) {
    int asked = 0;
    options_.PageEngineVersion = [&asked] {
        ++asked;
        return std::string("Engine 1");
    };
    qt_tests::Desk desk(options_, browser_);
    Begin(desk);
    EXPECT_EQ(asked, 0);

    EXPECT_EQ(desk.screen.Version(), "Engine 1");
}

TEST_F(PagesTest, TheControlLetsGoOfItsEngineWhenTheScreenEnds) {
    {
        qt_tests::Desk desk(options_, browser_);
        Begin(desk);
        browser_.Navigate("http://example.org/");
    }

    EXPECT_EQ(browser_.Engine(), nullptr);
}

/// What has the focus inside a page: it keeps every key that it gets.
class GreedyWidget final : public QWidget {
public:
    explicit GreedyWidget(QWidget* parent) : QWidget(parent) { setFocusPolicy(Qt::StrongFocus); }
    std::vector<int> Keys;

protected:
    void keyPressEvent(QKeyEvent* event) override { Keys.push_back(event->key()); }
};

TEST_F(PagesTest, MultimediaKeysReachTheWindowThoughAPageHasTheFocus) {
    qt_tests::Desk desk(options_, browser_);
    std::vector<int> keys;
    controls::EventClaims claims;
    claims.Claim(desk.form.KeyDown, [&keys](int code, int /*shift*/) { keys.push_back(code); });
    Begin(desk);
    browser_.Navigate("http://example.org/");
    GreedyWidget page(factory_->Widgets[0]);
    page.show();
    page.setFocus();

    QTest::keyClick(&page, Qt::Key_MediaNext);
    QTest::keyClick(&page, Qt::Key_A);
    QTest::keyClick(&page, Qt::Key_MediaStop, Qt::AltModifier);

    EXPECT_EQ(keys, std::vector<int>{176});
    EXPECT_EQ(page.Keys, (std::vector<int>{Qt::Key_A, Qt::Key_Alt, Qt::Key_MediaStop}));
}

TEST_F(PagesTest, TheWindowLooksAtItsKeysBeforeThePage) {
    qt_tests::Desk desk(options_, browser_);
    std::vector<std::pair<int, int>> keys;
    controls::EventClaims claims;
    claims.Claim(desk.form.KeyPreview, [&keys](int code, int shift, bool& taken) {
        keys.emplace_back(code, shift);
        taken = code == 'T';
    });
    Begin(desk);
    browser_.Navigate("http://example.org/");
    GreedyWidget page(factory_->Widgets[0]);
    page.show();
    page.setFocus();

    for (const int key : {Qt::Key_T, Qt::Key_C}) {
        QKeyEvent press(QEvent::KeyPress, key, Qt::ControlModifier);
        QCoreApplication::sendEvent(&page, &press);
    }
    QTest::keyClick(&page, Qt::Key_A);
    QTest::keyClick(&page, Qt::Key_Escape);
    QTest::keyClick(&page, Qt::Key_F5);

    EXPECT_EQ(keys, (std::vector<std::pair<int, int>>{{'T', controls::kControlMask},
                                                      {'C', controls::kControlMask},
                                                      {controls::kKeyEscape, 0},
                                                      {116, 0}}));
    EXPECT_EQ(page.Keys, (std::vector<int>{Qt::Key_C, Qt::Key_A, Qt::Key_Escape, Qt::Key_F5}));
}

TEST_F(PagesTest, ABoxOfAPageKeepsItsKeys) {
    qt_tests::Desk desk(options_, browser_);
    int previewed = 0;
    controls::EventClaims claims;
    claims.Claim(desk.form.KeyPreview, [&previewed](int /*code*/, int /*shift*/, bool& taken) {
        ++previewed;
        taken = true;
    });
    Begin(desk);
    browser_.Navigate("http://example.org/");
    QDialog box(factory_->Widgets[0]);
    GreedyWidget inside(&box);
    box.show();
    inside.setFocus();

    QTest::keyClick(&inside, Qt::Key_Escape);
    QTest::keyClick(&inside, Qt::Key_W, Qt::ControlModifier);

    EXPECT_EQ(previewed, 0);
    EXPECT_EQ(inside.Keys.front(), Qt::Key_Escape);
}

TEST_F(PagesTest, AKeyThatIsHeldDownComesToTheWindowAgainOnlyWhereThatIsOfUse) {
    qt_tests::Desk desk(options_, browser_);
    std::vector<int> keys;
    controls::EventClaims claims;
    claims.Claim(desk.form.KeyPreview,
                 [&keys](int code, int /*shift*/, bool& /*taken*/) { keys.push_back(code); });
    Begin(desk);
    browser_.Navigate("http://example.org/");
    GreedyWidget page(factory_->Widgets[0]);
    page.show();
    page.setFocus();

    for (const int key : {Qt::Key_W, Qt::Key_Tab, Qt::Key_Plus}) {
        QKeyEvent again(QEvent::KeyPress, key, Qt::ControlModifier, QString(), true);
        QCoreApplication::sendEvent(&page, &again);
    }

    EXPECT_EQ(keys, (std::vector<int>{9, 187}));
}

}  // namespace
