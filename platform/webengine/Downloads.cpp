#include "platform/webengine/Downloads.h"

#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <utility>

#include "platform/webengine/DownloadKinds.h"
#include "platform/webengine/DownloadName.h"

namespace webengine {

namespace {

using Request = QWebEngineDownloadRequest;

QString WhyInterrupted(const Request& request) {
    switch (request.interruptReason()) {
        case Request::FileNoSpace:
            return Downloads::tr("The disk is full.");
        case Request::FileAccessDenied:
        case Request::FileFailed:
        case Request::FileBlocked:
            return Downloads::tr("The folder cannot be written.");
        case Request::FileTooLarge:
            return Downloads::tr("The file is too large for this disk.");
        case Request::FileNameTooLong:
            return Downloads::tr("The file's name is too long for this disk.");
        case Request::FileVirusInfected:
        case Request::FileSecurityCheckFailed:
            return Downloads::tr("The system refused the file.");
        case Request::NetworkDisconnected:
            return Downloads::tr("There is no network.");
        case Request::NetworkTimeout:
            return Downloads::tr("The server did not answer in time.");
        case Request::NetworkServerDown:
        case Request::NetworkFailed:
            return Downloads::tr("The connection broke off.");
        case Request::ServerForbidden:
        case Request::ServerUnauthorized:
            return Downloads::tr("The server refused it.");
        case Request::ServerBadContent:
            return Downloads::tr("The server has no such file.");
        case Request::ServerCertProblem:
            return Downloads::tr("The server's certificate is not valid.");
        default:
            return Downloads::tr("It could not be completed (%1).").arg(request.interruptReasonString());
    }
}

bool CanBeFetchedAgain(const QUrl& address) {
    return address.scheme() == QLatin1String("http") || address.scheme() == QLatin1String("https");
}

bool IsWritableFolder(const QString& folder) {
    return !folder.isEmpty() && QDir().mkpath(folder) && QFileInfo(folder).isWritable();
}

}  // namespace

void Downloads::BeginUser(QWebEngineProfile& profile, const QString& file) {
    profile_ = &profile;
    list_.Open(file);
    connect(&profile, &QWebEngineProfile::downloadRequested, this,
            [this](Request* request) { Take(*request); });
    Changed();
}

void Downloads::EndUser() {
    if (profile_ == nullptr) return;
    disconnect(profile_, nullptr, this, nullptr);
    for (auto& [id, running] : running_) {
        if (running.request == nullptr) continue;
        disconnect(running.request, nullptr, this, nullptr);
        running.request->cancel();
    }
    list_.Save();
    list_.Open({});
    running_.clear();
    expected_.clear();
    left_.clear();
    held_back_.clear();
    left_without_user_ = kMostDownloads;
    fetcher_.reset();
    profile_ = nullptr;
    Changed();
}

qint64 Downloads::Speed(int id) const {
    const auto found = running_.find(id);
    return found == running_.end() ? 0 : found->second.speed.PerSecond(clock_.elapsed());
}

bool Downloads::CanPlay(const Download& download) const {
    return download.state == DownloadState::Done && !download.Asks() && settings_.play != nullptr &&
           IsMediaKind(download.Name());
}

bool Downloads::CanOpen(const Download& download) {
    return download.state == DownloadState::Done && !download.Asks() && !IsDangerousKind(download.Name());
}

void Downloads::Take(Request& request) {
    if (GoesOn(request)) return;
    Expected expected;
    if (!TakeExpected(request.url(), expected) && !MayBegin(request.page())) {
        HoldBack(request);
        request.cancel();
        return;
    }
    Download download;
    if (CanBeFetchedAgain(request.url())) download.address = request.url();
    download.total = request.totalBytes();
    download.begun = QDateTime::currentDateTimeUtc();
    download.path = expected.path.isEmpty() ? PathFor(request.suggestedFileName()) : expected.path;
    if (download.path.isEmpty()) {
        FailForFolder(download, request.suggestedFileName());
        request.cancel();
    } else {
        Place(request, download);
    }
    const bool began = download.IsActive();
    const int id = Enter(std::move(download), expected.again);
    if (began) {
        running_[id] = {request.id(), &request, request.page(), {}};
        Follow(request, id);
        request.accept();
    }
    if (const Download* entered = list_.Find(id)) Tell(*entered);
    Saved();
}

// The engine tries one that broke off again, a few times, and asks where to each time.
bool Downloads::GoesOn(Request& request) {
    for (auto& [id, running] : running_) {
        Download* const download = list_.Find(id);
        if (running.engine_id != request.id() || download == nullptr || running.request == &request) continue;
        if (running.request != nullptr) disconnect(running.request, nullptr, this, nullptr);
        running.request = &request;
        const QFileInfo file(download->unconfirmed.isEmpty() ? download->path : download->unconfirmed);
        request.setDownloadDirectory(file.path());
        request.setDownloadFileName(file.fileName());
        Follow(request, id);
        request.accept();
        return true;
    }
    return false;
}

bool Downloads::MayBegin(QWebEnginePage* page) {
    const auto found = left_.find(page);
    int& left = found != left_.end() ? found->second : left_without_user_;
    return left-- > 0;
}

void Downloads::HoldBack(const Request& request) {
    QWebEnginePage* const page = request.page();
    if (page == nullptr) return;
    const bool is_first = held_back_.find(page) == held_back_.end();
    std::vector<QUrl>& held = held_back_[page];
    if (held.size() < kMostHeldBack && CanBeFetchedAgain(request.url())) held.push_back(request.url());
    if (!is_first) return;
    connect(page, &QObject::destroyed, this, [this, page] { held_back_.erase(page); });
    if (OnRefused) OnRefused(page);
}

// A page that was opened by one that was clicked in has not been clicked in itself.
void Downloads::Renew(QWebEnginePage* page) {
    if (left_.find(page) == left_.end())
        connect(page, &QObject::destroyed, this, [this, page] { left_.erase(page); });
    left_[page] = kMostDownloads;
    left_without_user_ = kMostDownloads;
}

void Downloads::AllowMore(QWebEnginePage* page) {
    const auto held = held_back_.find(page);
    if (held == held_back_.end()) return;
    const std::vector<QUrl> addresses = std::move(held->second);
    held_back_.erase(held);
    Renew(page);
    left_[page] = kMostDownloadsAllowed;
    for (const QUrl& address : addresses) {
        Expect(address);
        Fetcher().download(address);
    }
}

void Downloads::Expect(const QUrl& address, const QString& path) {
    constexpr std::size_t kMostExpected = 100;
    if (expected_.size() >= kMostExpected) expected_.erase(expected_.begin());
    expected_.push_back({address, path, 0});
}

bool Downloads::TakeExpected(const QUrl& address, Expected& expected) {
    const auto found = std::find_if(expected_.begin(), expected_.end(),
                                    [&address](const Expected& one) { return one.address == address; });
    if (found == expected_.end()) return false;
    expected = std::move(*found);
    expected_.erase(found);
    return true;
}

QString Downloads::PathFor(const QString& suggested_name) {
    const QString folder = Folder();
    if (!IsWritableFolder(folder)) return {};
    const QString name = FreeDownloadName(folder, CleanDownloadName(suggested_name), list_.Promised());
    return EndsInside(folder, name) ? QDir(folder).filePath(name) : QString();
}

void Downloads::FailForFolder(Download& download, const QString& suggested_name) const {
    download.path = QDir(Folder()).filePath(CleanDownloadName(suggested_name));
    download.state = DownloadState::Failed;
    download.why = tr("The folder %1 cannot be written.").arg(Folder());
}

void Downloads::Place(Request& request, Download& download) const {
    if (IsDangerousKind(download.Name())) download.unconfirmed = download.path + kUnconfirmed;
    const QFileInfo file(download.Asks() ? download.unconfirmed : download.path);
    request.setDownloadDirectory(file.path());
    request.setDownloadFileName(file.fileName());
}

int Downloads::Enter(Download download, int again) {
    Download* const before = list_.Find(again);
    if (before == nullptr) return list_.Add(std::move(download));
    download.id = before->id;
    *before = std::move(download);
    return again;
}

void Downloads::Follow(Request& request, int id) {
    connect(&request, &Request::receivedBytesChanged, this, [this, id] { OnBytes(id); });
    connect(&request, &Request::totalBytesChanged, this, [this, id] { OnBytes(id); });
    connect(&request, &Request::stateChanged, this, [this, id] { OnState(id); });
    connect(&request, &Request::isPausedChanged, this, [this, id] { OnState(id); });
}

void Downloads::OnBytes(int id) {
    Download* const download = list_.Find(id);
    const auto running = running_.find(id);
    if (download == nullptr || running == running_.end() || running->second.request == nullptr) return;
    download->received = running->second.request->receivedBytes();
    download->total = running->second.request->totalBytes();
    running->second.speed.Take(clock_.elapsed(), download->received);
    Changed();
}

void Downloads::OnState(int id) {
    OnBytes(id);
    Download* const download = list_.Find(id);
    const auto running = running_.find(id);
    if (running == running_.end() || running->second.request == nullptr) return;
    const Request& request = *running->second.request;
    if (download == nullptr) {
        if (request.isFinished()) running_.erase(running);
        return;
    }
    switch (request.state()) {
        case Request::DownloadRequested:
        case Request::DownloadInProgress:
            download->state = request.isPaused() ? DownloadState::Paused : DownloadState::Running;
            Changed();
            return;
        case Request::DownloadCompleted:
            Complete(*download);
            break;
        case Request::DownloadCancelled:
            download->state = DownloadState::Cancelled;
            download->unconfirmed.clear();
            break;
        case Request::DownloadInterrupted:
            download->state = DownloadState::Failed;
            download->why = WhyInterrupted(request);
            download->unconfirmed.clear();
            break;
    }
    Tell(*download);
    running_.erase(id);
    Saved();
}

void Downloads::Complete(Download& download) {
    download.state = DownloadState::Done;
    if (download.wanted) MoveToItsPlace(download);
}

// What the user wanted to have; a file that got the name meanwhile stays what it is.
void Downloads::MoveToItsPlace(Download& download) {
    download.wanted = false;
    const QFileInfo place(download.path);
    if (QFile::exists(download.path) || place.isSymLink())
        download.path = place.dir().filePath(FreeDownloadName(place.path(), place.fileName()));
    if (!QFile::rename(download.unconfirmed, download.path)) {
        download.state = DownloadState::Failed;
        download.why = tr("The file could not be given its name.");
        QFile::remove(download.unconfirmed);
    }
    download.unconfirmed.clear();
}

void Downloads::Pause(int id) {
    const auto running = running_.find(id);
    if (running != running_.end() && running->second.request != nullptr) running->second.request->pause();
}

void Downloads::Resume(int id) {
    const auto running = running_.find(id);
    if (running != running_.end() && running->second.request != nullptr) running->second.request->resume();
}

void Downloads::Cancel(int id) {
    const auto running = running_.find(id);
    if (running != running_.end() && running->second.request != nullptr) running->second.request->cancel();
}

void Downloads::Retry(int id) {
    const Download* const download = list_.Find(id);
    if (download == nullptr || download->address.isEmpty() || profile_ == nullptr) return;
    if (download->state != DownloadState::Failed && download->state != DownloadState::Cancelled) return;
    expected_.push_back({download->address, {}, id});
    Fetcher().download(download->address);
}

void Downloads::Keep(int id) {
    Download* const download = list_.Find(id);
    if (download == nullptr || !download->Asks()) return;
    if (download->IsActive()) {
        download->wanted = true;
    } else {
        MoveToItsPlace(*download);
        Tell(*download);
    }
    Saved();
}

void Downloads::Discard(int id) {
    const Download* const download = list_.Find(id);
    if (download == nullptr || !download->Asks()) return;
    const QString file = download->unconfirmed;
    list_.Remove(id);
    Cancel(id);
    QFile::remove(file);
    Saved();
}

Download* Downloads::InState(int id, DownloadState state) {
    Download* const download = list_.Find(id);
    return download != nullptr && download->state == state && !download->Asks() ? download : nullptr;
}

void Downloads::Open(int id) {
    Download* const download = InState(id, DownloadState::Done);
    if (download == nullptr || !CanOpen(*download)) return;
    if (QFile::exists(download->path)) {
        QDesktopServices::openUrl(QUrl::fromLocalFile(download->path));
        return;
    }
    download->state = DownloadState::Failed;
    download->why = tr("The file is not there any more.");
    Saved();
}

void Downloads::ShowInFolder(int id) {
    const Download* const download = list_.Find(id);
    if (download == nullptr) return;
    const QUrl folder = QUrl::fromLocalFile(QFileInfo(download->path).path());
    const auto open_folder = [folder] { QDesktopServices::openUrl(folder); };
    const QString file = download->Asks() ? download->unconfirmed : download->path;
    if (settings_.show_file && QFile::exists(file)) {
        settings_.show_file(QFile::encodeName(file).toStdString(), open_folder);
    } else {
        open_folder();
    }
}

void Downloads::OpenFolder() {
    if (IsWritableFolder(Folder())) QDesktopServices::openUrl(QUrl::fromLocalFile(Folder()));
}

void Downloads::Play(int id) {
    const Download* const download = InState(id, DownloadState::Done);
    if (download != nullptr && settings_.play) settings_.play(download->path.toStdString());
}

void Downloads::AddToLibrary(int id) {
    const Download* const download = InState(id, DownloadState::Done);
    if (download != nullptr && settings_.add_to_library)
        settings_.add_to_library(download->path.toStdString());
}

void Downloads::Remove(int id) {
    const Download* const download = list_.Find(id);
    if (download == nullptr || download->IsActive() || download->Asks()) return;
    list_.Remove(id);
    Saved();
}

void Downloads::RemoveThoseOver() {
    list_.RemoveThoseOver();
    Saved();
}

Download Downloads::BeginOwn(const QString& suggested_name, QWebEnginePage* page) {
    Download download;
    download.path = PathFor(suggested_name);
    download.begun = QDateTime::currentDateTimeUtc();
    if (download.path.isEmpty()) FailForFolder(download, suggested_name);
    download.id = list_.Add(download);
    running_[download.id].page = page;
    if (!download.IsActive()) Tell(download);
    Saved();
    return download;
}

void Downloads::EndOwn(int id, bool ok) {
    Download* const download = list_.Find(id);
    if (download == nullptr) return;
    download->state = ok ? DownloadState::Done : DownloadState::Failed;
    download->received = QFileInfo(download->path).size();
    if (!ok) download->why = tr("The file could not be written.");
    Tell(*download);
    running_.erase(id);
    Saved();
}

// A page of the program's own: what is fetched again belongs to no tab.
QWebEnginePage& Downloads::Fetcher() {
    if (fetcher_ == nullptr) fetcher_ = std::make_unique<QWebEnginePage>(profile_);
    return *fetcher_;
}

void Downloads::Tell(const Download& download) {
    const auto running = running_.find(download.id);
    if (OnNews) OnNews(running == running_.end() ? nullptr : running->second.page.data(), download);
}

void Downloads::Changed() {
    if (OnChange) OnChange();
}

void Downloads::Saved() {
    list_.Save();
    Changed();
}

}  // namespace webengine
