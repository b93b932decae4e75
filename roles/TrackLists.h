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
    /// Ends what works on the lists or waits for an answer about them: an import or a clean-up at its next
    /// step, the panel that adds a song to a playlist, and the search that was typed.
    virtual void EndTasks() = 0;
};

}  // namespace roles
