#include "platform/sqlite/SqliteDatabase.h"

#include <sys/stat.h>

#include <cerrno>
#include <cstring>
#include <memory>
#include <utility>

#include "platform/sqlite/SqliteStoreFile.h"

namespace sqlite {
namespace {

using ports::DatabaseError;
using ports::DatabaseResult;

// Only a regular file is opened: opening a pipe could wait for ever.
DatabaseResult LookAt(const std::string& path) {
    struct stat status = {};
    if (::stat(path.c_str(), &status) != 0) {
        const bool is_missing = errno == ENOENT || errno == ENOTDIR;
        return {is_missing ? DatabaseError::Missing : DatabaseError::InputOutput, std::strerror(errno)};
    }
    if (S_ISDIR(status.st_mode)) return {DatabaseError::IsFolder, "a folder"};
    if (!S_ISREG(status.st_mode)) return {DatabaseError::Damaged, "no regular file"};
    return {};
}

// The side files of the log take over the mode of the file when they are made; older ones are set right here.
// Where the mode cannot be set the file is another's, and its owner's concern.
void KeepToOwner(const std::string& path) {
    for (const char* const ending : {"", "-wal", "-shm"}) {
        const std::string file = path + ending;
        struct stat status = {};
        if (::stat(file.c_str(), &status) != 0) continue;
        const bool others_may = (status.st_mode & (S_IRWXG | S_IRWXO)) != 0;
        if (others_may) static_cast<void>(::chmod(file.c_str(), S_IRUSR | S_IWUSR));
    }
}

}  // namespace

SqliteDatabase::SqliteDatabase(NativePath native_path) : native_path_(std::move(native_path)) {}

ports::OpenedStore SqliteDatabase::Open(std::string_view path, const ports::StoreLayout& layout,
                                        int wait_milliseconds) {
    const std::string native = native_path_(path);
    DatabaseResult result = LookAt(native);
    if (!result.Ok()) return {nullptr, result};
    if (layout.owner_only) KeepToOwner(native);
    auto file = std::make_unique<SqliteStoreFile>(native, layout);
    result = file->Open(wait_milliseconds);
    if (!result.Ok()) return {nullptr, result};
    return {std::move(file), {}};
}

}  // namespace sqlite
