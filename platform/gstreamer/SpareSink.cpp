#include "platform/gstreamer/SpareSink.h"

#include <gst/gst.h>

#include <mutex>

#include "platform/gstreamer/Priority.h"

namespace gstreamer {
namespace {

std::mutex mutex;
GstElement* spare = nullptr;  // guarded by mutex

void Close(GstElement* sink) {
    gst_element_set_state(sink, GST_STATE_NULL);
    gst_object_unref(sink);
}

}  // namespace

// Sinks of one client name share a connection, also one that is dead since its server went; so the spare one
// has a name of its own.
void SpareSink::Keep() {
    const std::lock_guard lock(mutex);
    if (spare != nullptr) return;
    GstElement* const sink = gst_element_factory_make("pulsesink", nullptr);
    if (sink == nullptr) return;
    gst_object_ref_sink(sink);
    g_object_set(sink, "client-name", "Brindlepost (spare)", nullptr);
    if (gst_element_set_state(sink, GST_STATE_READY) == GST_STATE_CHANGE_FAILURE) return Close(sink);
    spare = sink;
    Priority::RaiseClientLibrary();
}

void SpareSink::Release() {
    const std::lock_guard lock(mutex);
    if (spare == nullptr) return;
    Close(spare);
    spare = nullptr;
}

}  // namespace gstreamer
