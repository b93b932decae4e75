#include "platform/webengine/EngineWorld.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QMouseEvent>
#include <QNetworkProxy>

#include "base/Text.h"

namespace webengine_tests {

namespace {

std::string NativePath(std::string_view path) {
    return base::Replace(base::Mid(path, 3), "\\", "/");
}

/// A minute of the program is half a second here.
constexpr webengine::RestTimes kRest{.covered = std::chrono::milliseconds(400),
                                     .closed = std::chrono::milliseconds(1500),
                                     .most_covered = 1,
                                     .most_closed = 2,
                                     .clearing_up = std::chrono::milliseconds(100),
                                     .spare = std::chrono::milliseconds(100)};

QTemporaryDir& Downloads() {
    static QTemporaryDir folder;
    return folder;
}

webengine::PageSettings SettingsOfTest() {
    return {.download_folder = DownloadFolder().toStdString(),
            .to_native_path = &NativePath,
            .add_to_library = [](const std::string& file) { Intake().push_back("add " + file); },
            .play = [](const std::string& file) { Intake().push_back("play " + file); },
            .notices = &Notices(),
            .add_to_favourites = [] { Intake().emplace_back("favourite"); },
            .rest = kRest,
            .patience_with_https = std::chrono::milliseconds(400),
            .show_file = [](const std::string& file,
                            const std::function<void()>&) { Intake().push_back("show " + file); },
            .users_folder = UsersFolder().toStdString()};
}

void WritePage(const QString& path, const QByteArray& text) {
    QFile file(path);
    if (file.open(QIODevice::WriteOnly)) file.write(text);
}

}  // namespace

QString DownloadFolder() {
    return Downloads().path();
}

RecordingNotices& Notices() {
    static RecordingNotices notices;
    return notices;
}

std::vector<std::string>& Intake() {
    static std::vector<std::string> handed_over;
    return handed_over;
}

QString UsersFolder() {
    return Downloads().filePath(QStringLiteral("users"));
}

PageServer& Net() {
    static PageServer net;
    return net;
}

// It ends with the application object, and before the engine, which is begun before this is noted.
qt::PageFactory& Factory() {
    static std::unique_ptr<qt::PageFactory> factory;
    if (factory != nullptr) return *factory;
    QNetworkProxy::setApplicationProxy(
        QNetworkProxy(QNetworkProxy::HttpProxy, QStringLiteral("127.0.0.1"), Net().serverPort()));
    factory = webengine::LoadPages(BRINDLEPOST_PAGES_DIR, SettingsOfTest());
    factory->BeginUser("owl", false);
    qAddPostRoutine([] { factory.reset(); });
    return *factory;
}

bool WaitFor(const std::function<bool()>& done) {
    QElapsedTimer clock;
    clock.start();
    while (!done()) {
        if (clock.hasExpired(20000)) return false;
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents, 50);
    }
    return true;
}

EngineWorld::EngineWorld() {
    Site = server_.Address();
    PageServer dead;
    DeadSite = dead.Address();
    dead.close();
    server_.Pages["/plain"] = {"<title>Plain words</title>plain"};
    server_.Pages["/other"] = {"<title>Other words</title>other"};
    server_.Pages["/untitled"] = {"<p>words</p>"};
    server_.Pages["/frames"] = {
        "<title>Frames</title><iframe src='/plain'></iframe><iframe src='/untitled'></iframe>"};
    server_.Pages["/pops"] = {"<title>Pops</title><script>window.open('/other')</script>"};
    Net().Pages = server_.Pages;
    Net().Pages["/form"] = {
        "<title>Form</title><form name=theForm action=/other><input name=email><input name=word></form>"};
    server_.Pages["/inside"] = {
        "<title>Inside</title><script>onload = () => setTimeout(() => location.hash = 'end', 50)</script>"};
    for (const char* name : {"owl", "lark"})
        Net().Pages["/other?email=" + QByteArray(name) + "&word=hoot"] = server_.Pages["/other"];
    const QString page = folder_.filePath(QStringLiteral("local.html"));
    WritePage(page, "<title>Local words</title>local");
    Local = "C:" + base::Replace(page.toStdString(), "/", "\\");
    LocalAddress = "file://" + page.toStdString();
    window_.resize(640, 480);
    window_.show();
    browser_ = Factory().MakePage(control_, &window_);
}

bool EngineWorld::PressInPage() {
    QWidget* target = nullptr;
    for (QWidget* widget : window_.findChildren<QWidget*>()) {
        if (widget->inherits("QWebEngineView")) target = widget->focusProxy();
    }
    if (target == nullptr) return false;
    const QPointF at(target->rect().center());
    const QPointF on_screen(target->mapToGlobal(at));
    QMouseEvent move(QEvent::MouseMove, at, on_screen, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QMouseEvent press(QEvent::MouseButtonPress, at, on_screen, Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QMouseEvent release(QEvent::MouseButtonRelease, at, on_screen, Qt::LeftButton, Qt::NoButton,
                        Qt::NoModifier);
    QApplication::sendEvent(target, &move);
    QApplication::sendEvent(target, &press);
    QApplication::sendEvent(target, &release);
    return true;
}

ports::BrowserControl& EngineWorld::Other() {
    if (other_ == nullptr) other_ = Factory().MakePage(control_, &window_);
    return *other_;
}

}  // namespace webengine_tests
