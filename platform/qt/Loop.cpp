#include "platform/qt/Loop.h"

#include <array>
#include <string>

#include "platform/qt/SkinStyle.h"

namespace qt {
namespace {

constexpr std::chrono::milliseconds kYieldPause{4};

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

void Loop::EndEvent() {
    if (--depth_ == 0) EndHandler();
}

Loop::Nested::Nested(Loop& loop) : loop_(loop), outer_depth_(loop.depth_) {
    loop_.EndHandler();
    loop_.depth_ = 0;
}

Loop::Nested::~Nested() {
    loop_.depth_ = outer_depth_;
}

void Loop::Yield() {
    if (std::chrono::steady_clock::now() - last_yield_ < kYieldPause) return;
    {
        const Nested nested(*this);
        QCoreApplication::processEvents();
    }
    last_yield_ = std::chrono::steady_clock::now();
}

int Loop::Run() {
    EndHandler();
    if (ending_) return exit_code_;
    const int code = QApplication::exec();
    ending_ = true;
    return code;
}

void Loop::Quit(int exit_code) {
    ending_ = true;
    exit_code_ = exit_code;
    QCoreApplication::exit(exit_code);
}

Application::Application(const char* program, Loop& loop)
    : QApplication(ArgumentsFor(program).count, ArgumentsFor(program).values.data()), loop_(loop) {
    setQuitOnLastWindowClosed(false);
    setApplicationName(QStringLiteral("Brindlepost"));
    setApplicationDisplayName(QString());
    setDesktopFileName(QStringLiteral("brindlepost"));
    DressApplication(*this);
}

bool Application::notify(QObject* receiver, QEvent* event) {
    loop_.BeginEvent();
    const bool handled = QApplication::notify(receiver, event);
    loop_.EndEvent();
    return handled;
}

}  // namespace qt
