#include "platform/linux/MountedVolumes.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace linux {
namespace {

std::vector<base::Volume> VolumesOf(const std::string& mount_table) {
    DriveLetters letters;
    return VolumesFrom(mount_table, letters);
}

TEST(MountedVolumes, OnlyWhatIsMountedForPeopleGetsALetter) {
    const std::string table =
        "22 1 8:1 / / rw,relatime shared:1 - ext4 /dev/sda1 rw\n"
        "23 22 0:5 / /proc rw - proc proc rw\n"
        "24 22 0:6 / /run/user/1000 rw - tmpfs tmpfs rw\n"
        "36 22 8:17 / /media/ann/Stick rw,nosuid shared:2 - vfat /dev/sdb1 rw\n"
        "37 22 8:33 / /run/media/ann/Card rw - exfat /dev/sdc1 rw\n"
        "38 22 0:50 / /mnt rw - nfs server:/music rw\n"
        "39 22 0:51 / /mnt/deep rw - nfs server:/deep rw\n"
        "40 22 0:52 / /mntx rw - nfs server:/x rw\n";

    const auto volumes = VolumesOf(table);

    ASSERT_EQ(volumes.size(), 4U);
    EXPECT_EQ(volumes[0].letter, 'D');
    EXPECT_EQ(volumes[0].mount_point, "/media/ann/Stick");
    EXPECT_EQ(volumes[0].label, "Stick");
    EXPECT_EQ(volumes[1].letter, 'E');
    EXPECT_EQ(volumes[1].label, "Card");
    EXPECT_EQ(volumes[2].mount_point, "/mnt");
    EXPECT_EQ(volumes[3].letter, 'G');
    EXPECT_EQ(volumes[3].mount_point, "/mnt/deep");
}

TEST(MountedVolumes, EscapedCharactersOfAMountPointAreRead) {
    const auto volumes = VolumesOf("1 2 3:4 / /media/a\\040b\\011c\\134d rw - vfat x rw\n");

    ASSERT_EQ(volumes.size(), 1U);
    EXPECT_EQ(volumes[0].mount_point, "/media/a b\tc\\d");
    EXPECT_EQ(volumes[0].label, base::NameToText("a b\tc\\d"));
}

TEST(MountedVolumes, AVolumeMountedTwiceAtOnePlaceHasOneLetter) {
    const auto volumes = VolumesOf("1 2 3:4 / /mnt/a rw - x x rw\n2 2 3:5 / /mnt/a rw - x x rw\n");

    EXPECT_EQ(volumes.size(), 1U);
}

TEST(MountedVolumes, LettersEndAtZ) {
    std::string table;
    for (int i = 0; i < 40; ++i)
        table += "1 2 3:4 / /mnt/v" + std::to_string(i) + " rw - x x rw\n";

    const auto volumes = VolumesOf(table);

    ASSERT_EQ(volumes.size(), 23U);
    EXPECT_EQ(volumes.back().letter, 'Z');
}

TEST(MountedVolumes, LinesThatAreNoneArePassedOver) {
    EXPECT_TRUE(VolumesOf("").empty());
    EXPECT_TRUE(VolumesOf("\n\n1 2 3\nnonsense\n1 2 3:4 / /mnt").size() == 1U);
}

TEST(MountedVolumes, AVolumeKeepsItsLetterWhenTheTableChanges) {
    const std::string first = "1 2 3:4 / /media/ann/A rw - vfat x rw\n";
    const std::string second = "2 2 3:5 / /media/ann/B rw - vfat x rw\n";
    DriveLetters letters;
    VolumesFrom(first + second, letters);

    const auto volumes = VolumesFrom(second, letters);

    ASSERT_EQ(volumes.size(), 1U);
    EXPECT_EQ(volumes[0].letter, 'E');
    EXPECT_EQ(volumes[0].mount_point, "/media/ann/B");
}

TEST(MountedVolumes, AMissingTableHasNoVolumes) {
    MountedVolumes volumes("/no/such/table");

    EXPECT_TRUE(volumes.Current().empty());
}

}  // namespace
}  // namespace linux
