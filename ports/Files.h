// Files and folders of the computer.
//
// Why: the system speaks drive-letter paths ("C:\Music\song.mp3") and knows neither where a drive really is
// nor what bytes the system's names may hold. Every path given and returned here is such a drive path, in
// UTF-8; both separators are understood. base/DrivePath.h converts between a drive path and a native
// path.
//
// Only files and folders count: a pipe, a socket or a device counts as missing, so nothing here can wait
// for one, and nothing waits longer than half a second, writing two, for a share that gives no sign of life;
// a listing that can be cancelled does, for a quarter of a minute. Links are followed. Nothing throws; every
// failure is in the result.
#pragma once

#include <compare>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/DrivePath.h"
#include "base/FileAddress.h"

namespace ports {

/// Bits of a path's attributes.
inline constexpr int kReadOnly = 1;
inline constexpr int kHidden = 2;  ///< the name begins with a dot
inline constexpr int kFolder = 16;

enum class FileResult {
    Done,
    Missing,       ///< the file, or the folder it should be in
    AlreadyThere,  ///< a folder to be made
    Refused,       ///< no right to do it, or a read-only disk
    DiskFull,
    Failed,  ///< anything else, such as a folder where a file is wanted
};

/// Tells folders apart: the same for every path that leads to a folder, another for every other folder.
struct FolderIdentity {
    std::uint64_t Volume = 0;
    std::uint64_t Number = 0;

    // NOLINTNEXTLINE(modernize-use-nullptr): the check takes the 0 inside of the default for a pointer
    auto operator<=>(const FolderIdentity&) const = default;
};

/// What a folder holds: names without their path, in the order of a sorted list. Files that the user
/// may not read are left out.
struct FolderListing {
    std::vector<std::string> Files;
    std::vector<std::string> SubFolders;
    std::vector<std::string> Links;  ///< those of the sub folders that are links, in the same order
    FolderIdentity Identity;
};

/// A callback that is asked every few milliseconds during a long operation; false cancels it.
using MayGoOn = std::function<bool()>;

struct Drive {
    char Letter = 'C';
    std::string Label;  ///< the volume's name; empty for "C:"
};

class Files {
public:
    virtual ~Files() = default;

    /// Bits of a file or folder; nothing when they cannot be read.
    virtual std::optional<int> GetAttributes(std::string_view path) const = 0;
    /// The attributes can be read and the folder bit is clear.
    bool FileExists(std::string_view path) const {
        const std::optional<int> bits = GetAttributes(path);
        return bits && (*bits & kFolder) == 0;
    }
    bool IsFolder(std::string_view path) const {
        const std::optional<int> bits = GetAttributes(path);
        return bits && (*bits & kFolder) != 0;
    }

    /// What the path is on was asked, and does not answer: what is asked of it comes back at once, as if it
    /// were missing or unreadable. It may answer later.
    virtual bool IsSilent(std::string_view path) const {
        static_cast<void>(path);
        return false;
    }

    /// Nothing when the folder cannot be read, or `may_go_on` cancelled it. A link that leads back to this
    /// folder or to one above it is left out.
    virtual std::optional<FolderListing> ListFolder(std::string_view path,
                                                    const MayGoOn& may_go_on = {}) const = 0;
    std::string BuildPath(std::string_view folder, std::string_view name) const {
        return base::BuildPath(folder, name);
    }
    /// "C:" first, then mounted volumes by letter.
    virtual std::vector<Drive> Drives() const = 0;

    /// One folder; its parent must exist.
    virtual FileResult MakeFolder(std::string_view path) = 0;
    /// A file, never a folder.
    virtual FileResult DeleteFile(std::string_view path) = 0;
    /// The bytes of a file, at most `limit` of them; nothing when it cannot be read.
    virtual std::optional<std::string> ReadText(std::string_view path,
                                                std::size_t limit = kLongestText) const = 0;
    /// Makes the file, or replaces what is in it. The text is written beside it first: a write that fails
    /// leaves the file as it was, or no file.
    virtual FileResult WriteText(std::string_view path, std::string_view bytes) = 0;
    static constexpr std::size_t kLongestText = std::size_t{64} << 20U;

    /// A name for an existing file or folder that is one word, at most 255 characters, understood by every
    /// call of this object and by no other program; empty for a missing one.
    virtual std::string GetShortPathName(std::string_view path) const = 0;
    /// The real name of the last part of a path that may be short; empty when there is no such file or
    /// folder, or when the path is a drive alone.
    virtual std::string NameInFolder(std::string_view path) const = 0;

    /// The bytes the system knows the file by; empty when the path can name nothing (a letter without a
    /// volume).
    virtual std::string ToNative(std::string_view path) const = 0;
    /// The drive path of a native path that begins at the root; any other text as it is. For the borders
    /// where the user or the shell gives a path.
    virtual std::string FromNative(std::string_view native_path) const = 0;
    /// The drive path of what names a file in any way: as FromNative, and for a "file:" address.
    std::string LocalPath(std::string_view path_or_address) const {
        const std::optional<std::string> path = base::PathOfFileAddress(path_or_address);
        return FromNative(path ? *path : path_or_address);
    }
    /// A path as the user knows it: the native form, in UTF-8 whatever its bytes are. What names nothing
    /// stays.
    std::string DisplayPath(std::string_view path) const {
        const std::string native = ToNative(path);
        return base::WithoutStandIns(native.empty() ? std::string(path) : base::NameToText(native));
    }

    /// The folder of the running program, without a separator at its end, unless it is a drive's root.
    virtual std::string ApplicationFolder() const = 0;
    /// The file name of the running program without its folder.
    virtual std::string ApplicationFileName() const = 0;
};

}  // namespace ports
