#include "session/HandOffRoom.h"

#include <gtest/gtest.h>

#include <memory>

#include "base/DrivePath.h"
#include "base/Text.h"

#include "session/SessionHarness.h"

namespace {

using session_tests::Count;
using session_tests::Texts;

/// The mailbox of a program that has loaded and whose user is logged in.
class HandOffRoom : public testing::Test {
protected:
    HandOffRoom() {
        instance.TryBecomeFirst();
        session.LoggedIn = true;
        session.FirstLoadDone = true;
        window.Add(controls.tmrOpenWith, controls.tmrWaiting);
        desktop.Adopt(window);
        splash.Hide();
    }

    /// As a first start or a later one hands it over.
    void Deliver(std::string_view command) { room->Deliver(command); }
    void LogOut() {
        session.LoggedIn = false;
        room->ForgetCommands();
    }
    /// Ticks of tmrOpenWith.
    void Tick(int times) {
        for (int i = 0; i < times; ++i)
            desktop.Advance(100);
    }
    Texts OpenWith() const {
        Texts rows;
        for (int row = 0; row < controls.lstOpenWith.ListCount(); ++row)
            rows.emplace_back(controls.lstOpenWith.List(row));
        return rows;
    }
    static std::string Quoted(const Texts& paths) {
        std::string command;
        for (const std::string& path : paths)
            command.append(command.empty() ? "\"" : " \"").append(path).append("\"");
        return command;
    }
    /// Songs "C:\1.mp3" and on.
    static Texts Songs(int count) {
        Texts paths;
        for (int i = 1; i <= count; ++i)
            paths.push_back("C:\\" + std::to_string(i) + ".mp3");
        return paths;
    }

    fakes::FakeDesktop desktop;
    fakes::FakeDialogs dialogs;
    fakes::FakeFiles files{"C:\\app"};
    session_tests::Neighbours near;
    fakes::FakeInstances instances;
    fakes::FakeInstanceLock instance{instances};
    fakes::FakeInstanceLock later{instances};
    session::SessionState session;
    controls::Form window{"frmBrowser", "Brindlepost"};
    controls::Form splash{"frmActivate", ""};
    bool ListMaybeChanged = false;
    session::HandOffControls controls;
    session::HandOffMenu menu;
    std::string caption_in_front;
    std::unique_ptr<session::HandOffRoom> room = std::make_unique<session::HandOffRoom>(
        controls, menu, session::HandOffState{session, splash, ListMaybeChanged},
        session::HandOffRoles{near, near, near, near, near, near},
        session::HandOffPorts{files, dialogs, desktop, instance},
        [this] { caption_in_front = controls.cmdDummy.Caption(); });
};

// ---- the mailbox ----

TEST_F(HandOffRoom, NothingOfItShows) {
    EXPECT_FALSE(controls.cmdDummy.Visible());
    EXPECT_FALSE(controls.Text1.Visible());
    EXPECT_FALSE(controls.lstOpenWith.Visible());
    EXPECT_FALSE(controls.tmrOpenWith.Enabled());
    EXPECT_FALSE(controls.tmrWaiting.Enabled());
    EXPECT_EQ(controls.cmdDummy.Caption(), "Dummy");
}

TEST_F(HandOffRoom, PreparingHidesTheButtonAndEmptiesTheLog) {
    controls.cmdDummy.SetVisible(true);
    controls.Text1.SetText("old");

    room->Prepare();

    EXPECT_FALSE(controls.cmdDummy.Visible());
    EXPECT_EQ(controls.Text1.Text(), "");
}

TEST_F(HandOffRoom, ADeliveredCommandIsLoggedAndTheButtonIsReadyAgain) {
    room->Deliver("\"C:\\a.mp3\"");

    EXPECT_EQ(controls.Text1.Text(), "Excuted with command: \"C:\\a.mp3\"");
    EXPECT_EQ(controls.cmdDummy.Caption(), "Ready for command");
}

TEST_F(HandOffRoom, EachCommandGetsItsLine) {
    room->Deliver("one");

    room->Deliver("");

    EXPECT_EQ(controls.Text1.Text(), "Excuted with command: one\r\nExcuted with command: ");
}

TEST_F(HandOffRoom, AClickTakesTheCaption) {
    controls.cmdDummy.SetCaption("two");

    controls.cmdDummy.Click.Raise();

    EXPECT_EQ(controls.Text1.Text(), "Excuted with command: two");
}

TEST_F(HandOffRoom, TheCaptionIsTheCommandWhileItIsProcessed) {
    std::string caption;
    near.OnAddMedia = [&] { caption = controls.cmdDummy.Caption(); };

    Deliver("\"C:\\a.mp3\"");

    EXPECT_EQ(caption, "\"C:\\a.mp3\"");
}

TEST_F(HandOffRoom, ALaterStartBringsTheWindowToTheFrontBeforeItsCommandIsTaken) {
    room->Deliver("");

    later.HandOff("\"C:\\b.mp3\"");

    EXPECT_EQ(caption_in_front, "Ready for command");
    EXPECT_EQ(controls.Text1.Text(), "Excuted with command: \r\nExcuted with command: \"C:\\b.mp3\"");
    EXPECT_EQ(controls.cmdDummy.Caption(), "Ready for command");
}

TEST_F(HandOffRoom, AfterItsEndALaterStartFindsNobody) {
    room.reset();

    later.HandOff("\"C:\\b.mp3\"");

    EXPECT_EQ(controls.Text1.Text(), "");
    EXPECT_EQ(caption_in_front, "");
}

// ---- what a command is ----

enum class Kind { Text, Media };

struct CommandCase {
    std::string name;
    std::string command;
    Kind kind;
    std::string opened;  ///< the text that is entered, or the media files with a bar between them
};

std::vector<CommandCase> Commands() {
    return {
        {"quoted mpl", "\"C:\\a.mpl\"", Kind::Text, "C:\\a.mpl"},
        {"quoted mpl in capitals", "\"C:\\A.MPL\"", Kind::Text, "C:\\A.MPL"},
        {"mpl without a quote after it", "C:\\a.mpl", Kind::Media, "C:\\a.mpl"},
        {"any last character counts as the quote", "C:\\a.mplx", Kind::Text, "C:\\a.mplx"},
        {".com", "\"Example.COM\"", Kind::Text, "Example.COM"},
        {".uk", "\"example.co.uk\"", Kind::Text, "example.co.uk"},
        {".net", "\"example.net/page\"", Kind::Text, "example.net/page"},
        {".org", "example.org", Kind::Text, "example.org"},
        {"http://", "\"HTTP://host/\"", Kind::Text, "HTTP://host/"},
        {"www.", "\"www.host\"", Kind::Text, "www.host"},
        {"a media file whose path makes an address", "\"C:\\my.net\\a.mp3\"", Kind::Text,
         "C:\\my.net\\a.mp3"},
        {"one file", "\"C:\\a.mp3\"", Kind::Media, "C:\\a.mp3"},
        {"one file without quotes", "C:\\a b.mp3", Kind::Media, "C:\\a b.mp3"},
        {"two files", "\"C:\\a.mp3\" \"C:\\b.mp3\"", Kind::Media, "C:\\a.mp3|C:\\b.mp3"},
        {"a blank entry ends the list", "\"C:\\a.mp3\" \"  \" \"C:\\c.mp3\"", Kind::Media, "C:\\a.mp3"},
        {"a name with ^ is one file", "\"C:\\a^b.mp3\" \"C:\\c.mp3\"", Kind::Media, "C:\\a^b.mp3|C:\\c.mp3"},
    };
}

TEST_F(HandOffRoom, ACommandIsATextToEnterOrAListOfMediaFiles) {
    for (const CommandCase& one : Commands()) {
        SCOPED_TRACE(one.name);
        near.Log.clear();
        near.Cued.clear();
        Tick(10);

        Deliver(one.command);

        const bool is_text = one.kind == Kind::Text;
        EXPECT_EQ(Count(near.Log, "SetTyped " + one.opened), is_text ? 1 : 0);
        EXPECT_EQ(Count(near.Log, "EnterAsWeb " + one.opened), is_text ? 1 : 0);
        EXPECT_EQ(OpenWith(), is_text ? Texts{} : base::Split(one.opened, "|"));
        EXPECT_EQ(controls.tmrOpenWith.Enabled(), !is_text);
        controls.lstOpenWith.Clear();
    }
}

TEST_F(HandOffRoom, TheListOfAnotherPlayerIsOneWhereItsFileIs) {
    files.AddFile("C:\\a.m3u8");
    files.AddFile("C:\\b.xspf");

    Deliver("\"C:\\a.m3u8\"");
    Deliver("\"C:\\one.mp3\" \"C:\\b.xspf\" \"C:\\gone.pls\"");

    EXPECT_EQ(Count(near.Log, "EnterAsWeb C:\\a.m3u8"), 1);
    EXPECT_EQ(Count(near.Log, "EnterAsWeb C:\\b.xspf"), 1);
    EXPECT_EQ(OpenWith(), (Texts{"C:\\one.mp3", "C:\\gone.pls"}));
}

TEST_F(HandOffRoom, WhatADesktopOpensWithABrowserIsEntered) {
    files.AddFile("C:\\a page.html");

    Deliver("\"https://page.example/\"");
    Deliver("\"brindlepost://start\"");
    Deliver("\"C:\\a page.html\"");
    Deliver("\"C:\\gone.html\"");

    for (const std::string page : {"https://page.example/", "brindlepost://start", "C:\\a page.html"})
        EXPECT_EQ(Count(near.Log, "EnterAsWeb " + page), 1) << page;
    EXPECT_EQ(OpenWith(), (Texts{"C:\\gone.html"}));
}

TEST_F(HandOffRoom, ATextIsShownInTheAddressRowBeforeItIsEntered) {
    Deliver("\"example.org\"");

    EXPECT_EQ(near.Log, (Texts{"SetTyped example.org", "EnterAsWeb example.org"}));
}

TEST_F(HandOffRoom, NothingAndTheTextOfTheIdleButtonAreOnlyLogged) {
    Deliver("\"C:\\a.mp3\"");
    Tick(10);
    near.Log.clear();
    for (const std::string_view command : {"", "Ready for command"}) {
        SCOPED_TRACE(command);

        Deliver(command);
        Tick(20);

        EXPECT_TRUE(near.Log.empty());
        EXPECT_FALSE(controls.tmrOpenWith.Enabled());
        EXPECT_TRUE(controls.Text1.Text().ends_with("Excuted with command: " + std::string(command)));
    }
}

// ---- media files ----

TEST_F(HandOffRoom, AMediaFileIsCuedTakenIntoTheLibraryAndShown) {
    Deliver("\"C:\\m\\Sun - Rise.mp3\"");

    EXPECT_EQ(near.Cued, (Texts{"C:\\m\\Sun - Rise.mp3|Sun - Rise"}));
    EXPECT_EQ(near.Log, (Texts{"AddMediaFromCommand C:\\m\\Sun - Rise.mp3", "Command1"}));
    EXPECT_TRUE(ListMaybeChanged);
}

TEST_F(HandOffRoom, WhileTheListsAreNotLoadedTheyAreNotRebuilt) {
    session.FirstLoadDone = false;

    Deliver("\"C:\\a.mp3\"");

    EXPECT_EQ(Count(near.Log, "Command1"), 0);
    EXPECT_TRUE(controls.tmrOpenWith.Enabled());
}

TEST_F(HandOffRoom, AThousandAndOneFilesAreTaken) {
    Deliver(Quoted(Songs(1001)));
    EXPECT_EQ(OpenWith(), Songs(1001));
    Tick(10);

    Deliver(Quoted(Songs(1002)));
    EXPECT_EQ(OpenWith(), Songs(1001));
}

TEST_F(HandOffRoom, AShortNameIsExpandedBeforeItReachesTheLists) {
    files.AddFile("C:\\music~1\\A long name of a song.mp3");
    const std::string short_path = files.GetShortPathName("C:\\music~1\\A long name of a song.mp3");
    ASSERT_NE(short_path, "C:\\music~1\\A long name of a song.mp3");

    Deliver("\"" + short_path + "\"");

    EXPECT_EQ(OpenWith(), (Texts{"C:\\music~1\\A long name of a song.mp3"}));
    EXPECT_EQ(near.Cued, (Texts{"C:\\music~1\\A long name of a song.mp3|A long name of a song"}));
}

TEST_F(HandOffRoom, AmongSeveralFilesOneOfAFolderNamedAfterASiteIsNoAddress) {
    files.AddFile("C:\\my.net\\a.mp3");
    files.AddFile("C:\\my.net\\b.mp3");

    Deliver("\"C:\\my.net\\a.mp3\" \"C:\\my.net\\b.mp3\"");

    EXPECT_EQ(OpenWith(), (Texts{"C:\\my.net\\a.mp3", "C:\\my.net\\b.mp3"}));
    EXPECT_EQ(Count(near.Log, "EnterAsWeb C:\\my.net\\a.mp3"), 0);
}

TEST_F(HandOffRoom, ListsAndAddressesAmongFilesAreEnteredEachByItself) {
    Deliver("\"http://one/\" \"C:\\a.mp3\" \"C:\\b.mpl\" \"example.org\"");

    EXPECT_EQ(OpenWith(), (Texts{"C:\\a.mp3"}));
    EXPECT_EQ(near.Log, (Texts{"AddMediaFromCommand C:\\a.mp3", "Command1", "SetTyped http://one/",
                               "EnterAsWeb http://one/", "SetTyped C:\\b.mpl", "EnterAsWeb C:\\b.mpl",
                               "SetTyped example.org", "EnterAsWeb example.org"}));
}

// ---- the first file plays ----

TEST_F(HandOffRoom, TheFirstFilePlaysAtTheTenthTickAndLeavesTheCueList) {
    near.Cued = {"C:\\2.mp3|cued before"};
    Deliver(Quoted(Songs(3)));
    near.Log.clear();

    Tick(9);
    EXPECT_TRUE(near.Log.empty());
    EXPECT_TRUE(controls.tmrOpenWith.Enabled());
    Tick(1);

    EXPECT_EQ(near.Log, (Texts{"PlaySong C:\\1.mp3"}));
    EXPECT_EQ(near.Cued, (Texts{"C:\\2.mp3|cued before", "C:\\2.mp3|2", "C:\\3.mp3|3"}));
    EXPECT_EQ(controls.lstOpenWith.ListIndex(), 0);
    EXPECT_FALSE(controls.tmrOpenWith.Enabled());
    Tick(30);
    EXPECT_EQ(Count(near.Log, "PlaySong C:\\1.mp3"), 1);
}

TEST_F(HandOffRoom, TheFilesOfTheLastCommandStayListed) {
    Deliver(Quoted(Songs(2)));

    Tick(10);

    EXPECT_EQ(OpenWith(), Songs(2));
}

TEST_F(HandOffRoom, AFileOpenedWhileOnePlaysIsTheOneThatPlays) {
    Deliver("\"C:\\one.mp3\"");
    Tick(10);

    Deliver("\"C:\\two.mp3\"");
    Tick(10);

    EXPECT_EQ(near.Log.back(), "PlaySong C:\\two.mp3");
    EXPECT_TRUE(near.Cued.empty());
    EXPECT_EQ(OpenWith(), (Texts{"C:\\two.mp3"}));
}

TEST_F(HandOffRoom, FilesThatComeWithinASecondOfOneAnotherAreOneList) {
    for (const std::string& path : Songs(20)) {
        Deliver("\"" + path + "\"");
        Tick(9);
    }
    EXPECT_EQ(Count(near.Log, "PlaySong C:\\1.mp3"), 0);
    Tick(1);

    EXPECT_EQ(near.Log.back(), "PlaySong C:\\1.mp3");
    EXPECT_EQ(near.Cued.size(), 19U);
}

TEST_F(HandOffRoom, ATickWaitsForTheCommandThatIsProcessed) {
    Deliver("\"C:\\1.mp3\"");
    Tick(9);
    near.OnAddMedia = [this] { Tick(20); };

    Deliver("\"C:\\2.mp3\" \"C:\\3.mp3\"");
    EXPECT_EQ(Count(near.Log, "PlaySong C:\\1.mp3"), 0);
    near.OnAddMedia = {};
    Tick(10);

    EXPECT_EQ(near.Log.back(), "PlaySong C:\\1.mp3");
    EXPECT_EQ(near.Cued, (Texts{"C:\\2.mp3|2", "C:\\3.mp3|3"}));
}

// ---- commands that wait ----

TEST_F(HandOffRoom, ACommandThatComesWhileOneIsProcessedWaitsForItsTurn) {
    bool first = true;
    Texts log_at_first;
    near.OnAddMedia = [&] {
        if (!std::exchange(first, false)) return;
        later.HandOff("\"C:\\b.mp3\"");
        later.HandOff("\"example.org\"");
        log_at_first = {controls.Text1.Text(), controls.cmdDummy.Caption()};
    };

    later.HandOff("\"C:\\a.mp3\" \"C:\\a2.mp3\"");

    EXPECT_EQ(log_at_first,
              (Texts{"Excuted with command: \"C:\\a.mp3\" \"C:\\a2.mp3\"", "\"C:\\a.mp3\" \"C:\\a2.mp3\""}));
    EXPECT_EQ(OpenWith(), (Texts{"C:\\a.mp3", "C:\\a2.mp3", "C:\\b.mp3"}));
    EXPECT_EQ(near.Log.back(), "EnterAsWeb example.org");
    EXPECT_FALSE(controls.tmrWaiting.Enabled());
}

TEST_F(HandOffRoom, WhatComesDuringTheProgramsOwnCommandFollowsIt) {
    bool first = true;
    near.OnAddMedia = [&] {
        if (std::exchange(first, false)) later.HandOff("\"C:\\b.mp3\"");
    };

    Deliver("\"C:\\a.mp3\"");
    EXPECT_EQ(OpenWith(), (Texts{"C:\\a.mp3"}));
    Tick(1);

    EXPECT_EQ(OpenWith(), (Texts{"C:\\a.mp3", "C:\\b.mp3"}));
}

TEST_F(HandOffRoom, CommandsOfOthersWaitForTheMainWindowOfAUser) {
    session.LoggedIn = false;
    splash.Show();
    later.HandOff("\"C:\\a.mp3\"");
    later.HandOff("\"example.org\"");
    Tick(20);
    EXPECT_EQ(controls.Text1.Text(), "");
    EXPECT_TRUE(near.Log.empty());
    session.LoggedIn = true;
    Tick(20);
    EXPECT_TRUE(near.Log.empty());

    splash.Hide();
    Tick(1);

    EXPECT_EQ(OpenWith(), (Texts{"C:\\a.mp3"}));
    EXPECT_EQ(near.Log.back(), "EnterAsWeb example.org");
    EXPECT_FALSE(controls.tmrWaiting.Enabled());
}

TEST_F(HandOffRoom, TheProgramsOwnAddressWaitsForTheMainWindowItsFilesDoNot) {
    session.LoggedIn = false;
    session.FirstLoadDone = false;

    Deliver("\"http://one/\" \"C:\\a.mp3\"");
    EXPECT_EQ(near.Log, (Texts{"AddMediaFromCommand C:\\a.mp3"}));
    Tick(10);
    EXPECT_EQ(near.Log.back(), "PlaySong C:\\a.mp3");
    session.LoggedIn = true;
    session.FirstLoadDone = true;
    Tick(1);

    EXPECT_EQ(near.Log.back(), "EnterAsWeb http://one/");
    EXPECT_FALSE(controls.tmrWaiting.Enabled());
}

TEST_F(HandOffRoom, WhatWaitsWhenTheProgramEndsIsDropped) {
    session.LoggedIn = false;
    Deliver("\"http://one/\"");
    later.HandOff("\"C:\\a.mp3\"");
    session.mainclose = true;
    Tick(1);
    EXPECT_FALSE(controls.tmrWaiting.Enabled());

    session.mainclose = false;
    session.LoggedIn = true;
    later.HandOff("");
    Tick(1);

    EXPECT_TRUE(near.Log.empty());
    EXPECT_TRUE(OpenWith().empty());
}

TEST_F(HandOffRoom, AnEndDuringACommandStopsItThere) {
    near.OnAddMedia = [this] { session.mainclose = true; };

    Deliver(Quoted(Songs(3)));
    Tick(20);

    EXPECT_EQ(near.Log, (Texts{"AddMediaFromCommand C:\\1.mp3"}));
}

// ---- log out ----

TEST_F(HandOffRoom, AFileWhoseUserLogsOutBeforeItPlaysStaysSilent) {
    Deliver("\"C:\\one.mp3\"");
    Tick(5);
    LogOut();
    Tick(20);
    EXPECT_EQ(near.Log, (Texts{"AddMediaFromCommand C:\\one.mp3", "Command1"}));
    session.LoggedIn = true;

    Deliver("\"C:\\two.mp3\"");
    Tick(10);

    EXPECT_EQ(OpenWith(), (Texts{"C:\\two.mp3"}));
    EXPECT_EQ(near.Log.back(), "PlaySong C:\\two.mp3");
}

TEST_F(HandOffRoom, ALogOutRightBeforeTheFirstFilePlaysKeepsItSilent) {
    Deliver("\"C:\\one.mp3\"");
    Tick(9);
    desktop.Post([this] { LogOut(); });

    Tick(1);

    EXPECT_EQ(near.Log, (Texts{"AddMediaFromCommand C:\\one.mp3", "Command1"}));
}

TEST_F(HandOffRoom, ALogOutDuringACommandEndsItThere) {
    near.OnAddMedia = [this] { LogOut(); };

    Deliver("\"C:\\1.mp3\" \"C:\\2.mp3\" \"example.org\"");
    session.LoggedIn = true;
    Tick(20);

    EXPECT_EQ(near.Log, (Texts{"AddMediaFromCommand C:\\1.mp3"}));
    EXPECT_EQ(controls.cmdDummy.Caption(), "Ready for command");
}

TEST_F(HandOffRoom, ALogOutWhileATextIsEnteredLeavesTheOthersOut) {
    near.OnEnter = [this] { LogOut(); };

    Deliver("\"C:\\a.mpl\" \"http://one/\"");
    session.LoggedIn = true;
    Tick(20);

    EXPECT_EQ(near.Log, (Texts{"SetTyped C:\\a.mpl", "EnterAsWeb C:\\a.mpl"}));
}

TEST_F(HandOffRoom, WhatWaitsAtALogOutIsDroppedAndWhatComesLaterWaits) {
    bool first = true;
    near.OnAddMedia = [&] {
        if (!std::exchange(first, false)) return;
        later.HandOff("\"C:\\ann.mp3\"");
        LogOut();
        later.HandOff("\"C:\\bob.mp3\"");
    };

    Deliver("\"C:\\a.mp3\"");
    session.LoggedIn = true;
    Tick(1);

    EXPECT_EQ(OpenWith(), (Texts{"C:\\bob.mp3"}));
}

TEST_F(HandOffRoom, ACommandRightBeforeTheFirstFilePlaysDoesNotTakeItsPath) {
    Deliver("\"C:\\one.mp3\"");
    Tick(9);
    desktop.Post([this] { Deliver("\"C:\\two.mp3\""); });

    Tick(1);
    EXPECT_EQ(near.Log.back(), "PlaySong C:\\one.mp3");
    EXPECT_EQ(near.Cued, (Texts{"C:\\two.mp3|two"}));
    Tick(10);

    EXPECT_EQ(near.Log.back(), "PlaySong C:\\two.mp3");
}

TEST_F(HandOffRoom, SixtyFourStartsAtOnceAreEachTakenOnce) {
    const Texts songs = Songs(64);
    std::size_t next = 1;
    near.OnAddMedia = [&] {
        for (int i = 0; i < 3 && next < songs.size(); ++i, ++next)
            later.HandOff("\"" + songs[next] + "\"");
    };

    later.HandOff("\"" + songs[0] + "\"");
    Tick(10);

    EXPECT_EQ(OpenWith(), songs);
    EXPECT_EQ(near.Cued.size(), 63U);
    EXPECT_EQ(near.Log.back(), "PlaySong C:\\1.mp3");
}

// ---- the dialog ----

TEST_F(HandOffRoom, FilesChosenInTheDialogTakeTheWayOfACommand) {
    dialogs.Chosen = {{"/music/a.mp3", "/music/say \"b\".wav"}};

    menu.mnuOpenMediaFile.Click.Raise();
    Tick(10);

    ASSERT_EQ(dialogs.FileQuestions.size(), 1U);
    EXPECT_EQ(dialogs.FileQuestions[0].title, "Open Media File");
    EXPECT_EQ(Count(dialogs.FileQuestions[0].endings, ".mp3"), 1);
    EXPECT_EQ(Count(dialogs.FileQuestions[0].endings, ".mpeg"), 1);
    EXPECT_EQ(OpenWith(), (Texts{"C:\\music\\a.mp3", base::QuoteFree("C:\\music\\say \"b\".wav")}));
    EXPECT_EQ(near.Log.back(), "PlaySong C:\\music\\a.mp3");
}

TEST_F(HandOffRoom, ACancelledDialogDoesNothing) {
    menu.mnuOpenMediaFile.Click.Raise();

    EXPECT_EQ(controls.Text1.Text(), "");
    EXPECT_TRUE(near.Log.empty());
}

}  // namespace
