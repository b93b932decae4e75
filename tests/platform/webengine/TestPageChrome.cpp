// What is shown on and around a page, on the real engine.
#include <gtest/gtest.h>

#include <QApplication>
#include <QBuffer>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QWheelEvent>
#include <set>

#include "controls/Control.h"
#include "platform/webengine/EngineWorld.h"
#include "platform/webengine/NoticePage.h"
#include "platform/webengine/PageBars.h"
#include "platform/webengine/SecureServer.h"

namespace {

using webengine::PageBar;
using webengine::PageBars;
using webengine_tests::EngineWorld;
using webengine_tests::SecureServer;
using webengine_tests::WaitFor;

using Security = ports::PageSigns::Security;

constexpr int kControl = controls::kControlMask;
constexpr int kF3 = 114;

class PageChrome : public testing::Test {
protected:
    PageChrome() {
        world.Browser().SetListener(&heard);
        // The screen has the area fill its place.
        Bars().setGeometry(world.Window().rect());
        world.Window().activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&world.Window()));
    }
    ~PageChrome() override { world.Browser().SetListener(nullptr); }

    bool Arrive(const std::string& address) {
        const std::size_t before = heard.Completed.size();
        world.Browser().Navigate(address);
        return WaitFor([&] { return heard.Completed.size() > before && !world.Browser().Busy(); });
    }
    bool Fail(const std::string& address) {
        const std::size_t before = heard.Failed.size();
        world.Browser().Navigate(address);
        return WaitFor([&] { return heard.Failed.size() > before; });
    }
    void Serve(const char* path, const QByteArray& body) { world.Server().Pages[path] = {body}; }
    bool Key(int code, int shift = 0) { return world.Browser().TakeKey(code, shift); }
    PageBars& Bars() { return *static_cast<PageBars*>(world.Window().findChild<QWidget*>("pageBars")); }
    PageBar* Bar(const char* name) { return Bars().Bar(QString::fromLatin1(name)); }
    std::string WordsOf(const char* name) {
        const PageBar* bar = Bar(name);
        return bar == nullptr ? std::string() : bar->Words().toStdString();
    }
    QPushButton* Button(const char* bar, const char* words) {
        for (auto* button : Bar(bar)->findChildren<QPushButton*>()) {
            if (button->text() == QLatin1String(words)) return button;
        }
        return nullptr;
    }
    QLineEdit& FindField() { return *Bar("find")->findChild<QLineEdit*>("findField"); }
    std::string FindCount() { return Bar("find")->findChild<QLabel*>("findCount")->text().toStdString(); }
    bool CountIs(const char* words) {
        return WaitFor([&] { return FindCount() == words; });
    }
    webengine::Notice* Middle() {
        for (QWidget* notice : world.Window().findChildren<QWidget*>("notice")) {
            if (notice->isVisible()) return static_cast<webengine::Notice*>(notice);
        }
        return nullptr;
    }
    /// The page's own measure of its width: smaller when it is drawn bigger.
    bool WidthIs(int pixels) {
        return WaitFor([&] {
            return std::abs(QString::fromStdString(world.Browser().LocationName()).toInt() - pixels) <= 2;
        });
    }

    EngineWorld world;
    contracts::Listener heard{world.Browser()};
};

TEST_F(PageChrome, FindCountsMatchesAndGoesRound) {
    Serve("/owls", "<title>Owls</title>owl Owl owl <p>mouse");
    ASSERT_TRUE(Arrive(world.Site + "/owls"));
    ASSERT_TRUE(Key('F', kControl));

    FindField().setText("owl");
    EXPECT_TRUE(CountIs("1 of 3"));
    Key(kF3);
    EXPECT_TRUE(CountIs("2 of 3"));
    Key(kF3, controls::kShiftMask);
    EXPECT_TRUE(CountIs("1 of 3"));
    Key(kF3, controls::kShiftMask);
    EXPECT_TRUE(CountIs("3 of 3"));

    FindField().setText("badger");
    EXPECT_TRUE(CountIs("not found"));
}

TEST_F(PageChrome, FindCanMatchTheCase) {
    Serve("/owls", "<title>Owls</title>owl Owl owl");
    ASSERT_TRUE(Arrive(world.Site + "/owls"));
    Key('F', kControl);
    FindField().setText("Owl");
    ASSERT_TRUE(CountIs("1 of 3"));

    Bar("find")->findChild<QPushButton*>("findCase")->click();

    EXPECT_TRUE(CountIs("1 of 1"));
}

TEST_F(PageChrome, EscapeClosesFindAndIsThenThePages) {
    ASSERT_TRUE(Arrive(world.Site + "/plain"));
    Key('F', kControl);
    ASSERT_NE(Bar("find"), nullptr);

    EXPECT_TRUE(Key(controls::kKeyEscape));
    EXPECT_EQ(Bar("find"), nullptr);
    EXPECT_FALSE(Key(controls::kKeyEscape));
}

TEST_F(PageChrome, FindRemembersItsWords) {
    ASSERT_TRUE(Arrive(world.Site + "/plain"));
    Key('F', kControl);
    FindField().setText("plain");
    Key(controls::kKeyEscape);

    Key(kF3);

    EXPECT_EQ(FindField().text(), QStringLiteral("plain"));
    EXPECT_TRUE(CountIs("1 of 1"));
}

constexpr const char* kTellsItsWidth =
    "<title>0</title><script>onresize = () => document.title = innerWidth; onresize()</script>";

TEST_F(PageChrome, ZoomIsKeptForTheSite) {
    Serve("/wide", kTellsItsWidth);
    ASSERT_TRUE(Arrive(world.Site + "/wide"));
    const int width = Bars().width();
    ASSERT_TRUE(WidthIs(width));

    for (int step = 0; step < 5; ++step)
        Key(187, kControl);
    EXPECT_TRUE(WidthIs(width / 2));
    EXPECT_EQ(Bars().Line(), QStringLiteral("Zoom: 200%"));

    ASSERT_TRUE(Arrive("brindlepost://start/"));
    ASSERT_TRUE(Arrive(world.Site + "/wide"));
    EXPECT_TRUE(WidthIs(width / 2));

    Key('0', kControl);
    EXPECT_TRUE(WidthIs(width));
}

TEST_F(PageChrome, TheWheelWithCtrlZooms) {
    Serve("/wide", kTellsItsWidth);
    ASSERT_TRUE(Arrive(world.Site + "/wide"));
    const int width = Bars().width();
    ASSERT_TRUE(WidthIs(width));
    QWidget* view = world.Window().findChild<QWidget*>("pageBars")->focusProxy();
    ASSERT_NE(view, nullptr);

    QWheelEvent wheel(QPointF(50, 50), QPointF(50, 50), {}, QPoint(0, 120), Qt::NoButton, Qt::ControlModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(view->focusProxy() != nullptr ? view->focusProxy() : view, &wheel);

    EXPECT_TRUE(WidthIs(static_cast<int>(width / 1.1)));
    Key('0', kControl);
    EXPECT_TRUE(WidthIs(width));
}

TEST_F(PageChrome, ALoadShowsHowFarItIsUntilItIsStopped) {
    ASSERT_TRUE(Arrive(world.Site + "/plain"));
    world.Server().Silent = "/slow";
    world.Browser().Navigate(world.Site + "/slow");

    ASSERT_TRUE(WaitFor([&] { return Bars().Progress() >= 0; }));
    EXPECT_GE(world.Browser().Signs().progress, 0);

    world.Browser().Stop();
    EXPECT_TRUE(WaitFor([&] { return Bars().Progress() < 0; }));
    EXPECT_EQ(world.Browser().Signs().progress, -1);
    EXPECT_EQ(Bar("failure"), nullptr);
    EXPECT_EQ(world.Browser().LocationName(), "Plain words");
}

TEST_F(PageChrome, TheSitesIconIsAPicture) {
    QImage red(16, 16, QImage::Format_RGB32);
    red.fill(Qt::red);
    QByteArray png;
    QBuffer buffer(&png);
    red.save(&buffer, "PNG");
    world.Server().Pages["/red.png"] = {png, "Content-Type: image/png\r\n"};
    Serve("/iconic", "<title>Iconic</title><link rel=icon href=/red.png>");

    ASSERT_TRUE(Arrive(world.Site + "/iconic"));

    ASSERT_TRUE(WaitFor([&] { return !world.Browser().Signs().icon.empty(); }));
    const std::string icon = world.Browser().Signs().icon;
    EXPECT_EQ(QImage::fromData(QByteArray::fromStdString(icon)).pixel(5, 5), 0xffff0000);

    ASSERT_TRUE(Arrive("brindlepost://start/"));
    EXPECT_TRUE(WaitFor([&] { return world.Browser().Signs().icon != icon; }));
}

TEST_F(PageChrome, AnIconThatNeverRestsIsTakenAFewTimesASecondAndItsLastOneAlways) {
    Serve("/flicker",
          "<title>Flicker</title><link rel=icon id=i><canvas id=c width=16 height=16></canvas><script>"
          "const x = c.getContext('2d'); let n = 0; const timer = setInterval(() => { const over = ++n > 150;"
          "x.fillStyle = over ? '#00ff00' : 'rgb(255,' + n + ',0)'; x.fillRect(0, 0, 16, 16);"
          "i.href = c.toDataURL(); if (over) { clearInterval(timer); document.title = 'Over' } }, "
          "20)</script>");
    std::set<std::string> icons;

    ASSERT_TRUE(Arrive(world.Site + "/flicker"));
    const auto last_is_there = [&] {
        icons.insert(world.Browser().Signs().icon);
        const QImage shown =
            QImage::fromData(QByteArray::fromStdString(*icons.find(world.Browser().Signs().icon)));
        return !shown.isNull() && shown.pixel(5, 5) == 0xff00ff00;
    };

    EXPECT_TRUE(WaitFor(last_is_there));
    EXPECT_LE(icons.size(), 20U) << "of 150";
}

TEST_F(PageChrome, APageOverPlainHttpIsNotSecureAndTheMakersIsNeither) {
    ASSERT_TRUE(Arrive(world.Site + "/plain"));
    EXPECT_EQ(world.Browser().Signs().security, Security::NotEncrypted);

    world.Browser().ShowSecurity();
    EXPECT_NE(WordsOf("security").find("not secure"), std::string::npos);

    ASSERT_TRUE(Arrive("brindlepost://start/"));
    EXPECT_EQ(world.Browser().Signs().security, Security::None);
    EXPECT_EQ(Bar("security"), nullptr);
}

TEST_F(PageChrome, AFailureOverAPageIsABarAndThePageStays) {
    ASSERT_TRUE(Arrive(world.Site + "/plain"));

    ASSERT_TRUE(Fail(world.DeadSite + "/x"));

    EXPECT_EQ(WordsOf("failure"), "127.0.0.1 refused the connection.");
    EXPECT_EQ(Middle(), nullptr);
    EXPECT_EQ(world.Browser().LocationURL(), world.Site + "/plain");
    EXPECT_EQ(world.Browser().LocationName(), "Plain words");

    ASSERT_TRUE(Arrive(world.Site + "/other"));
    EXPECT_EQ(Bar("failure"), nullptr);
}

TEST_F(PageChrome, TryAgainAsksForTheAddressThatFailed) {
    ASSERT_TRUE(Arrive(world.Site + "/plain"));
    ASSERT_TRUE(Fail(world.DeadSite + "/x"));
    const std::size_t before = heard.Failed.size();

    Button("failure", "Try again")->click();

    EXPECT_TRUE(WaitFor([&] { return heard.Failed.size() > before; }));
    EXPECT_EQ(heard.Failed.back(), world.DeadSite + "/x");
    EXPECT_NE(Bar("failure"), nullptr);
}

TEST_F(PageChrome, AFailureInAnEmptyTabIsSaidInItsMiddle) {
    ASSERT_TRUE(Fail(world.DeadSite + "/x"));

    ASSERT_NE(Middle(), nullptr);
    EXPECT_NE(Middle()->Words().toStdString().find("refused the connection"), std::string::npos);
    EXPECT_NE(Middle()->Words().toStdString().find(world.DeadSite + "/x"), std::string::npos);
    EXPECT_EQ(Bar("failure"), nullptr);
    EXPECT_EQ(world.Browser().LocationURL(), "");
    EXPECT_EQ(world.Browser().LocationName(), "");
    EXPECT_TRUE(heard.Titles.empty());

    ASSERT_TRUE(Arrive(world.Site + "/plain"));
    EXPECT_EQ(Middle(), nullptr);
}

TEST_F(PageChrome, AnAddressThatIsNoneIsSaid) {
    ASSERT_TRUE(Arrive(world.Site + "/plain"));

    ASSERT_TRUE(Fail("javascript:alert(1)"));

    EXPECT_EQ(WordsOf("failure"), "This is no address that a page can have.");
}

class BadCertificate : public PageChrome {
protected:
    void Pass() {
        ASSERT_NE(Button("failure", "Go on all the same"), nullptr);
        Button("failure", "Go on all the same")->click();
        QPushButton* on = Button("certificate warning", "Go on until the program ends");
        ASSERT_NE(on, nullptr);
        EXPECT_FALSE(on->isEnabled());
        ASSERT_TRUE(WaitFor([&] { return on->isEnabled(); }));
        const std::size_t before = heard.Completed.size();
        on->click();
        ASSERT_TRUE(WaitFor([&] { return heard.Completed.size() > before && !world.Browser().Busy(); }));
    }
};

TEST_F(BadCertificate, ASelfSignedOneIsRefusedWithItsReason) {
    const SecureServer server({});
    ASSERT_TRUE(Arrive(world.Site + "/plain"));

    ASSERT_TRUE(Fail(server.Address() + "/"));

    EXPECT_EQ(WordsOf("failure"), "Nobody who is trusted here has certified localhost.");
    EXPECT_EQ(server.Served(), 0);
    EXPECT_EQ(world.Browser().LocationName(), "Plain words");
    Button("failure", "Certificate")->click();
    EXPECT_NE(WordsOf("security").find("localhost, certified by itself from"), std::string::npos);
}

TEST_F(BadCertificate, OneForAnotherHostAndAnExpiredOneAreRefusedWithAllTheirReasons) {
    const SecureServer other({.host = "owl.example"});
    const SecureServer old({.expired = true});
    ASSERT_TRUE(Arrive(world.Site + "/plain"));

    ASSERT_TRUE(Fail(other.Address() + "/"));
    EXPECT_EQ(WordsOf("failure"),
              "Nobody who is trusted here has certified localhost. It is for owl.example.");

    ASSERT_TRUE(Fail(old.Address() + "/"));
    const std::string begin = "Nobody who is trusted here has certified localhost. It expired on ";
    EXPECT_EQ(WordsOf("failure").substr(0, begin.size()), begin);
    EXPECT_EQ(other.Served() + old.Served(), 0);
}

TEST_F(BadCertificate, OneThatLacksOnlyOneThingIsRefusedForThatAlone) {
    const SecureServer good({.trusted = true});
    const SecureServer other({.host = "owl.example", .trusted = true});
    const SecureServer old({.expired = true, .trusted = true});
    ASSERT_TRUE(Arrive(good.Address() + "/")) << "or the refusals would say nothing";

    ASSERT_TRUE(Fail(other.Address() + "/"));
    EXPECT_EQ(heard.Codes.back(), -200);
    const std::string for_another = "The certificate of localhost is for another host.";
    EXPECT_EQ(WordsOf("failure").substr(0, for_another.size()), for_another);

    ASSERT_TRUE(Fail(old.Address() + "/"));
    EXPECT_EQ(heard.Codes.back(), -201);
    const std::string expired = "The certificate of localhost is not valid today";
    EXPECT_EQ(WordsOf("failure").substr(0, expired.size()), expired);
    EXPECT_EQ(other.Served() + old.Served(), 0);
}

TEST_F(BadCertificate, NothingIsPassedWhereTheSiteForbidsIt) {
    const SecureServer strict(
        {.host = "strict.localhost", .trusted = true, .at = "strict.localhost", .only_encrypted = true});
    const SecureServer bad({.host = "strict.localhost", .at = "strict.localhost"});
    ASSERT_TRUE(Arrive(strict.Address() + "/"));

    ASSERT_TRUE(Fail(bad.Address() + "/"));

    ASSERT_NE(Bar("failure"), nullptr);
    EXPECT_NE(Button("failure", "Certificate"), nullptr);
    EXPECT_EQ(Button("failure", "Go on all the same"), nullptr);
    EXPECT_EQ(bad.Served(), 0);
}

TEST_F(BadCertificate, ItIsPassedAfterAWarningForThisHostAndCertificateOnly) {
    const SecureServer server({});
    const SecureServer other({});
    ASSERT_TRUE(Fail(server.Address() + "/"));
    ASSERT_NE(Middle(), nullptr);

    Pass();

    EXPECT_EQ(world.Browser().LocationName(), "Secret words");
    EXPECT_EQ(world.Browser().Signs().security, Security::ErrorPassed);
    EXPECT_EQ(Middle(), nullptr);
    world.Browser().ShowSecurity();
    EXPECT_TRUE(WaitFor([&] { return WordsOf("security").find("TLS 1.3") != std::string::npos; }));
    EXPECT_NE(WordsOf("security").find("you let it pass"), std::string::npos);

    ASSERT_TRUE(Arrive(server.Address() + "/again"));
    ASSERT_TRUE(Fail(other.Address() + "/"));
    EXPECT_EQ(other.Served(), 0);
}

TEST_F(BadCertificate, NotGoingOnLeavesItRefused) {
    const SecureServer server({});
    ASSERT_TRUE(Arrive(world.Site + "/plain"));
    ASSERT_TRUE(Fail(server.Address() + "/"));
    Button("failure", "Go on all the same")->click();
    QPushButton* back = Button("certificate warning", "Do not go on");
    ASSERT_TRUE(WaitFor([&] { return back->isEnabled(); }));

    back->click();

    EXPECT_EQ(Bar("certificate warning"), nullptr);
    ASSERT_TRUE(Fail(server.Address() + "/"));
    EXPECT_EQ(server.Served(), 0);
}

}  // namespace
