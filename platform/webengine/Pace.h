// Lets something through only a few times a second. The last wish always gets through.
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>
#include <functional>

namespace webengine {

class Pace final : public QObject {
public:
    explicit Pace(std::function<void()> act);
    /// Acts at once when it is not too soon, otherwise as soon as it is no longer.
    void Want();
    /// Acts at once; what was waiting is done with that.
    void Act();
    /// What was waiting is no longer wanted.
    void Forget() { later_.stop(); }
    /// Far more was wanted than got through, and it is not long ago.
    bool IsFlooded() const;

private:
    std::function<void()> act_;
    QTimer later_;
    QElapsedTimer last_;
    int in_a_row_ = 0;
    int held_back_ = 0;
    QElapsedTimer flooded_;
};

}  // namespace webengine
