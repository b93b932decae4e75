// Places of the main window's controls. Why: rooms own content, the layout owns places; a room whose content
// needs other places asks for them here.
#pragma once

namespace roles {

class Layout {
public:
    virtual ~Layout() = default;
    virtual void Form_Resize() = 0;
    /// The splitter was dragged: what is below it follows.
    virtual void PlaceBelowSplitter() = 0;
    /// `picVideo` came or went: the favourites panel gives its room or takes it back.
    virtual void PlaceFavouritesPanel() = 0;
};

}  // namespace roles
