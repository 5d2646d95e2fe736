#include "ui/qt/end_signals.h"

#include <QCoreApplication>
#include <QSocketNotifier>
#include <array>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace {

std::array<int, 2> signalPipe{-1, -1};

// All that a signal handler may safely do: wake the event queue.
void WakeEventQueue(int /*signal*/) {
    const char anything = 0;
    [[maybe_unused]] const ssize_t written = write(signalPipe[1], &anything, 1);
}

} // namespace

void EndOnSignals(std::function<void()> endProgram) {
    if (pipe2(signalPipe.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    auto* notifier =
        new QSocketNotifier(signalPipe[0], QSocketNotifier::Read, QCoreApplication::instance());
    QObject::connect(notifier, &QSocketNotifier::activated, notifier,
                     [notifier, endProgram = std::move(endProgram)] {
                         notifier->setEnabled(false);
                         endProgram();
                     });
    for (const int signal : {SIGTERM, SIGINT, SIGHUP})
        (void)std::signal(signal, WakeEventQueue);
    // A file that grows beyond what the user is allowed is an error like a full disk.
    (void)std::signal(SIGXFSZ, SIG_IGN);
}
