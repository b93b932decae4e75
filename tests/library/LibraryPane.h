// The library's rooms on their own controls, with stores in memory and neighbours that remember what was
// asked of them.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "base/Number.h"
#include "base/Text.h"
#include "controls/ListBox.h"
#include "fakes/FakeDesktop.h"
#include "fakes/FakeDialogs.h"
#include "fakes/FakeKeptTexts.h"
#include "fakes/SeededStores.h"
#include "library/LibraryControls.h"
#include "library/LibraryListsRoom.h"
#include "library/PlayListRoom.h"
#include "library/SearchRoom.h"

namespace library_tests {

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
struct RecordingNeighbours final : roles::Start,
                                   roles::Favourites,
                                   roles::History,
                                   roles::Highlights,
                                   roles::MediaKeys,
                                   library::LibraryListener {
    bool IsLoading() const override { return Loading; }
    void SetStage(std::string_view stage) override { Remember("stage ", stage); }
    bool IsOver() const override { return Over; }
    void LoadFavs() override { Remember("favourites", ""); }
    void SettleAtStart() override { Remember("settle", ""); }
    bool IsPanelClosed() const override { return true; }
    void TogglePanel() override { Remember("panel", ""); }
    void AddPageInFront() override {}
    void AddSiteToHistory(roles::HistoryKind kind, std::string_view text) override {
        Remember(std::string("site ").append(roles::TextOf(kind)).append(" "), text);
    }
    void DeleteHistory() override { Remember("delete history", ""); }
    void PopulateHistory(roles::HistoryKind kind) override {
        Remember("history ", roles::TextOf(kind));
        if (OnHistory) OnHistory();
    }
    void OnRemoveKey() override { ++RemoveKeys; }
    void OnUndoKey() override {
        ++UndoKeys;
        if (OnUndo) OnUndo();
    }
    void OnInitialTrack(std::string_view path) override { Remember("media ", path); }
    void OnReloaded() override { Remember("reloaded", ""); }
    void OnEndTasks() override { Remember("end tasks", ""); }
    void NoMouseOvers() override { ++OversHidden; }
    void KeyDown(int key_code, int shift) override {
        Remember("key ", base::ToText(key_code) + " " + base::ToText(shift));
    }

    void Remember(std::string_view what, std::string_view detail) {
        Calls.push_back(std::string(what).append(detail));
    }

    std::vector<std::string> Calls;
    std::function<void()> OnHistory;
    bool Loading = false;
    bool Over = false;
    std::function<void()> OnUndo;
    int RemoveKeys = 0;
    int UndoKeys = 0;
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
    controls::ListBox lstEditPlayList{"lstEditPlayList"};
    controls::ListBox lstOpenWith{"lstOpenWith"};
    library::LibraryMenu menu;

    bool ListMaybeChanged = false;

    library::LibraryListsRoom ListsRoom{Lists,
                                        {PlayLists.lstAddToPlaylist, lstEditPlayList, lstOpenWith},
                                        Sources,
                                        ListMaybeChanged,
                                        Desktop,
                                        Neighbours,
                                        {.start = Neighbours,
                                         .favourites = Neighbours,
                                         .history = Neighbours,
                                         .highlights = Neighbours,
                                         .keys = Neighbours}};
    fakes::FakeKeptTexts Kept;
    library::UndoLog Undo{Kept};
    library::PlayListRoom PlayListsRoom{PlayLists, menu, Sources, ListsRoom, Undo, Dialogs, Neighbours};
    library::SearchRoom SearchingRoom{Search, menu, Sources, ListsRoom, Neighbours};
};

}  // namespace library_tests
