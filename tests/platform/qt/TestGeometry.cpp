#include <gtest/gtest.h>

#include "controls/Form.h"
#include "controls/Frame.h"
#include "controls/Label.h"
#include "controls/PictureBox.h"
#include "platform/qt/Geometry.h"

namespace {

TEST(Geometry, NeighboursInTwipsAreNeighboursInPixels) {
    controls::Frame frame("fraA");
    controls::PictureBox left("picLeft");
    controls::PictureBox right("picRight");
    frame.Add(left, right);
    left.Move(7, 0, 100, 100);
    right.Move(107, 0, 100, 100);

    const QRect first = qt::PixelRect(left);
    const QRect second = qt::PixelRect(right);

    EXPECT_EQ(first.x() + first.width(), second.x());
}

TEST(Geometry, ChildrenOfAScaledBoxArePlacedInItsUnitsAcrossAndInTwipsDown) {
    controls::PictureBox bar("picSongProgress");
    controls::PictureBox marker("picMarker");
    bar.Move(0, 0, 600 * 15, 20 * 15);
    bar.Add(marker);
    bar.SetScaleWidth(300);
    marker.Move(100, 30, 4, 150);

    EXPECT_EQ(qt::PixelRect(marker), QRect(200, 2, 8, 10));
}

TEST(Geometry, AMarkerThatIsALineIsAsWideAsAGripAroundItsPlaceAndInsideItsBar) {
    controls::PictureBox bar("picSongProgress");
    controls::Label marker("lblProgress");
    marker.SetLook("marker");
    bar.Move(0, 0, 600 * 15, 20 * 15);
    bar.Add(marker);
    bar.SetScaleWidth(300);
    marker.Move(100, 0, 0.5, 300);
    const QRect amid = qt::PixelRect(marker);

    marker.SetLeft(299.5);

    EXPECT_EQ(amid, QRect(196, 0, 8, 20));
    EXPECT_EQ(qt::PixelRect(marker), QRect(592, 0, 8, 20));
}

TEST(Geometry, APointInAScaledBoxIsToldInItsUnits) {
    controls::PictureBox bar("picSongProgress");
    bar.Move(0, 0, 600 * 15, 20 * 15);
    bar.SetScaleWidth(300);

    const QPointF at = qt::InScaleOf(bar, QPointF(150, 4));

    EXPECT_DOUBLE_EQ(at.x(), 75);
    EXPECT_DOUBLE_EQ(at.y(), 60);
}

TEST(Geometry, APlaceThatIsNoNumberIsTheOrigin) {
    controls::PictureBox bar("picA");
    bar.Move(std::nan(""), 0, 150, 150);

    EXPECT_EQ(qt::PixelRect(bar).x(), 0);
}

TEST(Geometry, TheFrameStandsAroundContentAndMenuBar) {
    controls::Form form("frmA", "A");
    form.Move(150, 300, 3000, 1500);

    EXPECT_EQ(qt::ClientRect(form), QRect(12, 44, 196, 74));
}

TEST(Geometry, AWindowWithoutBorderIsAllContent) {
    controls::Form form("frmA", "A", controls::BorderStyle::None);
    form.Move(150, 300, 3000, 1500);

    EXPECT_EQ(qt::ClientRect(form), QRect(10, 20, 200, 100));
}

TEST(Geometry, TakingAPlaceBackGivesTheSamePlace) {
    controls::Form form("frmA", "A");

    const bool moved = qt::TakeClientRect(form, QRect(12, 44, 196, 74));
    const bool moved_again = qt::TakeClientRect(form, QRect(12, 44, 196, 74));

    EXPECT_TRUE(moved);
    EXPECT_FALSE(moved_again);
    EXPECT_EQ(form.Left(), 150);
    EXPECT_EQ(form.Top(), 300);
    EXPECT_EQ(form.Width(), 3000);
    EXPECT_EQ(form.Height(), 1500);
}

TEST(Geometry, AWindowBetweenTwoPixelsIsNotMovedByItsOwnRounding) {
    controls::Form form("frmA", "A");
    form.Move(151, 303, 3001, 1502);

    EXPECT_FALSE(qt::TakeClientRect(form, qt::ClientRect(form)));
}

}  // namespace
