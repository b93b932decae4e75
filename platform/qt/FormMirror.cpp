#include "platform/qt/FormMirror.h"

#include <QApplication>
#include <QCloseEvent>
#include <QPainter>
#include <QScreen>
#include <QWindow>
#include <algorithm>
#include <utility>

#include "controls/Menu.h"
#include "platform/qt/Activation.h"
#include "platform/qt/Geometry.h"
#include "platform/qt/MenuMirror.h"
#include "platform/qt/Skin.h"
#include "platform/qt/Spoken.h"
#include "platform/qt/Stacking.h"
#include "platform/qt/SurfaceMirrors.h"
#include "platform/qt/TabOrder.h"
#include "platform/qt/WindowTitle.h"

namespace qt {

using controls::BorderStyle;
using controls::Property;
using controls::WindowState;

namespace {

constexpr int kPutBackMs = 150;

WindowState StateOf(const QWidget& window) {
    if (window.windowState().testFlag(Qt::WindowMinimized)) return WindowState::Minimised;
    if (window.windowState().testFlag(Qt::WindowMaximized)) return WindowState::Maximised;
    return WindowState::Normal;
}

bool IsFullScreen(const QWidget& window) {
    return window.windowState().testFlag(Qt::WindowFullScreen);
}

Qt::WindowFlags FlagsOf(const controls::Form& form) {
    switch (form.Border()) {
        case BorderStyle::None:
            return Qt::Window | Qt::FramelessWindowHint;
        case BorderStyle::FixedDialog:
            return Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint |
                   Qt::WindowSystemMenuHint;
        default:
            return Qt::Window;
    }
}

/// The window's ground, and the way in for its content's events.
class ContentView final : public QWidget {
public:
    ContentView(const controls::Form& form, QWidget* parent) : QWidget(parent), form_(form) {}

protected:
    void paintEvent(QPaintEvent* event) override {
        QPainter painter(this);
        if (!skin::Surface(painter, rect(), form_.Look()))
            painter.fillRect(event->rect(), QColor(skin::Colours().ground));
        if (form_.Border() != BorderStyle::None) return;
        painter.setPen(QColor(skin::Colours().line));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }

private:
    const controls::Form& form_;
};

}  // namespace

class FormMirror::FormWindow final : public QWidget {
public:
    explicit FormWindow(FormMirror& mirror) : QWidget(nullptr, FlagsOf(mirror.form_)), mirror_(mirror) {}

protected:
    void closeEvent(QCloseEvent* event) override {
        event->ignore();
        mirror_.OnCloseBox();
    }
    void resizeEvent(QResizeEvent* /*event*/) override {
        mirror_.Lay();
        mirror_.OnWindowChanged();
    }
    void moveEvent(QMoveEvent* event) override {
        mirror_.OnMoved(event->pos() - event->oldPos());
        mirror_.OnWindowChanged();
    }
    void changeEvent(QEvent* event) override {
        if (event->type() == QEvent::WindowStateChange) mirror_.OnStateChanged();
        QWidget::changeEvent(event);
    }
    bool event(QEvent* event) override {
        if (event->type() == QEvent::WindowActivate) mirror_.OnKeyboardCame();
        return QWidget::event(event);
    }
    bool focusNextPrevChild(bool next) override {
        const CoveredStops covered(mirror_.stage_, mirror_.form_);
        return QWidget::focusNextPrevChild(next);
    }
    void paintEvent(QPaintEvent* /*event*/) override { mirror_.stage_.OnPaint(mirror_.form_); }

private:
    FormMirror& mirror_;
};

FormMirror::FormMirror(Stage& stage, controls::Form& form) : WidgetMirror(stage, form), form_(form) {
    settle_.setSingleShot(true);
    put_back_.setSingleShot(true);
    connect(&settle_, &QTimer::timeout, this, [this] { WriteBack(); });
    connect(&put_back_, &QTimer::timeout, this, [this] { PutOnScreen(); });
    AdoptTimers(form);
    if (form.Visible()) ShowWindow();
}

FormMirror::~FormMirror() {
    delete window_;
}

void FormMirror::AdoptTimers(controls::Container& container) {
    for (controls::Control* child : container.Children()) {
        if (child->ControlKind() == controls::Kind::Timer) {
            stage_.MirrorIn(*child, nullptr);
        } else if (auto* inner = dynamic_cast<controls::Container*>(child)) {
            AdoptTimers(*inner);
        }
    }
}

void FormMirror::Realise() {
    if (IsRealised()) return;
    window_ = new FormWindow(*this);
    content_ = new ContentView(form_, window_);
    content_->setFocusPolicy(Qt::NoFocus);
    SetWidget(window_, content_);
    const auto role = form_.Border() == BorderStyle::FixedDialog ? QAccessible::Dialog : QAccessible::Window;
    Speak(*window_, {.role = [role] { return role; }});
    window_->setWindowTitle(TitleOf(ToQt(form_.Caption())));
    FillMenuBar();
    PutOnScreen();
    MirrorChildren(stage_, form_, content_);
    window_->setEnabled(form_.Enabled());
}

void FormMirror::FillMenuBar() {
    if (form_.MenuBar().empty()) return;
    if (menu_bar_ == nullptr) {
        menu_bar_ = new QMenuBar(window_);
        menu_bar_->setNativeMenuBar(false);
        menu_bar_->show();
    }
    const QList<QAction*> old = menu_bar_->actions();
    for (QAction* action : old)
        menu_bar_->removeAction(action);
    for (controls::Menu* menu : form_.MenuBar()) {
        auto* mirror = static_cast<MenuMirror*>(stage_.MirrorIn(*menu, nullptr));
        mirror->Entries();
        menu_bar_->addAction(mirror->Action());
    }
    Lay();
}

void FormMirror::Lay() {
    if (content_ == nullptr) return;
    const int bar = menu_bar_ != nullptr ? ToPixels(controls::kFrameMenu) : 0;
    if (menu_bar_ != nullptr) menu_bar_->setGeometry(0, 0, window_->width(), bar);
    content_->setGeometry(0, bar, window_->width(), std::max(0, window_->height() - bar));
}

void FormMirror::Centre() {
    const QWidget* main_window = stage_.MainWindow();
    const QScreen* screen = QApplication::primaryScreen();
    if (screen == nullptr) return;
    const bool over_main = main_window != nullptr && main_window != window_;
    const QRect around = over_main ? main_window->geometry() : screen->availableGeometry();
    QRect client = ClientRect(form_);
    const QRect all = screen->availableGeometry();
    const int title = form_.Border() == BorderStyle::None ? 0 : ToPixels(controls::kFrameTitle);
    // A window that has no size of its own starts no larger than the screen.
    if (form_.Border() == BorderStyle::Sizable) {
        const int border = ToPixels(controls::kFrameBorder);
        client.setSize(client.size().boundedTo(all.size() - QSize(2 * border, title + border)));
    }
    client.moveCenter(around.center());
    client.moveLeft(std::max(client.left(), all.left()));
    client.moveTop(std::max(client.top(), all.top() + title));
    TakeClientRect(form_, client);
}

void FormMirror::PutOnScreen() {
    if (!IsRealised() || StateOf(*window_) != WindowState::Normal || IsFullScreen(*window_)) return;
    const QRect client = ClientRect(form_);
    placing_ = true;
    if (form_.Border() != BorderStyle::Sizable) window_->setFixedSize(client.size());
    if (window_->geometry() != client) window_->setGeometry(client);
    placing_ = false;
}

void FormMirror::ShowState() {
    if (StateOf(*window_) == form_.State() && IsFullScreen(*window_) == form_.FullScreen()) return;
    changing_state_ = true;
    if (form_.FullScreen() && !IsFullScreen(*window_)) before_full_ = ClientRect(form_);
    Qt::WindowStates states = Qt::WindowNoState;
    // A maximised window that is minimised comes back maximised, whoever brings it back.
    if (form_.State() == WindowState::Minimised) states = window_->windowState() | Qt::WindowMinimized;
    if (form_.State() == WindowState::Maximised) states = Qt::WindowMaximized;
    if (form_.FullScreen()) states |= Qt::WindowFullScreen;
    if (form_.State() == WindowState::Maximised || form_.FullScreen()) {
        window_->setMinimumSize(0, 0);
        window_->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    }
    const bool was_full = IsFullScreen(*window_);
    window_->setWindowState(states);
    changing_state_ = false;
    if (form_.State() != WindowState::Normal || form_.FullScreen()) return;
    // A slow window manager gives the old size back later than it is looked at.
    if (was_full && !before_full_.isEmpty()) TakeClientRect(form_, std::exchange(before_full_, QRect()));
    put_back_.start(kPutBackMs);
}

void FormMirror::FocusFirst() {
    const std::vector<QWidget*> order = PutInTabOrder(stage_, form_);
    if (window_->focusWidget() != nullptr) return;
    const auto writes = [](const QWidget* widget) { return widget->inherits("QLineEdit"); };
    const auto first = std::find_if(order.begin(), order.end(), writes);
    if (first != order.end()) {
        (*first)->setFocus(Qt::OtherFocusReason);
    } else if (!order.empty() && form_.Border() == BorderStyle::FixedDialog) {
        order.front()->setFocus(Qt::OtherFocusReason);
    }
}

void FormMirror::ShowWindow() {
    Realise();
    if (!was_shown_ && form_.Left() == 0 && form_.Top() == 0) Centre();
    PutOnScreen();
    if (!was_shown_) FocusFirst();
    was_shown_ = true;
    QWidget* main_window = stage_.MainWindow();
    if (form_.StaysInFront() && main_window != nullptr) LieOver(*main_window);
    // The keyboard stays where it is when a picture comes.
    const bool is_beneath = stage_.IsBeneath(form_);
    window_->setAttribute(Qt::WA_ShowWithoutActivating, IsPicture() || is_beneath);
    ShowState();
    const bool main_has_keyboard = main_window != nullptr && main_window->isActiveWindow();
    window_->show();
    if (IsPicture()) {
        if (main_has_keyboard) main_window->activateWindow();
        StackPicture();
        return;
    }
    window_->raise();
    if (!is_beneath) window_->activateWindow();
    if (stage_.MainWindow() == window_) stage_.OnMainWindowShown(*window_);
}

// A picture that comes to the front floats: it stays over the main window and leaves the keyboard there.
void FormMirror::ComeToFront() {
    QWidget* main_window = stage_.MainWindow();
    window_->raise();
    if (!IsPicture()) {
        if (const auto startup_id = stage_.TakeUsersWish()) {
            ActivateForUser(*window_, *startup_id);
            return;
        }
        if (!stage_.IsBeneath(form_)) window_->activateWindow();
    } else if (window_->isVisible() && main_window != nullptr) {
        KeepAbove(*window_, *main_window);
    }
}

bool FormMirror::IsPicture() const {
    return form_.Border() == BorderStyle::None && !form_.StaysInFront();
}

bool FormMirror::IsAtHole() const {
    return IsRealised() && IsPicture() && window_->isVisible() && form_.State() == WindowState::Normal;
}

void FormMirror::StackPicture() {
    if (form_.State() == WindowState::Maximised) window_->raise();
    stage_.StackPictures();
}

void FormMirror::LieOver(QWidget& main_window) {
    if (!IsRealised() || !form_.Visible()) return;
    window_->winId();
    main_window.winId();
    window_->windowHandle()->setTransientParent(main_window.windowHandle());
    window_->raise();
    if (form_.Border() == BorderStyle::FixedDialog) window_->activateWindow();
}

void FormMirror::OnPropertyChanged(controls::Control& control, Property property) {
    WidgetMirror::OnPropertyChanged(control, property);
    if (&control == &form_ && property == Property::Visible) stage_.OnComesOrGoes(form_, was_shown_);
}

void FormMirror::Apply(Property property) {
    if (property == Property::Visible && form_.Visible()) {
        ShowWindow();
        return;
    }
    if (!IsRealised()) return;
    switch (property) {
        case Property::Visible:
            window_->hide();
            break;
        case Property::Geometry:
            // While the person still drags the edge, the window is left to the hand.
            if (!put_back_.isActive()) PutOnScreen();
            break;
        case Property::Caption:
            window_->setWindowTitle(TitleOf(ToQt(form_.Caption())));
            break;
        case Property::Window:
            FillMenuBar();
            ShowState();
            if (IsPicture() && window_->isVisible()) StackPicture();
            break;
        case Property::Popup:
            if (form_.WantedPopup() != nullptr) {
                static_cast<MenuMirror*>(stage_.MirrorIn(*form_.WantedPopup(), nullptr))->PopUp();
            }
            break;
        case Property::ZOrder:
        case Property::Focus:
            ComeToFront();
            break;
        case Property::Refresh:
        case Property::Colour:
            content_->update();
            break;
        case Property::Enabled:
            window_->setEnabled(form_.Enabled());
            break;
        default:
            break;
    }
}

void FormMirror::OnMoved(const QPoint& by) {
    if (was_shown_ && stage_.MainWindow() == window_) stage_.OnMainWindowMoved(by);
}

// The window's rules find the same place once the main window's new one is known.
void FormMirror::GoAlong(const QPoint& by) {
    placing_ = true;
    window_->setGeometry(window_->geometry().translated(by));
    placing_ = false;
}

void FormMirror::OnWindowChanged() {
    if (placing_ || !was_shown_) return;
    settle_.start(0);
}

void FormMirror::WriteBack() {
    if (!window_->isVisible() || StateOf(*window_) == WindowState::Minimised) return;
    if (ClientRect(form_) == window_->geometry()) return;
    put_back_.start(kPutBackMs);
    TakeClientRect(form_, window_->geometry());
}

void FormMirror::OnStateChanged() {
    if (changing_state_) return;
    form_.SetFullScreen(IsFullScreen(*window_));
    // Below the full screen the window keeps the state it had.
    const WindowState state = StateOf(*window_);
    if (!form_.FullScreen() || state == WindowState::Minimised) form_.SetState(state);
}

void FormMirror::OnCloseBox() {
    if (form_.Enabled()) form_.UnloadWindow();
}

void FormMirror::OnKeyboardCame() {
    // Who points at the picture in the hole means the window around it as well.
    stage_.StackPictures();
    stage_.OnActivated(form_);
}

}  // namespace qt
