#include <gtest/gtest.h>

#include <QLineEdit>
#include <QtTest>

#include "controls/Frame.h"
#include "controls/TextBox.h"
#include "controls/WebBrowser.h"
#include "platform/qt/QtBench.h"

namespace {

/// A window with an address row, a page that has one field, and what lies over the page.
class FullPage : public testing::Test {
protected:
    FullPage() {
        qt_tests::PlaceAt(address, 10, 0, 300, 20);
        qt_tests::PlaceAt(page, 10, 30, 300, 200);
        qt_tests::PlaceAt(over, 10, 30, 100, 40);
        desk.screen.CatchUp();
        field = new QLineEdit(Place());
        field->setGeometry(Place()->rect());
        field->show();
        desk.Find(address)->setFocus();
    }

    QWidget* Window() { return desk.screen.WindowOf(desk.form); }
    QWidget* Place() { return desk.Find(page); }
    void SetFullScreen(bool full) {
        desk.form.SetFullScreen(full);
        desk.screen.CatchUp();
        ASSERT_TRUE(qt_tests::WaitFor([&] { return Window()->isFullScreen() == full; }));
    }
    QRect OnWindow() { return {Place()->mapTo(Window(), QPoint()), Place()->size()}; }
    bool Fills() {
        return qt_tests::WaitFor([&] { return OnWindow() == Window()->rect(); }) &&
               Window()->childAt(Window()->rect().topLeft() + QPoint(12, 4)) == field;
    }
    bool IsInItsPlace() {
        return qt_tests::WaitFor([&] { return Place()->geometry() == QRect(10, 30, 300, 200); });
    }

    controls::TextBox address{"txtAddress"};
    controls::WebBrowser page{"Browser"};
    controls::TextBox over{"lstSuggestions"};
    qt_tests::Desk desk{address, page, over};
    QLineEdit* field = nullptr;
};

TEST_F(FullPage, ThePageLiesOverTheWholeWindowAndHasTheKeyboard) {
    SetFullScreen(true);

    EXPECT_TRUE(Fills());
    EXPECT_TRUE(field->hasFocus());
}

TEST_F(FullPage, ItIsBackInItsPlaceUnderWhatLayOverIt) {
    SetFullScreen(true);
    ASSERT_TRUE(Fills());

    SetFullScreen(false);

    EXPECT_TRUE(IsInItsPlace());
    EXPECT_TRUE(field->hasFocus());
    EXPECT_EQ(Place()->parentWidget()->childAt(20, 40), desk.Find(over));
}

TEST_F(FullPage, WhatElseHasTheKeyboardIsSeen) {
    SetFullScreen(true);
    ASSERT_TRUE(Fills());

    desk.Find(address)->setFocus();
    EXPECT_TRUE(IsInItsPlace());

    field->setFocus();
    EXPECT_TRUE(Fills());
}

TEST_F(FullPage, EscapeBringsTheWindowBack) {
    SetFullScreen(true);
    ASSERT_TRUE(Fills());

    desk.Find(address)->setFocus();
    QTest::keyClick(desk.Find(address), Qt::Key_Escape);
    desk.screen.CatchUp();

    EXPECT_FALSE(desk.form.FullScreen());
    EXPECT_TRUE(IsInItsPlace());
}

TEST_F(FullPage, APageThatGoesLeavesTheWindowAsItIs) {
    SetFullScreen(true);
    ASSERT_TRUE(Fills());

    page.SetVisible(false);
    desk.screen.CatchUp();

    EXPECT_FALSE(Place()->isVisible());
    EXPECT_TRUE(IsInItsPlace());
    EXPECT_TRUE(desk.Find(address)->isVisible());
}

TEST_F(FullPage, AWindowWithAHoleKeepsEverythingInItsPlace) {
    Window()->setMask(QRegion(Window()->rect()).subtracted(QRect(350, 250, 10, 10)));

    SetFullScreen(true);

    EXPECT_TRUE(IsInItsPlace());
}

TEST_F(FullPage, APlaceThatChangesMeanwhileCountsAfterwards) {
    SetFullScreen(true);
    ASSERT_TRUE(Fills());

    qt_tests::PlaceAt(page, 20, 40, 200, 100);
    desk.screen.CatchUp();
    EXPECT_TRUE(Fills());
    SetFullScreen(false);

    EXPECT_EQ(Place()->geometry(), QRect(20, 40, 200, 100));
}

}  // namespace
