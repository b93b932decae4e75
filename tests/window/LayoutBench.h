// The main window's layout with a player that writes down what it is asked for.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "WindowWalk.h"
#include "fakes/NullPlayer.h"
#include "window/BrowserLayout.h"

namespace window_tests {

using controls::Control;
using controls::kTwipsPerPixel;

/// What the layout asks for, written down; a stopped player may lay out again, as the real one may.
struct FakePlayer final : fakes::NullTransport, fakes::NullVideoPane, fakes::NullPlayerSetup, roles::Hole {
    void Stop() override { calls.emplace_back("click of stop"); }
    void StayStopped() override {
        calls.emplace_back("stop");
        if (on_stop) on_stop();
    }
    bool IsVideoAttached() const override { return attached; }
    void MakeHole() override { calls.emplace_back("make hole"); }
    void CloseHole() override { calls.emplace_back("close hole"); }
    void RestoreBars() override { calls.emplace_back("bars"); }

    bool stopped = false;
    bool attached = false;
    std::function<void()> on_stop;
    std::vector<std::string> calls;
};

struct Rect {
    double left, top, width, height;
    bool operator==(const Rect&) const = default;
};

inline std::ostream& operator<<(std::ostream& out, const Rect& rect) {
    return out << rect.left << " " << rect.top << " " << rect.width << " " << rect.height;
}

inline Rect RectOf(const Control& control) {
    return {control.Left(), control.Top(), control.Width(), control.Height()};
}

/// Everything in a window, at any depth, that has a place: all but timers and menus.
inline std::vector<const Control*> PlacedOf(const controls::Form& window) {
    std::vector<const Control*> all;
    for (const Control* control : ControlsOf(window)) {
        const bool elsewhere = control == &window || control->ControlKind() == controls::Kind::Timer ||
                               control->ControlKind() == controls::Kind::Menu;
        if (!elsewhere) all.push_back(control);
    }
    return all;
}

class BrowserLayoutTest : public testing::Test {
protected:
    void Resize(double width, double height) {
        window.Move(window.Left(), window.Top(), width, height);
        layout.Form_Resize();
    }
    void OpenPanel() {
        window.favourites.cmdFavs.SetCaption("<");
        window.favourites.fraFavs.SetVisible(true);
    }
    void ShowVideo() {
        partners.attached = true;
        window.player.video.picVideo.SetVisible(true);
    }
    void ShowJustTracks() {
        window.menus.mnuMusicJustTracks.SetChecked(true);
        window.library.lists.lstArtists.SetVisible(false);
        window.library.lists.lstPlayLists.SetVisible(false);
    }
    Control& Pane() { return window.chrome.fraMusicTab; }

    window::BrowserForm window;
    web::WebState tabs;
    FakePlayer partners;
    window::BrowserLayout layout{window, tabs, partners.stopped, {partners, partners, partners, partners}};
};

}  // namespace window_tests
