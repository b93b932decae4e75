#include "platform/qt/WidgetMirror.h"

#include <QApplication>
#include <QDropEvent>
#include <QMenuBar>
#include <QMimeData>
#include <QTextDocument>
#include <QUrl>
#include <utility>

#include "controls/CommandButton.h"
#include "platform/qt/Drops.h"
#include "platform/qt/Geometry.h"
#include "platform/qt/Keys.h"
#include "platform/qt/SliderKeys.h"
#include "platform/qt/Spoken.h"

namespace qt {
namespace {

using controls::Property;

controls::CommandButton* FindButton(const controls::Container& container, int key_code) {
    for (controls::Control* child : container.Children()) {
        if (!child->Visible() || !child->Enabled()) continue;
        if (child->ControlKind() == controls::Kind::CommandButton) {
            auto& button = static_cast<controls::CommandButton&>(*child);
            if (key_code == controls::kKeyEnter ? button.IsDefault() : button.IsCancel()) return &button;
        } else if (auto* inner = dynamic_cast<controls::Container*>(child)) {
            if (auto* button = FindButton(*inner, key_code)) return button;
        }
    }
    return nullptr;
}

controls::Control& Outermost(controls::Control& control) {
    controls::Control* outer = &control;
    while (outer->Parent() != nullptr)
        outer = outer->Parent();
    return *outer;
}

/// "cmdNewUser" as a person would say it: "New User".
QString WordsOf(const QString& name) {
    qsizetype start = 0;
    while (start < name.size() && name[start].isLower())
        ++start;
    if (start > 4 || start == name.size()) start = 0;
    QString words;
    for (qsizetype i = start; i < name.size(); ++i) {
        if (i > start && name[i].isUpper() && name[i - 1].isLower()) words += QLatin1Char(' ');
        words += name[i];
    }
    return words;
}

/// The text as it stands: names of files and pages may look like markup, which a tool tip would carry out.
QString PlainToolTip(const QString& text) {
    if (!Qt::mightBeRichText(text)) return text;
    return QLatin1String("<span>") + text.toHtmlEscaped() + QLatin1String("</span>");
}

}  // namespace

void WidgetMirror::SetWidget(QWidget* widget, QWidget* surface) {
    widget_ = widget;
    surface_ = surface != nullptr ? surface : widget;
    widget->setObjectName(ToQt(Mirrored().Name()));
    widget->setAttribute(Qt::WA_NoMousePropagation);
    widget->setAcceptDrops(true);
    WatchInput(widget);
    if (surface_ != widget) WatchInput(surface_);
}

void WidgetMirror::WatchInput(QWidget* part) {
    part->setMouseTracking(true);
    part->setAcceptDrops(true);
    part->installEventFilter(this);
}

void WidgetMirror::ShowAll() {
    for (const Property property :
         {Property::Geometry, Property::Caption, Property::Items, Property::Text, Property::ListIndex,
          Property::Checked, Property::Refresh, Property::Picture, Property::Colour, Property::ToolTip,
          Property::Enabled, Property::Visible}) {
        Apply(property);
    }
}

QString WidgetMirror::SpokenName() const {
    return {};
}

void WidgetMirror::Place() {
    widget_->setGeometry(PixelRect(Mirrored()));
}

void WidgetMirror::Apply(Property property) {
    controls::Control& control = Mirrored();
    switch (property) {
        case Property::Visible:
            widget_->setVisible(control.Visible());
            break;
        case Property::Enabled:
            widget_->setEnabled(control.Enabled());
            break;
        case Property::Geometry: {
            const QRect before = widget_->geometry();
            Place();
            // A bar is filled up to its marker. That of a song is placed many times for each pixel that it
            // moves.
            if (control.Look() == "marker" && widget_->parentWidget() != nullptr &&
                widget_->geometry() != before)
                widget_->parentWidget()->update();
            TellPlaceOfMarker();
            break;
        }
        case Property::ToolTip:
        case Property::Caption: {
            widget_->setToolTip(PlainToolTip(ToQt(control.ToolTipText())));
            QString name = ToQt(control.AccessibleName());
            if (name.isEmpty()) name = SpokenName();
            if (name.isEmpty()) name = ToQt(control.ToolTipText());
            widget_->setAccessibleName(name.isEmpty() ? WordsOf(ToQt(control.Name())) : name);
            // What it shows can still be heard where it bears a name of its own.
            widget_->setAccessibleDescription(control.AccessibleName().empty() ? QString() : SpokenName());
            widget_->update();
            break;
        }
        case Property::Parent:
            if (control.Parent() != nullptr) {
                if (Mirror* container = stage_.MirrorOf(*control.Parent())) {
                    widget_->setParent(container->Inside());
                    Place();
                    widget_->setVisible(control.Visible());
                }
            }
            break;
        case Property::ZOrder:
            widget_->raise();
            break;
        case Property::Focus:
            widget_->setFocus(Qt::OtherFocusReason);
            break;
        default:
            surface_->update();
    }
}

void WidgetMirror::TellPlaceOfMarker() {
    controls::Control* slider = Mirrored().Look() == "marker" ? Mirrored().Parent() : &Mirrored();
    if (slider == nullptr || !IsSlider(*slider)) return;
    const int percent = static_cast<int>(SliderPercent(*slider));
    if (std::exchange(told_percent_, percent) == percent) return;
    const Mirror* mirror = stage_.MirrorOf(*slider);
    if (mirror != nullptr && mirror->Widget() != nullptr) TellNewPercent(*mirror->Widget(), percent);
}

QPointF WidgetMirror::Point(const QPointF& in_surface) const {
    return InScaleOf(Mirrored(), in_surface);
}

bool WidgetMirror::MousePressed(const QMouseEvent& event) {
    pressed_ = event.button() == Qt::LeftButton;
    stage_.SetMenuPlace(std::nullopt);
    stage_.OnPressed(Outermost(Mirrored()));
    const QPointF at = Point(event.position());
    Mirrored().MouseDown.Raise(ButtonNumber(event.button()), ShiftState(event.modifiers()), at.x(), at.y());
    return IsPassive();
}

bool WidgetMirror::MouseDoubled(const QMouseEvent& event) {
    if (!IsPassive()) return false;
    // Two quick clicks are two clicks where nobody listens for a double one.
    if (event.button() != Qt::LeftButton || !Mirrored().DblClick.IsClaimed()) return MousePressed(event);
    pressed_ = false;
    Mirrored().DblClick.Raise();
    return true;
}

bool WidgetMirror::MouseMoved(const QMouseEvent& event) {
    const QPointF at = Point(event.position());
    Mirrored().MouseMove.Raise(ButtonNumbers(event.buttons()), ShiftState(event.modifiers()), at.x(), at.y());
    return IsPassive();
}

bool WidgetMirror::MouseReleased(const QMouseEvent& event) {
    const bool click = pressed_ && event.button() == Qt::LeftButton && IsPassive() &&
                       surface_->rect().contains(event.position().toPoint());
    pressed_ = false;
    const QPointF at = Point(event.position());
    Mirrored().MouseUp.Raise(ButtonNumber(event.button()), ShiftState(event.modifiers()), at.x(), at.y());
    if (click) Mirrored().Click.Raise();
    return IsPassive();
}

bool WidgetMirror::WheelTurned(const QWheelEvent& event) {
    controls::Control* listener = &Mirrored();
    while (listener != nullptr && !listener->MouseWheel.IsClaimed())
        listener = listener->Parent();
    if (listener == nullptr) return false;
    wheel_rest_ += event.angleDelta().y();
    const int notches = wheel_rest_ / QWheelEvent::DefaultDeltasPerStep;
    wheel_rest_ %= QWheelEvent::DefaultDeltasPerStep;
    if (notches != 0) listener->MouseWheel.Raise(notches);
    return true;
}

bool WidgetMirror::PressWindowButton(int key_code) {
    auto* form = dynamic_cast<controls::Container*>(&Outermost(Mirrored()));
    controls::CommandButton* button = form != nullptr ? FindButton(*form, key_code) : nullptr;
    if (button == nullptr) return false;
    button->Click.Raise();
    return true;
}

// A key that is held down comes again and again; only walking over tabs and zooming want that.
bool WidgetMirror::PreviewKey(const QKeyEvent& event) {
    const int code = KeyCode(event.key(), event.modifiers());
    const int shift = ShiftState(event.modifiers());
    if (!MayMeanWindow(code, shift) || (event.isAutoRepeat() && !MayRepeat(code))) return false;
    auto* form = dynamic_cast<controls::Form*>(&Outermost(Mirrored()));
    bool taken = false;
    if (form != nullptr) form->KeyPreview.Raise(code, shift, taken);
    if (!taken && form != nullptr && form->FullScreen() && shift == 0 && event.key() == Qt::Key_Escape) {
        form->SetFullScreen(false);
        return true;
    }
    return taken || (shift == 0 && event.key() == Qt::Key_F10 && OpenMenuBar());
}

bool WidgetMirror::OpenMenuBar() {
    auto* bar = widget_->window()->findChild<QMenuBar*>(QString(), Qt::FindDirectChildrenOnly);
    if (bar == nullptr || !bar->isEnabled() || bar->actions().isEmpty()) return false;
    bar->setFocus(Qt::MenuBarFocusReason);
    bar->setActiveAction(bar->actions().constFirst());
    return true;
}

// The right button of the keyboard.
bool WidgetMirror::AskForMenu(const QKeyEvent& event) {
    const bool asks =
        event.key() == Qt::Key_Menu || (event.key() == Qt::Key_F10 && event.modifiers() == Qt::ShiftModifier);
    if (!asks || !IsPassive() || !Mirrored().MouseUp.IsClaimed()) return false;
    Mirrored().MouseDown.Raise(controls::kRightButton, 0, 0, 0);
    Mirrored().MouseUp.Raise(controls::kRightButton, 0, 0, 0);
    return true;
}

bool WidgetMirror::TakeKey(const QKeyEvent& event) {
    stage_.SetMenuPlace(widget_->mapToGlobal(widget_->rect().bottomLeft()));
    return AskForMenu(event) || PreviewKey(event) || KeyPressed(event);
}

// Enter that is held down enters once, in a line as on a button or a row: what it did may have emptied the
// line, or put something else in place of the row.
bool WidgetMirror::KeyPressed(const QKeyEvent& event) {
    const int code = KeyCode(event.key(), event.modifiers());
    if (code == 0) return false;
    if (code == controls::kKeyEnter && event.isAutoRepeat()) return true;
    const int shift = ShiftState(event.modifiers());
    const bool claimed = Mirrored().KeyDown.IsClaimed();
    if (shift == 0 && !claimed && code == controls::kKeyEnter && PressEnter()) return true;
    const bool window_key = code == controls::kKeyEnter || code == controls::kKeyEscape;
    if (shift == 0 && !claimed && window_key && PressWindowButton(code)) return true;
    const std::uint64_t changes = stage_.Changes();
    for (controls::Control* control = &Mirrored(); control != nullptr; control = control->Parent()) {
        if (!control->KeyDown.IsClaimed()) continue;
        control->KeyDown.Raise(code, shift);
        break;
    }
    // A key handler that let Enter pass without a trace leaves it to the control.
    return claimed && shift == 0 && code == controls::kKeyEnter && changes == stage_.Changes() &&
           PressEnter();
}

void WidgetMirror::FocusCame(const QFocusEvent& event) {
    if (event.reason() == Qt::PopupFocusReason || event.reason() == Qt::ActiveWindowFocusReason) return;
    Mirrored().GotFocus.Raise();
}

std::function<bool(const std::string&)> WidgetMirror::FolderTest() const {
    return [this](const std::string& path) { return stage_.IsFolder(path); };
}

bool WidgetMirror::DraggedOver(QDropEvent& event) {
    if (!Mirrored().OLEDragDrop.IsClaimed()) return false;
    // Qt asks for each place only after the way in was accepted; the files need no second look. What is
    // refused is kept from the widget, since a line of text would take a folder's address.
    if (event.type() == QEvent::DragEnter && !IsDroppable(*event.mimeData(), FolderTest())) {
        event.ignore();
        return true;
    }
    event.setDropAction(Qt::CopyAction);
    event.accept();
    return true;
}

// The program that the files come from waits until the drop event is over, and would hang for as long as a
// handler reads a long list or shows a box. So the handler runs right after it.
bool WidgetMirror::Dropped(QDropEvent& event) {
    if (!DraggedOver(event)) return false;
    controls::DropData data = DropDataOf(
        *event.mimeData(), [this](const std::string& path) { return stage_.DriveForm(path); }, FolderTest());
    data.Row = RowAt(static_cast<int>(event.position().y()));
    const QPointF at = Point(event.position() + QPointF(0, ScrolledUp()));
    QMetaObject::invokeMethod(
        this, [this, data = std::move(data), at] { Mirrored().OLEDragDrop.Raise(data, at.x(), at.y()); },
        Qt::QueuedConnection);
    return true;
}

bool WidgetMirror::eventFilter(QObject* watched, QEvent* event) {
    const auto* part = static_cast<const QWidget*>(watched);
    if (!part->isEnabled()) return false;
    switch (event->type()) {
        case QEvent::MouseButtonPress:
            return watched == surface_ && MousePressed(static_cast<QMouseEvent&>(*event));
        case QEvent::MouseButtonDblClick:
            return watched == surface_ && MouseDoubled(static_cast<QMouseEvent&>(*event));
        case QEvent::MouseMove:
            return watched == surface_ && MouseMoved(static_cast<QMouseEvent&>(*event));
        case QEvent::MouseButtonRelease:
            return watched == surface_ && MouseReleased(static_cast<QMouseEvent&>(*event));
        case QEvent::Wheel:
            return watched == surface_ && WheelTurned(static_cast<QWheelEvent&>(*event));
        case QEvent::KeyPress:
            // Qt offers the same press to the containers next.
            if (QApplication::focusWidget() != nullptr && watched != QApplication::focusWidget())
                return false;
            return TakeKey(static_cast<QKeyEvent&>(*event));
        case QEvent::FocusIn:
            FocusCame(static_cast<QFocusEvent&>(*event));
            return false;
        case QEvent::DragEnter:
        case QEvent::DragMove:
            return DraggedOver(static_cast<QDropEvent&>(*event));
        case QEvent::Drop:
            return Dropped(static_cast<QDropEvent&>(*event));
        default:
            return false;
    }
}

}  // namespace qt
