// A media control interface without sound: devices under aliases, on a clock that the test moves, and the
// transcript of every command.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "ports/MediaControl.h"

namespace fakes {

/// A file that can be opened: its length and how many frames a second has (25 for a film, 1000 for sound).
struct FakeMedia {
    std::int64_t milliseconds = 10'000;
    int frames_per_second = 1000;
    bool tells_length =
        true;  ///< otherwise the length is 0 until the end was reached, as of a recorded stream
};

class FakeMediaControl final : public ports::MediaControl {
public:
    ports::MediaReply SendString(std::string_view command) override;
    std::string ErrorString(int error) const override;

    /// Makes a path playable. Paths that were not added are missing, unless AnyFile is true.
    void AddFile(std::string_view path, FakeMedia media = {});
    /// A file that is there and cannot be played.
    void AddBroken(std::string_view path) { AddFile(path, {.milliseconds = -1}); }
    /// What a path that was not added holds; nothing can be opened while AnyFile is false.
    bool AnyFile = false;
    FakeMedia AnyMedia;

    /// Called when a file was opened, which takes its time.
    std::function<void()> WhenOpened;

    /// Lets playing devices run on; a device that reaches its end stops there.
    void Advance(int milliseconds);
    /// For so many milliseconds of Advance a device that is at its end still says "playing", as one whose
    /// sound server has sound in store. None unless a test says so.
    int SaysPlayingAtEnd = 0;
    /// The next command that begins with `beginning` fails with that error.
    void FailNext(std::string_view beginning, int error);

    bool IsOpen(std::string_view alias) const;
    /// "playing", "paused", "stopped"; empty when it is not open.
    std::string Mode(std::string_view alias) const;
    /// What it was told to go on with; empty for nothing.
    std::string NextOf(std::string_view alias) const;
    /// The path it was opened with; empty when it is not open.
    std::string PathOf(std::string_view alias) const;
    /// Device units, 0 to 1000; -1 when it is not open.
    int Left(std::string_view alias) const;
    int Right(std::string_view alias) const;
    /// Device units, 1000 is normal; -1 when it is not open.
    int Speed(std::string_view alias) const;
    /// The length of what a device plays is known from now on.
    void TellLength(std::string_view alias);
    /// Moves a device to a frame without a command.
    void SetFrame(std::string_view alias, std::int64_t frame);
    std::int64_t Frame(std::string_view alias) const;

    /// Every command in the order it came.
    std::vector<std::string> Commands;
    /// Commands since the last call of this function.
    std::vector<std::string> NewCommands();

private:
    struct Device {
        std::string path;
        std::string next;
        FakeMedia media;
        std::string mode = "stopped";
        bool in_milliseconds = false;
        double position_ms = 0;
        double end_ms = 0;
        int at_end_ms = 0;
        int left = 1000;
        int right = 1000;
        int speed = 1000;
    };
    using Words = std::vector<std::string>;

    int Run(const Words& words, std::string& answer);
    int Open(const Words& words);
    int Close(const Words& words);
    int Status(Device& device, const Words& words, std::string& answer);
    int Set(Device& device, const Words& words);
    int SetAudio(Device& device, const Words& words);
    int Play(Device& device, const Words& words);
    int Seek(Device& device, const Words& words);
    int Follow(Device& device, const Words& words);
    static double ToldLength(const Device& device);
    static int ReadPlace(const Device& device, const std::string& word, double& milliseconds);
    Device* Find(std::string_view alias);
    const Device* Find(std::string_view alias) const;
    static double ToMs(const Device& device, double value);
    static std::int64_t FromMs(const Device& device, double milliseconds);

    std::map<std::string, FakeMedia> files_;
    std::map<std::string, Device> devices_;
    std::string fail_beginning_;
    int fail_error_ = 0;
    std::size_t told_ = 0;
};

}  // namespace fakes
