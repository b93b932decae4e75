#include "store/Key.h"

#include <gtest/gtest.h>

#include <string>

#include "fakes/SeededStores.h"

namespace {

using fakes::SeededStores;
namespace tblSong = store::tblSong;

std::string AddSong(store::RecordSet& records, std::string& caption) {
    store::NextKey(records, tblSong::SongID, caption);
    records.Update();
    return caption;
}

TEST(KeyAfter, CountsOnFromTheCaption) {
    struct Case {
        std::string_view caption;
        std::string_view key;
    };
    for (const Case& one : {Case{"Song ID", "1"}, Case{"", "1"}, Case{"0", "1"}, Case{"1", "2"},
                            Case{"99999", "100000"}, Case{"2147483647", "2147483648"}, Case{"no number", "1"},
                            Case{"9223372036854775807", "9223372036854775807"}}) {
        EXPECT_EQ(store::KeyAfter(one.caption), one.key) << one.caption;
    }
}

TEST(NextKey, IsOneInATableWithoutRows) {
    SeededStores stores;
    const auto source = stores.OpenTable("tblSong");
    std::string caption(store::kNoKeyYet);

    const std::string key = AddSong(source->Recordset(), caption);

    EXPECT_EQ(key, "1");
    EXPECT_EQ(stores.Rows("tblSong"), (std::vector<SeededStores::Row>{{"1", "", "", "", ""}}));
}

TEST(NextKey, IsOneMoreThanThatOfTheLastRowInTableOrder) {
    SeededStores stores;
    stores.Seed("tblSong", {{"90"}, {"7"}});
    const auto source = stores.OpenTable("tblSong");
    std::string caption;

    const std::string key = AddSong(source->Recordset(), caption);

    EXPECT_EQ(key, "8");
}

TEST(NextKey, StartsAgainAtOneInAnEmptiedTable) {
    SeededStores stores;
    stores.Seed("tblSong", {{"1"}, {"2"}});
    const auto source = stores.OpenTable("tblSong");
    store::RecordSet& records = source->Recordset();
    std::string caption = "2";
    for (records.MoveFirst(); !records.Eof(); records.MoveNext())
        records.Delete();

    const std::string key = AddSong(records, caption);

    EXPECT_EQ(key, "1");
}

TEST(NextKey, UsesTheKeyOfADeletedLastRowAgain) {
    SeededStores stores;
    stores.Seed("tblSong", {{"1"}, {"2"}, {"3"}});
    const auto source = stores.OpenTable("tblSong");
    std::string caption;
    source->Recordset().MoveLast();
    source->Recordset().Delete();

    const std::string key = AddSong(source->Recordset(), caption);

    EXPECT_EQ(key, "3");
}

TEST(NextKey, IsNotUsedUpByAnAbandonedRow) {
    SeededStores stores;
    stores.Seed("tblSong", {{"1"}});
    const auto source = stores.OpenTable("tblSong");
    std::string caption;
    store::NextKey(source->Recordset(), tblSong::SongID, caption);
    source->Recordset().CancelUpdate();

    const std::string key = AddSong(source->Recordset(), caption);

    EXPECT_EQ(key, "2");
}

TEST(NextKey, NeedsATable) {
    store::RecordSet records;
    std::string caption;

    EXPECT_FALSE(store::NextKey(records, tblSong::SongID, caption));
}

}  // namespace
