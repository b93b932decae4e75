#include "platform/qt/SurfaceMirrors.h"

#include <QApplication>
#include <QChildEvent>
#include <QKeyEvent>
#include <QPainter>

#include "platform/qt/Geometry.h"
#include "platform/qt/Keys.h"
#include "platform/qt/Skin.h"
#include "platform/qt/SliderKeys.h"
#include "platform/qt/SliderPainting.h"
#include "platform/qt/Spoken.h"

namespace qt {
namespace {

using controls::Property;

constexpr std::string_view kVideo = "video";

class FrameView final : public QWidget {
public:
    FrameView(const controls::Frame& frame, QWidget* parent) : QWidget(parent), frame_(frame) {}

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        if (!skin::Surface(painter, rect(), frame_.Look())) skin::Surface(painter, rect(), "panel");
        if (frame_.Caption().empty()) return;
        painter.setFont(skin::HeadingFont());
        painter.setPen(QColor(skin::Colours().muted));
        painter.drawText(rect().adjusted(12, 8, -12, 0), Qt::AlignLeft | Qt::AlignTop,
                         ToQt(frame_.Caption()).toUpper());
    }

private:
    const controls::Frame& frame_;
};

class PictureView final : public QWidget {
public:
    PictureView(const controls::PictureBox& box, QWidget* parent) : QWidget(parent), box_(box) {
        if (box.Look() == kVideo) {
            setAttribute(Qt::WA_NativeWindow);
            setAttribute(Qt::WA_OpaquePaintEvent);
        }
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        if (!DrawBar(painter, rect(), box_) && !skin::Surface(painter, rect(), box_.Look()))
            painter.fillRect(rect(), QColor::fromRgb(0xff000000U | box_.BackColor()));
        if (hasFocus()) skin::FocusRing(painter, rect());
    }

private:
    const controls::PictureBox& box_;
};

class PlaceOfPage final : public QWidget {
public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent* event) override {
        QPainter(this).fillRect(event->rect(), QColor(skin::Colours().ground));
    }
};

bool MovesCover(Property property) {
    return property == Property::Visible || property == Property::Geometry || property == Property::ZOrder ||
           property == Property::Parent;
}

void FillWithChildren(const QWidget& place) {
    for (QObject* child : place.children()) {
        if (auto* page = qobject_cast<QWidget*>(child)) page->setGeometry(place.rect());
    }
}

}  // namespace

void MirrorChildren(Stage& stage, controls::Container& container, QWidget* inside) {
    for (controls::Control* child : container.Children())
        stage.MirrorIn(*child, inside);
}

FrameMirror::FrameMirror(Stage& stage, controls::Frame& frame, QWidget* container)
    : WidgetMirror(stage, frame) {
    SetWidget(new FrameView(frame, container));
    Speak(*Widget(), {.role = [] { return QAccessible::Grouping; }});
    MirrorChildren(stage, frame, Widget());
}

void FrameMirror::Apply(Property property) {
    WidgetMirror::Apply(property);
    if (MovesCover(property)) stage_.OnCoverMoved(Mirrored());
}

PictureBoxMirror::PictureBoxMirror(Stage& stage, controls::PictureBox& box, QWidget* container)
    : WidgetMirror(stage, box), box_(box) {
    SetWidget(new PictureView(box, container));
    if (IsSlider(box)) MakeSlider(*Widget(), box);
    if (box.Look() == kVideo) box_.SetHandle(static_cast<std::int64_t>(Widget()->winId()));
    MirrorChildren(stage, box, Widget());
}

bool PictureBoxMirror::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress && Widget()->hasFocus() && IsSlider(box_)) {
        const auto& press = static_cast<QKeyEvent&>(*event);
        if (ShiftState(press.modifiers()) == 0 && TakeSliderKey(box_, press.key())) return true;
    }
    if (event->type() == QEvent::WinIdChange && box_.Look() == kVideo) {
        box_.SetHandle(static_cast<std::int64_t>(Widget()->internalWinId()));
    }
    return WidgetMirror::eventFilter(watched, event);
}

void PictureBoxMirror::PlaceChildren() {
    for (controls::Control* child : box_.Children()) {
        const Mirror* mirror = stage_.MirrorOf(*child);
        if (mirror != nullptr && mirror->Widget() != nullptr)
            mirror->Widget()->setGeometry(PixelRect(*child));
    }
}

void PictureBoxMirror::Apply(Property property) {
    WidgetMirror::Apply(property);
    if (property == Property::Scale || property == Property::Geometry) PlaceChildren();
}

BrowserMirror::BrowserMirror(Stage& stage, controls::WebBrowser& browser, QWidget* container)
    : WidgetMirror(stage, browser), browser_(browser) {
    SetWidget(new PlaceOfPage(container));
    WantPageWhenSeen();
}

BrowserMirror::~BrowserMirror() {
    browser_.Attach(nullptr);
}

void BrowserMirror::Apply(Property property) {
    if (property != Property::Value) WidgetMirror::Apply(property);
    if (MovesCover(property)) stage_.OnCoverMoved(browser_);
    if (browser_.Engine() != nullptr) return;
    const bool is_popup = property == Property::Value && browser_.WaitingAddress().empty();
    if (is_popup) stage_.WantPage(browser_, *Widget());
    if (property == Property::Value || property == Property::Visible) WantPageWhenSeen();
}

// While it lies over the whole window its place does not count.
void BrowserMirror::Place() {
    if (Widget()->parentWidget() != Widget()->window()) WidgetMirror::Place();
}

// A page that nobody sees costs a process; its address waits until the control is made visible.
void BrowserMirror::WantPageWhenSeen() {
    if (browser_.Visible() && !browser_.WaitingAddress().empty()) stage_.WantPage(browser_, *Widget());
}

bool BrowserMirror::eventFilter(QObject* watched, QEvent* event) {
    QWidget* child = nullptr;
    if (event->type() == QEvent::ChildAdded)
        child = qobject_cast<QWidget*>(static_cast<QChildEvent*>(event)->child());
    // A box of the page is a window of its own: its keys are its own too.
    if (child != nullptr && !child->isWindow()) child->installEventFilter(this);
    if (watched != Widget()) return TakeFromPage(watched, *event);
    if (event->type() == QEvent::Resize) FillWithChildren(*Widget());
    if (child != nullptr) child->setGeometry(Widget()->rect());
    return WidgetMirror::eventFilter(watched, event);
}

/// A page never sees the keys of the window, nor the multimedia keys: one that hangs or plays by itself could
/// keep them.
bool BrowserMirror::TakeFromPage(const QObject* watched, QEvent& event) {
    if (event.type() != QEvent::KeyPress) return false;
    const auto& press = static_cast<QKeyEvent&>(event);
    const QWidget* focus = QApplication::focusWidget();
    if ((focus == nullptr || focus == watched) && PreviewKey(press)) return true;
    const bool is_ours =
        ShiftState(press.modifiers()) == 0 && IsMediaKey(KeyCode(press.key(), press.modifiers()));
    if (is_ours) KeyPressed(press);
    return is_ours;
}

}  // namespace qt
