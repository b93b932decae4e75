#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDesktopServices>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QMenu>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "controls/Control.h"
#include "platform/webengine/EngineWorld.h"

namespace {

using webengine_tests::EngineWorld;
using webengine_tests::WaitFor;

constexpr int kF12 = 123;

/// A document of one page, as small as one may be.
QByteArray SmallPdf() {
    return "%PDF-1.4\n1 0 obj<</Type/Catalog/Pages 2 0 R>>endobj\n"
           "2 0 obj<</Type/Pages/Kids[3 0 R]/Count 1>>endobj\n"
           "3 0 obj<</Type/Page/Parent 2 0 R/MediaBox[0 0 200 200]>>endobj\n"
           "trailer<</Root 1 0 R>>\n%%EOF\n";
}

/// Takes addresses that would go to the system's programs.
class SystemsBrowser final : public QObject {
    Q_OBJECT
public:
    SystemsBrowser() { QDesktopServices::setUrlHandler("http", this, "Take"); }
    ~SystemsBrowser() override { QDesktopServices::unsetUrlHandler("http"); }
    std::vector<std::string> Opened;
public slots:
    void Take(const QUrl& address) { Opened.push_back(address.toEncoded().toStdString()); }
};

class PageTools : public testing::Test {
protected:
    PageTools() {
        world.Browser().SetListener(&heard);
        for (QWidget* area : world.Window().findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
            area->setGeometry(world.Window().rect());
    }
    ~PageTools() override {
        world.Browser().SetListener(nullptr);
        webengine_tests::Factory().ForgetVisits();
        for (const QFileInfo& file : folder.entryInfoList(QDir::Files | QDir::Hidden))
            QFile::remove(file.filePath());
    }

    bool Arrive(const std::string& address) {
        const std::size_t before = heard.Completed.size();
        world.Browser().Navigate(address);
        return WaitFor([&] { return heard.Completed.size() > before && !world.Browser().Busy(); });
    }
    /// Shows the page; it has its title once it has been drawn, for the engine answers the mouse from then
    /// on.
    bool Show(const QByteArray& body) {
        world.Server().Pages["/shown"] = {
            "<title>Drawing</title><body style='margin:0'>" + body +
            "<script>requestAnimationFrame(() => requestAnimationFrame(() => {"
            "if (document.title === 'Drawing') document.title = 'Shown'; }))</script>"};
        return Arrive(world.Site + "/shown") &&
               WaitFor([&] { return world.Browser().LocationName() != "Drawing"; });
    }
    QWidget* Under(const QPoint& place) {
        QWidget* at = world.Window().childAt(place);
        return at != nullptr ? at : &world.Window();
    }
    void Click(const QPoint& place, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mouseClick(world.Window().windowHandle(), button, {}, place);
    }
    QMenu* Menu() {
        for (QMenu* menu : world.Window().findChildren<QMenu*>("pageMenu"))
            if (menu->isVisible()) return menu;
        return nullptr;
    }
    bool OpenMenu(const QPoint& place) {
        Click(place, Qt::RightButton);
        return WaitFor([&] { return Menu() != nullptr; });
    }
    QStringList Entries() {
        QStringList words;
        for (const QAction* action : Menu()->actions())
            if (!action->isSeparator()) words << action->text();
        return words;
    }
    bool Choose(const QString& words) {
        for (QAction* action : Menu()->actions()) {
            if (action->text() != words || !action->isEnabled()) continue;
            action->trigger();
            Menu()->close();
            return true;
        }
        return false;
    }
    template <class Widget>
    static Widget* Window(const char* name) {
        for (QWidget* window : QApplication::topLevelWidgets())
            if (window->objectName() == name && window->isVisible()) return dynamic_cast<Widget*>(window);
        return nullptr;
    }
    QStringList Files() const { return folder.entryList(QDir::Files | QDir::Hidden, QDir::Name); }

    EngineWorld world;
    contracts::Listener heard{world.Browser()};
    QDir folder{webengine_tests::DownloadFolder()};
};

TEST_F(PageTools, APdfFileIsShownInTheTab) {
    world.Server().Pages["/owl.pdf"] = {SmallPdf(), "Content-Type: application/pdf\r\n"};

    ASSERT_TRUE(Arrive(world.Site + "/owl.pdf"));

    EXPECT_EQ(world.Browser().LocationURL(), world.Site + "/owl.pdf");
    EXPECT_EQ(heard.Completed, std::vector<std::string>{world.Site + "/owl.pdf"});
    EXPECT_FALSE(Files().contains(QStringLiteral("owl.pdf")));
}

TEST_F(PageTools, TheMenuOfALinkHasWhatCanBeDoneWithIt) {
    ASSERT_TRUE(Show("<a href='/other' style='display:block;height:80px'>other</a>"));

    ASSERT_TRUE(OpenMenu({20, 20}));

    EXPECT_EQ(Entries(),
              QStringList({"Open link in a new tab", "Open link behind", "Open link in the system's browser",
                           "Copy link", "Save link as...", "View source", "Inspect"}));
}

TEST_F(PageTools, ALinkIsOpenedInATabBehind) {
    ASSERT_TRUE(Show("<a href='/other' style='display:block;height:80px'>other</a>"));
    heard.ForWindow = &world.Other();
    ASSERT_TRUE(OpenMenu({20, 20}));

    ASSERT_TRUE(Choose("Open link behind"));

    EXPECT_TRUE(WaitFor([&] { return world.Server().Asked("/other") == 1; }));
    EXPECT_TRUE(WaitFor([&] { return world.Other().LocationURL() == world.Site + "/other"; }));
    EXPECT_EQ(heard.WindowsBehind, 1);
}

TEST_F(PageTools, ALinkIsHandedToTheSystemsBrowser) {
    SystemsBrowser browser;
    ASSERT_TRUE(Show("<a href='/other' style='display:block;height:80px'>other</a>"));
    ASSERT_TRUE(OpenMenu({20, 20}));

    ASSERT_TRUE(Choose("Open link in the system's browser"));

    EXPECT_EQ(browser.Opened, std::vector<std::string>{world.Site + "/other"});
}

TEST_F(PageTools, TheMenuOfThePageHasWhatCanBeDoneWithIt) {
    SystemsBrowser browser;
    ASSERT_TRUE(Show("<p>words</p>"));
    ASSERT_TRUE(OpenMenu({300, 300}));

    EXPECT_EQ(Entries(), QStringList({"Back", "Forward", "Refresh", "Add page to favourites",
                                      "Open page in the system's browser", "Save page as...", "Print...",
                                      "Downloads", "View source", "Inspect"}));
    ASSERT_TRUE(Choose("Open page in the system's browser"));
    EXPECT_EQ(browser.Opened, std::vector<std::string>{world.Site + "/shown"});
}

TEST_F(PageTools, ThePageIsOfferedToTheFavourites) {
    webengine_tests::Intake().clear();
    ASSERT_TRUE(Show("<p>words</p>"));
    ASSERT_TRUE(OpenMenu({300, 300}));

    ASSERT_TRUE(Choose("Add page to favourites"));

    EXPECT_EQ(webengine_tests::Intake(), std::vector<std::string>{"favourite"});
}

TEST_F(PageTools, TheSourceIsShownInATabOfItsOwn) {
    ASSERT_TRUE(Show("<p>words</p>"));
    heard.ForWindow = &world.Other();

    ASSERT_TRUE(world.Browser().TakeKey('U', controls::kControlMask));

    EXPECT_TRUE(WaitFor([&] {
        return world.Other().LocationURL() == "view-source:" + world.Site + "/shown";
    })) << world.Other().LocationURL();
}

TEST_F(PageTools, TheDeveloperToolsHaveAWindowOfTheirOwn) {
    ASSERT_TRUE(Show("<p>words</p>"));

    ASSERT_TRUE(world.Browser().TakeKey(kF12, 0));
    ASSERT_TRUE(WaitFor([&] { return Window<QWidget>("developerTools") != nullptr; }));
    ASSERT_TRUE(world.Browser().TakeKey(kF12, 0));

    EXPECT_TRUE(WaitFor([&] { return Window<QWidget>("developerTools") == nullptr; }));
}

TEST_F(PageTools, APageIsPrintedIntoTheDownloads) {
    ASSERT_TRUE(Show("<p>words</p>"));

    ASSERT_TRUE(world.Browser().TakeKey('P', controls::kControlMask));
    ASSERT_TRUE(WaitFor([&] { return world.Window().findChild<QDialog*>("print") != nullptr; }));
    world.Window().findChild<QDialog*>("print")->accept();

    ASSERT_TRUE(WaitFor([&] { return Files() == QStringList("Shown.pdf"); }));
    EXPECT_TRUE(WaitFor([&] {
        QFile file(folder.filePath("Shown.pdf"));
        return file.open(QIODevice::ReadOnly) && file.read(5) == "%PDF-";
    }));
}

TEST_F(PageTools, APageThatPrintsOverAndOverIsAskedOnlySoOften) {
    int boxes = 0;
    QTimer closer;
    QObject::connect(&closer, &QTimer::timeout, &closer, [&] {
        auto* box = world.Window().findChild<QDialog*>("print");
        if (box == nullptr || !box->isVisible()) return;
        ++boxes;
        box->reject();
    });
    closer.start(10);
    world.Server().Pages["/beat"] = {"beat"};

    ASSERT_TRUE(Show(
        "<script>let n = 0; setInterval(() => { print(); if (++n > 20) fetch('/beat'); }, 30)</script>"));
    ASSERT_TRUE(WaitFor([&] { return world.Server().Asked("/beat") > 0; }));

    EXPECT_EQ(boxes, 2);
}

TEST_F(PageTools, APageCannotFillTheScreenWithoutAClick) {
    ASSERT_TRUE(
        Show("<script>document.documentElement.requestFullscreen().then("
             "() => { document.title = 'full'; }, () => { document.title = 'refused'; })</script>"));

    EXPECT_TRUE(WaitFor([&] { return world.Browser().LocationName() == "refused"; }));
    EXPECT_EQ(Window<QWidget>("fullScreen"), nullptr);
}

}  // namespace

#include "TestPageTools.moc"
