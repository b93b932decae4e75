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
#include "library/LibraryOutlets.h"
#include "library/MediaWalk.h"
#include "ports/Dialogs.h"
#include "ports/EventLoop.h"
#include "ports/Files.h"
#include "store/Stores.h"

namespace library {

class AddMediaRoom final : public SongStore {
public:
    /// `app_path` is the folder of the stores, without a separator at its end.
    AddMediaRoom(AddMediaForm& form, MainWindow& main_window, store::Stores& stores, ports::Files& files,
                 ports::Dialogs& dialogs, ports::EventLoop& loop, std::string_view app_path);

    // SongStore. Loads the dialog if it is not loaded; there is no check for doubles.
    void addfile(std::string_view path, std::string_view artist, std::string_view title,
                 std::string& rejected) override;

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
    bool IsStopped() const { return stopped_ || loop_.IsEnding(); }
    void ShowResult(const std::string& folder);
    std::string NoticeOfSearch(const std::string& folder) const;
    std::vector<std::string> FilesFound() const;
    std::string ChosenPath();
    void AddFiles(const std::vector<std::string>& paths);
    void AddEach(const std::vector<std::string>& paths, std::string& rejected);
    void AddByName(std::string_view path, std::string& rejected);
    void ShowProgress(std::size_t added, std::size_t total);
    void TellRejected(const std::string& rejected);

    AddMediaForm& form_;
    MainWindow& main_window_;
    store::Stores& stores_;
    ports::Files& files_;
    ports::Dialogs& dialogs_;
    ports::EventLoop& loop_;
    std::string app_path_;
    MediaWalk walk_;
    Task task_ = Task::None;
    bool stopped_ = false;
    int ticks_ = 0;
    controls::EventClaims claims_;
};

}  // namespace library
