#include "player/ResumeRoom.h"

#include <algorithm>
#include <functional>
#include <utility>
#include <vector>

#include "base/Number.h"
#include "base/Text.h"

namespace player {
namespace {

/// Ticks of a second between two writings of a place that only moves on.
constexpr int kTicksOfAPlace = 5;
constexpr double kMilliseconds = 1000;

std::string ListsOf(std::string_view user) {
    return "lists of " + std::string(user);
}

std::string PlaceOf(std::string_view user) {
    return "place of " + std::string(user);
}

std::string WordsOf(const StoppedLists& lists, const StoppedPlace& place) {
    if (!place.path.empty())
        return "Go on with " + place.title + " at " + base::MinutesAndSeconds(place.milliseconds / 1000);
    if (!lists.cued.empty()) return "Go on with the cue list: " + lists.cued.front().text;
    return {};
}

}  // namespace

ResumeRoom::ResumeRoom(ResumeControls& controls, const TransportControls& transport, PlayerState& state,
                       ResumeRooms rooms, bool& ListMaybeChanged, roles::AddressRow& address,
                       ports::KeptTexts& kept)
    : controls_(controls),
      transport_(transport),
      state_(state),
      rooms_(rooms),
      ListMaybeChanged_(ListMaybeChanged),
      address_(address),
      kept_(kept) {
    claims_.Claim(controls_.tmrKeepPlace.Tick, [this] { tmrKeepPlace_Tick(); });
    claims_.Claim(controls_.lblResume.Click, [this] { lblResume_Click(); });
}

ResumeRoom::~ResumeRoom() {
    EndUser();
}

void ResumeRoom::BeginUser(std::string_view name, bool keeps_history) {
    EndUser();
    if (name.empty()) return;
    if (!keeps_history) {
        RemoveUser(name);
        return;
    }
    user_ = name;
    forgotten_at_ = -1;
    has_lists_ = false;
    place_ = {};
    Offer();
    glance_ = TakeGlance();
}

// Where the music is at this moment counts as well.
void ResumeRoom::EndUser() {
    if (user_.empty()) return;
    quiet_ticks_ = kTicksOfAPlace;
    tmrKeepPlace_Tick();
    Withdraw();
    user_.clear();
}

void ResumeRoom::Forget() {
    if (user_.empty()) return;
    RemoveUser(user_);
    Withdraw();
    has_lists_ = false;
    forgotten_at_ = rooms_.watch.Openings();
}

void ResumeRoom::RemoveUser(std::string_view name) {
    kept_.Remove(ListsOf(name));
    kept_.Remove(PlaceOf(name));
}

void ResumeRoom::Offer() {
    const std::optional<std::string> lists_text = kept_.Read(ListsOf(user_));
    const std::optional<std::string> place_text = kept_.Read(PlaceOf(user_));
    std::optional<StoppedLists> lists = lists_text ? ListsOfText(*lists_text) : StoppedLists();
    std::optional<StoppedPlace> place = place_text ? PlaceOfText(*place_text) : StoppedPlace();
    if (!lists) kept_.SetAside(ListsOf(user_));
    if (!place) kept_.SetAside(PlaceOf(user_));
    offered_lists_ = std::move(lists).value_or(StoppedLists());
    written_ = std::move(place).value_or(StoppedPlace());
    stamp_ = std::max(offered_lists_.stamp, written_.stamp);
    // Of lists that were written after it a place knows no row.
    if (written_.stamp != offered_lists_.stamp) written_.row = -1;
    const std::string words = WordsOf(offered_lists_, written_);
    controls_.lblResume.SetCaption(words);
    controls_.lblResume.SetToolTipText(words);
    controls_.lblResume.SetVisible(!words.empty() && state_.PlayerStopped);
}

void ResumeRoom::Withdraw() {
    controls_.lblResume.SetVisible(false);
    offered_lists_ = {};
}

ResumeRoom::Glance ResumeRoom::TakeGlance() const {
    return {.orders = rooms_.watch.Orders(),
            .openings = rooms_.watch.Openings(),
            .version = rooms_.order.Version(),
            .row = rooms_.order.Row(),
            .cued = rooms_.cue.Mark()};
}

void ResumeRoom::tmrKeepPlace_Tick() {
    if (user_.empty()) return;
    const Glance now = TakeGlance();
    if (IsOffering()) {
        if (now.openings == glance_.openings) return;
        Withdraw();
    }
    if (now.openings == forgotten_at_) return;
    NotePlace();
    Keep(now);
}

/// A song that was stopped stopped where it was last seen.
void ResumeRoom::NotePlace() {
    place_.row = rooms_.order.Row();
    if (state_.PlayerStopped) return;
    const std::string& path = transport_.lblFileNowPlaying.Caption();
    const auto& marker = transport_.lblProgress;
    const bool is_known = state_.FramesPerSecond > 0 && marker.Visible();
    place_.milliseconds =
        is_known ? std::max<std::int64_t>(
                       base::RoundHalfEven((marker.Left() + marker.Width() / 2) * kMilliseconds), 0)
                 : 0;
    place_.path = path;
    place_.title = transport_.lblTrack.Caption();
}

void ResumeRoom::Keep(const Glance& now) {
    const bool is_played = now.openings != glance_.openings;
    if (now.version != glance_.version || now.cued != glance_.cued || (is_played && !has_lists_)) KeepLists();
    place_.stamp = stamp_;
    const bool is_news = now != glance_;
    glance_ = now;
    if (place_ == written_ || (!is_news && ++quiet_ticks_ < kTicksOfAPlace)) return;
    quiet_ticks_ = 0;
    written_ = place_;
    kept_.Write(PlaceOf(user_), TextOf(place_));
}

void ResumeRoom::KeepLists() {
    StoppedLists lists;
    lists.stamp = ++stamp_;
    lists.CueHeadIsPath = state_.CueHeadIsPath;
    lists.CueHeadIsId = state_.CueHeadIsId;
    lists.cued = rooms_.cue.Rows();
    lists.order = rooms_.order.Entries();
    has_lists_ = kept_.Write(ListsOf(user_), TextOf(lists));
}

void ResumeRoom::lblResume_Click() {
    if (!IsOffering()) return;
    const StoppedLists lists = std::exchange(offered_lists_, {});
    const StoppedPlace place = written_;
    Withdraw();
    RestoreLists(lists, place.row);
    if (!place.path.empty()) PlayOn(place);
    address_.FocusAddress();
}

// What was cued since comes after it.
void ResumeRoom::RestoreLists(const StoppedLists& lists, int row) {
    if (!lists.cued.empty()) {
        rooms_.cue.PutBefore(lists.cued);
        state_.CueHeadIsPath = lists.CueHeadIsPath;
        state_.CueHeadIsId = lists.CueHeadIsId;
    }
    if (lists.order.empty()) return;
    rooms_.order.Restore(lists.order, row);
    ListMaybeChanged_ = true;
}

void ResumeRoom::PlayOn(const StoppedPlace& place) {
    const std::int64_t openings = rooms_.watch.Openings();
    state_.MissingTrackCount = 0;
    rooms_.playback.PlaySong(place.path);
    const bool plays_it =
        rooms_.watch.Openings() == openings + 1 && transport_.lblFileNowPlaying.Caption() == place.path;
    if (plays_it && place.milliseconds > 0)
        rooms_.transport.SeekTo(static_cast<double>(place.milliseconds) / kMilliseconds);
}

}  // namespace player
