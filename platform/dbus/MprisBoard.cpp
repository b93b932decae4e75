#include "platform/dbus/MprisBoard.h"

#include <unistd.h>

#include <QStringList>
#include <algorithm>

#include "platform/dbus/MprisInterfaces.h"

namespace dbus {
namespace {

QString ObjectPath() {
    return QStringLiteral("/org/mpris/MediaPlayer2");
}

QString BusName() {
    return QStringLiteral("org.mpris.MediaPlayer2.brindlepost");
}

QString PlayerInterface() {
    return QStringLiteral("org.mpris.MediaPlayer2.Player");
}

QString TrackListInterface() {
    return QStringLiteral("org.mpris.MediaPlayer2.TrackList");
}

QString TrackPrefix() {
    return QStringLiteral("/org/brindlepost/Brindlepost/Track/");
}

/// The interface's name for no track at all.
QString NoTrack() {
    return QStringLiteral("/org/mpris/MediaPlayer2/TrackList/NoTrack");
}

constexpr std::uint32_t kDoNotQueue = 4;
constexpr std::uint32_t kOwner = 1;

/// By its bytes, so that any file of the system has an address.
QString AddressOf(const std::string& path) {
    return QStringLiteral("file://") +
           QString::fromLatin1(QByteArray::fromStdString(path).toPercentEncoding("/"));
}

QDBusObjectPath PathOf(std::int64_t track) {
    return QDBusObjectPath(track > 0 ? TrackPrefix() + QString::number(track) : NoTrack());
}

template <class Value>
void AddIfNews(QVariantMap& news, const char* name, const Value& before, const Value& now) {
    if (!(before == now)) news.insert(QLatin1String(name), QVariant::fromValue(now));
}

QVariantMap NewsOf(const ports::NowPlaying& before, const ports::NowPlaying& now) {
    QVariantMap news;
    AddIfNews(news, "PlaybackStatus", StatusText(before.status), StatusText(now.status));
    AddIfNews(news, "LoopStatus", LoopText(before.repeats), LoopText(now.repeats));
    AddIfNews(news, "Shuffle", before.shuffles, now.shuffles);
    AddIfNews(news, "Metadata", MetadataOf(before), MetadataOf(now));
    AddIfNews(news, "Rate", before.rate, now.rate);
    AddIfNews(news, "Volume", before.volume, now.volume);
    AddIfNews(news, "CanPlay", before.can_play, now.can_play);
    AddIfNews(news, "CanPause", before.can_pause, now.can_pause);
    AddIfNews(news, "CanSeek", before.can_seek, now.can_seek);
    AddIfNews(news, "CanGoNext", before.can_go_next, now.can_go_next);
    AddIfNews(news, "CanGoPrevious", before.can_go_previous, now.can_go_previous);
    return news;
}

}  // namespace

QString StatusText(ports::PlaybackStatus status) {
    switch (status) {
        case ports::PlaybackStatus::Playing:
            return QStringLiteral("Playing");
        case ports::PlaybackStatus::Paused:
            return QStringLiteral("Paused");
        default:
            return QStringLiteral("Stopped");
    }
}

QVariantMap MetadataOf(const ports::NowPlaying& now) {
    QVariantMap data;
    data.insert(QStringLiteral("mpris:trackid"), QVariant::fromValue(PathOf(now.track)));
    if (now.track <= 0) return data;
    data.insert(QStringLiteral("xesam:title"), QString::fromStdString(now.title));
    data.insert(QStringLiteral("xesam:artist"), QStringList{QString::fromStdString(now.artist)});
    data.insert(QStringLiteral("xesam:url"), AddressOf(now.path));
    if (!now.art.empty()) data.insert(QStringLiteral("mpris:artUrl"), AddressOf(now.art));
    if (now.length > 0) data.insert(QStringLiteral("mpris:length"), static_cast<qlonglong>(now.length));
    return data;
}

QVariantMap MetadataOf(const ports::ListedTrack& track) {
    QVariantMap data;
    data.insert(QStringLiteral("mpris:trackid"), QVariant::fromValue(PathOf(track.track)));
    data.insert(QStringLiteral("xesam:title"), QString::fromStdString(track.title));
    data.insert(QStringLiteral("xesam:artist"), QStringList{QString::fromStdString(track.artist)});
    if (!track.path.empty()) data.insert(QStringLiteral("xesam:url"), AddressOf(track.path));
    return data;
}

QString LoopText(bool repeats) {
    return repeats ? QStringLiteral("Track") : QStringLiteral("Playlist");
}

QList<QDBusObjectPath> PathsOf(const std::vector<std::int64_t>& tracks) {
    QList<QDBusObjectPath> paths;
    for (const std::int64_t track : tracks)
        paths.push_back(PathOf(track));
    return paths;
}

std::int64_t TrackOf(const QDBusObjectPath& path) {
    if (!path.path().startsWith(TrackPrefix())) return -1;
    bool is_number = false;
    const qlonglong track = path.path().mid(TrackPrefix().size()).toLongLong(&is_number);
    return is_number ? track : -1;
}

MprisBoard::MprisBoard(SessionBus& bus) : bus_(bus) {
    new MprisRoot(*this);
    new MprisPlayer(*this);
    new MprisTrackList(*this);
    bus_.WhenJoined([this] { Appear(); });
}

void MprisBoard::Appear() {
    bus_.Connection().registerObject(ObjectPath(), this, QDBusConnection::ExportAdaptors);
    RequestName(BusName(), BusName() + QStringLiteral(".instance%1").arg(getpid()));
}

void MprisBoard::RequestName(const QString& name, const QString& otherwise) {
    bus_.Ask(BusCall(QStringLiteral("RequestName")) << name << kDoNotQueue,
             [this, otherwise](const QDBusMessage& reply) {
                 const bool is_taken = reply.arguments().value(0).toUInt() != kOwner;
                 if (is_taken && !otherwise.isEmpty()) RequestName(otherwise, {});
             });
}

void MprisBoard::Show(const ports::NowPlaying& now) {
    if (now == shown_) return;
    const QVariantMap news = NewsOf(shown_, now);
    const bool has_other_tracks = now.tracks != shown_.tracks;
    shown_ = now;
    if (has_other_tracks) SignalTracks();
    if (news.isEmpty()) return;
    Signal(QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("PropertiesChanged"),
           {PlayerInterface(), news, QStringList()});
}

// Who lists the tracks gets the new ones; who asked for them once learns that they are old.
void MprisBoard::SignalTracks() {
    const bool is_listed = std::count(shown_.tracks.begin(), shown_.tracks.end(), shown_.track) > 0;
    Signal(TrackListInterface(), QStringLiteral("TrackListReplaced"),
           {QVariant::fromValue(PathsOf(shown_.tracks)),
            QVariant::fromValue(PathOf(is_listed ? shown_.track : 0))});
    Signal(QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("PropertiesChanged"),
           {TrackListInterface(), QVariantMap(), QStringList{QStringLiteral("Tracks")}});
}

void MprisBoard::ShowJump(std::int64_t position) {
    Signal(PlayerInterface(), QStringLiteral("Seeked"), {static_cast<qlonglong>(position)});
}

void MprisBoard::Signal(const QString& interface, const QString& name, const QVariantList& arguments) {
    QDBusMessage signal = QDBusMessage::createSignal(ObjectPath(), interface, name);
    signal.setArguments(arguments);
    bus_.Tell(signal);
}

void MprisBoard::Answer(const QDBusMessage& call) {
    call.setDelayedReply(true);
    if (call.isReplyRequired()) bus_.Tell(call.createReply());
}

void MprisBoard::Refuse(const QDBusMessage& call, const QString& why) {
    call.setDelayedReply(true);
    if (call.isReplyRequired()) bus_.Tell(call.createErrorReply(QDBusError::NotSupported, why));
}

void MprisBoard::CarryOut(const QDBusMessage& call, void (ports::RemoteControl::*verb)()) {
    Answer(call);
    if (listener_ != nullptr) (listener_->*verb)();
}

}  // namespace dbus
