// The real engine, loaded as the program loads it, in a window of a test.
#pragma once

#include <QTemporaryDir>
#include <QWidget>
#include <memory>
#include <string>
#include <vector>

#include "contracts/BrowserWorld.h"
#include "controls/WebBrowser.h"
#include "platform/webengine/PageModule.h"
#include "platform/webengine/PageServer.h"
#include "ports/NoticeBoard.h"

namespace webengine_tests {

/// One factory for the whole test program: there is one engine in a process. A user who keeps no history is
/// logged in.
qt::PageFactory& Factory();
/// Answers for every host but those of this computer.
PageServer& Net();
/// Where its downloads go.
QString DownloadFolder();
/// What was handed over: "play" or "add" to the player, "show" to the file manager; a blank and the path.
std::vector<std::string>& Intake();
/// A desktop that shows whatever it is given.
class RecordingNotices final : public ports::NoticeBoard {
public:
    int Show(ports::Notice notice) override {
        Shown.push_back(std::move(notice));
        return static_cast<int>(Shown.size());
    }
    void Close(int ticket) override { Closed.push_back(ticket); }

    std::vector<ports::Notice> Shown;
    std::vector<int> Closed;
};
RecordingNotices& Notices();
/// Where its users' folders are.
QString UsersFolder();
/// Lets the loop run until `done`; false after twenty seconds.
bool WaitFor(const std::function<bool()>& done);

class EngineWorld final : public contracts::BrowserWorld {
public:
    EngineWorld();
    ports::BrowserControl& Browser() override { return *browser_; }
    ports::BrowserControl& Other() override;
    bool WaitFor(const std::function<bool()>& done) override { return webengine_tests::WaitFor(done); }

    /// After ForgetVisits: another page in the place of the one that went.
    void Renew() { browser_ = Factory().MakePage(control_, &window_); }

    /// A click in the middle of the page that was made last, as a hand makes it; false without one.
    bool PressInPage();

    PageServer& Server() { return server_; }
    QTemporaryDir& Folder() { return folder_; }
    QWidget& Window() { return window_; }
    /// A control of the window, for what the controls promise over an engine.
    controls::WebBrowser& Control() { return control_; }

private:
    PageServer server_;
    QTemporaryDir folder_;
    QWidget window_;
    controls::WebBrowser control_{"Browser"};
    ports::BrowserControl* browser_ = nullptr;
    ports::BrowserControl* other_ = nullptr;
};

}  // namespace webengine_tests
