// The process in which the songs of one channel are decoded: commands come in over a socket, sound and
// picture go to the sound server and the display. Started by the program; ends when the program does.
//
//     brindlepost-media CHANNEL PROCESS     commands on descriptor 3, the gatekeeper on descriptor 4
#include <execinfo.h>
#include <fcntl.h>
#include <glib.h>
#include <sys/prctl.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

#include "platform/decoder/Policy.h"
#include "platform/decoder/Process.h"
#include "platform/decoder/Sandbox.h"
#include "platform/decoder/Wire.h"
#include "platform/gstreamer/MediaEngine.h"
#include "platform/gstreamer/Pipeline.h"
#include "platform/gstreamer/Priority.h"

namespace {

constexpr int kNotStartedByTheProgram = 2;
constexpr std::chrono::milliseconds kForEver{-1};

// A signal from the keyboard goes to the program as well, which ends in its own order. One that asks this
// process alone ends it.
void LeaveSignalsToTheProgram() {
    for (const int signal : {SIGINT, SIGHUP, SIGQUIT, SIGPIPE})
        std::signal(signal, SIG_IGN);
}

// Where it was when a file ended it, on the standard error; the signal then takes its course.
void TellWhere(int signal) {
    std::array<void*, 64> frames{};
    const int count = backtrace(frames.data(), static_cast<int>(frames.size()));
    backtrace_symbols_fd(frames.data(), count, STDERR_FILENO);
    raise(signal);
}

void TellWhereAtABadEnd() {
    std::array<void*, 1> first{};
    backtrace(first.data(), 1);  // what it needs is loaded now, not in the handler
    struct sigaction action{};
    action.sa_handler = TellWhere;
    action.sa_flags = static_cast<int>(SA_RESETHAND);
    for (const int end : {SIGABRT, SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGTRAP})
        sigaction(end, &action, nullptr);
}

/// False when the program is gone already.
bool EndWithTheProgram(const std::string& program) {
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    return std::to_string(getppid()) == program;
}

void Serve() {
    // The real-time service is out of reach from here.
    gstreamer::Priority::AskWith([](pid_t thread) {
        decoder::Send(decoder::kGateSocket,
                      {.serial = static_cast<std::uint32_t>(thread), .error = 0, .text = {}, .path = {}});
    });
    std::string path;
    gstreamer::MediaEngine engine([&path](std::string_view) { return path; });
    engine.WarmUp();
    decoder::Message command;
    while (decoder::Receive(decoder::kCommandSocket, command, kForEver) != decoder::Arrival::Gone) {
        path = command.path;
        ports::MediaReply reply = engine.SendString(command.text);
        if (!decoder::Send(
                decoder::kCommandSocket,
                {.serial = command.serial, .error = reply.error, .text = std::move(reply.text), .path = {}}))
            return;
    }
}

}  // namespace

int main(int argc, char** argv) {
    const bool is_started_by_the_program = argc == 3 && fcntl(decoder::kCommandSocket, F_GETFD) >= 0 &&
                                           fcntl(decoder::kGateSocket, F_GETFD) >= 0;
    if (!is_started_by_the_program) {
        std::fprintf(stderr, "brindlepost-media decodes songs for Brindlepost, which starts it.\n");
        return kNotStartedByTheProgram;
    }
    if (!EndWithTheProgram(argv[2])) return EXIT_SUCCESS;
    LeaveSignalsToTheProgram();
    TellWhereAtABadEnd();
    for (const int socket : {decoder::kCommandSocket, decoder::kGateSocket})
        fcntl(socket, F_SETFD, FD_CLOEXEC);
    g_set_application_name("Brindlepost");
    gstreamer::StartGStreamer();
    const bool network = decoder::Policy(decoder::Surroundings::OfThisProcess()).NeedsNetwork();
    if (decoder::SendHello(decoder::kGateSocket, decoder::EnterSandbox(network))) Serve();
    // What runs of a library's threads by now must not meet exit handlers.
    std::_Exit(EXIT_SUCCESS);
}
