#include <gtest/gtest.h>

#include <QApplication>
#include <QDropEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>
#include <QWheelEvent>
#include <initializer_list>

#include "controls/CommandButton.h"
#include "controls/Frame.h"
#include "controls/Label.h"
#include "controls/ListBox.h"
#include "controls/PictureBox.h"
#include "controls/TextBox.h"
#include "platform/qt/QtBench.h"

namespace {

struct MouseEventText {
    std::string Text;
    void Add(const char* name, int button, int shift, double x, double y) {
        char line[80];
        std::snprintf(line, sizeof line, "%s %d %d %.0f %.0f;", name, button, shift, x, y);
        Text += line;
    }
};

void SendMouse(QWidget* widget, QEvent::Type type, QPoint at, Qt::MouseButton button) {
    QMouseEvent event(type, at, widget->mapToGlobal(at), button, button, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
}

void TurnWheel(QWidget* widget, int eighths_of_a_degree) {
    const QPointF at(1, 1);
    QWheelEvent event(at, widget->mapToGlobal(at), QPoint(), QPoint(0, eighths_of_a_degree), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(widget, &event);
}

/// As the system sends it while the key is held down.
void HoldEnter(QWidget* widget, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    for (const bool is_repeat : {false, true, true}) {
        QKeyEvent event(QEvent::KeyPress, Qt::Key_Return, modifiers, QStringLiteral("\r"), is_repeat);
        QCoreApplication::sendEvent(widget, &event);
    }
}

void DoubleClick(QWidget* widget, QPoint at) {
    for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease,
                                    QEvent::MouseButtonDblClick, QEvent::MouseButtonRelease}) {
        SendMouse(widget, type, at, Qt::LeftButton);
    }
}

class WidgetMirrorTest : public testing::Test {
protected:
    WidgetMirrorTest() { qt_tests::PlaceAt(label_, 10, 20, 100, 30); }
    void Listen(controls::Control& control) {
        claims_.Claim(control.MouseDown,
                      [this](int b, int s, double x, double y) { log_.Add("down", b, s, x, y); });
        claims_.Claim(control.MouseUp,
                      [this](int b, int s, double x, double y) { log_.Add("up", b, s, x, y); });
        claims_.Claim(control.Click, [this] { log_.Text += "click;"; });
    }

    void ListenToKeys() {
        claims_.Claim(text_.KeyDown, [this](int code, int shift) {
            keys_ += std::to_string(code) + "/" + std::to_string(shift) + ";";
        });
    }

    controls::Label label_{"lblA", "A"};
    controls::TextBox text_{"txtA"};
    MouseEventText log_;
    std::string keys_;
    controls::EventClaims claims_;
};

TEST_F(WidgetMirrorTest, APressAndReleaseAreDownUpAndClickInTwips) {
    Listen(label_);
    const qt_tests::Desk desk(label_);

    QTest::mouseClick(desk.Find(label_), Qt::LeftButton, Qt::ShiftModifier, QPoint(4, 6));

    EXPECT_EQ(log_.Text, "down 1 1 60 90;up 1 1 60 90;click;");
}

TEST_F(WidgetMirrorTest, TheRightButtonDoesNotClick) {
    Listen(label_);
    const qt_tests::Desk desk(label_);

    QTest::mouseClick(desk.Find(label_), Qt::RightButton, Qt::NoModifier, QPoint(4, 6));

    EXPECT_EQ(log_.Text, "down 2 0 60 90;up 2 0 60 90;");
}

TEST_F(WidgetMirrorTest, AReleaseOutsideIsNoClick) {
    Listen(label_);
    const qt_tests::Desk desk(label_);

    QTest::mousePress(desk.Find(label_), Qt::LeftButton, Qt::NoModifier, QPoint(4, 6));
    QTest::mouseRelease(desk.Find(label_), Qt::LeftButton, Qt::NoModifier, QPoint(400, 6));

    EXPECT_EQ(log_.Text, "down 1 0 60 90;up 1 0 6000 90;");
}

TEST_F(WidgetMirrorTest, ADoubleClickTakesThePlaceOfTheSecondPressAndClick) {
    Listen(label_);
    claims_.Claim(label_.DblClick, [this] { log_.Text += "double;"; });
    const qt_tests::Desk desk(label_);

    DoubleClick(desk.Find(label_), QPoint(1, 1));

    EXPECT_EQ(log_.Text, "down 1 0 15 15;up 1 0 15 15;click;double;up 1 0 15 15;");
}

TEST_F(WidgetMirrorTest, TwoQuickClicksAreTwoClicksWhereNobodyWantsADoubleOne) {
    int clicks = 0;
    claims_.Claim(label_.Click, [&clicks] { ++clicks; });
    const qt_tests::Desk desk(label_);

    DoubleClick(desk.Find(label_), QPoint(1, 1));

    EXPECT_EQ(clicks, 2);
}

TEST_F(WidgetMirrorTest, AMoveWithoutAButtonIsToldToTheControlUnderThePointerOnly) {
    controls::Frame frame("fraA");
    qt_tests::PlaceAt(frame, 0, 0, 200, 200);
    frame.Add(label_);
    std::string moves;
    int frame_moves = 0;
    claims_.Claim(label_.MouseMove, [&moves](int button, int, double x, double) {
        moves += std::to_string(button) + "/" + std::to_string(static_cast<int>(x)) + ";";
    });
    controls::EventClaims frame_claims;
    frame_claims.Claim(frame.MouseMove, [&frame_moves](int, int, double, double) { ++frame_moves; });
    const qt_tests::Desk desk(frame);

    SendMouse(desk.Find(label_), QEvent::MouseMove, QPoint(5, 5), Qt::NoButton);

    EXPECT_EQ(moves, "0/75;");
    EXPECT_EQ(frame_moves, 0);
}

/// A bar with a knob on it; the bar listens.
struct BarAndKnob {
    BarAndKnob() {
        qt_tests::PlaceAt(bar, 0, 0, 200, 20);
        qt_tests::PlaceAt(knob, 5, 0, 10, 20);
        bar.Add(knob);
        claims.Claim(bar.MouseWheel, [this](int notches) { turned.push_back(notches); });
    }
    controls::PictureBox bar{"picBar"};
    controls::Label knob{"lblKnob"};
    std::vector<int> turned;
    controls::EventClaims claims;
};

TEST_F(WidgetMirrorTest, ANotchOfTheWheelIsToldUpAndDown) {
    BarAndKnob parts;
    const qt_tests::Desk desk(parts.bar);

    TurnWheel(desk.Find(parts.bar), 120);
    TurnWheel(desk.Find(parts.bar), -360);

    EXPECT_EQ(parts.turned, (std::vector<int>{1, -3}));
}

TEST_F(WidgetMirrorTest, TheWheelOverAControlIsToldToTheContainerThatListens) {
    BarAndKnob parts;
    const qt_tests::Desk desk(parts.bar);

    TurnWheel(desk.Find(parts.knob), 120);

    EXPECT_EQ(parts.turned, std::vector<int>{1});
}

TEST_F(WidgetMirrorTest, AFineWheelIsGatheredIntoNotches) {
    BarAndKnob parts;
    const qt_tests::Desk desk(parts.bar);

    for (int i = 0; i < 9; ++i)
        TurnWheel(desk.Find(parts.bar), 30);
    for (int i = 0; i < 5; ++i)
        TurnWheel(desk.Find(parts.bar), -30);

    EXPECT_EQ(parts.turned, (std::vector<int>{1, 1, -1})) << "270 up, of which 30 are left; then 150 down";
}

TEST_F(WidgetMirrorTest, AToolTipIsNoMarkup) {
    qt_tests::Desk desk(label_);

    label_.SetToolTipText("<img src=x>Rock & Roll");
    desk.screen.CatchUp();

    EXPECT_EQ(desk.Find(label_)->toolTip(), "<span>&lt;img src=x&gt;Rock &amp; Roll</span>");
}

TEST_F(WidgetMirrorTest, ADisabledControlIsDeafAndSoIsOneInADisabledWindow) {
    Listen(label_);
    qt_tests::Desk desk(label_);
    label_.SetEnabled(false);
    desk.screen.CatchUp();
    QTest::mouseClick(desk.Find(label_), Qt::LeftButton);
    label_.SetEnabled(true);
    desk.form.SetEnabled(false);
    desk.screen.CatchUp();
    QTest::mouseClick(desk.Find(label_), Qt::LeftButton);

    EXPECT_EQ(log_.Text, "");
}

TEST_F(WidgetMirrorTest, PlaceVisibilityToolTipAndNameFollowTheControl) {
    qt_tests::Desk desk(label_);

    qt_tests::PlaceAt(label_, 30, 40, 50, 60);
    label_.SetToolTipText("Tip");
    label_.SetAccessibleName("Spoken");
    desk.screen.CatchUp();

    EXPECT_EQ(desk.Find(label_)->geometry(), QRect(30, 40, 50, 60));
    EXPECT_EQ(desk.Find(label_)->toolTip(), "Tip");
    EXPECT_EQ(desk.Find(label_)->accessibleName(), "Spoken");
    label_.SetVisible(false);
    desk.screen.CatchUp();
    EXPECT_FALSE(desk.Find(label_)->isVisible());
}

TEST_F(WidgetMirrorTest, AControlWithoutANameIsCalledByItsOwn) {
    controls::PictureBox box("picTrackTitle");
    const qt_tests::Desk desk(box);

    EXPECT_EQ(desk.Find(box)->accessibleName(), "Track Title");
}

TEST_F(WidgetMirrorTest, AKeyGoesToTheControlThatHasTheKeyboard) {
    ListenToKeys();
    qt_tests::Desk desk(text_);
    text_.SetFocus();
    desk.screen.CatchUp();

    QTest::keyClick(desk.Find(text_), Qt::Key_Return);
    QTest::keyClick(desk.Find(text_), Qt::Key_VolumeUp, Qt::ControlModifier);

    EXPECT_EQ(keys_, "13/0;17/2;175/2;");
}

TEST_F(WidgetMirrorTest, EnterThatIsHeldDownIsPressedOnce) {
    ListenToKeys();
    qt_tests::Desk desk(text_);
    text_.SetFocus();
    desk.screen.CatchUp();

    HoldEnter(desk.Find(text_));
    HoldEnter(desk.Find(text_), Qt::ControlModifier);

    EXPECT_EQ(keys_, "13/0;13/2;");
}

TEST_F(WidgetMirrorTest, EnterThatIsHeldDownPressesButtonsAndRowsOnce) {
    controls::CommandButton ok("cmdOK", "OK");
    controls::CommandButton other("cmdOther", "Other");
    controls::ListBox list("lstA");
    ok.SetDefault(true);
    list.AddItem("Amber");
    std::string done;
    controls::EventClaims claims;
    claims.Claim(ok.Click, [&done] { done += "ok;"; });
    claims.Claim(other.Click, [&done] { done += "other;"; });
    claims.Claim(list.DblClick, [&done] { done += "row;"; });
    qt_tests::Desk desk(text_, ok, other, list);
    list.SetListIndex(0);

    for (controls::Control* control : std::initializer_list<controls::Control*>{&text_, &other, &list}) {
        control->SetFocus();
        desk.screen.CatchUp();
        HoldEnter(desk.Find(*control));
    }

    EXPECT_EQ(done, "ok;other;row;");
}

TEST_F(WidgetMirrorTest, AnotherKeyThatIsHeldDownComesAgainAndAgain) {
    int downs = 0;
    claims_.Claim(text_.KeyDown, [&downs](int, int) { ++downs; });
    qt_tests::Desk desk(text_);
    text_.SetFocus();
    desk.screen.CatchUp();

    for (const bool is_repeat : {false, true, true}) {
        QKeyEvent event(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier, QString(), is_repeat);
        QCoreApplication::sendEvent(desk.Find(text_), &event);
    }

    EXPECT_EQ(downs, 3);
}

TEST_F(WidgetMirrorTest, AKeyNobodyListensToThereGoesToTheWindow) {
    int code = 0;
    qt_tests::Desk desk(text_);
    claims_.Claim(desk.form.KeyDown, [&code](int key, int) { code = key; });
    text_.SetFocus();
    desk.screen.CatchUp();

    QTest::keyClick(desk.Find(text_), Qt::Key_MediaNext);
    claims_.Release();

    EXPECT_EQ(code, 176);
}

TEST_F(WidgetMirrorTest, EnterAndEscapePressTheWindowsButtons) {
    controls::CommandButton ok("cmdOK", "OK");
    controls::CommandButton cancel("cmdCancel", "Cancel");
    ok.SetDefault(true);
    cancel.SetCancel(true);
    std::string pressed;
    controls::EventClaims claims;
    claims.Claim(ok.Click, [&pressed] { pressed += "ok;"; });
    claims.Claim(cancel.Click, [&pressed] { pressed += "cancel;"; });
    qt_tests::Desk desk(text_, ok, cancel);
    text_.SetFocus();
    desk.screen.CatchUp();

    QTest::keyClick(desk.Find(text_), Qt::Key_Return);
    QTest::keyClick(desk.Find(text_), Qt::Key_Escape);

    EXPECT_EQ(pressed, "ok;cancel;");
}

TEST_F(WidgetMirrorTest, FocusIsToldOnceItIsThere) {
    int focused = 0;
    controls::TextBox other("txtB");
    claims_.Claim(text_.GotFocus, [&focused] { ++focused; });
    qt_tests::Desk desk(other, text_);

    text_.SetFocus();
    desk.screen.CatchUp();

    EXPECT_TRUE(qt_tests::WaitFor([&] { return focused == 1; }));
    EXPECT_TRUE(desk.Find(text_)->hasFocus());
}

TEST_F(WidgetMirrorTest, FilesDroppedOnAControlArriveInDriveFormAfterTheDrop) {
    controls::DropData dropped;
    double x = 0;
    claims_.Claim(label_.OLEDragDrop, [&](const controls::DropData& data, double at_x, double) {
        dropped = data;
        x = at_x;
    });
    qt::ScreenOptions options;
    options.ToDriveForm = [](const std::string& native) { return "C:" + native; };
    const qt_tests::Desk desk(std::move(options), label_);
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile("/a.mp3")});

    QDragEnterEvent enter(QPoint(2, 3), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(desk.Find(label_), &enter);
    QDropEvent drop(QPointF(2, 3), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(desk.Find(label_), &drop);

    EXPECT_TRUE(drop.isAccepted());
    EXPECT_TRUE(dropped.Files.empty()) << "the source of the drag waits";
    EXPECT_TRUE(qt_tests::WaitFor([&] { return !dropped.Files.empty(); }));
    EXPECT_EQ(dropped.Files, std::vector<std::string>{"C:/a.mp3"});
    EXPECT_EQ(dropped.Row, -1);
    EXPECT_EQ(x, 30);
}

TEST_F(WidgetMirrorTest, ALineOfTextThatTakesDropsRefusesAFolder) {
    claims_.Claim(text_.OLEDragDrop, [] {});
    const qt_tests::Desk desk(text_);
    const QTemporaryDir folder;
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(folder.path())});

    QDragEnterEvent enter(QPoint(2, 3), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(desk.Find(text_), &enter);

    EXPECT_FALSE(enter.isAccepted());
}

TEST_F(WidgetMirrorTest, ADragOverAControlThatTakesNoneIsRefused) {
    const qt_tests::Desk desk(label_);
    QMimeData data;
    data.setText("1");

    QDragEnterEvent enter(QPoint(2, 3), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QCoreApplication::sendEvent(desk.Find(label_), &enter);

    EXPECT_FALSE(enter.isAccepted());
}

}  // namespace
