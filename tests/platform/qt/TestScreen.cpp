#include <gtest/gtest.h>

#include <QListView>
#include <QTest>

#include "controls/Lists.h"
#include "platform/qt/QtBench.h"

namespace {

TEST(Screen, AWindowThatIsNotShownIsNotMadeAtTheStart) {
    controls::Label label("lblA");
    controls::Form form("frmHidden", "Hidden");
    form.Add(label);
    qt::Screen screen(bench::TheLoop(), {});

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
    qt::Screen screen(bench::TheLoop(), {});

    screen.Adopt(form);

    EXPECT_TRUE(bench::WaitFor([&] { return ticks > 0; }));
}

TEST(Screen, HiddenWindowsAreMadeOnceTheFirstHasBeenPainted) {
    controls::PictureBox video("picVid");
    controls::Form hidden("frmVideo", "Video", controls::BorderStyle::None);
    video.SetLook("video");
    hidden.Add(video);
    bench::Desk desk;
    desk.screen.Adopt(hidden);

    EXPECT_TRUE(bench::WaitFor([&] { return video.Handle() != 0; }));
    EXPECT_FALSE(desk.screen.WindowOf(hidden)->isVisible());
}

TEST(Screen, TheFirstPaintIsToldOnce) {
    controls::Form form("frmA", "A");
    form.SetContentSize(3000, 3000);
    int told = 0;
    qt::Screen screen(bench::TheLoop(), {});
    screen.AfterFirstPaint = [&told] { ++told; };
    screen.Adopt(form);
    form.Show();
    screen.CatchUp();

    EXPECT_TRUE(bench::WaitFor([&] { return told > 0; }));
    screen.WindowOf(form)->repaint();

    EXPECT_EQ(told, 1);
}

TEST(Screen, WhatAHandlerChangedIsOnTheScreenWhenItIsOver) {
    controls::CommandButton button("cmdA", "A");
    controls::ListBox list("lstA");
    bench::PlaceAt(button, 0, 0, 50, 20);
    controls::EventClaims claims;
    claims.Claim(button.Click, [&list] { list.AddItem("One"); });
    const bench::Desk desk(button, list);

    QTest::mouseClick(desk.Find(button), Qt::LeftButton);

    EXPECT_EQ(desk.Find<QListView>(list)->model()->rowCount(), 1);
}

TEST(Screen, AnEndedScreenLeavesTheControlsAlone) {
    controls::Label label("lblA", "A");
    controls::Form form("frmA", "A");
    form.Add(label);
    {
        qt::Screen screen(bench::TheLoop(), {});
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
