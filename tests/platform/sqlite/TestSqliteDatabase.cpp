#include "platform/sqlite/SqliteDatabase.h"

#include <gtest/gtest.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <fstream>
#include <string>
#include <vector>

#include "contracts/StoreFileText.h"
#include "platform/sqlite/SqliteBench.h"
#include "store/Layouts.h"

namespace {

using contracts::Apply;
using contracts::Change;
using contracts::Read;
using contracts::ReadRow;
using ports::ChangeKind;
using ports::DatabaseError;
using sqlite_tests::AsOrdinaryPerson;
using sqlite_tests::SqliteBench;
namespace fs = std::filesystem;
using Lines = std::vector<std::string>;

constexpr std::size_t kSongs = 0;
constexpr std::size_t kPlayLists = 1;

/// Whether this machine lets the tests act as somebody with fewer rights.
bool IsSuperuser() {
    return ::geteuid() == 0;
}

Change Song(std::int64_t row, std::string_view artist) {
    return {ChangeKind::Insert, kSongs, row, {std::to_string(row), std::string(artist), "t", "C:\\p", "0"}};
}

fs::perms ModeOf(const fs::path& file) {
    return fs::status(file).permissions();
}

constexpr fs::perms kOwnerOnly = fs::perms::owner_read | fs::perms::owner_write;
constexpr fs::perms kEverybodyReads = kOwnerOnly | fs::perms::group_read | fs::perms::others_read;

class SqliteDatabaseTest : public testing::Test {
protected:
    ports::OpenedStore Open(std::string_view path, int wait = ports::kNoWaiting) {
        return bench_.Database().Open(path, *store::LayoutOf(path), wait);
    }
    std::unique_ptr<ports::StoreFile> OpenMedia() {
        ports::OpenedStore opened = Open(media_);
        EXPECT_TRUE(opened.result.Ok()) << opened.result.text;
        return std::move(opened.file);
    }
    /// Everything in the folder belongs to the ordinary person, as it does on a real machine.
    void GiveAway() {
        if (!IsSuperuser()) return;
        for (const fs::directory_entry& entry : fs::directory_iterator(bench_.Folder())) {
            ASSERT_EQ(::chown(entry.path().c_str(), 65534, 65534), 0);
        }
        ASSERT_EQ(::chown(bench_.Folder().c_str(), 65534, 65534), 0);
    }

    SqliteBench bench_;
    std::string media_ = SqliteBench::PathOf(store::kMediaStore);
    std::string login_ = SqliteBench::PathOf(store::kLoginStore);
};

TEST_F(SqliteDatabaseTest, AnotherToolReadsTheRowsUnderTheGivenNamesWithTheirTypes) {
    bench_.MakeStore(media_);
    const auto file = OpenMedia();

    Apply(*file, {Song(1, "Ann"), {ChangeKind::Insert, kPlayLists, 1, {"1", "Mix", "", "", ""}}});

    EXPECT_EQ(bench_.AskElsewhere(media_,
                                  "SELECT SongID, artist, title, FilePath, PlayCount, typeof(SongID), "
                                  "typeof(artist), typeof(PlayCount) FROM tblSong"),
              (Lines{"1|Ann|t|C:\\p|0|integer|text|integer"}));
    EXPECT_EQ(bench_.AskElsewhere(media_,
                                  "SELECT PlayListID, Name, SongID, artist, typeof(artist) FROM tblPlayList"),
              (Lines{"1|Mix|NULL||text"}));
}

TEST_F(SqliteDatabaseTest, ATextThatIsNoNumberInAnIntegerFieldIsKeptAsItIs) {
    bench_.MakeStore(media_);
    const auto file = OpenMedia();

    Apply(*file, {{ChangeKind::Insert, kSongs, 1, {"x1", "", "", "", "12abc"}}});

    EXPECT_EQ(Read(*file, kSongs), (std::vector<ReadRow>{{1, {"x1", "", "", "", "12abc"}}}));
}

TEST_F(SqliteDatabaseTest, AChangeIsSyncedToAWriteAheadLogThatGoesAtTheEnd) {
    bench_.MakeStore(media_);
    auto file = OpenMedia();
    const fs::path log = bench_.NativeOf(media_).string() + "-wal";
    Apply(*file, {Song(1, "Ann")});
    const bool has_log = fs::exists(log) && fs::file_size(log) > 0;
    const Lines mode = bench_.AskElsewhere(media_, "PRAGMA journal_mode");
    file.reset();

    EXPECT_TRUE(has_log);
    EXPECT_EQ(mode, (Lines{"wal"}));
    EXPECT_FALSE(fs::exists(log));
}

TEST_F(SqliteDatabaseTest, ReadingChangesNothingInTheFolder) {
    bench_.MakeStore(media_);
    const auto before = fs::last_write_time(bench_.NativeOf(media_));
    const auto file = OpenMedia();
    Read(*file, kSongs);

    EXPECT_EQ(fs::last_write_time(bench_.NativeOf(media_)), before);
    EXPECT_EQ(std::distance(fs::directory_iterator(bench_.Folder()), fs::directory_iterator()), 1);
}

TEST_F(SqliteDatabaseTest, AnotherProgramMayReadWhileTheFileIsOpen) {
    bench_.MakeStore(media_);
    const auto file = OpenMedia();
    Apply(*file, {Song(1, "Ann")});

    EXPECT_EQ(bench_.AskElsewhere(media_, "SELECT count(*) FROM tblSong"), (Lines{"1"}));
}

TEST_F(SqliteDatabaseTest, RowsThatAnotherProgramAddsMeanwhileAreKept) {
    bench_.MakeStore(media_);
    const auto file = OpenMedia();
    Apply(*file, {Song(1, "Ann")});
    ASSERT_TRUE(
        bench_.RunElsewhere(media_, "INSERT INTO tblSong (SongID, artist) VALUES (70, 'Xen'), (71, 'Yan')"));

    const auto result = Apply(*file, {Song(2, "Bob"), Song(3, "Cid"), Song(4, "Dan")});

    EXPECT_TRUE(result.Ok()) << result.text;
    EXPECT_EQ(
        bench_.AskElsewhere(media_, "SELECT rowid, artist FROM tblSong WHERE rowid <= 4 ORDER BY rowid"),
        (Lines{"1|Ann", "2|Bob", "3|Cid", "4|Dan"}));
    EXPECT_EQ(bench_.AskElsewhere(media_, "SELECT artist FROM tblSong WHERE rowid > 4 ORDER BY artist"),
              (Lines{"Xen", "Yan"}));
}

TEST_F(SqliteDatabaseTest, FieldsAndTablesThatItDoesNotKnowAreLeftAlone) {
    bench_.MakeStore(media_);
    ASSERT_TRUE(bench_.RunElsewhere(media_,
                                    "ALTER TABLE tblSong ADD COLUMN Extra TEXT; CREATE TABLE Notes (n TEXT);"
                                    "INSERT INTO Notes VALUES ('note');"
                                    "INSERT INTO tblSong (SongID, artist, Extra) VALUES (1, 'Ann', 'mine')"));
    const auto file = OpenMedia();

    Apply(*file, {{ChangeKind::Update, kSongs, 1, {"1", "Bob", "", "", ""}}});

    EXPECT_EQ(bench_.AskElsewhere(media_, "SELECT artist, Extra FROM tblSong"), (Lines{"Bob|mine"}));
    EXPECT_EQ(bench_.AskElsewhere(media_, "SELECT n FROM Notes"), (Lines{"note"}));
}

TEST_F(SqliteDatabaseTest, NamesInTheFileMayDifferInCaseAndOrder) {
    ASSERT_TRUE(bench_.RunElsewhere(
        media_,
        "CREATE TABLE TBLSONG (playcount INTEGER, filepath TEXT, Title TEXT, Artist TEXT, songid INTEGER);"
        "CREATE TABLE tblPlaylist (PlayListID, Name, SongID, artist, title); CREATE TABLE tblfolder (x);"
        "INSERT INTO tblsong VALUES (3, 'C:\\p', 't', 'Ann', 1)"));
    const auto file = OpenMedia();

    EXPECT_EQ(Read(*file, kSongs), (std::vector<ReadRow>{{1, {"1", "Ann", "t", "C:\\p", "3"}}}));
}

TEST_F(SqliteDatabaseTest, ValuesWithoutContentReadAsEmptyTexts) {
    bench_.MakeStore(media_);
    ASSERT_TRUE(bench_.RunElsewhere(media_, "INSERT INTO tblSong VALUES (NULL, NULL, NULL, NULL, NULL)"));
    const auto file = OpenMedia();

    EXPECT_EQ(Read(*file, kSongs), (std::vector<ReadRow>{{1, {"", "", "", "", ""}}}));
}

TEST_F(SqliteDatabaseTest, AMissingFieldMakesItAnotherKindOfFile) {
    bench_.MakeStore(media_);
    ASSERT_TRUE(bench_.RunElsewhere(media_, "ALTER TABLE tblSong DROP COLUMN FilePath"));

    const auto opened = Open(media_);

    EXPECT_EQ(opened.result.error, DatabaseError::OtherKind);
    EXPECT_NE(opened.result.text.find("FilePath"), std::string::npos) << opened.result.text;
}

TEST_F(SqliteDatabaseTest, AnEmptyFileIsAnotherKindOfFileAndStaysEmpty) {
    std::ofstream(bench_.NativeOf(media_)).close();

    EXPECT_EQ(Open(media_).result.error, DatabaseError::OtherKind);
    EXPECT_EQ(fs::file_size(bench_.NativeOf(media_)), 0U);
}

TEST_F(SqliteDatabaseTest, APipeInItsPlaceIsRefusedWithoutWaiting) {
    ASSERT_EQ(::mkfifo(bench_.NativeOf(media_).c_str(), 0600), 0);

    EXPECT_EQ(Open(media_).result.error, DatabaseError::Damaged);
}

TEST_F(SqliteDatabaseTest, AFileThatEndsInsideAPageIsDamaged) {
    bench_.MakeStore(media_);
    const fs::path native = bench_.NativeOf(media_);
    fs::resize_file(native, fs::file_size(native) - 1000);

    EXPECT_EQ(Open(media_).result.error, DatabaseError::Damaged);
}

TEST_F(SqliteDatabaseTest, DamageInTheMiddleIsToldWhenTheTableIsRead) {
    bench_.MakeStore(media_);
    {
        const auto file = OpenMedia();
        std::vector<Change> songs;
        for (int i = 1; i <= 2000; ++i)
            songs.push_back(Song(i, std::string(50, 'a')));
        ASSERT_TRUE(Apply(*file, songs).Ok());
    }
    const fs::path native = bench_.NativeOf(media_);
    ASSERT_GT(fs::file_size(native), 100'000U);
    std::fstream raw(native, std::ios::in | std::ios::out | std::ios::binary);
    raw.seekp(40'960);
    raw << std::string(40'960, '\x7f');
    raw.close();
    const auto file = OpenMedia();

    const auto result = file->ReadRows(kSongs, {}, [](std::int64_t, std::span<const std::string_view>) {});

    EXPECT_EQ(result.error, DatabaseError::Damaged);
}

TEST_F(SqliteDatabaseTest, AFileThatAnotherProgramHoldsForItselfCannotBeOpened) {
    bench_.MakeStore(media_);
    bench_.Lock(media_);  // without a write-ahead log a writer shuts out readers

    const auto locked = Open(media_);
    bench_.Unlock();

    EXPECT_EQ(locked.result.error, DatabaseError::Locked);
    EXPECT_TRUE(Open(media_).result.Ok());
}

TEST_F(SqliteDatabaseTest, AFileThatWasReplacedIsNotWritten) {
    bench_.MakeStore(media_);
    const auto file = OpenMedia();
    fs::rename(bench_.NativeOf(media_), bench_.Folder() / "old.mdb");
    bench_.MakeStore(media_);

    const auto replaced = Apply(*file, {Song(1, "Ann")});
    fs::rename(bench_.Folder() / "old.mdb", bench_.NativeOf(media_));
    const auto back = Apply(*file, {Song(1, "Ann")});

    EXPECT_EQ(replaced.error, DatabaseError::Missing);
    EXPECT_TRUE(back.Ok()) << back.text;
}

TEST_F(SqliteDatabaseTest, TheLoginFileAndItsLogAreTheOwnersAlone) {
    bench_.MakeStore(login_);
    const fs::path native = bench_.NativeOf(login_);
    const fs::perms made = ModeOf(native);
    fs::permissions(native, kEverybodyReads);
    const auto opened = Open(login_);
    ASSERT_TRUE(opened.result.Ok());

    Apply(*opened.file, {{ChangeKind::Insert, 0, 1, contracts::Row(10, "secret")}});

    EXPECT_EQ(made, kOwnerOnly);
    EXPECT_EQ(ModeOf(native), kOwnerOnly);
    EXPECT_EQ(ModeOf(native.string() + "-wal"), kOwnerOnly);
    EXPECT_EQ(ModeOf(native.string() + "-shm"), kOwnerOnly);
}

TEST_F(SqliteDatabaseTest, ALogThatWasLeftOpenToAllIsClosedToOthers) {
    bench_.MakeStore(login_);
    const fs::path log = bench_.NativeOf(login_).string() + "-wal";
    std::ofstream(log).close();
    fs::permissions(log, kEverybodyReads);

    Open(login_);

    EXPECT_TRUE(!fs::exists(log) || ModeOf(log) == kOwnerOnly);
}

TEST_F(SqliteDatabaseTest, AReadOnlyFileIsReadButNotWritten) {
    bench_.MakeStore(media_);
    Apply(*OpenMedia(), {Song(1, "Ann")});
    fs::permissions(bench_.NativeOf(media_), fs::perms::owner_read);
    GiveAway();
    const AsOrdinaryPerson person;
    const auto file = OpenMedia();
    ASSERT_NE(file, nullptr);

    const auto result = Apply(*file, {Song(2, "Bob")});

    EXPECT_EQ(result.error, DatabaseError::ReadOnly);
    EXPECT_EQ(Read(*file, kSongs).size(), 1U);
}

TEST_F(SqliteDatabaseTest, AReadOnlyFolderIsReadAndWrittenOnceItMayBe) {
    bench_.MakeStore(media_);
    Apply(*OpenMedia(), {Song(1, "Ann")});
    GiveAway();
    const AsOrdinaryPerson person;
    fs::permissions(bench_.Folder(), fs::perms::owner_read | fs::perms::owner_exec);
    const auto file = OpenMedia();
    ASSERT_NE(file, nullptr);

    const std::size_t rows = Read(*file, kSongs).size();
    const auto refused = Apply(*file, {Song(2, "Bob")});
    const std::size_t rows_after_refusal = Read(*file, kSongs).size();
    fs::permissions(bench_.Folder(), fs::perms::owner_all);
    const auto written = Apply(*file, {Song(2, "Bob")});

    EXPECT_EQ(rows, 1U);
    EXPECT_EQ(refused.error, DatabaseError::ReadOnly);
    EXPECT_EQ(rows_after_refusal, 1U);
    EXPECT_TRUE(written.Ok()) << written.text;
    EXPECT_EQ(Read(*file, kSongs).size(), 2U);
}

TEST_F(SqliteDatabaseTest, AReadOnlyFolderMayHaveAnOddName) {
    const fs::path odd = bench_.Folder() / "a?b#c%20 d";
    fs::create_directory(odd);
    bench_.MakeStore(media_);
    Apply(*OpenMedia(), {Song(1, "Ann")});
    fs::rename(bench_.NativeOf(media_), odd / "dbMedia.mdb");
    GiveAway();
    sqlite::SqliteDatabase database([&odd](std::string_view) { return (odd / "dbMedia.mdb").string(); });
    const AsOrdinaryPerson person;
    fs::permissions(odd, fs::perms::owner_read | fs::perms::owner_exec);

    const auto opened = database.Open(media_, *store::LayoutOf(media_), ports::kNoWaiting);
    fs::permissions(odd, fs::perms::owner_all);

    ASSERT_TRUE(opened.result.Ok()) << opened.result.text;
    EXPECT_EQ(Read(*opened.file, kSongs).size(), 1U);
}

TEST_F(SqliteDatabaseTest, AFileThatMayNotBeReadIsTold) {
    bench_.MakeStore(media_);
    fs::permissions(bench_.NativeOf(media_), fs::perms::none);
    GiveAway();
    const AsOrdinaryPerson person;

    EXPECT_EQ(Open(media_).result.error, DatabaseError::InputOutput);
}

std::vector<Change> ManySongs() {
    std::vector<Change> songs;
    for (int i = 2; i <= 20'000; ++i)
        songs.push_back(Song(i, std::string(80, 'a')));
    return songs;
}

TEST_F(SqliteDatabaseTest, AFullDiskKeepsNothingOfTheTransactionAndAllOfThoseBefore) {
    bench_.MakeStore(media_);
    const auto file = OpenMedia();
    Apply(*file, {Song(1, "Ann")});
    // The largest size of a file stands for the end of the disk: a write beyond it fails in the same way.
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit before{};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &before), 0);
    rlimit small = before;
    small.rlim_cur = 200'000;
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &small), 0);

    const auto full = Apply(*file, ManySongs());
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &before), 0);
    const std::size_t rows = Read(*file, kSongs).size();
    const auto again = Apply(*file, ManySongs());

    EXPECT_EQ(full.error, DatabaseError::DiskFull) << full.text;
    EXPECT_EQ(rows, 1U);
    EXPECT_TRUE(again.Ok()) << again.text;
    EXPECT_EQ(bench_.AskElsewhere(media_, "PRAGMA integrity_check"), (Lines{"ok"}));
    EXPECT_EQ(Read(*file, kSongs).size(), 20'000U);
}

class SmallDisk {
public:
    explicit SmallDisk(const fs::path& place) : place_(place) {
        fs::create_directory(place_);
        is_mounted_ = ::mount("tmpfs", place_.c_str(), "tmpfs", 0, "size=300k") == 0;
    }
    ~SmallDisk() {
        if (is_mounted_) ::umount(place_.c_str());
    }
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;
    bool IsMounted() const { return is_mounted_; }

private:
    fs::path place_;
    bool is_mounted_ = false;
};

TEST_F(SqliteDatabaseTest, ADiskWithoutRoomIsTold) {
    const fs::path place = bench_.Folder() / "disk";
    const SmallDisk disk(place);
    if (!disk.IsMounted()) GTEST_SKIP() << "only the superuser may make a small disk";
    bench_.MakeStore(media_);
    fs::copy_file(bench_.NativeOf(media_), place / "dbMedia.mdb");
    sqlite::SqliteDatabase database([&place](std::string_view) { return (place / "dbMedia.mdb").string(); });
    auto opened = database.Open(media_, *store::LayoutOf(media_), ports::kNoWaiting);
    ASSERT_TRUE(opened.result.Ok()) << opened.result.text;

    const auto full = Apply(*opened.file, ManySongs());
    const auto small = Apply(*opened.file, {Song(1, "Ann")});

    EXPECT_EQ(full.error, DatabaseError::DiskFull) << full.text;
    EXPECT_TRUE(small.Ok()) << small.text;
    EXPECT_EQ(Read(*opened.file, kSongs).size(), 1U);
    opened.file.reset();
}

}  // namespace
