// What is thrown where C calls the engine: it must not get out, and the song counts as broken.
#include "platform/gstreamer/Guard.h"

#include <gtest/gtest.h>

#include <chrono>
#include <memory>
#include <new>
#include <thread>

#include "platform/gstreamer/MciErrors.h"
#include "platform/gstreamer/Pipeline.h"
#include "platform/gstreamer/Playout.h"
#include "real/sound/GeneratedMedia.h"

namespace gstreamer {
namespace {

constexpr int kRate = 8000;

/// A sink that nothing comes before: a test hands it its samples.
class LooseSink {
public:
    explicit LooseSink(std::function<void()> on_empty) {
        StartGStreamer();
        gst_object_ref_sink(sink_ = gst_element_factory_make("fakesink", nullptr));
        LevelAtSink(sink_, std::make_shared<Gain>(), std::move(on_empty));
        GstClock* const clock = gst_system_clock_obtain();
        gst_element_set_bus(sink_, bus_);
        gst_element_set_clock(sink_, clock);
        gst_element_set_base_time(sink_, gst_clock_get_time(clock));
        gst_object_unref(clock);
        gst_element_set_state(sink_, GST_STATE_PLAYING);
        pad_ = gst_element_get_static_pad(sink_, "sink");
        GstCaps* const caps = gst_caps_from_string(
            "audio/x-raw,format=F32LE,layout=interleaved,channels=2,channel-mask=(bitmask)3,rate=8000");
        GstSegment segment;
        gst_segment_init(&segment, GST_FORMAT_TIME);
        gst_pad_send_event(pad_, gst_event_new_stream_start("song"));
        gst_pad_send_event(pad_, gst_event_new_caps(caps));
        gst_pad_send_event(pad_, gst_event_new_segment(&segment));
        gst_caps_unref(caps);
    }
    ~LooseSink() {
        gst_element_set_state(sink_, GST_STATE_NULL);
        gst_object_unref(pad_);
        gst_object_unref(sink_);
        gst_object_unref(bus_);
    }
    LooseSink(const LooseSink&) = delete;
    LooseSink& operator=(const LooseSink&) = delete;

    GstFlowReturn Take(int begin_ms, int length_ms) {
        const std::size_t frames = static_cast<std::size_t>(kRate) * length_ms / 1000;
        GstBuffer* const buffer = gst_buffer_new_allocate(nullptr, frames * 2 * sizeof(float), nullptr);
        gst_buffer_memset(buffer, 0, 0, frames * 2 * sizeof(float));
        GST_BUFFER_PTS(buffer) = begin_ms * GST_MSECOND;
        GST_BUFFER_DURATION(buffer) = length_ms * GST_MSECOND;
        return gst_pad_chain(pad_, buffer);
    }
    bool HasReportedAnError() {
        GstMessage* const message = gst_bus_pop_filtered(bus_, GST_MESSAGE_ERROR);
        if (message == nullptr) return false;
        gst_message_unref(message);
        return true;
    }

private:
    GstBus* bus_ = gst_bus_new();
    GstElement* sink_ = nullptr;
    GstPad* pad_ = nullptr;
};

TEST(Guard, WhatIsReturnedPassesThrough) {
    EXPECT_EQ(Guarded(1, [] { return 2; }, [] { FAIL() << "nothing was thrown"; }), 2);
}

TEST(Guard, WhatIsThrownEndsThere) {
    bool told = false;

    EXPECT_EQ(Guarded(1, []() -> int { throw 7; }, [&told] { told = true; }), 1);

    EXPECT_TRUE(told);
}

TEST(Guard, AMessageThatCannotBeTakenBreaksTheSong) {
    sound::GeneratedMedia media;
    const std::string song = media.Make("song.wav", {.seconds = 1});
    ASSERT_FALSE(song.empty());
    Pipeline pipeline(std::make_shared<Gain>(), [] { throw std::bad_alloc(); });

    EXPECT_EQ(pipeline.Open(song, 0, true, 1), kInvalidFile);
}

TEST(Guard, SamplesThatCannotBeTakenBreakTheSong) {
    LooseSink sink([] { throw std::bad_alloc(); });
    ASSERT_EQ(sink.Take(100, 200), GST_FLOW_OK);
    std::this_thread::sleep_for(std::chrono::milliseconds(800));

    EXPECT_EQ(sink.Take(300, 200), GST_FLOW_ERROR);

    EXPECT_TRUE(sink.HasReportedAnError());
}

}  // namespace
}  // namespace gstreamer
