#include <gst/audio/audio.h>
#include <gtest/gtest.h>

#include <chrono>
#include <thread>

#include "platform/gstreamer/SoundClock.h"

namespace {

constexpr GstClockTime kHuge = 18'427'562'109'700'079'616U;  // seen; some 222 days below what 64 bits hold

class SoundClock : public testing::Test {
protected:
    SoundClock() {
        gst_init(nullptr, nullptr);
        clock_ = gst_audio_clock_new("sound", &Answer, this, &OnForgotten);
    }
    ~SoundClock() override {
        if (clock_ != nullptr) gst_object_unref(clock_);
    }
    void Guard() {
        gstreamer::IgnoreLeaps(clock_, [this] { return is_running_; });
    }
    GstClockTime Ask(GstClockTime answer) {
        answer_ = answer;
        return gst_clock_get_internal_time(clock_);
    }

    GstClock* clock_ = nullptr;
    GstClockTime answer_ = 0;
    int forgotten_ = 0;
    bool is_running_ = false;

private:
    static GstClockTime Answer(GstClock* /*clock*/, gpointer test) {
        return static_cast<SoundClock*>(test)->answer_;
    }
    static void OnForgotten(gpointer test) { ++static_cast<SoundClock*>(test)->forgotten_; }
};

TEST_F(SoundClock, ALeapHoldsItForGood) {
    EXPECT_EQ(Ask(500 * GST_MSECOND), 500 * GST_MSECOND);
    EXPECT_EQ(Ask(kHuge), kHuge);
    EXPECT_EQ(Ask(600 * GST_MSECOND), kHuge);
}

TEST_F(SoundClock, ALeapIsIgnored) {
    Guard();

    EXPECT_EQ(Ask(500 * GST_MSECOND), 500 * GST_MSECOND);
    EXPECT_EQ(Ask(kHuge), 500 * GST_MSECOND);
    EXPECT_EQ(Ask(600 * GST_MSECOND), 600 * GST_MSECOND);
}

// The library has no better answer until the stream ends.
TEST_F(SoundClock, ALeapThatStaysLetsTheClockGoOnByItself) {
    Guard();
    is_running_ = true;
    Ask(500 * GST_MSECOND);
    const GstClockTime first = Ask(kHuge);
    const gint64 begin = g_get_monotonic_time();
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    const auto passed = static_cast<GstClockTime>(g_get_monotonic_time() - begin) * GST_USECOND;

    const GstClockTime later = Ask(kHuge);

    EXPECT_GE(later, first + passed);
    EXPECT_LT(later, first + 2 * GST_SECOND);
}

TEST_F(SoundClock, ALeapWhileTheSoundRestsLetsTheClockRest) {
    Guard();
    Ask(500 * GST_MSECOND);
    Ask(kHuge);
    std::this_thread::sleep_for(std::chrono::milliseconds(20));

    EXPECT_EQ(Ask(kHuge), 500 * GST_MSECOND);
}

// The rest was not played.
TEST_F(SoundClock, ALeapAtTheEndOfARestDoesNotCountTheRest) {
    Guard();
    Ask(500 * GST_MSECOND);
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
    is_running_ = true;

    EXPECT_EQ(Ask(kHuge), 500 * GST_MSECOND);
}

TEST_F(SoundClock, ALeapAtTheFirstAnswerIsIgnored) {
    Guard();

    EXPECT_EQ(Ask(kHuge), 0U);
    EXPECT_EQ(Ask(GST_MSECOND), GST_MSECOND);
}

TEST_F(SoundClock, NoAnswerIsTheLastOne) {
    Guard();

    EXPECT_EQ(Ask(500 * GST_MSECOND), 500 * GST_MSECOND);
    EXPECT_EQ(Ask(GST_CLOCK_TIME_NONE), 500 * GST_MSECOND);
}

// A sink that was opened again begins at 0; the clock itself says how far it has come.
TEST_F(SoundClock, AnAnswerFurtherBackIsTakenAsTheClockTakesIt) {
    Guard();

    EXPECT_EQ(Ask(900 * GST_MSECOND), 900 * GST_MSECOND);
    EXPECT_EQ(Ask(0), 900 * GST_MSECOND);
    EXPECT_EQ(Ask(950 * GST_MSECOND), 950 * GST_MSECOND);
}

TEST_F(SoundClock, WhoAskedForItToBeForgottenIsTold) {
    Guard();
    gst_object_unref(clock_);
    clock_ = nullptr;

    EXPECT_EQ(forgotten_, 1);
}

TEST_F(SoundClock, AnotherClockAndNoClockAreLeftAlone) {
    GstClock* const system = gst_system_clock_obtain();
    gstreamer::IgnoreLeaps(system, [] { return true; });
    EXPECT_TRUE(GST_CLOCK_TIME_IS_VALID(gst_clock_get_time(system)));
    gst_object_unref(system);
    gstreamer::IgnoreLeaps(nullptr, [] { return true; });
    gstreamer::IgnoreLeapsOf(nullptr);
}

TEST_F(SoundClock, ASinksClockIsTheOneThatIsGuarded) {
    GstElement* const sink = gst_element_factory_make("pulsesink", nullptr);
    ASSERT_NE(sink, nullptr);
    gst_object_ref_sink(sink);
    const auto* const clock = GST_AUDIO_CLOCK(GST_AUDIO_BASE_SINK(sink)->provided_clock);
    const auto before = clock->func;

    gstreamer::IgnoreLeapsOf(sink);

    EXPECT_NE(clock->func, before);
    gst_object_unref(sink);
}

}  // namespace
