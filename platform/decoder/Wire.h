// What the program and a decoder's process say to each other: whole messages over a socket pair.
//
// Both ends are the same build, so the layout is the machine's own. A message is never split.
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "platform/linux/Descriptor.h"

namespace decoder {

/// A command to the decoder, or its answer.
struct Message {
    std::uint32_t serial = 0;  ///< an answer has the serial of its command
    std::int32_t error = 0;    ///< of an answer
    std::string text;
    std::string path;  ///< of an open command: the file's native path
};

/// Longer ones are not sent.
inline constexpr std::size_t kLongestMessage = 60'000;

enum class Arrival { Message, TooLate, Gone };

/// False when the other end is gone or the message is too long.
bool Send(int socket, const Message& message);
/// Waits for a message, `patience` at most.
Arrival Receive(int socket, Message& message, std::chrono::milliseconds patience);

/// What a process says once, when it is ready for commands.
struct Hello {
    std::string missing;  ///< what this system does not have of the sandbox; empty when all is there
    linux::Descriptor
        requests;  ///< where the kernel reports what the process asks for; none without a filter
};

bool SendHello(int socket, const Hello& hello);
/// False when the other end went without one.
bool ReceiveHello(int socket, Hello& hello);

/// Both ends of a pair, closed in other programs. Not open when the system has none left.
struct SocketPair {
    linux::Descriptor ours;
    linux::Descriptor theirs;
    static SocketPair Make();
};

}  // namespace decoder
