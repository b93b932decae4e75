// Writes down when a program and its decoders come to the calls that a start of a song consists of.
//
// Loaded in front of the libraries (LD_PRELOAD) by `bench/player.py BUILD stages`, so that the product holds
// nothing of it. One line a call, into the file that BRINDLEPOST_STAMPS names: nanoseconds of the monotonic
// clock, process, call, and what it was about.
#include <dlfcn.h>
#include <fcntl.h>
#include <gst/gst.h>
#include <sys/socket.h>
#include <unistd.h>
#include <xcb/xcb.h>

#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <string>
#include <string_view>

namespace {

constexpr int kHighNumber = 300;
constexpr std::size_t kHeadOfCommand = 12;
constexpr std::size_t kLongestMessage = 60'000;
constexpr long long kNanoseconds = 1'000'000'000;
constexpr int kXInputPress = 4;

int file = -1;

long long Now() {
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return now.tv_sec * kNanoseconds + now.tv_nsec;
}

void Stamp(std::string_view call, std::string_view about = {}) {
    if (file < 0) return;
    about = about.substr(0, 200);
    std::array<char, 400> line{};
    const int size = std::snprintf(line.data(), line.size(), "%lld\t%d\t%.*s\t%.*s\n", Now(), getpid(),
                                   static_cast<int>(call.size()), call.data(), static_cast<int>(about.size()),
                                   about.data());
    if (write(file, line.data(), static_cast<std::size_t>(size)) < 0) file = -1;
}

/// What the name stands for without this library.
template <typename Function>
Function* Next(Function* /*same*/, const char* name) {
    void* found = dlsym(RTLD_NEXT, name);
    // Plug-ins brought the sound client's library in, for themselves alone.
    if (found == nullptr) found = dlsym(dlopen("libpulse.so.0", RTLD_LAZY | RTLD_NOLOAD), name);
    return reinterpret_cast<Function*>(found);
}

/// The text of a command on its way to a decoder or of its answer, else nothing.
std::string_view TextOf(const void* bytes, std::size_t size) {
    if (size <= kHeadOfCommand || size > 4096) return {};
    std::uint32_t length = 0;
    std::memcpy(&length, static_cast<const char*>(bytes) + 8, sizeof length);
    if (length > size - kHeadOfCommand) return {};
    return {static_cast<const char*>(bytes) + kHeadOfCommand, length};
}

bool IsPress(const xcb_generic_event_t* event) {
    if (event == nullptr) return false;
    const int kind = event->response_type & 0x7f;
    if (kind != XCB_GE_GENERIC) return kind == XCB_BUTTON_PRESS;
    return reinterpret_cast<const xcb_ge_generic_event_t*>(event)->event_type == kXInputPress;
}

const char* NameOf(GstElement* element) {
    GstElementFactory* const factory = gst_element_get_factory(element);
    return factory == nullptr ? "" : GST_OBJECT_NAME(factory);
}

}  // namespace

extern "C" {

__attribute__((constructor)) void OpenStamps() {
    const char* const path = std::getenv("BRINDLEPOST_STAMPS");
    if (path == nullptr) return;
    const int low = open(path, O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0600);
    file = low < 0 ? -1 : fcntl(low, F_DUPFD_CLOEXEC, kHighNumber);
    if (low >= 0) close(low);
}

xcb_generic_event_t* xcb_wait_for_event(xcb_connection_t* display) {
    static auto* const next = Next(&xcb_wait_for_event, "xcb_wait_for_event");
    xcb_generic_event_t* const event = next(display);
    if (IsPress(event)) Stamp("press");
    return event;
}

xcb_void_cookie_t xcb_put_image(xcb_connection_t* display, uint8_t format, xcb_drawable_t drawable,
                                xcb_gcontext_t context, uint16_t width, uint16_t height, int16_t x, int16_t y,
                                uint8_t left, uint8_t depth, uint32_t size, const uint8_t* data) {
    static auto* const next = Next(&xcb_put_image, "xcb_put_image");
    Stamp("paint");
    return next(display, format, drawable, context, width, height, x, y, left, depth, size, data);
}

ssize_t send(int socket, const void* bytes, size_t size, int flags) {
    static auto* const next = Next(&send, "send");
    const std::string_view text = TextOf(bytes, size);
    if (!text.empty()) Stamp("send", text);
    return next(socket, bytes, size, flags);
}

ssize_t recv(int socket, void* bytes, size_t size, int flags) {
    static auto* const next = Next(&recv, "recv");
    const ssize_t got = next(socket, bytes, size, flags);
    if (got >= static_cast<ssize_t>(kHeadOfCommand) && size == kLongestMessage)
        Stamp("recv", TextOf(bytes, static_cast<std::size_t>(got)));
    return got;
}

int fsync(int descriptor) {
    static auto* const next = Next(&fsync, "fsync");
    Stamp("fsync");
    return next(descriptor);
}

int fdatasync(int descriptor) {
    static auto* const next = Next(&fdatasync, "fdatasync");
    Stamp("fdatasync");
    return next(descriptor);
}

GstElement* gst_element_factory_make(const gchar* factory, const gchar* name) {
    static auto* const next = Next(&gst_element_factory_make, "gst_element_factory_make");
    GstElement* const element = next(factory, name);
    Stamp("make", factory);
    return element;
}

GstStateChangeReturn gst_element_set_state(GstElement* element, GstState state) {
    static auto* const next = Next(&gst_element_set_state, "gst_element_set_state");
    const std::string about = std::string(NameOf(element)) + " " + gst_element_state_get_name(state);
    Stamp("state", about);
    const GstStateChangeReturn result = next(element, state);
    Stamp("in state", about);
    return result;
}

// Of the sound client's library, whose headers are not asked for here.
// NOLINTBEGIN(readability-identifier-naming)
int pa_context_connect(void* context, const char* server, int flags, const void* api) {
    static auto* const next = Next(&pa_context_connect, "pa_context_connect");
    Stamp("connect");
    return next(context, server, flags, api);
}

int pa_stream_connect_playback(void* stream, const char* device, const void* attributes, int flags,
                               const void* volume, void* with) {
    static auto* const next = Next(&pa_stream_connect_playback, "pa_stream_connect_playback");
    Stamp("stream");
    return next(stream, device, attributes, flags, volume, with);
}

int pa_stream_write(void* stream, const void* data, size_t bytes, void (*free_data)(void*), int64_t offset,
                    int seek) {
    static auto* const next = Next(&pa_stream_write, "pa_stream_write");
    Stamp("write");
    return next(stream, data, bytes, free_data, offset, seek);
}

void* pa_stream_cork(void* stream, int corked, void (*callback)(void*, int, void*), void* data) {
    static auto* const next = Next(&pa_stream_cork, "pa_stream_cork");
    Stamp(corked != 0 ? "cork" : "uncork");
    return next(stream, corked, callback, data);
}
// NOLINTEND(readability-identifier-naming)
}
