// The three interfaces of a media player on the session bus (MPRIS 2.2), which read and pass on what the
// board knows. Qt finds slots and properties here by their names, so they are the interface's own.
//
// A call is answered before it is carried out: what it starts may ask the user something, and the
// caller must not wait for that.
#pragma once

#include <QDBusAbstractAdaptor>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QList>
#include <QStringList>
#include <QVariantMap>

namespace dbus {

class MprisBoard;
using MetadataList = QList<QVariantMap>;

class MprisRoot final : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.mpris.MediaPlayer2")
    Q_PROPERTY(bool CanQuit READ Yes CONSTANT)
    Q_PROPERTY(bool CanRaise READ Yes CONSTANT)
    Q_PROPERTY(bool HasTrackList READ Yes CONSTANT)
    Q_PROPERTY(QString Identity READ Identity CONSTANT)
    Q_PROPERTY(QString DesktopEntry READ DesktopEntry CONSTANT)
    Q_PROPERTY(QStringList SupportedUriSchemes READ Nothing CONSTANT)
    Q_PROPERTY(QStringList SupportedMimeTypes READ Nothing CONSTANT)

public:
    explicit MprisRoot(MprisBoard& board);

    bool Yes() const { return true; }
    QString Identity() const { return QStringLiteral("Brindlepost"); }
    QString DesktopEntry() const { return QStringLiteral("brindlepost"); }
    QStringList Nothing() const { return {}; }

public slots:
    void Raise(const QDBusMessage& call);
    void Quit(const QDBusMessage& call);

private:
    MprisBoard& board_;
};

class MprisPlayer final : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.mpris.MediaPlayer2.Player")
    Q_PROPERTY(QString PlaybackStatus READ PlaybackStatus)
    Q_PROPERTY(QString LoopStatus READ LoopStatus WRITE SetLoopStatus)
    Q_PROPERTY(bool Shuffle READ Shuffle WRITE SetShuffle)
    Q_PROPERTY(double Rate READ Rate WRITE SetRate)
    Q_PROPERTY(QVariantMap Metadata READ Metadata)
    Q_PROPERTY(double Volume READ Volume WRITE SetVolume)
    Q_PROPERTY(qlonglong Position READ Position)
    Q_PROPERTY(double MinimumRate READ MinimumRate CONSTANT)
    Q_PROPERTY(double MaximumRate READ MaximumRate CONSTANT)
    Q_PROPERTY(bool CanGoNext READ CanGoNext)
    Q_PROPERTY(bool CanGoPrevious READ CanGoPrevious)
    Q_PROPERTY(bool CanPlay READ CanPlay)
    Q_PROPERTY(bool CanPause READ CanPause)
    Q_PROPERTY(bool CanSeek READ CanSeek)
    Q_PROPERTY(bool CanControl READ CanControl CONSTANT)

public:
    explicit MprisPlayer(MprisBoard& board);

    QString PlaybackStatus() const;
    QString LoopStatus() const;
    void SetLoopStatus(const QString& status);
    bool Shuffle() const;
    void SetShuffle(bool shuffle);
    double Rate() const;
    void SetRate(double rate);
    QVariantMap Metadata() const;
    double Volume() const;
    void SetVolume(double volume);
    qlonglong Position() const;
    double MinimumRate() const;
    double MaximumRate() const;
    bool CanGoNext() const;
    bool CanGoPrevious() const;
    bool CanPlay() const;
    bool CanPause() const;
    bool CanSeek() const;
    bool CanControl() const { return true; }

public slots:
    void Next(const QDBusMessage& call);
    void Previous(const QDBusMessage& call);
    void Pause(const QDBusMessage& call);
    void PlayPause(const QDBusMessage& call);
    void Stop(const QDBusMessage& call);
    void Play(const QDBusMessage& call);
    void Seek(qlonglong Offset, const QDBusMessage& call);
    void SetPosition(const QDBusObjectPath& TrackId, qlonglong Position, const QDBusMessage& call);
    void OpenUri(const QString& Uri, const QDBusMessage& call);

signals:
    void Seeked(qlonglong Position);

private:
    MprisBoard& board_;
};

class MprisTrackList final : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.mpris.MediaPlayer2.TrackList")
    Q_PROPERTY(QList<QDBusObjectPath> Tracks READ Tracks)
    Q_PROPERTY(bool CanEditTracks READ CanEditTracks CONSTANT)

public:
    explicit MprisTrackList(MprisBoard& board);

    QList<QDBusObjectPath> Tracks() const;
    bool CanEditTracks() const { return false; }

public slots:
    MetadataList GetTracksMetadata(const QList<QDBusObjectPath>& TrackIds);
    // A list that cannot be edited takes these and does nothing.
    void AddTrack(const QString& Uri, const QDBusObjectPath& AfterTrack, bool SetAsCurrent);
    void RemoveTrack(const QDBusObjectPath& TrackId);
    void GoTo(const QDBusObjectPath& TrackId, const QDBusMessage& call);

signals:
    void TrackListReplaced(const QList<QDBusObjectPath>& Tracks, const QDBusObjectPath& CurrentTrack);

private:
    MprisBoard& board_;
};

}  // namespace dbus
