// What history and favourites ask of the player, answered by the rooms that know.
#pragma once

#include "window/Desk.h"

namespace window {

class WebDataLinks final : public roles::VideoPane {
public:
    explicit WebDataLinks(Desk& desk) : desk_(desk) {}

    // roles::VideoPane
    bool IsVideoAttached() const override;
    void ShowPane() override;
    void ClosePane() override;
    void FollowMainWindow() override;

private:
    Desk& desk_;
};

}  // namespace window
