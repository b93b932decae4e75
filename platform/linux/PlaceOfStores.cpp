#include "platform/linux/PlaceOfStores.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <string_view>
#include <system_error>

#include "platform/linux/Descriptor.h"

namespace linux {
namespace {

namespace fs = std::filesystem;

constexpr std::array kStores{"dbMedia.mdb", "dbFavs.mdb", "dbHistory.mdb", "dbLogin.mdb"};
constexpr std::string_view kOwnFolder = "/brindlepost";
constexpr mode_t kOwnerFolder = 0700;

/// Root may write everywhere, but what the packages of the system put there is theirs.
bool BelongsToTheSystem(std::string_view folder) {
    return folder.starts_with("/usr/") && !folder.starts_with("/usr/local/");
}

std::string Trouble(std::string_view what, std::string_view why) {
    return std::string(what) + " cannot be made: " + std::string(why);
}

/// Why there is no such folder, with rights for its owner alone, afterwards; empty when there is.
std::string MakeOwnFolder(const std::string& folder) {
    std::error_code error;
    fs::create_directories(fs::path(folder).parent_path(), error);
    if (error) return Trouble(folder, error.message());
    if (::mkdir(folder.c_str(), kOwnerFolder) == 0 || errno == EEXIST) {
        if (!fs::is_directory(folder, error)) return Trouble(folder, std::strerror(ENOTDIR));
        return ::chmod(folder.c_str(), kOwnerFolder) == 0 ? std::string()
                                                          : Trouble(folder, std::strerror(errno));
    }
    return Trouble(folder, std::strerror(errno));
}

bool CopyBytes(int from, int to) {
    std::array<char, 65536> buffer{};
    for (;;) {
        const ssize_t got = ::read(from, buffer.data(), buffer.size());
        if (got == 0) return ::fsync(to) == 0;
        if (got < 0) return false;
        for (ssize_t written = 0; written < got;) {
            const ssize_t more =
                ::write(to, buffer.data() + written, static_cast<std::size_t>(got - written));
            if (more <= 0) return false;
            written += more;
        }
    }
}

/// A file of the owner's alone. It gets its name when it is whole, unless another start was quicker.
std::string CopyOnce(const std::string& from, const std::string& to) {
    if (::access(to.c_str(), F_OK) == 0 || ::access(from.c_str(), F_OK) != 0) return {};
    std::string beside = to + ".new-XXXXXX";
    const Descriptor source(::open(from.c_str(), O_RDONLY | O_CLOEXEC));
    if (!source.IsOpen()) return Trouble(to, std::strerror(errno));
    const Descriptor copy(::mkostemp(beside.data(), O_CLOEXEC));
    if (!copy.IsOpen()) return Trouble(to, std::strerror(errno));
    const bool is_done =
        CopyBytes(source.Number(), copy.Number()) &&
        (::renameat2(AT_FDCWD, beside.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0 ||
         errno == EEXIST);
    const int error = errno;
    ::unlink(beside.c_str());
    return is_done ? std::string() : Trouble(to, std::strerror(error));
}

}  // namespace

PlaceOfStores FindPlaceOfStores(const std::string& program_folder, const std::string& data_home) {
    const bool may_be_written = !BelongsToTheSystem(program_folder) &&
                                ::faccessat(AT_FDCWD, program_folder.c_str(), W_OK, AT_EACCESS) == 0;
    if (may_be_written || data_home.empty()) return {program_folder, {}};
    PlaceOfStores place{data_home + std::string(kOwnFolder), {}};
    place.trouble = MakeOwnFolder(place.folder);
    for (const char* store : kStores) {
        if (!place.trouble.empty()) break;
        place.trouble = CopyOnce(program_folder + "/" + store, place.folder + "/" + store);
    }
    return place;
}

}  // namespace linux
