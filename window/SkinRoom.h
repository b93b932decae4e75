// The bright twins of the window's pictures, all hidden together, and the grounds over which that happens.
//
// A twin shows when the pointer moves over its plain picture; its own room sees to that. The twin takes the
// click.
#pragma once

#include <array>
#include <functional>

#include "controls/Event.h"
#include "controls/Image.h"
#include "roles/Highlights.h"
#include "window/ChromeControls.h"

namespace window {

/// The bright twins in the order in which they are hidden.
inline constexpr std::size_t kTwinCount = 16;
using BrightTwins = std::array<controls::Image*, kTwinCount>;

class SkinRoom final : public roles::Highlights {
public:
    /// `settled` runs whenever the twins were hidden, for pictures that show a state.
    SkinRoom(ChromeControls& controls, const BrightTwins& twins, std::function<void()> settled);

    /// Puts lblCopyright's colour back, too.
    void NoMouseOvers() override;

private:
    void lblCopyright_MouseMove();

    ChromeControls& controls_;
    BrightTwins twins_;
    std::function<void()> settled_;
    controls::EventClaims claims_;
};

}  // namespace window
