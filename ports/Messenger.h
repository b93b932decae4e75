// The messengers that run on this desktop, as windows of a class that take copied data.
//
// Why: what a messenger is told is a block of bytes with a number that says what they mean, and whether any
// messenger listens does not matter. So the sender only builds the block.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace ports {

/// What one window copies to another.
struct CopyData {
    std::uint32_t dwData = 0;          ///< what the bytes mean to the receiver
    std::uint32_t cbData = 0;          ///< how many bytes
    std::vector<std::uint8_t> lpData;  ///< the bytes

    bool operator==(const CopyData&) const = default;
};

class Messenger {
public:
    virtual ~Messenger() = default;
    /// Looks for every window of that class and sends the block to each, once. The blocks reach a window in
    /// the order in which they were sent, and not later than the end of the program. Returns at once: a
    /// window that does not answer is not waited for, and no messenger at all is no error.
    virtual void SendToWindows(std::string_view window_class, const CopyData& block) = 0;
};

}  // namespace ports
