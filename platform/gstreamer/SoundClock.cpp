#include "platform/gstreamer/SoundClock.h"

#include <gst/audio/audio.h>

#include <memory>
#include <mutex>
#include <utility>

#include "platform/gstreamer/Guard.h"

namespace gstreamer {
namespace {

// More than the jitter of a busy machine, and nothing beside a leap, which is of years.
constexpr GstClockTime kSlack = GST_SECOND;

GstClockTime Now() {
    return static_cast<GstClockTime>(g_get_monotonic_time()) * GST_USECOND;
}

class Answers final {
public:
    Answers(const GstAudioClock& clock, std::function<bool()> is_running)
        : func_(clock.func),
          user_data_(clock.user_data),
          forget_(clock.destroy_notify),
          is_running_(std::move(is_running)) {}
    ~Answers() {
        if (forget_ != nullptr) forget_(user_data_);
    }
    Answers(const Answers&) = delete;
    Answers& operator=(const Answers&) = delete;

    static GstClockTime Next(GstClock* clock, gpointer self) {
        auto& answers = *static_cast<Answers*>(self);
        return Guarded(
            GST_CLOCK_TIME_NONE, [&] { return answers.Judge(answers.func_(clock, answers.user_data_)); },
            [] {});
    }
    static void Free(gpointer self) { const std::unique_ptr<Answers> answers(static_cast<Answers*>(self)); }

private:
    // No answer lets the clock repeat what it told last.
    GstClockTime Judge(GstClockTime answer) {
        const bool is_running = is_running_();
        const std::lock_guard lock(mutex_);
        const GstClockTime now = Now();
        const GstClockTime passed = now - std::exchange(asked_at_, now);
        const bool was_running = std::exchange(was_running_, is_running);
        if (!GST_CLOCK_TIME_IS_VALID(answer)) return answer;
        if (answer <= time_ + (now - told_at_) + kSlack)
            time_ = answer;
        else if (is_running && was_running)
            time_ += passed;
        told_at_ = now;
        return time_;
    }

    const GstAudioClockGetTimeFunc func_;
    const gpointer user_data_;
    const GDestroyNotify forget_;
    const std::function<bool()> is_running_;
    std::mutex mutex_;
    GstClockTime time_ = 0;
    GstClockTime told_at_ = Now();
    GstClockTime asked_at_ = told_at_;
    bool was_running_ = false;
};

bool IsStarted(GstAudioBaseSink* sink) {
    GstAudioRingBuffer* const buffer = sink->ringbuffer;
    return buffer != nullptr && g_atomic_int_get(&buffer->state) == GST_AUDIO_RING_BUFFER_STATE_STARTED;
}

}  // namespace

void IgnoreLeaps(GstClock* clock, std::function<bool()> is_running) {
    if (clock == nullptr || !GST_IS_AUDIO_CLOCK(clock)) return;
    GstAudioClock& sound = *GST_AUDIO_CLOCK(clock);
    sound.user_data = std::make_unique<Answers>(sound, std::move(is_running)).release();
    sound.func = &Answers::Next;
    sound.destroy_notify = &Answers::Free;
}

void IgnoreLeapsOf(GstElement* sink) {
    if (sink == nullptr || !GST_IS_AUDIO_BASE_SINK(sink)) return;
    GstAudioBaseSink* const base = GST_AUDIO_BASE_SINK(sink);
    IgnoreLeaps(base->provided_clock, [base] { return IsStarted(base); });
}

}  // namespace gstreamer
