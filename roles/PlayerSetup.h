// The player as a session starts and ends it, and as the layout gives its bars another width.
#pragma once

namespace roles {

class PlayerSetup {
public:
    virtual ~PlayerSetup() = default;
    /// Volume 100, mute off, fades 5 seconds before the end, `lblProgress` hidden.
    virtual void SetDefaults() = 0;
    /// The click of `mnuQuickFade`.
    virtual void ChooseQuickFade() = 0;
    /// Makes the video window's picture black.
    virtual void ClearVideoPicture() = 0;
    /// Stops what plays and forgets it, the song's names and the text for messengers among it. Messengers are
    /// told only where they were told of a song before.
    virtual void EndUser() = 0;
    /// Closes both media channels.
    virtual void CloseMedia() = 0;
    /// Gives the song bar and the speed bar their scales, and their markers the places they stand for.
    virtual void RestoreBars() = 0;
    /// After the bright pictures were hidden: pictures that show a state say it again.
    virtual void SettlePictures() = 0;
};

}  // namespace roles
