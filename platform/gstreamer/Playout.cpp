#include "platform/gstreamer/Playout.h"

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <optional>
#include <utility>

#include "platform/gstreamer/Guard.h"

namespace gstreamer {
namespace {

using Clock = Gain::Clock;

constexpr std::size_t kFrameBytes = 2 * sizeof(float);
constexpr int kPiecesPerSecond = 100;
// A longer one tells of a clock that was set to something else.
constexpr GstClockTimeDiff kLongestLead = 2 * GST_SECOND;
// The sink had this much in store before, and its last sample is over now.
constexpr GstClockTimeDiff kFilled = 25 * GST_MSECOND;
constexpr GstClockTimeDiff kEmpty = 0;
// While levels stand still the lead is looked at for every so many pieces: no multiple of the few that a sink
// takes at once, or it would always be the same one of them.
constexpr int kSeldom = 7;

/// Where a piece is on its sink's course, and when that course began; both change with a jump or a pause.
struct Course {
    GstClockTime running = 0;
    GstClockTime base = 0;
    GstClockTimeDiff lead = 0;  ///< how long before its first sample is heard the piece is here
};

std::optional<GstClockTime> ToldTime(GstPad* pad, GstBuffer* buffer) {
    GstEvent* const event = gst_pad_get_sticky_event(pad, GST_EVENT_SEGMENT, 0);
    if (event == nullptr) return std::nullopt;
    const GstSegment* segment = nullptr;
    gst_event_parse_segment(event, &segment);
    const GstClockTime time = gst_segment_to_running_time(segment, GST_FORMAT_TIME, GST_BUFFER_PTS(buffer));
    gst_event_unref(event);
    return GST_CLOCK_TIME_IS_VALID(time) ? std::optional(time) : std::nullopt;
}

/// Of a piece at a running time; none while the sink runs on no clock.
std::optional<Course> CourseOf(GstClockTime running, GstElement* sink) {
    GstClock* const clock = gst_element_get_clock(sink);
    if (clock == nullptr) return std::nullopt;
    const GstClockTime base = gst_element_get_base_time(sink);
    const GstClockTime passed = gst_clock_get_time(clock) - base;
    gst_object_unref(clock);
    if (GST_STATE(sink) != GST_STATE_PLAYING) return std::nullopt;
    const GstClockTimeDiff lead = GST_CLOCK_DIFF(passed, running);
    if (lead >= kLongestLead || lead <= -kLongestLead) return std::nullopt;
    return Course{.running = running, .base = base, .lead = lead};
}

int RateOf(GstPad* pad) {
    GstCaps* const caps = gst_pad_get_current_caps(pad);
    if (caps == nullptr) return 0;
    int rate = 0;
    gst_structure_get_int(gst_caps_get_structure(caps, 0), "rate", &rate);
    gst_caps_unref(caps);
    return rate;
}

class Playout final {
public:
    Playout(GstElement* sink, GstPadChainFunction chain, std::shared_ptr<Gain> gain,
            std::function<void()> on_empty)
        : sink_(sink), chain_(chain), gain_(std::move(gain)), on_empty_(std::move(on_empty)) {}

    static GstFlowReturn Chain(GstPad* pad, GstObject* parent, GstBuffer* buffer) {
        auto& playout = *static_cast<Playout*>(pad->chaindata);
        return Guarded(
            GST_FLOW_ERROR, [&] { return playout.Take(pad, parent, buffer); },
            [&playout] { ReportBroken(playout.sink_); });
    }
    static void Free(gpointer self) { const std::unique_ptr<Playout> playout(static_cast<Playout*>(self)); }

private:
    GstFlowReturn Take(GstPad* pad, GstObject* parent, GstBuffer* buffer) {
        const int rate = RateOf(pad);
        const std::size_t frames = gst_buffer_get_size(buffer) / kFrameBytes;
        const std::size_t piece = rate / kPiecesPerSecond;
        if (rate <= 0 || frames <= piece + piece / 2) return Pass(pad, parent, buffer, rate);
        GstFlowReturn result = GST_FLOW_OK;
        for (std::size_t done = 0; done < frames && result == GST_FLOW_OK; done += piece) {
            GstBuffer* const part = Cut(buffer, done, std::min(piece, frames - done), rate);
            result = Pass(pad, parent, part, rate);
        }
        gst_buffer_unref(buffer);
        return result;
    }

    static GstBuffer* Cut(GstBuffer* buffer, std::size_t first, std::size_t frames, int rate) {
        GstBuffer* const part =
            gst_buffer_copy_region(buffer, GST_BUFFER_COPY_ALL, first * kFrameBytes, frames * kFrameBytes);
        const auto time_of = [rate](std::size_t count) {
            return gst_util_uint64_scale_int_round(count, GST_SECOND, rate);
        };
        if (GST_BUFFER_PTS_IS_VALID(buffer)) GST_BUFFER_PTS(part) = GST_BUFFER_PTS(buffer) + time_of(first);
        GST_BUFFER_DURATION(part) = time_of(frames);
        if (first > 0) GST_BUFFER_FLAG_UNSET(part, GST_BUFFER_FLAG_DISCONT);
        return part;
    }

    GstFlowReturn Pass(GstPad* pad, GstObject* parent, GstBuffer* buffer, int rate) {
        const GstClockTime length = rate <= 0
                                        ? 0
                                        : gst_util_uint64_scale_int_round(
                                              gst_buffer_get_size(buffer) / kFrameBytes, GST_SECOND, rate);
        if (GST_BUFFER_IS_DISCONT(buffer)) next_.reset();
        const bool is_idle = gain_->IsIdle();
        Clock::time_point heard = Clock::now();
        if (!is_idle || ++passed_ % kSeldom == 0 || !next_) heard += Lead(pad, buffer, length);
        if (next_) *next_ += length;
        if (!is_idle && rate > 0) {
            buffer = gst_buffer_make_writable(buffer);
            GstMapInfo map;
            if (gst_buffer_map(buffer, &map, GST_MAP_READWRITE) != FALSE) {
                gain_->Apply(reinterpret_cast<float*>(map.data), map.size / kFrameBytes, rate, heard);
                gst_buffer_unmap(buffer, &map);
            }
        }
        return chain_(pad, parent, buffer);
    }

    // A sink plays pieces one right behind the other until their times are further off than it bears.
    std::optional<GstClockTime> RunningTime(GstPad* pad, GstBuffer* buffer) {
        const std::optional<GstClockTime> told = ToldTime(pad, buffer);
        if (told && next_ && std::abs(GST_CLOCK_DIFF(*told, *next_)) <= kTimesMayBeOff) return next_;
        return next_ = told;
    }

    // What is told while a piece passes is laid on the next one, so that the end of this one counts.
    std::chrono::nanoseconds Lead(GstPad* pad, GstBuffer* buffer, GstClockTime length) {
        const std::optional<GstClockTime> running = RunningTime(pad, buffer);
        const auto course = running ? CourseOf(*running, sink_) : std::nullopt;
        if (!course) return {};
        if (course->base != course_.base || course->running < course_.running) was_filled_ = false;
        course_ = *course;
        if (course->lead > kFilled) was_filled_ = true;
        if (course->lead < kEmpty && std::exchange(was_filled_, false)) on_empty_();
        const std::chrono::nanoseconds ahead(std::max<GstClockTimeDiff>(course->lead, 0));
        gain_->NoteLead(ahead + std::chrono::nanoseconds(length));
        return ahead;
    }

    GstElement* sink_;  // which owns this
    GstPadChainFunction chain_;
    std::shared_ptr<Gain> gain_;
    std::function<void()> on_empty_;
    int passed_ = 0;
    std::optional<GstClockTime> next_;  // running time of the next piece
    Course course_;
    bool was_filled_ = false;
};

}  // namespace

void LevelAtSink(GstElement* sink, std::shared_ptr<Gain> gain, std::function<void()> on_empty) {
    GstPad* const pad = gst_element_get_static_pad(sink, "sink");
    auto playout =
        std::make_unique<Playout>(sink, GST_PAD_CHAINFUNC(pad), std::move(gain), std::move(on_empty));
    gst_pad_set_chain_function_full(pad, Playout::Chain, playout.release(), Playout::Free);
    gst_object_unref(pad);
}

}  // namespace gstreamer
