#include "library/MediaWalk.h"

#include "base/Number.h"
#include "library/Naming.h"

namespace library {
namespace {

constexpr std::string_view kAudioFormats = "AUDIO FORMATS";
constexpr std::string_view kVideoFormats = "VIDEO FORMATS";

}  // namespace

MediaWalk::MediaWalk(WalkControls controls, MainWindow& main_window, ports::Files& files,
                     ports::Dialogs& dialogs, ports::EventLoop& loop)
    : controls_(controls), main_window_(main_window), files_(files), dialogs_(dialogs), loop_(loop) {}

void MediaWalk::Search(std::string_view start_folder) {
    cancelled_ = false;
    const std::string folder(start_folder);
    const ports::FolderListing listing = Visit(folder);
    if (MaySearchSubFolders()) SearchSubFolders<2>(folder, listing);
}

void MediaWalk::GetFiles(std::string_view folder) {
    if (const auto listing = files_.ListFolder(folder)) AddFiles(folder, *listing);
}

template <int kLevel>
void MediaWalk::SearchSubFolders(const std::string& folder, const ports::FolderListing& listing) {
    for (const std::string& name : listing.SubFolders) {
        if (IsCancelled()) return;
        const std::string sub_folder = files_.BuildPath(folder, name);
        const ports::FolderListing inside = Visit(sub_folder);
        if constexpr (kLevel < kLevels) SearchSubFolders<kLevel + 1>(sub_folder, inside);
        if (!IsCancelled()) loop_.Yield();
    }
}

ports::FolderListing MediaWalk::Visit(const std::string& folder) {
    ports::FolderListing listing = files_.ListFolder(folder).value_or(ports::FolderListing{});
    if (listing.Files.size() + listing.SubFolders.size() >= 1) {
        controls_.lblDirectory.SetCaption(folder);
        AddFiles(folder, listing);
    }
    return listing;
}

void MediaWalk::AddFiles(std::string_view folder, const ports::FolderListing& listing) {
    for (const std::string& name : listing.Files) {
        if (!IsWanted(name)) continue;
        controls_.lstFiles.AddItem(files_.BuildPath(folder, name));
        const auto total = static_cast<std::int64_t>(base::Val(controls_.lblTotalFiles.Caption())) + 1;
        controls_.lblTotalFiles.SetCaption(base::ToText(total));
    }
}

bool MediaWalk::IsWanted(std::string_view file) const {
    const std::string_view pattern = controls_.lstPattern.Text();
    if (pattern == kAudioFormats) return IsScanAudioFile(file);
    if (pattern == kVideoFormats) return IsScanVideoFile(file);
    return IsScanFile(file);
}

bool MediaWalk::MaySearchSubFolders() {
    if (main_window_.Include_Sub_Folders()) return true;
    return dialogs_.MsgBox(
               "Sub folders are not currently being search because of you preferences.\r\n"
               "Would you like to search sub folders?",
               ports::BoxButtons::YesNo, "Search sub folders?") == ports::BoxAnswer::Yes;
}

}  // namespace library
