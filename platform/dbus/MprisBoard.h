// The one media player of this program on the session bus: org.mpris.MediaPlayer2.brindlepost, or, when
// another instance has that name, the same with ".instance" and the process number appended.
#pragma once

#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QObject>
#include <QVariantMap>

#include "platform/dbus/SessionBus.h"
#include "ports/NowPlaying.h"

namespace dbus {

class MprisPlayer;

class MprisBoard final : public QObject, public ports::NowPlayingBoard {
public:
    /// Appears once the bus is joined.
    explicit MprisBoard(SessionBus& bus);
    ~MprisBoard() override { bus_.WaitForAnswers(); }
    MprisBoard(const MprisBoard&) = delete;
    MprisBoard& operator=(const MprisBoard&) = delete;

    // ports::NowPlayingBoard
    void SetListener(ports::RemoteControl* listener) override { listener_ = listener; }
    void Show(const ports::NowPlaying& now) override;
    void ShowJump(std::int64_t position) override;

    // For the interfaces.
    const ports::NowPlaying& Shown() const { return shown_; }
    ports::RemoteControl* Listener() const { return listener_; }
    /// Answers a call at once.
    void Answer(const QDBusMessage& call);
    void Refuse(const QDBusMessage& call, const QString& why);
    /// Answers a call, then does what it asks for.
    void CarryOut(const QDBusMessage& call, void (ports::RemoteControl::*verb)());

private:
    void Appear();
    void RequestName(const QString& name, const QString& otherwise);
    void SignalTracks();
    void Signal(const QString& interface, const QString& name, const QVariantList& arguments);

    SessionBus& bus_;
    ports::RemoteControl* listener_ = nullptr;
    ports::NowPlaying shown_;
};

/// "Playing", "Paused", "Stopped".
QString StatusText(ports::PlaybackStatus status);
/// "Track" for one that repeats, else "Playlist".
QString LoopText(bool repeats);
QVariantMap MetadataOf(const ports::NowPlaying& now);
QVariantMap MetadataOf(const ports::ListedTrack& track);
/// The paths that name tracks.
QList<QDBusObjectPath> PathsOf(const std::vector<std::int64_t>& tracks);
/// The track that a path names; -1 when it names none.
std::int64_t TrackOf(const QDBusObjectPath& path);

}  // namespace dbus
