#include <gtest/gtest.h>

#include <QCursor>
#include <QEventLoop>
#include <QGuiApplication>
#include <QTimer>
#include <chrono>
#include <functional>
#include <optional>
#include <vector>

#include "platform/qt/QtBench.h"

namespace {

class Sleeper final : public QObject {
public:
    explicit Sleeper(std::function<void()> work) : work_(std::move(work)) {}
    bool event(QEvent* event) override {
        if (event->type() != QEvent::User) return QObject::event(event);
        work_();
        return true;
    }

private:
    std::function<void()> work_;
};

/// Counts the ends of handlers while it is told to; the loop keeps it for good.
class EndCounter {
public:
    static EndCounter& Get() {
        static EndCounter counter;
        return counter;
    }
    std::function<void()> OnEnd;

private:
    EndCounter() {
        qt_tests::TheLoop().AtHandlerEnd([this] {
            if (OnEnd) OnEnd();
        });
    }
};

TEST(Loop, WorkAtTheEndOfAHandlerRunsOnceWhenTheOutermostEventIsOver) {
    std::vector<int> order;
    EndCounter::Get().OnEnd = [&order] { order.push_back(9); };
    Sleeper inner([&order] { order.push_back(2); });
    Sleeper outer([&order, &inner] {
        order.push_back(1);
        QEvent event(QEvent::User);
        QCoreApplication::sendEvent(&inner, &event);
        order.push_back(3);
    });

    QEvent event(QEvent::User);
    QCoreApplication::sendEvent(&outer, &event);
    EndCounter::Get().OnEnd = {};

    EXPECT_EQ(order, (std::vector<int>{1, 2, 3, 9}));
}

TEST(Loop, OfManyYieldsOneInTenMillisecondsGivesATurn) {
    qt::Loop& loop = qt_tests::TheLoop();
    int turns = 0;
    QTimer each_turn;
    QObject::connect(&each_turn, &QTimer::timeout, &each_turn, [&turns] { ++turns; });
    each_turn.start(0);
    const auto start = std::chrono::steady_clock::now();

    for (int i = 0; i < 100'000; ++i)
        loop.Yield();

    const auto taken = std::chrono::steady_clock::now() - start;
    EXPECT_LE(turns, taken / std::chrono::milliseconds(10) + 1);
}

TEST(Loop, AYieldGoesOnUntilTheAwaitedPaint) {
    qt::Loop& loop = qt_tests::TheLoop();
    const QObject while_it_waits;
    bool is_painted = false;
    QTimer::singleShot(5, &while_it_waits, [&] {
        is_painted = true;
        loop.StopAwaitingPaint();
    });

    loop.AwaitPaint();
    loop.Yield();

    EXPECT_TRUE(is_painted);
}

TEST(Loop, AYieldDoesNotWaitForEverForAPaintThatNeverComes) {
    qt::Loop& loop = qt_tests::TheLoop();

    loop.AwaitPaint();
    loop.Yield();

    EXPECT_FALSE(loop.AwaitsPaint());
}

TEST(Loop, AHandlerInsideAYieldEndsWithItsOwnWork) {
    std::string order;
    bool ran = false;
    Sleeper inner([&] {
        order += "inner ";
        ran = true;
    });
    Sleeper outer([&] {
        EndCounter::Get().OnEnd = [&order] { order += "end "; };
        QCoreApplication::postEvent(&inner, new QEvent(QEvent::User));
        const auto start = std::chrono::steady_clock::now();
        while (!ran && std::chrono::steady_clock::now() - start < std::chrono::seconds(5))
            qt_tests::TheLoop().Yield();
        EndCounter::Get().OnEnd = {};
    });

    QEvent event(QEvent::User);
    QCoreApplication::sendEvent(&outer, &event);

    EXPECT_EQ(order.substr(0, 14), "end inner end ");
}

TEST(Loop, HandlersInALoopThatSomebodyElseRunsEndWithTheirOwnWork) {
    int ends = 0;
    bool inside = false;
    int ends_inside = 0;
    Sleeper outer([&] {
        QEventLoop box;
        EndCounter::Get().OnEnd = [&] { (inside ? ends_inside : ends) += 1; };
        QTimer::singleShot(0, &box, [&] { inside = true; });
        QTimer::singleShot(20, &box, [&] { box.quit(); });
        box.exec();
        inside = false;
        ends = 0;
    });

    QEvent event(QEvent::User);
    QCoreApplication::sendEvent(&outer, &event);
    EndCounter::Get().OnEnd = {};

    EXPECT_GT(ends_inside, 0)
        << "the screen catches up and the stores are written while a box of a page stands";
    EXPECT_EQ(ends, 1) << "and the handler that it stands in ends once";
}

TEST(Loop, ALoopInsideALoopIsOneToo) {
    int ends = 0;
    Sleeper inner([&] {
        QEventLoop drag;
        EndCounter::Get().OnEnd = [&ends] { ++ends; };
        QTimer::singleShot(20, &drag, [&] { drag.quit(); });
        drag.exec();
        EndCounter::Get().OnEnd = {};
    });
    Sleeper outer([&] {
        const qt::Loop::Nested nested(qt_tests::TheLoop());
        QEventLoop box;
        QTimer::singleShot(0, &box, [&] {
            QEvent event(QEvent::User);
            QCoreApplication::sendEvent(&inner, &event);
            box.quit();
        });
        box.exec();
    });

    QEvent event(QEvent::User);
    QCoreApplication::sendEvent(&outer, &event);

    EXPECT_GT(ends, 0);
}

TEST(Loop, QuitEndsARunWithItsCode) {
    qt::Loop loop;
    QTimer::singleShot(0, [&loop] { loop.Quit(4); });

    const int code = loop.Run();

    EXPECT_EQ(code, 4);
    EXPECT_TRUE(loop.IsEnding());
}

TEST(Loop, AQuitBeforeTheRunIsNotLost) {
    qt::Loop loop;
    loop.Quit(5);

    EXPECT_EQ(loop.Run(), 5);
}

TEST(Loop, AfterTheRunNothingHangsOnHandlersAnyMore) {
    qt::Loop loop;
    int ends = 0;
    loop.AtHandlerEnd([&ends] { ++ends; });
    loop.Quit();
    loop.Run();
    const int ends_of_the_run = ends;

    loop.Yield();

    EXPECT_EQ(ends_of_the_run, 1);
    EXPECT_EQ(ends, 1);
}

void RunInAHandler(const std::function<void()>& work) {
    Sleeper handler(work);
    QEvent event(QEvent::User);
    QCoreApplication::sendEvent(&handler, &event);
}

/// The pointer that the program forces on its windows, if any.
std::optional<Qt::CursorShape> ForcedPointer() {
    const QCursor* cursor = QGuiApplication::overrideCursor();
    return cursor != nullptr ? std::optional(cursor->shape()) : std::nullopt;
}

void YieldFor(std::chrono::milliseconds time) {
    const auto end = std::chrono::steady_clock::now() + time;
    while (std::chrono::steady_clock::now() < end)
        qt_tests::TheLoop().Yield();
}

TEST(LoopPointer, AHandlerThatYieldsForLongHasTheHourglassUntilItEnds) {
    std::optional<Qt::CursorShape> soon;
    std::optional<Qt::CursorShape> later;

    RunInAHandler([&] {
        YieldFor(std::chrono::milliseconds(20));
        soon = ForcedPointer();
        YieldFor(std::chrono::milliseconds(230));
        later = ForcedPointer();
    });

    EXPECT_EQ(soon, std::nullopt);
    EXPECT_EQ(later, Qt::BusyCursor);
    EXPECT_EQ(ForcedPointer(), std::nullopt);
}

TEST(LoopPointer, EventsOfAYieldDoNotTakeTheHourglassAway) {
    std::optional<Qt::CursorShape> after;

    RunInAHandler([&] {
        qt_tests::TheLoop().ShowHourglass();
        QTimer::singleShot(0, [] { qt_tests::TheLoop().ShowHourglass(); });
        YieldFor(std::chrono::milliseconds(20));
        after = ForcedPointer();
    });

    EXPECT_EQ(after, Qt::WaitCursor);
    EXPECT_EQ(ForcedPointer(), std::nullopt);
}

TEST(LoopPointer, ABoxHasTheCommonPointer) {
    std::optional<Qt::CursorShape> inside = Qt::WaitCursor;
    std::optional<Qt::CursorShape> after;

    RunInAHandler([&] {
        qt_tests::TheLoop().ShowHourglass();
        {
            const qt::Loop::Nested box(qt_tests::TheLoop());
            inside = ForcedPointer();
        }
        after = ForcedPointer();
    });

    EXPECT_EQ(inside, std::nullopt);
    EXPECT_EQ(after, Qt::WaitCursor);
    EXPECT_EQ(ForcedPointer(), std::nullopt);
}

}  // namespace
