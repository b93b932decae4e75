#include "store/DataSource.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "fakes/SeededStores.h"

namespace {

using fakes::SeededStores;
using Texts = std::vector<std::string>;
namespace tblSong = store::tblSong;

Texts Walk(store::RecordSet& records, store::Field field) {
    Texts texts;
    for (records.MoveFirst(); !records.Eof(); records.MoveNext())
        texts.emplace_back(records.Text(field));
    return texts;
}

TEST(DataSource, HasItsNameAndIsNotBoundAtFirst) {
    store::DataSource datSong("datSong");

    EXPECT_EQ(datSong.Name(), "datSong");
    EXPECT_FALSE(datSong.IsBound());
    EXPECT_FALSE(datSong.Open(store::kAllSongs));
}

TEST(DataSource, OpensEveryQueryInUseOnItsStore) {
    struct Case {
        std::string_view query;
        std::string_view path;
    };
    SeededStores stores;
    for (const Case& one : {Case{store::kAllSongs, SeededStores::kMediaPath},
                            Case{store::kAllPlayListRows, SeededStores::kMediaPath},
                            Case{store::kAllPlayListRowsToDelete, SeededStores::kMediaPath},
                            Case{store::kAllFolders, SeededStores::kMediaPath},
                            Case{store::kSongById, SeededStores::kMediaPath},
                            Case{store::kSongsByArtist, SeededStores::kMediaPath},
                            Case{store::kAllFavourites, SeededStores::kFavouritesPath},
                            Case{store::kAllHistory, SeededStores::kHistoryPath},
                            Case{store::kAllUsers, SeededStores::kLoginPath}}) {
        store::DataSource source("dat");
        source.SetDatabaseName(stores.Stores, one.path);

        EXPECT_TRUE(source.Open(one.query)) << one.query;
        EXPECT_EQ(source.RecordSource(), one.query);
    }
}

TEST(DataSource, ReachesOneTableByBothSpellingsOfItsName) {
    SeededStores stores;
    stores.Seed("tblPlayList", {{"1", "Mix"}});
    store::DataSource source("datPlayList");
    stores.Bind(source, "tblPlayList");
    source.Open(store::kAllPlayListRowsToDelete);
    source.Recordset().Delete();

    source.Open(store::kAllPlayListRows);

    EXPECT_TRUE(source.Recordset().Eof());
}

TEST(DataSource, KeepsItsRecordSetWhenTheRecordSourceIsSetButNotRefreshed) {
    SeededStores stores;
    const auto source = stores.OpenTable("tblFavs");

    source->SetRecordSource(store::kFavouritesToDelete);

    EXPECT_EQ(source->Recordset().Text(store::tblFavs::GroupName), "Home Pages");
    EXPECT_EQ(source->RecordSource(), store::kFavouritesToDelete);
}

TEST(DataSource, KeepsItsRecordSetWhenTheTableDoesNotExist) {
    SeededStores stores;
    const auto source = stores.OpenTable("tblFavs");

    const bool refreshed = source->Open(store::kFavouritesToDelete);

    EXPECT_FALSE(refreshed);
    EXPECT_EQ(source->Recordset().Text(store::tblFavs::GroupName), "Home Pages");
    EXPECT_TRUE(stores.Trouble.Troubles.empty());
}

TEST(DataSource, RefusesOtherQueriesAndTablesOfOtherStores) {
    SeededStores stores;
    store::DataSource source("datSong");
    stores.Bind(source, "tblSong");

    for (const std::string_view query : {"", "DELETE from tblSong", "SELECT * from ", "SELECT * from tblFavs",
                                         "SELECT * from tblSong where [SongID] = 1"}) {
        EXPECT_FALSE(source.Open(query)) << query;
    }
}

TEST(DataSource, RefusesAPathThatIsNoStores) {
    SeededStores stores;
    store::DataSource source("datSong");
    source.SetDatabaseName(stores.Stores, "C:\\app\\other.mdb");

    EXPECT_FALSE(source.Open(store::kAllSongs));
}

TEST(DataSource, RefreshGoesToTheFirstRowAgain) {
    SeededStores stores;
    const auto source = stores.OpenTable("tblHistory");
    source->Recordset().MoveLast();

    source->Refresh();

    EXPECT_EQ(source->Recordset().Text(store::tblHistory::HistoryID), "1");
}

TEST(DataSource, TheQueryByIdGivesEverySong) {
    SeededStores stores;
    stores.Seed("tblSong", {{"1"}, {"2"}, {"3"}});
    const auto source = stores.OpenTable("tblSong");

    source->Open(store::kSongById);

    EXPECT_EQ(Walk(source->Recordset(), tblSong::SongID), (Texts{"1", "2", "3"}));
}

class SongsByArtist : public testing::Test {
protected:
    SongsByArtist() {
        stores_.Seed("tblSong", {{"1", "beta"},
                                 {"2", "Alpha"},
                                 {"3", "Beta"},
                                 {"4",
                                  "\xc3\x89"
                                  "ole"},
                                 {"5", "alpha"},
                                 {"6", ""},
                                 {"7",
                                  "\xc3\xa9"
                                  "cole"},
                                 {"8", "BETA"}});
        source_ = stores_.OpenTable("tblSong");
    }

    store::RecordSet& Sorted() {
        source_->Open(store::kSongsByArtist);
        return source_->Recordset();
    }

    SeededStores stores_;
    std::unique_ptr<store::DataSource> source_;
};

TEST_F(SongsByArtist, AreInOrderWithoutRegardToCaseAndEqualArtistsInTableOrder) {
    const Texts ids = Walk(Sorted(), tblSong::SongID);

    EXPECT_EQ(ids, (Texts{"6", "2", "5", "1", "3", "8", "7", "4"}));
}

TEST_F(SongsByArtist, WalkBackwardsInTheOppositeOrder) {
    store::RecordSet& records = Sorted();
    Texts ids;

    for (records.MoveLast(); !records.Bof(); records.MovePrevious())
        ids.emplace_back(records.Text(tblSong::SongID));

    EXPECT_EQ(ids, (Texts{"4", "7", "8", "3", "1", "5", "2", "6"}));
}

TEST_F(SongsByArtist, PassOverDeletedSongsAndMeetNewOnesLast) {
    store::RecordSet& records = Sorted();
    records.Delete();
    records.AddNew();
    records.Set(tblSong::SongID, "9");
    records.Set(tblSong::artist, "Aaron");
    records.Update();

    const Texts ids = Walk(records, tblSong::SongID);
    records.MoveLast();
    const std::string last(records.Text(tblSong::SongID));
    records.MovePrevious();

    EXPECT_EQ(ids, (Texts{"2", "5", "1", "3", "8", "7", "4", "9"}));
    EXPECT_EQ(last, "9");
    EXPECT_EQ(records.Text(tblSong::SongID), "4");
}

TEST_F(SongsByArtist, OfAnEmptiedTableMeetSongsAddedLater) {
    store::RecordSet& records = source_->Recordset();
    for (records.MoveFirst(); !records.Eof(); records.MoveNext())
        records.Delete();
    Sorted();
    records.AddNew();
    records.Set(tblSong::SongID, "1");
    records.Update();

    EXPECT_EQ(Walk(records, tblSong::SongID), (Texts{"1"}));
}

}  // namespace
