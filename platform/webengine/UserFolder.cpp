#include "platform/webengine/UserFolder.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <cstdio>

#include <QByteArray>
#include <QCryptographicHash>
#include <algorithm>
#include <charconv>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <system_error>
#include <thread>
#include <vector>

namespace webengine {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view kEngine = "engine-";
constexpr std::string_view kDamaged = "damaged";
constexpr std::string_view kGone = "gone-";
/// Longest user name, in bytes, that is written out in a folder's name.
constexpr std::size_t kLongestName = 60;

std::string Hash(std::string_view text, qsizetype digits) {
    const QByteArray bytes(text.data(), static_cast<qsizetype>(text.size()));
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex().left(digits).toStdString();
}

/// What cannot be taken away now is tried again at the next login.
void TakeAway(const fs::path& path) {
    std::error_code stays;
    fs::remove_all(path, stays);
}

/// A folder that is there afterwards, for its owner alone.
bool MakeOwn(const fs::path& folder) {
    std::error_code error;
    fs::create_directories(folder.parent_path(), error);
    if (::mkdir(folder.c_str(), S_IRWXU) != 0 && !fs::is_directory(folder, error)) return false;
    return ::chmod(folder.c_str(), S_IRWXU) == 0 && ::access(folder.c_str(), W_OK | X_OK) == 0;
}

/// An engine that is still on its way out writes by path. A file in the place of its folder stops that, and
/// says that the number is used up.
void GiveUp(const fs::path& engine) {
    const fs::path gone = engine.parent_path() / (std::string(kGone) + engine.filename().string());
    TakeAway(gone);
    const int file = ::open(gone.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (file >= 0) ::close(file);
    // Both change places in one step, or there would be a moment in which the engine makes its folder again.
    if (::renameat2(AT_FDCWD, gone.c_str(), AT_FDCWD, engine.c_str(), RENAME_EXCHANGE) != 0) {
        TakeAway(engine);
        std::error_code error;
        fs::rename(gone, engine, error);
    }
    TakeAway(gone);
}

void SetAside(const fs::path& path, const fs::path& where) {
    TakeAway(where);
    std::error_code error;
    fs::rename(path, where, error);
    if (error) TakeAway(path);
}

int NumberOf(const fs::path& path) {
    const std::string name = path.filename().string();
    int number = 0;
    if (!name.starts_with(kEngine)) return 0;
    std::from_chars(name.data() + kEngine.size(), name.data() + name.size(), number);
    return number;
}

bool IsOpen(const fs::path& folder) {
    const std::string inside = folder.string() + "/";
    std::error_code error;
    for (const fs::directory_entry& entry : fs::directory_iterator("/proc/self/fd", error)) {
        if (fs::read_symlink(entry.path(), error).string().starts_with(inside)) return true;
    }
    return false;
}

/// The engine of a user who has just logged out still writes the last cookies, on threads of its own. A
/// second one would not get at the stores meanwhile.
void WaitUntilClosed(const fs::path& engine) {
    constexpr int kMostTries = 200;
    constexpr auto kPause = std::chrono::milliseconds(10);
    for (int i = 0; i < kMostTries && !engine.empty() && IsOpen(engine); ++i)
        std::this_thread::sleep_for(kPause);
}

/// In the order of their numbers.
std::vector<fs::path> EnginesIn(const fs::path& user) {
    std::vector<fs::path> engines;
    std::error_code error;
    for (const fs::directory_entry& entry : fs::directory_iterator(user, error)) {
        if (NumberOf(entry.path()) > 0) engines.push_back(entry.path());
    }
    std::sort(engines.begin(), engines.end(),
              [](const fs::path& left, const fs::path& right) { return NumberOf(left) < NumberOf(right); });
    return engines;
}

/// The stores of the engine are databases of one kind. One that is none any more would be passed over by the
/// engine at every start, and nothing kept again.
bool IsDamaged(const fs::path& engine) {
    constexpr std::string_view kHead("SQLite format 3\0", 16);
    std::error_code error;
    const fs::path store = engine / "Cookies";
    if (!fs::exists(store, error)) return false;
    std::ifstream file(store, std::ios::binary);
    std::string head(kHead.size(), ' ');
    file.read(head.data(), static_cast<std::streamsize>(head.size()));
    return file.gcount() != 0 && head != kHead;
}

}  // namespace

std::string UserFolder::OfAllUsers(const std::string& data_folder, const std::string& program_folder) {
    constexpr qsizetype kDigits = 16;
    if (data_folder.empty()) return {};
    return data_folder + "/brindlepost/pages/" + Hash(program_folder, kDigits);
}

// A name may hold whatever a box takes, a slash too, so it is written in hexadecimal digits; one that is too
// long for a file's name is told apart by its hash.
std::string UserFolder::Of(std::string_view user) const {
    constexpr qsizetype kWhole = 64;
    const std::string name =
        user.size() > kLongestName
            ? "long-" + Hash(user, kWhole)
            : QByteArray(user.data(), static_cast<qsizetype>(user.size())).toHex().toStdString();
    return all_users_ + "/" + name;
}

void UserFolder::Begin(std::string_view user, bool keeps_history) {
    path_.clear();
    engine_.clear();
    if (all_users_.empty() || user.empty()) return;
    const std::string path = Of(user);
    std::error_code error;
    if (fs::exists(path, error) && !fs::is_directory(path, error)) SetAside(path, path + ".damaged");
    if (!MakeOwn(all_users_) || !MakeOwn(path)) return;
    path_ = path;
    if (keeps_history) {
        ChooseEngine();
    } else {
        RemoveEngines(user);
    }
}

void UserFolder::RemoveEngines(std::string_view user) const {
    if (all_users_.empty() || user.empty()) return;
    const fs::path path = Of(user);
    for (const fs::path& engine : EnginesIn(path))
        GiveUp(engine);
    TakeAway(path / kDamaged);
}

bool UserFolder::HasEngine(std::string_view user) const {
    if (all_users_.empty() || user.empty()) return false;
    const std::vector<fs::path> engines = EnginesIn(Of(user));
    std::error_code error;
    return !engines.empty() && fs::is_directory(engines.back(), error);
}

// The one with the highest number is the last one begun; the others were given up, and stay so as long as
// files take their places.
void UserFolder::ChooseEngine() {
    const std::vector<fs::path> engines = EnginesIn(path_);
    WaitUntilClosed(engines.empty() ? fs::path() : engines.back());
    std::error_code error;
    number_ = engines.empty() ? 1 : NumberOf(engines.back());
    if (!engines.empty() && IsDamaged(engines.back())) {
        SetAside(engines.back(), fs::path(path_) / kDamaged);
        GiveUp(engines.back());
    }
    if (!engines.empty() && !fs::is_directory(engines.back(), error)) ++number_;
    engine_ = path_ + "/" + std::string(kEngine) + std::to_string(number_);
    for (const fs::path& engine : engines) {
        if (engine != engine_) GiveUp(engine);
    }
    if (MakeOwn(engine_)) {
        TakeAway(fs::path(engine_) / "Visited Links");
    } else {
        engine_.clear();
    }
}

void UserFolder::Close() const {
    if (!engine_.empty()) WaitUntilClosed(engine_);
}

void UserFolder::End() {
    if (!engine_.empty()) TakeAway(fs::path(engine_) / "Visited Links");
    path_.clear();
    engine_.clear();
}

void UserFolder::GiveUpEngine() {
    if (engine_.empty()) return;
    TakeAway(fs::path(path_) / kDamaged);
    GiveUp(engine_);
    engine_.clear();
}

void UserFolder::RenewEngine() {
    if (engine_.empty()) return;
    TakeAway(fs::path(path_) / kDamaged);
    GiveUp(engine_);
    ++number_;
    engine_ = path_ + "/" + std::string(kEngine) + std::to_string(number_);
    if (!MakeOwn(engine_)) engine_.clear();
}

void UserFolder::Remove(std::string_view user) const {
    if (!all_users_.empty() && !user.empty()) TakeAway(Of(user));
}

}  // namespace webengine
