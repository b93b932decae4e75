// Files and folders of a Linux system: the system's own calls, on bytes. For a share they are made in another
// process (Shares); the folders of this computer that a walk comes to next are read ahead (FoldersAhead).
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/linux/FoldersAhead.h"
#include "platform/linux/MountedVolumes.h"
#include "platform/linux/Shares.h"
#include "ports/Files.h"

namespace linux {

/// The native path of the running program's file; empty when it is not known.
std::string RunningProgram();

class LinuxFiles final : public ports::Files {
public:
    /// `program` is the native path of the program's file, `application_folder` that of the folder with its
    /// stores. The file process is beside the program, unless another one is named. Volumes have the letters
    /// of before; without any of before, those of this run.
    LinuxFiles(std::string program, std::string application_folder,
               const std::string& mount_table = kMountTable, std::string file_program = {},
               DriveLetters letters = {});
    LinuxFiles(std::string program, std::string application_folder, DriveLetters letters)
        : LinuxFiles(std::move(program), std::move(application_folder), kMountTable, {}, std::move(letters)) {
    }
    /// The stores lie beside the program.
    explicit LinuxFiles(const std::string& program);
    LinuxFiles(const LinuxFiles&) = delete;
    LinuxFiles& operator=(const LinuxFiles&) = delete;

    std::optional<int> GetAttributes(std::string_view path) const override;
    bool IsSilent(std::string_view path) const override;
    std::optional<ports::FolderListing> ListFolder(std::string_view path,
                                                   const ports::MayGoOn& may_go_on = {}) const override;
    std::vector<ports::Drive> Drives() const override;
    ports::FileResult MakeFolder(std::string_view path) override;
    ports::FileResult DeleteFile(std::string_view path) override;
    std::optional<std::string> ReadText(std::string_view path, std::size_t limit) const override;
    ports::FileResult WriteText(std::string_view path, std::string_view bytes) override;
    std::string GetShortPathName(std::string_view path) const override;
    std::string NameInFolder(std::string_view path) const override;
    std::string ToNative(std::string_view path) const override;
    std::string FromNative(std::string_view native_path) const override;
    std::string ApplicationFolder() const override;
    std::string ApplicationFileName() const override;

private:
    std::optional<int> AttributesOf(const std::string& native) const;

    std::string program_;
    std::string application_folder_;
    mutable MountedVolumes volumes_;
    mutable Shares shares_;
    mutable base::ShortPaths short_paths_;
    mutable FoldersAhead ahead_;
};

}  // namespace linux
