#include <gtest/gtest.h>

#include "controls/FolderLists.h"
#include "fakes/FakeFiles.h"

namespace controls {
namespace {

TEST(DriveListBox, ListsTheDrivesWithTheirNamesAndSelectsC) {
    fakes::FakeFiles files;
    files.AddDrive('D', "Stick");
    files.AddDrive('F', "Card");

    const DriveListBox drives("Drive1", files);

    ASSERT_EQ(drives.ListCount(), 3);
    EXPECT_EQ(drives.List(0), "C:");
    EXPECT_EQ(drives.List(1), "D: [Stick]");
    EXPECT_EQ(drives.List(2), "F: [Card]");
    EXPECT_EQ(drives.Drive(), "C:");
    EXPECT_EQ(drives.ListIndex(), 0);
    EXPECT_EQ(drives.ControlKind(), Kind::DriveListBox);
}

TEST(DriveListBox, ChoosingARowChangesTheDrive) {
    fakes::FakeFiles files;
    files.AddDrive('D', "Stick");
    DriveListBox drives("Drive1", files);
    int changes = 0;
    EventClaims claims;
    claims.Claim(drives.Change, [&changes] { ++changes; });

    drives.SetListIndex(1);

    EXPECT_EQ(drives.Drive(), "D:");
    EXPECT_EQ(changes, 1);
}

TEST(DriveListBox, ChoosingTheSameDriveAgainChangesNothing) {
    fakes::FakeFiles files;
    DriveListBox drives("Drive1", files);
    int changes = 0;
    EventClaims claims;
    claims.Claim(drives.Change, [&changes] { ++changes; });

    drives.SetListIndex(0);

    EXPECT_EQ(changes, 0);
}

TEST(DriveListBox, APathSelectsItsDrive) {
    fakes::FakeFiles files;
    files.AddDrive('D', "Stick");
    DriveListBox drives("Drive1", files);

    EXPECT_TRUE(drives.SetDrive("d:\\music"));

    EXPECT_EQ(drives.Drive(), "D:");
    EXPECT_EQ(drives.ListIndex(), 1);
}

TEST(DriveListBox, ADriveThatIsNotThereChangesNothing) {
    fakes::FakeFiles files;
    DriveListBox drives("Drive1", files);

    EXPECT_FALSE(drives.SetDrive("Q:"));
    EXPECT_FALSE(drives.SetDrive(""));

    EXPECT_EQ(drives.Drive(), "C:");
}

TEST(DriveListBox, ReadingAgainFindsANewDriveAndKeepsTheSelection) {
    fakes::FakeFiles files;
    files.AddDrive('E', "Stick");
    DriveListBox drives("Drive1", files);
    drives.SetDrive("E:");
    files.AddDrive('F', "Card");
    int changes = 0;
    EventClaims claims;
    claims.Claim(drives.Change, [&changes] { ++changes; });

    drives.ReadDrives();

    EXPECT_EQ(drives.ListCount(), 3);
    EXPECT_EQ(drives.Drive(), "E:");
    EXPECT_EQ(drives.ListIndex(), 1);
    EXPECT_EQ(changes, 0);
}

TEST(DriveListBox, ADriveThatIsGoneGivesWayToC) {
    fakes::FakeFiles files;
    files.AddDrive('D', "Stick");
    DriveListBox drives("Drive1", files);
    drives.SetDrive("D:");
    files.RemoveDrive('D');
    int changes = 0;
    EventClaims claims;
    claims.Claim(drives.Change, [&changes] { ++changes; });

    drives.ReadDrives();

    EXPECT_EQ(drives.ListCount(), 1);
    EXPECT_EQ(drives.Drive(), "C:");
    EXPECT_EQ(changes, 1);
}

}  // namespace
}  // namespace controls
