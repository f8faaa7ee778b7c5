#include "adapters/process/command_capture.h"

#include "adapters/process/shell_child.h"

#include <unistd.h>

#include <algorithm>
#include <cerrno>

namespace kelvo {
namespace {

/// With the words around it, it stays below what the log takes as one line.
constexpr std::size_t cKeptErrors = std::size_t{48} * 1024;
/// A command that prints line by line wakes us no more often than this; in that time it fills no
/// pipe.
constexpr auto cGathering = std::chrono::milliseconds(100);
/// Who has more to say than this at a time is read without a rest.
constexpr std::size_t cMuch = std::size_t{64} * 1024;
/// A flood must not hold up the quit: no more than a full pipe is read after giving up.
constexpr std::size_t cLastRead = std::size_t{1024} * 1024;

using Clock = std::chrono::steady_clock;

enum Watched { Output, Errors, Ended, GiveUp, Cancelled };

/// For poll: rounded up, so that nothing wakes a little too early and turns in a circle.
int millisecondsUntil(const CommandDeadline& deadline) {
    constexpr std::int64_t cMost = 3'600'000;
    if (!deadline)
        return -1;
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(*deadline - Clock::now());
    return static_cast<int>(std::clamp<std::int64_t>(left.count(), 0, cMost));
}

} // namespace

CommandDeadline deadlineAfter(std::optional<double> seconds) {
    constexpr double cMost = 1e8; // keeps the sum within what the clock can count
    if (!seconds)
        return {};
    const std::chrono::duration<double> span(std::clamp(*seconds, 0.0, cMost));
    return Clock::now() + std::chrono::duration_cast<Clock::duration>(span);
}

CommandCapture::CommandCapture(const Command& command, const ShellChild& child, int giveUp,
                               int cancelled)
    : fCommand(command), fOutput(static_cast<std::size_t>(command.bounds.kept)),
      fErrors(cKeptErrors), fWatched{{child.output.get(), POLLIN, 0},
                                     {child.errors.get(), POLLIN, 0},
                                     {child.ended.get(), POLLIN, 0},
                                     {giveUp, POLLIN, 0},
                                     {cancelled, POLLIN, 0}} {}

CommandEnd CommandCapture::follow(const CommandDeadline& deadline) {
    bool gathers = false;
    while (fWatched[Output].fd >= 0 || fWatched[Ended].fd >= 0) {
        if (deadline && Clock::now() >= *deadline)
            return CommandEnd::Cut;
        if (gathers)
            letGather();
        gathers = false;
        if (::poll(fWatched.data(), fWatched.size(), millisecondsUntil(deadline)) <= 0)
            continue;
        std::size_t size = 0;
        if (fWatched[Errors].revents != 0)
            size += readErrors();
        if (fWatched[Output].revents != 0)
            size += readOutput();
        if (fWatched[Ended].revents != 0)
            fWatched[Ended].fd = -1;
        gathers = size > 0 && size < cMuch && fWatched[Ended].fd >= 0;
        if (fOutput.total() > fCommand.bounds.most)
            return CommandEnd::TooMuch;
        if (fWatched[GiveUp].revents != 0)
            break;
        if (fWatched[Cancelled].revents != 0)
            return CommandEnd::Cancelled;
    }
    return CommandEnd::Own;
}

/// Waits a little for more output; anything else ends the wait.
void CommandCapture::letGather() {
    const std::span<pollfd> others = std::span(fWatched).subspan(Ended);
    (void)::poll(others.data(), others.size(), static_cast<int>(cGathering.count()));
}

void CommandCapture::readRest() {
    for (std::size_t got = 0, size = 0; got < cLastRead && (size = readOutput()) > 0;)
        got += size;
    for (std::size_t got = 0, size = 0; got < cLastRead && (size = readErrors()) > 0;)
        got += size;
}

CommandResult CommandCapture::result() {
    const auto output = fOutput.finish();
    return {output.text, fErrors.finish().text, {}, output.leftOut};
}

/// The number of bytes that came; 0 when none is there, with the stream closed at its end.
std::size_t CommandCapture::readSome(int stream, std::span<char> room) {
    pollfd& watched = fWatched[static_cast<std::size_t>(stream)];
    if (watched.fd < 0)
        return 0;
    const ssize_t size = ::read(watched.fd, room.data(), room.size());
    if (size > 0)
        return static_cast<std::size_t>(size);
    if (size == 0 || (errno != EAGAIN && errno != EINTR))
        watched.fd = -1;
    return 0;
}

std::size_t CommandCapture::readOutput() {
    const std::span<char> room = fOutput.room();
    const std::size_t size = readSome(Output, room);
    if (size > 0 && fCommand.received)
        fCommand.received(QByteArrayView(room.data(), static_cast<qsizetype>(size)));
    fOutput.took(size);
    return size;
}

std::size_t CommandCapture::readErrors() {
    const std::size_t size = readSome(Errors, fErrors.room());
    fErrors.took(size);
    return size;
}

} // namespace kelvo
