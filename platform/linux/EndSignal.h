// The signals that ask a program to end, as something to read from.
//
// A second signal of the same kind is the system's again and ends the program at once.
#pragma once

namespace linux {

class EndSignal final {
public:
    /// From now on SIGTERM, SIGINT and SIGHUP no longer end the program. One object a program.
    EndSignal();
    EndSignal(const EndSignal&) = delete;
    EndSignal& operator=(const EndSignal&) = delete;

    /// Becomes readable when a signal has come; -1 when it could not be made, and signals end the program.
    static int FileDescriptor();
};

}  // namespace linux
