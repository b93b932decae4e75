#include <gtest/gtest.h>

#include "fakes/FakeDialogs.h"
#include "fakes/RecordingRegions.h"
#include "window/HoleRoom.h"

namespace {

class HoleRoomTest : public testing::Test {
protected:
    HoleRoomTest() {
        window.Move(0, 0, 9225, 7590);
        picVideo.Move(150, 300, 1500, 750);
    }

    controls::Form window{"frmBrowser", "Brindlepost"};
    controls::PictureBox picVideo{"picVideo"};
    fakes::RecordingRegions regions;
    fakes::FakeDialogs dialogs;
    window::HoleRoom room{window, picVideo, regions, dialogs};
};

using Calls = std::vector<std::string>;

TEST_F(HoleRoomTest, MakeHoleCutsTheVideoPaneOutOfTheWholeWindow) {
    room.MakeHole();

    EXPECT_EQ(regions.Calls, (Calls{"1 = rect 12 72 112 120 0 0", "2 = rect 0 0 615 506 0 0",
                                    "combine 2 2 1 4", "set 2 redraw"}));
}

TEST_F(HoleRoomTest, CloseHoleCutsAnEmptyHole) {
    room.CloseHole();

    EXPECT_EQ(regions.Calls,
              (Calls{"1 = rect 0 0 0 0 0 0", "2 = rect 0 0 615 506 0 0", "combine 2 2 1 4", "set 2 redraw"}));
}

TEST_F(HoleRoomTest, EveryShapeNameMakesItsOwnRegion) {
    const window::ShapeCoordinates box{{10, 20, 30, 40, 5, 6}};

    EXPECT_TRUE(room.ShapeWindow("RectAngle", box));
    EXPECT_TRUE(room.ShapeWindow("Elliptic", box));
    EXPECT_TRUE(room.ShapeWindow("RoundRect", box));
    EXPECT_TRUE(room.ShapeWindow("Circle", box));

    EXPECT_EQ(regions.Calls[0], "1 = rect 10 20 30 40 0 0");
    EXPECT_EQ(regions.Calls[4], "3 = elliptic 10 20 30 40 0 0");
    EXPECT_EQ(regions.Calls[8], "5 = roundrect 10 20 30 40 5 6");
    EXPECT_EQ(regions.Calls[12], "7 = roundrect 10 20 30 40 30 40");
}

TEST_F(HoleRoomTest, AnUnknownShapeShowsItsBoxAndLeavesTheWindowAlone) {
    const bool done = room.ShapeWindow("Triangle", {});

    EXPECT_FALSE(done);
    EXPECT_TRUE(regions.Calls.empty());
    ASSERT_EQ(dialogs.Boxes.size(), 1U);
    EXPECT_EQ(dialogs.Boxes[0].text, "Unknown Shape!!");
    EXPECT_EQ(dialogs.Boxes[0].buttons, ports::BoxButtons::Ok);
    EXPECT_EQ(dialogs.Boxes[0].icon, ports::BoxIcon::None);
}

TEST_F(HoleRoomTest, ShapeNamesAreToldApartByCase) {
    EXPECT_FALSE(room.ShapeWindow("rectangle", {}));
}

}  // namespace
