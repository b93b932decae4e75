// The search for media files in a folder and the folders below it.
//
// It goes fifteen levels deep: the start folder, and fourteen levels under it. It runs on the user-interface
// thread and yields after each sub folder, and every now and then within a long one; whatever happens
// meanwhile may cancel it. A folder that does not answer is named while it is waited for.
//
// A folder that links lead to on several ways gives its files once, so that a web of links has an end. It is
// searched again only when it is met on a level nearer to the start, from where the walk reaches deeper.
// Links are followed last: a folder that has a way without them gives its files under that one.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "controls/Label.h"
#include "controls/ListBox.h"
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

    /// `Include_Sub_Folders` is the preference to search sub folders without asking.
    MediaWalk(WalkControls controls, const bool& Include_Sub_Folders, ports::Files& files,
              ports::Dialogs& dialogs, ports::EventLoop& loop);

    /// Collects the media files of the folder and, if that is the preference or the user agrees, of the
    /// folders below it.
    void Search(std::string_view start_folder);
    /// Ends the walk at its next step.
    void Cancel() { cancelled_ = true; }
    /// The last search was cancelled.
    bool WasCancelled() const { return cancelled_; }
    /// Folders of the last search that could not be read.
    int UnreadableFolders() const { return unreadable_folders_; }

private:
    /// A folder still to be searched.
    struct Link {
        std::string folder;
        int level;
    };

    void SearchSubFolders(const std::string& folder, const ports::FolderListing& inside, int level);
    void SearchFolder(const std::string& folder, int level);
    void SearchLinks();
    ports::FolderListing Visit(const std::string& folder, int level);
    void GetFiles(std::string_view folder, const std::vector<std::string>& names);
    void AddFile(std::string_view folder, std::string_view name);
    bool IsWanted(std::string_view file) const;
    bool MaySearchSubFolders();
    bool IsCancelled() const { return cancelled_ || loop_.IsEnding(); }
    bool YieldAndGoOn();
    bool WaitFor(const std::string& folder);

    WalkControls controls_;
    const bool& Include_Sub_Folders_;
    ports::Files& files_;
    ports::Dialogs& dialogs_;
    ports::EventLoop& loop_;
    std::map<ports::FolderIdentity, int> levels_;  // the level each folder was met on
    std::vector<Link> links_;
    std::int64_t total_files_ = 0;
    int unreadable_folders_ = 0;
    bool cancelled_ = false;
};

}  // namespace library
