#include "platform/webengine/FavouritesFile.h"

#include <QApplication>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QUrl>

namespace webengine {

namespace {

constexpr const char* kSuggestedName = "brindlepost-favourites.html";

QString CannotBe(const char* what, const QFileDevice& file) {
    return QStringLiteral("The file cannot be %1: %2.").arg(QLatin1String(what), file.errorString());
}

}  // namespace

SettingsErrands FavouritesFile::Errands() {
    SettingsErrands errands;
    if (settings_.import_favourites) {
        errands.import_favourites = [this](const SettingsErrands::Told& told) {
            Choose(QFileDialog::AcceptOpen, told, [this](const QString& path) { return Import(path); });
        };
    }
    if (settings_.export_favourites) {
        errands.export_favourites = [this](const SettingsErrands::Told& told) {
            Choose(QFileDialog::AcceptSave, told, [this](const QString& path) { return Export(path); });
        };
    }
    errands.built_in_search = QUrl(QString::fromStdString(settings_.search_form)).host();
    return errands;
}

void FavouritesFile::Choose(QFileDialog::AcceptMode mode, const SettingsErrands::Told& told,
                            std::function<QString(const QString& path)> work) {
    if (dialog_ != nullptr) {
        dialog_->raise();
        told(QStringLiteral("The file dialog is open already."));
        return;
    }
    const bool saves = mode == QFileDialog::AcceptSave;
    dialog_ = new QFileDialog(QApplication::activeWindow(), saves ? QStringLiteral("Export favourites")
                                                                  : QStringLiteral("Import favourites"));
    dialog_->setObjectName(QStringLiteral("favouritesFile"));
    dialog_->setAttribute(Qt::WA_DeleteOnClose);
    dialog_->setAcceptMode(mode);
    dialog_->setFileMode(saves ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    dialog_->setNameFilters(
        {QStringLiteral("Bookmark files (*.html *.htm)"), QStringLiteral("All files (*)")});
    if (saves) dialog_->selectFile(QLatin1String(kSuggestedName));
    QObject::connect(dialog_, &QFileDialog::finished, dialog_,
                     [told, work = std::move(work), dialog = dialog_.data()](int result) {
                         const QStringList files = dialog->selectedFiles();
                         const bool chosen = result == QDialog::Accepted && !files.isEmpty();
                         told(chosen ? work(files.constFirst()) : QString());
                     });
    dialog_->open();
}

// A device or a pipe has no size and no end.
QString FavouritesFile::Import(const QString& path) const {
    QFile file(path);
    if (!QFileInfo(path).isFile()) return QStringLiteral("This is no file.");
    if (file.size() > kLargestBookmarkFile) return QStringLiteral("This file is too large to be favourites.");
    if (!file.open(QIODevice::ReadOnly)) return CannotBe("read", file);
    const QByteArray bytes = file.read(kLargestBookmarkFile);
    return QString::fromStdString(settings_.import_favourites(bytes.toStdString()));
}

QString FavouritesFile::Export(const QString& path) const {
    const QByteArray bytes = QByteArray::fromStdString(settings_.export_favourites());
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit())
        return CannotBe("written", file);
    return QStringLiteral("The favourites are in %1.").arg(path);
}

}  // namespace webengine
