#include "controls/ControlArray.h"

#include <gtest/gtest.h>

#include "controls/Frame.h"
#include "controls/Label.h"
#include "controls/WebBrowser.h"

namespace controls {
namespace {

TEST(ControlArray, BeginsWithItsTemplate) {
    ControlArray<Label> labels("tabLabel");

    EXPECT_EQ(labels.Count(), 1);
    EXPECT_EQ(labels(0).Index(), 0);
    EXPECT_EQ(labels(0).Name(), "tabLabel");
    EXPECT_TRUE(labels(0).Visible());
}

TEST(ControlArray, ALoadedMemberIsHiddenAndTakesTheTemplatesPlaceSizeAndLook) {
    Frame frame("fraTabs");
    ControlArray<Label> labels("tabLabel");
    labels(0).Move(15, 30, 450, 60);
    labels(0).SetLook("tab");
    frame.Add(labels(0));

    Label& member = labels.Load(1);

    EXPECT_FALSE(member.Visible());
    EXPECT_EQ(member.Index(), 1);
    EXPECT_EQ(member.Name(), "tabLabel");
    EXPECT_EQ(member.Look(), "tab");
    EXPECT_EQ(member.Left(), 15);
    EXPECT_EQ(member.Top(), 30);
    EXPECT_EQ(member.Width(), 450);
    EXPECT_EQ(member.Height(), 60);
    EXPECT_EQ(member.Parent(), &frame);
    EXPECT_EQ(frame.Children().back(), &member);
}

TEST(ControlArray, MembersStayAtOneAddress) {
    ControlArray<WebBrowser> browsers("Browser");
    WebBrowser* const first = &browsers.Load(1);

    for (int index = 2; index < 200; ++index)
        browsers.Load(index);

    EXPECT_EQ(&browsers(1), first);
    EXPECT_EQ(browsers.Count(), 200);
    EXPECT_EQ(browsers(199).Index(), 199);
}

TEST(ControlArray, AControlOutsideOfAnArrayHasNoIndex) {
    EXPECT_EQ(Label("lblTrack").Index(), -1);
}

#ifndef NDEBUG
TEST(ControlArrayDeathTest, MembersAreLoadedOneAfterAnother) {
    ControlArray<Label> labels("tabLabel");

    EXPECT_DEATH(labels.Load(2), "Count");
    EXPECT_DEATH(labels(1), "Count");
    EXPECT_DEATH(labels(-1), "Count");
}
#endif

}  // namespace
}  // namespace controls
