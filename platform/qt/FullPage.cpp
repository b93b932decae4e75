#include "platform/qt/FullPage.h"

#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <algorithm>
#include <utility>

#include "platform/qt/Covering.h"
#include "platform/qt/Mirror.h"

namespace qt {

namespace {

controls::WebBrowser* PageInFront(controls::Form& form) {
    controls::WebBrowser* front = nullptr;
    TellCovered(form, [&front](controls::Control& control, bool covered) {
        if (control.ControlKind() != controls::Kind::WebBrowser || covered || !control.Visible()) return;
        if (front == nullptr) front = &static_cast<controls::WebBrowser&>(control);
    });
    return front;
}

/// The largest part of the page that takes keys: not the bars above it.
void GiveKeyboard(const QWidget& place) {
    QWidget* largest = nullptr;
    const auto area = [](const QWidget& part) { return part.width() * part.height(); };
    const QList<QWidget*> parts = place.findChildren<QWidget*>();
    for (QWidget* part : parts) {
        if (part->focusPolicy() == Qt::NoFocus || !part->isVisible()) continue;
        if (largest == nullptr || area(*part) > area(*largest)) largest = part;
    }
    if (largest != nullptr) largest->setFocus(Qt::OtherFocusReason);
}

/// A new parent takes the keyboard away.
void MoveTo(QWidget& parent, QWidget& place) {
    QWidget* const focus = QApplication::focusWidget();
    const bool had_keyboard = focus != nullptr && (focus == &place || place.isAncestorOf(focus));
    place.setParent(&parent);
    place.show();
    if (had_keyboard) focus->setFocus(Qt::OtherFocusReason);
}

}  // namespace

FullPage::FullPage(Stage& stage) : stage_(stage) {
    connect(qApp, &QApplication::focusChanged, this, [this] {
        if (form_ == nullptr || !form_->FullScreen() || moving_) return;
        // Whoever moves the keyboard has not finished yet.
        QTimer::singleShot(0, this, [this] { Settle(*form_); });
    });
}

void FullPage::Settle(controls::Form& form) {
    form_ = &form;
    const bool begins = form.FullScreen() && !was_full_;
    QWidget* const window = PlaceOf(form);
    if (moving_ || window == nullptr) return;
    was_full_ = form.FullScreen();
    if (!was_full_ && page_ == nullptr) return;
    moving_ = true;
    controls::WebBrowser* const front = PageInFront(form);
    if (begins && front != nullptr && PlaceOf(*front) != nullptr) GiveKeyboard(*PlaceOf(*front));
    controls::WebBrowser* const wanted = Wanted(form, *window);
    if (wanted != page_) {
        PutBack();
        if (wanted != nullptr) Fill(*window, *wanted);
    }
    moving_ = false;
}

controls::WebBrowser* FullPage::Wanted(controls::Form& form, const QWidget& window) {
    controls::WebBrowser* const front = PageInFront(form);
    if (!form.FullScreen() || !window.mask().isEmpty() || front == nullptr) return nullptr;
    const QWidget* const place = PlaceOf(*front);
    const QWidget* const focus = QApplication::focusWidget();
    if (place == nullptr) return nullptr;
    const bool is_elsewhere =
        focus != nullptr && focus->window() == &window && focus != place && !place->isAncestorOf(focus);
    return is_elsewhere ? nullptr : front;
}

void FullPage::Fill(QWidget& window, controls::WebBrowser& page) {
    QWidget* const place = PlaceOf(page);
    home_ = place->parentWidget();
    window_ = &window;
    page_ = &page;
    MoveTo(window, *place);
    place->setGeometry(window.rect());
    place->raise();
    window.installEventFilter(this);
}

void FullPage::PutBack() {
    controls::WebBrowser* const page = std::exchange(page_, nullptr);
    if (window_ != nullptr) window_->removeEventFilter(this);
    if (page == nullptr || home_ == nullptr || PlaceOf(*page) == nullptr) return;
    QWidget* const place = PlaceOf(*page);
    MoveTo(*home_, *place);
    for (const controls::Property property : {controls::Property::Geometry, controls::Property::Visible})
        stage_.MirrorOf(*page)->CatchUpNow(property);
    // Under what lies over it otherwise.
    const auto& siblings = page->Parent()->Children();
    for (auto next = std::find(siblings.begin(), siblings.end(), page); next != siblings.end(); ++next) {
        QWidget* const over = PlaceOf(**next);
        if (over == nullptr || over == place || over->parentWidget() != home_) continue;
        place->stackUnder(over);
        return;
    }
}

QWidget* FullPage::PlaceOf(const controls::Control& control) const {
    const Mirror* const mirror = stage_.MirrorOf(control);
    return mirror != nullptr ? mirror->Widget() : nullptr;
}

bool FullPage::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize && watched == window_ && page_ != nullptr)
        PlaceOf(*page_)->setGeometry(window_->rect());
    return false;
}

}  // namespace qt
