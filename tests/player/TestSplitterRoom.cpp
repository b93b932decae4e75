#include <gtest/gtest.h>

#include "player/PlayerHouse.h"

namespace {

using player_tests::PlayerHouse;

struct Lists : PlayerHouse {
    Lists() {
        slider.Move(0, 3000, 9000, 120);
        lstArtists.Move(4500, 500, 4000, 2500);
        lstPlayLists.Move(100, 500, 4000, 2500);
        lstTracks.Move(100, 3120, 9000, 4000);
        controls.transport.fraControls.SetTop(8000);
    }
    /// A drag that goes nowhere.
    void MoveSlider() {
        Press(slider, 0);
        MoveTo(slider, 0, 0);
        Release(slider);
    }

    controls::Label& slider = controls.splitter.lblSlider;
};

TEST(SplitterRoom, ADragFollowsAThirdOfTheWayAndSharesTheHeight) {
    Lists house;

    PlayerHouse::Press(house.slider, 0);
    PlayerHouse::MoveTo(house.slider, 0, 300);

    EXPECT_EQ(house.slider.Top(), 3100);
    EXPECT_EQ(house.lstArtists.Height(), 2600);
    EXPECT_EQ(house.lstPlayLists.Height(), 2600);
    EXPECT_EQ(house.lstTracks.Top(), 3220);
    EXPECT_EQ(house.lstTracks.Height(), 5040);
    EXPECT_EQ(house.window.Calls, std::vector<std::string>{"below splitter"});
}

TEST(SplitterRoom, AMoveWithoutAPressOrAfterTheReleaseChangesNothing) {
    Lists house;

    PlayerHouse::MoveTo(house.slider, 0, 300);
    PlayerHouse::Press(house.slider, 0);
    PlayerHouse::Release(house.slider);
    PlayerHouse::MoveTo(house.slider, 0, 300);

    EXPECT_EQ(house.slider.Top(), 3000);
}

TEST(SplitterRoom, TooLowTracksGrowFirstAndNothingElseHappens) {
    Lists house;
    house.lstTracks.SetHeight(500);

    house.MoveSlider();

    EXPECT_EQ(house.lstTracks.Height(), 540);
    EXPECT_EQ(house.lstTracks.Top(), 3120);
}

TEST(SplitterRoom, TooLowArtistsGrowNext) {
    Lists house;
    house.lstArtists.SetHeight(299);

    house.MoveSlider();

    EXPECT_EQ(house.lstArtists.Height(), 300);
    EXPECT_EQ(house.lstPlayLists.Height(), 2500);
}

TEST(SplitterRoom, StopsAtTheTopWithoutSharing) {
    Lists house;
    house.slider.SetTop(350);

    house.MoveSlider();

    EXPECT_EQ(house.slider.Top(), 400);
    EXPECT_EQ(house.lstArtists.Height(), 2500);
}

TEST(SplitterRoom, TheFirstRuleThatHoldsIsTheOnlyOne) {
    struct Case {
        double tracks, artists, slider;
        double tracks_after, artists_after, slider_after;
    };
    for (const Case& one : {Case{539, 299, 300, 540, 299, 300}, Case{540, 299, 300, 540, 300, 300},
                            Case{540, 300, 300, 540, 300, 400}, Case{540, 300, 400, 540, 300, 400},
                            Case{540, 300, 401, 7739, -99, 401}}) {
        Lists house;
        house.lstTracks.SetHeight(one.tracks);
        house.lstArtists.SetHeight(one.artists);
        house.slider.SetTop(one.slider);

        house.MoveSlider();

        // A list is never less than nothing high.
        const double artists = std::max(0.0, one.artists_after);
        EXPECT_EQ(house.lstArtists.Height(), artists) << one.slider;
        EXPECT_EQ(house.lstTracks.Height(), one.artists_after < 0 ? 8000 - 360 : one.tracks_after);
        EXPECT_EQ(house.slider.Top(), one.slider_after) << one.slider;
    }
}

TEST(SplitterRoom, StepsBackAtTheEdgeItselfAndNotBeforeIt) {
    for (const auto& [top, after] : {std::pair{7519.0, 7519.0}, std::pair{7520.0, 7380.0}}) {
        Lists house;
        house.slider.SetTop(top);

        house.MoveSlider();

        EXPECT_EQ(house.slider.Top(), after) << top;
        EXPECT_EQ(house.lstArtists.Height(), after - 500) << top;
        EXPECT_EQ(house.lstTracks.Height(), 8000 - (after - 500 + 360)) << top;
    }
}

TEST(SplitterRoom, StepsBackFromTheControls) {
    Lists house;
    house.slider.SetTop(7520);

    house.MoveSlider();

    EXPECT_EQ(house.slider.Top(), 8000 - 620);
    EXPECT_EQ(house.lstTracks.Top(), 7500);
}

}  // namespace
