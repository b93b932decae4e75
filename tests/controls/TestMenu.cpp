#include "controls/Menu.h"

#include <gtest/gtest.h>

#include <vector>

#include "controls/RecordingObserver.h"

namespace controls {
namespace {

TEST(Menu, EntriesStandInTheOrderInWhichTheyWereAdded) {
    Menu file("mnuFile", "File");
    Menu open("mnuOpen", "Open");
    Menu exit("mnuExit", "Exit");

    file.AddEntry(open);
    file.AddEntry(exit);

    EXPECT_EQ(file.Entries(), (std::vector<Menu*>{&open, &exit}));
}

TEST(Menu, AnEntryCanBeAddedBeforeAnother) {
    Menu file("mnuFile", "File");
    Menu first("a");
    Menu second("b");
    Menu between("c");
    Menu last("d");
    file.AddEntry(first);
    file.AddEntry(second);

    file.AddEntry(between, 1);
    file.AddEntry(last, 99);

    EXPECT_EQ(file.Entries(), (std::vector<Menu*>{&first, &between, &second, &last}));
}

TEST(Menu, CheckingRaisesNothing) {
    Menu shuffle("mnuShuffle", "Shuffle");
    EventClaims claims;
    int clicks = 0;
    claims.Claim(shuffle.Click, [&clicks] { ++clicks; });

    shuffle.SetChecked(true);

    EXPECT_TRUE(shuffle.Checked());
    EXPECT_EQ(clicks, 0);
}

TEST(Menu, AChangedCheckMarkIsToldOnce) {
    Menu shuffle("mnuShuffle", "Shuffle");
    EventClaims claims;
    int changes = 0;
    claims.Claim(shuffle.Change, [&changes] { ++changes; });

    shuffle.SetChecked(true);
    shuffle.SetChecked(true);
    shuffle.SetChecked(false);

    EXPECT_EQ(changes, 2);
}

TEST(Menu, AHyphenIsASeparator) {
    EXPECT_TRUE(Menu("mnuBar1", "-").IsSeparator());
    EXPECT_FALSE(Menu("mnuOpen", "Open").IsSeparator());
}

TEST(Menu, EqualCaptionsAndChecksAreNotTold) {
    Menu menu("mnuOpen", "Open");
    RecordingObserver screen;
    menu.SetObserver(&screen);

    menu.SetCaption("Open");
    menu.SetChecked(false);
    EXPECT_TRUE(screen.Told.empty());
    menu.SetCaption("Close");
    menu.SetChecked(true);
    menu.SetEnabled(false);

    EXPECT_EQ(screen.Told, (std::vector<Property>{Property::Caption, Property::Checked, Property::Enabled}));
}

}  // namespace
}  // namespace controls
