#include <gtest/gtest.h>
#include <signal.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QKeyEvent>
#include <memory>

#include "platform/webengine/EngineWorld.h"

namespace {

using ports::PageSeen;
using webengine_tests::EngineWorld;
using webengine_tests::WaitFor;

constexpr int kActive = 0;
constexpr int kFrozen = 1;
constexpr int kDiscarded = 2;

void RunFor(int milliseconds) {
    QElapsedTimer clock;
    clock.start();
    WaitFor([&] { return clock.hasExpired(milliseconds); });
}

/// MiB of memory that this process really has.
int Resident() {
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly)) return 0;
    return static_cast<int>(file.readAll().split(' ').at(1).toLongLong() * 4096 / (1 << 20));
}

/// Memory that was freed and that the allocator has kept, since something lives in its midst; how much, in
/// MiB.
int LeaveHoles(std::vector<std::unique_ptr<char[]>>& kept) {
    constexpr std::size_t kPiece = std::size_t{64} << 10;
    constexpr int kPieces = 2000;
    const int before = Resident();
    std::vector<std::unique_ptr<char[]>> freed;
    for (int i = 0; i < kPieces; ++i) {
        freed.push_back(std::make_unique<char[]>(kPiece));
        if (i % 20 == 0) kept.push_back(std::make_unique<char[]>(kPiece));
    }
    freed.clear();
    return Resident() - before;
}

/// Pages of one window that are covered and closed as the screen says it.
class PageRest : public testing::Test {
protected:
    PageRest() {
        world.Browser().SetListener(&heard);
        world.Server().Pages["/beat"] = {"beat"};
        Serve("/alive", "<title>Alive</title><script>setInterval(() => fetch('/beat'), 20)</script>");
    }
    ~PageRest() override { world.Browser().SetListener(nullptr); }

    bool Arrive(ports::BrowserControl& page, const std::string& path) {
        page.Navigate(world.Site + path);
        return WaitFor([&] { return page.LocationURL() == world.Site + path && !page.Busy(); });
    }
    void Serve(const char* path, const QByteArray& body) { world.Server().Pages[path] = {body}; }
    int Asked(const char* path) { return world.Server().Asked(path); }
    /// The engine's page of the page that was made first or, for 1, second.
    QObject* Page(int number) {
        std::vector<QObject*> found;
        for (QObject* object : world.Window().findChildren<QObject*>()) {
            if (object->inherits("QWebEnginePage")) found.push_back(object);
        }
        return found.at(static_cast<std::size_t>(number));
    }
    void KillRenderer(int number) {
        const auto process = static_cast<pid_t>(Page(number)->property("renderProcessPid").toLongLong());
        ASSERT_GT(process, 1);
        ASSERT_EQ(kill(process, SIGKILL), 0);
    }
    /// A key of the user's in the page.
    void Write(const char* text) {
        QWidget* view = nullptr;
        for (QWidget* widget : world.Window().findChildren<QWidget*>()) {
            if (view == nullptr && widget->inherits("QWebEngineView")) view = widget;
        }
        ASSERT_NE(view, nullptr);
        QKeyEvent press(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, QString::fromLatin1(text));
        QApplication::sendEvent(view->focusProxy() != nullptr ? view->focusProxy() : view, &press);
    }
    int StateOf(int number) { return Page(number)->property("lifecycleState").toInt(); }
    /// Covers the page and, later, another one, so that it is not the one seen last.
    void CoverBoth() {
        world.Browser().SetSeen(PageSeen::Covered);
        RunFor(30);
        world.Other().SetSeen(PageSeen::Covered);
    }

    EngineWorld world;
    contracts::Listener heard{world.Browser()};
};

TEST_F(PageRest, ACoveredPageDrawsNoMoreAndKnowsItAndGoesOn) {
    Serve("/draws",
          "<title>Draws</title><script>setInterval(() => fetch('/beat'), 20);"
          "const draw = () => { fetch('/frame'); requestAnimationFrame(draw); }; draw();"
          "document.onvisibilitychange = () => fetch('/' + document.visibilityState)</script>");
    ASSERT_TRUE(Arrive(world.Browser(), "/draws"));
    ASSERT_TRUE(WaitFor([&] { return Asked("/frame") > 5; }));

    world.Browser().SetSeen(PageSeen::Covered);

    ASSERT_TRUE(WaitFor([&] { return Asked("/hidden") == 1; }));
    RunFor(500);
    const int frames = Asked("/frame");
    const int beats = Asked("/beat");
    ASSERT_TRUE(WaitFor([&] { return Asked("/beat") > beats + 1; }));
    EXPECT_EQ(Asked("/frame"), frames);
    EXPECT_FALSE(Page(0)->property("audioMuted").toBool());

    world.Browser().SetSeen(PageSeen::InFront);

    EXPECT_TRUE(WaitFor([&] { return Asked("/visible") == 1 && Asked("/frame") > frames; }));
}

TEST_F(PageRest, ACoveredPageAsksTheUserNothing) {
    Serve("/asks",
          "<title>Asks</title><script>onload = () => setTimeout(() => document.title = confirm(1), 300)"
          "</script>");
    ASSERT_TRUE(Arrive(world.Browser(), "/asks"));

    world.Browser().SetSeen(PageSeen::Covered);

    EXPECT_TRUE(WaitFor([&] { return world.Browser().LocationName() == "false"; }));
}

TEST_F(PageRest, AClosedPageIsSilentAndStandsStillAtOnce) {
    ASSERT_TRUE(Arrive(world.Browser(), "/alive"));
    ASSERT_TRUE(WaitFor([&] { return Asked("/beat") > 2; }));

    world.Browser().SetSeen(PageSeen::Closed);

    EXPECT_TRUE(Page(0)->property("audioMuted").toBool());
    EXPECT_EQ(StateOf(0), kFrozen);
    RunFor(150);
    const int beats = Asked("/beat");
    RunFor(300);
    EXPECT_EQ(Asked("/beat"), beats);

    world.Browser().SetSeen(PageSeen::InFront);

    EXPECT_FALSE(Page(0)->property("audioMuted").toBool());
    EXPECT_TRUE(WaitFor([&] { return Asked("/beat") > beats; })) << "reopened, it goes on";
    EXPECT_EQ(Asked("/alive"), 1);
}

TEST_F(PageRest, APageThatIsClosedWhileItLoadsStillArrives) {
    world.Server().Pages["/slow"] = {"<title>Slow</title><img src='/never'>words"};
    world.Server().Silent = "/never";
    world.Browser().Navigate(world.Site + "/plain");

    world.Browser().SetSeen(PageSeen::Closed);

    EXPECT_TRUE(WaitFor([&] { return heard.Completed.size() == 1; }));
    EXPECT_TRUE(WaitFor([&] { return StateOf(0) == kFrozen; }));
    EXPECT_EQ(world.Browser().LocationName(), "Plain words");
}

TEST_F(PageRest, APageThatIsClosedWhileItLoadsOpensNoWindow) {
    Serve("/breeding", "<title>Breeding</title><script>window.open('/alive'); fetch('/beat')</script>");
    heard.ForWindow = &world.Other();
    world.Browser().Navigate(world.Site + "/breeding");

    world.Browser().SetSeen(PageSeen::Closed);

    ASSERT_TRUE(WaitFor([&] { return Asked("/beat") > 0 && StateOf(0) == kFrozen; }));
    EXPECT_EQ(heard.Windows, 0);
}

TEST_F(PageRest, AClosedPageIsDiscardedAndIsStillLoadedToAllThatAsk) {
    ASSERT_TRUE(Arrive(world.Browser(), "/plain"));
    ASSERT_TRUE(Arrive(world.Browser(), "/alive"));
    const std::size_t visits = heard.Completed.size();
    const std::size_t titles = heard.Titles.size();

    world.Browser().SetSeen(PageSeen::Closed);

    ASSERT_TRUE(WaitFor([&] { return StateOf(0) == kDiscarded; }));
    EXPECT_EQ(world.Browser().LocationURL(), world.Site + "/alive");
    EXPECT_EQ(world.Browser().LocationName(), "Alive");
    EXPECT_FALSE(world.Browser().Busy());

    const int beats = Asked("/beat");
    world.Browser().SetSeen(PageSeen::InFront);

    EXPECT_TRUE(WaitFor([&] { return Asked("/beat") > beats && !world.Browser().Busy(); }));
    EXPECT_EQ(StateOf(0), kActive);
    EXPECT_EQ(world.Browser().LocationName(), "Alive");
    EXPECT_EQ(heard.Completed.size(), visits) << "it never was away, so that is no visit";
    EXPECT_EQ(heard.Titles.size(), titles);

    world.Browser().GoBack();

    EXPECT_TRUE(WaitFor([&] { return world.Browser().LocationURL() == world.Site + "/plain"; }))
        << "and it has its history";
}

TEST_F(PageRest, AClosedPageThatSendsWithoutEndIsDiscardedAtOnce) {
    Serve("/flood",
          "<title>0</title><script>let n = 0; setInterval(() => { for (let i = 0; i < 50; ++i)"
          " document.title = ++n }, 5)</script>");
    ASSERT_TRUE(Arrive(world.Browser(), "/flood"));
    RunFor(500);

    world.Browser().SetSeen(PageSeen::Closed);

    EXPECT_EQ(StateOf(0), kDiscarded);
    EXPECT_EQ(world.Browser().LocationURL(), world.Site + "/flood");
}

TEST_F(PageRest, ADiscardedPageThatIsClosedComesBackByRefreshAndBack) {
    ASSERT_TRUE(Arrive(world.Browser(), "/plain"));
    ASSERT_TRUE(Arrive(world.Browser(), "/other"));
    world.Browser().SetSeen(PageSeen::Closed);
    ASSERT_TRUE(WaitFor([&] { return StateOf(0) == kDiscarded; }));
    const std::size_t visits = heard.Completed.size();

    world.Browser().Refresh();
    ASSERT_TRUE(WaitFor([&] { return heard.Completed.size() > visits && !world.Browser().Busy(); }));
    ASSERT_TRUE(WaitFor([&] { return StateOf(0) == kFrozen; })) << "still closed, it rests again";
    world.Browser().GoBack();
    EXPECT_TRUE(WaitFor([&] { return world.Browser().LocationName() == "Plain words"; }));
}

TEST_F(PageRest, ACoveredPageThatDiesIsLoadedAgainWhenItIsSeen) {
    ASSERT_TRUE(Arrive(world.Browser(), "/plain"));
    world.Browser().SetSeen(PageSeen::Covered);

    KillRenderer(0);
    RunFor(600);

    EXPECT_EQ(Asked("/plain"), 1);
    EXPECT_FALSE(world.Browser().Busy());
    EXPECT_EQ(world.Browser().LocationURL(), world.Site + "/plain");

    world.Browser().SetSeen(PageSeen::InFront);

    EXPECT_TRUE(WaitFor([&] { return Asked("/plain") == 2 && !world.Browser().Busy(); }));
    EXPECT_EQ(world.Browser().LocationName(), "Plain words");
}

TEST_F(PageRest, AClosedPageThatDiesStaysAsItIsUntilItIsReopened) {
    ASSERT_TRUE(Arrive(world.Browser(), "/plain"));
    world.Browser().SetSeen(PageSeen::Closed);

    KillRenderer(0);
    RunFor(2500);

    EXPECT_EQ(Asked("/plain"), 1) << "dead, and later discarded";
    world.Browser().SetSeen(PageSeen::InFront);
    EXPECT_TRUE(WaitFor([&] { return Asked("/plain") == 2 && !world.Browser().Busy(); }));
    RunFor(300);
    EXPECT_EQ(Asked("/plain"), 2);
    EXPECT_EQ(world.Browser().LocationName(), "Plain words");
}

TEST_F(PageRest, ACoveredPageThatMindsBeingLeftAsksNobodyAndIsNotBusyForEver) {
    Serve("/minds",
          "<title>Minds</title><script>onbeforeunload = (e) => { e.preventDefault(); return e.returnValue = "
          "'stay' }; onmousedown = () => document.title = 'Pressed'</script>");
    ASSERT_TRUE(Arrive(world.Browser(), "/minds"));
    ASSERT_TRUE(WaitFor([&] { return world.PressInPage() && world.Browser().LocationName() == "Pressed"; }));
    // The engine hears of the press on another way than of the title.
    RunFor(300);
    world.Browser().SetSeen(PageSeen::Covered);

    world.Browser().Navigate(world.Site + "/plain");

    EXPECT_TRUE(WaitFor([&] { return !world.Browser().Busy(); }));
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_EQ(world.Browser().LocationURL(), world.Site + "/minds");
}

TEST_F(PageRest, OfManyClosedPagesTheFirstGoAtOnce) {
    std::vector<ports::BrowserControl*> pages;
    for (int i = 0; i < 3; ++i) {
        pages.push_back(webengine_tests::Factory().MakePage(world.Control(), &world.Window()));
        ASSERT_TRUE(Arrive(*pages.back(), "/plain"));
    }
    QElapsedTimer clock;
    clock.start();

    for (ports::BrowserControl* page : pages) {
        page->SetSeen(PageSeen::Closed);
        RunFor(10);
    }

    EXPECT_TRUE(WaitFor([&] { return StateOf(1) == kDiscarded; }));
    EXPECT_EQ(StateOf(3), kFrozen);
    EXPECT_LT(clock.elapsed(), 1400) << "before its time";
}

TEST_F(PageRest, APageThatIsLongCoveredIsDiscardedAndLoadedAgainWhenItIsSeen) {
    ASSERT_TRUE(Arrive(world.Browser(), "/alive"));
    ASSERT_TRUE(Arrive(world.Other(), "/plain"));

    CoverBoth();

    ASSERT_TRUE(WaitFor([&] { return StateOf(0) == kDiscarded; }));
    EXPECT_EQ(StateOf(1), kActive) << "the one seen last stays";
    const int beats = Asked("/beat");
    world.Browser().SetSeen(PageSeen::InFront);
    EXPECT_TRUE(WaitFor([&] { return Asked("/beat") > beats; }));
}

TEST_F(PageRest, WhatWasFreedIsGivenBackWhereNoPageIsDiscarded) {
    constexpr int kAtLeast = 60;
    ASSERT_TRUE(Arrive(world.Browser(), "/alive"));
    std::vector<std::unique_ptr<char[]>> kept;
    ASSERT_GT(LeaveHoles(kept), kAtLeast);
    const int full = Resident();

    EXPECT_TRUE(WaitFor([&] { return Resident() < full - kAtLeast; })) << Resident() << " of " << full;
    EXPECT_EQ(StateOf(0), kActive);
}

TEST_F(PageRest, WhatWasFreedIsGivenBackAfterACoveredPageIsDiscarded) {
    constexpr int kAtLeast = 60;
    ASSERT_TRUE(Arrive(world.Browser(), "/alive"));
    ASSERT_TRUE(Arrive(world.Other(), "/plain"));
    std::vector<std::unique_ptr<char[]>> kept;
    ASSERT_GT(LeaveHoles(kept), kAtLeast);
    const int full = Resident();

    CoverBoth();

    EXPECT_TRUE(WaitFor([&] { return Resident() < full - kAtLeast; })) << Resident() << " of " << full;
}

TEST_F(PageRest, ACoveredPageWithSomethingOfTheUsersInItStays) {
    Serve("/form",
          "<title>Form</title><input id=name><script>onload = () => document.getElementById('name').value = "
          "'owl'"
          "</script>");
    ASSERT_TRUE(Arrive(world.Browser(), "/form"));
    ASSERT_TRUE(Arrive(world.Other(), "/plain"));

    CoverBoth();

    RunFor(1200);
    EXPECT_EQ(StateOf(0), kActive);
}

TEST_F(PageRest, ACoveredPageThatTheUserHasWrittenInStays) {
    ASSERT_TRUE(Arrive(world.Browser(), "/plain"));
    ASSERT_TRUE(Arrive(world.Other(), "/plain"));
    Write("a");

    CoverBoth();

    RunFor(1200);
    EXPECT_EQ(StateOf(0), kActive);
}

TEST_F(PageRest, ACoveredPageThatCameOfAFormThatWasSentStays) {
    world.Server().Pages["/other?email=&word="] = world.Server().Pages["/other"];
    Serve("/sends",
          "<title>Sends</title><form name=f action=/other><input name=email><input name=word></form>"
          "<script>onload = () => document.forms.f.submit()</script>");
    world.Browser().Navigate(world.Site + "/sends");
    ASSERT_TRUE(WaitFor([&] {
        return world.Browser().LocationURL() == world.Site + "/other?email=&word=" && !world.Browser().Busy();
    }));
    ASSERT_TRUE(Arrive(world.Other(), "/plain"));

    CoverBoth();

    RunFor(1200);
    EXPECT_EQ(StateOf(0), kActive);
}

}  // namespace
