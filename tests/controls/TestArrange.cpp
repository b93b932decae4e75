#include "controls/Arrange.h"

#include <gtest/gtest.h>

#include "controls/Image.h"

namespace controls {
namespace {

TEST(Arrange, APlaceIsGivenInPixels) {
    Image image("imgPlay");

    Place(image, 1, 2, 10, 20);

    EXPECT_EQ(image.Left(), 15);
    EXPECT_EQ(image.Top(), 30);
    EXPECT_EQ(image.Width(), 150);
    EXPECT_EQ(image.Height(), 300);
}

TEST(Arrange, TheToolTipIsTheNameUnlessThereIsAnother) {
    Image plain("imgBack");
    Image other("imgHelp");

    Name(plain, "Back");
    Name(other, "Help", "Opens the pages of help");

    EXPECT_EQ(plain.AccessibleName(), "Back");
    EXPECT_EQ(plain.ToolTipText(), "Back");
    EXPECT_EQ(other.AccessibleName(), "Help");
    EXPECT_EQ(other.ToolTipText(), "Opens the pages of help");
}

TEST(Arrange, OnlyTheTwinIsHiddenUntilThePointerMovesOverThePicture) {
    Image plain("imgPlay");
    Image bright("imgPlayOver");
    EventClaims claims;

    NameTwins(plain, bright, "Play");
    ClaimTwin(claims, plain, bright);

    EXPECT_TRUE(plain.Visible());
    EXPECT_FALSE(bright.Visible());
    plain.MouseMove.Raise(0, 0, 1, 1);
    EXPECT_TRUE(bright.Visible());
}

}  // namespace
}  // namespace controls
