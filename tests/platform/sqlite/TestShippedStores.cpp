// The files that the build makes, read by the command line tool of the database.
#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>

#include "platform/sqlite/Versions.h"

namespace {

namespace fs = std::filesystem;

std::string Ask(const std::string& file, const std::string& sql) {
    const std::string command =
        "sqlite3 -readonly '" BRINDLEPOST_STORES_DIR "/" + file + "' \"" + sql + "\" 2>&1";
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> answer(::popen(command.c_str(), "r"), ::pclose);
    std::string text;
    std::array<char, 4096> buffer{};
    while (std::fgets(buffer.data(), buffer.size(), answer.get()) != nullptr)
        text += buffer.data();
    return text;
}

constexpr const char* kTables = "SELECT name FROM sqlite_master WHERE type = 'table' ORDER BY rowid";

TEST(ShippedStores, HoldTheirTables) {
    EXPECT_EQ(Ask("dbMedia.mdb", kTables), "tblSong\ntblPlayList\ntblFolder\n");
    EXPECT_EQ(Ask("dbFavs.mdb", kTables), "tblFavs\n");
    EXPECT_EQ(Ask("dbHistory.mdb", kTables), "tblHistory\n");
    EXPECT_EQ(Ask("dbLogin.mdb", kTables), "tblLogin\n");
}

TEST(ShippedStores, HoldTheirFieldsUnderTheGivenNames) {
    const auto fields = [](const std::string& file, const std::string& table) {
        return Ask(file, "SELECT group_concat(name, ' ') FROM pragma_table_info('" + table + "')");
    };

    EXPECT_EQ(fields("dbMedia.mdb", "tblSong"), "SongID artist title FilePath PlayCount\n");
    EXPECT_EQ(fields("dbMedia.mdb", "tblPlayList"), "PlayListID Name SongID artist title\n");
    EXPECT_EQ(fields("dbFavs.mdb", "tblFavs"), "ID GroupName FriendName URL\n");
    EXPECT_EQ(fields("dbHistory.mdb", "tblHistory"), "HistoryID HistoryType HistoryText\n");
    EXPECT_EQ(
        fields("dbLogin.mdb", "tblLogin"),
        "UserName Password MySpaceE MySpaceP HotmailE HotmailP FaceBookE FaceBookP RememberMe AutoLogin\n");
}

TEST(ShippedStores, HoldTheSettingsRowsInOrder) {
    EXPECT_EQ(Ask("dbHistory.mdb",
                  "SELECT count(*), min(HistoryID), max(HistoryID), count(DISTINCT HistoryID) "
                  "FROM tblHistory WHERE HistoryType = 'Settings' AND rowid = HistoryID"),
              "20|1|20|20\n");
    EXPECT_EQ(
        Ask("dbHistory.mdb", "SELECT group_concat(HistoryText, ' ') FROM tblHistory"),
        "False False 60 Broad 0 0 True True True True True True True True True True True True True True\n");
}

TEST(ShippedStores, HoldTheHomePagesGroupOnly) {
    EXPECT_EQ(Ask("dbFavs.mdb", "SELECT * FROM tblFavs"), "1|Home Pages| | \n");
    EXPECT_EQ(Ask("dbMedia.mdb",
                  "SELECT count(*) FROM tblSong UNION ALL SELECT count(*) FROM tblPlayList "
                  "UNION ALL SELECT count(*) FROM tblFolder"),
              "0\n0\n0\n");
    EXPECT_EQ(Ask("dbLogin.mdb", "SELECT count(*) FROM tblLogin"), "0\n");
}

TEST(ShippedStores, CarryThePresentVersion) {
    for (const sqlite::StoreVersions& store : sqlite::kStoreVersions) {
        EXPECT_EQ(Ask(std::string(store.file), "PRAGMA user_version"),
                  std::to_string(store.Current()) + "\n");
    }
}

TEST(ShippedStores, AreSoundAndTheLoginIsTheOwnersAlone) {
    for (const char* const file : {"dbMedia.mdb", "dbFavs.mdb", "dbHistory.mdb", "dbLogin.mdb"}) {
        EXPECT_EQ(Ask(file, "PRAGMA integrity_check"), "ok\n") << file;
    }
    const fs::perms mode = fs::status(BRINDLEPOST_STORES_DIR "/dbLogin.mdb").permissions();
    EXPECT_EQ(mode, fs::perms::owner_read | fs::perms::owner_write);
}

}  // namespace
