// The mailbox for command lines: the program's own, and those that later starts hand over.
//
// `cmdDummy` is the mailbox: its caption is the command, its click processes it, and the caption "Ready for
// command" shows that it is idle. A later start's text takes the same way as the program's own.
#pragma once

#include <functional>
#include <string_view>

#include "controls/CommandButton.h"
#include "controls/Event.h"
#include "controls/ListBox.h"
#include "controls/TextBox.h"
#include "controls/Timer.h"
#include "ports/InstanceLock.h"

namespace session {

/// All hidden.
struct HandOffControls {
    HandOffControls();
    void PutInto(controls::Container& container);

    controls::CommandButton cmdDummy{"cmdDummy", "Dummy"};
    controls::TextBox Text1{"Text1"};              ///< the log of commands, a line each
    controls::ListBox lstOpenWith{"lstOpenWith"};  ///< paths the program was started with
    controls::Timer tmrOpenWith{"tmrOpenWith", 100};
};

class HandOffRoom final : private ports::HandOffListener {
public:
    /// Listens to later starts as long as it lives. `bring_to_front` brings the program's window to the user.
    HandOffRoom(HandOffControls& controls, ports::InstanceLock& instance,
                std::function<void()> bring_to_front);
    ~HandOffRoom() override;
    HandOffRoom(const HandOffRoom&) = delete;
    HandOffRoom& operator=(const HandOffRoom&) = delete;

    /// Hides `cmdDummy` and empties `Text1`.
    void Prepare();
    /// Puts the command line into the mailbox and processes it.
    void Deliver(std::string_view command);

private:
    // ports::HandOffListener
    void OnBringToFront() override;
    void OnCommandText(std::string_view text) override;
    void OnTrigger() override;

    void cmdDummy_Click();
    void ProcessCommand(std::string_view Command);

    HandOffControls& controls_;
    ports::InstanceLock& instance_;
    std::function<void()> bring_to_front_;
    controls::EventClaims claims_;
};

}  // namespace session
