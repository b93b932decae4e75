#include <gtest/gtest.h>

#include "controls/ControlArray.h"
#include "controls/Frame.h"
#include "controls/WebBrowser.h"
#include "platform/qt/QtBench.h"

namespace {

using ports::PageSeen;

/// Two pages and the panel of the music tab, one over the other, as the main window has them.
class Covering : public testing::Test {
protected:
    Covering() {
        for (controls::Control* control :
             {static_cast<controls::Control*>(&backdrop), static_cast<controls::Control*>(&pages(0)),
              static_cast<controls::Control*>(&panel)}) {
            qt_tests::PlaceAt(*control, 10, 60, 300, 200);
        }
        panel.SetVisible(false);
    }

    controls::WebBrowser& Load(int index) {
        controls::WebBrowser& page = pages.Load(index);
        qt_tests::PlaceAt(page, 10, 60, 300, 200);
        page.SetVisible(true);
        return page;
    }

    controls::WebBrowser backdrop{"BrowserBG"};
    controls::ControlArray<controls::WebBrowser> pages{"Browser"};
    controls::Frame panel{"fraMusicTab"};
    qt_tests::Desk desk{backdrop, pages(0), panel};
};

TEST_F(Covering, APageThatAnotherLiesOverIsCovered) {
    controls::WebBrowser& first = Load(1);
    controls::WebBrowser& second = Load(2);
    desk.screen.CatchUp();

    EXPECT_EQ(first.Seen(), PageSeen::Covered);
    EXPECT_EQ(second.Seen(), PageSeen::InFront);
    EXPECT_TRUE(first.Visible()) << "the tab is open";

    first.BringToFront();
    desk.screen.CatchUp();

    EXPECT_EQ(first.Seen(), PageSeen::InFront);
    EXPECT_EQ(second.Seen(), PageSeen::Covered);
    EXPECT_EQ(backdrop.Seen(), PageSeen::Covered);
}

TEST_F(Covering, ThePanelOfTheMusicTabCoversAllPages) {
    controls::WebBrowser& page = Load(1);
    panel.SetVisible(true);
    panel.BringToFront();
    desk.screen.CatchUp();

    EXPECT_EQ(page.Seen(), PageSeen::Covered);

    panel.SetVisible(false);
    desk.screen.CatchUp();

    EXPECT_EQ(page.Seen(), PageSeen::InFront);
}

TEST_F(Covering, APageThatIsNotVisibleIsClosedAndCoversNothing) {
    controls::WebBrowser& first = Load(1);
    controls::WebBrowser& second = Load(2);
    second.SetVisible(false);
    desk.screen.CatchUp();

    EXPECT_EQ(first.Seen(), PageSeen::InFront);
    EXPECT_EQ(second.Seen(), PageSeen::Closed);
}

TEST_F(Covering, APanelThatLeavesPartOfAPageCoversNone) {
    controls::WebBrowser& page = Load(1);
    qt_tests::PlaceAt(panel, 10, 60, 299, 200);
    panel.SetVisible(true);
    panel.BringToFront();
    desk.screen.CatchUp();

    EXPECT_EQ(page.Seen(), PageSeen::InFront);

    qt_tests::PlaceAt(panel, 10, 60, 300, 200);
    desk.screen.CatchUp();

    EXPECT_EQ(page.Seen(), PageSeen::Covered);
}

TEST_F(Covering, OfManyStepsInOneHandlerOnlyTheEndIsSaid) {
    controls::WebBrowser& first = Load(1);
    controls::WebBrowser& second = Load(2);
    desk.screen.CatchUp();

    first.BringToFront();
    second.SetVisible(false);
    second.SetVisible(true);
    second.BringToFront();
    desk.screen.CatchUp();

    EXPECT_EQ(first.Seen(), PageSeen::Covered);
    EXPECT_EQ(second.Seen(), PageSeen::InFront);
}

}  // namespace
