// One file on its way to the speakers and the screen: what a device's worker does with GStreamer.
//
// Every call may take its time, and with a broken disk or sound server may never return; so only a worker
// thread makes them. Times are nanoseconds of the media. With no sound server the sound runs into nothing, in
// real time; who runs the pipeline may open it again once a server can be reached.
#pragma once

#include <gst/gst.h>

#include <array>
#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "platform/gstreamer/Entry.h"
#include "platform/gstreamer/Gain.h"
#include "platform/gstreamer/PictureWindow.h"
#include "platform/gstreamer/PipelineEvents.h"
#include "platform/gstreamer/Successor.h"

namespace gstreamer {

/// What is known of a file once it is ready.
struct MediaFacts {
    std::int64_t length = 0;
    double frames_per_second = 1000;  ///< pictures of a video; a millisecond of sound is a frame
    bool is_video = false;
};

class Pipeline final {
public:
    /// `wake` is called on any thread when there is an event to take. `gain` must outlive the pipeline's
    /// threads.
    Pipeline(std::shared_ptr<Gain> gain, std::function<void()> wake);
    ~Pipeline();
    Pipeline(const Pipeline&) = delete;
    Pipeline& operator=(const Pipeline&) = delete;

    /// Makes the file ready at its start, its picture in the window `parent` (0: nowhere). Only a regular
    /// file is opened. 0, or the number of the error. `silent` asks no sound server. Sound is made ready for
    /// the speed `rate`.
    int Open(const std::string& native_path, std::int64_t parent, bool silent, double rate);
    /// The speed that what was opened runs at until a jump; none when sound and pictures differ in it.
    std::optional<double> ReadyRate() const;
    void Play() { SetState(GST_STATE_PLAYING); }
    void Pause() { SetState(GST_STATE_PAUSED); }
    /// Goes to `position` and runs to `stop` (negative: the end) at `rate`, keeping the pitch. What is still
    /// to be heard of the old place is dropped.
    bool Seek(std::int64_t position, std::int64_t stop, double rate);
    /// The place in the media; -1 when it is not known now.
    std::int64_t Position() const;
    /// A length of 0 is one that is not known.
    MediaFacts Facts() const;
    /// Puts the picture into a place of the window, in pixels; it keeps its proportions there, with black
    /// beside it. True when it is seen in its new size only after the next jump, as while it is paused.
    bool PutPicture(const std::array<int, 4>& place);
    /// Lowers the sound to nothing. What was to be heard before this call is heard within the time returned.
    std::chrono::milliseconds FadeOut();
    PipelineEvent TakeEvent() { return events_->Take(); }
    bool IsSilent() const { return silent_; }

    /// What is to be heard after this without a gap, at the speed `rate`; empty for nothing. Sound only, and
    /// no MIDI file; nothing else is taken. Counts until the first of it goes to the speaker.
    void Follow(const std::string& native_path, double rate);
    /// What follows is being read already, so a jump would meet it.
    bool IsReadingOn() const { return successor_->Taken() != nullptr; }
    /// With the event Begun: what follows is what is heard.
    bool HasBeenFollowed() const { return successor_->HasEntered(); }
    /// From here on it is the file of this pipeline, whose path is returned.
    std::string BecomeFollower();

private:
    void Close();
    bool Build(const std::string& native_path, std::int64_t parent, bool silent, double rate);
    int Prepare(std::chrono::milliseconds patience);
    bool HasWorkingThread() const;
    /// Neither sound nor a length: a photograph, or nothing that can be played.
    bool IsStill() const;
    void SetState(GstState state);
    std::int64_t QueryPosition() const;
    GstElement* MakeSoundSink(bool silent);
    GstElement* MakeSoundBin(bool silent);
    GstElement* MakePictureSink(std::int64_t parent);
    void ShowPicture();
    void TakeMessages();
    static void Note(GstMessage* message, EventQueue& queue);
    static GstBusSyncReply OnMessage(GstBus* bus, GstMessage* message, void* events);

    std::shared_ptr<Gain> gain_;
    std::shared_ptr<EntryWish> entry_ = std::make_shared<EntryWish>();
    std::shared_ptr<Successor> successor_ = std::make_shared<Successor>();
    std::function<void()> wake_;
    // Of this try; a thread that reports later holds on to the one it knows.
    std::shared_ptr<EventQueue> events_;
    GstElement* playbin_ = nullptr;
    GstElement* picture_ = nullptr;  // owned by the playbin, as the next
    GstElement* sound_ = nullptr;
    std::unique_ptr<PictureWindow> window_;
    std::int64_t origin_ = 0;  // where the file's own count of time begins
    bool silent_ = false;
    bool may_be_followed_ = false;
};

/// Starts GStreamer; later calls wait for the first and do nothing more. False when it cannot start.
bool StartGStreamer();

/// Loads what the first song needs, so that it starts at once. May take a second.
void LoadElements();

/// Asks for a sound server; waits for the answer of one that is slow.
bool CanReachSoundServer();

}  // namespace gstreamer
