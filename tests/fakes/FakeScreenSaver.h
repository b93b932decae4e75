// A screen saver that only says whether it may come.
#pragma once

#include "ports/ScreenSaver.h"

namespace fakes {

class FakeScreenSaver final : public ports::ScreenSaver {
public:
    void SetInhibited(bool inhibited) override {
        if (inhibited != Inhibited) ++Changes;
        Inhibited = inhibited;
    }

    bool Inhibited = false;
    int Changes = 0;
};

}  // namespace fakes
