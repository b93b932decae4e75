#include "platform/sqlite/BringUp.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iterator>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/sqlite/Connection.h"
#include "platform/sqlite/SqliteStoreFile.h"

namespace sqlite {
namespace {

using ports::DatabaseError;
using ports::DatabaseResult;

constexpr std::string_view kMagic{"SQLite format 3\0", 16};
constexpr std::size_t kHeadSize = 100;
constexpr std::size_t kVersionAt = 60;
/// More copies of one version than anybody keeps.
constexpr int kMostCopies = 1000;

struct FoundVersion {
    std::optional<int> version;
    DatabaseResult result;
};

std::string PathIn(std::string_view folder, std::string_view file) {
    return std::string(folder).append("/").append(file);
}

bool IsThere(const std::string& path) {
    struct stat status = {};
    return ::lstat(path.c_str(), &status) == 0;
}

bool HasContent(const std::string& path) {
    struct stat status = {};
    return ::stat(path.c_str(), &status) == 0 && status.st_size > 0;
}

// The number stands in four bytes of the head, the highest first.
std::optional<int> VersionInHead(const std::string& path) {
    struct stat status = {};
    if (::stat(path.c_str(), &status) != 0 || !S_ISREG(status.st_mode)) return std::nullopt;
    std::array<char, kHeadSize> head{};
    std::ifstream file(path, std::ios::binary);
    if (!file.read(head.data(), head.size())) return std::nullopt;
    if (std::string_view(head.data(), kMagic.size()) != kMagic) return std::nullopt;
    std::uint32_t version = 0;
    for (std::size_t i = 0; i < sizeof version; ++i)
        version = version << 8U | static_cast<unsigned char>(head.at(kVersionAt + i));
    return static_cast<int>(version);
}

std::optional<int> AskForVersion(sqlite3* connection) {
    const Statement statement = Prepare(connection, "PRAGMA user_version");
    if (statement == nullptr || sqlite3_step(statement.get()) != SQLITE_ROW) return std::nullopt;
    return sqlite3_column_int(statement.get(), 0);
}

// A log that was left holds more than the file; it is read without being written back.
FoundVersion VersionWithLog(const std::string& path) {
    Connection connection;
    DatabaseResult result = Connect(path, SQLITE_OPEN_READWRITE, connection);
    if (!result.Ok()) return {std::nullopt, result};
    sqlite3_db_config(connection.get(), SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
    sqlite3_busy_timeout(connection.get(), ports::kPatientMilliseconds);
    const std::optional<int> version = AskForVersion(connection.get());
    return {version, version ? DatabaseResult{} : LastError(connection.get())};
}

FoundVersion FindVersion(const std::string& path) {
    FoundVersion found{VersionInHead(path), {}};
    const bool has_log = HasContent(path + "-wal") || HasContent(path + "-journal");
    if (found.version && has_log) found = VersionWithLog(path);
    // Stores from before they were numbered.
    if (found.version == 0) found.version = 1;
    return found;
}

std::string CopyOf(const std::string& file, int version, int number = 1) {
    const std::string name = file + ".version-" + std::to_string(version);
    return number == 1 ? name : name + "." + std::to_string(number);
}

/// The name of the newest copy that a program which knows `known` can open; empty when there is none.
std::string FittingCopy(const std::string& folder, const std::string& file, int known) {
    for (int version = known; version > 0; --version) {
        if (IsThere(PathIn(folder, CopyOf(file, version)))) return CopyOf(file, version);
    }
    return {};
}

bool AreEqual(const std::string& one, const std::string& other) {
    std::ifstream first(one, std::ios::binary);
    std::ifstream second(other, std::ios::binary);
    using Bytes = std::istreambuf_iterator<char>;
    return first && second && std::equal(Bytes(first), Bytes(), Bytes(second), Bytes());
}

DatabaseResult SystemTrouble(int error) {
    const bool is_full = error == ENOSPC || error == EDQUOT || error == EFBIG;
    const bool is_denied = error == EACCES || error == EPERM || error == EROFS;
    if (is_full) return {DatabaseError::DiskFull, std::strerror(error)};
    return {is_denied ? DatabaseError::ReadOnly : DatabaseError::InputOutput, std::strerror(error)};
}

/// A new file beside the store, for its owner alone, that goes again unless it gets a name of its own.
class Beside final {
public:
    explicit Beside(const std::string& path) : name_(path + ".new-XXXXXX") {
        const int file = ::mkostemp(name_.data(), O_CLOEXEC);
        if (file < 0) {
            result_ = SystemTrouble(errno);
            name_.clear();
        } else {
            ::close(file);
        }
    }
    ~Beside() {
        if (name_.empty()) return;
        for (const char* const ending : {"", "-journal", "-wal", "-shm"})
            ::unlink((name_ + ending).c_str());
    }
    Beside(const Beside&) = delete;
    Beside& operator=(const Beside&) = delete;

    const DatabaseResult& Result() const { return result_; }
    const std::string& Name() const { return name_; }

    /// Under the one lock of the folder nobody else makes such names.
    DatabaseResult BecomeCopy(const std::string& path, int version) {
        for (int number = 1; number <= kMostCopies; ++number) {
            const std::string copy = CopyOf(path, version, number);
            if (!IsThere(copy)) {
                if (::rename(name_.c_str(), copy.c_str()) != 0) return SystemTrouble(errno);
                name_.clear();
                return {};
            }
            if (AreEqual(copy, name_)) return {};
        }
        return SystemTrouble(EEXIST);
    }

private:
    std::string name_;
    DatabaseResult result_;
};

// Page by page, with what a log holds, as it stands at one moment.
DatabaseResult CopyPages(sqlite3* from, const std::string& to) {
    Connection copy;
    DatabaseResult result = Connect(to, SQLITE_OPEN_READWRITE, copy);
    if (!result.Ok()) return result;
    sqlite3_backup* const backup = sqlite3_backup_init(copy.get(), "main", from, "main");
    if (backup == nullptr) return LastError(copy.get());
    sqlite3_backup_step(backup, -1);
    const int code = sqlite3_backup_finish(backup);
    return code == SQLITE_OK ? DatabaseResult{} : LastError(copy.get());
}

DatabaseResult KeepCopy(sqlite3* store, const std::string& path, int version) {
    Beside beside(path);
    DatabaseResult result = beside.Result();
    if (result.Ok()) result = CopyPages(store, beside.Name());
    if (result.Ok()) result = beside.BecomeCopy(path, version);
    if (!result.Ok()) return result;
    const int folder = ::open(path.substr(0, path.rfind('/')).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder < 0) return SystemTrouble(errno);
    const bool is_durable = ::fsync(folder) == 0 || errno == EINVAL;  // some file systems have no such thing
    const int error = errno;
    ::close(folder);
    return is_durable ? DatabaseResult{} : SystemTrouble(error);
}

DatabaseResult CheckSoundness(sqlite3* connection) {
    const Statement statement = Prepare(connection, "PRAGMA quick_check(1)");
    if (statement == nullptr || sqlite3_step(statement.get()) != SQLITE_ROW) return LastError(connection);
    const auto* const answer = reinterpret_cast<const char*>(sqlite3_column_text(statement.get(), 0));
    if (answer != nullptr && std::string_view(answer) == "ok") return {};
    return {DatabaseError::Damaged, answer == nullptr ? "" : answer};
}

DatabaseResult RunSteps(sqlite3* connection, const StoreVersions& store, int version) {
    for (; version < store.Current(); ++version) {
        DatabaseResult result = Execute(connection, store.steps[static_cast<std::size_t>(version - 1)]);
        if (!result.Ok()) return result;
    }
    return Execute(connection, ("PRAGMA user_version = " + std::to_string(version)).c_str());
}

DatabaseResult Migrate(sqlite3* connection, const StoreVersions& store, int version) {
    DatabaseResult result = Execute(connection, "BEGIN IMMEDIATE");
    if (!result.Ok()) return result;
    result = RunSteps(connection, store, version);
    if (result.Ok()) result = Execute(connection, "COMMIT");
    const bool still_open = sqlite3_get_autocommit(connection) == 0;  // some errors have rolled back already
    if (!result.Ok() && still_open) sqlite3_exec(connection, "ROLLBACK", nullptr, nullptr, nullptr);
    return result;
}

DatabaseResult BringUp(const std::string& path, const StoreVersions& store, int version) {
    if (!HasContent(path + "-wal") && EndsInsideAPage(path))
        return {DatabaseError::Damaged, "the file ends inside a page"};
    Connection connection;
    DatabaseResult result = Connect(path, SQLITE_OPEN_READWRITE, connection);
    if (!result.Ok()) return result;
    sqlite3_busy_timeout(connection.get(), ports::kPatientMilliseconds);
    result = CheckSoundness(connection.get());
    if (result.Ok() && sqlite3_db_readonly(connection.get(), "main") != 0)
        result = {DatabaseError::ReadOnly, "opened for reading only"};
    if (result.Ok()) result = KeepCopy(connection.get(), path, version);
    if (result.Ok()) result = Migrate(connection.get(), store, version);
    return result;
}

}  // namespace

std::optional<UnfitStore> BringUpStores(const std::string& native_folder,
                                        std::span<const StoreVersions> stores) {
    std::vector<int> versions;
    for (const StoreVersions& store : stores) {
        const std::string file(store.file);
        const FoundVersion found = FindVersion(PathIn(native_folder, file));
        const int known = store.Current();
        const int version = found.version.value_or(known);
        if (found.result.error == DatabaseError::Locked)
            return UnfitStore{.file = file, .known = known, .result = found.result};
        if (version > known || version < 0) {
            return UnfitStore{.file = file,
                              .version = version,
                              .known = known,
                              .copy = FittingCopy(native_folder, file, known),
                              .result = {}};
        }
        versions.push_back(version);
    }
    for (std::size_t i = 0; i < stores.size(); ++i) {
        if (versions[i] == stores[i].Current()) continue;
        const std::string file(stores[i].file);
        DatabaseResult result = BringUp(PathIn(native_folder, file), stores[i], versions[i]);
        if (!result.Ok())
            return UnfitStore{.file = file, .known = stores[i].Current(), .result = std::move(result)};
    }
    return std::nullopt;
}

}  // namespace sqlite
