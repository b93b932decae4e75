// Passes on which user comes and goes to everything that keeps something for each of them: the pages, and the
// place where the music stopped.
#pragma once

#include <string>
#include <string_view>

#include "ports/PageEngine.h"
#include "roles/KeptPlace.h"

namespace window {

class UserThings final : public ports::PageEngine {
public:
    UserThings(ports::PageEngine& pages, roles::KeptPlace& place) : pages_(pages), place_(place) {}

    void BeginUser(std::string_view name, bool keeps_history) override {
        pages_.BeginUser(name, keeps_history);
        place_.BeginUser(name, keeps_history);
    }
    void EndUser() override {
        pages_.EndUser();
        place_.EndUser();
    }
    void ForgetVisits() override {
        pages_.ForgetVisits();
        place_.Forget();
    }
    void ShowDownloads() override { pages_.ShowDownloads(); }
    void RemoveUser(std::string_view name) override {
        pages_.RemoveUser(name);
        place_.RemoveUser(name);
    }
    std::string Version() override { return pages_.Version(); }

private:
    ports::PageEngine& pages_;
    roles::KeptPlace& place_;
};

}  // namespace window
