#include <gtest/gtest.h>

#include <QScrollBar>
#include <QTest>

#include "platform/qt/RowsView.h"
#include "platform/qt/Skin.h"

namespace {

class RowsViewTest : public testing::Test {
protected:
    void Fill(int rows) {
        for (int i = 0; i < rows; ++i)
            list_.AddItem("Row " + std::to_string(i));
        view_.resize(200, 122);
        view_.SyncRows();
        view_.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&view_));
    }
    controls::ListBox list_{"lstA"};
    qt::RowsView view_{list_, nullptr};
};

TEST_F(RowsViewTest, RowsAreOfOneHeight) {
    Fill(10);

    EXPECT_EQ(view_.RowAt(0), 0);
    EXPECT_EQ(view_.RowAt(23), 0);
    EXPECT_EQ(view_.RowAt(24), 1);
}

TEST_F(RowsViewTest, BelowTheLastRowThereIsNone) {
    Fill(2);

    EXPECT_EQ(view_.RowAt(48), -1);
    EXPECT_EQ(view_.RowAt(-1), -1);
}

TEST_F(RowsViewTest, TheBarReachesExactlyToTheLastRow) {
    Fill(1000);

    view_.verticalScrollBar()->setValue(view_.verticalScrollBar()->maximum());

    EXPECT_EQ(view_.RowAt(view_.viewport()->height() - 1), 999);
    EXPECT_EQ(view_.visualRect(view_.model()->index(999, 0)).bottom(), view_.viewport()->height() - 1);
}

TEST_F(RowsViewTest, AShortListHasNothingToScroll) {
    Fill(3);

    EXPECT_EQ(view_.verticalScrollBar()->maximum(), 0);
}

TEST_F(RowsViewTest, OnlyTheRowsInViewAreAskedFor) {
    Fill(100'000);
    view_.ShowChosen(50'000, true);

    const QImage image = view_.grab().toImage();

    EXPECT_FALSE(image.isNull());
    EXPECT_EQ(view_.RowAt(view_.viewport()->height() - 1), 50'000);
}

TEST_F(RowsViewTest, TheChosenRowIsAmber) {
    Fill(3);
    list_.SetListIndex(1);
    view_.ShowChosen(1, true);

    EXPECT_EQ(view_.viewport()->grab().toImage().pixel(150, 36), qt::skin::kAccentDeep);
}

}  // namespace
