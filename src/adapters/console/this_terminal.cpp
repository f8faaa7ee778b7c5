#include "adapters/console/this_terminal.h"

#include "adapters/system/pidfd.h"

#include <QByteArray>
#include <QFile>
#include <QSocketNotifier>
#include <QTimer>

#include <poll.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <utility>

namespace kelvo {
namespace {

constexpr int cLongestEnd = 2000; // milliseconds

/// The process id, or -1.
pid_t startScript(const QString& path) {
    QByteArray file = QFile::encodeName(path);
    std::array<char, 3> shell{'s', 'h', '\0'};
    std::array<char*, 3> arguments{shell.data(), file.data(), nullptr};
    pid_t child = -1;
    const int error = ::posix_spawn(&child, "/bin/sh", nullptr, nullptr, arguments.data(), environ);
    return error == 0 ? child : -1;
}

} // namespace

ThisTerminal::ThisTerminal() = default;

ThisTerminal::~ThisTerminal() {
    if (fChild < 0)
        return;
    signalProcess(fEnd, SIGTERM);
    pollfd end{fEnd.get(), POLLIN, 0};
    (void)::poll(&end, 1, cLongestEnd);
    (void)::waitpid(fChild, nullptr, WNOHANG);
}

void ThisTerminal::openCommandFile(const QString& path, const QString&, const QString&,
                                   std::function<void(TerminalOutcome)> ended) {
    const pid_t child = fChild < 0 ? startScript(path) : -1;
    UniqueFd end = child < 0 ? UniqueFd() : openProcess(child);
    if (!end) {
        QTimer::singleShot(0, [ended = std::move(ended)] { ended(TerminalOutcome::NoWindow); });
        return;
    }
    fChild = child;
    fEnd = std::move(end);
    fEnded = std::move(ended);
    fNotifier = std::make_unique<QSocketNotifier>(fEnd.get(), QSocketNotifier::Read);
    QObject::connect(fNotifier.get(), &QSocketNotifier::activated, [this] { reap(); });
}

void ThisTerminal::reap() {
    fNotifier->setEnabled(false);
    fNotifier.release()->deleteLater();
    (void)::waitpid(std::exchange(fChild, -1), nullptr, 0);
    fEnd.reset();
    std::exchange(fEnded, nullptr)(TerminalOutcome::Ended);
}

} // namespace kelvo
