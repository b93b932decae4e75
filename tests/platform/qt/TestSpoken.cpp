#include <gtest/gtest.h>

#include <QAccessible>
#include <QTest>

#include "controls/ComboBox.h"
#include "controls/Frame.h"
#include "controls/Image.h"
#include "controls/Label.h"
#include "controls/Line.h"
#include "platform/qt/QtBench.h"

namespace {

QAccessibleInterface& Heard(QWidget* widget) {
    return *QAccessible::queryAccessibleInterface(widget);
}

TEST(Spoken, ATabSaysThatItIsOneAndWhetherItIsInFront) {
    controls::Image front("imgMusicTab");
    controls::Image other("tabtab");
    controls::EventClaims claims;
    for (controls::Image* face : {&front, &other}) {
        claims.Claim(face->MouseUp, [] {});
        qt_tests::PlaceAt(*face, face == &front ? 0 : 100, 0, 100, 20);
    }
    front.SetPicture("/images/musictab_pale.bmp");
    other.SetPicture("\\images\\dark.bmp");
    const qt_tests::Desk desk(front, other);

    EXPECT_EQ(Heard(desk.Find(front)).role(), QAccessible::PageTab);
    EXPECT_TRUE(Heard(desk.Find(front)).state().selected);
    EXPECT_EQ(Heard(desk.Find(other)).role(), QAccessible::PageTab);
    EXPECT_FALSE(Heard(desk.Find(other)).state().selected);
}

TEST(Spoken, ArrowsGoFromTabToTab) {
    controls::Image faces[] = {controls::Image("tabA"), controls::Image("tabB"), controls::Image("tabC")};
    controls::EventClaims claims;
    for (int i = 0; i < 3; ++i) {
        claims.Claim(faces[i].MouseUp, [] {});
        faces[i].SetPicture("\\images\\dark.bmp");
        qt_tests::PlaceAt(faces[i], 100 * i, 0, 100, 20);
    }
    faces[1].SetVisible(false);
    const qt_tests::Desk desk(faces[0], faces[1], faces[2]);
    desk.Find(faces[0])->setFocus();

    QTest::keyClick(desk.Find(faces[0]), Qt::Key_Right);
    const bool went = desk.Find(faces[2])->hasFocus();
    QTest::keyClick(desk.Find(faces[2]), Qt::Key_Right);
    const bool stayed = desk.Find(faces[2])->hasFocus();
    QTest::keyClick(desk.Find(faces[2]), Qt::Key_Left);

    EXPECT_TRUE(went);
    EXPECT_TRUE(stayed);
    EXPECT_TRUE(desk.Find(faces[0])->hasFocus());
}

TEST(Spoken, ABoxToChooseFromHasItsNameAndWhatIsInIt) {
    controls::ComboBox combo("cmbType", controls::ComboStyle::DropDownList);
    combo.SetAccessibleName("What the address box does");
    combo.SetHint("Web");
    combo.AddItem("Search");
    qt_tests::PlaceAt(combo, 0, 0, 100, 24);
    qt_tests::Desk desk(combo);
    QAccessibleInterface& heard = Heard(desk.Find(combo));

    const QString hint = heard.text(QAccessible::Description);
    combo.SetListIndex(0);
    desk.screen.CatchUp();

    EXPECT_EQ(heard.role(), QAccessible::ComboBox);
    EXPECT_EQ(heard.text(QAccessible::Name), QStringLiteral("What the address box does"));
    EXPECT_EQ(hint, QStringLiteral("Web"));
    ASSERT_EQ(heard.childCount(), 1);
    EXPECT_EQ(heard.child(0)->role(), QAccessible::List);
    EXPECT_EQ(heard.indexOfChild(heard.child(0)), 0);
    EXPECT_EQ(heard.text(QAccessible::Description), QStringLiteral("Search"));
}

TEST(Spoken, WhatIsOnlyLookedAtIsKeptFromScreenReaders) {
    controls::Image ground("imgBG");
    controls::Image plain("imgStop");
    controls::Image bright("imgStopOver");
    controls::Line line("linA");
    controls::EventClaims claims;
    claims.Claim(bright.Click, [] {});
    const qt_tests::Desk desk(ground, plain, bright, line);

    EXPECT_TRUE(Heard(desk.Find(ground)).state().invisible);
    EXPECT_TRUE(Heard(desk.Find(bright)).state().invisible);
    EXPECT_TRUE(Heard(desk.Find(line)).state().invisible);
    EXPECT_FALSE(Heard(desk.Find(plain)).state().invisible);
    EXPECT_EQ(Heard(desk.Find(plain)).role(), QAccessible::Button);
}

TEST(Spoken, WindowsAndPanelsSayWhatTheyAre) {
    controls::Frame panel("fraA");
    panel.SetAccessibleName("Player");
    qt_tests::Desk desk(panel);

    EXPECT_EQ(Heard(desk.screen.WindowOf(desk.form)).role(), QAccessible::Window);
    EXPECT_EQ(Heard(desk.screen.WindowOf(desk.form)).text(QAccessible::Name), QStringLiteral("Test"));
    EXPECT_EQ(Heard(desk.Find(panel)).role(), QAccessible::Grouping);
}

TEST(Spoken, TheMenuKeyIsTheRightButtonOfTheKeyboard) {
    controls::Image face("tabtab");
    controls::EventClaims claims;
    std::string pressed;
    claims.Claim(face.MouseUp,
                 [&pressed](int button, int, double, double) { pressed += std::to_string(button); });
    const qt_tests::Desk desk(face);
    desk.Find(face)->setFocus();

    QTest::keyClick(desk.Find(face), Qt::Key_Menu);
    QTest::keyClick(desk.Find(face), Qt::Key_F10, Qt::ShiftModifier);
    QTest::keyClick(desk.Find(face), Qt::Key_Space);

    EXPECT_EQ(pressed, "221");
}

}  // namespace
