// Programs that are there when a test says so, and remember that they were started.
#pragma once

#include <string>
#include <vector>

#include "ports/Programs.h"

namespace fakes {

struct FakePrograms final : ports::Programs {
    std::string SystemInformationTool() const override { return Tool; }
    bool Start(std::string_view path) override {
        if (path != Tool && path != Installed) return false;
        Started.emplace_back(path);
        return true;
    }

    std::string Tool;
    /// One more program that can be started.
    std::string Installed;
    std::vector<std::string> Started;
};

}  // namespace fakes
