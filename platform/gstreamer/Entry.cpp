#include "platform/gstreamer/Entry.h"

#include <gst/audio/audio.h>

#include <algorithm>
#include <utility>

#include "platform/gstreamer/Guard.h"
#include "platform/gstreamer/Successor.h"

namespace gstreamer {
namespace {

class Entry final {
public:
    Entry(std::shared_ptr<const EntryWish> wish, std::shared_ptr<Successor> successor)
        : wish_(std::move(wish)), successor_(std::move(successor)) {
        gst_segment_init(&segment_, GST_FORMAT_UNDEFINED);
    }

    static GstPadProbeReturn OnData(GstPad* pad, GstPadProbeInfo* info, gpointer self) {
        auto& entry = *static_cast<Entry*>(self);
        return Guarded(
            GST_PAD_PROBE_DROP, [&] { return entry.Take(pad, info); },
            [pad] { ReportBroken(GST_PAD_PARENT(pad)); });
    }
    static void Free(gpointer self) { const std::unique_ptr<Entry> entry(static_cast<Entry*>(self)); }

private:
    GstPadProbeReturn Take(GstPad* pad, GstPadProbeInfo* info) {
        if ((GST_PAD_PROBE_INFO_TYPE(info) & GST_PAD_PROBE_TYPE_BUFFER) != 0) return Cut(pad, info);
        GstEvent* const event = GST_PAD_PROBE_INFO_EVENT(info);
        if (GST_EVENT_TYPE(event) == GST_EVENT_STREAM_START) GoOnWithSuccessor();
        if (GST_EVENT_TYPE(event) == GST_EVENT_SEGMENT) GST_PAD_PROBE_INFO_DATA(info) = Change(event);
        return GST_PAD_PROBE_OK;
    }

    void GoOnWithSuccessor() {
        std::shared_ptr<EntryWish> next = successor_->Taken();
        if (next == nullptr) return;
        wish_ = std::move(next);
        follows_ = GST_CLOCK_TIME_IS_VALID(end_);
    }

    GstEvent* Change(GstEvent* event) {
        gst_event_copy_segment(event, &segment_);
        if (std::exchange(follows_, false)) segment_.base = end_;
        if (segment_.format != GST_FORMAT_TIME || segment_.rate <= 0) return event;
        const auto begin = static_cast<GstClockTime>(wish_->recording.begin);
        const auto end = static_cast<GstClockTime>(wish_->recording.end);
        if (segment_.start < begin) {
            segment_.time += begin - segment_.start;
            segment_.start = segment_.position = begin;
        }
        if (end != 0 && end > segment_.start) segment_.stop = std::min(segment_.stop, end);
        if (const double rate = wish_->rate; rate != 1) segment_.rate = rate;
        GstEvent* const changed = gst_event_new_segment(&segment_);
        gst_event_set_seqnum(changed, gst_event_get_seqnum(event));
        gst_event_unref(event);
        return changed;
    }

    bool IsWholeInside(GstBuffer* buffer) const {
        if (segment_.format != GST_FORMAT_TIME || !GST_BUFFER_PTS_IS_VALID(buffer) ||
            !GST_BUFFER_DURATION_IS_VALID(buffer))
            return true;
        const GstClockTime begin = GST_BUFFER_PTS(buffer);
        return begin >= segment_.start && begin + GST_BUFFER_DURATION(buffer) <= segment_.stop;
    }

    // What lies outside is given back, as the probe's data must be.
    GstPadProbeReturn Cut(GstPad* pad, GstPadProbeInfo* info) {
        GstBuffer* const buffer = GST_PAD_PROBE_INFO_BUFFER(info);
        NoteEnd(buffer);
        if (IsWholeInside(buffer)) return GST_PAD_PROBE_OK;
        GstCaps* const caps = gst_pad_get_current_caps(pad);
        GstAudioInfo format;
        const bool is_known = caps != nullptr && gst_audio_info_from_caps(&format, caps) != FALSE;
        if (caps != nullptr) gst_caps_unref(caps);
        if (!is_known) return GST_PAD_PROBE_OK;
        GstBuffer* const inside = gst_audio_buffer_clip(buffer, &segment_, GST_AUDIO_INFO_RATE(&format),
                                                        GST_AUDIO_INFO_BPF(&format));
        GST_PAD_PROBE_INFO_DATA(info) = inside;
        return inside == nullptr ? GST_PAD_PROBE_HANDLED : GST_PAD_PROBE_OK;
    }

    void NoteEnd(GstBuffer* buffer) {
        if (segment_.format != GST_FORMAT_TIME || !GST_BUFFER_PTS_IS_VALID(buffer) ||
            !GST_BUFFER_DURATION_IS_VALID(buffer))
            return;
        const GstClockTime end =
            std::min(GST_BUFFER_PTS(buffer) + GST_BUFFER_DURATION(buffer), segment_.stop);
        end_ = gst_segment_to_running_time(&segment_, GST_FORMAT_TIME, end);
    }

    std::shared_ptr<const EntryWish> wish_;
    std::shared_ptr<Successor> successor_;
    GstSegment segment_{};
    GstClockTime end_ = GST_CLOCK_TIME_NONE;  // of what came in, on the sink's course
    bool follows_ = false;                    // the next segment is of another song
};

}  // namespace

void TakeAs(GstPad* pad, std::shared_ptr<const EntryWish> wish, std::shared_ptr<Successor> successor) {
    const auto kinds =
        static_cast<GstPadProbeType>(GST_PAD_PROBE_TYPE_BUFFER | GST_PAD_PROBE_TYPE_EVENT_DOWNSTREAM);
    gst_pad_add_probe(pad, kinds, Entry::OnData,
                      std::make_unique<Entry>(std::move(wish), std::move(successor)).release(), Entry::Free);
}

}  // namespace gstreamer
