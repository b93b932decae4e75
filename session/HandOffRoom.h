// The mailbox for command lines: the program's own, those that later starts hand over, and the files chosen
// in the dialog of `mnuOpenMediaFile`.
//
// `cmdDummy` is the mailbox: its caption is the command, its click processes it, and the caption "Ready for
// command" shows that it is idle. A later start's text takes the same way as the program's own.
//
// Order: a command is a list of media files, a playlist file, or an address. Media files join the cue list
// and `lstOpenWith`; one second after the last command the first of them is played and leaves the cue list.
// Playlist files and addresses are entered in the address row. Commands of others wait while one is
// processed and until the main window is there for a user who is logged in; what waits when the program ends
// or the user logs out is dropped, and so is the rest of a command that is processed then.
#pragma once

#include <deque>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "controls/CommandButton.h"
#include "controls/Event.h"
#include "controls/Form.h"
#include "controls/ListBox.h"
#include "controls/TextBox.h"
#include "controls/Timer.h"
#include "ports/Dialogs.h"
#include "ports/EventLoop.h"
#include "ports/Files.h"
#include "ports/InstanceLock.h"
#include "roles/AddressRow.h"
#include "roles/CueList.h"
#include "roles/MediaIntake.h"
#include "roles/PageOpener.h"
#include "roles/TrackLists.h"
#include "roles/Transport.h"
#include "session/SessionMenu.h"
#include "session/SessionState.h"

namespace session {

/// All hidden.
struct HandOffControls {
    HandOffControls();
    void PutInto(controls::Container& container);

    controls::CommandButton cmdDummy{"cmdDummy", "Dummy"};
    controls::TextBox Text1{"Text1"};              ///< the log of commands, a line each
    controls::ListBox lstOpenWith{"lstOpenWith"};  ///< paths of the last commands, the first to be played
    controls::Timer tmrOpenWith{"tmrOpenWith", 100};
    controls::Timer tmrWaiting{"tmrWaiting", 100};  ///< runs while something waits for the main window
};

/// What the mailbox looks at and sets besides its own group.
struct HandOffState {
    const SessionState& session;
    const controls::Form& frmActivate;  ///< the splash, which hides when the main window is there
    bool& ListMaybeChanged;
};

/// What a command asks of other subjects.
struct HandOffRoles {
    roles::MediaIntake& media;
    roles::CueList& cue;
    roles::Transport& transport;
    roles::TrackLists& track_lists;
    roles::AddressRow& address_row;
    roles::PageOpener& opener;
};

struct HandOffPorts {
    const ports::Files& files;
    ports::Dialogs& dialogs;
    ports::EventLoop& events;
    ports::InstanceLock& instance;
};

/// The quoted texts of a command line: split where a quote, a blank and a quote follow one another. The first
/// keeps its opening quote, the last its closing one.
std::vector<std::string> EntriesOf(std::string_view command);

class HandOffRoom final : private ports::HandOffListener {
public:
    /// Listens to later starts as long as it lives. `bring_to_front` brings the program's window to the user.
    HandOffRoom(HandOffControls& controls, HandOffMenu& menu, HandOffState state, HandOffRoles roles,
                HandOffPorts ports, std::function<void()> bring_to_front);
    ~HandOffRoom() override;
    HandOffRoom(const HandOffRoom&) = delete;
    HandOffRoom& operator=(const HandOffRoom&) = delete;

    /// Hides `cmdDummy` and empties `Text1`.
    void Prepare();
    /// Puts the command line into the mailbox and processes it.
    void Deliver(std::string_view command);
    /// Opens media files, given by native paths, as a later start with them would.
    void OpenFiles(const std::vector<std::string>& native_paths);
    /// The user is gone: what waits is dropped, what is under way ends at its next step, and no file of a
    /// command that came before is played any more.
    void ForgetCommands();

private:
    // ports::HandOffListener
    void OnBringToFront() override;
    void OnCommandText(std::string_view text) override;
    void OnTrigger() override;

    void cmdDummy_Click();
    void tmrOpenWith_Tick();
    void tmrWaiting_Tick();
    void mnuOpenMediaFile_Click();

    bool IsReady() const;
    bool IsOver() const;
    void TakeWaiting();
    void WaitForMore();
    void ProcessCommand(const std::string& Command);
    void Log(std::string_view command);
    std::deque<std::string> MediaFilesOf(const std::string& command);
    void AddMediaFiles(const std::deque<std::string>& files);
    void AddMediaFile(const std::string& file);
    void EnterTexts();
    void PlayFirst();

    HandOffControls& controls_;
    HandOffState state_;
    HandOffRoles roles_;
    HandOffPorts ports_;
    std::function<void()> bring_to_front_;
    std::string arrived_;              // of the later start that hands over now
    std::deque<std::string> waiting_;  // commands
    std::deque<std::string> texts_;    // playlist files and addresses that are still to be entered
    bool processing_ = false;
    int users_gone_ = 0;  // what began before the last of them left goes no further
    int open_ticks_ = 0;
    controls::EventClaims claims_;
};

}  // namespace session
