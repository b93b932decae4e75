#include "store/RecordSet.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "fakes/SeededStores.h"
#include "store/Settings.h"

namespace {

using fakes::SeededStores;
namespace tblSong = store::tblSong;
namespace tblFavs = store::tblFavs;
namespace tblHistory = store::tblHistory;

std::vector<std::string> Walk(store::RecordSet& records, store::Field field) {
    std::vector<std::string> texts;
    for (records.MoveFirst(); !records.Eof(); records.MoveNext())
        texts.emplace_back(records.Text(field));
    return texts;
}

void AddSong(store::RecordSet& records, std::string_view id, std::string_view title) {
    records.AddNew();
    records.Set(tblSong::SongID, id);
    records.Set(tblSong::title, title);
    records.Update();
}

class RecordSetOfThreeSongs : public testing::Test {
protected:
    RecordSetOfThreeSongs() {
        stores_.Seed("tblSong", {{"1", "Ann", "One", "C:\\m\\1.mp3", "0"},
                                 {"2", "Bob", "Two", "C:\\m\\2.mp3", "7"},
                                 {"3", "Cid", "Three", "C:\\m\\3.mp3", ""}});
        source_ = stores_.OpenTable("tblSong");
        other_source_ = stores_.OpenTable("tblSong");
    }

    store::RecordSet& Records() { return source_->Recordset(); }
    store::RecordSet& OtherRecords() { return other_source_->Recordset(); }
    std::vector<std::string> Titles() { return Walk(Records(), tblSong::title); }
    using Texts = std::vector<std::string>;

    SeededStores stores_;
    std::unique_ptr<store::DataSource> source_;
    std::unique_ptr<store::DataSource> other_source_;
};

TEST(RecordSet, IsAtBothEndsBeforeItsFirstRefresh) {
    store::RecordSet records;

    const bool moved =
        records.MoveFirst() || records.MoveLast() || records.MoveNext() || records.MovePrevious();

    EXPECT_FALSE(moved);
    EXPECT_TRUE(records.Eof());
    EXPECT_TRUE(records.Bof());
    EXPECT_EQ(records.RecordCount(), 0U);
    EXPECT_EQ(records.Text(tblSong::title), "");
    EXPECT_FALSE(records.AddNew());
    EXPECT_FALSE(records.Edit());
    EXPECT_FALSE(records.Delete());
}

TEST(RecordSet, OfATableWithoutRowsIsAtBothEnds) {
    SeededStores stores;
    const auto source = stores.OpenTable("tblSong");

    const bool moved = source->Recordset().MoveFirst() || source->Recordset().MoveLast();

    EXPECT_FALSE(moved);
    EXPECT_TRUE(source->Recordset().Eof());
    EXPECT_TRUE(source->Recordset().Bof());
}

TEST_F(RecordSetOfThreeSongs, StandsOnTheFirstRowAfterRefresh) {
    const std::string_view title = Records().Text(tblSong::title);

    EXPECT_EQ(title, "One");
    EXPECT_FALSE(Records().Eof());
    EXPECT_FALSE(Records().Bof());
    EXPECT_EQ(Records().RecordCount(), 3U);
}

TEST_F(RecordSetOfThreeSongs, WalksInTableOrderToEof) {
    EXPECT_EQ(Titles(), (Texts{"One", "Two", "Three"}));
    EXPECT_TRUE(Records().Eof());
    EXPECT_FALSE(Records().Bof());
    EXPECT_FALSE(Records().MoveNext());
    EXPECT_EQ(Records().Text(tblSong::title), "");
}

TEST_F(RecordSetOfThreeSongs, WalksBackwardsToBof) {
    Texts titles;

    for (Records().MoveLast(); !Records().Bof(); Records().MovePrevious()) {
        titles.emplace_back(Records().Text(tblSong::title));
    }

    EXPECT_EQ(titles, (Texts{"Three", "Two", "One"}));
    EXPECT_FALSE(Records().Eof());
    EXPECT_FALSE(Records().MovePrevious());
}

TEST_F(RecordSetOfThreeSongs, MovesToTheFirstRowWithAText) {
    AddSong(Records(), "4", "Two");

    const bool found = Records().MoveToFirst(tblSong::title, "Two");

    EXPECT_TRUE(found);
    EXPECT_EQ(Records().Text(tblSong::SongID), "2");
}

TEST_F(RecordSetOfThreeSongs, ATextThatNoRowHasLeadsToEof) {
    const bool found = Records().MoveToFirst(tblSong::title, "Tw");

    EXPECT_FALSE(found);
    EXPECT_TRUE(Records().Eof());
}

TEST_F(RecordSetOfThreeSongs, ADeletedRowIsNoRowWithItsText) {
    Records().MoveToFirst(tblSong::title, "Two");
    Records().Delete();

    EXPECT_FALSE(OtherRecords().MoveToFirst(tblSong::title, "Two"));
    EXPECT_TRUE(OtherRecords().MoveToFirst(tblSong::title, "Three"));
}

TEST_F(RecordSetOfThreeSongs, InAnotherOrderTheFirstRowIsTheFirstOfThatOrder) {
    AddSong(Records(), "4", "Same");
    Records().MoveLast();
    Records().Edit();
    Records().Set(tblSong::artist, "Zoe");
    Records().Update();
    AddSong(Records(), "5", "Same");
    Records().MoveLast();
    Records().Edit();
    Records().Set(tblSong::artist, "Ada");
    Records().Update();
    source_->Open(store::kSongsByArtist);

    const bool found = Records().MoveToFirst(tblSong::title, "Same");

    EXPECT_TRUE(found);
    EXPECT_EQ(Records().Text(tblSong::SongID), "5");
}

TEST_F(RecordSetOfThreeSongs, MovesBackIntoTheRowsFromBothEnds) {
    Records().MoveLast();
    Records().MoveNext();
    const bool back = Records().MovePrevious();
    const std::string last(Records().Text(tblSong::title));
    Records().MoveFirst();
    Records().MovePrevious();
    const bool forth = Records().MoveNext();

    EXPECT_TRUE(back);
    EXPECT_EQ(last, "Three");
    EXPECT_TRUE(forth);
    EXPECT_EQ(Records().Text(tblSong::title), "One");
}

TEST_F(RecordSetOfThreeSongs, AddsBehindTheLastRowAndStaysWhereItStands) {
    AddSong(Records(), "4", "Four");

    EXPECT_EQ(Records().Text(tblSong::title), "One");
    EXPECT_EQ(Titles(), (Texts{"One", "Two", "Three", "Four"}));
}

TEST_F(RecordSetOfThreeSongs, FieldsThatWereNotSetInANewRowAreEmpty) {
    Records().AddNew();
    Records().Set(tblSong::title, "Four");
    const std::string_view artist_before_update = Records().Text(tblSong::artist);
    Records().Update();
    Records().MoveLast();

    EXPECT_EQ(artist_before_update, "");
    EXPECT_EQ(Records().Text(tblSong::SongID), "");
    EXPECT_EQ(Records().Text(tblSong::title), "Four");
}

TEST_F(RecordSetOfThreeSongs, ShowsWhatWasSetBeforeUpdate) {
    Records().Edit();
    Records().Set(tblSong::title, "New");

    EXPECT_EQ(Records().Text(tblSong::title), "New");
    EXPECT_EQ(Records().Text(tblSong::artist), "Ann");
    EXPECT_EQ(OtherRecords().Text(tblSong::title), "One");
}

TEST_F(RecordSetOfThreeSongs, EditChangesOnlyTheFieldsThatWereSet) {
    Records().MoveNext();
    Records().Edit();
    Records().Set(tblSong::title, "A very much longer title than the one before");
    const bool updated = Records().Update();

    EXPECT_TRUE(updated);
    EXPECT_EQ(OtherRecords().Text(tblSong::title), "One");
    OtherRecords().MoveNext();
    EXPECT_EQ(OtherRecords().Text(tblSong::title), "A very much longer title than the one before");
    EXPECT_EQ(OtherRecords().Text(tblSong::artist), "Bob");
    EXPECT_EQ(OtherRecords().Text(tblSong::FilePath), "C:\\m\\2.mp3");
    EXPECT_EQ(OtherRecords().Text(tblSong::PlayCount), "7");
}

TEST_F(RecordSetOfThreeSongs, SetAndUpdateNeedARowThatWasBegun) {
    const bool set = Records().Set(tblSong::title, "New");
    const bool updated = Records().Update();

    EXPECT_FALSE(set);
    EXPECT_FALSE(updated);
    EXPECT_EQ(Titles(), (Texts{"One", "Two", "Three"}));
}

TEST_F(RecordSetOfThreeSongs, EditNeedsACurrentRow) {
    Records().MoveLast();
    Records().MoveNext();

    EXPECT_FALSE(Records().Edit());
    EXPECT_FALSE(Records().Delete());
}

TEST_F(RecordSetOfThreeSongs, CancelUpdateAbandonsANewRow) {
    Records().AddNew();
    Records().Set(tblSong::title, "Four");
    Records().CancelUpdate();

    EXPECT_FALSE(Records().Update());
    EXPECT_EQ(Records().Text(tblSong::title), "One");
    EXPECT_EQ(Titles(), (Texts{"One", "Two", "Three"}));
}

TEST_F(RecordSetOfThreeSongs, AMoveAbandonsAnEdit) {
    Records().Edit();
    Records().Set(tblSong::title, "New");
    Records().MoveNext();

    EXPECT_FALSE(Records().Update());
    EXPECT_EQ(Titles(), (Texts{"One", "Two", "Three"}));
}

TEST_F(RecordSetOfThreeSongs, DeleteLeavesNoCurrentRowAndMoveNextGoesToTheFollowingOne) {
    Records().MoveNext();
    const bool deleted = Records().Delete();
    const std::string text_of_the_gap(Records().Text(tblSong::title));
    const bool deleted_again = Records().Delete();
    const bool moved = Records().MoveNext();

    EXPECT_TRUE(deleted);
    EXPECT_EQ(text_of_the_gap, "");
    EXPECT_FALSE(deleted_again);
    EXPECT_TRUE(moved);
    EXPECT_EQ(Records().Text(tblSong::title), "Three");
    EXPECT_EQ(Records().RecordCount(), 2U);
}

TEST_F(RecordSetOfThreeSongs, AWalkThatDeletesEveryRowMeetsEveryRow) {
    int met = 0;

    for (Records().MoveFirst(); !Records().Eof(); Records().MoveNext()) {
        ++met;
        Records().Delete();
        if (Records().RecordCount() == 0) break;
    }

    EXPECT_EQ(met, 3);
    EXPECT_TRUE(Records().Eof());
    EXPECT_FALSE(Records().MoveFirst());
    EXPECT_TRUE(stores_.Rows("tblSong").empty());
}

TEST_F(RecordSetOfThreeSongs, MeetsRowsThatAnotherRecordSetAdded) {
    Records().MoveLast();
    AddSong(OtherRecords(), "4", "Four");

    const bool met = Records().MoveNext();

    EXPECT_TRUE(met);
    EXPECT_EQ(Records().Text(tblSong::title), "Four");
}

TEST_F(RecordSetOfThreeSongs, PassesOverRowsThatAnotherRecordSetDeleted) {
    OtherRecords().MoveNext();
    OtherRecords().Delete();

    EXPECT_EQ(Titles(), (Texts{"One", "Three"}));
}

TEST_F(RecordSetOfThreeSongs, AnEditOfARowThatWentMeanwhileIsRefused) {
    Records().Edit();
    Records().Set(tblSong::title, "New");
    OtherRecords().Delete();

    EXPECT_FALSE(Records().Update());
    EXPECT_EQ(Titles(), (Texts{"Two", "Three"}));
}

TEST_F(RecordSetOfThreeSongs, ANewRowNeverStandsInTheGapOfADeletedLastOne) {
    Records().MoveLast();
    Records().Delete();
    AddSong(OtherRecords(), "3", "Again");

    EXPECT_EQ(Records().Text(tblSong::title), "");
    EXPECT_TRUE(Records().MoveNext());
    EXPECT_EQ(Records().Text(tblSong::title), "Again");
}

TEST_F(RecordSetOfThreeSongs, TakesTextsOfItsOwnRowAsNewValues) {
    Records().Edit();
    Records().Set(tblSong::title, Records().Text(tblSong::FilePath));
    Records().Set(tblSong::FilePath, Records().Text(tblSong::artist));
    Records().Update();

    EXPECT_EQ(Records().Text(tblSong::title), "C:\\m\\1.mp3");
    EXPECT_EQ(Records().Text(tblSong::FilePath), "Ann");
}

TEST_F(RecordSetOfThreeSongs, KeepsTextsOfAnyLengthAndContent) {
    const std::string long_text(100'000, 'x');
    const std::string odd_text("a\0b'\"\xff\xc3\xa9", 8);
    Records().Edit();
    Records().Set(tblSong::FilePath, long_text);
    Records().Set(tblSong::artist, odd_text);
    Records().Update();

    EXPECT_EQ(Records().Text(tblSong::FilePath), long_text);
    EXPECT_EQ(Records().Text(tblSong::artist), odd_text);
    EXPECT_EQ(Records().Text(tblSong::title), "One");
}

TEST(RecordSet, WritesAHistoryRowInTwoStepsAsTheTableRequires) {
    SeededStores stores;
    const auto source = stores.OpenTable("tblHistory");
    store::RecordSet& records = source->Recordset();

    records.MoveLast();
    records.AddNew();
    records.Set(tblHistory::HistoryID, "21");
    records.Update();
    records.MoveLast();
    records.Edit();
    records.Set(tblHistory::HistoryType, "Web");
    records.Set(tblHistory::HistoryText, "http://example.org/");
    records.Update();

    const auto rows = stores.Rows("tblHistory");
    ASSERT_EQ(rows.size(), store::kSettings.size() + 1);
    EXPECT_EQ(rows.back(), (SeededStores::Row{"21", "Web", "http://example.org/"}));
    EXPECT_EQ(stores.Database.Commits, 1);
}

TEST_F(RecordSetOfThreeSongs, PlayListRowsKeepTheirOwnCopies) {
    stores_.Seed("tblPlayList", {{"1", "Mix", "", "", ""}, {"2", "Mix", "1", "Ann", "One"}});
    const auto play_lists = stores_.OpenTable("tblPlayList");

    Records().Edit();
    Records().Set(tblSong::title, "Renamed");
    Records().Update();
    Records().Delete();

    play_lists->Recordset().MoveLast();
    EXPECT_EQ(play_lists->Recordset().Text(store::tblPlayList::title), "One");
    EXPECT_EQ(play_lists->Recordset().Text(store::tblPlayList::artist), "Ann");
}

TEST_F(RecordSetOfThreeSongs, ABookmarkLeadsBackToItsRow) {
    Records().MoveNext();
    const store::Bookmark second = Records().CurrentBookmark();
    AddSong(Records(), "4", "Four");
    Records().MoveFirst();
    Records().Delete();

    const bool moved = Records().MoveTo(second);

    EXPECT_TRUE(moved);
    EXPECT_EQ(Records().Text(tblSong::title), "Two");
    EXPECT_EQ(Records().EndOfBookmarks(), 4U);
}

TEST_F(RecordSetOfThreeSongs, TheBookmarkOfADeletedRowLeadsNowhere) {
    Records().MoveNext();
    const store::Bookmark second = Records().CurrentBookmark();
    Records().Delete();
    Records().MoveLast();

    const bool moved = Records().MoveTo(second);

    EXPECT_FALSE(moved);
    EXPECT_EQ(Records().Text(tblSong::title), "Three");
    EXPECT_FALSE(Records().MoveTo(99));
}

TEST_F(RecordSetOfThreeSongs, OnlyAnotherTextInAnOldRowIsARewriteOfItsField) {
    const std::uint64_t titles = Records().Rewrites(tblSong::title);
    AddSong(Records(), "4", "Four");
    Records().Edit();
    Records().Set(tblSong::PlayCount, "8");
    Records().Set(tblSong::title, "One");
    Records().Update();
    Records().MoveLast();
    Records().Delete();
    EXPECT_EQ(Records().Rewrites(tblSong::title), titles);

    OtherRecords().Edit();
    OtherRecords().Set(tblSong::title, "Another");
    OtherRecords().Update();

    EXPECT_NE(Records().Rewrites(tblSong::title), titles);
}

TEST_F(RecordSetOfThreeSongs, ALaterRowChangesNothingWhateverItIs) {
    Records().MoveFirst();
    Records().Delete();

    for (const store::Bookmark later : {0U, 1U, 2U, 99U}) {
        EXPECT_TRUE(Records().MoveTo(1, later));
        EXPECT_EQ(Records().CurrentBookmark(), 1U);
        EXPECT_FALSE(Records().MoveTo(0, later));
    }
}

TEST(RecordSet, WithoutATableHasNoBookmarks) {
    store::RecordSet records;

    EXPECT_EQ(records.EndOfBookmarks(), 0U);
    EXPECT_FALSE(records.MoveTo(0));
    EXPECT_FALSE(records.MoveTo(0, 1));
    EXPECT_EQ(records.Rewrites(tblSong::title), 0U);
}

}  // namespace
