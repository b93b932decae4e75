// One instance of the program for each application folder and user, and the way a later start hands its
// command text to the one that runs.
//
// Why: two instances would write the same stores. Whoever asks first holds the lock until it ends, however it
// ends; a later start learns that, hands over and never reaches the stores.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace ports {

/// The running instance's side of a hand-over. The calls come in this order, on the user-interface thread.
class HandOffListener {
public:
    virtual ~HandOffListener() = default;
    /// Restore the window if it is minimised, and bring it to the front.
    virtual void OnBringToFront() = 0;
    /// The later start's command text; empty when it had no arguments.
    virtual void OnCommandText(std::string_view text) = 0;
    /// Process the text now. The later start waits until this returns.
    virtual void OnTrigger() = 0;
};

inline constexpr int kOptionNotPossible = 1;
inline constexpr int kOptionUnknown = 2;

/// What a later start that was given an option shows and ends with.
struct OptionAnswer {
    int exit_code = 0;   ///< one digit
    std::string text{};  ///< lines without a break after the last; may be empty
};

/// The running instance's answers to the options of later starts, on the user-interface thread.
class OptionListener {
public:
    virtual ~OptionListener() = default;
    /// The option without its dashes, "next". The later start waits until this returns.
    virtual OptionAnswer OnOption(std::string_view option) = 0;
};

enum class Instance {
    First,   ///< this one runs; it holds the lock until it ends
    Second,  ///< another one runs: hand over and end
    Failed,  ///< not known, see Failure: end with a message
};

class InstanceLock {
public:
    virtual ~InstanceLock() = default;
    /// Exactly one of any number of simultaneous calls, in any number of processes, gives First. Calling it
    /// again as the first gives First.
    virtual Instance TryBecomeFirst() = 0;
    /// The last answer of TryBecomeFirst; Failed before it was called.
    virtual Instance Answer() const = 0;
    /// Why TryBecomeFirst gave Failed, as a sentence for a box; empty otherwise.
    virtual std::string Failure() const = 0;

    /// Second: delivers the text to the running instance and waits until that has processed it, or has ended,
    /// or half a minute has gone by. False when it was not delivered.
    virtual bool HandOff(std::string_view text) = 0;

    /// Asks the running instance, whether or not TryBecomeFirst was called, and waits as HandOff does.
    /// Nothing when none runs or none answers.
    virtual std::optional<OptionAnswer> AskFirst(std::string_view option) = 0;

    /// First: whom to notify. Without a listener a text waits.
    virtual void SetListener(HandOffListener* listener) = 0;
    /// First: who answers options. Without a listener none is answered.
    virtual void SetOptionListener(OptionListener* listener) = 0;
    /// First: a file descriptor that can be read when a start may have something to hand over; -1 when there
    /// is none.
    virtual int FileDescriptor() const = 0;
    /// First: takes what was handed over since, and notifies the listener of each text. Never waits. May be
    /// called again from inside the listener.
    virtual void Serve() = 0;
};

}  // namespace ports
