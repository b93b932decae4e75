#include <gtest/gtest.h>

#include <QApplication>
#include <QColorDialog>
#include <QFile>
#include <QKeyEvent>
#include <QTimer>
#include <QWindow>

#include "platform/webengine/EnginePageBench.h"

namespace {

using webengine_tests::EnginePage;
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

QWidget* ModalBox() {
    return QApplication::activeModalWidget();
}

QWidget* ColourChooser() {
    for (QWidget* window : QApplication::topLevelWidgets()) {
        const auto* chooser = qobject_cast<QColorDialog*>(window);
        if (chooser != nullptr && chooser->isVisible() && !chooser->testAttribute(Qt::WA_DontShowOnScreen))
            return window;
    }
    return nullptr;
}

/// Closes boxes as they come, and counts them.
class BoxCloser final {
public:
    /// `box` answers one that is open, null when none is.
    explicit BoxCloser(QWidget* (*box)()) {
        QObject::connect(&timer_, &QTimer::timeout, &timer_, [this, box] {
            QWidget* const open = box();
            if (open == nullptr) return;
            ++closed_;
            open->close();
        });
        timer_.start(5);
    }
    int Closed() const { return closed_; }

private:
    QTimer timer_;
    int closed_ = 0;
};

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
    Serve("/now", "now");
    Serve("/endless",
          "<title>Endless</title><script>setTimeout(() => { const call = new XMLHttpRequest();"
          "call.open('GET', '/now', false); call.send(); for (;;); }, 0)</script>");
    // Whether the page is told to be complete before its script runs is up to the engine.
    world.Browser().Navigate(world.Site + "/endless");
    ASSERT_TRUE(WaitFor([&] { return Asked("/now") == 1; }));

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

TEST_F(EnginePage, APageThatLoadsItselfOverAndOverAsksOnlySoOften) {
    Serve("/nag",
          "<title>Nag</title><script>if (!confirm('again?')) fetch('/no'); "
          "setTimeout(() => location.reload(), 10)</script>");
    BoxCloser boxes(ModalBox);

    world.Browser().Navigate(world.Site + "/nag");

    EXPECT_TRUE(WaitFor([&] { return Asked("/no") >= 8; }));
    EXPECT_EQ(boxes.Closed(), 3);
}

TEST_F(EnginePage, APressInThePageLetsItAskAgain) {
    Serve(
        "/nag",
        "<title>Nag</title><script>setInterval(() => { if (!confirm('again?')) fetch('/no') }, 10)</script>");
    BoxCloser boxes(ModalBox);
    world.Browser().Navigate(world.Site + "/nag");
    ASSERT_TRUE(WaitFor([&] { return Asked("/no") >= 8; }));
    ASSERT_EQ(boxes.Closed(), 3);

    ASSERT_TRUE(world.PressInPage());

    EXPECT_TRUE(WaitFor([&] { return boxes.Closed() == 6; }));
}

TEST_F(EnginePage, EscapeDoesNotLetAPageAskAgain) {
    Serve(
        "/nag",
        "<title>Nag</title><script>setInterval(() => { if (!confirm('again?')) fetch('/no') }, 10)</script>");
    BoxCloser boxes(ModalBox);
    world.Browser().Navigate(world.Site + "/nag");
    ASSERT_TRUE(WaitFor([&] { return Asked("/no") >= 8; }));

    const int refused = Asked("/no");
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    for (QWidget* widget : world.Window().findChildren<QWidget*>()) {
        if (widget->inherits("QWebEngineView")) QApplication::sendEvent(widget->focusProxy(), &press);
    }

    ASSERT_TRUE(WaitFor([&] { return Asked("/no") > refused + 8; }));
    EXPECT_EQ(boxes.Closed(), 3);
}

TEST_F(EnginePage, ColourChoosersPassTheLimitOfBoxes) {
    Serve("/colours",
          "<title>Colours</title><script>setInterval(() => { const i = document.createElement('input');"
          "i.type = 'color'; document.body.append(i); i.click(); fetch('/tick') }, 30)</script>");
    BoxCloser choosers(ColourChooser);
    BlockCount blocks;
    world.Window().windowHandle()->installEventFilter(&blocks);
    world.Browser().Navigate(world.Site + "/colours");

    ASSERT_TRUE(WaitFor([&] { return Asked("/tick") >= 30; }));
    EXPECT_LE(choosers.Closed(), 3);
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

}  // namespace
