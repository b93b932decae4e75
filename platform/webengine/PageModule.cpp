#include "platform/webengine/PageModule.h"

#include <sched.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QLibrary>
#include <cerrno>

#include "platform/webengine/NoticePage.h"
#include "platform/webengine/SharedContext.h"

namespace webengine {

namespace {

constexpr const char* kEngineFlags = "--disable-features=HardwareMediaKeyHandling";

constexpr const char* kModule = "/brindlepost_pages.so";

using MakePageFactory = qt::PageFactory* (*)(const PageSettings&);

/// Tries what the sandbox does first, in a process that ends at once.
bool HasUserNamespaces() {
    const pid_t child = fork();
    if (child < 0) return false;
    if (child == 0) _exit(unshare(CLONE_NEWUSER) == 0 ? 0 : 1);
    int status = 0;
    while (waitpid(child, &status, 0) < 0) {
        if (errno != EINTR) return false;
    }
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

void SetEngineEnvironment(const PageSettings& settings) {
    qputenv("QTWEBENGINE_CHROMIUM_FLAGS", kEngineFlags);
    // Pages tell a screen reader what is in them as long as the desktop says that there is one. To tell it
    // always would cost every page its time and memory a second time.
    qputenv("QTWEBENGINE_ENABLE_LINUX_ACCESSIBILITY", "1");
    for (const char* name : {"QTWEBENGINE_REMOTE_DEBUGGING", "QTWEBENGINEPROCESS_PATH",
                             "QTWEBENGINE_RESOURCES_PATH", "QTWEBENGINE_LOCALES_PATH", "SSLKEYLOGFILE"}) {
        qunsetenv(name);
    }
    if (geteuid() != 0) qunsetenv("QTWEBENGINE_DISABLE_SANDBOX");
    if (settings.dictionary_folder.empty()) {
        qunsetenv("QTWEBENGINE_DICTIONARIES_PATH");
    } else {
        qputenv("QTWEBENGINE_DICTIONARIES_PATH", QByteArray::fromStdString(settings.dictionary_folder));
    }
}

/// The module that lies in `folder`, not loaded yet. As it is loaded, the engine looks for its context.
class EngineModule final : public QLibrary {
public:
    explicit EngineModule(const std::string& folder) : QLibrary(QString::fromStdString(folder + kModule)) {
        // The engine cannot be unloaded: threads of it run until the process ends.
        setLoadHints(QLibrary::PreventUnloadHint);
        MakeSharedContext();
    }
};

/// Root cannot have a sandbox; whoever starts the program as root may say that pages shall show all the same.
bool IsRootWithoutSandbox() {
    return geteuid() == 0 && qgetenv("QTWEBENGINE_DISABLE_SANDBOX") == "1";
}

}  // namespace

std::string WhyNoPages() {
    if (IsRootWithoutSandbox()) return {};
    const bool is_root = geteuid() == 0;
    return WhyNoPages(is_root, !is_root && HasUserNamespaces());
}

std::string WhyNoPages(bool is_root, bool has_user_namespaces) {
    if (is_root) {
        return "Web pages are not shown to the administrator (root): the page engine cannot protect the "
               "system from a "
               "page there. Start Brindlepost as an ordinary user.";
    }
    if (!has_user_namespaces) {
        return "Web pages cannot be shown: this system does not let a program put pages into a sandbox of "
               "their own "
               "(user namespaces are switched off).";
    }
    return {};
}

std::string EngineVersion(const std::string& folder) {
    EngineModule module(folder);
    const auto version = reinterpret_cast<const char* (*)()>(module.resolve("BrindlepostPageEngineVersion"));
    return version != nullptr ? version() : "";
}

void PreparePages() {
    if (WhyNoPages().empty()) MakeSharedContext();
}

std::unique_ptr<qt::PageFactory> LoadPages(const std::string& folder, const PageSettings& settings) {
    const std::string reason = WhyNoPages();
    if (!reason.empty()) return std::make_unique<NoticeFactory>(reason);
    SetEngineEnvironment(settings);
    EngineModule module(folder);
    const auto make = reinterpret_cast<MakePageFactory>(module.resolve("BrindlepostMakePageFactory"));
    if (make == nullptr) {
        return std::make_unique<NoticeFactory>("Web pages cannot be shown: " +
                                               module.errorString().toStdString());
    }
    return std::unique_ptr<qt::PageFactory>(make(settings));
}

}  // namespace webengine
