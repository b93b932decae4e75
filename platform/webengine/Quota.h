// How often something may happen within a while.
#pragma once

#include <QElapsedTimer>

namespace webengine {

/// `most` times; the count begins again when nothing was asked for in the last half minute, or by
/// Renew.
class Quota final {
public:
    explicit Quota(int most) : most_(most) {}
    bool Take() {
        constexpr qint64 kQuietMilliseconds = 30000;
        if (last_.isValid() && last_.hasExpired(kQuietMilliseconds)) taken_ = 0;
        last_.start();
        return ++taken_ <= most_;
    }
    void Renew() { taken_ = 0; }

private:
    int most_;
    int taken_ = 0;
    QElapsedTimer last_;
};

}  // namespace webengine
