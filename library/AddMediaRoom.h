// The dialog that fills the library: searches folders, and adds one file or all it found.
//
// A search and an adding yield, so anything can happen in their midst. Only one of them runs at a time. The
// Cancel button, closing the window, logging out and the end of the program stop them; what was added by then
// stays in the library.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "controls/Event.h"
#include "controls/Image.h"
#include "library/AddMediaForm.h"
#include "library/MediaWalk.h"
#include "ports/Dialogs.h"
#include "ports/EventLoop.h"
#include "ports/Files.h"
#include "roles/TrackLists.h"
#include "roles/Window.h"
#include "store/Stores.h"

namespace library {

struct AddMediaPorts {
    ports::Files& files;
    ports::Dialogs& dialogs;
    ports::EventLoop& loop;
};

class AddMediaRoom final {
public:
    /// `app_path` is the folder of the stores, without a separator at its end.
    AddMediaRoom(AddMediaForm& form, store::Stores& stores, std::string_view app_path,
                 const bool& Include_Sub_Folders, roles::Window& window, roles::TrackLists& lists,
                 AddMediaPorts ports);

    void ShowDialog() { form_.frmAddMedia.Show(); }
    /// Stores a file as a song; there is no check for doubles. A path without a scan extension is ignored;
    /// one whose texts are too long is appended to `rejected`, with a line break after it. Loads the dialog
    /// if it is not loaded.
    void addfile(std::string_view path, std::string_view artist, std::string_view title,
                 std::string& rejected);

    /// Hides the bright pictures of the dialog.
    void NoMouseOvers();

private:
    enum class Task { None, Searching, Adding };

    void Form_Load();
    void Form_Activate();
    void Form_Resize();
    void Form_Unload();
    void Form_KeyDown(int key_code);
    void Drive1_Change();
    void Dir1_Unreachable(std::string_view folder);
    void cmdGetFiles_Click();
    void cmdCancel_Click();
    void tmrSearch_Tick();
    void imgAddOver_Click();
    void imgAddAllOver_Click();
    void imgBackOver_Click();

    void ClaimWindow();
    void ClaimPictures();
    void ClaimTwin(controls::Image& plain, controls::Image& over);
    void ClaimBackgrounds();
    void BeginTask(Task task, std::string_view heading);
    void EndTask();
    void StopTask();
    bool IsStopped() const { return stopped_ || ports_.loop.IsEnding(); }
    void ShowResult(const std::string& folder);
    std::string NoticeOfSearch(const std::string& folder) const;
    std::vector<std::string> FilesFound() const;
    std::string ChosenPath();
    void AddFiles(const std::vector<std::string>& paths);
    void AddEach(const std::vector<std::string>& paths, std::string& rejected);
    void AddByName(std::string_view path, std::string& rejected);
    void ShowProgress(std::size_t added, std::size_t total);
    void ShowRejected(const std::string& rejected);

    AddMediaForm& form_;
    store::Stores& stores_;
    std::string app_path_;
    roles::Window& window_;
    roles::TrackLists& lists_;
    AddMediaPorts ports_;
    MediaWalk walk_;
    Task task_ = Task::None;
    bool stopped_ = false;
    int ticks_ = 0;
    controls::EventClaims claims_;
};

}  // namespace library
