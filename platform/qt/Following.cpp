#include "platform/qt/Following.h"

#include <utility>

namespace qt {
namespace {

constexpr int kLookEveryMs = 20;

// A scaled display has its places in between those of the toolkit.
constexpr int kRounding = 2;

}  // namespace

Following::Following(std::function<std::optional<Places>()> places,
                     std::function<void(const QPoint& by)> move)
    : places_(std::move(places)), move_(std::move(move)) {
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
    const std::optional<Places> now = places_();
    if (!now) return;
    // A window that has just come is on its way to where the toolkit has it already, and nothing more is
    // told.
    if (!rest_ && (now->on_display - now->known).manhattanLength() > kRounding) return;
    if (!rest_) rest_ = now->on_display;
    const QPoint ahead = now->on_display - *rest_;
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
