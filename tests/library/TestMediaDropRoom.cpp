#include "library/MediaDropRoom.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "library/LibraryPane.h"

namespace {

using library_tests::LibraryPane;
using library_tests::PlayListRow;
using library_tests::Rows;
using library_tests::RowsOf;
using library_tests::Song;

/// What is dropped on both lists, and what is not.
const Rows kMedia = {"mpg", "peg", "mp3", "mid", "wav", "wma", "wmv", "avi",
                     // "peg" stands for all that end so
                     "mpeg", "jpeg", "MP3", "Avi", "MPEG"};
const Rows kNotMedia = {"mp4", "m4a", "mov",  "vob", "midi", "gif",  "bmp", "jpg",
                        "png", "htm", "html", "txt", "exe",  "xmp3", ""};
const Rows kLists = {"mpl", "MPL", "m3u", "m3u8", "pls", "XSPF"};

struct RecordingIntake final : roles::MediaIntake {
    void AddMediaFromCommand(std::string_view path) override {
        Calls.emplace_back("media " + std::string(path));
    }
    void AddPlayList(std::string_view path) override { Calls.emplace_back("list " + std::string(path)); }
    void OfferToAddMedia() override {}
    Rows Calls;
};

class MediaDropRoomTest : public testing::Test, protected LibraryPane {
protected:
    MediaDropRoomTest() {
        SeedSongs(
            {Song("1", "Lark", "Morning"),
             Song("2", "Moor", "Evening [Video]"),
             {"3", "Ac-dc + Friends", "Back In Black", "C:\\M\\AC-DC & friends - Back.in.black.mp3", ""}});
        SeedPlayLists({PlayListRow("1", "Road"), PlayListRow("2", "Sunday")});
        ListsRoom.Command1();
        Neighbours.Calls.clear();
    }

    static controls::DropData Files(const Rows& paths, int row = -1) {
        controls::DropData data;
        data.Files = paths;
        data.Row = row;
        return data;
    }
    static controls::DropData Text(const std::string& text, int row) {
        controls::DropData data;
        data.Text = text;
        data.HasText = true;
        data.Row = row;
        return data;
    }
    void DropOnTracks(const controls::DropData& data) { Lists.lstTracks.OLEDragDrop.Raise(data, 0, 0); }
    void DropOnPlayLists(const controls::DropData& data) { Lists.lstPlayLists.OLEDragDrop.Raise(data, 0, 0); }
    /// The rows that came after the two head rows, as "name: id: artist - title".
    Rows Added() {
        Rows rows;
        for (const auto& row : Stores.Rows("tblPlayList"))
            rows.push_back(row[1] + ": " + row[2] + ": " + row[3] + " - " + row[4]);
        rows.erase(rows.begin(), rows.begin() + 2);
        return rows;
    }

    static constexpr int kRoad = 3;
    static constexpr int kSunday = 4;

    RecordingIntake Intake;
    library::MediaDropRoom Room{Lists, Sources, ListsRoom, PlayListsRoom, Intake};
};

TEST_F(MediaDropRoomTest, EachAcceptedExtensionBecomesATrackFromOutside) {
    for (const std::string& extension : kMedia) {
        const std::string path = "C:\\Out\\Some song." + extension;
        const int rows = Lists.lstTracks.ListCount();
        ListMaybeChanged = false;

        DropOnTracks(Files({path}));

        ASSERT_EQ(Lists.lstTracks.ListCount(), rows + 1) << extension;
        EXPECT_EQ(Lists.lstMaybe.List(rows), path);
        EXPECT_EQ(Lists.lstTracks.List(rows).substr(0, 9), "Some song");
        EXPECT_TRUE(ListMaybeChanged);
    }
}

TEST_F(MediaDropRoomTest, AnyOtherFileOnTheTracksDoesNothing) {
    for (const std::string& extension : kNotMedia)
        DropOnTracks(Files({"C:\\Out\\song." + extension}));
    DropOnTracks(Files({"C:\\Out\\mp3", "C:\\Out.mp3\\song", "C:\\Out\\x.mpl", "C:\\Out\\x.m3u"}));

    EXPECT_EQ(Lists.lstTracks.ListCount(), 3);
    EXPECT_EQ(Lists.lstMaybe.ListCount(), 3);
    EXPECT_TRUE(Intake.Calls.empty());
}

TEST_F(MediaDropRoomTest, ATrackShowsTheFileNameLessFourCharactersAndAVideoSaysSo) {
    DropOnTracks(Files({"C:\\a.b\\Foo - Bar.mp3", "C:\\Clip.AVI", "C:\\Clip.mpeg", "C:\\Tune.mid",
                        "C:\\x.wmv", "C:\\back\uF05Cslash.wav"}));

    const Rows rows = RowsOf(Lists.lstTracks);
    EXPECT_EQ(Rows(rows.begin() + 3, rows.end()),
              (Rows{"Foo - Bar", "Clip [Video]", "Clip. [Video]", "Tune", "x [Video]", "back\\slash"}));
    EXPECT_EQ(Lists.lstTracks.ListCount(), Lists.lstMaybe.ListCount());
    EXPECT_EQ(Lists.lblTrackCount.Caption(), "9 tracks");
}

TEST_F(MediaDropRoomTest, ATextOnTheTracksDoesNothing) {
    DropOnTracks(Text("1", 0));

    EXPECT_EQ(Lists.lstTracks.ListCount(), 3);
}

TEST_F(MediaDropRoomTest, ATrackOfTheLibraryIsAddedToThePlaylistItWasDroppedOn) {
    DropOnPlayLists(Text("2", kRoad));
    DropOnPlayLists(Text(" 1 ", kSunday));

    EXPECT_EQ(Added(), (Rows{"Road: 2: Moor - Evening [Video]", "Sunday: 1: Lark - Morning"}));
    EXPECT_TRUE(Neighbours.Calls.empty());
}

TEST_F(MediaDropRoomTest, AForeignTextAndABuiltInRowAddNothing) {
    for (const char* text : {"99", "", "some words"})
        DropOnPlayLists(Text(text, kRoad));
    for (const int row : {-1, 0, 1, 2, 5, 99})
        DropOnPlayLists(Text("1", row));

    EXPECT_TRUE(Added().empty());
}

TEST_F(MediaDropRoomTest, WithATextTheFilesAreNotLookedAt) {
    controls::DropData both = Text("1", kRoad);
    both.Files = {"C:\\Foo - Bar.mp3", "C:\\x.mpl"};

    DropOnPlayLists(both);

    EXPECT_EQ(Added(), Rows{"Road: 1: Lark - Morning"});
    EXPECT_TRUE(Intake.Calls.empty());
}

TEST_F(MediaDropRoomTest, EachAcceptedExtensionGoesIntoThePlaylist) {
    for (const std::string& extension : kMedia)
        DropOnPlayLists(Files({"C:\\Foo - Bar." + extension}, kRoad));

    EXPECT_EQ(Added(), Rows(kMedia.size(), "Road: : Foo - Bar"));
}

TEST_F(MediaDropRoomTest, OtherFilesOnThePlaylistsAreSkipped) {
    for (const std::string& extension : kNotMedia)
        DropOnPlayLists(Files({"C:\\Foo - Bar." + extension}, kRoad));
    DropOnPlayLists(Files({"C:\\mp3", "C:\\a.mp3\\b", "C:\\a.mpl\\b"}, kRoad));

    EXPECT_TRUE(Added().empty());
    EXPECT_TRUE(Intake.Calls.empty());
    EXPECT_TRUE(Neighbours.Calls.empty());
}

TEST_F(MediaDropRoomTest, PlaylistFilesAreReadWhereverTheyAreDroppedAndTheListsRebuiltOnce) {
    for (const int row : {-1, 0, kRoad}) {
        Intake.Calls.clear();
        Neighbours.Calls.clear();
        Rows paths;
        Rows expected;
        for (const std::string& extension : kLists) {
            paths.push_back("C:\\a." + extension);
            expected.push_back("list C:\\a." + extension);
        }

        DropOnPlayLists(Files(paths, row));

        EXPECT_EQ(Intake.Calls, expected);
        EXPECT_EQ(Neighbours.Calls, (Rows{"stage Media Library", "stage Favourites", "favourites",
                                          "stage Initial tracks", "reloaded"}));
    }
}

TEST_F(MediaDropRoomTest, SeveralFilesAreTakenInTheirOrderIntoTheRowThatWasDroppedOn) {
    DropOnPlayLists(Files({"C:\\lark - MORNING.mp3", "C:\\x.txt", "C:\\new.mpl", "C:\\One.wav"}, kSunday));

    EXPECT_EQ(Added(), (Rows{"Sunday: 1: lark - MORNING", "Sunday: : Unknown - One"}));
    EXPECT_EQ(Intake.Calls, Rows{"list C:\\new.mpl"});
}

TEST_F(MediaDropRoomTest, AFileIsFoundByItsNamesJoinedOrElseByItsPath) {
    Room.AddTracksOLE("C:\\M\\AC-DC & friends - Back.in.black.mp3", "Road");
    Room.AddTracksOLE("C:\\LARK - mornIng.mpeg", "Road");
    Room.AddTracksOLE("C:\\Lar - kMorning.mp3", "Road");
    Room.AddTracksOLE("C:\\Nobody - Here - There.mp3", "Road");

    EXPECT_EQ(Added(), (Rows{"Road: 3: AC-DC & friends - Back.in.black", "Road: 1: LARK - mornIng",
                             "Road: 1: Lar - kMorning", "Road: : Nobody - Here - There"}));
}

TEST_F(MediaDropRoomTest, ASongOfOneNameIsTheFirstOfThem) {
    ListsRoom.DisplayPlayLists();
    store::RecordSet& songs = (Sources.datSong.Open(store::kAllSongs), Sources.datSong.Recordset());
    songs.AddNew();
    songs.Set(store::tblSong::SongID, "4");
    songs.Set(store::tblSong::artist, "Lark");
    songs.Set(store::tblSong::title, "Morning");
    songs.Update();

    Room.AddTracksOLE("C:\\Lark - Morning.mp3", "Road");

    EXPECT_EQ(Added(), Rows{"Road: 1: Lark - Morning"});
}

TEST_F(MediaDropRoomTest, AFileThatIsNotInTheLibraryIsNotShown) {
    DropOnPlayLists(Files({"C:\\Nobody - Here.mp3"}, kRoad));

    Lists.lstPlayLists.SelectText("Road");

    EXPECT_EQ(Lists.lstTracks.ListCount(), 0);
}

TEST_F(MediaDropRoomTest, WhatIsAddedToTheOpenPlaylistShowsAtOnce) {
    Lists.lstPlayLists.SelectText("Road");

    DropOnPlayLists(Text("1", kRoad));
    DropOnPlayLists(Files({"C:\\Lark - Morning.mp3"}, kRoad));

    EXPECT_EQ(RowsOf(Lists.lstMaybe), (Rows{"1", "1"}));
    EXPECT_EQ(Lists.lstPlayLists.Text(), "Road");
}

TEST_F(MediaDropRoomTest, WhatIsAddedToAnotherPlaylistLeavesTheTracksAlone) {
    Lists.lstPlayLists.SelectText("Sunday");
    ListMaybeChanged = false;

    DropOnPlayLists(Text("1", kRoad));

    EXPECT_EQ(Lists.lstTracks.ListCount(), 0);
    EXPECT_FALSE(ListMaybeChanged);
}

TEST_F(MediaDropRoomTest, ADroppedTrackCannotBeAddedToAPlaylist) {
    DropOnTracks(Files({"C:\\Out\\Some song.mp3"}));
    Lists.lstTracks.SetListIndex(3);

    PlayLists.imgAddSongOver.Click.Raise();

    ASSERT_EQ(Dialogs.Boxes.size(), 1U);
    EXPECT_EQ(Dialogs.Boxes[0].title, "Can not add to play list");
    EXPECT_FALSE(PlayLists.fraAddToPlaylist.Visible());
}

}  // namespace
