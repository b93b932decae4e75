#include "platform/gstreamer/Worker.h"

#include <algorithm>
#include <optional>
#include <thread>
#include <utility>

#include "platform/gstreamer/MciErrors.h"
#include "platform/gstreamer/Threads.h"

namespace gstreamer {
namespace {

using Lock = std::unique_lock<std::mutex>;

constexpr double kNormalSpeed = 1000;
// The speeds that sound can be stretched to and still be recognised.
constexpr double kSlowest = 0.03;
constexpr double kFastest = 8;
// A player tells the speed of a song just after it has started it, and then that the sound is off. Waiting
// for that saves a jump, and lets nothing of a muted song be heard.
constexpr std::chrono::milliseconds kSpeedFollows{4};
constexpr std::chrono::milliseconds kLevelFollows{1};
// Where there is a window, the last that is told at a start is the place of the picture in it. A player that
// is held up for longer than this starts with what it told.
constexpr std::chrono::milliseconds kPlaceFollows{200};
constexpr std::chrono::milliseconds kSettling{150};
// How often a song without a sound server looks for one: often while it may be a restart, then seldom.
constexpr std::chrono::milliseconds kServerGlance{300};
constexpr std::chrono::milliseconds kSeldomGlance{3000};
constexpr int kGlancesOfARestart = 100;
constexpr std::chrono::seconds kSoonAgain{2};
// What follows a song plays for so long before somebody opens it, and after that is not wanted. A player that
// is held up opens it late; one that closed the song opens at once.
constexpr std::chrono::seconds kFollowerIsOpened{2};
// A player that opened it plays it, and tells speed and levels, within these.
constexpr std::chrono::milliseconds kFollowerIsPlayed{500};
constexpr std::chrono::milliseconds kFollowersSpeed{100};
constexpr std::chrono::milliseconds kFollowersLevel{20};

double RateOf(int speed) {
    return std::clamp(speed / kNormalSpeed, kSlowest, kFastest);
}

// Brings one pipeline to what is wished.
class Worker final {
public:
    explicit Worker(const std::shared_ptr<DeviceShare>& share)
        : weak_share_(share),
          share_(*share),
          request_(share->request),
          pipeline_(share->gain, [weak = std::weak_ptr(share)] { Wake(weak); }) {}

    void Run() {
        if (!Open()) return;
        Lock lock(share_.mutex);
        while (!share_.closing) {
            Wait(lock);
            if (share_.closing) break;
            if (share_.follower.taken) TakeOver(lock);
            if (IsFollowed() && !HasDroppedFollower(lock)) continue;
            WaitForStart(lock);
            TakeEvents(lock);
            GoOnAloud(lock);
            Fulfil(lock);
            LookForServer();
        }
        const bool is_heard =
            IsFollowed() || share_.follower.taken || (playing_ && share_.wish.playing && !ended_);
        lock.unlock();
        if (is_heard) EndSoftly();
    }

private:
    // A song that is closed while it is heard is heard for as long as it was told to, and does not click.
    void EndSoftly() { std::this_thread::sleep_for(pipeline_.FadeOut()); }

    static void Wake(const std::weak_ptr<DeviceShare>& weak) {
        const auto share = weak.lock();
        if (!share) return;
        const std::lock_guard lock(share->mutex);
        share->event = true;
        share->changed.notify_all();
    }

    bool Open() {
        const int error = OpenPipeline(false, RateOf(request_.likely_speed));
        const MediaFacts facts = error == kNoError ? pipeline_.Facts() : MediaFacts();
        const std::lock_guard lock(share_.mutex);
        share_.facts = facts;
        share_.open_result = error;
        share_.opened.notify_all();
        NoteLevels();
        if (error != kNoError) return false;
        const std::optional<double> ready = pipeline_.ReadyRate();
        rate_ = ready.value_or(1);
        is_rate_everywhere_ = ready.has_value();
        return true;
    }

    int OpenPipeline(bool silent, double rate = 1) {
        return pipeline_.Open(request_.native_path, request_.parent, silent, rate);
    }

    // The sound of a jump or a start comes a little later than was asked; so the place is looked at once
    // more.
    void Wait(Lock& lock) {
        const auto is_needed = [this] { return IsNeeded(); };
        if (IsFollowed()) {
            share_.changed.wait_until(lock, follower_until_, is_needed);
            return;
        }
        if (std::exchange(settling_, false) && !share_.changed.wait_for(lock, kSettling, is_needed)) return;
        if (pipeline_.IsSilent() && !ended_) {
            share_.changed.wait_for(lock, glances_ < kGlancesOfARestart ? kServerGlance : kSeldomGlance,
                                    is_needed);
        } else {
            share_.changed.wait(lock, is_needed);
        }
    }

    bool IsNeeded() const {
        const Wish& wish = share_.wish;
        return share_.closing || share_.event || share_.place_wanted ||
               (share_.server_found && wish.playing) || wish.next != next_ || share_.follower.taken ||
               (IsFollowed() && share_.follower.refused) || wish.jump != jump_ || wish.stop != stop_ ||
               (wish.playing && IsOtherRate(wish)) || wish.playing != playing_ || wish.put != put_;
    }

    void WaitForStart(Lock& lock) {
        if (!share_.wish.playing || started_) return;
        if (request_.parent != 0) {
            share_.changed.wait_for(lock, kPlaceFollows,
                                    [this] { return share_.wish.put > 0 || share_.closing; });
            return;
        }
        share_.changed.wait_for(lock, kSpeedFollows,
                                [this] { return share_.wish.speed_told || share_.closing; });
        share_.changed.wait_for(lock, kLevelFollows, [this] { return share_.closing; });
    }

    void TakeEvents(Lock& lock) {
        share_.event = false;
        for (PipelineEvent event = pipeline_.TakeEvent(); event != PipelineEvent::None;
             event = pipeline_.TakeEvent()) {
            if (event == PipelineEvent::Ended) HasEnded();
            if (event == PipelineEvent::Broken) GoOn(lock);
            if (event == PipelineEvent::LengthChanged) Measure(lock);
            if (event == PipelineEvent::Begun && pipeline_.HasBeenFollowed()) LeaveToFollower(lock);
        }
    }

    bool IsFollowed() const { return !share_.follower.path.empty(); }

    /// For the device the song is over; the pipeline plays on.
    void LeaveToFollower(Lock& lock) {
        lock.unlock();
        const std::string path = pipeline_.BecomeFollower();
        const MediaFacts facts = pipeline_.Facts();
        lock.lock();
        share_.follower = {.path = path, .facts = facts, .refused = false, .taken = false};
        follower_until_ = Anchor::Clock::now() + kFollowerIsOpened;
        HasEnded();
        playing_ = false;
    }

    /// True when the follower is not wanted, or no longer; its song is at its end then.
    bool HasDroppedFollower(Lock& lock) {
        const Wish& wish = share_.wish;
        const bool is_unwanted = share_.follower.refused || wish.playing || wish.jump != jump_;
        if (is_unwanted || Anchor::Clock::now() >= follower_until_) {
            DropFollower(lock);
            return true;
        }
        share_.event = share_.place_wanted = false;
        put_ = wish.put;
        next_ = wish.next;
        return false;
    }

    void DropFollower(Lock& lock) {
        share_.follower = {};
        lock.unlock();
        pipeline_.Pause();
        OpenPipeline(pipeline_.IsSilent());
        lock.lock();
        put_ = next_ = 0;
    }

    /// The device is that of the follower, which is heard already. What a player tells at a start is waited
    /// for.
    void TakeOver(Lock& lock) {
        request_ = share_.request;
        const auto tells = [&](std::chrono::milliseconds patience, const bool& told) {
            share_.changed.wait_for(lock, patience, [&] { return told || share_.closing; });
        };
        tells(kFollowerIsPlayed, share_.wish.playing);
        tells(kFollowersSpeed, share_.wish.speed_told);
        share_.changed.wait_for(lock, kFollowersLevel, [this] { return share_.closing; });
        share_.follower = {};
        OpenLevels();
        playing_ = started_ = true;
        ended_ = false;
        stop_ = -1;
        next_ = 0;
        if (share_.wish.playing) return;
        // Nobody played it: it waits at its start.
        ++share_.wish.jump;
        share_.wish.jump_to = 0;
    }

    // A song's levels begin as they are in every new one, unless the player tells others.
    void OpenLevels() {
        if (!std::exchange(share_.levels_open, false)) return;
        share_.gain->SetLeft(Gain::kFull);
        share_.gain->SetRight(Gain::kFull);
    }

    void HasEnded() {
        if (share_.wish.jump != jump_) return;
        if (stop_ < 0) LearnLength();
        share_.mode = Mode::Stopped;
        share_.wish.playing = false;
        share_.anchor = {.position = stop_ < 0 ? share_.facts.length : stop_, .at = {}, .running = false};
        share_.last_told = share_.anchor.position;
        ended_ = true;
    }

    // A file that did not tell its length ends where it got to, one frame behind its start at least.
    void LearnLength() {
        std::int64_t& length = share_.facts.length;
        if (length <= 0) length = LikelyPlace();
        length = std::max(length, static_cast<std::int64_t>(1e9 / share_.facts.frames_per_second));
    }

    // The sound server is gone, or the file cannot be read on: the song runs on, without sound where there is
    // no server, where it broke the song a moment ago, or as long as the song does not play; or it ends.
    void GoOn(Lock& lock) {
        if (pipeline_.IsSilent()) return HasEnded();
        const std::int64_t place = LikelyPlace();
        const auto now = Anchor::Clock::now();
        const bool again = now - std::exchange(broken_at_, now) < kSoonAgain;
        const bool waits = !share_.wish.playing;
        lock.unlock();
        const int error = OpenPipeline(again || waits);
        const bool goes_on = error == kNoError && pipeline_.Seek(place, stop_, rate_);
        if (goes_on && playing_) pipeline_.Play();
        lock.lock();
        if (!goes_on) HasEnded();
        put_ = next_ = 0;
        share_.place_wanted = true;
    }

    // A server that does not answer holds up the thread that asks it, and nothing else.
    void LookForServer() {
        if (!pipeline_.IsSilent() || ended_ || share_.looking || share_.server_found) return;
        if (Anchor::Clock::now() < next_glance_) return;
        ++glances_;
        next_glance_ = Anchor::Clock::now() + kServerGlance / 2;
        share_.looking = share_.threads->Start([weak = weak_share_] { Look(weak); });
    }

    static void Look(const std::weak_ptr<DeviceShare>& weak) {
        const bool found = CanReachSoundServer();
        const auto share = weak.lock();
        if (!share) return;
        const std::lock_guard lock(share->mutex);
        share->looking = false;
        share->server_found = found;
        if (found) share->changed.notify_all();
    }

    // Opens the file once more, with sound. One that is gone by now plays on as it was opened. A song that
    // does not play waits with that: a sink that is open before it is needed starts late by the time between.
    void GoOnAloud(Lock& lock) {
        if (!share_.wish.playing || !std::exchange(share_.server_found, false)) return;
        if (!pipeline_.IsSilent() || ended_) return;
        lock.unlock();
        const std::int64_t place = std::max<std::int64_t>(pipeline_.Position(), 0);
        const int error = OpenPipeline(false);
        const bool is_as_it_was = error == kFileNotFound || error == kFileRead;
        const bool goes_on = is_as_it_was || (error == kNoError && pipeline_.Seek(place, stop_, rate_));
        if (goes_on && playing_ && !is_as_it_was) pipeline_.Play();
        lock.lock();
        put_ = next_ = 0;
        settling_ = true;
        if (!goes_on) HasEnded();
    }

    // A pipeline that broke no longer knows where it was.
    std::int64_t LikelyPlace() const {
        const Anchor& anchor = share_.anchor;
        if (!anchor.running) return anchor.position;
        const std::chrono::duration<double, std::nano> passed = Anchor::Clock::now() - anchor.at;
        const std::int64_t place = anchor.position + static_cast<std::int64_t>(passed.count() * rate_);
        return share_.facts.length > 0 ? std::min(place, share_.facts.length) : place;
    }

    void Measure(Lock& lock) {
        lock.unlock();
        const MediaFacts facts = pipeline_.Facts();
        lock.lock();
        if (facts.length > 0) share_.facts.length = facts.length;
    }

    void Fulfil(Lock& lock) {
        const Wish wish = share_.wish;
        share_.place_wanted = false;
        lock.unlock();
        if (wish.next != next_) pipeline_.Follow(wish.next_path, RateOf(wish.speed));
        next_ = wish.next;
        if (playing_ && !wish.playing) SetPlaying(false);
        settling_ = Move(wish) || wish.playing != playing_;
        if (wish.playing != playing_) SetPlaying(wish.playing);
        if (wish.put != put_) PutPicture(wish);
        const std::int64_t place = Place(wish);
        lock.lock();
        Report(wish, place);
    }

    void PutPicture(const Wish& wish) {
        put_ = wish.put;
        if (!pipeline_.PutPicture(wish.place) || wish.playing || ended_) return;
        pipeline_.Seek(std::max<std::int64_t>(pipeline_.Position(), 0), stop_, rate_);
    }

    // Pictures and sound that were made ready at different rates need a jump to get the same one.
    bool IsOtherRate(const Wish& wish) const { return !is_rate_everywhere_ || RateOf(wish.speed) != rate_; }

    /// True when there was a jump to make.
    bool Move(const Wish& wish) {
        const bool jumps = wish.jump != jump_;
        const bool restarts = wish.playing && (IsOtherRate(wish) || wish.stop != stop_ || IsStale());
        if (!jumps && !restarts) return false;
        const std::int64_t position = jumps ? wish.jump_to : std::max<std::int64_t>(pipeline_.Position(), 0);
        rate_ = RateOf(wish.speed);
        is_rate_everywhere_ = true;
        stop_ = wish.stop;
        jump_ = wish.jump;
        ended_ = false;
        NoteLevels();
        Jump(position, wish);
        // A jump that meets the start of playing can leave the pipeline paused.
        if (playing_) pipeline_.Play();
        last_place_ = position;
        return true;
    }

    /// A jump would meet what follows once that is being read; then the file is opened again.
    void Jump(std::int64_t position, const Wish& wish) {
        const auto read_anew = [this] {
            if (pipeline_.IsReadingOn()) OpenPipeline(pipeline_.IsSilent());
        };
        read_anew();
        pipeline_.Seek(position, stop_, rate_);
        if (pipeline_.IsReadingOn()) {
            read_anew();
            pipeline_.Seek(position, stop_, rate_);
        }
        if (!wish.next_path.empty()) pipeline_.Follow(wish.next_path, rate_);
    }

    // What was made ready before the first play, or waits in the sound server since a pause, has the levels
    // of that time.
    bool IsStale() const {
        return !playing_ && (!are_levels_heard_ || share_.gain->Left() != heard_left_ ||
                             share_.gain->Right() != heard_right_);
    }

    void NoteLevels() {
        heard_left_ = share_.gain->Left();
        heard_right_ = share_.gain->Right();
        are_levels_heard_ = true;
    }

    void SetPlaying(bool playing) {
        if (playing) {
            pipeline_.Play();
            started_ = true;
        } else {
            pipeline_.Pause();
            NoteLevels();
            are_levels_heard_ = share_.gain->IsHeard();
        }
        playing_ = playing;
    }

    std::int64_t Place(const Wish& wish) {
        if (ended_) return -1;
        const std::int64_t place = pipeline_.Position();
        if (place >= 0) last_place_ = place;
        return wish.playing || place >= 0 ? last_place_ : -1;
    }

    void Report(const Wish& wish, std::int64_t place) {
        share_.jump_done = wish.jump;
        if (place < 0) return;
        share_.anchor = {.position = place, .at = Anchor::Clock::now(), .running = playing_};
    }

    std::weak_ptr<DeviceShare> weak_share_;
    DeviceShare& share_;
    OpenRequest request_;
    Pipeline pipeline_;
    std::int64_t next_ = 0;
    Anchor::Clock::time_point follower_until_;
    std::int64_t jump_ = 0;
    std::int64_t stop_ = -1;
    std::int64_t put_ = 0;
    double rate_ = 1;
    bool is_rate_everywhere_ = true;
    bool playing_ = false;
    bool started_ = false;
    bool ended_ = false;
    bool settling_ = false;
    bool are_levels_heard_ = true;
    int heard_left_ = Gain::kFull;
    int heard_right_ = Gain::kFull;
    std::int64_t last_place_ = 0;
    int glances_ = 0;
    Anchor::Clock::time_point next_glance_;
    Anchor::Clock::time_point broken_at_;
};

}  // namespace

void RunWorker(const std::shared_ptr<DeviceShare>& share) {
    const auto out_of_work = [&share] {
        const std::lock_guard lock(share->mutex);
        if (!share->open_result) share->open_result = kHardware;
        share->mode = Mode::Stopped;
        share->opened.notify_all();
    };
    try {
        Worker(share).Run();
    } catch (...) {
        out_of_work();
        throw;
    }
}

}  // namespace gstreamer
