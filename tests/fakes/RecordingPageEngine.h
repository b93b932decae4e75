// A page engine that remembers what it was asked.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "ports/PageEngine.h"

namespace fakes {

struct RecordingPageEngine final : ports::PageEngine {
    void BeginUser(std::string_view name, bool keeps_history) override {
        Log.push_back("Begin " + std::string(name) + (keeps_history ? " kept" : " forgotten"));
        User = name;
        if (OnBegin) OnBegin();
    }
    void EndUser() override {
        Log.emplace_back("End");
        User.clear();
        if (OnEnd) OnEnd();
    }
    void ForgetVisits() override { Log.emplace_back("Forget"); }
    void ShowDownloads() override { Log.emplace_back("Downloads"); }
    void RemoveUser(std::string_view name) override { Log.push_back("Remove " + std::string(name)); }
    std::string Version() override {
        ++VersionQuestions;
        return VersionText;
    }

    /// What was asked of it, in order.
    std::vector<std::string> Log;
    /// Whose pages are shown; empty while nobody is logged in.
    std::string User;
    int VersionQuestions = 0;
    std::string VersionText = "Page engine 1.2.3 (patches up to 1.2.4)";
    /// What becomes of the pages.
    std::function<void()> OnBegin;
    std::function<void()> OnEnd;
};

}  // namespace fakes
