#include "platform/linux/RunLog.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>
#include <vector>

#include "platform/linux/LogWords.h"

namespace linux {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kOwnFolder = "/brindlepost";
constexpr std::string_view kPrefix = "run-";
constexpr std::string_view kEnding = ".log";
constexpr std::string_view kEnded = " ended with code ";
constexpr int kTries = 50;

// What writes from any thread reaches the one log of the program.
std::atomic<int> log_number{-1};
std::atomic<std::size_t> message_bytes{0};

struct Moment {
    std::tm time{};
    int microseconds = 0;
};

Moment Now() {
    const auto now = std::chrono::system_clock::now();
    const std::time_t seconds = std::chrono::system_clock::to_time_t(now);
    Moment moment;
    ::localtime_r(&seconds, &moment.time);
    const auto since = std::chrono::duration_cast<std::chrono::microseconds>(now.time_since_epoch());
    moment.microseconds = static_cast<int>(since.count() % 1'000'000);
    return moment;
}

std::string Stamp(const char* format, const char* fraction, int divisor) {
    const Moment now = Now();
    std::array<char, 32> text{};
    const std::size_t length = std::strftime(text.data(), text.size(), format, &now.time);
    std::array<char, 16> rest{};
    static_cast<void>(std::snprintf(rest.data(), rest.size(), fraction, now.microseconds / divisor));
    return std::string(text.data(), length) + rest.data();
}

/// Which stores a run had, for names of files.
std::string MarkOf(std::string_view stores_folder) {
    std::uint32_t hash = 0x811c9dc5U;
    for (const char letter : stores_folder)
        hash = (hash ^ static_cast<unsigned char>(letter)) * 0x01000193U;
    std::array<char, 9> digits{};
    static_cast<void>(std::snprintf(digits.data(), digits.size(), "%08x", static_cast<unsigned>(hash)));
    return digits.data();
}

bool MakeFolder(const std::string& folder) {
    std::error_code error;
    fs::create_directories(fs::path(folder).parent_path(), error);
    if (::mkdir(folder.c_str(), S_IRWXU) != 0 && errno != EEXIST) return false;
    return fs::is_directory(folder, error) && ::chmod(folder.c_str(), S_IRWXU) == 0;
}

/// The files of all runs, the oldest first: their names begin with the time.
std::vector<std::string> FilesOf(const std::string& folder) {
    std::vector<std::string> files;
    std::error_code error;
    for (fs::directory_iterator at(folder, error), end; !error && at != end; at.increment(error)) {
        const std::string name = at->path().filename().string();
        if (name.starts_with(kPrefix) && name.ends_with(kEnding)) files.push_back(name);
    }
    std::sort(files.begin(), files.end());
    return files;
}

/// Whether a run that goes on has it.
bool IsHeld(const std::string& path) {
    const Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK));
    return file.IsOpen() && ::flock(file.Number(), LOCK_EX | LOCK_NB) != 0;
}

void RemoveOldest(const std::string& folder) {
    const std::vector<std::string> files = FilesOf(folder);
    const auto most = static_cast<std::size_t>(RunLog::kFilesKept - 1);
    for (std::size_t i = 0; i + most < files.size(); ++i) {
        const std::string path = folder + "/" + files[i];
        if (!IsHeld(path)) ::unlink(path.c_str());
    }
}

Descriptor NewFile(const std::string& folder, std::string_view mark) {
    for (int i = 0; i < kTries; ++i) {
        std::string path = folder + "/" + std::string(kPrefix) + Stamp("%Y%m%d-%H%M%S", "-%06d", 1);
        path.append("-").append(mark).append(kEnding);
        Descriptor file(
            ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_APPEND | O_CLOEXEC, S_IRUSR | S_IWUSR));
        if (file.IsOpen() || errno != EEXIST) return file;
    }
    return Descriptor(-1);
}

// One write, so that lines of several threads do not mix.
void Write(std::string_view line) {
    const int number = log_number.load();
    if (number < 0) return;
    const std::string whole = Stamp("%H:%M:%S", ".%03d", 1000).append(" ").append(line).append("\n");
    [[maybe_unused]] const ssize_t written = ::write(number, whole.data(), whole.size());
}

}  // namespace

RunLog::RunLog(const std::string& state_home, std::string_view stores_folder) : file_(-1) {
    const std::string folder = state_home + std::string(kOwnFolder);
    if (state_home.empty() || !MakeFolder(folder)) return;
    const std::string mark = MarkOf(stores_folder);
    last_ = FindLast(folder, mark);
    RemoveOldest(folder);
    file_ = NewFile(folder, mark);
    if (!file_.IsOpen()) return;
    ::flock(file_.Number(), LOCK_EX | LOCK_NB);
    message_bytes = 0;
    log_number = file_.Number();
}

RunLog::~RunLog() {
    log_number = -1;
}

RunLog::LastRun RunLog::FindLast(const std::string& folder, std::string_view mark) const {
    const std::vector<std::string> files = FilesOf(folder);
    const std::string ending = std::string(mark).append(kEnding);
    const auto last = std::find_if(files.rbegin(), files.rend(),
                                   [&ending](const std::string& file) { return file.ends_with(ending); });
    if (last == files.rend()) return {};
    LastRun run{LastRun::End::Unknown, folder + "/" + *last};
    std::ifstream file(run.file);
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with(kCrash)) run.end = LastRun::End::Crashed;
        const bool is_end = line.find(kEnded) == std::string_view("00:00:00.000").size();
        if (is_end && run.end == LastRun::End::Unknown) run.end = LastRun::End::InOrder;
    }
    return run;
}

int RunLog::End(int exit_code) {
    Write(std::string(kEnded.substr(1)) + std::to_string(exit_code));
    return exit_code;
}

void RunLog::Note(std::string_view line) {
    Write(std::string("- ").append(line));
}

void RunLog::TakeMessage(std::string_view line) {
    if (line.empty() || log_number.load() < 0) return;
    const std::string kept = WithoutNames(line);
    const std::size_t before = message_bytes.fetch_add(kept.size() + 1);
    if (before < kMostBytes) {
        Write("| " + kept);
        if (before + kept.size() + 1 >= kMostBytes) Note("more messages are left out");
    }
}

void RunLog::Tell(const std::string& line) {
    std::fprintf(stderr, "Brindlepost: %s\n", line.c_str());
    Note(line);
}

}  // namespace linux
