// Crossfades, sweeps and levels of the player's own rooms, measured on a recording.
//
// The rooms run on real time. What they told the engine is known with its moment, and what is heard must
// follow it within a decibel, one fixed time later.
#include <gtest/gtest.h>

#include <algorithm>

#include "real/sound/LevelCurve.h"
#include "real/sound/PlayingHouse.h"

namespace {

using gstreamer::Channel;
using sound::Amplitude;
using sound::CurveMatch;
using sound::kRate;
using sound::LevelCurve;
using sound::LongestGap;
using sound::PlayingHouse;
using sound::Samples;
using sound::ToldLevel;

constexpr double kFull = 0.4;  // amplitude of the tones in the files
constexpr double kOut = 997.3;
constexpr double kIn = 2603.7;
constexpr double kDecibel = 1;
constexpr double kGap = 0.005;
constexpr double kQuiet = 0.02 * kFull;
constexpr double kAfter = 0.5;  // seconds in which the last level is heard

/// The levels told to an alias, one after the other; a closed one has 0.
std::vector<double> PercentsOf(const std::vector<ToldLevel>& told, const std::string& alias) {
    std::vector<double> percents;
    for (const ToldLevel& level : told) {
        if (level.alias == alias) percents.push_back(level.percent);
    }
    return percents;
}

/// Milliseconds between two levels of an alias, on the average.
double MeanTick(const std::vector<ToldLevel>& told, const std::string& alias) {
    std::vector<double> times;
    for (const ToldLevel& level : told) {
        if (level.alias == alias) times.push_back(static_cast<double>(level.sample) * 1000 / kRate);
    }
    return times.size() < 2 ? 0 : (times.back() - times.front()) / static_cast<double>(times.size() - 1);
}

/// Two songs on one side of the sound, one after the other.
class Crossfade final {
public:
    Crossfade(sound::PrivateSound& server, sound::GeneratedMedia& files, Channel side)
        : house(server), server_(server), files_(files), side_(side) {}

    void StartFirst() { house.Play(Song(kOut)); }
    void StartSecond() {
        house.controls.transport.tmrPlay.SetEnabled(false);
        house.media.Forget();
        begin_ = house.media.Now();
        house.Play(Song(kIn));
    }
    bool IsOver() const { return !house.IsFading(); }
    void Check(double interval_ms);

    PlayingHouse house;

private:
    std::string Song(double hertz) {
        const std::string name =
            (side_ == Channel::Left ? "left" : "right") + std::to_string(static_cast<int>(hertz)) + ".wav";
        return files_.Make(name, {.hertz = hertz,
                                  .seconds = 40,
                                  .amplitude = kFull,
                                  .left = side_ == Channel::Left,
                                  .right = side_ == Channel::Right});
    }
    const std::vector<float>& SideOf(const Samples& samples) const {
        return side_ == Channel::Left ? samples.left : samples.right;
    }
    void CheckTicks(double interval_ms) const;
    void CheckLevels(const std::vector<float>& heard, std::size_t end) const;

    sound::PrivateSound& server_;
    sound::GeneratedMedia& files_;
    Channel side_;
    std::size_t begin_ = 0;
};

void Crossfade::Check(double interval_ms) {
    const std::size_t end = house.media.Now() + static_cast<std::size_t>(kAfter * kRate);
    const Samples before = server_.Between(begin_ - kRate / 2, begin_);
    const Samples during = server_.Between(begin_, end);
    const Samples after = server_.Between(end, end + kRate / 2);
    const std::vector<float>& heard = SideOf(during);
    const double steady = std::max(sound::LargestStep(SideOf(before)), sound::LargestStep(SideOf(after)));

    CheckTicks(interval_ms);
    CheckLevels(heard, end);
    EXPECT_LT(LongestGap(heard, kQuiet), kGap);
    EXPECT_LE(sound::LargestStep(heard), 1.01 * steady);
}

void Crossfade::CheckTicks(double interval_ms) const {
    std::vector<double> out;
    std::vector<double> in;
    for (int tick = 1; tick <= 50; ++tick) {
        out.push_back(100 - 2 * tick);
        in.push_back(2 * tick);
    }
    const std::vector<ToldLevel>& told = house.media.Told();
    std::vector<double> told_in = PercentsOf(told, "b");
    ASSERT_FALSE(told_in.empty());
    EXPECT_EQ(told_in.front(), 0) << "it begins unheard";
    told_in.erase(told_in.begin());
    EXPECT_EQ(PercentsOf(told, "a"), out);
    EXPECT_EQ(told_in, in);
    // The timers here are the test's own and run late on a busy machine.
    EXPECT_NEAR(MeanTick(told, "a"), interval_ms, 0.2 * interval_ms);
}

void Crossfade::CheckLevels(const std::vector<float>& heard, std::size_t end) const {
    const std::vector<ToldLevel>& told = house.media.Told();
    const CurveMatch out = LevelCurve(told, "a", Channel::Both, begin_, end, 1).Match(heard, kOut, kFull);
    const CurveMatch in = LevelCurve(told, "b", Channel::Both, begin_, end, 0).Match(heard, kIn, kFull);
    EXPECT_LT(out.worst, kDecibel) << "outgoing, " << out.delay_ms << " ms later";
    EXPECT_LT(in.worst, kDecibel) << "incoming, " << in.delay_ms << " ms later";
    EXPECT_LT(out.residue, 0.01);
    EXPECT_LT(in.residue, 0.01);
    EXPECT_GT(out.windows, 400);
    EXPECT_GT(in.windows, 400);
    // Each is known to 12 ms one way or the other; a step of the quickest fade takes 60.
    EXPECT_NEAR(out.delay_ms, in.delay_ms, 30) << "both songs are late by the same time";
}

class Playing : public testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(server_.IsRunning()); }

    sound::PrivateSound server_;
    sound::GeneratedMedia files_;
};

TEST_F(Playing, AQuickCrossfadeFollowsItsRampWithoutGapOrClick) {
    Crossfade fade(server_, files_, Channel::Left);
    fade.StartFirst();
    ASSERT_TRUE(server_.WaitForSound());
    fade.house.RunUntil([] { return false; }, 1);

    fade.StartSecond();

    ASSERT_TRUE(fade.house.RunUntil([&] { return fade.IsOver(); }, 10));
    fade.Check(60);
}

// Side by side, so that the two take no longer than the longer one.
TEST_F(Playing, MediumAndLongCrossfadesFollowTheirRampsWithoutGapOrClick) {
    Crossfade medium(server_, files_, Channel::Left);
    Crossfade lengthy(server_, files_, Channel::Right);
    medium.house.menu.mnuMediumFade.Click.Raise();
    lengthy.house.menu.mnuLongFade.Click.Raise();
    medium.StartFirst();
    lengthy.StartFirst();
    ASSERT_TRUE(server_.WaitForSound());
    const auto both_for = [&](const std::function<bool()>& done, double seconds) {
        return medium.house.RunUntil(
            [&] {
                lengthy.house.Tick();
                return done();
            },
            seconds);
    };
    both_for([] { return false; }, 1);

    medium.StartSecond();
    lengthy.StartSecond();

    ASSERT_TRUE(both_for([&] { return medium.IsOver(); }, 20));
    medium.Check(220);
    ASSERT_TRUE(both_for([&] { return lengthy.IsOver(); }, 40));
    lengthy.Check(500);
}

struct Sweep {
    const char* name;
    controls::Menu player::PlayerMenu::* entry;
    double interval_ms;
    double seconds;  ///< how much of it is heard
};

// Each at least once there and back, but for the longest, which is heard for half of its way.
constexpr Sweep kSweeps[] = {
    {"instant", &player::PlayerMenu::mnuPanInstant, 50, 1.6},
    {"quick", &player::PlayerMenu::mnuPanQuick, 10, 2.1},
    {"medium", &player::PlayerMenu::mnuPanMedium, 50, 5.5},
    {"long", &player::PlayerMenu::mnuPanLong, 100, 5},
};

class Panning : public Playing {
protected:
    void CheckSide(const std::vector<float>& heard, Channel side, std::size_t begin, std::size_t end) const {
        const CurveMatch match =
            LevelCurve(house_.media.Told(), "a", side, begin, end, 1).Match(heard, kOut, kFull);
        EXPECT_LT(match.worst, kDecibel) << match.delay_ms << " ms later";
        EXPECT_LT(match.residue, 0.01);
        EXPECT_GT(match.windows, 60);
    }

    PlayingHouse house_{server_};
};

TEST_F(Panning, EachSweepIsHeardOnBothSidesAsItsTableTells) {
    house_.Play(files_.Make("song.wav", {.hertz = kOut, .seconds = 40, .amplitude = kFull}));
    ASSERT_TRUE(server_.WaitForSound());
    house_.RunUntil([] { return false; }, 0.5);
    const double steady = sound::LargestStep(server_.Record(0.3).left);
    for (const Sweep& sweep : kSweeps) {
        SCOPED_TRACE(sweep.name);
        house_.menu.mnuPanOff.Click.Raise();
        house_.RunUntil([] { return false; }, 0.4);
        house_.media.Forget();
        const std::size_t begin = house_.media.Now();

        (house_.menu.*sweep.entry).Click.Raise();
        house_.RunUntil([] { return false; }, sweep.seconds);

        const std::size_t end = house_.media.Now();
        const Samples heard = server_.Between(begin, end);
        CheckSide(heard.left, Channel::Left, begin, end);
        CheckSide(heard.right, Channel::Right, begin, end);
        EXPECT_LE(sound::LargestStep(heard.left), 1.01 * steady);
    }
}

TEST_F(Playing, MuteIsSilenceAlsoForTheNextSongAndEndsAtTheLevelOfBefore) {
    PlayingHouse house(server_);
    const auto rms = [this] { return sound::Rms(server_.Record(0.3).left); };
    const std::string song = files_.Make("song.wav", {.hertz = kOut, .seconds = 20, .amplitude = kFull});
    house.Play(song);
    ASSERT_TRUE(server_.WaitForSound());
    const double before = rms();

    house.menu.mnuMusicMute.Click.Raise();
    ASSERT_TRUE(server_.WaitForSilence(2));
    const double muted = rms();
    house.mci.MciStop("a");
    const std::size_t begin = house.media.Now();
    house.Play(song);
    const Samples next = server_.Between(begin, begin + kRate);
    house.menu.mnuMusicMute.Click.Raise();
    ASSERT_TRUE(server_.WaitForSound(2));
    server_.Record(0.3);

    EXPECT_EQ(muted, 0);
    EXPECT_EQ(sound::FirstLouderThan(next.left, 0), next.left.size());
    EXPECT_NEAR(rms(), before, 0.01 * before);
}

TEST_F(Playing, Volume50IsHalfTheAmplitude) {
    PlayingHouse house(server_);
    house.Play(files_.Make("song.wav", {.hertz = kOut, .seconds = 20, .amplitude = kFull}));
    ASSERT_TRUE(server_.WaitForSound());
    const double full = Amplitude(server_.Record(0.5).left, kOut);

    player_tests::PlayerHouse::Press(house.controls.levels.lblVol, 50 * player::kUnitsPerPercent);
    server_.Record(0.4);
    const Samples half = server_.Record(0.5);

    EXPECT_NEAR(Amplitude(half.left, kOut), full / 2, 0.01 * full / 2);
    EXPECT_NEAR(Amplitude(half.right, kOut), full / 2, 0.01 * full / 2);
}

}  // namespace
