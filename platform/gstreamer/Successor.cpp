#include "platform/gstreamer/Successor.h"

#include <utility>

#include "platform/gstreamer/Guard.h"

namespace gstreamer {
namespace {

using Owner = std::shared_ptr<Successor>;

void ReadOn(GstElement* playbin, Successor& successor) {
    const std::string path = successor.Take();
    if (path.empty()) return;
    gchar* const uri = gst_filename_to_uri(path.c_str(), nullptr);
    g_object_set(playbin, "uri", uri, nullptr);
    g_free(uri);
}

void OnSongRead(GstElement* playbin, gpointer owner) {
    Guarded(
        false,
        [&] {
            ReadOn(playbin, **static_cast<Owner*>(owner));
            return true;
        },
        [] {});
}

// The sink would put samples that are marked as no continuation where their times say; what stretches sound
// holds some of the song before back, so they would come after a gap.
void Continue(GstPadProbeInfo* info) {
    GstBuffer* const samples = gst_buffer_make_writable(GST_PAD_PROBE_INFO_BUFFER(info));
    GST_BUFFER_FLAG_UNSET(samples, GST_BUFFER_FLAG_DISCONT);
    GST_BUFFER_FLAG_UNSET(samples, GST_BUFFER_FLAG_RESYNC);
    GST_PAD_PROBE_INFO_DATA(info) = samples;
}

// What is not wished any more is cut off where it begins: for the sink the song ends there.
GstPadProbeReturn OnData(GstPad* /*pad*/, GstPadProbeInfo* info, gpointer owner) {
    if ((GST_PAD_PROBE_INFO_TYPE(info) & GST_PAD_PROBE_TYPE_BUFFER) != 0) {
        const bool is_first =
            Guarded(false, [&] { return (**static_cast<Owner*>(owner)).TakeFirstSamples(); }, [] {});
        if (is_first) Continue(info);
        return GST_PAD_PROBE_OK;
    }
    GstEvent* const event = GST_PAD_PROBE_INFO_EVENT(info);
    if (GST_EVENT_TYPE(event) != GST_EVENT_STREAM_START) return GST_PAD_PROBE_OK;
    Successor& successor = **static_cast<Owner*>(owner);
    const bool may_pass =
        Guarded(false, [&] { return successor.Taken() == nullptr || successor.Enter(); }, [] {});
    if (may_pass) return GST_PAD_PROBE_OK;
    gst_event_unref(event);
    GST_PAD_PROBE_INFO_DATA(info) = gst_event_new_eos();
    return GST_PAD_PROBE_OK;
}

}  // namespace

void Successor::Wish(std::string native_path, std::shared_ptr<EntryWish> entry) {
    const std::lock_guard lock(mutex_);
    wished_ = std::move(native_path);
    wished_entry_ = std::move(entry);
}

std::string Successor::Take() {
    const std::lock_guard lock(mutex_);
    if (!taken_.empty()) return {};
    taken_ = wished_;
    taken_entry_ = wished_entry_;
    return taken_;
}

std::shared_ptr<EntryWish> Successor::Taken() const {
    const std::lock_guard lock(mutex_);
    return taken_entry_;
}

std::string Successor::TakenPath() const {
    const std::lock_guard lock(mutex_);
    return taken_;
}

bool Successor::Enter() {
    const std::lock_guard lock(mutex_);
    entered_ = first_samples_ = wished_ == taken_;
    return entered_;
}

bool Successor::HasEntered() const {
    const std::lock_guard lock(mutex_);
    return entered_;
}

bool Successor::TakeFirstSamples() {
    const std::lock_guard lock(mutex_);
    return std::exchange(first_samples_, false);
}

std::shared_ptr<EntryWish> Successor::Settle() {
    const std::lock_guard lock(mutex_);
    wished_.clear();
    taken_.clear();
    wished_entry_.reset();
    entered_ = false;
    return std::exchange(taken_entry_, nullptr);
}

void LetFollow(GstElement* playbin, GstElement* sink, const std::shared_ptr<Successor>& successor) {
    const auto forget = [](gpointer owner, GClosure*) { delete static_cast<Owner*>(owner); };
    g_signal_connect_data(playbin, "about-to-finish", G_CALLBACK(OnSongRead), new Owner(successor), forget,
                          GConnectFlags{});
    GstPad* const pad = gst_element_get_static_pad(sink, "sink");
    const auto kinds =
        static_cast<GstPadProbeType>(GST_PAD_PROBE_TYPE_BUFFER | GST_PAD_PROBE_TYPE_EVENT_DOWNSTREAM);
    gst_pad_add_probe(pad, kinds, OnData, new Owner(successor),
                      [](gpointer owner) { delete static_cast<Owner*>(owner); });
    gst_object_unref(pad);
}

}  // namespace gstreamer
