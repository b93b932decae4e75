// The list of downloads, and the file it is kept in.
//
// The list of a user is written whenever a download begins, ends or is answered, not while it runs; so a
// download that the file calls running did not get to its end. A list without a file is in memory only.
#pragma once

#include <QDateTime>
#include <QSet>
#include <QString>
#include <QUrl>
#include <vector>

namespace webengine {

enum class DownloadState { Running, Paused, Done, Failed, Cancelled };

struct Download {
    int id = 0;
    /// Where it comes from; empty when it cannot be fetched again.
    QUrl address;
    /// Where it ends: a native path.
    QString path;
    /// Where it is until the user has said whether to keep it, and it is complete; empty otherwise.
    QString unconfirmed;
    /// The user has said so before it was complete.
    bool wanted = false;
    DownloadState state = DownloadState::Running;
    /// Why it failed, for the user.
    QString why;
    qint64 received = 0;
    /// -1 while it is not known.
    qint64 total = -1;
    QDateTime begun;

    QString Name() const;
    bool IsActive() const { return state == DownloadState::Running || state == DownloadState::Paused; }
    /// The user has not said yet whether to keep it.
    bool Asks() const { return !unconfirmed.isEmpty() && !wanted; }
};

/// Most rows of a list; the oldest that are over go first.
inline constexpr std::size_t kMostListed = 200;

class DownloadList final {
public:
    /// Takes the list from the file, and writes it there from now on. A file that cannot be read is set aside
    /// as "<name>.damaged". An empty path: an empty list, in memory.
    void Open(const QString& file);

    /// The newest first.
    const std::vector<Download>& All() const { return all_; }
    Download* Find(int id);
    /// Adds it under a new id, which is returned.
    int Add(Download download);
    void Remove(int id);
    void RemoveThoseOver();
    /// False when the file could not be written.
    bool Save() const;

    /// Paths, in lower case, that downloads of the list have been promised and may not have on the disk yet.
    QSet<QString> Promised() const;

private:
    bool Read(const QString& file);
    void DropOldest();

    QString file_;
    std::vector<Download> all_;
    int last_id_ = 0;
};

}  // namespace webengine
