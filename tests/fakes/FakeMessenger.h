// Messengers that live in a test.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "ports/Messenger.h"

namespace fakes {

class FakeMessenger final : public ports::Messenger {
public:
    struct Window {
        std::string window_class;
        std::vector<ports::CopyData> Received;
    };

    /// Opens a window; gives its place in Windows.
    std::size_t AddWindow(std::string_view window_class) {
        Windows.push_back({std::string(window_class), {}});
        return Windows.size() - 1;
    }

    void SendToWindows(std::string_view window_class, const ports::CopyData& block) override {
        ++Searches;
        Sent.push_back(block);
        std::size_t hit = 0;
        while ((hit = FindWindowEx(hit, window_class)) != 0)
            Windows[hit - 1].Received.push_back(block);
    }

    std::vector<Window> Windows;
    /// How often windows were looked for, and of which class.
    int Searches = 0;
    std::vector<ports::CopyData> Sent;

private:
    /// The window after `previous`, counted from 1; 0 when there is none.
    std::size_t FindWindowEx(std::size_t previous, std::string_view window_class) const {
        for (std::size_t i = previous; i < Windows.size(); ++i) {
            if (Windows[i].window_class == window_class) return i + 1;
        }
        return 0;
    }
};

}  // namespace fakes
