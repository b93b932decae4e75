#include "platform/qt/LabelMirror.h"

#include <QAccessibleWidget>
#include <QCoreApplication>
#include <QLabel>
#include <QPainter>
#include <QPixmap>
#include <algorithm>
#include <memory>

#include "base/Text.h"
#include "controls/Image.h"
#include "platform/qt/Geometry.h"
#include "platform/qt/Skin.h"
#include "platform/qt/SliderPainting.h"

namespace qt {
namespace {

using controls::Property;

constexpr int kIconSide = 16;
constexpr int kIconGap = 5;

// True when the label lies on the face of the tab in front.
bool StandsOnPaleFace(const controls::Control& label) {
    if (label.Parent() == nullptr) return false;
    const QPoint centre = PixelRect(label).center();
    bool pale = false;
    for (const controls::Control* other : label.Parent()->Children()) {
        if (other == &label) break;
        if (other->ControlKind() != controls::Kind::Image || !other->Visible()) continue;
        if (!PixelRect(*other).contains(centre)) continue;
        pale = static_cast<const controls::Image*>(other)->Picture().find("pale") != std::string::npos;
    }
    return pale;
}

struct Writing {
    QFont font = skin::TextFont();
    QRgb colour = skin::kText;
    int indent = 0;
};

Writing WritingOf(const controls::Label& label, bool pointed_at) {
    const std::string& look = label.Look();
    if (look == "heading") return {skin::HeadingFont(), skin::kMuted};
    if (look == "title") return {skin::TextFont(15), skin::kText};
    if (look == "muted") return {skin::TextFont(), skin::kMuted};
    if (look == "status") return {skin::TextFont(skin::kSmallSize), skin::kMuted};
    if (look == "display" || look == "accent") return {skin::TextFont(), skin::kAccent};
    if (look == "display off" || look == "readout off") return {skin::TextFont(), skin::kMuted};
    if (look == "well" || look == "raised" || look == "panel") return {skin::TextFont(), skin::kText, 10};
    if (look == "button") return {skin::TextFont(), pointed_at ? skin::kKnob : skin::kAccent};
    if (look == "warning") return {skin::TextFont(), skin::kWarning};
    if (look == "caption" || look == "strip") return {skin::TextFont(), skin::kText, 10};
    if (look == "tab front") return {skin::TextFont(), skin::kInk};
    if (look == "tab") return {skin::TextFont(), StandsOnPaleFace(label) ? skin::kInk : 0xffd9cdbf};
    if (look == "link") {
        Writing link{skin::TextFont(), skin::kAccent};
        link.font.setUnderline(pointed_at);
        return link;
    }
    return {};
}

Qt::Alignment AlignmentOf(const controls::Label& label) {
    switch (label.Align()) {
        case controls::Alignment::Centre:
            return Qt::AlignHCenter;
        case controls::Alignment::Right:
            return Qt::AlignRight;
        default:
            return Qt::AlignLeft;
    }
}

/// A label by its own paint; QLabel only for what it tells a screen reader.
class LabelView final : public QLabel {
public:
    LabelView(const controls::Label& label, QWidget* parent) : QLabel(parent), label_(label) {
        setAttribute(Qt::WA_Hover);
        setTextFormat(Qt::PlainText);
    }

    void ReadIcon() {
        icon_ = QPixmap();
        const std::string& bytes = label_.Icon();
        if (!bytes.empty())
            icon_.loadFromData(reinterpret_cast<const uchar*>(bytes.data()), static_cast<uint>(bytes.size()));
        update();
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        if (!DrawPart(painter)) {
            DrawGround(painter);
            DrawText(painter);
            DrawIcon(painter);
            DrawProgress(painter);
        }
        if (hasFocus()) skin::FocusRing(painter, rect(), 4);
    }

private:
    bool DrawPart(QPainter& painter) {
        if (DrawMarker(painter, rect(), label_.Look())) return true;
        if (label_.Look() == "tab close" || label_.Look() == "tab close front") {
            const bool pale = label_.Look() == "tab close front" || StandsOnPaleFace(label_);
            const QRgb calm = pale ? skin::kInkMuted : skin::kMuted;
            const QRgb lit = pale ? skin::kInk : skin::kAccent;
            skin::Cross(painter, QRectF(rect()).center(), QColor(underMouse() ? lit : calm));
            return true;
        }
        if (label_.Look() == "splitter") {
            const QRectF grip(width() / 2.0 - 20, height() / 2.0 - 1.5, 40, 3);
            painter.setRenderHint(QPainter::Antialiasing);
            painter.setPen(Qt::NoPen);
            painter.setBrush(QColor(underMouse() ? skin::kAccent : 0xff6b5d50));
            painter.drawRoundedRect(grip, 1.5, 1.5);
            return true;
        }
        return false;
    }

    void DrawGround(QPainter& painter) {
        if (DrawBar(painter, rect(), label_)) return;
        if (label_.Look() == "button") {
            const QRgb fill = underMouse() && isEnabled() ? skin::kHover : skin::kRaised;
            skin::RoundBox(painter, rect(), QColor(fill), skin::kLine, skin::kCorner + 1);
        } else if (label_.Look() == "caption") {
            painter.fillRect(rect(), QColor(skin::kRaised));
        } else {
            skin::Surface(painter, rect(), label_.Look());
        }
    }

    void DrawText(QPainter& painter) {
        QString text = TextOfLabel();
        if (text.isEmpty()) return;
        const Writing writing = WritingOf(label_, underMouse());
        painter.setFont(writing.font);
        painter.setPen(isEnabled() ? QColor(writing.colour) : QColor(skin::kDisabled));
        const int icon = icon_.isNull() ? 0 : kIconSide + kIconGap;
        const QRect place = rect().adjusted(writing.indent + icon, 0, -writing.indent, 0);
        const QFontMetrics metrics(writing.font);
        const bool many = text.contains(QLatin1Char('\n')) || height() >= 2 * metrics.height();
        if (many) {
            painter.drawText(place, static_cast<int>(AlignmentOf(label_)) | Qt::AlignTop | Qt::TextWordWrap,
                             text);
            return;
        }
        // A title that runs through its box is cut by the box.
        if (!base::StartsWith(label_.Look(), "display"))
            text = metrics.elidedText(text, Qt::ElideRight, place.width());
        painter.drawText(place, static_cast<int>(AlignmentOf(label_)) | Qt::AlignVCenter | Qt::TextSingleLine,
                         text);
    }

    void DrawIcon(QPainter& painter) const {
        if (!icon_.isNull())
            painter.drawPixmap(QRect(0, (height() - kIconSide) / 2, kIconSide, kIconSide), icon_);
    }

    void DrawProgress(QPainter& painter) const {
        if (label_.Progress() < 0) return;
        const bool pale = StandsOnPaleFace(label_);
        const QRect line(0, height() - 2, width(), 2);
        painter.fillRect(line, QColor(pale ? 0xffd8c8b0 : skin::kLine));
        painter.fillRect(
            QRect(0, line.y(), line.width() * std::min(label_.Progress(), 100) / 100, line.height()),
            QColor(pale ? skin::kAccentDeep : skin::kAccent));
    }

    QString TextOfLabel() const {
        const QString text = ToQt(label_.Caption()).replace(QLatin1String("\r\n"), QLatin1String("\n"));
        return label_.Look() == "heading" ? text.toUpper() : text;
    }

    const controls::Label& label_;
    QPixmap icon_;
};

bool IsClickable(const controls::Control& control) {
    return control.Click.IsClaimed() || control.MouseUp.IsClaimed();
}

// The title on a tab lies on its face, which is a button already.
bool IsButton(const controls::Label& label) {
    return IsClickable(label) && label.Look() != "marker" && label.Look() != "tab" &&
           label.Look() != "tab front";
}

constexpr const char* kButton = "button";

/// A label that does something is a button to a screen reader, which can press it.
class ButtonOfLabel final : public QAccessibleWidget {
public:
    explicit ButtonOfLabel(QWidget* label) : QAccessibleWidget(label, QAccessible::Button) {}
    QStringList actionNames() const override { return {pressAction(), setFocusAction()}; }
    void doAction(const QString& action) override {
        if (action != pressAction()) {
            QAccessibleWidget::doAction(action);
            return;
        }
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier);
        QCoreApplication::sendEvent(widget(), &press);
    }
};

QAccessibleInterface* MakeButtonOfLabel(const QString& /*class_name*/, QObject* object) {
    if (object == nullptr || !object->isWidgetType() || !object->property(kButton).toBool()) return nullptr;
    return std::make_unique<ButtonOfLabel>(static_cast<QWidget*>(object)).release();
}

void TellScreenReaders(QWidget& label) {
    static const bool installed = [] {
        QAccessible::installFactory(&MakeButtonOfLabel);
        return true;
    }();
    label.setProperty(kButton, installed);
}

}  // namespace

LabelMirror::LabelMirror(Stage& stage, controls::Label& label, QWidget* container)
    : WidgetMirror(stage, label), label_(label) {
    SetWidget(new LabelView(label, container));
    if (label.Look() == "splitter") Widget()->setCursor(Qt::SplitVCursor);
    if (!IsButton(label)) return;
    Widget()->setFocusPolicy(Qt::TabFocus);
    TellScreenReaders(*Widget());
}

QString LabelMirror::SpokenName() const {
    return ToQt(label_.Caption());
}

void LabelMirror::Apply(Property property) {
    WidgetMirror::Apply(property);
    if (property == Property::Caption) static_cast<QLabel*>(Widget())->setText(ToQt(label_.Caption()));
    if (property == Property::Picture) static_cast<LabelView*>(Widget())->ReadIcon();
    if (property == Property::Colour)
        Widget()->setCursor(label_.Look() == "link" ? Qt::PointingHandCursor : Widget()->cursor().shape());
}

bool LabelMirror::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Space)
        return PressEnter();
    return WidgetMirror::eventFilter(watched, event);
}

bool LabelMirror::PressEnter() {
    if (!IsClickable(label_)) return false;
    label_.MouseDown.Raise(controls::kLeftButton, 0, 0, 0);
    label_.MouseUp.Raise(controls::kLeftButton, 0, 0, 0);
    label_.Click.Raise();
    return true;
}

}  // namespace qt
