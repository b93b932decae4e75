// The library: owns its rooms and hands out what they answer for other subjects.
#pragma once

#include <cstdint>
#include <string_view>

#include "controls/ListBox.h"
#include "library/AddMediaForm.h"
#include "library/AddMediaRoom.h"
#include "library/CleanUpRoom.h"
#include "library/LibraryControls.h"
#include "library/LibraryListsRoom.h"
#include "library/LibraryMenu.h"
#include "library/MediaDropRoom.h"
#include "library/OpenedMediaRoom.h"
#include "library/PlayListImportRoom.h"
#include "library/PlayListRoom.h"
#include "library/SearchRoom.h"
#include "library/TaskRoom.h"
#include "library/TrackMatchRoom.h"
#include "library/UndoLog.h"
#include "library/UndoRoom.h"
#include "ports/Clock.h"
#include "ports/Dialogs.h"
#include "ports/EventLoop.h"
#include "ports/Files.h"
#include "roles/AddressRow.h"
#include "roles/Favourites.h"
#include "roles/FileType.h"
#include "roles/Highlights.h"
#include "roles/History.h"
#include "roles/MediaIntake.h"
#include "roles/MediaKeys.h"
#include "roles/Start.h"
#include "roles/TrackLists.h"
#include "roles/TrackView.h"
#include "roles/Window.h"
#include "store/DataSource.h"
#include "store/Stores.h"

namespace library {

/// The windows that show the library, and what belongs to others and is read or written here.
struct LibraryWindows {
    LibraryControls& controls;
    LibraryMenu& menu;
    AddMediaForm& add_media;
    controls::ListBox& lstEditPlayList;    ///< of the preferences, shows the playlists as well
    const controls::ListBox& lstOpenWith;  ///< the paths that the program was started with
    store::DataSource& datHistory;         ///< keeps the date of the last clean-up
};

struct LibraryState {
    bool& ListMaybeChanged;  ///< set when the track list is refilled
    const bool& Include_Sub_Folders;
    const std::int32_t& last_clean_up_age;
};

struct LibraryRoles {
    roles::Start& start;
    roles::Favourites& favourites;
    roles::History& history;
    roles::Highlights& highlights;
    roles::MediaKeys& keys;
    roles::AddressRow& address;
    roles::Window& window;
    roles::FileType& file_type;
};

struct LibraryPorts {
    ports::Files& files;
    ports::Dialogs& dialogs;
    ports::EventLoop& loop;
    const ports::Clock& clock;
    ports::KeptTexts& kept;
};

class Library final : private LibraryListener, private roles::MediaIntake {
public:
    Library(LibraryWindows windows, LibraryState state, store::Stores& stores, LibraryRoles others,
            LibraryPorts ports);
    Library(const Library&) = delete;
    Library& operator=(const Library&) = delete;

    roles::TrackLists& Lists() { return lists_; }
    roles::TrackView& View() { return lists_; }
    roles::MediaIntake& Intake() { return *this; }

private:
    // LibraryListener
    void OnRemoveKey() override { playlists_.RemoveSelectedSong(); }
    void OnUndoKey() override { undo_.Undo(); }
    void OnInitialTrack(std::string_view path) override { opened_.AddIfMissing(path); }
    void OnReloaded() override { file_type_.cmdAssociate(); }
    void OnEndTasks() override;

    // roles::MediaIntake
    void AddMediaFromCommand(std::string_view path) override { opened_.AddMediaFromCommand(path); }
    void AddPlayList(std::string_view path) override { import_.AddPlayList(path); }
    void OfferToAddMedia() override { opened_.OfferToAddMedia(); }

    LibraryListsRoom lists_;
    UndoLog undo_log_;
    PlayListRoom playlists_;
    SearchRoom search_;
    TaskRoom task_;
    CleanUpRoom clean_up_;
    TrackMatchRoom track_match_;
    PlayListImportRoom import_;
    MediaDropRoom drops_;
    AddMediaRoom add_media_;
    OpenedMediaRoom opened_;
    UndoRoom undo_;
    roles::FileType& file_type_;
};

}  // namespace library
