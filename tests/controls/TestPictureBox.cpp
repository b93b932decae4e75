#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

#include "controls/Label.h"
#include "controls/PictureBox.h"
#include "controls/RecordingObserver.h"

namespace controls {
namespace {

class PictureBoxTest : public testing::Test {
protected:
    PictureBoxTest() {
        box_.Move(0, 0, 3000, 150);
        box_.Add(marker_);
        marker_.Move(600, 15, 150, 120);
    }
    double PixelsFromLeft(const Control& child) const {
        return child.Left() * box_.Width() / box_.ScaleWidth() / kTwipsPerPixel;
    }

    PictureBox box_{"picSongProgress"};
    Label marker_{"lblStartFade"};
};

TEST_F(PictureBoxTest, CountsInTwipsUntilAScaleIsSet) {
    EXPECT_EQ(box_.ScaleWidth(), 3000);
    EXPECT_FALSE(box_.HasOwnScale());

    box_.SetWidth(6000);
    EXPECT_EQ(box_.ScaleWidth(), 6000);
}

TEST_F(PictureBoxTest, ANewScaleLeavesChildrenWhereTheyAre) {
    const double before = PixelsFromLeft(marker_);

    EXPECT_TRUE(box_.SetScaleWidth(300));

    EXPECT_EQ(marker_.Left(), 60);
    EXPECT_EQ(marker_.Width(), 15);
    EXPECT_EQ(marker_.Top(), 15);
    EXPECT_EQ(marker_.Height(), 120);
    EXPECT_DOUBLE_EQ(PixelsFromLeft(marker_), before);
}

TEST_F(PictureBoxTest, AScaleStaysWhenTheWidthChanges) {
    box_.SetScaleWidth(300);

    box_.SetWidth(6000);

    EXPECT_EQ(box_.ScaleWidth(), 300);
    EXPECT_EQ(marker_.Left(), 60);
}

TEST_F(PictureBoxTest, AScaleThatIsNoneIsRefused) {
    box_.SetScaleWidth(300);

    for (const double units : {0.0, -1.0, std::nan(""), std::numeric_limits<double>::infinity()}) {
        EXPECT_FALSE(box_.SetScaleWidth(units));
    }

    EXPECT_EQ(box_.ScaleWidth(), 300);
    EXPECT_EQ(marker_.Left(), 60);
}

TEST_F(PictureBoxTest, AnEqualScaleIsNotTold) {
    RecordingObserver screen;
    box_.SetScaleWidth(300);
    box_.SetObserver(&screen);

    EXPECT_TRUE(box_.SetScaleWidth(300));
    EXPECT_TRUE(screen.Told.empty());
    EXPECT_TRUE(box_.SetScaleWidth(600));

    EXPECT_EQ(screen.Told, std::vector<Property>{Property::Scale});
}

TEST_F(PictureBoxTest, ABoxWithoutAWidthCanHaveAScale) {
    PictureBox empty("picEmpty");
    Label child("a");
    empty.Add(child);
    child.Move(5, 0, 10, 0);

    EXPECT_TRUE(empty.SetScaleWidth(100));

    EXPECT_EQ(child.Left(), 5);
}

}  // namespace
}  // namespace controls
