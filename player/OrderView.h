// The play order and its modes, for those who list and choose.
#pragma once

#include "player/PlayModeRoom.h"
#include "player/PlayOrder.h"
#include "player/PlaybackRoom.h"
#include "player/PlayerControls.h"
#include "player/PlayerState.h"
#include "player/SongLookup.h"
#include "roles/PlayOrder.h"

namespace player {

struct OrderRooms {
    PlayOrder& order;
    PlayModeRoom& mode;
    SongLookup& songs;
    PlaybackRoom& playback;
};

class OrderView final : public roles::PlayOrder {
public:
    OrderView(const TitleControls& controls, PlayerState& state, OrderRooms rooms);

    roles::OrderGlance Order() const override;
    bool PlaysItsRow() override;
    std::vector<roles::OrderedSong> SongsAt(const std::vector<int>& rows) override;
    void SetRepeat(bool repeat) override;
    void SetShuffle(bool shuffle) override;
    void PlayRow(int row) override;

private:
    const TitleControls& controls_;
    PlayerState& state_;
    OrderRooms rooms_;
};

}  // namespace player
