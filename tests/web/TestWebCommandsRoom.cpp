#include "web/WebHarness.h"

namespace {

using WebCommandsRoom = web_tests::WebTest;
using web_tests::Calls;

const std::string kHelpPage =
    std::string(web::MakerSiteUrl) +
    "/index.php?page=applications&page2=brindlepost&page3=help&referrer=quennet&origin=Brindlepost";

TEST_F(WebCommandsRoom, WebSearchAsksAndOpensTheSearch) {
    dialogs.Typed = {" tawny owls "};

    menu.mnuWebSearch.Click.Raise();

    ASSERT_EQ(dialogs.Inputs.size(), 1U);
    EXPECT_EQ(dialogs.Inputs[0].prompt, "What are you searching for?");
    EXPECT_EQ(dialogs.Inputs[0].title, "Web Search");
    EXPECT_EQ(groups.tabs.Browser(1).WaitingAddress(),
              std::string(web::GoogleSearchUrl) + "?hl=en&q=tawny+owls&btnG=Google+Search&meta=");
}

TEST_F(WebCommandsRoom, ACancelledSearchOpensNothing) {
    menu.mnuWebSearch.Click.Raise();

    EXPECT_EQ(LastTab(), 0);
}

TEST_F(WebCommandsRoom, LyricsAreSearchedByTheTrack) {
    near.Track = "Owls - Nightjar";

    menu.mnuLyricSearch.Click.Raise();

    EXPECT_EQ(groups.tabs.Browser(1).WaitingAddress(),
              std::string(web::GoogleSearchUrl) + "?hl=en&q=Owls+-+Nightjar+Lyrics&btnG=Google+Search&meta=");
}

TEST_F(WebCommandsRoom, ThreeEntriesAskForAWebsite) {
    for (controls::Menu* entry : {&menu.mnuWebsite, &menu.mnuWebTab, &menu.mnuNewTabTab}) {
        dialogs.Typed = {"one.example"};

        entry->Click.Raise();

        EXPECT_EQ(dialogs.Inputs.back().prompt, "Which website would you like to open?");
        EXPECT_EQ(dialogs.Inputs.back().title, "Open Website");
        EXPECT_EQ(dialogs.Inputs.back().default_text, "http://");
        EXPECT_EQ(groups.tabs.Browser(LastTab()).WaitingAddress(), "one.example") << entry->Name();
    }
    EXPECT_EQ(LastTab(), 3);
}

TEST_F(WebCommandsRoom, TheUnchangedDefaultIsOpened) {
    dialogs.Typed = {"http://"};

    menu.mnuWebsite.Click.Raise();

    EXPECT_EQ(groups.tabs.Browser(1).WaitingAddress(), "http://");
}

TEST_F(WebCommandsRoom, HelpAndUpdatesOpenInFront) {
    menu.mnuOnlineHelp.Click.Raise();
    menu.mnuCheckUpdates.Click.Raise();

    EXPECT_EQ(groups.tabs.Browser(1).WaitingAddress(), kHelpPage);
    EXPECT_EQ(groups.tabs.Browser(2).WaitingAddress(),
              std::string(web::MakerSiteUrl) +
                  "/index.php?page=applications&page2=brindlepost&page3=updates&referrer=quennet&origin="
                  "Brindlepost");
    EXPECT_EQ(state.currentbrowser, 2);
}

TEST_F(WebCommandsRoom, WithoutAConnectionTheCommandsShowTheBoxAndOpenNothing) {
    session.Internet_Connection = false;
    dialogs.Typed = {"x", "x", "x", "x", "x", "x", "x"};

    for (controls::Menu* entry : {&menu.mnuWebSearch, &menu.mnuLyricSearch, &menu.mnuWebsite, &menu.mnuWebTab,
                                  &menu.mnuNewTabTab, &menu.mnuOnlineHelp, &menu.mnuCheckUpdates}) {
        dialogs.Boxes.clear();

        entry->Click.Raise();

        ASSERT_EQ(dialogs.Boxes.size(), 1U) << entry->Name();
        EXPECT_EQ(dialogs.Boxes[0].title, "No Internet Connection");
    }
    EXPECT_EQ(LastTab(), 0);
    EXPECT_TRUE(dialogs.Inputs.empty());
}

TEST_F(WebCommandsRoom, TheHelpButtonNeedsNoConnection) {
    session.Internet_Connection = false;

    Click(groups.help.imgHelp);

    EXPECT_EQ(groups.tabs.Browser(1).WaitingAddress(), kHelpPage);
    EXPECT_TRUE(dialogs.Boxes.empty());
}

TEST_F(WebCommandsRoom, TheRightButtonOnHelpPopsUpItsMenu) {
    Click(groups.help.imgHelp, controls::kRightButton);

    EXPECT_EQ(near.Log, Calls{"PopupMenu mnuHelp"});
    EXPECT_EQ(LastTab(), 0);
}

TEST_F(WebCommandsRoom, TheArtistIsWhatStandsBeforeTheSeparator) {
    near.Track = "The Tawny Owls - Nightjar - Live";

    rooms.Commands().SearchArtistHomePage();
    rooms.Commands().SearchArtistImages();

    EXPECT_EQ(groups.tabs.Browser(1).WaitingAddress(),
              std::string(web::GoogleSearchUrl) +
                  "?hl=en&q=The+Tawny+Owls+Official+Home+Page&btnG=Google+Search&meta=");
    EXPECT_EQ(groups.tabs.Browser(2).WaitingAddress(),
              std::string(web::GoogleImagesUrl) + "?hl=en&q=The+Tawny+Owls&btnG=Google+Search&meta=");
}

TEST_F(WebCommandsRoom, WithoutASeparatorTheArtistIsEmpty) {
    near.Track = "Nightjar";

    rooms.Commands().SearchArtistImages();

    EXPECT_EQ(groups.tabs.Browser(1).WaitingAddress(),
              std::string(web::GoogleImagesUrl) + "?hl=en&q=&btnG=Google+Search&meta=");
}

TEST_F(WebCommandsRoom, RefreshAllRefreshesTheTabsThatAreOpen) {
    Open("http://one.example/");
    Open("http://two.example/");
    Open("http://three.example/");
    groups.tabs.tabClose(2).Click.Raise();
    for (int i = 1; i <= 3; ++i)
        Engine(i).Calls.clear();
    session.Internet_Connection = false;

    menu.mnuRefreshAll.Click.Raise();

    EXPECT_EQ(Engine(1).Calls, Calls{"Refresh"});
    EXPECT_TRUE(Engine(2).Calls.empty());
    EXPECT_EQ(Engine(3).Calls, Calls{"Refresh"});
    EXPECT_TRUE(dialogs.Boxes.empty());
}

TEST_F(WebCommandsRoom, TheMakersHomeStandsBehindTheGuardToo) {
    session.Internet_Connection = false;

    rooms.Commands().OpenMakerHome();
    rooms.Commands().OpenUpdates();

    EXPECT_EQ(dialogs.Boxes.size(), 2U);
    EXPECT_EQ(LastTab(), 0);
}

}  // namespace
