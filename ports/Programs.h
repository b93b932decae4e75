// Other programs of the desktop.
//
// Why: the about box opens the desktop's own tool that describes the computer.
#pragma once

#include <string>
#include <string_view>

namespace ports {

class Programs {
public:
    virtual ~Programs() = default;
    /// The desktop's tool that describes the computer, as a path in drive form; empty when none is installed.
    virtual std::string SystemInformationTool() const = 0;
    /// Starts a program with its window in the normal state. It is not waited for, and outlives this one.
    /// False when there is no such program or it cannot be started.
    virtual bool Start(std::string_view path) = 0;
};

}  // namespace ports
