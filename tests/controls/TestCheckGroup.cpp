#include <gtest/gtest.h>

#include "controls/CheckGroup.h"
#include "controls/Menu.h"

namespace {

class CheckGroupTest : public testing::Test {
protected:
    controls::Menu mnuQuick{"mnuQuick"};
    controls::Menu mnuLong{"mnuLong"};
    controls::Menu mnuOff{"mnuOff"};
    controls::CheckGroup group{mnuQuick, mnuLong, mnuOff};
};

TEST_F(CheckGroupTest, NoneIsCheckedAtFirst) {
    EXPECT_EQ(group.Checked(), nullptr);
}

TEST_F(CheckGroupTest, CheckingOneUnchecksTheOthers) {
    group.Check(mnuQuick);

    group.Check(mnuOff);

    EXPECT_FALSE(mnuQuick.Checked());
    EXPECT_FALSE(mnuLong.Checked());
    EXPECT_TRUE(mnuOff.Checked());
    EXPECT_EQ(group.Checked(), &mnuOff);
}

TEST_F(CheckGroupTest, CheckingTheCheckedOneAgainKeepsItsMark) {
    group.Check(mnuLong);

    group.Check(mnuLong);

    EXPECT_TRUE(mnuLong.Checked());
}

TEST_F(CheckGroupTest, UncheckAllLeavesNoMark) {
    mnuQuick.SetChecked(true);
    mnuOff.SetChecked(true);

    group.UncheckAll();

    EXPECT_EQ(group.Checked(), nullptr);
}

TEST_F(CheckGroupTest, OfSeveralMarksTheFirstCounts) {
    mnuOff.SetChecked(true);
    mnuLong.SetChecked(true);

    EXPECT_EQ(group.Checked(), &mnuLong);
}

TEST_F(CheckGroupTest, NoClickIsRaised) {
    int clicks = 0;
    controls::EventClaims claims;
    claims.Claim(mnuLong.Click, [&clicks] { ++clicks; });

    group.Check(mnuLong);
    group.UncheckAll();

    EXPECT_EQ(clicks, 0);
}

}  // namespace
