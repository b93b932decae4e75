// Where the music stopped: kept while it plays, and offered in the title row at the next login of the same
// user.
//
// Once a second the room looks whether anything changed. Lists are written when they did; the place in the
// song when something was started, stopped or sought, and else every five seconds while it moves on. Nothing
// is written while an offer is up, so that an offer that is not taken stands at the next start again. It goes
// as soon as a song is opened.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "controls/Event.h"
#include "controls/Label.h"
#include "controls/Timer.h"
#include "player/CueQueue.h"
#include "player/MediaWatch.h"
#include "player/PlayOrder.h"
#include "player/PlaybackRoom.h"
#include "player/PlayerControls.h"
#include "player/PlayerState.h"
#include "player/StoppedPlace.h"
#include "player/TransportRoom.h"
#include "ports/KeptTexts.h"
#include "roles/AddressRow.h"
#include "roles/KeptPlace.h"

namespace player {

/// The rooms that know what plays and can play it.
struct ResumeRooms {
    const MediaWatch& watch;
    PlayOrder& order;
    CueQueue& cue;
    PlaybackRoom& playback;
    TransportRoom& transport;
};

class ResumeRoom final : public roles::KeptPlace {
public:
    /// `ListMaybeChanged` is set when the play order was replaced by one that is not the visible tracks.
    ResumeRoom(ResumeControls& controls, const TransportControls& transport, PlayerState& state,
               ResumeRooms rooms, bool& ListMaybeChanged, roles::AddressRow& address, ports::KeptTexts& kept);
    /// Keeps the place a last time.
    ~ResumeRoom() override;
    ResumeRoom(const ResumeRoom&) = delete;
    ResumeRoom& operator=(const ResumeRoom&) = delete;

    // roles::KeptPlace
    void BeginUser(std::string_view name, bool keeps_history) override;
    void EndUser() override;
    void Forget() override;
    void RemoveUser(std::string_view name) override;

private:
    /// What shows that something changed.
    struct Glance {
        std::uint64_t orders = 0;
        std::int64_t openings = 0;
        std::uint64_t version = 0;
        int row = -1;
        std::uint64_t cued = 0;

        bool operator==(const Glance&) const = default;
    };

    void tmrKeepPlace_Tick();
    void lblResume_Click();
    Glance TakeGlance() const;
    void Offer();
    void Withdraw();
    bool IsOffering() const { return controls_.lblResume.Visible(); }
    void NotePlace();
    void Keep(const Glance& now);
    void KeepLists();
    void RestoreLists(const StoppedLists& lists, int row);
    void PlayOn(const StoppedPlace& place);

    ResumeControls& controls_;
    const TransportControls& transport_;
    PlayerState& state_;
    ResumeRooms rooms_;
    bool& ListMaybeChanged_;
    roles::AddressRow& address_;
    ports::KeptTexts& kept_;
    std::string user_;  ///< for whom the place is kept; empty for nobody
    StoppedLists offered_lists_;
    StoppedPlace place_;
    StoppedPlace written_;
    std::int64_t stamp_ = 0;          ///< of the lists that are written
    bool has_lists_ = false;          ///< those that are written are the ones there are
    Glance glance_;                   ///< at the last tick
    std::int64_t forgotten_at_ = -1;  ///< songs that had been opened when the history was deleted
    int quiet_ticks_ = 0;             ///< since the place was written
    controls::EventClaims claims_;
};

}  // namespace player
