#include <gtest/gtest.h>

#include "controls/PictureBox.h"
#include "platform/qt/DesktopWindows.h"
#include "platform/qt/QtBench.h"

namespace {

ports::Hole SquareHole(int left, int top, int size) {
    return {.box = {.left = left, .top = top, .right = left + size, .bottom = top + size}};
}

TEST(DesktopWindows, TheRectangleOfAVideoSurfaceIsWhereItStandsOnTheScreen) {
    controls::PictureBox video("picVid");
    video.SetLook("video");
    qt_tests::PlaceAt(video, 10, 20, 100, 50);
    const qt_tests::Desk desk(video);
    ports::WindowRect rect;

    const bool known = qt::DesktopWindows().GetWindowRect(video.Handle(), rect);

    ASSERT_TRUE(known);
    const QPoint corner = desk.Find(video)->mapToGlobal(QPoint(0, 0));
    EXPECT_EQ(rect.left, corner.x());
    EXPECT_EQ(rect.top, corner.y());
    EXPECT_EQ(rect.right - rect.left, 100);
    EXPECT_EQ(rect.bottom - rect.top, 50);
}

TEST(DesktopWindows, AnUnknownHandleLeavesTheRectangleAlone) {
    ports::WindowRect rect{1, 2, 3, 4};

    EXPECT_FALSE(qt::DesktopWindows().GetWindowRect(0, rect));
    EXPECT_FALSE(qt::DesktopWindows().GetWindowRect(987654321, rect));
    EXPECT_EQ(rect.bottom, 4);
}

class MainWindowShape : public testing::Test {
protected:
    QRegion Mask() { return desk.screen.WindowOf(desk.form)->mask(); }

    qt_tests::Desk desk;
    qt::MainWindowShape shape{desk.screen, desk.form};
};

TEST_F(MainWindowShape, AHoleIsCutWhereItWasMeant) {
    shape.SetHole(ports::Hole{.box = {.left = 52, .top = 74, .right = 152, .bottom = 124}});
    desk.screen.CatchUp();

    // The border of 2 and the title of 24 pixels are outside of the widget.
    EXPECT_TRUE(Mask().contains(QPoint(49, 49)));
    EXPECT_FALSE(Mask().contains(QPoint(50, 50)));
    EXPECT_FALSE(Mask().contains(QPoint(149, 99)));
    EXPECT_TRUE(Mask().contains(QPoint(150, 100)));
}

TEST_F(MainWindowShape, WithoutAHoleTheWindowHasNoMask) {
    shape.SetHole(SquareHole(50, 50, 100));
    desk.screen.CatchUp();
    ASSERT_FALSE(Mask().isEmpty());

    shape.SetHole(std::nullopt);
    desk.screen.CatchUp();

    EXPECT_TRUE(Mask().isEmpty());
}

TEST_F(MainWindowShape, AnEmptyHoleAndOneOutsideOfTheWindowLeaveItWhole) {
    for (const ports::Hole& hole : {SquareHole(0, 0, 0), SquareHole(5000, 5000, 100)}) {
        shape.SetHole(hole);
        desk.screen.CatchUp();

        EXPECT_TRUE(Mask().isEmpty());
    }
}

TEST_F(MainWindowShape, AHoleThatIsClosedAndCutAgainInOneHandlerIsNeverClosedOnTheScreen) {
    const QRegion before(10, 10, 100, 100);
    desk.screen.WindowOf(desk.form)->setMask(before);

    shape.SetHole(std::nullopt);
    const QRegion between = Mask();
    shape.SetHole(SquareHole(2, 24, 50));
    desk.screen.CatchUp();

    EXPECT_EQ(between, before);
    EXPECT_EQ(Mask(), QRegion(0, 0, 400, 300) - QRegion(0, 0, 50, 50));
}

TEST_F(MainWindowShape, ARoundedHoleLeavesTheCorners) {
    ports::Hole hole = SquareHole(52, 74, 100);
    hole.corner_width = hole.corner_height = 50;

    shape.SetHole(hole);
    desk.screen.CatchUp();

    EXPECT_TRUE(Mask().contains(QPoint(51, 51)));
    EXPECT_FALSE(Mask().contains(QPoint(100, 100)));
    EXPECT_FALSE(Mask().contains(QPoint(60, 60)));
}

TEST_F(MainWindowShape, CornersAsLargeAsTheBoxMakeAnEllipse) {
    ports::Hole hole = SquareHole(52, 74, 100);
    hole.corner_width = hole.corner_height = 100;

    shape.SetHole(hole);
    desk.screen.CatchUp();

    EXPECT_TRUE(Mask().contains(QPoint(60, 60)));
    EXPECT_FALSE(Mask().contains(QPoint(100, 52)));
    EXPECT_FALSE(Mask().contains(QPoint(52, 100)));
}

}  // namespace
