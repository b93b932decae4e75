// The programs of the desktop, started as processes of their own.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "ports/Programs.h"

namespace qt {

class DesktopPrograms final : public ports::Programs {
public:
    struct Paths {
        /// The native path of a path in drive form, and the other way round; empty when there is none.
        std::function<std::string(std::string_view)> to_native;
        std::function<std::string(const std::string&)> to_drive;
    };

    explicit DesktopPrograms(Paths paths);
    /// With other tools than the usual ones: names of programs, the best first.
    DesktopPrograms(Paths paths, std::vector<std::string> tools);

    // ports::Programs
    std::string SystemInformationTool() const override;
    bool Start(std::string_view path) override;

private:
    Paths paths_;
    std::vector<std::string> tools_;
};

}  // namespace qt
