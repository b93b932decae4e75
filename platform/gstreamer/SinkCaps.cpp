#include "platform/gstreamer/SinkCaps.h"

#include <string>

namespace gstreamer {
namespace {

GstPadProbeReturn Answer(GstPad* /*pad*/, GstPadProbeInfo* info, gpointer playable) {
    GstQuery* const query = GST_PAD_PROBE_INFO_QUERY(info);
    auto* const all = static_cast<GstCaps*>(playable);
    GstCaps* asked = nullptr;
    if (GST_QUERY_TYPE(query) == GST_QUERY_CAPS) {
        gst_query_parse_caps(query, &asked);
        GstCaps* const answer = asked == nullptr
                                    ? gst_caps_ref(all)
                                    : gst_caps_intersect_full(asked, all, GST_CAPS_INTERSECT_FIRST);
        gst_query_set_caps_result(query, answer);
        gst_caps_unref(answer);
        return GST_PAD_PROBE_HANDLED;
    }
    if (GST_QUERY_TYPE(query) != GST_QUERY_ACCEPT_CAPS) return GST_PAD_PROBE_OK;
    gst_query_parse_accept_caps(query, &asked);
    gst_query_set_accept_caps_result(query, gst_caps_is_subset(asked, all));
    return GST_PAD_PROBE_HANDLED;
}

}  // namespace

void AnswerForSink(GstElement* sink) {
    GstPad* const pad = gst_element_get_static_pad(sink, "sink");
    const auto questions =
        static_cast<GstPadProbeType>(GST_PAD_PROBE_TYPE_QUERY_DOWNSTREAM | GST_PAD_PROBE_TYPE_PUSH);
    GstCaps* const playable = gst_caps_from_string((std::string(kSinkCaps) + ",rate=[1,384000]").c_str());
    gst_pad_add_probe(pad, questions, Answer, playable,
                      [](gpointer caps) { gst_caps_unref(static_cast<GstCaps*>(caps)); });
    gst_object_unref(pad);
}

}  // namespace gstreamer
