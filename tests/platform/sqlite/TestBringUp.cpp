// Stores of every version, brought up with steps of the test's own and with those of the program.
#include "platform/sqlite/BringUp.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <fstream>
#include <iterator>
#include <map>
#include <string>
#include <vector>

#include "platform/sqlite/SqliteBench.h"
#include "store/Layouts.h"

namespace {

namespace fs = std::filesystem;
using ports::DatabaseError;
using sqlite::StoreVersions;
using sqlite_tests::SqliteBench;
using Lines = std::vector<std::string>;

/// The stores as they were before they were numbered. This text is never changed.
constexpr std::array<std::array<const char*, 2>, 4> kFirstStores{{
    {"dbMedia.mdb",
     "CREATE TABLE [tblSong] ([SongID] INTEGER, [artist] TEXT, [title] TEXT, [FilePath] TEXT, [PlayCount] "
     "INTEGER);"
     "CREATE TABLE [tblPlayList] ([PlayListID] INTEGER, [Name] TEXT, [SongID] INTEGER, [artist] TEXT, "
     "[title] TEXT);"
     "CREATE TABLE [tblFolder] ([FolderPath] TEXT);"
     "INSERT INTO tblSong VALUES (1, 'Ann', 'One', 'C:\\one.mp3', 4)"},
    {"dbFavs.mdb",
     "CREATE TABLE [tblFavs] ([ID] INTEGER, [GroupName] TEXT, [FriendName] TEXT, [URL] TEXT);"
     "INSERT INTO tblFavs VALUES (1, 'Home Pages', ' ', ' ')"},
    {"dbHistory.mdb",
     "CREATE TABLE [tblHistory] ([HistoryID] INTEGER, [HistoryType] TEXT, [HistoryText] TEXT);"
     "INSERT INTO tblHistory VALUES (1, 'Settings', 'False')"},
    {"dbLogin.mdb",
     "CREATE TABLE [tblLogin] ([UserName] TEXT, [Password] TEXT, [MySpaceE] TEXT, [MySpaceP] TEXT, "
     "[HotmailE] TEXT, "
     "[HotmailP] TEXT, [FaceBookE] TEXT, [FaceBookP] TEXT, [RememberMe] TEXT, [AutoLogin] TEXT);"
     "INSERT INTO tblLogin VALUES ('Ann', 'secret', '', '', '', '', '', '', 'False', 'False')"},
}};

// Steps that change tables and rows, each in two statements.
constexpr std::array<sqlite::Step, 2> kSongSteps{
    "ALTER TABLE tblSong ADD COLUMN Stars INTEGER; UPDATE tblSong SET Stars = 3",
    "CREATE TABLE tblCover (SongID INTEGER); INSERT INTO tblCover SELECT SongID FROM tblSong WHERE Stars = "
    "3"};
constexpr std::array<sqlite::Step, 1> kFavouriteSteps{"UPDATE tblFavs SET GroupName = 'Pages'"};
constexpr std::array kTwoStores{StoreVersions{"dbMedia.mdb", kSongSteps},
                                StoreVersions{"dbFavs.mdb", kFavouriteSteps}};
constexpr std::array kMediaAlone{StoreVersions{"dbMedia.mdb", kSongSteps}};
constexpr std::array<sqlite::Step, 2> kStepsThatFail{"UPDATE tblSong SET title = 'half'",
                                                     "UPDATE tblNothing SET a = 1"};
constexpr std::array kMediaThatFails{StoreVersions{"dbMedia.mdb", kStepsThatFail}};
constexpr std::array<sqlite::Step, 2> kStepsThatEnd{"UPDATE tblSong SET title = 'half'", "SELECT end_here()"};
constexpr std::array kMediaThatEnds{StoreVersions{"dbMedia.mdb", kStepsThatEnd}};

class BringUpTest : public testing::Test {
protected:
    BringUpTest() {
        for (const auto& [file, statements] : kFirstStores) {
            static_cast<void>(bench_.RunElsewhere(InFolder(file), statements));
        }
    }

    static std::string InFolder(const std::string& file) { return "\\" + file; }
    std::string Folder() const { return bench_.Folder().string(); }
    fs::path File(const std::string& file) const { return bench_.Folder() / file; }
    Lines Ask(const std::string& file, const std::string& sql) {
        return bench_.AskElsewhere(InFolder(file), sql);
    }
    void SetVersion(const std::string& file, int version) {
        ASSERT_TRUE(bench_.RunElsewhere(InFolder(file),
                                        ("PRAGMA user_version = " + std::to_string(version)).c_str()));
    }
    std::string Bytes(const std::string& file) const {
        std::ifstream stream(File(file), std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }
    /// Every file of the folder but what an engine makes for the time that it looks.
    std::map<std::string, std::string> Everything() const {
        std::map<std::string, std::string> files;
        for (const auto& entry : fs::directory_iterator(bench_.Folder())) {
            const std::string name = entry.path().filename().string();
            if (!name.ends_with("-shm")) files[name] = Bytes(name);
        }
        return files;
    }
    /// Many rows more, so that a transaction writes before it ends.
    void Grow() {
        ASSERT_TRUE(bench_.RunElsewhere(InFolder("dbMedia.mdb"),
                                        "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n "
                                        "WHERE i < 20000) INSERT INTO tblSong "
                                        "SELECT i, 'Artist', 'Title ' || i, 'C:\\songs\\' || i, 0 FROM n"));
    }
    void GiveAway() const {
        if (::geteuid() != 0) return;
        for (const auto& entry : fs::directory_iterator(bench_.Folder()))
            ASSERT_EQ(::chown(entry.path().c_str(), 65534, 65534), 0);
        ASSERT_EQ(::chown(bench_.Folder().c_str(), 65534, 65534), 0);
    }

    SqliteBench bench_;
};

TEST_F(BringUpTest, StoresFromBeforeTheyWereNumberedOpenAsTheyAre) {
    auto before = Everything();

    EXPECT_FALSE(sqlite::BringUpStores(Folder()));

    for (const StoreVersions& store : sqlite::kStoreVersions) {
        const std::string file(store.file);
        EXPECT_TRUE(!store.steps.empty() || Bytes(file) == before[file]) << file;
    }
    for (const ports::StoreLayout& layout : store::kStoreLayouts) {
        const auto opened =
            bench_.Database().Open(SqliteBench::PathOf(layout.file), layout, ports::kNoWaiting);
        EXPECT_TRUE(opened.result.Ok()) << layout.file << ": " << opened.result.text;
    }
    EXPECT_EQ(Ask("dbMedia.mdb", "SELECT SongID, artist, title, FilePath, PlayCount FROM tblSong"),
              (Lines{"1|Ann|One|C:\\one.mp3|4"}));
}

TEST_F(BringUpTest, TheProgramKnowsTheVersionsOfAllItsStores) {
    ASSERT_EQ(sqlite::kStoreVersions.size(), store::kStoreLayouts.size());
    for (std::size_t i = 0; i < store::kStoreLayouts.size(); ++i)
        EXPECT_EQ(store::kStoreLayouts.at(i).file.substr(1), sqlite::kStoreVersions.at(i).file);
}

TEST_F(BringUpTest, EachOlderVersionBecomesThePresentOneAndACopyIsKept) {
    const std::string before = Bytes("dbMedia.mdb");

    EXPECT_FALSE(sqlite::BringUpStores(Folder(), kTwoStores));

    EXPECT_EQ(Ask("dbMedia.mdb", "PRAGMA user_version"), (Lines{"3"}));
    EXPECT_EQ(Ask("dbMedia.mdb", "SELECT title, Stars FROM tblSong"), (Lines{"One|3"}));
    EXPECT_EQ(Ask("dbMedia.mdb", "SELECT SongID FROM tblCover"), (Lines{"1"}));
    EXPECT_EQ(Ask("dbFavs.mdb", "SELECT GroupName FROM tblFavs"), (Lines{"Pages"}));
    EXPECT_EQ(Ask("dbMedia.mdb.version-1", "SELECT * FROM tblSong"), (Lines{"1|Ann|One|C:\\one.mp3|4"}));
    EXPECT_EQ(fs::file_size(File("dbMedia.mdb.version-1")), before.size());
    EXPECT_TRUE(fs::exists(File("dbFavs.mdb.version-1")));
}

TEST_F(BringUpTest, AStoreInTheMiddleOnlyTakesTheStepsThatItLacks) {
    ASSERT_TRUE(bench_.RunElsewhere(InFolder("dbMedia.mdb"), kSongSteps[0]));
    ASSERT_TRUE(bench_.RunElsewhere(InFolder("dbMedia.mdb"), "UPDATE tblSong SET Stars = 5"));
    SetVersion("dbMedia.mdb", 2);

    EXPECT_FALSE(sqlite::BringUpStores(Folder(), kMediaAlone));

    EXPECT_EQ(Ask("dbMedia.mdb", "SELECT Stars FROM tblSong"), (Lines{"5"}));
    EXPECT_EQ(Ask("dbMedia.mdb", "SELECT count(*) FROM tblCover"), (Lines{"0"}));
    EXPECT_EQ(Ask("dbMedia.mdb", "PRAGMA user_version"), (Lines{"3"}));
    EXPECT_TRUE(fs::exists(File("dbMedia.mdb.version-2")));
}

TEST_F(BringUpTest, TheSecondTimeThereIsNothingToDo) {
    EXPECT_FALSE(sqlite::BringUpStores(Folder(), kTwoStores));
    const auto before = Everything();

    EXPECT_FALSE(sqlite::BringUpStores(Folder(), kTwoStores));

    EXPECT_EQ(Everything(), before);
}

TEST_F(BringUpTest, CopiesAreTheOwnersAlone) {
    fs::permissions(File("dbMedia.mdb"), fs::perms(0644));

    EXPECT_FALSE(sqlite::BringUpStores(Folder(), kMediaAlone));

    EXPECT_EQ(fs::status(File("dbMedia.mdb.version-1")).permissions(), fs::perms(0600));
}

TEST_F(BringUpTest, AnotherCopyOfThatNameIsNeverOverwritten) {
    std::ofstream(File("dbMedia.mdb.version-1")) << "another";

    EXPECT_FALSE(sqlite::BringUpStores(Folder(), kMediaAlone));

    EXPECT_EQ(Bytes("dbMedia.mdb.version-1"), "another");
    EXPECT_EQ(Ask("dbMedia.mdb.version-1.2", "SELECT title FROM tblSong"), (Lines{"One"}));
}

TEST_F(BringUpTest, ACopyHoldsWhatALogHolds) {
    sqlite::Connection writer;
    ASSERT_TRUE(sqlite::Connect(File("dbMedia.mdb").string(), SQLITE_OPEN_READWRITE, writer).Ok());
    ASSERT_TRUE(sqlite::Execute(writer.get(), "PRAGMA journal_mode = WAL").Ok());
    ASSERT_TRUE(sqlite::Execute(writer.get(), "UPDATE tblSong SET title = 'logged'").Ok());

    EXPECT_FALSE(sqlite::BringUpStores(Folder(), kMediaAlone));

    EXPECT_EQ(Ask("dbMedia.mdb.version-1", "SELECT title FROM tblSong"), (Lines{"logged"}));
    EXPECT_EQ(Ask("dbMedia.mdb", "SELECT title, Stars FROM tblSong"), (Lines{"logged|3"}));
}

TEST_F(BringUpTest, ANewerStoreIsRefusedAndNothingIsChangedInAny) {
    SetVersion("dbFavs.mdb", 3);
    const auto before = Everything();

    const auto unfit = sqlite::BringUpStores(Folder(), kTwoStores);

    ASSERT_TRUE(unfit);
    EXPECT_EQ(unfit->file, "dbFavs.mdb");
    EXPECT_EQ(unfit->version, 3);
    EXPECT_EQ(unfit->known, 2);
    EXPECT_EQ(unfit->copy, "");
    EXPECT_EQ(Everything(), before);
}

TEST_F(BringUpTest, ANewerStoreIsToldWithTheCopyThatFits) {
    EXPECT_FALSE(sqlite::BringUpStores(Folder(), kMediaAlone));

    const auto unfit = sqlite::BringUpStores(Folder());

    ASSERT_TRUE(unfit);
    EXPECT_EQ(unfit->copy, "dbMedia.mdb.version-1");
}

TEST_F(BringUpTest, ANumberBelowNoughtIsNoVersionOfThisProgram) {
    SetVersion("dbMedia.mdb", -4);

    const auto unfit = sqlite::BringUpStores(Folder());

    ASSERT_TRUE(unfit);
    EXPECT_EQ(unfit->version, -4);
}

// What the newer program wrote last may be in its log alone.
TEST_F(BringUpTest, ANewerStoreIsKnownByItsLogAndTheLogStays) {
    const pid_t newer = ::fork();
    if (newer == 0) {
        sqlite::Connection writer;
        const bool written =
            sqlite::Connect(File("dbMedia.mdb").string(), SQLITE_OPEN_READWRITE, writer).Ok() &&
            sqlite::Execute(writer.get(), "PRAGMA journal_mode = WAL").Ok() &&
            sqlite::Execute(writer.get(), "UPDATE tblSong SET title = 'newer'; PRAGMA user_version = 9").Ok();
        if (written) ::raise(SIGKILL);
        ::_exit(1);
    }
    int status = 0;
    ASSERT_EQ(::waitpid(newer, &status, 0), newer);
    ASSERT_TRUE(WIFSIGNALED(status));
    const auto before = Everything();
    ASSERT_TRUE(before.contains("dbMedia.mdb-wal"));

    const auto unfit = sqlite::BringUpStores(Folder());

    ASSERT_TRUE(unfit);
    EXPECT_EQ(unfit->version, 9);
    EXPECT_EQ(Everything(), before);
}

TEST_F(BringUpTest, AStepThatFailsLeavesTheStoreAsItWas) {
    Grow();
    const std::string before = Bytes("dbMedia.mdb");

    const auto unfit = sqlite::BringUpStores(Folder(), kMediaThatFails);

    ASSERT_TRUE(unfit);
    EXPECT_EQ(unfit->version, 0);
    EXPECT_EQ(unfit->result.error, DatabaseError::OtherKind);
    EXPECT_EQ(Bytes("dbMedia.mdb"), before);
}

void EndHere(sqlite3_context* /*context*/, int /*count*/, sqlite3_value** /*values*/) {
    ::raise(SIGKILL);
}

// Every connection gets the function; killed where it is called, after the first step has written.
int TeachToEnd(sqlite3* connection, const char** /*error*/, const sqlite3_api_routines* /*routines*/) {
    return sqlite3_create_function(connection, "end_here", 0, SQLITE_UTF8, nullptr, EndHere, nullptr,
                                   nullptr);
}

TEST_F(BringUpTest, AKillInTheMiddleLosesNothingAndTheNextStartGoesOn) {
    Grow();
    const pid_t first = ::fork();
    if (first == 0) {
        sqlite3_auto_extension(reinterpret_cast<void (*)()>(TeachToEnd));
        sqlite::BringUpStores(Folder(), kMediaThatEnds);
        ::_exit(0);
    }
    int status = 0;
    ASSERT_EQ(::waitpid(first, &status, 0), first);
    ASSERT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL);

    EXPECT_FALSE(sqlite::BringUpStores(Folder(), kMediaAlone));

    EXPECT_EQ(Ask("dbMedia.mdb", "PRAGMA integrity_check"), (Lines{"ok"}));
    EXPECT_EQ(Ask("dbMedia.mdb", "SELECT count(*), count(DISTINCT Stars) FROM tblSong WHERE title <> 'half'"),
              (Lines{"20001|1"}));
    EXPECT_EQ(Ask("dbMedia.mdb", "PRAGMA user_version"), (Lines{"3"}));
    EXPECT_FALSE(fs::exists(File("dbMedia.mdb.version-1.2"))) << "the copy of the first start was the same";
}

TEST_F(BringUpTest, ADamagedStoreStaysAsItIsAndIsTold) {
    Grow();
    std::fstream damaged(File("dbMedia.mdb"), std::ios::in | std::ios::out | std::ios::binary);
    damaged.seekp(20'480);
    damaged << std::string(4096, '\x5a');
    damaged.close();
    const auto before = Everything();

    const auto unfit = sqlite::BringUpStores(Folder(), kMediaAlone);

    ASSERT_TRUE(unfit);
    EXPECT_EQ(unfit->result.error, DatabaseError::Damaged);
    EXPECT_EQ(Everything(), before);
}

TEST_F(BringUpTest, AStoreThatWasCutOffStaysAsItIsAndIsTold) {
    fs::resize_file(File("dbMedia.mdb"), fs::file_size(File("dbMedia.mdb")) - 100);
    const auto before = Everything();

    const auto unfit = sqlite::BringUpStores(Folder(), kMediaAlone);

    ASSERT_TRUE(unfit);
    EXPECT_EQ(unfit->result.error, DatabaseError::Damaged);
    EXPECT_EQ(Everything(), before);
}

TEST_F(BringUpTest, WhatIsNoStoreIsLeftToWhoeverOpensIt) {
    fs::remove(File("dbFavs.mdb"));
    fs::remove(File("dbMedia.mdb"));
    fs::create_directory(File("dbMedia.mdb"));
    std::ofstream(File("dbHistory.mdb"), std::ios::trunc) << std::string(4096, 'x');
    std::ofstream(File("dbLogin.mdb"), std::ios::trunc) << "";

    EXPECT_FALSE(sqlite::BringUpStores(Folder(), kTwoStores));
    EXPECT_FALSE(sqlite::BringUpStores(Folder()));
}

TEST_F(BringUpTest, AFolderThatMayNotBeWrittenIsToldAndTheStoreStays) {
    GiveAway();
    fs::permissions(bench_.Folder(), fs::perms(0555));
    const sqlite_tests::AsOrdinaryPerson person;
    const auto before = Everything();

    const auto unfit = sqlite::BringUpStores(Folder(), kMediaAlone);

    ASSERT_TRUE(unfit);
    EXPECT_EQ(unfit->result.error, DatabaseError::ReadOnly) << unfit->result.text;
    EXPECT_EQ(Everything(), before);
}

// The largest size of a file stands for the end of the disk.
TEST_F(BringUpTest, WithoutRoomForTheCopyTheStoreStaysAndNothingIsLeft) {
    Grow();
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit before{};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &before), 0);
    rlimit small = before;
    small.rlim_cur = 200'000;
    const auto files = Everything();
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &small), 0);

    const auto unfit = sqlite::BringUpStores(Folder(), kMediaAlone);

    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &before), 0);
    ASSERT_TRUE(unfit);
    EXPECT_EQ(unfit->result.error, DatabaseError::DiskFull) << unfit->result.text;
    EXPECT_EQ(Everything(), files);
}

TEST_F(BringUpTest, AStoreThatAnotherProgramHoldsIsTold) {
    bench_.Lock(InFolder("dbMedia.mdb"));

    const auto unfit = sqlite::BringUpStores(Folder(), kMediaAlone);

    ASSERT_TRUE(unfit);
    EXPECT_EQ(unfit->result.error, DatabaseError::Locked) << unfit->result.text;
}

}  // namespace
