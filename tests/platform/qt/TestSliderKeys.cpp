#include <gtest/gtest.h>

#include <QAccessible>
#include <QTest>

#include "controls/Label.h"
#include "controls/PictureBox.h"
#include "controls/TextBox.h"
#include "platform/qt/QtBench.h"
#include "platform/qt/SliderKeys.h"

namespace {

using controls::kTwipsPerPixel;

/// A bar of 100 pixels and as many units, with a marker of 10 on it.
class SliderKeysTest : public testing::Test {
protected:
    SliderKeysTest() {
        bar_.SetLook("track");
        qt_tests::PlaceAt(bar_, 10, 10, 100, 20);
        bar_.SetScaleWidth(100);
        bar_.Add(marker_);
        marker_.SetLook("marker");
        marker_.Move(40, 0, 10, 20 * kTwipsPerPixel);
        qt_tests::PlaceAt(text_, 10, 60, 100, 20);
    }

    static QAccessibleValueInterface* ValueOf(QWidget* widget) {
        QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(widget);
        return spoken != nullptr ? spoken->valueInterface() : nullptr;
    }

    controls::PictureBox bar_{"picSpeed"};
    controls::Label marker_{"lblSongSpeed"};
    controls::TextBox text_{"txtAddress"};
    controls::EventClaims claims_;
};

TEST_F(SliderKeysTest, AnArrowTurnsTheWheelOfABarThatHasOne) {
    int sum = 0;
    claims_.Claim(bar_.MouseWheel, [&sum](int notches) { sum = sum * 10 + notches; });
    const qt_tests::Desk desk(bar_);
    desk.Find(bar_)->setFocus();

    for (const int key : {Qt::Key_Right, Qt::Key_Up, Qt::Key_PageUp})
        QTest::keyClick(desk.Find(bar_), static_cast<Qt::Key>(key));
    const int up = std::exchange(sum, 0);
    for (const int key : {Qt::Key_Left, Qt::Key_Down})
        QTest::keyClick(desk.Find(bar_), static_cast<Qt::Key>(key));

    EXPECT_EQ(up, 114);
    EXPECT_EQ(sum, -11);
}

TEST_F(SliderKeysTest, AnArrowPressesBesideTheMarkerOfABarWithoutAWheel) {
    claims_.Claim(bar_.MouseDown, [this](int, int, double x, double) { marker_.SetLeft(x); });
    const qt_tests::Desk desk(bar_);
    desk.Find(bar_)->setFocus();

    QTest::keyClick(desk.Find(bar_), Qt::Key_Right);
    const double right = marker_.Left();
    QTest::keyClick(desk.Find(bar_), Qt::Key_Home);
    const double first = marker_.Left();
    QTest::keyClick(desk.Find(bar_), Qt::Key_End);

    EXPECT_DOUBLE_EQ(right, 44.5);
    EXPECT_DOUBLE_EQ(first, 0);
    EXPECT_DOUBLE_EQ(marker_.Left(), 90);
}

TEST_F(SliderKeysTest, AMarkerIsDraggedAndTheKeyboardStaysWithIt) {
    marker_.SetLook("fademarker");
    double pressed = 0;
    claims_.Claim(marker_.MouseDown, [&pressed](int, int, double x, double) { pressed = x; });
    claims_.Claim(marker_.MouseMove, [this, &pressed](int, int, double x, double) {
        marker_.SetLeft(marker_.Left() + x / pressed);
    });
    claims_.Claim(marker_.MouseUp, [this] { text_.SetFocus(); });
    qt_tests::Desk desk(bar_, text_);
    desk.Find(marker_)->setFocus();

    QTest::keyClick(desk.Find(marker_), Qt::Key_Left);
    desk.screen.CatchUp();

    EXPECT_DOUBLE_EQ(marker_.Left(), 39);
    EXPECT_TRUE(qt_tests::WaitFor([&] { return desk.Find(marker_)->hasFocus(); }));
}

TEST_F(SliderKeysTest, ASplitterGoesUpAndDown) {
    controls::Label splitter("lblSlider");
    splitter.SetLook("splitter");
    qt_tests::PlaceAt(splitter, 0, 100, 100, 10);
    claims_.Claim(splitter.MouseMove,
                  [&splitter](int, int, double, double y) { splitter.SetTop(splitter.Top() + y / 3); });
    const qt_tests::Desk desk(splitter);
    desk.Find(splitter)->setFocus();

    QTest::keyClick(desk.Find(splitter), Qt::Key_Up);
    const double up = splitter.Top();
    QTest::keyClick(desk.Find(splitter), Qt::Key_Down);

    EXPECT_DOUBLE_EQ(up, 84 * kTwipsPerPixel);
    EXPECT_DOUBLE_EQ(splitter.Top(), 100 * kTwipsPerPixel);
}

TEST_F(SliderKeysTest, AScreenReaderHearsAndSetsWhereTheMarkerIs) {
    claims_.Claim(bar_.MouseDown, [this](int, int, double x, double) { marker_.SetLeft(x); });
    const qt_tests::Desk desk(bar_);
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(desk.Find(bar_));
    QAccessibleValueInterface* value = ValueOf(desk.Find(bar_));
    ASSERT_NE(value, nullptr);

    const double before = value->currentValue().toDouble();
    value->setCurrentValue(100.0);

    EXPECT_EQ(spoken->role(), QAccessible::Slider);
    EXPECT_NEAR(before, 44.4, 0.1);
    EXPECT_DOUBLE_EQ(marker_.Left(), 90);
    EXPECT_DOUBLE_EQ(value->currentValue().toDouble(), 100);
}

TEST_F(SliderKeysTest, ABarThatOnlyHasAWheelIsTurnedTowardsAValue) {
    claims_.Claim(bar_.MouseWheel, [this](int notches) { marker_.SetLeft(marker_.Left() + 4.5 * notches); });
    const qt_tests::Desk desk(bar_);

    qt::SetSliderPercent(bar_, 80);

    EXPECT_NEAR(qt::SliderPercent(bar_), 80, 5);
}

TEST_F(SliderKeysTest, WithoutARangeOrAMarkerThePlaceIsItsBeginning) {
    marker_.SetWidth(100);

    EXPECT_DOUBLE_EQ(qt::SliderPercent(bar_), 0);
    marker_.SetVisible(false);
    EXPECT_DOUBLE_EQ(qt::SliderPercent(bar_), 0);
}

}  // namespace
