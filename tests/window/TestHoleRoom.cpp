#include <gtest/gtest.h>

#include "fakes/FakeDialogs.h"
#include "fakes/NullPlayer.h"
#include "fakes/RecordingWindowShape.h"
#include "window/HoleRoom.h"

namespace {

struct FollowingVideo final : fakes::NullVideoPane {
    void FollowMainWindow() override { ++follows; }
    int follows = 0;
};

class HoleRoomTest : public testing::Test {
protected:
    HoleRoomTest() {
        window.Move(0, 0, 9225, 7590);
        picVideo.Move(150, 300, 1500, 750);
    }

    controls::Form window{"frmBrowser", "Brindlepost"};
    controls::PictureBox picVideo{"picVideo"};
    FollowingVideo video;
    fakes::RecordingWindowShape shape;
    fakes::FakeDialogs dialogs;
    window::HoleRoom room{window, picVideo, video, shape, dialogs};
};

using Holes = std::vector<std::optional<ports::Hole>>;

TEST_F(HoleRoomTest, MakeHoleCutsTheVideoPaneOutOfTheWindow) {
    const ports::Hole pane{.box = {.left = 12, .top = 72, .right = 112, .bottom = 120}};

    room.MakeHole();

    EXPECT_EQ(shape.Holes, Holes{pane});
}

TEST_F(HoleRoomTest, TheVideoWindowGoesToItsHoleAtOnce) {
    room.MakeHole();

    EXPECT_EQ(video.follows, 1);
}

TEST_F(HoleRoomTest, CloseHoleMakesTheWindowWhole) {
    room.CloseHole();

    EXPECT_EQ(shape.Holes, Holes{std::nullopt});
}

TEST_F(HoleRoomTest, EveryShapeNameMakesItsOwnHole) {
    const window::ShapeCoordinates coordinates{{10, 20, 30, 45, 5, 6}};
    const ports::WindowRect box{.left = 10, .top = 20, .right = 30, .bottom = 45};

    EXPECT_TRUE(room.ShapeWindow("RectAngle", coordinates));
    EXPECT_TRUE(room.ShapeWindow("Elliptic", coordinates));
    EXPECT_TRUE(room.ShapeWindow("RoundRect", coordinates));
    EXPECT_TRUE(room.ShapeWindow("Circle", coordinates));

    const ports::Hole ellipse{.box = box, .corner_width = 20, .corner_height = 25};
    const ports::Hole rounded{.box = box, .corner_width = 5, .corner_height = 6};
    const ports::Hole circle{.box = box, .corner_width = 30, .corner_height = 45};
    EXPECT_EQ(shape.Holes, (Holes{ports::Hole{.box = box}, ellipse, rounded, circle}));
}

TEST_F(HoleRoomTest, AnEmptyBoxOfAnyShapeIsNoHole) {
    EXPECT_TRUE(room.ShapeWindow("Elliptic", {{10, 20, 10, 40}}));
    EXPECT_TRUE(room.ShapeWindow("RoundRect", {{10, 20, 30, 20, 5, 6}}));

    EXPECT_EQ(shape.Holes, (Holes{std::nullopt, std::nullopt}));
}

TEST_F(HoleRoomTest, AnUnknownShapeShowsItsBoxAndLeavesTheWindowAlone) {
    const bool done = room.ShapeWindow("Triangle", {});

    EXPECT_FALSE(done);
    EXPECT_TRUE(shape.Holes.empty());
    ASSERT_EQ(dialogs.Boxes.size(), 1U);
    EXPECT_EQ(dialogs.Boxes[0].text, "Unknown Shape!!");
    EXPECT_EQ(dialogs.Boxes[0].buttons, ports::BoxButtons::Ok);
    EXPECT_EQ(dialogs.Boxes[0].icon, ports::BoxIcon::None);
}

TEST_F(HoleRoomTest, ShapeNamesAreToldApartByCase) {
    EXPECT_FALSE(room.ShapeWindow("rectangle", {}));
}

}  // namespace
