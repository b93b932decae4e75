#include <gtest/gtest.h>

#include <QApplication>
#include <QMenuBar>
#include <QTest>
#include <QWindow>

#include "controls/CommandButton.h"
#include "controls/Form.h"
#include "controls/Label.h"
#include "controls/Menu.h"
#include "controls/TextBox.h"
#include "platform/qt/Geometry.h"
#include "platform/qt/QtBench.h"

namespace {

class FormMirrorTest : public testing::Test {
protected:
    ~FormMirrorTest() override { claims_.Release(); }
    QWidget* Window(qt_tests::Desk& desk) { return desk.screen.WindowOf(desk.form); }
    controls::EventClaims claims_;
};

TEST_F(FormMirrorTest, AWindowIsShownWithItsTitleAndContentSize) {
    qt_tests::Desk desk;

    desk.form.SetCaption("Another");
    desk.screen.CatchUp();

    EXPECT_TRUE(Window(desk)->isVisible());
    EXPECT_EQ(Window(desk)->windowTitle(), "Another");
    EXPECT_EQ(Window(desk)->size(), QSize(400, 300));
}

TEST_F(FormMirrorTest, AStarInBracketsIsPartOfATitle) {
    qt_tests::Desk desk;
    const auto title_after = [&](const char* caption) {
        desk.form.SetCaption(caption);
        desk.screen.CatchUp();
        return Window(desk)->windowHandle()->title().toStdString();
    };

    EXPECT_EQ(title_after("Glob [*] patterns"), "Glob [*] patterns");
    EXPECT_EQ(title_after("[*][*] and [*][*][*]"), "[*][*] and [*][*][*]");
}

TEST_F(FormMirrorTest, AStarInBracketsIsPartOfTheFirstTitle) {
    controls::Form form("frmB", "Glob [*] patterns");
    qt_tests::Desk desk;
    desk.screen.Adopt(form);
    form.Show();
    desk.screen.CatchUp();

    EXPECT_EQ(desk.screen.WindowOf(form)->windowHandle()->title(), "Glob [*] patterns");
}

TEST_F(FormMirrorTest, AWindowThatWasNeverPlacedIsCentred) {
    qt_tests::Desk desk;

    const QPoint centre = Window(desk)->geometry().center();

    EXPECT_LE((centre - QApplication::primaryScreen()->availableGeometry().center()).manhattanLength(), 40);
    EXPECT_GT(desk.form.Left(), 0);
}

/// Outlives the screen that adopts it.
struct PictureForm {
    controls::Form picture{"frmVideo", "", controls::BorderStyle::None};
};

struct WindowWithAHole : PictureForm, qt_tests::Desk {
    WindowWithAHole() {
        picture.Move(3000, 3000, 1500, 1500);
        screen.Adopt(picture);
        form.Move(1500, 1500, form.Width(), form.Height());
        picture.Show();
        screen.CatchUp();
        Cut(QRect(20, 20, 100, 100));
    }
    void Cut(const QRect& hole) {
        QWidget& main_window = *screen.WindowOf(form);
        screen.ShapeMainWindow(hole.isEmpty() ? QRegion() : QRegion(main_window.rect()) - hole);
        screen.CatchUp();
    }
    QPoint Drag(int x, int y) {
        const QPoint before = screen.WindowOf(picture)->pos();
        QWidget& main_window = *screen.WindowOf(form);
        main_window.move(main_window.pos() + QPoint(x, y));
        return screen.WindowOf(picture)->pos() - before;
    }
};

TEST_F(FormMirrorTest, WhatShowsThroughTheHoleGoesAlongBeforeTheNextEvent) {
    WindowWithAHole desk;

    EXPECT_EQ(desk.Drag(30, 20), QPoint(30, 20));
    EXPECT_EQ(desk.Drag(-7, 0), QPoint(-7, 0));
}

TEST_F(FormMirrorTest, APictureThatFloatsStaysWhereItIs) {
    WindowWithAHole desk;
    desk.Cut(QRect());

    EXPECT_EQ(desk.Drag(30, 20), QPoint(0, 0));
}

TEST_F(FormMirrorTest, AHiddenWindowIsGoneFromTheScreen) {
    qt_tests::Desk desk;

    desk.form.Hide();
    desk.screen.CatchUp();

    EXPECT_FALSE(Window(desk)->isVisible());
}

TEST_F(FormMirrorTest, AMaximisedWindowThatIsMinimisedComesBackMaximised) {
    qt_tests::Desk desk;
    Window(desk)->setWindowState(Qt::WindowMaximized);
    Window(desk)->setWindowState(Qt::WindowMaximized | Qt::WindowMinimized);
    ASSERT_EQ(desk.form.State(), controls::WindowState::Minimised);

    desk.form.Restore();
    desk.screen.CatchUp();

    EXPECT_EQ(desk.form.State(), controls::WindowState::Maximised);
    EXPECT_EQ(Window(desk)->windowState() & (Qt::WindowMaximized | Qt::WindowMinimized), Qt::WindowMaximized);
}

TEST_F(FormMirrorTest, MinimisingKeepsThatTheWindowIsMaximised) {
    qt_tests::Desk desk;
    desk.form.SetState(controls::WindowState::Maximised);
    desk.screen.CatchUp();

    desk.form.SetState(controls::WindowState::Minimised);
    desk.screen.CatchUp();

    EXPECT_TRUE(Window(desk)->windowState().testFlag(Qt::WindowMinimized));
    EXPECT_TRUE(Window(desk)->windowState().testFlag(Qt::WindowMaximized));
}

TEST_F(FormMirrorTest, AnotherSizeByThePersonIsWrittenBackAndRaisesResizeOnce) {
    qt_tests::Desk desk;
    int resizes = 0;
    claims_.Claim(desk.form.Resize, [&resizes] { ++resizes; });

    for (int i = 1; i <= 5; ++i)
        Window(desk)->resize(400 + i * 10, 300);
    ASSERT_TRUE(qt_tests::WaitFor([&] { return resizes > 0; }));

    EXPECT_EQ(resizes, 1);
    EXPECT_EQ(desk.form.ContentWidth(), 450 * 15);
}

TEST_F(FormMirrorTest, ASizeBelowTheLeastOneSpringsBack) {
    qt_tests::Desk desk;
    claims_.Claim(desk.form.Resize, [&desk] {
        if (desk.form.Width() < 3000) desk.form.SetWidth(3000);
    });

    Window(desk)->resize(50, 300);

    EXPECT_TRUE(qt_tests::WaitFor([&] { return Window(desk)->width() == 196; }));
    EXPECT_EQ(desk.form.Width(), 3000);
}

TEST_F(FormMirrorTest, AMoveByThePersonIsWrittenBackWithoutResize) {
    qt_tests::Desk desk;
    int resizes = 0;
    claims_.Claim(desk.form.Resize, [&resizes] { ++resizes; });

    Window(desk)->setGeometry(QRect(QPoint(102, 124), Window(desk)->size()));

    EXPECT_TRUE(qt_tests::WaitFor([&] { return desk.form.Left() == 1500; }));
    EXPECT_EQ(desk.form.Top(), 1500);
    EXPECT_EQ(resizes, 0);
}

TEST_F(FormMirrorTest, AnAssignedPlaceIsTaken) {
    qt_tests::Desk desk;

    desk.form.Move(1500, 1500, 3000, 3000);
    desk.screen.CatchUp();

    EXPECT_EQ(Window(desk)->geometry(), QRect(102, 124, 196, 174));
}

TEST_F(FormMirrorTest, TheCloseBoxAsksAndMayBeRefused) {
    qt_tests::Desk desk;
    bool refuse = true;
    int asked = 0;
    claims_.Claim(desk.form.QueryUnload, [&](bool& cancel) {
        ++asked;
        cancel = refuse;
    });

    Window(desk)->close();
    const bool open_after_refusal = Window(desk)->isVisible();
    refuse = false;
    Window(desk)->close();

    EXPECT_EQ(asked, 2);
    EXPECT_TRUE(open_after_refusal);
    EXPECT_FALSE(Window(desk)->isVisible());
    EXPECT_FALSE(desk.form.IsLoaded());
}

TEST_F(FormMirrorTest, ADisabledWindowCannotBeClosed) {
    qt_tests::Desk desk;
    desk.form.SetEnabled(false);
    desk.screen.CatchUp();

    Window(desk)->close();

    EXPECT_TRUE(desk.form.IsLoaded());
    EXPECT_FALSE(Window(desk)->isEnabled());
}

TEST_F(FormMirrorTest, TheStateGoesBothWays) {
    qt_tests::Desk desk;

    desk.form.SetState(controls::WindowState::Maximised);
    desk.screen.CatchUp();
    EXPECT_TRUE(qt_tests::WaitFor([&] { return Window(desk)->isMaximized(); }));

    Window(desk)->showNormal();
    EXPECT_TRUE(qt_tests::WaitFor([&] { return desk.form.State() == controls::WindowState::Normal; }));
}

TEST_F(FormMirrorTest, TheFullScreenIsFilledAndLeftWithTheStateBefore) {
    qt_tests::Desk desk;
    desk.form.SetFullScreen(true);
    desk.screen.CatchUp();
    EXPECT_TRUE(qt_tests::WaitFor([&] { return Window(desk)->isFullScreen(); }));
    EXPECT_EQ(desk.form.State(), controls::WindowState::Normal);

    desk.form.SetFullScreen(false);
    desk.screen.CatchUp();

    EXPECT_TRUE(qt_tests::WaitFor([&] { return !Window(desk)->isFullScreen(); }));
    EXPECT_EQ(desk.form.State(), controls::WindowState::Normal);
}

// A window manager that is slow gives the old size back after the window was put on its place.
TEST_F(FormMirrorTest, AfterTheFullScreenTheWindowHasItsPlaceAtOnce) {
    qt_tests::Desk desk;
    const QRect before = qt::ClientRect(desk.form);
    desk.form.SetFullScreen(true);
    desk.screen.CatchUp();
    ASSERT_TRUE(qt_tests::WaitFor([&] { return qt::ClientRect(desk.form) != before; }));

    desk.form.SetFullScreen(false);
    desk.screen.CatchUp();

    EXPECT_EQ(qt::ClientRect(desk.form), before);
}

TEST_F(FormMirrorTest, AWindowManagerMayEndTheFullScreen) {
    qt_tests::Desk desk;
    desk.form.SetState(controls::WindowState::Maximised);
    desk.form.SetFullScreen(true);
    desk.screen.CatchUp();

    Window(desk)->setWindowState(Qt::WindowMaximized);

    EXPECT_FALSE(desk.form.FullScreen());
    EXPECT_EQ(desk.form.State(), controls::WindowState::Maximised);
}

TEST_F(FormMirrorTest, AMenuBarStandsAboveTheContent) {
    controls::Menu file("mnuFile", "File");
    controls::Label label("lblA");
    qt_tests::Desk desk(label);

    desk.form.SetMenuBar({&file});
    desk.form.SetContentSize(400 * 15, 300 * 15);
    desk.screen.CatchUp();

    EXPECT_EQ(Window(desk)->size(), QSize(400, 326));
    EXPECT_EQ(desk.Find(label)->parentWidget()->pos(), QPoint(0, 26));
    EXPECT_EQ(Window(desk)->findChild<QMenuBar*>()->height(), 26);
}

TEST_F(FormMirrorTest, GoingToAnotherWindowOfTheProgramActivatesIt) {
    controls::Form other("frmOther", "Other");
    int activations = 0;
    controls::EventClaims claims;
    claims.Claim(other.Activate, [&activations] { ++activations; });
    qt_tests::Desk desk;
    other.SetContentSize(3000, 3000);
    desk.screen.Adopt(other);
    other.Show();
    desk.screen.CatchUp();
    ASSERT_TRUE(
        qt_tests::WaitFor([&] { return QApplication::activeWindow() == desk.screen.WindowOf(other); }));
    Window(desk)->activateWindow();
    ASSERT_TRUE(qt_tests::WaitFor([&] { return QApplication::activeWindow() == Window(desk); }));
    activations = 0;

    desk.screen.WindowOf(other)->activateWindow();

    EXPECT_TRUE(qt_tests::WaitFor([&] { return activations == 1; }));
    other.Hide();
    desk.screen.CatchUp();
}

TEST_F(FormMirrorTest, TheKeyboardGoesToTheFirstTextBox) {
    controls::CommandButton button("cmdA", "A");
    controls::TextBox text("txtA");
    qt_tests::PlaceAt(button, 0, 0, 50, 20);
    qt_tests::PlaceAt(text, 0, 100, 50, 20);
    qt_tests::Desk desk(button, text);

    EXPECT_EQ(Window(desk)->focusWidget(), desk.Find(text));
}

}  // namespace
