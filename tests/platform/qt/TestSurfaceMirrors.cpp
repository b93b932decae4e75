#include <gtest/gtest.h>

#include <QTest>
#include <utility>

#include "controls/ControlArray.h"
#include "controls/Frame.h"
#include "controls/Label.h"
#include "controls/PictureBox.h"
#include "platform/qt/QtBench.h"
#include "platform/qt/Skin.h"

namespace {

TEST(PictureBoxMirror, MarkersKeepTheirUnitsWhenTheBarIsWidened) {
    controls::PictureBox bar("picSongProgress");
    controls::Label marker("lblProgress");
    qt_tests::PlaceAt(bar, 0, 0, 100, 20);
    bar.Add(marker);
    bar.SetScaleWidth(200);
    marker.Move(100, 0, 20, 300);
    qt_tests::Desk desk(bar);

    bar.SetWidth(300 * 15);
    desk.screen.CatchUp();

    EXPECT_EQ(desk.Find(marker)->geometry(), QRect(150, 0, 30, 20));
}

TEST(PictureBoxMirror, ANewScaleMovesNothingOnTheScreen) {
    controls::PictureBox bar("picSongProgress");
    controls::Label marker("lblProgress");
    qt_tests::PlaceAt(bar, 0, 0, 100, 20);
    bar.Add(marker);
    qt_tests::PlaceAt(marker, 50, 0, 10, 20);
    qt_tests::Desk desk(bar);

    bar.SetScaleWidth(245);
    desk.screen.CatchUp();

    EXPECT_EQ(desk.Find(marker)->geometry(), QRect(50, 0, 10, 20));
}

/// A bar of 100 pixels that is filled up to its marker.
struct SongBar {
    SongBar() {
        bar.SetLook("progress");
        marker.SetLook("marker");
        qt_tests::PlaceAt(bar, 0, 0, 100, 20);
        bar.Add(marker);
    }

    controls::PictureBox bar{"picSongProgress"};
    controls::Label marker{"lblProgress"};
};

class PaintCount final : public QObject {
public:
    explicit PaintCount(QWidget& widget) { widget.installEventFilter(this); }
    /// Since the last question.
    int Paints() {
        QTest::qWait(50);
        return std::exchange(paints_, 0);
    }
    bool eventFilter(QObject* /*widget*/, QEvent* event) override {
        paints_ += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }

private:
    int paints_ = 0;
};

TEST(PictureBoxMirror, ABarIsPaintedWhenItsMarkerGoesToAnotherPixel) {
    SongBar song;
    auto& [bar, marker] = song;
    bar.SetScaleWidth(1000);
    marker.Move(500, 0, 100, 300);
    qt_tests::Desk desk(bar);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(desk.Find(bar)->window()));
    PaintCount bar_of_the_song(*desk.Find(bar));
    bar_of_the_song.Paints();

    marker.SetLeft(502);
    desk.screen.CatchUp();
    EXPECT_EQ(bar_of_the_song.Paints(), 0);

    marker.SetLeft(600);
    desk.screen.CatchUp();
    EXPECT_GT(bar_of_the_song.Paints(), 0);
}

TEST(PictureBoxMirror, ItsColourIsPainted) {
    controls::PictureBox box("picVid");
    qt_tests::PlaceAt(box, 0, 0, 20, 20);
    qt_tests::Desk desk(box);

    box.SetBackColor(0x00ff00);
    desk.screen.CatchUp();

    EXPECT_EQ(desk.Find(box)->grab().toImage().pixel(10, 10), 0xff00ff00);
}

TEST(PictureBoxMirror, AVideoSurfaceHasAHandleOfItsOwn) {
    controls::PictureBox video("picVid");
    controls::PictureBox plain("picPlain");
    video.SetLook("video");
    const qt_tests::Desk desk(video, plain);

    EXPECT_NE(video.Handle(), 0);
    EXPECT_EQ(QWidget::find(static_cast<WId>(video.Handle())), desk.Find(video));
    EXPECT_EQ(plain.Handle(), 0);
}

TEST(PictureBoxMirror, ABarIsFilledUpToItsMarker) {
    SongBar song;
    auto& [bar, marker] = song;
    qt_tests::PlaceAt(marker, 56, 0, 8, 20);
    const qt_tests::Desk desk(bar);

    const QImage shown = desk.Find(bar)->grab().toImage();

    EXPECT_NE(shown.pixel(40, 10), qt::skin::Colours().well);
    EXPECT_EQ(shown.pixel(60, 10), qt::skin::Colours().knob);
    EXPECT_EQ(shown.pixel(80, 10), qt::skin::Colours().well);
}

TEST(FrameMirror, WhatStandsInItMovesAndHidesWithIt) {
    controls::Frame frame("fraA");
    controls::Label label("lblA", "A");
    qt_tests::PlaceAt(frame, 50, 60, 200, 100);
    qt_tests::PlaceAt(label, 10, 10, 50, 20);
    frame.Add(label);
    qt_tests::Desk desk(frame);

    frame.SetVisible(false);
    desk.screen.CatchUp();

    EXPECT_EQ(desk.Find(label)->parentWidget(), desk.Find(frame));
    EXPECT_FALSE(desk.Find(label)->isVisible());
}

TEST(MirrorChildren, AMemberLoadedLaterComesToTheScreenByItself) {
    controls::ControlArray<controls::Label> labels("tabLabel");
    qt_tests::Desk desk(labels(0));

    controls::Label& second = labels.Load(1);
    second.SetVisible(true);
    second.SetCaption("Second");
    desk.screen.CatchUp();

    ASSERT_NE(desk.Find(second), nullptr);
    EXPECT_TRUE(desk.Find(second)->isVisible());
}

TEST(MirrorChildren, ADeeperMemberLoadedLaterComesToTheScreenToo) {
    controls::ControlArray<controls::Label> labels("tabLabel");
    controls::Frame frame("fraA");
    frame.Add(labels(0));
    qt_tests::Desk desk(frame);

    controls::Label& second = labels.Load(1);

    ASSERT_NE(desk.Find(second), nullptr);
    EXPECT_EQ(desk.Find(second)->parentWidget(), desk.Find(frame));
}

TEST(MirrorChildren, TheLastOneBroughtToTheFrontIsInFront) {
    controls::Label first("lblA");
    controls::Label second("lblB");
    controls::Label third("lblC");
    for (controls::Label* label : {&first, &second, &third})
        qt_tests::PlaceAt(*label, 0, 0, 50, 50);
    qt_tests::Desk desk(first, second, third);

    second.BringToFront();
    first.BringToFront();
    second.BringToFront();
    desk.screen.CatchUp();

    EXPECT_EQ(desk.Find(first)->parentWidget()->childAt(10, 10), desk.Find(second));
}

TEST(MirrorChildren, AControlPutIntoAnotherContainerStandsThere) {
    controls::Frame left("fraLeft");
    controls::Frame right("fraRight");
    controls::Label label("lblA");
    left.Add(label);
    qt_tests::Desk desk(left, right);

    right.Add(label);
    desk.screen.CatchUp();

    EXPECT_EQ(desk.Find(label)->parentWidget(), desk.Find(right));
    EXPECT_TRUE(desk.Find(label)->isVisible());
}

}  // namespace
