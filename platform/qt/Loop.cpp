#include "platform/qt/Loop.h"

#include <QThread>
#include <QTimer>
#include <array>
#include <string>

#include "platform/qt/SkinColours.h"
#include "platform/qt/SkinStyle.h"

namespace qt {
namespace {

/// Less than a frame of the screen: every yield paints what changed, and ends in a durable write.
constexpr std::chrono::milliseconds kYieldPause{10};
constexpr std::chrono::milliseconds kLongHandler{200};
/// More than the window manager of a busy machine takes with a window that comes; one that is never seen
/// costs no more.
constexpr std::chrono::milliseconds kAwaitedPaint{250};

/// Qt keeps references to these for as long as it lives.
struct Arguments {
    std::string program;
    std::array<char*, 2> values{};
    int count = 1;
};

Arguments& ArgumentsFor(const char* program) {
    static Arguments arguments;
    arguments.program = program != nullptr ? program : "";
    arguments.values = {arguments.program.data(), nullptr};
    arguments.count = 1;
    return arguments;
}

}  // namespace

void Loop::EndHandler() {
    if (in_end_) return;
    in_end_ = true;
    for (std::size_t i = 0; i < work_.size(); ++i)
        work_[i]();
    in_end_ = false;
    if (update_) update_();
}

// A loop that was begun inside a handler without a guard of ours is none the less one that a user works in.
Loop::Delivery::Delivery(Loop& loop) : loop_(loop) {
    const int level = QThread::currentThread()->loopLevel();
    if (loop_.depth_ > 0 && level > loop_.level_) foreign_loop_.emplace(loop_);
    if (loop_.depth_++ > 0) return;
    loop_.level_ = level;
    loop_.handler_begin_ = std::chrono::steady_clock::now();
}

Loop::Delivery::~Delivery() {
    if (--loop_.depth_ > 0) return;
    loop_.EndHandler();
    loop_.HidePointer();
}

void Loop::ShowPointer(Qt::CursorShape shape) {
    if (pointer_) return;
    pointer_ = shape;
    QApplication::setOverrideCursor(shape);
}

void Loop::HidePointer() {
    if (!pointer_) return;
    pointer_.reset();
    QApplication::restoreOverrideCursor();
}

Loop::Nested::Nested(Loop& loop, Pointer pointer)
    : loop_(loop),
      outer_depth_(loop.depth_),
      outer_level_(loop.level_),
      outer_begin_(loop.handler_begin_),
      outer_pointer_(loop.pointer_),
      hidden_(pointer == Pointer::Common) {
    loop_.EndHandler();
    loop_.depth_ = 0;
    if (hidden_) loop_.HidePointer();
    loop_.pointer_.reset();
}

Loop::Nested::~Nested() {
    loop_.depth_ = outer_depth_;
    loop_.level_ = outer_level_;
    // What a person takes for an answer is no work of the handler's.
    loop_.handler_begin_ = hidden_ ? std::chrono::steady_clock::now() : outer_begin_;
    if (hidden_ && outer_pointer_) {
        loop_.ShowPointer(*outer_pointer_);
    } else {
        loop_.pointer_ = outer_pointer_;
    }
}

void Loop::WaitForPaint() {
    QTimer patience;
    patience.setSingleShot(true);
    QObject::connect(&patience, &QTimer::timeout, &patience, [this] { StopAwaitingPaint(); });
    patience.start(kAwaitedPaint);
    while (awaits_paint_ && !ending_)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

void Loop::Yield() {
    const auto now = std::chrono::steady_clock::now();
    if (!awaits_paint_ && now - last_yield_ < kYieldPause) return;
    if (depth_ > 0 && now - handler_begin_ > kLongHandler) ShowPointer(Qt::BusyCursor);
    {
        const Nested nested(*this, Nested::Pointer::Kept);
        QCoreApplication::processEvents();
        if (awaits_paint_) WaitForPaint();
    }
    last_yield_ = std::chrono::steady_clock::now();
}

int Loop::Run() {
    EndHandler();
    const int code = ending_ ? exit_code_ : QApplication::exec();
    ending_ = true;
    // Late events may still be delivered while everything that the work belongs to is taken down.
    work_.clear();
    update_ = nullptr;
    return code;
}

void Loop::Quit(int exit_code) {
    ending_ = true;
    exit_code_ = exit_code;
    QCoreApplication::exit(exit_code);
}

Application::Application(const char* program, Loop& loop, const DesktopWishes& wishes)
    : QApplication(ArgumentsFor(program).count, ArgumentsFor(program).values.data()), loop_(loop) {
    setQuitOnLastWindowClosed(false);
    setApplicationName(QStringLiteral("Brindlepost"));
    setApplicationDisplayName(QString());
    setDesktopFileName(QStringLiteral("brindlepost"));
    skin::ShowHighContrast(wishes.high_contrast);
    ApplySkin(*this);
}

bool Application::notify(QObject* receiver, QEvent* event) {
    // Threads of the toolkit deliver their own.
    if (QThread::currentThread() != thread()) return QApplication::notify(receiver, event);
    const Loop::Delivery delivery(loop_);
    return QApplication::notify(receiver, event);
}

}  // namespace qt
