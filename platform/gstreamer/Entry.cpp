#include "platform/gstreamer/Entry.h"

#include <gst/audio/audio.h>

#include <algorithm>
#include <utility>

namespace gstreamer {
namespace {

class Entry final {
public:
    explicit Entry(std::shared_ptr<const EntryWish> wish) : wish_(std::move(wish)) {
        gst_segment_init(&segment_, GST_FORMAT_UNDEFINED);
    }

    static GstPadProbeReturn OnData(GstPad* pad, GstPadProbeInfo* info, gpointer self) {
        auto& entry = *static_cast<Entry*>(self);
        if ((GST_PAD_PROBE_INFO_TYPE(info) & GST_PAD_PROBE_TYPE_BUFFER) != 0) return entry.Cut(pad, info);
        GstEvent* const event = GST_PAD_PROBE_INFO_EVENT(info);
        if (GST_EVENT_TYPE(event) == GST_EVENT_SEGMENT) GST_PAD_PROBE_INFO_DATA(info) = entry.Change(event);
        return GST_PAD_PROBE_OK;
    }
    static void Free(gpointer self) { const std::unique_ptr<Entry> entry(static_cast<Entry*>(self)); }

private:
    GstEvent* Change(GstEvent* event) {
        gst_event_copy_segment(event, &segment_);
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

    std::shared_ptr<const EntryWish> wish_;
    GstSegment segment_{};
};

}  // namespace

void TakeAs(GstPad* pad, std::shared_ptr<const EntryWish> wish) {
    const auto kinds =
        static_cast<GstPadProbeType>(GST_PAD_PROBE_TYPE_BUFFER | GST_PAD_PROBE_TYPE_EVENT_DOWNSTREAM);
    gst_pad_add_probe(pad, kinds, Entry::OnData, std::make_unique<Entry>(std::move(wish)).release(),
                      Entry::Free);
}

}  // namespace gstreamer
