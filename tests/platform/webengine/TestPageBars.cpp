#include "platform/webengine/PageBars.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QKeyEvent>
#include <QTest>

#include "platform/webengine/EngineWorld.h"

namespace {

using webengine::PageBar;
using webengine::PageBars;
using webengine_tests::WaitFor;

class Bars : public testing::Test {
protected:
    Bars() {
        window.resize(600, 400);
        bars.setGeometry(window.rect());
        auto* page = new QWidget(&bars);
        page->setObjectName(QStringLiteral("page"));
        page->setFocusPolicy(Qt::StrongFocus);
        bars.SetPage(page);
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }
    QWidget& Page() { return *bars.findChild<QWidget*>("page"); }
    static void Settle() { QApplication::processEvents(); }
    static void PressKey(QWidget& widget, Qt::Key key) {
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
        QApplication::sendEvent(&widget, &press);
    }
    PageBar& Ask(const char* name) {
        return bars.ShowBar({.name = QString::fromLatin1(name),
                             .words = QStringLiteral("May it?"),
                             .buttons = {{.words = QStringLiteral("Yes"), .pressed = [this] { ++yes; }},
                                         {.words = QStringLiteral("Tell more"),
                                          .pressed = [this] { ++more; },
                                          .stays = true}},
                             .closed = [this] { ++closed; }});
    }

    QWidget window;
    PageBars bars{&window};
    int yes = 0;
    int more = 0;
    int closed = 0;
};

TEST_F(Bars, ThePageFillsTheAreaWithoutBars) {
    Settle();

    EXPECT_EQ(Page().geometry(), bars.rect());
}

TEST_F(Bars, ABarMakesRoomAndGivesItBack) {
    PageBar& bar = Ask("one");
    Settle();

    EXPECT_EQ(Page().y(), bar.height());
    EXPECT_EQ(Page().y() + Page().height(), bars.height());

    bars.RemoveBar(QStringLiteral("one"));
    Settle();
    EXPECT_EQ(Page().geometry(), bars.rect());
    EXPECT_EQ(closed, 0);
}

TEST_F(Bars, AButtonCallsAndTakesTheBarAway) {
    Ask("one").Button(0)->click();

    EXPECT_EQ(yes, 1);
    EXPECT_EQ(closed, 0);
    EXPECT_EQ(bars.Bar(QStringLiteral("one")), nullptr);
}

TEST_F(Bars, AButtonThatStaysKeepsTheBar) {
    Ask("one").Button(1)->click();

    EXPECT_EQ(more, 1);
    EXPECT_NE(bars.Bar(QStringLiteral("one")), nullptr);
}

TEST_F(Bars, TheCrossAndEscapeClose) {
    Ask("one").Cross()->click();
    EXPECT_EQ(closed, 1);

    PressKey(Ask("two"), Qt::Key_Escape);
    EXPECT_EQ(closed, 2);
    EXPECT_EQ(bars.Bar(QStringLiteral("two")), nullptr);
}

TEST_F(Bars, ACallbackMayTakeTheAreaAway) {
    auto* other = new PageBars(&window);
    PageBar& bar =
        other->ShowBar({.name = QStringLiteral("one"),
                        .words = QStringLiteral("words"),
                        .buttons = {{.words = QStringLiteral("Go"), .pressed = [&] { delete other; }}}});

    bar.Button(0)->click();

    EXPECT_EQ(window.findChildren<QWidget*>(QStringLiteral("pageBars")).size(), 1);
}

TEST_F(Bars, ASecondOneOfTheSameNameReplacesTheFirst) {
    Ask("one");
    Ask("one").SetWords(QStringLiteral("later"));
    Settle();

    EXPECT_EQ(bars.Bar(QStringLiteral("one"))->Words(), QStringLiteral("later"));
    EXPECT_EQ(Page().y(), bars.Bar(QStringLiteral("one"))->height());
}

TEST_F(Bars, MoreThanThreeWaitForTheirTurn) {
    for (const char* name : {"one", "two", "three", "four"})
        Ask(name);
    Settle();
    EXPECT_FALSE(bars.Bar(QStringLiteral("four"))->isVisible());

    bars.RemoveBar(QStringLiteral("two"));
    Settle();

    EXPECT_TRUE(bars.Bar(QStringLiteral("four"))->isVisible());
}

TEST_F(Bars, ABarDoesNotTakeTheKeyboardAndGivesItBackToThePage) {
    Page().setFocus();
    PageBar& bar = Ask("one");
    EXPECT_TRUE(Page().hasFocus());

    bar.TakeKeyboard();
    EXPECT_TRUE(bar.Button(0)->hasFocus());
    bar.Close();

    EXPECT_TRUE(Page().hasFocus());
}

TEST_F(Bars, AGuardedBarIgnoresTheClickThatWasMeantForThePage) {
    PageBar& bar = bars.ShowBar({.name = QStringLiteral("one"),
                                 .words = QStringLiteral("May it?"),
                                 .buttons = {{.words = QStringLiteral("Yes"), .pressed = [this] { ++yes; }}},
                                 .guarded = true});
    bar.Button(0)->click();
    EXPECT_EQ(yes, 0);

    ASSERT_TRUE(WaitFor([&] { return bar.Button(0)->isEnabled(); }));
    bar.Button(0)->click();

    EXPECT_EQ(yes, 1);
}

TEST_F(Bars, WordsOfAPageCannotTurnTheirLettersAroundOrBecomeMarkup) {
    PageBar& bar = bars.ShowBar({.name = QStringLiteral("one"), .words = QStringLiteral("<b>a\u202Eb</b>")});

    EXPECT_EQ(bar.Words(), QStringLiteral("<b>a‹202E›b</b>"));
    EXPECT_EQ(bar.accessibleName(), bar.Words());
    EXPECT_EQ(bar.findChild<QLabel*>()->textFormat(), Qt::PlainText);
}

TEST_F(Bars, TheLineLiesOverTheLowerEdgeAndAFlashGoesAgain) {
    bars.SetLine(QStringLiteral("https://one.example/"));
    EXPECT_EQ(bars.Line(), QStringLiteral("https://one.example/"));

    bars.FlashLine(QStringLiteral("125%"));
    EXPECT_EQ(bars.Line(), QStringLiteral("125%"));

    EXPECT_TRUE(WaitFor([&] { return bars.Line() == QStringLiteral("https://one.example/"); }));
    bars.SetLine({});
    EXPECT_EQ(bars.Line(), QString());
}

TEST_F(Bars, ProgressIsAThinLineAtThePagesUpperEdge) {
    Ask("one");
    bars.SetProgress(40);
    Settle();
    const auto* line = bars.findChild<QWidget*>("pageProgress");

    EXPECT_TRUE(line->isVisible());
    EXPECT_EQ(line->y(), Page().y());

    bars.SetProgress(-1);
    EXPECT_FALSE(line->isVisible());
}

}  // namespace
