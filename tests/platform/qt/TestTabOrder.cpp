#include <gtest/gtest.h>

#include <QAccessible>
#include <QTest>

#include "controls/ControlArray.h"
#include "controls/Frame.h"
#include "controls/Image.h"
#include "controls/TextBox.h"
#include "controls/WebBrowser.h"
#include "platform/qt/QtBench.h"

namespace {

TEST(TabOrder, TheTabKeyGoesDownAndAlongTheRows) {
    controls::TextBox last("txtLast");
    controls::TextBox right("txtRight");
    controls::TextBox left("txtLeft");
    qt_tests::PlaceAt(last, 0, 100, 50, 20);
    qt_tests::PlaceAt(right, 100, 3, 50, 20);
    qt_tests::PlaceAt(left, 0, 5, 50, 20);
    qt_tests::Desk desk(last, right, left);
    desk.Find(left)->setFocus();

    QTest::keyClick(desk.Find(left), Qt::Key_Tab);
    const bool went_right = desk.Find(right)->hasFocus();
    QTest::keyClick(desk.Find(right), Qt::Key_Tab);

    EXPECT_TRUE(went_right);
    EXPECT_TRUE(desk.Find(last)->hasFocus());
}

TEST(TabOrder, APanelIsGoneThroughBeforeTheNext) {
    controls::Frame panel("fraA");
    controls::TextBox inside("txtInside");
    controls::TextBox beside("txtBeside");
    qt_tests::PlaceAt(panel, 0, 0, 100, 200);
    qt_tests::PlaceAt(inside, 0, 150, 50, 20);
    qt_tests::PlaceAt(beside, 200, 0, 50, 20);
    panel.Add(inside);
    qt_tests::Desk desk(panel, beside);
    desk.Find(inside)->setFocus();

    QTest::keyClick(desk.Find(inside), Qt::Key_Tab);

    EXPECT_TRUE(desk.Find(beside)->hasFocus());
}

TEST(TabOrder, WhatLiesUnderAPageIsPassedOverAsLongAsItDoes) {
    controls::TextBox before("txtBefore");
    controls::Frame panel("fraUnder");
    controls::TextBox under("txtUnder");
    controls::TextBox after("txtAfter");
    controls::WebBrowser page("Browser");
    qt_tests::PlaceAt(before, 0, 0, 50, 20);
    qt_tests::PlaceAt(panel, 0, 30, 100, 100);
    qt_tests::PlaceAt(under, 0, 10, 50, 20);
    qt_tests::PlaceAt(page, 0, 30, 300, 200);
    qt_tests::PlaceAt(after, 0, 250, 50, 20);
    panel.Add(under);
    qt_tests::Desk desk(before, panel, page, after);
    const Qt::FocusPolicy policy = desk.Find(under)->focusPolicy();
    desk.Find(before)->setFocus();

    QTest::keyClick(desk.Find(before), Qt::Key_Tab);
    const bool passed = desk.Find(after)->hasFocus();
    const bool as_it_was = desk.Find(under)->focusPolicy() == policy;
    page.SetVisible(false);
    desk.screen.CatchUp();
    desk.Find(before)->setFocus();
    QTest::keyClick(desk.Find(before), Qt::Key_Tab);

    EXPECT_TRUE(passed);
    EXPECT_TRUE(as_it_was);
    EXPECT_TRUE(desk.Find(under)->hasFocus());
}

TEST(TabOrder, AControlThatCameLaterIsReachedWhereItIs) {
    controls::TextBox left("txtLeft");
    controls::TextBox right("txtRight");
    controls::TextBox middle("txtMiddle");
    qt_tests::PlaceAt(left, 0, 0, 50, 20);
    qt_tests::PlaceAt(right, 200, 0, 50, 20);
    qt_tests::PlaceAt(middle, 100, 0, 50, 20);
    qt_tests::Desk desk(left, right);
    desk.form.Add(middle);
    desk.screen.CatchUp();
    desk.Find(left)->setFocus();

    QTest::keyClick(desk.Find(left), Qt::Key_Tab);
    const bool went_to_middle = desk.Find(middle)->hasFocus();
    QTest::keyClick(desk.Find(middle), Qt::Key_Tab);

    EXPECT_TRUE(went_to_middle);
    EXPECT_TRUE(desk.Find(right)->hasFocus());
}

TEST(TabOrder, AMemberThatIsLoadedLaterIsAButtonByItsClaims) {
    controls::ControlArray<controls::Image> faces("tabtab");
    qt_tests::PlaceAt(faces(0), 0, 0, 50, 20);
    qt_tests::Desk desk(faces(0));
    controls::EventClaims claims;

    controls::Image& face =
        faces.Load(1, [&claims](controls::Image& member) { claims.Claim(member.MouseUp, [] {}); });
    face.SetVisible(true);
    desk.screen.CatchUp();

    EXPECT_EQ(QAccessible::queryAccessibleInterface(desk.Find(face))->role(), QAccessible::Button);
    EXPECT_EQ(desk.Find(face)->focusPolicy(), Qt::TabFocus);
}

}  // namespace
