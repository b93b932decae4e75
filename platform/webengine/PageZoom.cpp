#include "platform/webengine/PageZoom.h"

#include <QChildEvent>
#include <QWheelEvent>
#include <cmath>
#include <utility>

#include "platform/webengine/ZoomSteps.h"

namespace webengine {

namespace {

constexpr double kSame = 0.005;
constexpr double kNearly = 0.999;
constexpr int kNotch = 120;

}  // namespace

PageZoom::PageZoom(QWebEngineView& view, PageBars& bars, SiteChoices& choices)
    : view_(view), bars_(bars), choices_(choices) {
    Watch(view_);
    choices_.WhenChanged(this, [this] { Apply(); });
}

// The part of the view that gets the wheel is made later, and made again with each new process of the page.
void PageZoom::Watch(QObject& part) {
    part.installEventFilter(this);
    for (QObject* child : part.children()) {
        if (child->isWidgetType()) Watch(*child);
    }
}

void PageZoom::Step(int steps) {
    Choose(NextZoom(view_.zoomFactor(), steps));
}

void PageZoom::Reset() {
    Choose(choices_.General().zoom);
}

// A page without a host has nothing to keep the zoom under; there it holds for the page.
void PageZoom::Choose(double factor) {
    const QString host = HostOf(view_.url());
    view_.setZoomFactor(factor);
    if (!host.isEmpty()) choices_.SetZoom(host, factor);
    bars_.FlashLine(tr("Zoom: %1%").arg(std::lround(factor * 100)));
}

double PageZoom::Wanted() const {
    const QString host = HostOf(view_.url());
    return host.isEmpty() ? choices_.General().zoom : choices_.ZoomOf(host);
}

void PageZoom::Apply() {
    if (std::abs(view_.zoomFactor() - Wanted()) > kSame) view_.setZoomFactor(Wanted());
}

// The engine now and then draws a document in the zoom of the one before, and takes it for told. It tells the
// page again only what is new.
void PageZoom::Confirm() {
    const double wanted = Wanted();
    if (std::abs(std::exchange(confirmed_, wanted) - wanted) <= kSame) return;
    view_.setZoomFactor(wanted * kNearly);
    view_.setZoomFactor(wanted);
}

bool PageZoom::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::ChildAdded) {
        QObject* child = static_cast<QChildEvent*>(event)->child();
        if (child->isWidgetType()) Watch(*child);
    }
    if (event->type() == QEvent::Wheel) {
        const auto& wheel = static_cast<QWheelEvent&>(*event);
        if (wheel.modifiers().testFlag(Qt::ControlModifier)) return WheelTurned(wheel.angleDelta().y());
    }
    return QObject::eventFilter(watched, event);
}

bool PageZoom::WheelTurned(int angle) {
    wheel_rest_ += angle;
    const int notches = wheel_rest_ / kNotch;
    wheel_rest_ -= notches * kNotch;
    if (notches != 0) Step(notches);
    return true;
}

}  // namespace webengine
