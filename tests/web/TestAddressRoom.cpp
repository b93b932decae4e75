#include "web/WebHarness.h"

namespace {

using AddressRoom = web_tests::WebTest;
using web_tests::Calls;

const std::vector<std::string_view> kPlayerWords{"PlaySong", "AddMediaFromCommand", "AddSiteToHistory",
                                                 "AddPlayList", "Command1"};

TEST_F(AddressRoom, EnterOpensAnAddressInANewTab) {
    Enter("one.example");

    EXPECT_EQ(LastTab(), 1);
    EXPECT_EQ(groups.tabs.Browser(1).WaitingAddress(), "one.example");
    EXPECT_EQ(groups.address.txtAddress.Text(), "");
    EXPECT_EQ(groups.address.cmbAddress.Text(), "");
}

TEST_F(AddressRoom, EnterAlwaysOpensAnotherTab) {
    Enter("one.example");

    Enter("two.example");

    EXPECT_EQ(LastTab(), 2);
    EXPECT_EQ(groups.tabs.Browser(1).WaitingAddress(), "one.example");
}

TEST_F(AddressRoom, EnterRefillsTheHistoryOfItsMode) {
    Enter("one.example");

    EXPECT_EQ(near.Log, (Calls{"PopulateHistory Web", "KeyDown 13 0"}));
}

TEST_F(AddressRoom, TheHistoryIsLeftAloneWhileTheProgramLoads) {
    near.Loading = true;

    Enter("one.example");

    EXPECT_EQ(near.Log, Calls{"KeyDown 13 0"});
}

TEST_F(AddressRoom, OtherKeysOnlyReachTheShortcuts) {
    groups.address.txtAddress.SetText("one.exa");

    groups.address.txtAddress.KeyDown.Raise(173, 0);

    EXPECT_EQ(near.Log, Calls{"KeyDown 173 0"});
    EXPECT_EQ(groups.address.cmbAddress.Text(), "one.exa");
    EXPECT_EQ(groups.address.txtAddress.Text(), "one.exa");
    EXPECT_EQ(LastTab(), 0);
}

TEST_F(AddressRoom, PickingAnEarlierAddressGoesNowhereUntilEnter) {
    groups.address.cmbAddress.AddItem("http://one.example/");

    groups.address.cmbAddress.SetListIndex(0);

    EXPECT_EQ(groups.address.txtAddress.Text(), "http://one.example/");
    EXPECT_EQ(LastTab(), 0);
}

TEST_F(AddressRoom, APlayListIsAddedAndRemembered) {
    Enter("C:\\Lists\\Sunday.MPL");

    EXPECT_EQ(LoggedOf(kPlayerWords), (Calls{"AddPlayList C:\\Lists\\Sunday.MPL", "Command1",
                                             "AddSiteToHistory File C:\\Lists\\Sunday.MPL"}));
    EXPECT_EQ(LastTab(), 0);
    EXPECT_EQ(groups.address.txtAddress.Text(), "");
}

TEST_F(AddressRoom, AFiveCharacterNameIsTriedAsAFile) {
    files.AddFile("a.mp3");

    Enter("a.mp3");

    EXPECT_EQ(LoggedOf(kPlayerWords),
              (Calls{"AddSiteToHistory File a.mp3", "PlaySong a.mp3", "AddMediaFromCommand a.mp3"}));
    EXPECT_EQ(LastTab(), 0);
    EXPECT_EQ(desktop.Yields, 1);
}

TEST_F(AddressRoom, FourCharactersGoToTheWeb) {
    Enter(".mp3");

    EXPECT_TRUE(LoggedOf(kPlayerWords).empty());
    EXPECT_EQ(groups.tabs.Browser(1).WaitingAddress(), ".mp3");
}

TEST_F(AddressRoom, AMediaAddressThatCannotBePlayedOpensInATab) {
    Enter("http://one.example/a.mp3");

    EXPECT_EQ(near.Log, Calls{"AddSiteToHistory File http://one.example/a.mp3"}) << "and nothing else plays";
    EXPECT_EQ(groups.tabs.Browser(1).WaitingAddress(), "http://one.example/a.mp3");
}

TEST_F(AddressRoom, AMediaFileThatIsNotThereIsNeitherPlayedNorAddedAndItsTabSaysSo) {
    Enter("C:\\Music\\gone.mp3");

    EXPECT_EQ(near.Log, Calls{"AddSiteToHistory File C:\\Music\\gone.mp3"});
    EXPECT_EQ(groups.tabs.Browser(1).WaitingAddress(), "C:\\Music\\gone.mp3");
}

TEST_F(AddressRoom, AMediaFileThatGoesAwayMeanwhileOpensInATab) {
    files.AddFile("C:\\Music\\a.mp3");
    near.Unplayable = true;

    Enter("C:\\Music\\a.mp3");

    EXPECT_FALSE(Logged("AddMediaFromCommand C:\\Music\\a.mp3"));
    EXPECT_EQ(groups.tabs.Browser(1).WaitingAddress(), "C:\\Music\\a.mp3");
}

TEST_F(AddressRoom, WhatComesFromOutsideIsNotCut) {
    for (const char* page : {"https://one.example/Mercury_(planet)", "C:\\pages\\page (1).html"}) {
        rooms.Opener().EnterAsWeb(page);

        EXPECT_EQ(groups.tabs.Browser(LastTab()).WaitingAddress(), page);
    }
    rooms.Opener().EnterAsWeb("C:\\a.mpl");
    Enter("https://one.example/Mercury_(planet)");
    EXPECT_EQ(groups.tabs.Browser(LastTab()).WaitingAddress(), "https://one.example/Mercury_(planet")
        << "what is typed is";
}

TEST_F(AddressRoom, ATypedNativePathBecomesADrivePath) {
    files.AddFile("C:\\home\\owl\\a.mp3");
    Enter("/home/owl/a.mp3");

    EXPECT_TRUE(Logged("PlaySong C:\\home\\owl\\a.mp3"));
}

TEST_F(AddressRoom, ATypedNativePathOfAPageOpensInATab) {
    Enter("/home/owl/a.html");

    EXPECT_EQ(groups.tabs.Browser(1).WaitingAddress(), "C:\\home\\owl\\a.html");
}

TEST_F(AddressRoom, StartUpArgumentsAddTheUnchangedAddressOncePerCuedSong) {
    session.StartedWithArguments = true;
    near.Cued = 2;
    files.AddFile("C:\\a.mp3");

    Enter("C:\\a.mp3");

    EXPECT_EQ(LoggedOf({"SelectPath", "AddMediaFromCommand"}),
              (Calls{"AddMediaFromCommand C:\\a.mp3", "SelectPath 0", "AddMediaFromCommand C:\\a.mp3",
                     "SelectPath 1", "AddMediaFromCommand C:\\a.mp3"}));
    EXPECT_FALSE(session.StartedWithArguments);
    EXPECT_EQ(groups.address.cmbAddress.Text(), "");
}

TEST_F(AddressRoom, ALibraryChangedByTheKeyIsReloadedBeforeTheShortcuts) {
    near.WantsReload = &state;
    files.AddFile("C:\\a.mp3");

    Enter("C:\\a.mp3");

    EXPECT_EQ(LoggedOf({"Command1", "KeyDown"}), (Calls{"Command1", "KeyDown 13 0"}));
}

TEST_F(AddressRoom, TheWishToReloadIsForgottenAtTheNextKey) {
    state.ReloadLibraryAfterKey = true;

    groups.address.cmbAddress.KeyDown.Raise(65, 0);

    EXPECT_EQ(near.Log, Calls{"KeyDown 65 0"});
}

TEST_F(AddressRoom, MessengerTextBehindTheTrackIsTheCustomText) {
    ChooseMode("MSN");
    near.Track = "Owls - Nightjar";

    Enter("Owls - Nightjar at home");

    EXPECT_EQ(near.Log, (Calls{"AddSiteToHistory MSN Owls - Nightjar at home", "SetCustomText  at home",
                               "SendNowPlaying", "PopulateHistory MSN", "KeyDown 13 0"}));
}

TEST_F(AddressRoom, OtherMessengerTextIsSentTwice) {
    ChooseMode("MSN");
    near.Track = "Owls - Nightjar";

    Enter("gone fishing");

    EXPECT_EQ(LoggedOf({"Se"}), (Calls{"SetCustomText gone fishing", "SendNowPlaying", "SendNowPlaying"}));
}

TEST_F(AddressRoom, WithoutATrackTheWholeMessengerTextIsTheCustomText) {
    ChooseMode("MSN");

    Enter("gone fishing");

    EXPECT_EQ(LoggedOf({"Se"}), (Calls{"SetCustomText gone fishing", "SendNowPlaying"}));
}

TEST_F(AddressRoom, ATrackLongerThanTheTextByItsBlanksLeavesTheCustomText) {
    ChooseMode("MSN");
    near.Track = "Owls  ";

    Enter("Owls");

    EXPECT_EQ(LoggedOf({"Se"}), Calls{"SendNowPlaying"});
}

TEST_F(AddressRoom, ATrackThatBeginsInABlankIsFoundWithoutIt) {
    ChooseMode("MSN");
    near.Track = " - Nightjar";

    Enter("- Nightjar at home");

    EXPECT_EQ(LoggedOf({"Se"}), (Calls{"SetCustomText at home", "SendNowPlaying"}));
}

TEST_F(AddressRoom, FileModePlaysMediaAndEmptiesTheBoxBeforeTheHistory) {
    ChooseMode("File");

    Enter("C:\\a.wav");

    EXPECT_EQ(near.Log, (Calls{"PlaySong C:\\a.wav", "AddMediaFromCommand C:\\a.wav",
                               "AddSiteToHistory File C:\\a.wav", "PopulateHistory File", "KeyDown 13 0"}));
    EXPECT_EQ(groups.address.cmbAddress.Text(), "");
}

TEST_F(AddressRoom, FileModeOpensAFolder) {
    ChooseMode("File");

    Enter("C:\\Music");

    EXPECT_EQ(groups.tabs.Browser(1).WaitingAddress(), "C:\\Music");
}

TEST_F(AddressRoom, FileModeIgnoresWhatLooksLikeAWebAddress) {
    ChooseMode("File");

    for (const char* text : {"http://a", "https:", "www.a", "a.com", "a.net", "a.co.uk", "a.org", "x.php",
                             "x.asp", "C:\\page.html"}) {
        Enter(text);

        EXPECT_EQ(LastTab(), 0) << text;
        EXPECT_EQ(groups.address.txtAddress.Text(), "") << text;
    }
}

TEST_F(AddressRoom, SearchModeOpensTheSearchPage) {
    ChooseMode("Search");

    Enter(" tawny owls & co ");

    EXPECT_EQ(groups.tabs.Browser(1).WaitingAddress(),
              std::string(web::GoogleSearchUrl) + "?hl=en&q=tawny+owls+&+co&btnG=Google+Search&meta=");
    EXPECT_TRUE(Logged("AddSiteToHistory Search  tawny owls & co "));
    EXPECT_TRUE(Logged("PopulateHistory Search"));
}

TEST_F(AddressRoom, SearchWordsThatLookLikeAPathStayWhatTheyAre) {
    ChooseMode("Search");

    Enter("/etc");

    EXPECT_TRUE(Logged("AddSiteToHistory Search /etc"));
}

TEST_F(AddressRoom, AHistoryEntryWithATitleIsCutToItsAddress) {
    rooms.Opener().OpenTab(" Gig guide (http://one.example/gigs) ");

    EXPECT_EQ(groups.tabs.Browser(1).WaitingAddress(), "http://one.example/gigs");
    EXPECT_EQ(groups.address.Label2.Caption(), "Gig guide (http://one.example/gigs");
}

TEST_F(AddressRoom, ABracketWithoutAnAddressCostsTheLastCharacter) {
    rooms.Opener().OpenTab("Gig guide (late)");

    EXPECT_EQ(groups.tabs.Browser(1).WaitingAddress(), "Gig guide (late");
}

TEST_F(AddressRoom, EnterOnAnEmptyBoxMakesAnEmptyTab) {
    Enter("");

    EXPECT_EQ(LastTab(), 1);
    EXPECT_EQ(groups.tabs.Browser(1).WaitingAddress(), "");
}

TEST_F(AddressRoom, ChoosingAModeShowsItsHistory) {
    ChooseMode("Web");
    groups.address.txtAddress.SetText("half");

    groups.address.cmbType.SetText("File");

    EXPECT_EQ(near.Log, Calls{"PopulateHistory File"});
    EXPECT_EQ(groups.address.txtAddress.Text(), "");
}

TEST_F(AddressRoom, ClickingAnEmptyModeShowsTheWebAndTheAddressInFront) {
    Open("http://one.example/");
    near.Log.clear();
    groups.address.txtAddress.SetText("half");

    groups.address.cmbType.Click.Raise();

    EXPECT_EQ(near.Log, Calls{"PopulateHistory Web"});
    EXPECT_EQ(groups.address.txtAddress.Text(), "http://one.example/");
}

TEST_F(AddressRoom, ClickingAnEmptyModeWithoutTheTabInFrontShowsNoAddress) {
    state.currentbrowser = 1;
    groups.address.txtAddress.SetText("half");

    groups.address.cmbType.Click.Raise();

    EXPECT_EQ(groups.address.txtAddress.Text(), "");
}

TEST_F(AddressRoom, AddressesOfOtherSubjectsAreEnteredLikeTypedOnes) {
    files.AddFile("C:\\a.mp3");

    rooms.Opener().Enter("C:\\a.mp3");

    EXPECT_EQ(near.Log, (Calls{"AddSiteToHistory File C:\\a.mp3", "PlaySong C:\\a.mp3",
                               "AddMediaFromCommand C:\\a.mp3", "PopulateHistory Web", "KeyDown 13 0"}));
    EXPECT_EQ(groups.address.cmbAddress.Text(), "");
}

TEST_F(AddressRoom, AnOpenedTabHasTheNextIndexAndLeavesTheRowEmpty) {
    groups.address.txtAddress.SetText("half");

    rooms.Opener().OpenTab("one.example");

    EXPECT_EQ(state.NextBrowserIndex, 1);
    EXPECT_EQ(groups.tabs.Browser(1).WaitingAddress(), "one.example");
    EXPECT_EQ(groups.address.cmbAddress.Text(), "");
    EXPECT_EQ(groups.address.txtAddress.Text(), "");
}

TEST_F(AddressRoom, TheRowShowsTheAddressWhileItsTabIsMade) {
    struct RowAtFront final : controls::ControlObserver {
        explicit RowAtFront(const controls::ComboBox& row) : Row(row) {}
        void OnPropertyChanged(controls::Control&, controls::Property) override {
            if (Text.empty()) Text = Row.Text();
        }
        const controls::ComboBox& Row;
        std::string Text;
    } at_front{groups.address.cmbAddress};
    groups.tabs.imgMusicTab.SetObserver(&at_front);

    rooms.Opener().OpenTab("Gig guide (http://one.example/gigs)");

    EXPECT_EQ(at_front.Text, "http://one.example/gigs");
}

TEST_F(AddressRoom, AStaleAddressIsClearedUnderTheMusicTabOnly) {
    Open("http://one.example/");

    rooms.Address().ClearStaleAddress();
    EXPECT_EQ(groups.address.txtAddress.Text(), "http://one.example/");
    Click(groups.tabs.imgMusicTab);
    rooms.Address().ShowLocation("http://one.example/");
    rooms.Address().ClearStaleAddress();

    EXPECT_EQ(groups.address.txtAddress.Text(), "");
}

// The page that was last in front is often the one that is wanted again.
TEST_F(AddressRoom, ATypedTextIsNotStaleWhateverItReads) {
    Open("http://one.example/");
    Click(groups.tabs.imgMusicTab);
    for (const char* const typed : {"half", "http://one.example/"}) {
        groups.address.txtAddress.SetText(typed);

        rooms.Address().ClearStaleAddress();

        EXPECT_EQ(groups.address.txtAddress.Text(), typed);
    }
}

TEST_F(AddressRoom, AnAddressThatWasChosenIsNotStale) {
    Open("http://one.example/");
    Click(groups.tabs.imgMusicTab);
    groups.address.cmbAddress.SetText("http://one.example/");

    groups.address.cmbAddress.Click.Raise();
    rooms.Address().ClearStaleAddress();

    EXPECT_EQ(groups.address.txtAddress.Text(), "http://one.example/");
}

TEST_F(AddressRoom, KeysOnTheModeReachTheShortcuts) {
    groups.address.cmbType.KeyDown.Raise(176, 0);

    EXPECT_EQ(near.Log, Calls{"KeyDown 176 0"});
}

TEST_F(AddressRoom, DroppedTextIsPutIntoTheBoxAndStartsNothing) {
    controls::DropData data;
    data.HasText = true;
    data.Text = "http://one.example/";

    groups.address.txtAddress.OLEDragDrop.Raise(data, 0, 0);

    EXPECT_EQ(groups.address.cmbAddress.Text(), "http://one.example/");
    EXPECT_EQ(groups.address.txtAddress.Text(), "http://one.example/") << "it lies over the box";
    EXPECT_EQ(LastTab(), 0);
}

TEST_F(AddressRoom, TheFirstDroppedSongPlaysAndTheOthersAreCued) {
    controls::DropData data;
    data.Files = {"C:\\A - B.MP3", "C:\\x\\C - D.midi", "C:\\E.wav"};

    groups.address.cmbAddress.OLEDragDrop.Raise(data, 0, 0);

    EXPECT_EQ(near.Log, (Calls{"PlaySong C:\\A - B.MP3", "AddMediaFromCommand C:\\A - B.MP3",
                               "AddMediaFromCommand C:\\x\\C - D.midi", "CueFile C:\\x\\C - D.midi|C - D.",
                               "AddMediaFromCommand C:\\E.wav", "CueFile C:\\E.wav|E"}));
}

TEST_F(AddressRoom, ADroppedPictureOpensInATab) {
    controls::DropData data;
    data.Files = {"C:\\owl.png"};

    groups.address.txtAddress.OLEDragDrop.Raise(data, 0, 0);

    EXPECT_EQ(groups.tabs.Browser(1).WaitingAddress(), "C:\\owl.png");
}

TEST_F(AddressRoom, ADroppedFileWithoutADotCountsAsTheOneBefore) {
    controls::DropData data;
    data.Files = {"C:\\a.mp3", "C:\\noname"};

    groups.address.cmbAddress.OLEDragDrop.Raise(data, 0, 0);

    EXPECT_TRUE(Logged("CueFile C:\\noname|no"));
}

TEST_F(AddressRoom, APlayListDroppedOnTheTextBoxIsAdded) {
    controls::DropData data;
    data.Files = {"C:\\Sunday.mpl"};

    groups.address.txtAddress.OLEDragDrop.Raise(data, 0, 0);

    EXPECT_EQ(near.Log, (Calls{"AddPlayList C:\\Sunday.mpl", "Command1"}));
}

TEST_F(AddressRoom, SeveralDroppedPlayListsRebuildTheListsOnce) {
    controls::DropData data;
    data.Files = {"C:\\Sunday.mpl", "C:\\Monday.MPL"};

    groups.address.txtAddress.OLEDragDrop.Raise(data, 0, 0);

    EXPECT_EQ(near.Log, (Calls{"AddPlayList C:\\Sunday.mpl", "AddPlayList C:\\Monday.MPL", "Command1"}));
}

TEST_F(AddressRoom, AListOfAnotherPlayerIsReadWhereItsFileIs) {
    files.AddFile("C:\\Lists\\a.m3u");
    files.AddFile("C:\\Lists\\b c.XSPF");
    for (const char* text : {"C:\\Lists\\a.m3u", "/Lists/b c.XSPF", "file:///Lists/b%20c.XSPF"}) {
        near.Log.clear();

        Enter(text);

        const std::string path = text[0] == '/' ? "C:\\Lists\\b c.XSPF" : text;
        EXPECT_EQ(LoggedOf(kPlayerWords),
                  (Calls{"AddPlayList " + path, "Command1", "AddSiteToHistory File " + path}));
        EXPECT_EQ(groups.tabs.Browser.Count(), 1);
    }
}

TEST_F(AddressRoom, AnAddressThatEndsLikeAListOfAnotherPlayerIsAPage) {
    files.AddFolder("C:\\Lists\\folder.m3u");

    for (const char* text : {"http://one.example/radio.m3u8", "C:\\gone.pls", "C:\\Lists\\folder.m3u"})
        Enter(text);

    EXPECT_EQ(LoggedOf({"AddPlayList"}), Calls{});
    EXPECT_EQ(groups.tabs.Browser.Count(), 4);
}

TEST_F(AddressRoom, AListOfAnotherPlayerIsReadWhenItIsDropped) {
    files.AddFile("C:\\a.m3u8");
    controls::DropData data;
    data.Files = {"C:\\a.m3u8"};

    groups.address.txtAddress.OLEDragDrop.Raise(data, 0, 0);
    groups.address.cmbAddress.OLEDragDrop.Raise(data, 0, 0);

    EXPECT_EQ(LoggedOf({"AddPlayList"}), (Calls{"AddPlayList C:\\a.m3u8", "AddPlayList C:\\a.m3u8"}));
}

TEST_F(AddressRoom, APlayListDroppedOnTheListGoesTheWayOfEnter) {
    controls::DropData data;
    data.Files = {"C:\\Sunday.mpl"};

    groups.address.cmbAddress.OLEDragDrop.Raise(data, 0, 0);

    EXPECT_EQ(LoggedOf(kPlayerWords),
              (Calls{"AddPlayList C:\\Sunday.mpl", "Command1", "AddSiteToHistory File C:\\Sunday.mpl"}));
}

}  // namespace
