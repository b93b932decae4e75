#include "platform/gstreamer/Pipeline.h"

#include <fcntl.h>
#include <gst/video/videooverlay.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cmath>
#include <string_view>
#include <utility>

#include "base/MediaKinds.h"
#include "platform/gstreamer/Guard.h"
#include "platform/gstreamer/MciErrors.h"
#include "platform/gstreamer/MidiFile.h"
#include "platform/gstreamer/Playout.h"
#include "platform/gstreamer/Priority.h"
#include "platform/gstreamer/SoundClock.h"
#include "platform/gstreamer/SoundStore.h"
#include "platform/gstreamer/SpareSink.h"

namespace gstreamer {
namespace {

// A jump is made within this time or given up.
constexpr std::chrono::milliseconds kReadyTimeout{5000};
// A file that is not ready at its first try gets a second; together they stay below the 5 seconds of opening.
constexpr std::array kPatience = {std::chrono::milliseconds(1500), std::chrono::milliseconds(3000)};
constexpr std::chrono::milliseconds kGlance{25};
// A busy machine keeps a thread that is about to work from it for a tenth of a second.
constexpr int kIdleGlances = 12;
// Of the playbin's flags: pictures and sound, nothing else.
constexpr unsigned kPlayPicturesAndSound = 0x3;
constexpr char kTempo[] = "tempo";
// A song is played by three percent faster as a rule. Looking for where stretched pieces meet best costs as
// much as all else that is done for it; so near its own speed the pieces are longer than the element's own.
constexpr double kNear = 0.1;
constexpr unsigned kStride = 30;  // milliseconds
constexpr unsigned kStrideNear = 60;
constexpr double kOverlap = 0.2;  // of a piece
constexpr double kOverlapNear = 0.1;
// Sound that is decoded and has no level yet, in nanoseconds: a busy machine holds decoders up for a tenth of
// a second and more.
constexpr std::uint64_t kDecodedAhead = GST_SECOND;
constexpr double kUsualFrameRate = 25;
// Its thread hands the samples to the sink.
constexpr const char* kFeeder = "sound-ahead";
constexpr const char* kScalingSink = "xvimagesink";

void SetInt(GstElement* element, const char* property, std::int64_t value) {
    g_object_set(element, property, static_cast<gint64>(value), nullptr);
}

// Opening a pipe would wait for its writer, so the file is opened without waiting and looked at first.
int CheckFile(const std::string& native_path) {
    if (native_path.empty()) return kFileNotFound;
    const int file = open(native_path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
    if (file < 0) return errno == ENOENT || errno == ENOTDIR ? kFileNotFound : kFileRead;
    struct stat facts{};
    const bool is_regular = fstat(file, &facts) == 0 && S_ISREG(facts.st_mode);
    close(file);
    if (!is_regular) return kFileRead;
    return facts.st_size == 0 ? kInvalidFile : kNoError;
}

std::int64_t LengthInside(std::int64_t length, const Recording& recording) {
    const std::int64_t end = recording.end == 0 ? length : std::min(length, recording.end);
    return std::max<std::int64_t>(end - recording.begin, 0);
}

// A sink of pictures for a song that has none is closed again before the song can start, which takes as long
// as its thread sleeps between two glances at the display, a twentieth of a second.
bool IsSoundByName(const std::string& native_path) {
    return base::IsMediaFile(native_path) && !base::IsVideoFile(native_path);
}

double FrameRateOf(GstElement* picture) {
    GstPad* const pad = gst_element_get_static_pad(picture, "sink");
    GstCaps* const caps = gst_pad_get_current_caps(pad);
    int numerator = 0;
    int denominator = 1;
    if (caps != nullptr) {
        const GstStructure* const facts = gst_caps_get_structure(caps, 0);
        gst_structure_get_fraction(facts, "framerate", &numerator, &denominator);
        if (numerator == 0) gst_structure_get_fraction(facts, "max-framerate", &numerator, &denominator);
        gst_caps_unref(caps);
    }
    gst_object_unref(pad);
    return numerator > 0 && denominator > 0 ? static_cast<double>(numerator) / denominator : kUsualFrameRate;
}

/// Something has come in.
bool HasFormat(GstElement* element) {
    GstPad* const pad = gst_element_get_static_pad(element, "sink");
    const bool has_format = gst_pad_has_current_caps(pad) != FALSE;
    gst_object_unref(pad);
    return has_format;
}

bool CanBeUsed(GstElement* sink) {
    if (sink == nullptr) return false;
    if (gst_element_set_state(sink, GST_STATE_READY) != GST_STATE_CHANGE_FAILURE) return true;
    gst_element_set_state(sink, GST_STATE_NULL);
    gst_object_unref(gst_object_ref_sink(sink));
    return false;
}

// The other sink leaves the size to what comes before it, so a picture that stands still keeps its old one.
bool ScalesItself(GstElement* picture) {
    return std::string_view(GST_OBJECT_NAME(gst_element_get_factory(picture))) == kScalingSink;
}

bool HasStartedTask(GstElement* element) {
    bool started = false;
    GST_OBJECT_LOCK(element);
    for (const GList* item = element->pads; item != nullptr && !started; item = item->next) {
        GstPad* const pad = GST_PAD(item->data);
        GST_OBJECT_LOCK(pad);
        started = GST_PAD_TASK(pad) != nullptr && gst_task_get_state(GST_PAD_TASK(pad)) == GST_TASK_STARTED;
        GST_OBJECT_UNLOCK(pad);
    }
    GST_OBJECT_UNLOCK(element);
    return started;
}

// The parser of MIDI files takes part only where it is sure to come out of it again.
void RefuseMidi(GstElement* playbin) {
    const auto refuse = +[](GstElement*, GstElement* element, gpointer) {
        const GstElementFactory* const factory = gst_element_get_factory(element);
        if (factory == nullptr || g_strcmp0(GST_OBJECT_NAME(factory), "midiparse") != 0) return;
        GstPad* const pad = gst_element_get_static_pad(element, "sink");
        gst_pad_set_activate_function(pad, [](GstPad*, GstObject*) -> gboolean { return FALSE; });
        gst_object_unref(pad);
    };
    g_signal_connect(playbin, "element-setup", G_CALLBACK(refuse), nullptr);
}

// On the thread that the message is about.
void SetPriority(GstMessage* message) {
    GstStreamStatusType type = GST_STREAM_STATUS_TYPE_CREATE;
    GstElement* owner = nullptr;
    gst_message_parse_stream_status(message, &type, &owner);
    if (owner == nullptr || std::string_view(GST_OBJECT_NAME(owner)) != kFeeder) return;
    if (type == GST_STREAM_STATUS_TYPE_ENTER) Priority::Raise();
    if (type == GST_STREAM_STATUS_TYPE_LEAVE) Priority::Restore();
}

void StretchFor(GstElement* sound, double rate) {
    const bool is_near = std::abs(rate - 1) <= kNear;
    GstElement* const tempo = gst_bin_get_by_name(GST_BIN(sound), kTempo);
    g_object_set(tempo, "stride", is_near ? kStrideNear : kStride, "overlap",
                 is_near ? kOverlapNear : kOverlap, nullptr);
    gst_object_unref(tempo);
}

}  // namespace

// The sinks of pictures put their own error handler in and take it out again, so the one for all is there
// before them.
bool StartGStreamer() {
    static const bool started = [] {
        PictureWindow::IgnoreErrors();
        return gst_init_check(nullptr, nullptr, nullptr) != FALSE;
    }();
    return started;
}

void LoadElements() {
    if (!StartGStreamer()) return;
    for (const char* name : {"playbin", "pulsesink", "scaletempo", "audioconvert", "audioresample", "filesrc",
                             "mpegaudioparse", "avdec_mp3", "ximagesink"}) {
        GstElement* const element = gst_element_factory_make(name, nullptr);
        if (element == nullptr) continue;
        gst_object_ref_sink(element);
        gst_element_set_state(element, GST_STATE_READY);
        gst_element_set_state(element, GST_STATE_NULL);
        gst_object_unref(element);
    }
    SpareSink::Keep();
    Priority::RaiseClientLibrary();
}

bool CanReachSoundServer() {
    GstElement* const sink = gst_element_factory_make("pulsesink", nullptr);
    if (!CanBeUsed(sink)) return false;
    gst_object_ref_sink(sink);
    gst_element_set_state(sink, GST_STATE_NULL);
    gst_object_unref(sink);
    return true;
}

Pipeline::Pipeline(std::shared_ptr<Gain> gain, std::function<void()> wake)
    : gain_(std::move(gain)), wake_(std::move(wake)), events_(std::make_shared<EventQueue>(wake_)) {}

Pipeline::~Pipeline() {
    Close();
}

void Pipeline::Close() {
    if (playbin_ == nullptr) return;
    gst_element_set_state(playbin_, GST_STATE_NULL);
    gst_object_unref(playbin_);
    playbin_ = picture_ = sound_ = nullptr;
    window_.reset();
}

int Pipeline::Open(const std::string& native_path, std::int64_t parent, bool silent, double rate) {
    if (const int error = CheckFile(native_path)) return error;
    if (!StartGStreamer()) return kHardware;
    int error = kNotReady;
    for (const auto patience : kPatience) {
        if (!Build(native_path, parent, silent, rate)) return kHardware;
        error = Prepare(patience);
        if (error != kNotReady) break;
    }
    origin_ = error == kNoError ? std::max<std::int64_t>(QueryPosition(), 0) : 0;
    if (error == kNoError && IsStill()) error = kInvalidFile;
    if (error == kNoError && Facts().is_video) ShowPicture();
    return error == kNotReady ? kInvalidFile : error;
}

bool Pipeline::Build(const std::string& native_path, std::int64_t parent, bool silent, double rate) {
    Close();
    entry_ = std::make_shared<EntryWish>();
    entry_->recording = RecordingOfFile(native_path);
    entry_->rate = rate;
    successor_ = std::make_shared<Successor>();
    playbin_ = gst_element_factory_make("playbin", nullptr);
    if (playbin_ == nullptr) return false;
    gst_object_ref_sink(playbin_);
    gchar* const uri = gst_filename_to_uri(native_path.c_str(), nullptr);
    picture_ = MakePictureSink(IsSoundByName(native_path) ? 0 : parent);
    sound_ = MakeSoundBin(silent);
    StretchFor(sound_, rate);
    g_object_set(playbin_, "uri", uri, "flags", kPlayPicturesAndSound, "audio-sink", sound_, "video-sink",
                 picture_, nullptr);
    g_free(uri);
    may_be_followed_ = !IsWholeMidiFile(native_path);
    if (may_be_followed_) RefuseMidi(playbin_);
    TakeMessages();
    return true;
}

// A thread of the sound client may still be reporting while the pipeline closes, or while the next try runs.
void Pipeline::TakeMessages() {
    using Owner = std::shared_ptr<EventQueue>;
    events_ = std::make_shared<EventQueue>(wake_);
    GstBus* const bus = gst_element_get_bus(playbin_);
    gst_bus_set_sync_handler(bus, OnMessage, new Owner(events_),
                             [](gpointer events) { delete static_cast<Owner*>(events); });
    gst_object_unref(bus);
}

void Pipeline::Follow(const std::string& native_path, double rate) {
    const bool can_follow = !native_path.empty() && may_be_followed_ && CheckFile(native_path) == kNoError &&
                            !IsWholeMidiFile(native_path);
    auto entry = std::make_shared<EntryWish>();
    if (can_follow) entry->recording = RecordingOfFile(native_path);
    entry->rate = rate;
    successor_->Wish(can_follow ? native_path : std::string(), std::move(entry));
}

std::string Pipeline::BecomeFollower() {
    std::string path = successor_->TakenPath();
    if (auto entry = successor_->Settle()) entry_ = std::move(entry);
    origin_ = entry_->recording.begin;
    return path;
}

// An error of a file can get lost between the threads of a playbin; then none of them works and nothing is
// ready.
int Pipeline::Prepare(std::chrono::milliseconds patience) {
    events_->Clear();
    gain_->Snap();
    SetState(GST_STATE_PAUSED);
    int idle = 0;
    for (auto passed = kGlance; passed <= patience && idle < kIdleGlances; passed += kGlance) {
        const int error = events_->WaitUntilReady(kGlance);
        if (error != kNotReady) return error;
        idle = HasWorkingThread() ? 0 : idle + 1;
    }
    return kNotReady;
}

bool Pipeline::HasWorkingThread() const {
    GstIterator* const elements = gst_bin_iterate_recurse(GST_BIN(playbin_));
    const auto stop_at_working = [](const GValue* item, GValue* found, gpointer) -> gboolean {
        if (!HasStartedTask(GST_ELEMENT(g_value_get_object(item)))) return TRUE;
        g_value_set_boolean(found, TRUE);
        return FALSE;
    };
    GValue found = G_VALUE_INIT;
    g_value_init(&found, G_TYPE_BOOLEAN);
    // A list that changes while it is walked is the work of a thread.
    const GstIteratorResult result = gst_iterator_fold(elements, stop_at_working, &found, nullptr);
    gst_iterator_free(elements);
    return result == GST_ITERATOR_RESYNC || g_value_get_boolean(&found) != FALSE;
}

bool Pipeline::IsStill() const {
    return !HasFormat(sound_) && Facts().length <= 0;
}

std::optional<double> Pipeline::ReadyRate() const {
    return HasFormat(picture_) ? std::nullopt : std::optional<double>(entry_->rate);
}

bool Pipeline::Seek(std::int64_t position, std::int64_t stop, double rate) {
    entry_->rate = 1;
    events_->Clear();
    gain_->Snap();
    StretchFor(sound_, rate);
    const auto flags = static_cast<GstSeekFlags>(GST_SEEK_FLAG_FLUSH | GST_SEEK_FLAG_ACCURATE);
    const bool sought =
        gst_element_seek(playbin_, rate, GST_FORMAT_TIME, flags, GST_SEEK_TYPE_SET, origin_ + position,
                         stop < 0 ? GST_SEEK_TYPE_NONE : GST_SEEK_TYPE_SET,
                         stop < 0 ? stop : origin_ + stop) != FALSE;
    return sought && events_->WaitUntilReady(kReadyTimeout) == kNoError;
}

std::chrono::milliseconds Pipeline::FadeOut() {
    constexpr std::chrono::duration<double> kRamp(Gain::kLongestRampSeconds);
    gain_->SetLeft(0);
    gain_->SetRight(0);
    return std::chrono::ceil<std::chrono::milliseconds>(gain_->Delay() + kRamp);
}

std::int64_t Pipeline::Position() const {
    const std::int64_t position = QueryPosition();
    return position < 0 ? position : std::max<std::int64_t>(position - origin_, 0);
}

std::int64_t Pipeline::QueryPosition() const {
    gint64 position = -1;
    return gst_element_query_position(playbin_, GST_FORMAT_TIME, &position) != FALSE ? position : -1;
}

MediaFacts Pipeline::Facts() const {
    MediaFacts facts;
    gint64 length = 0;
    if (gst_element_query_duration(playbin_, GST_FORMAT_TIME, &length) != FALSE)
        facts.length = LengthInside(length, entry_->recording);
    facts.is_video = HasFormat(picture_);
    if (facts.is_video) facts.frames_per_second = FrameRateOf(picture_);
    return facts;
}

bool Pipeline::PutPicture(const std::array<int, 4>& place) {
    if (window_ == nullptr || place[2] <= 0 || place[3] <= 0) return false;
    window_->Put(place);
    gst_video_overlay_expose(GST_VIDEO_OVERLAY(picture_));
    return !ScalesItself(picture_);
}

// The first picture was drawn when nothing could be seen yet.
void Pipeline::ShowPicture() {
    if (window_ == nullptr) return;
    window_->Show();
    gst_video_overlay_expose(GST_VIDEO_OVERLAY(picture_));
}

void Pipeline::SetState(GstState state) {
    if (gst_element_set_state(playbin_, state) == GST_STATE_CHANGE_FAILURE)
        events_->Add(PipelineEvent::Broken);
}

GstElement* Pipeline::MakeSoundSink(bool silent) {
    GstElement* sink = silent ? nullptr : gst_element_factory_make("pulsesink", nullptr);
    if (sink != nullptr) {
        const std::chrono::milliseconds store = SoundStore::Length();
        SetInt(sink, "buffer-time", std::chrono::microseconds(store).count());
        SetInt(sink, "latency-time", std::chrono::microseconds(SoundStore::kPiece).count());
        SetInt(sink, "alignment-threshold", kTimesMayBeOff);
        IgnoreLeapsOf(sink);
    }
    silent_ = !CanBeUsed(sink);
    if (!silent_) {
        LevelAtSink(sink, gain_, [length = SoundStore::Length()] { SoundStore::RanEmpty(length); });
        SpareSink::Keep();
        return sink;
    }
    sink = gst_element_factory_make("fakesink", nullptr);
    g_object_set(sink, "sync", TRUE, nullptr);
    return sink;
}

GstElement* Pipeline::MakeSoundBin(bool silent) {
    GstElement* const bin = gst_bin_new("sound");
    GstElement* const tempo = gst_element_factory_make("scaletempo", kTempo);
    GstElement* const convert = gst_element_factory_make("audioconvert", nullptr);
    GstElement* const resample = gst_element_factory_make("audioresample", nullptr);
    GstElement* const stereo = gst_element_factory_make("capsfilter", nullptr);
    GstElement* const ahead = gst_element_factory_make("queue", kFeeder);
    GstElement* const sink = MakeSoundSink(silent);
    GstCaps* const caps = gst_caps_from_string(
        "audio/x-raw,format=F32LE,layout=interleaved,channels=2,channel-mask=(bitmask)3");
    g_object_set(stereo, "caps", caps, nullptr);
    gst_caps_unref(caps);
    g_object_set(ahead, "max-size-time", kDecodedAhead, "max-size-bytes", 0U, "max-size-buffers", 0U,
                 "silent", TRUE, nullptr);
    gst_bin_add_many(GST_BIN(bin), tempo, convert, resample, stereo, ahead, sink, nullptr);
    gst_element_link_many(tempo, convert, resample, stereo, ahead, sink, nullptr);
    GstPad* const entry = gst_element_get_static_pad(tempo, "sink");
    TakeAs(entry, entry_, successor_);
    LetFollow(playbin_, sink, successor_);
    gst_element_add_pad(bin, gst_ghost_pad_new("sink", entry));
    gst_object_unref(entry);
    return bin;
}

GstElement* Pipeline::MakePictureSink(std::int64_t parent) {
    window_ = parent == 0 ? nullptr : PictureWindow::In(parent);
    GstElement* sink = window_ == nullptr ? nullptr : gst_element_factory_make(kScalingSink, nullptr);
    if (window_ != nullptr && !CanBeUsed(sink)) {
        sink = gst_element_factory_make("ximagesink", nullptr);
        if (!CanBeUsed(sink)) sink = nullptr;
    }
    if (sink == nullptr) {
        window_.reset();
        sink = gst_element_factory_make("fakesink", nullptr);
        g_object_set(sink, "sync", TRUE, nullptr);
        return sink;
    }
    g_object_set(sink, "force-aspect-ratio", TRUE, nullptr);
    gst_video_overlay_set_window_handle(GST_VIDEO_OVERLAY(sink), window_->Handle());
    // The sink draws again what was covered, and hears of the window's sizes.
    gst_video_overlay_handle_events(GST_VIDEO_OVERLAY(sink), TRUE);
    return sink;
}

void Pipeline::Note(GstMessage* message, EventQueue& queue) {
    switch (GST_MESSAGE_TYPE(message)) {
        case GST_MESSAGE_EOS:
            queue.Add(PipelineEvent::Ended);
            break;
        case GST_MESSAGE_ERROR:
            queue.Add(PipelineEvent::Broken);
            break;
        case GST_MESSAGE_DURATION_CHANGED:
            queue.Add(PipelineEvent::LengthChanged);
            break;
        case GST_MESSAGE_ASYNC_DONE:
            queue.Add(PipelineEvent::Ready);
            break;
        case GST_MESSAGE_STREAM_START:
            queue.Add(PipelineEvent::Begun);
            break;
        case GST_MESSAGE_STREAM_STATUS:
            SetPriority(message);
            break;
        default:
            break;
    }
}

// No message needs the bus: the few that count become events where they are made.
GstBusSyncReply Pipeline::OnMessage(GstBus* /*bus*/, GstMessage* message, void* events) {
    EventQueue& queue = **static_cast<std::shared_ptr<EventQueue>*>(events);
    Guarded(
        false,
        [message, &queue] {
            Note(message, queue);
            return true;
        },
        [&queue] { queue.Fail(); });
    gst_message_unref(message);
    return GST_BUS_DROP;
}

}  // namespace gstreamer
