#include "platform/qt/Drops.h"

#include <QUrl>

#include "platform/qt/Geometry.h"

namespace qt {
namespace {

// A file's name need not be text, so the bytes are taken as they came.
std::string BytesOf(const QUrl& url) {
    return QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toLatin1()).toStdString();
}

}  // namespace

bool IsDroppable(const QMimeData& data) {
    return data.hasUrls() || data.hasText();
}

controls::DropData DropDataOf(const QMimeData& data,
                              const std::function<std::string(const std::string&)>& drive_form) {
    controls::DropData drop;
    for (const QUrl& url : data.urls()) {
        if (url.isLocalFile()) drop.Files.push_back(drive_form(BytesOf(url)));
    }
    if (drop.Files.empty() && data.hasText()) {
        drop.HasText = true;
        drop.Text = data.text().toStdString();
    }
    return drop;
}

std::unique_ptr<QMimeData> DragOf(std::string_view text) {
    auto data = std::make_unique<QMimeData>();
    data->setText(ToQt(text));
    return data;
}

}  // namespace qt
