// Renders the skin's drawings: render_images OUT_FOLDER DRAWING.svg...
// Renders a drawing as a desktop's icon: render_images --icons OUT_FOLDER DRAWING.svg SIZE...
//
// Each drawing gives a picture of its own size, one "@2x" of twice and one "@3x" of three times that size.
// The faces of the tabs are bitmaps on the colour of the strip they stand on, all others have a clear ground.
// A drawing that cannot be read, or has no size, ends the build. An icon of SIZE pixels is
// SIZExSIZE/apps/DRAWING.png.
#include <QByteArray>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <array>
#include <cstdio>

namespace {

constexpr QRgb kStrip = 0xff171310;
constexpr std::array kBitmaps = {"pale", "dark", "musictab_pale", "musictab_dark"};

bool IsBitmap(const QString& name) {
    for (const char* bitmap : kBitmaps) {
        if (name == QLatin1String(bitmap)) return true;
    }
    return false;
}

bool Render(QSvgRenderer& drawing, const QString& folder, const QString& name, int scale) {
    const bool bitmap = IsBitmap(name);
    QImage image(drawing.defaultSize() * scale,
                 bitmap ? QImage::Format_RGB32 : QImage::Format_ARGB32_Premultiplied);
    image.fill(bitmap ? QColor(kStrip) : QColor(Qt::transparent));
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    drawing.render(&painter);
    painter.end();
    const QString twin = scale == 1 ? QString() : QStringLiteral("@%1x").arg(scale);
    return image.save(folder + QLatin1Char('/') + name + twin + QLatin1String(bitmap ? ".bmp" : ".png"));
}

bool RenderAll(const QString& file, const QString& folder) {
    QSvgRenderer drawing;
    if (!drawing.load(file) || drawing.defaultSize().isEmpty()) return false;
    const QString name = QFileInfo(file).completeBaseName();
    for (const int scale : {1, 2, 3}) {
        if (!Render(drawing, folder, name, scale)) return false;
    }
    return true;
}

bool RenderIcon(QSvgRenderer& drawing, const QString& folder, const QString& name, int size) {
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    drawing.render(&painter);
    painter.end();
    const QString place = folder + QStringLiteral("/%1x%1/apps").arg(size);
    return QDir().mkpath(place) && image.save(place + QLatin1Char('/') + name + QLatin1String(".png"));
}

/// `arguments`: the folder, the drawing, and the sizes.
bool RenderIcons(const QStringList& arguments) {
    QSvgRenderer drawing;
    if (arguments.size() < 3 || !drawing.load(arguments[1])) return false;
    const QString name = QFileInfo(arguments[1]).completeBaseName();
    for (const QString& size : arguments.mid(2)) {
        if (size.toInt() <= 0 || !RenderIcon(drawing, arguments[0], name, size.toInt())) return false;
    }
    return true;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 3) {
        std::fputs("usage: render_images OUT_FOLDER DRAWING.svg...\n", stderr);
        return 2;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments[1] == QLatin1String("--icons")) {
        if (RenderIcons(arguments.mid(2))) return 0;
        std::fputs("--icons: no drawing, no size, or no place to put it\n", stderr);
        return 1;
    }
    for (const QString& file : arguments.mid(2)) {
        if (RenderAll(file, arguments[1])) continue;
        std::fprintf(stderr, "%s: no drawing, or no place to put it\n", qPrintable(file));
        return 1;
    }
    return 0;
}
