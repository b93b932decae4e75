// Messengers, player controls and screen saver on a real bus keep to their contracts.
#include <signal.h>

#include <QDBusArgument>
#include <QDBusObjectPath>
#include <QProcess>
#include <QUrl>
#include <optional>

#include "contracts/MessengerContract.h"
#include "contracts/NowPlayingContract.h"
#include "contracts/ScreenSaverContract.h"
#include "platform/dbus/BusBench.h"
#include "platform/dbus/BusMessenger.h"
#include "platform/dbus/BusScreenSaver.h"
#include "platform/dbus/MprisBoard.h"

namespace contracts {
namespace {

using dbus_tests::MessengerPeer;
using dbus_tests::PlayerWatcher;
using dbus_tests::PrivateBus;
using dbus_tests::SaverService;

QString Text(const std::string& text) {
    return QString::fromStdString(text);
}

/// Goes out behind everything else, so whoever has it has it all.
constexpr std::uint32_t kLast = 0xFFFFFFFF;

constexpr const char* kDeafProgram = R"(
import gi, sys
from gi.repository import Gio, GLib
def acquired(*_):
    print("there", flush=True)
Gio.bus_own_name(Gio.BusType.SESSION, sys.argv[1], Gio.BusNameOwnerFlags.NONE, None, acquired, None)
GLib.MainLoop().run()
)";

class BusMessengerBench final : public MessengerBench {
public:
    BusMessengerBench() { dbus_tests::JoinNow(session_); }
    ~BusMessengerBench() override {
        if (deaf_.state() == QProcess::NotRunning) return;
        deaf_.kill();
        deaf_.waitForFinished(5000);
    }

    ports::Messenger& Messenger() override { return messenger_; }
    std::size_t OpenWindow(const std::string& window_class) override {
        // Whoever asks for windows later finds it, whoever asked before does not.
        session_.WaitForAnswers();
        const QString name = Text(window_class) + QStringLiteral(".Window%1").arg(windows_.size());
        windows_.push_back(std::make_unique<MessengerPeer>(bus_, name, Text(window_class)));
        classes_.push_back(Text(window_class));
        return windows_.size() - 1;
    }
    void OpenDeafWindow(const std::string& window_class) override {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), bus_.Address());
        deaf_.setProcessEnvironment(environment);
        deaf_.start(QStringLiteral("/usr/bin/python3"),
                    {QStringLiteral("-c"), QString::fromLatin1(kDeafProgram), Text(window_class + ".Deaf")});
        EXPECT_TRUE(deaf_.waitForReadyRead(10000)) << deaf_.readAllStandardError().toStdString();
        ::kill(static_cast<pid_t>(deaf_.processId()), SIGSTOP);
    }
    std::vector<ports::CopyData> ReceivedBy(std::size_t window) override {
        session_.WaitForAnswers();
        const auto& received = windows_[window]->Received();
        QDBusMessage last = QDBusMessage::createMethodCall(
            windows_[window]->Name(), QStringLiteral("/") + classes_[window],
            QStringLiteral("MsnMsgrUIManager.Window"), QStringLiteral("CopyData"));
        session_.Tell(last << kLast << 0U << QByteArray());
        EXPECT_TRUE(dbus_tests::WaitFor(
            [&received] { return !received.empty() && received.back().dwData == kLast; }));
        return {received.begin(), received.end() - 1};
    }

private:
    PrivateBus bus_;
    std::vector<std::unique_ptr<MessengerPeer>> windows_;
    std::vector<QString> classes_;
    QProcess deaf_;
    dbus::SessionBus session_{bus_.Address()};
    dbus::BusMessenger messenger_{session_};
};

class BusNowPlayingBench final : public NowPlayingBench {
public:
    BusNowPlayingBench() {
        dbus_tests::JoinNow(session_);
        session_.WaitForAnswers();
    }

    ports::NowPlayingBoard& Board() override { return board_; }
    ports::NowPlaying Seen() override {
        const QVariantMap all = watcher_.All(QStringLiteral("org.mpris.MediaPlayer2.Player"));
        const auto flag = [&all](const char* name) { return all.value(QLatin1String(name)).toBool(); };
        ports::NowPlaying now;
        const QString status = all.value(QStringLiteral("PlaybackStatus")).toString();
        if (status == QStringLiteral("Playing")) now.status = ports::PlaybackStatus::Playing;
        if (status == QStringLiteral("Paused")) now.status = ports::PlaybackStatus::Paused;
        ReadTrack(qdbus_cast<QVariantMap>(all.value(QStringLiteral("Metadata"))), now);
        now.rate = all.value(QStringLiteral("Rate")).toDouble();
        now.volume = all.value(QStringLiteral("Volume")).toDouble();
        now.repeats = all.value(QStringLiteral("LoopStatus")).toString() == QStringLiteral("Track");
        now.shuffles = flag("Shuffle");
        const QVariantMap list = watcher_.All(QStringLiteral("org.mpris.MediaPlayer2.TrackList"));
        for (const auto& path : qdbus_cast<QList<QDBusObjectPath>>(list.value(QStringLiteral("Tracks"))))
            now.tracks.push_back(dbus::TrackOf(path));
        now.can_play = flag("CanPlay");
        now.can_pause = flag("CanPause");
        now.can_seek = flag("CanSeek");
        now.can_go_next = flag("CanGoNext");
        now.can_go_previous = flag("CanGoPrevious");
        return now;
    }
    int NewsTold() override {
        watcher_.Settle();
        return static_cast<int>(watcher_.News.size());
    }
    std::vector<std::int64_t> JumpsTold() override {
        watcher_.Settle();
        return {watcher_.Jumps.begin(), watcher_.Jumps.end()};
    }
    std::int64_t AskPosition() override { return watcher_.Get(QStringLiteral("Position")).toLongLong(); }
    void Ask(const std::string& verb) override {
        const std::map<std::string, std::string> methods = {
            {"play", "Player.Play"}, {"pause", "Player.Pause"}, {"play or pause", "Player.PlayPause"},
            {"stop", "Player.Stop"}, {"next", "Player.Next"},   {"previous", "Player.Previous"},
            {"raise", "Raise"},      {"quit", "Quit"}};
        EXPECT_EQ(watcher_.Call(Text(methods.at(verb))).type(), QDBusMessage::ReplyMessage) << verb;
    }
    void AskSeek(std::int64_t offset) override {
        watcher_.Call(QStringLiteral("Player.Seek"), {static_cast<qlonglong>(offset)});
    }
    void AskPosition(std::int64_t track, std::int64_t position) override {
        const QString path = QStringLiteral("/org/brindlepost/Brindlepost/Track/%1").arg(track);
        watcher_.Call(QStringLiteral("Player.SetPosition"),
                      {QVariant::fromValue(QDBusObjectPath(path)), static_cast<qlonglong>(position)});
    }
    void AskRate(double rate) override { watcher_.Set(QStringLiteral("Rate"), rate); }
    void AskVolume(double volume) override { watcher_.Set(QStringLiteral("Volume"), volume); }
    void AskRepeat(bool repeat) override {
        watcher_.Set(QStringLiteral("LoopStatus"), Text(repeat ? "Track" : "None"));
    }
    void AskShuffle(bool shuffle) override { watcher_.Set(QStringLiteral("Shuffle"), shuffle); }
    void AskGoTo(std::int64_t track) override {
        watcher_.Call(QStringLiteral("TrackList.GoTo"),
                      {QVariant::fromValue(dbus::PathsOf({track}).constFirst())});
    }
    std::vector<ports::ListedTrack> AskTracks(const std::vector<std::int64_t>& tracks) override {
        const QDBusMessage answer = watcher_.Call(QStringLiteral("TrackList.GetTracksMetadata"),
                                                  {QVariant::fromValue(dbus::PathsOf(tracks))});
        std::vector<ports::ListedTrack> described;
        const auto list = qdbus_cast<QList<QVariantMap>>(answer.arguments().value(0));
        for (const QVariantMap& data : list) {
            ports::NowPlaying now;
            ReadTrack(data, now);
            described.push_back(
                {.track = now.track, .title = now.title, .artist = now.artist, .path = now.path});
        }
        return described;
    }

private:
    static void ReadTrack(const QVariantMap& data, ports::NowPlaying& now) {
        const auto path = data.value(QStringLiteral("mpris:trackid")).value<QDBusObjectPath>();
        now.track = std::max<std::int64_t>(dbus::TrackOf(path), 0);
        now.title = data.value(QStringLiteral("xesam:title")).toString().toStdString();
        now.artist =
            data.value(QStringLiteral("xesam:artist")).toStringList().join(QLatin1Char(';')).toStdString();
        now.path = QUrl(data.value(QStringLiteral("xesam:url")).toString()).toLocalFile().toStdString();
        now.art = QUrl(data.value(QStringLiteral("mpris:artUrl")).toString()).toLocalFile().toStdString();
        now.length = data.value(QStringLiteral("mpris:length")).toLongLong();
    }

    PrivateBus bus_;
    dbus::SessionBus session_{bus_.Address()};
    dbus::MprisBoard board_{session_};
    PlayerWatcher watcher_{bus_, QStringLiteral("org.mpris.MediaPlayer2.brindlepost")};
};

class BusScreenSaverBench final : public ScreenSaverBench {
public:
    BusScreenSaverBench() { dbus_tests::JoinNow(*session_); }

    ports::ScreenSaver& Saver() override { return *saver_; }
    bool MayGoDark() override {
        if (session_) {
            session_->WaitForAnswers();
            // Whatever was told before this is there once it is answered.
            session_->Ask(QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.ScreenSaver"),
                                                         QStringLiteral("/org/freedesktop/ScreenSaver"),
                                                         QStringLiteral("org.freedesktop.ScreenSaver"),
                                                         QStringLiteral("UnInhibit"))
                              << 0U,
                          [](const QDBusMessage&) {});
            session_->WaitForAnswers();
            return service_.Promises() == 0;
        }
        return dbus_tests::WaitFor([this] { return service_.Promises() == 0; });
    }
    void EndProgram() override {
        saver_.reset();
        session_.reset();
    }

private:
    PrivateBus bus_;
    SaverService service_{bus_, SaverService::Kind::ScreenSaver};
    std::optional<dbus::SessionBus> session_{std::in_place, bus_.Address()};
    std::optional<dbus::BusScreenSaver> saver_{std::in_place, *session_};
};

INSTANTIATE_TEST_SUITE_P(Bus, MessengerContract, testing::Values(MakeMessengerBench([] {
                             return std::make_unique<BusMessengerBench>();
                         })),
                         [](const auto&) { return "Bus"; });
INSTANTIATE_TEST_SUITE_P(Bus, NowPlayingContract, testing::Values(MakeNowPlayingBench([] {
                             return std::make_unique<BusNowPlayingBench>();
                         })),
                         [](const auto&) { return "Bus"; });
INSTANTIATE_TEST_SUITE_P(Bus, ScreenSaverContract, testing::Values(MakeScreenSaverBench([] {
                             return std::make_unique<BusScreenSaverBench>();
                         })),
                         [](const auto&) { return "Bus"; });

}  // namespace
}  // namespace contracts
