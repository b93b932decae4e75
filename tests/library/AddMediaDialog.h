// The add dialog on files and stores in memory, beside a main window that remembers what was asked of it.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "fakes/FakeDesktop.h"
#include "fakes/FakeDialogs.h"
#include "fakes/FakeFiles.h"
#include "fakes/NullWindow.h"
#include "fakes/SeededStores.h"
#include "library/AddMediaForm.h"
#include "library/AddMediaRoom.h"
#include "library/LibraryPane.h"

namespace library_tests {

/// The main window and the lists; of the window only Show is asked for.
struct RecordingMainWindow final : fakes::NullWindow, roles::TrackLists {
    void Show() override { Calls.emplace_back("show"); }
    void Command1() override { Calls.emplace_back("Command1"); }
    void DisplayPlayLists() override {}
    void RefillIfEmpty() override { Calls.emplace_back("RefillIfEmpty"); }
    void EndTasks() override { Calls.emplace_back("EndTasks"); }

    Rows Calls;
};

struct AddMediaDialog {
    AddMediaDialog() { Desktop.Adopt(Form.frmAddMedia); }

    /// Runs the five ticks after the button, and the walk.
    void Search(std::string_view folder) {
        Form.frmAddMedia.Show();
        Form.Dir1.SetPath(folder);
        Form.cmdGetFiles.Click.Raise();
        Desktop.Advance(kFiveTicks);
    }
    void ClickAdd() { Form.imgAddOver.Click.Raise(); }
    void ClickAddAll() { Form.imgAddAllOver.Click.Raise(); }
    /// The songs as the file holds them, with blanks around nothing: key, artist, title, path, play count.
    std::vector<fakes::SeededStores::Row> Songs() { return Stores.Rows("tblSong"); }

    static constexpr int kFiveTicks = 50;

    fakes::FakeDesktop Desktop;
    fakes::FakeFiles Files;
    fakes::FakeDialogs Dialogs;
    fakes::SeededStores Stores{Desktop};
    RecordingMainWindow Main;
    library::AddMediaForm Form{Files};
    bool SubFolders = true;
    library::AddMediaRoom Room{
        Form, Stores.Stores, "C:\\app", SubFolders, Main, Main, {Files, Dialogs, Desktop}};
};

}  // namespace library_tests
