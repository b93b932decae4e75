// The search for media files in a folder and the folders below it.
//
// It goes fifteen levels deep: the start folder, and fourteen levels under it. Every level is a routine of
// its own that calls the next one, so nothing can take it deeper. It runs on the user-interface thread and
// yields after each sub folder; whatever happens meanwhile may cancel it.
#pragma once

#include <string>
#include <string_view>

#include "controls/Lists.h"
#include "controls/Simple.h"
#include "library/LibraryOutlets.h"
#include "ports/Dialogs.h"
#include "ports/EventLoop.h"
#include "ports/Files.h"

namespace library {

/// What the walk reads and writes of the dialog.
struct WalkControls {
    controls::ListBox& lstPattern;
    controls::ListBox& lstFiles;
    controls::Label& lblTotalFiles;
    controls::Label& lblDirectory;
};

class MediaWalk final {
public:
    /// The start folder is the first level.
    static constexpr int kLevels = 15;

    MediaWalk(WalkControls controls, MainWindow& main_window, ports::Files& files, ports::Dialogs& dialogs,
              ports::EventLoop& loop);

    /// Collects the media files of the folder and, if that is the preference or the person agrees, of the
    /// folders below it.
    void Search(std::string_view start_folder);
    /// Ends the walk at its next step.
    void Cancel() { cancelled_ = true; }
    /// Adds the matching files of one folder to lstFiles. A folder that cannot be read has none.
    void GetFiles(std::string_view folder);

private:
    template <int kLevel>
    void SearchSubFolders(const std::string& folder, const ports::FolderListing& listing);
    ports::FolderListing Visit(const std::string& folder);
    void AddFiles(std::string_view folder, const ports::FolderListing& listing);
    bool IsWanted(std::string_view file) const;
    bool MaySearchSubFolders();
    bool IsCancelled() const { return cancelled_ || loop_.IsEnding(); }

    WalkControls controls_;
    MainWindow& main_window_;
    ports::Files& files_;
    ports::Dialogs& dialogs_;
    ports::EventLoop& loop_;
    bool cancelled_ = false;
};

}  // namespace library
