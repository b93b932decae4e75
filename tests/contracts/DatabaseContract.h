// What every database keeps to. A bench gives the bodies a database, and ways to bring its files into the
// states that the contract speaks of.
#pragma once

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include "contracts/StoreFileText.h"
#include "ports/Database.h"
#include "store/Layouts.h"

namespace contracts {

/// Every test has a bench of its own.
class DatabaseBench {
public:
    virtual ~DatabaseBench() = default;
    virtual ports::Database& Database() = 0;
    /// A full path for a file name such as kMediaStore.
    virtual std::string PathOf(std::string_view file) = 0;
    /// A file with the tables of its layout.
    virtual void MakeStore(std::string_view path) = 0;
    virtual void RemoveStore(std::string_view path) = 0;
    virtual void PutFolder(std::string_view path) = 0;
    virtual void PutGarbage(std::string_view path) = 0;
    virtual void PutOtherTables(std::string_view path) = 0;
    /// Another program holds the file.
    virtual void Lock(std::string_view path) = 0;
    virtual void Unlock(std::string_view path) = 0;
};

template <class Bench>
class DatabaseContract : public testing::Test {
protected:
    static constexpr std::size_t kSongs = 0;
    static constexpr std::size_t kPlayLists = 1;
    static constexpr std::size_t kFolders = 2;

    DatabaseContract() : path_(bench_.PathOf(store::kMediaStore)) {}

    ports::OpenedStore TryOpen() {
        return bench_.Database().Open(path_, *store::LayoutOf(path_), ports::kNoWaiting);
    }
    /// A fresh store, open.
    std::unique_ptr<ports::StoreFile> OpenNew() {
        bench_.MakeStore(path_);
        return Reopen();
    }
    std::unique_ptr<ports::StoreFile> Reopen() {
        ports::OpenedStore opened = TryOpen();
        EXPECT_TRUE(opened.result.Ok()) << opened.result.text;
        return std::move(opened.file);
    }
    static Change InsertSong(std::int64_t row, Row values) {
        return {ports::ChangeKind::Insert, kSongs, row, std::move(values)};
    }

    Bench bench_;
    std::string path_;
};

TYPED_TEST_SUITE_P(DatabaseContract);

TYPED_TEST_P(DatabaseContract, AFreshStoreHasItsTablesWithoutRows) {
    const auto file = this->OpenNew();

    EXPECT_TRUE(Read(*file, this->kSongs).empty());
    EXPECT_TRUE(Read(*file, this->kPlayLists).empty());
    EXPECT_TRUE(Read(*file, this->kFolders).empty());
}

TYPED_TEST_P(DatabaseContract, InsertedRowsAreReadInTheOrderOfTheirNumbers) {
    const auto file = this->OpenNew();

    const auto result = Apply(*file, {this->InsertSong(7, {"2", "Bob", "Two", "C:\\2", "5"}),
                                      this->InsertSong(3, {"1", "Ann", "One", "C:\\1", "0"})});

    EXPECT_TRUE(result.Ok()) << result.text;
    EXPECT_EQ(Read(*file, this->kSongs), (std::vector<ReadRow>{{3, {"1", "Ann", "One", "C:\\1", "0"}},
                                                               {7, {"2", "Bob", "Two", "C:\\2", "5"}}}));
}

TYPED_TEST_P(DatabaseContract, RowsAreReadInPiecesToo) {
    const auto file = this->OpenNew();
    for (const std::int64_t row : {std::numeric_limits<std::int64_t>::min(), std::int64_t{-5},
                                   std::int64_t{3}, std::numeric_limits<std::int64_t>::max()}) {
        Apply(*file, {this->InsertSong(row, {"1", "", "", "", ""})});
    }
    const auto numbers = [&](const ports::RowPiece& piece) {
        std::vector<std::int64_t> rows;
        const auto result = file->ReadRows(this->kSongs, piece,
                                           [&rows](std::int64_t number, auto) { rows.push_back(number); });
        EXPECT_TRUE(result.Ok()) << result.text;
        return rows;
    };
    using Numbers = std::vector<std::int64_t>;

    EXPECT_EQ(numbers({.after = {}, .most = 2}), (Numbers{std::numeric_limits<std::int64_t>::min(), -5}));
    EXPECT_EQ(numbers({.after = -5, .most = 1}), (Numbers{3}));
    EXPECT_EQ(numbers({.after = -4}), (Numbers{3, std::numeric_limits<std::int64_t>::max()}));
    EXPECT_EQ(numbers({.after = std::numeric_limits<std::int64_t>::max()}), (Numbers{}));
    EXPECT_EQ(numbers({.after = {}, .most = 0}), (Numbers{}));
}

TYPED_TEST_P(DatabaseContract, ChangesOutlastTheOpening) {
    auto file = this->OpenNew();
    Apply(*file, {this->InsertSong(1, {"1", "Ann", "One", "C:\\1", "0"})});
    file.reset();

    file = this->Reopen();

    EXPECT_EQ(Read(*file, this->kSongs).size(), 1U);
}

TYPED_TEST_P(DatabaseContract, EmptyValuesComeBackEmpty) {
    const auto file = this->OpenNew();

    Apply(*file, {this->InsertSong(1, {"", "", "", "", ""}),
                  {ports::ChangeKind::Insert, this->kPlayLists, 1, {"1", "Mix", "", "", ""}}});

    EXPECT_EQ(Read(*file, this->kSongs), (std::vector<ReadRow>{{1, {"", "", "", "", ""}}}));
    EXPECT_EQ(Read(*file, this->kPlayLists), (std::vector<ReadRow>{{1, {"1", "Mix", "", "", ""}}}));
}

TYPED_TEST_P(DatabaseContract, TextsComeBackByteForByte) {
    const auto file = this->OpenNew();
    const Row odd{"1", std::string("a\0b", 3), "'\"[];--", "C:\\\xc3\xa9\xf0\x9f\x8e\xb5\xff",
                  "9223372036854775807"};

    Apply(*file, {this->InsertSong(1, odd)});

    EXPECT_EQ(Read(*file, this->kSongs), (std::vector<ReadRow>{{1, odd}}));
}

TYPED_TEST_P(DatabaseContract, UpdatesAndDeletesTouchOnlyTheirRow) {
    const auto file = this->OpenNew();
    Apply(*file, {this->InsertSong(1, {"1", "a", "", "", ""}), this->InsertSong(2, {"2", "b", "", "", ""}),
                  this->InsertSong(3, {"3", "c", "", "", ""})});

    Apply(*file, {{ports::ChangeKind::Update, this->kSongs, 2, {"2", "B", "new", "", "4"}},
                  {ports::ChangeKind::Delete, this->kSongs, 1, {}}});

    EXPECT_EQ(Read(*file, this->kSongs),
              (std::vector<ReadRow>{{2, {"2", "B", "new", "", "4"}}, {3, {"3", "c", "", "", ""}}}));
}

TYPED_TEST_P(DatabaseContract, AnUpdateOfARowThatIsGoneInsertsItAndADeleteOfOneDoesNothing) {
    const auto file = this->OpenNew();

    const auto result = Apply(*file, {{ports::ChangeKind::Update, this->kSongs, 5, {"5", "a", "", "", ""}},
                                      {ports::ChangeKind::Delete, this->kSongs, 6, {}}});

    EXPECT_TRUE(result.Ok()) << result.text;
    EXPECT_EQ(Read(*file, this->kSongs), (std::vector<ReadRow>{{5, {"5", "a", "", "", ""}}}));
}

TYPED_TEST_P(DatabaseContract, ATableWithoutNamedFieldsCountsItsRows) {
    const auto file = this->OpenNew();
    Apply(*file, {{ports::ChangeKind::Insert, this->kFolders, 1, {}},
                  {ports::ChangeKind::Insert, this->kFolders, 2, {}}});

    Apply(*file, {{ports::ChangeKind::Delete, this->kFolders, 1, {}}});

    EXPECT_EQ(Read(*file, this->kFolders), (std::vector<ReadRow>{{2, {}}}));
}

TYPED_TEST_P(DatabaseContract, TwoRowsMayHaveTheSameKey) {
    const auto file = this->OpenNew();

    const auto result = Apply(*file, {this->InsertSong(1, {"32767", "", "", "", ""}),
                                      this->InsertSong(2, {"32767", "", "", "", ""})});

    EXPECT_TRUE(result.Ok()) << result.text;
    EXPECT_EQ(Read(*file, this->kSongs).size(), 2U);
}

TYPED_TEST_P(DatabaseContract, AMissingFileIsToldAndNotMade) {
    const auto first = this->TryOpen();
    const auto second = this->TryOpen();

    EXPECT_EQ(first.file, nullptr);
    EXPECT_EQ(first.result.error, ports::DatabaseError::Missing);
    EXPECT_EQ(second.result.error, ports::DatabaseError::Missing);
}

TYPED_TEST_P(DatabaseContract, AFolderInItsPlaceIsTold) {
    this->bench_.PutFolder(this->path_);

    EXPECT_EQ(this->TryOpen().result.error, ports::DatabaseError::IsFolder);
}

TYPED_TEST_P(DatabaseContract, AFileThatIsNoDatabaseIsTold) {
    this->bench_.PutGarbage(this->path_);

    const auto opened = this->TryOpen();

    EXPECT_EQ(opened.file, nullptr);
    EXPECT_EQ(opened.result.error, ports::DatabaseError::Damaged);
    EXPECT_FALSE(opened.result.text.empty());
}

TYPED_TEST_P(DatabaseContract, AFileWithOtherTablesIsTold) {
    this->bench_.PutOtherTables(this->path_);

    EXPECT_EQ(this->TryOpen().result.error, ports::DatabaseError::OtherKind);
}

TYPED_TEST_P(DatabaseContract, AWriteToAFileThatAnotherProgramHoldsFailsAsAWhole) {
    const auto file = this->OpenNew();
    Apply(*file, {this->InsertSong(1, {"1", "", "", "", ""})});
    this->bench_.Lock(this->path_);
    const auto locked = Apply(*file, {this->InsertSong(2, {"2", "", "", "", ""})});
    this->bench_.Unlock(this->path_);
    const std::size_t rows_after_the_failure = Read(*file, this->kSongs).size();
    const auto again = Apply(*file, {this->InsertSong(2, {"2", "", "", "", ""})});

    EXPECT_EQ(locked.error, ports::DatabaseError::Locked);
    EXPECT_EQ(rows_after_the_failure, 1U);
    EXPECT_TRUE(again.Ok()) << again.text;
    EXPECT_EQ(Read(*file, this->kSongs).size(), 2U);
}

TYPED_TEST_P(DatabaseContract, AWriteToAFileThatWasTakenAwayIsTold) {
    const auto file = this->OpenNew();
    this->bench_.RemoveStore(this->path_);

    const auto result = Apply(*file, {this->InsertSong(1, {"1", "", "", "", ""})});

    EXPECT_EQ(result.error, ports::DatabaseError::Missing);
}

REGISTER_TYPED_TEST_SUITE_P(
    DatabaseContract, AFreshStoreHasItsTablesWithoutRows, InsertedRowsAreReadInTheOrderOfTheirNumbers,
    RowsAreReadInPiecesToo, ChangesOutlastTheOpening, EmptyValuesComeBackEmpty, TextsComeBackByteForByte,
    UpdatesAndDeletesTouchOnlyTheirRow, AnUpdateOfARowThatIsGoneInsertsItAndADeleteOfOneDoesNothing,
    ATableWithoutNamedFieldsCountsItsRows, TwoRowsMayHaveTheSameKey, AMissingFileIsToldAndNotMade,
    AFolderInItsPlaceIsTold, AFileThatIsNoDatabaseIsTold, AFileWithOtherTablesIsTold,
    AWriteToAFileThatAnotherProgramHoldsFailsAsAWhole, AWriteToAFileThatWasTakenAwayIsTold);

}  // namespace contracts
