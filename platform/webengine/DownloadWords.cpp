#include "platform/webengine/DownloadWords.h"

#include <QCoreApplication>

namespace webengine {

namespace {

constexpr qint64 kSampleMilliseconds = 500;
constexpr qint64 kStalledMilliseconds = 4000;
/// How much a new sample counts.
constexpr double kWeight = 0.4;
constexpr qint64 kMinute = 60;
constexpr qint64 kHour = 3600;

QString Tr(const char* text) {
    return QCoreApplication::translate("Downloads", text);
}

QString TimeLeft(qint64 seconds) {
    if (seconds < kMinute) return Tr("%1 s left").arg(seconds);
    if (seconds < kHour) return Tr("%1 min left").arg((seconds + kMinute - 1) / kMinute);
    return Tr("%1 h left").arg((seconds + kHour - 1) / kHour);
}

QString Amount(const Download& download) {
    if (download.total <= 0) return SizeWords(download.received);
    return Tr("%1 of %2").arg(SizeWords(download.received), SizeWords(download.total));
}

QString RunningWords(const Download& download, qint64 per_second) {
    QString words = Amount(download);
    if (per_second <= 0) return words;
    words += Tr(", %1 a second").arg(SizeWords(per_second));
    if (download.total > download.received)
        words += QStringLiteral(", ") + TimeLeft(1 + (download.total - download.received) / per_second);
    return words;
}

QString DoneWords(const Download& download) {
    const QString size = SizeWords(download.received);
    const QString host = download.address.host();
    return host.isEmpty() ? size : Tr("%1, from %2").arg(size, host);
}

}  // namespace

void SpeedMeter::Take(qint64 now, qint64 received) {
    if (since_ < 0 || received < received_since_) {
        since_ = now;
        received_since_ = received;
        per_second_ = 0;
    }
    last_ = now;
    const qint64 passed = now - since_;
    if (passed < kSampleMilliseconds) return;
    const double sample =
        static_cast<double>(received - received_since_) * 1000.0 / static_cast<double>(passed);
    per_second_ = per_second_ == 0 ? sample : per_second_ + kWeight * (sample - per_second_);
    since_ = now;
    received_since_ = received;
}

qint64 SpeedMeter::PerSecond(qint64 now) const {
    return now - last_ > kStalledMilliseconds ? 0 : static_cast<qint64>(per_second_);
}

QString SizeWords(qint64 bytes) {
    constexpr double kStep = 1000;
    if (bytes < static_cast<qint64>(kStep)) return Tr("%1 bytes").arg(bytes);
    double size = static_cast<double>(bytes) / kStep;
    const char* unit = "kB";
    for (const char* next : {"MB", "GB", "TB"}) {
        if (size < kStep) break;
        size /= kStep;
        unit = next;
    }
    return QStringLiteral("%1 %2").arg(size, 0, 'f', 1).arg(QLatin1String(unit));
}

QString DownloadWords(const Download& download, qint64 per_second) {
    switch (download.state) {
        case DownloadState::Running:
            return RunningWords(download, per_second);
        case DownloadState::Paused:
            return Tr("Paused, %1").arg(Amount(download));
        case DownloadState::Done:
            return DoneWords(download);
        case DownloadState::Failed:
            return download.why;
        case DownloadState::Cancelled:
            return Tr("Cancelled");
    }
    return {};
}

}  // namespace webengine
