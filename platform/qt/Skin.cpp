#include "platform/qt/Skin.h"

#include <QLinearGradient>
#include <QPaintEngine>
#include <QPainterPath>
#include <QPen>

namespace qt::skin {
namespace {

QFont MakeFont(int pixels) {
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(pixels);
    font.setStyleHint(QFont::SansSerif);
    return font;
}

QLinearGradient Shade(const QRectF& rect, QRgb top, QRgb bottom) {
    QLinearGradient gradient(rect.topLeft(), rect.bottomLeft());
    gradient.setColorAt(0, QColor(top));
    gradient.setColorAt(1, QColor(bottom));
    return gradient;
}

QPen RoundPen(QColor colour, double width) {
    return {colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

/// What of a widget is to be painted, in its own units; not valid where all of it is.
QRectF WantedPart(const QPainter& painter) {
    const QRegion wanted = painter.paintEngine()->systemClip();
    return painter.deviceTransform().inverted().mapRect(QRectF(wanted.boundingRect()));
}

void DrawRing(QPainter& painter, const QRectF& rect, double corner, QRgb colour) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(colour), Colours().high_contrast ? 3 : 1.5));
    painter.drawRoundedRect(rect, corner, corner);
    painter.restore();
}

}  // namespace

QFont TextFont(int pixels) {
    static const QFont usual = MakeFont(kTextSize);
    return pixels == kTextSize ? usual : MakeFont(pixels);
}

QFont HeadingFont() {
    static const QFont font = [] {
        QFont wide = MakeFont(kSmallSize);
        wide.setLetterSpacing(QFont::AbsoluteSpacing, 0.6);
        return wide;
    }();
    return font;
}

void RoundBox(QPainter& painter, const QRectF& rect, const QBrush& fill, QRgb line, double corner) {
    const QRectF wanted = WantedPart(painter);
    const auto holds_wanted = [&](double across, double down) {
        return wanted.isValid() && rect.adjusted(across, down, -across, -down).contains(wanted);
    };
    // The title that runs over a panel has the same few pixels of it painted twenty times a second.
    if (holds_wanted(1, corner) || holds_wanted(corner, 1)) {
        painter.fillRect(rect, fill);
        return;
    }
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(fill);
    painter.setPen(QPen(QColor(line), 1));
    painter.drawRoundedRect(rect.adjusted(0.5, 0.5, -0.5, -0.5), corner, corner);
    painter.restore();
}

bool Surface(QPainter& painter, const QRect& rect, std::string_view look) {
    if (look == "ground" || look == "page") {
        painter.fillRect(rect, QColor(Colours().ground));
    } else if (look == "strip") {
        painter.fillRect(rect, QColor(Colours().strip));
    } else if (look == "row") {
        painter.fillRect(rect, Shade(rect, Colours().raised, Colours().row_bottom));
    } else if (look == "panel") {
        RoundBox(painter, rect, QColor(Colours().panel), Colours().panel_line, kPanelCorner);
    } else if (look == "raised") {
        RoundBox(painter, rect, Shade(rect, Colours().raised_top, Colours().raised_bottom), Colours().line,
                 kPanelCorner);
    } else if (look == "well") {
        RoundBox(painter, rect, QColor(Colours().well), Colours().line, kCorner);
    } else if (look == "tool") {
        RoundBox(painter, rect, Shade(rect, Colours().tool_top, Colours().tool_bottom), Colours().line,
                 kCorner);
    } else if (look == "round") {
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(Colours().accent));
        const int side = qMin(rect.width(), rect.height());
        painter.drawEllipse(
            QRectF(rect.center().x() + 0.5 - side / 2.0, rect.center().y() + 0.5 - side / 2.0, side, side));
        painter.restore();
    } else {
        return look == "bare";
    }
    return true;
}

void FocusRing(QPainter& painter, const QRect& rect, double corner) {
    DrawRing(painter, QRectF(rect).adjusted(1, 1, -1, -1), corner, Colours().accent);
}

void DarkFocusRing(QPainter& painter, const QRect& rect, double corner) {
    DrawRing(painter, QRectF(rect).adjusted(3, 3, -3, -3), corner - 2, Colours().ink);
}

void Chevron(QPainter& painter, const QPointF& centre, Arrow arrow, QColor colour, double reach) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(centre);
    switch (arrow) {
        case Arrow::Left:
            break;
        case Arrow::Right:
            painter.rotate(180);
            break;
        case Arrow::Up:
            painter.rotate(90);
            break;
        case Arrow::Down:
            painter.rotate(-90);
            break;
    }
    painter.setPen(RoundPen(colour, 1.6));
    const QPointF points[] = {{reach / 2, -reach}, {-reach / 2, 0}, {reach / 2, reach}};
    painter.drawPolyline(points, 3);
    painter.restore();
}

void Cross(QPainter& painter, const QPointF& centre, QColor colour, double reach) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(RoundPen(colour, 1.5));
    painter.drawLine(centre + QPointF(-reach, -reach), centre + QPointF(reach, reach));
    painter.drawLine(centre + QPointF(-reach, reach), centre + QPointF(reach, -reach));
    painter.restore();
}

void Tick(QPainter& painter, const QRectF& box, QColor colour) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(RoundPen(colour, 1.8));
    const auto at = [&box](double x, double y) {
        return QPointF(box.left() + box.width() * x, box.top() + box.height() * y);
    };
    const QPointF points[] = {at(0.24, 0.53), at(0.43, 0.72), at(0.77, 0.30)};
    painter.drawPolyline(points, 3);
    painter.restore();
}

void Groove(QPainter& painter, const QRect& rect, double filled, QRgb from, QRgb to) {
    const double corner = qMin(rect.height() / 2.0, 8.0);
    RoundBox(painter, rect, QColor(Colours().well), Colours().line, corner);
    if (filled < 3) return;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath inside;
    inside.addRoundedRect(QRectF(rect).adjusted(2, 2, -2, -2), corner - 1.5, corner - 1.5);
    painter.setClipPath(inside);
    QLinearGradient shade(rect.left(), 0, rect.left() + filled, 0);
    shade.setColorAt(0, QColor(from));
    shade.setColorAt(1, QColor(to));
    painter.fillRect(QRectF(rect.left(), rect.top(), filled, rect.height()), shade);
    painter.restore();
}

void Knob(QPainter& painter, const QRect& rect) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(Colours().knob));
    const double corner = qMin(2.5, rect.width() / 3.0);
    painter.drawRoundedRect(QRectF(rect), corner, corner);
    painter.restore();
}

}  // namespace qt::skin
