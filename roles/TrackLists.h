// The lists of the music pane.
#pragma once

namespace roles {

class TrackLists {
public:
    virtual ~TrackLists() = default;
    /// Rebuilds every list from the stores.
    virtual void Command1() = 0;
    /// Lists the playlists again, each once.
    virtual void DisplayPlayLists() = 0;
    /// Fills artists and tracks from the whole library if no track is shown.
    virtual void RefillIfEmpty() = 0;
};

}  // namespace roles
