#include "adapters/qt/file_watch.h"

#include <poll.h>
#include <sys/eventfd.h>
#include <sys/inotify.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <cstring>

namespace kelvo {
namespace {

using Clock = std::chrono::steady_clock;

constexpr std::uint32_t cChanges =
    IN_CLOSE_WRITE | IN_MOVED_TO | IN_MOVED_FROM | IN_DELETE | IN_MOVE_SELF;

int timeoutUntil(std::optional<Clock::time_point> until) {
    if (!until)
        return -1;
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(*until - Clock::now()).count();
    return static_cast<int>(std::clamp<std::int64_t>(left, 0, 3'600'000));
}

} // namespace

FileWatch::FileWatch(std::string folder, std::string name)
    : fFolder(std::move(folder)), fName(std::move(name)),
      fWake(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)),
      fEvents(::inotify_init1(IN_CLOEXEC | IN_NONBLOCK)) {}

int FileWatch::arm() {
    fWatched = ::inotify_add_watch(fEvents.get(), fFolder.c_str(), cChanges | IN_ONLYDIR);
    return watching() ? 0 : errno;
}

void FileWatch::wake() noexcept {
    const std::uint64_t one = 1;
    // Fails only when so many wake-ups wait already that one more says nothing new.
    [[maybe_unused]] const ssize_t written = ::write(fWake.get(), &one, sizeof one);
}

bool FileWatch::wait(std::optional<Clock::time_point> until) {
    std::array<pollfd, 2> sources{{{fWake.get(), POLLIN, 0}, {fEvents.get(), POLLIN, 0}}};
    if (::poll(sources.data(), sources.size(), timeoutUntil(until)) <= 0)
        return false;
    std::uint64_t wakeUps = 0;
    [[maybe_unused]] const ssize_t taken = ::read(fWake.get(), &wakeUps, sizeof wakeUps);
    return takeEvents();
}

bool FileWatch::takeEvents() {
    bool changed = false;
    alignas(inotify_event) std::array<char, 4096> buffer;
    ssize_t count = 0;
    while (fEvents && (count = ::read(fEvents.get(), buffer.data(), buffer.size())) > 0) {
        for (ssize_t at = 0; at < count;) {
            inotify_event event;
            std::memcpy(&event, buffer.data() + at, sizeof event);
            const char* name = buffer.data() + at + sizeof event;
            if (event.mask & IN_IGNORED) {
                if (event.wd == fWatched)
                    fWatched = -1;
            } else if (event.mask & IN_MOVE_SELF) {
                ::inotify_rm_watch(fEvents.get(), event.wd);
                changed = true;
            } else if (event.mask & IN_Q_OVERFLOW) {
                changed = true;
            } else if (event.len > 0 && fName == name) {
                changed = true;
            }
            at += static_cast<ssize_t>(sizeof event + event.len);
        }
    }
    return changed;
}

} // namespace kelvo
