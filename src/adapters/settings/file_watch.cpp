#include "adapters/settings/file_watch.h"

#include <fcntl.h>
#include <poll.h>
#include <pthread.h>
#include <signal.h>
#include <sys/eventfd.h>
#include <sys/inotify.h>
#include <sys/signalfd.h>
#include <sys/stat.h>
#include <sys/timerfd.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <ctime>

// The folder is watched by directory signals (F_NOTIFY): a process that holds an inotify watch
// waits 5 to 20 ms in the kernel when it is killed, and is back that much later. Where the kernel
// has no directory signals it is inotify after all. Both only say that something happened; what did
// is seen by comparing.
namespace kelvo {
namespace {

using Clock = std::chrono::steady_clock;

constexpr unsigned long cFileChanges = DN_CREATE | DN_MODIFY | DN_DELETE | DN_RENAME | DN_MULTISHOT;
constexpr unsigned long cFolderChanges = DN_DELETE | DN_RENAME | DN_MULTISHOT;
constexpr std::uint32_t cFileEvents =
    IN_CLOSE_WRITE | IN_MODIFY | IN_CREATE | IN_MOVED_TO | IN_MOVED_FROM | IN_DELETE;
constexpr std::uint32_t cFolderEvents = IN_DELETE | IN_MOVED_FROM;
/// The coarsest stamps of a usual file system.
constexpr std::int64_t cYoung = 2'000'000'000;
constexpr std::chrono::milliseconds cLongestBlind(200);

int timeoutUntil(std::optional<Clock::time_point> until) {
    if (!until)
        return -1;
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(*until - Clock::now()).count();
    return static_cast<int>(std::clamp<std::int64_t>(left, 0, 3'600'000));
}

std::int64_t nanoseconds(const timespec& time) {
    return std::int64_t{time.tv_sec} * 1'000'000'000 + time.tv_nsec;
}

UniqueFd openFolder(int base, const char* path) {
    return UniqueFd(::openat(base, path, O_RDONLY | O_DIRECTORY | O_CLOEXEC));
}

/// Sends the calling thread a SIGIO for each of these changes in the folder. The thread must block
/// that signal: unlike the queued ones it coalesces, so that no number of changes overflows.
bool signalChanges(int folder, unsigned long changes) {
    f_owner_ex owner{};
    owner.type = F_OWNER_TID;
    owner.pid = ::gettid();
    return ::fcntl(folder, F_SETOWN_EX, &owner) == 0 && ::fcntl(folder, F_NOTIFY, changes) == 0;
}

} // namespace

FileWatch::FileWatch(std::string folder, std::string name)
    : fFolder(std::move(folder)), fName(std::move(name)),
      fWake(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)),
      fRing(::timerfd_create(CLOCK_MONOTONIC, TFD_CLOEXEC | TFD_NONBLOCK)) {}

int FileWatch::arm() {
    fOpenFolder = openFolder(AT_FDCWD, fFolder.c_str());
    if (!fOpenFolder)
        return errno;
    if (fSignalsRefused) {
        if (const int error = listenToEvents(); error != 0) {
            forget();
            return error;
        }
    }
    (void)look(false);
    return watching() ? 0 : ENOENT;
}

void FileWatch::wake() noexcept {
    const std::uint64_t one = 1;
    // Fails only when so many wake-ups wait already that one more says nothing new.
    [[maybe_unused]] const ssize_t written = ::write(fWake.get(), &one, sizeof one);
}

bool FileWatch::ringIn(std::chrono::milliseconds time) noexcept {
    const auto seconds = std::chrono::floor<std::chrono::seconds>(time);
    const std::chrono::nanoseconds rest = time - seconds;
    itimerspec once{};
    once.it_value = {.tv_sec = seconds.count(), .tv_nsec = rest.count()};
    return ::timerfd_settime(fRing.get(), 0, &once, nullptr) == 0;
}

bool FileWatch::wait(std::optional<Clock::time_point> until) {
    fRang = false;
    if (watching() && !fEvents) {
        if (!listen()) {
            forget();
            return false;
        }
        if (look(true))
            return true;
    }
    std::array<pollfd, 3> sources{
        {{fWake.get(), POLLIN, 0}, {fEvents.get(), POLLIN, 0}, {fRing.get(), POLLIN, 0}}};
    // Without descriptors left nothing can wake us.
    if (!fWake)
        until = std::min(until.value_or(Clock::time_point::max()), Clock::now() + cLongestBlind);
    if (::poll(sources.data(), sources.size(), timeoutUntil(until)) <= 0)
        return false;
    std::uint64_t wakeUps = 0;
    [[maybe_unused]] const ssize_t taken = ::read(fWake.get(), &wakeUps, sizeof wakeUps);
    fRang = ::read(fRing.get(), &wakeUps, sizeof wakeUps) > 0;
    if (!watching())
        return false;
    const bool told = sources[1].revents != 0;
    if (told)
        takeEvents();
    return look(told);
}

bool FileWatch::listen() {
    if (listenToSignals())
        return true;
    fSignalsRefused = true;
    return listenToEvents() == 0;
}

/// On the waiting thread: a signal for a thread is read by that thread only.
bool FileWatch::listenToSignals() {
    sigset_t signals;
    ::sigemptyset(&signals);
    ::sigaddset(&signals, SIGIO);
    if (::pthread_sigmask(SIG_BLOCK, &signals, nullptr) != 0)
        return false;
    fEvents = UniqueFd(::signalfd(-1, &signals, SFD_CLOEXEC | SFD_NONBLOCK));
    if (!fEvents || !signalChanges(fOpenFolder.get(), cFileChanges))
        return false;
    // Only its parent tells that a folder goes away. Without one that may be read the next wake-up
    // finds out.
    fOpenParent = openFolder(fOpenFolder.get(), "..");
    if (fOpenParent && !signalChanges(fOpenParent.get(), cFolderChanges))
        fOpenParent.reset();
    return true;
}

int FileWatch::listenToEvents() {
    fEvents = UniqueFd(::inotify_init1(IN_CLOEXEC | IN_NONBLOCK));
    if (!fEvents ||
        ::inotify_add_watch(fEvents.get(), fFolder.c_str(), cFileEvents | IN_ONLYDIR) < 0)
        return errno;
    // The open folder would hold back the news of its own removal, its parent does not.
    const std::string parent = fFolder + "/..";
    (void)::inotify_add_watch(fEvents.get(), parent.c_str(), cFolderEvents | IN_ONLYDIR);
    return 0;
}

void FileWatch::takeEvents() {
    alignas(inotify_event) std::array<char, 4096> room; // NOLINT: filled by read
    while (::read(fEvents.get(), room.data(), room.size()) > 0) {
    }
}

bool FileWatch::folderIsGone() const {
    struct stat now {};
    struct stat open {};
    return ::stat(fFolder.c_str(), &now) != 0 || ::fstat(fOpenFolder.get(), &open) != 0 ||
           now.st_dev != open.st_dev || now.st_ino != open.st_ino;
}

FileWatch::State FileWatch::state() const {
    struct stat entry {};
    if (::fstatat(fOpenFolder.get(), fName.c_str(), &entry, AT_SYMLINK_NOFOLLOW) != 0)
        return {};
    return {entry.st_dev, entry.st_ino, entry.st_size, nanoseconds(entry.st_mtim),
            nanoseconds(entry.st_ctim)};
}

/// Whether the file differs from what was seen last; `told`: something happened in the folder.
bool FileWatch::look(bool told) {
    if (folderIsGone()) {
        forget();
        return true;
    }
    timespec now{};
    ::clock_gettime(CLOCK_REALTIME, &now);
    const State seen = state();
    const bool changed = seen != fSeen || (told && fSeenYoung);
    fSeen = seen;
    fSeenYoung = nanoseconds(now) - seen.changed < cYoung;
    return changed;
}

void FileWatch::forget() {
    fEvents.reset();
    fOpenParent.reset();
    fOpenFolder.reset();
}

} // namespace kelvo
