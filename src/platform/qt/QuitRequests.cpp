#include "platform/qt/QuitRequests.h"

#include <fcntl.h>
#include <unistd.h>

#include <QGuiApplication>
#include <QSessionManager>
#include <array>
#include <cerrno>
#include <csignal>
#include <stdexcept>

namespace platform::qt {

namespace {

constexpr std::array kEndingSignals = {SIGTERM, SIGINT, SIGHUP};

struct Pipe {
    std::array<int, 2> ends{-1, -1};

    Pipe() {
        if (::pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
            throw std::runtime_error("no pipe for signals");
        }
    }
};

// It exists until the process ends, since a signal may come at any time.
Pipe& SignalPipe() {
    static Pipe pipe;
    return pipe;
}

// Only a write is safe here; the event loop reads the other end.
void OnSignal(int /*number*/) {
    const int kept = errno;
    const char byte = 1;
    [[maybe_unused]] const ssize_t written = ::write(SignalPipe().ends[1], &byte, 1);
    errno = kept;
}

void Handle(void (*handler)(int)) {
    for (const int number : kEndingSignals)
        std::signal(number, handler);
}

} // namespace

QuitRequests::QuitRequests() : notifier_(SignalPipe().ends[0], QSocketNotifier::Read) {
    connect(&notifier_, &QSocketNotifier::activated, this, &QuitRequests::ReadSignal);
    connect(
        qGuiApp, &QGuiApplication::commitDataRequest, this,
        [this](QSessionManager& session) {
            session.setRestartHint(QSessionManager::RestartIfRunning);
            Q_EMIT QuitAsked();
        },
        Qt::DirectConnection);
    Handle(OnSignal);
}

QuitRequests::~QuitRequests() {
    Handle(SIG_DFL);
}

void QuitRequests::ReadSignal() {
    char byte = 0;
    while (::read(SignalPipe().ends[0], &byte, 1) == 1) {
    }
    Q_EMIT QuitAsked();
}

} // namespace platform::qt
