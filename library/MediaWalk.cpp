#include "library/MediaWalk.h"

#include <optional>
#include <utility>

#include "base/MediaKinds.h"
#include "base/Number.h"
#include "library/Naming.h"

namespace library {
namespace {

constexpr std::string_view kAudioFormats = "AUDIO FORMATS";
constexpr std::string_view kVideoFormats = "VIDEO FORMATS";
constexpr std::string_view kSilent = " does not answer";

}  // namespace

MediaWalk::MediaWalk(WalkControls controls, const bool& Include_Sub_Folders, ports::Files& files,
                     ports::Dialogs& dialogs, ports::EventLoop& loop)
    : controls_(controls),
      Include_Sub_Folders_(Include_Sub_Folders),
      files_(files),
      dialogs_(dialogs),
      loop_(loop) {}

void MediaWalk::Search(std::string_view start_folder) {
    cancelled_ = false;
    total_files_ = 0;
    unreadable_folders_ = 0;
    levels_.clear();
    links_.clear();
    const std::string folder(start_folder);
    const ports::FolderListing inside = Visit(folder, 1);
    if (IsCancelled() || !MaySearchSubFolders()) return;
    SearchSubFolders(folder, inside, 2);
    SearchLinks();
}

void MediaWalk::SearchSubFolders(const std::string& folder, const ports::FolderListing& inside, int level) {
    auto next_link = inside.Links.begin();
    for (const std::string& name : inside.SubFolders) {
        if (IsCancelled()) return;
        const std::string sub_folder = files_.BuildPath(folder, name);
        if (next_link != inside.Links.end() && *next_link == name) {
            links_.push_back({sub_folder, level});
            ++next_link;
        } else {
            SearchFolder(sub_folder, level);
        }
    }
}

void MediaWalk::SearchFolder(const std::string& folder, int level) {
    const ports::FolderListing inside = Visit(folder, level);
    if (level < kLevels) SearchSubFolders(folder, inside, level + 1);
    if (!IsCancelled()) loop_.Yield();
}

// More of them may come up on the way.
void MediaWalk::SearchLinks() {
    for (std::size_t i = 0; i < links_.size() && !IsCancelled(); ++i) {
        const Link link = links_[i];
        SearchFolder(link.folder, link.level);
    }
}

// What is in the folder, as far as it is still to be searched.
ports::FolderListing MediaWalk::Visit(const std::string& folder, int level) {
    std::optional<ports::FolderListing> listing =
        files_.ListFolder(folder, [this, &folder] { return WaitFor(folder); });
    if (!listing) {
        if (!IsCancelled()) ++unreadable_folders_;
        return {};
    }
    const auto [met, is_new] = levels_.try_emplace(listing->Identity, level);
    if (!is_new && met->second <= level) return {};
    met->second = level;
    if (listing->Files.size() + listing->SubFolders.size() < 1) return {};
    controls_.lblDirectory.SetCaption(files_.DisplayPath(folder));
    if (is_new) GetFiles(folder, listing->Files);
    return *std::move(listing);
}

void MediaWalk::GetFiles(std::string_view folder, const std::vector<std::string>& names) {
    constexpr std::size_t kFilesBetweenYields = 256;
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (IsWanted(names[i])) AddFile(folder, names[i]);
        if ((i + 1) % kFilesBetweenYields == 0 && !YieldAndGoOn()) return;
    }
}

void MediaWalk::AddFile(std::string_view folder, std::string_view name) {
    controls_.lstFiles.AddItem(files_.BuildPath(folder, name));
    controls_.lblTotalFiles.SetCaption(base::ToText(++total_files_));
}

bool MediaWalk::YieldAndGoOn() {
    if (IsCancelled()) return false;
    loop_.Yield();
    return !IsCancelled();
}

bool MediaWalk::WaitFor(const std::string& folder) {
    if (files_.IsSilent(folder))
        controls_.lblDirectory.SetCaption(files_.DisplayPath(folder).append(kSilent));
    return YieldAndGoOn();
}

bool MediaWalk::IsWanted(std::string_view file) const {
    const std::string_view pattern = controls_.lstPattern.Text();
    if (pattern == kAudioFormats) return base::IsScanAudioFile(file);
    if (pattern == kVideoFormats) return base::IsScanVideoFile(file);
    return base::IsScanFile(file);
}

bool MediaWalk::MaySearchSubFolders() {
    if (Include_Sub_Folders_) return true;
    return dialogs_.MsgBox(
               "Sub folders are not currently being search because of you preferences.\r\n"
               "Would you like to search sub folders?",
               ports::BoxButtons::YesNo, "Search sub folders?") == ports::BoxAnswer::Yes;
}

}  // namespace library
