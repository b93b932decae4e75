#include <gtest/gtest.h>

#include <QApplication>
#include <QHelpEvent>
#include <QScrollBar>
#include <QTest>
#include <QToolTip>

#include "base/DrivePath.h"
#include "controls/ListBox.h"
#include "platform/qt/RowsView.h"
#include "platform/qt/Skin.h"

namespace {

class RowsViewTest : public testing::Test {
protected:
    void Fill(int rows) {
        for (int i = 0; i < rows; ++i)
            list_.AddItem("Row " + std::to_string(i));
        view_.resize(200, 122);
        view_.SyncRows();
        view_.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&view_));
    }
    controls::ListBox list_{"lstA"};
    qt::RowsView view_{list_, nullptr};
};

TEST_F(RowsViewTest, RowsAreOfOneHeight) {
    Fill(10);

    EXPECT_EQ(view_.RowAt(0), 0);
    EXPECT_EQ(view_.RowAt(23), 0);
    EXPECT_EQ(view_.RowAt(24), 1);
}

TEST_F(RowsViewTest, ARowWhoseNameIsNoUtf8IsReadable) {
    list_.AddItem("C:\\m\\" + base::NameToText("Caf\xE9.mp3"));
    Fill(1);

    const QString shown = view_.model()->index(0, 0).data().toString();

    EXPECT_EQ(shown, QStringLiteral("C:\\m\\Caf\u00e9.mp3"));
    EXPECT_NE(list_.List(0), shown.toStdString()) << "the row itself is still the path";
}

TEST_F(RowsViewTest, BelowTheLastRowThereIsNone) {
    Fill(2);

    EXPECT_EQ(view_.RowAt(48), -1);
    EXPECT_EQ(view_.RowAt(-1), -1);
}

TEST_F(RowsViewTest, TheBarReachesExactlyToTheLastRow) {
    Fill(1000);

    view_.verticalScrollBar()->setValue(view_.verticalScrollBar()->maximum());

    EXPECT_EQ(view_.RowAt(view_.viewport()->height() - 1), 999);
    EXPECT_EQ(view_.visualRect(view_.model()->index(999, 0)).bottom(), view_.viewport()->height() - 1);
}

TEST_F(RowsViewTest, AShortListHasNothingToScroll) {
    Fill(3);

    EXPECT_EQ(view_.verticalScrollBar()->maximum(), 0);
}

TEST_F(RowsViewTest, OnlyTheRowsInViewAreAskedFor) {
    Fill(100'000);
    view_.ShowChosen(50'000, true);

    const QImage image = view_.grab().toImage();

    EXPECT_FALSE(image.isNull());
    EXPECT_EQ(view_.RowAt(view_.viewport()->height() - 1), 50'000);
}

TEST_F(RowsViewTest, TheChosenRowIsAmber) {
    Fill(3);
    list_.SetListIndex(1);
    view_.ShowChosen(1, true);

    EXPECT_EQ(view_.viewport()->grab().toImage().pixel(150, 36), qt::skin::Colours().accent_deep);
}

TEST_F(RowsViewTest, AFillWithTheSameRowsKeepsTheScrollPlace) {
    Fill(1000);
    view_.verticalScrollBar()->setValue(500 * qt::skin::kRowHeight + 7);

    list_.Clear();
    Fill(1000);

    EXPECT_EQ(view_.Offset(), 500 * qt::skin::kRowHeight + 7);
}

TEST_F(RowsViewTest, WhatWentAboveTheViewDoesNotMoveTheRowsInIt) {
    Fill(1000);
    view_.verticalScrollBar()->setValue(500 * qt::skin::kRowHeight);

    list_.RemoveItem(3);
    list_.RemoveItem(7);
    view_.SyncRows();

    EXPECT_EQ(list_.List(view_.RowAt(0)), "Row 500");
}

TEST_F(RowsViewTest, TheRowAtTheTopMayGo) {
    Fill(1000);
    view_.verticalScrollBar()->setValue(500 * qt::skin::kRowHeight);

    list_.RemoveItem(500);
    view_.SyncRows();

    EXPECT_EQ(list_.List(view_.RowAt(0)), "Row 501");
}

TEST_F(RowsViewTest, AnotherFillBeginsAtTheTop) {
    Fill(1000);
    view_.verticalScrollBar()->setValue(500 * qt::skin::kRowHeight);

    list_.Clear();
    for (int i = 0; i < 1000; ++i)
        list_.AddItem("Other " + std::to_string(i));
    view_.SyncRows();

    EXPECT_EQ(view_.Offset(), 0);
}

TEST_F(RowsViewTest, ALongListThatBecomesShortEndsAtItsLastRow) {
    Fill(100);
    view_.verticalScrollBar()->setValue(50 * qt::skin::kRowHeight);

    list_.Clear();
    Fill(52);

    EXPECT_EQ(view_.RowAt(view_.viewport()->height() - 1), 51);
}

class RowsKeysTest : public RowsViewTest {
protected:
    RowsKeysTest() {
        view_.OnPick = [this](int row) {
            list_.SetListIndex(row);
            view_.ShowChosen(row, true);
        };
    }
    void Refill(int without) {
        list_.Clear();
        for (int i = 0; i < 10; ++i) {
            if (i != without) list_.AddItem("Row " + std::to_string(i));
        }
        view_.SyncRows();
        view_.ShowChosen(-1, false);
    }
    std::string_view Press(Qt::Key key) {
        QTest::keyClick(&view_, key);
        return list_.Text();
    }
};

TEST_F(RowsKeysTest, TheArrowsGoOnWhereAChosenRowWent) {
    Fill(10);
    view_.OnPick(4);

    Refill(4);

    EXPECT_EQ(Press(Qt::Key_Down), "Row 5");
}

TEST_F(RowsKeysTest, TheArrowUpFindsTheRowAboveTheOneThatWent) {
    Fill(10);
    view_.OnPick(4);

    Refill(4);

    EXPECT_EQ(Press(Qt::Key_Up), "Row 3");
}

TEST_F(RowsKeysTest, BehindTheLastRowTheArrowsFindTheNewLastOne) {
    Fill(10);
    view_.OnPick(9);

    Refill(9);

    EXPECT_EQ(Press(Qt::Key_Down), "Row 8");
}

TEST_F(RowsKeysTest, InAnotherFillTheArrowsBeginAtTheTop) {
    Fill(10);
    view_.OnPick(4);
    list_.Clear();
    for (const char* row : {"Amber", "Birch", "Cedar", "Dusk", "Elm", "Fir"})
        list_.AddItem(row);
    view_.SyncRows();
    view_.ShowChosen(-1, false);

    EXPECT_EQ(Press(Qt::Key_Down), "Amber");
}

TEST_F(RowsKeysTest, OneLetterAgainAndAgainGoesThroughTheRowsThatBeginWithIt) {
    for (const char* row : {"Amber", "Birch", "Beech", "cedar", "bramble"})
        list_.AddItem(row);
    Fill(0);
    std::vector<std::string> chosen;

    for (int i = 0; i < 4; ++i) {
        QTest::keyClicks(&view_, "b");
        chosen.emplace_back(list_.Text());
    }

    EXPECT_EQ(chosen, (std::vector<std::string>{"Birch", "Beech", "bramble", "Birch"}));
}

TEST_F(RowsKeysTest, LettersTypedTogetherNarrowTheRow) {
    for (const char* row : {"Amber", "Birch", "Beech", "Beet root", "Beet"})
        list_.AddItem(row);
    Fill(0);

    QTest::keyClicks(&view_, "beet r");

    EXPECT_EQ(list_.Text(), "Beet root");
}

TEST_F(RowsKeysTest, BlanksAndTheBracketOfAViewDoNotCount) {
    for (const char* row : {"Amber", "  [Last 20]", "  [Top 20]", "Lark", "Towers"})
        list_.AddItem(row);
    Fill(0);

    QTest::keyClicks(&view_, "to");

    EXPECT_EQ(list_.Text(), "  [Top 20]");
}

TEST_F(RowsKeysTest, ATypedBracketFindsTheRowsThatStandForAView) {
    for (const char* row : {"Amber", "  [Last 20]", "  [Top 20]", "Lark"})
        list_.AddItem(row);
    Fill(0);

    QTest::keyClicks(&view_, "[t");

    EXPECT_EQ(list_.Text(), "  [Top 20]");
}

TEST_F(RowsKeysTest, LettersThatNoRowBeginsWithChooseNothing) {
    Fill(3);

    QTest::keyClicks(&view_, " x");

    EXPECT_EQ(list_.ListIndex(), -1);
}

TEST_F(RowsKeysTest, TypingFindsTheLastOfAMillionRows) {
    for (int i = 0; i < 1'000'000; ++i)
        list_.AddItem("Artist Of Some Length " + std::to_string(i) + " - Title");
    list_.AddItem("Zebra");
    Fill(0);

    QTest::keyClicks(&view_, "z");

    EXPECT_EQ(list_.Text(), "Zebra");
}

class RowsTipTest : public RowsViewTest {
protected:
    /// The tip that shows when the pointer rests on a row.
    QString TipOf(int row) {
        const QPoint at(20, row * qt::skin::kRowHeight + 5);
        QHelpEvent event(QEvent::ToolTip, at, view_.viewport()->mapToGlobal(at));
        QApplication::sendEvent(view_.viewport(), &event);
        return QToolTip::isVisible() ? QToolTip::text() : QString();
    }
};

TEST_F(RowsTipTest, ARowThatIsCutOffShowsWholeInATip) {
    const std::string row = "  A row that is much longer than the list is wide by any measure";
    list_.AddItem(row);
    Fill(0);

    EXPECT_EQ(TipOf(0).toStdString(), row.substr(2));
}

TEST_F(RowsTipTest, ARowThatFitsHasNoTip) {
    list_.AddItem("Short");
    Fill(0);

    EXPECT_EQ(TipOf(0), QString());
}

TEST_F(RowsTipTest, ARowOfTenThousandCharactersHasATipThatEnds) {
    list_.AddItem(std::string(10'000, 'x'));
    Fill(0);

    EXPECT_EQ(TipOf(0).size(), 1000);
}

TEST_F(RowsViewTest, TheRingOfTheFocusIsWhole) {
    Fill(4);
    list_.SetListIndex(1);
    view_.ShowChosen(1, true);
    view_.setFocus();
    ASSERT_TRUE(QTest::qWaitFor([this] { return view_.hasFocus(); }));

    const QImage image = view_.grab().toImage();

    for (const int y : {30, 36, 60, 84, 110})
        EXPECT_EQ(image.pixel(1, y), image.pixel(1, 100)) << y;
}

TEST_F(RowsViewTest, RowsLeaveAPixelBesideTheLineAroundThem) {
    Fill(4);
    list_.SetListIndex(1);
    view_.ShowChosen(1, false);

    const QImage image = view_.grab().toImage();

    for (const int x : {1, image.width() - 2})
        EXPECT_EQ(image.pixel(x, 36), image.pixel(x, 108)) << x;
    EXPECT_NE(image.pixel(2, 36), image.pixel(2, 108));
}

TEST_F(RowsViewTest, TheWideRingOfHighContrastIsAsWideBesideEveryRow) {
    qt::skin::ShowHighContrast(true);
    Fill(4);
    view_.setFocus();
    const bool has_focus = QTest::qWaitFor([this] { return view_.hasFocus(); });

    const QImage image = view_.grab().toImage();
    qt::skin::ShowHighContrast(false);

    ASSERT_TRUE(has_focus);
    for (const int x : {1, 2})
        for (const int y : {12, 36, 60, 84}) {
            EXPECT_EQ(image.pixel(x, y), image.pixel(x, 105)) << x << ", " << y;
            EXPECT_GT(qRed(image.pixel(x, y)), 100) << x << ", " << y;
        }
}

}  // namespace
