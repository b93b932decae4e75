#include "player/QueueRoom.h"

#include <array>
#include <string>
#include <string_view>

#include "base/MediaKinds.h"
#include "base/Number.h"
#include "controls/Arrange.h"

namespace player {

namespace {

/// A cued entry with a smaller value is a song number. Its value counts here, not its length.
constexpr double kFirstPathValue = 8;

/// Extensions of files that are cued when they are dropped on the list.
constexpr std::array<std::string_view, 10> kDroppedKinds{"mpg", "mpeg", "mp3", "mid",  "wav",
                                                         "wma", "wmv",  "avi", "midi", "peg"};

}  // namespace

QueueRoom::QueueRoom(CueControls& controls, CueMenu& menu, TrackListView tracks, CueQueue& cue,
                     PlaybackRoom& playback, roles::AddressRow& address, roles::Highlights& highlights)
    : controls_(controls),
      tracks_(tracks),
      cue_(cue),
      playback_(playback),
      address_(address),
      highlights_(highlights) {
    claims_.Claim(controls_.lstCuedSongs.DblClick, [this] { lstCuedSongs_DblClick(); });
    claims_.Claim(controls_.lstCuedSongs.OLEDragDrop,
                  [this](const controls::DropData& data, double, double) { lstCuedSongs_OLEDragDrop(data); });
    claims_.Claim(controls_.lstCuedSongs.MouseMove, [this] { highlights_.NoMouseOvers(); });
    ClaimTwin(claims_, controls_.imgCueSong, controls_.imgCueSongOver);
    claims_.Claim(controls_.imgCueSongOver.Click, [this] { imgCueSongOver_Click(); });
    ClaimTwin(claims_, controls_.imgUnCue, controls_.imgUnCueOver);
    claims_.Claim(controls_.imgUnCueOver.Click, [this] { imgUnCueOver_Click(); });
    claims_.Claim(menu.mnuCueSong.Click, [this] { imgCueSongOver_Click(); });
    claims_.Claim(menu.mnuRemoveCueList.Click, [this] { imgUnCueOver_Click(); });
}

void QueueRoom::imgCueSongOver_Click() {
    if (!tracks_.lstTracks.Text().empty()) {
        tracks_.lstMaybe.SetListIndex(tracks_.lstTracks.ListIndex());
        cue_.Add(tracks_.lstTracks.Text(), tracks_.lstMaybe.Text());
    }
    address_.FocusAddress();
}

void QueueRoom::imgUnCueOver_Click() {
    if (controls_.lstCuedSongs.ListCount() > 0) cue_.Uncue();
    address_.FocusAddress();
}

/// A row that holds a path is no number: the gesture fails and changes nothing. The row goes after the song
/// was started; a missing file may have sent the player to the head of the list, which then went before it.
void QueueRoom::lstCuedSongs_DblClick() {
    if (controls_.lstCuedSongs.Text().empty()) return;
    const std::string entry = cue_.SelectEntryOfRow();
    const auto number = base::ToNumber(entry);
    if (!number) return;
    if (*number < kFirstPathValue) {
        playback_.GetSongInfo(base::RoundHalfEven(*number));
    } else {
        playback_.PlaySong(entry);
    }
    cue_.RemoveSelectedRow();
}

void QueueRoom::lstCuedSongs_OLEDragDrop(const controls::DropData& data) {
    for (const std::string& path : data.Files)
        if (base::HasExtension(path, kDroppedKinds)) cue_.AddPath(path);
}

}  // namespace player
