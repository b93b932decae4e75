#include "platform/qt/Following.h"

#include <utility>

namespace qt {
namespace {

constexpr int kLookEveryMs = 20;

}  // namespace

Following::Following(std::function<std::optional<QPoint>()> place, std::function<void(const QPoint& by)> move)
    : place_(std::move(place)), move_(std::move(move)) {
    clock_.setTimerType(Qt::PreciseTimer);
    clock_.setInterval(kLookEveryMs);
    QObject::connect(&clock_, &QTimer::timeout, &clock_, [this] { Look(); });
}

void Following::SetOn(bool on) {
    if (on == clock_.isActive()) return;
    rest_.reset();
    ahead_ = {};
    if (on) {
        clock_.start();
    } else {
        clock_.stop();
    }
}

void Following::Look() {
    const std::optional<QPoint> now = place_();
    if (!now) return;
    if (!rest_) rest_ = now;
    const QPoint ahead = *now - *rest_;
    if (ahead == ahead_) return;
    move_(ahead - ahead_);
    ahead_ = ahead;
}

void Following::OnMoved(const QPoint& by) {
    const QPoint left = by - ahead_;
    rest_.reset();
    ahead_ = {};
    if (!left.isNull()) move_(left);
}

}  // namespace qt
