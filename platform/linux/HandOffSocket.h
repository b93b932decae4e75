// The local socket through which a later start delivers its command text to the instance that runs.
//
// One connection carries one message: four bytes of length, lowest first, and the message. That is the text,
// and before it, where the start has one, its start-up id between two zero bytes. The answer is one byte,
// sent when the text has been processed. A message that begins with the byte 1 is an option; after the byte
// of its answer come the digit of the exit code and the text, up to the end of the connection. The socket can
// be used by its owner only, and each side checks who the other is.
#pragma once

#include <cstddef>
#include <deque>
#include <functional>
#include <list>
#include <optional>
#include <string>
#include <string_view>

#include "platform/linux/Descriptor.h"
#include "ports/InstanceLock.h"

namespace linux {

/// Where the socket is: a name in an open folder, so that the length of the folder's path does not
/// matter.
struct SocketPlace {
    int folder = -1;
    std::string name;
};

/// Takes the start-up id that a launcher gave a later start, before its window is brought to the front; empty
/// when there was none.
using StartupIdTaker = std::function<void(const std::string&)>;

/// The running instance's end.
class HandOffServer {
public:
    /// Longest message that is taken, in bytes; a connection that announces more is dropped.
    static constexpr std::size_t kLongestText = std::size_t{4} << 20U;
    /// Connections that are open at once; the oldest unfinished one makes room.
    static constexpr std::size_t kMostConnections = 64;

    /// Listens at the place, taking over what a dead instance left there. False when the file system has no
    /// sockets.
    bool Listen(const SocketPlace& place);
    bool IsListening() const { return events_.IsOpen(); }
    int FileDescriptor() const { return events_.Number(); }
    /// Whom to notify; null for nobody. `take_id` is called before the listener.
    struct Listeners {
        ports::HandOffListener* texts = nullptr;
        ports::OptionListener* options = nullptr;
        const StartupIdTaker& take_id;
    };
    /// Notifies of every message that is complete and has a listener; the others wait. Never waits.
    void Serve(const Listeners& listeners);
    /// Stops listening; `place` is where it listened.
    void Close(const SocketPlace& place);

private:
    struct Connection {
        Descriptor socket;
        std::string received;
    };
    enum class Progress { Waiting, Complete, Broken };

    static bool IsOption(const Connection& connection);
    static void AnswerOption(const Connection& connection, ports::OptionListener& options);
    static void Notify(const Connection& connection, const Listeners& listeners);
    void AcceptAll();
    void ReadAll();
    static Progress Read(Connection& connection);

    Descriptor socket_;
    Descriptor events_;
    std::list<Connection> connections_;  // still to be read
    std::deque<Connection> complete_;
};

/// True when an instance listens there.
bool IsSomeoneListening(const SocketPlace& place);

/// Delivers a text and a start-up id, which may be empty, and waits until it was processed: at most 5 seconds
/// for someone to listen, then half a minute for the answer. False when it was not taken.
bool Deliver(const SocketPlace& place, std::string_view startup_id, std::string_view text);

/// Asks the instance that listens there, and waits for its answer half a minute at most. Nothing when there
/// is none.
std::optional<ports::OptionAnswer> AskOption(const SocketPlace& place, std::string_view option);

}  // namespace linux
