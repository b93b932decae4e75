#include <gtest/gtest.h>

#include <QApplication>
#include <QColorDialog>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QKeyEvent>
#include <QOpenGLContext>
#include <QThread>
#include <QTimer>
#include <QWindow>

#include "platform/webengine/EngineWorld.h"
#include "platform/webengine/NoticePage.h"

namespace {

using webengine_tests::EngineWorld;
using webengine_tests::WaitFor;

/// How often a window was kept from its user by a modal one.
class BlockCount final : public QObject {
public:
    int Blocked = 0;
    int Freed = 0;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::WindowBlocked) ++Blocked;
        if (event->type() == QEvent::WindowUnblocked) ++Freed;
        return QObject::eventFilter(watched, event);
    }
};

class EnginePage : public testing::Test {
protected:
    EnginePage() { world.Browser().SetListener(&heard); }
    ~EnginePage() override { world.Browser().SetListener(nullptr); }

    bool Arrive(const std::string& address) {
        const std::size_t before = heard.Completed.size();
        world.Browser().Navigate(address);
        return WaitFor([&] { return heard.Completed.size() > before && !world.Browser().Busy(); });
    }
    void Serve(const char* path, const QByteArray& body) { world.Server().Pages[path] = {body}; }
    int Asked(const char* path) { return world.Server().Asked(path); }

    EngineWorld world;
    contracts::Listener heard{world.Browser()};
};

TEST_F(EnginePage, TheMakersPagesAreInsideTheProgram) {
    const std::pair<const char*, const char*> pages[] = {
        {"brindlepost://start/", "Start page"},
        {"brindlepost://start/?referrer=quennet&origin=Brindlepost_BG", "Brindlepost"},
        {"brindlepost://start/?referrer=quennet&origin=Brindlepost", "Start page"},
        {"brindlepost://start/"
         "index.php?page=applications&page2=brindlepost&page3=help&referrer=quennet&origin="
         "Brindlepost",
         "Help"},
        {"brindlepost://start/"
         "index.php?page=applications&page2=brindlepost&page3=updates&referrer=quennet&origin="
         "Brindlepost",
         "Updates"},
    };
    for (const auto& [address, title] : pages) {
        ASSERT_TRUE(Arrive(address)) << address;

        EXPECT_EQ(world.Browser().LocationURL(), address);
        EXPECT_EQ(world.Browser().LocationName(), title);
    }
}

TEST_F(EnginePage, TheMakersSiteWithoutASlashIsTheStartPage) {
    ASSERT_TRUE(Arrive("brindlepost://start"));

    EXPECT_EQ(world.Browser().LocationName(), "Start page");
    EXPECT_EQ(world.Browser().LocationURL(), "brindlepost://start/");
}

TEST_F(EnginePage, AnUnknownPageOfTheMakerFails) {
    world.Browser().Navigate("brindlepost://start/secret");

    EXPECT_TRUE(WaitFor([&] { return !heard.Failed.empty(); }));
}

TEST_F(EnginePage, AFailedNavigationKeepsTheDocumentAlive) {
    Serve("/beat", "beat");
    Serve("/alive", "<title>Alive</title><script>setInterval(() => fetch('/beat'), 20)</script>");
    ASSERT_TRUE(Arrive(world.Site + "/alive"));
    const int documents = Asked("/alive");

    world.Browser().Navigate(world.DeadSite + "/x");
    ASSERT_TRUE(WaitFor([&] { return !heard.Failed.empty(); }));

    const int beats = Asked("/beat");
    EXPECT_TRUE(WaitFor([&] { return Asked("/beat") > beats + 2; }));
    EXPECT_EQ(Asked("/alive"), documents);
    EXPECT_EQ(world.Browser().LocationName(), "Alive");
}

// As music and a window that is painted keep the loop.
TEST_F(EnginePage, AWindowWithMuchToDoDoesNotHoldThePagesUp) {
    Serve("/many",
          "<title>0</title><script>onload = () => { for (let i = 1; i <= 600; ++i) document.title = 'Title ' "
          "+ i }"
          "</script>");
    QTimer work;
    QObject::connect(&work, &QTimer::timeout, [] { QThread::msleep(20); });
    work.start(0);
    QElapsedTimer taken;
    taken.start();
    ASSERT_TRUE(Arrive(world.Site + "/many"));

    ASSERT_TRUE(WaitFor([&] { return world.Browser().LocationName() == "Title 600"; }));

    // One piece of work a turn would be 600 times 20 milliseconds.
    EXPECT_LT(taken.elapsed(), 8000);
}

TEST_F(EnginePage, AnErrorAnswerWithoutWordsIsAnEmptyPage) {
    world.Server().Pages["/gone"] = {"", "Content-Type: text/html\r\n", "404 Not Found"};
    ASSERT_TRUE(Arrive(world.Site + "/plain"));

    ASSERT_TRUE(Arrive(world.Site + "/gone"));

    EXPECT_EQ(world.Browser().LocationURL(), world.Site + "/gone");
    EXPECT_TRUE(heard.Failed.empty());
}

TEST_F(EnginePage, AnErrorPageOfTheServerIsAPage) {
    ASSERT_TRUE(Arrive(world.Site + "/nothing-here"));

    EXPECT_EQ(world.Browser().LocationName(), "Not found");
}

TEST_F(EnginePage, ATitleThatChangesLaterIsTold) {
    Serve("/later", "<title>Early</title><script>setTimeout(() => document.title = 'Late', 50)</script>");
    ASSERT_TRUE(Arrive(world.Site + "/later"));

    EXPECT_TRUE(WaitFor([&] { return world.Browser().LocationName() == "Late"; }));
    EXPECT_EQ(heard.Titles.back(), "Late");
}

TEST_F(EnginePage, ATitleThatNeverRestsIsToldAFewTimesASecondAndItsLastOneAlways) {
    Serve("/restless",
          "<title>Restless</title><script>let n = 0; const run = setInterval(() => { document.title = n++ + "
          "'x'.repeat(3000); if (n < 300) return; clearInterval(run); document.title = 'At rest' }, 5)"
          "</script>");
    ASSERT_TRUE(Arrive(world.Site + "/restless"));

    ASSERT_TRUE(WaitFor([&] { return world.Browser().LocationName() == "At rest"; }));

    EXPECT_LT(heard.Titles.size(), 20U);
    EXPECT_EQ(heard.Titles.back(), "At rest");
    for (const std::string& title : heard.Titles)
        EXPECT_LE(title.size(), 200U);
}

TEST_F(EnginePage, AddressesThatAScriptPushesInALoopAreToldAFewTimesASecondAndTheLastOneAlways) {
    Serve("/pushes",
          "<title>Pushes</title><script>onload = () => { let n = 0; const run = setInterval(() => {"
          "history.replaceState(0, '', '/pushes/' + ++n); if (n == 100) clearInterval(run) }, 10) }"
          "</script>");
    ASSERT_TRUE(Arrive(world.Site + "/pushes"));

    ASSERT_TRUE(WaitFor([&] { return heard.Completed.back() == world.Site + "/pushes/100"; }));

    EXPECT_LT(heard.Completed.size(), 15U);
}

TEST_F(EnginePage, AnAnchorIsPartOfTheAddress) {
    Serve("/long", "<title>Long</title><script>setTimeout(() => location.hash = 'end', 50)</script>");
    ASSERT_TRUE(Arrive(world.Site + "/long"));

    EXPECT_TRUE(WaitFor([&] { return world.Browser().LocationURL() == world.Site + "/long#end"; }));
    EXPECT_EQ(Asked("/long"), 1);
}

TEST_F(EnginePage, AnAddressPushedByAScriptIsTold) {
    Serve("/app",
          "<title>App</title><script>setTimeout(() => history.pushState(0, '', '/app/2'), 50)</script>");
    ASSERT_TRUE(Arrive(world.Site + "/app"));

    EXPECT_TRUE(WaitFor([&] { return world.Browser().LocationURL() == world.Site + "/app/2"; }));
}

TEST_F(EnginePage, BackAndForwardInsideADocumentAreTold) {
    Serve("/app", "<title>App</title>");
    ASSERT_TRUE(Arrive(world.Site + "/app"));
    ASSERT_TRUE(Arrive(world.Site + "/app#two"));
    heard.Completed.clear();

    world.Browser().GoBack();
    EXPECT_TRUE(WaitFor([&] { return heard.Completed.size() == 1; }));
    EXPECT_EQ(world.Browser().LocationURL(), world.Site + "/app");
    EXPECT_FALSE(world.Browser().Busy());
    world.Browser().GoForward();
    EXPECT_TRUE(WaitFor([&] { return heard.Completed.size() == 2; }));

    EXPECT_EQ(world.Browser().LocationURL(), world.Site + "/app#two");
    EXPECT_FALSE(world.Browser().Busy());
    EXPECT_EQ(world.Server().Asked("/app"), 1);
}

TEST_F(EnginePage, ARedirectArrivesAtItsEnd) {
    world.Server().Pages["/from"] = {"", "Location: /plain\r\n", "302 Found"};

    ASSERT_TRUE(Arrive(world.Site + "/from"));

    EXPECT_EQ(world.Browser().LocationURL(), world.Site + "/plain");
    EXPECT_EQ(heard.Completed, std::vector<std::string>{world.Site + "/plain"});
}

TEST_F(EnginePage, ALocalPageCannotReadOtherLocalFiles) {
    const QString folder = world.Folder().path();
    QFile secret(folder + "/secret.txt");
    ASSERT_TRUE(secret.open(QIODevice::WriteOnly));
    secret.write("secret");
    secret.close();
    QFile page(folder + "/thief.html");
    ASSERT_TRUE(page.open(QIODevice::WriteOnly));
    page.write(
        "<title>?</title><script>"
        "const r = new XMLHttpRequest(); r.onload = () => document.title = 'read ' + r.responseText;"
        "r.onerror = () => document.title = 'refused'; r.open('GET', 'secret.txt');"
        "try { r.send(); } catch (e) { document.title = 'refused'; }</script>");
    page.close();

    ASSERT_TRUE(Arrive((folder + "/thief.html").toStdString()));

    EXPECT_TRUE(WaitFor([&] { return world.Browser().LocationName() == "refused"; }))
        << world.Browser().LocationName();
}

TEST_F(EnginePage, APageOpensOnlySoManyWindows) {
    Serve("/flood",
          "<title>Flood</title><script>for (let i = 0; i < 60; ++i) window.open('/other');"
          "document.title = 'Done'</script>");

    ASSERT_TRUE(Arrive(world.Site + "/flood"));

    EXPECT_EQ(heard.Windows, 20);
    EXPECT_EQ(world.Browser().LocationName(), "Done");
}

TEST_F(EnginePage, AWindowThatTheUserClicksForOpensThoughThePageMayOpenNoMore) {
    Serve("/flood",
          "<title>Flood</title><body><script>for (let i = 0; i < 60; ++i) window.open('/other');"
          "document.onmousedown = () => { for (let i = 0; i < 60; ++i) window.open('/other') };"
          "document.onmouseup = () => { document.title = 'Clicked' };"
          "requestAnimationFrame(() => requestAnimationFrame(() => { document.title = 'Drawn' }))</script>");
    ASSERT_TRUE(Arrive(world.Site + "/flood"));
    ASSERT_TRUE(WaitFor([&] { return world.Browser().LocationName() == "Drawn"; }));
    ASSERT_EQ(heard.Windows, 20);

    ASSERT_TRUE(world.PressInPage());
    ASSERT_TRUE(WaitFor([&] { return world.Browser().LocationName() == "Clicked"; }));

    // The one that was clicked for, and the page's own twenty that a click gives it again.
    EXPECT_EQ(heard.Windows - 20, 1 + 20);
}

TEST_F(EnginePage, AScriptThatNeverEndsLeavesTheProgramRunning) {
    Serve("/endless", "<title>Endless</title><script>setTimeout(() => { for (;;); }, 0)</script>");
    ASSERT_TRUE(Arrive(world.Site + "/endless"));

    world.Browser().Navigate("brindlepost://start/");

    EXPECT_TRUE(WaitFor([&] { return world.Browser().LocationName() == "Start page"; }));
}

TEST_F(EnginePage, BoxesOfAPageThatIsNotShownAreAnsweredWithNo) {
    Serve("/asks",
          "<title>Asks</title><script>let n = 0; for (let i = 0; i < 50; ++i) { alert(i);"
          "if (!confirm(i)) ++n; } document.title = 'answered ' + n</script>");
    world.Window().hide();

    ASSERT_TRUE(Arrive(world.Site + "/asks"));

    EXPECT_EQ(world.Browser().LocationName(), "answered 50");
}

TEST_F(EnginePage, ADownloadEndsInItsFolderUnderACleanName) {
    world.Server().Pages["/file"] = {
        "words",
        "Content-Type: application/octet-stream\r\n"
        "Content-Disposition: attachment; filename=\"..\\..\\.evil/../x:y.bin\"\r\n"};
    ASSERT_TRUE(Arrive(world.Site + "/plain"));
    const QDir folder(webengine_tests::DownloadFolder());

    world.Browser().Navigate(world.Site + "/file");

    ASSERT_TRUE(WaitFor([&] { return !folder.entryList({"*.bin"}, QDir::Files).isEmpty(); }));
    const QStringList names = folder.entryList({"*.bin"}, QDir::Files | QDir::Hidden);
    ASSERT_EQ(names.size(), 1);
    EXPECT_FALSE(names[0].startsWith('.'));
    EXPECT_TRUE(WaitFor([&] { return !world.Browser().Busy(); }));
    EXPECT_EQ(world.Browser().LocationURL(), world.Site + "/plain");
}

TEST_F(EnginePage, APlayListFileOfThisComputerIsAPageOfText) {
    QFile list(world.Folder().path() + "/evening songs.mpl");
    ASSERT_TRUE(list.open(QIODevice::WriteOnly));
    list.write("Nobody - Caf\xe9\r\n");
    list.close();

    ASSERT_TRUE(Arrive(list.fileName().toStdString()));

    EXPECT_TRUE(heard.Completed.back().ends_with("/evening%20songs.mpl")) << heard.Completed.back();
    EXPECT_TRUE(QDir(webengine_tests::DownloadFolder()).entryList({"*.mpl"}, QDir::Files).isEmpty());
}

TEST_F(EnginePage, ADocumentThatNeverGetsReadyIsToldAsSoonAsItIsThere) {
    world.Server().Pages["/slow"] = {"<title>Slow</title><img src='/never'>words"};
    world.Server().Silent = "/never";

    world.Browser().Navigate(world.Site + "/slow");

    EXPECT_TRUE(WaitFor([&] { return world.Browser().LocationName() == "Slow"; }));
    EXPECT_TRUE(world.Browser().Busy());
    EXPECT_EQ(world.Browser().LocationURL(), world.Site + "/slow");
    EXPECT_EQ(heard.Completed, std::vector<std::string>{world.Site + "/slow"});
}

TEST_F(EnginePage, ABadAddressFailsOnlyAsLongAsNoOtherWasAskedFor) {
    world.Browser().Navigate("no such thing");

    ASSERT_TRUE(Arrive(world.Site + "/plain"));

    EXPECT_TRUE(heard.Failed.empty());
}

TEST_F(EnginePage, APageThatLoadsItselfOverAndOverAsksOnlySoOften) {
    Serve("/nag",
          "<title>Nag</title><script>if (!confirm('again?')) fetch('/no'); "
          "setTimeout(() => location.reload(), 10)</script>");
    int boxes = 0;
    QTimer closer;
    QObject::connect(&closer, &QTimer::timeout, &closer, [&boxes] {
        QWidget* box = QApplication::activeModalWidget();
        if (box == nullptr) return;
        ++boxes;
        box->close();
    });
    closer.start(10);

    world.Browser().Navigate(world.Site + "/nag");

    EXPECT_TRUE(WaitFor([&] { return Asked("/no") >= 8; }));
    EXPECT_EQ(boxes, 3);
}

TEST_F(EnginePage, APressInThePageLetsItAskAgain) {
    Serve(
        "/nag",
        "<title>Nag</title><script>setInterval(() => { if (!confirm('again?')) fetch('/no') }, 10)</script>");
    int boxes = 0;
    QTimer closer;
    QObject::connect(&closer, &QTimer::timeout, &closer, [&boxes] {
        QWidget* box = QApplication::activeModalWidget();
        if (box == nullptr) return;
        ++boxes;
        box->close();
    });
    closer.start(10);
    world.Browser().Navigate(world.Site + "/nag");
    ASSERT_TRUE(WaitFor([&] { return Asked("/no") >= 8; }));
    ASSERT_EQ(boxes, 3);

    ASSERT_TRUE(world.PressInPage());

    EXPECT_TRUE(WaitFor([&] { return boxes == 6; }));
}

TEST_F(EnginePage, EscapeDoesNotLetAPageAskAgain) {
    Serve(
        "/nag",
        "<title>Nag</title><script>setInterval(() => { if (!confirm('again?')) fetch('/no') }, 10)</script>");
    int boxes = 0;
    QTimer closer;
    QObject::connect(&closer, &QTimer::timeout, &closer, [&boxes] {
        if (QWidget* box = QApplication::activeModalWidget(); box != nullptr) ++boxes, box->close();
    });
    closer.start(10);
    world.Browser().Navigate(world.Site + "/nag");
    ASSERT_TRUE(WaitFor([&] { return Asked("/no") >= 8; }));

    const int refused = Asked("/no");
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    for (QWidget* widget : world.Window().findChildren<QWidget*>()) {
        if (widget->inherits("QWebEngineView")) QApplication::sendEvent(widget->focusProxy(), &press);
    }

    ASSERT_TRUE(WaitFor([&] { return Asked("/no") > refused + 8; }));
    EXPECT_EQ(boxes, 3);
}

TEST_F(EnginePage, AHostThatSwallowsWhatIsEncryptedIsSoonAskedWithout) {
    webengine_tests::Net().Swallowing = "swallowing.example";
    QElapsedTimer clock;
    clock.start();

    world.Browser().Navigate("swallowing.example/plain");

    EXPECT_TRUE(WaitFor([&] { return world.Browser().LocationName() == "Plain words"; }));
    EXPECT_EQ(world.Browser().LocationURL(), "http://swallowing.example/plain");
    EXPECT_LT(clock.elapsed(), 5000);
    EXPECT_TRUE(heard.Failed.empty());
}

TEST_F(EnginePage, AHostThatWasAskedForOnHttpsIsNeverAskedWithout) {
    webengine_tests::Net().Swallowing = "silent.example";
    world.Browser().Navigate("https://silent.example/plain");

    QElapsedTimer clock;
    clock.start();
    WaitFor([&] { return clock.hasExpired(1200); });

    EXPECT_TRUE(world.Browser().Busy());
    EXPECT_FALSE(webengine_tests::Net().Addresses().contains("http://silent.example/plain"));
}

TEST_F(EnginePage, ColourChoosersPassTheLimitOfBoxes) {
    Serve("/colours",
          "<title>Colours</title><script>setInterval(() => { const i = document.createElement('input');"
          "i.type = 'color'; document.body.append(i); i.click(); fetch('/tick') }, 30)</script>");
    int choosers = 0;
    QTimer closer;
    QObject::connect(&closer, &QTimer::timeout, &closer, [&choosers] {
        for (QWidget* window : QApplication::topLevelWidgets()) {
            auto* chooser = qobject_cast<QColorDialog*>(window);
            if (chooser == nullptr || !chooser->isVisible() ||
                chooser->testAttribute(Qt::WA_DontShowOnScreen))
                continue;
            ++choosers;
            chooser->reject();
        }
    });
    closer.start(5);
    BlockCount blocks;
    world.Window().windowHandle()->installEventFilter(&blocks);
    world.Browser().Navigate(world.Site + "/colours");

    ASSERT_TRUE(WaitFor([&] { return Asked("/tick") >= 30; }));
    EXPECT_LE(choosers, 3);
    EXPECT_LE(blocks.Blocked, 3) << "the window takes clicks as if there was none";
    EXPECT_EQ(blocks.Blocked, blocks.Freed);
}

TEST_F(EnginePage, AWindowThatClosesItselfIsTold) {
    Serve("/shuts", "<title>Shuts</title><script>setTimeout(close, 100)</script>");
    Serve("/opens", "<title>Opens</title><script>window.open('/shuts')</script>");
    contracts::Listener other_heard(world.Other());
    world.Other().SetListener(&other_heard);
    heard.ForWindow = &world.Other();

    ASSERT_TRUE(Arrive(world.Site + "/opens"));

    EXPECT_TRUE(WaitFor([&] { return other_heard.Closings == 1; }));
    EXPECT_EQ(heard.Closings, 0);
    world.Other().SetListener(nullptr);
}

TEST_F(EnginePage, ATabOfTheUserIsNotClosedByItsPage) {
    Serve("/shuts",
          "<title>Shuts</title><script>setTimeout(close, 50); setTimeout(() => fetch('/tick'), 300)"
          "</script>");

    ASSERT_TRUE(Arrive(world.Site + "/shuts"));

    WaitFor([&] { return Asked("/tick") > 0 || heard.Closings > 0; });
    EXPECT_EQ(heard.Closings, 0);
}

TEST_F(EnginePage, AWindowThatBecameOnlyADownloadIsToldToClose) {
    world.Server().Pages["/packed"] = {"words",
                                       "Content-Type: application/octet-stream\r\n"
                                       "Content-Disposition: attachment; filename=\"packed.bin\"\r\n"};
    Serve("/opens", "<title>Opens</title><script>window.open('/packed')</script>");
    contracts::Listener other_heard(world.Other());
    world.Other().SetListener(&other_heard);
    heard.ForWindow = &world.Other();

    ASSERT_TRUE(Arrive(world.Site + "/opens"));

    EXPECT_TRUE(WaitFor([&] { return other_heard.Closings == 1; }));
    EXPECT_EQ(heard.Closings, 0);
    world.Other().SetListener(nullptr);
    QFile::remove(webengine_tests::DownloadFolder() + "/packed.bin");
}

TEST_F(EnginePage, APageThatDiesBeforeItShowsAnythingLeavesANotice) {
    world.Browser().Navigate("chrome://crash");

    const auto find = [&] { return world.Window().findChild<QWidget*>("notice"); };
    ASSERT_TRUE(WaitFor([&] { return find() != nullptr && find()->isVisible(); }));
    const auto* notice = find();
    EXPECT_FALSE(heard.Failed.empty());
    EXPECT_FALSE(world.Browser().Busy());
    ASSERT_TRUE(Arrive(world.Site + "/plain"));
    EXPECT_FALSE(notice->isVisible());
}

TEST_F(EnginePage, ADeadPageIsLoadedOnceMore) {
    ASSERT_TRUE(Arrive(world.Site + "/plain"));

    world.Browser().Navigate("chrome://crash");
    ASSERT_TRUE(WaitFor([&] { return Asked("/plain") == 2; }));
    ASSERT_TRUE(WaitFor([&] { return !world.Browser().Busy(); }));

    EXPECT_EQ(world.Browser().LocationURL(), world.Site + "/plain");
}

TEST_F(EnginePage, TheWidgetMayGoBeforeTheEngine) {
    ASSERT_TRUE(Arrive(world.Site + "/plain"));

    qDeleteAll(world.Window().findChildren<QWidget*>(Qt::FindDirectChildrenOnly));
    world.Browser().Navigate(world.Site + "/other");
    world.Browser().GoBack();
    world.Browser().Refresh();

    EXPECT_FALSE(world.Browser().Busy());
}

TEST_F(EnginePage, TheEnvironmentCannotChangeTheEngine) {
    EXPECT_EQ(qgetenv("QTWEBENGINE_REMOTE_DEBUGGING"), QByteArray());
    EXPECT_EQ(qgetenv("QTWEBENGINE_DISABLE_SANDBOX"), QByteArray());
    EXPECT_FALSE(qgetenv("QTWEBENGINE_CHROMIUM_FLAGS").contains("renderer-cmd-prefix"));
}

/// Two users, one after the other, on one site.
class EngineFactory : public testing::Test {
protected:
    EngineFactory() {
        server.Pages["/in"] = {"<title>In</title>in",
                               "Content-Type: text/html\r\nSet-Cookie: who=ann; Max-Age=3600\r\n"};
        server.Pages["/there"] = {"<title>There</title>there"};
        server.Pages["/beat"] = {"beat"};
        server.Pages["/store"] = {
            "<title>Store</title><script>localStorage.setItem('who', 'ann');"
            "document.title = 'stored'</script>"};
        server.Pages["/read"] = {"<script>document.title = 'found ' + localStorage.getItem('who')</script>"};
        server.Pages["/alive"] = {
            "<title>Alive</title><script>setInterval(() => fetch('/beat'), 20)</script>"};
        window.show();
    }

    /// A page that a user opens, until it has arrived under a title.
    bool Open(const char* path, const std::string& title) {
        page = webengine_tests::Factory().MakePage(control, &window);
        page->Navigate(server.Address() + path);
        return WaitFor([&] { return page->LocationName() == title; });
    }

    webengine_tests::PageServer server;
    QWidget window;
    controls::WebBrowser control{"Browser"};
    ports::BrowserControl* page = nullptr;
};

TEST_F(EngineFactory, TheNextUserHasNoCookieOfTheOneBefore) {
    ASSERT_TRUE(Open("/in", "In"));
    ASSERT_TRUE(Open("/there", "There"));
    ASSERT_TRUE(server.LastRequest().contains("who=ann")) << "the same user is known";

    webengine_tests::Factory().ForgetVisits();

    ASSERT_TRUE(Open("/there", "There"));
    EXPECT_FALSE(server.LastRequest().contains("who=ann"));
}

TEST_F(EngineFactory, TheNextUserFindsNothingThatPagesStored) {
    ASSERT_TRUE(Open("/store", "stored"));
    ASSERT_TRUE(Open("/read", "found ann"));

    webengine_tests::Factory().ForgetVisits();

    EXPECT_TRUE(Open("/read", "found null"));
}

TEST_F(EngineFactory, PagesThatNobodyCanCloseAnyMoreGoWithTheirUser) {
    ASSERT_TRUE(Open("/alive", "Alive"));
    ASSERT_TRUE(WaitFor([&] { return server.Asked("/beat") > 2; }));

    webengine_tests::Factory().ForgetVisits();

    ASSERT_TRUE(Open("/there", "There"));
    const int beats = server.Asked("/beat");
    ASSERT_TRUE(Open("/in", "In"));
    EXPECT_EQ(server.Asked("/beat"), beats);
    EXPECT_TRUE(Open("/there", "There"));
    EXPECT_TRUE(server.LastRequest().contains("who=ann")) << "cookies work again";
}

TEST(PageModule, TellsTheEnginesVersionAndPatchLevel) {
    const std::string version = webengine::EngineVersion(BRINDLEPOST_PAGES_DIR);

    EXPECT_EQ(version.find("Qt WebEngine 6."), 0U) << version;
    EXPECT_NE(version.find(", Chromium "), std::string::npos) << version;
    EXPECT_NE(version.find(", security patches up to "), std::string::npos) << version;
    EXPECT_EQ(webengine::EngineVersion("/nowhere"), "");
}

// As the engine is loaded it looks for the context, and says so where there is none.
TEST(PageModule, HasAContextToShareAsSoonAsItIsLoaded) {
    ASSERT_FALSE(webengine::EngineVersion(BRINDLEPOST_PAGES_DIR).empty());

    EXPECT_NE(QOpenGLContext::globalShareContext(), nullptr);
    EXPECT_TRUE(QCoreApplication::testAttribute(Qt::AA_ShareOpenGLContexts));
}

}  // namespace
