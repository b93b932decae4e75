#include "platform/dbus/MprisInterfaces.h"

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

}  // namespace dbus
