#include "platform/qt/SimpleMirrors.h"

#include <QCheckBox>
#include <QPainter>
#include <QProgressBar>
#include <QPushButton>
#include <QStyle>
#include <algorithm>

#include "platform/qt/Geometry.h"
#include "platform/qt/Skin.h"
#include "platform/qt/Spoken.h"

namespace qt {
namespace {

using controls::Property;

class LineView final : public QWidget {
public:
    LineView(const controls::Line& line, QWidget* parent) : QWidget(parent), line_(line) {}

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter(this).fillRect(rect(),
                                QColor(line_.Look() == "pale" ? skin::Colours().pale : skin::Colours().line));
    }

private:
    const controls::Line& line_;
};

class ProgressView final : public QProgressBar {
public:
    using QProgressBar::QProgressBar;

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        const double part = maximum() > 0 ? double(value()) / maximum() : 0;
        skin::Groove(painter, rect(), part * width(), skin::Colours().accent_deep, skin::Colours().accent);
    }
};

class CheckView final : public QCheckBox {
public:
    using QCheckBox::QCheckBox;

protected:
    bool hitButton(const QPoint& at) const override { return rect().contains(at); }
    void paintEvent(QPaintEvent* /*event*/) override {
        constexpr int kSide = 16;
        QPainter painter(this);
        const QRect box(0, (height() - kSide) / 2, kSide, kSide);
        const QRgb lit = isEnabled() ? skin::Colours().accent : skin::Colours().disabled;
        const bool is_lit = isEnabled() && (isChecked() || underMouse());
        const QRgb ground = isEnabled() && isChecked() ? skin::Colours().checked : skin::Colours().well;
        skin::RoundBox(painter, box, QColor(ground), is_lit ? lit : skin::Colours().line, 3);
        if (isChecked()) skin::Tick(painter, box, QColor(lit));
        painter.setPen(isEnabled() ? QColor(skin::Colours().text) : QColor(skin::Colours().disabled));
        const QRect words = rect().adjusted(kSide + 7, 0, 0, 0);
        const QString caption =
            fontMetrics().elidedText(text(), Qt::ElideRight, words.width(), Qt::TextShowMnemonic);
        painter.drawText(words, Qt::AlignVCenter | Qt::TextShowMnemonic, caption);
        if (hasFocus()) skin::FocusRing(painter, text().isEmpty() ? box : rect(), 3);
    }
};

class ButtonView final : public QPushButton {
public:
    ButtonView(const controls::CommandButton& button, QWidget* parent)
        : QPushButton(parent), button_(button) {
        setAttribute(Qt::WA_Hover);
        setAutoDefault(false);
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        DrawGround(painter);
        const QColor ink = Ink();
        const QPointF centre = QRectF(rect()).center();
        if (!DrawSign(painter, centre, ink)) {
            painter.setPen(ink);
            const QString caption =
                fontMetrics().elidedText(text(), Qt::ElideRight, width() - 8, Qt::TextShowMnemonic);
            painter.drawText(rect(), Qt::AlignCenter | Qt::TextShowMnemonic, caption);
        }
        if (hasFocus() && button_.Look() == "accent") {
            skin::DarkFocusRing(painter, rect());
        } else if (hasFocus()) {
            skin::FocusRing(painter, rect());
        }
    }

private:
    void DrawGround(QPainter& painter) const {
        const bool accent = button_.Look() == "accent" && isEnabled();
        const bool flat = button_.Look() == "flat";
        if (flat && !underMouse() && !isDown()) return;
        QRgb fill = accent ? skin::Colours().accent : skin::Colours().raised;
        if (underMouse() && isEnabled()) fill = accent ? skin::Colours().accent_over : skin::Colours().hover;
        if (isDown()) fill = accent ? skin::Colours().accent_pressed : skin::Colours().pressed;
        skin::RoundBox(painter, rect(), QColor(fill), accent ? fill : skin::Colours().line,
                       skin::kCorner + 1);
    }

    QColor Ink() const {
        if (!isEnabled()) return {QColor(skin::Colours().disabled)};
        if (button_.Look() == "accent") return {QColor(skin::Colours().ink)};
        if (button_.Look() == "ambertext" || IsSign()) return {QColor(skin::Colours().accent)};
        return {QColor(skin::Colours().text)};
    }

    bool IsSign() const { return text().size() == 1 && kSigns.contains(text()[0]); }

    bool DrawSign(QPainter& painter, const QPointF& centre, const QColor& ink) const {
        if (!IsSign()) return false;
        constexpr skin::Arrow kArrows[] = {skin::Arrow::Left, skin::Arrow::Right, skin::Arrow::Up,
                                           skin::Arrow::Down};
        if (text()[0] == QLatin1Char('X')) {
            skin::Cross(painter, centre, ink);
        } else {
            skin::Chevron(painter, centre, kArrows[kSigns.indexOf(text()[0])], ink, 3.5);
        }
        return true;
    }

    static constexpr QStringView kSigns = u"<>^vX";

    const controls::CommandButton& button_;
};

}  // namespace

LineMirror::LineMirror(Stage& stage, controls::Line& line, QWidget* container) : WidgetMirror(stage, line) {
    SetWidget(new LineView(line, container));
    KeepSilent(*Widget());
}

void LineMirror::Place() {
    const int least = Mirrored().Look() == "pale" ? 2 : 1;
    QRect rect = PixelRect(Mirrored());
    if (rect.height() <= rect.width()) {
        rect.setHeight(std::max(least, rect.height()));
    } else {
        rect.setWidth(std::max(least, rect.width()));
    }
    Widget()->setGeometry(rect);
}

ProgressMirror::ProgressMirror(Stage& stage, controls::ProgressBar& bar, QWidget* container)
    : WidgetMirror(stage, bar), bar_(bar) {
    auto* view = new ProgressView(container);
    view->setRange(bar.Min(), bar.Max());
    view->setValue(bar.Value());
    SetWidget(view);
}

void ProgressMirror::Apply(Property property) {
    WidgetMirror::Apply(property);
    if (property == Property::Value) static_cast<QProgressBar*>(Widget())->setValue(bar_.Value());
}

CheckMirror::CheckMirror(Stage& stage, controls::CheckBox& check, QWidget* container)
    : WidgetMirror(stage, check), check_(check) {
    auto* view = new CheckView(ToQt(check.Caption()), container);
    view->setAttribute(Qt::WA_Hover);
    SetWidget(view);
    connect(view, &QCheckBox::clicked, this, [this](bool checked) { check_.SetChecked(checked); });
}

QString CheckMirror::SpokenName() const {
    return ToQt(check_.Caption()).remove(QLatin1Char('&'));
}

void CheckMirror::Apply(Property property) {
    WidgetMirror::Apply(property);
    if (property == Property::Checked) static_cast<QCheckBox*>(Widget())->setChecked(check_.Checked());
}

ButtonMirror::ButtonMirror(Stage& stage, controls::CommandButton& button, QWidget* container)
    : WidgetMirror(stage, button), button_(button) {
    auto* view = new ButtonView(button, container);
    SetWidget(view);
    connect(view, &QPushButton::clicked, this, [this] { button_.Click.Raise(); });
}

QString ButtonMirror::SpokenName() const {
    const QString caption = ToQt(button_.Caption()).remove(QLatin1Char('&'));
    // A drawn arrow says nothing.
    return caption.size() > 1 ? caption : QString();
}

void ButtonMirror::Apply(Property property) {
    if (property == Property::Caption) static_cast<QPushButton*>(Widget())->setText(ToQt(button_.Caption()));
    WidgetMirror::Apply(property);
}

bool ButtonMirror::PressEnter() {
    button_.Click.Raise();
    return true;
}

TimerMirror::TimerMirror(Stage& stage, controls::Timer& timer) : Mirror(stage, timer), timer_(timer) {
    connect(&clock_, &QTimer::timeout, this, [this] { timer_.Tick.Raise(); });
    Apply(Property::Timer);
}

void TimerMirror::Apply(Property property) {
    if (property != Property::Timer) return;
    if (!timer_.Enabled() || timer_.Interval() <= 0) {
        clock_.stop();
        return;
    }
    // A coarse one is late by up to a twentieth of its interval: a fade of eleven seconds takes eleven and a
    // quarter.
    clock_.setTimerType(Qt::PreciseTimer);
    clock_.start(timer_.Interval());
}

}  // namespace qt
