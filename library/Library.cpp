#include "library/Library.h"

namespace library {
namespace {

LibraryListRoles RolesOfLists(const LibraryRoles& others) {
    return {.start = others.start,
            .favourites = others.favourites,
            .history = others.history,
            .highlights = others.highlights,
            .keys = others.keys};
}

}  // namespace

Library::Library(LibraryWindows windows, LibraryState state, store::Stores& stores, LibraryRoles others,
                 LibraryPorts ports)
    : lists_(windows.controls.lists,
             {.lstAddToPlaylist = windows.controls.playlists.lstAddToPlaylist,
              .lstEditPlayList = windows.lstEditPlayList,
              .lstOpenWith = windows.lstOpenWith},
             windows.controls.sources, state.ListMaybeChanged, ports.loop, *this, RolesOfLists(others)),
      undo_log_(ports.kept),
      playlists_(windows.controls.playlists, windows.menu, windows.controls.sources, lists_, undo_log_,
                 ports.dialogs, others.highlights),
      search_(windows.controls.search, windows.menu, windows.controls.sources, lists_, others.highlights),
      task_(windows.controls.task, ports.loop, others.highlights),
      clean_up_(windows.controls.task, windows.menu,
                {.datSong = windows.controls.sources.datSong, .datHistory = windows.datHistory},
                state.last_clean_up_age, task_, undo_log_, lists_,
                {.files = ports.files, .dialogs = ports.dialogs, .clock = ports.clock}),
      track_match_(windows.controls.track_import,
                   {.lblFoundNo = windows.controls.task.lblFoundNo,
                    .lblDuplicatesNoRemoved = windows.controls.task.lblDuplicatesNoRemoved,
                    .lblStatus = windows.controls.task.lblStatus},
                   windows.controls.sources, playlists_, ports.loop),
      import_(windows.controls.track_import, windows.controls.opened.Label5, windows.controls.sources,
              {.task = task_, .matcher = track_match_, .playlists = playlists_, .lists = lists_},
              others.address, {.files = ports.files, .dialogs = ports.dialogs, .loop = ports.loop}),
      drops_(windows.controls.lists, windows.controls.sources, lists_, playlists_, *this),
      add_media_(windows.add_media, stores, ports.files.ApplicationFolder(), state.Include_Sub_Folders,
                 others.window, lists_, {.files = ports.files, .dialogs = ports.dialogs, .loop = ports.loop}),
      opened_(windows.controls.opened, windows.menu, windows.controls.search.cmdAddToLibrary, add_media_,
              windows.controls.sources, ports.dialogs),
      undo_(windows.controls.playlists, windows.controls.sources, undo_log_, task_, lists_, stores),
      file_type_(others.file_type) {}

void Library::OnEndTasks() {
    task_.Stop();
    playlists_.CloseAddPanel();
    search_.ClearSearch();
}

}  // namespace library
