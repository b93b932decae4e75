#include "platform/linux/FolderReader.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

#include <memory>
#include <set>
#include <string_view>
#include <utility>

#include "base/DrivePath.h"
#include "platform/linux/Descriptor.h"
#include "platform/linux/NameSorter.h"
#include "platform/linux/ReadableFiles.h"

namespace linux {
namespace {

enum class EntryKind { File, ReadableFile, Folder, FolderLink, Neither };

struct CloseFolder {
    void operator()(DIR* folder) const { ::closedir(folder); }
};
using OpenFolder = std::unique_ptr<DIR, CloseFolder>;

OpenFolder Open(const std::string& native_path) {
    Descriptor descriptor(::open(native_path.c_str(), O_RDONLY | O_DIRECTORY | O_NONBLOCK | O_CLOEXEC));
    if (!descriptor.IsOpen()) return nullptr;
    DIR* const folder = ::fdopendir(descriptor.Number());
    if (folder != nullptr) descriptor.Release();
    return OpenFolder(folder);
}

bool IsSame(const struct stat& left, const struct stat& right) {
    return left.st_dev == right.st_dev && left.st_ino == right.st_ino;
}

// True when `wanted` is the folder itself or stands on the way down to it.
bool IsOnTheWay(const struct stat& wanted, const std::string& native_path) {
    struct stat status{};
    for (std::size_t end = 0; end != std::string::npos; end = native_path.find('/', end + 1)) {
        const std::string above = end == 0 ? "/" : native_path.substr(0, end);
        if (::stat(above.c_str(), &status) == 0 && IsSame(wanted, status)) return true;
    }
    return ::stat(native_path.c_str(), &status) == 0 && IsSame(wanted, status);
}

EntryKind KindOfLink(int folder, const char* name, const std::string& native_path) {
    struct stat status{};
    if (::fstatat(folder, name, &status, 0) != 0) return EntryKind::Neither;
    if (S_ISREG(status.st_mode)) return EntryKind::File;
    if (!S_ISDIR(status.st_mode)) return EntryKind::Neither;
    struct stat link{};
    const bool is_link = ::fstatat(folder, name, &link, AT_SYMLINK_NOFOLLOW) == 0 && S_ISLNK(link.st_mode);
    if (!is_link) return EntryKind::Folder;
    return IsOnTheWay(status, native_path) ? EntryKind::Neither : EntryKind::FolderLink;
}

EntryKind KindOf(LinkTo where) {
    if (where == LinkTo::FileElsewhere) return EntryKind::ReadableFile;
    return where == LinkTo::FolderElsewhere ? EntryKind::FolderLink : EntryKind::Neither;
}

EntryKind KindOf(int folder, const dirent& entry, const std::string& native_path, const LinkJudge& judge) {
    if (entry.d_type == DT_LNK && judge) {
        const LinkTo where = judge(native_path + "/" + entry.d_name);
        if (where != LinkTo::Here) return KindOf(where);
    }
    switch (entry.d_type) {
        case DT_REG:
            return EntryKind::File;
        case DT_DIR:
            return EntryKind::Folder;
        case DT_LNK:
        case DT_UNKNOWN:  // some file systems leave it to be asked for
            return KindOfLink(folder, entry.d_name, native_path);
        default:
            return EntryKind::Neither;
    }
}

// The names of a folder, sorted into files and sub folders as they are read.
class Listing {
public:
    Listing(DIR* folder, const ports::MayGoOn& may_go_on, const LinkJudge& judge)
        : folder_(folder), pace_(may_go_on), judge_(judge), questioned_(::dirfd(folder)) {}

    bool Read(const std::string& native_path) {
        while (const dirent* const entry = ::readdir(folder_)) {
            const std::string_view name = entry->d_name;
            if (name == "." || name == "..") continue;
            if (!pace_.Step()) return false;
            Take(*entry, native_path);
        }
        return true;
    }
    std::optional<ports::FolderListing> Sorted() {
        if (!questioned_.MoveTo(files_, pace_)) return std::nullopt;
        std::optional<std::vector<std::string>> files = files_.Sorted(pace_);
        std::optional<std::vector<std::string>> sub_folders = sub_folders_.Sorted(pace_);
        if (!files || !sub_folders) return std::nullopt;
        ports::FolderListing listing;
        for (const std::string& name : *sub_folders)
            if (links_.contains(name)) listing.Links.push_back(name);
        listing.Files = std::move(*files);
        listing.SubFolders = std::move(*sub_folders);
        return listing;
    }

private:
    void Take(const dirent& entry, const std::string& native_path) {
        const EntryKind kind = KindOf(::dirfd(folder_), entry, native_path, judge_);
        if (kind == EntryKind::File) questioned_.Add(entry.d_name);
        if (kind == EntryKind::ReadableFile) files_.Add(base::NameToText(entry.d_name));
        if (kind != EntryKind::Folder && kind != EntryKind::FolderLink) return;
        std::string name = base::NameToText(entry.d_name);
        sub_folders_.Add(name);
        if (kind == EntryKind::FolderLink) links_.insert(std::move(name));
    }

    DIR* folder_;
    Pace pace_;
    const LinkJudge& judge_;
    ReadableFiles questioned_;
    NameSorter files_;
    NameSorter sub_folders_;
    std::set<std::string> links_;
};

ports::FolderIdentity IdentityOf(DIR* folder) {
    struct stat status{};
    if (::fstat(::dirfd(folder), &status) != 0) return {};
    return {status.st_dev, status.st_ino};
}

}  // namespace

std::optional<ports::FolderListing> ReadFolder(const std::string& native_path,
                                               const ports::MayGoOn& may_go_on, const LinkJudge& judge) {
    const OpenFolder folder = Open(native_path);
    if (folder == nullptr) return std::nullopt;
    Listing names(folder.get(), may_go_on, judge);
    if (!names.Read(native_path)) return std::nullopt;
    std::optional<ports::FolderListing> listing = names.Sorted();
    if (listing) listing->Identity = IdentityOf(folder.get());
    return listing;
}

}  // namespace linux
