// The file dialogs through which favourites come from, and go to, other browsers.
#pragma once

#include <QFileDialog>
#include <QPointer>

#include "platform/webengine/PageSettings.h"
#include "platform/webengine/SettingsDesk.h"

namespace webengine {

/// Bytes of a bookmark file. A larger one is none.
inline constexpr qint64 kLargestBookmarkFile = 64 << 20;

class FavouritesFile final {
public:
    explicit FavouritesFile(const PageSettings& settings) : settings_(settings) {}
    ~FavouritesFile() { delete dialog_; }
    FavouritesFile(const FavouritesFile&) = delete;
    FavouritesFile& operator=(const FavouritesFile&) = delete;

    /// What the settings page can be offered of it. Nothing runs nested: the dialogs are answered later.
    SettingsErrands Errands();

private:
    void Choose(QFileDialog::AcceptMode mode, const SettingsErrands::Told& told,
                std::function<QString(const QString& path)> work);
    QString Import(const QString& path) const;
    QString Export(const QString& path) const;

    const PageSettings& settings_;
    QPointer<QFileDialog> dialog_;
};

}  // namespace webengine
