// The library's rooms on their own controls, with stores in memory and neighbours that remember what was
// asked of them.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "base/Text.h"
#include "controls/ListBox.h"
#include "fakes/FakeDesktop.h"
#include "fakes/FakeDialogs.h"
#include "fakes/SeededStores.h"
#include "library/LibraryControls.h"
#include "library/LibraryListsRoom.h"
#include "library/LibraryOutlets.h"
#include "library/PlayListRoom.h"
#include "library/SearchRoom.h"

namespace testing_library {

using Rows = std::vector<std::string>;

inline Rows RowsOf(const controls::ListBox& list) {
    Rows rows;
    for (int row = 0; row < list.ListCount(); ++row)
        rows.emplace_back(list.List(row));
    return rows;
}

inline std::vector<std::string> Song(const std::string& id, const std::string& artist,
                                     const std::string& title, const std::string& play_count = "") {
    return {id, artist, title, "C:\\Music\\" + artist + " - " + title + ".mp3", play_count};
}

inline std::vector<std::string> PlayListRow(const std::string& key, const std::string& name,
                                            const std::string& song_id = "", const std::string& artist = "",
                                            const std::string& title = "") {
    return {key, name, song_id, artist, title};
}

/// Everything around the rooms, remembered in order.
struct RecordingNeighbours final : library::ReloadSteps,
                                   library::MusicHistory,
                                   library::LibraryListener,
                                   library::MouseOvers {
    void ShowLoadingStage(std::string_view caption) override { Remember("stage ", caption); }
    void LoadFavs() override { Remember("favourites", ""); }
    void AddMediaFromCommand(std::string_view path) override { Remember("media ", path); }
    void PopulateHistory(std::string_view hist_type) override {
        Remember("history ", hist_type);
        if (OnHistory) OnHistory();
    }
    void OnTracksRefilled() override { ++Refills; }
    void OnPlayListsListed() override { ++PlayListListings; }
    void OnRemoveKey() override { ++RemoveKeys; }
    void NoMouseOvers() override { ++OversHidden; }

    void Remember(std::string_view what, std::string_view detail) {
        Calls.push_back(std::string(what).append(detail));
    }

    std::vector<std::string> Calls;
    std::function<void()> OnHistory;
    int Refills = 0;
    int PlayListListings = 0;
    int RemoveKeys = 0;
    int OversHidden = 0;
};

struct LibraryPane {
    LibraryPane() {
        Stores.Bind(Sources.datSong, "tblSong");
        Stores.Bind(Sources.datPlayList, "tblPlayList");
        Desktop.AdoptTimer(Search.tmrSearch);
    }

    void SeedSongs(const std::vector<std::vector<std::string>>& songs) { Stores.Seed("tblSong", songs); }
    void SeedPlayLists(const std::vector<std::vector<std::string>>& rows) {
        Stores.Seed("tblPlayList", rows);
    }

    fakes::FakeDesktop Desktop;
    fakes::SeededStores Stores{Desktop};
    fakes::FakeDialogs Dialogs;
    RecordingNeighbours Neighbours;
    library::MediaSources Sources;

    library::LibraryListControls Lists;
    library::PlayListControls PlayLists;
    library::SearchControls Search;
    controls::ListBox lstOpenWith{"lstOpenWith"};
    library::LibraryMenu menu;

    library::LibraryListsRoom ListsRoom{
        Lists,       Sources, PlayLists.lstAddToPlaylist,
        lstOpenWith, Desktop, {Neighbours, Neighbours, Neighbours, Neighbours}};
    library::PlayListRoom PlayListsRoom{PlayLists, menu, Sources, ListsRoom, Dialogs, Neighbours};
    library::SearchRoom SearchingRoom{Search, menu, Sources, ListsRoom, Neighbours};
};

}  // namespace testing_library
