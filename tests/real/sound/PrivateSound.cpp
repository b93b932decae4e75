#include "real/sound/PrivateSound.h"

#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <cstdlib>
#include <filesystem>

namespace sound {
namespace {

constexpr double kAudible = 0.003;
constexpr double kServerStart = 10;

/// The words that start the server whose socket is `folder`/native.
std::vector<std::string> ServerIn(const std::string& folder) {
    // Another one than PulseAudio, as pipewire.py beside this file.
    if (const char* const other = std::getenv("BRINDLEPOST_SOUND_SERVER")) return {other, folder};
    // What a sink takes back and plays anew is heard once, but a recorder has it as it was at first: no
    // rewinds.
    return {"env",
            "XDG_RUNTIME_DIR=" + folder,
            "HOME=" + folder,
            "XDG_CONFIG_HOME=" + folder,
            "DBUS_SESSION_BUS_ADDRESS=unix:path=/nonexistent",
            "pulseaudio",
            "-n",
            "--daemonize=no",
            "--exit-idle-time=-1",
            "--use-pid-file=no",
            "--realtime=no",
            "--high-priority=no",
            "--load=module-native-protocol-unix auth-anonymous=1 socket=" + folder + "/native",
            "--load=module-null-sink sink_name=test rate=44100 channels=2 norewinds=1"};
}

std::string NewFolder() {
    std::string pattern = std::filesystem::temp_directory_path() / "sound-XXXXXX";
    return mkdtemp(pattern.data()) == nullptr ? std::string() : pattern;
}

}  // namespace

// Each thread that is there: the server puts back what it was started with.
void PutInTime(const Child& child) {
    Child({"chrt", "-a", "-r", "-p", "1", std::to_string(child.Id())}).Wait(2);
}

PrivateSound::PrivateSound() : folder_(NewFolder()) {
    running_ = !folder_.empty() && StartServer() && StartRecorder();
}

bool PrivateSound::StartRecorder() {
    ended_ = false;
    recorder_ = Child({"parec", "--device=test.monitor", "--raw", "--format=s16le", "--rate=44100",
                       "--channels=2", "--latency-msec=5"},
                      &pipe_);
    PutInTime(recorder_);
    reader_ = std::thread([this] { ReadOn(); });
    std::unique_lock lock(mutex_);
    return WaitUntilHeard(lock, heard_.size() / 2 + 1, kServerStart);
}

void PrivateSound::EndRecorder() {
    recorder_.Kill();
    if (reader_.joinable()) reader_.join();
    if (pipe_ >= 0) close(pipe_);
}

PrivateSound::~PrivateSound() {
    server_.Signal(SIGCONT);
    EndRecorder();
    server_.Kill();
    unsetenv("PULSE_SERVER");
    std::error_code ignored;
    if (!folder_.empty()) std::filesystem::remove_all(folder_, ignored);
}

bool PrivateSound::StartServer() {
    setenv("PULSE_SERVER", ("unix:" + folder_ + "/native").c_str(), 1);
    server_ = Child(ServerIn(folder_));
    const auto until = std::chrono::steady_clock::now() + std::chrono::duration<double>(kServerStart);
    while (server_.IsRunning() && std::chrono::steady_clock::now() < until) {
        // The sink may come after the server.
        if (Child({"pactl", "get-sink-volume", "test"}).Wait(2) != 0) continue;
        PutInTime(server_);
        return true;
    }
    return false;
}

void PrivateSound::ReadOn() {
    std::array<char, 4096> bytes{};
    std::string rest;
    for (ssize_t count = 1; count > 0;) {
        count = read(pipe_, bytes.data(), bytes.size());
        if (count > 0) rest.append(bytes.data(), static_cast<std::size_t>(count));
        const std::size_t whole = rest.size() / 4 * 2;
        const std::lock_guard lock(mutex_);
        const auto* const samples = reinterpret_cast<const short*>(rest.data());
        heard_.insert(heard_.end(), samples, samples + whole);
        rest.erase(0, whole * 2);
        ended_ = count <= 0;
        more_.notify_all();
    }
}

bool PrivateSound::WaitUntilHeard(std::unique_lock<std::mutex>& lock, std::size_t count, double seconds) {
    more_.wait_for(lock, std::chrono::duration<double>(seconds),
                   [&] { return ended_ || heard_.size() / 2 >= count; });
    return heard_.size() / 2 >= count;
}

Samples PrivateSound::Cut(std::size_t begin, std::size_t end) const {
    constexpr float kFullScale = 32768;
    Samples samples;
    for (std::size_t i = begin; i < std::min(end, heard_.size() / 2); ++i) {
        samples.left.push_back(static_cast<float>(heard_[2 * i]) / kFullScale);
        samples.right.push_back(static_cast<float>(heard_[2 * i + 1]) / kFullScale);
    }
    return samples;
}

std::size_t PrivateSound::Heard() {
    const std::lock_guard lock(mutex_);
    return heard_.size() / 2;
}

void PrivateSound::Forget() {
    const std::lock_guard lock(mutex_);
    // Assigning an empty list would keep the memory.
    std::vector<short>().swap(heard_);
}

Samples PrivateSound::Record(double seconds) {
    const std::size_t begin = Heard();
    return Between(begin, begin + static_cast<std::size_t>(seconds * kRate));
}

Samples PrivateSound::Between(std::size_t begin, std::size_t end) {
    std::unique_lock lock(mutex_);
    const std::size_t now = heard_.size() / 2;
    const double ahead = end > now ? static_cast<double>(end - now) / kRate : 0;
    WaitUntilHeard(lock, end, ahead + 5);
    return Cut(begin, end);
}

bool PrivateSound::WaitFor(const std::function<bool(const Samples&)>& heard, double seconds, double piece) {
    for (int left = static_cast<int>(seconds / piece); left > 0; --left) {
        const Samples samples = Record(piece);
        if (samples.left.empty()) return false;
        if (heard(samples)) return true;
    }
    return false;
}

bool PrivateSound::WaitForSound(double seconds) {
    return WaitFor(
        [](const Samples& heard) { return Rms(heard.left) > kAudible || Rms(heard.right) > kAudible; },
        seconds);
}

bool PrivateSound::WaitForSilence(double seconds) {
    return WaitFor(
        [](const Samples& heard) { return Rms(heard.left) < kAudible && Rms(heard.right) < kAudible; },
        seconds);
}

double PrivateSound::SecondsToSound(std::size_t from, double level) {
    constexpr std::size_t kStep = kRate / 100;
    constexpr std::size_t kLongest = std::size_t{5} * kRate;
    std::unique_lock lock(mutex_);
    for (std::size_t begin = from; begin < from + kLongest; begin += kStep) {
        if (!WaitUntilHeard(lock, begin + kStep, 5)) return -1;
        const Samples samples = Cut(begin, begin + kStep);
        const std::size_t first = FirstLouderThan(samples.left, level);
        if (first < samples.left.size()) return static_cast<double>(begin + first - from) / kRate;
    }
    return -1;
}

void PrivateSound::KillServer() {
    server_.Kill();
}

bool PrivateSound::RestartServer() {
    server_.Kill();
    EndRecorder();
    return StartServer() && StartRecorder();
}

void PrivateSound::FreezeServer() {
    server_.Signal(SIGSTOP);
}

void PrivateSound::ThawServer() {
    server_.Signal(SIGCONT);
}

}  // namespace sound
