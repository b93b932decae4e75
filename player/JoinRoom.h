// Songs without a gap: with the fade off a song is heard to its last sample, and the next one follows it.
//
// The device is told in the last seconds of a song what comes next, and goes on with it by itself. Nothing
// else knows of that: title, history and counts change when the song has ended, as ever. What is told is
// taken back when something else is going to come next. What cannot be told before (a random song, a film)
// comes as it would without.
#pragma once

#include <cstdint>
#include <string>
#include <utility>

#include "controls/Label.h"
#include "controls/PictureBox.h"
#include "player/CueQueue.h"
#include "player/FadeRoom.h"
#include "player/MciLayer.h"
#include "player/PlayModeRoom.h"
#include "player/PlayOrder.h"
#include "player/PlayerControls.h"
#include "player/PlayerState.h"
#include "player/SongLookup.h"
#include "ports/Files.h"

namespace player {

struct JoinRooms {
    const FadeRoom& fade;
    const PlayModeRoom& mode;
    PlayOrder& order;
    CueQueue& cue;
    SongLookup& songs;
};

class JoinRoom final {
public:
    JoinRoom(const TitleControls& controls, const controls::PictureBox& song_bar,
             const controls::Label& progress, MciLayer& mci, const PlayerState& state, JoinRooms rooms,
             const ports::Files& files);

    /// A tick of a song that plays, once its marker was moved.
    void Tick();
    bool IsTold() const { return is_told_; }
    /// What follows was told, and the song is not over yet.
    bool HoldsEnd();
    /// Another song is about to start.
    void Leave();

private:
    /// What the next song depends on.
    struct Place {
        std::uint64_t version = 0;
        int row = -1;
        int count = 0;
        bool repeats = false;
        bool operator==(const Place&) const = default;
    };
    bool MayFollow() const;
    const std::string& Next();
    std::string LookUpNext() const;

    const TitleControls& controls_;
    const controls::PictureBox& song_bar_;
    const controls::Label& progress_;
    MciLayer& mci_;
    const PlayerState& state_;
    JoinRooms rooms_;
    const ports::Files& files_;
    Place place_;
    std::string next_;   // at that place
    std::string asked_;  // what the device was last told
    bool is_told_ = false;
    std::int64_t position_ = -1;
    int ticks_at_position_ = 0;
};

}  // namespace player
