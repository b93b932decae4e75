#include "platform/webengine/EngineTurns.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <algorithm>

namespace webengine {

namespace {

constexpr qint64 kMillisecond = 1'000'000;
/// A key that is pressed meanwhile waits no longer than for a picture of the screen.
constexpr qint64 kLongest = 16 * kMillisecond;

}  // namespace

EngineTurns::EngineTurns() {
    since_last_.start();
    connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::awake, this,
            [this] { TakeTurns(); });
}

// The engine posts an event to itself for each piece. Whatever else is posted is delivered as the loop would
// do it. A box of a page may run a loop in here, which takes turns of its own.
void EngineTurns::TakeTurns() {
    const qint64 share = std::min(since_last_.nsecsElapsed(), kLongest);
    QElapsedTimer taken;
    taken.start();
    qApp->installEventFilter(this);
    do {
        something_came_ = false;
        QCoreApplication::sendPostedEvents();
    } while (something_came_ && taken.nsecsElapsed() < share);
    qApp->removeEventFilter(this);
    since_last_.start();
}

bool EngineTurns::eventFilter(QObject* /*watched*/, QEvent* /*event*/) {
    something_came_ = true;
    return false;
}

}  // namespace webengine
