#include "platform/dbus/MprisInterfaces.h"

#include <QDBusMetaType>
#include <vector>

#include "platform/dbus/MprisBoard.h"

namespace dbus {

using ports::RemoteControl;

MprisRoot::MprisRoot(MprisBoard& board) : QDBusAbstractAdaptor(&board), board_(board) {}

void MprisRoot::Raise(const QDBusMessage& call) {
    board_.CarryOut(call, &RemoteControl::OnRaise);
}

void MprisRoot::Quit(const QDBusMessage& call) {
    board_.CarryOut(call, &RemoteControl::OnQuit);
}

MprisPlayer::MprisPlayer(MprisBoard& board) : QDBusAbstractAdaptor(&board), board_(board) {
    setAutoRelaySignals(false);
}

QString MprisPlayer::PlaybackStatus() const {
    return StatusText(board_.Shown().status);
}

// The order is walked round and round, so a list that ends is nothing that could be asked for.
QString MprisPlayer::LoopStatus() const {
    return LoopText(board_.Shown().repeats);
}

void MprisPlayer::SetLoopStatus(const QString& status) {
    const bool is_track = status == LoopText(true);
    const bool is_list = status == LoopText(false) || status == QStringLiteral("None");
    RemoteControl* const listener = board_.Listener();
    if (listener != nullptr && (is_track || is_list)) listener->OnSetRepeat(is_track);
}

bool MprisPlayer::Shuffle() const {
    return board_.Shown().shuffles;
}

void MprisPlayer::SetShuffle(bool shuffle) {
    if (RemoteControl* const listener = board_.Listener()) listener->OnSetShuffle(shuffle);
}

double MprisPlayer::Rate() const {
    return board_.Shown().rate;
}

void MprisPlayer::SetRate(double rate) {
    if (RemoteControl* const listener = board_.Listener()) listener->OnSetRate(rate);
}

QVariantMap MprisPlayer::Metadata() const {
    return MetadataOf(board_.Shown());
}

double MprisPlayer::Volume() const {
    return board_.Shown().volume;
}

void MprisPlayer::SetVolume(double volume) {
    if (RemoteControl* const listener = board_.Listener()) listener->OnSetVolume(volume);
}

qlonglong MprisPlayer::Position() const {
    RemoteControl* const listener = board_.Listener();
    return listener != nullptr ? listener->Position() : 0;
}

double MprisPlayer::MinimumRate() const {
    return ports::kSlowestRate;
}

double MprisPlayer::MaximumRate() const {
    return ports::kFastestRate;
}

bool MprisPlayer::CanGoNext() const {
    return board_.Shown().can_go_next;
}

bool MprisPlayer::CanGoPrevious() const {
    return board_.Shown().can_go_previous;
}

bool MprisPlayer::CanPlay() const {
    return board_.Shown().can_play;
}

bool MprisPlayer::CanPause() const {
    return board_.Shown().can_pause;
}

bool MprisPlayer::CanSeek() const {
    return board_.Shown().can_seek;
}

void MprisPlayer::Next(const QDBusMessage& call) {
    board_.CarryOut(call, &RemoteControl::OnNext);
}

void MprisPlayer::Previous(const QDBusMessage& call) {
    board_.CarryOut(call, &RemoteControl::OnPrevious);
}

void MprisPlayer::Pause(const QDBusMessage& call) {
    board_.CarryOut(call, &RemoteControl::OnPause);
}

void MprisPlayer::PlayPause(const QDBusMessage& call) {
    board_.CarryOut(call, &RemoteControl::OnPlayPause);
}

void MprisPlayer::Stop(const QDBusMessage& call) {
    board_.CarryOut(call, &RemoteControl::OnStop);
}

void MprisPlayer::Play(const QDBusMessage& call) {
    board_.CarryOut(call, &RemoteControl::OnPlay);
}

void MprisPlayer::Seek(qlonglong Offset, const QDBusMessage& call) {
    board_.Answer(call);
    if (RemoteControl* const listener = board_.Listener()) listener->OnSeek(Offset);
}

void MprisPlayer::SetPosition(const QDBusObjectPath& TrackId, qlonglong Position, const QDBusMessage& call) {
    board_.Answer(call);
    if (RemoteControl* const listener = board_.Listener())
        listener->OnSetPosition(TrackOf(TrackId), Position);
}

void MprisPlayer::OpenUri(const QString& /*Uri*/, const QDBusMessage& call) {
    board_.Refuse(call, QStringLiteral("No address is opened from outside."));
}

MprisTrackList::MprisTrackList(MprisBoard& board) : QDBusAbstractAdaptor(&board), board_(board) {
    setAutoRelaySignals(false);
    qDBusRegisterMetaType<MetadataList>();
}

QList<QDBusObjectPath> MprisTrackList::Tracks() const {
    return PathsOf(board_.Shown().tracks);
}

MetadataList MprisTrackList::GetTracksMetadata(const QList<QDBusObjectPath>& TrackIds) {
    std::vector<std::int64_t> tracks;
    for (const QDBusObjectPath& path : TrackIds)
        tracks.push_back(TrackOf(path));
    MetadataList list;
    RemoteControl* const listener = board_.Listener();
    if (listener == nullptr) return list;
    for (const ports::ListedTrack& track : listener->Describe(tracks))
        list.push_back(MetadataOf(track));
    return list;
}

void MprisTrackList::AddTrack(const QString& /*Uri*/, const QDBusObjectPath& /*AfterTrack*/,
                              bool /*SetAsCurrent*/) {}

void MprisTrackList::RemoveTrack(const QDBusObjectPath& /*TrackId*/) {}

void MprisTrackList::GoTo(const QDBusObjectPath& TrackId, const QDBusMessage& call) {
    board_.Answer(call);
    if (RemoteControl* const listener = board_.Listener()) listener->OnGoTo(TrackOf(TrackId));
}

}  // namespace dbus
