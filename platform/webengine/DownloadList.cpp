#include "platform/webengine/DownloadList.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>
#include <algorithm>
#include <array>
#include <utility>

#include "platform/webengine/DownloadName.h"

namespace webengine {

namespace {

/// Longest address that is kept: one with its data inside would fill the file.
constexpr int kLongestAddress = 4000;
/// Biggest file that is read.
constexpr qint64 kBiggestFile = 8'000'000;

constexpr std::array<std::pair<DownloadState, const char*>, 5> kStates{{
    {DownloadState::Running, "running"},
    {DownloadState::Paused, "paused"},
    {DownloadState::Done, "done"},
    {DownloadState::Failed, "failed"},
    {DownloadState::Cancelled, "cancelled"},
}};

QString TextOf(DownloadState state) {
    for (const auto& [known, text] : kStates)
        if (known == state) return QLatin1String(text);
    return {};
}

DownloadState StateOf(const QString& text) {
    for (const auto& [state, known] : kStates)
        if (text == QLatin1String(known)) return state;
    return DownloadState::Failed;
}

QJsonObject ToJson(const Download& download) {
    const QString address = download.address.toString(QUrl::FullyEncoded);
    return {{QStringLiteral("address"), address.size() <= kLongestAddress ? address : QString()},
            {QStringLiteral("path"), download.path},
            {QStringLiteral("unconfirmed"), download.unconfirmed},
            {QStringLiteral("state"), TextOf(download.state)},
            {QStringLiteral("why"), download.why},
            {QStringLiteral("received"), download.received},
            {QStringLiteral("total"), download.total},
            {QStringLiteral("begun"), download.begun.toString(Qt::ISODate)}};
}

Download FromJson(const QJsonObject& json) {
    Download download;
    download.address = QUrl(json.value(QStringLiteral("address")).toString());
    download.path = json.value(QStringLiteral("path")).toString();
    download.unconfirmed = json.value(QStringLiteral("unconfirmed")).toString();
    download.state = StateOf(json.value(QStringLiteral("state")).toString());
    download.why = json.value(QStringLiteral("why")).toString();
    download.received = json.value(QStringLiteral("received")).toInteger();
    download.total = json.value(QStringLiteral("total")).toInteger(-1);
    download.begun = QDateTime::fromString(json.value(QStringLiteral("begun")).toString(), Qt::ISODate);
    if (download.IsActive()) {
        download.state = DownloadState::Failed;
        download.why = QCoreApplication::translate("Downloads", "The program ended before it was complete.");
        download.unconfirmed.clear();
    }
    return download;
}

}  // namespace

QString Download::Name() const {
    return QFileInfo(path).fileName();
}

void DownloadList::Open(const QString& file) {
    all_.clear();
    file_ = file;
    if (file.isEmpty() || !QFile::exists(file) || Read(file)) return;
    all_.clear();
    const QString aside = file + QStringLiteral(".damaged");
    QFile::remove(aside);
    QFile::rename(file, aside);
}

bool DownloadList::Read(const QString& file) {
    QFile opened(file);
    if (!opened.open(QIODevice::ReadOnly) || opened.size() > kBiggestFile) return false;
    const QJsonDocument document = QJsonDocument::fromJson(opened.readAll());
    if (!document.isArray()) return false;
    const QJsonArray rows = document.array();
    for (const auto& row : rows) {
        Download download = FromJson(row.toObject());
        if (download.Name().isEmpty()) return false;
        download.id = ++last_id_;
        all_.push_back(std::move(download));
    }
    DropOldest();
    return true;
}

Download* DownloadList::Find(int id) {
    const auto found =
        std::find_if(all_.begin(), all_.end(), [id](const Download& download) { return download.id == id; });
    return found == all_.end() ? nullptr : &*found;
}

int DownloadList::Add(Download download) {
    download.id = ++last_id_;
    all_.insert(all_.begin(), std::move(download));
    DropOldest();
    return last_id_;
}

void DownloadList::DropOldest() {
    for (std::size_t i = all_.size(); i-- > 0 && all_.size() > kMostListed;) {
        if (!all_[i].IsActive()) all_.erase(all_.begin() + static_cast<std::ptrdiff_t>(i));
    }
}

void DownloadList::Remove(int id) {
    std::erase_if(all_, [id](const Download& download) { return download.id == id; });
}

void DownloadList::RemoveThoseOver() {
    std::erase_if(all_, [](const Download& download) { return !download.IsActive() && !download.Asks(); });
}

bool DownloadList::Save() const {
    if (file_.isEmpty()) return true;
    QJsonArray rows;
    for (const Download& download : all_)
        rows.append(ToJson(download));
    QSaveFile file(file_);
    if (!file.open(QIODevice::WriteOnly)) return false;
    file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    file.write(QJsonDocument(rows).toJson(QJsonDocument::Compact));
    return file.commit();
}

QSet<QString> DownloadList::Promised() const {
    QSet<QString> promised;
    for (const Download& download : all_) {
        if (download.IsActive() || download.Asks()) promised.insert(download.path.toLower());
    }
    return promised;
}

}  // namespace webengine
