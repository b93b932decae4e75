#include "platform/qt/LabelMirror.h"

#include <QLabel>
#include <QPainter>
#include <QPixmap>
#include <QStaticText>
#include <algorithm>

#include "base/Text.h"
#include "controls/Image.h"
#include "platform/qt/Geometry.h"
#include "platform/qt/Keys.h"
#include "platform/qt/Skin.h"
#include "platform/qt/SliderKeys.h"
#include "platform/qt/SliderPainting.h"
#include "platform/qt/Spoken.h"

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
    QRgb colour = skin::Colours().text;
    int indent = 0;
};

Writing WritingOf(const controls::Label& label, bool pointed_at) {
    const std::string& look = label.Look();
    if (look == "heading") return {skin::HeadingFont(), skin::Colours().muted};
    if (look == "title") return {skin::TextFont(15), skin::Colours().text};
    if (look == "muted") return {skin::TextFont(), skin::Colours().muted};
    if (look == "status") return {skin::TextFont(skin::kSmallSize), skin::Colours().muted};
    if (look == "display" || look == "accent") return {skin::TextFont(), skin::Colours().accent};
    if (look == "display off" || look == "readout off") return {skin::TextFont(), skin::Colours().muted};
    if (look == "well" || look == "raised" || look == "panel")
        return {skin::TextFont(), skin::Colours().text, 10};
    if (look == "button")
        return {skin::TextFont(), pointed_at ? skin::Colours().knob : skin::Colours().accent};
    if (look == "warning") return {skin::TextFont(), skin::Colours().warning};
    if (look == "caption" || look == "strip") return {skin::TextFont(), skin::Colours().text, 10};
    if (look == "tab front") return {skin::TextFont(), skin::Colours().ink};
    if (look == "tab")
        return {skin::TextFont(), StandsOnPaleFace(label) ? skin::Colours().ink : skin::Colours().tab_text};
    if (look == "link") {
        Writing link{skin::TextFont(), skin::Colours().accent};
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
            const QRgb calm = pale ? skin::Colours().ink_muted : skin::Colours().muted;
            const QRgb lit = pale ? skin::Colours().ink : skin::Colours().accent;
            skin::Cross(painter, QRectF(rect()).center(), QColor(underMouse() ? lit : calm));
            return true;
        }
        if (label_.Look() == "splitter") {
            const QRectF grip(width() / 2.0 - 20, height() / 2.0 - 1.5, 40, 3);
            painter.setRenderHint(QPainter::Antialiasing);
            painter.setPen(Qt::NoPen);
            painter.setBrush(QColor(underMouse() ? skin::Colours().accent : skin::Colours().handle));
            painter.drawRoundedRect(grip, 1.5, 1.5);
            return true;
        }
        return false;
    }

    void DrawGround(QPainter& painter) {
        if (DrawBar(painter, rect(), label_)) return;
        if (label_.Look() == "button") {
            const QRgb fill = underMouse() && isEnabled() ? skin::Colours().hover : skin::Colours().raised;
            skin::RoundBox(painter, rect(), QColor(fill), skin::Colours().line, skin::kCorner + 1);
        } else if (label_.Look() == "caption") {
            painter.fillRect(rect(), QColor(skin::Colours().raised));
        } else {
            skin::Surface(painter, rect(), label_.Look());
        }
    }

    void DrawText(QPainter& painter) {
        QString text = TextOfLabel();
        if (text.isEmpty()) return;
        const Writing writing = WritingOf(label_, underMouse());
        painter.setFont(writing.font);
        painter.setPen(isEnabled() ? QColor(writing.colour) : QColor(skin::Colours().disabled));
        const int icon = icon_.isNull() ? 0 : kIconSide + kIconGap;
        const QRect place = rect().adjusted(writing.indent + icon, 0, -writing.indent, 0);
        const QFontMetrics metrics(writing.font);
        const bool many = text.contains(QLatin1Char('\n')) || height() >= 2 * metrics.height();
        if (many) {
            painter.drawText(place, static_cast<int>(AlignmentOf(label_)) | Qt::AlignTop | Qt::TextWordWrap,
                             text);
            return;
        }
        if (base::StartsWith(label_.Look(), "display")) {
            DrawRunning(painter, text,
                        QPoint(place.left(), place.top() + (place.height() - metrics.height()) / 2));
            return;
        }
        text = metrics.elidedText(text, Qt::ElideRight, place.width());
        painter.drawText(place, static_cast<int>(AlignmentOf(label_)) | Qt::AlignVCenter | Qt::TextSingleLine,
                         text);
    }

    // A title that runs through its box is cut by the box, and painted twenty times a second.
    void DrawRunning(QPainter& painter, const QString& text, const QPoint& place) {
        if (running_.text() != text) running_ = QStaticText(text);
        running_.setTextFormat(Qt::PlainText);
        painter.drawStaticText(place, running_);
    }

    void DrawIcon(QPainter& painter) const {
        if (!icon_.isNull())
            painter.drawPixmap(QRect(0, (height() - kIconSide) / 2, kIconSide, kIconSide), icon_);
    }

    void DrawProgress(QPainter& painter) const {
        if (label_.Progress() < 0) return;
        const bool pale = StandsOnPaleFace(label_);
        const QRect line(0, height() - 2, width(), 2);
        painter.fillRect(line, QColor(pale ? skin::Colours().pale_line : skin::Colours().line));
        painter.fillRect(
            QRect(0, line.y(), line.width() * std::min(label_.Progress(), 100) / 100, line.height()),
            QColor(pale ? skin::Colours().accent_deep : skin::Colours().accent));
    }

    QString TextOfLabel() const {
        const QString text = ToQt(label_.Caption()).replace(QLatin1String("\r\n"), QLatin1String("\n"));
        return label_.Look() == "heading" ? text.toUpper() : text;
    }

    const controls::Label& label_;
    QPixmap icon_;
    QStaticText running_;
};

bool IsClickable(const controls::Control& control) {
    return control.Click.IsClaimed() || control.MouseUp.IsClaimed();
}

// The title on a tab lies on its face, which is a button already.
bool IsButton(const controls::Label& label) {
    return IsClickable(label) && label.Look() != "marker" && label.Look() != "tab" &&
           label.Look() != "tab front";
}

}  // namespace

LabelMirror::LabelMirror(Stage& stage, controls::Label& label, QWidget* container)
    : WidgetMirror(stage, label), label_(label) {
    SetWidget(new LabelView(label, container));
    if (label.Look() == "splitter") Widget()->setCursor(Qt::SplitVCursor);
    if (IsSlider(label)) {
        MakeSlider(*Widget(), label);
    } else if (IsButton(label)) {
        Widget()->setFocusPolicy(Qt::TabFocus);
        Speak(*Widget(),
              {.role = [] { return QAccessible::Button; }, .press = [this] { PressSpace(*Widget()); }});
    }
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
    if (event->type() == QEvent::KeyPress) {
        const auto& press = static_cast<QKeyEvent&>(*event);
        const bool is_plain = ShiftState(press.modifiers()) == 0;
        if (is_plain && IsSlider(label_) && TakeSliderKey(label_, press.key())) return true;
        if (press.key() == Qt::Key_Space) return PressEnter();
    }
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
