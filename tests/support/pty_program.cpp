#include "support/pty_program.h"

#include <poll.h>
#include <pty.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <vector>

namespace kelvo {
namespace {

using Clock = std::chrono::steady_clock;

Clock::time_point in(double seconds) {
    return Clock::now() +
           std::chrono::duration_cast<Clock::duration>(std::chrono::duration<double>(seconds));
}

std::vector<QByteArray> encoded(const QStringList& texts) {
    std::vector<QByteArray> all;
    for (const QString& text : texts)
        all.push_back(text.toLocal8Bit());
    return all;
}

std::vector<char*> pointers(std::vector<QByteArray>& texts) {
    std::vector<char*> all;
    for (QByteArray& text : texts)
        all.push_back(text.data());
    all.push_back(nullptr);
    return all;
}

} // namespace

PtyProgram::PtyProgram(const QStringList& command, const QProcessEnvironment& environment) {
    std::vector<QByteArray> words = encoded(command);
    std::vector<QByteArray> variables = encoded(environment.toStringList());
    const std::vector<char*> arguments = pointers(words);
    const std::vector<char*> values = pointers(variables);
    int terminal = -1;
    fChild = ::forkpty(&terminal, nullptr, nullptr, nullptr);
    if (fChild == 0) {
        ::execvpe(arguments[0], arguments.data(), values.data());
        ::_exit(127);
    }
    fTerminal = UniqueFd(terminal);
}

PtyProgram::~PtyProgram() {
    if (fChild < 0)
        return;
    ::kill(fChild, SIGKILL);
    ::waitpid(fChild, nullptr, 0);
}

bool PtyProgram::shows(const QByteArray& text, double seconds) {
    const auto deadline = in(seconds);
    while (true) {
        const qsizetype found = fShown.indexOf(text, fFound);
        if (found >= 0) {
            fFound = found + text.size();
            return true;
        }
        if (!readMore(50) || Clock::now() >= deadline)
            return fShown.indexOf(text, fFound) >= 0;
    }
}

void PtyProgram::type(const QByteArray& text) const {
    (void)!::write(fTerminal.get(), text.constData(), static_cast<std::size_t>(text.size()));
}

int PtyProgram::end(double seconds) {
    const auto deadline = in(seconds);
    while (fChild >= 0 && Clock::now() < deadline) {
        int status = 0;
        if (::waitpid(fChild, &status, WNOHANG) == fChild) {
            fChild = -1;
            while (readMore(0)) {
            }
            return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
        }
        (void)readMore(20);
    }
    return -1;
}

/// False when nothing more can come.
bool PtyProgram::readMore(int milliseconds) {
    pollfd ready{fTerminal.get(), POLLIN, 0};
    const int count = ::poll(&ready, 1, milliseconds);
    if (count == 0)
        return milliseconds > 0;
    QByteArray bytes(4096, '\0');
    const ssize_t size =
        ::read(fTerminal.get(), bytes.data(), static_cast<std::size_t>(bytes.size()));
    if (size <= 0) {
        // Nobody has the other end any more; do not spin while the end is waited for.
        if (milliseconds > 0)
            (void)::poll(nullptr, 0, milliseconds);
        return false;
    }
    fShown += bytes.first(size);
    return true;
}

} // namespace kelvo
