// A page engine that remembers what it was asked.
#pragma once

#include <functional>
#include <string>

#include "ports/PageEngine.h"

namespace fakes {

struct RecordingPageEngine final : ports::PageEngine {
    void ForgetVisits() override {
        ++Forgotten;
        if (OnForget) OnForget();
    }
    std::string Version() override {
        ++VersionQuestions;
        return VersionText;
    }

    int Forgotten = 0;
    int VersionQuestions = 0;
    std::string VersionText = "Page engine 1.2.3 (patches up to 1.2.4)";
    /// What becomes of the pages.
    std::function<void()> OnForget;
};

}  // namespace fakes
