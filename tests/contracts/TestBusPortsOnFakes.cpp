// The stand-ins for messengers, player controls and screen saver keep to their contracts.
#include <optional>

#include "contracts/MessengerContract.h"
#include "contracts/NowPlayingContract.h"
#include "contracts/ScreenSaverContract.h"
#include "fakes/FakeMessenger.h"
#include "fakes/FakeNowPlayingBoard.h"
#include "fakes/FakeScreenSaver.h"

namespace contracts {
namespace {

class FakeMessengerBench final : public MessengerBench {
public:
    ports::Messenger& Messenger() override { return messenger_; }
    std::size_t OpenWindow(const std::string& window_class) override {
        return messenger_.AddWindow(window_class);
    }
    void OpenDeafWindow(const std::string& window_class) override { messenger_.AddWindow(window_class); }
    std::vector<ports::CopyData> ReceivedBy(std::size_t window) override {
        return messenger_.Windows[window].Received;
    }

private:
    fakes::FakeMessenger messenger_;
};

class FakeNowPlayingBench final : public NowPlayingBench {
public:
    ports::NowPlayingBoard& Board() override { return board_; }
    ports::NowPlaying Seen() override { return board_.Shown; }
    int NewsTold() override { return static_cast<int>(board_.News.size()); }
    std::vector<std::int64_t> JumpsTold() override { return board_.Jumps; }
    std::int64_t AskPosition() override {
        return board_.Listener != nullptr ? board_.Listener->Position() : 0;
    }
    void Ask(const std::string& verb) override {
        const struct {
            const char* verb;
            void (ports::RemoteControl::*ask)();
        } verbs[] = {
            {"play", &ports::RemoteControl::OnPlay},
            {"pause", &ports::RemoteControl::OnPause},
            {"play or pause", &ports::RemoteControl::OnPlayPause},
            {"stop", &ports::RemoteControl::OnStop},
            {"next", &ports::RemoteControl::OnNext},
            {"previous", &ports::RemoteControl::OnPrevious},
            {"raise", &ports::RemoteControl::OnRaise},
            {"quit", &ports::RemoteControl::OnQuit},
        };
        for (const auto& one : verbs) {
            if (verb == one.verb && board_.Listener != nullptr) (board_.Listener->*one.ask)();
        }
    }
    void AskSeek(std::int64_t offset) override {
        if (board_.Listener != nullptr) board_.Listener->OnSeek(offset);
    }
    void AskPosition(std::int64_t track, std::int64_t position) override {
        if (board_.Listener != nullptr) board_.Listener->OnSetPosition(track, position);
    }
    void AskRate(double rate) override {
        if (board_.Listener != nullptr) board_.Listener->OnSetRate(rate);
    }
    void AskVolume(double volume) override {
        if (board_.Listener != nullptr) board_.Listener->OnSetVolume(volume);
    }
    void AskRepeat(bool repeat) override { board_.Listener->OnSetRepeat(repeat); }
    void AskShuffle(bool shuffle) override { board_.Listener->OnSetShuffle(shuffle); }
    void AskGoTo(std::int64_t track) override { board_.Listener->OnGoTo(track); }
    std::vector<ports::ListedTrack> AskTracks(const std::vector<std::int64_t>& tracks) override {
        return board_.Listener->Describe(tracks);
    }

private:
    fakes::FakeNowPlayingBoard board_;
};

class FakeScreenSaverBench final : public ScreenSaverBench {
public:
    ports::ScreenSaver& Saver() override { return *saver_; }
    bool MayGoDark() override { return !saver_ || !saver_->Inhibited; }
    void EndProgram() override { saver_.reset(); }

private:
    std::optional<fakes::FakeScreenSaver> saver_{std::in_place};
};

INSTANTIATE_TEST_SUITE_P(Fake, MessengerContract, testing::Values(MakeMessengerBench([] {
                             return std::make_unique<FakeMessengerBench>();
                         })),
                         [](const auto&) { return "Fake"; });
INSTANTIATE_TEST_SUITE_P(Fake, NowPlayingContract, testing::Values(MakeNowPlayingBench([] {
                             return std::make_unique<FakeNowPlayingBench>();
                         })),
                         [](const auto&) { return "Fake"; });
INSTANTIATE_TEST_SUITE_P(Fake, ScreenSaverContract, testing::Values(MakeScreenSaverBench([] {
                             return std::make_unique<FakeScreenSaverBench>();
                         })),
                         [](const auto&) { return "Fake"; });

}  // namespace
}  // namespace contracts
