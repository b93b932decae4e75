#include "web/TabFinderRoom.h"

#include "controls/KeyCodes.h"
#include "web/WebHarness.h"

namespace {

using web_tests::Calls;
using web_tests::WebTest;

constexpr int kControl = controls::kControlMask;
constexpr int kControlShift = controls::kControlMask | controls::kShiftMask;

class TabFinderTest : public WebTest {
protected:
    TabFinderTest() {
        Open("one.example");
        Open("two.example");
        Open("three.example");
        desktop.AdoptTimer(groups.finder.tmrTabFinder);
        near.Log.clear();
    }
    controls::Frame& Panel() { return groups.finder.fraTabFinder; }
    controls::TextBox& Box() { return groups.finder.txtTabFinder; }
    controls::ListBox& List() { return groups.finder.lstTabFinder; }
    void Find(const std::string& wanted = {}) {
        rooms.Keys().Take('A', kControlShift);
        Box().SetText(wanted);
    }
    void Press(int key, int shift = 0) { Box().KeyDown.Raise(key, shift); }
    int Front() const { return state.MusicTabActive ? 0 : state.currentbrowser; }
    Calls Rows() {
        Calls rows;
        for (int i = 0; i < List().ListCount(); ++i)
            rows.emplace_back(List().List(i));
        return rows;
    }
};

TEST_F(TabFinderTest, WalkingShowsAllTabsForAMomentWithTheOneInFrontLit) {
    rooms.Keys().Take(controls::kKeyTab, kControlShift);

    EXPECT_TRUE(Panel().Visible());
    EXPECT_FALSE(Box().Visible());
    EXPECT_EQ(Rows(), (Calls{"Music Player", "One", "Two", "Three"}));
    EXPECT_EQ(List().Text(), "Two");
    EXPECT_EQ(Front(), 2);
    EXPECT_EQ(form.Children().back(), &Panel());

    desktop.Advance(1400);
    EXPECT_TRUE(Panel().Visible());
    desktop.Advance(200);
    EXPECT_FALSE(Panel().Visible());
}

TEST_F(TabFinderTest, EachStepBeginsTheMomentAgain) {
    rooms.Keys().Take(controls::kKeyTab, kControl);
    desktop.Advance(1000);
    rooms.Keys().Take(controls::kKeyTab, kControl);

    desktop.Advance(1000);

    EXPECT_TRUE(Panel().Visible());
}

TEST_F(TabFinderTest, FindingShowsEveryTabAndTakesTheKeyboard) {
    Find();

    EXPECT_TRUE(Panel().Visible());
    EXPECT_TRUE(Box().Visible());
    EXPECT_EQ(List().ListCount(), 4);
    EXPECT_EQ(List().Text(), "Three");
    desktop.Advance(5000);
    EXPECT_TRUE(Panel().Visible());
}

TEST_F(TabFinderTest, AFewLettersOfTitleOrAddressAreEnough) {
    Find("tWo");
    EXPECT_EQ(Rows(), (Calls{"Two"}));
    Find("example th");
    EXPECT_EQ(Rows(), (Calls{"Three"}));
    Find("music");
    EXPECT_EQ(Rows(), (Calls{"Music Player"}));
    Find("owls");
    EXPECT_TRUE(Rows().empty());
}

TEST_F(TabFinderTest, EnterBringsTheChosenTabForward) {
    Find("o");
    ASSERT_GE(List().ListCount(), 2);
    ASSERT_EQ(List().Text(), "One");
    Press(controls::kKeyDown);
    ASSERT_EQ(List().Text(), "Two");
    Press(controls::kKeyDown);
    Press(controls::kKeyUp);

    Press(controls::kKeyEnter);

    EXPECT_EQ(Front(), 2);
    EXPECT_FALSE(Panel().Visible());
}

TEST_F(TabFinderTest, EnterWithNoTabLikeThatDoesNothing) {
    Find("owls");

    Press(controls::kKeyEnter);

    EXPECT_EQ(Front(), 3);
    EXPECT_TRUE(Panel().Visible());
}

TEST_F(TabFinderTest, AClickBringsTheTabForwardTheMusicTabAsWell) {
    Find();

    List().SetListIndex(0);

    EXPECT_EQ(Front(), 0);
    EXPECT_FALSE(Panel().Visible());
}

TEST_F(TabFinderTest, EscapeClosesItAndGivesTheKeyboardToTheAddressRow) {
    Find("two");
    Focused = 0;

    EXPECT_TRUE(rooms.Keys().Take(controls::kKeyEscape, 0));

    EXPECT_FALSE(Panel().Visible());
    EXPECT_EQ(Focused, 1);
    EXPECT_EQ(Front(), 3);
}

TEST_F(TabFinderTest, ItGoesWhenTheKeyboardLeavesIt) {
    Find();

    Box().LostFocus.Raise();

    EXPECT_FALSE(Panel().Visible());
}

TEST_F(TabFinderTest, ClosedTabsAreNotListed) {
    groups.tabs.tabClose(2).Click.Raise();

    Find();

    EXPECT_EQ(Rows(), (Calls{"Music Player", "One", "Three"}));
}

TEST_F(TabFinderTest, MultimediaKeysGoOn) {
    Find();

    Press(176);

    EXPECT_TRUE(Logged("KeyDown 176 0"));
}

}  // namespace
