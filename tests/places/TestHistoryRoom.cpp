#include "fakes/RecordingPageEngine.h"
#include "places/PlacesHarness.h"
#include "store/Settings.h"

namespace {

using places_tests::Row;
using places_tests::Texts;
using roles::HistoryKind;

constexpr int kLastSetting = store::NumberOf(store::SettingsRow::EndMark);

/// Number of a history row, counted from 1 after the settings.
std::string Nth(int place) {
    return base::ToText(kLastSetting + place);
}

class HistoryRoom : public ::testing::Test {
protected:
    HistoryRoom() {
        stores.Bind(controls.datHistory, "tblHistory");
        stores.Bind(songs, "tblSong");
    }

    /// Rows after the settings.
    std::vector<Row> Log() {
        std::vector<Row> rows = stores.Rows("tblHistory");
        rows.erase(rows.begin(), rows.begin() + kLastSetting);
        return rows;
    }
    void SeedSong(int id, const std::string& path) {
        stores.Seed("tblSong", {{base::ToText(id), "Artist" + base::ToText(id), "Title", path, "0"}});
    }
    void Play(std::string_view path) { room.AddSiteToHistory(HistoryKind::Music, path); }

    fakes::FakeDesktop desktop;
    fakes::FakeDialogs boxes;
    fakes::SeededStores stores{desktop};
    places::HistoryControls controls;
    places::HistoryMenu menu;
    store::DataSource songs{"datSong"};
    bool Save_History = true;
    places_tests::RecordingAddressRow address;
    places_tests::FakeFrontPage page;
    places_tests::RecordingPlayedSongs played;
    fakes::RecordingPageEngine pages;
    places::HistoryRoom room{
        controls, menu, songs, Save_History, {.address = address, .page = page, .played = played},
        boxes,    pages};
};

TEST_F(HistoryRoom, AVisitedAddressBecomesTheLastRow) {
    room.AddSiteToHistory(HistoryKind::Web, "http://one.example/");

    EXPECT_EQ(Log(), (std::vector<Row>{{Nth(1), "Web", "http://one.example/"}}));
}

TEST_F(HistoryRoom, NumbersGoOnFromTheLastRow) {
    stores.Seed("tblHistory", {{"41", "Web", "http://old.example/"}});

    room.AddSiteToHistory(HistoryKind::Web, "http://new.example/");

    EXPECT_EQ(Log().back(), (Row{"42", "Web", "http://new.example/"}));
}

TEST_F(HistoryRoom, WithHistoryOffASongIsLoggedAndAnAddressIsNot) {
    Save_History = false;
    address.Text = "typed";

    room.AddSiteToHistory(HistoryKind::Web, "http://one.example/");
    room.AddSiteToHistory(HistoryKind::File, "C:\\a.txt");
    Play("C:\\Music\\a.mp3");

    EXPECT_EQ(Log(), (std::vector<Row>{{Nth(1), "Music", "C:\\Music\\a.mp3"}}));
}

TEST_F(HistoryRoom, TheSameAddressTwiceLeavesTheCaseOfTheFirstVisit) {
    room.AddSiteToHistory(HistoryKind::Web, "http://One.example/");

    room.AddSiteToHistory(HistoryKind::Web, "HTTP://one.EXAMPLE/");

    EXPECT_EQ(Log(), (std::vector<Row>{{Nth(1), "Web", "http://One.example/"}}));
}

TEST_F(HistoryRoom, ARepeatedVisitDoesNotMoveTheOldRow) {
    room.AddSiteToHistory(HistoryKind::Web, "http://one.example/");
    room.AddSiteToHistory(HistoryKind::Web, "http://two.example/");

    room.AddSiteToHistory(HistoryKind::Web, "http://one.example/");

    EXPECT_EQ(Log(), (std::vector<Row>{{Nth(1), "Web", "http://one.example/"},
                                       {Nth(2), "Web", "http://two.example/"}}));
}

TEST_F(HistoryRoom, ATextOfAnotherKindCountsAsKnown) {
    address.Text = "typed";
    room.AddSiteToHistory(HistoryKind::Web, "post");

    room.AddSiteToHistory(HistoryKind::Search, "post");

    EXPECT_EQ(Log().size(), 1U);
}

TEST_F(HistoryRoom, ATextEqualToASettingIsNotLogged) {
    room.AddSiteToHistory(HistoryKind::Web, "broad");

    EXPECT_TRUE(Log().empty());
}

TEST_F(HistoryRoom, ATypedTextNeedsAnAddressBoxThatIsNotBlank) {
    address.Text = "   ";

    for (const HistoryKind kind : {HistoryKind::File, HistoryKind::Search, HistoryKind::Msn})
        room.AddSiteToHistory(kind, "typed");

    EXPECT_TRUE(Log().empty());
}

TEST_F(HistoryRoom, AVisitedAddressIsLoggedWithAnEmptyAddressBox) {
    address.Text = "";

    room.AddSiteToHistory(HistoryKind::Web, "http://one.example/");

    EXPECT_EQ(Log().size(), 1U);
}

TEST_F(HistoryRoom, ATextOfBlanksIsNotLogged) {
    address.Text = "typed";

    room.AddSiteToHistory(HistoryKind::Search, "   ");
    room.AddSiteToHistory(HistoryKind::Web, "");

    EXPECT_TRUE(Log().empty());
}

TEST_F(HistoryRoom, ASongThatRepeatsTheLastOneAddsNoRowThoughPagesCameBetween) {
    Play("C:\\Music\\a.mp3");
    room.AddSiteToHistory(HistoryKind::Web, "http://one.example/");

    Play("c:\\music\\A.MP3");

    EXPECT_EQ(Log().size(), 2U);
}

TEST_F(HistoryRoom, SongsThatTakeTurnsAddARowEach) {
    Play("C:\\Music\\a.mp3");
    Play("C:\\Music\\b.mp3");

    Play("C:\\Music\\a.mp3");

    ASSERT_EQ(Log().size(), 3U);
    EXPECT_EQ(Log().back(), (Row{Nth(3), "Music", "C:\\Music\\a.mp3"}));
}

TEST_F(HistoryRoom, TheHighestNumberIsCarriedAgain) {
    stores.Seed("tblHistory", {{"32767", "Web", "http://old.example/"}});

    room.AddSiteToHistory(HistoryKind::Web, "http://one.example/");
    room.AddSiteToHistory(HistoryKind::Web, "http://two.example/");

    EXPECT_EQ(Log(), (std::vector<Row>{{"32767", "Web", "http://old.example/"},
                                       {"32767", "Web", "http://one.example/"},
                                       {"32767", "Web", "http://two.example/"}}));
}

TEST_F(HistoryRoom, SongsBehindTheHighestNumberKeepTheirOrder) {
    for (int i = 1; i <= 3; ++i)
        SeedSong(i, "C:\\" + base::ToText(i) + ".mp3");
    stores.Seed("tblHistory", {{"32767", "Music", "C:\\1.mp3"}});
    Play("C:\\2.mp3");
    Play("C:\\2.mp3");
    Play("C:\\3.mp3");

    room.PopulateHistory(HistoryKind::Music);

    EXPECT_EQ(played.Songs, (Texts{"3|Artist3 - Title", "2|Artist2 - Title", "1|Artist1 - Title"}));
}

TEST_F(HistoryRoom, ANumberOutOfRangeIsFollowedByTheHighest) {
    stores.Seed("tblHistory", {{"40000", "Web", "http://old.example/"}});

    room.AddSiteToHistory(HistoryKind::Web, "http://one.example/");

    EXPECT_EQ(Log().back(), (Row{"32767", "Web", "http://one.example/"}));
}

TEST_F(HistoryRoom, TheLargestNumberOfAllIsFollowedByTheHighest) {
    stores.Seed("tblHistory", {{"9223372036854775807", "Web", "http://old.example/"}});

    room.AddSiteToHistory(HistoryKind::Web, "http://one.example/");

    EXPECT_EQ(Log().back(), (Row{"32767", "Web", "http://one.example/"}));
}

TEST_F(HistoryRoom, RowsBehindTheHighestNumberAreDeletedToo) {
    stores.Seed("tblHistory", {{"32767", "Web", "http://old.example/"}});
    room.AddSiteToHistory(HistoryKind::Web, "http://one.example/");
    boxes.Answers = {ports::BoxAnswer::Yes};

    menu.mnuHistory.Click.Raise();

    EXPECT_EQ(stores.Rows("tblHistory").size(), 10U);
    room.AddSiteToHistory(HistoryKind::Web, "http://one.example/");
    EXPECT_EQ(stores.Rows("tblHistory").back(), (Row{"11", "Web", "http://one.example/"}));
}

TEST_F(HistoryRoom, DeletingItForgetsWhatPagesLeft) {
    boxes.Answers = {ports::BoxAnswer::Yes};

    menu.mnuHistory.Click.Raise();

    EXPECT_EQ(pages.Log, Texts{"Forget"});
}

TEST_F(HistoryRoom, KeepingItKeepsWhatPagesLeft) {
    boxes.Answers = {ports::BoxAnswer::No};

    menu.mnuHistory.Click.Raise();

    EXPECT_TRUE(pages.Log.empty());
}

TEST_F(HistoryRoom, AnEmptyTableBeginsAtOne) {
    controls.datHistory.Open(store::kAllHistory);
    store::RecordSet& rows = controls.datHistory.Recordset();
    for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext())
        rows.Delete();

    Play("C:\\a.mp3");

    EXPECT_EQ(stores.Rows("tblHistory"), (std::vector<Row>{{"1", "Music", "C:\\a.mp3"}}));
}

TEST_F(HistoryRoom, EachKindIsStoredAsItWasGivenAndBlanksStay) {
    address.Text = "typed";
    const std::string long_text(10'000, 'x');

    room.AddSiteToHistory(HistoryKind::Msn, " hello ");
    room.AddSiteToHistory(HistoryKind::File, "C:\\a.txt");
    room.AddSiteToHistory(HistoryKind::Search, "two\r\nlines");
    room.AddSiteToHistory(HistoryKind::Web, long_text);

    EXPECT_EQ(Log(), (std::vector<Row>{{Nth(1), "MSN", " hello "},
                                       {Nth(2), "File", "C:\\a.txt"},
                                       {Nth(3), "Search", "two\r\nlines"},
                                       {Nth(4), "Web", long_text}}));
}

TEST_F(HistoryRoom, CaseIsIgnoredInEveryAlphabet) {
    room.AddSiteToHistory(HistoryKind::Web, "http://\u00c9t\u00c9.example/");

    room.AddSiteToHistory(HistoryKind::Web, "http://\u00e9t\u00e9.example/");

    EXPECT_EQ(Log().size(), 1U);
}

TEST_F(HistoryRoom, APlayedPathMayEqualAnAddress) {
    room.AddSiteToHistory(HistoryKind::Web, "C:\\a.mp3");

    Play("C:\\a.mp3");

    EXPECT_EQ(Log().back(), (Row{Nth(2), "Music", "C:\\a.mp3"}));
}

TEST_F(HistoryRoom, ARowThatCannotBeStoredIsToldOnceAndStoredLater) {
    for (const auto error :
         {ports::DatabaseError::DiskFull, ports::DatabaseError::Locked, ports::DatabaseError::ReadOnly}) {
        const std::size_t troubles = stores.Trouble.Troubles.size();
        stores.Database.FailApply(fakes::SeededStores::kHistoryPath, error);
        Play("C:\\" + base::ToText(static_cast<int>(error)) + ".mp3");
        desktop.EndHandler();
        EXPECT_EQ(stores.Trouble.Troubles.size(), troubles + 1);
        stores.Database.FailApply(fakes::SeededStores::kHistoryPath, ports::DatabaseError::None);
        desktop.EndHandler();
    }

    EXPECT_EQ(Log().size(), 3U);
}

TEST_F(HistoryRoom, AStoreThatCannotBeReadIsPassedOver) {
    stores.Database.FailOpen(fakes::SeededStores::kHistoryPath, ports::DatabaseError::Damaged);

    room.AddSiteToHistory(HistoryKind::Web, "http://one.example/");

    EXPECT_EQ(stores.Trouble.Troubles.size(), 1U);
    stores.Database.FailOpen(fakes::SeededStores::kHistoryPath, ports::DatabaseError::None);
    EXPECT_TRUE(Log().empty());
}

TEST_F(HistoryRoom, TheAddressListShowsItsKindOldestFirst) {
    stores.Seed("tblHistory", {{Nth(1), "Web", "http://one.example/"},
                               {Nth(2), "Search", "owls"},
                               {Nth(3), "web", "http://small.example/"},
                               {Nth(4), "Web", "http://two.example/"}});
    address.Text = "typed";
    address.List = {"old"};

    room.PopulateHistory(HistoryKind::Web);

    EXPECT_EQ(address.List, (Texts{"http://one.example/", "http://two.example/"}));
    EXPECT_EQ(address.Text, "");
}

TEST_F(HistoryRoom, TheAddressListHasNoLimit) {
    for (int i = 0; i < 300; ++i)
        stores.Seed("tblHistory", {{Nth(1 + i), "Web", base::ToText(i)}});

    room.PopulateHistory(HistoryKind::Web);

    EXPECT_EQ(address.List.size(), 300U);
}

TEST_F(HistoryRoom, TheAddressOfTheVisiblePageIsShownInWebMode) {
    address.Type = roles::AddressMode::Web;
    page.Shown = true;
    page.Url = "http://one.example/";

    room.PopulateHistory(HistoryKind::Web);

    EXPECT_EQ(address.Typed, "http://one.example/");
}

TEST_F(HistoryRoom, TheTypedTextStaysWithoutAVisiblePageOrInAnotherMode) {
    address.Typed = "typed";
    page.Url = "http://one.example/";
    address.Type = roles::AddressMode::Web;
    room.PopulateHistory(HistoryKind::Web);
    address.Type = roles::AddressMode::File;
    page.Shown = true;

    room.PopulateHistory(HistoryKind::File);

    EXPECT_EQ(address.Typed, "typed");
}

TEST_F(HistoryRoom, TheLastPlayedSongsShowNewestFirst) {
    SeedSong(1, "C:\\a.mp3");
    SeedSong(2, "C:\\b.mp3");
    Play("C:\\a.mp3");
    Play("C:\\b.mp3");
    Play("C:\\a.mp3");

    room.PopulateHistory(HistoryKind::Music);

    EXPECT_EQ(played.Songs, (Texts{"1|Artist1 - Title", "2|Artist2 - Title", "1|Artist1 - Title"}));
    EXPECT_EQ(played.Log, (Texts{"begin", "end"}));
}

TEST_F(HistoryRoom, OfTwoSongsWithOnePathTheFirstIsShown) {
    SeedSong(7, "C:\\a.mp3");
    SeedSong(8, "C:\\a.mp3");
    Play("C:\\a.mp3");

    room.PopulateHistory(HistoryKind::Music);

    EXPECT_EQ(played.Songs, Texts{"7|Artist7 - Title"});
}

TEST_F(HistoryRoom, TheMusicViewLeavesTheAddressRowAlone) {
    room.AddSiteToHistory(HistoryKind::Web, "http://one.example/");
    address.Text = "typed";
    address.List = {"old"};
    page.Shown = true;
    address.Type = roles::AddressMode::Web;

    room.PopulateHistory(HistoryKind::Music);

    EXPECT_EQ(address.Text, "typed");
    EXPECT_EQ(address.List, Texts{"old"});
    EXPECT_EQ(address.Typed, "");
}

TEST_F(HistoryRoom, AnEmptyLogShowsNoSongs) {
    SeedSong(1, "C:\\a.mp3");

    room.PopulateHistory(HistoryKind::Music);

    EXPECT_TRUE(played.Songs.empty());
    EXPECT_EQ(played.Log, (Texts{"begin", "end"}));
}

TEST_F(HistoryRoom, TwentySongsAreShownAtMost) {
    for (int i = 1; i <= 25; ++i)
        SeedSong(i, "C:\\" + base::ToText(i) + ".mp3");
    for (int i = 1; i <= 25; ++i)
        Play("C:\\" + base::ToText(i) + ".mp3");

    room.PopulateHistory(HistoryKind::Music);

    ASSERT_EQ(played.Songs.size(), 20U);
    EXPECT_EQ(played.Songs.front(), "25|Artist25 - Title");
    EXPECT_EQ(played.Songs.back(), "6|Artist6 - Title");
}

TEST_F(HistoryRoom, SongsThatLeftTheLibraryShortenTheView) {
    for (int i = 1; i <= 22; ++i)
        SeedSong(i, "C:\\" + base::ToText(i) + ".mp3");
    for (int i = 1; i <= 25; ++i)
        Play("C:\\" + base::ToText(i) + ".mp3");

    room.PopulateHistory(HistoryKind::Music);

    ASSERT_EQ(played.Songs.size(), 17U);
    EXPECT_EQ(played.Songs.front(), "22|Artist22 - Title");
    EXPECT_EQ(played.Songs.back(), "6|Artist6 - Title");
}

TEST_F(HistoryRoom, ASongIsFoundByItsExactPathOnly) {
    SeedSong(1, "C:\\A.mp3");
    Play("C:\\a.mp3");

    room.PopulateHistory(HistoryKind::Music);

    EXPECT_TRUE(played.Songs.empty());
}

TEST_F(HistoryRoom, DeletingAsksFirst) {
    room.AddSiteToHistory(HistoryKind::Web, "http://one.example/");
    boxes.Answers = {ports::BoxAnswer::No};

    menu.mnuHistory.Click.Raise();

    ASSERT_EQ(boxes.Boxes.size(), 1U);
    EXPECT_EQ(boxes.Boxes[0].text, "Are you sure you want to delete all of your history?");
    EXPECT_EQ(boxes.Boxes[0].title, "Delete History");
    EXPECT_EQ(boxes.Boxes[0].buttons, ports::BoxButtons::YesNo);
    EXPECT_EQ(boxes.Boxes[0].icon, ports::BoxIcon::None);
    EXPECT_EQ(Log().size(), 1U);
    EXPECT_EQ(address.Clears, 0);
}

TEST_F(HistoryRoom, DeletingKeepsTheFirstTenRows) {
    Play("C:\\a.mp3");
    room.AddSiteToHistory(HistoryKind::Web, "http://one.example/");
    address.Text = "typed";
    address.List = {"http://one.example/"};
    boxes.Answers = {ports::BoxAnswer::Yes};

    menu.mnuHistory.Click.Raise();

    const std::vector<Row> rows = stores.Rows("tblHistory");
    ASSERT_EQ(rows.size(), 10U);
    for (std::size_t i = 0; i < rows.size(); ++i) {
        EXPECT_EQ(rows[i][0], base::ToText(static_cast<std::int64_t>(i) + 1));
        EXPECT_EQ(rows[i][1], "Settings");
    }
    EXPECT_TRUE(address.List.empty());
    EXPECT_EQ(address.Text, "typed");
    EXPECT_TRUE(played.Log.empty());
}

TEST_F(HistoryRoom, AfterADeletionNumbersGoOnFromEleven) {
    boxes.Answers = {ports::BoxAnswer::Yes};
    menu.mnuHistory.Click.Raise();

    room.AddSiteToHistory(HistoryKind::Web, "http://one.example/");

    EXPECT_EQ(stores.Rows("tblHistory").back(), (Row{"11", "Web", "http://one.example/"}));
}

}  // namespace
