#include "platform/linux/LinuxFiles.h"

#include <limits.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <utility>

#include "platform/linux/FolderReader.h"
#include "platform/linux/NativeFiles.h"

namespace linux {
namespace {

std::string BesideProgram(const std::string& program, std::string_view name) {
    return program.substr(0, program.rfind('/') + 1).append(name);
}

LinkTo LinkToShare(const std::optional<int>& bits) {
    if (!bits) return LinkTo::Nothing;
    return (*bits & ports::kFolder) != 0 ? LinkTo::FolderElsewhere : LinkTo::FileElsewhere;
}

std::string FolderOf(const std::string& native) {
    const std::size_t slash = native.rfind('/');
    if (slash == std::string::npos) return {};
    return slash == 0 ? "/" : native.substr(0, slash);
}

}  // namespace

std::string RunningProgram() {
    std::array<char, PATH_MAX> buffer{};
    const ssize_t length = ::readlink("/proc/self/exe", buffer.data(), buffer.size());
    if (length <= 0) return {};
    std::string program(buffer.data(), static_cast<std::size_t>(length));
    // A program that was replaced while it ran keeps its place.
    constexpr std::string_view kDeleted = " (deleted)";
    if (program.ends_with(kDeleted)) program.resize(program.size() - kDeleted.size());
    return program;
}

LinuxFiles::LinuxFiles(std::string program, std::string application_folder, const std::string& mount_table,
                       std::string file_program, DriveLetters letters)
    : program_(std::move(program)),
      application_folder_(std::move(application_folder)),
      volumes_(mount_table, std::move(letters)),
      shares_(file_program.empty() ? BesideProgram(program_, "brindlepost-files") : std::move(file_program),
              volumes_) {}

LinuxFiles::LinuxFiles(const std::string& program) : LinuxFiles(program, FolderOf(program)) {}

std::optional<int> LinuxFiles::AttributesOf(const std::string& native) const {
    if (native.empty()) return std::nullopt;
    if (const auto share = shares_.Of(native)) return shares_.Attributes(*share, native);
    return AttributesAt(native);
}

std::optional<int> LinuxFiles::GetAttributes(std::string_view path) const {
    return AttributesOf(ToNative(path));
}

bool LinuxFiles::IsSilent(std::string_view path) const {
    const auto share = shares_.Of(ToNative(path));
    return share && shares_.IsSilent(*share);
}

// A link in a folder of this computer may lead to a share that hangs; only that one is left out then.
std::optional<ports::FolderListing> LinuxFiles::ListFolder(std::string_view path,
                                                           const ports::MayGoOn& may_go_on) const {
    const std::string native = ToNative(path);
    if (native.empty()) return std::nullopt;
    if (const auto share = shares_.Of(native)) return shares_.List(*share, native, may_go_on);
    const LinkJudge judge = [this](const std::string& link) {
        return !shares_.Of(link) ? LinkTo::Here : LinkToShare(AttributesOf(link));
    };
    if (!may_go_on) return ReadFolder(native, may_go_on, judge);
    // Only a walk needs a way out.
    return ahead_.List(native, may_go_on, judge,
                       [this](const std::string& folder) { return !shares_.Of(folder); });
}

std::vector<ports::Drive> LinuxFiles::Drives() const {
    std::vector<ports::Drive> drives{{'C', ""}};
    for (const base::Volume& volume : volumes_.Current())
        drives.push_back({volume.letter, volume.label});
    return drives;
}

ports::FileResult LinuxFiles::MakeFolder(std::string_view path) {
    const std::string native = ToNative(path);
    if (native.empty()) return ports::FileResult::Missing;
    if (const auto share = shares_.Of(native)) return shares_.MakeFolder(*share, native);
    return MakeFolderAt(native);
}

ports::FileResult LinuxFiles::DeleteFile(std::string_view path) {
    const std::string native = ToNative(path);
    if (const auto share = shares_.Of(native)) return shares_.Delete(*share, native);
    return DeleteFileAt(native);
}

std::optional<std::string> LinuxFiles::ReadText(std::string_view path, std::size_t limit) const {
    const std::string native = ToNative(path);
    if (const auto share = shares_.Of(native)) return shares_.Read(*share, native, limit);
    return ReadTextAt(native, limit);
}

ports::FileResult LinuxFiles::WriteText(std::string_view path, std::string_view bytes) {
    const std::string native = ToNative(path);
    if (const auto share = shares_.Of(native)) return shares_.Write(*share, native, bytes);
    return WriteTextAt(native, bytes);
}

std::string LinuxFiles::GetShortPathName(std::string_view path) const {
    return GetAttributes(path) ? short_paths_.Shorten(path) : std::string();
}

std::string LinuxFiles::NameInFolder(std::string_view path) const {
    if (!GetAttributes(path)) return {};
    std::string native = ToNative(path);
    while (native.size() > 1 && native.back() == '/')
        native.pop_back();
    const auto is_mounted_here = [&native](const base::Volume& volume) {
        return volume.mount_point == native;
    };
    const std::vector<base::Volume>& volumes = volumes_.Current();
    if (std::any_of(volumes.begin(), volumes.end(), is_mounted_here)) return {};
    return base::NameToText(LastName(native));
}

std::string LinuxFiles::ToNative(std::string_view path) const {
    return base::NativePath(short_paths_.Resolve(path), volumes_.Current()).value_or(std::string());
}

std::string LinuxFiles::FromNative(std::string_view native_path) const {
    return base::DrivePath(native_path, volumes_.Current());
}

std::string LinuxFiles::ApplicationFolder() const {
    return application_folder_.empty() ? "C:\\" : FromNative(application_folder_);
}

std::string LinuxFiles::ApplicationFileName() const {
    return base::NameToText(LastName(program_));
}

}  // namespace linux
