#include "store/Stores.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "fakes/SeededStores.h"

namespace {

using fakes::FakeDatabase;
using fakes::FakeDesktop;
using fakes::RecordingTrouble;
using fakes::SeededStores;
using ports::DatabaseError;
namespace tblSong = store::tblSong;

constexpr std::string_view kMedia = SeededStores::kMediaPath;

class StoresTest : public testing::Test {
protected:
    StoresTest() : stores_(desktop_) { source_.SetDatabaseName(stores_.Stores, kMedia); }

    void AddSong(std::string_view id) {
        source_.Open(store::kAllSongs);
        source_.Recordset().AddNew();
        source_.Recordset().Set(tblSong::SongID, id);
        source_.Recordset().Update();
    }
    // As the file has them, without writing anything.
    std::vector<std::string> SongsInFile() {
        std::vector<std::string> ids;
        for (const FakeDatabase::Row& row : stores_.Database.Rows(kMedia, "tblSong"))
            ids.push_back(row[0]);
        return ids;
    }
    using Texts = std::vector<std::string>;

    FakeDesktop desktop_;
    SeededStores stores_;
    store::DataSource source_{"datSong"};
};

TEST_F(StoresTest, OpenNothingBeforeTheFirstUse) {
    EXPECT_EQ(stores_.Database.Opens, 0);
}

TEST_F(StoresTest, OpenAFileOnceForAllItsTablesAndSources) {
    store::DataSource other("datAdd");
    stores_.Bind(other, "tblPlayList");

    source_.Open(store::kAllSongs);
    source_.Open(store::kAllPlayListRows);
    other.Open(store::kAllSongs);

    EXPECT_EQ(stores_.Database.Opens, 1);
}

TEST_F(StoresTest, WriteAtTheEndOfTheHandlerInOneTransaction) {
    AddSong("1");
    AddSong("2");
    const Texts before = SongsInFile();
    desktop_.EndHandler();

    EXPECT_TRUE(before.empty());
    EXPECT_EQ(SongsInFile(), (Texts{"1", "2"}));
    EXPECT_EQ(stores_.Database.Commits, 1);
}

TEST_F(StoresTest, WriteBeforeAYieldRunsOtherEvents) {
    Texts seen_by_the_event;
    desktop_.Post([&] { seen_by_the_event = SongsInFile(); });
    AddSong("1");

    desktop_.Yield();

    EXPECT_EQ(seen_by_the_event, (Texts{"1"}));
}

TEST_F(StoresTest, WriteTheTablesOfOneFileTogether) {
    AddSong("1");
    source_.Open(store::kAllPlayListRows);
    source_.Recordset().AddNew();
    source_.Recordset().Set(store::tblPlayList::Name, "Mix");
    source_.Recordset().Update();

    desktop_.EndHandler();

    EXPECT_EQ(stores_.Database.Commits, 1);
    EXPECT_EQ(stores_.Database.Rows(kMedia, "tblPlayList").size(), 1U);
}

TEST_F(StoresTest, WriteNothingWhenNothingChanged) {
    source_.Open(store::kAllSongs);

    desktop_.EndHandler();

    EXPECT_EQ(stores_.Database.Attempts, 0);
}

TEST_F(StoresTest, WriteEveryKindOfChange) {
    stores_.Seed("tblSong", {{"1", "a"}, {"2", "b"}, {"3", "c"}});
    source_.Open(store::kAllSongs);
    store::RecordSet& records = source_.Recordset();
    records.Delete();
    records.MoveNext();
    records.Edit();
    records.Set(tblSong::artist, "B");
    records.Update();
    AddSong("4");

    desktop_.EndHandler();

    EXPECT_EQ(stores_.Database.Rows(kMedia, "tblSong"),
              (std::vector<FakeDatabase::Row>{
                  {"2", "B", "", "", ""}, {"3", "c", "", "", ""}, {"4", "", "", "", ""}}));
}

TEST_F(StoresTest, NeverWriteARowThatWasAddedAndDeletedInOneHandler) {
    AddSong("1");
    AddSong("2");
    source_.Recordset().MoveFirst();
    source_.Recordset().Delete();

    desktop_.EndHandler();

    EXPECT_EQ(SongsInFile(), (Texts{"2"}));
}

TEST_F(StoresTest, GiveNewRowsNumbersBehindThoseInTheFile) {
    stores_.Seed("tblSong", {{"1"}, {"2"}});
    source_.Open(store::kAllSongs);
    source_.Recordset().MoveLast();
    source_.Recordset().Delete();
    AddSong("2");

    desktop_.EndHandler();

    EXPECT_EQ(stores_.Database.RowNumbers(kMedia, "tblSong"), (std::vector<std::int64_t>{1, 3}));
}

TEST_F(StoresTest, TellOfAFileThatCannotBeOpened) {
    stores_.Database.FailOpen(kMedia, DatabaseError::Damaged);

    const bool opened = source_.Open(store::kAllSongs);

    EXPECT_FALSE(opened);
    ASSERT_EQ(stores_.Trouble.Troubles.size(), 1U);
    EXPECT_EQ(stores_.Trouble.Troubles[0].file, kMedia);
    EXPECT_EQ(stores_.Trouble.Troubles[0].error, DatabaseError::Damaged);
    EXPECT_EQ(stores_.Trouble.Troubles[0].message,
              "The file \"dbMedia.mdb\" can not be opened: it is damaged or no database.");
}

TEST_F(StoresTest, TellOfATroubleOnceAndAgainWhenItTurnsIntoAnother) {
    stores_.Database.FailOpen(kMedia, DatabaseError::Missing);
    source_.Open(store::kAllSongs);
    source_.Open(store::kAllSongs);
    stores_.Database.FailOpen(kMedia, DatabaseError::Locked);
    source_.Open(store::kAllSongs);

    ASSERT_EQ(stores_.Trouble.Troubles.size(), 2U);
    EXPECT_EQ(stores_.Trouble.Troubles[1].error, DatabaseError::Locked);
}

TEST_F(StoresTest, OpenAFileThatWasHealed) {
    stores_.Database.FailOpen(kMedia, DatabaseError::Locked);
    source_.Open(store::kAllSongs);
    stores_.Database.FailOpen(kMedia, DatabaseError::None);

    EXPECT_TRUE(source_.Open(store::kAllSongs));
}

TEST_F(StoresTest, KeepNothingOfALoadThatFailed) {
    stores_.Seed("tblSong", {{"1"}});
    stores_.Database.FailRead(kMedia, DatabaseError::Damaged);
    const bool first = source_.Open(store::kAllSongs);
    stores_.Database.FailRead(kMedia, DatabaseError::None);
    const bool second = source_.Open(store::kAllSongs);

    EXPECT_FALSE(first);
    EXPECT_TRUE(second);
    EXPECT_EQ(source_.Recordset().RecordCount(), 1U);
}

class LongTable : public StoresTest {
protected:
    static constexpr std::size_t kRows = 10'000;

    LongTable() {
        std::vector<FakeDatabase::Row> rows;
        for (std::size_t i = 1; i <= kRows; ++i)
            rows.push_back({std::to_string(i)});
        stores_.Seed("tblSong", rows);
    }
};

TEST_F(LongTable, IsReadInPiecesThatMakeTheWhole) {
    std::vector<std::size_t> read;
    do
        read.push_back(stores_.Database.RowsRead);
    while (source_.ReadPiece(store::kAllSongs));
    source_.Open(store::kAllSongs);

    EXPECT_GE(read.size(), 3U);
    EXPECT_EQ(source_.Recordset().RecordCount(), kRows);
    EXPECT_EQ(stores_.Database.RowsRead, kRows) << "no row is read twice";
    source_.Recordset().MoveLast();
    EXPECT_EQ(source_.Recordset().Text(tblSong::SongID), "10000");
}

TEST_F(LongTable, IsReadToItsEndForWhoNeedsItBetweenTwoPieces) {
    source_.ReadPiece(store::kAllSongs);

    source_.Open(store::kAllSongs);

    EXPECT_EQ(source_.Recordset().RecordCount(), kRows);
    EXPECT_EQ(stores_.Database.RowsRead, kRows);
    EXPECT_FALSE(source_.ReadPiece(store::kAllSongs));
}

TEST_F(LongTable, ThatFailsAtALaterPieceIsToldOnceAndReadAgainFromTheBeginning) {
    source_.ReadPiece(store::kAllSongs);
    stores_.Database.FailRead(kMedia, DatabaseError::Damaged);
    const bool more = source_.ReadPiece(store::kAllSongs);
    const bool opened = source_.Open(store::kAllSongs);
    stores_.Database.FailRead(kMedia, DatabaseError::None);

    EXPECT_FALSE(more);
    EXPECT_FALSE(opened);
    EXPECT_EQ(stores_.Trouble.Troubles.size(), 1U);
    EXPECT_TRUE(source_.Open(store::kAllSongs));
    EXPECT_EQ(source_.Recordset().RecordCount(), kRows);
}

TEST_F(StoresTest, HaveNoPiecesOfWhatIsNoTable) {
    store::DataSource unbound("datAdd");

    EXPECT_FALSE(unbound.ReadPiece(store::kAllSongs));
    EXPECT_FALSE(source_.ReadPiece("SELECT * from tblNothing"));
    EXPECT_FALSE(source_.ReadPiece("nothing"));
}

TEST_F(StoresTest, TellOfAFailedWriteAtTheTimeAndKeepTheChanges) {
    stores_.Database.FailApply(kMedia, DatabaseError::DiskFull);
    AddSong("1");
    desktop_.EndHandler();

    ASSERT_EQ(stores_.Trouble.Troubles.size(), 1U);
    EXPECT_EQ(stores_.Trouble.Troubles[0].error, DatabaseError::DiskFull);
    EXPECT_EQ(stores_.Trouble.Troubles[0].message,
              "The file \"dbMedia.mdb\" can not be written: the disk is full.\n"
              "Your changes are kept while the program runs, and saved as soon as the file can be written.");
    source_.Recordset().MoveLast();
    EXPECT_EQ(source_.Recordset().Text(tblSong::SongID), "1");
}

TEST_F(StoresTest, WriteWhatFailedAtALaterEndOfAHandler) {
    stores_.Database.FailApply(kMedia, DatabaseError::Locked);
    AddSong("1");
    desktop_.EndHandler();
    AddSong("2");
    stores_.Database.FailApply(kMedia, DatabaseError::None);

    desktop_.EndHandler();

    EXPECT_EQ(SongsInFile(), (Texts{"1", "2"}));
    EXPECT_EQ(stores_.Trouble.Troubles.size(), 1U);
}

TEST_F(StoresTest, TryALastingTroubleLessAndLessOftenAndWithoutWaiting) {
    stores_.Database.FailApply(kMedia, DatabaseError::Locked);
    AddSong("1");
    desktop_.EndHandler();
    const int first_wait = stores_.Database.LastWait;

    for (int i = 0; i < 320; ++i)
        desktop_.EndHandler();

    EXPECT_GT(first_wait, 0);
    EXPECT_EQ(stores_.Database.LastWait, 0);
    EXPECT_GE(stores_.Database.Attempts, 10);
    EXPECT_LE(stores_.Database.Attempts, 16);
    EXPECT_EQ(stores_.Trouble.Troubles.size(), 1U);
}

TEST_F(StoresTest, TellOfATroubleThatCameBack) {
    stores_.Database.FailApply(kMedia, DatabaseError::Locked);
    AddSong("1");
    desktop_.EndHandler();
    stores_.Database.FailApply(kMedia, DatabaseError::None);
    desktop_.EndHandler();
    stores_.Database.FailApply(kMedia, DatabaseError::Locked);
    AddSong("2");
    desktop_.EndHandler();

    EXPECT_EQ(stores_.Trouble.Troubles.size(), 2U);
}

TEST_F(StoresTest, ATroubleOfOneFileDoesNotHoldUpAnother) {
    stores_.Database.FailApply(kMedia, DatabaseError::ReadOnly);
    AddSong("1");
    const auto favourites = stores_.OpenTable("tblFavs");
    favourites->Recordset().Delete();

    desktop_.EndHandler();

    EXPECT_TRUE(stores_.Database.Rows(SeededStores::kFavouritesPath, "tblFavs").empty());
}

TEST_F(StoresTest, CloseWritesWhatIsLeft) {
    AddSong("1");

    const bool closed = stores_.Stores.Close();

    EXPECT_TRUE(closed);
    EXPECT_EQ(SongsInFile(), (Texts{"1"}));
}

TEST_F(StoresTest, CloseTellsOfChangesThatCouldNotBeWrittenAndKeepsThem) {
    stores_.Database.FailApply(kMedia, DatabaseError::DiskFull);
    AddSong("1");
    const bool first = stores_.Stores.Close();
    stores_.Database.FailApply(kMedia, DatabaseError::None);
    const bool second = stores_.Stores.Close();

    EXPECT_FALSE(first);
    EXPECT_TRUE(second);
    EXPECT_EQ(SongsInFile(), (Texts{"1"}));
}

TEST_F(StoresTest, CommitAllTriesAtOnceWhateverFailedBefore) {
    stores_.Database.FailApply(kMedia, DatabaseError::Locked);
    AddSong("1");
    for (int i = 0; i < 20; ++i)
        desktop_.EndHandler();
    stores_.Database.FailApply(kMedia, DatabaseError::None);

    const bool committed = stores_.Stores.CommitAll();

    EXPECT_TRUE(committed);
    EXPECT_EQ(SongsInFile(), (Texts{"1"}));
    EXPECT_GT(stores_.Database.LastWait, 0);
}

TEST_F(StoresTest, WhatIsUnwrittenIsSaidInASentenceAFile) {
    AddSong("1");
    const auto favourites = stores_.OpenTable("tblFavs");
    favourites->Recordset().Delete();
    EXPECT_EQ(stores_.Stores.WhyUnwritten(), "");
    stores_.Database.FailApply(kMedia, DatabaseError::DiskFull);
    stores_.Database.FailApply(SeededStores::kFavouritesPath, DatabaseError::Locked);
    stores_.Stores.CommitAll();

    EXPECT_EQ(stores_.Stores.WhyUnwritten(),
              "The file \"dbMedia.mdb\" can not be written: the disk is full.\n"
              "The file \"dbFavs.mdb\" can not be written: another program is holding it.");

    stores_.Database.FailApply(kMedia, DatabaseError::None);
    stores_.Database.FailApply(SeededStores::kFavouritesPath, DatabaseError::None);
    stores_.Stores.CommitAll();
    EXPECT_EQ(stores_.Stores.WhyUnwritten(), "");
}

TEST_F(StoresTest, AChangeAfterCloseOpensTheFileAgain) {
    AddSong("1");
    stores_.Stores.Close();
    AddSong("2");
    desktop_.EndHandler();

    EXPECT_EQ(SongsInFile(), (Texts{"1", "2"}));
    EXPECT_EQ(stores_.Database.Opens, 2);
}

TEST(Stores, EndBeforeTheLoopWithoutHarm) {
    FakeDesktop desktop;
    FakeDatabase database;
    RecordingTrouble trouble;
    std::optional<store::Stores> stores(std::in_place, database, desktop, trouble);
    stores.reset();

    desktop.EndHandler();

    EXPECT_EQ(database.Attempts, 0);
}

}  // namespace
