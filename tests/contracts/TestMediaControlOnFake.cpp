#include "contracts/MediaControlContract.h"
#include "fakes/FakeMediaControl.h"

namespace {

class FakeBench final : public contracts::MediaControlBench {
public:
    FakeBench() {
        media_.AddFile("song.wav", {.milliseconds = 2000});
        media_.AddFile("film.avi", {.milliseconds = 2000, .frames_per_second = 25});
        media_.AddBroken("broken.mp3");
        media_.AddFile("stream.wma", {.milliseconds = 2000, .tells_length = false});
        media_.AddFile("a song.wav", {.milliseconds = 2000});
    }
    ports::MediaControl& Media() override { return media_; }
    std::string Song() override { return "song.wav"; }
    std::string Film() override { return "film.avi"; }
    std::string Broken() override { return "broken.mp3"; }
    std::string Missing() override { return "missing.mp3"; }
    std::string Lengthless() override { return "stream.wma"; }
    std::string Blank() override { return "a song.wav"; }
    void Pass(int milliseconds) override { media_.Advance(milliseconds); }

private:
    fakes::FakeMediaControl media_;
};

}  // namespace

namespace contracts {
INSTANTIATE_TYPED_TEST_SUITE_P(OnFake, MediaControlContract, FakeBench);
}  // namespace contracts
