#include <gtest/gtest.h>

#include <QComboBox>
#include <QDropEvent>
#include <QLineEdit>
#include <QListView>
#include <QMimeData>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

#include "controls/ComboBox.h"
#include "controls/Label.h"
#include "controls/ListBox.h"
#include "controls/TextBox.h"
#include "platform/qt/QtBench.h"
#include "platform/qt/Skin.h"

namespace {

class ListMirrorTest : public testing::Test {
protected:
    ListMirrorTest() {
        qt_tests::PlaceAt(list_, 0, 0, 200, 120);
        for (const char* row : {"Amber", "Birch", "Cedar", "Dusk"})
            list_.AddItem(row);
    }
    void Listen() {
        claims_.Claim(list_.Click, [this] { clicks_.emplace_back(list_.Text()); });
        claims_.Claim(list_.DblClick, [this] { doubles_.emplace_back(list_.Text()); });
    }

    controls::ListBox list_{"lstA"};
    std::vector<std::string> clicks_;
    std::vector<std::string> doubles_;
    controls::EventClaims claims_;
};

QWidget* Rows(const qt_tests::Desk& desk, const controls::ListBox& list) {
    return desk.Find<QListView>(list)->viewport();
}

TEST_F(ListMirrorTest, RowsAreShownAsTheyAre) {
    qt_tests::Desk desk(list_);

    list_.AddItem("Elm");
    list_.RemoveItem(0);
    desk.screen.CatchUp();

    const QAbstractItemModel* model = desk.Find<QListView>(list_)->model();
    ASSERT_EQ(model->rowCount(), 4);
    EXPECT_EQ(model->index(0, 0).data().toString(), "Birch");
    EXPECT_EQ(model->index(3, 0).data().toString(), "Elm");
}

TEST_F(ListMirrorTest, APressOnARowSelectsItAndRaisesClick) {
    Listen();
    const qt_tests::Desk desk(list_);

    QTest::mouseClick(Rows(desk, list_), Qt::LeftButton, Qt::NoModifier, QPoint(20, 60));

    EXPECT_EQ(list_.ListIndex(), 2);
    EXPECT_EQ(clicks_, std::vector<std::string>{"Cedar"});
}

TEST_F(ListMirrorTest, APressOnTheSelectedRowRaisesClickAgain) {
    Listen();
    const qt_tests::Desk desk(list_);

    for (int i = 0; i < 2; ++i) {
        QTest::mousePress(Rows(desk, list_), Qt::LeftButton, Qt::NoModifier, QPoint(20, 60));
        QTest::mouseRelease(Rows(desk, list_), Qt::LeftButton, Qt::NoModifier, QPoint(20, 60));
    }

    EXPECT_EQ(clicks_.size() + doubles_.size(), 2U);
}

TEST_F(ListMirrorTest, APressBelowTheLastRowAndTheRightButtonSelectNothing) {
    Listen();
    const qt_tests::Desk desk(list_);

    QTest::mouseClick(Rows(desk, list_), Qt::LeftButton, Qt::NoModifier, QPoint(20, 110));
    QTest::mouseClick(Rows(desk, list_), Qt::RightButton, Qt::NoModifier, QPoint(20, 60));

    EXPECT_EQ(list_.ListIndex(), -1);
    EXPECT_TRUE(clicks_.empty());
}

TEST_F(ListMirrorTest, AnAssignedRowIsShownAsChosenAndBroughtIntoView) {
    for (int i = 0; i < 100; ++i)
        list_.AddItem("Row");
    qt_tests::Desk desk(list_);

    list_.SetListIndex(50);
    desk.screen.CatchUp();

    auto* view = desk.Find<QListView>(list_);
    EXPECT_EQ(view->currentIndex().row(), 50);
    EXPECT_TRUE(view->selectionModel()->isSelected(view->model()->index(50, 0)));
    EXPECT_TRUE(view->viewport()->rect().contains(view->visualRect(view->currentIndex())));
}

TEST_F(ListMirrorTest, ArrowKeysSelectAndRaiseClick) {
    Listen();
    qt_tests::Desk desk(list_);
    list_.SetFocus();
    desk.screen.CatchUp();

    QTest::keyClick(desk.Find(list_), Qt::Key_Down);
    QTest::keyClick(desk.Find(list_), Qt::Key_Down);
    QTest::keyClick(desk.Find(list_), Qt::Key_End);
    QTest::keyClick(desk.Find(list_), Qt::Key_Up);

    EXPECT_EQ(clicks_, (std::vector<std::string>{"Amber", "Birch", "Dusk", "Cedar"}));
}

TEST_F(ListMirrorTest, TypingLettersGoesToTheRowThatBeginsSo) {
    Listen();
    qt_tests::Desk desk(list_);
    list_.SetFocus();
    desk.screen.CatchUp();

    QTest::keyClicks(desk.Find(list_), "du");

    EXPECT_EQ(list_.Text(), "Dusk");
}

TEST_F(ListMirrorTest, ADoubleClickAndEnterRaiseDblClick) {
    Listen();
    qt_tests::Desk desk(list_);
    list_.SetListIndex(1);
    list_.SetFocus();
    desk.screen.CatchUp();

    QTest::mouseDClick(Rows(desk, list_), Qt::LeftButton, Qt::NoModifier, QPoint(20, 30));
    QTest::keyClick(desk.Find(list_), Qt::Key_Return);

    EXPECT_EQ(doubles_, (std::vector<std::string>{"Birch", "Birch"}));
}

TEST_F(ListMirrorTest, EnterBelongsToTheKeyHandlerThatDoesSomethingWithIt) {
    Listen();
    controls::Label label("lblA");
    claims_.Claim(list_.KeyDown, [&label](int code, int) {
        if (code == controls::kKeyEnter) label.SetCaption("went");
    });
    qt_tests::Desk desk(list_, label);
    list_.SetListIndex(1);
    list_.SetFocus();
    desk.screen.CatchUp();

    QTest::keyClick(desk.Find(list_), Qt::Key_Return);

    EXPECT_TRUE(doubles_.empty());
}

TEST_F(ListMirrorTest, DeleteComesAsAKey) {
    int code = 0;
    claims_.Claim(list_.KeyDown, [&code](int key, int) { code = key; });
    qt_tests::Desk desk(list_);
    list_.SetFocus();
    desk.screen.CatchUp();

    QTest::keyClick(desk.Find(list_), Qt::Key_Delete);

    EXPECT_EQ(code, controls::kKeyDelete);
}

TEST_F(ListMirrorTest, AMillionRowsAddedTouchTheScreenOnce) {
    qt_tests::Desk desk(list_);
    const QSignalSpy refills(desk.Find<QListView>(list_)->model(), &QAbstractItemModel::modelReset);

    for (int i = 0; i < 1'000'000; ++i)
        list_.AddItem("A row");
    desk.screen.CatchUp();

    EXPECT_EQ(refills.count(), 1);
    EXPECT_EQ(desk.Find<QListView>(list_)->model()->rowCount(), 1'000'004);
}

TEST_F(ListMirrorTest, AHiddenListIsShownAsItIsWhenItComesIntoView) {
    list_.SetVisible(false);
    qt_tests::Desk desk(list_);
    list_.AddItem("Elm");
    list_.SetListIndex(4);
    desk.screen.CatchUp();

    list_.SetVisible(true);
    desk.screen.CatchUp();

    const auto* view = desk.Find<QListView>(list_);
    EXPECT_EQ(view->model()->rowCount(), 5);
    EXPECT_EQ(view->currentIndex().row(), 4);
}

TEST(HiddenList, RowsThatComeOneByOneCostTheScreenNothing) {
    controls::ListBox list("lstHidden", controls::Sorted::Yes);
    list.SetVisible(false);
    qt_tests::Desk desk(list);
    const QSignalSpy refills(desk.Find<QListView>(list)->model(), &QAbstractItemModel::modelReset);

    for (int i = 0; i < 100'000; ++i) {
        list.AddItem("Row " + std::to_string(i * 7919 % 100'000));
        if (i % 100 == 0) desk.screen.CatchUp();
    }

    EXPECT_EQ(refills.count(), 0);
    EXPECT_EQ(list.ListCount(), 100'000);
}

void DropTextAt(QWidget* surface, const QPoint& at) {
    QMimeData data;
    data.setText("17");
    QDragEnterEvent enter(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(surface, &enter);
    QDropEvent drop(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(surface, &drop);
}

TEST_F(ListMirrorTest, ADropIsReportedWithItsRowAndPlace) {
    for (int i = 0; i < 100; ++i)
        list_.AddItem("Row");
    double y = 0;
    int row = -1;
    claims_.Claim(list_.OLEDragDrop, [&](const controls::DropData& data, double, double at_y) {
        y = at_y;
        row = data.Row;
    });
    const qt_tests::Desk desk(list_);
    desk.Find<QListView>(list_)->verticalScrollBar()->setValue(240);

    DropTextAt(Rows(desk, list_), QPoint(2, 30));

    EXPECT_TRUE(qt_tests::WaitFor([&] { return row >= 0; }));
    EXPECT_EQ(row, 270 / qt::skin::kRowHeight);
    EXPECT_EQ(y, 270 * 15);
}

TEST_F(ListMirrorTest, ADropBelowTheLastRowIsOnNone) {
    bool dropped = false;
    int row = 0;
    claims_.Claim(list_.OLEDragDrop, [&](const controls::DropData& data, double, double) {
        dropped = true;
        row = data.Row;
    });
    const qt_tests::Desk desk(list_);

    DropTextAt(Rows(desk, list_), QPoint(2, 4 * qt::skin::kRowHeight + 3));

    EXPECT_TRUE(qt_tests::WaitFor([&] { return dropped; }));
    EXPECT_EQ(row, -1);
}

TEST_F(ListMirrorTest, AClickHandlerMayEmptyItsList) {
    claims_.Claim(list_.Click, [this] { list_.Clear(); });
    const qt_tests::Desk desk(list_);

    QTest::mouseClick(Rows(desk, list_), Qt::LeftButton, Qt::NoModifier, QPoint(20, 30));

    EXPECT_EQ(desk.Find<QListView>(list_)->model()->rowCount(), 0);
}

class ComboMirrorTest : public testing::Test {
protected:
    ComboMirrorTest() {
        for (const char* row : {"Web", "Search", "Music"}) {
            list_.AddItem(row);
            free_.AddItem(row);
        }
    }
    controls::ComboBox list_{"cmbType", controls::ComboStyle::DropDownList};
    controls::ComboBox free_{"cmbAddress"};
    controls::EventClaims claims_;
};

TEST_F(ComboMirrorTest, APersonsChoiceSelectsTheRowAndRaisesClick) {
    int clicks = 0;
    claims_.Claim(list_.Click, [&clicks] { ++clicks; });
    qt_tests::Desk desk(list_);
    list_.SetFocus();
    desk.screen.CatchUp();

    QTest::keyClick(desk.Find(list_), Qt::Key_Down);

    EXPECT_EQ(list_.Text(), "Web");
    EXPECT_EQ(clicks, 1);
}

TEST_F(ComboMirrorTest, AnAssignedTextIsShown) {
    qt_tests::Desk desk(list_, free_);

    list_.SetText("Music");
    free_.SetText("http://example.org");
    desk.screen.CatchUp();

    EXPECT_EQ(desk.Find<QComboBox>(list_)->currentText(), "Music");
    EXPECT_EQ(desk.Find<QComboBox>(free_)->currentText(), "http://example.org");
}

TEST_F(ComboMirrorTest, AListWithoutAChoiceShowsItsHint) {
    list_.SetHint("Web");
    const qt_tests::Desk desk(list_);

    const auto* box = desk.Find<QComboBox>(list_);

    EXPECT_EQ(box->currentIndex(), -1);
    EXPECT_EQ(box->placeholderText(), "Web");
    EXPECT_EQ(list_.Text(), "");
}

TEST_F(ComboMirrorTest, TypingIntoAFreeOneChangesItsText) {
    int changes = 0;
    claims_.Claim(free_.Change, [&changes] { ++changes; });
    const qt_tests::Desk desk(free_);

    QTest::keyClicks(desk.Find<QComboBox>(free_)->lineEdit(), "ab");

    EXPECT_EQ(free_.Text(), "ab");
    EXPECT_EQ(changes, 2);
}

TEST_F(ComboMirrorTest, KeysInItsLineComeAsItsKeys) {
    int code = 0;
    claims_.Claim(free_.KeyDown, [&code](int key, int) { code = key; });
    qt_tests::Desk desk(free_);
    desk.Find<QComboBox>(free_)->lineEdit()->setFocus();

    QTest::keyClick(desk.Find<QComboBox>(free_)->lineEdit(), Qt::Key_Return);

    EXPECT_EQ(code, controls::kKeyEnter);
}

TEST_F(ComboMirrorTest, AFreeTextStaysWhenTheRowsGo) {
    qt_tests::Desk desk(free_);
    free_.SetText("typed");

    free_.Clear();
    desk.screen.CatchUp();

    EXPECT_EQ(desk.Find<QComboBox>(free_)->count(), 0);
    EXPECT_EQ(desk.Find<QComboBox>(free_)->currentText(), "typed");
}

TEST(TextMirror, ASignIsAButtonBeforeTheText) {
    controls::TextBox text{"txtAddress"};
    controls::EventClaims claims;
    int clicks = 0;
    claims.Claim(text.SignClick, [&clicks] { ++clicks; });
    text.SetText("https://one/");
    qt_tests::PlaceAt(text, 10, 10, 200, 24);
    qt_tests::Desk desk(text);
    auto* edit = desk.Find<QLineEdit>(text);
    EXPECT_TRUE(edit->actions().isEmpty());

    text.SetSign("lock", "https://one/");
    desk.screen.CatchUp();

    ASSERT_EQ(edit->actions().size(), 1);
    EXPECT_EQ(edit->actions().first()->text(), "The connection is encrypted");
    EXPECT_FALSE(edit->actions().first()->icon().isNull());
    edit->actions().first()->trigger();
    EXPECT_EQ(clicks, 1);

    QTest::keyClicks(edit, "x");
    desk.screen.CatchUp();
    EXPECT_TRUE(edit->actions().isEmpty());
}

TEST(TextMirror, TypingChangesTheTextAndTellsOfIt) {
    controls::TextBox text("txtA");
    int changes = 0;
    controls::EventClaims claims;
    claims.Claim(text.Change, [&changes] { ++changes; });
    const qt_tests::Desk desk(text);

    QTest::keyClicks(desk.Find(text), "hey");

    EXPECT_EQ(text.Text(), "hey");
    EXPECT_EQ(changes, 3);
}

TEST(TextMirror, ALongTextIsShownFromItsBeginning) {
    controls::TextBox text("txtA");
    controls::TextBox other("txtB");
    qt_tests::PlaceAt(text, 0, 0, 100, 24);
    qt_tests::Desk desk(text, other);
    other.SetFocus();
    desk.screen.CatchUp();

    text.SetText(std::string(500, 'x'));
    desk.screen.CatchUp();

    EXPECT_EQ(desk.Find<QLineEdit>(text)->cursorPosition(), 0);
}

TEST(TextMirror, AnAddressHasNoEdgeOfItsOwnInItsBoxButTheRingOfTheFocus) {
    controls::TextBox text("txtAddress");
    controls::TextBox other("txtB");
    text.SetLook("address");
    qt_tests::PlaceAt(text, 0, 0, 100, 24);
    qt_tests::PlaceAt(other, 0, 30, 100, 24);
    qt_tests::Desk desk(text, other);
    desk.Find(other)->setFocus();
    desk.screen.CatchUp();
    const QImage calm = desk.Find(text)->grab().toImage();

    desk.Find(text)->setFocus();
    ASSERT_TRUE(qt_tests::WaitFor([&] { return desk.Find(text)->hasFocus(); }));
    const QImage ringed = desk.Find(text)->grab().toImage();

    EXPECT_EQ(calm.pixel(50, 0), calm.pixel(50, 12));
    EXPECT_NE(ringed.pixel(50, 1), calm.pixel(50, 1));
}

TEST(TextMirror, TypingReplacesAnAddressThatNobodyTyped) {
    controls::TextBox text("txtAddress");
    text.SetLook("address");
    qt_tests::Desk desk(text);
    auto* edit = desk.Find<QLineEdit>(text);
    edit->setFocus();
    QTest::keyClicks(edit, "ab");

    text.SetText("http://one.example/");
    desk.screen.CatchUp();
    QTest::keyClicks(edit, "cd");

    EXPECT_EQ(text.Text(), "cd");
}

TEST(TextMirror, TypingReplacesTheAddressThatWasThereWhenTheFocusCame) {
    controls::TextBox text("txtAddress");
    controls::TextBox other("txtB");
    text.SetLook("address");
    text.SetText("http://one.example/");
    qt_tests::Desk desk(other, text);
    desk.Find(other)->setFocus();

    text.SetFocus();
    desk.screen.CatchUp();
    ASSERT_TRUE(qt_tests::WaitFor([&] { return desk.Find(text)->hasFocus(); }));
    QTest::keyClicks(desk.Find(text), "cd");

    EXPECT_EQ(text.Text(), "cd");
}

TEST(TextMirror, WhatAChangeHandlerMakesOfTheTextIsShown) {
    controls::TextBox text("txtA");
    controls::EventClaims claims;
    claims.Claim(text.Change, [&text] {
        if (text.Text() == "bad") text.SetText("good");
    });
    const qt_tests::Desk desk(text);

    QTest::keyClicks(desk.Find(text), "bad");

    EXPECT_EQ(desk.Find<QLineEdit>(text)->text(), "good");
}

TEST(TextMirror, AHintIsShownAndSpokenAndIsNoText) {
    controls::TextBox text("txtA");
    text.SetHint("Type here");
    const qt_tests::Desk desk(text);

    EXPECT_EQ(desk.Find<QLineEdit>(text)->placeholderText(), "Type here");
    EXPECT_EQ(desk.Find(text)->accessibleName(), "Type here");
    EXPECT_EQ(desk.Find<QLineEdit>(text)->text(), "");
}

TEST(TextMirror, APasswordIsShownAsDots) {
    controls::TextBox text("txtPassword");
    text.SetPassword(true);
    const qt_tests::Desk desk(text);

    EXPECT_EQ(desk.Find<QLineEdit>(text)->echoMode(), QLineEdit::Password);
}

TEST(TextMirror, TheBoxTellsWhenTheKeyboardGoesElsewhere) {
    controls::TextBox text("txtA");
    controls::TextBox other("txtB");
    int left = 0;
    controls::EventClaims claims;
    claims.Claim(text.LostFocus, [&left] { ++left; });
    const qt_tests::Desk desk(text, other);
    desk.Find(text)->setFocus();

    desk.Find(other)->setFocus();

    EXPECT_EQ(left, 1);
}

TEST(TextMirror, AskedForAgainAnAddressIsSelectedThoughTheKeyboardIsThere) {
    controls::TextBox text("txtAddress");
    text.SetLook("address");
    text.SetText("http://one.example/");
    qt_tests::Desk desk(text);
    desk.Find(text)->setFocus();
    desk.Find<QLineEdit>(text)->deselect();

    text.SetFocus();
    desk.screen.CatchUp();

    EXPECT_EQ(desk.Find<QLineEdit>(text)->selectedText(), "http://one.example/");
}

TEST_F(ListMirrorTest, AListThatBelongsToABoxLeavesTheKeyboardThere) {
    list_.SetLook("popup");
    controls::TextBox text("txtA");
    qt_tests::PlaceAt(text, 0, 150, 100, 20);
    const qt_tests::Desk desk(list_, text);
    desk.Find(text)->setFocus();

    QTest::mouseClick(desk.Find<QListView>(list_)->viewport(), Qt::LeftButton, {}, QPoint(10, 30));

    EXPECT_EQ(list_.Text(), "Birch");
    EXPECT_TRUE(desk.Find(text)->hasFocus());
}

}  // namespace
