// One run of the whole program on a computer of stand-ins, and the hands of the person before it.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "controls/ListBox.h"
#include "fakes/FakeDesktop.h"
#include "fakes/FakeDialogs.h"
#include "fakes/FakeMessenger.h"
#include "fakes/FakeNowPlayingBoard.h"
#include "fakes/FakePrograms.h"
#include "fakes/FakeScreenSaver.h"
#include "fakes/RecordingPageEngine.h"
#include "fakes/RecordingWindowShape.h"
#include "scenario/Computer.h"
#include "window/MainWindow.h"

namespace scenario {

struct MiddleChance final : ports::Chance {
    double Below1() override { return 0.5; }
};

struct NoWindowPlaces final : ports::WindowServices {
    bool GetWindowRect(std::int64_t, ports::WindowRect&) const override { return false; }
};

class Program {
public:
    explicit Program(Computer& on, std::string_view command = {}, session::StartFacts facts = {});

    /// Loads the main window and lets the start-up timers run until the login waits.
    void Start();
    /// Types the name and the password and presses Login.
    void LogIn(std::string_view name, std::string_view password);
    /// Start, log in, and wait until the splash has gone.
    void StartAndLogIn(std::string_view name, std::string_view password);

    /// A click, up to the end of its handler.
    void Click(controls::Control& control);
    void DoubleClick(controls::Control& control);
    /// Enter in a box.
    void PressEnter(controls::Control& control);
    /// Types into the address row and presses Enter.
    void GoTo(std::string_view address);
    /// Lets time go by: what plays runs on, and timers tick.
    void Wait(int milliseconds);
    /// Lets every page that is under way arrive.
    void LetPagesArrive();
    /// The page engine of a tab, null while it has none.
    fakes::FakeBrowserControl* PageOf(int tab);

    window::BrowserForm& Browser() { return windows.frmBrowser; }
    /// Texts of the boxes that were shown.
    std::vector<std::string> BoxTexts() const;
    /// The rows of a list.
    static std::vector<std::string> RowsOf(const controls::ListBox& list);

    Computer& computer;
    fakes::FakeDesktop desktop;
    fakes::FakeDialogs dialogs;
    fakes::RecordingWindowShape shape;
    MiddleChance chance;
    NoWindowPlaces places;
    fakes::FakeInstanceLock instance;
    fakes::FakeMessenger messenger;
    fakes::FakeNowPlayingBoard board;
    fakes::FakeScreenSaver screen_saver;
    fakes::RecordingPageEngine pages;
    fakes::FakePrograms programs;
    bool ended = false;

private:
    void GiveEnginesToPagesThatShow();
    void TakePagesAway();

    std::vector<std::unique_ptr<fakes::FakeBrowserControl>> engines_;

public:
    window::Windows windows;
    window::MainWindow main_window;
};

}  // namespace scenario
