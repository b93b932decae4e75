#include "platform/linux/KeptFiles.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <system_error>

#include "platform/linux/Descriptor.h"

namespace linux {
namespace {

namespace fs = std::filesystem;

/// More than any kept text needs; a longer one is somebody else's.
constexpr std::size_t kLongestText = std::size_t{256} << 20U;
/// Room for the endings and for what the system allows a name.
constexpr std::size_t kLongestName = 180;
constexpr mode_t kOwnerOnly = S_IRUSR | S_IWUSR;
// No name of a text holds a dot, so these are none.
constexpr const char* kBeside = ".new";
constexpr const char* kDamaged = ".damaged";

std::string Hash(std::string_view text) {
    std::uint64_t hash = 0xcbf29ce484222325U;
    for (const char letter : text)
        hash = (hash ^ static_cast<unsigned char>(letter)) * 0x100000001b3U;
    std::array<char, 17> digits{};
    static_cast<void>(
        std::snprintf(digits.data(), digits.size(), "%016llx", static_cast<unsigned long long>(hash)));
    return digits.data();
}

bool IsPlain(char letter) {
    return (letter >= 'a' && letter <= 'z') || (letter >= 'A' && letter <= 'Z') ||
           (letter >= '0' && letter <= '9') || letter == '-';
}

/// Letters, digits and hyphens stand for themselves, any other byte is "_" and two digits.
std::string FileNameOf(std::string_view name) {
    constexpr std::string_view kDigits = "0123456789abcdef";
    std::string file;
    for (const char letter : name) {
        if (IsPlain(letter)) {
            file += letter;
        } else {
            const auto byte = static_cast<unsigned char>(letter);
            file.append("_").append(1, kDigits[byte / 16]).append(1, kDigits[byte % 16]);
        }
    }
    if (file.size() <= kLongestName) return file;
    return file.substr(0, kLongestName / 2) + "~" + Hash(name);
}

/// Nothing for a name that is none of ours, or was too long to be kept whole.
std::optional<std::string> NameOfFile(const std::string& file) {
    std::string name;
    for (std::size_t i = 0; i < file.size(); ++i) {
        unsigned byte = 0;
        if (IsPlain(file[i])) {
            name += file[i];
        } else if (file[i] == '_' && std::sscanf(file.substr(i + 1, 2).c_str(), "%2x", &byte) == 1) {
            name += static_cast<char>(byte);
            i += 2;
        } else {
            return std::nullopt;
        }
    }
    return name;
}

bool WriteAll(const Descriptor& file, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written = ::write(file.Number(), bytes.data(), bytes.size());
        if (written <= 0) return false;
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

}  // namespace

std::string KeptFiles::FolderOf(const std::string& data_folder, const std::string& stores_folder) {
    return data_folder.empty() ? std::string() : data_folder + "/brindlepost/kept/" + Hash(stores_folder);
}

std::string KeptFiles::PathOf(std::string_view name) const {
    return folder_ + "/" + FileNameOf(name);
}

bool KeptFiles::MakeFolder() const {
    if (folder_.empty()) return false;
    std::error_code error;
    if (fs::is_directory(folder_, error)) return true;
    fs::create_directories(fs::path(folder_).parent_path(), error);
    return ::mkdir(folder_.c_str(), S_IRWXU) == 0;
}

std::optional<std::string> KeptFiles::Read(std::string_view name) const {
    if (folder_.empty()) return std::nullopt;
    const Descriptor file(::open(PathOf(name).c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK));
    struct stat found{};
    if (!file.IsOpen() || ::fstat(file.Number(), &found) != 0 || !S_ISREG(found.st_mode)) return std::nullopt;
    if (static_cast<std::size_t>(found.st_size) > kLongestText) return std::nullopt;
    std::string text(static_cast<std::size_t>(found.st_size), '\0');
    std::size_t read = 0;
    while (read < text.size()) {
        const ssize_t got = ::read(file.Number(), text.data() + read, text.size() - read);
        if (got < 0) return std::nullopt;
        if (got == 0) break;
        read += static_cast<std::size_t>(got);
    }
    text.resize(read);
    return text;
}

bool KeptFiles::Write(std::string_view name, std::string_view text) {
    if (!MakeFolder()) return false;
    const std::string path = PathOf(name);
    const std::string beside = path + kBeside;
    ::unlink(beside.c_str());
    Descriptor file(::open(beside.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, kOwnerOnly));
    if (file.IsOpen() && WriteAll(file, text) && file.Close() &&
        ::rename(beside.c_str(), path.c_str()) == 0) {
        return true;
    }
    ::unlink(beside.c_str());
    return false;
}

bool KeptFiles::Append(std::string_view name, std::string_view text) {
    if (!MakeFolder()) return false;
    Descriptor file(::open(PathOf(name).c_str(),
                           O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK, kOwnerOnly));
    struct stat found{};
    return file.IsOpen() && ::fstat(file.Number(), &found) == 0 && S_ISREG(found.st_mode) &&
           WriteAll(file, text) && file.Close();
}

void KeptFiles::Remove(std::string_view name) {
    if (folder_.empty()) return;
    const std::string path = PathOf(name);
    for (const char* ending : {"", kBeside, kDamaged})
        ::unlink((path + ending).c_str());
}

void KeptFiles::SetAside(std::string_view name) {
    if (folder_.empty()) return;
    const std::string path = PathOf(name);
    if (::rename(path.c_str(), (path + kDamaged).c_str()) == 0) return;
    std::error_code error;
    fs::remove_all(path, error);
}

std::vector<std::string> KeptFiles::Names(std::string_view prefix) const {
    std::vector<std::string> names;
    std::error_code error;
    for (fs::directory_iterator at(folder_, error), end; !error && at != end; at.increment(error)) {
        std::optional<std::string> name = NameOfFile(at->path().filename().string());
        if (name && name->starts_with(prefix)) names.push_back(std::move(*name));
    }
    std::sort(names.begin(), names.end());
    return names;
}

}  // namespace linux
