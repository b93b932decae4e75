#include "platform/qt/Drops.h"

#include <QUrl>
#include <algorithm>

#include "platform/qt/Geometry.h"

namespace qt {
namespace {

// A file's name need not be text, so the bytes are taken as they came.
std::string BytesOf(const QUrl& url) {
    return QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toLatin1()).toStdString();
}

bool HasLocal(const QMimeData& data) {
    return std::ranges::any_of(data.urls(), &QUrl::isLocalFile);
}

/// The native paths of the files.
std::vector<std::string> FilesOf(const QMimeData& data, const IsFolder& is_folder) {
    std::vector<std::string> files;
    for (const QUrl& url : data.urls()) {
        if (!url.isLocalFile()) continue;
        if (std::string path = BytesOf(url); !is_folder(path)) files.push_back(std::move(path));
    }
    return files;
}

}  // namespace

bool IsDroppable(const QMimeData& data, const IsFolder& is_folder) {
    return HasLocal(data) ? !FilesOf(data, is_folder).empty() : data.hasText();
}

controls::DropData DropDataOf(const QMimeData& data,
                              const std::function<std::string(const std::string&)>& drive_form,
                              const IsFolder& is_folder) {
    controls::DropData drop;
    for (const std::string& path : FilesOf(data, is_folder))
        drop.Files.push_back(drive_form(path));
    if (!HasLocal(data) && data.hasText()) {
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
