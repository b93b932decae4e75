// Whatever is done in whatever order, lstMaybe stands row for row beside lstTracks.

#include <gtest/gtest.h>

#include <map>
#include <random>
#include <string>
#include <vector>

#include "fakes/FakeFiles.h"
#include "library/CleanUpRoom.h"
#include "library/LibraryPane.h"
#include "library/MediaDropRoom.h"

namespace {

using library_tests::LibraryPane;
using library_tests::PlayListRow;
using library_tests::Song;

constexpr int kSteps = 400;

class TrackAlignmentTest : public testing::TestWithParam<unsigned>, protected LibraryPane {
protected:
    TrackAlignmentTest() : random_(GetParam()) {
        std::vector<std::vector<std::string>> songs;
        for (int i = 1; i <= 40; ++i) {
            // A title of its own tells every song apart.
            const std::string id = std::to_string(i);
            songs.push_back(
                Song(id, "Artist " + std::to_string(i % 6), "Title " + id, std::to_string(i % 4)));
            texts_[id] = "Artist " + std::to_string(i % 6) + " - Title " + id;
            if (i % 9 != 0) files_.AddFile(songs.back()[3]);
        }
        songs.push_back(songs[10]);
        SeedSongs(songs);
        Stores.Bind(datHistory_, "tblHistory");
        SeedPlayLists({PlayListRow("1", "Road"), PlayListRow("2", "Sunday")});
        Neighbours.OnHistory = [this] { ShowSomeHistory(); };
        ListsRoom.Command1();
    }

    int Below(int count) { return std::uniform_int_distribution<int>(0, count - 1)(random_); }

    void ShowSomeHistory() {
        ListsRoom.BeginView();
        for (int i = Below(20); i > 0; --i) {
            const std::string id = std::to_string(1 + Below(40));
            const std::string& text = texts_.at(id);
            const std::size_t end = text.find(" - ");
            ListsRoom.AddPlayedSong(id, " " + text.substr(0, end), text.substr(end + 3) + "  ");
        }
        ListsRoom.EndView();
    }

    void ChooseRow(controls::ListBox& list) {
        if (list.ListCount() > 0) list.SetListIndex(Below(list.ListCount()));
    }

    void DropFromOutside() {
        const std::string name = "Outside " + std::to_string(Below(1000));
        const bool is_video = Below(3) == 0;
        const std::string path = "C:\\Outside\\" + name + (is_video ? ".avi" : ".mp3");
        texts_[path] = is_video ? name + " [Video]" : name;
        controls::DropData data;
        data.Files = {path, "C:\\Outside\\notes.txt"};
        Lists.lstTracks.OLEDragDrop.Raise(data, 0, 0);
    }

    void DropOnPlayList() {
        controls::DropData data;
        data.Row = Below(Lists.lstPlayLists.ListCount() + 1);
        data.HasText = Below(2) == 0;
        data.Text = std::to_string(1 + Below(45));
        data.Files = {"C:\\Music\\Artist 3 - Title 9.mp3"};
        if (Below(2) == 0) InterruptWithAStep();
        Lists.lstPlayLists.OLEDragDrop.Raise(data, 0, 0);
    }

    void AddSelectedToPlayList() {
        ChooseRow(Lists.lstTracks);
        PlayLists.imgAddSongOver.Click.Raise();
        ChooseRow(PlayLists.lstAddToPlaylist);
        PlayLists.imgOkOver.Click.Raise();
    }

    void AnswerAnything() {
        Dialogs.Answers = {Below(2) == 0 ? ports::BoxAnswer::Yes : ports::BoxAnswer::No};
    }

    void RemoveSelected() {
        AnswerAnything();
        ChooseRow(Lists.lstTracks);
        PlayLists.imgRemoveSongOver.Click.Raise();
    }

    void MakePlayList() {
        Dialogs.Typed = {"List " + std::to_string(Below(6)), ""};
        PlayListsRoom.AddingPlayList();
    }

    void DeletePlayList() {
        AnswerAnything();
        ListsRoom.DisplayPlayLists();
        if (PlayLists.lstAddToPlaylist.ListCount() > 2) ChooseRow(PlayLists.lstAddToPlaylist);
        PlayLists.imgDeletePlayListOver.Click.Raise();
    }

    void PlaySome() {
        Sources.datSong.Open(store::kAllSongs);
        store::RecordSet& rows = Sources.datSong.Recordset();
        for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext()) {
            if (Below(4) != 0) continue;
            rows.Edit();
            rows.Set(store::tblSong::PlayCount, std::to_string(Below(3)));
            rows.Update();
        }
        Lists.lstPlayLists.SelectText("  [Top 20]");
    }

    void CleanUp() {
        Dialogs.Answers = {ports::BoxAnswer::Yes};
        if (Below(2) == 0) InterruptWithAStep();
        menu_.mnuCleanUp.Click.Raise();
        Dialogs.Answers.clear();
    }

    void TypeSearch() {
        constexpr std::string_view kTexts[] = {"", "artist 3", "TITLE1", "nothing like it", "9"};
        Search.txtSearch.SetText(kTexts[Below(5)]);
        Desktop.Advance(200);
    }

    void InterruptWithAStep() {
        Desktop.Post([this] {
            if (interrupted_) return;
            interrupted_ = true;
            Step();
            interrupted_ = false;
        });
    }

    void OpenInterrupted() {
        InterruptWithAStep();
        ListsRoom.OpenPlayList(Below(2) == 0 ? "Road" : "Sunday");
    }

    std::string Step() {
        switch (Below(16)) {
            case 0:
                return ChooseRow(Lists.lstPlayLists), "a playlist";
            case 1:
                return ChooseRow(Lists.lstArtists), "an artist";
            case 2:
                return DropFromOutside(), "a drop";
            case 3:
                return AddSelectedToPlayList(), "a song into a playlist";
            case 4:
                return RemoveSelected(), "a removal";
            case 5:
                return TypeSearch(), "a search";
            case 6:
                return OpenInterrupted(), "a playlist, interrupted";
            case 7:
                return ListsRoom.Command1(), "a reload";
            case 8:
                return MakePlayList(), "a new playlist";
            case 9:
                return DeletePlayList(), "a playlist deleted";
            case 10:
                return PlaySome(), "the top 20";
            case 11:
                return Below(10) == 0 ? CleanUp() : (void)Lists.lstPlayLists.SelectText("  [Last 20]"),
                       "a clean-up or the last 20";
            case 12:
                return PlayListsRoom.addsong(std::to_string(1 + Below(45)), "Road"), "a song into Road";
            case 13:
                return ListsRoom.RefillIfEmpty(), "a refill";
            case 14:
                return DropOnPlayList(), "a drop on the playlists";
            default:
                return ListsRoom.DisplayPlayLists(), "the playlists";
        }
    }

    fakes::FakeFiles files_;
    store::DataSource datHistory_{"datHistory"};
    library::TaskControls task_;
    library::CleanUpMenu menu_;
    std::int32_t age_ = 0;
    library::TaskRoom task_room_{task_, Desktop, Neighbours};
    library::CleanUpRoom cleaning_room_{task_, menu_,     {Sources.datSong, datHistory_}, age_, task_room_,
                                        Undo,  ListsRoom, {files_, Dialogs, Desktop}};
    struct : roles::MediaIntake {
        void AddMediaFromCommand(std::string_view) override {}
        void AddPlayList(std::string_view) override {}
        void OfferToAddMedia() override {}
    } intake_;
    library::MediaDropRoom drops_{Lists, Sources, ListsRoom, PlayListsRoom, intake_};
    bool interrupted_ = false;
    std::map<std::string, std::string, std::less<>> texts_;  // the row that each entry stands for

private:
    std::mt19937 random_;
};

TEST_P(TrackAlignmentTest, EveryRowStandsBesideItsOwnEntryAfterEveryStep) {
    int rows_seen = 0;
    for (int step = 0; step < kSteps; ++step) {
        const std::string done = Step();

        ASSERT_EQ(Lists.lstTracks.ListCount(), Lists.lstMaybe.ListCount()) << done << ", step " << step;
        for (int row = 0; row < Lists.lstTracks.ListCount(); ++row) {
            const auto entry = texts_.find(Lists.lstMaybe.List(row));
            ASSERT_NE(entry, texts_.end()) << done << ", step " << step;
            ASSERT_EQ(Lists.lstTracks.List(row), entry->second) << done << ", step " << step;
            ++rows_seen;
        }
    }

    EXPECT_GT(rows_seen, kSteps);
}

INSTANTIATE_TEST_SUITE_P(ManySequences, TrackAlignmentTest, testing::Range(1U, 21U));

}  // namespace
