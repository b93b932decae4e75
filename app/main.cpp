// Builds everything, in order, and runs it.
//
// The page engine and the media engine take a tenth of a second to load, so both come after the first window
// has been painted: the pages as a module when a page is wanted or likely, the media engine in two processes
// of its own.

#include <QIcon>
#include <QSocketNotifier>
#include <QStandardPaths>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/dbus/BusAppearance.h"
#include "platform/dbus/BusFileManager.h"
#include "platform/dbus/BusMessenger.h"
#include "platform/dbus/BusNotices.h"
#include "platform/dbus/BusPriority.h"
#include "platform/dbus/BusScreenSaver.h"
#include "platform/dbus/MprisBoard.h"
#include "platform/dbus/SilentBus.h"
#include "platform/decoder/MediaProcesses.h"
#include "platform/gstreamer/Threads.h"
#include "platform/linux/CommandLine.h"
#include "platform/linux/CommandText.h"
#include "platform/linux/CrashReport.h"
#include "platform/linux/DriveLetters.h"
#include "platform/linux/EndSignal.h"
#include "platform/linux/KeptFiles.h"
#include "platform/linux/LinuxFiles.h"
#include "platform/linux/LinuxInstanceLock.h"
#include "platform/linux/LinuxRegistry.h"
#include "platform/linux/MessageTap.h"
#include "platform/linux/PlaceOfStores.h"
#include "platform/linux/RunLog.h"
#include "platform/linux/SystemClock.h"
#include "platform/qt/Activation.h"
#include "platform/qt/Boxes.h"
#include "platform/qt/DesktopPrograms.h"
#include "platform/qt/DesktopWindows.h"
#include "platform/qt/DesktopWishes.h"
#include "platform/qt/Environment.h"
#include "platform/qt/Loop.h"
#include "platform/qt/Messages.h"
#include "platform/qt/OpenFile.h"
#include "platform/qt/ScaledPictures.h"
#include "platform/qt/Screen.h"
#include "platform/qt/SkinStyle.h"
#include "platform/sqlite/BringUp.h"
#include "platform/sqlite/SqliteDatabase.h"
#include "platform/webengine/PageModule.h"
#include "platform/webengine/SpellCheck.h"
#include "platform/webengine/UserFolder.h"
#include "store/StoreWords.h"
#include "web/Addresses.h"
#include "window/MainWindow.h"

namespace {

constexpr int kNoDisplay = 2;
constexpr int kNoLock = 3;
constexpr int kNoStores = 4;

std::string FolderOf(const std::string& file) {
    return std::filesystem::path(file).parent_path().string();
}

/// The pages come when the first one is wanted, which is after the main window is there.
webengine::PageSettings SettingsOfPages(std::function<std::string(std::string_view)> to_native,
                                        ports::NoticeBoard& notices, window::MainWindow* const& house) {
    return {
        .download_folder = QStandardPaths::writableLocation(QStandardPaths::DownloadLocation).toStdString(),
        .to_native_path = std::move(to_native),
        .add_to_library = [&house](const std::string& file) { house->AddToLibrary(file); },
        .play = [&house](const std::string& file) { house->Play(file); },
        .import_favourites = [&house](std::string_view bytes) { return house->Favourites().Import(bytes); },
        .export_favourites = [&house] { return house->Favourites().Export(); },
        .notices = &notices,
        .search_form = web::SearchAddress(webengine::kSearchWords),
        .add_to_favourites = [&house] { house->AddPageToFavourites(); },
        .dictionary_folder = webengine::DictionaryFolder().toStdString()};
}

/// The programs of the desktop that are spoken to.
struct OnTheBus {
    /// `silent_bus` is one that the toolkit was kept away from; empty for the desktop's own.
    OnTheBus(const QString& silent_bus, const qt::DesktopWishes& wishes) : bus(silent_bus) {
        appearance.OnContrast = [by_theme = wishes.high_contrast](bool high) {
            qt::ChangeContrast(by_theme || high);
        };
    }

    dbus::SessionBus bus;
    dbus::BusMessenger messenger{bus};
    dbus::MprisBoard board{bus};
    dbus::BusScreenSaver screen_saver{bus};
    dbus::BusNotices notices{bus};
    dbus::BusFileManager file_manager{bus};
    dbus::BusAppearance appearance{bus};
};

/// What is kept of a run, for the user and for the start after it. Only the run that has the stores keeps
/// any.
struct Records {
    Records(const std::string& stores_folder, ports::Instance answer)
        : log(answer == ports::Instance::First ? linux::FoldersOfUser().state : std::string(),
              stores_folder) {
        using End = linux::RunLog::LastRun::End;
        linux::RunLog::Note("Brindlepost " + window::MainWindow::Version() + ", Qt " + qVersion());
        if (log.Last().end == End::Crashed) linux::RunLog::Note("the run before crashed");
        if (log.Last().end == End::Unknown) linux::RunLog::Note("the run before did not end in order");
    }

    /// What the rooms are to know of it.
    session::StartFacts FactsOf(const linux::CommandLine& line, OnTheBus& desktop,
                                ports::Dialogs& boxes) const {
        session::StartFacts facts{.without_home_pages = line.without_home_pages};
        if (log.Last().end != linux::RunLog::LastRun::End::Crashed) return facts;
        const std::string report = log.Last().file;
        facts.crash_report = report;
        facts.show_report = [report, &desktop, &boxes] {
            desktop.file_manager.Show(report, [report, &boxes] {
                qt::OpenFileWithDesktop(report, [report, &boxes] {
                    boxes.MsgBox("No program was found that shows the report. It is this file:\n\n" + report,
                                 ports::BoxButtons::Ok, "Brindlepost", ports::BoxIcon::Information);
                });
            });
        };
        facts.tell_left_closed = [show = facts.show_report, &desktop] {
            desktop.notices.Show({.title = "Brindlepost crashed last time",
                                  .words = "The home pages were left closed. Press here for the report.",
                                  .clicked = show,
                                  .closed = {}});
        };
        return facts;
    }

    bool HasCrashedBefore() const { return log.Last().end == linux::RunLog::LastRun::End::Crashed; }

    linux::RunLog log;
    linux::CrashReport crash{log.Number()};
    linux::MessageTap tap;
    qt::Messages messages{&linux::RunLog::TakeMessage};
};

/// A later start reads what the run that has the stores keeps.
linux::DriveLetters LettersOfDrives(ports::KeptTexts& kept, ports::Instance answer) {
    using Keeping = linux::DriveLetters::Keeping;
    return {kept, answer == ports::Instance::First ? Keeping::ReadAndWrite : Keeping::ReadOnly};
}

/// What the page engine has of the program, and the program of the engine.
class PageEnds final {
public:
    PageEnds(const std::function<std::string(std::string_view)>& to_native, OnTheBus& desktop,
             const std::string& folder, bool crashed_before)
        : folder_(folder),
          crashed_before_(crashed_before),
          settings_(SettingsOfPages(to_native, desktop.notices, house_)),
          kept_(OfAllUsers()) {
        settings_.users_folder = OfAllUsers();
        settings_.show_file = [&desktop](const std::string& file, std::function<void()> otherwise) {
            desktop.file_manager.Show(file, std::move(otherwise));
        };
    }
    PageEnds(const PageEnds&) = delete;
    PageEnds& operator=(const PageEnds&) = delete;

    qt::ScreenOptions Options(const ports::Files& files) {
        return {folder_,
                [&files](const std::string& native) { return files.FromNative(native); },
                [this] {
                    linux::RunLog::Note("pages begin");
                    auto pages = webengine::LoadPages(folder_, settings_);
                    // The engine may have taken the signals of a crash.
                    linux::CrashReport::Renew();
                    return pages;
                },
                [this](std::string_view user) { kept_.RemoveEngines(user); },
                [this](std::string_view user) { kept_.Remove(user); },
                [this] { return webengine::EngineVersion(folder_); },
                [&files](const std::string& native) { return files.IsFolder(files.FromNative(native)); },
                {.is_likely =
                     [this](std::string_view user) {
                         // Of an engine that ended the run before nothing is begun that nobody asked for.
                         return !crashed_before_ && kept_.HasEngine(user);
                     },
                 .prepare = &webengine::PreparePages}};
    }
    void Know(window::MainWindow& house) { house_ = &house; }

private:
    std::string OfAllUsers() const {
        return webengine::UserFolder::OfAllUsers(linux::FoldersOfUser().data, folder_);
    }

    const std::string folder_;
    const bool crashed_before_;
    window::MainWindow* house_ = nullptr;
    webengine::PageSettings settings_;
    const webengine::UserFolder kept_;
};

int NoDisplay(const std::string& what) {
    std::fprintf(stderr, "Brindlepost: %s\n", what.c_str());
    return kNoDisplay;
}

/// The toolkit loads what it has for pictures of any kind before it reads the first one, so no window waits
/// for this. Those that are there take it.
void ShowIcon() {
    const std::string file = FolderOf(linux::RunningProgram()) + "/images/brindlepost.png";
    QApplication::setWindowIcon(QIcon(QString::fromStdString(file)));
}

int EndWith(int code, const std::string& trouble, ports::Dialogs& boxes) {
    ShowIcon();
    boxes.MsgBox(trouble, ports::BoxButtons::Ok, "Brindlepost", ports::BoxIcon::Critical);
    return code;
}

std::string WordsFor(const sqlite::UnfitStore& store) {
    if (store.version == 0) return store::OlderStoreMessage(store.file, store.result);
    return store::NewerStoreMessage(store.file, store.version, store.known, store.copy);
}

/// The exit code of a start that cannot go on, which has been told; kDone when it can.
int RefuseStart(const linux::PlaceOfStores& stores, linux::LinuxInstanceLock& instance,
                ports::Dialogs& boxes) {
    if (!stores.trouble.empty()) return EndWith(kNoStores, stores.trouble, boxes);
    const ports::Instance answer = instance.TryBecomeFirst();
    if (answer == ports::Instance::Failed) return EndWith(kNoLock, instance.Failure(), boxes);
    // A later start opens no store.
    if (answer == ports::Instance::Second) return linux::kDone;
    const auto unfit = sqlite::BringUpStores(stores.folder);
    return unfit ? EndWith(kNoStores, WordsFor(*unfit), boxes) : linux::kDone;
}

/// What comes from outside while the program runs: later starts, and signals that end it.
class Doorbells final {
public:
    Doorbells(linux::LinuxInstanceLock& instance, window::MainWindow& main_window)
        : end_(linux::EndSignal::FileDescriptor(), QSocketNotifier::Read) {
        // A start that is a later one itself, and ends by what it is about to hand over, has none to hear.
        if (const int later_starts = instance.FileDescriptor(); later_starts >= 0) {
            hand_over_.emplace(later_starts, QSocketNotifier::Read);
            QObject::connect(&*hand_over_, &QSocketNotifier::activated, &*hand_over_,
                             [&instance] { instance.Serve(); });
        }
        QObject::connect(&end_, &QSocketNotifier::activated, &end_, [this, &main_window] {
            end_.setEnabled(false);
            main_window.End();
        });
    }

private:
    std::optional<QSocketNotifier> hand_over_;
    QSocketNotifier end_;
};

int Say(std::FILE* where, const std::string& text, int code) {
    if (!text.empty()) std::fprintf(where, "%s\n", text.c_str());
    return code;
}

/// What an option of the command line comes to; the program that runs answers those of the player.
int AnswerOption(const linux::CommandLine& line) {
    using Kind = linux::CommandLine::Kind;
    if (line.kind == Kind::Help) return Say(stdout, linux::HelpText(), linux::kDone);
    if (line.kind == Kind::Version)
        return Say(stdout, "Brindlepost " + window::MainWindow::Version(), linux::kDone);
    if (line.kind == Kind::Wrong)
        return Say(stderr, "Brindlepost: " + line.trouble + " --help tells what there is.", linux::kWrongUse);
    const std::string folder = FolderOf(linux::RunningProgram());
    linux::LinuxInstanceLock instance(linux::FindPlaceOfStores(folder, linux::FoldersOfUser().data).folder);
    const auto answer = instance.AskFirst(line.option);
    if (!answer) return Say(stderr, "Brindlepost does not run.", linux::kNotRunning);
    return Say(answer->exit_code == linux::kDone ? stdout : stderr, answer->text, answer->exit_code);
}

/// What there has to be before anything starts a thread.
void PrepareProcess() {
    linux::LinuxInstanceLock::MakeRoom();
    qt::PrepareEnvironment();
}

/// What the toolkit has to know before its application is made.
qt::DesktopWishes PrepareToolkit() {
    const qt::DesktopWishes wishes = qt::WishesOfDesktop();
    qt::TakeLetters(wishes);
    return wishes;
}

int RunProgram(const char* name, const linux::CommandLine& line) {
    PrepareProcess();
    const QString silent_bus = dbus::LeaveSilentBus();
    const std::string startup_id = qt::StartupIdOfProcess();
    if (const std::string missing = qt::MissingDisplay(); !missing.empty()) return NoDisplay(missing);

    const std::string program = linux::RunningProgram();
    const std::string folder = FolderOf(program);
    const linux::PlaceOfStores stores = linux::FindPlaceOfStores(folder, linux::FoldersOfUser().data);

    const qt::DesktopWishes wishes = PrepareToolkit();
    qt::Loop loop;
    const qt::Application application(name, loop, wishes);
    qt::Boxes boxes(loop);

    linux::LinuxInstanceLock instance(stores.folder, startup_id);
    if (const int refusal = RefuseStart(stores, instance, boxes); refusal != linux::kDone) return refusal;

    Records records(stores.folder, instance.Answer());
    linux::KeptFiles kept(linux::KeptFiles::FolderOf(linux::FoldersOfUser().data, stores.folder));
    linux::LinuxFiles files(program, stores.folder, LettersOfDrives(kept, instance.Answer()));
    const std::string command = linux::CommandText(line.arguments, linux::WorkingFolder(), files);
    const auto to_native = [&files](std::string_view path) { return files.ToNative(path); };
    const auto from_native = [&files](std::string_view path) { return files.FromNative(path); };
    linux::LinuxRegistry registry(files, linux::FoldersOfUser());
    const linux::EndSignal end_signal;
    linux::SystemClock clock;
    linux::RandomChance chance;
    sqlite::SqliteDatabase database(to_native);
    decoder::MediaProcesses media(folder + "/brindlepost-media", to_native, dbus::RaiseThread,
                                  records.tap.Number());
    qt::ScaledPictures pictures(media);
    qt::DesktopWindows window_services;
    qt::DesktopPrograms programs({to_native, from_native});
    OnTheBus desktop(silent_bus, wishes);

    window::Windows windows(files);
    PageEnds pages(to_native, desktop, folder, records.HasCrashedBefore());
    qt::Screen screen(loop, pages.Options(files));
    screen.AfterFirstPaint = [&media, &desktop] {
        ShowIcon();
        media.WarmUp();
        desktop.bus.Join();
    };
    instance.OnStartupId = [&screen](const std::string& id) { screen.ExpectToFront(id); };
    for (controls::Form* form : windows.All())
        screen.Adopt(*form);
    qt::MainWindowShape window_shape(screen, windows.frmBrowser);

    const std::string program_folder = files.FromNative(folder);
    window::MainWindow main_window(
        windows,
        {database, files, pictures, window_services, window_shape, boxes, loop, clock, chance, instance,
         desktop.messenger, desktop.board, desktop.screen_saver, screen, registry, programs, kept,
         program_folder, records.FactsOf(line, desktop, boxes)},
        command, [&loop] { loop.Quit(); });
    pages.Know(main_window);
    const Doorbells doorbells(instance, main_window);
    main_window.Start();
    return records.log.End(loop.Run());
}

}  // namespace

int main(int argc, char** argv) {
    linux::CommandLine line = linux::ReadCommandLine({argv + 1, argv + argc});
    if (line.kind == linux::CommandLine::Kind::NewTab) {
        line = {.arguments = {std::string(web::MakerSiteUrl)}};
    }
    if (line.kind != linux::CommandLine::Kind::Open) return AnswerOption(line);
    const int code = RunProgram(argv[0], line);
    // A thread that a frozen disk holds must not meet exit handlers at work.
    if (gstreamer::Threads::HasGivenUp()) std::_Exit(code);
    return code;
}
