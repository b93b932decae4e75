#include <gtest/gtest.h>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QThread>
#include <QTimer>

#include "platform/qt/SkinColours.h"
#include "platform/webengine/EnginePageBench.h"
#include "platform/webengine/NoticePage.h"

namespace {

using webengine_tests::EnginePage;
using webengine_tests::WaitFor;

QColor BackgroundOf(webengine_tests::EngineWorld& world) {
    const QList<QObject*> all = world.Window().findChildren<QObject*>();
    for (const QObject* object : all) {
        if (object->inherits("QWebEnginePage")) return object->property("backgroundColor").value<QColor>();
    }
    return {};
}

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

TEST_F(EnginePage, APageOfTheMakerHasItsColourBeforeItIsPaintedAndASiteHasWhite) {
    const QColor ground(qt::skin::Colours().ground);
    Serve("/site", "<title>Site</title>");

    world.Browser().Navigate("brindlepost://start/");
    EXPECT_EQ(BackgroundOf(world), ground);
    ASSERT_TRUE(WaitFor([&] { return !world.Browser().Busy(); }));
    EXPECT_EQ(BackgroundOf(world), ground);

    ASSERT_TRUE(Arrive(world.Site + "/site"));
    EXPECT_EQ(BackgroundOf(world), QColor(Qt::white));

    // What is there already is not painted over by another colour.
    world.Browser().Navigate("brindlepost://start/");
    EXPECT_EQ(BackgroundOf(world), QColor(Qt::white));
}

TEST_F(EnginePage, APageThatFindsASiteInsteadOfTheMakersPageIsWhite) {
    world.Browser().Navigate("brindlepost://start/");
    world.Browser().Navigate(world.Site + "/site");

    EXPECT_TRUE(WaitFor([&] { return BackgroundOf(world) == QColor(Qt::white); }));
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

}  // namespace
