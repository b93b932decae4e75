#include "platform/webengine/Pace.h"

#include <algorithm>

namespace webengine {

namespace {

// A page that blinks is followed; one that never stops costs one act a second.
constexpr qint64 kShortMs = 250;
constexpr qint64 kLongMs = 1000;
constexpr qint64 kQuietMs = 5000;
constexpr int kMostAtShort = 12;
// So many between two acts are no page that tells something.
constexpr int kFlood = 200;

}  // namespace

Pace::Pace(std::function<void()> act) : act_(std::move(act)) {
    later_.setSingleShot(true);
    connect(&later_, &QTimer::timeout, this, [this] { Act(); });
}

void Pace::Want() {
    if (++held_back_ > kFlood) flooded_.start();
    if (later_.isActive()) return;
    const qint64 since = last_.isValid() ? last_.elapsed() : kQuietMs;
    if (since >= kQuietMs) in_a_row_ = 0;
    const qint64 apart = in_a_row_ < kMostAtShort ? kShortMs : kLongMs;
    if (since >= apart) {
        Act();
    } else {
        later_.start(static_cast<int>(apart - since));
    }
}

void Pace::Act() {
    later_.stop();
    last_.start();
    held_back_ = 0;
    in_a_row_ = std::min(in_a_row_ + 1, kMostAtShort);
    act_();
}

bool Pace::IsFlooded() const {
    return flooded_.isValid() && !flooded_.hasExpired(kQuietMs);
}

}  // namespace webengine
