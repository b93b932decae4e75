#include <gtest/gtest.h>

#include "platform/qt/DesktopWindows.h"
#include "platform/qt/QtBench.h"

namespace {

using ports::RegionCombine;

TEST(DesktopWindows, TheRectangleOfAVideoSurfaceIsWhereItStandsOnTheScreen) {
    controls::PictureBox video("picVid");
    video.SetLook("video");
    bench::PlaceAt(video, 10, 20, 100, 50);
    const bench::Desk desk(video);
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

TEST(WindowRegions, AHoleIsCutWhereItWasMeant) {
    bench::Desk desk;
    qt::WindowRegions regions(desk.screen, desk.form);
    const int whole = regions.CreateRectRgn(0, 0, 404, 326);
    const int hole = regions.CreateRectRgn(52, 74, 152, 124);

    ASSERT_TRUE(regions.CombineRgn(whole, whole, hole, RegionCombine::Difference));
    ASSERT_TRUE(regions.SetWindowRgn(whole, true));
    desk.screen.CatchUp();

    // The border of 2 and the title of 24 pixels are outside of the widget.
    const QRegion mask = desk.screen.WindowOf(desk.form)->mask();
    EXPECT_TRUE(mask.contains(QPoint(49, 49)));
    EXPECT_FALSE(mask.contains(QPoint(50, 50)));
    EXPECT_FALSE(mask.contains(QPoint(149, 99)));
    EXPECT_TRUE(mask.contains(QPoint(150, 100)));
}

TEST(WindowRegions, AnEmptyHoleMakesTheWindowWholeAgain) {
    bench::Desk desk;
    qt::WindowRegions regions(desk.screen, desk.form);
    ASSERT_TRUE(regions.SetWindowRgn(regions.CreateEllipticRgn(0, 0, 100, 100), true));
    desk.screen.CatchUp();
    ASSERT_FALSE(desk.screen.WindowOf(desk.form)->mask().isEmpty());
    const int whole = regions.CreateRectRgn(0, 0, 404, 326);
    const int nothing = regions.CreateRectRgn(0, 0, 0, 0);

    ASSERT_TRUE(regions.CombineRgn(whole, whole, nothing, RegionCombine::Difference));
    ASSERT_TRUE(regions.SetWindowRgn(whole, true));
    desk.screen.CatchUp();

    EXPECT_TRUE(desk.screen.WindowOf(desk.form)->mask().isEmpty());
}

TEST(WindowRegions, AHoleThatIsClosedAndCutAnewInOneHandlerIsNeverClosedOnTheScreen) {
    bench::Desk desk;
    qt::WindowRegions regions(desk.screen, desk.form);
    const QRegion before(10, 10, 100, 100);
    desk.screen.WindowOf(desk.form)->setMask(before);

    ASSERT_TRUE(regions.SetWindowRgn(regions.CreateRectRgn(0, 0, 404, 326), true));
    const QRegion between = desk.screen.WindowOf(desk.form)->mask();
    ASSERT_TRUE(regions.SetWindowRgn(regions.CreateRectRgn(2, 24, 52, 74), true));
    desk.screen.CatchUp();

    EXPECT_EQ(between, before);
    EXPECT_EQ(desk.screen.WindowOf(desk.form)->mask(), QRegion(0, 0, 50, 50));
}

TEST(WindowRegions, ARoundedHoleLeavesTheCorners) {
    bench::Desk desk;
    qt::WindowRegions regions(desk.screen, desk.form);
    const int whole = regions.CreateRectRgn(0, 0, 404, 326);
    const int hole = regions.CreateRoundRectRgn(52, 74, 152, 174, 50, 50);

    ASSERT_TRUE(regions.CombineRgn(whole, whole, hole, RegionCombine::Difference));
    ASSERT_TRUE(regions.SetWindowRgn(whole, false));
    desk.screen.CatchUp();

    const QRegion mask = desk.screen.WindowOf(desk.form)->mask();
    EXPECT_TRUE(mask.contains(QPoint(51, 51)));
    EXPECT_FALSE(mask.contains(QPoint(100, 100)));
}

TEST(WindowRegions, ARegionGivenToTheWindowIsUsedUp) {
    bench::Desk desk;
    qt::WindowRegions regions(desk.screen, desk.form);
    const int region = regions.CreateRectRgn(0, 0, 404, 326);

    EXPECT_TRUE(regions.SetWindowRgn(region, true));
    EXPECT_FALSE(regions.SetWindowRgn(region, true));
}

}  // namespace
