#include "platform/linux/DriveLetters.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "fakes/FakeKeptTexts.h"

namespace linux {
namespace {

const std::string kName(DriveLetters::kName);
const std::string kStick = "/media/ann/Stick";
const std::string kCard = "/media/ann/Card";
const std::string kDisk = "/mnt/disk";

/// "D:/media/ann/Stick E:/mnt/disk"
std::string WordsOf(const std::vector<base::Volume>& volumes) {
    std::string words;
    for (const base::Volume& volume : volumes)
        words.append(words.empty() ? "" : " ").append(1, volume.letter).append(":" + volume.mount_point);
    return words;
}

std::vector<std::string> ManyMountPoints(int count) {
    std::vector<std::string> mount_points;
    mount_points.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        mount_points.push_back("/mnt/v" + std::to_string(i));
    return mount_points;
}

/// What runs of the program have of the letters.
class DriveLettersTest : public testing::Test {
protected:
    void NextRun(DriveLetters::Keeping keeping = DriveLetters::Keeping::ReadAndWrite) {
        letters_.emplace(texts_, keeping);
    }
    std::string Mounted(const std::vector<std::string>& mount_points) {
        return WordsOf(letters_->Give(mount_points));
    }

    fakes::FakeKeptTexts texts_;
    std::optional<DriveLetters> letters_{std::in_place, texts_, DriveLetters::Keeping::ReadAndWrite};
};

TEST_F(DriveLettersTest, TheFirstOnesAreGivenInTheOrderOfMounting) {
    EXPECT_EQ(Mounted({kStick, kCard, "/mnt"}), "D:/media/ann/Stick E:/media/ann/Card F:/mnt");
}

TEST_F(DriveLettersTest, AVolumeKeepsItsLetterWhenAnotherGoes) {
    Mounted({kStick, kCard});

    EXPECT_EQ(Mounted({kCard}), "E:/media/ann/Card");
}

TEST_F(DriveLettersTest, VolumesDoNotSwapLettersWhenTheyComeInAnotherOrder) {
    Mounted({kStick, kCard});
    Mounted({});

    EXPECT_EQ(Mounted({kCard, kStick}), "D:/media/ann/Stick E:/media/ann/Card");
}

TEST_F(DriveLettersTest, TheNextRunHasTheLettersOfTheOneBefore) {
    Mounted({kStick, kCard});

    NextRun();

    EXPECT_EQ(Mounted({kCard}), "E:/media/ann/Card");
}

TEST_F(DriveLettersTest, ANewVolumeGetsTheFirstLetterThatWasNeverGiven) {
    Mounted({kStick, kCard});
    NextRun();

    EXPECT_EQ(Mounted({kDisk, kCard}), "E:/media/ann/Card F:/mnt/disk");
}

TEST_F(DriveLettersTest, WhenAllAreGivenTheOneThatIsAwayLongestGivesItsLetter) {
    const std::vector<std::string> all = ManyMountPoints(23);
    Mounted(all);
    std::vector<std::string> left(all.begin(), all.end() - 1);
    Mounted(left);  // Z is away longest
    NextRun();
    left.erase(left.begin());
    Mounted(left);  // and then D

    left.push_back(kStick);
    EXPECT_TRUE(Mounted(left).ends_with(" Z:" + kStick));
    left.push_back(kCard);
    EXPECT_TRUE(Mounted(left).starts_with("D:" + kCard + " "));
}

TEST_F(DriveLettersTest, WhatIsMountedBeyondTheLettersTakesNoneOfWhatIsThere) {
    const std::string first = Mounted(ManyMountPoints(23));

    EXPECT_EQ(Mounted(ManyMountPoints(40)), first);
}

TEST_F(DriveLettersTest, AMountPointMayHoldAnyBytes) {
    const std::string odd = "/media/a b/100%\n\xFF\\";
    Mounted({kStick, odd});

    NextRun();

    EXPECT_EQ(Mounted({odd}), "E:" + odd);
}

TEST_F(DriveLettersTest, TheTextIsWrittenOnlyWhenSomethingChanged) {
    Mounted({});
    EXPECT_EQ(texts_.Writes, 0);
    Mounted({kStick, kCard});
    Mounted({kStick, kCard});
    NextRun();
    Mounted({kStick, kCard});

    EXPECT_EQ(texts_.Writes, 1);
}

TEST_F(DriveLettersTest, WithoutAPlaceToKeepThemTheyAreKnownInTheRun) {
    texts_.DiskIsFull = true;
    Mounted({kStick, kCard});
    EXPECT_EQ(Mounted({kCard}), "E:/media/ann/Card");

    texts_.DiskIsFull = false;
    Mounted({kCard, kDisk});
    NextRun();

    EXPECT_EQ(Mounted({kStick, kCard, kDisk}), "D:/media/ann/Stick E:/media/ann/Card F:/mnt/disk");
}

TEST_F(DriveLettersTest, ARunThatOnlyReadsChangesNothing) {
    Mounted({kStick, kCard});
    const std::string before = texts_.Texts[kName];

    NextRun(DriveLetters::Keeping::ReadOnly);

    EXPECT_EQ(Mounted({kDisk, kCard}), "E:/media/ann/Card F:/mnt/disk");
    EXPECT_EQ(texts_.Texts[kName], before);
}

TEST_F(DriveLettersTest, ARunThatOnlyReadsLeavesADamagedTextWhereItIs) {
    texts_.Texts[kName] = "nonsense";

    NextRun(DriveLetters::Keeping::ReadOnly);

    EXPECT_EQ(Mounted({kCard}), "D:/media/ann/Card");
    EXPECT_EQ(texts_.Texts[kName], "nonsense");
}

TEST_F(DriveLettersTest, OfADamagedTextCountsWhatMakesSenseAndTheTextIsSetAside) {
    struct Case {
        std::string text;
        std::string mounted;
    };
    const std::string head = "brindlepost drive letters 1\n";
    for (const Case& damaged : {
             Case{"", "D:/media/ann/Card"},
             Case{std::string(40, '\0'), "D:/media/ann/Card"},
             Case{"brindlepost drive letters 2\nQ /media/ann/Card\n", "D:/media/ann/Card"},
             Case{head + "F /mnt/disk\nE /media/ann/Card\nD /med", "E:/media/ann/Card"},
             Case{head + "C /mnt/c\n\nQ\n/ /x\nR x\nE /media/ann/Card\n", "E:/media/ann/Card"},
             Case{head + "E /media/ann/Card\nE /mnt/disk\nG /media/ann/Card\n", "E:/media/ann/Card"},
         }) {
        texts_ = {};
        texts_.Texts[kName] = damaged.text;

        NextRun();

        EXPECT_EQ(Mounted({kCard}), damaged.mounted) << damaged.text;
        EXPECT_EQ(texts_.Aside[kName], damaged.text);
        NextRun();
        EXPECT_EQ(Mounted({kCard}), damaged.mounted) << "in the run after " << damaged.text;
    }
}

/// A disk that gives no byte of what is there.
class Unreadable final : public ports::KeptTexts {
public:
    std::optional<std::string> Read(std::string_view) const override { return std::nullopt; }
    bool Write(std::string_view, std::string_view) override { return true; }
    bool Append(std::string_view, std::string_view) override { return false; }
    void Remove(std::string_view) override {}
    void SetAside(std::string_view name) override { Aside = name; }
    std::vector<std::string> Names(std::string_view) const override { return {kName}; }

    std::string Aside;
};

TEST_F(DriveLettersTest, ATextThatCannotBeReadIsSetAsideBeforeAnotherReplacesIt) {
    Unreadable texts;
    DriveLetters letters(texts, DriveLetters::Keeping::ReadAndWrite);

    EXPECT_EQ(WordsOf(letters.Give({kCard})), "D:/media/ann/Card");
    EXPECT_EQ(texts.Aside, kName);
}

}  // namespace
}  // namespace linux
