#include "platform/gstreamer/SpareSink.h"

#include <mutex>
#include <string>
#include <utility>

#include "platform/gstreamer/Priority.h"

namespace gstreamer {
namespace {

// Two clients to the library, one and the same to a person who looks at the server's list.
constexpr const char* kOtherName = " ";

std::mutex mutex;
GstElement* spare = nullptr;  // guarded by mutex, as the next
bool has_other_name = false;  // the spare one, and so each new sink

void Close(GstElement* sink) {
    gst_element_set_state(sink, GST_STATE_NULL);
    gst_object_unref(g_object_is_floating(sink) ? gst_object_ref_sink(sink) : sink);
}

// The server remembers a level by the name of the program, whatever the connection is called.
void GiveOtherName(GstElement* sink) {
    gchar* usual = nullptr;
    g_object_get(sink, "client-name", &usual, nullptr);
    if (usual == nullptr) return;
    GstStructure* const facts =
        gst_structure_new("properties", "application.name", G_TYPE_STRING, usual, nullptr);
    g_object_set(sink, "client-name", (std::string(usual) + kOtherName).c_str(), "stream-properties", facts,
                 nullptr);
    gst_structure_free(facts);
    g_free(usual);
}

GstElement* Open(bool other_name) {
    GstElement* const sink = gst_element_factory_make("pulsesink", nullptr);
    if (sink == nullptr) return nullptr;
    if (other_name) GiveOtherName(sink);
    if (gst_element_set_state(sink, GST_STATE_READY) != GST_STATE_CHANGE_FAILURE) return sink;
    Close(sink);
    return nullptr;
}

bool HasOtherName() {
    const std::lock_guard lock(mutex);
    return has_other_name;
}

/// Opens a spare sink of another connection than the one that is dead. False when the server cannot be
/// reached.
bool Replace(bool dead_name) {
    const std::lock_guard lock(mutex);
    if (spare == nullptr) return false;
    if (has_other_name != dead_name) return true;
    GstElement* const next = Open(!dead_name);
    if (next == nullptr) return false;
    gst_object_ref_sink(next);
    // The new one is open first: the library's loop is never without a sink.
    Close(std::exchange(spare, next));
    has_other_name = !dead_name;
    Priority::RaiseClientLibrary();
    return true;
}

}  // namespace

void SpareSink::Keep() {
    const std::lock_guard lock(mutex);
    if (spare != nullptr) return;
    spare = Open(has_other_name);
    if (spare == nullptr) return;
    gst_object_ref_sink(spare);
    Priority::RaiseClientLibrary();
}

GstElement* SpareSink::Connect() {
    const bool other_name = HasOtherName();
    if (GstElement* const sink = Open(other_name)) return sink;
    return Replace(other_name) ? Open(!other_name) : nullptr;
}

void SpareSink::Release() {
    const std::lock_guard lock(mutex);
    if (spare != nullptr) Close(std::exchange(spare, nullptr));
}

}  // namespace gstreamer
