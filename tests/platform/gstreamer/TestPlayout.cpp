#include "platform/gstreamer/Playout.h"

#include <gst/audio/audio.h>
#include <gtest/gtest.h>

#include <chrono>
#include <memory>

#include "platform/gstreamer/Gain.h"

namespace {

using gstreamer::Gain;
using std::chrono::milliseconds;

constexpr int kRate = 1000;
constexpr gsize kFrameBytes = 2 * sizeof(float);

/// A sink that takes samples at once, on a clock that goes on when it is told.
class Playout : public testing::Test {
protected:
    Playout() {
        gst_init(nullptr, nullptr);
        sink_ = gst_element_factory_make("fakesink", nullptr);
        gst_object_ref_sink(sink_);
        g_object_set(sink_, "sync", FALSE, "async", FALSE, nullptr);
        clock_ = gst_audio_clock_new("sound", &Answer, this, nullptr);
        gst_element_set_clock(sink_, clock_);
        gst_element_set_base_time(sink_, gst_clock_get_time(clock_));
        gstreamer::LevelAtSink(sink_, gain_, [this] { ++emptied_; });
        gst_element_set_state(sink_, GST_STATE_PLAYING);
        pad_ = gst_element_get_static_pad(sink_, "sink");
        gst_pad_send_event(pad_, gst_event_new_stream_start("song"));
        GstCaps* const caps = gst_caps_new_simple("audio/x-raw", "format", G_TYPE_STRING, "F32LE", "rate",
                                                  G_TYPE_INT, kRate, "channels", G_TYPE_INT, 2, nullptr);
        gst_pad_send_event(pad_, gst_event_new_caps(caps));
        gst_caps_unref(caps);
        GstSegment segment;
        gst_segment_init(&segment, GST_FORMAT_TIME);
        gst_pad_send_event(pad_, gst_event_new_segment(&segment));
        // While levels change each piece is looked at.
        gain_->SetLeft(500);
    }
    ~Playout() override {
        gst_element_set_state(sink_, GST_STATE_NULL);
        gst_object_unref(pad_);
        gst_object_unref(clock_);
        gst_object_unref(sink_);
    }
    /// Samples of a length that carry the time `at`.
    void Take(milliseconds at, milliseconds length, bool is_new_course = false) {
        GstBuffer* const buffer =
            gst_buffer_new_allocate(nullptr, static_cast<gsize>(length.count()) * kFrameBytes, nullptr);
        gst_buffer_memset(buffer, 0, 0, static_cast<gsize>(length.count()) * kFrameBytes);
        GST_BUFFER_PTS(buffer) = static_cast<GstClockTime>(at.count()) * GST_MSECOND;
        if (is_new_course) GST_BUFFER_FLAG_SET(buffer, GST_BUFFER_FLAG_DISCONT);
        EXPECT_EQ(gst_pad_chain(pad_, buffer), GST_FLOW_OK);
    }

    std::shared_ptr<Gain> gain_ = std::make_shared<Gain>();
    GstClockTime now_ = GST_SECOND;
    int emptied_ = 0;

private:
    static GstClockTime Answer(GstClock* /*clock*/, gpointer test) {
        return static_cast<Playout*>(test)->now_;
    }

    GstElement* sink_ = nullptr;
    GstClock* clock_ = nullptr;
    GstPad* pad_ = nullptr;
};

TEST_F(Playout, TheLeadReachesToTheEndOfThePieceThatPassed) {
    Take(milliseconds(0), milliseconds(100));

    EXPECT_EQ(gain_->Delay(), milliseconds(100));
}

// As stretched sound does, whose samples follow one another all the same.
TEST_F(Playout, TimesThatAreALittleOffDoNotCount) {
    Take(milliseconds(0), milliseconds(100));
    Take(milliseconds(160), milliseconds(30));
    Take(milliseconds(70), milliseconds(70));

    EXPECT_EQ(gain_->Delay(), milliseconds(200));
}

TEST_F(Playout, TimesThatAreFurtherOffDo) {
    Take(milliseconds(0), milliseconds(100));
    Take(milliseconds(400), milliseconds(100));

    EXPECT_EQ(gain_->Delay(), milliseconds(500));
}

TEST_F(Playout, AfterAJumpTimesCountAnew) {
    Take(milliseconds(0), milliseconds(100), true);
    Take(milliseconds(200), milliseconds(100), true);

    EXPECT_EQ(gain_->Delay(), milliseconds(300));
}

TEST_F(Playout, TimesThatAreALittleOffDoNotEmptyTheSink) {
    Take(milliseconds(50), milliseconds(10));
    now_ += 40 * GST_MSECOND;
    Take(milliseconds(10), milliseconds(10));

    EXPECT_EQ(emptied_, 0);
}

TEST_F(Playout, ASinkWhoseLastSampleIsOverIsEmpty) {
    Take(milliseconds(50), milliseconds(10));
    now_ += 70 * GST_MSECOND;
    Take(milliseconds(60), milliseconds(10));
    Take(milliseconds(70), milliseconds(10));

    EXPECT_EQ(emptied_, 1);
}

}  // namespace
