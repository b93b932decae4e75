// Takes the downloads of the engine and keeps their list.
//
// Whatever name a server gives, a file ends directly in the download folder under a name that is free there
// and promised to no other download. A kind that a desktop may run is kept under another name until the user
// has said that it is wanted. A page that nobody clicked in saves a few files and then has to be allowed
// more; a click in it, or sending it somewhere, gives it a few again.
#pragma once

#include <QElapsedTimer>
#include <QPointer>
#include <QWebEngineDownloadRequest>
#include <QWebEnginePage>
#include <QWebEngineProfile>
#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "platform/webengine/DownloadList.h"
#include "platform/webengine/DownloadWords.h"
#include "platform/webengine/PageSettings.h"

namespace webengine {

/// How many files a page may save before the user has to do something in it, and how many when asked.
inline constexpr int kMostDownloads = 3;
inline constexpr int kMostDownloadsAllowed = 50;
/// How many of those that were refused begin when the user allows them after all.
inline constexpr std::size_t kMostHeldBack = 50;

class Downloads final : public QObject {
public:
    explicit Downloads(const PageSettings& settings) : settings_(settings) { clock_.start(); }
    ~Downloads() override { EndUser(); }

    /// From now on the downloads of the profile are taken, for the user whose list is in that file; an empty
    /// path: the list is in memory only.
    void BeginUser(QWebEngineProfile& profile, const QString& file);
    /// The user's list is written and forgotten, what runs ends. To be called before the profile goes.
    void EndUser();

    const DownloadList& List() const { return list_; }
    /// Bytes a second.
    qint64 Speed(int id) const;
    QString Folder() const { return QString::fromStdString(settings_.download_folder); }
    bool CanPlay(const Download& download) const;
    /// Whether opening it may be offered.
    static bool CanOpen(const Download& download);

    // What the user does. An id that is not in the list, and what does not fit its state, are ignored.
    void Pause(int id);
    void Resume(int id);
    void Cancel(int id);
    void Retry(int id);
    void Keep(int id);
    void Discard(int id);
    void Open(int id);
    void ShowInFolder(int id);
    void Play(int id);
    void AddToLibrary(int id);
    void Remove(int id);
    void RemoveThoseOver();
    void OpenFolder();

    /// The user did something in the page, or sent it somewhere.
    void Renew(QWebEnginePage* page);
    /// The next download from that address is the user's own; it goes to `path`, if one is given.
    void Expect(const QUrl& address, const QString& path = {});
    /// Allows what was refused, and more of it.
    void AllowMore(QWebEnginePage* page);

    /// A file that the program makes itself of a page: its id and path, in the list at once. One that cannot
    /// be written has failed already.
    Download BeginOwn(const QString& suggested_name, QWebEnginePage* page);
    void EndOwn(int id, bool ok);

    /// The list or a row of it changed.
    std::function<void()> OnChange;
    /// It began, got to its end or asks. The page may be null.
    std::function<void(QWebEnginePage*, const Download&)> OnNews;
    /// A page has to be allowed more; reported once until it is.
    std::function<void(QWebEnginePage*)> OnRefused;

private:
    struct Expected {
        QUrl address;
        QString path;
        int again = 0;
    };
    struct Running {
        quint32 engine_id = 0;
        QPointer<QWebEngineDownloadRequest> request;
        QPointer<QWebEnginePage> page;
        SpeedMeter speed;
    };

    void Take(QWebEngineDownloadRequest& request);
    bool GoesOn(QWebEngineDownloadRequest& request);
    bool MayBegin(QWebEnginePage* page);
    void HoldBack(const QWebEngineDownloadRequest& request);
    bool TakeExpected(const QUrl& address, Expected& expected);
    /// Empty when the folder cannot be written.
    QString PathFor(const QString& suggested_name);
    void FailForFolder(Download& download, const QString& suggested_name) const;
    void Place(QWebEngineDownloadRequest& request, Download& download) const;
    int Enter(Download download, int again);
    void Follow(QWebEngineDownloadRequest& request, int id);
    void OnBytes(int id);
    void OnState(int id);
    void Complete(Download& download);
    void MoveToItsPlace(Download& download);
    QWebEnginePage& Fetcher();
    Download* InState(int id, DownloadState state);
    void Tell(const Download& download);
    void Changed();
    void Saved();

    PageSettings settings_;
    DownloadList list_;
    QPointer<QWebEngineProfile> profile_;
    std::unique_ptr<QWebEnginePage> fetcher_;
    std::map<int, Running> running_;
    std::vector<Expected> expected_;
    std::map<QWebEnginePage*, int> left_;
    int left_without_user_ = kMostDownloads;
    std::map<QWebEnginePage*, std::vector<QUrl>> held_back_;
    QElapsedTimer clock_;
};

}  // namespace webengine
