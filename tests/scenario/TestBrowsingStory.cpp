// Keys, suggestions and what is typed or dropped, over all subjects.
#include <gtest/gtest.h>

#include <memory>

#include "scenario/Program.h"

namespace {

using scenario::Computer;
using scenario::Program;
using Texts = std::vector<std::string>;

constexpr int kControl = controls::kControlMask;
constexpr int kControlShift = controls::kControlMask | controls::kShiftMask;
constexpr int kDown = 40;

class BrowsingStory : public testing::Test {
protected:
    BrowsingStory() {
        computer.AddUser("Ann", "rose");
        computer.AddUser("Bob", "thorn");
        computer.AddToLibrary(1, "Sun", "Rise");
        computer.AddToLibrary(2, "Moon", "Fall");
        computer.AddPage("http://one.example/", "One");
        computer.AddPage("http://two.example/", "Two");
        Run();
    }

    void Run() {
        program.reset();
        program = std::make_unique<Program>(computer);
        program->StartAndLogIn("Ann", "rose");
    }
    window::BrowserForm& Browser() { return program->Browser(); }
    web::TabControls& Tabs() { return Browser().web.tabs; }
    controls::TextBox& Address() { return Browser().web.address.txtAddress; }
    void GoToAndArrive(std::string_view address) {
        program->GoTo(address);
        program->LetPagesArrive();
    }
    /// A key as it comes while a page has the keyboard.
    bool Press(int key, int shift) {
        bool taken = false;
        Browser().KeyPreview.Raise(key, shift, taken);
        program->desktop.EndHandler();
        program->Wait(50);
        return taken;
    }
    Texts HistoryKinds() {
        Texts kinds;
        for (const auto& row : computer.database.Rows(scenario::kHistoryPath, "tblHistory")) {
            if (row[1] != "Settings") kinds.push_back(row[1]);
        }
        return kinds;
    }

    Computer computer;
    std::unique_ptr<Program> program;
};

TEST_F(BrowsingStory, AHomePageThatOpensNoTabLeavesEveryCommandWhole) {
    program->GoTo("one.example");
    program->dialogs.Answers = {ports::BoxAnswer::Yes};
    program->Click(Browser().menus.mnuExit);
    ASSERT_EQ(computer.Setting(7), "False");
    computer.AddSong("C:\\a.mp3");
    computer.database.Seed(scenario::kFavouritesPath, "tblFavs", {{"2", "Home Pages", "Song", "C:\\a.mp3"}});
    Run();
    ASSERT_EQ(Tabs().Browser.Count(), 1);

    program->Click(Browser().web.navigation.lblRefresh2);
    program->Click(Browser().web.navigation.imgBackOver);
    program->Click(Browser().favourites.imgAddOver);
    EXPECT_EQ(program->windows.add.txtURL.Text(), "");
    program->Click(program->windows.add.cmdCancel);
    Press('W', kControl);
    Press(9, kControl);
    GoToAndArrive("one.example");

    EXPECT_EQ(Browser().Caption(), "Brindlepost - One");
    EXPECT_EQ(program->main_window.Known().web.currentbrowser, 1);
}

TEST_F(BrowsingStory, ASongCuedByItsNumberPlaysBeforeTheFilesThatWereDropped) {
    computer.AddSong("C:\\in\\x.mp3");
    computer.AddSong("C:\\in\\y.mp3");
    auto& lists = Browser().library.lists;
    lists.lstTracks.SetListIndex(0);
    program->DoubleClick(lists.lstTracks);
    lists.lstTracks.SetListIndex(1);
    program->Click(Browser().player.queue.imgCueSongOver);
    controls::DropData data;
    data.Files = {"C:\\in\\x.mp3", "C:\\in\\y.mp3"};
    Address().OLEDragDrop.Raise(data, 0, 0);
    program->desktop.EndHandler();
    ASSERT_EQ(Browser().player.queue.lstCuedSongs.ListCount(), 2);

    Texts played;
    for (int i = 0; i < 3000 && played.size() < 3; ++i) {
        program->Wait(100);
        const std::string path = Browser().player.transport.lblFileNowPlaying.Caption();
        if (played.empty() || played.back() != path) played.push_back(path);
    }

    EXPECT_EQ(played, (Texts{"C:\\in\\x.mp3", "C:\\Music\\Moon - Fall.mp3", "C:\\in\\y.mp3"}));
}

TEST_F(BrowsingStory, AFileEnteredAsAFileLeavesNoRow) {
    computer.AddSong("C:\\in\\x.mp3");
    Browser().web.address.cmbType.SetText("File");

    program->GoTo("C:\\in\\x.mp3");

    EXPECT_TRUE(computer.media.IsOpen("a"));
    for (const std::string& kind : HistoryKinds())
        EXPECT_EQ(kind, "Music");
}

TEST_F(BrowsingStory, AVisitedPageIsSuggestedAndOpensByDownAndEnter) {
    GoToAndArrive("one.example");
    GoToAndArrive("two.example");

    Address().SetText("one");
    auto& list = Browser().web.completion.lstSuggestions;
    EXPECT_TRUE(list.Visible());
    EXPECT_EQ(Program::RowsOf(list), (Texts{"http://one.example/"}));
    Address().KeyDown.Raise(kDown, 0);
    EXPECT_EQ(Address().Text(), "http://one.example/");
    program->PressEnter(Address());
    program->LetPagesArrive();

    EXPECT_EQ(Browser().Caption(), "Brindlepost - One");
    EXPECT_EQ(Tabs().Browser.Count(), 4);
    EXPECT_FALSE(list.Visible());
}

TEST_F(BrowsingStory, AFavouriteIsSuggestedByItsName) {
    computer.database.Seed(scenario::kFavouritesPath, "tblFavs",
                           {{"2", "News", "  - Night Birds", "http://two.example/"}});
    Run();

    Address().SetText("birds");

    EXPECT_EQ(Program::RowsOf(Browser().web.completion.lstSuggestions),
              (Texts{"Night Birds  \xC2\xB7  http://two.example/"}));
}

TEST_F(BrowsingStory, ADeletedHistoryIsNoLongerSuggested) {
    GoToAndArrive("one.example");
    Address().SetText("one");
    ASSERT_TRUE(Browser().web.completion.lstSuggestions.Visible());
    program->dialogs.Answers = {ports::BoxAnswer::Yes};

    program->Click(Browser().menus.mnuHistory);
    Address().SetText("on");

    EXPECT_FALSE(Browser().web.completion.lstSuggestions.Visible());
}

TEST_F(BrowsingStory, TheKeysWorkTheTabsWhileAPageHasTheKeyboard) {
    GoToAndArrive("one.example");
    GoToAndArrive("two.example");

    EXPECT_TRUE(Press('W', kControl));
    EXPECT_EQ(Browser().Caption(), "Brindlepost - One");
    EXPECT_TRUE(Press('T', kControlShift));
    EXPECT_EQ(Browser().Caption(), "Brindlepost - Two");
    EXPECT_TRUE(Press('2', kControl));
    EXPECT_EQ(Browser().Caption(), "Brindlepost - One");
    EXPECT_TRUE(Press('D', kControl));
    EXPECT_TRUE(program->windows.add.frmAdd.Visible());
    EXPECT_EQ(program->windows.add.txtURL.Text(), "http://one.example/");
    EXPECT_TRUE(Press(122, 0));
    EXPECT_TRUE(Browser().FullScreen());
    EXPECT_FALSE(Press('C', kControl));
}

TEST_F(BrowsingStory, AfterALogOutNoTabOfTheUserBeforeComesBack) {
    GoToAndArrive("one.example");
    Press('W', kControl);
    program->Click(Browser().menus.mnuLogout);
    program->LogIn("Bob", "thorn");
    program->Wait(12'000);

    Press('T', kControlShift);

    EXPECT_FALSE(Tabs().Browser(1).Visible());
}

TEST_F(BrowsingStory, TheEmptyTabMakesRoomForItsAddress) {
    Press('T', kControl);
    program->LetPagesArrive();
    ASSERT_TRUE(Tabs().tabtab(1).Visible());

    GoToAndArrive("one.example");

    EXPECT_FALSE(Tabs().tabtab(1).Visible());
    EXPECT_EQ(Tabs().tabtab(2).Left(), web::kFirstTabLeft);
    EXPECT_EQ(Browser().Caption(), "Brindlepost - One");
}

}  // namespace
