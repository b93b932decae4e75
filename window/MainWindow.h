// Builds the rooms of the main window and the windows around it, in order, and connects them.
//
// A room gets its own group, record sets, ports and small interfaces. The interfaces that lead to other rooms
// are answered by the links, which forward each verb to the room that knows, in one line.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "controls/Event.h"
#include "window/CoreLinks.h"
#include "window/Desk.h"
#include "window/LibraryLinks.h"
#include "window/PlayerLinks.h"
#include "window/WebLinks.h"

namespace window {

class MainWindow final {
public:
    /// `command` is the command line as one text; `ended` is called once the main window is unloaded and the
    /// stores are closed. Windows, ports and everything behind them must outlive the main window.
    MainWindow(Windows& windows, Ports ports, std::string_view command, std::function<void()> ended);
    MainWindow(const MainWindow&) = delete;
    MainWindow& operator=(const MainWindow&) = delete;

    /// Loads the main window, which starts everything else.
    void Start();
    /// Ends the program as an exit does, asking nothing.
    void End();

    /// For tests and the program's outer shell.
    const State& Known() const { return desk_.state; }
    Rooms& AllRooms() { return desk_.rooms; }

private:
    void BuildGround();
    void BuildPlayer();
    void BuildRemote();
    void BuildLibrary();
    void BuildPlaces();
    void BuildWeb();
    void BuildSession(std::string_view command);
    std::string StorePath(std::string_view file) const;
    void frmBrowser_Unload();

    Desk desk_;
    std::function<void()> ended_;
    PlayerLinks player_links_;
    LibraryLinks library_links_;
    WebLinks web_links_;
    CoreLinks core_links_;
    controls::EventClaims claims_;
};

}  // namespace window
