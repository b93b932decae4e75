#include "player/MarkerDrag.h"

#include <gtest/gtest.h>

namespace {

using player::DragEnds;
using player::MarkerDrag;

struct Marker : controls::Label {
    explicit Marker(double left, double width = 10) : controls::Label("lblProgress") {
        Move(left, 0, width, 100);
    }
};

TEST(MarkerDrag, GoesByTheRatioOfThePresentToThePressedPlace) {
    Marker marker(40);
    MarkerDrag drag(DragEnds::FirstThatHolds);
    drag.Press(4);

    EXPECT_TRUE(drag.Move(marker, 6, 200));

    EXPECT_DOUBLE_EQ(marker.Left(), 41.5);
}

TEST(MarkerDrag, DoesNothingBeforeThePressAndAfterItsEnd) {
    Marker marker(40);
    MarkerDrag drag(DragEnds::FirstThatHolds);
    EXPECT_FALSE(drag.IsOn());
    EXPECT_FALSE(drag.Move(marker, 6, 200));
    drag.Press(4);
    EXPECT_TRUE(drag.IsOn());
    drag.End();

    EXPECT_FALSE(drag.IsOn());
    EXPECT_FALSE(drag.Move(marker, 6, 200));
    EXPECT_EQ(marker.Left(), 40);
}

TEST(MarkerDrag, APressOnTheFirstUnitHasNoRatioSoNothingMoves) {
    Marker marker(40);
    MarkerDrag drag(DragEnds::FirstThatHolds);
    drag.Press(0.5);  // rounds to the even neighbour

    EXPECT_FALSE(drag.Move(marker, 6, 200));

    EXPECT_TRUE(drag.IsOn());
    EXPECT_EQ(marker.Left(), 40);
}

TEST(MarkerDrag, TheEndsOfTheBarHoldTheMarker) {
    for (const DragEnds ends : {DragEnds::FirstThatHolds, DragEnds::EachEnd}) {
        Marker low(3);
        Marker high(185);
        MarkerDrag drag(ends);
        drag.Press(1);

        drag.Move(low, -7, 200);
        drag.Move(high, 5, 200);

        EXPECT_EQ(low.Left(), 0);
        EXPECT_EQ(high.Left(), 190);
    }
}

TEST(MarkerDrag, AMarkerWiderThanItsBarIsPushedOutOnlyWhereEachEndIsLookedAt) {
    Marker first(3, 300);
    Marker each(3, 300);
    MarkerDrag first_that_holds(DragEnds::FirstThatHolds);
    MarkerDrag each_end(DragEnds::EachEnd);
    first_that_holds.Press(1);
    each_end.Press(1);

    first_that_holds.Move(first, -7, 200);
    each_end.Move(each, -7, 200);

    EXPECT_EQ(first.Left(), 0);
    EXPECT_EQ(each.Left(), -100);
}

}  // namespace
