#include <gtest/gtest.h>

#include <QAccessible>
#include <QBuffer>
#include <QCheckBox>
#include <QElapsedTimer>
#include <QImage>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>

#include "controls/CheckBox.h"
#include "controls/CommandButton.h"
#include "controls/Label.h"
#include "controls/Line.h"
#include "controls/ProgressBar.h"
#include "controls/Timer.h"
#include "platform/qt/QtBench.h"
#include "platform/qt/Skin.h"

namespace {

TEST(TimerMirror, AnIntervalOfMoreThanATenthOfASecondIsKeptToTheMillisecond) {
    controls::Timer timer("tmrFade", 220);
    const qt_tests::Desk desk(timer);
    // One turn on a machine with nothing else to do would be enough; a coarse timer is late in each.
    qint64 least_late = 1000;
    for (int turn = 0; turn < 3 && least_late >= 10; ++turn) {
        QElapsedTimer since_start;
        std::vector<qint64> ticks;
        controls::EventClaims claims;
        claims.Claim(timer.Tick, [&] { ticks.push_back(since_start.elapsed()); });
        since_start.start();
        timer.SetEnabled(true);
        EXPECT_TRUE(qt_tests::WaitFor([&] { return ticks.size() >= 6; }));
        timer.SetEnabled(false);
        for (std::size_t i = 3; i < ticks.size(); ++i)
            least_late = std::min(least_late, ticks[i] - static_cast<qint64>(220 * (i + 1)));
    }

    EXPECT_LT(least_late, 10) << "the sixth tick of a coarse one is 30 ms late";
}

TEST(LabelMirror, ACaptionIsShownAndSpoken) {
    controls::Label label("lblA", "Old");
    qt_tests::Desk desk(label);

    label.SetCaption("New");
    desk.screen.CatchUp();

    EXPECT_EQ(desk.Find<QLabel>(label)->text(), "New");
    EXPECT_EQ(desk.Find(label)->accessibleName(), "New");
}

TEST(LabelMirror, AnIconIsDrawnBeforeTheCaptionAndProgressBelowIt) {
    controls::Label label("tabLabel", "");
    label.SetLook("tab");
    qt_tests::PlaceAt(label, 0, 0, 100, 24);
    qt_tests::Desk desk(label);
    QImage red(16, 16, QImage::Format_RGB32);
    red.fill(Qt::red);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    ASSERT_TRUE(red.save(&buffer, "PNG"));

    label.SetIcon(bytes.toStdString());
    label.SetProgress(50);
    desk.screen.CatchUp();

    const QImage shown = desk.Find(label)->grab().toImage();
    EXPECT_EQ(shown.pixel(8, 12), 0xffff0000);
    EXPECT_EQ(shown.pixel(20, 23), qt::skin::Colours().accent);
    EXPECT_EQ(shown.pixel(80, 23), qt::skin::Colours().line);

    label.SetIcon("no picture");
    label.SetProgress(-1);
    desk.screen.CatchUp();
    EXPECT_NE(desk.Find(label)->grab().toImage().pixel(8, 12), 0xffff0000);
    EXPECT_NE(desk.Find(label)->grab().toImage().pixel(20, 23), qt::skin::Colours().accent);
}

TEST(LabelMirror, AChangedLookIsPainted) {
    controls::Label label("lblA");
    qt_tests::PlaceAt(label, 0, 0, 20, 20);
    qt_tests::Desk desk(label);

    label.SetLook("well");
    desk.screen.CatchUp();

    EXPECT_EQ(desk.Find(label)->grab().toImage().pixel(10, 10), qt::skin::Colours().well);
}

TEST(LabelMirror, AClickableLabelIsReachedAndPressedByKeyboard) {
    controls::Label label("lblA", "A");
    int clicks = 0;
    controls::EventClaims claims;
    claims.Claim(label.Click, [&clicks] { ++clicks; });
    qt_tests::Desk desk(label);
    desk.Find(label)->setFocus();

    QTest::keyClick(desk.Find(label), Qt::Key_Return);

    EXPECT_EQ(clicks, 1);
}

TEST(LabelMirror, SpacePressesIt) {
    controls::Label label("lblA", "A");
    int clicks = 0;
    controls::EventClaims claims;
    claims.Claim(label.Click, [&clicks] { ++clicks; });
    qt_tests::Desk desk(label);
    desk.Find(label)->setFocus();

    QTest::keyClick(desk.Find(label), Qt::Key_Space);

    EXPECT_EQ(clicks, 1);
}

TEST(LabelMirror, ToAScreenReaderAClickableLabelIsAButtonThatCanBePressed) {
    controls::Label label("lblA", "A");
    controls::Label plain("lblB", "B");
    int clicks = 0;
    controls::EventClaims claims;
    claims.Claim(label.Click, [&clicks] { ++clicks; });
    const qt_tests::Desk desk(label, plain);

    QAccessibleInterface* button = QAccessible::queryAccessibleInterface(desk.Find(label));
    ASSERT_NE(button, nullptr);
    EXPECT_EQ(button->role(), QAccessible::Button);
    EXPECT_EQ(button->text(QAccessible::Name), "A");
    ASSERT_NE(button->actionInterface(), nullptr);
    button->actionInterface()->doAction(QAccessibleActionInterface::pressAction());

    EXPECT_EQ(clicks, 1);
    EXPECT_NE(QAccessible::queryAccessibleInterface(desk.Find(plain))->role(), QAccessible::Button);
}

TEST(LabelMirror, TheTitleOnATabIsNoPlaceForTheKeyboard) {
    controls::Label title("tabLabel", "A");
    controls::Label cross("tabClose", "x");
    title.SetLook("tab");
    cross.SetLook("tab close");
    controls::EventClaims claims;
    claims.Claim(title.MouseUp, [] {});
    claims.Claim(cross.Click, [] {});
    const qt_tests::Desk desk(title, cross);

    EXPECT_EQ(desk.Find(title)->focusPolicy(), Qt::NoFocus);
    EXPECT_EQ(desk.Find(cross)->focusPolicy(), Qt::TabFocus);
}

TEST(ButtonMirror, APressRaisesClickOnce) {
    controls::CommandButton button("cmdA", "A");
    qt_tests::PlaceAt(button, 0, 0, 80, 30);
    int clicks = 0;
    controls::EventClaims claims;
    claims.Claim(button.Click, [&clicks] { ++clicks; });
    const qt_tests::Desk desk(button);

    QTest::mouseClick(desk.Find(button), Qt::LeftButton);

    EXPECT_EQ(clicks, 1);
}

TEST(ButtonMirror, SpaceAndEnterPressIt) {
    controls::CommandButton button("cmdA", "A");
    int clicks = 0;
    controls::EventClaims claims;
    claims.Claim(button.Click, [&clicks] { ++clicks; });
    const qt_tests::Desk desk(button);
    desk.Find(button)->setFocus();

    QTest::keyClick(desk.Find(button), Qt::Key_Space);
    QTest::keyClick(desk.Find(button), Qt::Key_Return);

    EXPECT_EQ(clicks, 2);
}

TEST(ButtonMirror, ACaptionChangedInItsOwnClickIsShown) {
    controls::CommandButton button("cmdFavs", "<");
    qt_tests::PlaceAt(button, 0, 0, 40, 40);
    controls::EventClaims claims;
    claims.Claim(button.Click, [&button] { button.SetCaption(">"); });
    const qt_tests::Desk desk(button);

    QTest::mouseClick(desk.Find(button), Qt::LeftButton);

    EXPECT_EQ(desk.Find<QPushButton>(button)->text(), ">");
}

TEST(CheckMirror, APersonsClickSetsTheControlAndRaisesOneClick) {
    controls::CheckBox check("chkA", "Check");
    qt_tests::PlaceAt(check, 0, 0, 100, 20);
    int clicks = 0;
    controls::EventClaims claims;
    claims.Claim(check.Click, [&clicks] { ++clicks; });
    const qt_tests::Desk desk(check);

    QTest::mouseClick(desk.Find(check), Qt::LeftButton, Qt::NoModifier, QPoint(8, 10));

    EXPECT_TRUE(check.Checked());
    EXPECT_EQ(clicks, 1);
}

TEST(CheckMirror, AnAssignedCheckIsShown) {
    controls::CheckBox check("chkA", "Check");
    qt_tests::Desk desk(check);

    check.SetChecked(true);
    desk.screen.CatchUp();

    EXPECT_TRUE(desk.Find<QCheckBox>(check)->isChecked());
}

TEST(ProgressMirror, TheValueIsShown) {
    controls::ProgressBar bar("pbLoad");
    qt_tests::Desk desk(bar);

    bar.SetValue(40);
    desk.screen.CatchUp();

    EXPECT_EQ(desk.Find<QProgressBar>(bar)->value(), 40);
}

TEST(LineMirror, ALineWithoutHeightCanStillBeSeen) {
    controls::Line line("TabLineLeft");
    controls::Line pale("TabLineRight");
    pale.SetLook("pale");
    qt_tests::PlaceAt(line, 0, 10, 100, 0);
    qt_tests::PlaceAt(pale, 0, 10, 100, 0);
    const qt_tests::Desk desk(line, pale);

    EXPECT_EQ(desk.Find(line)->height(), 1);
    EXPECT_EQ(desk.Find(pale)->height(), 2);
}

TEST(TimerMirror, ItTicksWhileItIsEnabled) {
    controls::Timer timer("tmrA", 1, true);
    int ticks = 0;
    controls::EventClaims claims;
    claims.Claim(timer.Tick, [&] {
        if (++ticks == 3) timer.SetEnabled(false);
    });
    const qt_tests::Desk desk(timer);

    EXPECT_TRUE(qt_tests::WaitFor([&] { return ticks >= 3; }));
    QTest::qWait(20);
    EXPECT_EQ(ticks, 3);
}

TEST(TimerMirror, AnIntervalOfZeroNeverTicks) {
    controls::Timer still("tmrA", 0, true);
    controls::Timer other("tmrB", 5, true);
    int ticks = 0;
    int others = 0;
    controls::EventClaims claims;
    claims.Claim(still.Tick, [&ticks] { ++ticks; });
    claims.Claim(other.Tick, [&others] { ++others; });
    const qt_tests::Desk desk(still, other);

    EXPECT_TRUE(qt_tests::WaitFor([&] { return others >= 3; }));

    EXPECT_EQ(ticks, 0);
}

TEST(TimerMirror, EnablingItAgainStartsItsIntervalAgain) {
    controls::Timer late("tmrA", 60, true);
    controls::Timer pusher("tmrB", 10, true);
    int pushes = 0;
    int ticks_while_pushed = 0;
    int ticks = 0;
    controls::EventClaims claims;
    claims.Claim(late.Tick, [&] { ++ticks; });
    claims.Claim(pusher.Tick, [&] {
        late.SetEnabled(true);
        if (++pushes == 15) {
            ticks_while_pushed = ticks;
            pusher.SetEnabled(false);
        }
    });
    const qt_tests::Desk desk(late, pusher);

    EXPECT_TRUE(qt_tests::WaitFor([&] { return pushes == 15 && ticks > 0; }));

    EXPECT_EQ(ticks_while_pushed, 0);
}

TEST(TimerMirror, AHandlerThatYieldsIsNotEnteredAgain) {
    controls::Timer timer("tmrA", 1, true);
    int depth = 0;
    int deepest = 0;
    int ticks = 0;
    controls::EventClaims claims;
    claims.Claim(timer.Tick, [&] {
        deepest = std::max(deepest, ++depth);
        QTest::qWait(10);
        --depth;
        ++ticks;
    });
    const qt_tests::Desk desk(timer);

    EXPECT_TRUE(qt_tests::WaitFor([&] { return ticks >= 2; }));
    timer.SetEnabled(false);

    EXPECT_EQ(deepest, 1);
}

}  // namespace
