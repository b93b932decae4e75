// The event loop of the windows.
//
// Order at the end of a handler: first the work that hangs on handlers (it writes what the handler changed),
// then the screen catches up with the controls. Both happen when the outermost event that Qt delivers has
// been handled, and at the start of every yield and every box, whose inner events count as outermost again.
// So do those of a loop that the toolkit or the page engine runs inside an event: a box of a page, a drag.
//
// A handler that still yields after a fifth of a second has the hourglass beside the pointer from then on;
// one that said it would be long has the hourglass in its place. Both last until that handler ends, and a box
// that it opens has the common pointer.
#pragma once

#include <QApplication>
#include <chrono>
#include <functional>
#include <optional>
#include <vector>

#include "platform/qt/DesktopWishes.h"
#include "ports/EventLoop.h"

namespace qt {

class Loop final : public ports::EventLoop {
public:
    Loop() = default;
    Loop(const Loop&) = delete;
    Loop& operator=(const Loop&) = delete;

    // ports::EventLoop
    void Yield() override;
    void ShowHourglass() override { ShowPointer(Qt::WaitCursor); }
    void AtHandlerEnd(std::function<void()> work) override { work_.push_back(std::move(work)); }
    bool IsEnding() const override { return ending_; }

    /// A window has been asked for that was not seen before, and long work may follow: the next yield is not
    /// left out, and goes on until the window is painted, or a moment has passed.
    void AwaitPaint() { awaits_paint_ = true; }
    /// It is painted, or goes again.
    void StopAwaitingPaint() { awaits_paint_ = false; }
    bool AwaitsPaint() const { return awaits_paint_; }

    /// What brings the screen up to date with the controls; one for the whole program.
    void SetScreenUpdate(std::function<void()> update) { update_ = std::move(update); }

    /// Runs until Quit; returns the exit code. A Quit before it returns at once.
    /// From then on nothing runs at the end of a handler any more.
    int Run();
    void Quit(int exit_code = 0);

    /// Around everything that runs events inside a handler. A user who is asked something sees the common
    /// pointer meanwhile.
    class Nested {
    public:
        enum class Pointer { Common, Kept };
        explicit Nested(Loop& loop, Pointer pointer = Pointer::Common);
        ~Nested();
        Nested(const Nested&) = delete;
        Nested& operator=(const Nested&) = delete;

    private:
        Loop& loop_;
        int outer_depth_;
        int outer_level_;
        std::chrono::steady_clock::time_point outer_begin_;
        std::optional<Qt::CursorShape> outer_pointer_;
        bool hidden_;
    };

private:
    friend class Application;
    /// Around the delivery of every event.
    class Delivery {
    public:
        explicit Delivery(Loop& loop);
        ~Delivery();
        Delivery(const Delivery&) = delete;
        Delivery& operator=(const Delivery&) = delete;

    private:
        Loop& loop_;
        std::optional<Nested> foreign_loop_;
    };
    void EndHandler();
    void WaitForPaint();
    void ShowPointer(Qt::CursorShape shape);
    void HidePointer();

    std::vector<std::function<void()>> work_;
    std::function<void()> update_;
    std::chrono::steady_clock::time_point last_yield_{};
    std::chrono::steady_clock::time_point handler_begin_{};
    std::optional<Qt::CursorShape> pointer_;  // that the running handler shows
    int depth_ = 0;
    int level_ = 0;  // of the toolkit's loops, where the outermost event was delivered
    int exit_code_ = 0;
    bool in_end_ = false;
    bool awaits_paint_ = false;
    bool ending_ = false;
};

/// The application object. It is given the program's own name and nothing else of the command line, which may
/// hold what a stranger chose.
class Application final : public QApplication {
public:
    Application(const char* program, Loop& loop, const DesktopWishes& wishes = {});
    bool notify(QObject* receiver, QEvent* event) override;

private:
    Loop& loop_;
};

}  // namespace qt
