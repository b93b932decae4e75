// Pictures of the skin, read from files below the program's folder when first drawn. In high contrast they
// are shown in its colours: dark grounds black, what is light white, what has a colour in the accent's.
#pragma once

#include <QHash>
#include <QPixmap>
#include <QString>
#include <string_view>

namespace qt {

class Pictures {
public:
    explicit Pictures(QString program_folder) : folder_(std::move(program_folder)) {}

    /// The picture that just fills `size` (in window pixels) on a screen of that pixel ratio. A name is a
    /// path below the program's folder, with either separator and with or without one before it, or the bare
    /// name of a picture of the skin. Of a picture and its larger ones, "…@2x" and "…@3x", the one that fits
    /// best. Null when there is no such file.
    QPixmap Fitted(std::string_view name, const QSize& size, double pixel_ratio);
    /// The picture's own size in window pixels; empty when there is no such file.
    QSize OwnSize(std::string_view name);

private:
    struct Twins {
        QPixmap plain;
        QPixmap twice;
    };
    const Twins& Load(const QString& name);
    QPixmap Read(const QString& file) const;
    void TakeColours();
    QPixmap Largest(const QString& name);
    QString FileOf(const QString& name) const;

    QString folder_;
    QHash<QString, Twins> loaded_;
    QHash<QString, QPixmap> largest_;  // only what was asked for
    QHash<QString, QPixmap> fitted_;
    bool in_contrast_ = false;
};

}  // namespace qt
