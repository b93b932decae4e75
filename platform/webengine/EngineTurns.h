// Gives the page engine its share of the event loop.
//
// The engine does one small piece of its work in each turn of the loop. A turn in which music is watched and
// a window is painted takes tens of milliseconds, so a page would come from piece to piece that slowly, and
// what pages sent meanwhile would wait and grow. Here the engine goes on after each turn, for as long as the
// turn took.
#pragma once

#include <QElapsedTimer>
#include <QObject>

namespace webengine {

class EngineTurns final : public QObject {
public:
    EngineTurns();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void TakeTurns();

    QElapsedTimer since_last_;
    bool something_came_ = false;
};

}  // namespace webengine
