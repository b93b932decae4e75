#include <gtest/gtest.h>

#include <QCursor>
#include <QListView>
#include <QTest>

#include "controls/CommandButton.h"
#include "controls/Form.h"
#include "controls/Frame.h"
#include "controls/Image.h"
#include "controls/Label.h"
#include "controls/ListBox.h"
#include "controls/PictureBox.h"
#include "controls/Timer.h"
#include "platform/qt/QtBench.h"

namespace {

TEST(Screen, AWindowThatIsNotShownIsNotMadeAtTheStart) {
    controls::Label label("lblA");
    controls::Form form("frmHidden", "Hidden");
    form.Add(label);
    qt::Screen screen(qt_tests::TheLoop(), {});

    screen.Adopt(form);

    EXPECT_EQ(screen.WidgetOf(label), nullptr);
}

TEST(Screen, ItsTimersRunAllTheSame) {
    controls::Timer timer("tmrLoad", 1, true);
    controls::Frame frame("fraA");
    controls::Form form("frmHidden", "Hidden");
    frame.Add(timer);
    form.Add(frame);
    int ticks = 0;
    controls::EventClaims claims;
    claims.Claim(timer.Tick, [&ticks] { ++ticks; });
    qt::Screen screen(qt_tests::TheLoop(), {});

    screen.Adopt(form);

    EXPECT_TRUE(qt_tests::WaitFor([&] { return ticks > 0; }));
}

TEST(Screen, HiddenWindowsAreMadeOnceTheFirstHasBeenPainted) {
    controls::PictureBox video("picVid");
    controls::Form hidden("frmVideo", "Video", controls::BorderStyle::None);
    video.SetLook("video");
    hidden.Add(video);
    qt_tests::Desk desk;
    desk.screen.Adopt(hidden);

    EXPECT_TRUE(qt_tests::WaitFor([&] { return video.Handle() != 0; }));
    EXPECT_FALSE(desk.screen.WindowOf(hidden)->isVisible());
}

TEST(Screen, APictureWindowIsActivatedBeforeThePressInItIsTold) {
    controls::Label caption("lblVideoCaption", "Film");
    qt_tests::PlaceAt(caption, 0, 0, 100, 20);
    controls::Form picture("frmVideo", "Video", controls::BorderStyle::None);
    picture.SetContentSize(3000, 3000);
    picture.Add(caption);
    qt_tests::Desk desk;
    desk.screen.Adopt(picture);
    picture.Show();
    desk.screen.CatchUp();
    desk.screen.WindowOf(desk.form)->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(desk.screen.WindowOf(desk.form)));
    std::string told;
    controls::EventClaims claims;
    claims.Claim(picture.Activate, [&told] { told += "activated "; });
    claims.Claim(caption.MouseDown, [&told](int, int, double, double) { told += "pressed "; });

    QTest::mousePress(desk.Find(caption), Qt::LeftButton);

    EXPECT_EQ(told, "activated pressed ");
}

TEST(Screen, WhatThePointerBroughtUpComesBackAfterAnActivationHidIt) {
    controls::Image plain("imgPlay");
    qt_tests::PlaceAt(plain, 0, 0, 100, 100);
    qt_tests::Desk desk(plain);
    controls::Form other("frmOther", "Other");
    other.SetContentSize(3000, 3000);
    desk.screen.Adopt(other);
    other.Show();
    desk.screen.CatchUp();
    ASSERT_TRUE(QTest::qWaitForWindowActive(desk.screen.WindowOf(other)));
    other.Hide();
    desk.screen.CatchUp();
    QCursor::setPos(desk.Find(plain)->mapToGlobal(QPoint(50, 50)));
    std::string told;
    controls::EventClaims claims;
    claims.Claim(desk.form.Activate, [&told] { told += "activated "; });
    claims.Claim(plain.MouseMove, [&told](int, int, double, double) { told += "pointed "; });

    desk.screen.WindowOf(desk.form)->activateWindow();

    EXPECT_TRUE(qt_tests::WaitFor([&] { return told.ends_with("activated pointed "); })) << told;
}

TEST(Screen, TheFirstPaintIsToldOnce) {
    controls::Form form("frmA", "A");
    form.SetContentSize(3000, 3000);
    int told = 0;
    qt::Screen screen(qt_tests::TheLoop(), {});
    screen.AfterFirstPaint = [&told] { ++told; };
    screen.Adopt(form);
    form.Show();
    screen.CatchUp();

    EXPECT_TRUE(qt_tests::WaitFor([&] { return told > 0; }));
    screen.WindowOf(form)->repaint();

    EXPECT_EQ(told, 1);
}

// It has the most controls of all, and the login does not wait for it.
TEST(Screen, AWindowIsNotMadeForAShapeThatItHasAnyway) {
    controls::Form form("frmA", "A");
    qt::Screen screen(qt_tests::TheLoop(), {});
    screen.Adopt(form);

    screen.ShapeMainWindow(QRegion());
    screen.CatchUp();
    EXPECT_EQ(screen.WidgetOf(form), nullptr);

    screen.ShapeMainWindow(QRegion(0, 0, 10, 10));
    screen.CatchUp();
    ASSERT_NE(screen.WidgetOf(form), nullptr);
    EXPECT_EQ(screen.WidgetOf(form)->mask(), QRegion(0, 0, 10, 10));
}

// Long work may follow, and yields that are close together do nothing as a rule.
TEST(Screen, AWindowThatComesIsPaintedWhenTheNextYieldIsOver) {
    controls::Form form("frmA", "A");
    form.SetContentSize(3000, 3000);
    bool is_painted = false;
    qt::Screen screen(qt_tests::TheLoop(), {});
    screen.AfterFirstPaint = [&is_painted] { is_painted = true; };
    screen.Adopt(form);
    qt_tests::TheLoop().Yield();

    form.Show();
    EXPECT_TRUE(qt_tests::TheLoop().AwaitsPaint());
    qt_tests::TheLoop().Yield();

    EXPECT_FALSE(qt_tests::TheLoop().AwaitsPaint());
    ASSERT_NE(screen.WidgetOf(form), nullptr);
    EXPECT_TRUE(screen.WidgetOf(form)->isVisible());
    EXPECT_TRUE(qt_tests::WaitFor([&] { return is_painted; }));
}

TEST(Screen, AWindowThatCameAndIsPaintedIsNotAwaitedAgain) {
    controls::Form form("frmA", "A");
    form.SetContentSize(3000, 3000);
    qt::Screen screen(qt_tests::TheLoop(), {});
    screen.Adopt(form);

    form.Show();
    screen.CatchUp();
    EXPECT_TRUE(qt_tests::WaitFor([] { return !qt_tests::TheLoop().AwaitsPaint(); }));
    form.Hide();
    screen.CatchUp();
    form.Show();

    EXPECT_FALSE(qt_tests::TheLoop().AwaitsPaint());
}

TEST(Screen, NoYieldWaitsForAWindowThatWentAgain) {
    controls::Form form("frmA", "A");
    qt::Screen screen(qt_tests::TheLoop(), {});
    screen.Adopt(form);

    form.Show();
    form.Hide();

    EXPECT_FALSE(qt_tests::TheLoop().AwaitsPaint());
}

TEST(Screen, NoYieldWaitsForAWindowWithoutAFrameNorForTheMainWindowBeneathIt) {
    controls::Form form("frmA", "A");
    controls::Form splash("frmSplash", "B", controls::BorderStyle::None);
    splash.SetStaysInFront(true);
    qt::Screen screen(qt_tests::TheLoop(), {});
    screen.Adopt(form);
    screen.Adopt(splash);

    splash.Show();
    form.Show();

    EXPECT_FALSE(qt_tests::TheLoop().AwaitsPaint());
}

TEST(Screen, WhatAHandlerChangedIsOnTheScreenWhenItIsOver) {
    controls::CommandButton button("cmdA", "A");
    controls::ListBox list("lstA");
    qt_tests::PlaceAt(button, 0, 0, 50, 20);
    controls::EventClaims claims;
    claims.Claim(button.Click, [&list] { list.AddItem("One"); });
    const qt_tests::Desk desk(button, list);

    QTest::mouseClick(desk.Find(button), Qt::LeftButton);

    EXPECT_EQ(desk.Find<QListView>(list)->model()->rowCount(), 1);
}

TEST(Screen, AnEndedScreenLeavesTheControlsAlone) {
    controls::Label label("lblA", "A");
    controls::Form form("frmA", "A");
    form.Add(label);
    {
        qt::Screen screen(qt_tests::TheLoop(), {});
        screen.Adopt(form);
        form.Show();
        screen.CatchUp();
    }

    label.SetCaption("B");
    form.Hide();

    EXPECT_EQ(label.Observer(), nullptr);
    EXPECT_EQ(form.Observer(), nullptr);
}

}  // namespace
