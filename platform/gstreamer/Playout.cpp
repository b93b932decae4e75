#include "platform/gstreamer/Playout.h"

namespace gstreamer {
namespace {

using Clock = std::chrono::steady_clock;
constexpr GstClockTimeDiff kLongestLead = 2 * GST_SECOND;

GstClockTime RunningTime(GstPad* pad, GstBuffer* buffer) {
    GstEvent* const event = gst_pad_get_sticky_event(pad, GST_EVENT_SEGMENT, 0);
    if (event == nullptr) return GST_CLOCK_TIME_NONE;
    const GstSegment* segment = nullptr;
    gst_event_parse_segment(event, &segment);
    const GstClockTime time = gst_segment_to_running_time(segment, GST_FORMAT_TIME, GST_BUFFER_PTS(buffer));
    gst_event_unref(event);
    return time;
}

}  // namespace

Clock::time_point HeardAt(GstPad* pad, GstBuffer* buffer, GstElement* sink) {
    const Clock::time_point now = Clock::now();
    const GstClockTime running = RunningTime(pad, buffer);
    GstClock* const clock = gst_element_get_clock(sink);
    if (clock == nullptr) return now;
    const GstClockTime passed = gst_clock_get_time(clock) - gst_element_get_base_time(sink);
    gst_object_unref(clock);
    if (!GST_CLOCK_TIME_IS_VALID(running)) return now;
    const GstClockTimeDiff lead = GST_CLOCK_DIFF(passed, running);
    return lead > 0 && lead < kLongestLead ? now + std::chrono::nanoseconds(lead) : now;
}

}  // namespace gstreamer
