#include "platform/gstreamer/ReadyPlaybin.h"

#include <mutex>
#include <utility>

namespace gstreamer {
namespace {

std::mutex mutex;
GstElement* ready = nullptr;  // guarded by mutex

constexpr GstClockTime kPatience = 2 * GST_SECOND;
constexpr unsigned kPlaySound = 0x2;
// 64 samples of a wav.
constexpr const char* kSilence =
    "data:audio/x-wav;base64,UklGRmQAAABXQVZFZm10IBAAAAABAAEAQB8AAEAfAAABAAgAZGF0YUAAAACAgICAgICAgICAgICAgICA"
    "gICAgICAgICAgICAgICAgICAgICAgICAgICAgICAgICAgICAgICAgICAgICAgICA";

GstElement* Make() {
    GstElement* const playbin = gst_element_factory_make("playbin", nullptr);
    return playbin == nullptr ? nullptr : GST_ELEMENT(gst_object_ref_sink(playbin));
}

void Close(GstElement* playbin) {
    gst_element_set_state(playbin, GST_STATE_NULL);
    gst_object_unref(playbin);
}

bool HasPlayed(GstElement* playbin) {
    g_object_set(playbin, "uri", kSilence, "flags", kPlaySound, "audio-sink",
                 gst_element_factory_make("fakesink", nullptr), "video-sink",
                 gst_element_factory_make("fakesink", nullptr), nullptr);
    gst_element_set_state(playbin, GST_STATE_PAUSED);
    const bool played =
        gst_element_get_state(playbin, nullptr, nullptr, kPatience) == GST_STATE_CHANGE_SUCCESS;
    return gst_element_set_state(playbin, GST_STATE_NULL) == GST_STATE_CHANGE_SUCCESS && played;
}

bool IsWanted() {
    const std::lock_guard lock(mutex);
    return ready == nullptr;
}

}  // namespace

GstElement* ReadyPlaybin::Take() {
    {
        const std::lock_guard lock(mutex);
        if (ready != nullptr) return std::exchange(ready, nullptr);
    }
    return Make();
}

// Without the lock, so that a song need not wait for it.
void ReadyPlaybin::Prepare() {
    if (!IsWanted()) return;
    GstElement* const playbin = Make();
    if (playbin == nullptr) return;
    if (!HasPlayed(playbin)) return Close(playbin);
    const std::lock_guard lock(mutex);
    if (ready != nullptr) return Close(playbin);
    ready = playbin;
}

void ReadyPlaybin::Release() {
    const std::lock_guard lock(mutex);
    if (ready != nullptr) Close(std::exchange(ready, nullptr));
}

}  // namespace gstreamer
