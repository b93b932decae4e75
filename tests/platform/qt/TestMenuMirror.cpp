#include <gtest/gtest.h>

#include <QHelpEvent>
#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <QToolTip>

#include "controls/Menu.h"
#include "platform/qt/QtBench.h"

namespace {

class MenuMirrorTest : public testing::Test {
protected:
    MenuMirrorTest() {
        special_.AddEntry(mood_);
        file_.AddEntry(open_);
        file_.AddEntry(separator_);
        file_.AddEntry(special_);
    }
    ~MenuMirrorTest() override { claims_.Release(); }

    void Show(qt_tests::Desk& desk) {
        desk.form.SetMenuBar({&file_});
        desk.screen.CatchUp();
        menu_ = desk.screen.WindowOf(desk.form)->findChild<QMenuBar*>()->actions().at(0)->menu();
    }

    controls::Menu file_{"mnuFile", "File"};
    controls::Menu open_{"mnuOpen", "Open"};
    controls::Menu separator_{"mnuSep1", "-"};
    controls::Menu special_{"mnuSpecial", "Special"};
    controls::Menu mood_{"mnuMood", "Mood"};
    controls::Menu late_{"mnuLate", "Late"};
    controls::EventClaims claims_;
    QMenu* menu_ = nullptr;
};

TEST_F(MenuMirrorTest, AnEntrysToolTipShowsOverIt) {
    qt_tests::Desk desk;
    open_.SetToolTipText("Be careful");
    Show(desk);
    menu_->popup(QPoint(50, 50));

    QHelpEvent pointing(QEvent::ToolTip, menu_->actionGeometry(menu_->actions().at(0)).center(),
                        menu_->mapToGlobal(menu_->actionGeometry(menu_->actions().at(0)).center()));
    QCoreApplication::sendEvent(menu_, &pointing);

    EXPECT_EQ(QToolTip::text(), "Be careful");
    menu_->close();
    QToolTip::hideText();
}

TEST_F(MenuMirrorTest, TheTreeIsShownInOrder) {
    qt_tests::Desk desk;
    Show(desk);

    ASSERT_EQ(menu_->actions().size(), 3);
    EXPECT_EQ(menu_->actions()[0]->text(), "Open");
    EXPECT_TRUE(menu_->actions()[1]->isSeparator());
    EXPECT_EQ(menu_->actions()[2]->menu()->actions()[0]->text(), "Mood");
}

TEST_F(MenuMirrorTest, AChosenEntryRaisesClick) {
    int clicks = 0;
    claims_.Claim(open_.Click, [&clicks] { ++clicks; });
    qt_tests::Desk desk;
    Show(desk);

    menu_->actions()[0]->trigger();

    EXPECT_EQ(clicks, 1);
}

TEST_F(MenuMirrorTest, MarksCaptionsAndStatesFollowTheEntry) {
    qt_tests::Desk desk;
    Show(desk);

    open_.SetChecked(true);
    open_.SetCaption("Open it");
    open_.SetEnabled(false);
    special_.SetVisible(false);
    desk.screen.CatchUp();

    EXPECT_TRUE(menu_->actions()[0]->isChecked());
    EXPECT_EQ(menu_->actions()[0]->text(), "Open it");
    EXPECT_FALSE(menu_->actions()[0]->isEnabled());
    EXPECT_FALSE(menu_->actions()[2]->isVisible());
}

TEST_F(MenuMirrorTest, ChoosingDoesNotTurnTheMarkByItself) {
    open_.SetChecked(true);
    qt_tests::Desk desk;
    Show(desk);

    menu_->actions()[0]->trigger();

    EXPECT_TRUE(open_.Checked());
    EXPECT_TRUE(menu_->actions()[0]->isChecked());
}

TEST_F(MenuMirrorTest, AnEntryAddedLaterComesIntoItsPlace) {
    qt_tests::Desk desk;
    Show(desk);

    file_.AddEntry(late_, 1);
    desk.screen.CatchUp();

    EXPECT_EQ(menu_->actions()[1]->text(), "Late");
    EXPECT_EQ(menu_->actions().size(), 4);
}

TEST_F(MenuMirrorTest, AMenuPopsUpAtThePointer) {
    qt_tests::Desk desk;
    Show(desk);

    desk.form.PopupMenu(file_);
    desk.screen.CatchUp();

    EXPECT_TRUE(qt_tests::WaitFor([this] { return menu_->isVisible(); }));
    menu_->close();
}

TEST_F(MenuMirrorTest, AMenuThatIsInNoBarPopsUpToo) {
    qt_tests::Desk desk;

    desk.form.PopupMenu(special_);
    desk.screen.CatchUp();

    auto* popup = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(popup, nullptr);
    EXPECT_EQ(popup->actions()[0]->text(), "Mood");
    popup->close();
}

}  // namespace
