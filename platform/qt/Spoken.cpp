#include "platform/qt/Spoken.h"

#include <QAccessibleWidget>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QVariant>
#include <algorithm>
#include <memory>
#include <utility>

namespace qt {
namespace {

constexpr const char* kSpoken = "spoken";

/// Lives as long as the widget that it is about.
class SpokenParts final : public QObject {
public:
    SpokenParts(QWidget& widget, SpokenPart part) : QObject(&widget), part_(std::move(part)) {}
    const SpokenPart& Part() const { return part_; }

private:
    SpokenPart part_;
};

class SpokenWidget final : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    SpokenWidget(QWidget& widget, const SpokenPart& part)
        : QAccessibleWidget(&widget, QAccessible::Client), part_(part) {}

    QAccessible::Role role() const override { return part_.role ? part_.role() : QAccessibleWidget::role(); }
    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        if (part_.add_state) part_.add_state(state);
        return state;
    }
    QString text(QAccessible::Text kind) const override {
        if (kind == QAccessible::Description && part_.content) return part_.content();
        return QAccessibleWidget::text(kind);
    }
    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::ValueInterface && part_.percent)
            return static_cast<QAccessibleValueInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }
    int childCount() const override { return QAccessibleWidget::childCount() + (part_.list ? 1 : 0); }
    QAccessibleInterface* child(int index) const override {
        if (part_.list && index == QAccessibleWidget::childCount())
            return QAccessible::queryAccessibleInterface(part_.list());
        return QAccessibleWidget::child(index);
    }
    int indexOfChild(const QAccessibleInterface* child) const override {
        if (part_.list && child != nullptr && child->object() == part_.list())
            return QAccessibleWidget::childCount();
        return QAccessibleWidget::indexOfChild(child);
    }
    QStringList actionNames() const override {
        QStringList names;
        if (part_.press) names.append(pressAction());
        if (widget()->focusPolicy() != Qt::NoFocus) names.append(setFocusAction());
        return names;
    }
    void doAction(const QString& action) override {
        if (action == pressAction() && part_.press) {
            if (widget()->isEnabled()) part_.press();
        } else {
            QAccessibleWidget::doAction(action);
        }
    }

    QVariant currentValue() const override { return part_.percent(); }
    void setCurrentValue(const QVariant& value) override {
        if (widget()->isEnabled()) part_.set_percent(std::clamp(value.toDouble(), 0.0, 100.0));
    }
    QVariant maximumValue() const override { return 100.0; }
    QVariant minimumValue() const override { return 0.0; }
    QVariant minimumStepSize() const override { return 1.0; }

private:
    const SpokenPart& part_;
};

QAccessibleInterface* MakeSpokenWidget(const QString& /*class_name*/, QObject* object) {
    if (object == nullptr || !object->isWidgetType()) return nullptr;
    auto* parts = object->property(kSpoken).value<QObject*>();
    if (parts == nullptr) return nullptr;
    const SpokenPart& part = static_cast<SpokenParts*>(parts)->Part();
    return std::make_unique<SpokenWidget>(static_cast<QWidget&>(*object), part).release();
}

}  // namespace

void Speak(QWidget& widget, SpokenPart part) {
    static const bool installed = [] {
        QAccessible::installFactory(&MakeSpokenWidget);
        return true;
    }();
    if (!installed) return;
    auto* parts = std::make_unique<SpokenParts>(widget, std::move(part)).release();
    widget.setProperty(kSpoken, QVariant::fromValue<QObject*>(parts));
}

void KeepSilent(QWidget& widget) {
    Speak(widget, {.role = [] { return QAccessible::Graphic; },
                   .add_state = [](QAccessible::State& state) { state.invisible = true; }});
}

void PressSpace(QWidget& widget) {
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &press);
}

void TellNewContent(QWidget& widget) {
    if (!QAccessible::isActive()) return;
    QAccessibleEvent news(&widget, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&news);
}

void TellNewPercent(QWidget& widget, double percent) {
    if (!QAccessible::isActive()) return;
    QAccessibleValueChangeEvent news(&widget, percent);
    QAccessible::updateAccessibility(&news);
}

}  // namespace qt
